#include "drawings.h"

#include "figures.h"
#include "marks.h"
#include "outlines.h"
#include "shapes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

using s2k2ngt::Account;
using s2k2ngt::Drawing;

namespace {

/// The size of a range as the count that it is.
std::uint64_t CountOf(std::ptrdiff_t count) { return static_cast<std::uint64_t>(count); }

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
    notes +=
        "<p class=\"note\">What the numbers of marks mean stands below the drawings; point at a "
        "mark "
        "to read what it is and what it has lost.";
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

/// The marks that have numbers, for those who cannot point at them.
std::string ListOfMarks(const Drawing& drawing, const std::vector<Mark>& marks) {
  if (marks.empty()) {
    return {};
  }
  const std::size_t numbered = std::min(marks.size(), kMostNumbered);
  std::string html = "<ul class=\"marks\">\n";
  for (std::size_t mark = 0; mark < numbered; ++mark) {
    html.append("<li><b>").append(std::to_string(mark + 1)).append("</b> ");
    html.append(TextOf(marks[mark], drawing)).append("</li>\n");
  }
  html += "</ul>\n";
  if (numbered < marks.size()) {
    html += "<p class=\"note\">And " +
            Drawn(marks.size() - numbered, "unnumbered", "more mark", "more marks") +
            "; see the lists above.</p>\n";
  }
  return html;
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
  return html + "</div>\n" + ListOfMarks(drawing, marks);
}
