#pragma once

#include "common/text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace s2k2ngt {

/// One complete row of a table: pairs `Key=Value` in any order, divided by blanks.
struct SourceRow {
  Text Content;
  std::uint64_t Line = 0;  // the line of the file on which the row begins
};

/// The text behind the first occurrence of `key` in a row, up to the last blank before the next
/// equals sign, without trailing white space; nothing when the row does not hold the key. `key`
/// ends in its equals sign. RowReader finds the same for all keys of a table at once.
std::optional<Text> FindValue(Text row, Text key);

/// Gets values out of rows. It holds no state.
class CStrParser {
 public:
  /// Appends the numbers of the key's value; false, and nothing appended, when the row does not
  /// hold the key.
  static bool GetDoubles(Text row, Text key, std::vector<double>& values);
  /// The same for texts.
  static bool GetStrings(Text row, Text key, std::vector<std::string>& values);

  /// Splits a value at its commas, quotes and, in a list, blanks removed. A value without a comma
  /// is one number as atof reads it; each piece of a list is an expression. So "1/2" is 1 and
  /// "1/2,3" is 0.5 and 3; both are meant.
  static void SplitDoubles(Text text, std::vector<double>& values);
  static void SplitStrings(Text text, std::vector<std::string>& values);

  /// The first number of a value, without the cost of a list.
  static double FirstDouble(Text value);
  /// The first text of a value, kept in `store`.
  static Text FirstString(Text value, TextStore& store);
  /// True when that text is "Yes" in exactly this form.
  static bool FirstIsYes(Text value);

  /// The value of sums, differences, products and quotients taken strictly from left to right:
  /// 1+2*3 is 9. A sign behind an "E", a blank or nothing belongs to its number.
  static double EvalExpr(Text text);
};

}  // namespace s2k2ngt
