#include "frames/elements.h"

#include "account/shared_names.h"
#include "frames/materials.h"
#include "frames/nonprismatic_materials.h"
#include "frames/sections.h"
#include "joints/nodes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>

namespace s2k2ngt {

// ---- Source rows ----

T_CNFR_D ConnectivityOrLast(CModel& model, Text frame) {
  const auto found = model.Rows<T_CNFR_D>().FirstOrLastWith<&T_CNFR_D::Frame>(frame);
  return found ? found->Value : T_CNFR_D{};
}

std::optional<Text> SectionNameOf(CModel& model, Text frame) {
  const auto assignment = model.Rows<T_FRSC_D>().FirstWith<&T_FRSC_D::Frame>(frame);
  return assignment ? std::optional(assignment->Value.AnalSect) : std::nullopt;
}

// ---- Conversion ----

namespace {

/// Section and material of a frame, as far as they are found.
struct FrameProperty {
  static constexpr std::int32_t kNotFound = -1;
  std::int32_t iPRO = kNotFound;
  std::int32_t iMAT = kNotFound;
};

/// Looks up the section and material of frame after frame; the material once for each section.
class FramePropertyLookup {
 public:
  explicit FramePropertyLookup(Conversion& run)
      : m_Assignments(run.Source.Rows<T_FRSC_D>()), m_Sections(run.Source.Rows<T_FRSG_D>()) {
    CModel& model = run.Source;
    const NonprismaticMaterials nonprismatic(model);
    m_Materials.reserve(m_Sections.Count());
    for (const auto [key, section] : m_Sections.Entries()) {
      const auto material = section.Shape == kNonprismatic
                                ? nonprismatic.Of(section.SectionName)
                                : MaterialOrLastKey(model, section.Material);
      m_Materials.emplace(key, material.value_or(FrameProperty::kNotFound));
      if (run.Accounts.IsKept() && !(material && IsOwnMaterial(model, section))) {
        run.Accounts.Note<T_FRSG_D>(key, "frame-section-material-unknown");
      }
    }
  }

  /// What is found for the connectivity row of this key.
  FrameProperty Find(std::uint32_t frameKey) const {
    // Assignments and frames are paired by position: the two tables list the frames in one order.
    if (m_Assignments.Empty()) {
      return {};
    }
    const Text name = RecordOr(m_Assignments.Find(frameKey), T_FRSC_D{}).AnalSect;
    const auto section = m_Sections.FirstWith<&T_FRSG_D::SectionName>(name);
    if (!section) {
      return {};
    }
    return {static_cast<std::int32_t>(section->Key), m_Materials.at(section->Key)};
  }

 private:
  /// Nonprismatic sections name none of their own.
  static bool IsOwnMaterial(CModel& model, const T_FRSG_D& section) {
    return section.Shape == kNonprismatic ||
           model.Rows<T_MTGN_D>().FirstWith<&T_MTGN_D::Material>(section.Material);
  }

