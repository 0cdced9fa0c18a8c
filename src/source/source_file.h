#pragma once

#include "common/text.h"

#include <cstddef>
#include <memory>
#include <string>

namespace s2k2ngt {

/// The bytes of an input file.
struct SourceFile {
  Text Image() const { return {Bytes.get(), Size}; }

  std::unique_ptr<char[]> Bytes;
  std::size_t Size = 0;
  /// Why the file could not be opened, in the system's words; empty when it could.
  std::string OpenError;
};

/// Reads a whole file. A file that cannot be opened says so in OpenError; one that cannot be read
/// on throws FileException.
SourceFile ReadSourceFile(const std::string& path);

}  // namespace s2k2ngt
