#pragma once

#include "common/messages.h"
#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

/// A point of a response spectrum function, of whatever code. The code's parameters are in the
/// points already.
struct SpectrumPoint {
  Text Name;
  double Period = 0.0;
  double Accel = 0.0;
};

inline constexpr RowKey<SpectrumPoint> kSpectrumPointKeys[] = {{"Name=", &SpectrumPoint::Name},
                                                               {"Period=", &SpectrumPoint::Period},
                                                               {"Accel=", &SpectrumPoint::Accel}};

struct T_FRSE_D : SpectrumPoint {  // Eurocode 8
  static constexpr Text kTable = "T_FRSE_D";
};
struct T_FRSI_D : SpectrumPoint {  // IBC 2000
  static constexpr Text kTable = "T_FRSI_D";
};
struct T_FRSN_D : SpectrumPoint {  // NBCC 95
  static constexpr Text kTable = "T_FRSN_D";
};
struct T_FRC4_D : SpectrumPoint {  // UBC 94
  static constexpr Text kTable = "T_FRC4_D";
};
struct T_FRC7_D : SpectrumPoint {  // UBC 97
  static constexpr Text kTable = "T_FRC7_D";
};
struct T_FRSU_D : SpectrumPoint {  // the user's own
  static constexpr Text kTable = "T_FRSU_D";
};

template <>
inline constexpr auto kRowKeys<T_FRSE_D> = JoinKeys<T_FRSE_D>(kSpectrumPointKeys,
                                                              {Unread{"Ag="}, Unread{"DampFactor="},
                                                               Unread{"SoilClass="}});
template <>
inline constexpr auto kRowKeys<T_FRSI_D> = JoinKeys<T_FRSI_D>(kSpectrumPointKeys,
                                                              {Unread{"SDS="}, Unread{"SD1="}});
template <>
inline constexpr auto kRowKeys<T_FRSN_D> =
    JoinKeys<T_FRSN_D>(kSpectrumPointKeys, {Unread{"V="}, Unread{"Za="}, Unread{"Zv="}});
template <>
inline constexpr auto kRowKeys<T_FRC4_D> = JoinKeys<T_FRC4_D>(kSpectrumPointKeys,
                                                              {Unread{"Z="}, Unread{"SoilType="}});
template <>
inline constexpr auto kRowKeys<T_FRC7_D> = JoinKeys<T_FRC7_D>(kSpectrumPointKeys,
                                                              {Unread{"Ca="}, Unread{"Cv="}});
template <>
inline constexpr auto kRowKeys<T_FRSU_D> = JoinKeys<T_FRSU_D>(kSpectrumPointKeys);

// Response spectrum functions of codes that the target does not have; the stages only ask whether
// there are any.

struct T_FRSB_D {  // BOCA 96
  static constexpr Text kTable = "T_FRSB_D";
  static constexpr MessageKey kLostMessage = "IDS_S2KV8_RESP_BOCA96_Not_Convert";
};
struct T_FRSF_D {  // from a file
  static constexpr Text kTable = "T_FRSF_D";
  static constexpr MessageKey kLostMessage = "IDS_S2KV8_RESP_FILE_Not_Convert";
};
struct T_FRSH_D {  // NEHRP 97
  static constexpr Text kTable = "T_FRSH_D";
  static constexpr MessageKey kLostMessage = "IDS_S2KV8_RESP_NHERP97_Not_Convert";
};
struct T_FRSZ_D {  // NZS 4203
  static constexpr Text kTable = "T_FRSZ_D";
  static constexpr MessageKey kLostMessage = "IDS_S2KV8_RESP_NZS4203_Not_Convert";
};

template <>
inline constexpr RowKey<T_FRSB_D> kRowKeys<T_FRSB_D>[] = {
    Unread{"Name="}, Unread{"Period="}, Unread{"Accel="}, Unread{"Aa="},
    Unread{"Av="},   Unread{"R="},      Unread{"S="}};
template <>
inline constexpr RowKey<T_FRSF_D> kRowKeys<T_FRSF_D>[] = {
    Unread{"Name="},        Unread{"Frequency="}, Unread{"Period="},  Unread{"Accel="},
    Unread{"HeaderLines="}, Unread{"DataType="},  Unread{"FileName="}};
template <>
inline constexpr RowKey<T_FRSH_D> kRowKeys<T_FRSH_D>[] = {
    Unread{"Name="}, Unread{"Period="}, Unread{"Accel="}, Unread{"SDS="}, Unread{"SD1="}};
template <>
inline constexpr RowKey<T_FRSZ_D> kRowKeys<T_FRSZ_D>[] = {Unread{"Name="}, Unread{"Period="},
                                                          Unread{"Accel="}, Unread{"ScaleFactor="},
                                                          Unread{"SoilCat="}};

/// Definition of a spectrum case: how modes and directions are combined, and the damping.
struct T_RSP1_D {
  static constexpr Text kTable = "T_RSP1_D";
  Text Case;        // for the account, as are all but the first way of combining and its damping
  Text ModalCombo;  // "CQC", "SRSS" and others
  double ConstDamp = 0.0;
  Text DirCombo;     // of the directions
  Text DampingType;  // "Constant" and others
  double ABSSF = 0.0;
  double GMCf1 = 0.0;
  double GMCf2 = 0.0;

