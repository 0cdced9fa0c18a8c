#include "drawings.h"

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using s2k2ngt::Account;
using s2k2ngt::Drawing;
using s2k2ngt::ElementKind;
using s2k2ngt::Reason;
using s2k2ngt::RowFate;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr Reason kLoss = {"lost", RowFate::Dropped, true, "It is <lost>.", "Enter it."};
constexpr Reason kNoLoss = {"not-lost", RowFate::Dropped, false, "It says nothing.", "Nothing."};

/// A drawing of nodes numbered from 1, labelled J1 and so on.
Drawing NodesAt(const std::vector<std::array<double, 3>>& points) {
  Drawing drawing;
  for (const auto& [x, y, z] : points) {
    const int number = static_cast<int>(drawing.Nodes.size()) + 1;
    drawing.Nodes.push_back({number, "J" + std::to_string(number), x, y, z, false});
  }
  return drawing;
}

/// Adds an element, labelled by its number.
void Add(ElementKind kind, std::vector<std::uint32_t> nodes, Drawing& drawing) {
  const int number = static_cast<int>(drawing.Elements.size()) + 1;
  drawing.Elements.push_back({kind, number, std::to_string(number), std::move(nodes)});
}

/// A cube with a side of 10, its nodes around each face.
const std::vector<std::array<double, 3>> kCube = {{0, 0, 0},    {10, 0, 0}, {10, 10, 0},
                                                  {0, 10, 0},   {0, 0, 10}, {10, 0, 10},
                                                  {10, 10, 10}, {0, 10, 10}};

/// All texts that stand between this and the next quotation mark.
std::vector<std::string> Behind(const std::string& text, const std::string& opening) {
  std::vector<std::string> found;
  for (std::size_t at = text.find(opening); at != std::string::npos; at = text.find(opening, at)) {
    at += opening.size();
    found.push_back(text.substr(at, text.find('"', at) - at));
  }
  return found;
}

std::vector<std::string> Views(const std::string& html) { return Behind(html, "aria-label=\""); }

/// The paths of a class, one for each view that has it.
std::vector<std::string> Paths(const std::string& html, const std::string& className) {
  return Behind(html.substr(html.find("<figure>")), "<path class=\"" + className + "\" d=\"");
}

std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

Account With(const std::vector<std::string>& labels, const Reason& reason = kLoss,
             const std::string& title = "A TABLE") {
  Account account;
  account.Tables.emplace_back().Title = title;
  for (const std::string& label : labels) {
    account.Losses.push_back({0, 1, 4, label, &reason});
  }
  return account;
}

// Views

TEST(DrawingsTest, NothingToDrawGivesNothing) { EXPECT_EQ(DrawingsOf({}, {}), ""); }

TEST(DrawingsTest, AModelInSpaceHasFourViews) {
  EXPECT_THAT(Views(DrawingsOf(NodesAt(kCube), {})),
              ElementsAre("Isometric view", "Plan", "Elevation XZ", "Elevation YZ"));
}

TEST(DrawingsTest, AModelInAPlaneHasTheOneViewThatShowsIt) {
  EXPECT_THAT(Views(DrawingsOf(NodesAt({{0, 5, 0}, {8, 5, 0}, {8, 5, 3}}), {})),
              ElementsAre("Elevation XZ"));
  EXPECT_THAT(Views(DrawingsOf(NodesAt({{5, 0, 0}, {5, 8, 0}, {5, 8, 3}}), {})),
              ElementsAre("Elevation YZ"));
  EXPECT_THAT(Views(DrawingsOf(NodesAt({{0, 0, 1}, {8, 0, 1}, {8, 3, 1}}), {})),
              ElementsAre("Plan"));
}

TEST(DrawingsTest, AModelInALineOrAPointHasOneView) {
  for (const auto& points : std::vector<std::vector<std::array<double, 3>>>{
           {{1, 1, 1}}, {{0, 0, 0}, {4, 0, 0}}, {{0, 0, 0}, {0, 4, 0}}, {{0, 0, 0}, {0, 0, 4}}}) {
    EXPECT_EQ(Views(DrawingsOf(NodesAt(points), {})).size(), 1U);
  }
}

