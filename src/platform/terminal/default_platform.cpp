#include "platform/default_platform.h"

#include "platform/terminal/terminal_platform.h"

namespace s2k2ngt {

std::unique_ptr<Platform> MakeDefaultPlatform() {
  ForgetInterrupt();
  return std::make_unique<TerminalPlatform>();
}

}  // namespace s2k2ngt
