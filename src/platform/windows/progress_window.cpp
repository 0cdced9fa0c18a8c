#include "platform/windows/progress_window.h"

#include "platform/windows/host_window.h"
#include "platform/windows/module.h"
#include "platform/windows/placement.h"
#include "platform/windows/resource.h"
#include "platform/windows/wide.h"

#include <commctrl.h>

namespace s2k2ngt {
namespace {

ScreenArea AreaOf(HWND window) {
  RECT area = {};
  GetWindowRect(window, &area);
  return {area.left, area.top, area.right, area.bottom};
}

/// Moves the window below the host's; without a host it stays where it is.
void Place(HWND window) {
  const HWND host = HostWindow(window);
  if (host == nullptr) {
    return;
  }
  const ScreenArea place =
      PlaceBelow(AreaOf(host), AreaOf(window), GetSystemMetrics(SM_CXFULLSCREEN),
                 GetSystemMetrics(SM_CYFULLSCREEN) + GetSystemMetrics(SM_CYCAPTION));
  MoveWindow(window, place.Left, place.Top, place.Width(), place.Height(), TRUE);
}

}  // namespace

ProgressWindow::ProgressWindow() {
  INITCOMMONCONTROLSEX controls = {};
  controls.dwSize = sizeof controls;
  controls.dwICC = ICC_PROGRESS_CLASS;
  InitCommonControlsEx(&controls);
  m_Window = CreateDialogParamW(OwnModule(), MAKEINTRESOURCEW(IDD_PROGRESS_WINDOW), nullptr, Handle,
                                reinterpret_cast<LPARAM>(this));
  ShowWindow(m_Window, SW_SHOWNORMAL);
  UpdateWindow(m_Window);
}

ProgressWindow::~ProgressWindow() { DestroyWindow(m_Window); }

INT_PTR CALLBACK ProgressWindow::Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    Place(window);
    return TRUE;
  }
  if (message == WM_COMMAND && LOWORD(wParam) == IDC_STOP && HIWORD(wParam) == BN_CLICKED) {
    reinterpret_cast<ProgressWindow*>(GetWindowLongPtrW(window, DWLP_USER))->m_bStop = true;
    return TRUE;
  }
  return FALSE;
}

void ProgressWindow::SetStatus(const std::string& text) {
  SetDlgItemTextW(m_Window, IDC_STATUS, Wide(text).c_str());
  UpdateWindow(m_Window);
}

void ProgressWindow::SetRange(int high) {
  SendDlgItemMessageW(m_Window, IDC_PROGRESS, PBM_SETRANGE, 0, MAKELPARAM(0, high));
}

void ProgressWindow::SetPosition(int position) {
  SendDlgItemMessageW(m_Window, IDC_PROGRESS, PBM_SETPOS, static_cast<WPARAM>(position), 0);
}

bool ProgressWindow::AskStop() {
  PumpMessages();
  constexpr auto kPressedSinceLastAsked = 1;
  return (GetAsyncKeyState(VK_ESCAPE) & kPressedSinceLastAsked) != 0 || m_bStop;
}

void ProgressWindow::PumpMessages() {
  MSG message = {};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {
      // It is the host's: its own loop must see it.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (IsDialogMessageW(m_Window, &message) == 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
}

}  // namespace s2k2ngt
