#include "analysis/controls.h"

namespace s2k2ngt {

bool WriteBucklingControl(Conversion& /*run*/, LineWriter& out) {
  out.WriteLine("\n\n");
  return true;
}

}  // namespace s2k2ngt
