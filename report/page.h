#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

// The report of a call as one page for people, which asks for nothing else: no script, no picture
// and no font from anywhere. It is made from the JSON report, so that both say the same, file by
// file: all of them at once would take much memory.

/// The page up to its files. `program` is that of the report; `files` are their summaries.
std::string BeginningOfPage(const nlohmann::ordered_json& program,
                            const std::vector<nlohmann::ordered_json>& files);

/// The part of one file, whose number in the report it is. `reasons` are those of the report;
/// `drawings` may be empty.
std::string PartOfPage(const nlohmann::ordered_json& file, std::size_t number,
                       const nlohmann::ordered_json& reasons, const std::string& drawings);

/// What ends the page.
inline constexpr const char* kEndOfPage = "</main>\n</body>\n</html>\n";
