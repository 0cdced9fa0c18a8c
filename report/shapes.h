#pragma once

#include <s2k2ngt/drawing.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The model as flat shapes, and how they lie in a view.

/// A line, or a face of three or four corners, or one joint that no element has.
struct Shape {
  static constexpr std::size_t kMostCorners = 4;
  s2k2ngt::ElementKind Kind = s2k2ngt::ElementKind::Frame;
  bool IsJoint = false;
  std::uint32_t Element = 0;  // of the drawing's elements; of a joint, of its nodes
  std::uint8_t Corners = 0;
  std::array<std::uint32_t, kMostCorners> Nodes{};
};

/// True when the node lies where it can be drawn.
bool IsDrawable(const s2k2ngt::DrawnNode& node);

/// True when all nodes of the element are there and can be drawn.
bool IsDrawable(const s2k2ngt::DrawnElement& element, const s2k2ngt::Drawing& drawing);

/// The shapes of one element: of a solid all its faces. None if it cannot be drawn.
std::vector<Shape> ShapesOf(const s2k2ngt::Drawing& drawing, std::uint32_t element);

/// The shapes of all elements, without the faces in which two solids meet, and of the joints that
/// no element has.
std::vector<Shape> ShapesOf(const s2k2ngt::Drawing& drawing);

/// From where the model is seen.
struct View {
  const char* Name;
  const char* Axes;  // which way they go, in words
  /// How far to the right and upwards a step along X, Y and Z goes.
  std::array<double, 3> Right;
  std::array<double, 3> Up;
};

/// The views of which the model shows more than a line; one if it is no more than a line or a
/// point.
std::vector<View> ViewsOf(const s2k2ngt::Drawing& drawing);

/// A place in a picture, in its units, from the left and from the top.
struct Spot {
  std::uint16_t X = 0;
  std::uint16_t Y = 0;
  auto operator<=>(const Spot&) const = default;
};

/// The nodes of a drawing in the picture of a view.
class Picture {
 public:
  static constexpr std::uint16_t kMargin = 24;

  Picture(const s2k2ngt::Drawing& drawing, const View& view);

  Spot At(std::uint32_t node) const { return m_Spots[node]; }
  int Width() const { return m_Width; }
  int Height() const { return m_Height; }
  /// The length in the model of a unit of the picture.
  double UnitLength() const { return m_UnitLength; }

 private:
  std::vector<Spot> m_Spots;
  int m_Width = 0;
  int m_Height = 0;
  double m_UnitLength = 0.0;
};
