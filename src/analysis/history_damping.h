#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <concepts>
#include <cstdint>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

/// Damping in proportion to mass and stiffness, by their factors or by two points.
struct ProportionalDamping {
  Text Case;
  Text SpecifyType;  // "Direct", "Period" or "Frequency"
  double MassCoeff = 0.0;
  double StiffCoeff = 0.0;
  double Period1 = 0.0;
  double Frequency1 = 0.0;
  double Damping1 = 0.0;
  double Period2 = 0.0;
  double Frequency2 = 0.0;
  double Damping2 = 0.0;
};

template <std::derived_from<ProportionalDamping> Record>
inline constexpr RowKey<Record> kRowKeys<Record>[] = {
    {"Case=", &ProportionalDamping::Case},
    {"SpecifyType=", &ProportionalDamping::SpecifyType},
    {"MassCoeff=", &ProportionalDamping::MassCoeff},
    {"StiffCoeff=", &ProportionalDamping::StiffCoeff},
    {"Period1=", &ProportionalDamping::Period1},
    {"Frequency1=", &ProportionalDamping::Frequency1},
    {"Damping1=", &ProportionalDamping::Damping1},
    {"Period2=", &ProportionalDamping::Period2},
    {"Frequency2=", &ProportionalDamping::Frequency2},
    {"Damping2=", &ProportionalDamping::Damping2}};

struct T_MDH4_D : ProportionalDamping {
  static constexpr Text kTable = "T_MDH4_D";
};
struct T_DRH3_D : ProportionalDamping {
  static constexpr Text kTable = "T_DRH3_D";
};

/// Damping of a modal history by period. It has no place in the output.
struct T_MDH3_D {
  static constexpr Text kTable = "T_MDH3_D";
};

template <>
inline constexpr RowKey<T_MDH3_D> kRowKeys<T_MDH3_D>[] = {Unread{"Case="}, Unread{"Period="},
                                                          Unread{"Frequency="}, Unread{"Damping="}};

/// Damping of a modal history by mode.
struct T_MDH5_D {
  static constexpr Text kTable = "T_MDH5_D";
  Text Case;
  Text Mode;
  double Damping = 0.0;
};

template <>
inline constexpr RowKey<T_MDH5_D> kRowKeys<T_MDH5_D>[] = {
    {"Case=", &T_MDH5_D::Case}, {"Mode=", &T_MDH5_D::Mode}, {"Damping=", &T_MDH5_D::Damping}};

// ---- Target records ----

/// Damping of a mode.
struct ModeDamping {
  std::int32_t iMODE = 0;
  double DAMPING = 0.0;
};

/// The damping of a time history case. Slots that a case does not use keep what another definition
/// of its name left in them.
struct HistoryDamping {
  std::int32_t iMDTYPE = 0;  // 1 of modes, 2 in proportion to mass and stiffness
  double DALL = 0.0;         // of all modes
  std::vector<ModeDamping> Modes;
  std::int32_t iCOEF = 0;  // 1 by factors, 2 by points
  std::int32_t iCALC = 0;
  Text bMASSP = "NO";
  Text bSTIFFP = "NO";
  double MASSC = 0.0;
  double STIFFC = 0.0;
  double FP1 = 0.0;
  double DR1 = 0.0;
  double DR2 = 0.0;
};

// ---- Conversion ----

/// The same damping for all modes, and those of modes that have their own. The modes come behind
/// those that are there.
void ConvertConstantDamping(CModel& source, Text name, double ofAllModes, HistoryDamping& damping);

/// The kind of proportional damping that a modal case states.
enum class ProportionalKind { Factors, Periods, Frequencies };

/// Proportional damping of a modal case. False when neither mass nor stiffness has a factor.
bool ConvertModalDamping(CModel& source, Text name, ProportionalKind kind, HistoryDamping& damping);

/// The same of a direct case, of the kind that the row itself states.
bool ConvertDirectDamping(CModel& source, Text name, HistoryDamping& damping);

/// True when a case has a factor of mass or stiffness, by its row of this kind of record.
template <std::derived_from<ProportionalDamping> Record>
bool HasProportionalDamping(CModel& source, Text name);

// ---- Output ----

/// Writes the damping's places of the third line of a time history.
void WriteHistoryDamping(LineWriter& out, const HistoryDamping& damping);

/// Writes the dampings of modes behind that line.
void WriteModeDampings(LineWriter& out, const HistoryDamping& damping);

// ---- Account ----

/// Notes the dampings of history cases that do not go over as they stand.
void CloseHistoryDamping(Conversion& run);

}  // namespace s2k2ngt
