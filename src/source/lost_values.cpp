#include "source/lost_values.h"

#include "source/str_parser.h"

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

/// Where a row goes on in another line, the next name stands right behind the value.
bool RunsIntoNextName(Text value) { return value.find('=') != Text::npos; }

constexpr std::array kIsOfNumber = [] {
  std::array<bool, 256> isOfNumber{};
  for (const char sign : Text("0123456789+-.eE")) {
    isOfNumber.at(static_cast<unsigned char>(sign)) = true;
  }
  return isOfNumber;
}();

}  // namespace

bool SaysNoMoreThan(Text neutral, Text value) {
  Text word = TrimLeft(value);
  if (word.empty()) {
    return true;
  }
  const bool isNumber = IsDigitChar(word.front()) || Text("+-.").find(word.front()) != Text::npos;
  if (isNumber && IsDigitChar(neutral.front())) {
    return CStrParser::FirstDouble(word) == CStrParser::FirstDouble(neutral);
  }
  if (RunsIntoNextName(word)) {
    word = word.substr(0, neutral.size());
  }
  return ToUpper(word) == ToUpper(neutral);
}

bool IsNoWholeNumber(Text value) {
  const Text word = TrimLeft(value);
  const bool isWhole = std::ranges::all_of(
      word, [](char sign) { return kIsOfNumber.at(static_cast<unsigned char>(sign)); });
  return word.empty() || (!isWhole && !RunsIntoNextName(word));
}

bool IsNeitherYesNorNo(Text value) {
  return value != "Yes" && value != "No" && !CStrParser::FirstIsYes(value) &&
         !RunsIntoNextName(value);
}

bool IsOfNoConsequence(Text name, Text value) {
  const std::string upper = ToUpper(TrimLeft(name));
  return std::ranges::find(kNamesOfNoModel, upper) != kNamesOfNoModel.end() ||
         std::ranges::any_of(kValuesOfNothing,
                             [&](Text nothing) { return SaysNoMoreThan(nothing, value); });
}

}  // namespace s2k2ngt
