#include "analysis/buckling.h"

#include "target/wrapped_list.h"

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
    if (load.LoadType != "Load case") {
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

}  // namespace s2k2ngt
