#include "analysis/cases.h"

#include "analysis/buckling.h"
#include "analysis/modal.h"
#include "analysis/spectrum.h"
#include "analysis/structure.h"
#include "analysis/time_history.h"
#include "bridge/moving_loads.h"
#include "loads/load_cases.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// What the walk over the analysis cases carries from one to the next.
struct CaseWalk {
  Conversion& Run;
  /// Linear static cases that make no difference when their name is met again.
  std::unordered_set<Text> SettledStaticCases;
  ModalHistoryLoads ModalLoads;
};

void ConvertLinearStatic(CaseWalk& walk, const T_ANAL_D& analysis) {
  if (!walk.SettledStaticCases.contains(analysis.Case) &&
      !ConvertStaticCase(walk.Run, analysis.Case)) {
    walk.SettledStaticCases.insert(analysis.Case);
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

/// A kind of analysis case.
struct Kind {
  Text Type;
  void (*Convert)(CaseWalk& walk, const T_ANAL_D& analysis);
};

constexpr std::array kKinds = std::to_array<Kind>({
    {"LinStatic", ConvertLinearStatic},
    {"LinModal", ConvertModal},
    {"LinRespSpec", ConvertResponseSpectrum},
    {"LinModHist", ConvertModalHistory<Linearity::Linear>},
    {"NonModHist", ConvertModalHistory<Linearity::Nonlinear>},
    {"LinDirHis", ConvertDirectHistory<Linearity::Linear>},  // the source's word, without a last t
    {"NonDirHist", ConvertDirectHistory<Linearity::Nonlinear>},
    {"LinMoving", ConvertMovingLoad},
    {"LinBuckling", ConvertBuckling},
});

}  // namespace

bool ConvertAnalysisCases(Conversion& run) {
  const auto& analyses = run.Source.Rows<T_ANAL_D>();
  if (analyses.Empty()) {
    return true;
  }
  CaseWalk walk{run, {}, {}};
  for (const auto [key, analysis] : analyses.Walk()) {
    const auto* const kind = std::ranges::find(kKinds, analysis.Type, &Kind::Type);
    if (kind != kKinds.end()) {
      kind->Convert(walk, analysis);
    }
  }
  ConvertStructure(run);
  return true;
}

}  // namespace s2k2ngt
