#pragma once

#include "analysis/history_damping.h"
#include "analysis/history_loads.h"
#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>
#include <optional>

namespace s2k2ngt {

// ---- Source rows ----

// Modal time histories have tables of their own, and direct ones others; some are alike.

/// Definition of a modal history case.
struct T_MDH1_D {
  static constexpr Text kTable = "T_MDH1_D";
  Text Case;
  Text HistoryType;  // "Transient", or another word for periodic
  Text MotionType;   // the same, in files that state it again; for the account
  Text DampingType;  // "Constant", "Pro-Direct", "Pro-Period", "Pro-Freq" and others
  std::int32_t OutSteps = 1;
  double StepSize = 0.0;  // seconds
  double ConstDamp = 0.0;

  /// Definitions of a case that have a damping which the target has, and the others.
  QualifiedLabel CaseByDamping() const { return {Case, HasTargetDamping() ? kKept : kLost}; }
  bool HasTargetDamping() const;
  static bool IsTransient(Text type) { return type == "Transient"; }
  static constexpr Text kKept = "kept";
  static constexpr Text kLost = "lost";
};

template <>
inline constexpr RowKey<T_MDH1_D> kRowKeys<T_MDH1_D>[] = {
    {"Case=", &T_MDH1_D::Case},
    {"HistoryType=", &T_MDH1_D::HistoryType},
    Noted{"MotionType=", &T_MDH1_D::MotionType},
    {"DampingType=", &T_MDH1_D::DampingType},
    {"OutSteps=", &T_MDH1_D::OutSteps},
    {"StepSize=", &T_MDH1_D::StepSize},
    {"ConstDamp=", &T_MDH1_D::ConstDamp}};

/// Definition of a direct history case.
struct T_DRH1_D {
  static constexpr Text kTable = "T_DRH1_D";
  Text Case;
  std::int32_t OutSteps = 1;
  double StepSize = 1.0;  // seconds
};

template <>
inline constexpr RowKey<T_DRH1_D> kRowKeys<T_DRH1_D>[] = {{"Case=", &T_DRH1_D::Case},
                                                          {"OutSteps=", &T_DRH1_D::OutSteps},
                                                          {"StepSize=", &T_DRH1_D::StepSize}};

/// Nonlinear parameters of a modal history.
struct T_MDH6_D {
  static constexpr Text kTable = "T_MDH6_D";
  Text Case;
  double DTMax = 0.0;  // longest and shortest step, seconds
  double DTMin = 0.0;
  double FConvTol = 0.0;
  std::int32_t ForceItMax = 0;
};

template <>
inline constexpr RowKey<T_MDH6_D> kRowKeys<T_MDH6_D>[] = {
    {"Case=", &T_MDH6_D::Case},
    LostUnless{"PeriodStat=", "0", "controls-of-steps"},
    {"DTMax=", &T_MDH6_D::DTMax},
    {"DTMin=", &T_MDH6_D::DTMin},
    {"FConvTol=", &T_MDH6_D::FConvTol},
    LostUnless{"EConvTol=", "0.00001", "controls-of-steps"},
    LostUnless{"ConvFactor=", "1", "controls-of-steps"},
    {"ForceItMax=", &T_MDH6_D::ForceItMax},
    LostUnless{"ForceItMin=", "2", "controls-of-steps"},
    LostUnless{"FrameTC=", "Yes", "nonlinearity-switched-off"},
    LostUnless{"FrameHinge=", "Yes", "nonlinearity-switched-off"},
    LostUnless{"CableTC=", "Yes", "nonlinearity-switched-off"},
    LostUnless{"LinkTC=", "Yes", "nonlinearity-switched-off"},
    LostUnless{"LinkOther=", "Yes", "nonlinearity-switched-off"}};

/// Method by which a direct history is integrated.
struct T_DRH4_D {
  static constexpr Text kTable = "T_DRH4_D";
  Text Case;
  Text IntMethod;  // "Newmark" and others
  double Gamma = 0.0;
  double Beta = 0.0;

