#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kCelsius = "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m, C\"\n\n";
const std::string kFahrenheit = "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"Kip, in, F\"\n\n";

// Rows 1 to 4 of frames and areas are walked in the order 3, 2, 1, 4, those of solids and of
// reference temperatures of frames and solids in the order 2, 4, 1, 3.

TEST(ElementTemperatures, WholeCommandOfALoadCase) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=1   Temp=10   JtPattern=None

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None
)");
  EXPECT_EQ(run.LoadBlock("SUN", "*ELTEMPER"),
            "*USE-STLD,        SUN\n"
            "\n"
            "*ELTEMPER    ; Element Temperatures\n"
            "; ELEM_LIST, TEMPER, GROUP\n"
            "\t1,    20,\n"
            ";End of data for load case [SUN]\n"
            "\n");
  EXPECT_EQ(run.LoadBlock("SUN", "*NDTEMPER"), "");
  EXPECT_EQ(run.LoadBlock("SUN", "*THERGRAD"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Result, 0);
}

TEST(ElementTemperatures, FahrenheitOfLoadAndReferenceBecomesCelsius) {
  const ConversionRun run = Convert(kFahrenheit + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=1   Temp=32
   Frame=2   Temp=50

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=212   JtPattern=None
   Frame=2   LoadCase=SUN   Type=Temperature   Temp=32   JtPattern=None
   Frame=3   LoadCase=SUN   Type=Temperature   Temp=0   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"),
              ElementsAre("\t3, -17.7778,", "\t2,   -10,", "\t1,   100,"));
}

TEST(ElementTemperatures, UnitsOtherThanCAndFGiveZero) {
  // The frame of the command stands though it holds no line.
  for (const char* units : {"KN, m, K", "KN, m, c", "KN, m, f", "KN, m, Celsius", "KN, m, "}) {
    SCOPED_TRACE(units);
    const ConversionRun run = Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"" +
                                      std::string(units) + "\"\n\n" + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=1   Temp=10

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=86   JtPattern=None
)");
    EXPECT_EQ(run.LoadBlock("SUN", "*ELTEMPER"),
              "*USE-STLD,        SUN\n"
              "\n"
              "*ELTEMPER    ; Element Temperatures\n"
              "; ELEM_LIST, TEMPER, GROUP\n"
              ";End of data for load case [SUN]\n"
              "\n");
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(ElementTemperatures, BlanksAroundTheUnitDoNotCount) {
  const ConversionRun run = Convert(
      "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN , m ,  F  \"\n\n" + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=86   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,    30,"));
}

TEST(ElementTemperatures, ModelWithoutUnitsIsInCelsius) {
  const ConversionRun run = Convert(StaticCases({"SUN"}) + R"(
TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,    30,"));
}

TEST(ElementTemperatures, ZerosAreNotPrintedButTheFrameStands) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN", "NIGHT"}) + R"(
TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=1   Temp=10

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=None
)");
  EXPECT_EQ(run.LoadBlock("SUN", "*ELTEMPER"),
            "*USE-STLD,        SUN\n"
            "\n"
            "*ELTEMPER    ; Element Temperatures\n"
            "; ELEM_LIST, TEMPER, GROUP\n"
            ";End of data for load case [SUN]\n"
            "\n");
  EXPECT_EQ(run.LoadBlock("NIGHT", "*ELTEMPER"), "");
}

TEST(ElementTemperatures, ToleranceItselfIsZero) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=1E-15   JtPattern=None
   Frame=2   LoadCase=SUN   Type=Temperature   Temp=2E-15   JtPattern=None
   Frame=3   LoadCase=SUN   Type=Temperature   Temp=-2E-15   JtPattern=None
   Frame=4   LoadCase=SUN   Type=Temperature   Temp=-1E-15   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t3, -2e-15,", "\t2, 2e-15,"));
}

TEST(ElementTemperatures, OtherTypesOfFrameLoadAreSkipped) {
  for (const char* type : {"Type=temperature", "Type=TEMPERATURE", "Type=Gradient",
                           "Type=gradient2", "Type=\"Gradient 3\"", "Type=", ""}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) +
                                      "TABLE:  \"FRAME LOADS - TEMPERATURE\"\n"
                                      "   Frame=1   LoadCase=SUN   Temp=30   TempGrad2=3   "
                                      "TempGrad3=3   JtPattern=None   " +
                                      type + "\n");
    EXPECT_EQ(run.Output.find("*USE-STLD"), std::string::npos);
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(ElementTemperatures, FramesComeFirstThenAreasThenSolidsEachInTheWalkOfItsRows) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=21   LoadCase=SUN   Temp=21   JtPattern=None
   Solid=22   LoadCase=SUN   Temp=22   JtPattern=None
   Solid=23   LoadCase=SUN   Temp=23   JtPattern=None
   Solid=24   LoadCase=SUN   Temp=24   JtPattern=None

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=11   LoadCase=SUN   Type=Temperature   Temp=11   JtPattern=None
   Area=12   LoadCase=SUN   Type=Temperature   Temp=12   JtPattern=None

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=1   JtPattern=None
   Frame=2   LoadCase=SUN   Type=Temperature   Temp=2   JtPattern=None
   Frame=3   LoadCase=SUN   Type=Temperature   Temp=3   JtPattern=None
   Frame=4   LoadCase=SUN   Type=Temperature   Temp=4   JtPattern=None
)");
  EXPECT_THAT(
      run.LoadLines("SUN", "*ELTEMPER"),
      ElementsAre("\t3,     3,", "\t2,     2,", "\t1,     1,", "\t4,     4,", "\t12,    12,",
                  "\t11,    11,", "\t22,    22,", "\t24,    24,", "\t21,    21,", "\t23,    23,"));
}

