#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>

namespace s2k2ngt {

// The parameters by which a code computes wind and earthquake loads. The target computes the loads
// itself, so that the parameters travel alone. Each load has one set of them: of a second row of
// the same load, as for its other direction, nothing is taken.

// ---- Source rows ----

/// Earthquake by UBC 97. What the source computed from it is not read.
struct T_SUB7_D {
  static constexpr Text kTable = "T_SUB7_D";
  Text LoadCase;
  Text Dir;         // "X" or another word for Y
  Text PeriodCalc;  // "User" for the user's period
  double Ct = 0.0;
  double UserT = 0.0;
  double R = 0.0;
  Text SoilType;
  Text Z;           // zone factor, or a height that stands before it as MaxZ= or MinZ=
  Text ZoneFactor;  // as the row states it
  Text SourceType;
  double SourceDist = 0.0;
  double I = 0.0;
};

template <>
inline constexpr RowKey<T_SUB7_D> kRowKeys<T_SUB7_D>[] = {{"LoadCase=", &T_SUB7_D::LoadCase},
                                                          {"Dir=", &T_SUB7_D::Dir},
                                                          Unread{"PercentEcc="},
                                                          Unread{"EccOverride="},
                                                          {"PeriodCalc=", &T_SUB7_D::PeriodCalc},
                                                          {"Ct=", &T_SUB7_D::Ct},
                                                          {"UserT=", &T_SUB7_D::UserT},
                                                          Unread{"MaxZ="},
                                                          Unread{"MinZ="},
                                                          {"R=", &T_SUB7_D::R},
                                                          {"SoilType=", &T_SUB7_D::SoilType},
                                                          {"Z=", &T_SUB7_D::Z},
                                                          {" Z=", &T_SUB7_D::ZoneFactor},
                                                          {"SourceType=", &T_SUB7_D::SourceType},
                                                          Unread{"Ca="},
                                                          Unread{"Cv="},
                                                          {"SourceDist=", &T_SUB7_D::SourceDist},
                                                          Unread{"Na="},
                                                          Unread{"Nv="},
                                                          {"I=", &T_SUB7_D::I},
                                                          Unread{"TUsed="},
                                                          Unread{"WeightUsed="},
                                                          Unread{"BaseShear="},
                                                          Unread{"FtUsed="}};

/// Earthquake by NBCC 95.
struct T_SNBC_D {
  static constexpr Text kTable = "T_SNBC_D";
  Text LoadCase;
  Text Dir;
  double UserT = 0.0;
  double R = 0.0;
  Text Za;  // seismic zones
  Text Zv;
  double V = 0.0;  // zonal velocity ratio
  double I = 0.0;
  double F = 0.0;  // foundation factor
};

template <>
inline constexpr RowKey<T_SNBC_D> kRowKeys<T_SNBC_D>[] = {{"LoadCase=", &T_SNBC_D::LoadCase},
                                                          {"Dir=", &T_SNBC_D::Dir},
                                                          Unread{"PercentEcc="},
                                                          Unread{"EccOverride="},
                                                          Unread{"StructType="},
                                                          Unread{"PeriodCalc="},
                                                          Unread{"Ds="},
                                                          {"UserT=", &T_SNBC_D::UserT},
                                                          Unread{"MaxZ="},
                                                          Unread{"MinZ="},
                                                          {"R=", &T_SNBC_D::R},
                                                          {"Za=", &T_SNBC_D::Za},
                                                          {"Zv=", &T_SNBC_D::Zv},
                                                          Unread{"VType="},
                                                          {"V=", &T_SNBC_D::V},
                                                          {"I=", &T_SNBC_D::I},
                                                          {"F=", &T_SNBC_D::F},
                                                          Unread{"TUsed="},
                                                          Unread{"FSUsed="},
                                                          Unread{"WeightUsed="},
                                                          Unread{"BaseShear="},
                                                          Unread{"FtUsed="}};

/// Wind by UBC 97.
struct T_WUB7_D {
  static constexpr Text kTable = "T_WUB7_D";
  Text LoadCase;
  Text Exposure;
  double MaxZ = 0.0;
  double WindSpeed = 0.0;
  double I = 0.0;
};

template <>
inline constexpr RowKey<T_WUB7_D> kRowKeys<T_WUB7_D>[] = {{"LoadCase=", &T_WUB7_D::LoadCase},
                                                          Unread{"ExposeFrom="},
                                                          {"Exposure=", &T_WUB7_D::Exposure},
                                                          Unread{"ExpWidth="},
                                                          Unread{"Angle="},
                                                          Unread{"WindwardCq="},
                                                          Unread{"LeewardCq="},
                                                          {"MaxZ=", &T_WUB7_D::MaxZ},
                                                          Unread{"MinZ="},
                                                          {"WindSpeed=", &T_WUB7_D::WindSpeed},
                                                          {"I=", &T_WUB7_D::I}};

/// Wind by ASCE 7-98, which goes over to the target's IBC 2000.
struct T_WAS8_D {
  static constexpr Text kTable = "T_WAS8_D";
  Text LoadCase;
  Text Exposure;
  double MaxZ = 0.0;
  double WindSpeed = 0.0;
  double I = 0.0;
  double GustFactor = 0.0;
  double Kd = 0.0;  // directionality factor
};

template <>
inline constexpr RowKey<T_WAS8_D> kRowKeys<T_WAS8_D>[] = {{"LoadCase=", &T_WAS8_D::LoadCase},
                                                          Unread{"ExposeFrom="},
                                                          {"Exposure=", &T_WAS8_D::Exposure},
                                                          Unread{"ExpWidth="},
                                                          Unread{"Angle="},
                                                          Unread{"WindwardCp="},
                                                          Unread{"LeewardCp="},
                                                          {"MaxZ=", &T_WAS8_D::MaxZ},
                                                          Unread{"MinZ="},
                                                          {"WindSpeed=", &T_WAS8_D::WindSpeed},
                                                          {"I=", &T_WAS8_D::I},
                                                          Unread{"Kzt="},
                                                          {"GustFactor=", &T_WAS8_D::GustFactor},
                                                          {"Kd=", &T_WAS8_D::Kd}};

/// Wind by NBCC 95.
struct T_WNBC_D {
  static constexpr Text kTable = "T_WNBC_D";
  Text LoadCase;
  double VelPressure = 0.0;
  double Cg = 0.0;  // gust effect factor
};

template <>
inline constexpr RowKey<T_WNBC_D> kRowKeys<T_WNBC_D>[] = {{"LoadCase=", &T_WNBC_D::LoadCase},
                                                          Unread{"ExposeFrom="},
                                                          Unread{"ExpWidth="},
                                                          Unread{"Angle="},
                                                          Unread{"WindwardCp="},
                                                          Unread{"LeewardCp="},
                                                          Unread{"MaxZ="},
                                                          Unread{"MinZ="},
                                                          {"VelPressure=", &T_WNBC_D::VelPressure},
                                                          {"Cg=", &T_WNBC_D::Cg}};

// ---- Target records ----

// Keyed by running numbers. SFX and SFY are 1 for a direction in which the load acts; an earthquake
// acts in one of them. Accidental eccentricities are not taken over: ECCX and ECCY are always
// "POS".

struct T_NGT_SUB7_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text LoadCase;
  Text ECCX = "POS";
  Text ECCY = "POS";
  Text SPT = "Sa";  // soil profile type
  Text SST = "A";   // seismic source type
  double ZF = 0.075;
  double CD = 10.0;
  double IF = 1.0;
  double PX = 0.0;  // period
  double PY = 0.0;
  double NCX = 0.0;  // response modification
  double NCY = 0.0;
  double SFX = 1.0;
  double SFY = 1.0;
};

