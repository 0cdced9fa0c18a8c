#pragma once

#include "target/conversion.h"

#include <cstdint>

namespace s2k2ngt {

// ---- Target records ----

/// Stiffness scale factors of a section, keyed by a running number. The conversion of the sections
/// makes them from the sections' own modifiers.
struct T_NGT_FRPM_D {
  std::int32_t iSEC = 0;
  double AREA_SF = 0.0;
  double ASY_SF = 0.0;
  double ASZ_SF = 0.0;
  double IXX_SF = 0.0;
  double IYY_SF = 0.0;
  double IZZ_SF = 0.0;
  double WGT_SF = 0.0;
};

// ---- Output ----

/// Writes *SECT-SCALE.
bool WriteSectionScaleFactors(Conversion& run, LineWriter& out);

}  // namespace s2k2ngt
