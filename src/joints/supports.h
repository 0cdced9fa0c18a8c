#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <array>

namespace s2k2ngt {

// ---- Source rows ----

/// Restraints of a joint.
struct T_JTRA_D {
  static constexpr Text kTable = "T_JTRA_D";
  Text Joint;
  bool U1 = false;
  bool U2 = false;
  bool U3 = false;
  bool R1 = false;
  bool R2 = false;
  bool R3 = false;
};

template <>
inline constexpr RowKey<T_JTRA_D> kRowKeys<T_JTRA_D>[] = {
    {"Joint=", &T_JTRA_D::Joint}, {"U1=", &T_JTRA_D::U1}, {"U2=", &T_JTRA_D::U2},
    {"U3=", &T_JTRA_D::U3},       {"R1=", &T_JTRA_D::R1}, {"R2=", &T_JTRA_D::R2},
    {"R3=", &T_JTRA_D::R3}};

/// Uncoupled springs of a joint.
struct T_JTUC_D {
  static constexpr Text kTable = "T_JTUC_D";
  Text Joint;
  Text CoordSys;
  double U1 = 0.0;
  double U2 = 0.0;
  double U3 = 0.0;
  double R1 = 0.0;
  double R2 = 0.0;
  double R3 = 0.0;
};

template <>
inline constexpr RowKey<T_JTUC_D> kRowKeys<T_JTUC_D>[] = {
    {"Joint=", &T_JTUC_D::Joint}, {"CoordSys=", &T_JTUC_D::CoordSys},
    {"U1=", &T_JTUC_D::U1},       {"U2=", &T_JTUC_D::U2},
    {"U3=", &T_JTUC_D::U3},       {"R1=", &T_JTUC_D::R1},
    {"R2=", &T_JTUC_D::R2},       {"R3=", &T_JTUC_D::R3}};

/// Coupled springs of a joint: the upper triangle of their matrix. The couplings of rotations with
/// each other are not converted.
struct T_JTSC_D {
  static constexpr Text kTable = "T_JTSC_D";
  Text Joint;
  Text CoordSys;
  double U1 = 0.0;
  double U1U2 = 0.0;
  double U2 = 0.0;
  double U1U3 = 0.0;
  double U2U3 = 0.0;
  double U3 = 0.0;
  double U1R1 = 0.0;
  double U2R1 = 0.0;
  double U3R1 = 0.0;
  double R1 = 0.0;
  double U1R2 = 0.0;
  double U2R2 = 0.0;
  double U3R2 = 0.0;
  double R2 = 0.0;
  double U1R3 = 0.0;
  double U2R3 = 0.0;
  double U3R3 = 0.0;
  double R3 = 0.0;
  // For the account. A key such as "U2=" is met inside "U1U2=" too; these are met as words alone.
  double OwnU2 = 0.0;
  double OwnU3 = 0.0;
  double OwnR1 = 0.0;
  double OwnR2 = 0.0;
  double OwnR3 = 0.0;
};

template <>
inline constexpr RowKey<T_JTSC_D> kRowKeys<T_JTSC_D>[] = {
    {"Joint=", &T_JTSC_D::Joint},
    {"CoordSys=", &T_JTSC_D::CoordSys},
    {"U1=", &T_JTSC_D::U1},
    {"U1U2=", &T_JTSC_D::U1U2},
    {"U2=", &T_JTSC_D::U2},
    {"U1U3=", &T_JTSC_D::U1U3},
    {"U2U3=", &T_JTSC_D::U2U3},
    {"U3=", &T_JTSC_D::U3},
    {"U1R1=", &T_JTSC_D::U1R1},
    {"U2R1=", &T_JTSC_D::U2R1},
    {"U3R1=", &T_JTSC_D::U3R1},
    {"R1=", &T_JTSC_D::R1},
    {"U1R2=", &T_JTSC_D::U1R2},
    {"U2R2=", &T_JTSC_D::U2R2},
    {"U3R2=", &T_JTSC_D::U3R2},
    {"R2=", &T_JTSC_D::R2},
    {"U1R3=", &T_JTSC_D::U1R3},
    {"U2R3=", &T_JTSC_D::U2R3},
    {"U3R3=", &T_JTSC_D::U3R3},
    {"R3=", &T_JTSC_D::R3},
    {" U2=", &T_JTSC_D::OwnU2},
    {" U3=", &T_JTSC_D::OwnU3},
    {" R1=", &T_JTSC_D::OwnR1},
    {" R2=", &T_JTSC_D::OwnR2},
    {" R3=", &T_JTSC_D::OwnR3},
    LostUnless{"R1R2=", "0", "coupled-spring-rotations"},
    LostUnless{"R1R3=", "0", "coupled-spring-rotations"},
    LostUnless{"R2R3=", "0", "coupled-spring-rotations"}};

// ---- Target records ----

/// A support.
struct T_NGT_BNDR_D {
  Text NODE;                    // joint label
  std::array<char, 6> CONST{};  // "1" for restrained and "0" for free
};

/// A point spring. Those along frames and on areas name all their joints in one text, and this is
/// meant: with joint labels of digits the number is that of the first joint, and with other labels
/// it is 0.
struct T_NGT_NSPR_D {
  Text NODE;
  double SDx = 0.0;
  double SDy = 0.0;
  double SDz = 0.0;
  double SRx = 0.0;
  double SRy = 0.0;
  double SRz = 0.0;
};

/// A general spring: the upper triangle of its matrix, column by column.
struct T_NGT_GSPR_D {
  Text NODE;  // joint label
  Text TYPE_NAME;
  std::array<double, 21> K{};
};

// ---- Conversion ----

bool ConvertRestraints(Conversion& run);

/// Springs of global directions go over along the joint's axes.
bool ConvertUncoupledSprings(Conversion& run);

/// Coupled springs of global directions at a joint with axes of its own are lost.
bool ConvertCoupledSprings(Conversion& run);

// ---- Output ----

/// Writes *CONSTRAINT.
bool WriteSupports(Conversion& run, LineWriter& out);

/// Writes *SPRING.
bool WritePointSprings(Conversion& run, LineWriter& out);

/// Writes *GSPRING and *GSPRTYPE.
bool WriteGeneralSprings(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes restraints and springs of joints that are not there, and of systems that are not known.
void CloseSupports(Conversion& run);

}  // namespace s2k2ngt
