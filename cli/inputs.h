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

/// True for a file that begins as outputs do, as far as it goes, without the line that ends them:
/// as a run leaves it that was ended or failed while it wrote.
bool IsUnfinished(const std::string& output);
