#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Rows 1, 2, 3 of surface pressures are walked in the order 3, 2, 1, and the lines follow it.

/// Area 1 with the pattern POND at its joints, and the load case WATER.
const std::string kPond = StaticCases({"WATER"}) + R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0   Y=0   Z=0
   Joint=2   XorR=1   Y=0   Z=0
   Joint=3   XorR=0   Y=1   Z=0
   Joint=4   XorR=1   Y=1   Z=0

TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=POND   Value=0.1
   Joint=2   Pattern=POND   Value=0.2
   Joint=3   Pattern=POND   Value=0.3
   Joint=4   Pattern=POND   Value=0.4

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

)";

TEST(SurfacePressures, Face5KeepsTheSignAndFace6TurnsIt) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=5   Pressure=2   JtPattern=None
   Area=2   LoadCase=WATER   Face=6   Pressure=2   JtPattern=None
   Area=3   LoadCase=WATER   Face=6   Pressure=-2.5   JtPattern="None"
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t3, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,   2.5,"
                          "     0,     0,     0,     0,",
                          "\t2, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,    -2,"
                          "     0,     0,     0,     0,",
                          "\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,     2,"
                          "     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SurfacePressures, ZeroOnFace6IsMinusZero) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=6   Pressure=0   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,    -0,"
                          "     0,     0,     0,     0,"));
}

TEST(SurfacePressures, OtherFacesAreSkippedWithAMessage) {
  for (const char* face : {"1", "2", "3", "4", "7", "Bottom", "05", "5.0", ""}) {
    SCOPED_TRACE(face);
    const ConversionRun run = Convert(StaticCases({"WATER"}) +
                                      "TABLE:  \"AREA LOADS - SURFACE PRESSURE\"\n"
                                      "   Area=1   LoadCase=WATER   Face=" +
                                      face +
                                      "   Pressure=2   JtPattern=None\n"
                                      "   Area=2   LoadCase=WATER   Face=5   Pressure=4   "
                                      "JtPattern=None\n");
    EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
                ElementsAre("\t2, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,     4,"
                            "     0,     0,     0,     0,"));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLATE_SurfP_Not_Convert"));
  }
}

TEST(SurfacePressures, RowWithoutAFaceIsSkippedWithAMessage) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Pressure=2   JtPattern=None
   Area=2   LoadCase=WATER   Face=5   Pressure=4   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t2, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,     4,"
                          "     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLATE_SurfP_Not_Convert"));
}

TEST(SurfacePressures, OnlyPressuresOnEdgesGiveNeitherLinesNorAMessage) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=1   Pressure=2   JtPattern=None
   Area=1   LoadCase=WATER   Face=2   Pressure=2   JtPattern=None
)");
  EXPECT_EQ(run.LoadBlock("WATER", "*PRESSURE"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SurfacePressures, MessageOfEdgesComesOnceForEachLoadCaseAlsoForOneWithoutPressure) {
  const ConversionRun run = Convert(StaticCases({"WATER", "SOIL", "LIVE"}) + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=1   Pressure=2   JtPattern=None
   Area=1   LoadCase=WATER   Face=3   Pressure=2   JtPattern=None
   Area=1   LoadCase=SOIL   Face=5   Pressure=2   JtPattern=None
)");
  EXPECT_EQ(run.LoadBlock("WATER", "*PRESSURE"), "");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_PLATE_SurfP_Not_Convert", "IDS_S2KV8_PLATE_SurfP_Not_Convert",
                          "IDS_S2KV8_PLATE_SurfP_Not_Convert"));
}

TEST(SurfacePressures, MessageOfEdgesComesWithAUniformLoadAlone) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=WATER   CoordSys=GLOBAL   Dir=Z   UnifLoad=3

TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=4   Pressure=2   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     3,"
                          "     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLATE_SurfP_Not_Convert"));
}

TEST(SurfacePressures, MessageOfEdgesComesWithAUniformLoadThatIsNeverWritten) {
  // A uniform load in an unknown direction is a record all the same.
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "AREA LOADS - UNIFORM"
   Area=1   LoadCase=WATER   CoordSys=Local   Dir=1   UnifLoad=3

TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=4   Pressure=2   JtPattern=None
)");
  EXPECT_EQ(run.LoadBlock("WATER", "*PRESSURE"), "");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLATE_SurfP_Not_Convert"));
}

TEST(SurfacePressures, MessageOfEdgesStaysAwayWithoutALoadCase) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=1   Pressure=2   JtPattern=None
   Area=1   LoadCase=WATER   Face=5   Pressure=2   JtPattern=None
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SurfacePressures, LinesComeBehindThoseOfUniformLoads) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=5   Pressure=1   JtPattern=None
   Area=2   LoadCase=WATER   Face=5   Pressure=2   JtPattern=None
   Area=3   LoadCase=WATER   Face=1   Pressure=3   JtPattern=None

