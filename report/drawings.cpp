#include "drawings.h"

#include "html.h"
#include "marks.h"
#include "shapes.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>
#include <tuple>
#include <vector>

using s2k2ngt::Account;
using s2k2ngt::Drawing;

namespace {

// What a view shows at most.
constexpr std::size_t kMostShapes = 4000;
constexpr std::size_t kMostSupports = 1000;
constexpr std::size_t kMostMarks = 200;

// ---- Shapes in a picture ----

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

/// In the order of ElementKind; joints that no element has come last.
constexpr std::array<const char*, 6> kClasses = {"frame", "area",  "solid",
                                                 "link",  "rigid", "joint"};
constexpr std::size_t kJointClass = 5;

/// The spots of a coarse picture lie on a grid.
Spot OnGrid(Spot spot, unsigned grid) {
  const auto snapped = [&](std::uint16_t value) {
    return static_cast<std::uint16_t>((value + grid / 2) / grid * grid);
  };
  return {snapped(spot.X), snapped(spot.Y)};
}

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

Outline OutlineOf(const Shape& shape, const Picture& picture, unsigned grid) {
  Outline outline{.Class = shape.IsJoint ? kJointClass : static_cast<std::size_t>(shape.Kind),
                  .Corners = shape.Corners};
  for (std::size_t corner = 0; corner < shape.Corners; ++corner) {
    outline.At.at(corner) = OnGrid(picture.At(shape.Nodes.at(corner)), grid);
  }
  PutInOrder(outline);
  return outline;
}

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

// ---- SVG ----

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
    if (!IsDrawable(drawing.Nodes[mark.Number])) {
      return {};
    }
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
  if (path.empty()) {
    return {};
  }
  return "<path class=\"mark" + std::string(isFace ? " face" : "") + "\" d=\"" + path + "\">" +
         title + "</path>\n";
}

/// A count that the drawing alone has, with its word.
std::string Drawn(std::uint64_t count, const std::string& what, const char* one, const char* many) {
  return "<span class=\"n\" data-drawn=\"" + what + "\">" + Grouped(count) + "</span> " +
         (count == 1 ? one : many);
}

/// The size of a range as the count that it is.
std::uint64_t CountOf(std::ptrdiff_t count) { return static_cast<std::uint64_t>(count); }

/// A distance in the model, to three digits.
std::string Distance(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.3g", value);
  return std::string("<span class=\"n\" data-drawn=\"distance\">") + text.data() + "</span>";
}

std::string FigureOf(const View& view, const Drawing& drawing, const std::vector<Shape>& shapes,
                     const std::vector<Mark>& marks) {
  const Picture picture(drawing, view);
  const Outlines outlines = OutlinesIn(picture, shapes);
  std::string svg = PathsOf(outlines.Drawn) + SupportsOf(drawing, picture, outlines.Grid);
  for (std::size_t number = 0; number < std::min(marks.size(), kMostMarks); ++number) {
    svg += MarkIn(picture, marks[number], drawing);
  }
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

// ---- Legend and notes ----

std::string LegendItem(const std::string& sample, const std::string& text) {
  return "<li><svg viewBox=\"0 0 36 20\" aria-hidden=\"true\">" + sample + "</svg> " + text +
         "</li>\n";
}

std::string LegendOf(const Drawing& drawing, const std::vector<Shape>& shapes,
                     const std::vector<Mark>& marks) {
  struct Entry {
    const char* Sample;
    const char* One;
    const char* Many;
  };
  // In the order of ElementKind.
  constexpr std::array<Entry, 5> kEntries = {{
      {R"(<path class="frame" d="M2 10H34"/>)", "frame", "frames"},
      {R"(<path class="area" d="M4 3H32V17H4Z"/>)", "area", "areas"},
      {R"(<path class="solid" d="M4 3H32V17H4Z"/>)", "solid", "solids"},
      {R"(<path class="link" d="M2 10H34"/>)", "link", "links"},
      {R"(<path class="rigid" d="M2 10H34"/>)", "rigid link", "rigid links"},
  }};
  std::array<std::size_t, kEntries.size()> counts{};
  for (const s2k2ngt::DrawnElement& element : drawing.Elements) {
    ++counts.at(static_cast<std::size_t>(element.Kind));
  }
  std::string legend;
  for (std::size_t kind = 0; kind < counts.size(); ++kind) {
    const Entry& entry = kEntries.at(kind);
    if (counts.at(kind) > 0) {
      legend += LegendItem(entry.Sample,
                           Drawn(counts.at(kind), kClasses.at(kind), entry.One, entry.Many));
    }
  }
  const auto loose = std::ranges::count(shapes, true, &Shape::IsJoint);
  if (loose > 0) {
    legend += LegendItem(
        R"(<path class="joint" d="M18 10h0"/>)",
        Drawn(CountOf(loose), "joint", "joint without an element", "joints without an element"));
  }
  const auto supported = std::ranges::count(drawing.Nodes, true, &s2k2ngt::DrawnNode::IsSupported);
  if (supported > 0) {
    legend += LegendItem(
        R"(<path class="support" d="M18 3l-8 14h16z"/>)",
        Drawn(CountOf(supported), "support", "joint with a support", "joints with a support"));
  }
  if (!marks.empty()) {
    legend += LegendItem(R"(<path class="mark" d="M2 10H20"/><circle class="mark" cx="28" cy="10" )"
                         R"(r="5"/>)",
                         Drawn(marks.size(), "mark", "touched by a loss", "touched by a loss"));
  }
  return "<ul class=\"legend\">\n" + legend + "</ul>\n";
}

/// How many elements are not drawn for want of a joint.
std::string NoteOfLeftOut(const Drawing& drawing) {
  const auto leftOut = std::ranges::count_if(
      drawing.Elements, [](const s2k2ngt::DrawnElement& element) { return element.Nodes.empty(); });
  return leftOut == 0 ? ""
                      : "<p class=\"note\">" +
                            Drawn(CountOf(leftOut), "left-out",
                                  "element is not drawn: a joint of it is not there.",
                                  "elements are not drawn: of each a joint is not there.") +
                            "</p>\n";
}

std::string NotesOf(const Drawing& drawing, const std::vector<Mark>& marks) {
  std::string notes;
  if (!marks.empty()) {
    notes += "<p class=\"note\">Point at a mark to read what it is and what it has lost.";
    if (marks.size() > kMostMarks) {
      notes += " The first " + Drawn(kMostMarks, "marked", "", "are marked.");
    }
    notes += "</p>\n";
  }
  const auto far = std::ranges::count_if(
      drawing.Nodes, [](const s2k2ngt::DrawnNode& node) { return !IsDrawable(node); });
  if (far > 0) {
    notes += "<p class=\"note\">" + Drawn(CountOf(far), "far", "joint lies", "joints lie") +
             " too far away to be drawn, or nowhere.</p>\n";
  }
  return notes + NoteOfLeftOut(drawing);
}

}  // namespace

std::string DrawingsOf(const Drawing& drawing, const Account& account) {
  const std::vector<Shape> shapes = ShapesOf(drawing);
  if (shapes.empty()) {
    return NoteOfLeftOut(drawing);
  }
  const std::vector<Mark> marks = MarksOf(drawing, account);
  std::string html =
      LegendOf(drawing, shapes, marks) + NotesOf(drawing, marks) + "<div class=\"views\">\n";
  for (const View& view : ViewsOf(drawing)) {
    html += FigureOf(view, drawing, shapes, marks);
  }
  return html + "</div>\n";
}
