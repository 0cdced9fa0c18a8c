#include "analysis/history_loads.h"

#include "analysis/time_functions.h"

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

/// Meant so: the angle goes where the arrival time belongs, which is lost.
void AddAcceleration(Conversion& run, const HistoryLoad& load, std::uint32_t keyAhead) {
  T_NGT_GRAC_D acceleration{.THIS = load.Case, .FUNCX = {}, .FUNCY = {}, .FUNCZ = {}};
  if (load.LoadName == "Accel U1") {
    acceleration.FUNCX = load.Function;
    acceleration.ATIMEX = load.Angle;
  } else if (load.LoadName == "Accel U2") {
    acceleration.FUNCY = load.Function;
    acceleration.ATIMEY = load.Angle;
  } else if (load.LoadName == "Accel U3") {
    acceleration.FUNCZ = load.Function;
    acceleration.ATIMEZ = load.Angle;
  }
  auto& accelerations = run.Target.Table<T_NGT_GRAC_D>();
  accelerations.Insert(static_cast<std::uint32_t>(accelerations.Count()) + keyAhead, acceleration);
}

/// Adds a load that the target has. Another kind has nothing but its function.
template <std::derived_from<HistoryLoad> Load>
void AddLoad(Conversion& run, const Load& load) {
  switch (KindOf(load)) {
    case TimeFunctionKind::Load:
      AddTimeVaryingLoad(run, load);
      break;
    case TimeFunctionKind::Acceleration:
      AddAcceleration(run, load, KeyAhead(load));
      break;
    case TimeFunctionKind::Other:
      break;
  }
}

/// Adds the function of a load. False when it has no points.
template <std::derived_from<HistoryLoad> Load>
bool AddFunction(Conversion& run, const Load& load) {
  T_NGT_THFN_D function{.NAME = load.Function, .iTYPE = KindOf(load), .Pairs = {}};
  if (function.iTYPE == TimeFunctionKind::Load) {
    function.SCALE = load.LoadSF;
  } else if (function.iTYPE == TimeFunctionKind::Acceleration) {
    function.SCALE = load.TransAccSF;
  }
  return AddTimeFunction(run, std::move(function), load.TimeFactor);
}

}  // namespace

void ModalHistoryLoads::Convert(Conversion& run, Text name) {
  const auto& loads = run.Source.Rows<T_MDH2_D>();
  const auto [repeated, isNew] = m_Repeated.Meet(name);
  if (!isNew) {
    for (const std::uint32_t position : repeated) {
      AddLoad(run, loads.AtWalk(position).Value);
    }
    return;
  }
  for (const std::uint32_t position : loads.AllWith<&T_MDH2_D::Case>(name)) {
    const T_MDH2_D& load = loads.AtWalk(position).Value;
    if (KindOf(load) != TimeFunctionKind::Other) {
      AddLoad(run, load);
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
    const T_DRH2_D& load = loads.AtWalk(position).Value;
    AddLoad(run, load);
    if (!HasTimeFunction(run, load.Function) || !AddFunction(run, load)) {
      return;
    }
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

}  // namespace s2k2ngt
