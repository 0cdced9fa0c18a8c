#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

namespace s2k2ngt {

class PatternUses;

// ---- Source rows ----

/// A uniform load on an area: force per area.
struct T_ALUM_D {
  static constexpr Text kTable = "T_ALUM_D";
  Text Area;
  Text LoadCase;
  Text CoordSys;
  Text Dir;
  double UnifLoad = 0.0;
};

template <>
inline constexpr RowKey<T_ALUM_D> kRowKeys<T_ALUM_D>[] = {{"Area=", &T_ALUM_D::Area},
                                                          {"LoadCase=", &T_ALUM_D::LoadCase},
                                                          {"CoordSys=", &T_ALUM_D::CoordSys},
                                                          {"Dir=", &T_ALUM_D::Dir},
                                                          {"UnifLoad=", &T_ALUM_D::UnifLoad}};

/// Pressure on a face of an area.
struct T_ALSP_D {
  static constexpr Text kTable = "T_ALSP_D";
  Text Area;
  Text LoadCase;
  Text Face;
  double Pressure = 0.0;
  Text JtPattern;
};

template <>
inline constexpr RowKey<T_ALSP_D> kRowKeys<T_ALSP_D>[] = {{"Area=", &T_ALSP_D::Area},
                                                          {"LoadCase=", &T_ALSP_D::LoadCase},
                                                          {"Face=", &T_ALSP_D::Face},
                                                          {"Pressure=", &T_ALSP_D::Pressure},
                                                          {"JtPattern=", &T_ALSP_D::JtPattern}};

// Loads on areas that have no place in the output.

struct T_ALRT_D {  // rotation
  static constexpr Text kTable = "T_ALRT_D";
};
struct T_ALUF_D {  // uniform, to frames
  static constexpr Text kTable = "T_ALUF_D";
};
struct T_ALWP_D {  // wind pressure coefficients
  static constexpr Text kTable = "T_ALWP_D";
};

template <>
inline constexpr RowKey<T_ALRT_D> kRowKeys<T_ALRT_D>[] = {Unread{"Area="}, Unread{"LoadCase="},
                                                          Unread{"AngularBel="}};
template <>
inline constexpr RowKey<T_ALUF_D> kRowKeys<T_ALUF_D>[] = {Unread{"Area="},     Unread{"LoadCase="},
                                                          Unread{"CoordSys="}, Unread{"Dir="},
                                                          Unread{"UnifLoad="}, Unread{"DistType="}};
template <>
inline constexpr RowKey<T_ALWP_D> kRowKeys<T_ALWP_D>[] = {
    Unread{"Area="},       Unread{"LoadCase="},   Unread{"Windward="},  Unread{"Cp="},
    Unread{"XComponent="}, Unread{"YComponent="}, Unread{"ZComponent="}};

// ---- Target records ----

/// A pressure on a plate, keyed by a running number.
struct T_NGT_PRSL_D {
  Text Element;
  Text LoadCase;
  Text ETYP;
  Text LTYP;
  Text DIR;         // "GX", "GY", "GZ" or "LZ"
  double PU = 0.0;  // uniform
  double P1 = 0.0;  // at the corners, in the order of the plate's nodes
  double P2 = 0.0;
  double P3 = 0.0;
  double P4 = 0.0;
  Text bPROJ;  // "YES" for a load per projected area
};

// ---- Conversion ----

bool ConvertUniformLoads(Conversion& run);

/// Pressures on the two faces of areas. Those on edges are lost.
bool ConvertSurfacePressures(Conversion& run);

// ---- Output ----

/// Writes *PRESSURE of a load case.
void WritePressures(Conversion& run, Text loadCase, LineWriter& out);

// ---- Account ----

/// Notes loads of areas that are not written, or for an area that is not there, and all of kinds
/// that have no place in the output.
void CloseAreaLoads(Conversion& run);

/// Takes the pattern values that pressures which are written go by.
void TakePatternsOfPressures(Conversion& run, PatternUses& uses);

}  // namespace s2k2ngt
