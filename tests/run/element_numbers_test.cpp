#include "support/conversion_run.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

/// The lines of frames and areas.
std::vector<std::string> FrameAndAreaLines(const ConversionRun& run) {
  std::vector<std::string> lines = run.Lines("*ELEMENT");
  std::erase_if(
      lines, [](const std::string& line) { return line.find(", SOLID, ") != std::string::npos; });
  return lines;
}

// Labels that are numbers

TEST(ElementNumbers, LabelsOfDigitsAreTheNumbers) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=10   JointI=2   JointJ=3
   Frame=2   JointI=3   JointJ=4

TABLE:  "CONNECTIVITY - AREA"
   Area=7   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0",
                          "\t10,  BEAM,     0,     0,     2,     3,     0",
                          "\t2,  BEAM,     0,     0,     3,     4,     0",
                          "\t7,      ,     1,     1,     1,     2,     4,     3,     1"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(ElementNumbers, LabelsOfDigitsAreReadAsDecimalNumbers) {
  struct Case {
    const char* Frame;
    const char* Number;
  };
  const Case cases[] = {{"Frame=007   ", "7"},
                        {"Frame=0   ", "0"},
                        {"Frame=123456789   ", "123456789"},
                        {"Frame=99999999999   ", "2147483647"},
                        {"Frame=\"12\"   ", "12"},
                        {"", "0"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Frame);
    const ConversionRun run = Convert(std::string("TABLE:  \"CONNECTIVITY - FRAME\"\n   ") +
                                      c.Frame + "JointI=1   JointJ=2\n");
    EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(std::string("\t") + c.Number +
                                                   ",  BEAM,     0,     0,     1,     2,     0"));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
  }
}

TEST(ElementNumbers, FramesOfOneLabelKeepTheirNumber) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=4   JointI=1   JointJ=2
   Frame=4   JointI=2   JointJ=3
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t4,  BEAM,     0,     0,     1,     2,     0",
                                                 "\t4,  BEAM,     0,     0,     2,     3,     0"));
}

// Labels with other characters

TEST(ElementNumbers, OneFrameLabelWithALetterRenumbersAllByPosition) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=30   JointI=1   JointJ=2
   Frame=B1   JointI=2   JointJ=3
   Frame=10   JointI=3   JointJ=4

TABLE:  "CONNECTIVITY - AREA"
   Area=7   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=8   NumJoints=4   Joint1=5   Joint2=6   Joint3=7   Joint4=8
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=30",
                          "\t2,  BEAM,     0,     0,     2,     3,     0\t\t;Frame=B1",
                          "\t3,  BEAM,     0,     0,     3,     4,     0\t\t;Frame=10",
                          "\t4,      ,     1,     1,     1,     2,     4,     3,     1\t;Plate=7",
                          "\t5,      ,     1,     1,     5,     6,     8,     7,     1\t;Plate=8"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_ELEM_Renumbering", "IDS_S2KV8_FRAM_LclAx_Not_Convert",
                          "IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(ElementNumbers, OneAreaLabelWithALetterRenumbersTheFramesToo) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=30   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=W1   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
)");
  EXPECT_THAT(
      run.Lines("*ELEMENT"),
      ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=30",
                  "\t2,      ,     1,     1,     1,     2,     4,     3,     1\t;Plate=W1"));
  EXPECT_THAT(run.Messages, Contains("IDS_S2KV8_ELEM_Renumbering").Times(1));
}

TEST(ElementNumbers, AnyCharacterThatIsNotADigitRenumbers) {
  for (const char* label : {"-4", "+4", "4.0", "4A", "A4", "4 5", "4%d", "T\xC3\xBCr"}) {
    SCOPED_TRACE(label);
    const ConversionRun run = Convert(std::string("TABLE:  \"CONNECTIVITY - FRAME\"\n   Frame=") +
                                      label + "   JointI=1   JointJ=2\n");
    EXPECT_THAT(run.Lines("*ELEMENT"),
                ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=" +
                            std::string(label)));
    EXPECT_THAT(run.Messages,
                ElementsAre("IDS_S2KV8_ELEM_Renumbering", "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
  }
}

TEST(ElementNumbers, LabelThatASecondTableWritesOverDoesNotRenumber) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=B1   JointI=1   JointJ=2
   Frame=5   JointI=2   JointJ=3

TABLE:  "CONNECTIVITY - FRAME"
   Frame=6   JointI=1   JointJ=2
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t6,  BEAM,     0,     0,     1,     2,     0",
                                                 "\t5,  BEAM,     0,     0,     2,     3,     0"));
}

TEST(ElementNumbers, JointLabelsDoNotRenumberElements) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   CoordType=Cartesian   XorR=0   Y=0   Z=0

