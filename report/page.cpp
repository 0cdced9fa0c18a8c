#include "page.h"

#include "html.h"
#include "losses.h"
#include "parts.h"
#include "style.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

using nlohmann::ordered_json;

namespace {

struct VerdictWords {
  const char* Key;
  const char* Words;
  const char* Class;
};
constexpr std::array<VerdictWords, 4> kVerdicts = {{
    {"whole", "converted without loss", "whole"},
    {"losses", "converted with losses", "losses"},
    {"stopped", "stopped", "stopped"},
    {"failed", "not converted", "failed"},
}};

const VerdictWords& VerdictOf(const ordered_json& file) {
  return *std::ranges::find_if(
      kVerdicts, [&](const VerdictWords& verdict) { return file["verdict"] == verdict.Key; });
}

std::string Badge(const VerdictWords& verdict) {
  return std::string("<span class=\"badge ") + verdict.Class + "\">" + verdict.Words + "</span>";
}

/// The last part of a path.
std::string_view NameOf(std::string_view path) { return path.substr(path.find_last_of("/\\") + 1); }

std::string TextOf(const ordered_json& object, const char* key) {
  return object[key].get<std::string>();
}

// ---- A file ----

class FilePart {
 public:
  FilePart(const ordered_json& report, std::size_t number, const std::string& drawings)
      : m_File(report["files"][number]),
        m_Number(number),
        m_Sections(LossSectionsOf(report, number)) {
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
  const std::string input = TextOf(m_File, "input");
  std::string html = "<h2>" + Literal(NameOf(input)) + " " + Badge(VerdictOf(m_File)) + "</h2>\n";
  html += "<p class=\"lead\">" + Account() + "</p>\n";
  if (!m_File["error"].is_null()) {
    html += "<p class=\"error\">" + Escaped(TextOf(m_File, "error")) + "</p>\n";
  }
  html += BarOf(m_File["rows"]) + "<ul class=\"key\">\n";
  for (const FateWords& fate : kFateWords) {
    html += std::string("<li><i class=\"") + fate.Class + "\"></i> <b>" + RowsWith(fate.Key) +
            "</b> " + fate.Head + "</li>\n";
  }
  html += "</ul>\n<p class=\"meta\">From " + Literal(input);
  html += m_File["output"].is_null() ? ". No output was written."
                                     : " to " + Literal(TextOf(m_File, "output")) + ".";
  return html + "</p>\n";
}

/// What became of the rows, in a few sentences.
std::string FilePart::Account() const {
  const std::string verdict = TextOf(m_File, "verdict");
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
    html += "<tr><th scope=\"row\">" + Literal(TextOf(table, "title")) + BarOf(table["rows"]) +
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
               entry.contains("kind") ? Escaped(TextOf(entry, "kind")) + " " : "";
           return "<span class=\"where\">" + family + "</span>" + Literal(TextOf(entry, "label")) +
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
                  return Escaped(TextOf(message, "text")) + " <code>" +
                         Escaped(TextOf(message, "key")) + "</code>";
                });
}

// ---- All files ----

std::string CountOfVerdict(const ordered_json& files, const VerdictWords& verdict) {
  const auto count = std::ranges::count_if(
      files, [&](const ordered_json& file) { return file["verdict"] == verdict.Key; });
  return count == 0 ? ""
                    : "<li>" + Number(static_cast<std::uint64_t>(count), verdict.Key) + " " +
                          Badge(verdict) + "</li>\n";
}

std::string Overview(const ordered_json& files) {
  std::string html = "<h1>" + NumberOf(files.size(), "file", "files", "files") + "</h1>\n";
  html += "<ul class=\"verdicts\">\n";
  for (const VerdictWords& verdict : kVerdicts) {
    html += CountOfVerdict(files, verdict);
  }
  html +=
      "</ul>\n<div class=\"wide\"><table class=\"tallies\">\n<thead><tr><th>File</th>"
      "<th class=\"num\">Rows</th>";
  for (const FateWords& fate : kFateWords) {
    html += std::string("<th class=\"num\">") + fate.Head + "</th>";
  }
  html += "</tr></thead>\n<tbody>\n";
  for (std::size_t number = 0; number < files.size(); ++number) {
    const ordered_json& file = files[number];
    html += "<tr><th scope=\"row\"><a href=\"#file-" + std::to_string(number) + "\">" +
            Literal(TextOf(file, "input")) + "</a> " + Badge(VerdictOf(file)) +
            BarOf(file["rows"]) + "</th>";
    for (const auto& [fate, count] : file["rows"].items()) {
      html +=
          "<td class=\"num\">" + Number(count.get<std::uint64_t>(), fate, OfFile(number)) + "</td>";
    }
    html += "</tr>\n";
  }
  return html + "</tbody></table></div>\n";
}

std::string TitleOf(const ordered_json& files) {
  return files.size() == 1
             ? Escaped(NameOf(TextOf(files[0], "input"))) + ": " + VerdictOf(files[0]).Words
             : "Report of " + Counted(files.size(), "file", "files");
}

}  // namespace

std::string PageOf(const ordered_json& report, const std::vector<std::string>& drawings) {
  const ordered_json& files = report["files"];
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
      "style-src 'unsafe-inline'; base-uri 'none'; form-action 'none'\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"color-scheme\" content=\"light dark\">\n"
      "<title>" +
      TitleOf(files) + "</title>\n<style>\n" + kStyle + "</style>\n</head>\n<body>\n<main>\n" +
      "<p class=\"eyebrow\">Report of a conversion by " +
      Escaped(TextOf(report["program"], "name")) + " " +
      Escaped(TextOf(report["program"], "version")) + "</p>\n";
  if (files.size() != 1) {
    page += Overview(files);
  }
  for (std::size_t number = 0; number < files.size(); ++number) {
    page += FilePart(report, number, number < drawings.size() ? drawings[number] : "").Html();
  }
  return page + "</main>\n</body>\n</html>\n";
}
