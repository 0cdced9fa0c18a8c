#include "loads/load_cases.h"

#include "loads/wind_seismic.h"
#include "target/load_frame.h"

namespace s2k2ngt {

// ---- Conversion ----

namespace {

constexpr Text kNoAutoLoad = "None";

/// Sets type and bAuto of a load case from the load of its name, if there is one. A load of a code
/// that is not converted is automatic all the same, and so is one that does not state its
/// AutoLoad=. True when parameters of wind or earthquake came of it.
bool MapLoadType(Conversion& run, T_NGT_STLC_D& loadCase) {
  const auto found = run.Source.Rows<T_LDCS_D>().FirstWith<&T_LDCS_D::LoadCase>(loadCase.LCNAME);
  if (!found) {
    return false;
  }
  const T_LDCS_D& load = found->Value;
  const bool isAutomatic = load.AutoLoad != kNoAutoLoad;
  if (load.DesignType == "DEAD") {
    loadCase.LCTYPE = "D";
  } else if (load.DesignType == "LIVE") {
    loadCase.LCTYPE = "L";
  } else if (load.DesignType == "WIND") {
    loadCase.LCTYPE = kWindType;
    loadCase.bAuto = isAutomatic;
    return isAutomatic && ConvertAutoWind(run, loadCase.LCNAME, load.AutoLoad);
  } else if (load.DesignType == "SNOW") {
    loadCase.LCTYPE = "S";
  } else if (load.DesignType == "QUAKE") {
    loadCase.LCTYPE = kSeismicType;
    loadCase.bAuto = isAutomatic;
    return isAutomatic && ConvertAutoSeismic(run, loadCase.LCNAME, load.AutoLoad);
  } else {
    loadCase.LCTYPE = "USER";
  }
  return false;
}

}  // namespace

bool ConvertStaticCase(Conversion& run, Text analysisCase) {
  const auto& rows = run.Source.Rows<T_STC1_D>();
  auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  loadCases.Reserve(rows.Count());
  bool differs = false;
  for (const std::uint32_t position : rows.AllWith<&T_STC1_D::Case>(analysisCase)) {
    const auto [key, row] = rows.AtWalk(position);
    T_NGT_STLC_D loadCase{.LCNAME = row.LoadName, .LCTYPE = {}};
    differs = MapLoadType(run, loadCase) || differs || loadCases.Find(key) == nullptr;
    loadCases.Insert(key, loadCase);
  }
  return differs;
}

bool ConvertSelfWeights(Conversion& run) {
  for (const auto [key, load] : run.Source.Rows<T_LDCS_D>().Walk()) {
    if (!IsAboveTolerance(load.SelfWtMult)) {
      continue;
    }
    // Shown for each such load, whether or not a load case comes of it.
    run.Shown.Show("IDS_S2KV8_FRAM_GRAV_Not_Convert");
    // A positive multiplier of the source pulls downwards.
    run.Target.Table<T_NGT_FRSW_D>().Append({.LoadCase = load.LoadCase, .Z = -load.SelfWtMult});
  }
  return true;
}

// ---- Output ----

void WriteLoadCases(Conversion& run, LineWriter& out) {
  if (run.Warnings.bLoadCaseLost) {
    run.Shown.Show("IDS_S2KV8_STLC_Not_Convert");
  }
  out.WriteLine("%s\n", "*STLDCASE    ; Static Load Cases");
  out.WriteLine("; LCNAME, LCTYPE, DESC\n");
  for (const auto [key, loadCase] : run.Target.Table<T_NGT_STLC_D>().Walk()) {
    out.WriteLine("\t%s, %5s, \n", loadCase.LCNAME, loadCase.LCTYPE);
  }
  out.WriteLine("\n");
}

void WriteSelfWeights(Conversion& run, Text loadCase, LineWriter& out) {
  // The command has no line of its own: its name stands in each line of data.
  WriteLoadsInWalkOrder<&T_NGT_FRSW_D::LoadCase>(
      out, loadCase, "; *SELFWEIGHT, X, Y, Z, GROUP\n", run.Target.Table<T_NGT_FRSW_D>(),
      [&](const T_NGT_FRSW_D& weight) {
        out.WriteLine("\t*SELFWEIGHT, %5g, %5g, %5g,\n", weight.X, weight.Y, weight.Z);
      });
}

// ---- Account ----

namespace {

/// Notes what the load case of a load does not say of it.
void NoteLoad(Conversion& run, std::uint32_t key, const T_LDCS_D& load, Text LCTYPE) {
  const auto first = run.Source.Rows<T_LDCS_D>().FirstWith<&T_LDCS_D::LoadCase>(load.LoadCase);
  if (first->Key != key) {
    run.Accounts.Note<T_LDCS_D>(key, IsAboveTolerance(load.SelfWtMult)
                                         ? Why("load-defined-again-with-weight")
                                         : Why("load-defined-again"));
    return;
  }
  if (LCTYPE == "USER" && load.DesignType != "OTHER") {
    run.Accounts.Note<T_LDCS_D>(key, "design-type-without-like");
  }
  const bool statesCode = !load.AutoLoad.empty() && load.AutoLoad != kNoAutoLoad;
  if (statesCode && LCTYPE != kWindType && LCTYPE != kSeismicType) {
    run.Accounts.Note<T_LDCS_D>(key, "auto-load-of-other-design");
  }
}

/// Notes what a load case does not say of the row that it comes of.
void NoteStaticCase(Conversion& run, std::uint32_t key, const T_STC1_D& row) {
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  if (loadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(row.LoadName)->Key != key) {
    run.Accounts.Note<T_STC1_D>(key, "load-named-again");
  }
  if (!run.Source.Rows<T_LDCS_D>().FirstWith<&T_LDCS_D::LoadCase>(row.LoadName)) {
    run.Accounts.Note<T_STC1_D>(key, "load-unknown");
  }
  if (run.Source.Rows<T_STC1_D>().AllWith<&T_STC1_D::Case>(row.Case).size() > 1) {
    run.Accounts.Note<T_STC1_D>(key, "case-of-several-loads");
  } else if (row.Case != row.LoadName) {
    run.Accounts.Note<T_STC1_D>(key, "case-of-another-name");
  }
}

}  // namespace

void CloseLoadCases(Conversion& run) {
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  for (const auto [key, load] : run.Source.Rows<T_LDCS_D>().Entries()) {
    if (const auto found = loadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(load.LoadCase)) {
      NoteLoad(run, key, load, found->Value.LCTYPE);
    } else {
      run.Accounts.Note<T_LDCS_D>(key, "load-case-not-static");
    }
  }
  for (const auto [key, row] : run.Source.Rows<T_STC1_D>().Entries()) {
    if (loadCases.Find(key) == nullptr) {
      run.Accounts.Note<T_STC1_D>(key, "analysis-case-not-static");
    } else {
      NoteStaticCase(run, key, row);
    }
  }
}

}  // namespace s2k2ngt
