#pragma once

#include <s2k2ngt/platform.h>

#include <memory>

namespace s2k2ngt {

/// The platform of the entry points that bring their own windows: a terminal here.
std::unique_ptr<Platform> MakeDefaultPlatform();

}  // namespace s2k2ngt
