#include "analysis/history_damping.h"

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

DampingValues ValuesOf(const ProportionalDamping& row) {
  if (row.SpecifyType == "Direct") {
    return ValuesByFactors(row);
  }
  if (row.SpecifyType == "Period") {
    return ValuesByPoints(row, row.Period1, row.Period2);
  }
  if (row.SpecifyType == "Frequency") {
    return ValuesByPoints(row, row.Frequency1, row.Frequency2);
  }
  return {};
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

/// Sets what damps. False when nothing does.
bool StoreUse(const DampingValues& values, HistoryDamping& damping) {
  damping.iMDTYPE = 2;
  damping.bMASSP = values.Mass ? "YES" : "NO";
  damping.bSTIFFP = values.Stiffness ? "YES" : "NO";
  return values.Mass || values.Stiffness;
}

}  // namespace

bool ConvertModalDamping(CModel& source, Text name, ProportionalKind kind,
                         HistoryDamping& damping) {
  const auto row = source.Rows<T_MDH4_D>().FirstWith<&T_MDH4_D::Case>(name);
  const DampingValues values = row ? ValuesOf(row->Value) : DampingValues{};
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
  if (row->Value.SpecifyType == "Direct") {
    StoreFactors(values, damping);
  } else {
    // Meant so: the other way round than in a modal case.
    StorePoints(values, row->Value.SpecifyType == "Period" ? 1 : 2, damping);
  }
  return true;
}

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

}  // namespace s2k2ngt