struct T_NGT_SNBC_D {
  static constexpr std::uint32_t kBuckets = 1'001;
  Text LoadCase;
  Text ECCX = "POS";
  Text ECCY = "POS";
  std::int32_t AZ = 1;
  std::int32_t VZ = 1;
  double ZVR = 0.05;
  double IF = 1.0;
  double FF = 1.0;
  double PAX = 0.0;  // periods
  double PAY = 0.0;
  double PCX = 0.0;
  double PCY = 0.0;
  double FMFX = 0.0;  // force modification
  double FMFY = 0.0;
  double SFX = 1.0;
  double SFY = 1.0;
};

struct T_NGT_WUB7_D {
  static constexpr std::uint32_t kBuckets = 1'001;
  Text LoadCase;
  Text EC = "B";  // exposure category
  std::int32_t iMETHOD = 2;
  double SFX = 1.0;
  double SFY = 1.0;
  double BWS = 80.0;  // basic wind speed
  double IF = 1.0;
  double PC = 0.0;
  double MRH = 0.0;  // mean roof height
};

struct T_NGT_WIBC_D {
  static constexpr std::uint32_t kBuckets = 1'001;
  Text LoadCase;
  Text EC;
  double SFX = 1.0;
  double SFY = 1.0;
  std::int32_t iPROC = 2;
  std::int32_t iST = 1;
  double BWS = 85.0;
  double IF = 1.0;
  double WDF = 0.0;
  double MRH = 0.0;
  double GFX = 0.85;
  double GFY = 0.85;
};

struct T_NGT_WNBC_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text LoadCase;
  Text EC;
  double SFX = 1.0;
  double SFY = 1.0;
  std::int32_t iPROC = 1;
  double RWS = 30.0;  // reference wind speed
  double GEF = 2.0;
};

// ---- Conversion ----

/// The parameters of a wind load, by the code that the load names. A code without a like and a load
/// without parameters convert nothing. True when the output differs for it.
bool ConvertAutoWind(Conversion& run, Text load, Text code);

/// The parameters of an earthquake load, likewise.
bool ConvertAutoSeismic(Conversion& run, Text load, Text code);

// ---- Output ----

/// Writes *WIND of a load case.
void WriteWind(Conversion& run, Text loadCase, LineWriter& out);

/// Writes *SEIS of a load case.
void WriteSeismic(Conversion& run, Text loadCase, LineWriter& out);

// ---- Account ----

/// Notes what becomes of the parameters of wind and earthquake.
void CloseAutoLoads(Conversion& run);

}  // namespace s2k2ngt
