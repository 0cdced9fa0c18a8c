#include "common/files.h"

namespace s2k2ngt {

std::filesystem::path NativePath(const std::string& path) { return path; }

std::FILE* OpenFile(const std::string& path, const char* mode) {
  return std::fopen(path.c_str(), mode);
}

}  // namespace s2k2ngt
