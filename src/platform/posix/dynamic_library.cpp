#include "platform/dynamic_library.h"

#include <string>

#include <dlfcn.h>

namespace s2k2ngt {
namespace {

/// The folder of the library or program that this code is in, with its slash; empty when unknown.
std::string OwnFolder() {
  Dl_info info = {};
  if (dladdr(reinterpret_cast<void*>(&LoadDynamicLibrary), &info) == 0) {
    return {};
  }
  const std::string file = info.dli_fname;
  return file.substr(0, file.rfind('/') + 1);
}

}  // namespace

LibraryHandle LoadDynamicLibrary(const char* fileName) {
  // The system's own order does not begin beside the library that asks. Where it is installed, its
  // folder belongs to all libraries, and what it brings lies in a folder of its own there.
  if (const std::string folder = OwnFolder(); !folder.empty()) {
    for (const char* const place : {"", "s2k2ngt/"}) {
      const std::string path = folder + place + fileName;
      if (void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
        return library;
      }
    }
  }
  return dlopen(fileName, RTLD_NOW | RTLD_LOCAL);
}

void* FindDynamicSymbol(LibraryHandle library, const char* symbol) {
  return dlsym(library, symbol);
}

void FreeDynamicLibrary(LibraryHandle library) { dlclose(library); }

}  // namespace s2k2ngt
