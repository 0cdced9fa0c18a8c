#include "frames/initial_forces.h"

#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

using testing::ElementsAre;

const std::string kFrames = R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3
   Frame=3   JointI=3   JointJ=4

)";

const std::string kFramesWithLetters = R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=B1   JointI=1   JointJ=2
   Frame=B2   JointI=2   JointJ=3
   Frame=B3   JointI=3   JointJ=4

TABLE:  "CONNECTIVITY - AREA"
   Area=W1   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4

)";

// P-delta forces

TEST(InitialForces, EachDirectionGivesItsWordInTheOrderOfTheRows) {
  const ConversionRun run = Convert(kFrames + R"(
TABLE:  "FRAME P-DELTA FORCE ASSIGNMENTS"
   Frame=1   CoordSys=Local   Direction="Local 1"   Force=-120.5
   Frame=2   CoordSys=GLOBAL   Direction="X Proj"   Force=40
   Frame=3   CoordSys=GLOBAL   Direction="Y Proj"   Force=1500000
   Frame=3   CoordSys=GLOBAL   Direction="Z Proj"   Force=0.25
)");
  EXPECT_EQ(run.Section("*INIFORCE"),
            "*INIFORCE    ; Initial Forces for Geometric Stiffness\n"
            "; ELEM_LIST, DIR, FORCE\n"
            "\t1, AXIAL, -120.5\n"
            "\t2,    GX,    40\n"
            "\t3,    GY, 1.5e+06\n"
            "\t3,    GZ,  0.25\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(InitialForces, UnknownDirectionLeavesItsColumnEmpty) {
  for (const char* direction : {"Local 2", "Local 3", "local 1", "LOCAL 1", "Local  1", "X",
                                "X proj", "Proj", "Gravity", "AXIAL", ""}) {
    SCOPED_TRACE(direction);
    const ConversionRun run =
        Convert(kFrames + "TABLE:  \"FRAME P-DELTA FORCE ASSIGNMENTS\"\n   Frame=2   Direction=\"" +
                direction + "\"   Force=10\n");
    EXPECT_THAT(run.Lines("*INIFORCE"), ElementsAre("\t2,      ,    10"));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
  }
}

TEST(InitialForces, MissingKeysAreAnEmptyDirectionAndAForceOfZero) {
  const ConversionRun run = Convert(kFrames + R"(
TABLE:  "FRAME P-DELTA FORCE ASSIGNMENTS"
   Frame=1   Direction="X Proj"
   Frame=2   Force=3
)");
  EXPECT_THAT(run.Lines("*INIFORCE"), ElementsAre("\t1,    GX,     0", "\t2,      ,     3"));
}

TEST(InitialForces, CoordinateSystemHasNoEffect) {
  const ConversionRun run = Convert(kFrames + R"(
TABLE:  "FRAME P-DELTA FORCE ASSIGNMENTS"
   Frame=1   CoordSys=Ramp   Direction="X Proj"   Force=10
   Frame=1   CoordSys=GLOBAL   Direction="Local 1"   Force=10
)");
  EXPECT_THAT(run.Lines("*INIFORCE"), ElementsAre("\t1,    GX,    10", "\t1, AXIAL,    10"));
}

TEST(InitialForces, WithoutARowWriteNothing) {
  EXPECT_EQ(Convert(kFrames).Section("*INIFORCE"), "");
  EXPECT_EQ(Convert(kFrames + "TABLE:  \"FRAME P-DELTA FORCE ASSIGNMENTS\"\n\n" +
                    "TABLE:  \"GRID LINES\"\n   CoordSys=GLOBAL\n")
                .Section("*INIFORCE"),
            "");
}

TEST(InitialForces, KeepTheNumberOfTheLabelWhenNothingIsRenumbered) {
  const ConversionRun run = Convert(kFrames + R"(
TABLE:  "FRAME P-DELTA FORCE ASSIGNMENTS"
   Frame=3   Direction="Local 1"   Force=1
   Frame=99   Direction="Local 1"   Force=2
   Frame=B1   Direction="Local 1"   Force=3
   Frame=002   Direction="Local 1"   Force=4
)");
  EXPECT_THAT(run.Lines("*INIFORCE"), ElementsAre("\t3, AXIAL,     1", "\t99, AXIAL,     2",
                                                  "\t0, AXIAL,     3", "\t2, AXIAL,     4"));
}

TEST(InitialForces, TakeTheNewNumberAndForAnUnknownFrameThatOfTheRowBefore) {
  const ConversionRun run = Convert(kFramesWithLetters + R"(
TABLE:  "FRAME P-DELTA FORCE ASSIGNMENTS"
   Frame=B9   Direction="Local 1"   Force=1
   Frame=B3   Direction="Local 1"   Force=2
   Frame=B9   Direction="Local 1"   Force=3
   Frame=B2   Direction="Local 1"   Force=4
   Frame=W1   Direction="Local 1"   Force=5
   Frame=1   Direction="Local 1"   Force=6
)");
  EXPECT_THAT(run.Lines("*INIFORCE"),
              ElementsAre("\t0, AXIAL,     1", "\t3, AXIAL,     2", "\t3, AXIAL,     3",
                          "\t2, AXIAL,     4", "\t2, AXIAL,     5", "\t2, AXIAL,     6"));
}

// Tendons

/// A model of three frames with the load case PT, these tendons and these multipliers.
ConversionRun ConvertTendons(const std::string& tendons, const std::string& multipliers) {
  return Convert(StaticCases({"PT"}) + kFrames +
                 "TABLE:  \"FRAME PRESTRESS ASSIGNMENTS 1 - TENDON PATTERNS\"\n" + tendons +
                 "\nTABLE:  \"FRAME PRESTRESS ASSIGNMENTS 2 - LOAD MULTIPLIERS\"\n" + multipliers);
}

TEST(Prestress, TendonGivesTheWholeBlockOfItsLoadCase) {
  const ConversionRun run =
      ConvertTendons("   Frame=1   Tension=1000   DrapeI=0.1   DrapeCenter=0.3   DrapeJ=0.2\n",
                     "   Frame=1   LoadCase=PT   Multiplier=1\n");
  EXPECT_EQ(run.LoadBlock("PT", "*PRESTRESS"),
            "*USE-STLD,         PT\n"
            "\n"
            "*PRESTRESS    ; Prestress Beam Loads\n"
            "; ELEM_LIST, LTYPE, TENS, DI, DM, DJ, GROUP\n"
            "\t1,   PRE,  1000,   0.1,  -0.3,   0.2,\n"
            ";End of data for load case [PT]\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(Prestress, OnlyTheDrapeAtTheCenterChangesItsSign) {
  struct Case {
    const char* Tendon;
    const char* Line;
  };
  const Case cases[] = {
      {"Tension=5   DrapeI=0.1   DrapeCenter=0.3   DrapeJ=0.2",
       "\t1,   PRE,     5,   0.1,  -0.3,   0.2,"},
      {"Tension=5   DrapeI=-0.1   DrapeCenter=-0.3   DrapeJ=-0.2",
       "\t1,   PRE,     5,  -0.1,   0.3,  -0.2,"},
      // the sign of zero changes as well
      {"Tension=5   DrapeI=0   DrapeCenter=0   DrapeJ=0",
       "\t1,   PRE,     5,     0,    -0,     0,"},
      {"Tension=5", "\t1,   PRE,     5,     0,    -0,     0,"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Tendon);
    const ConversionRun run = ConvertTendons(std::string("   Frame=1   ") + c.Tendon + "\n",
                                             "   Frame=1   LoadCase=PT   Multiplier=1\n");
    EXPECT_THAT(run.LoadLines("PT", "*PRESTRESS"), ElementsAre(c.Line));
  }
}

TEST(Prestress, MultiplierScalesTheTensionAlone) {
  struct Case {
    const char* Multiplier;
    const char* Line;
  };
  const Case cases[] = {
      {"Multiplier=2", "\t1,   PRE,   200,   0.1,  -0.3,   0.2,"},
      {"Multiplier=-0.5", "\t1,   PRE,   -50,   0.1,  -0.3,   0.2,"},
      {"Multiplier=0", "\t1,   PRE,     0,   0.1,  -0.3,   0.2,"},
      {"", "\t1,   PRE,     0,   0.1,  -0.3,   0.2,"},  // missing is 0
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Multiplier);
    const ConversionRun run =
        ConvertTendons("   Frame=1   Tension=100   DrapeI=0.1   DrapeCenter=0.3   DrapeJ=0.2\n",
                       std::string("   Frame=1   LoadCase=PT   ") + c.Multiplier + "\n");
    EXPECT_THAT(run.LoadLines("PT", "*PRESTRESS"), ElementsAre(c.Line));
  }
}

TEST(Prestress, MultiplierInAnotherPositionDoesNotMatch) {
  const ConversionRun run = ConvertTendons(
      "   Frame=1   Tension=10\n"
      "   Frame=2   Tension=20\n"
      "   Frame=3   Tension=30\n",
      "   Frame=2   LoadCase=PT   Multiplier=1\n"
      "   Frame=1   LoadCase=PT   Multiplier=1\n"
      "   Frame=3   LoadCase=PT   Multiplier=1\n");
  EXPECT_THAT(run.LoadLines("PT", "*PRESTRESS"),
              ElementsAre("\t3,   PRE,    30,     0,    -0,     0,"));
}

TEST(Prestress, TendonWithoutAMultiplierDoesNotPrint) {
  const ConversionRun run = ConvertTendons(
      "   Frame=1   Tension=10\n"
      "   Frame=2   Tension=20\n",
      "   Frame=3   LoadCase=PT   Multiplier=2\n"
      "   Frame=2   LoadCase=PT   Multiplier=2\n");
  EXPECT_THAT(run.LoadLines("PT", "*PRESTRESS"),
              ElementsAre("\t2,   PRE,    40,     0,    -0,     0,"));
}

TEST(Prestress, WithoutMultipliersWritesNothing) {
  const ConversionRun run = ConvertTendons("   Frame=1   Tension=10\n", "");
  EXPECT_NE(run.Section("*STLDCASE"), "");
  EXPECT_EQ(run.Output.find("*PRESTRESS"), std::string::npos);
}

constexpr const char* kTendonsOfThreeFrames = R"(
TABLE:  "FRAME PRESTRESS ASSIGNMENTS 1 - TENDON PATTERNS"
   Frame=1   Tension=10
   Frame=2   Tension=20
   Frame=3   Tension=30

)";

