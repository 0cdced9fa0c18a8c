#include "platform/windows/host_window.h"

namespace s2k2ngt {
namespace {

struct Search {
  HWND Ours = nullptr;
  HWND Found = nullptr;
};

BOOL CALLBACK Visit(HWND window, LPARAM state) {
  auto& search = *reinterpret_cast<Search*>(state);
  const bool standsByItself =
      IsWindowVisible(window) != 0 && GetWindow(window, GW_OWNER) == nullptr;
  if (window == search.Ours || !standsByItself) {
    return TRUE;
  }
  search.Found = window;
  return FALSE;
}

}  // namespace

HWND HostWindow(HWND ours) {
  Search search{ours};
  EnumThreadWindows(GetCurrentThreadId(), Visit, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

}  // namespace s2k2ngt
