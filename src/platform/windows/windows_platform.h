#pragma once

#include "platform/windows/progress_window.h"

#include <s2k2ngt/platform.h>

#include <optional>

namespace s2k2ngt {

/// The windows of a run in a host on Windows: file dialog, message boxes, progress window.
class WindowsPlatform : public Platform {
 public:
  WindowsPlatform();

  std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
  void ShowMessage(const std::string& key, const std::string& text) override;
  void OpenProgress() override;
  void CloseProgress() override;
  void SetStatus(const std::string& text) override;
  void SetRange(int high) override;
  void SetPosition(int position) override;
  bool AskStop() override;

 private:
  /// Owner of the dialogs and boxes, and not the progress window, so that its stop button can be
  /// pressed while a box is open.
  HWND m_Host;
  std::optional<ProgressWindow> m_Progress;
};

}  // namespace s2k2ngt
