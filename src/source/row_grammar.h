#pragma once

#include "common/numbers.h"
#include "common/text.h"
#include "source/str_parser.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace s2k2ngt {

// A table's row grammar is data: beside each row record stands the list of its keys,
//
//   template <>
//   inline constexpr RowKey<T_ASCA_D> kRowKeys<T_ASCA_D>[] = {{"Area=", &T_ASCA_D::Area},
//                                                             {"Section=", &T_ASCA_D::Section},
//                                                             Unread{"MatProp="}};
//
// and ParseRow runs it. A record is the defaults of its member initialisers until a key is met. A
// key that the row states with nothing behind it gives 0 or an empty text.

/// The name of a key as it stands in rows, with its equals sign. A name that could not be found, or
/// that would be found half, does not compile.
class KeyName {
 public:
  consteval KeyName(const char* name) : m_Name(name) {
    if (m_Name.find('=') != m_Name.size() - 1) {
      throw "a key ends in its equals sign and holds no other";
    }
  }
  constexpr operator Text() const { return m_Name; }

 private:
  Text m_Name;
};

/// A key that sets a field when the row states it at all, whatever its value.
template <class Record>
struct States {
  KeyName Name;
  bool Record::*Target;
};

template <class Record>
States(const char*, bool Record::*) -> States<Record>;

/// A key of the table that the conversion has no use for.
struct Unread {
  KeyName Name;
};

/// A key whose value goes into a field. The field's type says how the value is read: a Text as it
/// stands, a double as a number, an int32_t as a number without its fraction, a bool as true for
/// "Yes" alone.
template <class Record>
class RowKey {
 public:
  constexpr RowKey(KeyName name, Text Record::*target) : m_Name(name), m_Text(target) {}
  constexpr RowKey(KeyName name, double Record::*target) : m_Name(name), m_Real(target) {}
  constexpr RowKey(KeyName name, std::int32_t Record::*target) : m_Name(name), m_Integer(target) {}
  constexpr RowKey(KeyName name, bool Record::*target) : m_Name(name), m_YesNo(target) {}
  constexpr RowKey(States<Record> key) : m_Name(key.Name), m_Stated(key.Target) {}
  constexpr RowKey(Unread key) : m_Name(key.Name) {}

  /// A key of the part that the record has in common with others.
  template <class Common>
  requires std::derived_from<Record, Common>
  constexpr RowKey(const RowKey<Common>& key)
      : m_Name(key.m_Name),
        m_Text(key.m_Text),
        m_Real(key.m_Real),
        m_Integer(key.m_Integer),
        m_YesNo(key.m_YesNo),
        m_Stated(key.m_Stated) {}

  void Read(const RowScan& row, TextStore& store, Record& record) const {
    if (!IsRead()) {
      return;
    }
    const auto value = row.FindValue(m_Name);
    if (!value) {
      return;
    }
    if (m_Text != nullptr) {
      Store(record, m_Text, CStrParser::FirstString(*value, store));
    } else if (m_Real != nullptr) {
      Store(record, m_Real, CStrParser::FirstDouble(*value));
    } else if (m_Integer != nullptr) {
      Store(record, m_Integer, TruncateToInteger(CStrParser::FirstDouble(*value)));
    } else if (m_YesNo != nullptr) {
      Store(record, m_YesNo, CStrParser::IsYes(CStrParser::FirstString(*value, store)));
    } else {
      Store(record, m_Stated, true);
    }
  }

 private:
  template <class AnyRecord>
  friend class RowKey;

  template <class Field>
  static void Store(Record& record, Field Record::*target, Field value) {
    // A record that is smaller than a field has none of its kind, and compilers warn of the store.
    if constexpr (sizeof(Field) <= sizeof(Record)) {
      record.*target = value;
    }
  }

  bool IsRead() const {
    return m_Text != nullptr || m_Real != nullptr || m_Integer != nullptr || m_YesNo != nullptr ||
           m_Stated != nullptr;
  }

  Text m_Name;
  // one of these at most is set
  Text Record::*m_Text = nullptr;
  double Record::*m_Real = nullptr;
  std::int32_t Record::*m_Integer = nullptr;
  bool Record::*m_YesNo = nullptr;
  bool Record::*m_Stated = nullptr;
};

struct NoKeysAreDeclared {};

/// The keys of a table's rows; specialised beside each row record, also when it has none.
template <class Record>
inline constexpr NoKeysAreDeclared kRowKeys{};

/// For a record without keys.
template <class Record>
using NoRowKeys = std::array<RowKey<Record>, 0>;

/// The keys that a record has in common with others, and its own behind them.
template <class Record, class Common, std::size_t CommonCount, std::size_t OwnCount>
consteval std::array<RowKey<Record>, CommonCount + OwnCount> JoinKeys(
    const RowKey<Common> (&common)[CommonCount], const RowKey<Record> (&own)[OwnCount]) {
  return [&]<std::size_t... C, std::size_t... O>(std::index_sequence<C...>,
                                                 std::index_sequence<O...>) {
    return std::array<RowKey<Record>, CommonCount + OwnCount>{common[C]..., own[O]...};
  }
  (std::make_index_sequence<CommonCount>(), std::make_index_sequence<OwnCount>());
}

template <class Record>
Record ParseRow([[maybe_unused]] const RowScan& row, [[maybe_unused]] TextStore& store) {
  static_assert(!std::is_same_v<decltype(kRowKeys<Record>), const NoKeysAreDeclared>,
                "declare the record's keys beside it, in a kRowKeys");
  Record record;
  if constexpr (!std::is_empty_v<Record>) {
    for (const RowKey<Record>& key : kRowKeys<Record>) {
      key.Read(row, store, record);
    }
  }
  return record;
}

}  // namespace s2k2ngt
