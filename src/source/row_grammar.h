#pragma once

#include "account/reasons.h"
#include "common/numbers.h"
#include "common/text.h"
#include "source/lost_values.h"
#include "source/str_parser.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
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
// and a RowReader runs it. A record is the defaults of its member initialisers until a key is met.
// A key that the row states with nothing behind it gives 0 or an empty text.

/// The name of a key as it stands in rows, with its equals sign and at most a blank before it. A
/// name that could not be found, or that would be found half, does not compile.
class KeyName {
 public:
  consteval KeyName(const char* name) : m_Name(name) {
    if (m_Name.find('=') != m_Name.size() - 1) {
      throw "a key ends in its equals sign and holds no other";
    }
    if (m_Name.find(' ', 1) != Text::npos) {
      throw "a key holds no blank but one before it";
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

/// A key of which the conversion has no use either, but the account, which tells that its value is
/// lost.
template <class Record, class Field>
struct Noted {
  KeyName Name;
  Field Record::*Target;
};

template <class Record, class Field>
Noted(const char*, Field Record::*) -> Noted<Record, Field>;

/// A key of which the conversion has no use and whose value is lost, as the account tells, unless
/// it is the neutral one: what the target takes anyway.
struct LostUnless {
  KeyName Name;
  Text Neutral;
  Why Reason;
};

/// A key whose value goes into a field. The field's type says how the value is read: a Text as it
/// stands, a double as a number, an int32_t as a number without its fraction, a bool as true for
/// "Yes" alone.
template <class Record>
class RowKey {
 public:
  constexpr RowKey(KeyName name, Text Record::*field)
      : m_Name(name), m_Kind(Kind::Word), m_Text(field) {}
  constexpr RowKey(KeyName name, double Record::*field)
      : m_Name(name), m_Kind(Kind::Real), m_Real(field) {}
  constexpr RowKey(KeyName name, std::int32_t Record::*field)
      : m_Name(name), m_Kind(Kind::Integer), m_Integer(field) {}
  constexpr RowKey(KeyName name, bool Record::*field)
      : m_Name(name), m_Kind(Kind::YesNo), m_Flag(field) {}
  constexpr RowKey(States<Record> key)
      : m_Name(key.Name), m_Kind(Kind::Stated), m_Flag(key.Target) {}
  constexpr RowKey(Unread key) : m_Name(key.Name), m_Kind(Kind::Unread) {}
  constexpr RowKey(LostUnless key)
      : m_Name(key.Name), m_Kind(Kind::Lost), m_Why(key.Reason), m_Neutral(key.Neutral) {}
  template <class Field>
  constexpr RowKey(Noted<Record, Field> key) : RowKey(key.Name, key.Target) {
    m_IsConverted = false;
  }

  /// A key of the part that the record has in common with others.
  template <class Common>
  requires std::derived_from<Record, Common>
  constexpr RowKey(const RowKey<Common>& key)
      : m_Name(key.m_Name),
        m_Kind(static_cast<Kind>(key.m_Kind)),
        m_IsConverted(key.m_IsConverted),
        m_Why(key.m_Why),
        m_Neutral(key.m_Neutral),
        m_Text(key.m_Text),
        m_Real(key.m_Real),
        m_Integer(key.m_Integer),
        m_Flag(key.m_Flag) {}

  constexpr Text Name() const { return m_Name; }
  constexpr bool IsStored() const { return m_Kind != Kind::Unread && m_Kind != Kind::Lost; }
  constexpr bool IsText() const { return m_Kind == Kind::Word; }

  /// What a record has of a key that is a text.
  Text TextOf(const Record& record) const { return record.*m_Text; }
  /// Whether the conversion has a use for it.
  constexpr bool IsConverted() const { return IsStored() && m_IsConverted; }
  constexpr bool IsLost() const { return m_Kind == Kind::Lost; }
  /// Why this value of a key that is lost is to be told; nothing for the neutral one.
  std::optional<Why> WhyLost(Text value) const {
    const bool isNeutral = value == m_Neutral || SaysNoMoreThan(m_Neutral, value);
    return isNeutral ? std::nullopt : std::optional(m_Why);
  }

  /// Why a value of a key that is stored is not read as it stands; nothing for most.
  std::optional<Why> WhyDoubtful(Text value) const {
    switch (m_Kind) {
      case Kind::Real:
      case Kind::Integer:
        return IsNoWholeNumber(value) ? std::optional(Why("number-read-in-part")) : std::nullopt;
      case Kind::YesNo:
        return IsNeitherYesNorNo(value) ? std::optional(Why("neither-yes-nor-no")) : std::nullopt;
      default:
        return std::nullopt;
    }
  }

  /// Puts the value that a row states for the key into its field. False when something may be lost
  /// with it, as WhyLost and WhyDoubtful tell.
  bool Store(Text value, TextStore& store, Record& record) const {
    switch (m_Kind) {
      case Kind::Word:
        Set(record, m_Text, CStrParser::FirstString(value, store));
        break;
      case Kind::Real:
        return StoreNumber(value, [&](double number) { Set(record, m_Real, number); });
      case Kind::Integer:
        return StoreNumber(
            value, [&](double number) { Set(record, m_Integer, TruncateToInteger(number)); });
      case Kind::YesNo:
        Set(record, m_Flag, CStrParser::FirstIsYes(value));
        return value == "Yes" || value == "No";
      case Kind::Stated:
        Set(record, m_Flag, true);
        break;
      case Kind::Unread:
        break;
      case Kind::Lost:
        return false;
    }
    return true;
  }

 private:
  template <class AnyRecord>
  friend class RowKey;

  enum class Kind : std::uint8_t { Word, Real, Integer, YesNo, Stated, Unread, Lost };

  /// Numbers are plain as a rule, and then they are read once.
  template <class Take>
  static bool StoreNumber(Text value, Take take) {
    double number = 0.0;
    const bool isPlain = ParseWholeReal(value, number);
    take(isPlain ? number : CStrParser::FirstDouble(value));
    return isPlain;
  }

  template <class Field>
  static void Set(Record& record, Field Record::*field, Field value) {
    // A record that is smaller than a field has none of its kind, and compilers warn of the store.
    if constexpr (sizeof(Field) <= sizeof(Record)) {
      record.*field = value;
    }
  }

  Text m_Name;
  Kind m_Kind;
  bool m_IsConverted = true;
  // Of a key that is lost.
  Why m_Why = "value-of-unknown-name";
  Text m_Neutral;
  // The field, under its type.
  Text Record::*m_Text = nullptr;
  double Record::*m_Real = nullptr;
  std::int32_t Record::*m_Integer = nullptr;
  bool Record::*m_Flag = nullptr;
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

/// The keys that a record has in common with others, when it has no more.
template <class Record, class Common, std::size_t Count>
consteval std::array<RowKey<Record>, Count> JoinKeys(const RowKey<Common> (&common)[Count]) {
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return std::array<RowKey<Record>, Count>{common[I]...};
  }
  (std::make_index_sequence<Count>());
}

/// A key of a table, and whether the conversion has a use for it.
struct KeyUse {
  Text Name;
  bool IsRead;
};

/// The uses of a record's keys, in their order.
template <class Record>
inline constexpr auto kKeyUses = [] {
  std::array<KeyUse, std::size(kRowKeys<Record>)> uses{};
  std::size_t index = 0;
  for (const RowKey<Record>& key : kRowKeys<Record>) {
    uses[index++] = {key.Name(), key.IsConverted()};
  }
  return uses;
}();

}  // namespace s2k2ngt
