#pragma once

#include <cstdlib>
#include <locale>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

/// A host that has set a locale for the whole process, for C as for C++: "de_DE.UTF-8" has a
/// decimal comma, in "tr_TR.UTF-8" the capital of i is not I.
class HostLocale {
 public:
  explicit HostLocale(const char* name) {
    setenv("LOCPATH", S2K2NGT_TEST_LOCALES, 1);
#if defined(__SANITIZE_ADDRESS__)
    const __lsan::ScopedDisabler theSystemKeepsItsListOfLocaleFolders;
#endif
    m_Before = std::locale::global(std::locale(name));
  }
  ~HostLocale() { std::locale::global(m_Before); }
  HostLocale(const HostLocale&) = delete;
  HostLocale& operator=(const HostLocale&) = delete;

 private:
  std::locale m_Before;
};
