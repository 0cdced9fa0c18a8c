#include "source/source_file.h"

#include "common/files.h"

#include <s2k2ngt/exceptions.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace s2k2ngt {

SourceFile ReadSourceFile(const std::string& path) {
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  SourceFile source;
  std::error_code ignored;
  if (std::filesystem::is_directory(NativePath(path), ignored)) {
    // Some systems open a directory like a file and fail at the first read.
    source.OpenError = "it is a directory";
    return source;
  }
  const std::unique_ptr<std::FILE, Closer> file(OpenFile(path, "rb"));
  if (file == nullptr) {
    source.OpenError = std::generic_category().message(errno);
    return source;
  }
  std::error_code sizeUnknown;
  const auto size = std::filesystem::file_size(NativePath(path), sizeUnknown);
  // One byte beyond a regular file's size shows its end without growing the image.
  std::size_t room = sizeUnknown ? std::size_t{1} << 16U : static_cast<std::size_t>(size) + 1;
  std::size_t used = 0;
  for (;;) {
    if (room > source.Image.max_size() - used) {
      throw MemoryException();
    }
    source.Image.resize(used + room);
    const std::size_t count = std::fread(source.Image.data() + used, 1, room, file.get());
    used += count;
    if (count < room) {
      break;
    }
    room = used;
  }
  if (std::ferror(file.get()) != 0) {
    throw FileException("Cannot read input file", errno, path);
  }
  source.Image.resize(used);
  return source;
}

}  // namespace s2k2ngt
