#pragma once

#include <windows.h>

namespace s2k2ngt {

/// The window of the host that its user works in: the active one of this thread, as a dialog from
/// which we are called, or else its first visible one that stands by itself. Null when the thread
/// has none.
HWND HostWindow();

}  // namespace s2k2ngt
