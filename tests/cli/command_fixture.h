#pragma once

#include "support/command_run.h"
#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

/// A file that every run converts.
inline const std::string kOneJoint =
    FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=1   XorR=2\n");

/// The lines that every output begins with, up to its path.
inline const std::string kBeginningOfOutput =
    ";" + std::string(75, '-') + "\n;  NORDA/Gen Text(NGT) File.\n";

/// Calls the command in a folder of its own.
class CommandTest : public testing::Test {
 protected:
  CommandRun Call(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), S2K2NGT_COMMAND);
    return RunCommand({.Words = arguments, .Folder = m_Folder.Path()});
  }
  /// The words of a shell, in which the command goes by the name $S2K2NGT.
  CommandRun CallInShell(const std::string& script) {
    return RunCommand({.Words = {"/bin/sh", "-c", "S2K2NGT=" S2K2NGT_COMMAND "; " + script},
                       .Folder = m_Folder.Path()});
  }
  void Write(const std::string& name, const std::string& bytes) {
    WriteFile(m_Folder.FileName(name), bytes);
  }
  bool Exists(const std::string& name) { return std::filesystem::exists(m_Folder.Path() / name); }

  TemporaryFolder m_Folder;
};

/// The objects that --json has printed.
inline std::vector<nlohmann::json> JsonLines(const std::string& out) {
  std::vector<nlohmann::json> objects;
  std::istringstream lines(out);
  for (std::string line; std::getline(lines, line);) {
    objects.push_back(nlohmann::json::parse(line));
  }
  return objects;
}
