#include "html.h"
#include "losses.h"
#include "page.h"
#include "parts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

using nlohmann::ordered_json;

namespace {

class FilePart {
 public:
  FilePart(const ordered_json& file, std::size_t number, const ordered_json& reasons,
           const std::string& drawings)
      : m_File(file), m_Number(number), m_Sections(LossSectionsOf(file, number, reasons)) {
    Add("drawings", "The converted model", drawings);
    Add("tables", "All tables", Tables());
    Add("numbers", "New numbers", NewNumbers());
    Add("messages", "Messages", Messages());
  }

  std::string Html() const {
    std::string html = "<section class=\"file\" id=\"" + Id("") + "\">\n" + Head() + Contents();
    for (const Section& section : m_Sections) {
      html += Heading(Id(section.Id), section.Title) + section.Html;
    }
    return html + "</section>\n";
  }

 private:
  void Add(const char* id, const char* title, std::string html) {
    if (!html.empty()) {
      m_Sections.push_back({id, title, std::move(html)});
    }
  }
  std::string Id(const std::string& section) const {
    return "file-" + std::to_string(m_Number) + (section.empty() ? "" : "-" + section);
  }
  std::string RowsWith(const char* fate) const {
    return Number(m_File["rows"][fate].get<std::uint64_t>(), fate, OfFile(m_Number));
  }
  std::string Head() const;
  std::string Account() const;
  std::string OtherRows() const;
  std::string Contents() const;
  std::string Tables() const;
  std::string NewNumbers() const;
  std::string Map(const char* kind, const char* title) const;
  std::string Messages() const;

