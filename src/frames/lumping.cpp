#include "frames/lumping.h"

#include "frames/elements.h"
#include "joints/masses.h"
#include "joints/supports.h"

#include <string>

namespace s2k2ngt {

// ---- Conversion ----

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
    T_NGT_NSPR_D spring{.NODE = run.Target.Texts().Keep(joints)};
    // Axes 2 and 3 change places, as the target's z is the source's 2. Those of areas do not.
    if (row.Dir == "1") {
      spring.SDx = stiffness;
    } else if (row.Dir == "2") {
      spring.SDz = stiffness;
    } else if (row.Dir == "3") {
      spring.SDy = stiffness;
    }
    run.Target.Table<T_NGT_NSPR_D>().Append(spring);
  }
  return true;
}

bool ConvertFrameMasses(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<T_FRAD_D>().Walk()) {
    const T_CNFR_D frame = ConnectivityOrLast(run.Source, row.Frame);
    const double mass = frame.Length * row.MassPerLen * 0.5;
    for (const Text joint : {frame.JointI, frame.JointJ}) {
      AddMass(run.Target, {.Label = joint, .mX = mass, .mY = mass, .mZ = mass});
    }
  }
  return true;
}

}  // namespace s2k2ngt
