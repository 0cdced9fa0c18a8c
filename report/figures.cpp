#include "figures.h"

#include "html.h"
#include "outlines.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <set>

using s2k2ngt::Drawing;

namespace {

constexpr std::size_t kMostSupports = 1000;

std::string TextOf(Spot spot) { return std::to_string(spot.X) + " " + std::to_string(spot.Y); }

/// A line or a closed outline. A line without length is a dot, by the round ends of all lines.
std::string PathOf(const Outline& outline) {
  if (outline.Extent() == 1) {
    return "M" + TextOf(outline.At[0]) + "h0";
  }
  std::string path = "M" + TextOf(outline.At[0]);
  for (std::size_t corner = 1; corner < outline.Corners; ++corner) {
    path += "L" + TextOf(outline.At.at(corner));
  }
  return outline.Corners > 2 ? path + "Z" : path;
}

/// One path for all shapes of a class.
std::string PathsOf(const std::vector<Outline>& outlines) {
  std::string svg;
  // Faces lie below lines.
  for (const std::size_t number : std::array<std::size_t, 6>{2, 1, 4, 3, 0, kJointClass}) {
    std::string path;
    for (const Outline& outline : outlines) {
      if (outline.Class == number) {
        path += PathOf(outline);
      }
    }
    if (!path.empty()) {
      svg.append("<path class=\"").append(kClasses.at(number)).append("\" d=\"");
      svg.append(path).append("\"/>\n");
    }
  }
  return svg;
}

std::string SupportsOf(const Drawing& drawing, const Picture& picture, unsigned grid) {
  std::set<Spot> spots;
  for (std::uint32_t node = 0; node < drawing.Nodes.size(); ++node) {
    if (drawing.Nodes[node].IsSupported && IsDrawable(drawing.Nodes[node])) {
      spots.insert(OnGrid(picture.At(node), grid));
    }
  }
  if (spots.empty()) {
    return {};
  }
  constexpr std::size_t kManySupports = 100;
  const char* const triangle = spots.size() > kManySupports ? "l-4 7h8z" : "l-8 14h16z";
  std::string path;
  for (const Spot& spot : Thinned(spots, kMostSupports)) {
    path += "M" + TextOf(spot) + triangle;
  }
  return "<path class=\"support\" d=\"" + path + "\"/>\n";
}

std::string MarkIn(const Picture& picture, const Mark& mark, const Drawing& drawing) {
  const std::string title = "<title>" + TextOf(mark, drawing) + "</title>";
  if (mark.IsJoint) {
    const Spot spot = picture.At(mark.Number);
    return "<circle class=\"mark\" cx=\"" + std::to_string(spot.X) + "\" cy=\"" +
           std::to_string(spot.Y) + "\" r=\"7\">" + title + "</circle>\n";
  }
  std::string path;
  bool isFace = false;
  for (const Shape& shape : ShapesOf(drawing, mark.Number)) {
    path += PathOf(OutlineOf(shape, picture, 1));
    isFace = isFace || shape.Corners > 2;
  }
  return "<path class=\"mark" + std::string(isFace ? " face" : "") + "\" d=\"" + path + "\">" +
         title + "</path>\n";
}

/// Where the number of a mark stands: at the joint, or in the middle of the element.
Spot MiddleOf(const Mark& mark, const Drawing& drawing, const Picture& picture) {
  if (mark.IsJoint) {
    return picture.At(mark.Number);
  }
  const std::vector<std::uint32_t>& nodes = drawing.Elements[mark.Number].Nodes;
  std::size_t x = 0;
  std::size_t y = 0;
  for (const std::uint32_t node : nodes) {
    x += picture.At(node).X;
    y += picture.At(node).Y;
  }
  return {static_cast<std::uint16_t>(x / nodes.size()),
          static_cast<std::uint16_t>(y / nodes.size())};
}

/// The numbers of the first marks. Those of one place stand together.
std::string NumbersIn(const Picture& picture, const std::vector<Mark>& marks,
                      const Drawing& drawing) {
  struct Place {
    Spot At;
    std::vector<std::size_t> Numbers;
  };
  constexpr std::size_t kMostTogether = 3;
  constexpr int kFromSide = 4;
  // Of the larger side, so that they are about as large in each view.
  const int size = std::max(picture.Width(), picture.Height()) / 45;
  std::map<Spot, Place> places;
  for (std::size_t mark = 0; mark < std::min(marks.size(), kMostNumbered); ++mark) {
    const Spot spot = MiddleOf(marks[mark], drawing, picture);
    places.try_emplace(OnGrid(spot, static_cast<unsigned>(size)), Place{spot, {}})
        .first->second.Numbers.push_back(mark + 1);
  }
  std::string svg;
  for (const auto& [cell, place] : places) {
    std::string text;
    for (std::size_t number = 0; number < std::min(place.Numbers.size(), kMostTogether); ++number) {
      text.append(text.empty() ? "" : ",").append(std::to_string(place.Numbers[number]));
    }
    text += place.Numbers.size() > kMostTogether ? "…" : "";
    // Above the mark, or below it at the upper edge; and never beyond the sides.
    const char* const shift = place.At.Y < 2 * Picture::kMargin ? "1.2em" : "-.4em";
    const char* anchor = place.At.X + kFromSide * size > picture.Width() ? "end" : "middle";
    anchor = place.At.X < kFromSide * size ? "start" : anchor;
    svg += "<text x=\"" + std::to_string(place.At.X) + "\" y=\"" + std::to_string(place.At.Y) +
           "\" dy=\"" + shift + "\" text-anchor=\"" + anchor + "\">" + text + "</text>\n";
  }
  return svg.empty() ? svg
                     : "<g class=\"numbers\" font-size=\"" + std::to_string(size) + "\">\n" + svg +
                           "</g>\n";
}

/// A distance in the model, to three digits.
std::string Distance(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.3g", value);
  return std::string("<span class=\"n\" data-drawn=\"distance\">") + text.data() + "</span>";
}

}  // namespace

