#include "joints/local_axes.h"

#include "joints/matrix_rows.h"
#include "joints/nodes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

Vector Cross(const Vector& a, const Vector& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double SquaredLength(const Vector& v) { return v[0] * v[0] + v[1] * v[1] + v[2] * v[2]; }

Vector UnitVector(const Vector& v, double squaredLength) {
  const double length = std::sqrt(squaredLength);
  return {v[0] / length, v[1] / length, v[2] / length};
}

constexpr Matrix kIdentity = {{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}};

Matrix Transposed(const Matrix& m) {
  return {{{m[0][0], m[1][0], m[2][0]}, {m[0][1], m[1][1], m[2][1]}, {m[0][2], m[1][2], m[2][2]}}};
}

Vector Product(const Matrix& m, const Vector& v) {
  const auto row = [&v](const Vector& r) { return r[0] * v[0] + r[1] * v[1] + r[2] * v[2]; };
  return {row(m[0]), row(m[1]), row(m[2])};
}

Matrix Product(const Matrix& a, const Matrix& b) {
  const Matrix columns = Transposed(b);
  return Transposed({Product(a, columns[0]), Product(a, columns[1]), Product(a, columns[2])});
}

Matrix RotationAboutX(double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {{{1.0, 0.0, 0.0}, {0.0, c, -s}, {0.0, s, c}}};
}

Matrix RotationAboutY(double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {{{c, 0.0, s}, {0.0, 1.0, 0.0}, {-s, 0.0, c}}};
}

Matrix RotationAboutZ(double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return {{{c, -s, 0.0}, {s, c, 0.0}, {0.0, 0.0, 1.0}}};
}

/// Rotation about X first, then about Y, then about Z.
Matrix MatrixFromAngles(const T_NGT_LOCL_D& axes) {
  // Pi cut behind its sixth decimal, over 180; kept so, as the turned values depend on it.
  constexpr double kRadians = 0.01745328888888889;
  std::optional<Matrix> product;
  const auto multiply = [&product](double degrees, Matrix (*rotation)(double)) {
    const double angle = degrees * kRadians;
    if (std::abs(angle) <= kTolerance) {
      return;
    }
    product = product ? Product(*product, rotation(angle)) : rotation(angle);
  };
  multiply(axes.ANGLE_z, RotationAboutZ);
  multiply(axes.ANGLE_y, RotationAboutY);
  multiply(axes.ANGLE_x, RotationAboutX);
  return product.value_or(kIdentity);
}

bool HasAngles(const T_NGT_LOCL_D& axes) {
  return std::abs(axes.ANGLE_x) + std::abs(axes.ANGLE_y) + std::abs(axes.ANGLE_z) > kTolerance;
}

/// The unit vector of a direction such as "-Y"; zero for any other text.
Vector DirectionVector(Text direction) {
  constexpr std::array<std::pair<Text, Vector>, 6> kDirections = {{{"X", {1.0, 0.0, 0.0}},
                                                                   {"Y", {0.0, 1.0, 0.0}},
                                                                   {"Z", {0.0, 0.0, 1.0}},
                                                                   {"-X", {-1.0, 0.0, 0.0}},
                                                                   {"-Y", {0.0, -1.0, 0.0}},
                                                                   {"-Z", {0.0, 0.0, -1.0}}}};
  for (const auto& [name, vector] : kDirections) {
    if (name == direction) {
      return vector;
    }
  }
  return {};
}

constexpr Text kTwoJoints = "Two Joints";

/// What an advanced axes row says of the axis, or of the vector in the plane.
struct VectorGiven {
  Text Option;
  Text System;  // for the account
  Text Direction;
  Text Joint1;
  Text Joint2;
  Vector User;
};

Vector Evaluate(CModel& model, const VectorGiven& given) {
  if (given.Option == kTwoJoints) {
    const Point from = GlobalCoordinates(model, given.Joint1);
    const Point to = GlobalCoordinates(model, given.Joint2);
    return {to.X - from.X, to.Y - from.Y, to.Z - from.Z};
  }
  if (given.Option == "User Vector") {
    return given.User;
  }
  return DirectionVector(given.Direction);
}

/// Sets the first two of the node's vectors from the axis and the vector in the plane.
void SetVectors(Text localPlane, const Vector& axis, const Vector& plane, T_NGT_LOCL_D& axes) {
  if (localPlane == "12") {
    axes.V1 = axis;
    axes.V2 = Cross(Cross(axis, plane), axis);
  } else if (localPlane == "13") {
    axes.V1 = axis;
    axes.V2 = Cross(plane, axis);
  } else if (localPlane == "21") {
    axes.V1 = Cross(axis, Cross(plane, axis));
    axes.V2 = axis;
  } else if (localPlane == "23") {
    axes.V1 = Cross(axis, plane);
    axes.V2 = axis;
  } else if (localPlane == "31") {
    axes.V1 = Cross(axis, Cross(plane, axis));
    axes.V2 = Cross(axis, plane);
  } else if (localPlane == "32") {
    axes.V1 = Cross(plane, axis);
    axes.V2 = Cross(Cross(axis, plane), axis);
  }
}

/// The matrix whose columns are the axes of the two vectors; an identity of no joint when they span
/// no plane.
T_NGT_LCMX_D MatrixFromVectors(const T_NGT_LOCL_D& axes) {
  const Vector v3 = Cross(axes.V1, axes.V2);
  const double length1 = SquaredLength(axes.V1);
  const double length2 = SquaredLength(axes.V2);
  const double length3 = SquaredLength(v3);
  if (length1 < kTolerance || length2 < kTolerance || length3 < kTolerance) {
    return {.Label = {}, .M = kIdentity};
  }
  return {.Label = axes.Label,
          .M = Transposed({UnitVector(axes.V1, length1), UnitVector(axes.V2, length2),
                           UnitVector(v3, length3)})};
}

/// Notes what an advanced axes row names that is not known.
void NoteVector(Conversion& run, std::uint32_t key, const VectorGiven& given) {
  const auto isUnknown = [&run](Text joint) { return WhyNotJoint(run, joint).has_value(); };
  if (given.Option != kTwoJoints) {
    if (IsUserSystem(given.System)) {
      run.Accounts.Note<T_JTAV_D>(key, "coordinate-system-ignored");
    }
  } else if (isUnknown(given.Joint1) || isUnknown(given.Joint2)) {
    run.Accounts.Note<T_JTAV_D>(key, "joint-axes-joint-unknown");
  }
}

/// Sets the vectors of the node from the joint's advanced axes, if it has any.
void ConvertAdvancedAxes(Conversion& run, std::uint32_t typicalKey, T_NGT_LOCL_D& axes,
                         MatrixRows& matrices) {
  const auto found = run.Source.Rows<T_JTAV_D>().FirstWith<&T_JTAV_D::Joint>(axes.Label);
  if (!found) {
    run.Accounts.Note<T_JTTP_D>(typicalKey, "joint-axes-missing");
    return;
  }
  const T_JTAV_D& row = found->Value;
  const VectorGiven axisGiven = {.Option = row.AxOption1,
                                 .System = row.AxCoordSys,
                                 .Direction = row.AxCoordDir,
                                 .Joint1 = row.AxVecJt1,
                                 .Joint2 = row.AxVecJt2,
                                 .User = {row.AxVecX, row.AxVecY, row.AxVecZ}};
  // Of the two directions the one that does not repeat the axis.
  const Text planeDirection = row.CoordDir1 == row.AxCoordDir ? row.CoordDir2 : row.CoordDir1;
  const VectorGiven planeGiven = {.Option = row.PlOption1,
                                  .System = row.PlCoordSys,
                                  .Direction = planeDirection,
                                  .Joint1 = row.PlVecJt1,
                                  .Joint2 = row.PlVecJt2,
                                  .User = {row.PlVecX, row.PlVecY, row.PlVecZ}};
  SetVectors(row.LocalPlane, Evaluate(run.Source, axisGiven), Evaluate(run.Source, planeGiven),
             axes);
  axes.iMETHOD = 3;
  const T_NGT_LCMX_D matrix = MatrixFromVectors(axes);
  matrices.ReplaceOrAppend(axes.Label, matrix);
  if (run.Accounts.IsKept()) {
    NoteVector(run, found->Key, axisGiven);
    NoteVector(run, found->Key, planeGiven);
    if (matrix.Label != axes.Label) {
      run.Accounts.Note<T_JTAV_D>(found->Key, "joint-axes-span-no-plane");
    }
    if (HasAngles(axes)) {
      run.Accounts.Note<T_JTTP_D>(typicalKey, "joint-axes-angles");
    }
  }
}

}  // namespace

