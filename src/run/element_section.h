#pragma once

#include "target/conversion.h"

namespace s2k2ngt {

/// Writes *ELEMENT: frames, then areas, then solids. It settles how elements are numbered.
bool WriteElements(Conversion& run, LineWriter& out);

}  // namespace s2k2ngt
