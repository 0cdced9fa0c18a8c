#pragma once

#include "target/conversion.h"

#include <s2k2ngt/drawing.h>

namespace s2k2ngt {

/// The nodes and elements of a run whose output is written, with the numbers that they have there.
/// It only looks: the run stays as it is.
Drawing DrawingOf(const Conversion& run);

}  // namespace s2k2ngt
