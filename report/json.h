#pragma once

#include <s2k2ngt/account.h>
#include <s2k2ngt/drawing.h>

#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

// The account of a call as JSON, whose form docs/report.schema.json gives. The page for people is
// made from the same object, so that both say the same.

struct Message {
  std::string Key;
  std::string Text;
};

/// What became of a file as a whole.
struct FileFacts {
  std::string Input;
  std::optional<std::string> Output;  // when it was written whole
  int Result = -1;                    // as the library gives it
  std::vector<Message> Messages;
  std::optional<std::string> Error;
};

/// The file as a whole.
nlohmann::ordered_json JsonOf(const FileFacts& facts);

/// The account of one file.
nlohmann::ordered_json JsonOf(const FileFacts& facts, const s2k2ngt::Account& account,
                              const s2k2ngt::Drawing& drawing);

/// The report of a call, of the accounts of its files.
nlohmann::ordered_json ReportOf(const std::vector<nlohmann::ordered_json>& files);

/// The text of an object on one line. Labels and paths are bytes of any character set and JSON is
/// UTF-8: what is not becomes replacement characters.
std::string TextOf(const nlohmann::ordered_json& object);
