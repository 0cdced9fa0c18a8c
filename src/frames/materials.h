#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>
#include <optional>

namespace s2k2ngt {

// ---- Source rows ----

/// General properties of a material. The number of a material is its row's key.
struct T_MTGN_D {
  static constexpr Text kTable = "T_MTGN_D";
  Text Material;
  Text Type;               // "Isotropic", "Anisotropic", or taken as orthotropic
  Text DesignType;         // "None", "Concrete", "Steel" or another
  double UnitMass = -1.0;  // below 0 where the row states none
  double UnitWeight = 0.0;
  double E = 0.0;
  double U = 0.0;
  double A = 0.0;
};

template <>
inline constexpr RowKey<T_MTGN_D> kRowKeys<T_MTGN_D>[] = {{"Material=", &T_MTGN_D::Material},
                                                          {"Type=", &T_MTGN_D::Type},
                                                          {"DesignType=", &T_MTGN_D::DesignType},
                                                          Noted{"UnitMass=", &T_MTGN_D::UnitMass},
                                                          {"UnitWeight=", &T_MTGN_D::UnitWeight},
                                                          {"E=", &T_MTGN_D::E},
                                                          {"U=", &T_MTGN_D::U},
                                                          {"A=", &T_MTGN_D::A},
                                                          Unread{"NumAdvance="},
                                                          Unread{"Color="}};

/// Constants of a material that is not isotropic, at one temperature. The mixed constants have no
/// place in the output.
struct T_MTAD_D {
  static constexpr Text kTable = "T_MTAD_D";
  Text Material;
  double E1 = 0.0;
  double E2 = 0.0;
  double E3 = 0.0;
  double G12 = 0.0;
  double G13 = 0.0;
  double G23 = 0.0;
  double U12 = 0.0;
  double U13 = 0.0;
  double U23 = 0.0;
  double A1 = 0.0;
  double A2 = 0.0;
  double A3 = 0.0;
};

template <>
inline constexpr RowKey<T_MTAD_D> kRowKeys<T_MTAD_D>[] = {{"Material=", &T_MTAD_D::Material},
                                                          Unread{"Temp="},
                                                          {"E1=", &T_MTAD_D::E1},
                                                          {"E2=", &T_MTAD_D::E2},
                                                          {"E3=", &T_MTAD_D::E3},
                                                          {"G12=", &T_MTAD_D::G12},
                                                          {"G13=", &T_MTAD_D::G13},
                                                          {"G23=", &T_MTAD_D::G23},
                                                          {"U12=", &T_MTAD_D::U12},
                                                          {"U13=", &T_MTAD_D::U13},
                                                          {"U23=", &T_MTAD_D::U23},
                                                          Unread{"U14="},
                                                          Unread{"U24="},
                                                          Unread{"U34="},
                                                          Unread{"U15="},
                                                          Unread{"U25="},
                                                          Unread{"U35="},
                                                          Unread{"U45="},
                                                          Unread{"U16="},
                                                          Unread{"U26="},
                                                          Unread{"U36="},
                                                          Unread{"U46="},
                                                          Unread{"U56="},
                                                          {"A1=", &T_MTAD_D::A1},
                                                          {"A2=", &T_MTAD_D::A2},
                                                          {"A3=", &T_MTAD_D::A3},
                                                          Unread{"A12="},
                                                          Unread{"A13="},
                                                          Unread{"A23="}};

/// The number of a material. An unknown name gives the number of the last material that a walk over
/// the table meets, an empty table nothing: callers that scan for a name rely on both.
std::optional<std::int32_t> MaterialOrLastKey(CModel& model, Text name);

// ---- Target records ----

enum class MaterialKind { Isotropic = 1, Orthotropic = 2 };

/// A material. The target's axes y and z are the source's axes 3 and 2.
struct T_NGT_MATL_D {
  Text TYPE = "USER";  // "STEEL", "CONC" or "USER"
  Text MNAME;
  MaterialKind DataKind = MaterialKind::Isotropic;
  double SPHEAT = 0.0;  // the source has no thermal properties
  double HEATCO = 0.0;
  double DEN = 0.0;  // weight per volume
  // isotropic
  double ELAST = 0.0;
  double POISN = 0.0;
  double THERMAL = 0.0;
  // orthotropic
  double Ex = 0.0;
  double Ey = 0.0;
  double Ez = 0.0;
  double Tx = 0.0;
  double Ty = 0.0;
  double Tz = 0.0;
  double Sxy = 0.0;
  double Sxz = 0.0;
  double Syz = 0.0;
  double Pxy = 0.0;
  double Pxz = 0.0;
  double Pyz = 0.0;
};

// ---- Conversion ----

bool ConvertMaterials(Conversion& run);

// ---- Output ----

/// Writes *MATERIAL.
bool WriteMaterials(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes what becomes of the constants of materials that are not isotropic.
void CloseMaterials(Conversion& run);

}  // namespace s2k2ngt