TEST(DrawingsTest, OneJointStandsInTheMiddle) {
  // The least picture is 360 by 60 units inside of a margin of 24.
  const std::string html = DrawingsOf(NodesAt({{7, 7, 7}}), {});
  EXPECT_THAT(html, HasSubstr("viewBox=\"0 0 408 108\""));
  EXPECT_THAT(Paths(html, "joint"), ElementsAre("M204 54h0"));
}

TEST(DrawingsTest, ALineFillsTheWidthAndUpIsUp) {
  Drawing drawing = NodesAt({{0, 0, 0}, {20, 0, 4}});
  Add(ElementKind::Frame, {0, 1}, drawing);
  // 20 wide become 1000 units, 4 high 200.
  EXPECT_THAT(Paths(DrawingsOf(drawing, {}), "frame"), ElementsAre("M24 224L1024 24"));
}

TEST(DrawingsTest, JointsThatLieNowhereAreLeftOutAndTold) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  Drawing drawing = NodesAt({{0, 0, 0}, {20, 0, 4}, {1e30, 0, 0}, {0, nan, 0}, {0, 0, -INFINITY}});
  Add(ElementKind::Frame, {0, 1}, drawing);
  Add(ElementKind::Frame, {1, 2}, drawing);
  Add(ElementKind::Area, {0, 1, 3}, drawing);
  const std::string html = DrawingsOf(drawing, {});
  EXPECT_THAT(Paths(html, "frame"), ElementsAre("M24 224L1024 24"));
  EXPECT_THAT(Paths(html, "area"), IsEmpty());
  EXPECT_THAT(html, HasSubstr("<span class=\"n\" data-drawn=\"far\">3</span> joints lie too far"));
  EXPECT_EQ(DrawingsOf(NodesAt({{1e30, 1e30, 1e30}}), {}), "");
}

TEST(DrawingsTest, ElementsWithoutNodesAreToldAndNotDrawn) {
  Drawing drawing = NodesAt({{0, 0, 0}, {20, 0, 4}});
  Add(ElementKind::Frame, {0, 1}, drawing);
  Add(ElementKind::Frame, {}, drawing);
  const std::string one = DrawingsOf(drawing, With({"Frame=2"}));
  EXPECT_THAT(Paths(one, "frame"), ElementsAre("M24 224L1024 24"));
  EXPECT_THAT(one, HasSubstr("<span class=\"n\" data-drawn=\"left-out\">1</span> element is not "
                             "drawn: a joint of it is not there."));
  EXPECT_EQ(Count(one, "<title>"), 0U);
  Add(ElementKind::Solid, {}, drawing);
  EXPECT_THAT(DrawingsOf(drawing, {}),
              HasSubstr("data-drawn=\"left-out\">2</span> elements are not drawn"));
  drawing.Elements.resize(1);
  EXPECT_THAT(DrawingsOf(drawing, {}), Not(HasSubstr("left-out")));
}

TEST(DrawingsTest, WhereNoElementCanBeDrawnTheNoteStandsAlone) {
  Drawing drawing;
  Add(ElementKind::Frame, {}, drawing);
  EXPECT_EQ(DrawingsOf(drawing, {}),
            "<p class=\"note\"><span class=\"n\" data-drawn=\"left-out\">1</span> element is not "
            "drawn: a joint of it is not there.</p>\n");
}

TEST(DrawingsTest, TheSmallestAndTheLargestModelsHavePictures) {
  for (const double size : {5e-324, 3e-320, 1e-300, 1e11, 1e12}) {
    SCOPED_TRACE(size);
    Drawing drawing = NodesAt({{-size, 0, 0}, {size, 0, 0}});
    Add(ElementKind::Frame, {0, 1}, drawing);
    const std::string html = DrawingsOf(drawing, {});
    EXPECT_THAT(html, Not(HasSubstr("nan")));
    EXPECT_EQ(Paths(html, "frame").size(), 1U);
  }
}

