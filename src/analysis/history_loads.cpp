#include "analysis/history_loads.h"

#include "analysis/converted_rows.h"
#include "analysis/history_account.h"
#include "analysis/time_functions.h"
#include "loads/load_cases.h"

#include <optional>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// The kind of a load, which is that of its function.
TimeFunctionKind KindOf(const HistoryLoad& load, bool isLoad) {
  if (isLoad) {
    return TimeFunctionKind::Load;
  }
  return load.LoadType == "Accel" ? TimeFunctionKind::Acceleration : TimeFunctionKind::Other;
}
TimeFunctionKind KindOf(const T_MDH2_D& load) {
  return KindOf(load, load.LoadType == "Load case" || load.LoadType == "LoadPattern");
}
TimeFunctionKind KindOf(const T_DRH2_D& load) { return KindOf(load, load.LoadType == "Load case"); }

void AddTimeVaryingLoad(Conversion& run, const HistoryLoad& load) {
  run.Target.Table<T_NGT_DSLD_D>().Append(
      {load.Case, load.LoadName, load.Function, load.ArrivalTime});
}

/// How far the key of an acceleration is ahead of the number of those that are there. Meant so: a
/// modal one leaves a gap, and a direct one that meets the key behind a gap takes the place of its
/// record.
constexpr std::uint32_t KeyAhead(const T_MDH2_D& /*load*/) { return 2; }
constexpr std::uint32_t KeyAhead(const T_DRH2_D& /*load*/) { return 1; }

constexpr Text kAlongX = "Accel U1";
constexpr Text kAlongY = "Accel U2";
constexpr Text kAlongZ = "Accel U3";

constexpr bool IsModal(const T_MDH2_D& /*load*/) { return true; }
constexpr bool IsModal(const T_DRH2_D& /*load*/) { return false; }

/// Notes of the source row of an acceleration that another takes its place.
void NoteReplaced(Conversion& run, const T_NGT_GRAC_D& acceleration) {
  if (acceleration.IsModal) {
    run.Accounts.Note<T_MDH2_D>(acceleration.Row, "acceleration-replaced");
  } else {
    run.Accounts.Note<T_DRH2_D>(acceleration.Row, "acceleration-replaced");
  }
}

/// Meant so: the angle goes where the arrival time belongs, which is lost.
template <std::derived_from<HistoryLoad> Load>
void AddAcceleration(Conversion& run, std::uint32_t row, const Load& load) {
  T_NGT_GRAC_D acceleration{.THIS = load.Case,
                            .FUNCX = {},
                            .FUNCY = {},
                            .FUNCZ = {},
                            .Row = row,
                            .IsModal = IsModal(load)};
  if (load.LoadName == kAlongX) {
    acceleration.FUNCX = load.Function;
    acceleration.ATIMEX = load.Angle;
  } else if (load.LoadName == kAlongY) {
    acceleration.FUNCY = load.Function;
    acceleration.ATIMEY = load.Angle;
  } else if (load.LoadName == kAlongZ) {
    acceleration.FUNCZ = load.Function;
    acceleration.ATIMEZ = load.Angle;
  }
  auto& accelerations = run.Target.Table<T_NGT_GRAC_D>();
  const std::uint32_t key = static_cast<std::uint32_t>(accelerations.Count()) + KeyAhead(load);
  if (const T_NGT_GRAC_D* const replaced = accelerations.Find(key)) {
    NoteReplaced(run, *replaced);
  }
  accelerations.Insert(key, acceleration);
}

/// Adds the load of a row if the target has its kind. Another has nothing but its function.
template <std::derived_from<HistoryLoad> Load>
void AddLoad(Conversion& run, std::uint32_t row, const Load& load) {
  switch (KindOf(load)) {
    case TimeFunctionKind::Load:
      AddTimeVaryingLoad(run, load);
      break;
    case TimeFunctionKind::Acceleration:
      AddAcceleration(run, row, load);
      break;
    case TimeFunctionKind::Other:
      break;
  }
}

/// The function of a load, without its points.
template <std::derived_from<HistoryLoad> Load>
T_NGT_THFN_D FunctionOf(const Load& load) {
  T_NGT_THFN_D function{
      .NAME = load.Function, .iTYPE = KindOf(load), .Pairs = {}, .TimeFactor = load.TimeFactor};
  if (function.iTYPE == TimeFunctionKind::Load) {
    function.SCALE = load.LoadSF;
  } else if (function.iTYPE == TimeFunctionKind::Acceleration) {
    function.SCALE = load.TransAccSF;
  }
  return function;
}

/// Adds the function of a load. False when it has no points.
template <std::derived_from<HistoryLoad> Load>
bool AddFunction(Conversion& run, const Load& load) {
  return AddTimeFunction(run, FunctionOf(load));
}

}  // namespace

void ModalHistoryLoads::Convert(Conversion& run, Text name) {
  const auto& loads = run.Source.Rows<T_MDH2_D>();
  const auto [repeated, isNew] = m_Repeated.Meet(name);
  if (!isNew) {
    for (const std::uint32_t position : repeated) {
      const auto [key, load] = loads.AtWalk(position);
      AddLoad(run, key, load);
    }
    return;
  }
  for (const std::uint32_t position : loads.AllWith<&T_MDH2_D::Case>(name)) {
    const auto [key, load] = loads.AtWalk(position);
    MarkConverted<T_MDH2_D>(run, key, key);
    if (KindOf(load) != TimeFunctionKind::Other) {
      AddLoad(run, key, load);
      repeated.push_back(position);
    }
    if (!HasTimeFunction(run, load.Function) && !AddFunction(run, load)) {
      return;
    }
  }
}

