#include "analysis/history_damping.h"

#include "analysis/history_account.h"
#include "common/numbers.h"
#include "target/wrapped_list.h"

#include <cmath>
#include <optional>

namespace s2k2ngt {

// ---- Conversion ----

void ConvertConstantDamping(CModel& source, Text name, double ofAllModes, HistoryDamping& damping) {
  damping.iMDTYPE = 1;
  damping.DALL = ofAllModes;
  const auto& modes = source.Rows<T_MDH5_D>();
  for (const std::uint32_t position : modes.AllWith<&T_MDH5_D::Case>(name)) {
    const T_MDH5_D& mode = modes.AtWalk(position).Value;
    damping.Modes.push_back({ParseInteger(mode.Mode), mode.Damping});
  }
}

namespace {

/// What a row of proportional damping states: which of mass and stiffness damp, and four values,
/// each there or not.
struct DampingValues {
  bool Mass = false;
  bool Stiffness = false;
  std::optional<double> First;
  std::optional<double> Second;
  std::optional<double> Third;
  std::optional<double> Fourth;
};

bool IsPresent(double value) { return std::abs(value) >= kTolerance; }

DampingValues ValuesByFactors(const ProportionalDamping& row) {
  DampingValues values;
  if (IsPresent(row.MassCoeff)) {
    values.Mass = true;
    values.First = row.MassCoeff;
  }
  if (IsPresent(row.StiffCoeff)) {
    values.Stiffness = true;
    values.Second = row.StiffCoeff;
  }
  return values;
}

/// Two points by which the factors are found. Meant so: mass and stiffness both count as mass.
DampingValues ValuesByPoints(const ProportionalDamping& row, double point1, double point2) {
  DampingValues values;
  if (IsPresent(row.MassCoeff)) {
    values.Mass = true;
    values.First = point1;
    values.Second = row.Damping1;
  }
  if (IsPresent(row.StiffCoeff)) {
    values.Mass = true;
    values.Third = point2;
    values.Fourth = row.Damping2;
  }
  return values;
}

constexpr Text kByFactors = "Direct";
constexpr Text kByPeriods = "Period";
constexpr Text kByFrequencies = "Frequency";

DampingValues ValuesOf(const ProportionalDamping& row) {
  if (row.SpecifyType == kByFactors) {
    return ValuesByFactors(row);
  }
  if (row.SpecifyType == kByPeriods) {
    return ValuesByPoints(row, row.Period1, row.Period2);
  }
  if (row.SpecifyType == kByFrequencies) {
    return ValuesByPoints(row, row.Frequency1, row.Frequency2);
  }
  return {};
}

/// The values of a case, by its row of this kind of record.
template <std::derived_from<ProportionalDamping> Record>
DampingValues ValuesOfCase(CModel& source, Text name) {
  const auto row = source.Rows<Record>().template FirstWith<&Record::Case>(name);
  return row ? ValuesOf(row->Value) : DampingValues{};
}

/// Stores a value that is there; a slot without one stays as it is.
void Store(const std::optional<double>& value, double& slot) { slot = value.value_or(slot); }

void StoreFactors(const DampingValues& values, HistoryDamping& damping) {
  damping.iCOEF = 1;
  Store(values.First, damping.MASSC);
  Store(values.Second, damping.STIFFC);
}

/// Meant so: the second point takes the place of the first, and FP2 is always 0.
void StorePoints(const DampingValues& values, std::int32_t calculation, HistoryDamping& damping) {
  damping.iCOEF = 2;
  damping.iCALC = calculation;
  Store(values.Second, damping.DR1);
  Store(values.Third, damping.FP1);
  Store(values.Fourth, damping.DR2);
}

bool HasAny(const DampingValues& values) { return values.Mass || values.Stiffness; }

/// Sets what damps. False when nothing does.
bool StoreUse(const DampingValues& values, HistoryDamping& damping) {
  damping.iMDTYPE = 2;
  damping.bMASSP = values.Mass ? "YES" : "NO";
  damping.bSTIFFP = values.Stiffness ? "YES" : "NO";
  return HasAny(values);
}

}  // namespace

bool ConvertModalDamping(CModel& source, Text name, ProportionalKind kind,
                         HistoryDamping& damping) {
  const DampingValues values = ValuesOfCase<T_MDH4_D>(source, name);
  if (kind == ProportionalKind::Factors) {
    StoreFactors(values, damping);
  } else {
    Store(values.First, damping.FP1);
    StorePoints(values, kind == ProportionalKind::Periods ? 2 : 1, damping);
  }
  return StoreUse(values, damping);
}

bool ConvertDirectDamping(CModel& source, Text name, HistoryDamping& damping) {
  const auto row = source.Rows<T_DRH3_D>().FirstWith<&T_DRH3_D::Case>(name);
  const DampingValues values = row ? ValuesOf(row->Value) : DampingValues{};
  if (!StoreUse(values, damping)) {
    return false;
  }
  if (row->Value.SpecifyType == kByFactors) {
    StoreFactors(values, damping);
  } else {
    // Meant so: the other way round than in a modal case.
    StorePoints(values, row->Value.SpecifyType == kByPeriods ? 1 : 2, damping);
  }
  return true;
}

template <std::derived_from<ProportionalDamping> Record>
bool HasProportionalDamping(CModel& source, Text name) {
  return HasAny(ValuesOfCase<Record>(source, name));
}
template bool HasProportionalDamping<T_MDH4_D>(CModel& source, Text name);
template bool HasProportionalDamping<T_DRH3_D>(CModel& source, Text name);

// ---- Output ----

namespace {

/// The factor of mass or of stiffness, or its empty place.
void WriteFactor(LineWriter& out, Text isUsed, double factor) {
  out.WriteLine("%5s,", isUsed);
  if (isUsed == "YES") {
    out.WriteLine("%5g", factor);  // meant so: without a comma behind it
  } else {
    out.WriteLine(" ,");
  }
}

void WritePoint(LineWriter& out, Text isUsed, double point, double ratio) {
  out.WriteLine("%5s,", isUsed);
  if (isUsed == "YES") {
    out.WriteLine("%5g, %5g,", point, ratio);
  } else {
    out.WriteLine(" , ,");
  }
}

}  // namespace

void WriteHistoryDamping(LineWriter& out, const HistoryDamping& damping) {
  if (damping.iMDTYPE == 1) {
    out.WriteLine("%5g,", damping.DALL);
  } else if (damping.iCOEF == 1) {
    out.WriteLine("\t\t%d, ", damping.iCOEF);
    WriteFactor(out, damping.bMASSP, damping.MASSC);
    WriteFactor(out, damping.bSTIFFP, damping.STIFFC);
  } else {
    out.WriteLine("\t\t%d, %5d, ", damping.iCOEF, damping.iCALC);
    WritePoint(out, damping.bMASSP, damping.FP1, damping.DR1);
    WritePoint(out, damping.bSTIFFP, 0.0, damping.DR2);
  }
}

void WriteModeDampings(LineWriter& out, const HistoryDamping& damping) {
  for (std::size_t index = 0; index < damping.Modes.size(); ++index) {
    const ModeDamping& mode = damping.Modes[index];
    out.WriteLine("%s%5d, %5g", SeparatorBefore(index, 3, "\n\t\t"), mode.iMODE, mode.DAMPING);
  }
}

// ---- Account ----

namespace {

/// Why a row of proportional damping does not damp its case; nothing if it does.
template <std::derived_from<ProportionalDamping> Record, class Definition>
std::optional<Why> WhyDampingIsLost(Conversion& run, std::uint32_t key, const Record& row) {
  if (!IsHistoryAnalysed<Definition>(run, row.Case)) {
    return Why("analysis-case-missing");
  }
  if (run.Source.Rows<Record>().template FirstWith<&Record::Case>(row.Case)->Key != key) {
    return Why("case-defined-again");
  }
  if (!HasAny(ValuesOf(row))) {
    return Why("damping-without-values");
  }
  return WhyHistoryIsLost<Definition>(run, row.Case);
}

/// The word for its damping that the first definition of a modal case states.
Text DampingTypeOf(Conversion& run, Text name) {
  const auto definition = run.Source.Rows<T_MDH1_D>().FirstWith<&T_MDH1_D::Case>(name);
  return definition ? definition->Value.DampingType : Text();
}

/// The kind of proportional damping by the words of a row.
std::optional<ProportionalKind> KindOf(const ProportionalDamping& row) {
  if (row.SpecifyType == kByFactors) {
    return ProportionalKind::Factors;
  }
  return row.SpecifyType == kByPeriods ? ProportionalKind::Periods : ProportionalKind::Frequencies;
}

void CloseModalProportional(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<T_MDH4_D>().Entries()) {
    const Text type = DampingTypeOf(run, row.Case);
    if (type == kConstantDamping) {
      run.Accounts.Note<T_MDH4_D>(key, "no-part-in-its-case");
    } else if (const auto why = WhyDampingIsLost<T_MDH4_D, T_MDH1_D>(run, key, row)) {
      run.Accounts.Note<T_MDH4_D>(key, *why);
    } else if (ProportionalKindOf(type) != KindOf(row)) {
      run.Accounts.Note<T_MDH4_D>(key, "damping-type-differs");
    } else if (row.SpecifyType != kByFactors) {
      run.Accounts.Note<T_MDH4_D>(key, "damping-of-two-points");
    }
  }
}

void CloseDirectProportional(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<T_DRH3_D>().Entries()) {
    if (const auto why = WhyDampingIsLost<T_DRH3_D, T_DRH1_D>(run, key, row)) {
      run.Accounts.Note<T_DRH3_D>(key, *why);
    } else if (row.SpecifyType != kByFactors) {
      run.Accounts.Note<T_DRH3_D>(key, "damping-of-two-points");
    }
  }
}

void CloseModeDampings(Conversion& run) {
  for (const auto [key, mode] : run.Source.Rows<T_MDH5_D>().Entries()) {
    if (const auto why = WhyHistoryIsLost<T_MDH1_D>(run, mode.Case)) {
      run.Accounts.Note<T_MDH5_D>(key, *why);
    } else if (DampingTypeOf(run, mode.Case) != kConstantDamping) {
      run.Accounts.Note<T_MDH5_D>(key, "damping-of-other-kind");
    }
  }
}

}  // namespace

void CloseHistoryDamping(Conversion& run) {
  run.Accounts.NoteAll<T_MDH3_D>("damping-of-other-kind");
  CloseModalProportional(run);
  CloseDirectProportional(run);
  CloseModeDampings(run);
}

}  // namespace s2k2ngt
