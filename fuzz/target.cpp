#include "target.h"

#include <cstdio>
#include <cstdlib>

void Require(bool holds, const std::string& what) {
  if (!holds) {
    std::fprintf(stderr, "found: %s\n", what.c_str());
    std::abort();
  }
}
