#include "analysis/cases.h"

#include "loads/load_cases.h"

#include <array>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// A kind of analysis case.
struct Kind {
  Text Type;
  void (*Convert)(Conversion& run, const T_ANAL_D& analysis);
};

constexpr std::array kKinds = std::to_array<Kind>({
    {"LinStatic",
     [](Conversion& run, const T_ANAL_D& analysis) { ConvertStaticCase(run, analysis.Case); }},
});

}  // namespace

bool ConvertAnalysisCases(Conversion& run) {
  for (const auto [key, analysis] : run.Source.Rows<T_ANAL_D>().Walk()) {
    for (const Kind& kind : kKinds) {
      if (kind.Type == analysis.Type) {
        kind.Convert(run, analysis);
      }
    }
  }
  return true;
}

}  // namespace s2k2ngt
