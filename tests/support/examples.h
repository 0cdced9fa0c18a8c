#pragma once

#include "support/temporary_folder.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

/// The names of all example models.
inline std::vector<std::string> ExampleNames() {
  std::vector<std::string> names;
  for (const auto& file : std::filesystem::directory_iterator(S2K2NGT_EXAMPLES)) {
    if (file.path().extension() == ".s2k") {
      names.push_back(file.path().stem().string());
    }
  }
  std::ranges::sort(names);
  return names;
}

/// The bytes of an example model.
inline std::string Example(const std::string& name) {
  return ReadFile(std::string(S2K2NGT_EXAMPLES) + "/" + name + ".s2k");
}
