#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <array>
#include <cstdint>

namespace s2k2ngt {

// ---- Source rows ----

/// End releases of a frame.
struct T_FRGN_D {
  static constexpr Text kTable = "T_FRGN_D";
  Text Frame;
  bool PI = false;
  bool V2I = false;
  bool V3I = false;
  bool TI = false;
  bool M2I = false;
  bool M3I = false;
  bool PJ = false;
  bool V2J = false;
  bool V3J = false;
  bool TJ = false;
  bool M2J = false;
  bool M3J = false;
  bool PartialFix = false;
};

template <>
inline constexpr RowKey<T_FRGN_D> kRowKeys<T_FRGN_D>[] = {
    {"Frame=", &T_FRGN_D::Frame}, {"PI=", &T_FRGN_D::PI},
    {"V2I=", &T_FRGN_D::V2I},     {"V3I=", &T_FRGN_D::V3I},
    {"TI=", &T_FRGN_D::TI},       {"M2I=", &T_FRGN_D::M2I},
    {"M3I=", &T_FRGN_D::M3I},     {"PJ=", &T_FRGN_D::PJ},
    {"V2J=", &T_FRGN_D::V2J},     {"V3J=", &T_FRGN_D::V3J},
    {"TJ=", &T_FRGN_D::TJ},       {"M2J=", &T_FRGN_D::M2J},
    {"M3J=", &T_FRGN_D::M3J},     {"PartialFix=", &T_FRGN_D::PartialFix}};

/// Partial fixity of a frame's ends: the spring in each released direction.
struct T_FRPF_D {
  static constexpr Text kTable = "T_FRPF_D";
  Text Frame;
  double PI = 0.0;
  double V2I = 0.0;
  double V3I = 0.0;
  double TI = 0.0;
  double M2I = 0.0;
  double M3I = 0.0;
  double PJ = 0.0;
  double V2J = 0.0;
  double V3J = 0.0;
  double TJ = 0.0;
  double M2J = 0.0;
  double M3J = 0.0;
};

template <>
inline constexpr RowKey<T_FRPF_D> kRowKeys<T_FRPF_D>[] = {
    {"Frame=", &T_FRPF_D::Frame}, {"PI=", &T_FRPF_D::PI}, {"V2I=", &T_FRPF_D::V2I},
    {"V3I=", &T_FRPF_D::V3I},     {"TI=", &T_FRPF_D::TI}, {"M2I=", &T_FRPF_D::M2I},
    {"M3I=", &T_FRPF_D::M3I},     {"PJ=", &T_FRPF_D::PJ}, {"V2J=", &T_FRPF_D::V2J},
    {"V3J=", &T_FRPF_D::V3J},     {"TJ=", &T_FRPF_D::TJ}, {"M2J=", &T_FRPF_D::M2J},
    {"M3J=", &T_FRPF_D::M3J}};

/// Rigid lengths at the ends of a frame. The rigid factor has no place in the output.
struct T_FROF_D {
  static constexpr Text kTable = "T_FROF_D";
  Text Frame;
  double LengthI = 0.0;
  double LengthJ = 0.0;
};

template <>
inline constexpr RowKey<T_FROF_D> kRowKeys<T_FROF_D>[] = {
    {"Frame=", &T_FROF_D::Frame},
    Unread{"Type="},
    {"LengthI=", &T_FROF_D::LengthI},
    {"LengthJ=", &T_FROF_D::LengthJ},
    LostUnless{"RigidFactor=", "0", "rigid-factor"}};

/// Insertion point of a frame: where its axis runs in the section, and joint offsets.
struct T_FRIP_D {
  static constexpr Text kTable = "T_FRIP_D";
  Text Frame;
  Text CardinalPt;
  Text CoordSys;
  double JtOffsetXI = 0.0;
  double JtOffsetYI = 0.0;
  double JtOffsetZI = 0.0;
  double JtOffsetXJ = 0.0;
  double JtOffsetYJ = 0.0;
  double JtOffsetZJ = 0.0;
};

template <>
inline constexpr RowKey<T_FRIP_D> kRowKeys<T_FRIP_D>[] = {
    {"Frame=", &T_FRIP_D::Frame},
    {"CardinalPt=", &T_FRIP_D::CardinalPt},
    LostUnless{"Mirror2=", "No", "frame-mirrored"},
    {"CoordSys=", &T_FRIP_D::CoordSys},
    {"JtOffsetXI=", &T_FRIP_D::JtOffsetXI},
    {"JtOffsetYI=", &T_FRIP_D::JtOffsetYI},
    {"JtOffsetZI=", &T_FRIP_D::JtOffsetZI},
    {"JtOffsetXJ=", &T_FRIP_D::JtOffsetXJ},
    {"JtOffsetYJ=", &T_FRIP_D::JtOffsetYJ},
    {"JtOffsetZJ=", &T_FRIP_D::JtOffsetZJ}};

// ---- Target records ----

/// Six conditions of a beam's end in the target's order: Fx, Fy, Fz, Mx, My, Mz.
struct EndRelease {
  Text Flag;                      // six characters, "1" for released and "0" for fixed
  std::array<double, 6> Value{};  // 1 where a spring remains, else 0
};

/// Releases of a beam.
struct T_NGT_FRRL_D {
  Text Label;
  EndRelease I;
  EndRelease J;
};

/// Offsets of a beam's ends: of TYPE "ELEMENT" the lengths RGDXi and RGDXj along it, else six
/// distances in the coordinate system that TYPE names.
struct T_NGT_FROF_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text Label;
  Text TYPE;
  double RGDXi = 0.0;
  double RGDYi = 0.0;
  double RGDZi = 0.0;
  double RGDXj = 0.0;
  double RGDYj = 0.0;
  double RGDZj = 0.0;
  std::uint32_t SourceKey = 0;  // of the row of end lengths or of the insertion point
};

// ---- Conversion ----

bool ConvertReleases(Conversion& run);

/// End lengths, then insertion points, which take the place of a frame's end lengths.
bool ConvertOffsets(Conversion& run);

// ---- Output ----

/// Writes *FRAME-RLS.
bool WriteReleases(Conversion& run, LineWriter& out);

/// Writes *OFFSET.
bool WriteOffsets(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes what becomes of releases, partial fixity, end lengths and joint offsets.
void CloseEndConditions(Conversion& run);

}  // namespace s2k2ngt
