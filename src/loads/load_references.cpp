#include "loads/load_references.h"

#include "frames/elements.h"

namespace s2k2ngt {

bool TakesLastFrame(CModel& model, Text frame) {
  return !model.Rows<T_CNFR_D>().Empty() && !HasFrame(model, frame);
}

}  // namespace s2k2ngt
