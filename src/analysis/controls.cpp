#include "analysis/controls.h"

namespace s2k2ngt {

// ---- Conversion ----

bool ConvertAnalysisControl(Conversion& run) {
  run.Target.Control<T_NGT_ANCT_D>().bWrite = run.Target.NeedAnalCtrl;
  return true;
}

// ---- Output ----

bool WriteAnalysisControl(Conversion& run, LineWriter& out) {
  if (!run.Target.Control<T_NGT_ANCT_D>().bWrite) {
    return true;
  }
  out.WriteLine("*ANAL-CTRL\n");
  out.WriteLine("; bARDC, bANRC, iTYPE, iITER, TOL            ; iTYPE=0\n");
  out.WriteLine("; bARDC, bANRC, iTYPE, iITER, iSITER, TOL    ; iTYPE=1\n");
  out.WriteLine("\t%s, %5s, %5d, %5d, %5g\n", "YES", "YES", 0, 30, 0.001);
  out.WriteLine("\n");
  return true;
}

}  // namespace s2k2ngt
