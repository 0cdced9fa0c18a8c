#include "platform/process.h"

#include "platform/windows/wide.h"

#include <windows.h>

namespace s2k2ngt {

bool StartProcess(const std::string& /*program*/, const std::string& /*argument*/,
                  const std::string& commandLine) {
  std::wstring line = Wide(commandLine);  // the system may write into it
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &process) == 0) {
    return false;
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

}  // namespace s2k2ngt
