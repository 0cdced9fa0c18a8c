#include "platform/windows/host_window.h"

namespace s2k2ngt {
namespace {

BOOL CALLBACK TakeFirst(HWND window, LPARAM found) {
  if (IsWindowVisible(window) == 0 || GetWindow(window, GW_OWNER) != nullptr) {
    return TRUE;
  }
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

}  // namespace

HWND HostWindow() {
  HWND window = GetActiveWindow();
  if (window == nullptr) {
    EnumThreadWindows(GetCurrentThreadId(), TakeFirst, reinterpret_cast<LPARAM>(&window));
  }
  return window;
}

}  // namespace s2k2ngt
