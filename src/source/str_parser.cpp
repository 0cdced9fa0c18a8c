#include "source/str_parser.h"

#include "common/numbers.h"

#include <algorithm>

namespace s2k2ngt {
namespace {

bool NeedsCleaning(Text value) {
  return std::any_of(value.begin(), value.end(),
                     [](char c) { return c == '\t' || c == '"' || c == ','; });
}

/// The value with tabs as blanks and without quotes; without any blank when it is a list.
std::string Cleaned(Text value) {
  std::string text(value);
  std::replace(text.begin(), text.end(), '\t', ' ');
  std::erase(text, '"');
  if (text.find(',') != std::string::npos) {
    std::erase(text, ' ');
  }
  return text;
}

/// The first text of a value that needs cleaning.
std::string FirstCleaned(Text value) {
  std::string text = Cleaned(value);
  text.resize(std::min(text.size(), text.find(',')));
  return text;
}

bool IsOperator(char c) { return c == '+' || c == '-' || c == '*' || c == '/'; }

double Combine(double left, char operation, double right) {
  switch (operation) {
    case '+':
      return left + right;
    case '-':
      return left - right;
    case '*':
      return left * right;
    default:
      return left / right;
  }
}

}  // namespace

std::optional<Text> FindValue(Text row, Text key) {
  const std::size_t place = row.find(key);
  if (place == Text::npos) {
    return std::nullopt;
  }
  Text value = row.substr(place + key.size());
  const std::size_t next = value.find('=');
  if (next != Text::npos) {
    // A blank right behind the key is not looked at: "Name= Next=1" has the value " Next=1".
    const std::size_t blank = value.substr(0, next).rfind(' ');
    if (blank != Text::npos && blank > 0) {
      value = value.substr(0, blank);
    }
  }
  return TrimRight(value);
}

bool CStrParser::GetDoubles(Text row, Text key, std::vector<double>& values) {
  const std::optional<Text> value = FindValue(row, key);
  if (value) {
    SplitDoubles(*value, values);
  }
  return value.has_value();
}

bool CStrParser::GetStrings(Text row, Text key, std::vector<std::string>& values) {
  const std::optional<Text> value = FindValue(row, key);
  if (value) {
    SplitStrings(*value, values);
  }
  return value.has_value();
}

void CStrParser::SplitDoubles(Text text, std::vector<double>& values) {
  std::vector<std::string> pieces;
  SplitStrings(text, pieces);
  for (const std::string& piece : pieces) {
    values.push_back(pieces.size() == 1 ? ParseReal(piece) : EvalExpr(piece));
  }
}

void CStrParser::SplitStrings(Text text, std::vector<std::string>& values) {
  const std::string cleaned = Cleaned(text);
  std::size_t first = 0;
  for (std::size_t comma = cleaned.find(','); comma != std::string::npos;
       comma = cleaned.find(',', first)) {
    values.push_back(cleaned.substr(first, comma - first));
    first = comma + 1;
  }
  values.push_back(cleaned.substr(first));
}

double CStrParser::FirstDouble(Text value) {
  double number = 0.0;
  if (ParseWholeReal(value, number)) {
    return number;  // as nearly all are
  }
  if (!NeedsCleaning(value)) {
    return ParseReal(value);
  }
  const std::string cleaned = Cleaned(value);
  const std::size_t comma = cleaned.find(',');
  return comma == std::string::npos ? ParseReal(cleaned) : EvalExpr(Text(cleaned).substr(0, comma));
}

Text CStrParser::FirstString(Text value, TextStore& store) {
  return store.Keep(NeedsCleaning(value) ? Text(FirstCleaned(value)) : value);
}

bool CStrParser::FirstIsYes(Text value) {
  return NeedsCleaning(value) ? FirstCleaned(value) == "Yes" : value == "Yes";
}

double CStrParser::EvalExpr(Text text) {
  text = TrimRight(text);
  std::size_t operand = 0;
  char operation = '\0';
  double result = 0.0;
  const auto take = [&](std::size_t end) {
    const double value = ParseReal(text.substr(operand, end - operand));
    result = operation == '\0' ? value : Combine(result, operation, value);
  };
  for (std::size_t at = 1; at + 1 < text.size(); ++at) {
    const char before = text[at - 1];
    if (IsOperator(text[at]) && before != 'E' && before != 'e' && before != ' ') {
      take(at);
      operation = text[at];
      operand = at + 1;
    }
  }
  take(text.size());
  return result;
}

}  // namespace s2k2ngt
