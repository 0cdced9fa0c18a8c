#include "analysis/cases.h"

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
};

void ConvertLinearStatic(CaseWalk& walk, const T_ANAL_D& analysis) {
  if (!walk.SettledStaticCases.contains(analysis.Case) &&
      !ConvertStaticCase(walk.Run, analysis.Case)) {
    walk.SettledStaticCases.insert(analysis.Case);
  }
}

/// A kind of analysis case.
struct Kind {
  Text Type;
  void (*Convert)(CaseWalk& walk, const T_ANAL_D& analysis);
};

constexpr std::array kKinds = std::to_array<Kind>({
    {"LinStatic", ConvertLinearStatic},
});

}  // namespace

bool ConvertAnalysisCases(Conversion& run) {
  CaseWalk walk{run, {}};
  for (const auto [key, analysis] : run.Source.Rows<T_ANAL_D>().Walk()) {
    const auto* const kind = std::ranges::find(kKinds, analysis.Type, &Kind::Type);
    if (kind != kKinds.end()) {
      kind->Convert(walk, analysis);
    }
  }
  return true;
}

}  // namespace s2k2ngt
