#include "frames/lumping.h"

#include "frames/elements.h"
#include "joints/masses.h"
#include "joints/supports.h"

#include <cstdint>
#include <string>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// Notes a row of what is spread along a frame when another frame is taken for its own, or when the
/// frame has no length to spread it along.
template <class Row>
void NoteFrame(Conversion& run, std::uint32_t key, const Row& row, const T_CNFR_D& frame) {
  if (run.Source.Rows<T_CNFR_D>().Empty()) {
    run.Accounts.Note<Row>(key, "frame-unknown");
    return;
  }
  if (frame.Frame != row.Frame) {
    run.Accounts.Note<Row>(key, "last-frame-for-unknown");
  }
  if (frame.Length == 0.0) {
    run.Accounts.Note<Row>(key, "spread-along-no-length");
  }
}

}  // namespace

bool ConvertFrameSprings(Conversion& run) {
  const auto& rows = run.Source.Rows<T_FRSA_D>();
  if (!rows.Empty()) {
    run.Warnings.bFrameSpringToNodes = true;
  }
  for (const auto [key, row] : rows.Walk()) {
    const T_CNFR_D frame = ConnectivityOrLast(run.Source, row.Frame);
    const double stiffness = frame.Length * row.Stiffness * 0.5;
    std::string joints(frame.JointI);
    joints.append("  ").append(frame.JointJ);
    NoteFrame(run, key, row, frame);
    run.Accounts.Note<T_FRSA_D>(key, run.Target.NodeLabelsNumeric ? Why("frame-spring-halved")
                                                                  : Why("frame-spring-at-no-node"));
    T_NGT_NSPR_D spring{.NODE = run.Target.Texts().Keep(joints)};
    // Axes 2 and 3 change places, as the target's z is the source's 2. Those of areas do not.
    if (row.Dir == "1") {
      spring.SDx = stiffness;
    } else if (row.Dir == "2") {
      spring.SDz = stiffness;
    } else if (row.Dir == "3") {
      spring.SDy = stiffness;
    } else {
      run.Accounts.Note<T_FRSA_D>(key, "frame-spring-direction-unknown");
    }
    run.Target.Table<T_NGT_NSPR_D>().Append(spring);
  }
  return true;
}

bool ConvertFrameMasses(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<T_FRAD_D>().Walk()) {
    const T_CNFR_D frame = ConnectivityOrLast(run.Source, row.Frame);
    const double mass = frame.Length * row.MassPerLen * 0.5;
    NoteFrame(run, key, row, frame);
    for (const Text joint : {frame.JointI, frame.JointJ}) {
      AddMass(run.Target, {.Label = joint, .mX = mass, .mY = mass, .mZ = mass});
    }
  }
  return true;
}

}  // namespace s2k2ngt
