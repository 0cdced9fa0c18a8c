#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

namespace s2k2ngt {

// Paths at our interfaces are bytes: on Windows UTF-8, or of the user's code page where they are
// not, and on other systems what their files are called.

std::filesystem::path NativePath(const std::string& path);

/// What fopen does, for a path in any script. `mode` is plain ASCII.
std::FILE* OpenFile(const std::string& path, const char* mode);

}  // namespace s2k2ngt