TABLE:  "CONNECTIVITY - FRAME"
   Frame=5   JointI=A   JointJ=A
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t5,  BEAM,     0,     0,     1,     1,     0"));
}

// Families that share a label

TEST(CollidingLabels, FrameAndAreaRenumberWithCommentsAndWithoutTheMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=6   JointI=1   JointJ=2
   Frame=7   JointI=2   JointJ=3

TABLE:  "CONNECTIVITY - AREA"
   Area=5   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=7   NumJoints=4   Joint1=5   Joint2=6   Joint3=7   Joint4=8
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=6",
                          "\t2,  BEAM,     0,     0,     2,     3,     0\t\t;Frame=7",
                          "\t3,      ,     1,     1,     1,     2,     4,     3,     1\t;Plate=5",
                          "\t4,      ,     1,     1,     5,     6,     8,     7,     1\t;Plate=7"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(CollidingLabels, FrameAndSolidRenumber) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=6   JointI=1   JointJ=2
   Frame=7   JointI=2   JointJ=3

TABLE:  "CONNECTIVITY - SOLID"
   Solid=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
)");
  EXPECT_THAT(FrameAndAreaLines(run),
              ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=6",
                          "\t2,  BEAM,     0,     0,     2,     3,     0\t\t;Frame=7"));
  EXPECT_THAT(run.Messages, Not(Contains("IDS_S2KV8_ELEM_Renumbering")));
}

TEST(CollidingLabels, AreaAndSolidRenumberInAModelWithoutFrames) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=6   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=7   NumJoints=4   Joint1=5   Joint2=6   Joint3=7   Joint4=8

TABLE:  "CONNECTIVITY - SOLID"
   Solid=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
)");
  EXPECT_THAT(FrameAndAreaLines(run),
              ElementsAre("\t1,      ,     1,     1,     1,     2,     4,     3,     1\t;Plate=6",
                          "\t2,      ,     1,     1,     5,     6,     8,     7,     1\t;Plate=7"));
  EXPECT_THAT(run.Messages, Not(Contains("IDS_S2KV8_ELEM_Renumbering")));
}

TEST(CollidingLabels, AreaAndSolidAreNotComparedInAModelWithFrames) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=6   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=7   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "CONNECTIVITY - SOLID"
   Solid=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
)");
  EXPECT_THAT(FrameAndAreaLines(run),
              ElementsAre("\t6,  BEAM,     0,     0,     1,     2,     0",
                          "\t7,      ,     1,     1,     1,     2,     4,     3,     1"));
  EXPECT_THAT(run.Messages, Not(Contains("IDS_S2KV8_ELEM_Renumbering")));
}

TEST(CollidingLabels, OneNumberInTwoSpellingsIsNoCollision) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=7   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=07   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t7,  BEAM,     0,     0,     1,     2,     0",
                          "\t7,      ,     1,     1,     1,     2,     4,     3,     1"));
}

TEST(CollidingLabels, LettersAndACollisionShowTheMessageOnce) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=B1   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=B1   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
)");
  EXPECT_THAT(
      run.Lines("*ELEMENT"),
      ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=B1",
                  "\t2,      ,     1,     1,     1,     2,     4,     3,     1\t;Plate=B1"));
  EXPECT_THAT(run.Messages, Contains("IDS_S2KV8_ELEM_Renumbering").Times(1));
}

// References of later commands

constexpr const char* kRenumberedFrames = R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=B1   JointI=1   JointJ=2
   Frame=B2   JointI=2   JointJ=3
   Frame=B3   JointI=3   JointJ=4

TABLE:  "CONNECTIVITY - AREA"
   Area=W1   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4

)";

TEST(ElementReferences, KeepTheLabelsNumberWhenNothingIsRenumbered) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=5   JointI=1   JointJ=2

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=B1   CoordSys=GLOBAL   JtOffsetXI=3
   Frame=99   CoordSys=GLOBAL   JtOffsetXI=2
   Frame=005   CoordSys=GLOBAL   JtOffsetXI=1

