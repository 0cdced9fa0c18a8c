#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

namespace s2k2ngt {

// ---- Source rows ----

/// Masses of a joint: three translational ones and three mass moments of inertia.
struct T_JTMA_D {
  static constexpr Text kTable = "T_JTMA_D";
  Text Joint;
  Text CoordSys;
  double Mass1 = 0.0;
  double Mass2 = 0.0;
  double Mass3 = 0.0;
  double MMI1 = 0.0;
  double MMI2 = 0.0;
  double MMI3 = 0.0;
};

template <>
inline constexpr RowKey<T_JTMA_D> kRowKeys<T_JTMA_D>[] = {
    {"Joint=", &T_JTMA_D::Joint}, {"CoordSys=", &T_JTMA_D::CoordSys}, {"Mass1=", &T_JTMA_D::Mass1},
    {"Mass2=", &T_JTMA_D::Mass2}, {"Mass3=", &T_JTMA_D::Mass3},       {"MMI1=", &T_JTMA_D::MMI1},
    {"MMI2=", &T_JTMA_D::MMI2},   {"MMI3=", &T_JTMA_D::MMI3}};

// ---- Target records ----

/// The mass of a node, of whatever it comes from.
struct T_NGT_NDMS_D {
  Text Label;
  double mX = 0.0;
  double mY = 0.0;
  double mZ = 0.0;
  double rmX = 0.0;
  double rmY = 0.0;
  double rmZ = 0.0;
};

// ---- Conversion ----

bool ConvertJointMasses(Conversion& run);

/// Adds a mass to that of its node.
void AddMass(CNgtModel& target, const T_NGT_NDMS_D& mass);

// ---- Output ----

/// Writes *NODALMASS.
bool WriteMasses(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes masses of joints that are not there, and of systems that are not known.
void CloseMasses(Conversion& run);

}  // namespace s2k2ngt
