#pragma once

#if defined(_WIN32)
#define CATALOGUE_API __declspec(dllexport)
#else
#define CATALOGUE_API __attribute__((visibility("default")))
#endif

/// The text of a message key. A key that the catalogue does not have gets a text that says so; the
/// text of a null key is empty. The text lives as long as the library is loaded.
extern "C" CATALOGUE_API const char* LoadStr(const char* key);
