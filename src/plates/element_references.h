#pragma once

#include "common/text.h"
#include "target/conversion.h"

#include <optional>

namespace s2k2ngt {

bool HasFrame(CModel& model, Text frame);

/// Why a line of the output does not name the element of this family that its row names; nothing
/// when it does. All families share one range of numbers.
std::optional<Why> WhyNotElement(Conversion& run, Text label, Text family);

}  // namespace s2k2ngt
