#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Rows 1, 2, 3 of frames and areas are walked in the order 3, 2, 1, and the lines follow it.

/// Frames 1 to 3 of a section 2 deep (t3) and 4 wide (t2).
const std::string kBeams = R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B2X4   Material=CONC   Shape=Rectangular   t3=2   t2=4

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=B2X4
   Frame=2   AnalSect=B2X4
   Frame=3   AnalSect=B2X4

)";

/// Areas 1 to 3 of a membrane thickness of 2 and a bending thickness of 7.
const std::string kSlabs = R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   Material=CONC   AreaType=Shell   Type=Shell-Thick   Thickness=2   BendThick=7

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB
   Area=2   Section=SLAB
   Area=3   Section=SLAB

)";

TEST(FrameGradients, WholeCommandOfALoadCase) {
  const ConversionRun run = Convert(StaticCases({"SUN", "NIGHT"}) + kBeams + R"(
TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=9   TempGrad3=0   JtPattern=None
)");
  EXPECT_EQ(run.LoadBlock("SUN", "*THERGRAD"),
            "*USE-STLD,        SUN\n"
            "\n"
            "*THERGRAD    ; Temperature Gradient\n"
            "; ELEM_LIST, iETYP, TZ, bUSEHZ, HZ, TY, bUSEHY, HY, GROUP\n"
            "\t1,     1,    10,   YES,     0,     0,    NO,     0,\n"
            ";End of data for load case [SUN]\n"
            "\n");
  EXPECT_EQ(run.LoadBlock("NIGHT", "*THERGRAD"), "");
  EXPECT_EQ(run.LoadBlock("SUN", "*ELTEMPER"), "");
  EXPECT_EQ(run.LoadBlock("SUN", "*NDTEMPER"), "");
}

TEST(FrameGradients, FiveNinthsWhateverTheUnit) {
  for (const char* units : {"KN, m, C", "Kip, in, F", "KN, m, K"}) {
    SCOPED_TRACE(units);
    const ConversionRun run =
        Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"" + std::string(units) + "\"\n\n" +
                StaticCases({"SUN"}) + kBeams + R"(
TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=9   JtPattern=None
)");
    EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
                ElementsAre("\t1,     1,    10,   YES,     0,     0,    NO,     0,"));
  }
}

TEST(FrameGradients, Gradient2GoesByT3AndKeepsItsSign) {
  const ConversionRun run = Convert(StaticCases({"SUN"}) + kBeams + R"(
TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=-18   TempGrad3=90   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t1,     1,   -20,   YES,     0,     0,    NO,     0,"));
}

TEST(FrameGradients, Gradient3GoesByT2AndTurnsItsSign) {
  const ConversionRun run = Convert(StaticCases({"SUN"}) + R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=WIDE   Material=CONC   Shape=Rectangular   t3=5   t2=2

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=WIDE

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient3   TempGrad2=90   TempGrad3=9   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t1,     1,     0,    NO,     0,   -10,   YES,     0,"));
}

TEST(FrameGradients, WhatARowSetsStaysInTheRowsBehindIt) {
  // Rows 3, 2, 1 in this order. The load case of the row does not matter.
  const ConversionRun run = Convert(StaticCases({"SUN", "NIGHT"}) + kBeams + R"(
TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=36   JtPattern=None
   Frame=2   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
   Frame=3   LoadCase=NIGHT   Type=Gradient2   TempGrad2=9   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("NIGHT", "*THERGRAD"),
              ElementsAre("\t3,     1,    10,   YES,     0,     0,    NO,     0,"));
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t2,     1,    10,   YES,     0,   -20,   YES,     0,",
                          "\t1,     1,    40,   YES,     0,   -20,   YES,     0,"));
}

TEST(FrameGradients, UniformTemperatureBetweenThemClearsNothing) {
  const ConversionRun run = Convert(StaticCases({"SUN"}) + kBeams + R"(
TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
   Frame=2   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None
   Frame=3   LoadCase=SUN   Type=Gradient2   TempGrad2=9   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t3,     1,    10,   YES,     0,     0,    NO,     0,",
                          "\t1,     1,    10,   YES,     0,   -20,   YES,     0,"));
}

TEST(FrameGradients, SectionIsThatOfTheAssignmentThatNamesTheFrame) {
  // Of two assignments of a frame row 2 is walked first.
  const ConversionRun run = Convert(StaticCases({"SUN"}) + R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=ONE   Shape=Rectangular   t3=1   t2=9
   SectionName=TWO   Shape=Rectangular   t3=2   t2=9
   SectionName=TEN   Shape=Rectangular   t3=10   t2=9

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=2   AnalSect=ONE   DesignSect=TEN
   Frame=2   AnalSect=TWO   DesignSect=TEN
   Frame=1   AnalSect=TEN   DesignSect=ONE

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=9   JtPattern=None
   Frame=2   LoadCase=SUN   Type=Gradient2   TempGrad2=9   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t2,     1,    10,   YES,     0,     0,    NO,     0,",
                          "\t1,     1,    50,   YES,     0,     0,    NO,     0,"));
}

