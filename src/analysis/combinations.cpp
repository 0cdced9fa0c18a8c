#include "analysis/combinations.h"

#include "analysis/converted_rows.h"
#include "analysis/spectrum.h"
#include "analysis/time_history.h"
#include "bridge/moving_loads.h"
#include "loads/load_cases.h"
#include "target/wrapped_list.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

template <class Value, std::size_t Count>
std::optional<Value> ValueOf(const std::array<std::pair<Text, Value>, Count>& table, Text word) {
  for (const auto& [name, value] : table) {
    if (name == word) {
      return value;
    }
  }
  return std::nullopt;
}

std::optional<std::int32_t> CombinationType(Text comboType) {
  constexpr std::array<std::pair<Text, std::int32_t>, 4> kTypes = {
      {{"Linear Add", 0}, {"Envelope", 1}, {"Abs Add", 2}, {"SRSS", 3}}};
  return ValueOf(kTypes, comboType);
}

constexpr Text kStatic = "ST";
constexpr Text kSpectrum = "RS";
constexpr Text kHistory = "TH";
constexpr Text kMoving = "MV";
constexpr Text kCombination = "CB";
constexpr Text kLinearStaticType = "Linear Static";

/// The word of a kind of case; nothing for a kind that the target does not have. So also for direct
/// time histories, and this is meant.
std::optional<Text> AnalysisWordOf(Text caseType) {
  constexpr std::array<std::pair<Text, Text>, 7> kWords = {{{kLinearStaticType, kStatic},
                                                            {"NonLin Static", kStatic},
                                                            {"Response Spectrum", kSpectrum},
                                                            {"Linear Modal Hist", kHistory},
                                                            {"NonLin Modal Hist", kHistory},
                                                            {"Moving Load", kMoving},
                                                            {"Response Combo", kCombination}}};
  return ValueOf(kWords, caseType);
}

/// The same; "ST", and noted, without one.
Text AnalysisWord(Conversion& run, Text caseType) {
  const auto word = AnalysisWordOf(caseType);
  if (!word) {
    run.Warnings.bLoadCaseLost = true;
  }
  return word.value_or(kStatic);
}

/// Stores the combination of the rows from the first key up to the last.
void Store(Conversion& run, T_NGT_COMB_D combination, std::uint32_t firstKey,
           std::uint32_t lastKey) {
  auto& combinations = run.Target.Table<T_NGT_COMB_D>();
  if (run.Accounts.IsKept() && combinations.FirstWith<&T_NGT_COMB_D::NAME>(combination.NAME)) {
    for (std::uint32_t key = firstKey; key <= lastKey; ++key) {
      run.Accounts.Note<T_COMB_D>(key, "rows-of-name-apart");
    }
  }
  MarkConverted<T_COMB_D>(run, firstKey, lastKey);
  combinations.Append(std::move(combination));
}

/// Notes a term without a static load case, and the terms before it that go with it: all of the
/// combination in hand.
void NoteRejected(Conversion& run, std::uint32_t firstKey, std::uint32_t rejectedKey, Text rejected,
                  Text inHand) {
  run.Accounts.Note<T_COMB_D>(rejectedKey, "combination-term-not-static");
  if (!run.Accounts.IsKept()) {
    return;
  }
  for (std::uint32_t key = firstKey; key < rejectedKey; ++key) {
    run.Accounts.Note<T_COMB_D>(
        key, rejected == inHand ? Why("combination-of-lost-term") : Why("lost-with-next-row"));
  }
}

}  // namespace

bool ConvertCombinations(Conversion& run) {
  const auto& rows = run.Source.Rows<T_COMB_D>();
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  T_NGT_COMB_D current;
  std::uint32_t firstKey = 1;  // of the current one, if it has terms
  Text previousName;
  bool isSkipping = false;
  for (std::uint32_t key = 1; key <= rows.Count(); ++key) {
    const T_COMB_D row = RecordOr(rows.Find(key), T_COMB_D{});
    if (!loadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(row.CaseName)) {
      // Meant so: a term without a static load case takes its combination with it, and the one
      // before it too, if that was waiting for this row to be stored.
      NoteRejected(run, current.Terms.empty() ? key : firstKey, key, row.ComboName, current.NAME);
      isSkipping = true;
      previousName = row.ComboName;
      current = {};
      continue;
    }
    const bool isSameCombination = row.ComboName == previousName;
    if (isSkipping && isSameCombination) {
      run.Accounts.Note<T_COMB_D>(key, "combination-of-lost-term");
      continue;
    }
    if (!isSameCombination && key > 1) {
      if (isSkipping) {
        isSkipping = false;
      } else {
        Store(run, std::exchange(current, {}), firstKey, key - 1);
      }
    }
    firstKey = current.Terms.empty() ? key : firstKey;
    current.NAME = row.ComboName;
    current.iTYPE = CombinationType(row.ComboType).value_or(current.iTYPE);
    current.Terms.push_back({AnalysisWord(run, row.CaseType), row.CaseName, row.ScaleFactor});
    previousName = row.ComboName;
    if (key == rows.Count()) {
      Store(run, std::exchange(current, {}), firstKey, key);
    }
  }
  return true;
}