// Elements

TEST(DrawingsTest, KindsHaveClassesAndTheLegendTellsHowManyThereAre) {
  Drawing drawing = NodesAt(kCube);
  drawing.Nodes[0].IsSupported = true;
  drawing.Nodes.push_back({9, "J9", 0, 5, 0, false});
  Add(ElementKind::Frame, {0, 4}, drawing);
  Add(ElementKind::Area, {0, 1, 2, 3}, drawing);
  Add(ElementKind::Solid, {0, 1, 2, 3, 4, 5, 6, 7}, drawing);
  Add(ElementKind::Link, {1, 5}, drawing);
  Add(ElementKind::RigidLink, {2, 6}, drawing);
  Add(ElementKind::RigidLink, {3, 7}, drawing);
  const std::string html = DrawingsOf(drawing, {});
  for (const char* className : {"frame", "area", "solid", "link", "rigid", "joint", "support"}) {
    EXPECT_EQ(Paths(html, className).size(), 4U) << className;
  }
  for (const char* entry :
       {"\"frame\">1</span> frame<", "\"area\">1</span> area<", "\"solid\">1</span> solid<",
        "\"link\">1</span> link<", "\"rigid\">2</span> rigid links<",
        "\"joint\">1</span> joint without an element<",
        "\"support\">1</span> joint with a support<"}) {
    EXPECT_THAT(html, HasSubstr(entry));
  }
  EXPECT_THAT(html, Not(HasSubstr("touched by a loss")));
}

TEST(DrawingsTest, AnElementInLineWithTheViewIsADot) {
  Drawing drawing = NodesAt({{0, 0, 0}, {0, 0, 10}, {10, 5, 0}});
  Add(ElementKind::Frame, {0, 1}, drawing);
  // 10 by 5 become 1000 by 500 units in the plan, with the column at the left and below.
  EXPECT_EQ(Paths(DrawingsOf(drawing, {}), "frame")[1], "M24 524h0");
}

TEST(DrawingsTest, WhatLiesUponAnotherIsDrawnOnce) {
  Drawing drawing = NodesAt(kCube);
  Add(ElementKind::Frame, {0, 1}, drawing);
  Add(ElementKind::Frame, {1, 0}, drawing);
  Add(ElementKind::Area, {0, 1, 2, 3}, drawing);
  Add(ElementKind::Area, {2, 1, 0, 3}, drawing);
  const std::string html = DrawingsOf(drawing, {});
  EXPECT_EQ(Count(Paths(html, "frame")[0], "M"), 1U);
  EXPECT_EQ(Count(Paths(html, "area")[0], "M"), 1U);
}

TEST(DrawingsTest, FacesInWhichSolidsMeetAreNotDrawn) {
  std::vector<std::array<double, 3>> points = kCube;
  for (const auto& [x, y, z] : {kCube[1], kCube[2], kCube[5], kCube[6]}) {
    points.push_back({x + 10, y, z});
  }
  Drawing drawing = NodesAt(points);
  Add(ElementKind::Solid, {0, 1, 2, 3, 4, 5, 6, 7}, drawing);
  Add(ElementKind::Solid, {1, 8, 9, 2, 5, 10, 11, 6}, drawing);
  // Twelve faces without the two that meet.
  EXPECT_EQ(Count(Paths(DrawingsOf(drawing, {}), "solid")[0], "M"), 10U);
}

TEST(DrawingsTest, AWedgeHasFiveFaces) {
  Drawing drawing = NodesAt({kCube[0], kCube[1], kCube[2], kCube[4], kCube[5], kCube[6]});
  Add(ElementKind::Solid, {0, 1, 2, 3, 4, 5}, drawing);
  EXPECT_EQ(Count(Paths(DrawingsOf(drawing, {}), "solid")[0], "Z"), 5U);
}

// Large models

