#pragma once

#include "common/text.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>

namespace s2k2ngt {

// ---- Source rows ----

/// Property modifiers of a single frame, for which the target has no place.
struct T_FRPM_D {
  static constexpr Text kTable = "T_FRPM_D";
};

template <>
inline constexpr RowKey<T_FRPM_D> kRowKeys<T_FRPM_D>[] = {
    Unread{"Frame="},  Unread{"AMod="},   Unread{"AS2Mod="},  Unread{"AS3Mod="},   Unread{"JMod="},
    Unread{"I22Mod="}, Unread{"I33Mod="}, Unread{"MassMod="}, Unread{"WeightMod="}};

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

// ---- Account ----

/// Notes the modifiers of single frames.
void CloseFrameModifiers(Conversion& run);

}  // namespace s2k2ngt
