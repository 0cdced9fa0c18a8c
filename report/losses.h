#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

/// A section of a file's part of the page.
struct Section {
  std::string Id;
  std::string Title;
  std::string Html;
};

/// What became of the rows that did not go over as they stand, by kind: one section for each fate
/// that has losses, the worst first, and one for what is no loss. `number` is that of the file in
/// the report, whose `reasons` are those of all its files.
std::vector<Section> LossSectionsOf(const nlohmann::ordered_json& file, std::size_t number,
                                    const nlohmann::ordered_json& reasons);
