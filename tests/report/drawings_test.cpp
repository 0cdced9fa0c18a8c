#include "drawings.h"

#include "support/drawn_models.h"

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using s2k2ngt::Drawing;
using s2k2ngt::ElementKind;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

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
  const std::string one = DrawingsOf(drawing, {});
  EXPECT_THAT(Paths(one, "frame"), ElementsAre("M24 224L1024 24"));
  EXPECT_THAT(one, HasSubstr("<span class=\"n\" data-drawn=\"left-out\">1</span> element is not "
                             "drawn: a joint of it is not there."));
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

}  // namespace
