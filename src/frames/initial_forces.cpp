#include "frames/initial_forces.h"

#include "frames/elements.h"
#include "target/load_frame.h"

#include <array>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

Text TargetDirection(Text direction) {
  constexpr std::array<std::pair<Text, Text>, 4> kDirections = {
      {{"Local 1", "AXIAL"}, {"X Proj", "GX"}, {"Y Proj", "GY"}, {"Z Proj", "GZ"}}};
  for (const auto& [source, target] : kDirections) {
    if (source == direction) {
      return target;
    }
  }
  return {};
}

}  // namespace

bool ConvertInitialForces(Conversion& run) {
  ReserveForRows<T_NGT_FRPD_D, T_FRPD_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_FRPD_D>().Walk()) {
    const Text direction = TargetDirection(row.Direction);
    if (direction.empty()) {
      run.Accounts.Note<T_FRPD_D>(key, "initial-force-direction-unknown");
    }
    run.Target.Add(key, T_NGT_FRPD_D{row.Frame, direction, row.Force});
  }
  return true;
}

const T_FRLM_D* FindMultiplier(const CKeyedTable<T_FRLM_D>& multipliers, std::uint32_t key,
                               const T_FRPT_D& tendon) {
  const T_FRLM_D* const paired = multipliers.Find(key);
  return paired != nullptr && paired->Frame == tendon.Frame ? paired : nullptr;
}

bool ConvertPrestress(Conversion& run) {
  const auto& multipliers = run.Source.Rows<T_FRLM_D>();
  // Meant so: a tendon without a multiplier takes that of the tendon before it in the walk. Its
  // load case has no name.
  double multiplier = 1.0;
  ReserveForRows<T_NGT_FRPT_D, T_FRPT_D>(run);
  for (const auto [key, tendon] : run.Source.Rows<T_FRPT_D>().Walk()) {
    const T_FRLM_D* const paired = FindMultiplier(multipliers, key, tendon);
    Text loadCase;
    if (paired != nullptr) {
      loadCase = paired->LoadCase;
      multiplier = paired->Multiplier;
    }
    run.Target.Add(key, T_NGT_FRPT_D{.Label = tendon.Frame,
                                     .LoadCase = loadCase,
                                     .TENS = tendon.Tension * multiplier,
                                     .DI = tendon.DrapeI,
                                     // the middle alone changes its sign
                                     .DM = -tendon.DrapeCenter,
                                     .DJ = tendon.DrapeJ});
  }
  return true;
}

// ---- Output ----

bool WriteInitialForces(Conversion& run, LineWriter& out) {
  const auto& forces = run.Target.Table<T_NGT_FRPD_D>();
  if (forces.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*INIFORCE    ; Initial Forces for Geometric Stiffness");
  out.WriteLine("; ELEM_LIST, DIR, FORCE\n");
  ElementReferences elements(run.Elements);
  for (std::uint32_t key = 1; key <= forces.Count(); ++key) {
    const T_NGT_FRPD_D force = RecordOr(forces.Find(key), T_NGT_FRPD_D{});
    out.WriteLine("\t%d, %5s, %5g\n", elements.NumberOf(force.Label, kFrameFamily), force.DIR,
                  force.FORCE);
  }
  out.WriteLine("\n");
  return true;
}

void WritePrestress(Conversion& run, Text loadCase, LineWriter& out) {
  ElementReferences elements(run.Elements);
  WriteLoadsByKey<&T_NGT_FRPT_D::LoadCase>(
      out, loadCase,
      "*PRESTRESS    ; Prestress Beam Loads\n"
      "; ELEM_LIST, LTYPE, TENS, DI, DM, DJ, GROUP\n",
      run.Target.Table<T_NGT_FRPT_D>(), [&](const T_NGT_FRPT_D& load) {
        out.WriteLine("\t%d, %5s, %5g, %5g, %5g, %5g,\n",
                      elements.NumberOf(load.Label, kFrameFamily), load.LTYPE, load.TENS, load.DI,
                      load.DM, load.DJ);
      });
}

// ---- Account ----

void CloseInitialForces(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<T_FRPD_D>().Entries()) {
    if (const auto why = WhyNoElement(run, row.Frame, key)) {
      run.Accounts.Note<T_FRPD_D>(key, *why);
    }
  }
}

}  // namespace s2k2ngt
