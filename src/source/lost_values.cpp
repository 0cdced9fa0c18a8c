#include "source/lost_values.h"

#include "common/numbers.h"

#include <algorithm>
#include <array>

namespace s2k2ngt {
namespace {

/// Names under which tables say nothing of a structure, or nothing but what follows from the rest.
constexpr std::array kNamesOfNoModel =
    std::to_array<Text>({"CENTROIDX=", "CENTROIDY=", "CENTROIDZ=", "COLOR=", "GUID=", "NOTES=",
                         "NUMJOINTS=", "PERIMETER="});

/// Values by which a row says that it does without something.
constexpr std::array kValuesOfNothing =
    std::to_array<Text>({"0", "DEFAULT", "GLOBAL", "NO", "NONE", "ZERO"});

}  // namespace

bool SaysNoMoreThan(Text neutral, Text value) {
  const Text word = TrimLeft(value);
  if (word.empty()) {
    return true;
  }
  double number = 0.0;
  double neutralNumber = 0.0;
  if (ParseWholeReal(neutral, neutralNumber) && ParseWholeReal(word, number)) {
    return number == neutralNumber;
  }
  return ToUpper(word) == ToUpper(neutral);
}

bool IsOfNoConsequence(Text name, Text value) {
  const std::string upper = ToUpper(TrimLeft(name));
  return std::ranges::find(kNamesOfNoModel, upper) != kNamesOfNoModel.end() ||
         std::ranges::any_of(kValuesOfNothing,
                             [&](Text nothing) { return SaysNoMoreThan(nothing, value); });
}

}  // namespace s2k2ngt