  /// The damping in the output, which has one for this combination alone.
  double TargetDamping() const { return ModalCombo == "CQC" ? ConstDamp : 0.0; }
};

template <>
inline constexpr RowKey<T_RSP1_D> kRowKeys<T_RSP1_D>[] = {
    Noted{"Case=", &T_RSP1_D::Case},
    {"ModalCombo=", &T_RSP1_D::ModalCombo},
    Noted{"DirCombo=", &T_RSP1_D::DirCombo},
    Noted{"GMCf1=", &T_RSP1_D::GMCf1},
    Noted{"GMCf2=", &T_RSP1_D::GMCf2},
    Noted{"ABSSF=", &T_RSP1_D::ABSSF},
    Noted{"DampingType=", &T_RSP1_D::DampingType},
    {"ConstDamp=", &T_RSP1_D::ConstDamp},
    Unread{"FuncDamp="}};

/// A load of a spectrum case: a function in a direction.
struct T_RSP2_D {
  static constexpr Text kTable = "T_RSP2_D";
  Text Case;
  Text LoadName;  // "U1", "U2" or "U3"
  Text CoordSys;
  Text Function;
  double Angle = 0.0;  // of U1 from X, degrees
  double TransAccSF = 0.0;

  /// Rows in other systems are lost.
  bool IsGlobal() const { return CoordSys == "GLOBAL"; }
};

template <>
inline constexpr RowKey<T_RSP2_D> kRowKeys<T_RSP2_D>[] = {{"Case=", &T_RSP2_D::Case},
                                                          Unread{"LoadType="},
                                                          {"LoadName=", &T_RSP2_D::LoadName},
                                                          {"CoordSys=", &T_RSP2_D::CoordSys},
                                                          {"Function=", &T_RSP2_D::Function},
                                                          {"Angle=", &T_RSP2_D::Angle},
                                                          {"TransAccSF=", &T_RSP2_D::TransAccSF}};

// Damping of spectrum cases by period, by mass and stiffness, and by mode. They have no place in
// the output.

struct T_RSP3_D {
  static constexpr Text kTable = "T_RSP3_D";
};
struct T_RSP4_D {
  static constexpr Text kTable = "T_RSP4_D";
};
struct T_RSP5_D {
  static constexpr Text kTable = "T_RSP5_D";
};

template <>
inline constexpr RowKey<T_RSP3_D> kRowKeys<T_RSP3_D>[] = {Unread{"Case="}, Unread{"Period="},
                                                          Unread{"Frequency="}, Unread{"Damping="}};
template <>
inline constexpr RowKey<T_RSP4_D> kRowKeys<T_RSP4_D>[] = {
    Unread{"Case="},       Unread{"SpecifyType="}, Unread{"MassCoeff="}, Unread{"StiffCoeff="},
    Unread{"Period1="},    Unread{"Frequency1="},  Unread{"Damping1="},  Unread{"Period2="},
    Unread{"Frequency2="}, Unread{"Damping2="}};
template <>
inline constexpr RowKey<T_RSP5_D> kRowKeys<T_RSP5_D>[] = {Unread{"Case="}, Unread{"Mode="},
                                                          Unread{"Damping="}};

// ---- Target records ----

/// A pair of a spectrum function.
struct SpectrumPair {
  double PERIOD = 0.0;
  double VALUE = 0.0;
};

/// A spectrum function, keyed by a running number.
struct T_NGT_SFNC_D {
  Text NAME;
  double GRAV = 0.0;
  std::vector<SpectrumPair> Pairs;
};

/// A spectrum load case, keyed by a running number: one for each direction of a source case.
struct T_NGT_SPLC_D {
  Text NAME;
  Text FUNC;
  Text DIR;   // "XY" or "Z"
  Text CASE;  // the source case; combinations look it up
  double ANGLE = 0.0;
  double SCALE = 1.0;
};

/// Control of the spectrum analysis. Signs are never added.
struct T_NGT_SPCT_D {
  Text TYPE;  // the word of the source for the combination of modes
  double DAMPING = 0.0;
  bool bWrite = false;
};

// ---- Conversion ----

/// Spectrum functions; tells at once which kinds of them are lost.
bool ConvertSpectrumFunctions(Conversion& run);

/// Loads of spectrum cases into spectrum load cases.
bool ConvertSpectrumLoads(Conversion& run);

/// The control of all spectrum cases, from the first definition, whichever case it is of.
void ConvertSpectrumCase(Conversion& run);

// ---- Output ----

/// Writes *SFUNCTION.
bool WriteSpectrumFunctions(Conversion& run, LineWriter& out);

/// Writes *SPLDCASE.
bool WriteSpectrumLoads(Conversion& run, LineWriter& out);

/// Writes *SPEC-CTRL.
bool WriteSpectrumControl(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes the definitions and dampings of spectrum cases that do not go over as they stand.
void CloseSpectrum(Conversion& run);

}  // namespace s2k2ngt
