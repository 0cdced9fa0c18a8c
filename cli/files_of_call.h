#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// The files of one call of the command, so that none replaces another.
class FilesOfCall {
 public:
  explicit FilesOfCall(const std::vector<std::string>& inputs);

  /// Takes note that the output of an input is to be written, unless it must not be: then the
  /// reason, in words for the user.
  std::optional<std::string> WhyNotWritten(const std::string& input, const std::string& output);

  /// True when note was taken of the output.
  bool IsWritten(const std::string& output) const;

 private:
  /// Why the file that the output replaces, under another of its names, is one of the call's.
  std::optional<std::string> WhyNotReplaced(const std::string& output) const;

  std::vector<std::string> m_NamesOfInputs;
  std::set<std::filesystem::path> m_Inputs;
  std::map<std::filesystem::path, std::string> m_InputOfOutput;
};
