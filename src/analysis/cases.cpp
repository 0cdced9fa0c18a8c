#include "analysis/cases.h"

#include "analysis/buckling.h"
#include "analysis/modal.h"
#include "analysis/spectrum.h"
#include "analysis/structure.h"
#include "analysis/time_history.h"
#include "bridge/moving_loads.h"
#include "common/worked_out.h"
#include "loads/load_cases.h"

#include <algorithm>
#include <array>
#include <optional>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// What the walk over the analysis cases carries from one to the next.
struct CaseWalk {
  Conversion& Run;
  /// Whether a linear static case makes no difference when its name is met again.
  WorkedOut<Text, bool> IsStaticCaseSettled;
  ModalHistoryLoads ModalLoads;
};

void ConvertLinearStatic(CaseWalk& walk, const T_ANAL_D& analysis) {
  const auto [isSettled, isNew] = walk.IsStaticCaseSettled.Meet(analysis.Case);
  if (!isSettled) {
    isSettled = !ConvertStaticCase(walk.Run, analysis.Case);
  }
}

void ConvertModal(CaseWalk& walk, const T_ANAL_D& /*analysis*/) { ConvertModalCase(walk.Run); }

void ConvertResponseSpectrum(CaseWalk& walk, const T_ANAL_D& /*analysis*/) {
  ConvertSpectrumCase(walk.Run);
}

template <Linearity linearity>
void ConvertModalHistory(CaseWalk& walk, const T_ANAL_D& analysis) {
  ConvertModalHistory(walk.Run, analysis.Case, linearity, analysis.InitialCond, walk.ModalLoads);
}

template <Linearity linearity>
void ConvertDirectHistory(CaseWalk& walk, const T_ANAL_D& analysis) {
  ConvertDirectHistory(walk.Run, analysis.Case, linearity, analysis.InitialCond);
}

void ConvertMovingLoad(CaseWalk& walk, const T_ANAL_D& /*analysis*/) {
  ConvertMovingControl(walk.Run);
}

void ConvertBuckling(CaseWalk& walk, const T_ANAL_D& analysis) {
  ConvertBucklingCase(walk.Run, analysis.Case);
}

/// Why an analysis case of a kind does not go over as it stands; nothing if it does.
using Lost = std::optional<Why>;

Lost WhyStaticIsLost(Conversion& run, const T_ANAL_D& analysis) {
  const auto& loads = run.Source.Rows<T_STC1_D>();
  const auto ofCase = loads.AllWith<&T_STC1_D::Case>(analysis.Case);
  if (ofCase.empty()) {
    return Why("case-without-loads");
  }
  if (ofCase.size() > 1) {
    return Why("case-of-several-loads");
  }
  const bool bearsItsName = loads.AtWalk(ofCase.front()).Value.LoadName == analysis.Case;
  return bearsItsName ? Lost() : Why("case-of-another-name");
}

Lost WhyModalIsLost(Conversion& run, const T_ANAL_D& analysis) {
  const T_MDL1_D* const definition = run.Source.Rows<T_MDL1_D>().Find(1);
  if (definition == nullptr) {
    return Why("case-without-definition");
  }
  if (analysis.Case == definition->Case) {
    return {};
  }
  return IsAnalysed(run, definition->Case, kModal) ? Why("definition-not-first")
                                                   : Why("definition-of-another-case");
}

Lost WhySpectrumIsLost(Conversion& run, const T_ANAL_D& analysis) {
  if (run.Source.Rows<T_RSP1_D>().Empty()) {
    return Why("case-without-definition");
  }
  const auto& loads = run.Target.Table<T_NGT_SPLC_D>();
  return loads.FirstWith<&T_NGT_SPLC_D::CASE>(analysis.Case) ? Lost() : Why("case-without-loads");
}

template <class Definition>
Lost WhyHistoryCaseIsLost(Conversion& run, const T_ANAL_D& analysis) {
  if (run.Target.Table<T_NGT_THLC_D>().FirstWith<&T_NGT_THLC_D::NAME>(analysis.Case)) {
    return analysis.InitialCond.empty() ? Why("value-not-stated") : Lost();
  }
  const bool isDefined = run.Source.Rows<Definition>()
                             .template FirstWith<&Definition::Case>(analysis.Case)
                             .has_value();
  return isDefined ? Why("case-not-converted") : Why("case-without-definition");
}

Lost WhyMovingIsLost(Conversion& run, const T_ANAL_D& analysis) {
  const auto& loads = run.Target.Table<T_NGT_MVLC_D>();
  const auto keys = loads.KeysWith<&T_NGT_MVLC_D::NAME>(analysis.Case);
  // Keys beyond the count are not written.
  const bool isWritten = !keys.empty() && keys.front() <= loads.Count();
  return isWritten ? Lost() : Why("case-not-converted");
}