TEST(Prestress, TendonWithoutAMultiplierKeepsThatOfTheTendonWalkedBefore) {
  // Tendons 1 to 3 are walked in the order 3, 2, 1: 3 has the multiplier that the walk starts with,
  // 1 has that of 2. Both have an empty load case, which is the name of a load case here.
  const ConversionRun run = Convert(StaticCases({"PT", ""}) + kFrames + kTendonsOfThreeFrames + R"(
TABLE:  "FRAME PRESTRESS ASSIGNMENTS 2 - LOAD MULTIPLIERS"
   Frame=3   LoadCase=PT   Multiplier=7
   Frame=2   LoadCase=PT   Multiplier=2
)");
  EXPECT_THAT(run.LoadLines("PT", "*PRESTRESS"),
              ElementsAre("\t2,   PRE,    40,     0,    -0,     0,"));
  EXPECT_EQ(run.LoadBlock("", "*PRESTRESS"),
            "*USE-STLD,           \n"
            "\n"
            "*PRESTRESS    ; Prestress Beam Loads\n"
            "; ELEM_LIST, LTYPE, TENS, DI, DM, DJ, GROUP\n"
            "\t1,   PRE,    20,     0,    -0,     0,\n"
            "\t3,   PRE,    30,     0,    -0,     0,\n"
            ";End of data for load case []\n"
            "\n");
}

