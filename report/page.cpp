#include "page.h"

#include "html.h"
#include "parts.h"
#include "style.h"

#include <algorithm>
#include <cstddef>

using nlohmann::ordered_json;

namespace {

std::string CountOfVerdict(const std::vector<ordered_json>& files, const VerdictWords& verdict) {
  const auto count = std::ranges::count_if(
      files, [&](const ordered_json& file) { return file["verdict"] == verdict.Key; });
  return count == 0 ? ""
                    : "<li>" + Number(static_cast<std::uint64_t>(count), verdict.Key) + " " +
                          Badge(verdict) + "</li>\n";
}

std::string Overview(const std::vector<ordered_json>& files) {
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
            Literal(TextIn(file, "input")) + "</a> " + Badge(VerdictIn(file)) +
            BarOf(file["rows"]) + "</th>";
    for (const auto& [fate, count] : file["rows"].items()) {
      html +=
          "<td class=\"num\">" + Number(count.get<std::uint64_t>(), fate, OfFile(number)) + "</td>";
    }
    html += "</tr>\n";
  }
  return html + "</tbody></table></div>\n";
}

std::string TitleOf(const std::vector<ordered_json>& files) {
  return files.size() == 1
             ? Escaped(LastPartOf(TextIn(files[0], "input"))) + ": " + VerdictIn(files[0]).Words
             : "Report of " + Counted(files.size(), "file", "files");
}

}  // namespace

std::string BeginningOfPage(const ordered_json& program, const std::vector<ordered_json>& files) {
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
      "style-src 'unsafe-inline'; base-uri 'none'; form-action 'none'\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"color-scheme\" content=\"light dark\">\n"
      "<title>" +
      TitleOf(files) + "</title>\n<style>\n" + kStyle + "</style>\n</head>\n<body>\n<main>\n" +
      "<p class=\"eyebrow\">Report of a conversion by " + Escaped(TextIn(program, "name")) + " " +
      Escaped(TextIn(program, "version")) + "</p>\n";
  if (files.size() != 1) {
    page += Overview(files);
  }
  return page;
}
