#pragma once

#include "common/files.h"

#include <string>
#include <string_view>

namespace s2k2ngt {

/// A file created for writing bytes. Every failure throws a FileException with the system's error
/// and the file's name.
class OutputFile {
 public:
  /// Replaces a file that is there.
  explicit OutputFile(const std::string& path);
  /// A file that is nowhere: what is written to it is gone.
  OutputFile() = default;

  void Write(std::string_view bytes);
  /// Hands all bytes to the system. A file that goes without it is closed as it stands.
  void Close();

 private:
  [[noreturn]] void Fail(const char* what) const;

  std::string m_Path;
  OpenedFile m_File;
};

}  // namespace s2k2ngt
