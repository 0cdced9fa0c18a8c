#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

/// The first lines of the sections alone, without their stiffness.
std::vector<std::string> HeadLines(const ConversionRun& run) {
  std::vector<std::string> lines = run.Lines("*SECTION");
  std::erase_if(lines, [](const std::string& line) { return line.starts_with("\t\t"); });
  return lines;
}

TEST(SectionOffsets, CardinalPointHasItsCode) {
  struct Case {
    const char* CardinalPoint;
    const char* Line;
  };
  const std::vector<Case> cases = {
      {"1 (bottom left)",
       "\t1, VALUE,   PST,    RB,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"2 (bottom center)",
       "\t1, VALUE,   PST,    CB,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"3 (bottom right)",
       "\t1, VALUE,   PST,    LB,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"4 (middle left)",
       "\t1, VALUE,   PST,    RC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"5 (middle center)",
       "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"6 (middle right)",
       "\t1, VALUE,   PST,    LC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"7 (top left)",
       "\t1, VALUE,   PST,    RT,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"8 (top center)",
       "\t1, VALUE,   PST,    CT,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"9 (top right)",
       "\t1, VALUE,   PST,    LT,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"10 (centroid)",
       "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"11", "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      // holds "1 (", which is looked for first
      {"11 (shear center)",
       "\t1, VALUE,   PST,    RB,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"21 (user)",
       "\t1, VALUE,   PST,    RB,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      // of several digits the smallest
      {"8 of 3",
       "\t1, VALUE,   PST,    LB,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"12", "\t1, VALUE,   PST,    CB,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      // none of the texts
      {"1", "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"1(bottom left)",
       "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"top center",
       "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"},
      {"", "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"}};
  for (const auto& [cardinalPoint, line] : cases) {
    SCOPED_TRACE(cardinalPoint);
    const ConversionRun run = Convert(
        "TABLE:  \"FRAME SECTION PROPERTIES 1 - GENERAL\"\n"
        "   SectionName=PST   Shape=Circle   t3=0.3\n"
        "\n"
        "TABLE:  \"FRAME SECTION ASSIGNMENTS\"\n"
        "   Frame=1   AnalSect=PST\n"
        "\n"
        "TABLE:  \"FRAME INSERTION POINT ASSIGNMENTS\"\n"
        "   Frame=1   CardinalPt=\"" +
        std::string(cardinalPoint) + "\"   CoordSys=Local\n");
    EXPECT_THAT(HeadLines(run), ElementsAre(line));
  }
}

TEST(SectionOffsets, WithoutAssignmentsOfSectionsIsCentred) {
  const ConversionRun run = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=PST   Shape=Circle   t3=0.3

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   CardinalPt="8 (top center)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(run),
      ElementsAre(
          "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"));
}

TEST(SectionOffsets, WithoutInsertionPointsIsCentred) {
  const ConversionRun run = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=PST   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=PST
)s2k");
  EXPECT_THAT(
      HeadLines(run),
      ElementsAre(
          "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"));
}

TEST(SectionOffsets, InsertionPointIsFoundByTheFramesLabel) {
  // Frame labels are texts: "01" is not "1".
  const ConversionRun run = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=PST   Shape=Circle   t3=0.3
   SectionName=BAR   Shape=Circle   t3=0.2

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=PST
   Frame=2   AnalSect=BAR

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=2   CardinalPt="8 (top center)"   CoordSys=Local
   Frame=01   CardinalPt="2 (bottom center)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(run),
      ElementsAre(
          "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0",
          "\t2, VALUE,   BAR,    CT,    SR, BUILT,   0.2,     0,     0,     0,     0,     0"));
}

TEST(SectionOffsets, FirstFrameOfTheWalkThatUsesTheSectionDecides) {
  // Rows 1, 2, 3 are walked in the order 3, 2, 1.
  const ConversionRun run = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=PST   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=PST
   Frame=2   AnalSect=PST
   Frame=3   AnalSect=BAR

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=1   CardinalPt="7 (top left)"   CoordSys=Local
   Frame=2   CardinalPt="8 (top center)"   CoordSys=Local
   Frame=3   CardinalPt="9 (top right)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(run),
      ElementsAre(
          "\t1, VALUE,   PST,    CT,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"));
}

TEST(SectionOffsets, OtherFramesOfTheSectionAreNotAskedWhenTheFirstHasNoInsertionPoint) {
  const ConversionRun run = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=PST   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=PST
   Frame=2   AnalSect=PST

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=1   CardinalPt="8 (top center)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(run),
      ElementsAre(
          "\t1, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"));
}

TEST(SectionOffsets, OfSeveralInsertionPointsOfAFrameTheFirstOfTheWalkDecides) {
  const ConversionRun run = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=PST   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=PST

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=1   CardinalPt="8 (top center)"   CoordSys=Local
   Frame=1   CardinalPt="2 (bottom center)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(run),
      ElementsAre(
          "\t1, VALUE,   PST,    CB,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"));
}

TEST(SectionOffsets, UnusedSectionTakesThatOfTheLastAssignmentOfTheWalk) {
  // Rows 1, 2, 3 are walked in the order 3, 2, 1, so that the last is the one of frame 5.
  const ConversionRun run = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=SPARE   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=5   AnalSect=PST
   Frame=6   AnalSect=PST
   Frame=7   AnalSect=PST

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=5   CardinalPt="7 (top left)"   CoordSys=Local
   Frame=6   CardinalPt="8 (top center)"   CoordSys=Local
   Frame=7   CardinalPt="9 (top right)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(run),
      ElementsAre(
          "\t1, VALUE, SPARE,    RT,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"));
}

TEST(SectionOffsets, OnlyTheAnalysisSectionCounts) {
  const ConversionRun run = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=PST   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=PST   DesignSect=BAR
   Frame=2   AnalSect=BAR   DesignSect=PST

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=1   CardinalPt="7 (top left)"   CoordSys=Local
   Frame=2   CardinalPt="8 (top center)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(run),
      ElementsAre(
          "\t1, VALUE,   PST,    RT,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"));
}

TEST(SectionOffsets, TaperedAndDefaultSectionsHaveOne) {
  const ConversionRun tapered = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=VAR   Shape=Nonprismatic
   SectionName=PST   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=VAR   NumSegments=1   SegmentNum=1   StartSect=PST   EndSect=PST

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=PST
   Frame=2   AnalSect=VAR

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=2   CardinalPt="8 (top center)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(tapered),
      ElementsAre(
          "\t1, TAPERED,   VAR,    CT,    SR,     1,     1,  USER",
          "\t2, VALUE,   PST,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0"));

  const ConversionRun withoutSegments = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=VAR   Shape=Nonprismatic

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=2   AnalSect=VAR

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=2   CardinalPt="8 (top center)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(withoutSegments),
      ElementsAre("\t1, DBUSER,   VAR,    CT,    SB, 2,     0,     0,     0,     0,     0,     0"));
}

TEST(SectionOffsets, DroppedSectionIsCentred) {
  const ConversionRun run = Convert(R"s2k(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=CELLS   Shape="SD Section"
   SectionName=PST   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=CELLS

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=1   CardinalPt="8 (top center)"   CoordSys=Local
)s2k");
  EXPECT_THAT(
      HeadLines(run),
      ElementsAre("\t1, DBUSER,      ,    CC,    SB, 2,     0,     0,     0,     0,     0,     0"));
}

}  // namespace
