#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <array>
#include <cstdint>

namespace s2k2ngt {

// ---- Source rows ----

/// Typical local axes of a joint: rotations about the global axes, degrees.
struct T_JTTP_D {
  static constexpr Text kTable = "T_JTTP_D";
  Text Joint;
  double AngleA = 0.0;  // about Z
  double AngleB = 0.0;  // about Y
  double AngleC = 0.0;  // about X
  bool AdvanceAxes = false;
};

template <>
inline constexpr RowKey<T_JTTP_D> kRowKeys<T_JTTP_D>[] = {{"Joint=", &T_JTTP_D::Joint},
                                                          {"AngleA=", &T_JTTP_D::AngleA},
                                                          {"AngleB=", &T_JTTP_D::AngleB},
                                                          {"AngleC=", &T_JTTP_D::AngleC},
                                                          {"AdvanceAxes=", &T_JTTP_D::AdvanceAxes}};

/// Advanced local axes of a joint: one axis, and a vector that spans a plane with it.
struct T_JTAV_D {
  static constexpr Text kTable = "T_JTAV_D";
  Text Joint;
  Text LocalPlane;  // axis and other axis of the plane: "12", "13", "21", "23", "31" or "32"
  Text AxOption1;   // "Coord Dir", "Two Joints" or "User Vector"; so also PlOption1
  Text AxCoordSys;  // for the account; so also PlCoordSys
  Text AxCoordDir;  // "X", "Y", "Z", "-X", "-Y" or "-Z"; so also the other directions
  Text AxVecJt1;
  Text AxVecJt2;
  Text PlOption1;
  Text PlCoordSys;
  Text CoordDir1;
  Text CoordDir2;
  Text PlVecJt1;
  Text PlVecJt2;
  double AxVecX = 0.0;
  double AxVecY = 0.0;
  double AxVecZ = 0.0;
  double PlVecX = 0.0;
  double PlVecY = 0.0;
  double PlVecZ = 0.0;
};

template <>
inline constexpr RowKey<T_JTAV_D> kRowKeys<T_JTAV_D>[] = {
    {"Joint=", &T_JTAV_D::Joint},
    {"LocalPlane=", &T_JTAV_D::LocalPlane},
    {"AxOption1=", &T_JTAV_D::AxOption1},
    Noted{"AxCoordSys=", &T_JTAV_D::AxCoordSys},
    {"AxCoordDir=", &T_JTAV_D::AxCoordDir},
    {"AxVecJt1=", &T_JTAV_D::AxVecJt1},
    {"AxVecJt2=", &T_JTAV_D::AxVecJt2},
    {"PlOption1=", &T_JTAV_D::PlOption1},
    Noted{"PlCoordSys=", &T_JTAV_D::PlCoordSys},
    {"CoordDir1=", &T_JTAV_D::CoordDir1},
    {"CoordDir2=", &T_JTAV_D::CoordDir2},
    {"PlVecJt1=", &T_JTAV_D::PlVecJt1},
    {"PlVecJt2=", &T_JTAV_D::PlVecJt2},
    {"AxVecX=", &T_JTAV_D::AxVecX},
    {"AxVecY=", &T_JTAV_D::AxVecY},
    {"AxVecZ=", &T_JTAV_D::AxVecZ},
    {"PlVecX=", &T_JTAV_D::PlVecX},
    {"PlVecY=", &T_JTAV_D::PlVecY},
    {"PlVecZ=", &T_JTAV_D::PlVecZ}};

// ---- Target records ----

/// Components along the axes 1, 2, 3 or X, Y, Z.
using Vector = std::array<double, 3>;

/// Three rows. The columns of a joint's matrix are its local axes in global components.
using Matrix = std::array<Vector, 3>;

/// The local axes of a node.
struct T_NGT_LOCL_D {
  Text Label;
  std::int32_t iMETHOD = 1;  // 1 by angles, 3 by two vectors; 2, by three points, is not used
  double ANGLE_x = 0.0;      // degrees
  double ANGLE_y = 0.0;
  double ANGLE_z = 0.0;
  Vector V1{};
  Vector V2{};
};

/// The matrix of a joint's local axes. It is not written; loads, springs and masses are turned by
/// it.
struct T_NGT_LCMX_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text Label;
  Matrix M{};
};

// ---- Conversion ----

/// Joint axes into node axes, and into the matrices that turn the vectors of the other tables.
bool ConvertLocalAxes(Conversion& run);

/// Three translations, forces or masses, then three rotations, moments or mass moments of inertia.
using SixComponents = std::array<double, 6>;

bool HasAxesMatrix(CNgtModel& target, Text joint);

/// Turns components along the joint's axes into global ones. Results below 1e-5 become 0, which
/// cleans up after cosines; a joint without a matrix leaves the components as they are.
SixComponents TurnToGlobal(CNgtModel& target, Text joint, const SixComponents& local);

/// Turns global components into those along the joint's axes, in the same way.
SixComponents TurnToLocal(CNgtModel& target, Text joint, const SixComponents& global);

// ---- Output ----

/// Writes *LOCALAXIS.
bool WriteLocalAxes(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes axes of joints that are not there, and advanced axes that no typical ones ask for.
void CloseLocalAxes(Conversion& run);

}  // namespace s2k2ngt