/// A mesh of so many by so many areas.
Drawing Mesh(std::uint32_t side) {
  Drawing drawing;
  for (std::uint32_t y = 0; y <= side; ++y) {
    for (std::uint32_t x = 0; x <= side; ++x) {
      drawing.Nodes.push_back({static_cast<int>(drawing.Nodes.size()) + 1, "", 1.0 * x, 1.0 * y,
                               0.01 * (x * x % 97 + y), true});
    }
  }
  for (std::uint32_t y = 0; y < side; ++y) {
    for (std::uint32_t x = 0; x < side; ++x) {
      const std::uint32_t at = y * (side + 1) + x;
      Add(ElementKind::Area, {at, at + 1, at + side + 2, at + side + 1}, drawing);
    }
  }
  return drawing;
}

TEST(DrawingsTest, OfManyElementsNoMoreThanFourThousandAreDrawn) {
  const std::string html = DrawingsOf(Mesh(200), {});
  const std::vector<std::string> paths = Paths(html, "area");
  ASSERT_EQ(paths.size(), 4U);
  for (const std::string& path : paths) {
    EXPECT_LE(Count(path, "M"), 4000U);
  }
  EXPECT_GT(Count(paths[1], "M"), 1000U);  // the plan, which they fill
  for (const std::string& path : Paths(html, "support")) {
    EXPECT_LE(Count(path, "M"), 1000U);
  }
  EXPECT_THAT(html, HasSubstr("\"area\">40,000</span> areas"));
  EXPECT_THAT(html, HasSubstr("Drawn coarsely"));
  EXPECT_LT(html.size(), 1'000'000U);
}

TEST(DrawingsTest, LongElementsThatAreTooManyAreThinnedWithANote) {
  // Lines from each point of three rows to each of the others: no grid makes them few.
  Drawing drawing;
  for (std::uint32_t point = 0; point < 300; ++point) {
    drawing.Nodes.push_back(
        {static_cast<int>(point), "", 1.4 * (point % 100), 0, 40.0 * (point / 100), false});
  }
  for (std::uint32_t from = 0; from < 200; ++from) {
    for (std::uint32_t to = from / 100 * 100 + 100; to < 300; ++to) {
      Add(ElementKind::Frame, {from, to}, drawing);
    }
  }
  const std::string html = DrawingsOf(drawing, {});
  EXPECT_EQ(Count(Paths(html, "frame")[0], "M"), 4000U);
  EXPECT_THAT(html, HasSubstr("different lines and faces <span class=\"n\" "
                              "data-drawn=\"drawn\">4,000</span> are drawn."));
}

TEST(DrawingsTest, AFewElementsAreDrawnAsTheyAre) {
  EXPECT_THAT(DrawingsOf(Mesh(20), {}), Not(HasSubstr("Drawn coarsely")));
}

// Marks

TEST(DrawingsTest, WhatARowWithALossNamesIsMarkedWithItsReason) {
  Drawing drawing = NodesAt({{0, 0, 0}, {20, 0, 4}});
  Add(ElementKind::Frame, {0, 1}, drawing);
  drawing.Elements[0].Number = 17;
  const std::string html = DrawingsOf(drawing, With({"Frame=1", "Joint=J2", "Joint=\"J1\""}));
  EXPECT_THAT(html, HasSubstr("<path class=\"mark\" d=\"M24 224L1024 24\"><title>Frame 1, element "
                              "17: It is &lt;lost&gt;.</title></path>"));
  EXPECT_THAT(html, HasSubstr("<circle class=\"mark\" cx=\"1024\" cy=\"24\" r=\"7\"><title>Joint "
                              "J2, node 2: It is &lt;lost&gt;.</title></circle>"));
  EXPECT_THAT(html, HasSubstr("<title>Joint J1, node 1:"));
  EXPECT_THAT(html, HasSubstr("\"mark\">3</span> touched by a loss"));
}

