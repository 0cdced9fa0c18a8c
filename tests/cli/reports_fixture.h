#pragma once

#include "cli/command_fixture.h"

#include <string>

#include <nlohmann/json.hpp>

/// A table that the host has no like for, and one whose second block writes over its first.
inline const std::string kLosses = FileWith(
    "TABLE:  \"FUNCTION - RESPONSE SPECTRUM - USER\"\n   Name=1\n   Name=2\n\n"
    "TABLE:  \"AREA AUTO MESH ASSIGNMENTS\"\n   Area=1\n\n"
    "TABLE:  \"FUNCTION - RESPONSE SPECTRUM - USER\"\n   Name=3\n");

class ReportsTest : public CommandTest {
 protected:
  nlohmann::json Report(const std::string& name) {
    return nlohmann::json::parse(ReadFile(m_Folder.FileName(name)));
  }
  std::string Text(const std::string& name) { return ReadFile(m_Folder.FileName(name)); }
};
