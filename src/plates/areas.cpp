#include "plates/areas.h"

#include "account/shared_names.h"
#include "common/worked_out.h"
#include "frames/elements.h"
#include "frames/materials.h"
#include "joints/nodes.h"
#include "plates/row_notes.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>

namespace s2k2ngt {

// ---- Source rows ----

bool IsTopOrBottom(Text face) { return face == "5" || face == "6"; }

// ---- Conversion ----

namespace {

constexpr Text kAxisymmetric = "Asolid";

/// What an area section makes of an area.
struct Classification {
  Text TYPE;
  std::int32_t iSUB = 1;
  // iMAT and iPRO are set when the section's material is known, or there is no material at all
  bool Success = false;
  std::int32_t iPRO = 1;
  std::int32_t iMAT = 1;
};

/// True when the word stands behind at least one other character: "Shell-Thick" holds "Thick" in
/// this sense and "Thick" alone does not. Only its first place is looked at.
bool ContainsBehindStart(Text text, Text word) {
  const std::size_t place = text.find(word);
  return place != Text::npos && place >= 1;
}

/// The global Y of a corner; 0 where an area has no corner or names no joint.
double CornerY(CModel& model, Text joint) {
  return joint.empty() ? 0.0 : GlobalCoordinates(model, joint).Y;
}

/// True when all four joints lie in one plane of constant global Y, exactly. An element of plane
/// strain or of an axisymmetric solid must.
bool LiesInPlaneOfConstantY(CModel& model, const T_CNAR_D& area) {
  const double y = CornerY(model, area.Joint1);
  return std::ranges::none_of(std::array{area.Joint2, area.Joint3, area.Joint4}, [&](Text joint) {
    return std::abs(CornerY(model, joint) - y) > 0.0;
  });
}

/// False for a type that the host does not have.
bool ClassifyShell(Text type, Classification& result) {
  result.TYPE = "PLATE";
  if (ContainsBehindStart(type, "Thick")) {
    result.iSUB = 1;
  } else if (ContainsBehindStart(type, "Thin")) {
    result.iSUB = 2;
  } else if (type == "Membrane") {
    result.TYPE = "PLSTRS";
    result.iSUB = 0;
  } else {
    return false;
  }
  return true;
}

/// Takes the type of one section of the area's section name, likewise.
bool ClassifyBy(const T_ASPR_D& section, bool liesInPlane, Classification& result) {
  if (section.AreaType == "Shell") {
    return ClassifyShell(section.Type, result);
  }
  if (section.AreaType == "Plane" && section.Type == "Plane-Stress") {
    result.TYPE = "PLSTRS";
  } else if (section.AreaType == "Plane" && section.Type == "Plane-Strain") {
    result.TYPE = liesInPlane ? "PLSTRN" : "PLSTRS";
  } else if (section.AreaType == kAxisymmetric) {
    result.TYPE = liesInPlane ? "AXISYM" : "PLSTRS";
  } else {
    return false;
  }
  return true;
}

/// The number of a material that is there; 1 when the model has no material at all.
std::optional<std::int32_t> KnownMaterial(CModel& model, Text name) {
  const auto& materials = model.Rows<T_MTGN_D>();
  if (materials.Empty()) {
    return 1;
  }
  const auto material = materials.FirstWith<&T_MTGN_D::Material>(name);
  return material ? std::optional(static_cast<std::int32_t>(material->Key)) : std::nullopt;
}

/// Goes through the sections of the name until one has a known material. Type and sub-type of those
/// before it stay where a later one does not set them.
Classification Classify(Conversion& run, Text sectionName, bool liesInPlane) {
  Classification result;
  const auto& sections = run.Source.Rows<T_ASPR_D>();
  for (const std::uint32_t position : sections.AllWith<&T_ASPR_D::Section>(sectionName)) {
    const auto [key, section] = sections.AtWalk(position);
    if (!ClassifyBy(section, liesInPlane, result)) {
      run.Target.bAreaPropertyLost = true;
      run.Accounts.Note<T_ASPR_D>(key, "area-section-type-unlike");
    }
    if (const auto iMAT = KnownMaterial(run.Source, section.Material)) {
      result.Success = true;
      result.iPRO = static_cast<std::int32_t>(key);
      result.iMAT = *iMAT;
      break;
    }
  }
  return result;
}

/// What the section names of areas make of them, worked out once for each name.
class AreaClassifier {
 public:
  explicit AreaClassifier(Conversion& run) : m_Run(run) {}

  const Classification& Of(Text sectionName, std::uint32_t key, const T_CNAR_D& area) {
    const auto [outcomes, isNew] = m_Outcomes.Meet(sectionName);
    if (isNew) {
      outcomes = {Classify(m_Run, sectionName, true), Classify(m_Run, sectionName, false)};
    }
    const bool planeMatters = outcomes.InPlane.TYPE != outcomes.OutOfPlane.TYPE;
    if (planeMatters && !LiesInPlaneOfConstantY(m_Run.Source, area)) {
      m_Run.Accounts.Note<T_CNAR_D>(key, "area-not-in-plane");
      return outcomes.OutOfPlane;
    }
    return outcomes.InPlane;
  }