TEST(FrameGradients, SectionThatIsNotThereIsWithoutDepth) {
  // The gradients are written all the same. Zero turned around is minus zero.
  const ConversionRun run = Convert(StaticCases({"SUN", "NIGHT"}) + kBeams + R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=LOST

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
   Frame=9   LoadCase=NIGHT   Type=Gradient2   TempGrad2=9   JtPattern=None
   Frame=2   LoadCase=NIGHT   Type=Gradient2   TempGrad2=9   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("NIGHT", "*THERGRAD"),
              ElementsAre("\t2,     1,    10,   YES,     0,     0,    NO,     0,",
                          "\t9,     1,     0,   YES,     0,     0,    NO,     0,"));
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t1,     1,     0,   YES,     0,    -0,   YES,     0,"));
}

TEST(FrameGradients, PatternOfAGradientIsNotUsed) {
  const ConversionRun run = Convert(StaticCases({"SUN"}) + kBeams + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=HEAT   Value=3
   Joint=2   Pattern=HEAT   Value=3

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=9   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t1,     1,    10,   YES,     0,     0,    NO,     0,"));
  EXPECT_EQ(run.LoadBlock("SUN", "*NDTEMPER"), "");
}

TEST(AreaGradients, AnyTypeButTemperatureIsOne) {
  for (const char* type : {"Type=Gradient3", "Type=Gradient2", "Type=Gradient", "Type=temperature",
                           "Type=None", "Type=", ""}) {
    SCOPED_TRACE(type);
    const ConversionRun run =
        Convert(StaticCases({"SUN"}) + kSlabs +
                "TABLE:  \"AREA LOADS - TEMPERATURE\"\n"
                "   Area=1   LoadCase=SUN   Temp=30   TempGrad3=9   JtPattern=None   " +
                type + "\n");
    EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
                ElementsAre("\t1,     1,    10,   YES,     0,     0,    NO,     0,"));
    EXPECT_EQ(run.LoadBlock("SUN", "*ELTEMPER"), "");
  }
}

TEST(AreaGradients, TemperatureIsNone) {
  const ConversionRun run = Convert(StaticCases({"SUN"}) + kSlabs + R"(
TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Temperature   Temp=30   TempGrad3=9   JtPattern=None
)");
  EXPECT_EQ(run.LoadBlock("SUN", "*THERGRAD"), "");
}

TEST(AreaGradients, SignStaysAndTheUnitDoesNotMatter) {
  const ConversionRun run = Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"Kip, in, F\"\n\n" +
                                    StaticCases({"SUN"}) + kSlabs + R"(
TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Gradient3   TempGrad3=-9   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t1,     1,   -10,   YES,     0,     0,    NO,     0,"));
}

TEST(AreaGradients, SectionThatIsNotThereIsWithoutThickness) {
  // Area 9 has no assignment, area 1 one to a section that the model does not have.
  const ConversionRun run = Convert(StaticCases({"SUN"}) + kSlabs + R"(
TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=LOST

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
   Area=9   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
   Area=2   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t2,     1,    10,   YES,     0,     0,    NO,     0,",
                          "\t9,     1,     0,   YES,     0,     0,    NO,     0,",
                          "\t1,     1,     0,   YES,     0,     0,    NO,     0,"));
}

TEST(AreaGradients, ComeBehindThoseOfFramesAndBeginAfresh) {
  const ConversionRun run = Convert(StaticCases({"SUN"}) + kBeams + kSlabs + R"(
TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
   Area=2   LoadCase=SUN   Type=Gradient3   TempGrad3=18   JtPattern=None

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t1,     1,     0,    NO,     0,   -20,   YES,     0,",
                          "\t2,     1,    20,   YES,     0,     0,    NO,     0,",
                          "\t1,     1,    10,   YES,     0,     0,    NO,     0,"));
}

TEST(SolidTemperatures, TypeIsNotLookedAt) {
  const ConversionRun run = Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m, C\"\n\n" +
                                    StaticCases({"SUN"}) + R"(
TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=1   LoadCase=SUN   Type=Gradient3   Temp=30   TempGrad3=9   JtPattern=None
)");
  EXPECT_EQ(run.LoadBlock("SUN", "*THERGRAD"), "");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,    30,"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(TemperatureGradients, RenumberedElementsAreFoundInTheirFamilyOrTakeTheNumberBefore) {
  // Frame 8 is not there and comes first, area 9 is not there and comes behind frame 1.
  const ConversionRun run = Convert(StaticCases({"SUN", "NIGHT"}) + kBeams + kSlabs + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=2   JointI=1   JointJ=2
   Frame=1   JointI=2   JointJ=3

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=9   JtPattern=None
   Frame=8   LoadCase=SUN   Type=Gradient2   TempGrad2=9   JtPattern=None
   Frame=8   LoadCase=NIGHT   Type=Gradient2   TempGrad2=9   JtPattern=None

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
   Area=9   LoadCase=SUN   Type=Gradient3   TempGrad3=9   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*THERGRAD"),
              ElementsAre("\t0,     1,     0,   YES,     0,     0,    NO,     0,",
                          "\t2,     1,    10,   YES,     0,     0,    NO,     0,",
                          "\t2,     1,     0,   YES,     0,     0,    NO,     0,",
                          "\t3,     1,    10,   YES,     0,     0,    NO,     0,"));
  EXPECT_THAT(run.LoadLines("NIGHT", "*THERGRAD"),
              ElementsAre("\t0,     1,     0,   YES,     0,     0,    NO,     0,"));
}

}  // namespace