TEST(ElementTemperatures, EachLoadCaseHasItsOwn) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN", "NIGHT"}) + R"(
TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=1   LoadCase=SUN   Temp=30   JtPattern=None
   Solid=1   LoadCase=NIGHT   Temp=-5   JtPattern=None
   Solid=1   LoadCase=DAWN   Temp=7   JtPattern=None
   Solid=1   Temp=8   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,    30,"));
  EXPECT_THAT(run.LoadLines("NIGHT", "*ELTEMPER"), ElementsAre("\t1,    -5,"));
  EXPECT_EQ(run.LoadBlock("DAWN", "*ELTEMPER"), "");
}

TEST(ElementTemperatures, RenumberedElementsAreFoundInTheirFamily) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=11   JtPattern=None

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Temperature   Temp=12   JtPattern=None

TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=1   LoadCase=SUN   Temp=13   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"),
              ElementsAre("\t1,    11,", "\t2,    12,", "\t3,    13,"));
}

TEST(ElementTemperatures, RenumberedElementThatIsNotThereTakesTheNumberBeforeAlsoOfAZero) {
  // Rows 3, 2, 1 in this order; row 2 is found and not printed. Each load case begins at 0.
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN", "NIGHT"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=A   JointI=1   JointJ=2

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=8   LoadCase=SUN   Type=Temperature   Temp=10   JtPattern=None
   Frame=A   LoadCase=SUN   Type=Temperature   Temp=0   JtPattern=None
   Frame=9   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None
   Frame=9   LoadCase=NIGHT   Type=Temperature   Temp=40   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t0,    30,", "\t1,    10,"));
  EXPECT_THAT(run.LoadLines("NIGHT", "*ELTEMPER"), ElementsAre("\t0,    40,"));
}

TEST(ReferenceTemperatures, ElementWithoutOneTakesThatOfTheRowBeforeItInTheWalk) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=2   Temp=10

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None
   Frame=2   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None
   Frame=3   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"),
              ElementsAre("\t3,    30,", "\t2,    20,", "\t1,    20,"));
}

TEST(ReferenceTemperatures, GradientDoesNotTakeTheReferenceOfItsFrame) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=2   Temp=10

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None
   Frame=2   LoadCase=SUN   Type=Gradient2   TempGrad2=30   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,    30,"));
}

TEST(ReferenceTemperatures, AreasBeginAtZeroAgainAndSoDoSolids) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=1   Temp=10

TABLE:  "AREA REFERENCE ASSIGNMENTS"
   Area=3   Temp=20

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=None

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=3   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=None
   Area=2   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=None

TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=4   LoadCase=SUN   Temp=50   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"),
              ElementsAre("\t1,    40,", "\t2,    50,", "\t3,    30,", "\t4,    50,"));
}

TEST(ReferenceTemperatures, EachFamilyHasItsOwn) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=1   Temp=1

TABLE:  "AREA REFERENCE ASSIGNMENTS"
   Area=1   Temp=2

TABLE:  "SOLID REFERENCE TEMPERATURES"
   Solid=1   Temp=3

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=None

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=None

TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=1   LoadCase=SUN   Temp=50   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"),
              ElementsAre("\t1,    49,", "\t1,    48,", "\t1,    47,"));
}

TEST(ReferenceTemperatures, FirstRowInTheWalkCounts) {
  // Row 2 comes before row 1, and before row 3.
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=1   Temp=1
   Frame=1   Temp=2
   Frame=1   Temp=3

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,    48,"));
}

TEST(ReferenceTemperatures, PatternOfAReferenceIsNotUsed) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=HEAT   Value=0.5
   Joint=2   Pattern=HEAT   Value=0.5

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME REFERENCE TEMPERATURES"
   Frame=1   Temp=10   JtPattern=HEAT

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t1,    40,"));
}

TEST(ReferenceTemperatures, AreaTitleWithTheWordTemperatureIsTheTableOfLoads) {
  // Its row stands in place of the first load, and is in no load case.
  for (const char* title : {"AREA REFERENCE TEMPERATURES", "AREA MATERIAL TEMPERATURES"}) {
    SCOPED_TRACE(title);
    const ConversionRun run =
        Convert(kCelsius + StaticCases({"SUN"}) +
                "TABLE:  \"AREA LOADS - TEMPERATURE\"\n"
                "   Area=1   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=None\n"
                "   Area=2   LoadCase=SUN   Type=Temperature   Temp=60   JtPattern=None\n\n"
                "TABLE:  \"" +
                title + "\"\n   Area=2   Temp=10   JtPattern=None\n");
    EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t2,    60,"));
    EXPECT_EQ(run.LoadBlock("SUN", "*THERGRAD"), "");
  }
}

TEST(MaterialTemperatures, AreNotUsed) {
  const ConversionRun run = Convert(kCelsius + StaticCases({"SUN"}) + R"(
TABLE:  "FRAME MATERIAL TEMPERATURES"
   Frame=1   Temp=10   JtPattern=None

TABLE:  "AREA MATERIAL ASSIGNMENTS"
   Area=1   Temp=10   JtPattern=None

TABLE:  "SOLID MATERIAL TEMPERATURES"
   Solid=1   Temp=10   JtPattern=None

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=SUN   Type=Temperature   Temp=50   JtPattern=None

TABLE:  "AREA LOADS - TEMPERATURE"
   Area=1   LoadCase=SUN   Type=Temperature   Temp=60   JtPattern=None

TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=1   LoadCase=SUN   Temp=70   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("SUN", "*ELTEMPER"),
              ElementsAre("\t1,    50,", "\t1,    60,", "\t1,    70,"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

}  // namespace
