#include "bridge/moving_loads.h"

#include "bridge/lanes.h"
#include "bridge/parts.h"
#include "bridge/vehicles.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

constexpr std::int32_t kMostLanes = 4;

bool IsNothing(double scale) { return scale < kTolerance; }

/// The reduction of a case for a number of loaded lanes; 1 where there is none.
double LaneScale(CModel& source, Text name, std::int32_t lanes) {
  const auto reduction =
      source.Rows<T_MVL3_D>().FirstWith<&T_MVL3_D::LanesOfCase>(NumberInCase{name, lanes});
  const double scale = reduction ? reduction->Value.ScaleFactor : 0.0;
  return IsNothing(scale) ? 1.0 : scale;
}

}  // namespace

bool ConvertMovingLoads(Conversion& run) {
  const auto& classes = run.Target.Table<T_NGT_VCLS_D>();
  for (const auto [key, assignment] : run.Source.Rows<T_MVL1_D>().Walk()) {
    if (!classes.FirstWith<&T_NGT_VCLS_D::NAME>(assignment.Case)) {
      run.Accounts.Note<T_MVL1_D>(key, "moving-case-without-class");
      continue;
    }
    T_NGT_MVLC_D load{.NAME = assignment.Case,
                      .SCALE1 = LaneScale(run.Source, assignment.Case, 1),
                      .SCALE2 = LaneScale(run.Source, assignment.Case, 2),
                      .SCALE3 = LaneScale(run.Source, assignment.Case, 3),
                      .SCALE4 = LaneScale(run.Source, assignment.Case, 4),
                      .VCLASS = assignment.VehClass,
                      .SCALE = assignment.ScaleFactor,
                      .iMIN = assignment.MinLoaded,
                      .iMAX = assignment.MaxLoaded,
                      .Assignment = assignment.Assignment()};
    if (load.iMAX == 0) {
      run.Warnings.bMaxLoadedChanged = true;
      run.Accounts.Note<T_MVL1_D>(key, "max-loaded-zero");
      load.iMAX = 1;
    }
    run.Target.Add(key, load);
  }
  return true;
}

namespace {

void SetWanted(Text word, WantedResponse& response) {
  if (word.empty() || word == "None") {
    response.bWanted = "NO";
    response.bGroup = "NO";
  } else if (word == "ALL") {
    response.bWanted = "YES";
    response.bGroup = "NO";
  } else {
    response.bWanted = "YES";
    response.bGroup = "YES";
    response.Group = word;
  }
}

}  // namespace

void ConvertMovingControl(Conversion& run) {
  const T_BLBR_D* const settings = run.Source.Rows<T_BLBR_D>().Find(1);
  if (settings == nullptr) {
    return;
  }
  auto& control = run.Target.Control<T_NGT_MVCT_D>();
  control.METHOD = settings->CalcMethod;
  control.FRAME = settings->Correspond ? "AXIAL" : "NORMAL";
  SetWanted(settings->Reactions, control.Reactions);
  SetWanted(settings->Displs, control.Displacements);
  SetWanted(settings->Frames, control.Frames);
  control.bWrite = settings->IsWhole();
}

// ---- Output ----

namespace {

void WriteMovingControl(LineWriter& out, const T_NGT_MVCT_D& control) {
  out.WriteLine("%s\n", "*MOVE-CTRL    ; Moving Load Analysis Control");
  out.WriteLine(
      "; METHOD, POINT, iIGPN, PLATE, bSTRCALC, FRAME, bCSTRCALC, bREAC, bRG, RGN, bDISP, bDG, "
      "DGN, bFM, bFG, FGN\n");
  out.WriteLine(
      "\t%s, %5s, %5d, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s, %5s\n\n",
      control.METHOD, "NODAL", 0, "NORMAL", "", control.FRAME, "", control.Reactions.bWanted,
      control.Reactions.bGroup, control.Reactions.Group, control.Displacements.bWanted,
      control.Displacements.bGroup, control.Displacements.Group, control.Frames.bWanted,
      control.Frames.bGroup, control.Frames.Group);
}

}  // namespace

