#include "analysis/combinations.h"

#include "analysis/spectrum.h"
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

constexpr Text kSpectrum = "RS";

/// The word of a kind of case; "ST", and noted, for a kind that the target does not have. So also
/// for direct time histories, and this is meant.
Text AnalysisWord(Conversion& run, Text caseType) {
  constexpr std::array<std::pair<Text, Text>, 7> kWords = {{{"Linear Static", "ST"},
                                                            {"NonLin Static", "ST"},
                                                            {"Response Spectrum", kSpectrum},
                                                            {"Linear Modal Hist", "TH"},
                                                            {"NonLin Modal Hist", "TH"},
                                                            {"Moving Load", "MV"},
                                                            {"Response Combo", "CB"}}};
  const auto word = ValueOf(kWords, caseType);
  if (!word) {
    run.Warnings.bLoadCaseLost = true;
  }
  return word.value_or("ST");
}

}  // namespace

bool ConvertCombinations(Conversion& run) {
  const auto& rows = run.Source.Rows<T_COMB_D>();
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  auto& combinations = run.Target.Table<T_NGT_COMB_D>();
  T_NGT_COMB_D current;
  Text previousName;
  bool isSkipping = false;
  for (std::uint32_t key = 1; key <= rows.Count(); ++key) {
    const T_COMB_D row = RecordOr(rows.Find(key), T_COMB_D{});
    if (!loadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(row.CaseName)) {
      // Meant so: a term without a static load case takes its combination with it, and the one
      // before it too, if that was waiting for this row to be stored.
      isSkipping = true;
      previousName = row.ComboName;
      current = {};
      continue;
    }
    const bool isSameCombination = row.ComboName == previousName;
    if (isSkipping && isSameCombination) {
      continue;
    }
    if (!isSameCombination && key > 1) {
      if (isSkipping) {
        isSkipping = false;
      } else {
        combinations.Append(std::exchange(current, {}));
      }
    }
    current.NAME = row.ComboName;
    current.iTYPE = CombinationType(row.ComboType).value_or(current.iTYPE);
    current.Terms.push_back({AnalysisWord(run, row.CaseType), row.CaseName, row.ScaleFactor});
    previousName = row.ComboName;
    if (key == rows.Count()) {
      combinations.Append(std::exchange(current, {}));
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

}  // namespace s2k2ngt
