#include "analysis/time_functions.h"

#include "analysis/structure.h"
#include "target/wrapped_list.h"

#include <concepts>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

bool HasTimeFunction(Conversion& run, Text name) {
  return run.Target.Table<T_NGT_THFN_D>().FirstWith<&T_NGT_THFN_D::NAME>(name).has_value();
}

namespace {

template <std::derived_from<TimePoint> Record>
std::vector<TimePair> PointsIn(CModel& source, Text name, double timeFactor) {
  std::vector<TimePair> pairs;
  const auto& points = source.Rows<Record>();
  for (const std::uint32_t key : points.template KeysWith<&Record::Name>(name)) {
    const Record& point = *points.Find(key);
    pairs.push_back({point.Time * timeFactor, point.Value});
  }
  return pairs;
}

/// Meant so: with a single function from a file, functions of the user's own are not looked at.
bool AreFromFiles(CModel& source) { return !source.Rows<T_FTHF_D>().Empty(); }

std::vector<TimePair> PointsOf(CModel& source, Text name, double timeFactor) {
  return AreFromFiles(source) ? PointsIn<T_FTHF_D>(source, name, timeFactor)
                              : PointsIn<T_FTHU_D>(source, name, timeFactor);
}

}  // namespace

bool AddTimeFunction(Conversion& run, T_NGT_THFN_D function) {
  function.GRAV = GravityInModelUnits(run.Source);
  function.Pairs = PointsOf(run.Source, function.NAME, function.TimeFactor);
  if (function.Pairs.empty()) {
    run.Warnings.bTimeFunctionLost = true;
    return false;
  }
  run.Target.Table<T_NGT_THFN_D>().Append(std::move(function));
  return true;
}

// ---- Output ----

bool WriteTimeFunctions(Conversion& run, LineWriter& out) {
  const auto& functions = run.Target.Table<T_NGT_THFN_D>();
  if (functions.Empty()) {
    return true;
  }
  if (run.Warnings.bTimeFunctionLost) {
    run.Shown.Show("IDS_S2KV8_TMHT_Func_Not_Convert");
  }
  out.WriteLine("%s\n", "*TFUNCTION    ; Time History Function");
  out.WriteLine("; FUNC=NAME, 1, iTYPE, SCALE, GRAV, DESC           ; line 1\n");
  out.WriteLine(";      TIME1, VALUE1, TIME2, VALUE2, ...           ; from line 2\n");
  for (const auto [key, function] : functions.Walk()) {
    out.WriteLine("\tFUNC=%s, %2d, %5d, %5g, %5g, %5s", function.NAME, 1,
                  static_cast<std::int32_t>(function.iTYPE), function.SCALE, function.GRAV, "");
    for (std::size_t index = 0; index < function.Pairs.size(); ++index) {
      const TimePair& pair = function.Pairs[index];
      out.WriteLine("%s%5g, %5g", SeparatorBefore(index, 3, "\n\t\t"), pair.TIME, pair.VALUE);
    }
    out.WriteLine("\n\n");
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

template <std::derived_from<TimePoint> Record>
void NoteUnused(Conversion& run) {
  for (const auto [key, point] : run.Source.Rows<Record>().Entries()) {
    if (!HasTimeFunction(run, point.Name)) {
      run.Accounts.Note<Record>(key, "time-function-not-used");
    }
  }
}

template <class... Records>
void NoteFormulas(Conversion& run) {
  (run.Accounts.NoteAll<Records>("time-function-by-formula"), ...);
}

}  // namespace

void CloseTimeFunctions(Conversion& run) {
  NoteFormulas<T_FTHC_D, T_FTHP_D, T_FTHR_D, T_FTHS_D, T_FTHT_D, T_FTHW_D>(run);
  NoteUnused<T_FTHF_D>(run);
  if (AreFromFiles(run.Source)) {
    run.Accounts.NoteAll<T_FTHU_D>("user-function-beside-file");
  } else {
    NoteUnused<T_FTHU_D>(run);
  }
}

}  // namespace s2k2ngt
