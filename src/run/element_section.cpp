#include "run/element_section.h"

#include "frames/elements.h"
#include "plates/areas.h"
#include "plates/solids.h"

#include <algorithm>

namespace s2k2ngt {
namespace {

/// True when two families share a label. Areas and solids are compared only in a model without
/// frames, and this is meant: a model with frames keeps a label that an area and a solid share.
bool FamiliesShareLabels(CModel& model) {
  const auto& frames = model.Rows<T_CNFR_D>();
  const auto& areas = model.Rows<T_CNAR_D>();
  const auto& solids = model.Rows<T_CNSL_D>();
  const auto isArea = [&](Text label) {
    return areas.FirstWith<&T_CNAR_D::Area>(label).has_value();
  };
  const auto isSolid = [&](Text label) {
    return solids.FirstWith<&T_CNSL_D::Solid>(label).has_value();
  };
  if (areas.Empty() && solids.Empty()) {
    return false;
  }
  if (!frames.Empty()) {
    return std::ranges::any_of(frames.Records(), [&](const T_CNFR_D& frame) {
      return isArea(frame.Frame) || isSolid(frame.Frame);
    });
  }
  return std::ranges::any_of(areas.Records(),
                             [&](const T_CNAR_D& area) { return isSolid(area.Area); });
}

}  // namespace

bool WriteElements(Conversion& run, LineWriter& out) {
  const std::size_t count = run.Target.Table<T_NGT_FRAM_D>().Count() +
                            run.Target.Table<T_NGT_PLAT_D>().Count() +
                            run.Target.Table<T_NGT_SOLD_D>().Count();
  if (count == 0) {
    return true;
  }
  if (run.Warnings.bNodeNotAssigned) {
    run.Shown.Show("IDS_S2KV8_NODE_Not_Assgn");
  }
  if (run.Warnings.bElemLengthZero) {
    run.Shown.Show("IDS_S2KV8_ELEM_Length_Zero");
  }
  // Asked before the families are compared, and this is meant: a model that is renumbered for
  // labels that two families share alone says so in the comments of its lines and not in a message.
  if (run.Elements.Renumbered()) {
    run.Shown.Show("IDS_S2KV8_ELEM_Renumbering");
  }
  out.WriteLine("*ELEMENT    ; Elements\n");
  out.WriteLine(
      "; iEL, TYPE, iMAT, iPRO, iN1, iN2, ANGLE, iSUB, EXVAL              ; Frame Element\n");
  out.WriteLine(
      "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iSUB, iWID            ; Planar Element\n");
  out.WriteLine(
      "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iN5, iN6, iN7, iN8    ; Solid  Element\n");
  out.WriteLine(
      "; iEL, TYPE, iMAT, iPRO, iN1, iN2, REF, RPX, RPY, RPZ, iSUB, EXVAL ; Frame(Ref. Point)\n");
  run.Elements.ElemFamiliesOverlap = FamiliesShareLabels(run.Source);
  if (run.Elements.Renumbered()) {
    run.Elements.Reserve(count);
  }
  WriteFrameElements(run, out);
  WritePlanarElements(run, out);
  WriteSolidElements(run, out);
  out.WriteLine("\n");
  return true;
}

}  // namespace s2k2ngt
