#include "loads/area_loads.h"

#include "loads/joint_patterns.h"
#include "loads/load_direction.h"
#include "loads/load_references.h"
#include "plates/areas.h"
#include "target/load_frame.h"

#include <array>
#include <cstdint>
#include <optional>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

std::optional<LoadDirection> DirectionOf(Text dir) {
  if (dir == "Grav Proj") {
    return LoadDirection{"GZ", "YES", -1.0};
  }
  return GlobalDirection(dir);
}

T_NGT_PRSL_D PlateFaceLoad(Text area, Text loadCase, Text direction, Text projected) {
  return {.Element = area,
          .LoadCase = loadCase,
          .ETYP = "PLATE",
          .LTYP = "FACE",
          .DIR = direction,
          .bPROJ = projected};
}

constexpr Text kGlobal = "GLOBAL";

/// True for the loads that the target has a like of: the global ones and those along the area's
/// axis 3.
bool HasLike(const T_ALUM_D& row) {
  return row.CoordSys == kGlobal || (row.CoordSys == "Local" && row.Dir == "3");
}

/// The pressure of a load that the target has a like of.
T_NGT_PRSL_D UniformPressure(Conversion& run, std::uint32_t key, const T_ALUM_D& row) {
  LoadDirection direction{"LZ", "NO", 1.0};
  if (row.CoordSys == kGlobal) {
    const std::optional<LoadDirection> global = DirectionOf(row.Dir);
    if (!global) {
      run.Accounts.Note<T_ALUM_D>(key, "area-direction-unknown");
    }
    // A global direction that the target does not have is taken as Z.
    direction = global.value_or(LoadDirection{"GZ", "NO", 1.0});
  }
  T_NGT_PRSL_D load = PlateFaceLoad(row.Area, row.LoadCase, direction.DIR, direction.bPROJ);
  load.PU = direction.Sign * row.UnifLoad;
  return load;
}

}  // namespace

bool ConvertUniformLoads(Conversion& run) {
  // Meant so: a load in a direction that the target does not have repeats the load before it on
  // that load's area. The first in the walk has none before it and repeats an empty one, whose load
  // case has no name.
  T_NGT_PRSL_D load;
  ReserveForRows<T_NGT_PRSL_D, T_ALUM_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_ALUM_D>().Walk()) {
    if (HasLike(row)) {
      load = UniformPressure(run, key, row);
    }
    run.Target.Table<T_NGT_PRSL_D>().Append(load);
  }
  return true;
}

namespace {

/// Sets the corners of a pressure that goes by a joint pattern, if its area is there.
void SetCorners(CModel& model, const T_ALSP_D& row, T_NGT_PRSL_D& load) {
  const auto found = model.Rows<T_CNAR_D>().FirstWith<&T_CNAR_D::Area>(row.Area);
  if (!found) {
    return;
  }
  const auto pressureAt = [&](Text joint) {
    return PatternValue(model, joint, row.JtPattern) * load.PU;
  };
  // The third and the fourth change places, as the nodes of the plate do.
  const T_CNAR_D& area = found->Value;
  load.P1 = pressureAt(area.Joint1);
  load.P2 = pressureAt(area.Joint2);
  load.P3 = pressureAt(area.Joint4);
  load.P4 = pressureAt(area.Joint3);
}

}  // namespace

bool ConvertSurfacePressures(Conversion& run) {
  ReserveForRows<T_NGT_PRSL_D, T_ALSP_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_ALSP_D>().Walk()) {
    if (!IsTopOrBottom(row.Face)) {
      run.Warnings.bPlatePressureLost = true;
      run.Accounts.Note<T_ALSP_D>(key, "pressure-on-edge");
      continue;
    }
    T_NGT_PRSL_D load = PlateFaceLoad(row.Area, row.LoadCase, "LZ", "NO");
    // A pressure presses into the area: along its axis 3 from below, against it from above.
    load.PU = row.Face == "5" ? row.Pressure : -row.Pressure;
    if (GoesByPattern(row.JtPattern)) {
      SetCorners(run.Source, row, load);  // beside the uniform pressure, which stays
      if (!row.JtPattern.empty()) {
        run.Accounts.Note<T_ALSP_D>(key, "pressure-by-pattern");
      }
    }
    run.Target.Table<T_NGT_PRSL_D>().Append(load);
  }
  return true;
}

// ---- Output ----

