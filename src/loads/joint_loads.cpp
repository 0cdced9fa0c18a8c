#include "loads/joint_loads.h"

#include "joints/local_axes.h"
#include "joints/nodes.h"
#include "loads/load_references.h"
#include "target/load_frame.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

constexpr Text kGlobal = "GLOBAL";
constexpr Text kLocal = "Local";

/// True when three components are shorter than they were before they were turned: one of them was
/// near zero and has become 0. What cosines add and take is less.
bool AreShortened(const SixComponents& before, const SixComponents& after, std::size_t first) {
  const auto squaredLength = [first](const SixComponents& v) {
    return v[first] * v[first] + v[first + 1] * v[first + 1] + v[first + 2] * v[first + 2];
  };
  constexpr double kRounding = 1e-9;
  return squaredLength(after) < squaredLength(before) * (1.0 - kRounding);
}

/// Notes what a row loses on the way to the axes of the target.
template <class Row>
void NoteTurn(Conversion& run, std::uint32_t key, const Row& row, const SixComponents& before,
              const SixComponents& after) {
  if (!row.CoordSys.empty() && row.CoordSys != kGlobal && row.CoordSys != kLocal) {
    run.Accounts.Note<Row>(key, "coordinate-system-ignored");
  }
  if (AreShortened(before, after, 0) || AreShortened(before, after, 3)) {
    run.Accounts.Note<Row>(key, "component-near-zero");
  }
}

}  // namespace

bool ConvertJointForces(Conversion& run) {
  ReserveForRows<T_NGT_NDLD_D, T_JTLF_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_JTLF_D>().Walk()) {
    const SixComponents stated = {row.F1, row.F2, row.F3, row.M1, row.M2, row.M3};
    // Any other system is taken as global.
    const SixComponents f =
        row.CoordSys == kLocal ? TurnToGlobal(run.Target, row.Joint, stated) : stated;
    if (run.Accounts.IsKept()) {
      NoteTurn(run, key, row, stated, f);
    }
    run.Target.Add(key, T_NGT_NDLD_D{row.Joint, row.LoadCase, f[0], f[1], f[2], f[3], f[4], f[5]});
  }
  return true;
}

bool ConvertGroundDisplacements(Conversion& run) {
  // A value at the tolerance counts here, unlike elsewhere.
  const auto flag = [](double value) { return std::abs(value) >= kTolerance ? '1' : '0'; };
  ReserveForRows<T_NGT_DISP_D, T_JTGD_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_JTGD_D>().Walk()) {
    const SixComponents stated = {row.U1, row.U2, row.U3, row.R1, row.R2, row.R3};
    // The target displaces a support along its node's axes, the source by this name along the
    // global ones.
    const SixComponents d =
        row.CoordSys == kGlobal ? TurnToLocal(run.Target, row.Joint, stated) : stated;
    if (run.Accounts.IsKept()) {
      NoteTurn(run, key, row, stated, d);
    }
    run.Target.Add(
        key, T_NGT_DISP_D{row.Joint,
                          {flag(d[0]), flag(d[1]), flag(d[2]), flag(d[3]), flag(d[4]), flag(d[5])},
                          row.LoadCase,
                          d[0],
                          d[1],
                          d[2],
                          d[3],
                          d[4],
                          d[5]});
  }
  return true;
}

// ---- Output ----

void WriteNodalLoads(Conversion& run, Text loadCase, LineWriter& out) {
  WriteLoadsInWalkOrder<&T_NGT_NDLD_D::LoadCase>(
      out, loadCase,
      "*CONLOAD    ; Nodal Loads\n"
      ";NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n",
      run.Target.Table<T_NGT_NDLD_D>(), [&](const T_NGT_NDLD_D& load) {
        out.WriteLine("\t%d, %5g, %5g, %5g, %5g, %5g, %5g,\n", run.Target.NodeNumber(load.Joint),
                      load.FX, load.FY, load.FZ, load.MX, load.MY, load.MZ);
      });
}

void WriteSupportDisplacements(Conversion& run, Text loadCase, LineWriter& out) {
  WriteLoadsInWalkOrder<&T_NGT_DISP_D::LoadCase>(
      out, loadCase,
      "*SPDISP    ; Specified Displacement of Supports\n"
      "; NODE_LIST, FLAG, Dx, Dy, Dz, Rx, Ry, Rz, GROUP\n",
      run.Target.Table<T_NGT_DISP_D>(), [&](const T_NGT_DISP_D& load) {
        out.WriteLine("\t%d, %5s, %5g, %5g, %5g, %5g, %5g, %5g,\n",
                      run.Target.NodeNumber(load.Joint), Text(load.FLAG.data(), load.FLAG.size()),
                      load.Dx, load.Dy, load.Dz, load.Rx, load.Ry, load.Rz);
      });
}

// ---- Account ----

namespace {

template <class Row>
void CloseRows(Conversion& run) {
  WrittenLoads written(run.Target);
  for (const auto [key, row] : run.Source.Rows<Row>().Entries()) {
    if (!written.HaveOrNote<Row>(run.Accounts, key, row.LoadCase)) {
      continue;
    }
    if (const std::optional<Why> why = WhyNotJoint(run, row.Joint)) {
      run.Accounts.Note<Row>(key, *why);
    }
  }
}

}  // namespace

void CloseJointLoads(Conversion& run) {
  CloseRows<T_JTLF_D>(run);
  CloseRows<T_JTGD_D>(run);
}

}  // namespace s2k2ngt
