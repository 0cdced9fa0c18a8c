#pragma once

#include "platform/terminal/interrupt.h"

#include <s2k2ngt/platform.h>

#include <chrono>
#include <iostream>
#include <optional>
#include <string>

namespace s2k2ngt {

/// The text with control characters as question marks. Labels come from files of any origin; on a
/// terminal they must not move the cursor or do worse.
std::string Printable(std::string text);

/// Shows messages as lines, on standard error if no other stream is named, and progress as a bar,
/// if that is a terminal. Ctrl-C stops the run while its progress is shown.
class TerminalPlatform : public Platform {
 public:
  struct Options {
    bool Messages = true;
    bool Progress = true;
    std::ostream* Stream = &std::cerr;  // of the messages; the bar is drawn on the terminal alone
  };

  TerminalPlatform();
  explicit TerminalPlatform(Options options);
  ~TerminalPlatform() override;

  /// Asks for a path until it names a file; nothing when the answer is empty, or when there is no
  /// terminal to ask on.
  std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
  void ShowMessage(const std::string& key, const std::string& text) override;
  void OpenProgress() override;
  void CloseProgress() override;
  void SetStatus(const std::string& text) override;
  void SetRange(int high) override;
  void SetPosition(int position) override;
  bool AskStop() override;

  /// Takes the bar off the terminal, so that a line can be written in its place.
  void EraseBar();

 private:
  void DrawBar();

  Options m_Options;
  std::optional<InterruptGuard> m_Interrupt;
  bool m_BarIsOpen = false;
  bool m_BarIsDrawn = false;
  std::string m_Status;
  int m_Range = 0;
  int m_Position = 0;
  std::chrono::steady_clock::time_point m_DrawnAt;
};

}  // namespace s2k2ngt
