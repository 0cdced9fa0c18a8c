#include "analysis/spectrum.h"

#include "analysis/cases.h"
#include "analysis/structure.h"
#include "common/value_map.h"
#include "target/wrapped_list.h"

#include <cmath>
#include <concepts>
#include <string>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// Adds the function of the rows from the first key up to the last.
template <class Record>
void AddFunction(Conversion& run, T_NGT_SFNC_D function, std::uint32_t firstKey,
                 std::uint32_t lastKey) {
  auto& functions = run.Target.Table<T_NGT_SFNC_D>();
  if (run.Accounts.IsKept() && functions.FirstWith<&T_NGT_SFNC_D::NAME>(function.NAME)) {
    for (std::uint32_t key = firstKey; key <= lastKey; ++key) {
      run.Accounts.Note<Record>(key, "rows-of-name-apart");
    }
  }
  functions.Append(std::move(function));
}

/// Runs of rows of one name into functions. A name that comes back opens a second function.
template <std::derived_from<SpectrumPoint> Record>
void ConvertFunctions(Conversion& run) {
  const auto& rows = run.Source.Rows<Record>();
  const T_NGT_SFNC_D empty{.NAME = {}, .GRAV = GravityInModelUnits(run.Source), .Pairs = {}};
  T_NGT_SFNC_D function = empty;
  std::uint32_t firstKey = 1;
  for (std::uint32_t key = 1; key <= rows.Count(); ++key) {
    const Record row = RecordOr(rows.Find(key), Record{});
    if (key > 1 && row.Name != function.NAME) {
      AddFunction<Record>(run, std::exchange(function, empty), firstKey, key - 1);
      firstKey = key;
    }
    function.NAME = row.Name;
    function.Pairs.push_back({row.Period, row.Accel});
  }
  if (!rows.Empty()) {
    AddFunction<Record>(run, std::move(function), firstKey,
                        static_cast<std::uint32_t>(rows.Count()));
  }
}

}  // namespace

bool ConvertSpectrumFunctions(Conversion& run) {
  ShowIfLost<T_FRSB_D>(run);
  ConvertFunctions<T_FRSE_D>(run);
  ShowIfLost<T_FRSF_D>(run);
  ConvertFunctions<T_FRSI_D>(run);
  ConvertFunctions<T_FRSN_D>(run);
  ShowIfLost<T_FRSH_D>(run);
  ShowIfLost<T_FRSZ_D>(run);
  ConvertFunctions<T_FRC4_D>(run);
  ConvertFunctions<T_FRC7_D>(run);
  ConvertFunctions<T_FRSU_D>(run);
  return true;
}

namespace {

constexpr Text kAlong = "U1";
constexpr Text kAcross = "U2";
constexpr Text kUpright = "U3";

/// A load without a scale factor has that of 1.
bool HasScale(const T_RSP2_D& row) { return std::abs(row.TransAccSF) >= kTolerance; }

/// What subtracting 360 over and over gives for an angle above it: at most 360.
double WithinFullTurn(double angle) {
  if (!(angle > 360.0) || std::isinf(angle)) {
    return angle;
  }
  const double rest = std::fmod(angle, 360.0);
  return rest == 0.0 ? 360.0 : rest;
}

/// The spectrum load cases while they are made. A source case of several rows becomes several load
/// cases, whose names count.
class SpectrumLoads {
 public:
  explicit SpectrumLoads(CNgtModel& target) : m_Target(target) {}

  /// Takes a row into the load case in hand. Function and direction stay where the row states none.
  void Take(const T_RSP2_D& row) {
    m_Pending.CASE = row.Case;
    if (!row.Function.empty()) {
      m_Pending.FUNC = row.Function;
    }
    if (!row.LoadName.empty()) {
      m_Pending.DIR = row.LoadName == kAlong || row.LoadName == kAcross ? "XY" : "Z";
    }
    m_Pending.ANGLE = WithinFullTurn(row.LoadName == kAcross ? row.Angle + 90.0 : row.Angle);
    m_Pending.SCALE = HasScale(row) ? row.TransAccSF : 1.0;
    m_PreviousCase = row.Case;
  }

  /// Stores the load case in hand. Meant so: it takes a number when the next row is of its case,
  /// and at the end of the table; the last row of a case that another follows bears the bare name.
  void Flush(Text caseOfNextRow) {
    std::string name(m_PreviousCase);
    if (caseOfNextRow == m_PreviousCase) {
      name += std::to_string(++m_Suffix);
    } else {
      m_Suffix = 0;
    }
    m_Pending.NAME = m_Target.Texts().Keep(name);
    m_Target.Table<T_NGT_SPLC_D>().Append(m_Pending);
  }

