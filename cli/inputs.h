#pragma once

#include "command.h"

#include <optional>
#include <string>
#include <vector>

/// A file of a call, and where its output goes.
struct FileToConvert {
  std::string Input;
  std::string Output;
  /// Why it is not converted, in words for the user.
  std::optional<std::string> Refusal;
  /// The call names it before as well; it must not be converted twice at the same time.
  bool IsRepeated = false;
};

/// All files that a call names, those of folders in the order of their paths.
std::vector<FileToConvert> ListFiles(const CommandOptions& options);

/// True for an output file without the line that ends it, as a run leaves it that was ended or
/// failed while it wrote.
bool IsUnfinished(const std::string& output);
