#pragma once

#include "common/text.h"
#include "source/row_grammar.h"
#include "support/value_in_row.h"

#include <optional>
#include <type_traits>
#include <vector>

// The reading of a row as its rules say it: for every key the row is searched from its beginning.

namespace s2k2ngt {

/// Reads rows into records of one kind.
template <class Record>
class RowReader {
 public:
  explicit RowReader(TextStore& texts, bool isAccountedFor = false)
      : m_Texts(texts), m_IsAccountedFor(isAccountedFor) {}

  Record Read([[maybe_unused]] Text row) {
    Record record;
    if constexpr (!std::is_empty_v<Record>) {
      for (const RowKey<Record>& key : kRowKeys<Record>) {
        if (!(m_IsAccountedFor ? key.IsStored() : key.IsConverted())) {
          continue;
        }
        if (const std::optional<Text> value = ValueInRow(row, key.Name())) {
          key.Store(*value, m_Texts, record);
        }
      }
    }
    return record;
  }

  /// Nothing: what is lost with a row is told by its reader alone.
  const std::vector<Why>& Lost() const { return m_Lost; }

 private:
  [[maybe_unused]] TextStore& m_Texts;
  [[maybe_unused]] bool m_IsAccountedFor;
  std::vector<Why> m_Lost;
};

}  // namespace s2k2ngt