 private:
  CNgtModel& m_Target;
  T_NGT_SPLC_D m_Pending;
  Text m_PreviousCase;
  std::int32_t m_Suffix = 0;
};

/// Notes how the load case of a row differs from the row.
void NoteSpectrumLoad(Conversion& run, std::uint32_t key, const T_RSP2_D& row) {
  const auto note = [&](Why why) { run.Accounts.Note<T_RSP2_D>(key, why); };
  if (row.Function.empty() || row.LoadName.empty()) {
    note("value-of-row-before");
  }
  if (!row.Function.empty() &&
      !run.Target.Table<T_NGT_SFNC_D>().FirstWith<&T_NGT_SFNC_D::NAME>(row.Function)) {
    note("spectrum-function-not-written");
  }
  if (!row.LoadName.empty() && row.LoadName != kAlong && row.LoadName != kAcross &&
      row.LoadName != kUpright) {
    note("ground-direction-unknown");
  }
  if (!HasScale(row)) {
    note("value-not-stated");
  }
}

/// Notes the rows whose load cases do not bear the name of their case alone.
void NoteSpectrumNames(Conversion& run) {
  const auto& rows = run.Source.Rows<T_RSP2_D>();
  ValueMap<Text, std::uint32_t> rowsOfCase;  // without those that are lost
  for (const auto [key, row] : rows.Entries()) {
    rowsOfCase.Meet(row.Case).Result += row.IsGlobal() ? 1 : 0;
  }
  for (const auto [key, row] : rows.Entries()) {
    if (!row.IsGlobal()) {
      continue;
    }
    if (rowsOfCase.Meet(row.Case).Result > 1) {
      run.Accounts.Note<T_RSP2_D>(key, "spectrum-case-split");
    } else if (key == rows.Count()) {
      run.Accounts.Note<T_RSP2_D>(key, "spectrum-case-numbered");
    }
  }
}

}  // namespace

bool ConvertSpectrumLoads(Conversion& run) {
  const auto& rows = run.Source.Rows<T_RSP2_D>();
  SpectrumLoads loads(run.Target);
  std::uint32_t inHand = 0;  // the row of the load case in hand
  for (std::uint32_t key = 1; key <= rows.Count(); ++key) {
    const T_RSP2_D row = RecordOr(rows.Find(key), T_RSP2_D{});
    if (!row.IsGlobal()) {
      // Meant so: as the last row it takes the load case in hand with it, and as the first it
      // leaves an empty one.
      run.Warnings.bSpectrumLoadLost = true;
      run.Accounts.Note<T_RSP2_D>(key, "spectrum-load-not-global");
      continue;
    }
    if (key > 1) {
      loads.Flush(row.Case);
    }
    loads.Take(row);
    inHand = key;
    if (run.Accounts.IsKept()) {
      NoteSpectrumLoad(run, key, row);
    }
    if (key == rows.Count()) {
      loads.Flush(row.Case);
    }
  }
  if (inHand < rows.Count()) {
    run.Accounts.Note<T_RSP2_D>(inHand, "lost-with-next-row");
  }
  if (run.Accounts.IsKept()) {
    NoteSpectrumNames(run);
  }
  return true;
}

void ConvertSpectrumCase(Conversion& run) {
  const auto& definitions = run.Source.Rows<T_RSP1_D>();
  if (definitions.Empty()) {
    return;
  }
  const T_RSP1_D definition = RecordOr(definitions.Find(1), T_RSP1_D{});
  run.Target.Control<T_NGT_SPCT_D>() = {
      .TYPE = definition.ModalCombo, .DAMPING = definition.TargetDamping(), .bWrite = true};
  run.Target.NeedAnalCtrl = true;
}

// ---- Output ----

