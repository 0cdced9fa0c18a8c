#include "json.h"

#include <s2k2ngt/s2k2ngt.h>

#include <algorithm>
#include <array>
#include <set>
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
const char* VerdictOf(const FileFacts& facts, const Account& account) {
  if (facts.Result == S2K2NGT_STOPPED) {
    return "stopped";
  }
  if (facts.Result != S2K2NGT_CONVERTED) {
    return "failed";
  }
  return account.HasLoss() ? "losses" : "whole";
}

ordered_json RowsOf(const Account& account) {
  ordered_json rows = {{"read", 0}};
  std::uint64_t read = 0;
  for (std::size_t fate = 0; fate < kFates.size(); ++fate) {
    const std::uint64_t count = account.With(static_cast<s2k2ngt::RowFate>(fate));
    rows[kFates[fate]] = count;
    read += count;
  }
  rows["read"] = read;
  return rows;
}

ordered_json JsonOf(const s2k2ngt::TableAccount& table) {
  ordered_json rows = {{"read", table.Rows}};
  for (std::size_t fate = 0; fate < kFates.size(); ++fate) {
    rows[kFates[fate]] = table.ByFate[fate];
  }
  ordered_json reasons = ordered_json::array();
  for (const s2k2ngt::ReasonCount& count : table.Reasons) {
    reasons.push_back({{"code", count.Why->Code}, {"rows", count.Rows}});
  }
  return {{"title", table.Title},
          {"line", table.Line},
          {"id", table.TableId},
          {"message", table.Message.empty() ? ordered_json(nullptr) : ordered_json(table.Message)},
          {"rows", rows},
          {"reasons", reasons}};
}

ordered_json LossesOf(const Account& account) {
  ordered_json losses = ordered_json::array();
  for (const s2k2ngt::RowLoss& loss : account.Losses) {
    losses.push_back({{"table", loss.Table},
                      {"position", loss.Position},
                      {"line", loss.Line},
                      {"label", loss.Label},
                      {"reason", loss.Why->Code}});
  }
  return losses;
}

/// The numbers that labels have become; null where labels are numbers and have stayed.
ordered_json NumbersOf(const Drawing& drawing) {
  ordered_json numbers = {{"joints", nullptr}, {"elements", nullptr}};
  if (drawing.NodesAreRenumbered) {
    ordered_json joints = ordered_json::array();
    for (const s2k2ngt::DrawnNode& node : drawing.Nodes) {
      joints.push_back({{"label", node.Label}, {"number", node.Number}});
    }
    numbers["joints"] = joints;
  }
  if (drawing.ElementsAreRenumbered) {
    ordered_json elements = ordered_json::array();
    for (const s2k2ngt::DrawnElement& element : drawing.Elements) {
      const auto kind = static_cast<std::size_t>(element.Kind);
      if (kind < kKinds.size()) {
        elements.push_back(
            {{"kind", kKinds.at(kind)}, {"label", element.Label}, {"number", element.Number}});
      }
    }
    numbers["elements"] = elements;
  }
  return numbers;
}

ordered_json JsonOf(const Reason& reason) {
  return {{"code", reason.Code},
          {"fate", kFates[static_cast<std::size_t>(reason.Fate)]},
          {"loss", reason.IsLoss},
          {"text", reason.Text},
          {"advice", reason.Advice}};
}

/// The reasons that occur in the files, in the order of the list.
ordered_json ReasonsOf(const std::vector<ordered_json>& files) {
  std::set<std::string, std::less<>> met;
  for (const ordered_json& file : files) {
    for (const ordered_json& table : file["tables"]) {
      for (const ordered_json& reason : table["reasons"]) {
        met.insert(reason["code"].get<std::string>());
      }
    }
  }
  ordered_json reasons = ordered_json::array();
  for (const Reason& reason : s2k2ngt::Reasons()) {
    if (met.contains(std::string_view(reason.Code))) {
      reasons.push_back(JsonOf(reason));
    }
  }
  return reasons;
}

}  // namespace

ordered_json JsonOf(const FileFacts& facts) {
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

ordered_json JsonOf(const FileFacts& facts, const Account& account, const Drawing& drawing) {
  ordered_json tables = ordered_json::array();
  for (const s2k2ngt::TableAccount& table : account.Tables) {
    tables.push_back(JsonOf(table));
  }
  ordered_json file = JsonOf(facts);
  file["verdict"] = VerdictOf(facts, account);
  file["rows"] = RowsOf(account);
  file["tables"] = tables;
  file["losses"] = LossesOf(account);
  file["numbers"] = NumbersOf(drawing);
  return file;
}

ordered_json ReportOf(const std::vector<ordered_json>& files) {
  return {{"schema", "s2k2ngt-report"},
          {"version", 1},
          {"program", {{"name", "s2k2ngt"}, {"version", s2k2ngt_version()}}},
          {"files", files},
          {"reasons", ReasonsOf(files)}};
}

std::string TextOf(const ordered_json& object) {
  return object.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}
