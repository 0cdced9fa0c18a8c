#pragma once

#include "target/conversion.h"

namespace s2k2ngt {

/// Writes *STLDCASE, then the loads of each load case, kind after kind.
bool WriteStaticLoads(Conversion& run, LineWriter& out);

}  // namespace s2k2ngt
