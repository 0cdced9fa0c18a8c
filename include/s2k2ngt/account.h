#pragma once

#include <s2k2ngt/export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace s2k2ngt {

// What became of the rows of a source file: the account that a run keeps when it is asked to. Every
// row that was read is in it, those too that the conversion loses without a message.

/// What became of a row.
enum class RowFate : std::uint8_t {
  Converted,    ///< what the conversion has a use for is in the output
  Changed,      ///< it went over, but not as it stood: approximated, merged, or with a default
  Dropped,      ///< looked at, and left out by a rule of the conversion
  Refused,      ///< of a table or a kind that the host has no like for
  NotLookedAt,  ///< nothing reads the table, or the run ended before
};
inline constexpr std::size_t kRowFates = 5;

/// Why a row did not go over as it stood. The texts are English and may be worded better some day;
/// a code stays what it is.
struct Reason {
  const char* Code;
  /// What becomes of the rows of this reason: never Converted.
  RowFate Fate;
  /// False where no part of the model goes missing or is altered by it.
  bool IsLoss;
  /// What became of the row: a sentence.
  const char* Text;
  /// What an engineer can do about it: a sentence.
  const char* Advice;
};

/// Reasons one behind the other, to be walked by a range-based for.
struct ReasonList {
  const Reason* First;
  std::size_t Count;

  const Reason* begin() const { return First; }
  const Reason* end() const { return First + Count; }
};

/// All reasons, in the order of the source's topics.
S2K2NGT_API ReasonList Reasons();

/// So many rows of a table have this reason. A row that has several is counted under each.
struct ReasonCount {
  const Reason* Why;
  std::uint64_t Rows;
};

/// The rows below one title of the source file.
struct TableAccount {
  std::string Title;       ///< as it stands; in parentheses for what is in no table, or missing
  std::uint64_t Line = 0;  ///< of the title, from 1
  int TableId = 0;         ///< by which the conversion knows the table; 0 for an unknown title
  /// The key of the message that the table calls for; empty for most.
  std::string Message;
  std::uint64_t Rows = 0;
  /// The rows by their fates, in the order of RowFate; their sum is Rows.
  std::uint64_t ByFate[kRowFates] = {};
  std::vector<ReasonCount> Reasons;

  std::uint64_t With(RowFate fate) const { return ByFate[static_cast<std::size_t>(fate)]; }
};

/// A reason that a single row has. Rows that have the reason of their whole table, because it is
/// refused or not looked at, are told in its TableAccount alone.
struct RowLoss {
  std::uint32_t Table = 0;     ///< of the account's tables, from 0
  std::uint32_t Position = 0;  ///< of the row below its title, from 1
  std::uint64_t Line = 0;      ///< of the file, from 1
  std::string Label;           ///< the row's first key with its value, as "Frame=12"
  const Reason* Why = nullptr;
};

struct Account {
  /// In the order of the file.
  std::vector<TableAccount> Tables;
  /// In the order of the file; a row that has several reasons stands here with each.
  std::vector<RowLoss> Losses;

  /// The rows of all tables, by fate.
  S2K2NGT_API std::uint64_t With(RowFate fate) const;
  /// True when a part of the model went missing or was altered.
  S2K2NGT_API bool HasLoss() const;
};

}  // namespace s2k2ngt
