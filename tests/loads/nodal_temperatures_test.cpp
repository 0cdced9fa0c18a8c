#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kCelsius = "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m, C\"\n\n";
const std::string kFahrenheit = "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"Kip, in, F\"\n\n";

// Nodal temperatures have the keys 0, 2, 3, 4 and so on in the order in which their joints are met.
// They are written in the order of the keys 0, 8, 5, 2, 7, 4, 6, 3.

/// The pattern HEAT, 1 at the joints 1 to 8.
const std::string kHeat = R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=HEAT   Value=1
   Joint=2   Pattern=HEAT   Value=1
   Joint=3   Pattern=HEAT   Value=1
   Joint=4   Pattern=HEAT   Value=1
   Joint=5   Pattern=HEAT   Value=1
   Joint=6   Pattern=HEAT   Value=1
   Joint=7   Pattern=HEAT   Value=1
   Joint=8   Pattern=HEAT   Value=1

)";

TEST(NodalTemperatures, FrameWarmAtOneEndHasOneLineAndHalfTheTemperatureItself) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN", "NIGHT"}) + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=HEAT   Value=1
   Joint=2   Pattern=HEAT   Value=0

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=HEAT
)");
  EXPECT_EQ(run.LoadBlock("SUN", "*NDTEMPER"),
            "*USE-STLD,        SUN\n"
            "\n"
            "*NDTEMPER    ; Nodal Temperatures\n"
            "; NODE_LIST, TEMPER, GROUP\n"
            "\t1,    10,\n"
            ";End of data for load case [SUN]\n"
            "\n");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,     5,"));
  EXPECT_EQ(run.LoadBlock("NIGHT", "*NDTEMPER"), "");
}

TEST(NodalTemperatures, FramesThatShareAJointAddUpThere) {
  // Frame 2 comes first: joint 2 has the key 0, joint 3 the key 2, joint 1 the key 3.
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=HEAT
   Frame=2   LoadCase=SUN   Type=Temperature   Temp=7   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"),
              ElementsAre("\t2,    17,", "\t3,     7,", "\t1,    10,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t2,     7,", "\t1,    10,"));
}

TEST(NodalTemperatures, LoadCasesDoNotAddUpAndShareTheirKeys) {
  // The load of NIGHT comes first, with the keys 0 and 2; that of SUN has the keys 3 and 4, of
  // which 4 is walked first.
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN", "NIGHT"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=HEAT
   Frame=1   LoadCase=NIGHT   Type=Temperature   Temp=-5   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("NIGHT", "*NDTEMPER"), ElementsAre("\t1,    -5,", "\t2,    -5,"));
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"), ElementsAre("\t2,    10,", "\t1,    10,"));
}

TEST(NodalTemperatures, FramesAndAreasAddUpAlsoByDifferentPatterns) {
  // Keys: joint 1 has 0, joint 2 has 2, then of the area joint 3 has 3 and joint 4 has 4.
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=HEAT   Value=1
   Joint=2   Pattern=HEAT   Value=0.5
   Joint=1   Pattern=GLOW   Value=0.1
   Joint=2   Pattern=GLOW   Value=0.2
   Joint=3   Pattern=GLOW   Value=0.3
   Joint=4   Pattern=GLOW   Value=0.4

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=11   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=HEAT

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=11   LoadCase=SUN   Type=Temperature   Temp=20   JtPattern=GLOW
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"),
              ElementsAre("\t1,    12,", "\t2,     9,", "\t4,     8,", "\t3,     6,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,   7.5,", "\t11,     5,"));
}

TEST(NodalTemperatures, JointTwiceInAnElementAddsUp) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=3

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Temperature   Temp=8   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"),
              ElementsAre("\t1,     8,", "\t2,     8,", "\t3,    16,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,     8,"));
}

TEST(NodalTemperatures, SumOfZeroIsNotPrintedButTheFrameStands) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=HEAT
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=-10   JtPattern=HEAT
)");
  EXPECT_EQ(run.LoadBlock("SUN", "*NDTEMPER"),
            "*USE-STLD,        SUN\n"
            "\n"
            "*NDTEMPER    ; Nodal Temperatures\n"
            "; NODE_LIST, TEMPER, GROUP\n"
            ";End of data for load case [SUN]\n"
            "\n");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,   -10,", "\t1,    10,"));
}

TEST(NodalTemperatures, AreaTakesAQuarterOfItsFourJoints) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=HEAT   Value=1
   Joint=2   Pattern=COLD   Value=1
   Joint=3   Pattern=HEAT   Value=0.5
   Joint=4   Pattern=HEAT   Value=0.25

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Temperature   Temp=8   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"),
              ElementsAre("\t1,     8,", "\t4,     2,", "\t3,     4,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,   3.5,"));
}

TEST(NodalTemperatures, TriangleCountsAFourthJointWithoutALabel) {
  // It is at 0 degrees of the unit, less the reference.
  struct Row {
    std::string Units;
    const char* Load;
    std::vector<std::string> Nodes;
    const char* Element;
  };
  for (const Row& row : {
           Row{kCelsius, "Temp=8", {"\t1,     8,", "\t2,     8,", "\t3,     8,"}, "\t1,     6,"},
           Row{kFahrenheit,
               "Temp=50",
               {"\t1,    10,", "\t2,    10,", "\t0, -17.7778,", "\t3,    10,"},
               "\t1, 3.05556,"},
       }) {
    SCOPED_TRACE(row.Load);
    const ConversionRun run = Convert(row.Units + StaticCases({"SUN"}) + kHeat +
                                      "TABLE:  \"CONNECTIVITY - AREA\"\n"
                                      "   Area=1   Joint1=1   Joint2=2   Joint3=3\n\n"
                                      "TABLE:  \"AREA LOADS - TEMPERATURE\"\n"
                                      "   Area=1   LoadCase=SUN   Type=Temperature   " +
                                      row.Load + "   JtPattern=HEAT\n");
    EXPECT_EQ(run.LoadLines("SUN", "*NDTEMPER"), row.Nodes);
    EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre(row.Element));
  }
}

