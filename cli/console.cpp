#include "console.h"

#ifdef _WIN32
#include <cstdio>
#include <filesystem>

#include <fcntl.h>
#include <io.h>
#include <windows.h>
// Behind windows.h, which it needs.
#include <shellapi.h>

std::vector<std::string> CommandLineWords(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> utf8;
  for (int index = 0; index < count; ++index) {
    const std::u8string word = std::filesystem::path(words[index]).u8string();
    utf8.emplace_back(word.begin(), word.end());
  }
  LocalFree(words);
  return utf8;
}

void KeepLineEndsOfOutput() { _setmode(_fileno(stdout), _O_BINARY); }

#else

std::vector<std::string> CommandLineWords(int argc, char** argv) { return {argv, argv + argc}; }

void KeepLineEndsOfOutput() {}

#endif
