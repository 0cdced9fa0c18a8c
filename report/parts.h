#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

// Parts that recur on a page. Each number says by data attributes which one of the report it is, so
// that both can be compared.

/// A fate by its name in the report, and in words.
struct FateWords {
  const char* Key;
  const char* Head;  // of a column
  const char* Class;
};
inline constexpr std::array<FateWords, 5> kFateWords = {{
    {"converted", "Converted", "converted"},
    {"changed", "Changed", "changed"},
    {"dropped", "Dropped", "dropped"},
    {"refused", "Refused", "refused"},
    {"not_looked_at", "Not looked at", "unseen"},
}};

/// A verdict by its name in the report, and in words.
struct VerdictWords {
  const char* Key;
  const char* Words;
  const char* Class;
};
inline constexpr std::array<VerdictWords, 4> kVerdicts = {{
    {"whole", "converted without loss", "whole"},
    {"losses", "converted with losses", "losses"},
    {"stopped", "stopped", "stopped"},
    {"failed", "not converted", "failed"},
}};
const VerdictWords& VerdictIn(const nlohmann::ordered_json& file);
std::string Badge(const VerdictWords& verdict);

/// A text of an object of the report.
std::string TextIn(const nlohmann::ordered_json& object, const char* key);

/// The last part of a path.
std::string_view LastPartOf(std::string_view path);

/// Where a number stands in the report, as attributes.
std::string OfFile(std::size_t file);
std::string OfTable(std::size_t file, std::size_t table);

/// A number. `what` is its name, `where` one of the above or empty.
std::string Number(std::uint64_t number, std::string_view what, const std::string& where = "");
/// "1 row", with the number as above.
std::string NumberOf(std::uint64_t count, std::string_view one, std::string_view many,
                     std::string_view what, const std::string& where = "");

/// A text of the report as it stands, such as a label.
std::string Literal(std::string_view text);

/// Rows by their fates, as a bar.
std::string BarOf(const nlohmann::ordered_json& rows);

/// The heading of a section that the page's list of contents leads to.
std::string Heading(const std::string& id, std::string_view text);

/// A list of so many items. The first few stand there, further ones behind a summary, and what is
/// beyond 200 in the JSON alone. `where` says what is listed.
std::string ListOf(std::size_t count, std::string_view listClass, const std::string& where,
                   const std::function<std::string(std::size_t)>& item);
/// What such a list shows at most.
inline constexpr std::size_t kMostListed = 200;
/// The tables of a file that are shown at most.
inline constexpr std::size_t kMostTables = 1000;