TABLE:  "FRAME RELEASE ASSIGNMENTS 1 - GENERAL"
   Frame=5   PI=Yes
   Frame=12B   PI=Yes
   Frame=B12   PI=Yes
)");
  // The offsets are walked, and so written, in the order 3, 2, 1.
  EXPECT_THAT(run.Lines("*OFFSET"),
              ElementsAre("\t5, GLOBAL,     1,     0,     0,     0,     0,     0,",
                          "\t99, GLOBAL,     2,     0,     0,     0,     0,     0,",
                          "\t0, GLOBAL,     3,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t5, \t100000,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,",
                          "\t12, \t100000,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,",
                          "\t0, \t100000,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
  // Labels of references alone renumber nothing.
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(ElementReferences, TakeTheNewNumberWhenRenumbered) {
  const ConversionRun run = Convert(std::string(kRenumberedFrames) + R"(
TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=B3   CoordSys=GLOBAL   JtOffsetXI=3
   Frame=B2   CoordSys=GLOBAL   JtOffsetXI=2

TABLE:  "FRAME RELEASE ASSIGNMENTS 1 - GENERAL"
   Frame=B3   PI=Yes
)");
  EXPECT_THAT(run.Lines("*OFFSET"),
              ElementsAre("\t2, GLOBAL,     2,     0,     0,     0,     0,     0,",
                          "\t3, GLOBAL,     3,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t3, \t100000,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
}

TEST(ElementReferences, TakeTheNewNumberOfTheFrameWhenAnAreaHasItsLabel) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=6   JointI=1   JointJ=2
   Frame=7   JointI=2   JointJ=3

TABLE:  "CONNECTIVITY - AREA"
   Area=7   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "FRAME RELEASE ASSIGNMENTS 1 - GENERAL"
   Frame=7   PI=Yes
)");
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t2, \t100000,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
}

TEST(ElementReferences, ToAnUnknownElementPrintTheNumberOfTheRowBefore) {
  const ConversionRun run = Convert(std::string(kRenumberedFrames) + R"(
TABLE:  "FRAME RELEASE ASSIGNMENTS 1 - GENERAL"
   Frame=B9   PI=Yes
   Frame=B3   PI=Yes
   Frame=b2   PI=Yes
   Frame=W1   PI=Yes
   Frame=B1   PI=Yes
   Frame=2   PI=Yes
)");
  // A frame is not known by the label of another case, of an area, or by its new number.
  const char* const end = "\t\t000000,     0,     0,     0,     0,     0,     0,";
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t0, \t100000,     0,     0,     0,     0,     0,     0", end,
                          "\t3, \t100000,     0,     0,     0,     0,     0,     0", end,
                          "\t3, \t100000,     0,     0,     0,     0,     0,     0", end,
                          "\t3, \t100000,     0,     0,     0,     0,     0,     0", end,
                          "\t1, \t100000,     0,     0,     0,     0,     0,     0", end,
                          "\t1, \t100000,     0,     0,     0,     0,     0,     0", end));
  EXPECT_EQ(run.Result, 0);
}

TEST(ElementReferences, NumberOfTheRowBeforeStartsAtZeroInEachCommand) {
  const ConversionRun run = Convert(std::string(kRenumberedFrames) + R"(
TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=B9   CoordSys=GLOBAL   JtOffsetXI=2
   Frame=B3   CoordSys=GLOBAL   JtOffsetXI=1

TABLE:  "FRAME RELEASE ASSIGNMENTS 1 - GENERAL"
   Frame=B9   PI=Yes
)");
  EXPECT_THAT(run.Lines("*OFFSET"),
              ElementsAre("\t3, GLOBAL,     1,     0,     0,     0,     0,     0,",
                          "\t3, GLOBAL,     2,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t0, \t100000,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
}

TEST(ElementReferences, OffsetThatPrintsNoLineCountsAsTheRowBefore) {
  // The offsets are walked, and so written, in the order 3, 2, 1.
  const ConversionRun run = Convert(std::string(kRenumberedFrames) + R"(
TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=B9   CoordSys=GLOBAL   JtOffsetXI=3
   Frame=B2   CoordSys=Ramp   JtOffsetXI=2
   Frame=B3   CoordSys=GLOBAL   JtOffsetXI=1
)");
  EXPECT_THAT(run.Lines("*OFFSET"),
              ElementsAre("\t3, GLOBAL,     1,     0,     0,     0,     0,     0,",
                          "\t2, GLOBAL,     3,     0,     0,     0,     0,     0,"));
}

TEST(ElementReferences, ToALabelOfTwoFramesTakeTheOneThatTheWalkMeetsFirst) {
  // Numbers 1, 2, 3 are walked in the order 3, 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=B1   JointI=1   JointJ=2
   Frame=B2   JointI=2   JointJ=3
   Frame=B1   JointI=3   JointJ=4

TABLE:  "FRAME RELEASE ASSIGNMENTS 1 - GENERAL"
   Frame=B1   PI=Yes
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=B1",
                          "\t2,  BEAM,     0,     0,     2,     3,     0\t\t;Frame=B2",
                          "\t3,  BEAM,     0,     0,     3,     4,     0\t\t;Frame=B1"));
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t3, \t100000,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
}

TEST(ElementNumbers, OneSolidLabelWithALetterRenumbersTheFrames) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=7   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - SOLID"
   Solid=S1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_ELEM_Renumbering", "IDS_S2KV8_FRAM_LclAx_Not_Convert",
                          "IDS_S2KV8_SOLD_LclAx_Not_Convert"));
  EXPECT_EQ(run.Lines("*ELEMENT").at(0),
            "\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=7");
}

}  // namespace
