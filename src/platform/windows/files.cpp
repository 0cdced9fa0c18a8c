#include "common/files.h"

#include "platform/windows/wide.h"

namespace s2k2ngt {

std::filesystem::path NativePath(const std::string& path) { return Wide(path); }

OpenedFile OpenFile(const std::string& path, const char* mode) {
  return OpenedFile(_wfopen(Wide(path).c_str(), Wide(mode).c_str()));
}

}  // namespace s2k2ngt
