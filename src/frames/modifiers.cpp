#include "frames/modifiers.h"

namespace s2k2ngt {

bool WriteSectionScaleFactors(Conversion& run, LineWriter& out) {
  const auto& factors = run.Target.Table<T_NGT_FRPM_D>();
  if (factors.Empty()) {
    return true;
  }
  out.WriteLine("*SECT-SCALE    ; Section Stiffness Scale Factor\n");
  out.WriteLine("; iSEC, AREA_SF, ASY_SF, ASZ_SF, IXX_SF, IYY_SF, IZZ_SF, WGT_SF\n");
  for (const auto [key, factor] : factors.Walk()) {
    out.WriteLine("\t%d, %5g, %5g, %5g, %5g, %5g, %5g, %5g\n", factor.iSEC, factor.AREA_SF,
                  factor.ASY_SF, factor.ASZ_SF, factor.IXX_SF, factor.IYY_SF, factor.IZZ_SF,
                  factor.WGT_SF);
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

void CloseFrameModifiers(Conversion& run) { run.Accounts.NoteAll<T_FRPM_D>("frame-modifiers"); }

}  // namespace s2k2ngt
