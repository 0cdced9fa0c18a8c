#include "plates/solids.h"

namespace s2k2ngt {

// ---- Conversion ----

bool NoteSolidLabels(Conversion& run) {
  for (const T_CNSL_D& solid : run.Source.Rows<T_CNSL_D>().Records()) {
    run.Elements.NoteLabel(solid.Solid);
  }
  return true;
}

}  // namespace s2k2ngt
