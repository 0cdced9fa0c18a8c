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
inline constexpr std::tuple kRowKeys<T_JTMA_D>{
    Key{"Joint=", &T_JTMA_D::Joint}, Key{"CoordSys=", &T_JTMA_D::CoordSys},
    Key{"Mass1=", &T_JTMA_D::Mass1}, Key{"Mass2=", &T_JTMA_D::Mass2},
    Key{"Mass3=", &T_JTMA_D::Mass3}, Key{"MMI1=", &T_JTMA_D::MMI1},
    Key{"MMI2=", &T_JTMA_D::MMI2},   Key{"MMI3=", &T_JTMA_D::MMI3}};

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

}  // namespace s2k2ngt