 private:
  struct Outcomes {
    Classification InPlane;
    Classification OutOfPlane;
  };
  Conversion& m_Run;
  WorkedOut<Text, Outcomes> m_Outcomes;
};

using AreaAssignment = std::optional<CKeyedTable<T_ASCA_D>::Entry>;

/// Notes why an area keeps the numbers that stand for no section.
void NoteDefaults(Conversion& run, std::uint32_t areaKey, const AreaAssignment& assignment) {
  if (!assignment) {
    run.Accounts.Note<T_CNAR_D>(areaKey, "area-without-section");
    return;
  }
  const auto section =
      run.Source.Rows<T_ASPR_D>().FirstWith<&T_ASPR_D::Section>(assignment->Value.Section);
  run.Accounts.Note<T_ASCA_D>(assignment->Key,
                              section ? Why("area-material-unknown") : Why("area-section-unknown"));
}

T_NGT_PLAT_D PlateOf(Conversion& run, std::uint32_t key, const T_CNAR_D& area,
                     AreaClassifier& classifier) {
  CModel& model = run.Source;
  T_NGT_PLAT_D plate;
  plate.Label = area.Area;
  plate.iN = {area.Joint1, area.Joint2, area.Joint3, area.Joint4};
  if (const auto axes = model.Rows<T_ALTP_D>().FirstWith<&T_ALTP_D::Area>(area.Area)) {
    plate.Angle = axes->Value.Angle;
  }
  const AreaAssignment assignment = model.Rows<T_ASCA_D>().FirstWith<&T_ASCA_D::Area>(area.Area);
  const Text sectionName = assignment ? assignment->Value.Section : Text();
  const Classification& found = classifier.Of(sectionName, key, area);
  plate.TYPE = found.TYPE;
  if (found.Success) {
    plate.iPRO = found.iPRO;
    plate.iMAT = found.iMAT;
    plate.iSUB = found.iSUB;
  } else if (run.Accounts.IsKept()) {
    NoteDefaults(run, key, assignment);
  }
  return plate;
}

}  // namespace

bool ConvertAreas(Conversion& run) {
  AreaClassifier classifier(run);
  const auto& areas = run.Source.Rows<T_CNAR_D>();
  auto& plates = run.Target.Table<T_NGT_PLAT_D>();
  plates.Reserve(areas.Count());
  for (const auto [key, area] : areas.Entries()) {
    plates.Insert(key, PlateOf(run, key, area, classifier));
    run.Elements.NoteLabel(area.Area);
  }
  // Set whether or not an area has local axes: their table is refused, so that the engineer has to
  // look at every model with plates.
  run.Warnings.bPlateLocalAxesLost = true;
  return true;
}

bool CheckAreaModifiers(Conversion& run) {
  if (!run.Source.Rows<T_ASMD_D>().Empty()) {
    run.Warnings.bAreaModifiersLost = true;
  }
  return true;
}

bool CheckAreaGravityLoads(Conversion& run) {
  ShowIfLost<T_ALGR_D>(run);
  return true;
}

bool ConvertThicknesses(Conversion& run) {
  for (const auto [key, section] : run.Source.Rows<T_ASPR_D>().Walk()) {
    if (section.AreaType == kAxisymmetric) {
      continue;
    }
    const bool same = section.Thickness == section.BendThick;
    run.Target.Add(key, T_NGT_THIK_D{.bSAME = same ? "YES" : "NO",
                                     .ThikIn = section.Thickness,
                                     .ThikOut = same ? 0.0 : section.BendThick});
  }
  return true;
}

// ---- Output ----

void WritePlanarElements(Conversion& run, LineWriter& out) {
  const auto& plates = run.Target.Table<T_NGT_PLAT_D>();
  if (plates.Empty()) {
    return;
  }
  if (run.Warnings.bPlateLocalAxesLost) {
    run.Shown.Show("IDS_S2KV8_PLAT_LclAx_Not_Convert");
  }
  const auto frameCount = static_cast<std::uint32_t>(run.Source.Rows<T_CNFR_D>().Count());
  for (std::uint32_t key = 1; key <= plates.Count(); ++key) {
    const T_NGT_PLAT_D plate = RecordOr(plates.Find(key), T_NGT_PLAT_D{});
    const std::int32_t iEl = run.Elements.NumberAt(frameCount + key, plate.Label, kAreaFamily);
    const std::int32_t node1 = run.Target.NodeNumber(plate.iN[0]);
    const std::int32_t node2 = run.Target.NodeNumber(plate.iN[1]);
    const std::int32_t node4 = run.Target.NodeNumber(plate.iN[3]);
    std::int32_t node3 = run.Target.NodeNumber(plate.iN[2]);
    if (node3 == node4) {
      node3 = 0;  // a triangle, given with its last joint repeated
    }
    // Node 4 before node 3: the source numbers corners in a Z, the target around the element.
    if (plate.TYPE == "PLSTRS") {
      out.WriteLine("\t%d, %5s, %5d, %5d, %5d, %5d, %5d, %5d\t", iEl, plate.TYPE, plate.iMAT,
                    plate.iPRO, node1, node2, node4, node3);
    } else if (plate.TYPE == "PLSTRN" || plate.TYPE == "AXISYM") {
      out.WriteLine("\t%d, %5s, %5d, 0, %5d, %5d, %5d, %5d\t\t", iEl, plate.TYPE, plate.iMAT, node1,
                    node2, node4, node3);
    } else {
      out.WriteLine("\t%d, %5s, %5d, %5d, %5d, %5d, %5d, %5d, %5d", iEl, plate.TYPE, plate.iMAT,
                    plate.iPRO, node1, node2, node4, node3, plate.iSUB);
    }
    if (run.Elements.Renumbered()) {
      out.WriteLine("\t;Plate=%s\n", plate.Label);
    } else {
      out.WriteLine("\n");
    }
  }
}

bool WriteThicknesses(Conversion& run, LineWriter& out) {
  const auto& thicknesses = run.Target.Table<T_NGT_THIK_D>();
  if (thicknesses.Empty()) {
    return true;
  }
  if (run.Warnings.bAreaModifiersLost) {
    run.Shown.Show("IDS_S2KV8_AREA_Thik_Mod_Not_Confert");
  }
  if (run.Target.bAreaPropertyLost) {
    run.Shown.Show("IDS_S2KV8_AREA_Prop_Not_Convert");
  }
  out.WriteLine("%s\n", "*THICKNESS    ; Thickness");
  out.WriteLine("; iTHK, TYPE, bSAME, THIK-IN, THIK-OUT                 ; TYPE=VALUE\n");
  for (const auto [key, thickness] : thicknesses.Walk()) {
    out.WriteLine("\t%d, %5s, %5s, %5g, %5g\n", static_cast<std::int32_t>(key), thickness.TYPE,
                  thickness.bSAME, thickness.ThikIn, thickness.ThikOut);
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

void NoteCorners(Conversion& run, KnownJoints& joints, std::uint32_t key, const T_CNAR_D& area) {
  const std::array corners = {area.Joint1, area.Joint2, area.Joint3, area.Joint4};
  if (!area.Joint4.empty()) {
    joints.NoteUnknown<T_CNAR_D>(key, corners);
    return;
  }
  run.Accounts.Note<T_CNAR_D>(key, "area-of-three-joints");
  joints.NoteUnknown<T_CNAR_D>(key, std::span(corners).first(3));
}

/// The key of the section that the areas of each name have: the first of a known material.
std::unordered_map<Text, std::uint32_t> SectionsByName(CModel& model) {
  std::unordered_map<Text, std::uint32_t> keys;
  for (const auto [key, section] : model.Rows<T_ASPR_D>().Walk()) {
    if (KnownMaterial(model, section.Material)) {
      keys.emplace(section.Section, key);
    }
  }
  return keys;
}

/// Notes the sections that areas do not have, and those without their material.
void NoteSections(Conversion& run, NamesInUse& namesInUse) {
  const auto& materials = run.Source.Rows<T_MTGN_D>();
  const auto taken = SectionsByName(run.Source);
  for (const auto [key, section] : run.Source.Rows<T_ASPR_D>().Entries()) {
    if (!namesInUse.Has(section.Section)) {
      if (section.AreaType == kAxisymmetric) {
        run.Accounts.Note<T_ASPR_D>(key, "property-not-used");
      }
      continue;
    }
    const auto ofName = taken.find(section.Section);
    if (ofName != taken.end() && ofName->second != key) {
      run.Accounts.Note<T_ASPR_D>(key, "area-section-of-same-name");
    } else if (!materials.FirstWith<&T_MTGN_D::Material>(section.Material)) {
      run.Accounts.Note<T_ASPR_D>(key, "area-material-unknown");
    }
  }
}

}  // namespace

void CloseAreas(Conversion& run) {
  NoteSharedNames<&T_CNAR_D::Area, T_CNAR_D>(run);
  KnownJoints joints(run);
  MetRows<&T_ASCA_D::Area, T_ASCA_D> assignments(run.Source.Rows<T_ASCA_D>());
  NamesInUse namesInUse;
  for (const auto [key, area] : run.Source.Rows<T_CNAR_D>().Entries()) {
    NoteCorners(run, joints, key, area);
    if (const auto found = assignments.Of(area.Area)) {
      namesInUse.Add(found->Value.Section);
    }
  }
  assignments.NoteOthers(run, "area-unknown");
  NoteSections(run, namesInUse);
}

}  // namespace s2k2ngt
