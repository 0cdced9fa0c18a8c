#pragma once

#include "target/conversion.h"

namespace s2k2ngt {

// ---- Target records ----

/// Analysis control. All of its values are always the same.
struct T_NGT_ANCT_D {
  bool bWrite = false;
};

// ---- Conversion ----

/// The analysis control, when a case needs it.
bool ConvertAnalysisControl(Conversion& run);

// ---- Output ----

/// Writes *ANAL-CTRL.
bool WriteAnalysisControl(Conversion& run, LineWriter& out);

}  // namespace s2k2ngt
