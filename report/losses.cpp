#include "losses.h"

#include "html.h"
#include "parts.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <vector>

using nlohmann::ordered_json;

namespace {

/// The reasons of a file's rows.
class Losses {
 public:
  Losses(const ordered_json& file, std::size_t number, const ordered_json& reasons)
      : m_File(file), m_Number(number), m_Reasons(reasons) {
    const ordered_json& losses = m_File["losses"];
    for (std::size_t loss = 0; loss < losses.size(); ++loss) {
      m_OfReason[losses[loss]["reason"].get<std::string>()].push_back(loss);
    }
  }

  /// The reasons of a kind, each with its rows; empty when the file has none.
  std::string OfKind(std::string_view fate, bool isLoss) const {
    std::string html;
    for (const ordered_json& reason : m_Reasons) {
      if ((fate.empty() || reason["fate"] == fate) && reason["loss"] == isLoss) {
        html += OfReason(reason);
      }
    }
    return html;
  }

 private:
  struct Place {
    std::size_t Table;
    std::uint64_t Rows;
  };

  std::string OfReason(const ordered_json& reason) const;
  std::string OfTablesAlone(const std::vector<Place>& places, const std::string& code) const;
  std::string OfRows(const std::vector<Place>& places, const std::vector<std::size_t>& losses,
                     const std::string& code) const;
  std::string HeadOf(const Place& place, const std::string& code) const;
  std::string MessageOf(const ordered_json& table) const;

  const ordered_json& m_File;
  std::size_t m_Number;
  const ordered_json& m_Reasons;
  std::map<std::string, std::vector<std::size_t>, std::less<>> m_OfReason;
};

std::string ReasonAttribute(const std::string& code) { return " data-reason=\"" + code + "\""; }

std::string Losses::OfReason(const ordered_json& reason) const {
  const auto code = reason["code"].get<std::string>();
  std::vector<Place> places;
  std::uint64_t rows = 0;
  const ordered_json& tables = m_File["tables"];
  for (std::size_t table = 0; table < tables.size(); ++table) {
    for (const ordered_json& count : tables[table]["reasons"]) {
      if (count["code"] == code) {
        places.push_back({table, count["rows"].get<std::uint64_t>()});
        rows += places.back().Rows;
      }
    }
  }
  if (places.empty()) {
    return {};
  }
  const auto found = m_OfReason.find(code);
  const std::string where = OfFile(m_Number) + ReasonAttribute(code);
  return "<article class=\"reason\">\n<h4>" + Escaped(reason["text"].get<std::string>()) +
         "</h4>\n<p class=\"advice\">" + Escaped(reason["advice"].get<std::string>()) +
         "</p>\n<p class=\"meta\">" + NumberOf(rows, "row", "rows", "rows", where) + " in " +
         NumberOf(places.size(), "table", "tables", "reason-tables", where) + " <code>" +
         Escaped(code) + "</code></p>\n" +
         (found == m_OfReason.end() ? OfTablesAlone(places, code)
                                    : OfRows(places, found->second, code)) +
         "</article>\n";
}

/// The name of a table that has a reason, with its line and how many rows have it.
std::string Losses::HeadOf(const Place& place, const std::string& code) const {
  const ordered_json& table = m_File["tables"][place.Table];
  const std::string where = OfTable(m_Number, place.Table);
  return Literal(table["title"].get<std::string>()) + " <span class=\"where\">line " +
         Number(table["line"].get<std::uint64_t>(), "title-line", where) + ", " +
         NumberOf(place.Rows, "row", "rows", "rows", where + ReasonAttribute(code)) + "</span>";
}

/// The message that a table calls for, as it was shown.
std::string Losses::MessageOf(const ordered_json& table) const {
  if (table["message"].is_null()) {
    return {};
  }
  const ordered_json& messages = m_File["messages"];
  const auto shown = std::ranges::find_if(
      messages, [&](const ordered_json& message) { return message["key"] == table["message"]; });
  const auto text = (shown == messages.end() ? table["message"] : (*shown)["text"]);
  return "<span class=\"message\">" + Escaped(text.get<std::string>()) + "</span>";
}

std::string Losses::OfTablesAlone(const std::vector<Place>& places, const std::string& code) const {
  return ListOf(places.size(), "tables", OfFile(m_Number) + ReasonAttribute(code),
                [&](std::size_t number) {
                  const Place& place = places[number];
                  return HeadOf(place, code) + MessageOf(m_File["tables"][place.Table]);
                });
}

std::string Losses::OfRows(const std::vector<Place>& places, const std::vector<std::size_t>& losses,
                           const std::string& code) const {
  const ordered_json& all = m_File["losses"];
  std::string html;
  std::size_t room = kMostListed;
  auto next = losses.begin();
  std::size_t place = 0;
  for (; place < places.size() && room > 0; ++place) {
    // Rows stand in the order of the file, and so do tables.
    const auto end = std::find_if(next, losses.end(), [&](std::size_t loss) {
      return all[loss]["table"].get<std::size_t>() > places[place].Table;
    });
    const std::vector<std::size_t> here(next, end);
    next = end;
    html += "<p class=\"table\">" + HeadOf(places[place], code) + "</p>\n";
    html += ListOf(
        here.size(), "rows", OfTable(m_Number, places[place].Table) + ReasonAttribute(code),
        [&](std::size_t number) {
          const ordered_json& loss = all[here[number]];
          return Literal(loss["label"].get<std::string>()) + " <span class=\"where\">line " +
                 Number(loss["line"].get<std::uint64_t>(), "line",
                        OfFile(m_Number) + " data-loss=\"" + std::to_string(here[number]) + "\"") +
                 "</span>";
        });
    room -= std::min(room, std::max<std::size_t>(here.size(), 1));
  }
  if (place < places.size()) {
    html += "<p class=\"note\">" +
            NumberOf(places.size() - place, "more table is", "more tables are", "tables-left",
                     OfFile(m_Number) + ReasonAttribute(code)) +
            " in the JSON report alone.</p>\n";
  }
  return html;
}

}  // namespace

std::vector<Section> LossSectionsOf(const ordered_json& file, std::size_t number,
                                    const ordered_json& reasons) {
  struct Kind {
    const char* Id;
    const char* Title;
    const char* Lead;
    const char* Fate;
    bool IsLoss;
  };
  constexpr std::array<Kind, 5> kKinds = {{
      {"dropped", "Dropped", "Rows that were looked at and left out.", "dropped", true},
      {"changed", "Changed", "Rows that went over, but not as they stand.", "changed", true},
      {"refused", "Refused", "Rows of tables and kinds that the host has no like for.", "refused",
       true},
      {"unseen", "Never looked at", "Rows of tables that nothing reads.", "not_looked_at", true},
      {"no-loss", "No loss",
       "Rows that were left out or written otherwise, by which no part of the model is lost.", "",
       false},
  }};
  const Losses losses(file, number, reasons);
  std::vector<Section> sections;
  for (const Kind& kind : kKinds) {
    const std::string html = losses.OfKind(kind.Fate, kind.IsLoss);
    if (!html.empty()) {
      sections.push_back({kind.Id, kind.Title, "<p>" + std::string(kind.Lead) + "</p>\n" + html});
    }
  }
  return sections;
}