std::string Drawn(std::uint64_t count, const std::string& what, const char* one, const char* many) {
  return "<span class=\"n\" data-drawn=\"" + what + "\">" + Grouped(count) + "</span> " +
         (count == 1 ? one : many);
}

std::string FigureOf(const View& view, const Drawing& drawing, const std::vector<Shape>& shapes,
                     const std::vector<Mark>& marks) {
  const Picture picture(drawing, view);
  const Outlines outlines = OutlinesIn(picture, shapes);
  std::string svg = PathsOf(outlines.Drawn) + SupportsOf(drawing, picture, outlines.Grid);
  for (std::size_t number = 0; number < std::min(marks.size(), kMostMarks); ++number) {
    svg += MarkIn(picture, marks[number], drawing);
  }
  svg += NumbersIn(picture, marks, drawing);
  std::string note;
  if (outlines.Grid > 1) {
    note += " Drawn coarsely: joints that lie closer than " +
            Distance(picture.UnitLength() * outlines.Grid) + " to each other are drawn as one.";
  }
  if (outlines.Drawn.size() < outlines.Different) {
    note += " Of " + Drawn(outlines.Different, "different", "", "different lines and faces") + " " +
            Drawn(outlines.Drawn.size(), "drawn", "is drawn.", "are drawn.");
  }
  constexpr std::size_t kManyShapes = 800;
  const std::string name = view.Name;
  const std::string density = outlines.Drawn.size() > kManyShapes ? "class=\"dense\" " : "";
  return "<figure>\n<svg " + density + "viewBox=\"0 0 " + std::to_string(picture.Width()) + " " +
         std::to_string(picture.Height()) + "\" role=\"img\" aria-label=\"" + name + "\">\n" + svg +
         "</svg>\n<figcaption><b>" + name + "</b> " + view.Axes + "." + note +
         "</figcaption>\n</figure>\n";
}
