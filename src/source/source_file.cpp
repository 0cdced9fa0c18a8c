#include "source/source_file.h"

#include "common/files.h"

#include <s2k2ngt/exceptions.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

namespace s2k2ngt {

SourceFile ReadSourceFile(const std::string& path) {
  SourceFile source;
  std::error_code ignored;
  if (std::filesystem::is_directory(NativePath(path), ignored)) {
    // Some systems open a directory like a file and fail at the first read.
    source.OpenError = "it is a directory";
    return source;
  }
  const OpenedFile file = OpenFile(path, "rb");
  if (file == nullptr) {
    source.OpenError = std::generic_category().message(errno);
    return source;
  }
  std::error_code sizeUnknown;
  const auto size = std::filesystem::file_size(NativePath(path), sizeUnknown);
  // One byte beyond a regular file's size shows its end without growing the image.
  std::size_t room = sizeUnknown ? std::size_t{1} << 16U : static_cast<std::size_t>(size) + 1;
  source.Bytes = std::make_unique_for_overwrite<char[]>(room);
  for (;;) {
    source.Size += std::fread(source.Bytes.get() + source.Size, 1, room - source.Size, file.get());
    if (source.Size < room) {
      break;
    }
    room *= 2;
    auto larger = std::make_unique_for_overwrite<char[]>(room);
    std::copy_n(source.Bytes.get(), source.Size, larger.get());
    source.Bytes = std::move(larger);
  }
  if (std::ferror(file.get()) != 0) {
    const int systemError = errno;  // making the exception may change it
    throw FileException("Cannot read input file", systemError, path);
  }
  return source;
}

}  // namespace s2k2ngt
