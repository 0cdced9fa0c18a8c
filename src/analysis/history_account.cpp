#include "analysis/history_account.h"

#include "analysis/cases.h"
#include "analysis/converted_rows.h"
#include "common/value_map.h"

namespace s2k2ngt {
namespace {

/// The kinds of analysis cases and of damping that go with a definition.
template <class Definition>
struct HistoryTables;

template <>
struct HistoryTables<T_MDH1_D> {
  static constexpr Text kLinear = kLinearModalHistory;
  static constexpr Text kNonlinear = kNonlinearModalHistory;
  using Damping = T_MDH4_D;
};

template <>
struct HistoryTables<T_DRH1_D> {
  static constexpr Text kLinear = kLinearDirectHistory;
  static constexpr Text kNonlinear = kNonlinearDirectHistory;
  using Damping = T_DRH3_D;
};

}  // namespace

template <class Definition>
bool IsHistoryAnalysed(Conversion& run, Text name) {
  using Tables = HistoryTables<Definition>;
  return IsAnalysed(run, name, Tables::kLinear) || IsAnalysed(run, name, Tables::kNonlinear);
}
template bool IsHistoryAnalysed<T_MDH1_D>(Conversion& run, Text name);
template bool IsHistoryAnalysed<T_DRH1_D>(Conversion& run, Text name);

template <class Definition>
std::optional<Why> WhyHistoryIsLost(Conversion& run, Text name) {
  if (!IsHistoryAnalysed<Definition>(run, name)) {
    return Why("analysis-case-missing");
  }
  const auto& histories = run.Target.Table<T_NGT_THLC_D>();
  return histories.FirstWith<&T_NGT_THLC_D::NAME>(name) ? std::nullopt
                                                        : std::optional(Why("case-not-converted"));
}
template std::optional<Why> WhyHistoryIsLost<T_MDH1_D>(Conversion& run, Text name);
template std::optional<Why> WhyHistoryIsLost<T_DRH1_D>(Conversion& run, Text name);

namespace {

/// Why a definition whose case is asked for is not converted, beside its proportional damping.
std::optional<Why> WhyKindIsLost(const T_MDH1_D& definition) {
  return definition.HasTargetDamping() ? std::nullopt
                                       : std::optional(Why("history-damping-unknown"));
}
std::optional<Why> WhyKindIsLost(const T_DRH1_D& /*definition*/) { return {}; }

bool IsProportional(const T_MDH1_D& definition) {
  return ProportionalKindOf(definition.DampingType).has_value();
}
bool IsProportional(const T_DRH1_D& /*definition*/) { return true; }

/// What ended the definitions of a case that has its damping.
constexpr Why WhyEnded(const T_MDH1_D& /*definition*/) { return "behind-lost-row"; }
constexpr Why WhyEnded(const T_DRH1_D& /*definition*/) { return "integration-not-newmark"; }

template <class Definition>
Why WhyDefinitionIsLost(Conversion& run, const Definition& definition) {
  using Damping = typename HistoryTables<Definition>::Damping;
  if (!IsHistoryAnalysed<Definition>(run, definition.Case)) {
    return "analysis-case-missing";
  }
  if (const auto why = WhyKindIsLost(definition)) {
    return *why;
  }
  if (IsProportional(definition) && !HasProportionalDamping<Damping>(run.Source, definition.Case)) {
    return "damping-without-values";
  }
  return WhyEnded(definition);
}

template <class Definition>
void CloseHistoryDefinitions(Conversion& run) {
  ValueMap<Text, bool> isDefined;  // by the name of the case
  for (const auto [key, definition] : run.Source.Rows<Definition>().Walk()) {
    if (!WasConverted<Definition>(run, key)) {
      run.Accounts.Note<Definition>(key, WhyDefinitionIsLost(run, definition));
    } else if (!isDefined.Meet(definition.Case).IsNew) {
      run.Accounts.Note<Definition>(key, "history-defined-again");
    }
  }
}

/// Notes the parameters of cases that are linear or lost, and all but the first of a case.
template <class Parameters, class Definition>
void CloseParameters(Conversion& run) {
  const auto& rows = run.Source.Rows<Parameters>();
  for (const auto [key, row] : rows.Entries()) {
    if (const auto why = WhyHistoryIsLost<Definition>(run, row.Case)) {
      run.Accounts.Note<Parameters>(key, *why);
    } else if (!IsAnalysed(run, row.Case, HistoryTables<Definition>::kNonlinear)) {
      run.Accounts.Note<Parameters>(key, "no-part-in-its-case");
    } else if (rows.template FirstWith<&Parameters::Case>(row.Case)->Key != key) {
      run.Accounts.Note<Parameters>(key, "case-defined-again");
    }
  }
}

void CloseMethods(Conversion& run) {
  const auto& rows = run.Source.Rows<T_DRH4_D>();
  for (const auto [key, row] : rows.Entries()) {
    if (!IsHistoryAnalysed<T_DRH1_D>(run, row.Case)) {
      run.Accounts.Note<T_DRH4_D>(key, "analysis-case-missing");
    } else if (rows.FirstWith<&T_DRH4_D::Case>(row.Case)->Key != key) {
      run.Accounts.Note<T_DRH4_D>(key, "case-defined-again");
    } else if (!row.IsTargetMethod()) {
      run.Accounts.Note<T_DRH4_D>(key, "integration-not-newmark");
    } else if (const auto why = WhyHistoryIsLost<T_DRH1_D>(run, row.Case)) {
      run.Accounts.Note<T_DRH4_D>(key, *why);
    }
  }
  for (const auto [key, definition] : run.Source.Rows<T_DRH1_D>().Entries()) {
    if (WasConverted<T_DRH1_D>(run, key) && !rows.FirstWith<&T_DRH4_D::Case>(definition.Case)) {
      run.Accounts.Note<T_DRH1_D>(key, "value-not-stated");
    }
  }
}

}  // namespace

void CloseTimeHistories(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<T_MDH1_D>().Entries()) {
    const bool isTransient = T_MDH1_D::IsTransient(row.HistoryType);
    if (!row.MotionType.empty() && T_MDH1_D::IsTransient(row.MotionType) != isTransient) {
      run.Accounts.Note<T_MDH1_D>(key, "history-motion-differs");
    }
  }
  CloseHistoryDefinitions<T_MDH1_D>(run);
  CloseHistoryDefinitions<T_DRH1_D>(run);
  CloseParameters<T_MDH6_D, T_MDH1_D>(run);
  CloseParameters<T_DRH5_D, T_DRH1_D>(run);
  CloseMethods(run);
}

}  // namespace s2k2ngt
