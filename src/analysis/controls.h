#pragma once

#include "target/conversion.h"

namespace s2k2ngt {

// ---- Output ----

/// Writes *BUCK-CTRL. Meant so: its two closing newlines stand in every output, whether or not
/// there is a buckling case.
bool WriteBucklingControl(Conversion& run, LineWriter& out);

}  // namespace s2k2ngt
