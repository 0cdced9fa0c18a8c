#pragma once

#include "target/conversion.h"

#include <array>

namespace s2k2ngt {

/// A step of the writing. Its position in the list is that of the progress bar when it is done.
struct Section {
  const char* Commands;
  WriterFunction Write;
};

/// The sections of the output in their order.
extern const std::array<Section, 37> kSections;

}  // namespace s2k2ngt
