#include "drawings.h"
#include "support/drawn_models.h"

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
using testing::HasSubstr;
using testing::Not;

constexpr Reason kLoss = {"lost", RowFate::Dropped, true, "It is <lost>.", "Enter it."};
constexpr Reason kNoLoss = {"not-lost", RowFate::Dropped, false, "It says nothing.", "Nothing."};

Account With(const std::vector<std::string>& labels, const Reason& reason = kLoss,
             const std::string& title = "A TABLE") {
  Account account;
  account.Tables.emplace_back().Title = title;
  for (const std::string& label : labels) {
    account.Losses.push_back({0, 1, 4, label, &reason});
  }
  return account;
}

TEST(MarksTest, WhatARowWithALossNamesIsMarkedWithItsReason) {
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

TEST(MarksTest, AreasSolidsAndLinksAreMarkedByTheirKind) {
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

TEST(MarksTest, WhatIsNoLossMarksNothing) {
  EXPECT_EQ(Count(DrawingsOf(NodesAt(kCube), With({"Joint=J1"}, kNoLoss)), "<title>"), 0U);
}

TEST(MarksTest, TablesOfLinkPropertiesNameNoLink) {
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

TEST(MarksTest, SeveralReasonsOfAnElementStandInOneTitle) {
  static constexpr Reason kOthers[] = {{"b", RowFate::Changed, true, "Second.", "Look."},
                                       {"c", RowFate::Changed, true, "Third.", "Look."}};
  Account account = With({"Joint=J1", "Joint=J1"});
  account.Losses.push_back({0, 1, 4, "Joint=J1", &kOthers[0]});
  account.Losses.push_back({0, 1, 4, "Joint=J1", &kOthers[1]});
  EXPECT_THAT(DrawingsOf(NodesAt({{0, 0, 0}}), account),
              HasSubstr("<title>Joint J1, node 1: It is &lt;lost&gt;. Second. And 1 more "
                        "reason.</title>"));
}

TEST(MarksTest, MarksHaveNumbersAndAListOfThem) {
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

TEST(MarksTest, NumbersAtOnePlaceStandTogether) {
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

TEST(MarksTest, OnlyTheFirstTwentyMarksHaveNumbers) {
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

TEST(MarksTest, WhatCannotBeDrawnHasNoMark) {
  Drawing drawing = NodesAt({{0, 0, 0}, {20, 0, 4}, {1e30, 0, 0}});
  Add(ElementKind::Frame, {0, 2}, drawing);
  Add(ElementKind::Frame, {}, drawing);
  Add(ElementKind::Frame, {0, 1}, drawing);
  const std::string html = DrawingsOf(drawing, With({"Frame=1", "Frame=2", "Joint=J3", "Frame=3"}));
  EXPECT_THAT(html, HasSubstr("\"mark\">1</span> touched by a loss"));
  EXPECT_THAT(html, HasSubstr("<ul class=\"marks\">\n<li><b>1</b> Frame 3, "));
}

TEST(MarksTest, HostileLabelsAreEscapedAndCut) {
  Drawing drawing = NodesAt({{0, 0, 0}});
  drawing.Nodes[0].Label = "</title><script>\xFF" + std::string(300, 'x');
  const std::string html = DrawingsOf(drawing, With({"Joint=" + drawing.Nodes[0].Label}));
  EXPECT_THAT(html, HasSubstr("<title>Joint &lt;/title&gt;&lt;script&gt;\uFFFD" +
                              std::string(23, 'x') + "…, node 1:"));
  EXPECT_THAT(html, Not(HasSubstr("<script")));
}

TEST(MarksTest, MarksAreNotThinnedAwayUpToTheirOwnLimit) {
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