TEST(DrawingsTest, AreasSolidsAndLinksAreMarkedByTheirKind) {
  Drawing drawing = NodesAt(kCube);
  Add(ElementKind::Area, {0, 1, 2, 3}, drawing);
  Add(ElementKind::Solid, {0, 1, 2, 3, 4, 5, 6, 7}, drawing);
  Add(ElementKind::Link, {1, 5}, drawing);
  const std::string html =
      DrawingsOf(drawing, With({"Area=1", "Solid=2", "Link=3", "Frame=1", "Area=2", "Case=3"}));
  EXPECT_EQ(Count(html, "<title>"), 12U);  // three in each of four views
  EXPECT_THAT(html, HasSubstr("<title>Area 1, element 1: "));
  EXPECT_THAT(html, HasSubstr("<title>Solid 2, element 2: "));
  EXPECT_THAT(html, HasSubstr("<title>Link 3: "));
}

TEST(DrawingsTest, WhatIsNoLossMarksNothing) {
  EXPECT_EQ(Count(DrawingsOf(NodesAt(kCube), With({"Joint=J1"}, kNoLoss)), "<title>"), 0U);
}

TEST(DrawingsTest, TablesOfLinkPropertiesNameNoLink) {
  Drawing drawing = NodesAt(kCube);
  Add(ElementKind::Link, {1, 5}, drawing);
  EXPECT_EQ(
      Count(DrawingsOf(drawing, With({"Link=1"}, kLoss, "LINK PROPERTY DEFINITIONS 02 - LINEAR")),
            "<title>"),
      0U);
  EXPECT_EQ(
      Count(DrawingsOf(drawing, With({"Link=1"}, kLoss, "LINK PROPERTY ASSIGNMENTS")), "<title>"),
      4U);
}

TEST(DrawingsTest, SeveralReasonsOfAnElementStandInOneTitle) {
  static constexpr Reason kOthers[] = {{"b", RowFate::Changed, true, "Second.", "Look."},
                                       {"c", RowFate::Changed, true, "Third.", "Look."}};
  Account account = With({"Joint=J1", "Joint=J1"});
  account.Losses.push_back({0, 1, 4, "Joint=J1", &kOthers[0]});
  account.Losses.push_back({0, 1, 4, "Joint=J1", &kOthers[1]});
  EXPECT_THAT(DrawingsOf(NodesAt({{0, 0, 0}}), account),
              HasSubstr("<title>Joint J1, node 1: It is &lt;lost&gt;. Second. And 1 more "
                        "reason.</title>"));
}

TEST(DrawingsTest, MarksHaveNumbersAndAListOfThem) {
  Drawing drawing = NodesAt({{0, 0, 0}, {20, 0, 4}});
  Add(ElementKind::Frame, {0, 1}, drawing);
  const std::string html = DrawingsOf(drawing, With({"Joint=J2", "Joint=J1", "Frame=1"}));
  // The picture is 1048 by 248 units. A number stands above its mark, at the upper edge below
  // it, and at the sides towards the middle.
  EXPECT_THAT(html, HasSubstr("<g class=\"numbers\" font-size=\"23\">"));
  EXPECT_THAT(html,
              HasSubstr("<text x=\"524\" y=\"124\" dy=\"-.4em\" text-anchor=\"middle\">1</text>"));
  EXPECT_THAT(html,
              HasSubstr("<text x=\"24\" y=\"224\" dy=\"-.4em\" text-anchor=\"start\">2</text>"));
  EXPECT_THAT(html,
              HasSubstr("<text x=\"1024\" y=\"24\" dy=\"1.2em\" text-anchor=\"end\">3</text>"));
  EXPECT_THAT(html, HasSubstr("<ul class=\"marks\">\n"
                              "<li><b>1</b> Frame 1, element 1: It is &lt;lost&gt;.</li>\n"
                              "<li><b>2</b> Joint J1, node 1: It is &lt;lost&gt;.</li>\n"
                              "<li><b>3</b> Joint J2, node 2: It is &lt;lost&gt;.</li>\n</ul>\n"));
  EXPECT_THAT(html, Not(HasSubstr("see the lists above")));
  EXPECT_THAT(DrawingsOf(drawing, {}), Not(HasSubstr("class=\"numbers\"")));
  EXPECT_THAT(DrawingsOf(drawing, {}), Not(HasSubstr("class=\"marks\"")));
}

