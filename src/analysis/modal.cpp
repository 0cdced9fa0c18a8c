#include "analysis/modal.h"

#include "analysis/cases.h"
#include "common/numbers.h"
#include "frames/elements.h"
#include "loads/load_cases.h"
#include "plates/areas.h"
#include "plates/solids.h"
#include "target/wrapped_list.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// As many modes as wanted, at most one for each element. Meant so: the directions in which the
/// structure has mass have no say.
std::int32_t ModeLimit(CModel& source, const T_MDL1_D& definition) {
  const std::size_t elements = source.Rows<T_CNAR_D>().Count() + source.Rows<T_CNFR_D>().Count() +
                               source.Rows<T_CNSL_D>().Count();
  return static_cast<std::int32_t>(
      std::min(static_cast<std::int64_t>(elements), std::int64_t{definition.MaxNumModes}));
}

constexpr Text kEigen = "EIGEN";
constexpr Text kRitz = "RITZ";
constexpr Text kOfLoadCase = "CASE";
constexpr Text kOfGround = "GROUND";

/// The kind of a starting vector; nothing for one that the target does not have.
std::optional<Text> KindOf(const T_MDL3_D& vector) {
  if (vector.LoadType == "Load case") {
    return kOfLoadCase;
  }
  return vector.LoadType == "Accel" ? std::optional(kOfGround) : std::nullopt;
}

/// The load case of a starting vector, or the direction of its acceleration.
std::optional<Text> CaseOf(const T_MDL3_D& vector) {
  const std::optional<Text> kind = KindOf(vector);
  if (kind == kOfLoadCase) {
    return vector.LoadName;
  }
  if (kind == kOfGround && vector.LoadName == "Accel UX") {
    return "ACCX";
  }
  if (kind == kOfGround && vector.LoadName == "Accel UY") {
    return "ACCY";
  }
  if (kind == kOfGround && vector.LoadName == "Accel UZ") {
    return "ACCZ";
  }
  return std::nullopt;
}

void AddStartingVector(const T_MDL3_D& vector, T_NGT_EGCT_D& control) {
  if (const std::optional<Text> kind = KindOf(vector)) {
    control.KIND.push_back(*kind);
  }
  if (const std::optional<Text> loadCase = CaseOf(vector)) {
    control.CASE.push_back(*loadCase);
  }
  // Meant so: a vector of another kind leaves its number, which moves the numbers behind it.
  control.iNOG.push_back(vector.MaxCycles);
}

/// Vectors that leave their number open share what the others leave of the limit.
void ShareModes(std::int32_t limit, std::vector<std::int32_t>& numbers) {
  const auto openCount = std::ranges::count_if(numbers, [](auto number) { return number <= 0; });
  if (openCount == 0) {
    return;
  }
  const std::int64_t given = std::accumulate(numbers.begin(), numbers.end(), std::int64_t{0});
  const std::int32_t share =
      TruncateToInteger(static_cast<double>(limit - given) / static_cast<double>(openCount));
  if (share > 0) {
    std::ranges::replace(numbers, 0, share);
  }
}

void FillEigenvalueControl(Conversion& run, const T_MDL1_D& definition, T_NGT_EGCT_D& control) {
  control.TYPE = run.Target.Texts().Keep(ToUpper(definition.ModeType));
  const std::int32_t limit = ModeLimit(run.Source, definition);
  if (control.TYPE == kEigen) {
    control.iFREQ = limit;
    control.TOL = definition.EigenTol;
  } else if (control.TYPE == kRitz) {
    const auto& vectors = run.Source.Rows<T_MDL3_D>();
    for (const std::uint32_t position : vectors.AllWith<&T_MDL3_D::Case>(definition.Case)) {
      AddStartingVector(vectors.AtWalk(position).Value, control);
    }
    ShareModes(limit, control.iNOG);
  }
}

}  // namespace

void ConvertModalCase(Conversion& run) {
  auto& control = run.Target.Control<T_NGT_EGCT_D>();
  if (control.bWrite) {
    return;  // another modal case gives the same
  }
  if (const T_MDL1_D* definition = run.Source.Rows<T_MDL1_D>().Find(1)) {
    FillEigenvalueControl(run, *definition, control);
  }
  control.bWrite = true;
  run.Target.NeedAnalCtrl = true;
}

// ---- Output ----

