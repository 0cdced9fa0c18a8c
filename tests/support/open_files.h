#pragma once

#include <cstddef>
#include <filesystem>
#include <iterator>

/// The number of files that this process has open.
inline std::ptrdiff_t OpenFiles() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                       std::filesystem::directory_iterator());
}
