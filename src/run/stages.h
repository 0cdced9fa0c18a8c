#pragma once

#include "target/conversion.h"

#include <array>

namespace s2k2ngt {

/// A stage of the conversion. Its position in the list is that of the progress bar when it is done.
struct Stage {
  const char* Name;
  StageFunction Convert;
};

/// The stages in their order. Later ones look up what earlier ones made: the joints settle how
/// nodes are numbered before anything refers to a node.
extern const std::array<Stage, 19> kStages;

}  // namespace s2k2ngt
