#include "json.h"

#include <s2k2ngt/s2k2ngt.h>

#include <array>
#include <numeric>
#include <string_view>

using nlohmann::ordered_json;
using s2k2ngt::Account;
using s2k2ngt::Drawing;
using s2k2ngt::Reason;

namespace {

/// In the order of RowFate.
constexpr std::array<const char*, s2k2ngt::kRowFates> kFates = {"converted", "changed", "dropped",
                                                                "refused", "not_looked_at"};
/// In the order of ElementKind, as far as elements have numbers.
constexpr std::array<const char*, 3> kKinds = {"frame", "area", "solid"};

ordered_json TextOrNull(const std::optional<std::string>& text) {
  return text ? ordered_json(*text) : ordered_json(nullptr);
}

/// In a word what became of the model.
const char* VerdictOf(const FileFacts& facts) {
  if (facts.Result == S2K2NGT_STOPPED) {
    return "stopped";
  }
  if (facts.Result != S2K2NGT_CONVERTED) {
    return "failed";
  }
  return facts.HasLoss ? "losses" : "whole";
}

ordered_json JsonOf(const RowCounts& counts) {
  ordered_json rows = {{"read", std::accumulate(counts.begin(), counts.end(), std::uint64_t{0})}};
  for (std::size_t fate = 0; fate < kFates.size(); ++fate) {
    rows[kFates[fate]] = counts[fate];
  }
  return rows;
}

ordered_json JsonOf(const s2k2ngt::TableAccount& table) {
  ordered_json reasons = ordered_json::array();
  for (const s2k2ngt::ReasonCount& count : table.Reasons) {
    reasons.push_back({{"code", count.Why->Code}, {"rows", count.Rows}});
  }
  return {{"title", table.Title},
          {"line", table.Line},
          {"id", table.TableId},
          {"message", table.Message.empty() ? ordered_json(nullptr) : ordered_json(table.Message)},
          {"rows", JsonOf(std::to_array(table.ByFate))},
          {"reasons", reasons}};
}

ordered_json JsonOf(const s2k2ngt::RowLoss& loss) {
  return {{"table", loss.Table},
          {"position", loss.Position},
          {"line", loss.Line},
          {"label", loss.Label},
          {"reason", loss.Why->Code}};
}

ordered_json JsonOf(const s2k2ngt::DrawnNode& node) {
  return {{"label", node.Label}, {"number", node.Number}};
}

bool HasNumber(const s2k2ngt::DrawnElement& element) {
  return static_cast<std::size_t>(element.Kind) < kKinds.size();
}

ordered_json JsonOf(const s2k2ngt::DrawnElement& element) {
  return {{"kind", kKinds.at(static_cast<std::size_t>(element.Kind))},
          {"label", element.Label},
          {"number", element.Number}};
}

template <class Thing>
bool All(const Thing& /*thing*/) {
  return true;
}

/// Appends an array of the things that are wanted.
template <class Thing>
void AppendArray(const std::vector<Thing>& things, std::string& text,
                 bool (*isWanted)(const Thing&) = All<Thing>) {
  text += '[';
  const char* separator = "";
  for (const Thing& thing : things) {
    if (isWanted(thing)) {
      text.append(separator).append(TextOf(JsonOf(thing)));
      separator = ",";
    }
  }
  text += ']';
}

/// The numbers that labels have become; null where labels are numbers and have stayed.
void AppendNumbers(const Drawing& drawing, std::string& text) {
  text += "{\"joints\":";
  if (drawing.NodesAreRenumbered) {
    AppendArray(drawing.Nodes, text);
  } else {
    text += "null";
  }
  text += ",\"elements\":";
  if (drawing.ElementsAreRenumbered) {
    AppendArray(drawing.Elements, text, HasNumber);
  } else {
    text += "null";
  }
  text += '}';
}

ordered_json JsonOf(const Reason& reason) {
  return {{"code", reason.Code},
          {"fate", kFates[static_cast<std::size_t>(reason.Fate)]},
          {"loss", reason.IsLoss},
          {"text", reason.Text},
          {"advice", reason.Advice}};
}

/// What is told of a file in every form.
ordered_json BeginningOf(const FileFacts& facts) {
  ordered_json messages = ordered_json::array();
  for (const Message& message : facts.Messages) {
    messages.push_back({{"key", message.Key}, {"text", message.Text}});
  }
  return {{"input", facts.Input},
          {"output", TextOrNull(facts.Output)},
          {"result", facts.Result},
          {"messages", messages},
          {"error", TextOrNull(facts.Error)}};
}

}  // namespace

RowCounts RowsOf(const Account& account) {
  RowCounts rows{};
  for (std::size_t fate = 0; fate < rows.size(); ++fate) {
    rows.at(fate) = account.With(static_cast<s2k2ngt::RowFate>(fate));
  }
  return rows;
}

ordered_json JsonOf(const FileFacts& facts) {
  ordered_json file = BeginningOf(facts);
  if (facts.Rows) {
    file["verdict"] = VerdictOf(facts);
    file["has_loss"] = facts.HasLoss;
    file["rows"] = JsonOf(*facts.Rows);
  }
  return file;
}

std::string TextOfFile(const FileFacts& facts, const Account& account, const Drawing& drawing) {
  ordered_json head = BeginningOf(facts);
  head["verdict"] = VerdictOf(facts);
  head["check"] = facts.IsCheck;
  head["unfinished"] = TextOrNull(facts.Unfinished);
  head["rows"] = JsonOf(RowsOf(account));
  std::string text = TextOf(head);
  text.back() = ',';
  text += "\"tables\":";
  AppendArray(account.Tables, text);
  text += ",\"losses\":";
  AppendArray(account.Losses, text);
  text += ",\"numbers\":";
  AppendNumbers(drawing, text);
  text += '}';
  return text;
}

ordered_json SummaryOf(const FileFacts& facts, const Account& account) {
  std::set<std::string_view> codes;
  for (const s2k2ngt::TableAccount& table : account.Tables) {
    for (const s2k2ngt::ReasonCount& count : table.Reasons) {
      codes.insert(count.Why->Code);
    }
  }
  return {{"input", facts.Input},
          {"verdict", VerdictOf(facts)},
          {"rows", JsonOf(RowsOf(account))},
          {"reasons", codes}};
}

ordered_json HeadOfReport() {
  return {{"schema", "s2k2ngt-report"},
          {"version", 1},
          {"program", {{"name", "s2k2ngt"}, {"version", s2k2ngt_version()}}}};
}

ordered_json ReasonsWith(const std::set<std::string, std::less<>>& codes) {
  ordered_json reasons = ordered_json::array();
  for (const Reason& reason : s2k2ngt::Reasons()) {
    if (codes.contains(std::string_view(reason.Code))) {
      reasons.push_back(JsonOf(reason));
    }
  }
  return reasons;
}

std::string TextOf(const ordered_json& object) {
  return object.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}