bool ConvertLocalAxes(Conversion& run) {
  MatrixRows matrices;
  const auto& joints = run.Source.Rows<T_JTTP_D>();
  auto& nodes = run.Target.Table<T_NGT_LOCL_D>();
  nodes.Reserve(joints.Count());
  for (const auto [key, joint] : joints.Walk()) {
    // The source names its rotations from the last to the first.
    T_NGT_LOCL_D axes{.Label = joint.Joint,
                      .ANGLE_x = joint.AngleC,
                      .ANGLE_y = joint.AngleB,
                      .ANGLE_z = joint.AngleA};
    if (HasAngles(axes)) {
      matrices.Append({axes.Label, MatrixFromAngles(axes)});
    }
    if (joint.AdvanceAxes) {
      ConvertAdvancedAxes(run, key, axes, matrices);
    }
    nodes.Insert(key, axes);
  }
  matrices.Store(run.Target);
  return true;
}

bool HasAxesMatrix(CNgtModel& target, Text joint) {
  return target.Table<T_NGT_LCMX_D>().FirstWith<&T_NGT_LCMX_D::Label>(joint).has_value();
}

namespace {

double Cleaned(double value) { return std::abs(value) < 1e-05 ? 0.0 : value; }

SixComponents Turn(const Matrix& m, const SixComponents& v) {
  const Vector first = Product(m, Vector{v[0], v[1], v[2]});
  const Vector second = Product(m, Vector{v[3], v[4], v[5]});
  return {Cleaned(first[0]),  Cleaned(first[1]),  Cleaned(first[2]),
          Cleaned(second[0]), Cleaned(second[1]), Cleaned(second[2])};
}

}  // namespace

