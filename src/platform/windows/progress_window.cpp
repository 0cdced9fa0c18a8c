#include "platform/windows/progress_window.h"

#include "platform/windows/module.h"
#include "platform/windows/placement.h"
#include "platform/windows/resource.h"
#include "platform/windows/wide.h"

#include <algorithm>
#include <cstdint>

#include <commctrl.h>

namespace s2k2ngt {
namespace {

ScreenArea AreaOf(HWND window) {
  RECT area = {};
  GetWindowRect(window, &area);
  return {area.left, area.top, area.right, area.bottom};
}

/// Moves the window below the host's main window; without one that is on the screen it stays where
/// it is.
void Place(HWND window, HWND host) {
  const HWND root = host == nullptr ? nullptr : GetAncestor(host, GA_ROOTOWNER);
  const HWND main = IsWindowVisible(root) != 0 ? root : host;
  if (main == nullptr || IsIconic(main) != 0) {
    return;
  }
  const ScreenArea place =
      PlaceBelow(AreaOf(main), AreaOf(window), GetSystemMetrics(SM_CXFULLSCREEN),
                 GetSystemMetrics(SM_CYFULLSCREEN) + GetSystemMetrics(SM_CYCAPTION));
  MoveWindow(window, place.Left, place.Top, place.Width(), place.Height(), TRUE);
}

/// True when Escape has been pressed since this was asked last.
bool EscapeWasPressed() {
  constexpr auto kSinceLastAsked = 1;
  return (GetAsyncKeyState(VK_ESCAPE) & kSinceLastAsked) != 0;
}

}  // namespace

ProgressWindow::ProgressWindow(HWND host) {
  INITCOMMONCONTROLSEX controls = {};
  controls.dwSize = sizeof controls;
  controls.dwICC = ICC_PROGRESS_CLASS;
  InitCommonControlsEx(&controls);
  m_Window = CreateDialogParamW(OwnModule(), MAKEINTRESOURCEW(IDD_PROGRESS_WINDOW), nullptr, Handle,
                                reinterpret_cast<LPARAM>(this));
  Place(m_Window, host);
  ShowWindow(m_Window, SW_SHOWNORMAL);
  UpdateWindow(m_Window);
  EscapeWasPressed();  // before this run, which is no wish to stop it
}

ProgressWindow::~ProgressWindow() {
  DestroyWindow(m_Window);
  if (m_QuitCode) {
    PostQuitMessage(*m_QuitCode);
  }
}

INT_PTR CALLBACK ProgressWindow::Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, lParam);
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
  m_Range = high;
  m_ShownParts = 0;
  SendDlgItemMessageW(m_Window, IDC_PROGRESS, PBM_SETRANGE, 0, MAKELPARAM(0, high));
  SendDlgItemMessageW(m_Window, IDC_PROGRESS, PBM_SETPOS, 0, 0);
}

void ProgressWindow::SetPosition(int position) {
  constexpr std::int64_t kParts = 4096;  // more than a bar has pixels
  const int shown = std::clamp(position, 0, m_Range);
  const auto parts = static_cast<int>(shown * kParts / std::max(m_Range, 1));
  if (parts != m_ShownParts) {
    m_ShownParts = parts;
    SendDlgItemMessageW(m_Window, IDC_PROGRESS, PBM_SETPOS, static_cast<WPARAM>(shown), 0);
  }
}

bool ProgressWindow::AskStop() {
  PumpMessages();
  return EscapeWasPressed() || m_bStop;
}

void ProgressWindow::PumpMessages() {
  MSG message = {};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {
      m_QuitCode = static_cast<int>(message.wParam);
    } else if (IsDialogMessageW(m_Window, &message) == 0) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
}

}  // namespace s2k2ngt
