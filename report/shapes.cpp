#include "shapes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <span>
#include <utility>

using s2k2ngt::Drawing;
using s2k2ngt::DrawnElement;
using s2k2ngt::DrawnNode;
using s2k2ngt::ElementKind;

// ---- Shapes ----

bool IsDrawable(const DrawnNode& node) {
  // Farther than any structure in any unit. Differences of such numbers are still finite.
  constexpr double kFarthest = 1e12;
  return std::abs(node.X) <= kFarthest && std::abs(node.Y) <= kFarthest &&
         std::abs(node.Z) <= kFarthest;
}

bool IsDrawable(const DrawnElement& element, const Drawing& drawing) {
  return !element.Nodes.empty() && std::ranges::all_of(element.Nodes, [&](std::uint32_t node) {
    return IsDrawable(drawing.Nodes[node]);
  });
}

namespace {

/// Corners of a face by their places among the nodes of a solid; a face of three ends in kNone.
using Face = std::array<std::uint8_t, Shape::kMostCorners>;
constexpr std::uint8_t kNone = 255;

constexpr std::array<Face, 6> kFacesOfEight = {
    {{0, 1, 2, 3}, {4, 5, 6, 7}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}}};
constexpr std::array<Face, 5> kFacesOfSix = {
    {{0, 1, 2, kNone}, {3, 4, 5, kNone}, {0, 1, 4, 3}, {1, 2, 5, 4}, {2, 0, 3, 5}}};

void AppendShapes(const Drawing& drawing, std::uint32_t number, std::vector<Shape>& shapes) {
  const DrawnElement& element = drawing.Elements[number];
  if (!IsDrawable(element, drawing)) {
    return;
  }
  Shape shape{.Kind = element.Kind, .Element = number};
  if (element.Kind != ElementKind::Solid) {
    for (const std::uint32_t node : element.Nodes) {
      shape.Nodes.at(shape.Corners++) = node;
    }
    shapes.push_back(shape);
    return;
  }
  const std::span<const Face> faces =
      element.Nodes.size() == 8 ? std::span<const Face>(kFacesOfEight) : kFacesOfSix;
  for (const Face& face : faces) {
    shape.Corners = 0;
    for (const std::uint8_t place : face) {
      if (place != kNone) {
        shape.Nodes.at(shape.Corners++) = element.Nodes[place];
      }
    }
    shapes.push_back(shape);
  }
}

/// The nodes of a face in an order that does not depend on the solid that has it.
std::array<std::uint32_t, Shape::kMostCorners> NodesInOrder(const Shape& face) {
  auto nodes = face.Nodes;
  std::fill(nodes.begin() + face.Corners, nodes.end(), std::numeric_limits<std::uint32_t>::max());
  std::ranges::sort(nodes);
  return nodes;
}

/// Takes away the faces of solids, from this shape on, that are there more than once.
void RemoveInnerFaces(std::size_t from, std::vector<Shape>& shapes) {
  std::vector<std::uint32_t> order(shapes.size() - from);
  std::iota(order.begin(), order.end(), static_cast<std::uint32_t>(from));
  std::vector<std::array<std::uint32_t, Shape::kMostCorners>> nodes(order.size());
  std::transform(shapes.begin() + static_cast<std::ptrdiff_t>(from), shapes.end(), nodes.begin(),
                 NodesInOrder);
  const auto nodesOf = [&](std::uint32_t shape) { return nodes[shape - from]; };
  std::ranges::sort(order, {}, nodesOf);
  std::vector<bool> isInner(shapes.size());
  for (std::size_t place = 1; place < order.size(); ++place) {
    if (nodesOf(order[place]) == nodesOf(order[place - 1])) {
      isInner[order[place]] = isInner[order[place - 1]] = true;
    }
  }
  std::size_t kept = from;
  for (std::size_t shape = from; shape < shapes.size(); ++shape) {
    if (!isInner[shape]) {
      shapes[kept++] = shapes[shape];
    }
  }
  shapes.resize(kept);
}

}  // namespace

std::vector<Shape> ShapesOf(const Drawing& drawing, std::uint32_t element) {
  std::vector<Shape> shapes;
  AppendShapes(drawing, element, shapes);
  return shapes;
}

