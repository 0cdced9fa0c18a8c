#include "frames/sections.h"
#include "support/conversion_run.h"
#include "support/writer_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* kNoStiffness = "\t\t0,     0,     0,     0,     0,     0";
constexpr const char* kNothingFurther =
    "\t\t0,     0,     0,     0,     0,     0,     0,     0,     0,     0";

/// A haunch as section 1, then a shallow and a deep rectangle, a circle and two shapes that the
/// target does not have; and these segments.
ConversionRun ConvertHaunch(const std::string& segments) {
  return Convert(std::string(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=HAUNCH   Shape=Nonprismatic
   SectionName=SHALLOW   Shape=Rectangular   t3=0.3   t2=0.2
   SectionName=DEEP   Shape=Rectangular   t3=0.6   t2=0.25
   SectionName=ROUND   Shape=Circle   t3=0.4
   SectionName=CELLS1   Shape="SD Section"   t3=0.7
   SectionName=CELLS2   Shape="SD Section"   t3=0.8

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC")") +
                 segments);
}

/// The two lines of section 1.
std::vector<std::string> FirstTwoLines(const ConversionRun& run) {
  std::vector<std::string> lines = run.Lines("*SECTION");
  lines.resize(2);
  return lines;
}

// The first line of the haunch when it is dropped.
constexpr const char* kDropped =
    "\t1, DBUSER,      ,    CC,    SB, 2,     0,     0,     0,     0,     0,     0";

TEST(TaperedSections, OneSegmentGivesBothEnds) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B30   Material=C30   Shape=Rectangular   t3=0.3   t2=0.2
   SectionName=B60   Material=C30   Shape=Rectangular   t3=0.6   t2=0.25
   SectionName=HAUNCH   Material=C30   Shape=Nonprismatic

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=B30   EndSect=B60   LengthType=Variable   VarLength=1   EI33Var=Cubic   EI22Var=Linear
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE,   B30,    CC,    SB, BUILT,   0.3,   0.2,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther,
          "\t2, VALUE,   B60,    CC,    SB, BUILT,   0.6,  0.25,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther, "\t3, TAPERED, HAUNCH,    CC,    SB,     3,     1,  USER",
          "\t\t  0.3,  0.2,    0,    0,    0,    0,  0.6, 0.25,    0,    0,    0,    0"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(TaperedSections, VariationWordsHaveNumbers) {
  struct Case {
    const char* Word;
    const char* Number;
  };
  // Other words leave the 1 that a section begins with.
  const std::vector<Case> cases = {{"Linear", "1"},    {"Prabolic", "2"}, {"Cubic", "3"},
                                   {"Parabolic", "1"}, {"cubic", "1"},    {"", "1"}};
  for (const auto& [word, number] : cases) {
    SCOPED_TRACE(word);
    const ConversionRun about3 = ConvertHaunch(
        "\n   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=SHALLOW   EndSect=DEEP"
        "   EI33Var=" +
        std::string(word) + "   EI22Var=Linear\n");
    EXPECT_EQ(FirstTwoLines(about3).front(),
              "\t1, TAPERED, HAUNCH,    CC,    SB,     " + std::string(number) + ",     1,  USER");
    const ConversionRun about2 = ConvertHaunch(
        "\n   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=SHALLOW   EndSect=DEEP"
        "   EI33Var=Linear   EI22Var=" +
        std::string(word) + "\n");
    EXPECT_EQ(FirstTwoLines(about2).front(),
              "\t1, TAPERED, HAUNCH,    CC,    SB,     1,     " + std::string(number) + ",  USER");
  }
}

TEST(TaperedSections, VariationIsThatOfTheFirstSegment) {
  const ConversionRun run = ConvertHaunch(R"(
   SectionName=HAUNCH   NumSegments=2   SegmentNum=1   StartSect=SHALLOW   EndSect=DEEP   EI33Var=Cubic   EI22Var=Prabolic
   SectionName=HAUNCH   NumSegments=2   SegmentNum=2   StartSect=DEEP   EndSect=DEEP   EI33Var=Linear   EI22Var=Linear
)");
  EXPECT_EQ(FirstTwoLines(run).front(), "\t1, TAPERED, HAUNCH,    CC,    SB,     3,     2,  USER");
}

