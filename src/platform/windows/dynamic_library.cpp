#include "platform/dynamic_library.h"

#include "platform/windows/module.h"
#include "platform/windows/wide.h"

#include <array>
#include <string>

namespace s2k2ngt {
namespace {

/// The folder of the library or program that this code is in, with its backslash.
std::wstring OwnFolder() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const auto room = static_cast<unsigned long>(path.size());
    const unsigned long size = GetModuleFileNameW(OwnModule(), path.data(), room);
    if (size < room) {
      path.resize(size);
      break;
    }
    path.resize(path.size() * 2);
  }
  return path.substr(0, path.rfind(L'\\') + 1);
}

}  // namespace

LibraryHandle LoadDynamicLibrary(const char* fileName) {
  // The system's own order begins beside the program and not beside the library that asks.
  const std::wstring name = Wide(fileName);
  const HMODULE library = LoadLibraryW((OwnFolder() + name).c_str());
  return library != nullptr ? library : LoadLibraryW(name.c_str());
}

void* FindDynamicSymbol(LibraryHandle library, const char* symbol) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), symbol));
}

void FreeDynamicLibrary(LibraryHandle library) { FreeLibrary(static_cast<HMODULE>(library)); }

}  // namespace s2k2ngt
