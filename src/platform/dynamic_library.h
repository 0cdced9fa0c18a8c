#pragma once

namespace s2k2ngt {

/// The operating system's handle of a loaded library, or null.
using LibraryHandle = void*;

/// Loads a library by its bare file name: the one beside our own library, else, but on Windows, the
/// one in the folder "s2k2ngt" there, else what the system finds. Null when it cannot be loaded.
LibraryHandle LoadDynamicLibrary(const char* fileName);

/// The address of an exported symbol, or null.
void* FindDynamicSymbol(LibraryHandle library, const char* symbol);

void FreeDynamicLibrary(LibraryHandle library);

}  // namespace s2k2ngt
