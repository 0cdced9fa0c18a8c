// Rows of a table, their values, numbers and expressions. The reader that goes through a row once
// is held against a search for each key, the short ways of reading values against the long ones,
// and numbers and expressions against the C library's.
#include "common/numbers.h"
#include "source/row_grammar.h"
#include "source/row_reader.h"
#include "source/str_parser.h"
#include "support/value_in_row.h"
#include "target.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

using s2k2ngt::CStrParser;
using s2k2ngt::Text;

namespace {

/// A row whose keys are parts of each other, with a field of each type.
struct KeysRow {
  Text Z = "none";
  Text GlobalZ = "none";
  Text SeparateZ = "none";
  double Joint = -1.5;
  std::int32_t PanelJoint = -2;
  bool U1 = true;
  bool HasM = false;
  double M = 0.25;
};

}  // namespace

template <>
inline constexpr s2k2ngt::RowKey<KeysRow> s2k2ngt::kRowKeys<KeysRow>[] = {
    {"Z=", &KeysRow::Z},          {"GlobalZ=", &KeysRow::GlobalZ},
    {" Z=", &KeysRow::SeparateZ}, s2k2ngt::Unread{"T="},
    {"Joint=", &KeysRow::Joint},  {"PanelJoint=", &KeysRow::PanelJoint},
    {"U1=", &KeysRow::U1},        s2k2ngt::States{"M=", &KeysRow::HasM},
    {"M=", &KeysRow::M}};

namespace {

/// Texts of the C library end at a zero; rows hold none.
std::string WithoutZeros(Text text) {
  std::string without(text);
  std::erase(without, '\0');
  return without;
}

bool AreSame(double left, double right) {
  return (left != left && right != right) || std::memcmp(&left, &right, sizeof left) == 0;
}

void RequireSame(double value, double wanted, const char* what, const std::string& text) {
  Require(AreSame(value, wanted), std::string(what) + " of \"" + text + "\": " +
                                      std::to_string(value) + " and not " + std::to_string(wanted));
}

std::int32_t LiteralInteger(const std::string& text) {
  // Beyond its own range strtol gives the nearest that fits, which the 32 bits then do again.
  const long value = std::strtol(text.c_str(), nullptr, 10);
  return static_cast<std::int32_t>(std::clamp<long>(value, std::numeric_limits<std::int32_t>::min(),
                                                    std::numeric_limits<std::int32_t>::max()));
}

/// The value of an expression with a table of its operators, as its rules say it.
double LiteralExpression(std::string text) {
  while (!text.empty() && s2k2ngt::IsSpace(text.back())) {
    text.pop_back();
  }
  for (char& c : text) {
    c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  std::map<std::size_t, char> operators;
  for (std::size_t at = 1; at + 1 < text.size(); ++at) {
    if (std::strchr("+-*/", text[at]) != nullptr && text[at - 1] != 'E' && text[at - 1] != ' ') {
      operators[at] = text[at];
    }
  }
  operators[text.size()] = '\0';
  double result = 0.0;
  std::size_t first = 0;
  char toTheLeft = '\0';
  for (const auto& [place, sign] : operators) {
    const double operand = std::strtod(text.substr(first, place - first).c_str(), nullptr);
    switch (toTheLeft) {
      case '+':
        result += operand;
        break;
      case '-':
        result -= operand;
        break;
      case '*':
        result *= operand;
        break;
      case '/':
        result /= operand;
        break;
      default:
        result = operand;
        break;
    }
    toTheLeft = sign;
    first = place + 1;
  }
  return result;
}

void CompareNumbers(const std::string& text) {
  RequireSame(s2k2ngt::ParseReal(text), std::strtod(text.c_str(), nullptr), "the number", text);
  double whole = 0.0;
  if (s2k2ngt::ParseWholeReal(text, whole)) {
    RequireSame(whole, std::strtod(text.c_str(), nullptr), "the whole number", text);
  }
  RequireSame(s2k2ngt::ParseInteger(text), LiteralInteger(text), "the integer", text);
  RequireSame(CStrParser::EvalExpr(text), LiteralExpression(text), "the expression", text);
}

/// What the parser makes of a value by its long way.
struct Value {
  std::string String;
  double Number = 0.0;
};

Value FirstOfLists(const std::string& row, Text key) {
  std::vector<std::string> strings;
  std::vector<double> numbers;
  Require(CStrParser::GetStrings(row, key, strings) && CStrParser::GetDoubles(row, key, numbers),
          "a key that was found is not found");
  Require(!strings.empty() && strings.size() == numbers.size(), "lists of different sizes");
  return {strings.front(), numbers.front()};
}

class RowComparison {
 public:
  void Compare(const std::string& row) {
    const KeysRow read = m_Reader.Read(m_Rows.Keep(row));
    CompareText(row, "Z=", read.Z);
    CompareText(row, "GlobalZ=", read.GlobalZ);
    CompareText(row, " Z=", read.SeparateZ);
    const auto joint = Searched(row, "Joint=");
    RequireSame(read.Joint, joint ? joint->Number : -1.5, "Joint", row);
    const auto panelJoint = Searched(row, "PanelJoint=");
    RequireSame(read.PanelJoint, panelJoint ? s2k2ngt::TruncateToInteger(panelJoint->Number) : -2,
                "PanelJoint", row);
    const auto u1 = Searched(row, "U1=");
    Require(read.U1 == (!u1 || u1->String == "Yes"), "U1 of " + row);
    const auto m = Searched(row, "M=");
    Require(read.HasM == m.has_value(), "M of " + row);
    RequireSame(read.M, m ? m->Number : 0.25, "M", row);
  }

 private:
  static std::optional<Value> Searched(const std::string& row, Text key) {
    const std::optional<Text> searched = ValueInRow(row, key);
    const std::optional<Text> found = s2k2ngt::FindValue(row, key);
    Require(found == searched, "FindValue of " + std::string(key) + " in " + row);
    if (!searched) {
      return std::nullopt;
    }
    CompareNumbers(std::string(*searched));
    return FirstOfLists(row, key);
  }

  static void CompareText(const std::string& row, Text key, Text read) {
    const auto wanted = Searched(row, key);
    Require(read == (wanted ? Text(wanted->String) : "none"), std::string(key) + " of " + row);
  }

  s2k2ngt::TextStore m_Rows;
  s2k2ngt::TextStore m_Texts;
  s2k2ngt::RowReader<KeysRow> m_Reader{m_Texts};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  RowComparison comparison;
  // Rows after each other, as the reader remembers the columns of the row before.
  while (!input.Empty()) {
    const Text rest = input.Rest();
    const std::string row = WithoutZeros(input.TakeText(std::min(rest.find('\n'), rest.size())));
    input.TakeText(1);
    comparison.Compare(row);
    CompareNumbers(row);
  }
  return 0;
}
