#pragma once

#include "common/text.h"
#include "source/row_grammar.h"
#include "support/value_in_row.h"

#include <optional>
#include <type_traits>

// The reading of a row as its rules say it: for every key the row is searched from its beginning.

namespace s2k2ngt {

/// Reads rows into records of one kind.
template <class Record>
class RowReader {
 public:
  explicit RowReader(TextStore& texts, bool readsNotedKeys = false)
      : m_Texts(texts), m_ReadsNotedKeys(readsNotedKeys) {}

  Record Read([[maybe_unused]] Text row) {
    Record record;
    if constexpr (!std::is_empty_v<Record>) {
      for (const RowKey<Record>& key : kRowKeys<Record>) {
        if (!(m_ReadsNotedKeys ? key.IsRead() : key.IsConverted())) {
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
  [[maybe_unused]] bool m_ReadsNotedKeys;
};

}  // namespace s2k2ngt
