#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>

namespace s2k2ngt {

class PatternUses;

// ---- Source rows ----

/// Temperature load of a frame.
struct T_FRLT_D {
  static constexpr Text kTable = "T_FRLT_D";
  Text Frame;
  Text LoadCase;
  Text Type;  // "Temperature", "Gradient2" or "Gradient3"
  double Temp = 0.0;
  double TempGrad2 = 0.0;  // per length along local axis 2
  double TempGrad3 = 0.0;
  Text JtPattern;
};

template <>
inline constexpr RowKey<T_FRLT_D> kRowKeys<T_FRLT_D>[] = {
    {"Frame=", &T_FRLT_D::Frame},         {"LoadCase=", &T_FRLT_D::LoadCase},
    {"Type=", &T_FRLT_D::Type},           {"Temp=", &T_FRLT_D::Temp},
    {"TempGrad2=", &T_FRLT_D::TempGrad2}, {"TempGrad3=", &T_FRLT_D::TempGrad3},
    {"JtPattern=", &T_FRLT_D::JtPattern}};

/// Temperature load of an area.
struct T_ALTM_D {
  static constexpr Text kTable = "T_ALTM_D";
  Text Area;
  Text LoadCase;
  Text Type;  // "Temperature"; any other word is a gradient
  double Temp = 0.0;
  double TempGrad3 = 0.0;  // per thickness
  Text JtPattern;
};

template <>
inline constexpr RowKey<T_ALTM_D> kRowKeys<T_ALTM_D>[] = {
    {"Area=", &T_ALTM_D::Area},           {"LoadCase=", &T_ALTM_D::LoadCase},
    {"Type=", &T_ALTM_D::Type},           {"Temp=", &T_ALTM_D::Temp},
    {"TempGrad3=", &T_ALTM_D::TempGrad3}, {"JtPattern=", &T_ALTM_D::JtPattern}};

/// Temperature load of a solid.
struct T_SLLT_D {
  static constexpr Text kTable = "T_SLLT_D";
  Text Solid;
  Text LoadCase;
  double Temp = 0.0;
  Text JtPattern;
};

template <>
inline constexpr RowKey<T_SLLT_D> kRowKeys<T_SLLT_D>[] = {{"Solid=", &T_SLLT_D::Solid},
                                                          {"LoadCase=", &T_SLLT_D::LoadCase},
                                                          {"Temp=", &T_SLLT_D::Temp},
                                                          {"JtPattern=", &T_SLLT_D::JtPattern}};

/// Reference temperature of a frame, an area and a solid, at which it is free of stress.
struct T_FRRT_D {
  static constexpr Text kTable = "T_FRRT_D";
  Text Frame;
  double Temp = 0.0;
};
struct T_AMRT_D {
  static constexpr Text kTable = "T_AMRT_D";
  Text Area;
  double Temp = 0.0;
};
struct T_SLRT_D {
  static constexpr Text kTable = "T_SLRT_D";
  Text Solid;
  double Temp = 0.0;
};

template <>
inline constexpr RowKey<T_FRRT_D> kRowKeys<T_FRRT_D>[] = {
    {"Frame=", &T_FRRT_D::Frame},
    {"Temp=", &T_FRRT_D::Temp},
    LostUnless{"JtPattern=", "None", "reference-by-pattern"}};
template <>
inline constexpr RowKey<T_AMRT_D> kRowKeys<T_AMRT_D>[] = {
    {"Area=", &T_AMRT_D::Area},
    {"Temp=", &T_AMRT_D::Temp},
    LostUnless{"JtPattern=", "None", "reference-by-pattern"}};
template <>
inline constexpr RowKey<T_SLRT_D> kRowKeys<T_SLRT_D>[] = {
    {"Solid=", &T_SLRT_D::Solid},
    {"Temp=", &T_SLRT_D::Temp},
    LostUnless{"JtPattern=", "None", "reference-by-pattern"}};

/// Material temperatures of areas. They have no place in the output.
struct T_AMMT_D {
  static constexpr Text kTable = "T_AMMT_D";
};

template <>
inline constexpr NoRowKeys<T_AMMT_D> kRowKeys<T_AMMT_D>{};

// ---- Target records ----

/// Temperature of an element, keyed by a running number; degrees Celsius above the reference.
struct T_NGT_ELMT_D {
  Text Element;
  Text LoadCase;
  Text Family;
  double TEMPER = 0.0;
};

/// Temperature of a node, likewise.
struct T_NGT_NDTM_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text Joint;
  Text LoadCase;
  double TEMPER = 0.0;

  QualifiedLabel JointInCase() const { return {Joint, LoadCase}; }
};

/// Temperature gradient of an element, keyed by a running number: the difference over its whole
/// depth.
struct T_NGT_TMPG_D {
  Text Element;
  Text LoadCase;
  Text Family;
  Text bUSEHZ = "NO";
  Text bUSEHY = "NO";
  double TZ = 0.0;
  double TY = 0.0;
};

// ---- Conversion ----

bool ConvertFrameTemperatures(Conversion& run);
bool ConvertAreaTemperatures(Conversion& run);
bool ConvertSolidTemperatures(Conversion& run);

// ---- Output ----

/// Writes *ELTEMPER of a load case.
void WriteElementTemperatures(Conversion& run, Text loadCase, LineWriter& out);

/// Writes *NDTEMPER of a load case.
void WriteNodalTemperatures(Conversion& run, Text loadCase, LineWriter& out);

/// Writes *THERGRAD of a load case.
void WriteTemperatureGradients(Conversion& run, Text loadCase, LineWriter& out);

// ---- Account ----

/// Notes temperature loads that are not written, or for an element that is not there, and
/// temperatures that no load counts from.
void CloseTemperatureLoads(Conversion& run);

/// Takes the pattern values that temperatures which are written go by.
void TakePatternsOfTemperatures(Conversion& run, PatternUses& uses);

}  // namespace s2k2ngt
