#pragma once

#include <s2k2ngt/account.h>
#include <s2k2ngt/drawing.h>

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

// The account of a call as JSON, whose form docs/report.schema.json gives. The page for people is
// made from the same objects, so that both say the same.

struct Message {
  std::string Key;
  std::string Text;
};

/// Rows by their fates, in the order of RowFate.
using RowCounts = std::array<std::uint64_t, s2k2ngt::kRowFates>;

/// What became of a file as a whole.
struct FileFacts {
  std::string Input;
  std::optional<std::string> Output;      // when it was written whole
  std::optional<std::string> Unfinished;  // output that a stop or a failure has left on the disk
  bool IsCheck = false;                   // by a dry run, which writes no output
  int Result = -1;                        // as the library gives it
  std::vector<Message> Messages;
  std::optional<std::string> Error;
  bool HasLoss = false;           // by the account
  std::optional<RowCounts> Rows;  // by the account, when it is kept
};

/// The rows of all tables.
RowCounts RowsOf(const s2k2ngt::Account& account);

/// The file as a whole; with the verdict and the rows when an account is kept.
nlohmann::ordered_json JsonOf(const FileFacts& facts);

/// The account of one file, as the text of an object on one line. It is made piece by piece: as one
/// object it would take many times its memory.
std::string TextOfFile(const FileFacts& facts, const s2k2ngt::Account& account,
                       const s2k2ngt::Drawing& drawing);

/// What the report as a whole needs of a file: `input`, `verdict` and `rows` as in its account, and
/// the codes of its `reasons`.
nlohmann::ordered_json SummaryOf(const FileFacts& facts, const s2k2ngt::Account& account);

/// The members of a report before its files.
nlohmann::ordered_json HeadOfReport();

/// The reasons of these codes, in the order of the list of all.
nlohmann::ordered_json ReasonsWith(const std::set<std::string, std::less<>>& codes);

/// The text of an object on one line. Labels and paths are bytes of any character set and JSON is
/// UTF-8: what is not becomes replacement characters.
std::string TextOf(const nlohmann::ordered_json& object);