std::vector<Shape> ShapesOf(const Drawing& drawing) {
  std::vector<Shape> solids;
  std::vector<Shape> shapes;
  std::vector<bool> isUsed(drawing.Nodes.size());
  for (std::uint32_t number = 0; number < drawing.Elements.size(); ++number) {
    const DrawnElement& element = drawing.Elements[number];
    AppendShapes(drawing, number, element.Kind == ElementKind::Solid ? solids : shapes);
    for (const std::uint32_t node : element.Nodes) {
      isUsed[node] = true;
    }
  }
  const std::size_t others = shapes.size();
  shapes.insert(shapes.end(), solids.begin(), solids.end());
  RemoveInnerFaces(others, shapes);
  for (std::uint32_t node = 0; node < drawing.Nodes.size(); ++node) {
    if (!isUsed[node] && IsDrawable(drawing.Nodes[node])) {
      shapes.push_back({.IsJoint = true, .Element = node, .Corners = 1, .Nodes = {node}});
    }
  }
  return shapes;
}

// ---- Views ----

namespace {

/// The smallest and the largest of some numbers.
struct Range {
  double Low = std::numeric_limits<double>::infinity();
  double High = -std::numeric_limits<double>::infinity();

  void Take(double value) {
    Low = std::min(Low, value);
    High = std::max(High, value);
  }
  double Size() const { return High < Low ? 0.0 : High - Low; }
};

double Along(const std::array<double, 3>& direction, const DrawnNode& node) {
  return direction[0] * node.X + direction[1] * node.Y + direction[2] * node.Z;
}

Range RangeAlong(const std::array<double, 3>& direction, const Drawing& drawing) {
  Range range;
  for (const DrawnNode& node : drawing.Nodes) {
    if (IsDrawable(node)) {
      range.Take(Along(direction, node));
    }
  }
  return range;
}

constexpr std::array<double, 3> kX = {1, 0, 0};
constexpr std::array<double, 3> kY = {0, 1, 0};
constexpr std::array<double, 3> kZ = {0, 0, 1};

constexpr View kIsometric = {"Isometric view",
                             "X to the right and down, Y to the right and up, Z up",
                             {0.866, 0.866, 0},
                             {-0.5, 0.5, 1}};
constexpr View kPlan = {"Plan", "X to the right, Y up", kX, kY};
constexpr View kAlongX = {"Elevation XZ", "X to the right, Z up", kX, kZ};
constexpr View kAlongY = {"Elevation YZ", "Y to the right, Z up", kY, kZ};

}  // namespace

std::vector<View> ViewsOf(const Drawing& drawing) {
  const std::array sizes = {RangeAlong(kX, drawing).Size(), RangeAlong(kY, drawing).Size(),
                            RangeAlong(kZ, drawing).Size()};
  // What is flat but for the rounding of its coordinates.
  const double flat = 1e-6 * *std::ranges::max_element(sizes);
  const bool hasX = sizes[0] > flat;
  const bool hasY = sizes[1] > flat;
  const bool hasZ = sizes[2] > flat;
  std::vector<View> views;
  if (hasX && hasY && hasZ) {
    views.push_back(kIsometric);
  }
  if (hasX && hasY) {
    views.push_back(kPlan);
  }
  if (hasX && hasZ) {
    views.push_back(kAlongX);
  }
  if (hasY && hasZ) {
    views.push_back(kAlongY);
  }
  if (views.empty()) {
    views.push_back(hasY ? kPlan : kAlongX);
  }
  return views;
}

// ---- Pictures ----

Picture::Picture(const Drawing& drawing, const View& view) {
  constexpr double kMostWidth = 1000;
  constexpr double kMostHeight = 640;
  constexpr double kLeastWidth = 360;
  constexpr double kLeastHeight = 60;
  const Range right = RangeAlong(view.Right, drawing);
  const Range up = RangeAlong(view.Up, drawing);
  m_UnitLength = std::max(right.Size() / kMostWidth, up.Size() / kMostHeight);
  if (!(m_UnitLength > 0)) {
    m_UnitLength = 1;  // all joints in one point
  }
  const double width = std::max(right.Size() / m_UnitLength, kLeastWidth);
  const double height = std::max(up.Size() / m_UnitLength, kLeastHeight);
  m_Width = static_cast<int>(std::lround(width)) + 2 * kMargin;
  m_Height = static_cast<int>(std::lround(height)) + 2 * kMargin;
  // In the middle, should it be smaller than the least.
  const double left = kMargin + (width - right.Size() / m_UnitLength) / 2;
  const double top = kMargin + (height - up.Size() / m_UnitLength) / 2;
  m_Spots.reserve(drawing.Nodes.size());
  for (const DrawnNode& node : drawing.Nodes) {
    Spot spot;
    if (IsDrawable(node)) {
      const double x = left + (Along(view.Right, node) - right.Low) / m_UnitLength;
      const double y = top + (up.High - Along(view.Up, node)) / m_UnitLength;
      spot = {static_cast<std::uint16_t>(std::lround(x)),
              static_cast<std::uint16_t>(std::lround(y))};
    }
    m_Spots.push_back(spot);
  }
}
