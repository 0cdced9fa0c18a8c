#include "console.h"

#ifdef _WIN32
#include "platform/windows/wide.h"

#include <cstdio>

#include <fcntl.h>
#include <io.h>
#include <windows.h>
// Behind windows.h, which it needs.
#include <shellapi.h>

namespace {

/// Adds the files that fit the pattern; the pattern itself when there is none.
void AddFilesOf(const std::wstring& pattern, std::vector<std::string>& words) {
  const std::wstring folder = pattern.substr(0, pattern.find_last_of(L"\\/:") + 1);
  WIN32_FIND_DATAW file = {};
  const HANDLE search = FindFirstFileW(pattern.c_str(), &file);
  if (search == INVALID_HANDLE_VALUE) {
    words.push_back(s2k2ngt::Utf8(pattern));
    return;
  }
  do {
    words.push_back(s2k2ngt::Utf8(folder + file.cFileName));
  } while (FindNextFileW(search, &file) != 0);
  FindClose(search);
}

HANDLE ErrorOutput() { return GetStdHandle(STD_ERROR_HANDLE); }

}  // namespace

std::vector<std::string> CommandLineWords(int argc, char** argv) {
  int count = 0;
  wchar_t** const wideWords = CommandLineToArgvW(GetCommandLineW(), &count);
  if (wideWords == nullptr) {
    return {argv, argv + argc};
  }
  std::vector<std::string> words;
  for (int index = 0; index < count; ++index) {
    const std::wstring word = wideWords[index];
    if (index > 0 && word.find_first_of(L"*?") != std::wstring::npos) {
      AddFilesOf(word, words);
    } else {
      words.push_back(s2k2ngt::Utf8(word));
    }
  }
  LocalFree(wideWords);
  return words;
}

Console::Console() : m_CodePageBefore(GetConsoleOutputCP()) {
  _setmode(_fileno(stdout), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
  if (GetConsoleMode(ErrorOutput(), &m_ModeBefore) != 0) {
    constexpr DWORD kUnderstandsEscapes = 0x0004;  // since Windows 10
    m_CanDraw = SetConsoleMode(ErrorOutput(), m_ModeBefore | kUnderstandsEscapes) != 0;
  }
}

Console::~Console() {
  SetConsoleOutputCP(m_CodePageBefore);
  if (m_ModeBefore != 0) {
    SetConsoleMode(ErrorOutput(), m_ModeBefore);
  }
}

#else

std::vector<std::string> CommandLineWords(int argc, char** argv) { return {argv, argv + argc}; }

Console::Console() = default;
Console::~Console() = default;

#endif
