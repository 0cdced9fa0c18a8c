#pragma once

#include "target/conversion.h"

namespace s2k2ngt {

// ---- Output ----

/// Writes *BUCK-CTRL. Its two closing newlines stand in every output, whether or not there is a
/// buckling case: readers of the file count on them.
bool WriteBucklingControl(Conversion& run, LineWriter& out);

}  // namespace s2k2ngt