bool WriteSpectrumFunctions(Conversion& run, LineWriter& out) {
  const auto& functions = run.Target.Table<T_NGT_SFNC_D>();
  if (functions.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*SFUNCTION    ; Specturm Function");
  out.WriteLine("; FUNC=NAME, iTYPE, SCALE, GRAV, DESC          ; line 1\n");
  out.WriteLine(";      PERIOD1, VALUE1, PERIOD2, VALUE2, ...   ; from line 2\n");
  for (std::uint32_t key = 1; key <= functions.Count(); ++key) {
    const T_NGT_SFNC_D& function = *functions.Find(key);
    out.WriteLine("\tFUNC=%s, %5d, %5g, %5g, %5s\n", function.NAME, 2, 1.0, function.GRAV, "");
    out.WriteLine("\t\t");
    const std::size_t count = function.Pairs.size();
    for (std::size_t index = 0; index < count; ++index) {
      const SpectrumPair& pair = function.Pairs[index];
      out.WriteLine("%g, %5g%s", pair.PERIOD, pair.VALUE,
                    SeparatorBehindFourThenThree(index, count));
    }
    out.WriteLine("\n");
  }
  out.WriteLine("\n");
  return true;
}

bool WriteSpectrumLoads(Conversion& run, LineWriter& out) {
  const auto& loads = run.Target.Table<T_NGT_SPLC_D>();
  if (loads.Empty()) {
    return true;
  }
  if (run.Warnings.bSpectrumLoadLost) {
    run.Shown.Show("IDS_S2KV8_RESP_SPLC_Not_Convert");
  }
  out.WriteLine("%s\n", "*SPLDCASE    ; Spectrum Load Cases");
  out.WriteLine("; NAME, FUNC, DIR, ANGLE, SCALE, DESC\n");
  for (std::uint32_t key = 1; key <= loads.Count(); ++key) {
    const T_NGT_SPLC_D& load = *loads.Find(key);
    out.WriteLine("\t%s, %5s, %5s, %5g, %5g, %5s\n", load.NAME, load.FUNC, load.DIR, load.ANGLE,
                  load.SCALE, "");
  }
  out.WriteLine("\n");
  return true;
}

bool WriteSpectrumControl(Conversion& run, LineWriter& out) {
  const auto& control = run.Target.Control<T_NGT_SPCT_D>();
  if (!control.bWrite) {
    return true;
  }
  out.WriteLine("%s\n", "*SPEC-CTRL    ; Response Spectrum Analysis Control");
  out.WriteLine("; TYPE, DAMPING, bADDSIGN\n");
  out.WriteLine("\t%s, %5g, %5s\n", control.TYPE, control.DAMPING, "NO");
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

bool SaysTheSame(const T_RSP1_D& definition, const T_RSP1_D& first) {
  return definition.ModalCombo == first.ModalCombo &&
         definition.TargetDamping() == first.TargetDamping() &&
         definition.DirCombo == first.DirCombo && definition.DampingType == first.DampingType &&
         definition.ABSSF == first.ABSSF && definition.GMCf1 == first.GMCf1 &&
         definition.GMCf2 == first.GMCf2;
}

void CloseDefinitions(Conversion& run) {
  const auto& definitions = run.Source.Rows<T_RSP1_D>();
  const T_RSP1_D first = RecordOr(definitions.Find(1), T_RSP1_D{});
  for (const auto [key, definition] : definitions.Entries()) {
    if (key > 1) {
      run.Accounts.Note<T_RSP1_D>(key, SaysTheSame(definition, first)
                                           ? Why("definition-as-first")
                                           : Why("definition-not-first"));
      continue;
    }
    if (!definition.Case.empty() && !IsAnalysed(run, definition.Case, kResponseSpectrum)) {
      run.Accounts.Note<T_RSP1_D>(key, "definition-of-another-case");
    }
    if (definition.ConstDamp != definition.TargetDamping()) {
      run.Accounts.Note<T_RSP1_D>(key, "spectrum-damping-lost");
    }
    if (!definition.DampingType.empty() && definition.DampingType != "Constant") {
      run.Accounts.Note<T_RSP1_D>(key, "spectrum-damping-of-other-kind");
    }
    if (!definition.DirCombo.empty() && definition.DirCombo != "SRSS") {
      run.Accounts.Note<T_RSP1_D>(key, "spectrum-direction-combination");
    }
  }
}

}  // namespace

void CloseSpectrum(Conversion& run) {
  run.Accounts.NoteAll<T_RSP3_D>("damping-of-other-kind");
  run.Accounts.NoteAll<T_RSP4_D>("damping-of-other-kind");
  run.Accounts.NoteAll<T_RSP5_D>("damping-of-other-kind");
  if (run.Target.Control<T_NGT_SPCT_D>().bWrite) {
    CloseDefinitions(run);
  } else {
    run.Accounts.NoteAll<T_RSP1_D>("analysis-case-missing");
  }
}

}  // namespace s2k2ngt
