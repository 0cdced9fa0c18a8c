#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

/// The report of a call as one page for people, which asks for nothing else: no script, no picture
/// and no font from anywhere. It is made from the JSON report, so that both say the same.
/// drawings[i], which may be empty, belongs to report["files"][i].
std::string PageOf(const nlohmann::ordered_json& report, const std::vector<std::string>& drawings);
