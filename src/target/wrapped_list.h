#pragma once

#include "common/text.h"

#include <cstddef>

namespace s2k2ngt {

// The lists of the analysis commands go over several lines and are divided in one of three forms,
// each command in its own. An index counts the items of a list from 0.

/// What stands before an item: a line break before the first and every `perLine` items, else a
/// comma.
inline Text SeparatorBefore(std::size_t index, std::size_t perLine, Text lineBreak) {
  return index % perLine == 0 ? lineBreak : ",";
}

/// What stands behind an item: four on the first line and three on each further one. Meant so: the
/// line break stands behind the last item as well.
inline Text SeparatorBehindFourThenThree(std::size_t index, std::size_t count) {
  if (index >= 3 && index % 3 == 0) {
    return "\n\t\t";
  }
  return index + 1 < count ? "," : "";
}

/// What stands behind an item: one on the first line and five on each further one, and a line break
/// behind the last.
inline Text SeparatorBehindOneThenFive(std::size_t index, std::size_t count) {
  return index + 1 == count || index % 5 == 0 ? "\n\t" : ",";
}

}  // namespace s2k2ngt
