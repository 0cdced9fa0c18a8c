#include "analysis/buckling.h"

#include "analysis/cases.h"
#include "common/value_map.h"
#include "loads/load_cases.h"
#include "target/wrapped_list.h"

#include <optional>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

void ConvertBucklingCase(Conversion& run, Text analysisCase) {
  const auto& definitions = run.Source.Rows<T_BKL1_D>();
  const auto& loads = run.Source.Rows<T_BKL2_D>();
  auto& stored = run.Target.Control<T_NGT_BKCT_D>();
  if (stored.bWrite || definitions.Empty()) {
    return;
  }
  T_NGT_BKCT_D control;
  for (const std::uint32_t position : loads.AllWith<&T_BKL2_D::Case>(analysisCase)) {
    const T_BKL2_D& load = loads.AtWalk(position).Value;
    if (!load.IsLoadCase()) {
      run.Warnings.bBucklingLoadLost = true;
      break;
    }
    control.Loads.push_back({load.LoadName, load.LoadSF});
  }
  if (control.Loads.empty()) {
    return;
  }
  if (const auto found = definitions.AllWith<&T_BKL1_D::Case>(analysisCase); !found.empty()) {
    const T_BKL1_D& definition = definitions.AtWalk(found.back()).Value;
    control.iMODENUM = definition.NumBuckMode;
    control.TOL = definition.EigenTol;
  }
  control.Case = analysisCase;
  control.bWrite = true;
  stored = std::move(control);
}

// ---- Output ----

bool WriteBucklingControl(Conversion& run, LineWriter& out) {
  const auto& control = run.Target.Control<T_NGT_BKCT_D>();
  if (control.bWrite) {
    if (run.Warnings.bBucklingLoadLost) {
      run.Shown.Show("IDS_S2KV8_BUCK_LdType_Not_Convert");
    }
    out.WriteLine("%s\n", "*BUCK-CTRL    ; Buckling Analysis Control");
    out.WriteLine("; iMODENUM, iITER, TOL                 ; line 1\n");
    out.WriteLine("; LCNAME1, FACT1, LCNAME2, FACT2, ...  ; from line 2\n");
    out.WriteLine("\t%d, %5d, %5g", control.iMODENUM, 30, control.TOL);
    for (std::size_t index = 0; index < control.Loads.size(); ++index) {
      const BucklingLoad& load = control.Loads[index];
      out.WriteLine("%s%5s, %5g", SeparatorBefore(index, 3, "\n\t\t"), load.LCNAME, load.FACT);
    }
  }
  out.WriteLine("\n\n");
  return true;
}

// ---- Account ----

namespace {

/// Why a definition or a load is not that of the buckling control; nothing if its case is.
std::optional<Why> WhyCaseIsLost(Conversion& run, Text analysisCase) {
  const auto& control = run.Target.Control<T_NGT_BKCT_D>();
  if (!IsAnalysed(run, analysisCase, kBuckling)) {
    return Why("analysis-case-missing");
  }
  if (!control.bWrite) {
    return Why("case-not-converted");
  }
  return control.Case == analysisCase ? std::optional<Why>() : Why("definition-not-first");
}

void CloseDefinitions(Conversion& run) {
  const auto& definitions = run.Source.Rows<T_BKL1_D>();
  for (const auto [key, definition] : definitions.Entries()) {
    const auto ofCase = definitions.AllWith<&T_BKL1_D::Case>(definition.Case);
    if (const auto why = WhyCaseIsLost(run, definition.Case)) {
      run.Accounts.Note<T_BKL1_D>(key, *why);
    } else if (definitions.AtWalk(ofCase.back()).Key != key) {
      run.Accounts.Note<T_BKL1_D>(key, "case-defined-again");
    }
  }
}

void CloseLoads(Conversion& run) {
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  ValueMap<Text, bool> endsBefore;  // whether a load that is none ends those of the case
  for (const auto [key, load] : run.Source.Rows<T_BKL2_D>().Walk()) {
    bool& isEnded = endsBefore.Meet(load.Case).Result;
    const auto why = WhyCaseIsLost(run, load.Case);
    if (!load.IsLoadCase()) {
      run.Accounts.Note<T_BKL2_D>(key, "buckling-load-not-load-case");
      isEnded = true;
    } else if (why) {
      run.Accounts.Note<T_BKL2_D>(key, *why);
    } else if (isEnded) {
      run.Accounts.Note<T_BKL2_D>(key, "behind-lost-row");
    } else if (!loadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(load.LoadName)) {
      run.Accounts.Note<T_BKL2_D>(key, "load-case-not-written");
    }
  }
}

}  // namespace

void CloseBuckling(Conversion& run) {
  CloseDefinitions(run);
  CloseLoads(run);
}

}  // namespace s2k2ngt