TEST(Prestress, MultiplierWithoutALoadCasePrintsUnderTheLoadCaseOfEmptyName) {
  const ConversionRun run = Convert(StaticCases({"PT", ""}) + kFrames + kTendonsOfThreeFrames + R"(
TABLE:  "FRAME PRESTRESS ASSIGNMENTS 2 - LOAD MULTIPLIERS"
   Frame=1   LoadCase=PT   Multiplier=1
   Frame=2   Multiplier=3
   Frame=3   LoadCase=PT   Multiplier=1
)");
  EXPECT_THAT(run.LoadLines("PT", "*PRESTRESS"),
              ElementsAre("\t1,   PRE,    10,     0,    -0,     0,",
                          "\t3,   PRE,    30,     0,    -0,     0,"));
  EXPECT_THAT(run.LoadLines("", "*PRESTRESS"),
              ElementsAre("\t2,   PRE,    60,     0,    -0,     0,"));
}

TEST(Prestress, EachLoadCaseHasItsTendonsInTheOrderOfTheRows) {
  const ConversionRun run =
      Convert(StaticCases({"LIVE", "PT1", "PT2"}) + kFrames + kTendonsOfThreeFrames + R"(
TABLE:  "FRAME PRESTRESS ASSIGNMENTS 2 - LOAD MULTIPLIERS"
   Frame=1   LoadCase=PT2   Multiplier=1
   Frame=2   LoadCase=PT1   Multiplier=1
   Frame=3   LoadCase=PT2   Multiplier=1
)");
  EXPECT_THAT(run.LoadLines("PT1", "*PRESTRESS"),
              ElementsAre("\t2,   PRE,    20,     0,    -0,     0,"));
  EXPECT_THAT(run.LoadLines("PT2", "*PRESTRESS"),
              ElementsAre("\t1,   PRE,    10,     0,    -0,     0,",
                          "\t3,   PRE,    30,     0,    -0,     0,"));
  EXPECT_EQ(run.Output.find("*USE-STLD,       LIVE"), std::string::npos);
}

