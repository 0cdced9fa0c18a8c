#include "joints/masses.h"

#include "joints/local_axes.h"
#include "joints/nodes.h"

#include <cstdint>

namespace s2k2ngt {

// ---- Conversion ----

bool ConvertJointMasses(Conversion& run) {
  for (const auto [key, joint] : run.Source.Rows<T_JTMA_D>().Walk()) {
    const SixComponents stated = {joint.Mass1, joint.Mass2, joint.Mass3,
                                  joint.MMI1,  joint.MMI2,  joint.MMI3};
    SixComponents mass = stated;
    if (joint.CoordSys == "Local") {
      mass = TurnToGlobal(run.Target, joint.Joint, stated);
      if (run.Accounts.IsKept() && mass != stated) {
        run.Accounts.Note<T_JTMA_D>(key, "turned-as-vector");
      }
    }
    AddMass(run.Target, {joint.Joint, mass[0], mass[1], mass[2], mass[3], mass[4], mass[5]});
  }
  return true;
}

void AddMass(CNgtModel& target, const T_NGT_NDMS_D& mass) {
  auto& masses = target.Table<T_NGT_NDMS_D>();
  const auto found = masses.FirstWith<&T_NGT_NDMS_D::Label>(mass.Label);
  if (!found) {
    masses.Append(mass);
    return;
  }
  T_NGT_NDMS_D& sum = *masses.FindToChange(found->Key);
  sum.mX += mass.mX;
  sum.mY += mass.mY;
  sum.mZ += mass.mZ;
  sum.rmX += mass.rmX;
  sum.rmY += mass.rmY;
  sum.rmZ += mass.rmZ;
}

// ---- Output ----

bool WriteMasses(Conversion& run, LineWriter& out) {
  const auto& masses = run.Target.Table<T_NGT_NDMS_D>();
  if (masses.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*NODALMASS    ; Nodal Masses");
  out.WriteLine("; NODE_LIST, mX, mY, mZ, rmX, rmY, rmZ\n");
  for (std::uint32_t key = 1; key <= masses.Count(); ++key) {
    const T_NGT_NDMS_D mass = RecordOr(masses.Find(key), T_NGT_NDMS_D{});
    out.WriteLine("\t%d, %5g, %5g, %5g, %5g, %5g, %5g\n", run.Target.NodeNumber(mass.Label),
                  mass.mX, mass.mY, mass.mZ, mass.rmX, mass.rmY, mass.rmZ);
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

void CloseMasses(Conversion& run) {
  NoteUnknownJoints<T_JTMA_D>(run);
  NoteUserSystems<T_JTMA_D>(run);
}

}  // namespace s2k2ngt
