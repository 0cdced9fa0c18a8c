#include "platform/terminal/terminal_platform.h"

#include "common/files.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <system_error>

#include <unistd.h>

namespace s2k2ngt {

std::string Printable(std::string text) {
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    c = byte < 0x20 || byte == 0x7F ? '?' : c;
  }
  return text;
}

TerminalPlatform::TerminalPlatform() : TerminalPlatform(Options{}) {}

TerminalPlatform::TerminalPlatform(Options options) : m_Options(options) {
  m_Options.Progress = m_Options.Progress && isatty(STDERR_FILENO) != 0;
}

TerminalPlatform::~TerminalPlatform() { EraseBar(); }

std::optional<std::string> TerminalPlatform::ChooseFile(const FileDialog& /*dialog*/) {
  if (isatty(STDIN_FILENO) == 0) {
    return std::nullopt;
  }
  for (;;) {
    std::cerr << "SAP2000 V8 text file (.s2k) to convert: " << std::flush;
    std::string path;
    if (!std::getline(std::cin, path) || path.empty()) {
      return std::nullopt;
    }
    std::error_code error;
    if (std::filesystem::is_regular_file(NativePath(path), error)) {
      return path;
    }
    std::cerr << "There is no file " << path << '\n';
  }
}

void TerminalPlatform::ShowMessage(const std::string& /*key*/, const std::string& text) {
  if (m_Options.Messages) {
    EraseBar();
    *m_Options.Stream << Printable(text) << '\n';
  }
}

void TerminalPlatform::OpenProgress() {
  m_Interrupt.emplace();
  m_BarIsOpen = m_Options.Progress;
}

void TerminalPlatform::CloseProgress() {
  EraseBar();
  m_BarIsOpen = false;
  m_Interrupt.reset();
}

void TerminalPlatform::SetStatus(const std::string& text) { m_Status = text; }

void TerminalPlatform::SetRange(int high) {
  m_Range = high;
  m_Position = 0;
}

void TerminalPlatform::SetPosition(int position) {
  constexpr auto kBetweenDrawings = std::chrono::milliseconds(50);
  if (!m_BarIsOpen) {
    return;
  }
  m_Position = position;
  const auto now = std::chrono::steady_clock::now();
  if (now - m_DrawnAt >= kBetweenDrawings) {
    m_DrawnAt = now;
    DrawBar();
  }
}

bool TerminalPlatform::AskStop() { return WasInterrupted(); }

void TerminalPlatform::DrawBar() {
  constexpr int kWidth = 30;
  const int shown = std::clamp(m_Position, 0, m_Range);
  const int filled =
      m_Range > 0 ? static_cast<int>(static_cast<long long>(shown) * kWidth / m_Range) : 0;
  std::cerr << "\r[" << std::string(static_cast<std::size_t>(filled), '#')
            << std::string(static_cast<std::size_t>(kWidth - filled), ' ') << "] " << m_Status
            << "\x1b[K" << std::flush;
  m_BarIsDrawn = true;
}

void TerminalPlatform::EraseBar() {
  if (m_BarIsDrawn) {
    std::cerr << "\r\x1b[K" << std::flush;
    m_BarIsDrawn = false;
  }
}

}  // namespace s2k2ngt
