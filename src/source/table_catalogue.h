#pragma once

#include "common/keyed_table.h"
#include "common/messages.h"
#include "common/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace s2k2ngt {

// Which title means which table, and what becomes of its rows.
//
// A title is known by two words: a keyword that stands first in it, and for most keywords a second
// word found anywhere in the title. Both lists are walked in their order and the first hit counts,
// so that a longer word stands before a shorter one that it holds. Where a list has it the other
// way round ("SEISMIC - UBC97" before "SEISMIC - UBC97 ISOLATED") the shorter word wins, and this
// is meant: the orders are part of the format.

/// What becomes of a table's rows.
enum class TableFate {
  Ignored,  ///< skipped without a word
  Refused,  ///< skipped, and the message of the table's key is shown
  Stored,   ///< kept in the source model
};

struct TableOutcome {
  TableFate Fate = TableFate::Ignored;
  /// The name of the row record that a stored table holds.
  Text Record = {};
  /// Buckets of a stored table, which give the order in which the stages see its rows; 0 for the
  /// tables of which the model keeps a single record.
  std::uint32_t Buckets = 0;
  /// The message of a refused table.
  std::optional<MessageKey> Message = {};
};

struct TableWord {
  Text Word;
  TableOutcome Outcome;
};

/// A first word. Its table has the id `Id`; with second words the ids count up from it instead.
struct TableKeyword {
  Text Word;
  int Id;
  TableOutcome Outcome;
  std::span<const TableWord> Words;
};

// The tables of which the model keeps the first row alone.
inline constexpr Text kActiveDegreesOfFreedom = "active degrees of freedom";
inline constexpr Text kCoordinateSystem = "coordinate system";
inline constexpr Text kUnits = "units";

extern const std::array<TableKeyword, 33> kKeywords;

/// Position in a title line at which its first word stands: behind `TABLE:  "`.
inline constexpr std::size_t kKeywordColumn = 9;

/// The id of the table whose title line, in upper case, begins with the keyword of this index in
/// kKeywords; 0 when none of the keyword's second words is in the title.
int ClassifyTable(Text title, std::size_t keywordIndex);

/// The id of the table of a title line in upper case; 0 when no keyword stands where it must.
/// "GENERAL" is met before "GENERALIZED", whose ids therefore do not arise.
int IdOfTitle(Text title);

/// What becomes of the rows of a table id; an id that no title gives is ignored.
TableOutcome OutcomeOf(int tableId);

/// A table that the model has.
struct SourceTable {
  Text Name;
  std::uint32_t Buckets;
};

/// All tables of the source model, in the order of the keywords and their second words; last those
/// that no title fills.
std::span<const SourceTable> SourceTables();

/// The bucket count of the table that holds records of this name, which must be one of them.
std::uint32_t BucketsOfSourceTable(Text recordName);

}  // namespace s2k2ngt
