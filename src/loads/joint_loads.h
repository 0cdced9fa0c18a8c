#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <array>

namespace s2k2ngt {

// ---- Source rows ----

/// Force at a joint.
struct T_JTLF_D {
  static constexpr Text kTable = "T_JTLF_D";
  Text Joint;
  Text LoadCase;
  Text CoordSys;
  double F1 = 0.0;
  double F2 = 0.0;
  double F3 = 0.0;
  double M1 = 0.0;
  double M2 = 0.0;
  double M3 = 0.0;
};

template <>
inline constexpr RowKey<T_JTLF_D> kRowKeys<T_JTLF_D>[] = {{"Joint=", &T_JTLF_D::Joint},
                                                          {"LoadCase=", &T_JTLF_D::LoadCase},
                                                          {"CoordSys=", &T_JTLF_D::CoordSys},
                                                          {"F1=", &T_JTLF_D::F1},
                                                          {"F2=", &T_JTLF_D::F2},
                                                          {"F3=", &T_JTLF_D::F3},
                                                          {"M1=", &T_JTLF_D::M1},
                                                          {"M2=", &T_JTLF_D::M2},
                                                          {"M3=", &T_JTLF_D::M3}};

/// Ground displacement at a joint.
struct T_JTGD_D {
  static constexpr Text kTable = "T_JTGD_D";
  Text Joint;
  Text LoadCase;
  Text CoordSys;
  double U1 = 0.0;
  double U2 = 0.0;
  double U3 = 0.0;
  double R1 = 0.0;
  double R2 = 0.0;
  double R3 = 0.0;
};

template <>
inline constexpr RowKey<T_JTGD_D> kRowKeys<T_JTGD_D>[] = {{"Joint=", &T_JTGD_D::Joint},
                                                          {"LoadCase=", &T_JTGD_D::LoadCase},
                                                          {"CoordSys=", &T_JTGD_D::CoordSys},
                                                          {"U1=", &T_JTGD_D::U1},
                                                          {"U2=", &T_JTGD_D::U2},
                                                          {"U3=", &T_JTGD_D::U3},
                                                          {"R1=", &T_JTGD_D::R1},
                                                          {"R2=", &T_JTGD_D::R2},
                                                          {"R3=", &T_JTGD_D::R3}};

// ---- Target records ----

/// A nodal load, along the global axes.
struct T_NGT_NDLD_D {
  Text Joint;
  Text LoadCase;
  double FX = 0.0;
  double FY = 0.0;
  double FZ = 0.0;
  double MX = 0.0;
  double MY = 0.0;
  double MZ = 0.0;
};

/// A displacement of a support, along the node's own axes.
struct T_NGT_DISP_D {
  Text Joint;
  std::array<char, 6> FLAG{};  // "1" for a component that is displaced
  Text LoadCase;
  double Dx = 0.0;
  double Dy = 0.0;
  double Dz = 0.0;
  double Rx = 0.0;
  double Ry = 0.0;
  double Rz = 0.0;
};

// ---- Conversion ----

/// Forces at joints into nodal loads.
bool ConvertJointForces(Conversion& run);

/// Ground displacements into displacements of supports.
bool ConvertGroundDisplacements(Conversion& run);

// ---- Output ----

/// Writes *CONLOAD of a load case.
void WriteNodalLoads(Conversion& run, Text loadCase, LineWriter& out);

/// Writes *SPDISP of a load case.
void WriteSupportDisplacements(Conversion& run, Text loadCase, LineWriter& out);

// ---- Account ----

/// Notes loads of joints that are not written, or for a joint that is not there.
void CloseJointLoads(Conversion& run);

}  // namespace s2k2ngt
