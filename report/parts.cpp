#include "parts.h"

#include "html.h"

#include <algorithm>

using nlohmann::ordered_json;

const VerdictWords& VerdictIn(const ordered_json& file) {
  return *std::ranges::find_if(
      kVerdicts, [&](const VerdictWords& verdict) { return file["verdict"] == verdict.Key; });
}

std::string Badge(const VerdictWords& verdict) {
  return std::string("<span class=\"badge ") + verdict.Class + "\">" + verdict.Words + "</span>";
}

std::string TextIn(const ordered_json& object, const char* key) {
  return object[key].get<std::string>();
}

std::string_view LastPartOf(std::string_view path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

std::string OfFile(std::size_t file) { return "data-file=\"" + std::to_string(file) + "\""; }

std::string OfTable(std::size_t file, std::size_t table) {
  return OfFile(file) + " data-table=\"" + std::to_string(table) + "\"";
}

std::string Number(std::uint64_t number, std::string_view what, const std::string& where) {
  std::string html = "<span class=\"n";
  html += number == 0 ? " zero" : "";
  html.append("\" data-count=\"").append(what).append("\"");
  if (!where.empty()) {
    html.append(" ").append(where);
  }
  return html + ">" + Grouped(number) + "</span>";
}

std::string NumberOf(std::uint64_t count, std::string_view one, std::string_view many,
                     std::string_view what, const std::string& where) {
  return Number(count, what, where).append(" ").append(count == 1 ? one : many);
}

std::string Literal(std::string_view text) { return "<bdi>" + Escaped(text) + "</bdi>"; }

std::string BarOf(const ordered_json& rows) {
  std::string pieces;
  std::string words;
  for (const FateWords& fate : kFateWords) {
    const auto count = rows[fate.Key].get<std::uint64_t>();
    if (count > 0) {
      pieces.append("<i class=\"").append(fate.Class).append("\" style=\"flex-grow:");
      pieces.append(std::to_string(count)).append("\"></i>");
      words.append(words.empty() ? "" : ", ").append(Grouped(count)).append(" ").append(fate.Head);
    }
  }
  return "<div class=\"bar\" role=\"img\" aria-label=\"" + (words.empty() ? "no rows" : words) +
         "\">" + pieces + "</div>";
}

std::string Heading(const std::string& id, std::string_view text) {
  return "<h3 id=\"" + id + "\">" + std::string(text) + "</h3>\n";
}

std::string ListOf(std::size_t count, std::string_view listClass, const std::string& where,
                   const std::function<std::string(std::size_t)>& item) {
  constexpr std::size_t kShownAtOnce = 24;
  const auto items = [&](std::size_t from, std::size_t to) {
    std::string html = "<ul class=\"" + std::string(listClass) + "\">\n";
    for (std::size_t number = from; number < to; ++number) {
      html += "<li>" + item(number) + "</li>\n";
    }
    return html + "</ul>\n";
  };
  if (count <= kShownAtOnce + kShownAtOnce / 2) {
    return items(0, count);
  }
  std::string html = items(0, kShownAtOnce);
  html += "<details><summary>" + Number(count - kShownAtOnce, "further", where) +
          " more</summary>\n" + items(kShownAtOnce, std::min(count, kMostListed));
  if (count > kMostListed) {
    html += "<p class=\"note\">" + Number(count - kMostListed, "unlisted", where) +
            " more are in the JSON report alone.</p>\n";
  }
  return html + "</details>\n";
}
