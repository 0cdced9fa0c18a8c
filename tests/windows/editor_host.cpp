// A host that starts the editor on a file, and offers it a handle that it must not inherit.
#include <s2k2ngt/converter.h>

#include <cstdio>
#include <string>

#include <windows.h>

int main(int count, char** words) {
  if (count != 2) {
    return 64;
  }
  SECURITY_ATTRIBUTES inheritable = {sizeof inheritable, nullptr, TRUE};
  const HANDLE event = CreateEventW(&inheritable, TRUE, FALSE, nullptr);
  SetEnvironmentVariableA("OFFERED_HANDLE",
                          std::to_string(reinterpret_cast<std::uintptr_t>(event)).c_str());
  std::printf("launched %d\n", s2k2ngt::CConverter::LaunchEditor(words[1]));
  return 0;
}