  const ordered_json& m_File;
  std::size_t m_Number;
  std::vector<Section> m_Sections;
};

std::string FilePart::Head() const {
  const std::string input = TextIn(m_File, "input");
  std::string html =
      "<h2>" + Literal(LastPartOf(input)) + " " + Badge(VerdictIn(m_File)) + "</h2>\n";
  html += "<p class=\"lead\">" + Account() + "</p>\n";
  if (m_File["check"].get<bool>()) {
    html += "<p class=\"lead\">Checked only: no output was written.</p>\n";
  }
  if (!m_File["error"].is_null()) {
    html += "<p class=\"error\">" + Escaped(TextIn(m_File, "error")) + "</p>\n";
  }
  if (!m_File["unfinished"].is_null()) {
    html += "<p class=\"error\">" + Literal(TextIn(m_File, "unfinished")) +
            " is left unfinished.</p>\n";
  }
  html += BarOf(m_File["rows"]) + "<ul class=\"key\">\n";
  for (const FateWords& fate : kFateWords) {
    html += std::string("<li><i class=\"") + fate.Class + "\"></i> <b>" + RowsWith(fate.Key) +
            "</b> " + fate.Head + "</li>\n";
  }
  html += "</ul>\n<p class=\"meta\">From " + Literal(input);
  if (!m_File["output"].is_null()) {
    html += " to " + Literal(TextIn(m_File, "output")) + ".";
  } else if (m_File["check"].get<bool>() || !m_File["unfinished"].is_null()) {
    html += ".";
  } else {
    html += ". No output was written.";
  }
  return html + "</p>\n";
}

/// What became of the rows, in a few sentences.
std::string FilePart::Account() const {
  const std::string verdict = TextIn(m_File, "verdict");
  const ordered_json& rows = m_File["rows"];
  const auto read = rows["read"].get<std::uint64_t>();
  const std::string allRows = NumberOf(read, "row", "rows", "read", OfFile(m_Number));
  if (verdict == "failed" || verdict == "stopped") {
    const std::string how =
        verdict == "failed" ? "The conversion failed" : "The conversion was stopped";
    return read == 0 ? how + " before a row was read."
                     : how + ", and what is told here of " + allRows + " is as far as it had come.";
  }
  if (read == 0) {
    return "The file has " + allRows + " in any table: there was nothing to convert.";
  }
  if (rows["converted"] == rows["read"]) {
    return "Of " + allRows + " read, all went over as they stand.";
  }
  std::string text = "Of " + allRows + " read, " + RowsWith("converted") +
                     " went over as they stand" + OtherRows() + ". ";
  return text + (verdict == "whole" ? "No part of the model was lost or altered."
                                    : "Parts of the model were lost or altered: go through what "
                                      "follows, and mend it in the host.");
}

/// The rows that did not go over as they stand, as far as there are any.
std::string FilePart::OtherRows() const {
  struct Words {
    const char* Fate;
    const char* One;
    const char* Many;
  };
  constexpr std::array<Words, 4> kWords = {
      {{"changed", "went over changed", "went over changed"},
       {"dropped", "was dropped", "were dropped"},
       {"refused", "was refused", "were refused"},
       {"not_looked_at", "was never looked at", "were never looked at"}}};
  std::string text;
  for (const Words& words : kWords) {
    const auto count = m_File["rows"][words.Fate].get<std::uint64_t>();
    if (count > 0) {
      text += ", " + NumberOf(count, words.One, words.Many, words.Fate, OfFile(m_Number));
    }
  }
  return text;
}

std::string FilePart::Contents() const {
  std::string html = "<nav><ul>\n";
  for (const Section& section : m_Sections) {
    html += "<li><a href=\"#" + Id(section.Id) + "\">" + section.Title + "</a></li>\n";
  }
  return html + "</ul></nav>\n";
}

std::string FilePart::Tables() const {
  const ordered_json& tables = m_File["tables"];
  if (tables.empty()) {
    return {};
  }
  std::string html = "<p>" +
                     NumberOf(tables.size(), "table", "tables", "tables", OfFile(m_Number)) +
                     " in the order of the file. Each row has one fate.</p>\n"
                     "<div class=\"wide\"><table class=\"tallies\">\n<thead><tr><th>Table</th>"
                     "<th class=\"num\">Line</th><th class=\"num\">Rows</th>";
  for (const FateWords& fate : kFateWords) {
    html += std::string("<th class=\"num\">") + fate.Head + "</th>";
  }
  html += "</tr></thead>\n<tbody>\n";
  for (std::size_t number = 0; number < std::min(tables.size(), kMostTables); ++number) {
    const ordered_json& table = tables[number];
    const std::string where = OfTable(m_Number, number);
    const auto cell = [&](std::uint64_t count, const char* what) {
      return "<td class=\"num\">" + Number(count, what, where) + "</td>";
    };
    html += "<tr><th scope=\"row\">" + Literal(TextIn(table, "title")) + BarOf(table["rows"]) +
            "</th>" + cell(table["line"].get<std::uint64_t>(), "title-line") +
            cell(table["rows"]["read"].get<std::uint64_t>(), "read");
    for (const FateWords& fate : kFateWords) {
      html += cell(table["rows"][fate.Key].get<std::uint64_t>(), fate.Key);
    }
    html += "</tr>\n";
  }
  html += "</tbody></table></div>\n";
  if (tables.size() > kMostTables) {
    html += "<p class=\"note\">" +
            NumberOf(tables.size() - kMostTables, "more table is", "more tables are", "unlisted",
                     OfFile(m_Number)) +
            " in the JSON report alone.</p>\n";
  }
  return html;
}

/// The numbers that the labels of one kind have become.
std::string FilePart::Map(const char* kind, const char* title) const {
  const ordered_json& map = m_File["numbers"][kind];
  if (map.is_null() || map.empty()) {
    return {};
  }
  const std::string where = OfFile(m_Number) + " data-kind=\"" + kind + "\"";
  return std::string("<h4>") + title + "</h4>\n<p>" +
         NumberOf(map.size(), "label", "labels", "labels", where) +
         " became numbers by their order.</p>\n" +
         ListOf(map.size(), "rows", where, [&](std::size_t place) {
           const ordered_json& entry = map[place];
           const std::string family =
               entry.contains("kind") ? Escaped(TextIn(entry, "kind")) + " " : "";
           return "<span class=\"where\">" + family + "</span>" + Literal(TextIn(entry, "label")) +
                  " → " +
                  Number(entry["number"].get<std::uint64_t>(), "number",
                         where + " data-place=\"" + std::to_string(place) + "\"");
         });
}

std::string FilePart::NewNumbers() const {
  return Map("joints", "Joints") + Map("elements", "Elements");
}

std::string FilePart::Messages() const {
  const ordered_json& messages = m_File["messages"];
  if (messages.empty()) {
    return {};
  }
  return "<p>" +
         NumberOf(messages.size(), "message was", "messages were", "messages", OfFile(m_Number)) +
         " shown, in this order.</p>\n" +
         ListOf(messages.size(), "messages", OfFile(m_Number) + " data-kind=\"messages\"",
                [&](std::size_t number) {
                  const ordered_json& message = messages[number];
                  return Escaped(TextIn(message, "text")) + " <code>" +
                         Escaped(TextIn(message, "key")) + "</code>";
                });
}

}  // namespace

std::string PartOfPage(const ordered_json& file, std::size_t number, const ordered_json& reasons,
                       const std::string& drawings) {
  return FilePart(file, number, reasons, drawings).Html();
}