  bool IsTargetMethod() const { return IntMethod == "Newmark"; }
};

template <>
inline constexpr RowKey<T_DRH4_D> kRowKeys<T_DRH4_D>[] = {{"Case=", &T_DRH4_D::Case},
                                                          {"IntMethod=", &T_DRH4_D::IntMethod},
                                                          {"Gamma=", &T_DRH4_D::Gamma},
                                                          {"Beta=", &T_DRH4_D::Beta},
                                                          Unread{"Theta="},
                                                          Unread{"Alpha="},
                                                          Unread{"AlphaM="}};

/// Nonlinear parameters of a direct history.
struct T_DRH5_D {
  static constexpr Text kTable = "T_DRH5_D";
  Text Case;
  double DTMax = 0.0;  // longest and shortest step, seconds
  double DTMin = 0.0;
  double ItConvTol = 0.0;
  std::int32_t MaxIter = 1;
};

template <>
inline constexpr RowKey<T_DRH5_D> kRowKeys<T_DRH5_D>[] = {
    {"Case=", &T_DRH5_D::Case},
    LostUnless{"GeoNonLin=", "None", "geometric-nonlinearity"},
    {"DTMax=", &T_DRH5_D::DTMax},
    {"DTMin=", &T_DRH5_D::DTMin},
    {"ItConvTol=", &T_DRH5_D::ItConvTol},
    LostUnless{"EvLumpTol=", "0.01", "controls-of-steps"},
    {"MaxIter=", &T_DRH5_D::MaxIter},
    LostUnless{"FrameTC=", "Yes", "nonlinearity-switched-off"},
    LostUnless{"FrameHinge=", "Yes", "nonlinearity-switched-off"},
    LostUnless{"CableTC=", "Yes", "nonlinearity-switched-off"},
    LostUnless{"LinkTC=", "Yes", "nonlinearity-switched-off"},
    LostUnless{"LinkOther=", "Yes", "nonlinearity-switched-off"}};

// ---- Target records ----

/// Whether a case is linear, and by which method it is solved; the numbers are the output's.
enum class Linearity : std::int32_t { Linear = 1, Nonlinear = 2 };
enum class HistoryMethod : std::int32_t { Modal = 1, Direct = 2 };

/// A time history load case, keyed by a running number.
struct T_NGT_THLC_D {
  Text NAME;
  Text FSPLC;            // the case at whose end it starts
  double EndTime = 0.0;  // ETIME, which is a macro of <cerrno>
  double INC = 0.0;
  std::int32_t iOUT = 0;
  std::int32_t iICOND = 0;  // 1 from rest, 2 from the end of another case
  Linearity iATYPE = Linearity::Linear;
  HistoryMethod iAMETHOD = HistoryMethod::Modal;
  std::int32_t iTHTYPE = 0;  // 1 transient, 2 periodic
  HistoryDamping Damping;
  std::int32_t iNMM = 0;
  double GAMMA = 0.0;
  double BETA = 0.0;
  double MINSSS = 0.0;
  std::int32_t iMAXITER = 0;
  double CONVTOL = 0.0;
};

// ---- Conversion ----

inline constexpr Text kConstantDamping = "Constant";

/// What there is of proportional damping under the words of a modal definition.
std::optional<ProportionalKind> ProportionalKindOf(Text dampingType);

/// A modal time history case: all definitions of its name, with the loads of the case.
void ConvertModalHistory(Conversion& run, Text name, Linearity linearity, Text initialCondition,
                         ModalHistoryLoads& loads);

/// A direct time history case, likewise.
void ConvertDirectHistory(Conversion& run, Text name, Linearity linearity, Text initialCondition);

// ---- Output ----

/// Writes *THLDCASE.
bool WriteTimeHistories(Conversion& run, LineWriter& out);

}  // namespace s2k2ngt
