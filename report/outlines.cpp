#include "outlines.h"

#include <cstdint>

namespace {

constexpr std::size_t kMostShapes = 4000;

/// The outline in one of its ways around, the same for all, so that none is drawn twice.
void PutInOrder(Outline& outline) {
  const auto begin = outline.At.begin();
  auto end = std::unique(begin, begin + static_cast<std::ptrdiff_t>(outline.Corners));
  while (end - begin > 1 && *begin == *(end - 1)) {
    --end;
  }
  std::rotate(begin, std::min_element(begin, end), end);
  if (end - begin > 2 && *(end - 1) < *(begin + 1)) {
    std::reverse(begin + 1, end);
  }
  outline.Corners = static_cast<std::size_t>(end - begin);
  std::fill(end, outline.At.end(), Spot());
}

}  // namespace

Spot OnGrid(Spot spot, unsigned grid) {
  const auto snapped = [&](std::uint16_t value) {
    return static_cast<std::uint16_t>((value + grid / 2) / grid * grid);
  };
  return {snapped(spot.X), snapped(spot.Y)};
}

Outline OutlineOf(const Shape& shape, const Picture& picture, unsigned grid) {
  Outline outline{.Class = shape.IsJoint ? kJointClass : static_cast<std::size_t>(shape.Kind),
                  .Corners = shape.Corners};
  for (std::size_t corner = 0; corner < shape.Corners; ++corner) {
    outline.At.at(corner) = OnGrid(picture.At(shape.Nodes.at(corner)), grid);
  }
  PutInOrder(outline);
  return outline;
}

Outlines OutlinesIn(const Picture& picture, const std::vector<Shape>& shapes) {
  constexpr unsigned kCoarsest = 16;
  for (unsigned grid = 1;; grid *= 2) {
    // What lies upon something else need not be drawn.
    std::set<Outline> outlines;
    for (const Shape& shape : shapes) {
      const Outline outline = OutlineOf(shape, picture, grid);
      // A line that only the grid makes a point, or a face a line, is smaller than what is drawn.
      if (grid == 1 || outline.Extent() == OutlineOf(shape, picture, 1).Extent()) {
        outlines.insert(outline);
      }
      if (outlines.size() > kMostShapes && grid < kCoarsest) {
        break;
      }
    }
    if (outlines.size() <= kMostShapes || grid == kCoarsest) {
      return {Thinned(outlines, kMostShapes), outlines.size(), grid};
    }
  }
}
