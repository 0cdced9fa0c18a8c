#pragma once

#include "shapes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>
#include <tuple>
#include <vector>

// The shapes of a model as they lie in a picture, and how they are made few enough.

/// In the order of ElementKind; joints that no element has come last.
inline constexpr std::array<const char*, 6> kClasses = {"frame", "area",  "solid",
                                                        "link",  "rigid", "joint"};
inline constexpr std::size_t kJointClass = 5;

/// A shape as it lies in a picture.
struct Outline {
  std::size_t Class = 0;  // of kClasses
  std::size_t Corners = 0;
  std::array<Spot, Shape::kMostCorners> At{};

  bool operator<(const Outline& other) const {
    return std::tie(Class, Corners, At) < std::tie(other.Class, other.Corners, other.At);
  }

  /// 1 for a point, 2 for a line, 3 for a face.
  std::size_t Extent() const { return std::min<std::size_t>(Corners, 3); }
};

/// The spots of a coarse picture lie on a grid.
Spot OnGrid(Spot spot, unsigned grid);

/// In one of its ways around, the same for all, so that none is drawn twice.
Outline OutlineOf(const Shape& shape, const Picture& picture, unsigned grid);

/// No more than `most` of some things, evenly spread over their order.
template <class Thing>
std::vector<Thing> Thinned(const std::set<Thing>& all, std::size_t most) {
  const std::size_t kept = std::min(most, all.size());
  std::vector<Thing> things;
  std::size_t place = 0;
  for (const Thing& thing : all) {
    if (place * kept / all.size() < (place + 1) * kept / all.size()) {
      things.push_back(thing);
    }
    ++place;
  }
  return things;
}

/// The shapes of a picture, and how they were made few enough.
struct Outlines {
  std::vector<Outline> Drawn;
  std::size_t Different = 0;  // on this grid
  unsigned Grid = 1;
};

/// No more than 4000 outlines, each once.
Outlines OutlinesIn(const Picture& picture, const std::vector<Shape>& shapes);
