#pragma once

#include "account/reasons.h"
#include "common/text.h"
#include "source/lost_values.h"
#include "source/row_grammar.h"
#include "source/row_pairs.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <optional>
#include <type_traits>
#include <vector>

namespace s2k2ngt {

/// Reads rows of a table as records, each in a single pass.
///
/// A key's value is that behind the first occurrence of its text, as a search for it would find.
/// The word before the sign has no boundary: "Joint=" is met inside "PanelJoint=" and "Z=" inside
/// "GlobalZ=", if they stand first. Where that would do harm, a table asks for the key with a blank
/// before it.
///
/// The rows of a table list their keys in one order as a rule. So the reader keeps which keys the
/// words of a column end in, and compares the words alone with those of the row before.
template <class Record>
class RowReader {
 public:
  /// The rows must outlive the reader, and `texts` the records. What the account alone has a use
  /// for is read when there is one.
  explicit RowReader(TextStore& texts, bool isAccountedFor = false)
      : m_Texts(texts), m_Keys(isAccountedFor ? kNotedKeys : kConvertedKeys) {}

  Record Read([[maybe_unused]] Text row) {
    static_assert(!std::is_same_v<decltype(kRowKeys<Record>), const NoKeysAreDeclared>,
                  "declare the record's keys beside it, in a kRowKeys");
    Record record;
    if constexpr (!std::is_empty_v<Record>) {
      m_Lost.clear();
      KeySet wanted = m_Keys;
      RowPairs pairs(row);
      for (std::size_t column = 0; wanted != 0 && pairs.Next(); ++column) {
        for (KeySet met = wanted & KeysOf(pairs.Word(), column); met != 0; met &= met - 1) {
          const auto key = static_cast<std::size_t>(std::countr_zero(met));
          if (key == kUnknown) {
            TakeUnknown(pairs.Word(), pairs.Value());
            break;
          }
          const Text value = pairs.Value();
          const RowKey<Record>& known = std::data(kRowKeys<Record>)[key];
          const bool isSound = known.Store(value, m_Texts, record);
          wanted ^= KeySet{1} << key;
          if (!isSound && (wanted >> kUnknown & 1U) != 0) {
            TakeLost(known, value);
          }
        }
      }
    }
    return record;
  }

  /// Why values of the row that was read last are lost. Of an account alone.
  const std::vector<Why>& Lost() const { return m_Lost; }

 private:
  using KeySet = std::uint64_t;  // a bit for each of kRowKeys

  /// Stands for a word that ends in none of the keys, of which a row may have any number.
  static constexpr std::size_t kUnknown = 63;

  struct Column {
    Text Word;
    KeySet Keys = 0;
  };

  static_assert(std::size(kRowKeys<Record>) <= kUnknown);
  template <bool (RowKey<Record>::*IsWanted)() const>
  static constexpr KeySet KeysThat() {
    KeySet keys = 0;
    KeySet key = 1;
    for (const RowKey<Record>& known : kRowKeys<Record>) {
      keys |= (known.*IsWanted)() ? key : 0;
      key <<= 1;
    }
    return keys;
  }
  static constexpr KeySet kLostKeys = KeysThat<&RowKey<Record>::IsLost>();
  static constexpr KeySet kNotedKeys =
      KeysThat<&RowKey<Record>::IsStored>() | kLostKeys | KeySet{1} << kUnknown;
  static constexpr KeySet kConvertedKeys = KeysThat<&RowKey<Record>::IsConverted>();

  /// The keys in which the word ends, or that for none.
  static KeySet KeysIn(Text word) {
    KeySet keys = 0;
    KeySet key = 1;
    for (const RowKey<Record>& known : kRowKeys<Record>) {
      keys |= word.ends_with(known.Name()) ? key : 0;
      key <<= 1;
    }
    return keys != 0 ? keys : KeySet{1} << kUnknown;
  }

  void TakeLost(const RowKey<Record>& key, Text value) {
    if (const std::optional<Why> why = key.IsLost() ? key.WhyLost(value) : key.WhyDoubtful(value)) {
      m_Lost.push_back(*why);
    }
  }
  void TakeUnknown(Text name, Text value) {
    constexpr Why kUnknownName = "value-of-unknown-name";
    if (!IsOfNoConsequence(name, value)) {
      m_Lost.push_back(kUnknownName);
    }
  }

  KeySet KeysOf(Text word, std::size_t column) {
    // More columns than any table has are those of a broken row.
    constexpr std::size_t kColumnsAtMost = 128;
    if (column >= kColumnsAtMost) {
      return KeysIn(word);
    }
    if (column == m_Columns.size()) {
      m_Columns.emplace_back();
    }
    Column& known = m_Columns[column];
    if (!AreSame(known.Word, word)) {
      known = {word, KeysIn(word)};
    }
    return known.Keys;
  }

  /// Compares words of 4 to 16 bytes, as nearly all are, without a call.
  static bool AreSame(Text left, Text right) {
    const std::size_t size = left.size();
    if (size != right.size()) {
      return false;
    }
    if (size >= 4 && size <= 8) {
      return AreSameAtEnds<std::uint32_t>(left, right);
    }
    if (size >= 8 && size <= 16) {
      return AreSameAtEnds<std::uint64_t>(left, right);
    }
    return left == right;
  }
  template <class Piece>
  static bool AreSameAtEnds(Text left, Text right) {
    const auto piece = [](const char* bytes) {
      Piece value = 0;
      std::memcpy(&value, bytes, sizeof value);
      return value;
    };
    const std::size_t last = left.size() - sizeof(Piece);
    return piece(left.data()) == piece(right.data()) &&
           piece(left.data() + last) == piece(right.data() + last);
  }

  TextStore& m_Texts;
  KeySet m_Keys;
  std::vector<Column> m_Columns;
  std::vector<Why> m_Lost;
};

}  // namespace s2k2ngt
