#pragma once

#include <s2k2ngt/drawing.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Models for drawings, and what a drawing shows of them.

/// A drawing of nodes numbered from 1, labelled J1 and so on.
inline s2k2ngt::Drawing NodesAt(const std::vector<std::array<double, 3>>& points) {
  s2k2ngt::Drawing drawing;
  for (const auto& [x, y, z] : points) {
    const int number = static_cast<int>(drawing.Nodes.size()) + 1;
    drawing.Nodes.push_back({number, "J" + std::to_string(number), x, y, z, false});
  }
  return drawing;
}

/// Adds an element, labelled by its number.
inline void Add(s2k2ngt::ElementKind kind, std::vector<std::uint32_t> nodes,
                s2k2ngt::Drawing& drawing) {
  const int number = static_cast<int>(drawing.Elements.size()) + 1;
  drawing.Elements.push_back({kind, number, std::to_string(number), std::move(nodes)});
}

/// A cube with a side of 10, its nodes around each face.
inline const std::vector<std::array<double, 3>> kCube = {{0, 0, 0},    {10, 0, 0}, {10, 10, 0},
                                                         {0, 10, 0},   {0, 0, 10}, {10, 0, 10},
                                                         {10, 10, 10}, {0, 10, 10}};

/// All texts that stand between this and the next quotation mark.
inline std::vector<std::string> Behind(const std::string& text, const std::string& opening) {
  std::vector<std::string> found;
  for (std::size_t at = text.find(opening); at != std::string::npos; at = text.find(opening, at)) {
    at += opening.size();
    found.push_back(text.substr(at, text.find('"', at) - at));
  }
  return found;
}

inline std::vector<std::string> Views(const std::string& html) {
  return Behind(html, "aria-label=\"");
}

/// The paths of a class, one for each view that has it.
inline std::vector<std::string> Paths(const std::string& html, const std::string& className) {
  return Behind(html.substr(html.find("<figure>")), "<path class=\"" + className + "\" d=\"");
}

inline std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

/// A mesh of so many by so many areas.
inline s2k2ngt::Drawing Mesh(std::uint32_t side) {
  s2k2ngt::Drawing drawing;
  for (std::uint32_t y = 0; y <= side; ++y) {
    for (std::uint32_t x = 0; x <= side; ++x) {
      drawing.Nodes.push_back({static_cast<int>(drawing.Nodes.size()) + 1, "", 1.0 * x, 1.0 * y,
                               0.01 * (x * x % 97 + y), true});
    }
  }
  for (std::uint32_t y = 0; y < side; ++y) {
    for (std::uint32_t x = 0; x < side; ++x) {
      const std::uint32_t at = y * (side + 1) + x;
      Add(s2k2ngt::ElementKind::Area, {at, at + 1, at + side + 2, at + side + 1}, drawing);
    }
  }
  return drawing;
}
