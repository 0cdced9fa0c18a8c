#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

namespace s2k2ngt {

// Paths at our interfaces are bytes: on Windows UTF-8, or of the user's code page where they are
// not, and on other systems what their files are called.

std::filesystem::path NativePath(const std::string& path);

/// Closes a file whose bytes are all read, or no longer of use.
struct FileCloser {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using OpenedFile = std::unique_ptr<std::FILE, FileCloser>;

/// What fopen does, for a path in any script: null and errno when the file cannot be opened. `mode`
/// is plain ASCII.
OpenedFile OpenFile(const std::string& path, const char* mode);

}  // namespace s2k2ngt