TEST(TaperedSections, UnknownVariationKeepsThatOfTheRowWalkedBefore) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const ConversionRun run = ConvertHaunch(R"(
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=SHALLOW   EndSect=DEEP   EI33Var=Quartic   EI22Var=Linear
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=DEEP   EndSect=SHALLOW   EI33Var=Cubic   EI22Var=Prabolic
)");
  EXPECT_THAT(
      FirstTwoLines(run),
      ElementsAre("\t1, TAPERED, HAUNCH,    CC,    SB,     3,     1,  USER",
                  "\t\t  0.3,  0.2,    0,    0,    0,    0,  0.6, 0.25,    0,    0,    0,    0"));
}

TEST(TaperedSections, EachShapeHasItsDimensions) {
  struct Case {
    const char* Shape;
    const char* Head;
    const char* Dimensions;
  };
  // Double angles are taken as they stand, unlike prismatic ones.
  constexpr const char* kAll =
      "\t\t  0.6,  0.3, 0.01, 0.02, 0.25,0.015,  0.8,  0.4, 0.02, 0.03, 0.35,0.025";
  constexpr const char* kOfPipe =
      "\t\t  0.6, 0.01,    0,    0,    0,    0,  0.8, 0.02,    0,    0,    0,    0";
  const std::vector<Case> cases = {
      {"I/Wide Flange", "\t1, TAPERED, HAUNCH,    CC,     H,     1,     1,  USER", kAll},
      {"Channel", "\t1, TAPERED, HAUNCH,    CC,     C,     1,     1,  USER", kAll},
      {"Tee", "\t1, TAPERED, HAUNCH,    CC,     T,     1,     1,  USER", kAll},
      {"Angle", "\t1, TAPERED, HAUNCH,    CC,     L,     1,     1,  USER", kAll},
      {"Double Angle", "\t1, TAPERED, HAUNCH,    CC,    2L,     1,     1,  USER", kAll},
      {"Box/Tube", "\t1, TAPERED, HAUNCH,    CC,     B,     1,     1,  USER", kAll},
      {"Pipe", "\t1, TAPERED, HAUNCH,    CC,     P,     1,     1,  USER", kOfPipe},
      {"Rectangular", "\t1, TAPERED, HAUNCH,    CC,    SB,     1,     1,  USER", kAll},
      {"Circle", "\t1, TAPERED, HAUNCH,    CC,    SR,     1,     1,  USER", kAll},
      {"General", "\t1, TAPERED, HAUNCH,    CC,    SB,     1,     1,  USER", kAll}};
  for (const auto& [shape, head, dimensions] : cases) {
    SCOPED_TRACE(shape);
    const std::string quoted = "\"" + std::string(shape) + "\"";
    const ConversionRun run = Convert(
        "TABLE:  \"FRAME SECTION PROPERTIES 1 - GENERAL\"\n"
        "   SectionName=HAUNCH   Shape=Nonprismatic\n"
        "   SectionName=A   Shape=" +
        quoted +
        "   t3=0.6   t2=0.3   tf=0.02   tw=0.01   t2b=0.25   tfb=0.015   dis=0.05\n"
        "   SectionName=B   Shape=" +
        quoted +
        "   t3=0.8   t2=0.4   tf=0.03   tw=0.02   t2b=0.35   tfb=0.025   dis=0.06\n"
        "\n"
        "TABLE:  \"FRAME SECTION PROPERTIES 5 - NONPRISMATIC\"\n"
        "   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=A   EndSect=B\n");
    EXPECT_THAT(FirstTwoLines(run), ElementsAre(head, dimensions));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(TaperedSections, ShapesOfOneCodeGoTogether) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=HAUNCH   Shape=Nonprismatic
   SectionName=A   Shape=Rectangular   t3=0.3
   SectionName=B   Shape=General   t3=0.6

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=A   EndSect=B
)");
  EXPECT_THAT(
      FirstTwoLines(run),
      ElementsAre("\t1, TAPERED, HAUNCH,    CC,    SB,     1,     1,  USER",
                  "\t\t  0.3,    0,    0,    0,    0,    0,  0.6,    0,    0,    0,    0,    0"));
}