TEST(DrawingsTest, NumbersAtOnePlaceStandTogether) {
  const Drawing drawing = NodesAt({{0, 0, 0}, {0, 0, 4}, {0, 0, 8}, {0, 0, 12}, {10, 5, 0}});
  // In the plan, 1000 by 500 units, the joints of the column are one spot.
  const std::string two = DrawingsOf(drawing, With({"Joint=J1", "Joint=J2"}));
  EXPECT_THAT(two,
              HasSubstr("<text x=\"24\" y=\"524\" dy=\"-.4em\" text-anchor=\"start\">1,2</text>"));
  const std::string four =
      DrawingsOf(drawing, With({"Joint=J1", "Joint=J2", "Joint=J3", "Joint=J4"}));
  EXPECT_THAT(
      four, HasSubstr("<text x=\"24\" y=\"524\" dy=\"-.4em\" text-anchor=\"start\">1,2,3…</text>"));
}

TEST(DrawingsTest, OnlyTheFirstTwentyMarksHaveNumbers) {
  std::vector<std::string> labels;
  for (int label = 1; label <= 21; ++label) {
    labels.push_back("Area=" + std::to_string(label));
  }
  const std::string html = DrawingsOf(Mesh(200), With(labels));
  EXPECT_THAT(html, HasSubstr("<li><b>20</b> Area 20, "));
  EXPECT_THAT(html, Not(HasSubstr("<b>21</b>")));
  EXPECT_THAT(html, HasSubstr("And <span class=\"n\" data-drawn=\"unnumbered\">1</span> more mark; "
                              "see the lists above."));
}

TEST(DrawingsTest, WhatCannotBeDrawnHasNoMark) {
  Drawing drawing = NodesAt({{0, 0, 0}, {20, 0, 4}, {1e30, 0, 0}});
  Add(ElementKind::Frame, {0, 2}, drawing);
  Add(ElementKind::Frame, {}, drawing);
  Add(ElementKind::Frame, {0, 1}, drawing);
  const std::string html = DrawingsOf(drawing, With({"Frame=1", "Frame=2", "Joint=J3", "Frame=3"}));
  EXPECT_THAT(html, HasSubstr("\"mark\">1</span> touched by a loss"));
  EXPECT_THAT(html, HasSubstr("<ul class=\"marks\">\n<li><b>1</b> Frame 3, "));
}

TEST(DrawingsTest, HostileLabelsAreEscapedAndCut) {
  Drawing drawing = NodesAt({{0, 0, 0}});
  drawing.Nodes[0].Label = "</title><script>\xFF" + std::string(300, 'x');
  const std::string html = DrawingsOf(drawing, With({"Joint=" + drawing.Nodes[0].Label}));
  EXPECT_THAT(html, HasSubstr("<title>Joint &lt;/title&gt;&lt;script&gt;\uFFFD" +
                              std::string(23, 'x') + "…, node 1:"));
  EXPECT_THAT(html, Not(HasSubstr("<script")));
}

TEST(DrawingsTest, MarksAreNotThinnedAwayUpToTheirOwnLimit) {
  const Drawing mesh = Mesh(200);
  std::vector<std::string> labels;
  for (int label = 1; label <= 150; ++label) {
    labels.push_back("Area=" + std::to_string(label * 40));
  }
  EXPECT_EQ(Count(DrawingsOf(mesh, With(labels)), "<title>"), 4 * 150U);
  for (int label = 151; label <= 300; ++label) {
    labels.push_back("Area=" + std::to_string(label * 40));
  }
  const std::string html = DrawingsOf(mesh, With(labels));
  EXPECT_EQ(Count(html, "<title>"), 4 * 200U);
  EXPECT_THAT(html, HasSubstr("\"mark\">300</span> touched by a loss"));
  EXPECT_THAT(html, HasSubstr("The first <span class=\"n\" data-drawn=\"marked\">200</span>"));
  EXPECT_LT(html.size(), 1'000'000U);
}

}  // namespace
