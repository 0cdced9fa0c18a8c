#include "common/files.h"

namespace s2k2ngt {

std::filesystem::path NativePath(const std::string& path) { return path; }

OpenedFile OpenFile(const std::string& path, const char* mode) {
  return OpenedFile(std::fopen(path.c_str(), mode));
}

}  // namespace s2k2ngt