bool WriteMovingLoads(Conversion& run, LineWriter& out) {
  const auto& loads = run.Target.Table<T_NGT_MVLC_D>();
  if (loads.Empty()) {
    return true;
  }
  if (run.Warnings.bMaxLoadedChanged) {
    run.Shown.Show("IDS_S2KV8_MAXLOADED_VEHICLE_CLASS");
  }
  out.WriteLine("%s\n", "*MVLDCASE   ; Moving Load Cases");
  out.WriteLine("; NAME=NAME, SCALE1, SCALE2, SCALE3, SCALE4, COMB, DESC           ; 1st line\n");
  out.WriteLine(";      TYPE1, VCLASS1, SCALE1, iMIN1, iMAX1, LANE11, LANE12, ...  ; 2nd line\n");
  out.WriteLine(";      ...                                                        ; ...\n");
  out.WriteLine(";      TYPEn, VCLASSn, SCALEn, iMINn, iMAXn, LANEn1, LANEn2, ...  ; n+1th line\n");
  const auto& laneRows = run.Source.Rows<T_MVL2_D>();
  Text previousName;
  // Meant so: of keys with gaps between them the last ones lie beyond the count and are not met.
  for (std::uint32_t key = 1; key <= loads.Count(); ++key) {
    const T_NGT_MVLC_D* const load = loads.Find(key);
    if (load == nullptr) {
      continue;
    }
    if (load->NAME != previousName) {
      out.WriteLine("\tNAME=%s, %5g, %5g, %5g, %5g, %5s, %5s\n", load->NAME, load->SCALE1,
                    load->SCALE2, load->SCALE3, load->SCALE4, "INDEPENDENT", "");
      previousName = load->NAME;
    }
    out.WriteLine("\t\t%s, %5s, %5g, %5d, %5d", "VC", load->VCLASS, load->SCALE, load->iMIN,
                  load->iMAX);
    // Meant so: from the last to the first.
    const auto lanes = laneRows.KeysWith<&T_MVL2_D::Assignment>(load->Assignment);
    std::for_each(lanes.rbegin(), lanes.rend(),
                  [&](std::uint32_t lane) { out.WriteLine(",%5s", laneRows.Find(lane)->Lane); });
    out.WriteLine("\n");
  }
  out.WriteLine("\n");
  if (const auto& control = run.Target.Control<T_NGT_MVCT_D>(); control.bWrite) {
    WriteMovingControl(out, control);
  }
  return true;
}

// ---- Account ----

namespace {

using MovingLoadCases = CKeyedTable<T_NGT_MVLC_D>;

/// True when one of the assignments with these keys, ascending, is met by the writer.
bool IsOneWritten(const MovingLoadCases& loads, std::span<const std::uint32_t> keys) {
  return !keys.empty() && keys.front() <= loads.Count();
}

void CloseAssignments(Conversion& run, const MovingLoadCases& loads) {
  const auto& classes = run.Target.Table<T_NGT_VCLS_D>();
  Parts cases;
  for (const auto [key, row] : run.Source.Rows<T_MVL1_D>().Entries()) {
    const T_NGT_MVLC_D* const load = loads.Find(key);
    if (load == nullptr) {
      continue;
    }
    if (key > loads.Count()) {
      run.Accounts.Note<T_MVL1_D>(key, "behind-left-out-cases");
      continue;
    }
    if (cases.IsFurther(load->NAME)) {
      run.Accounts.Note<T_MVL1_D>(key, "written-in-parts");
    }
    if (!classes.FirstWith<&T_NGT_VCLS_D::NAME>(load->VCLASS)) {
      run.Accounts.Note<T_MVL1_D>(key, "vehicle-class-not-written");
    }
  }
}

void CloseLanesLoaded(Conversion& run, const MovingLoadCases& loads) {
  const auto& lanes = run.Source.Rows<T_BLLN_D>();
  for (const auto [key, row] : run.Source.Rows<T_MVL2_D>().Entries()) {
    if (!IsOneWritten(loads, loads.KeysWith<&T_NGT_MVLC_D::Assignment>(row.Assignment()))) {
      run.Accounts.Note<T_MVL2_D>(key, "moving-case-not-written");
    } else if (!lanes.FirstWith<&T_BLLN_D::LaneName>(row.Lane)) {
      run.Accounts.Note<T_MVL2_D>(key, "lane-unknown");
    }
  }
}

void CloseReductions(Conversion& run, const MovingLoadCases& loads) {
  const auto& rows = run.Source.Rows<T_MVL3_D>();
  for (const auto [key, row] : rows.Entries()) {
    if (!IsOneWritten(loads, loads.KeysWith<&T_NGT_MVLC_D::NAME>(row.Case))) {
      run.Accounts.Note<T_MVL3_D>(key, "moving-case-not-written");
    } else if (row.NumberLanes < 1 || row.NumberLanes > kMostLanes) {
      run.Accounts.Note<T_MVL3_D>(key, "factor-beyond-four-lanes");
    } else if (rows.FirstWith<&T_MVL3_D::LanesOfCase>(row.LanesOfCase())->Key != key) {
      run.Accounts.Note<T_MVL3_D>(key, "row-of-same-name");
    } else if (IsNothing(row.ScaleFactor)) {
      run.Accounts.Note<T_MVL3_D>(key, "factor-of-nothing");
    }
  }
}

void CloseResponse(Conversion& run, const MovingLoadCases& loads) {
  for (const auto [key, settings] : run.Source.Rows<T_BLBR_D>().Entries()) {
    if (key > 1) {
      run.Accounts.Note<T_BLBR_D>(key, "first-row-counts");
    } else if (!settings.IsWhole()) {
      run.Accounts.Note<T_BLBR_D>(key, "bridge-response-incomplete");
    } else if (!run.Target.Control<T_NGT_MVCT_D>().bWrite) {
      run.Accounts.Note<T_BLBR_D>(key, "analysis-case-missing");
    } else if (loads.Empty()) {
      run.Accounts.Note<T_BLBR_D>(key, "moving-case-not-written");
    }
  }
}

}  // namespace

void CloseMovingLoads(Conversion& run) {
  const auto& loads = run.Target.Table<T_NGT_MVLC_D>();
  CloseAssignments(run, loads);
  CloseLanesLoaded(run, loads);
  CloseReductions(run, loads);
  CloseResponse(run, loads);
}

}  // namespace s2k2ngt
