#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <array>
#include <cstdint>

namespace s2k2ngt {

// ---- Source rows ----

/// Connectivity of a solid. A wedge names no joints 7 and 8.
struct T_CNSL_D {
  static constexpr Text kTable = "T_CNSL_D";
  Text Solid;
  Text Joint1;
  Text Joint2;
  Text Joint3;
  Text Joint4;
  Text Joint5;
  Text Joint6;
  Text Joint7;
  Text Joint8;
};

template <>
inline constexpr RowKey<T_CNSL_D> kRowKeys<T_CNSL_D>[] = {
    {"Solid=", &T_CNSL_D::Solid},   {"Joint1=", &T_CNSL_D::Joint1},
    {"Joint2=", &T_CNSL_D::Joint2}, {"Joint3=", &T_CNSL_D::Joint3},
    {"Joint4=", &T_CNSL_D::Joint4}, {"Joint5=", &T_CNSL_D::Joint5},
    {"Joint6=", &T_CNSL_D::Joint6}, {"Joint7=", &T_CNSL_D::Joint7},
    {"Joint8=", &T_CNSL_D::Joint8}, Unread{"Volume="}};

/// The eight joints of a solid, those that it does not have empty.
std::array<Text, 8> JointsOf(const T_CNSL_D& solid);

/// Property assignment of a solid.
struct T_SLPA_D {
  static constexpr Text kTable = "T_SLPA_D";
  Text Solid;
  Text SolidProp;
};

template <>
inline constexpr RowKey<T_SLPA_D> kRowKeys<T_SLPA_D>[] = {
    {"Solid=", &T_SLPA_D::Solid},
    {"SolidProp=", &T_SLPA_D::SolidProp},
    LostUnless{"MatProp=", "Default", "material-of-assignment"}};

/// A solid property. The angles of its material have no place in the output.
struct T_SLPD_D {
  static constexpr Text kTable = "T_SLPD_D";
  Text SolidProp;
  Text Material;
};

template <>
inline constexpr RowKey<T_SLPD_D> kRowKeys<T_SLPD_D>[] = {
    {"SolidProp=", &T_SLPD_D::SolidProp},
    {"Material=", &T_SLPD_D::Material},
    LostUnless{"MatAngleA=", "0", "material-angle"},
    LostUnless{"MatAngleB=", "0", "material-angle"},
    LostUnless{"MatAngleC=", "0", "material-angle"},
    LostUnless{"InComp=", "Yes", "without-incompatible-modes"},
    Unread{"Color="},
    Unread{"TotalWt="},
    Unread{"TotalMass="}};

/// Gravity loads of solids; the conversion only asks whether there are any.
struct T_SLLG_D {
  static constexpr Text kTable = "T_SLLG_D";
};

template <>
inline constexpr RowKey<T_SLLG_D> kRowKeys<T_SLLG_D>[] = {
    Unread{"Solid="},       Unread{"LoadCase="},    Unread{"CoordSys="},
    Unread{"MultiplierX="}, Unread{"MultiplierY="}, Unread{"MultiplierZ="}};

/// Mesh settings of solids. They have no place in the output.
struct T_SLAM_D {
  static constexpr Text kTable = "T_SLAM_D";
};

template <>
inline constexpr RowKey<T_SLAM_D> kRowKeys<T_SLAM_D>[] = {Unread{"Solid="}, Unread{"AutoMesh="},
                                                          Unread{"Number1="}, Unread{"Number2="},
                                                          Unread{"Number3="}};

/// Material temperatures of solids. They have no place in the output.
struct T_SLPT_D {
  static constexpr Text kTable = "T_SLPT_D";
};

template <>
inline constexpr RowKey<T_SLPT_D> kRowKeys<T_SLPT_D>[] = {Unread{"Solid="}, Unread{"Temp="},
                                                          Unread{"JtPattern="}};

// ---- Target records ----

/// A solid element. A position without a record prints these values.
struct T_NGT_SOLD_D {
  Text Label = "1";
  Text TYPE = "SOLID";
  std::int32_t iMAT = 1;
  std::int32_t iPRO = 1;
  std::array<Text, 8> iN{};  // joint labels, turned into numbers when written
};

// ---- Conversion ----

/// Solids into solid elements, with their material.
bool ConvertSolids(Conversion& run);

/// Notes that gravity loads of solids are lost. Meant so: nothing is shown of it.
bool CheckSolidGravityLoads(Conversion& run);

// ---- Output ----

/// Writes the solid lines of *ELEMENT.
void WriteSolidElements(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes what becomes of solids, their properties and what is assigned to them.
void CloseSolids(Conversion& run);

}  // namespace s2k2ngt