TABLE:  "AREA LOADS - UNIFORM"
   Area=8   LoadCase=WATER   CoordSys=GLOBAL   Dir=Z   UnifLoad=8
   Area=9   LoadCase=WATER   CoordSys=GLOBAL   Dir=Z   UnifLoad=9
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t9, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     9,"
                          "     0,     0,     0,     0,",
                          "\t8, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,     8,"
                          "     0,     0,     0,     0,",
                          "\t2, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,     2,"
                          "     0,     0,     0,     0,",
                          "\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,     1,"
                          "     0,     0,     0,     0,"));
}

TEST(SurfacePressures, RenumberedAreasComeBehindTheFrames) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=5   Pressure=2   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t2, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,     2,"
                          "     0,     0,     0,     0,"));
}

TEST(PressurePattern, CornersStandBesideThePressureAndTheLastTwoChangePlaces) {
  const ConversionRun run = Convert(kPond + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=5   Pressure=10   JtPattern=POND
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,    10,"
                          "     1,     2,     4,     3,"));
}

TEST(PressurePattern, CornersOfFace6TurnTheirSigns) {
  const ConversionRun run = Convert(kPond + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=6   Pressure=10   JtPattern=POND
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,   -10,"
                          "    -1,    -2,    -4,    -3,"));
}

TEST(PressurePattern, NoneLeavesTheCornersZero) {
  const ConversionRun run = Convert(kPond + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=6   Pressure=10   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,   -10,"
                          "     0,     0,     0,     0,"));
}

TEST(PressurePattern, MissingAndUnknownPatternsAreZeroAtEachCorner) {
  // A negative pressure times zero is minus zero: the pattern has been asked.
  for (const char* pattern :
       {"", "   JtPattern=NONE", "   JtPattern=none", "   JtPattern=LAKE", "   JtPattern=Pond"}) {
    SCOPED_TRACE(pattern);
    const ConversionRun run = Convert(kPond +
                                      "TABLE:  \"AREA LOADS - SURFACE PRESSURE\"\n"
                                      "   Area=1   LoadCase=WATER   Face=6   Pressure=10" +
                                      pattern + "\n");
    EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
                ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,   -10,"
                            "    -0,    -0,    -0,    -0,"));
  }
}

TEST(PressurePattern, MissingPatternIsThePatternWithoutAName) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Value=0.5

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=5   Pressure=10
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,    10,"
                          "     5,     0,     0,     0,"));
}

TEST(PressurePattern, WithoutAnyPatternTheCornersAreZero) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=5   Pressure=10   JtPattern=POND
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,    10,"
                          "     0,     0,     0,     0,"));
}

TEST(PressurePattern, AreaThatIsNotThereKeepsZeroCorners) {
  // Plain zeros, also for a pressure that is negative.
  const ConversionRun run = Convert(kPond + R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=2   LoadCase=WATER   Face=6   Pressure=10   JtPattern=POND
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t2, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,   -10,"
                          "     0,     0,     0,     0,"));
}

TEST(PressurePattern, TriangleOfThreeJointsHasZeroInTheThirdPlace) {
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=POND   Value=1
   Joint=2   Pattern=POND   Value=2
   Joint=3   Pattern=POND   Value=3

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3

TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=5   Pressure=10   JtPattern=POND
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,    10,"
                          "    10,    20,     0,    30,"));
}

TEST(PressurePattern, TriangleWithRepeatedLastJointHasItsPressureTwice) {
  const ConversionRun run = Convert(kPond + R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=3

TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=5   Pressure=10   JtPattern=POND
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,    10,"
                          "     1,     2,     3,     3,"));
}

TEST(PressurePattern, ValueIsTheFirstInTheWalkOfThatJointAndPattern) {
  // Rows 1 to 6 of pattern values are walked in the order 5, 2, 4, 1, 6, 3.
  const ConversionRun run = Convert(StaticCases({"WATER"}) + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=POND   Value=0.1
   Joint=2   Pattern=POND   Value=0.2
   Joint=1   Pattern=POND   Value=0.3
   Joint=2   Pattern=LAKE   Value=0.4
   Joint=1   Pattern=LAKE   Value=0.5
   Joint=2   Pattern=POND   Value=0.6

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=5   Pressure=10   JtPattern=POND
)");
  EXPECT_THAT(run.LoadLines("WATER", "*PRESSURE"),
              ElementsAre("\t1, PRES, PLATE,  FACE,    LZ,     0,     0,     0,    NO,    10,"
                          "     1,     2,     0,     0,"));
}

}  // namespace
