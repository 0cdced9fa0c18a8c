#include "plates/solids.h"

#include "account/shared_names.h"
#include "frames/elements.h"
#include "frames/materials.h"
#include "plates/areas.h"
#include "plates/row_notes.h"

#include <span>

namespace s2k2ngt {

// ---- Source rows ----

std::array<Text, 8> JointsOf(const T_CNSL_D& solid) {
  return {solid.Joint1, solid.Joint2, solid.Joint3, solid.Joint4,
          solid.Joint5, solid.Joint6, solid.Joint7, solid.Joint8};
}

// ---- Conversion ----

namespace {

/// Sets the number of the solid's material. Meant so: what is not found keeps the number of the
/// solid looked up before, so that a solid without a known material shares that of its neighbour in
/// the walk.
void FindMaterial(Conversion& run, std::uint32_t solidKey, Text solid, std::int32_t& iMAT) {
  CModel& model = run.Source;
  const auto assignment = model.Rows<T_SLPA_D>().FirstWith<&T_SLPA_D::Solid>(solid);
  if (!assignment) {
    run.Accounts.Note<T_CNSL_D>(solidKey, "solid-without-property");
    return;
  }
  const auto property =
      model.Rows<T_SLPD_D>().FirstWith<&T_SLPD_D::SolidProp>(assignment->Value.SolidProp);
  if (!property) {
    run.Accounts.Note<T_SLPA_D>(assignment->Key, "solid-property-unknown");
    return;
  }
  const auto material =
      model.Rows<T_MTGN_D>().FirstWith<&T_MTGN_D::Material>(property->Value.Material);
  if (!material) {
    run.Accounts.Note<T_SLPA_D>(assignment->Key, "solid-material-unknown");
    run.Accounts.Note<T_SLPD_D>(property->Key, "solid-material-unknown");
    return;
  }
  iMAT = static_cast<std::int32_t>(material->Key);
}

}  // namespace

bool ConvertSolids(Conversion& run) {
  std::int32_t iMAT = 0;  // kept from solid to solid
  ReserveForRows<T_NGT_SOLD_D, T_CNSL_D>(run);
  for (const auto [key, solid] : run.Source.Rows<T_CNSL_D>().Walk()) {
    FindMaterial(run, key, solid.Solid, iMAT);
    run.Elements.NoteLabel(solid.Solid);
    run.Target.Add(
        key, T_NGT_SOLD_D{.Label = solid.Solid, .iMAT = iMAT, .iPRO = 0, .iN = JointsOf(solid)});
  }
  // Set whether or not a solid has local axes: their table is refused, so that the engineer has to
  // look at every model with solids.
  run.Warnings.bSolidLocalAxesLost = true;
  return true;
}

bool CheckSolidGravityLoads(Conversion& run) {
  if (!run.Source.Rows<T_SLLG_D>().Empty()) {
    run.Warnings.bSolidGravityLost = true;
    run.Accounts.NoteAll<T_SLLG_D>("gravity-of-solid-or-link");
  }
  return true;
}

// ---- Output ----

void WriteSolidElements(Conversion& run, LineWriter& out) {
  const auto& solids = run.Target.Table<T_NGT_SOLD_D>();
  if (solids.Empty()) {
    return;
  }
  if (run.Warnings.bSolidLocalAxesLost) {
    run.Shown.Show("IDS_S2KV8_SOLD_LclAx_Not_Convert");
  }
  const auto before = static_cast<std::uint32_t>(run.Source.Rows<T_CNFR_D>().Count() +
                                                 run.Source.Rows<T_CNAR_D>().Count());
  for (std::uint32_t key = 1; key <= solids.Count(); ++key) {
    const T_NGT_SOLD_D solid = RecordOr(solids.Find(key), T_NGT_SOLD_D{});
    const std::int32_t iEl = run.Elements.NumberAt(before + key, solid.Label, kSolidFamily);
    std::array<std::int32_t, 8> node{};
    for (std::size_t corner = 0; corner < node.size(); ++corner) {
      node[corner] = run.Target.NodeNumber(solid.iN[corner]);
    }
    if (node[6] == 0) {
      // A wedge; so also a solid whose seventh joint is not there.
      out.WriteLine("\t%d, %5s, %5d, %5d, %5d, %5d, %5d, %5d, %5d, %5d, 0, 0", iEl, solid.TYPE,
                    solid.iMAT, solid.iPRO, node[0], node[1], node[2], node[3], node[4], node[5]);
    } else {
      // The source numbers the corners of a face in a Z, the target around the face.
      out.WriteLine("\t%d, %5s, %5d, %5d, %5d, %5d, %5d, %5d, %5d, %5d, %5d, %5d", iEl, solid.TYPE,
                    solid.iMAT, solid.iPRO, node[0], node[1], node[3], node[2], node[4], node[5],
                    node[7], node[6]);
    }
    if (run.Elements.Renumbered()) {
      out.WriteLine("\t\t;Solid=%s\n", solid.Label);
    } else {
      out.WriteLine("\n");
    }
  }
}

// ---- Account ----

namespace {

void NoteSolid(Conversion& run, KnownJoints& joints, std::uint32_t key, const T_CNSL_D& solid) {
  const std::array<Text, 8> corners = JointsOf(solid);
  const bool isWedge = solid.Joint7.empty() && solid.Joint8.empty();
  joints.NoteUnknown<T_CNSL_D>(key, std::span(corners).first(isWedge ? 6 : 8));
  if (!run.Elements.Renumbered() &&
      run.Source.Rows<T_CNAR_D>().FirstWith<&T_CNAR_D::Area>(solid.Solid)) {
    run.Accounts.Note<T_CNSL_D>(key, "element-number-shared");
  }
}

void NoteProperties(Conversion& run, NamesInUse& namesInUse) {
  const auto& properties = run.Source.Rows<T_SLPD_D>();
  for (const auto [key, property] : properties.Entries()) {
    if (!IsTheOneMet<&T_SLPD_D::SolidProp>(properties, key, property)) {
      run.Accounts.Note<T_SLPD_D>(key, "row-of-same-name");
    } else if (!namesInUse.Has(property.SolidProp)) {
      run.Accounts.Note<T_SLPD_D>(key, "property-not-used");
    }
  }
}

}  // namespace

void CloseSolids(Conversion& run) {
  NoteSharedNames<&T_CNSL_D::Solid, T_CNSL_D>(run);
  KnownJoints joints(run);
  MetRows<&T_SLPA_D::Solid, T_SLPA_D> assignments(run.Source.Rows<T_SLPA_D>());
  NamesInUse namesInUse;
  for (const auto [key, solid] : run.Source.Rows<T_CNSL_D>().Entries()) {
    NoteSolid(run, joints, key, solid);
    if (const auto found = assignments.Of(solid.Solid)) {
      namesInUse.Add(found->Value.SolidProp);
    }
  }
  assignments.NoteOthers(run, "solid-unknown");
  NoteProperties(run, namesInUse);
  run.Accounts.NoteAll<T_SLAM_D>("table-not-read");
  run.Accounts.NoteAll<T_SLPT_D>("table-not-read");
}

}  // namespace s2k2ngt
