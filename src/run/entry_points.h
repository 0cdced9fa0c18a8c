#pragma once

#include <s2k2ngt/platform.h>

#include <optional>
#include <string>

namespace s2k2ngt {

/// Lets the user choose a source file; nothing when the user would not.
std::optional<std::string> ChooseSourceFile(Platform& platform);

/// Lets the user choose a file and converts it. With result 0 `output` is the output's path, else
/// it is left as it was; 1 is also a user who chose no file.
int ConvertChosenFile(Platform& platform, std::string& output);

}  // namespace s2k2ngt
