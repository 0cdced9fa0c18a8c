#pragma once

#include "common/text.h"

#include <array>
#include <optional>
#include <utility>

namespace s2k2ngt {

/// Where a load on a frame or an area goes.
struct LoadDirection {
  Text DIR;
  Text bPROJ;         // "YES" for a load per projected length or area
  double Sign = 1.0;  // -1 where the source counts the load against the target's direction
};

/// A global direction that frames and areas share. Gravity, positive downwards in the source, is a
/// load along -Z.
inline std::optional<LoadDirection> GlobalDirection(Text dir) {
  constexpr std::array<std::pair<Text, LoadDirection>, 7> kDirections = {{
      {"X", {"GX", "NO", 1.0}},
      {"Y", {"GY", "NO", 1.0}},
      {"Z", {"GZ", "NO", 1.0}},
      {"X Proj", {"GX", "YES", 1.0}},
      {"Y Proj", {"GY", "YES", 1.0}},
      {"Z Proj", {"GZ", "YES", 1.0}},
      {"Gravity", {"GZ", "NO", -1.0}},
  }};
  for (const auto& [name, direction] : kDirections) {
    if (name == dir) {
      return direction;
    }
  }
  return std::nullopt;
}

}  // namespace s2k2ngt
