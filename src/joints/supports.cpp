#include "joints/supports.h"

#include "account/shared_names.h"
#include "joints/local_axes.h"
#include "joints/nodes.h"

#include <string>
#include <tuple>

namespace s2k2ngt {

// ---- Conversion ----

bool ConvertRestraints(Conversion& run) {
  const auto digit = [](bool restrained) { return restrained ? '1' : '0'; };
  ReserveForRows<T_NGT_BNDR_D, T_JTRA_D>(run);
  for (const auto [key, joint] : run.Source.Rows<T_JTRA_D>().Walk()) {
    run.Target.Add(key, T_NGT_BNDR_D{joint.Joint,
                                     {digit(joint.U1), digit(joint.U2), digit(joint.U3),
                                      digit(joint.R1), digit(joint.R2), digit(joint.R3)}});
  }
  return true;
}

namespace {

constexpr Text kGlobal = "GLOBAL";

void NoteMatrix(Conversion& run, std::uint32_t key, const T_JTSC_D& row) {
  if (row.U2 != row.OwnU2 || row.U3 != row.OwnU3 || row.R1 != row.OwnR1 || row.R2 != row.OwnR2 ||
      row.R3 != row.OwnR3) {
    run.Accounts.Note<T_JTSC_D>(key, "coupled-spring-diagonal");
  }
}

}  // namespace

bool ConvertUncoupledSprings(Conversion& run) {
  auto& springs = run.Target.Table<T_NGT_NSPR_D>();
  ReserveForRows<T_NGT_NSPR_D, T_JTUC_D>(run);
  for (const auto [key, joint] : run.Source.Rows<T_JTUC_D>().Walk()) {
    const SixComponents stated = {joint.U1, joint.U2, joint.U3, joint.R1, joint.R2, joint.R3};
    SixComponents k = stated;
    if (joint.CoordSys == kGlobal) {
      k = TurnToLocal(run.Target, joint.Joint, stated);
      if (run.Accounts.IsKept() && k != stated) {
        run.Accounts.Note<T_JTUC_D>(key, "turned-as-vector");
      }
    }
    springs.Append({joint.Joint, k[0], k[1], k[2], k[3], k[4], k[5]});
  }
  return true;
}

bool ConvertCoupledSprings(Conversion& run) {
  ReserveForRows<T_NGT_GSPR_D, T_JTSC_D>(run);
  for (const auto [key, joint] : run.Source.Rows<T_JTSC_D>().Walk()) {
    if (joint.CoordSys == kGlobal && HasAxesMatrix(run.Target, joint.Joint)) {
      run.Warnings.bCoupledSpringLost = true;
      run.Accounts.Note<T_JTSC_D>(key, "coupled-spring-at-turned-joint");
      continue;
    }
    NoteMatrix(run, key, joint);
    constexpr double kNotRead = 0.0;
    run.Target.Add(
        key, T_NGT_GSPR_D{.NODE = joint.Joint,
                          // The source row's number, also when rows before it are lost.
                          .TYPE_NAME = run.Target.Texts().Keep("GSPR" + std::to_string(key)),
                          .K = {joint.U1,                                                //
                                joint.U1U2, joint.U2,                                    //
                                joint.U1U3, joint.U2U3, joint.U3,                        //
                                joint.U1R1, joint.U2R1, joint.U3R1, joint.R1,            //
                                joint.U1R2, joint.U2R2, joint.U3R2, kNotRead, joint.R2,  //
                                joint.U1R3, joint.U2R3, joint.U3R3, kNotRead, kNotRead, joint.R3}});
  }
  return true;
}

// ---- Output ----

bool WriteSupports(Conversion& run, LineWriter& out) {
  const auto& supports = run.Target.Table<T_NGT_BNDR_D>();
  if (supports.Empty()) {
    return true;
  }
  out.WriteLine(
      "*CONSTRAINT    ; Supports\n\n");  // an empty line follows it, in this section alone
  out.WriteLine("; NODE_LIST, CONST(Dx,Dy,Dz,Rx,Ry,Rz), GROUP\n");
  for (const auto [key, support] : supports.Walk()) {
    out.WriteLine("\t%d, %5s,\n", run.Target.NodeNumber(support.NODE),
                  Text(support.CONST.data(), support.CONST.size()));
  }
  out.WriteLine("\n");
  return true;
}

bool WritePointSprings(Conversion& run, LineWriter& out) {
  const auto& springs = run.Target.Table<T_NGT_NSPR_D>();
  if (springs.Empty()) {
    return true;
  }
  // The first is about general springs. It is shown here, so that a model without a point spring
  // loses them without a word, and this is meant.
  if (run.Warnings.bCoupledSpringLost) {
    run.Shown.Show("IDS_S2KV8_NODE_NSPR_Not_Convert");
  }
  if (run.Warnings.bFrameSpringToNodes) {
    run.Shown.Show("IDS_S2KV8_FRAME_2_NSPR");
  }
  if (run.Warnings.bAreaSpringToNodes) {
    run.Shown.Show("IDS_S2KV8_PLATE_2_NSPR");
  }
  if (run.Warnings.bAreaSpringLost) {
    run.Shown.Show("IDS_S2KV8_PLATE_NSPR_Not_Convert");
  }
  out.WriteLine("%s\n", "*SPRING    ; Point Spring Supports");
  out.WriteLine("; NODE_LIST, SDx, SDy, SDz, SRx, SRy,SRz, GROUP\n");
  for (const auto [key, spring] : springs.Walk()) {
    out.WriteLine("\t%d, %5g, %5g, %5g, %5g, %5g, %5g,\n", run.Target.NodeNumber(spring.NODE),
                  spring.SDx, spring.SDy, spring.SDz, spring.SRx, spring.SRy, spring.SRz);
  }
  out.WriteLine("\n");
  return true;
}

bool WriteGeneralSprings(Conversion& run, LineWriter& out) {
  const auto& springs = run.Target.Table<T_NGT_GSPR_D>();
  if (springs.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*GSPRING    ; General Spring Supports");
  out.WriteLine("; NODE_LIST, TYPE-NAME, GROUP\n");
  for (const auto [key, spring] : springs.Walk()) {
    out.WriteLine("\t%d, %5s,\n", run.Target.NodeNumber(spring.NODE), spring.TYPE_NAME);
  }
  out.WriteLine("\n");
  out.WriteLine("%s\n", "*GSPRTYPE    ; Define General Spring Supports");
  out.WriteLine("; NAME, SDx1, SDy1, SDy2, SDz1, SDz2, SDz3, ..., SRz1, ..., SRz6\n");
  for (const auto [key, spring] : springs.Walk()) {
    const Text name = spring.TYPE_NAME;
    // The line has a place more than the matrix has values; it is 0.
    std::apply(
        [&](auto... k) {
          out.WriteLine(
              "\t%s, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g,"
              "%5g, %5g, %5g, %5g, %5g, %5g, %5g\n",
              name, k..., 0.0);
        },
        spring.K);
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

void CloseSupports(Conversion& run) {
  NoteSharedNames<&T_JTRA_D::Joint, T_JTRA_D>(run);
  NoteUnknownJoints<T_JTRA_D>(run);
  NoteUnknownJoints<T_JTUC_D>(run);
  NoteUnknownJoints<T_JTSC_D>(run);
  NoteUserSystems<T_JTUC_D>(run);
  NoteUserSystems<T_JTSC_D>(run);
}

}  // namespace s2k2ngt
