#pragma once

#include "common/text.h"
#include "source/row_grammar.h"

#include <cstddef>
#include <optional>
#include <type_traits>

// The reading of a row as its rules say it: for every key the row is searched from its beginning.

namespace s2k2ngt {

/// The text behind the first place of `key`, up to the last blank before the next equals sign.
inline std::optional<Text> ValueInRow(Text row, Text key) {
  const std::size_t place = row.find(key);
  if (place == Text::npos) {
    return std::nullopt;
  }
  Text value = row.substr(place + key.size());
  const std::size_t sign = value.find('=');
  if (sign != Text::npos) {
    // A blank right behind the key does not end its value.
    const std::size_t blank = value.rfind(' ', sign);
    if (blank != Text::npos && blank > 0) {
      value = value.substr(0, blank);
    }
  }
  while (!value.empty() && IsSpace(value.back())) {
    value.remove_suffix(1);
  }
  return value;
}

/// Reads rows into records of one kind.
template <class Record>
class RowReader {
 public:
  explicit RowReader(TextStore& texts) : m_Texts(texts) {}

  Record Read([[maybe_unused]] Text row) {
    Record record;
    if constexpr (!std::is_empty_v<Record>) {
      for (const RowKey<Record>& key : kRowKeys<Record>) {
        if (!key.IsRead()) {
          continue;
        }
        if (const std::optional<Text> value = ValueInRow(row, key.Name())) {
          key.Store(*value, m_Texts, record);
        }
      }
    }
    return record;
  }

 private:
  [[maybe_unused]] TextStore& m_Texts;
};

}  // namespace s2k2ngt
