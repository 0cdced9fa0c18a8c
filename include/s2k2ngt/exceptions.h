#pragma once

#include <s2k2ngt/export.h>

#include <new>
#include <stdexcept>
#include <string>

namespace s2k2ngt {

// A run catches no exception. These three reach the host, which decides what to tell its user.

/// A file that cannot be created, read or written.
class S2K2NGT_API FileException : public std::runtime_error {
 public:
  /// `what` says what could not be done with the file, such as "Cannot create output file".
  FileException(const std::string& what, int systemError, std::string fileName);

  /// The operating system's error number.
  int SystemError() const { return m_SystemError; }
  const std::string& FileName() const { return m_FileName; }

 private:
  int m_SystemError;
  std::string m_FileName;
};

/// Memory ran out.
using MemoryException = std::bad_alloc;

/// A table that must hold a row, or a value that must have parts, does not.
class S2K2NGT_API InvalidArgumentException : public std::invalid_argument {
 public:
  using std::invalid_argument::invalid_argument;
};

}  // namespace s2k2ngt
