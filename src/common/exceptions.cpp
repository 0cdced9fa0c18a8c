#include <s2k2ngt/exceptions.h>

#include <string>
#include <system_error>
#include <utility>

namespace s2k2ngt {

FileException::FileException(const std::string& what, int systemError, std::string fileName)
    : std::runtime_error(what + " " + fileName + ": " +
                         std::generic_category().message(systemError)),
      m_SystemError(systemError),
      m_FileName(std::move(fileName)) {}

}  // namespace s2k2ngt
