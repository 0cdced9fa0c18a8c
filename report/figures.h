#pragma once

#include "marks.h"
#include "shapes.h"

#include <s2k2ngt/drawing.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// The marks that a view shows at most, and the first ones, which have numbers.
inline constexpr std::size_t kMostMarks = 200;
inline constexpr std::size_t kMostNumbered = 20;

/// A view of a model with its marks, as a part of a page. It is drawn coarsely if it is large.
std::string FigureOf(const View& view, const s2k2ngt::Drawing& drawing,
                     const std::vector<Shape>& shapes, const std::vector<Mark>& marks);

/// A count that the drawing alone has, with its word.
std::string Drawn(std::uint64_t count, const std::string& what, const char* one, const char* many);
