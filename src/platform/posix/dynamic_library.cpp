#include "platform/dynamic_library.h"

#include <dlfcn.h>

namespace s2k2ngt {

LibraryHandle LoadDynamicLibrary(const char* fileName) {
  // Our libraries and programs are linked to look in their own folder first.
  return dlopen(fileName, RTLD_NOW | RTLD_LOCAL);
}

void* FindDynamicSymbol(LibraryHandle library, const char* symbol) {
  return dlsym(library, symbol);
}

void FreeDynamicLibrary(LibraryHandle library) { dlclose(library); }

}  // namespace s2k2ngt