void WritePressures(Conversion& run, Text loadCase, LineWriter& out) {
  const auto& loads = run.Target.Table<T_NGT_PRSL_D>();
  if (loads.Empty()) {
    return;
  }
  // Shown for each load case, also for one without a pressure of its own.
  if (run.Warnings.bPlatePressureLost) {
    run.Shown.Show("IDS_S2KV8_PLATE_SurfP_Not_Convert");
  }
  ElementReferences elements(run.Elements);
  WriteLoadsByKey<&T_NGT_PRSL_D::LoadCase>(
      out, loadCase,
      "*PRESSURE    ; Pressure Loads\n"
      "; ELEM_LIST, CMD, ETYP, LTYP, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP  ; "
      "ETYP=PLATE, LTYP=FACE\n"
      "; ELEM_LIST, CMD, ETYP, LTYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP          ; "
      "ETYP=PLATE, LTYP=EDGE\n"
      "; ELEM_LIST, CMD, ETYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP                ; "
      "ETYP=PLANE\n"
      "; ELEM_LIST, CMD, ETYP, iFACE, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP ; "
      "ETYP=SOLID\n",
      loads, [&](const T_NGT_PRSL_D& load) {
        constexpr double kNoVector = 0.0;  // loads go along axes
        out.WriteLine("\t%d, PRES, %5s, %5s, %5s, %5g, %5g, %5g, %5s, %5g, %5g, %5g, %5g, %5g,\n",
                      elements.NumberOf(load.Element, kAreaFamily), load.ETYP, load.LTYP, load.DIR,
                      kNoVector, kNoVector, kNoVector, load.bPROJ, load.PU, load.P1, load.P2,
                      load.P3, load.P4);
      });
}

// ---- Account ----

namespace {

template <class Row>
void NoteArea(Conversion& run, std::uint32_t key, Text area) {
  if (const std::optional<Why> why = WhyNotElement(run, area, kAreaFamily)) {
    run.Accounts.Note<Row>(key, *why);
  }
}

void CloseUniformLoads(Conversion& run) {
  WrittenLoads written(run.Target);
  const auto& loads = run.Target.Table<T_NGT_PRSL_D>();
  std::uint32_t place = 0;  // each row of the walk has become a load, the first of the table
  for (const auto [key, row] : run.Source.Rows<T_ALUM_D>().Walk()) {
    const T_NGT_PRSL_D& load = *loads.Find(++place);
    if (!HasLike(row)) {
      run.Accounts.Note<T_ALUM_D>(key, written.Have(load.LoadCase)
                                           ? Why("load-before-in-its-place")
                                           : Why("uniform-load-without-like"));
    } else if (written.HaveOrNote<T_ALUM_D>(run.Accounts, key, row.LoadCase)) {
      NoteArea<T_ALUM_D>(run, key, row.Area);
    }
  }
}

void ClosePressures(Conversion& run) {
  WrittenLoads written(run.Target);
  for (const auto [key, row] : run.Source.Rows<T_ALSP_D>().Entries()) {
    if (IsTopOrBottom(row.Face) && written.HaveOrNote<T_ALSP_D>(run.Accounts, key, row.LoadCase)) {
      NoteArea<T_ALSP_D>(run, key, row.Area);
    }
  }
}

}  // namespace

void CloseAreaLoads(Conversion& run) {
  CloseUniformLoads(run);
  ClosePressures(run);
  run.Accounts.NoteAll<T_ALRT_D>("load-by-rotation");
  run.Accounts.NoteAll<T_ALUF_D>("area-load-to-frames");
  run.Accounts.NoteAll<T_ALWP_D>("wind-coefficients-of-area");
}

void TakePatternsOfPressures(Conversion& run, PatternUses& uses) {
  WrittenLoads written(run.Target);
  for (const auto [key, row] : run.Source.Rows<T_ALSP_D>().Entries()) {
    if (!IsTopOrBottom(row.Face) || !GoesByPattern(row.JtPattern) || !written.Have(row.LoadCase)) {
      continue;
    }
    if (const auto area = run.Source.Rows<T_CNAR_D>().FirstWith<&T_CNAR_D::Area>(row.Area)) {
      const T_CNAR_D& corners = area->Value;
      uses.Take(std::array{corners.Joint1, corners.Joint2, corners.Joint3, corners.Joint4},
                row.JtPattern);
    }
  }
}

}  // namespace s2k2ngt