TEST(NodalTemperatures, ReferenceIsTakenOffAtEachJoint) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3

TABLE:  "AREA REFERENCE ASSIGNMENTS"
   Area=1   Temp=5

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Temperature   Temp=8   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"),
              ElementsAre("\t1,     3,", "\t2,     3,", "\t0,    -5,", "\t3,     3,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,     1,"));
}

TEST(NodalTemperatures, SolidTakesAnEighthAndItsJointsComeInTheWalkOfTheirKeys) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=HEAT   Value=1
   Joint=2   Pattern=HEAT   Value=2
   Joint=3   Pattern=HEAT   Value=3
   Joint=4   Pattern=HEAT   Value=4
   Joint=5   Pattern=HEAT   Value=5
   Joint=6   Pattern=HEAT   Value=6
   Joint=7   Pattern=HEAT   Value=7
   Joint=8   Pattern=HEAT   Value=8

TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8

TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=1   LoadCase=SUN   Temp=10   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"),
              ElementsAre("\t1,    10,", "\t8,    80,", "\t5,    50,", "\t2,    20,", "\t7,    70,",
                          "\t4,    40,", "\t6,    60,", "\t3,    30,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,    45,"));
}

TEST(NodalTemperatures, WedgeAddsUpItsTwoJointsWithoutALabel) {
  const ConversionRun run = Convert(kFahrenheit + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6

TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=1   LoadCase=SUN   Temp=50   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"),
              ElementsAre("\t1,    10,", "\t5,    10,", "\t2,    10,", "\t0, -35.5556,",
                          "\t4,    10,", "\t6,    10,", "\t3,    10,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1, 3.05556,"));
}

TEST(NodalTemperatures, PatternScalesTheFahrenheitBeforeItBecomesCelsius) {
  const ConversionRun run = Convert(kFahrenheit + StaticCases({"SUN"}) + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=HEAT   Value=0.5
   Joint=2   Pattern=HEAT   Value=1

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=1   Temp=41

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=122   JtPattern=HEAT
)");
  // 61 F is 16.1111 C and 122 F is 50 C; the reference of 41 F is 5 C
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"), ElementsAre("\t1, 11.1111,", "\t2,    45,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1, 28.0556,"));
}

TEST(NodalTemperatures, NoneMakesNoNodalTemperature) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=None
)");
  EXPECT_EQ(run.LoadBlock("SUN", "*NDTEMPER"), "");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,    10,"));
}

TEST(NodalTemperatures, MissingAndUnknownPatternsAreZeroAtTheJoints) {
  for (const char* pattern : {"", "   JtPattern=none", "   JtPattern=NONE", "   JtPattern=Heat"}) {
    SCOPED_TRACE(pattern);
    const ConversionRun run =
        Convert(kFahrenheit + StaticCases({"SUN"}) + kHeat +
                "TABLE:  \"CONNECTIVITY - FRAME\"\n   Frame=1   JointI=1   JointJ=2\n\n"
                "TABLE:  \"FRAME LOADS - TEMPERATURE\"\n"
                "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=50" +
                pattern + "\n");
    EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"), ElementsAre("\t1, -17.7778,", "\t2, -17.7778,"));
    EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1, -17.7778,"));
  }
}

TEST(NodalTemperatures, UnknownUnitIsZeroAtTheJoints) {
  const ConversionRun run = Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m, K\"\n\n" +
                                    StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=HEAT
)");
  EXPECT_NE(run.LoadBlock("SUN", "*NDTEMPER"), "");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"), IsEmpty());
}

TEST(NodalTemperatures, RenumberedJointsAreWrittenByPositionAndThoseNotThereAsZero) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=1   XorR=1   Y=0   Z=0

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=8

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"), ElementsAre("\t2,    10,", "\t0,    10,"));
}

TEST(NodalTemperatures, FrameThatIsNotThereHasTheJointsOfTheLastRowWalked) {
  // Rows 1 and 2 of frames are walked in the order 2, 1.
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=3   JointJ=4

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=9   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"), ElementsAre("\t1,    10,", "\t2,    10,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t9,    10,"));
}

TEST(NodalTemperatures, FrameInAModelWithoutFramesHasTwoJointsWithoutALabel) {
  const ConversionRun run = Convert(kFahrenheit + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=9   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"), ElementsAre("\t0, -35.5556,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t9, -17.7778,"));
}

TEST(NodalTemperatures, AreaThatIsNotThereHasFourJointsWithoutALabel) {
  const ConversionRun run = Convert(kFahrenheit + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=9   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"), ElementsAre("\t0, -71.1111,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t9, -17.7778,"));
}

TEST(NodalTemperatures, SolidThatIsNotThereHasEightJointsWithoutALabel) {
  const ConversionRun run = Convert(kFahrenheit + StaticCases({"SUN"}) + kHeat + R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8

TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=9   LoadCase=SUN   Temp=50   JtPattern=HEAT
)");
  EXPECT_THAT(run.LoadLines("SUN", "*NDTEMPER"), ElementsAre("\t0, -142.222,"));
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t9, -17.7778,"));
}

}  // namespace