void ConvertDirectLoads(Conversion& run, Text name) {
  const auto& loads = run.Source.Rows<T_DRH2_D>();
  for (const std::uint32_t position : loads.AllWith<&T_DRH2_D::Case>(name)) {
    const auto [key, load] = loads.AtWalk(position);
    MarkConverted<T_DRH2_D>(run, key, key);
    AddLoad(run, key, load);
    if (!HasTimeFunction(run, load.Function)) {
      run.Accounts.Note<T_DRH2_D>(key, "time-function-not-brought-in");
      return;
    }
    AddFunction(run, load);
  }
}

// ---- Output ----

bool WriteGroundAccelerations(Conversion& run, LineWriter& out) {
  const auto& accelerations = run.Target.Table<T_NGT_GRAC_D>();
  if (accelerations.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*GROUND-ACC    ; Ground Acceleration");
  out.WriteLine(
      "; THIS, FUNCX, SCALEX, ATIMEX, FUNCY, SCALEY, ATIMEY, FUNCZ, SCALEZ, ATIMEZ, ANGLE\n");
  for (const auto [key, acceleration] : accelerations.Walk()) {
    out.WriteLine("\t%s, %5s, %5g, %5g, %5s, %5g, %5g, %5s, %5g, %5g, %5g\n", acceleration.THIS,
                  acceleration.FUNCX, 1.0, acceleration.ATIMEX, acceleration.FUNCY, 1.0,
                  acceleration.ATIMEY, acceleration.FUNCZ, 1.0, acceleration.ATIMEZ, 0.0);
  }
  out.WriteLine("\n");
  return true;
}

bool WriteTimeVaryingLoads(Conversion& run, LineWriter& out) {
  const auto& loads = run.Target.Table<T_NGT_DSLD_D>();
  if (loads.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*DYN-SLOAD    ; Time Varying Static Load");
  out.WriteLine("; THIS, SLOAD, FUNC, ATIME, SCALE\n");
  for (const auto [key, load] : loads.Walk()) {
    out.WriteLine("\t%s, %5s, %5s, %5g, %5g\n", load.THIS, load.SLOAD, load.FUNC, load.ATIME, 1.0);
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

/// Why the function of a converted load differs from what the load states; nothing if it does not.
/// A function has the values of the load that brought it in, which was the first.
template <std::derived_from<HistoryLoad> Load>
std::optional<Why> WhyFunctionDiffers(Conversion& run, const Load& load) {
  const auto& functions = run.Target.Table<T_NGT_THFN_D>();
  const auto keys = functions.KeysWith<&T_NGT_THFN_D::NAME>(load.Function);
  if (keys.empty()) {
    return IsModal(load) ? std::optional(Why("time-function-without-points")) : std::nullopt;
  }
  const T_NGT_THFN_D wanted = FunctionOf(load);
  const T_NGT_THFN_D& first = *functions.Find(keys.front());
  if (first.iTYPE != wanted.iTYPE || first.SCALE != wanted.SCALE ||
      first.TimeFactor != wanted.TimeFactor) {
    return Why("time-function-of-first-load");
  }
  return IsModal(load) ? std::nullopt : std::optional(Why("time-function-written-again"));
}

/// Why the record of a converted load differs from what the load states.
template <std::derived_from<HistoryLoad> Load>
void NoteLoad(Conversion& run, std::uint32_t key, const Load& load) {
  const auto note = [&](Why why) { run.Accounts.Note<Load>(key, why); };
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  switch (KindOf(load)) {
    case TimeFunctionKind::Load:
      if (!loadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(load.LoadName)) {
        note("load-case-not-written");
      }
      break;
    case TimeFunctionKind::Acceleration:
      if (load.LoadName != kAlongX && load.LoadName != kAlongY && load.LoadName != kAlongZ) {
        note("ground-direction-unknown");
      }
      if (load.ArrivalTime != 0.0 || load.Angle != 0.0) {
        note("angle-for-arrival-time");
      }
      break;
    case TimeFunctionKind::Other:
      note("history-load-of-other-kind");
      break;
  }
}

template <std::derived_from<HistoryLoad> Load, class Definition>
void CloseLoads(Conversion& run) {
  for (const auto [key, load] : run.Source.Rows<Load>().Entries()) {
    if (!WasConverted<Load>(run, key)) {
      const std::optional<Why> why = WhyHistoryIsLost<Definition>(run, load.Case);
      run.Accounts.Note<Load>(key, why.value_or(Why("behind-lost-row")));
      continue;
    }
    NoteLoad(run, key, load);
    if (const auto why = WhyFunctionDiffers(run, load)) {
      run.Accounts.Note<Load>(key, *why);
    }
  }
}

}  // namespace

void CloseHistoryLoads(Conversion& run) {
  CloseLoads<T_MDH2_D, T_MDH1_D>(run);
  CloseLoads<T_DRH2_D, T_DRH1_D>(run);
}

}  // namespace s2k2ngt
