#include "plates/element_references.h"

#include "common/numbers.h"
#include "frames/elements.h"
#include "plates/areas.h"
#include "plates/solids.h"

#include <string>

namespace s2k2ngt {

bool HasFrame(CModel& model, Text frame) {
  return model.Rows<T_CNFR_D>().FirstWith<&T_CNFR_D::Frame>(frame).has_value();
}

namespace {

bool HasElement(CModel& model, Text label, Text family) {
  if (family == kFrameFamily) {
    return HasFrame(model, label);
  }
  if (family == kAreaFamily) {
    return model.Rows<T_CNAR_D>().FirstWith<&T_CNAR_D::Area>(label).has_value();
  }
  return model.Rows<T_CNSL_D>().FirstWith<&T_CNSL_D::Solid>(label).has_value();
}

}  // namespace

std::optional<Why> WhyNotElement(Conversion& run, Text label, Text family) {
  if (HasElement(run.Source, label, family)) {
    return std::nullopt;
  }
  const std::string number = std::to_string(ParseInteger(label));
  const bool isAnother =
      run.Elements.Renumbered() || HasElement(run.Source, number, kFrameFamily) ||
      HasElement(run.Source, number, kAreaFamily) || HasElement(run.Source, number, kSolidFamily);
  return isAnother ? Why("element-taken-from-another") : Why("element-not-there");
}

}  // namespace s2k2ngt
