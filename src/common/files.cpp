#include "common/files.h"

namespace s2k2ngt {

#ifdef _WIN32

std::filesystem::path NativePath(const std::string& path) {
  return std::u8string(path.begin(), path.end());
}

std::FILE* OpenFile(const std::string& path, const char* mode) {
  const std::string narrowMode = mode;
  return _wfopen(NativePath(path).c_str(),
                 std::wstring(narrowMode.begin(), narrowMode.end()).c_str());
}

#else

std::filesystem::path NativePath(const std::string& path) { return path; }

std::FILE* OpenFile(const std::string& path, const char* mode) {
  return std::fopen(path.c_str(), mode);
}

#endif

}  // namespace s2k2ngt
