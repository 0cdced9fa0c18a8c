#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace s2k2ngt {

// The converted model by its nodes and elements, for drawings and for the numbers that it has.

struct DrawnNode {
  int Number = 0;     ///< in the output
  std::string Label;  ///< of its joint
  double X = 0.0;     ///< in the length unit of the file; Z is up
  double Y = 0.0;
  double Z = 0.0;
  bool IsSupported = false;  ///< by a restraint or a spring
};

enum class ElementKind : std::uint8_t {
  Frame,
  Area,
  Solid,
  Link,
  RigidLink,  ///< of a constraint: from its master to each of its other joints
};

struct DrawnElement {
  ElementKind Kind = ElementKind::Frame;
  int Number = 0;     ///< in the output; 0 of links, which have none
  std::string Label;  ///< in the source; empty for a rigid link
  /// Its nodes as positions in Drawing::Nodes, in the order of the output: 2 of a frame, 3 or 4 of
  /// an area, 6 or 8 of a solid, 2 of a link. Empty when one of them is not there, so that the
  /// element cannot be drawn.
  std::vector<std::uint32_t> Nodes;
};

struct Drawing {
  std::vector<DrawnNode> Nodes;
  /// Frames, areas, solids, links and rigid links, each in the order of the output.
  std::vector<DrawnElement> Elements;
  /// True when labels are not all numbers, so that the output has other numbers.
  bool NodesAreRenumbered = false;
  bool ElementsAreRenumbered = false;
};

}  // namespace s2k2ngt