TEST(TaperedSections, OfSeveralSectionsOfOneNameTheLastOfTheWalkIsTheEnd) {
  // Of keys 1 to 6 the walk meets the sections T as 3, 6, 4.
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=HAUNCH   Shape=Nonprismatic
   SectionName=DEEP   Shape=Rectangular   t3=0.9
   SectionName=T   Shape=Rectangular   t3=0.3
   SectionName=T   Shape=Rectangular   t3=0.4
   SectionName=ROUND   Shape=Circle   t3=0.5
   SectionName=T   Shape=Rectangular   t3=0.6

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=T   EndSect=DEEP
)");
  EXPECT_EQ(FirstTwoLines(run).back(),
            "\t\t  0.4,    0,    0,    0,    0,    0,  0.9,    0,    0,    0,    0,    0");
}

TEST(TaperedSections, NameThatIsDroppedIsDroppedAgain) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=VAR   Shape=Nonprismatic
   SectionName=VAR   Shape=Nonprismatic
   SectionName=A   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=VAR   NumSegments=1   SegmentNum=1   StartSect=GONE   EndSect=GONE
)");
  // One section is there, number 3; so one number is printed, of which there is no section.
  EXPECT_THAT(run.Lines("*SECTION"),
              ElementsAre("\t1, DBUSER,      ,    CC,    SB, 2,     0,     0,     0,     0,     0,"
                          "     0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SECT_SSEC_Not_Define"));
}

TEST(TaperedSections, EachHasTheSegmentsOfItsName) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=VAR1   Shape=Nonprismatic
   SectionName=VAR2   Shape=Nonprismatic
   SectionName=VAR1   Shape=Nonprismatic
   SectionName=A   Shape=Circle   t3=0.3
   SectionName=B   Shape=Circle   t3=0.5

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=VAR2   NumSegments=1   SegmentNum=1   StartSect=B   EndSect=A   EI33Var=Cubic
   SectionName=VAR1   NumSegments=1   SegmentNum=1   StartSect=A   EndSect=B   EI22Var=Cubic
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, TAPERED,  VAR1,    CC,    SR,     1,     3,  USER",
          "\t\t  0.3,    0,    0,    0,    0,    0,  0.5,    0,    0,    0,    0,    0",
          "\t2, TAPERED,  VAR2,    CC,    SR,     3,     1,  USER",
          "\t\t  0.5,    0,    0,    0,    0,    0,  0.3,    0,    0,    0,    0,    0",
          "\t3, TAPERED,  VAR1,    CC,    SR,     1,     3,  USER",
          "\t\t  0.3,    0,    0,    0,    0,    0,  0.5,    0,    0,    0,    0,    0",
          "\t4, VALUE,     A,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther,
          "\t5, VALUE,     B,    CC,    SR, BUILT,   0.5,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
}

// ---- Several segments ----

TEST(TaperedSections, PointsBetweenSegmentsAreLostWithAMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=VAR   Shape=Nonprismatic
   SectionName=A   Shape=Rectangular   t3=0.3
   SectionName=B   Shape=Circle   t3=0.4
   SectionName=C   Shape=Rectangular   t3=0.6

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=VAR   NumSegments=2   SegmentNum=1   StartSect=A   EndSect=B
   SectionName=VAR   NumSegments=2   SegmentNum=2   StartSect=B   EndSect=C
)");
  EXPECT_THAT(
      FirstTwoLines(run),
      ElementsAre("\t1, TAPERED,   VAR,    CC,    SB,     1,     1,  USER",
                  "\t\t  0.3,    0,    0,    0,    0,    0,  0.6,    0,    0,    0,    0,    0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SECT_TAPP_Not_Convert"));
}

TEST(TaperedSections, SegmentsMayStandInAnyOrder) {
  const ConversionRun run = ConvertHaunch(R"(
   SectionName=HAUNCH   NumSegments=3   SegmentNum=3   StartSect=ROUND   EndSect=DEEP
   SectionName=HAUNCH   NumSegments=3   SegmentNum=2   StartSect=ROUND   EndSect=ROUND
   SectionName=HAUNCH   NumSegments=3   SegmentNum=1   StartSect=SHALLOW   EndSect=ROUND
)");
  EXPECT_EQ(FirstTwoLines(run).back(),
            "\t\t  0.3,  0.2,    0,    0,    0,    0,  0.6, 0.25,    0,    0,    0,    0");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_SECT_Not_Trans", "IDS_S2KV8_SECT_TAPP_Not_Convert"));
}

