#include "platform/windows/windows_platform.h"

#include "platform/windows/host_window.h"
#include "platform/windows/wide.h"

#include <algorithm>
#include <string>

#include <windows.h>
// Behind windows.h, which it needs.
#include <commdlg.h>

namespace s2k2ngt {

WindowsPlatform::WindowsPlatform() : m_Host(HostWindow()) {}

std::optional<std::string> WindowsPlatform::ChooseFile(const FileDialog& dialog) {
  constexpr std::size_t kLongestPath = 32'768;
  std::wstring filter = Wide(dialog.Filter);
  std::ranges::replace(filter, L'|', L'\0');  // as the dialog takes it
  const std::wstring extension = Wide(dialog.DefaultExtension);
  std::wstring path(kLongestPath, L'\0');
  OPENFILENAMEW options = {};
  options.lStructSize = sizeof options;
  options.hwndOwner = m_Host;
  options.lpstrFilter = filter.c_str();
  options.lpstrFile = path.data();
  options.nMaxFile = static_cast<DWORD>(path.size());
  options.lpstrDefExt = extension.c_str();
  // It would move the host to the folder of the file.
  options.Flags = OFN_FILEMUSTEXIST | OFN_LONGNAMES | OFN_EXPLORER | OFN_NOCHANGEDIR;
  if (GetOpenFileNameW(&options) == 0) {
    return std::nullopt;
  }
  return Utf8(path.c_str());
}

void WindowsPlatform::ShowMessage(const std::string& /*key*/, const std::string& text) {
  MessageBoxW(m_Host, Wide(text).c_str(), L"s2k2ngt", MB_OK | MB_ICONEXCLAMATION);
}

void WindowsPlatform::OpenProgress() { m_Progress.emplace(m_Host); }
void WindowsPlatform::CloseProgress() { m_Progress.reset(); }
void WindowsPlatform::SetStatus(const std::string& text) { m_Progress->SetStatus(text); }
void WindowsPlatform::SetRange(int high) { m_Progress->SetRange(high); }
void WindowsPlatform::SetPosition(int position) { m_Progress->SetPosition(position); }
bool WindowsPlatform::AskStop() { return m_Progress->AskStop(); }

}  // namespace s2k2ngt