  const CKeyedTable<T_FRSC_D>& m_Assignments;
  const CKeyedTable<T_FRSG_D>& m_Sections;
  std::unordered_map<std::uint32_t, std::int32_t> m_Materials;  // by the key of the section
};

double AngleOfFrame(CModel& model, Text frame) {
  return AngleByAxes<T_FRTP_D, &T_FRTP_D::Frame, T_FRAV_D, &T_FRAV_D::Frame>(model, frame);
}

/// The angle turned so that the plane of the local axes holds a coordinate direction; a pair of
/// plane and direction that is not listed needs no turn.
double AngleTowards(Text localPlane, Text direction, double angle) {
  struct Change {
    Text LocalPlane;
    Text Direction;
    double Degrees;
  };
  constexpr std::array<Change, 6> kChanges = {{{"12", "Y", -90.0},
                                               {"12", "-Y", 90.0},
                                               {"12", "-Z", 180.0},
                                               {"13", "Y", 180.0},
                                               {"13", "Z", -90.0},
                                               {"13", "-Z", 90.0}}};
  for (const Change& change : kChanges) {
    if (change.LocalPlane == localPlane && change.Direction == direction) {
      return angle + change.Degrees;
    }
  }
  return angle;
}

constexpr Text kCoordinateDirection = "Coord Dir";

/// Of two coordinate directions the first that is not along X, which every frame is taken to be.
Text DirectionAcrossX(Text first, Text second) {
  return first == "X" || first == "-X" ? second : first;
}

/// The angle of a plane vector in the global YZ plane, which every frame is taken to be seen in.
double ChangeForVector(double y, double z) {
  // Ten digits of pi and no more, so that outputs stay comparable to the last digit.
  constexpr double kPi = 3.1415926535;
  return std::atan2(z, y) * 180 / kPi - 90;
}

/// Gives a number to each beam that has none yet. Meant so: a frame whose section or material is
/// not found shares that of the frame before it in the walk; those before the first found one have
/// number 0.
void TakeFromNeighbours(const CKeyedTable<T_CNFR_D>& frames, CKeyedTable<T_NGT_FRAM_D>& beams) {
  const auto take = [](std::int32_t& number, std::int32_t& numberBefore) {
    if (number == FrameProperty::kNotFound) {
      number = numberBefore;
    }
    numberBefore = number;
  };
  FrameProperty before{.iPRO = 0, .iMAT = 0};
  for (const auto [key, frame] : frames.Walk()) {
    T_NGT_FRAM_D& beam = *beams.FindToChange(key);
    take(beam.iPRO, before.iPRO);
    take(beam.iMAT, before.iMAT);
  }
}

}  // namespace

double AngleInPlane(CModel& model, const AdvancedPlane& plane, double angle) {
  if (plane.PlOption1 == kCoordinateDirection) {
    return AngleTowards(plane.LocalPlane, DirectionAcrossX(plane.CoordDir1, plane.CoordDir2),
                        angle);
  }
  if (plane.PlOption1 == "Two Joints") {
    const Point from = GlobalCoordinates(model, plane.PlVecJt1);
    const Point to = GlobalCoordinates(model, plane.PlVecJt2);
    return ChangeForVector(to.Y - from.Y, to.Z - from.Z) + angle;
  }
  return ChangeForVector(plane.PlVecY, plane.PlVecZ) + angle;
}

bool ConvertFrames(Conversion& run) {
  const auto& frames = run.Source.Rows<T_CNFR_D>();
  if (frames.Empty()) {
    return true;
  }
  // Meant so: set for every model with frames, though their angles are carried over. Mirrored
  // sections are not, and the engineer has to look at both.
  run.Warnings.bFrameLocalAxesLost = true;
  const FramePropertyLookup properties(run);
  auto& beams = run.Target.Table<T_NGT_FRAM_D>();
  beams.Reserve(frames.Count());
  bool allFound = true;
  for (const auto [key, frame] : frames.Entries()) {
    const FrameProperty property = properties.Find(key);
    allFound = allFound && property.iMAT != FrameProperty::kNotFound;
    run.Elements.NoteLabel(frame.Frame);
    beams.Insert(key, {.Label = frame.Frame,
                       .Type = "BEAM",
                       .iMAT = property.iMAT,
                       .iPRO = property.iPRO,
                       .Angle = AngleOfFrame(run.Source, frame.Frame),
                       .NodeI = frame.JointI,
                       .NodeJ = frame.JointJ});
  }
  if (!allFound) {
    TakeFromNeighbours(frames, beams);
  }
  return true;
}

// ---- Output ----

namespace {

/// Notes that an end of a frame is a joint that is not there. `iNode` is the number that the output
/// has for it.
void NoteEnd(Conversion& run, std::uint32_t key, Text joint, std::int32_t iNode) {
  const bool isThere =
      run.Target.NodeLabelsNumeric ? HasJoint(run.Source, joint, iNode) : iNode != 0;
  if (!isThere) {
    run.Accounts.Note<T_CNFR_D>(key, "end-or-corner-unknown");
  }
}

}  // namespace

void WriteFrameElements(Conversion& run, LineWriter& out) {
  const auto& frames = run.Target.Table<T_NGT_FRAM_D>();
  if (frames.Empty()) {
    return;
  }
  if (run.Warnings.bFrameLocalAxesLost) {
    run.Shown.Show("IDS_S2KV8_FRAM_LclAx_Not_Convert");
  }
  for (std::uint32_t key = 1; key <= frames.Count(); ++key) {
    const T_NGT_FRAM_D frame = RecordOr(frames.Find(key), T_NGT_FRAM_D{});
    const std::int32_t iEl = run.Elements.NumberAt(key, frame.Label, kFrameFamily);
    const std::int32_t iN1 = run.Target.NodeNumber(frame.NodeI);
    const std::int32_t iN2 = run.Target.NodeNumber(frame.NodeJ);
    out.WriteLine("\t%d, %5s, %5d, %5d, %5d, %5d, %5g", iEl, frame.Type, frame.iMAT, frame.iPRO,
                  iN1, iN2, frame.Angle);
    if (run.Accounts.IsKept()) {
      NoteEnd(run, key, frame.NodeI, iN1);
      NoteEnd(run, key, frame.NodeJ, iN2);
    }
    if (run.Elements.Renumbered()) {
      out.WriteLine("\t\t;Frame=%s\n", frame.Label);
    } else {
      out.WriteLine("\n");
    }
  }
}

// ---- Account ----

std::optional<CKeyedTable<T_CNFR_D>::Entry> FrameWith(CModel& model, Text frame,
                                                      std::uint32_t likelyKey) {
  const auto& frames = model.Rows<T_CNFR_D>();
  const T_CNFR_D* const likely = frames.Find(likelyKey);
  if (likely != nullptr && likely->Frame == frame) {
    return CKeyedTable<T_CNFR_D>::Entry{likelyKey, *likely};
  }
  return frames.FirstWith<&T_CNFR_D::Frame>(frame);
}

std::optional<Why> WhyNoElement(Conversion& run, Text frame, std::uint32_t likelyKey) {
  if (FrameWith(run.Source, frame, likelyKey)) {
    return std::nullopt;
  }
  return run.Elements.Renumbered() ? Why("element-taken-from-another") : Why("element-not-there");
}

namespace {

void NoteFramesWithoutSection(Conversion& run) {
  const auto& assignments = run.Source.Rows<T_FRSC_D>();
  for (const auto [key, frame] : run.Source.Rows<T_CNFR_D>().Entries()) {
    if (assignments.Find(key) == nullptr) {
      run.Accounts.Note<T_CNFR_D>(key, "section-assignment-missing");
    }
  }
}

/// Notes an assignment whose section is not that of its frame's element.
void NoteAssignment(Conversion& run, std::uint32_t key, const T_FRSC_D& row) {
  const auto frame = FrameWith(run.Source, row.Frame, key);
  if (!frame) {
    const bool isPaired = run.Source.Rows<T_CNFR_D>().Find(key) != nullptr;
    run.Accounts.Note<T_FRSC_D>(key,
                                isPaired ? Why("section-of-another-frame") : Why("frame-unknown"));
    return;
  }
  const T_FRSC_D* const paired = run.Source.Rows<T_FRSC_D>().Find(frame->Key);
  if (paired == nullptr || paired->AnalSect != row.AnalSect) {
    run.Accounts.Note<T_FRSC_D>(key, "section-of-another-frame");
  } else if (!run.Source.Rows<T_FRSG_D>().FirstWith<&T_FRSG_D::SectionName>(row.AnalSect)) {
    run.Accounts.Note<T_FRSC_D>(key, "frame-section-unknown");
  }
}

void NoteTypicalAxes(Conversion& run, std::uint32_t key, const T_FRTP_D& row) {
  if (!FrameWith(run.Source, row.Frame, key)) {
    run.Accounts.Note<T_FRTP_D>(key, "frame-unknown");
    return;
  }
  if (run.Source.Rows<T_FRTP_D>().FirstWith<&T_FRTP_D::Frame>(row.Frame)->Key != key) {
    run.Accounts.Note<T_FRTP_D>(key, "row-of-same-name");
    return;
  }
  if (row.AdvanceAxes && !run.Source.Rows<T_FRAV_D>().FirstWith<&T_FRAV_D::Frame>(row.Frame)) {
    run.Accounts.Note<T_FRTP_D>(key, "advanced-axes-missing");
  }
}

bool RunsAlongX(CModel& model, const T_CNFR_D& frame) {
  const Point from = GlobalCoordinates(model, frame.JointI);
  const Point to = GlobalCoordinates(model, frame.JointJ);
  return to.X > from.X && to.Y == from.Y && to.Z == from.Z;
}

/// True when the angle that AngleInPlane gives is right for a frame along X.
bool IsRightAlongX(const T_FRAV_D& axes) {
  if (axes.PlOption1 != kCoordinateDirection) {
    return axes.LocalPlane == "12";
  }
  constexpr std::array<Text, 4> kAcrossX = {"Y", "-Y", "Z", "-Z"};
  const Text direction = DirectionAcrossX(axes.CoordDir1, axes.CoordDir2);
  return (axes.LocalPlane == "12" || axes.LocalPlane == "13") &&
         std::ranges::find(kAcrossX, direction) != kAcrossX.end();
}

void NoteAdvancedAxes(Conversion& run, std::uint32_t key, const T_FRAV_D& row) {
  const auto frame = FrameWith(run.Source, row.Frame, key);
  const auto typical = run.Source.Rows<T_FRTP_D>().FirstWith<&T_FRTP_D::Frame>(row.Frame);
  if (!frame) {
    run.Accounts.Note<T_FRAV_D>(key, "frame-unknown");
  } else if (run.Source.Rows<T_FRAV_D>().FirstWith<&T_FRAV_D::Frame>(row.Frame)->Key != key) {
    run.Accounts.Note<T_FRAV_D>(key, "row-of-same-name");
  } else if (!typical) {
    run.Accounts.Note<T_FRAV_D>(key, "advanced-axes-without-typical");
  } else if (!typical->Value.AdvanceAxes) {
    run.Accounts.Note<T_FRAV_D>(key, "switched-off");
  } else if (!IsRightAlongX(row) || !RunsAlongX(run.Source, frame->Value)) {
    run.Accounts.Note<T_FRAV_D>(key, "advanced-axes-as-along-x");
  }
}

/// Calls `note` for all rows of a table.
template <class Row>
void ForEachRow(Conversion& run, void (*note)(Conversion& run, std::uint32_t key, const Row& row)) {
  for (const auto [key, row] : run.Source.Rows<Row>().Entries()) {
    note(run, key, row);
  }
}

}  // namespace

void CloseFrames(Conversion& run) {
  NoteSharedNames<&T_CNFR_D::Frame, T_CNFR_D>(run);
  NoteFramesWithoutSection(run);
  ForEachRow<T_FRSC_D>(run, NoteAssignment);
  ForEachRow<T_FRTP_D>(run, NoteTypicalAxes);
  ForEachRow<T_FRAV_D>(run, NoteAdvancedAxes);
}

}  // namespace s2k2ngt
