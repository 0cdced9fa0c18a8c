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
