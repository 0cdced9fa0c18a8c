#pragma once

#include <string>

namespace s2k2ngt {

/// The host's companion editor, with which its users look at text files.
inline constexpr const char* kEditor = "ZEdit.exe";

/// The command line that opens a file in the editor: both names in quotes, then the editor's
/// further options, of which there are none.
std::string EditorCommandLine(const std::string& path);

}  // namespace s2k2ngt
