#pragma once

#include "common/numbers.h"
#include "common/text.h"
#include "source/str_parser.h"

#include <cstdint>
#include <tuple>
#include <type_traits>

namespace s2k2ngt {

// A table's row grammar is data: beside each row record stands the list of its keys,
//
//   template <>
//   inline constexpr std::tuple kRowKeys<T_ASCA_D>{Key{"Area=", &T_ASCA_D::Area},
//                                                  Key{"Section=", &T_ASCA_D::Section},
//                                                  Unread{"MatProp="}};
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

/// A key whose value goes into a field. The field's type says how the value is read: a Text as it
/// stands, a double as a number, an int32_t as a number without its fraction, a bool as true for
/// "Yes" alone.
template <class Record, class Field>
struct Key {
  KeyName Name;
  Field Record::*Target;

  void Read(const RowScan& row, TextStore& store, Record& record) const {
    if (const auto value = row.FindValue(Name)) {
      Assign(*value, store, record.*Target);
    }
  }

 private:
  static void Assign(Text value, TextStore& store, Text& field) {
    field = CStrParser::FirstString(value, store);
  }
  static void Assign(Text value, TextStore& store, bool& field) {
    field = CStrParser::IsYes(CStrParser::FirstString(value, store));
  }
  static void Assign(Text value, TextStore&, double& field) {
    field = CStrParser::FirstDouble(value);
  }
  static void Assign(Text value, TextStore&, std::int32_t& field) {
    field = TruncateToInteger(CStrParser::FirstDouble(value));
  }
};

template <class Record, class Field>
Key(const char*, Field Record::*) -> Key<Record, Field>;

/// A key that sets a field when the row states it at all, whatever its value.
template <class Record>
struct States {
  KeyName Name;
  bool Record::*Target;

  void Read(const RowScan& row, TextStore&, Record& record) const {
    record.*Target = record.*Target || row.FindValue(Name).has_value();
  }
};

template <class Record>
States(const char*, bool Record::*) -> States<Record>;

/// A key of the table that the conversion has no use for.
struct Unread {
  KeyName Name;

  template <class Record>
  void Read(const RowScan&, TextStore&, Record&) const {}
};

struct NoKeysAreDeclared {};

/// The keys of a table's rows; specialised beside each row record, also when it has none.
template <class Record>
inline constexpr NoKeysAreDeclared kRowKeys{};

template <class Record>
Record ParseRow(const RowScan& row, TextStore& store) {
  static_assert(!std::is_same_v<decltype(kRowKeys<Record>), const NoKeysAreDeclared>,
                "declare the record's keys beside it, in a kRowKeys");
  Record record;
  std::apply([&](const auto&... keys) { (keys.Read(row, store, record), ...); }, kRowKeys<Record>);
  return record;
}

}  // namespace s2k2ngt
