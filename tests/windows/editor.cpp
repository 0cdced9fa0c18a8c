// Stands in for the editor: notes how it was started.
#include "platform/windows/wide.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include <windows.h>

int main() {
  std::FILE* const notes = std::fopen("editor_was_started.txt", "wb");
  if (notes == nullptr) {
    return 1;
  }
  std::fprintf(notes, "[%s]\n", s2k2ngt::Utf8(GetCommandLineW()).c_str());
  const char* const offered = std::getenv("OFFERED_HANDLE");
  const auto handle = reinterpret_cast<HANDLE>(std::stoull(offered == nullptr ? "0" : offered));
  std::fprintf(notes, SetEvent(handle) != 0 ? "inherited\n" : "not inherited\n");
  std::fclose(notes);
  return 0;
}