bool WriteEigenvalueControl(Conversion& run, LineWriter& out) {
  const auto& control = run.Target.Control<T_NGT_EGCT_D>();
  if (!control.bWrite) {
    return true;
  }
  out.WriteLine("%s\n", "*EIGEN-CTRL    ; Eigenvalue Analysis Control");
  out.WriteLine("; TYPE, iFREQ, iITER, iDIM, TOL          ; TYPE=EIGEN\n");
  out.WriteLine("; TYPE, bINCNL, iGNUM                    ; TYPE=RITZ(line 1)\n");
  out.WriteLine(";       KIND1, CASE1/GROUND1, iNOG1, ... ; TYPE=RITZ(from line2)\n");
  if (control.TYPE == kEigen) {
    out.WriteLine("\t%s, %5d, %5d, %5d, %5g\n", control.TYPE, control.iFREQ, 20, 0, control.TOL);
  } else if (control.TYPE == kRitz) {
    out.WriteLine("\t%s, %5s, %5d", control.TYPE, "NO", 1);
    for (std::size_t index = 0; index < control.CASE.size(); ++index) {
      out.WriteLine("%s%5s, %5s, %5d", SeparatorBefore(index, 3, "\n\t\t"), control.KIND[index],
                    control.CASE[index], control.iNOG[index]);
    }
  }
  out.WriteLine("\n\n");
  return true;
}

// ---- Account ----

namespace {

/// The modes of the analysis: those that it asks for, or those of its starting vectors.
std::int64_t WrittenModes(const T_NGT_EGCT_D& control) {
  if (control.TYPE == kEigen) {
    return control.iFREQ;
  }
  const auto written = control.iNOG.begin() + static_cast<std::ptrdiff_t>(control.CASE.size());
  return std::accumulate(control.iNOG.begin(), written, std::int64_t{0});
}

void CloseFirstDefinition(Conversion& run, const T_MDL1_D& definition) {
  const auto& control = run.Target.Control<T_NGT_EGCT_D>();
  constexpr std::uint32_t kFirst = 1;
  if (!IsAnalysed(run, definition.Case, kModal)) {
    run.Accounts.Note<T_MDL1_D>(kFirst, "definition-of-another-case");
  }
  if (control.TYPE != kEigen && control.TYPE != kRitz) {
    run.Accounts.Note<T_MDL1_D>(kFirst, "modal-type-unknown");
  } else if (WrittenModes(control) != definition.MaxNumModes) {
    run.Accounts.Note<T_MDL1_D>(kFirst, "mode-number-changed");
  }
}

/// A starting vector that is in the output, the `vector`th of the case from 0 and the `line`th of
/// those that are there.
void CloseVector(Conversion& run, CKeyedTable<T_MDL3_D>::Entry row, std::size_t vector,
                 std::size_t line) {
  const auto& control = run.Target.Control<T_NGT_EGCT_D>();
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  if (control.KIND[line] != KindOf(row.Value) || control.iNOG[line] != control.iNOG[vector]) {
    run.Accounts.Note<T_MDL3_D>(row.Key, "starting-vector-shifted");
  }
  if (control.iNOG[vector] != row.Value.MaxCycles) {
    run.Accounts.Note<T_MDL3_D>(row.Key, "starting-vector-shares-modes");
  }
  if (KindOf(row.Value) == kOfLoadCase &&
      !loadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(row.Value.LoadName)) {
    run.Accounts.Note<T_MDL3_D>(row.Key, "load-case-not-written");
  }
}

void CloseVectors(Conversion& run, Text modalCase) {
  const auto& vectors = run.Source.Rows<T_MDL3_D>();
  for (const auto [key, vector] : vectors.Entries()) {
    if (vector.Case != modalCase) {
      run.Accounts.Note<T_MDL3_D>(key, "definition-not-first");
    }
  }
  const bool areUsed = run.Target.Control<T_NGT_EGCT_D>().TYPE == kRitz;
  std::size_t number = 0;
  std::size_t line = 0;
  for (const std::uint32_t position : vectors.AllWith<&T_MDL3_D::Case>(modalCase)) {
    const auto row = vectors.AtWalk(position);
    if (!areUsed) {
      run.Accounts.Note<T_MDL3_D>(row.Key, "no-part-in-its-case");
    } else if (!CaseOf(row.Value)) {
      run.Accounts.Note<T_MDL3_D>(row.Key, "starting-vector-of-other-kind");
    } else {
      CloseVector(run, row, number, line++);
    }
    ++number;
  }
}

}  // namespace

void CloseModal(Conversion& run) {
  const auto& definitions = run.Source.Rows<T_MDL1_D>();
  run.Accounts.NoteAll<T_MDL2_D>("participation-target");
  if (!run.Target.Control<T_NGT_EGCT_D>().bWrite) {
    run.Accounts.NoteAll<T_MDL1_D>("analysis-case-missing");
    run.Accounts.NoteAll<T_MDL3_D>("analysis-case-missing");
    return;
  }
  const T_MDL1_D* const first = definitions.Find(1);
  if (first == nullptr) {
    run.Accounts.NoteAll<T_MDL3_D>("case-without-definition");
    return;
  }
  CloseFirstDefinition(run, *first);
  for (const auto [key, definition] : definitions.Entries()) {
    if (key > 1) {
      run.Accounts.Note<T_MDL1_D>(key, "definition-not-first");
    }
  }
  CloseVectors(run, first->Case);
}

}  // namespace s2k2ngt