TEST(TaperedSections, SeveralSegmentsOfAnotherSectionShowTheMessage) {
  const ConversionRun run = ConvertHaunch(R"(
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=SHALLOW   EndSect=DEEP
   SectionName=UNUSED   NumSegments=2   SegmentNum=2   StartSect=DEEP   EndSect=ROUND
)");
  EXPECT_EQ(FirstTwoLines(run).front(), "\t1, TAPERED, HAUNCH,    CC,    SB,     1,     1,  USER");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_SECT_Not_Trans", "IDS_S2KV8_SECT_TAPP_Not_Convert"));
}

TEST(TaperedSections, SegmentsWithoutANonprismaticSectionShowNoMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=A   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=A   NumSegments=2   SegmentNum=1   StartSect=A   EndSect=A
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE,     A,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(TaperedSections, SegmentNumbersAreTruncated) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=VAR   Shape=Nonprismatic
   SectionName=A   Shape=Circle   t3=0.3

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=VAR   NumSegments=1.9   SegmentNum=1.2   StartSect=A   EndSect=A
)");
  EXPECT_THAT(
      FirstTwoLines(run),
      ElementsAre("\t1, TAPERED,   VAR,    CC,    SR,     1,     1,  USER",
                  "\t\t  0.3,    0,    0,    0,    0,    0,  0.3,    0,    0,    0,    0,    0"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(TaperedSections, SegmentWithoutNumbersIsAnEndAndNotAStart) {
  const ConversionRun alone = ConvertHaunch(R"(
   SectionName=HAUNCH   StartSect=SHALLOW   EndSect=DEEP
)");
  EXPECT_EQ(FirstTwoLines(alone).front(), kDropped);
  EXPECT_THAT(alone.Messages, ElementsAre("IDS_S2KV8_SECT_Not_Trans"));

  const ConversionRun withStart = ConvertHaunch(R"(
   SectionName=HAUNCH   StartSect=ROUND   EndSect=DEEP
   SectionName=HAUNCH   NumSegments=2   SegmentNum=1   StartSect=SHALLOW   EndSect=ROUND
)");
  EXPECT_EQ(FirstTwoLines(withStart).back(),
            "\t\t  0.3,  0.2,    0,    0,    0,    0,  0.6, 0.25,    0,    0,    0,    0");
}

// ---- Sections that have no two ends ----

TEST(TaperedSections, FileWithoutSegmentsGivesADefaultSectionOfTheName) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=HAUNCH   Shape=Nonprismatic   t3=0.6   Area=0.1
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, DBUSER, HAUNCH,    CC,    SB, 2,     0,     0,     0,     0,     0,     0"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

struct LostEnd {
  const char* What;
  const char* Segment;
  const char* Message;  // besides the one for the shapes that the target does not have
};

TEST(TaperedSections, SectionThatLacksAnEndIsDropped) {
  constexpr const char* kStart = "IDS_S2KV8_SECT_SSEC_Not_Define";
  constexpr const char* kEnd = "IDS_S2KV8_SECT_ESEC_Not_Define";
  const std::vector<LostEnd> cases = {
      {"no segment of the name",
       "SectionName=OTHER   NumSegments=1   SegmentNum=1   StartSect=SHALLOW   EndSect=DEEP",
       kStart},
      {"neither end known",
       "SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=GONE   EndSect=GONE", kStart},
      {"start unknown, end of a shape without a code",
       "SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=GONE   EndSect=CELLS1",
       kStart},
      {"start unknown, end known",
       "SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=GONE   EndSect=DEEP",
       nullptr},
      {"start known, end unknown",
       "SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=SHALLOW   EndSect=GONE",
       nullptr},
      {"start of a shape without a code, end unknown",
       "SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=CELLS1   EndSect=GONE", kEnd},
      {"start itself nonprismatic, end unknown",
       "SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=HAUNCH   EndSect=GONE", kEnd},
      {"two shapes",
       "SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=SHALLOW   EndSect=ROUND",
       nullptr},
      {"one end of a shape without a code",
       "SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=CELLS1   EndSect=DEEP",
       nullptr}};
  for (const auto& [what, segment, message] : cases) {
    SCOPED_TRACE(what);
    const ConversionRun run = ConvertHaunch("\n   " + std::string(segment) + "\n");
    EXPECT_EQ(FirstTwoLines(run).front(), kDropped);
    std::vector<std::string> messages = {"IDS_S2KV8_SECT_Not_Trans"};
    if (message != nullptr) {
      messages.emplace_back(message);
    }
    EXPECT_EQ(run.Messages, messages);
  }
}

TEST(TaperedSections, TwoEndsOfShapesWithoutACodeAreKeptWithAnEmptyShape) {
  const ConversionRun run = ConvertHaunch(R"(
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=CELLS1   EndSect=CELLS2
)");
  EXPECT_THAT(
      FirstTwoLines(run),
      ElementsAre("\t1, TAPERED, HAUNCH,    CC,      ,     1,     1,  USER",
                  "\t\t  0.7,    0,    0,    0,    0,    0,  0.8,    0,    0,    0,    0,    0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SECT_Not_Trans"));
}

TEST(TaperedSections, FramesOfADroppedSectionKeepItsNumber) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=R   Shape=Rectangular   t3=0.3
   SectionName=H   Shape="I/Wide Flange"   t3=0.6
   SectionName=VAR   Shape=Nonprismatic

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=VAR   NumSegments=1   SegmentNum=1   StartSect=R   EndSect=H

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=VAR
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     0,     3,     1,     2,     0"));
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE,     R,    CC,    SB, BUILT,   0.3,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther,
          "\t2, VALUE,     H,    CC,     H, BUILT,   0.6,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(TaperedSections, AllFourMessagesComeInTheirOrder) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Shape=Rectangular   t3=0.3
   SectionName=NOEND   Shape=Nonprismatic
   SectionName=NOSTART   Shape=Nonprismatic
   SectionName=CELLS   Shape="SD Section"

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=NOEND   NumSegments=1   SegmentNum=1   StartSect=CELLS   EndSect=GONE
   SectionName=NOSTART   NumSegments=2   SegmentNum=1   StartSect=GONE   EndSect=BEAM
   SectionName=NOSTART   NumSegments=2   SegmentNum=2   StartSect=BEAM   EndSect=GONE
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_SECT_Not_Trans", "IDS_S2KV8_SECT_TAPP_Not_Convert",
                          "IDS_S2KV8_SECT_SSEC_Not_Define", "IDS_S2KV8_SECT_ESEC_Not_Define"));
}

