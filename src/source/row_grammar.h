#pragma once

#include "common/numbers.h"
#include "common/text.h"
#include "source/str_parser.h"

#include <cstdint>
#include <tuple>

namespace s2k2ngt {

// A table's row grammar is data: beside each row record stands the list of its keys,
//
//   template <>
//   inline constexpr std::tuple kRowKeys<T_CNFR_D>{
//       Key{"Frame=", &T_CNFR_D::Frame}, Key{"Length=", &T_CNFR_D::Length}, Unread{"GUID="}};
//
// and ParseRow runs it. A record is the defaults of its member initialisers until a key is met. A
// key that the row states with nothing behind it gives 0 or an empty text.

/// A key whose value goes into a field. The field's type says how the value is read: a Text as it
/// stands, a double as a number, an int32_t as a number without its fraction, a bool as true for
/// "Yes" alone.
template <class Record, class Field>
struct Key {
  Text Name;
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
Key(Text, Field Record::*) -> Key<Record, Field>;

/// A key that sets a field when the row states it at all, whatever its value.
template <class Record>
struct States {
  Text Name;
  bool Record::*Target;

  void Read(const RowScan& row, TextStore&, Record& record) const {
    record.*Target = record.*Target || row.FindValue(Name).has_value();
  }
};

template <class Record>
States(Text, bool Record::*) -> States<Record>;

/// A key of the table that the conversion has no use for.
struct Unread {
  Text Name;

  template <class Record>
  void Read(const RowScan&, TextStore&, Record&) const {}
};

/// The keys of a table's rows; specialised beside each row record.
template <class Record>
inline constexpr std::tuple<> kRowKeys{};

template <class Record>
Record ParseRow(const RowScan& row, TextStore& store) {
  Record record;
  std::apply([&](const auto&... keys) { (keys.Read(row, store, record), ...); }, kRowKeys<Record>);
  return record;
}

}  // namespace s2k2ngt
