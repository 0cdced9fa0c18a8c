#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>

namespace s2k2ngt {

// ---- Source rows ----

/// A P-delta force of a frame.
struct T_FRPD_D {
  static constexpr Text kTable = "T_FRPD_D";
  Text Frame;
  Text Direction;  // "Local 1", "X Proj", "Y Proj" or "Z Proj"
  double Force = 0.0;
};

template <>
inline constexpr RowKey<T_FRPD_D> kRowKeys<T_FRPD_D>[] = {
    {"Frame=", &T_FRPD_D::Frame},
    LostUnless{"CoordSys=", "GLOBAL", "coordinate-system-ignored"},
    {"Direction=", &T_FRPD_D::Direction},
    {"Force=", &T_FRPD_D::Force}};

/// The tendon of a frame: its tension, and its drape at both ends and the middle.
struct T_FRPT_D {
  static constexpr Text kTable = "T_FRPT_D";
  Text Frame;
  double Tension = 0.0;
  double DrapeI = 0.0;
  double DrapeCenter = 0.0;
  double DrapeJ = 0.0;
};

template <>
inline constexpr RowKey<T_FRPT_D> kRowKeys<T_FRPT_D>[] = {{"Frame=", &T_FRPT_D::Frame},
                                                          {"Tension=", &T_FRPT_D::Tension},
                                                          {"DrapeI=", &T_FRPT_D::DrapeI},
                                                          {"DrapeCenter=", &T_FRPT_D::DrapeCenter},
                                                          {"DrapeJ=", &T_FRPT_D::DrapeJ}};

/// The load case in which the tendon of a frame acts, and how much of it.
struct T_FRLM_D {
  static constexpr Text kTable = "T_FRLM_D";
  Text Frame;
  Text LoadCase;
  double Multiplier = 0.0;
};

template <>
inline constexpr RowKey<T_FRLM_D> kRowKeys<T_FRLM_D>[] = {{"Frame=", &T_FRLM_D::Frame},
                                                          {"LoadCase=", &T_FRLM_D::LoadCase},
                                                          {"Multiplier=", &T_FRLM_D::Multiplier}};

// ---- Target records ----

/// An initial force of a beam.
struct T_NGT_FRPD_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text Label;
  Text DIR;  // "AXIAL", "GX", "GY" or "GZ"; empty for a direction that the target does not have
  double FORCE = 0.0;
};

/// Prestress of a beam.
struct T_NGT_FRPT_D {
  Text Label;
  Text LTYPE = "PRE";
  Text LoadCase;  // empty for a tendon without a multiplier
  double TENS = 0.0;
  double DI = 0.0;
  double DM = 0.0;
  double DJ = 0.0;
};

// ---- Conversion ----

/// P-delta forces into initial forces.
bool ConvertInitialForces(Conversion& run);

/// Tendons into prestress.
bool ConvertPrestress(Conversion& run);

/// The multiplier of a tendon, or null. Meant so: it is that of the tendon's own position, if that
/// is of its frame.
const T_FRLM_D* FindMultiplier(const CKeyedTable<T_FRLM_D>& multipliers, std::uint32_t key,
                               const T_FRPT_D& tendon);

// ---- Output ----

/// Writes *INIFORCE.
bool WriteInitialForces(Conversion& run, LineWriter& out);

/// Writes *PRESTRESS of a load case.
void WritePrestress(Conversion& run, Text loadCase, LineWriter& out);

// ---- Account ----

/// Notes P-delta forces of frames that are not there.
void CloseInitialForces(Conversion& run);

}  // namespace s2k2ngt
