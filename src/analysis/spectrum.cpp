#include "analysis/spectrum.h"

namespace s2k2ngt {

bool CheckSpectrumFunctions(Conversion& run) {
  if (!run.Source.Rows<T_FRSB_D>().Empty()) {
    run.Shown.Show("IDS_S2KV8_RESP_BOCA96_Not_Convert");
  }
  if (!run.Source.Rows<T_FRSF_D>().Empty()) {
    run.Shown.Show("IDS_S2KV8_RESP_FILE_Not_Convert");
  }
  if (!run.Source.Rows<T_FRSH_D>().Empty()) {
    run.Shown.Show("IDS_S2KV8_RESP_NHERP97_Not_Convert");
  }
  if (!run.Source.Rows<T_FRSZ_D>().Empty()) {
    run.Shown.Show("IDS_S2KV8_RESP_NZS4203_Not_Convert");
  }
  return true;
}

}  // namespace s2k2ngt
