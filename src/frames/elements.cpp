#include "frames/elements.h"

#include "frames/materials.h"
#include "frames/nonprismatic_materials.h"
#include "frames/sections.h"
#include "joints/nodes.h"

#include <array>
#include <cmath>

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

/// Section and material of a frame.
struct FrameProperty {
  std::int32_t iPRO = 0;
  std::int32_t iMAT = 0;
};

/// Looks up the section and material of frame after frame.
class FramePropertyLookup {
 public:
  explicit FramePropertyLookup(CModel& model) : m_Model(model), m_NonprismaticMaterials(model) {}

  /// Sets what is found for the connectivity row of this key. Meant so: what is not found keeps the
  /// value of the frame looked up before, so that a frame without a known section shares that of
  /// its neighbour in the walk.
  void Find(std::uint32_t frameKey, FrameProperty& property) const {
    // Assignments and frames are paired by position: the two tables list the frames in one order.
    const auto& assignments = m_Model.Rows<T_FRSC_D>();
    if (assignments.Empty()) {
      return;
    }
    const T_FRSC_D assignment = RecordOr(assignments.Find(frameKey), T_FRSC_D{});
    const auto section =
        m_Model.Rows<T_FRSG_D>().FirstWith<&T_FRSG_D::SectionName>(assignment.AnalSect);
    if (!section) {
      return;
    }
    property.iPRO = static_cast<std::int32_t>(section->Key);
    const auto material = section->Value.Shape == kNonprismatic
                              ? m_NonprismaticMaterials.Of(assignment.AnalSect)
                              : MaterialOrLastKey(m_Model, section->Value.Material);
    property.iMAT = material.value_or(property.iMAT);
  }

 private:
  CModel& m_Model;
  NonprismaticMaterials m_NonprismaticMaterials;
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

/// The angle of a plane vector in the global YZ plane, which every frame is taken to be seen in.
double ChangeForVector(double y, double z) {
  // Ten digits of pi and no more, so that outputs stay comparable to the last digit.
  constexpr double kPi = 3.1415926535;
  return std::atan2(z, y) * 180 / kPi - 90;
}

}  // namespace

double AngleInPlane(CModel& model, const AdvancedPlane& plane, double angle) {
  if (plane.PlOption1 == "Coord Dir") {
    const bool firstIsAlongX = plane.CoordDir1 == "X" || plane.CoordDir1 == "-X";
    return AngleTowards(plane.LocalPlane, firstIsAlongX ? plane.CoordDir2 : plane.CoordDir1, angle);
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
  const FramePropertyLookup properties(run.Source);
  FrameProperty property;  // kept from frame to frame
  for (const auto [key, frame] : frames.Walk()) {
    properties.Find(key, property);
    run.Elements.NoteLabel(frame.Frame);
    run.Target.Add(key, T_NGT_FRAM_D{.Label = frame.Frame,
                                     .Type = "BEAM",
                                     .iMAT = property.iMAT,
                                     .iPRO = property.iPRO,
                                     .Angle = AngleOfFrame(run.Source, frame.Frame),
                                     .NodeI = frame.JointI,
                                     .NodeJ = frame.JointJ});
  }
  return true;
}

// ---- Output ----

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
    out.WriteLine("\t%d, %5s, %5d, %5d, %5d, %5d, %5g", iEl, frame.Type, frame.iMAT, frame.iPRO,
                  run.Target.NodeNumber(frame.NodeI), run.Target.NodeNumber(frame.NodeJ),
                  frame.Angle);
    if (run.Elements.Renumbered()) {
      out.WriteLine("\t\t;Frame=%s\n", frame.Label);
    } else {
      out.WriteLine("\n");
    }
  }
}

}  // namespace s2k2ngt
