#include "target/output_file.h"

#include <s2k2ngt/exceptions.h>

#include <cerrno>
#include <cstdio>

namespace s2k2ngt {

OutputFile::OutputFile(const std::string& path) : m_Path(path), m_File(OpenFile(path, "wb")) {
  if (m_File == nullptr) {
    Fail("Cannot create output file");
  }
  // The line writer hands over large pieces; a second buffer would only copy them.
  std::setvbuf(m_File.get(), nullptr, _IONBF, 0);
}

void OutputFile::Write(std::string_view bytes) {
  if (m_File != nullptr &&
      std::fwrite(bytes.data(), 1, bytes.size(), m_File.get()) != bytes.size()) {
    Fail("Cannot write output file");
  }
}

void OutputFile::Close() {
  if (m_File != nullptr && std::fclose(m_File.release()) != 0) {
    Fail("Cannot write output file");
  }
}

void OutputFile::Fail(const char* what) const {
  const int systemError = errno;  // making the exception may change it
  throw FileException(what, systemError, m_Path);
}

}  // namespace s2k2ngt
