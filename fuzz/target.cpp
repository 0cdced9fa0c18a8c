#include "target.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

void Require(bool holds, const std::string& what) {
  if (!holds) {
    std::fprintf(stderr, "found: %s\n", what.c_str());
    std::abort();
  }
}

const TemporaryFolder& Folder() {
  static const TemporaryFolder folder = [] {
    if (std::filesystem::is_directory("/dev/shm")) {
      setenv("TMPDIR", "/dev/shm", 0);
    }
    return TemporaryFolder();
  }();
  return folder;
}
