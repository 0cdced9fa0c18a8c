#include "platform/windows/wide.h"

#include <windows.h>

namespace s2k2ngt {
namespace {

/// Empty when the text is not of the code page.
std::wstring FromCodePage(std::string_view text, unsigned codePage, unsigned long flags) {
  const int size = static_cast<int>(text.size());
  const int count = MultiByteToWideChar(codePage, flags, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(count), L'\0');
  MultiByteToWideChar(codePage, flags, text.data(), size, wide.data(), count);
  return wide;
}

}  // namespace

std::wstring Wide(std::string_view text) {
  if (text.empty()) {
    return {};
  }
  std::wstring wide = FromCodePage(text, CP_UTF8, MB_ERR_INVALID_CHARS);
  return wide.empty() ? FromCodePage(text, CP_ACP, 0) : wide;
}

std::string Utf8(std::wstring_view text) {
  if (text.empty()) {
    return {};
  }
  const int size = static_cast<int>(text.size());
  const int count =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(count), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), count, nullptr, nullptr);
  return utf8;
}

}  // namespace s2k2ngt