// ---- Output ----

namespace {

/// The spectrum load cases for which a term stands: those that its case has become, if it has
/// become several. None for a term that stands for itself.
std::span<const std::uint32_t> ComponentsOf(Conversion& run, const CombinationTerm& term) {
  if (term.ANAL != kSpectrum) {
    return {};
  }
  const auto components =
      run.Target.Table<T_NGT_SPLC_D>().KeysWith<&T_NGT_SPLC_D::CASE>(term.LCNAME);
  return components.size() < 2 ? std::span<const std::uint32_t>() : components;
}

void WriteTerms(Conversion& run, const T_NGT_COMB_D& combination, LineWriter& out) {
  std::size_t count = 0;
  for (const CombinationTerm& term : combination.Terms) {
    count += std::max<std::size_t>(1, ComponentsOf(run, term).size());
  }
  std::size_t index = 0;
  const auto write = [&](const CombinationTerm& term, Text name) {
    out.WriteLine("%s, %5s, %5g%s", term.ANAL, name, term.FACT,
                  SeparatorBehindFourThenThree(index++, count));
  };
  for (const CombinationTerm& term : combination.Terms) {
    const auto components = ComponentsOf(run, term);
    if (components.empty()) {
      write(term, term.LCNAME);
    }
    for (const std::uint32_t key : components) {
      write(term, run.Target.Table<T_NGT_SPLC_D>().Find(key)->NAME);
    }
  }
}

}  // namespace

bool WriteCombinations(Conversion& run, LineWriter& out) {
  const auto& combinations = run.Target.Table<T_NGT_COMB_D>();
  if (combinations.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*LOADCOMB    ; Combinations");
  out.WriteLine("; NAME=NAME, KIND, ACTIVE, iTYPE, DESC   ; line 1\n");
  out.WriteLine(";      ANAL1, LCNAME1, FACT1, ...        ; from line 2\n");
  for (std::uint32_t key = 1; key <= combinations.Count(); ++key) {
    const T_NGT_COMB_D& combination = *combinations.Find(key);
    out.WriteLine("\tNAME=%s, %5s, %5s, %5d, %5s\n", combination.NAME, "GEN", "ACTIVE",
                  combination.iTYPE, "");
    out.WriteLine("\t\t");
    WriteTerms(run, combination, out);
    out.WriteLine("\n");
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

/// True when the output has a case of the term's kind and name.
bool HasCase(Conversion& run, const T_COMB_D& row, Text word) {
  CNgtModel& target = run.Target;
  if (word == kSpectrum) {
    return !ComponentsOf(run, {word, row.CaseName}).empty() ||
           target.Table<T_NGT_SPLC_D>().FirstWith<&T_NGT_SPLC_D::NAME>(row.CaseName);
  }
  if (word == kHistory) {
    return target.Table<T_NGT_THLC_D>().FirstWith<&T_NGT_THLC_D::NAME>(row.CaseName).has_value();
  }
  if (word == kMoving) {
    return target.Table<T_NGT_MVLC_D>().FirstWith<&T_NGT_MVLC_D::NAME>(row.CaseName).has_value();
  }
  return word != kCombination ||
         target.Table<T_NGT_COMB_D>().FirstWith<&T_NGT_COMB_D::NAME>(row.CaseName);
}

}  // namespace

void CloseCombinations(Conversion& run) {
  const auto& rows = run.Source.Rows<T_COMB_D>();
  for (const auto [key, row] : rows.Entries()) {
    if (!WasConverted<T_COMB_D>(run, key)) {
      continue;
    }
    const Text word = AnalysisWordOf(row.CaseType).value_or(kStatic);
    if (word == kStatic && row.CaseType != kLinearStaticType) {
      run.Accounts.Note<T_COMB_D>(key, "combination-case-as-static");
    } else if (!HasCase(run, row, word)) {
      run.Accounts.Note<T_COMB_D>(key, "load-case-not-written");
    }
    const bool isFirst = key == 1 || rows.Find(key - 1)->ComboName != row.ComboName;
    if (row.ComboType.empty() && isFirst) {
      run.Accounts.Note<T_COMB_D>(key, "value-not-stated");
    } else if (!row.ComboType.empty() && !CombinationType(row.ComboType)) {
      run.Accounts.Note<T_COMB_D>(key, "combination-type-unknown");
    }
  }
}

}  // namespace s2k2ngt
