#include "platform/default_platform.h"

#include "platform/windows/windows_platform.h"

namespace s2k2ngt {

std::unique_ptr<Platform> MakeDefaultPlatform() { return std::make_unique<WindowsPlatform>(); }

}  // namespace s2k2ngt