Lost WhyBucklingIsLost(Conversion& run, const T_ANAL_D& analysis) {
  const auto& definitions = run.Source.Rows<T_BKL1_D>();
  const auto& control = run.Target.Control<T_NGT_BKCT_D>();
  if (definitions.Empty()) {
    return Why("case-without-definition");
  }
  if (!control.bWrite) {
    return Why("case-without-loads");
  }
  if (control.Case != analysis.Case) {
    return Why("definition-not-first");
  }
  return definitions.FirstWith<&T_BKL1_D::Case>(analysis.Case) ? Lost() : Why("value-not-stated");
}

/// A kind of analysis case.
struct Kind {
  Text Type;
  void (*Convert)(CaseWalk& walk, const T_ANAL_D& analysis);
  Lost (*WhyLost)(Conversion& run, const T_ANAL_D& analysis);
  /// Whether it starts where its initial condition says; others start unstressed.
  bool HasInitialCondition = false;
};

constexpr std::array kKinds = std::to_array<Kind>({
    {kLinearStatic, ConvertLinearStatic, WhyStaticIsLost},
    {kModal, ConvertModal, WhyModalIsLost},
    {kResponseSpectrum, ConvertResponseSpectrum, WhySpectrumIsLost},
    {kLinearModalHistory, ConvertModalHistory<Linearity::Linear>, WhyHistoryCaseIsLost<T_MDH1_D>,
     true},
    {kNonlinearModalHistory, ConvertModalHistory<Linearity::Nonlinear>,
     WhyHistoryCaseIsLost<T_MDH1_D>, true},
    {kLinearDirectHistory, ConvertDirectHistory<Linearity::Linear>, WhyHistoryCaseIsLost<T_DRH1_D>,
     true},
    {kNonlinearDirectHistory, ConvertDirectHistory<Linearity::Nonlinear>,
     WhyHistoryCaseIsLost<T_DRH1_D>, true},
    {kMovingLoad, ConvertMovingLoad, WhyMovingIsLost},
    {kBuckling, ConvertBuckling, WhyBucklingIsLost},
});

/// The kind of an analysis case; null for one that is passed over.
const Kind* KindOf(const T_ANAL_D& analysis) {
  const auto* const kind = std::ranges::find(kKinds, analysis.Type, &Kind::Type);
  return kind == kKinds.end() ? nullptr : kind;
}

}  // namespace

bool ConvertAnalysisCases(Conversion& run) {
  const auto& analyses = run.Source.Rows<T_ANAL_D>();
  if (analyses.Empty()) {
    return true;
  }
  CaseWalk walk{run, {}, {}};
  for (const auto [key, analysis] : analyses.Walk()) {
    if (const Kind* const kind = KindOf(analysis)) {
      kind->Convert(walk, analysis);
    }
  }
  ConvertStructure(run);
  return true;
}

// ---- Account ----

bool IsAnalysed(Conversion& run, Text name, Text type) {
  return run.Source.Rows<T_ANAL_D>()
      .FirstWith<&T_ANAL_D::CaseOfType>(QualifiedLabel{name, type})
      .has_value();
}

namespace {

/// True when a case goes by modes that are not those in the output.
bool NeedsOtherModes(Conversion& run, const T_ANAL_D& analysis) {
  if (analysis.ModalCase.empty() || ToUpper(analysis.ModalCase) == "NONE") {
    return false;
  }
  const T_MDL1_D* const written = run.Source.Rows<T_MDL1_D>().Find(1);
  return !run.Target.Control<T_NGT_EGCT_D>().bWrite || written == nullptr ||
         written->Case != analysis.ModalCase;
}

}  // namespace

void CloseAnalysisCases(Conversion& run) {
  for (const auto [key, analysis] : run.Source.Rows<T_ANAL_D>().Entries()) {
    const Kind* const kind = KindOf(analysis);
    if (kind == nullptr) {
      run.Accounts.Note<T_ANAL_D>(key, analysis.Type.empty() ? Why("analysis-settings")
                                                             : Why("analysis-case-of-other-kind"));
      continue;
    }
    if (const Lost why = kind->WhyLost(run, analysis)) {
      run.Accounts.Note<T_ANAL_D>(key, *why);
    }
    if (!kind->HasInitialCondition && !analysis.InitialCond.empty() &&
        analysis.InitialCond != kStartsUnstressed) {
      run.Accounts.Note<T_ANAL_D>(key, "initial-condition-lost");
    }
    if (NeedsOtherModes(run, analysis)) {
      run.Accounts.Note<T_ANAL_D>(key, "modes-of-another-case");
    }
  }
}

}  // namespace s2k2ngt
