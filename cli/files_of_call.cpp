#include "files_of_call.h"

#include "common/files.h"

#include <cstdint>
#include <string>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#endif

using s2k2ngt::NativePath;

namespace {

/// The path behind links to a file that is not there yet.
std::filesystem::path BehindLinks(std::filesystem::path path) {
  constexpr int kMostLinks = 40;
  std::error_code unknown;
  for (int links = 0; links < kMostLinks && std::filesystem::is_symlink(path, unknown) &&
                      !std::filesystem::exists(path, unknown);
       ++links) {
    path = path.parent_path() / std::filesystem::read_symlink(path, unknown);
  }
  return path;
}

/// One name for all the names of a file, or of one that is not there yet.
std::filesystem::path TrueName(const std::string& path) {
  std::error_code unknown;
  const std::filesystem::path whole =
      BehindLinks(std::filesystem::absolute(NativePath(path), unknown));
  const std::filesystem::path name = std::filesystem::weakly_canonical(whole, unknown);
#ifdef _WIN32
  // Capital letters make no other file, and one that is not there yet has no name to go by.
  std::wstring text = (unknown ? whole : name).wstring();
  CharLowerW(text.data());
  return text;
#else
  return unknown ? whole : name;
#endif
}

bool AreTheSame(const std::string& input, const std::string& output) {
  std::error_code noSuchFile;
  return std::filesystem::equivalent(NativePath(input), NativePath(output), noSuchFile);
}

}  // namespace

FilesOfCall::FilesOfCall(const std::vector<std::string>& inputs) : m_NamesOfInputs(inputs) {
  for (const std::string& input : inputs) {
    m_Inputs.insert(TrueName(input));
  }
}

std::optional<std::string> FilesOfCall::WhyNotWritten(const std::string& input,
                                                      const std::string& output) {
  if (AreTheSame(input, output)) {
    return "the output would replace the input; rename the input to end in .s2k";
  }
  const std::filesystem::path name = TrueName(output);
  if (m_Inputs.contains(name)) {
    return "the output would replace the input " + output;
  }
  if (std::optional<std::string> reason = WhyNotReplaced(output)) {
    return reason;
  }
  const auto [earlier, isNew] = m_InputOfOutput.try_emplace(name, input);
  if (!isNew && TrueName(earlier->second) != TrueName(input)) {
    return "the output would replace that of " + earlier->second;
  }
  return std::nullopt;
}

std::optional<std::string> FilesOfCall::WhyNotReplaced(const std::string& output) const {
  std::error_code noSuchFile;
  const std::uintmax_t names = std::filesystem::hard_link_count(NativePath(output), noSuchFile);
  if (noSuchFile || names < 2) {
    return std::nullopt;  // as of nearly all
  }
  for (const std::string& input : m_NamesOfInputs) {
    if (AreTheSame(input, output)) {
      return "the output would replace the input " + input;
    }
  }
  const std::filesystem::path name = TrueName(output);
  for (const auto& [earlier, input] : m_InputOfOutput) {
    std::error_code unknown;
    if (earlier != name && std::filesystem::equivalent(earlier, NativePath(output), unknown)) {
      return "the output would replace that of " + input;
    }
  }
  return std::nullopt;
}

bool FilesOfCall::IsWritten(const std::string& output) const {
  return m_InputOfOutput.contains(TrueName(output));
}
