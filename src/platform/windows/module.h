#pragma once

#include <windows.h>

namespace s2k2ngt {

/// The library or program that this code is in, which also holds our resources.
HINSTANCE OwnModule();

}  // namespace s2k2ngt
