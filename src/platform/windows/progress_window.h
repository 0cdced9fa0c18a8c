#pragma once

#include <optional>
#include <string>

#include <windows.h>

namespace s2k2ngt {

/// The modeless progress window of a run: a bar, a status text and a stop button. There is no
/// thread behind it: AskStop lets the windows of the run's thread live.
class ProgressWindow {
 public:
  /// Opens it below the host's main window; `host` is a window of it, or null.
  explicit ProgressWindow(HWND host);
  ~ProgressWindow();
  ProgressWindow(const ProgressWindow&) = delete;
  ProgressWindow& operator=(const ProgressWindow&) = delete;

  void SetStatus(const std::string& text);
  /// The bar takes ranges of 16 bits. It begins anew with each.
  void SetRange(int high);
  void SetPosition(int position);

  /// Handles the messages that wait, of all windows of the thread. True once the stop button or
  /// Escape has been pressed.
  bool AskStop();

 private:
  static INT_PTR CALLBACK Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void PumpMessages();

  HWND m_Window = nullptr;
  bool m_bStop = false;
  // What the bar shows, so that it is drawn when it moves and not for every row of a file.
  int m_Range = 0;
  int m_ShownParts = 0;
  /// The exit code of a WM_QUIT that came meanwhile: it is the host's, and goes back in the end.
  std::optional<int> m_QuitCode;
};

}  // namespace s2k2ngt
