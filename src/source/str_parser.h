#pragma once

#include "common/text.h"

#include <array>
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

/// A row made ready for looking up the values of many keys. One scan may serve row after row.
class RowScan {
 public:
  void SetRow(Text row);

  /// The text behind the first occurrence of `key`, up to the last blank before the next equals
  /// sign, without trailing white space; nothing when the row does not hold the key.
  ///
  /// `key` ends in its equals sign and holds no other. The word before the sign has no boundary:
  /// "Joint=" is met inside "PanelJoint=" and "Z=" inside "GlobalZ=", if they stand first. Where
  /// that would do harm, a table asks for the key with a blank before it.
  std::optional<Text> FindValue(Text key) const;

 private:
  /// The place of the sign behind the one that stands at `place` and is the `index`-th.
  std::size_t SignBehind(std::size_t index, std::size_t place) const;

  // The places of a row's first equals signs. Rows of the source program have fewer; a longer one
  // is searched on from there.
  static constexpr std::size_t kNotedAtMost = 64;

  Text m_Row;
  std::array<std::size_t, kNotedAtMost> m_EqualsSigns{};
  std::size_t m_Noted = 0;
};

/// Gets values out of rows. It holds no state.
class CStrParser {
 public:
  /// Appends the numbers of the key's value; false, and nothing appended, when the row does not
  /// hold the key.
  static bool GetDoubles(const RowScan& row, Text key, std::vector<double>& values);
  /// The same for texts.
  static bool GetStrings(const RowScan& row, Text key, std::vector<std::string>& values);

  /// Splits a value at its commas, quotes and, in a list, blanks removed. A value without a comma
  /// is one number as atof reads it; each piece of a list is an expression. So "1/2" is 1 and
  /// "1/2,3" is 0.5 and 3; both are meant.
  static void SplitDoubles(Text text, std::vector<double>& values);
  static void SplitStrings(Text text, std::vector<std::string>& values);

  /// The first number of a value, without the cost of a list.
  static double FirstDouble(Text value);
  /// The first text of a value. It is part of `value` or of `store`.
  static Text FirstString(Text value, TextStore& store);

  /// The value of sums, differences, products and quotients taken strictly from left to right:
  /// 1+2*3 is 9. A sign behind an "E", a blank or nothing belongs to its number.
  static double EvalExpr(Text text);

  /// True for "Yes" in exactly this form.
  static bool IsYes(Text value) { return value == "Yes"; }
};

}  // namespace s2k2ngt
