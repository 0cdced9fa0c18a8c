#pragma once

#include "analysis/time_history.h"

#include <optional>

namespace s2k2ngt {

// The account of time history cases: why their definitions and all that belongs to these are lost.

/// True when an analysis case of the definition's kind, modal or direct, bears the name.
template <class Definition>
bool IsHistoryAnalysed(Conversion& run, Text name);

/// Why a history case is not in the output; nothing if it is.
template <class Definition>
std::optional<Why> WhyHistoryIsLost(Conversion& run, Text name);

/// Notes the definitions and parameters of history cases that do not go over as they stand.
void CloseTimeHistories(Conversion& run);

}  // namespace s2k2ngt