TEST(TaperedSections, MessagesAreSilentWithoutSections) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=NOSTART   Shape=Nonprismatic

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=NOSTART   NumSegments=2   SegmentNum=1   StartSect=GONE   EndSect=GONE
)");
  EXPECT_EQ(run.Section("*SECTION"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

// ---- Form that no conversion produces ----

TEST(TaperedSections, FormOfValuesWritesThreeLinesForEachEnd) {
  WriterRun run;
  run.Target.Add(1, s2k2ngt::T_NGT_SECT_D{.TYPE = s2k2ngt::SectionType::Tapered,
                                          .SNAME = "HAUNCH",
                                          .OFFSET = "CT",
                                          .SHAPE = "H",
                                          .I = {.D = {0.6, 0.3, 0.01, 0.02, 0.25, 0.015},
                                                .AREA = 0.0175,
                                                .ASy = 0.006,
                                                .ASz = 0.009,
                                                .Ixx = 0.000002,
                                                .Iyy = 0.0011,
                                                .Izz = 0.00009},
                                          .J = {.D = {1.2, 0.4, 0.02, 0.03, 0.35, 0.025},
                                                .AREA = 0.0425,
                                                .ASy = 0.024,
                                                .ASz = 0.017,
                                                .Ixx = 0.00001,
                                                .Iyy = 0.01,
                                                .Izz = 0.0003},
                                          .iyVAR = 2,
                                          .izVAR = 3,
                                          .STYPE = "VALUE"});
  const std::string written = run.Write(s2k2ngt::WriteSections);
  EXPECT_THAT(written, StartsWith("*SECTION    ; Section\n\n; iSEC"));
  EXPECT_EQ(written.substr(written.find('\t')),
            "\t1, TAPERED, HAUNCH,    CT,     H,     2,     3, VALUE\n"
            "\t\t  0.6,  0.3, 0.01, 0.02, 0.25,0.015\n"
            "\t\t0.0175, 0.006, 0.009, 2e-06, 0.0011, 9e-05\n"
            "\t\t0,     0,     0,     0,     0,     0,     0,     0,     0,     0\n"
            "\t\t  1.2,  0.4, 0.02, 0.03, 0.35,0.025\n"
            "\t\t0.0425, 0.024, 0.017, 1e-05,  0.01, 0.0003\n"
            "\t\t0,     0,     0,     0,     0,     0,     0,     0,     0,     0\n"
            "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

}  // namespace