TEST(Prestress, LoadThatNoStaticCaseUsesIsNotWritten) {
  const ConversionRun run = Convert(StaticCases({"PT"}) + kFrames + kTendonsOfThreeFrames + R"(
TABLE:  "FRAME PRESTRESS ASSIGNMENTS 2 - LOAD MULTIPLIERS"
   Frame=1   LoadCase=PTX   Multiplier=1
   Frame=2   LoadCase=pt   Multiplier=1
)");
  EXPECT_NE(run.Section("*STLDCASE"), "");
  EXPECT_EQ(run.Output.find("*PRESTRESS"), std::string::npos);
}

TEST(Prestress, KeepsTheNumberOfTheLabelWhenNothingIsRenumbered) {
  const ConversionRun run = ConvertTendons(
      "   Frame=3   Tension=10\n"
      "   Frame=99   Tension=20\n"
      "   Frame=B1   Tension=30\n",
      "   Frame=3   LoadCase=PT   Multiplier=1\n"
      "   Frame=99   LoadCase=PT   Multiplier=1\n"
      "   Frame=B1   LoadCase=PT   Multiplier=1\n");
  EXPECT_THAT(run.LoadLines("PT", "*PRESTRESS"),
              ElementsAre("\t3,   PRE,    10,     0,    -0,     0,",
                          "\t99,   PRE,    20,     0,    -0,     0,",
                          "\t0,   PRE,    30,     0,    -0,     0,"));
}

TEST(Prestress, TakesTheNewNumberAndForAnUnknownFrameThatOfTheRowBeforeInItsLoadCase) {
  const ConversionRun run = Convert(StaticCases({"PT1", "PT2"}) + kFramesWithLetters + R"(
TABLE:  "FRAME PRESTRESS ASSIGNMENTS 1 - TENDON PATTERNS"
   Frame=B3   Tension=1
   Frame=B9   Tension=2
   Frame=B9   Tension=3
   Frame=B2   Tension=4
   Frame=W1   Tension=5

TABLE:  "FRAME PRESTRESS ASSIGNMENTS 2 - LOAD MULTIPLIERS"
   Frame=B3   LoadCase=PT1   Multiplier=1
   Frame=B9   LoadCase=PT2   Multiplier=1
   Frame=B9   LoadCase=PT1   Multiplier=1
   Frame=B2   LoadCase=PT2   Multiplier=1
   Frame=W1   LoadCase=PT2   Multiplier=1
)");
  EXPECT_THAT(run.LoadLines("PT1", "*PRESTRESS"),
              ElementsAre("\t3,   PRE,     1,     0,    -0,     0,",
                          "\t3,   PRE,     3,     0,    -0,     0,"));
  EXPECT_THAT(run.LoadLines("PT2", "*PRESTRESS"),
              ElementsAre("\t0,   PRE,     2,     0,    -0,     0,",
                          "\t2,   PRE,     4,     0,    -0,     0,",
                          "\t2,   PRE,     5,     0,    -0,     0,"));
}

// Property modifiers of single frames

TEST(FrameModifiers, HaveNoEffect) {
  const std::string model = kFrames + R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B1   Shape=Rectangular   t3=0.6   t2=0.3   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=1

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=B1
   Frame=2   AnalSect=B1
   Frame=3   AnalSect=B1

)";
  const ConversionRun plain = Convert(model);
  const ConversionRun modified = Convert(model + R"(
TABLE:  "FRAME PROPERTY MODIFIERS"
   Frame=1   AMod=0.1   AS2Mod=0.2   AS3Mod=0.3   JMod=0.4   I22Mod=0.5   I33Mod=0.6   MassMod=0.7   WeightMod=0.8
   Frame=B1   AMod=2   AS2Mod=2   AS3Mod=2   JMod=2   I22Mod=2   I33Mod=2   MassMod=2   WeightMod=2
)");
  const auto body = [](const ConversionRun& run) {
    return run.Output.substr(run.Output.find("*VERSION"));
  };
  EXPECT_NE(plain.Section("*SECTION"), "");
  EXPECT_EQ(body(modified), body(plain));
  EXPECT_EQ(modified.Section("*SECT-SCALE"), "");
  EXPECT_EQ(modified.Messages, plain.Messages);
}

}  // namespace
}  // namespace s2k2ngt
