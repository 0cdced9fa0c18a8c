#pragma once

#include <windows.h>

namespace s2k2ngt {

/// The host's main window: the first visible one of this thread that no other owns and that is not
/// `ours`; null when there is none.
HWND HostWindow(HWND ours);

}  // namespace s2k2ngt
