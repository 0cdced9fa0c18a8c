#include "inputs.h"

#include "common/files.h"
#include "files_of_call.h"
#include "target/lines_of_any_file.h"

#include <s2k2ngt/converter.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

using s2k2ngt::CConverter;
using s2k2ngt::NativePath;
using std::filesystem::file_type;
using std::filesystem::path;

namespace {

/// The bytes that NativePath makes the path of.
std::string Bytes(const path& name) {
  const std::u8string text = name.u8string();
  return {text.begin(), text.end()};
}

bool IsSourceName(const path& name) {
  const std::string text = Bytes(name);
  return text.ends_with(".s2k") || text.ends_with(".s2K") || text.ends_with(".S2k") ||
         text.ends_with(".S2K");
}

/// A file, or a folder that cannot be read.
struct Found {
  path Path;
  std::string Error;
};

/// Adds the source files at any depth. Links to folders are not followed, as they may lead back;
/// a link to no file is taken, so that it is told.
void FindIn(const path& folder, std::vector<Found>& found) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    std::error_code unknown;
    if (!entry->is_symlink(unknown) && entry->is_directory(unknown)) {
      FindIn(entry->path(), found);
      continue;
    }
    const file_type type = entry->status(unknown).type();
    const bool maybeFile =
        type == file_type::regular || type == file_type::not_found || type == file_type::none;
    if (maybeFile && IsSourceName(entry->path())) {
      found.push_back({entry->path(), {}});
    }
  }
  if (error) {
    found.push_back({folder, "cannot read the folder: " + error.message()});
  }
}

/// Where the output goes; `folder` is that of the input below the folder of the call.
std::string OutputOf(const std::string& input, const path& folder, const CommandOptions& options) {
  if (options.OutputDirectory.empty()) {
    return CConverter::OutputPath(input);
  }
  const std::string name = CConverter::OutputPath(Bytes(NativePath(input).filename()));
  return Bytes(NativePath(options.OutputDirectory) / folder / NativePath(name));
}

void AddFolder(const std::string& name, const CommandOptions& options,
               std::vector<FileToConvert>& files) {
  const path folder = NativePath(name);
  std::vector<Found> all;
  FindIn(folder, all);
  if (all.empty()) {
    all.push_back({folder, "no file in this folder has a name that ends in .s2k"});
  }
  std::sort(all.begin(), all.end(), [](const Found& a, const Found& b) { return a.Path < b.Path; });
  for (const Found& found : all) {
    FileToConvert file = {.Input = Bytes(found.Path), .Output = {}, .Refusal = {}};
    if (found.Error.empty()) {
      const path below = found.Path.lexically_relative(folder);
      file.Output = OutputOf(file.Input, below.parent_path(), options);
    } else {
      file.Refusal = found.Error;
    }
    files.push_back(std::move(file));
  }
}

bool LiesBeside(const std::string& input, const std::string& output) {
  return NativePath(input).parent_path() == NativePath(output).parent_path();
}

}  // namespace

std::vector<FileToConvert> ListFiles(const CommandOptions& options) {
  std::vector<FileToConvert> files;
  for (const std::string& name : options.Files) {
    std::error_code unknown;
    if (options.Recursive && std::filesystem::is_directory(NativePath(name), unknown)) {
      AddFolder(name, options, files);
    } else {
      files.push_back({.Input = name, .Output = OutputOf(name, {}, options), .Refusal = {}});
    }
  }
  std::vector<std::string> inputs;
  inputs.reserve(files.size());
  for (const FileToConvert& file : files) {
    inputs.push_back(file.Input);
  }
  FilesOfCall known(inputs);
  for (FileToConvert& file : files) {
    if (file.Refusal) {
      continue;
    }
    if (options.OutputDirectory.empty() && !LiesBeside(file.Input, file.Output)) {
      // The last dot of the path is in the name of a folder.
      file.Refusal = "the output would not lie beside the input; rename the input to end in .s2k";
      continue;
    }
    file.IsRepeated = !options.Check && known.IsWritten(file.Output);
    file.Refusal = known.WhyNotWritten(file.Input, file.Output);
  }
  return files;
}

bool IsUnfinished(const std::string& output) {
  const std::string head =
      std::string(s2k2ngt::kRuleLine) + '\n' + std::string(s2k2ngt::kNameLine) + '\n';
  std::error_code noSuchFile;
  if (!std::filesystem::is_regular_file(NativePath(output), noSuchFile)) {
    return false;
  }
  std::ifstream file(NativePath(output), std::ios::binary);
  if (!file) {
    return false;
  }
  std::string first(head.size(), '\0');
  file.read(first.data(), static_cast<std::streamsize>(first.size()));
  first.resize(static_cast<std::size_t>(file.gcount()));
  if (!head.starts_with(first)) {
    return false;  // of another program
  }
  file.clear();
  // The end of the file, or all of it; an editor may have put line ends behind the last line.
  std::array<char, 64> last{};
  if (!file.seekg(-static_cast<std::streamoff>(last.size()), std::ios::end)) {
    file.clear();
    file.seekg(0);
  }
  file.read(last.data(), last.size());
  std::string_view text(last.data(), static_cast<std::size_t>(file.gcount()));
  while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) {
    text.remove_suffix(1);
  }
  return !text.ends_with(s2k2ngt::kLastLine);
}