SixComponents TurnToGlobal(CNgtModel& target, Text joint, const SixComponents& local) {
  const auto axes = target.Table<T_NGT_LCMX_D>().FirstWith<&T_NGT_LCMX_D::Label>(joint);
  return axes ? Turn(axes->Value.M, local) : local;
}

SixComponents TurnToLocal(CNgtModel& target, Text joint, const SixComponents& global) {
  const auto axes = target.Table<T_NGT_LCMX_D>().FirstWith<&T_NGT_LCMX_D::Label>(joint);
  return axes ? Turn(Transposed(axes->Value.M), global) : global;
}

// ---- Output ----

bool WriteLocalAxes(Conversion& run, LineWriter& out) {
  const auto& nodes = run.Target.Table<T_NGT_LOCL_D>();
  if (nodes.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*LOCALAXIS    ; Node Local Axis");
  out.WriteLine("; NODE_LIST, iMETHOD, ANGLE-x, ANGLE-y, ANGLE-z                    ; iMETHOD=1\n");
  out.WriteLine("; NODE_LIST, iMETHOD, P0X, P0Y, P0Z, P1X, P1Y, P1Z, P2X, P2Y, P2Z  ; iMETHOD=2\n");
  out.WriteLine("; NODE_LIST, iMETHOD, V1X, V1Y, V1Z, V2X, V2Y, V2Z                 ; iMETHOD=3\n");
  for (std::uint32_t key = 1; key <= nodes.Count(); ++key) {
    const T_NGT_LOCL_D axes = RecordOr(nodes.Find(key), T_NGT_LOCL_D{});
    const std::int32_t iNode = run.Target.NodeNumber(axes.Label);
    if (axes.iMETHOD == 1) {
      out.WriteLine("\t%d, %5d, %5g, %5g, %5g\n", iNode, axes.iMETHOD, axes.ANGLE_x, axes.ANGLE_y,
                    axes.ANGLE_z);
    } else if (axes.iMETHOD == 3) {
      out.WriteLine("\t%d, %5d, %5g, %5g, %5g, %5g, %5g, %5g\n", iNode, axes.iMETHOD, axes.V1[0],
                    axes.V1[1], axes.V1[2], axes.V2[0], axes.V2[1], axes.V2[2]);
    }
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

/// True when a row of typical axes of the joint asks for its advanced ones.
bool AreAdvancedAxesAskedFor(CModel& model, Text joint) {
  const auto& rows = model.Rows<T_JTTP_D>();
  return std::ranges::any_of(rows.KeysWith<&T_JTTP_D::Joint>(joint),
                             [&rows](std::uint32_t key) { return rows.Find(key)->AdvanceAxes; });
}

}  // namespace

void CloseLocalAxes(Conversion& run) {
  NoteUnknownJoints<T_JTTP_D>(run);
  const auto& rows = run.Source.Rows<T_JTAV_D>();
  for (const auto [key, row] : rows.Entries()) {
    if (rows.FirstWith<&T_JTAV_D::Joint>(row.Joint)->Key != key) {
      run.Accounts.Note<T_JTAV_D>(key, "row-of-same-name");
    } else if (!AreAdvancedAxesAskedFor(run.Source, row.Joint)) {
      run.Accounts.Note<T_JTAV_D>(key, "joint-axes-not-asked-for");
    }
  }
}

}  // namespace s2k2ngt
