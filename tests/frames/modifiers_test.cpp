#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

TEST(SectionScaleFactors, ModifiersGiveTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B1   Shape=Rectangular   t3=0.6   t2=0.3   AMod=0.9   A2Mod=0.8   A3Mod=0.75   JMod=0.1   I2Mod=0.5   I3Mod=0.7   MMod=2   WMod=1.25
)");
  EXPECT_EQ(run.Section("*SECT-SCALE"),
            "*SECT-SCALE    ; Section Stiffness Scale Factor\n"
            "; iSEC, AREA_SF, ASY_SF, ASZ_SF, IXX_SF, IYY_SF, IZZ_SF, WGT_SF\n"
            "\t1,   0.9,   0.8,  0.75,   0.1,   0.7,   0.5,  1.25\n"
            "\n");
}

TEST(SectionScaleFactors, BendingFactorsCrossOver) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B1   Shape=Rectangular   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=0.5   I3Mod=0.7   MMod=1   WMod=1
)");
  EXPECT_THAT(run.Lines("*SECT-SCALE"),
              ElementsAre("\t1,     1,     1,     1,     1,   0.7,   0.5,     1"));
}

TEST(SectionScaleFactors, ModifiersOfOneWriteNothing) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B1   Shape=Rectangular   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=1
)");
  EXPECT_NE(run.Section("*SECTION"), "");
  EXPECT_EQ(run.Section("*SECT-SCALE"), "");
}

TEST(SectionScaleFactors, ModifierOfTheMassAloneWritesNothing) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B1   Shape=Rectangular   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=2   WMod=1
)");
  EXPECT_NE(run.Section("*SECTION"), "");
  EXPECT_EQ(run.Section("*SECT-SCALE"), "");
}

TEST(SectionScaleFactors, EachOtherModifierAloneGivesARow) {
  struct Case {
    const char* Modifiers;
    const char* Line;
  };
  const std::vector<Case> cases = {
      {"AMod=0.5   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=1",
       "\t1,   0.5,     1,     1,     1,     1,     1,     1"},
      {"AMod=1   A2Mod=0.5   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=1",
       "\t1,     1,   0.5,     1,     1,     1,     1,     1"},
      {"AMod=1   A2Mod=1   A3Mod=0.5   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=1",
       "\t1,     1,     1,   0.5,     1,     1,     1,     1"},
      {"AMod=1   A2Mod=1   A3Mod=1   JMod=0.5   I2Mod=1   I3Mod=1   MMod=1   WMod=1",
       "\t1,     1,     1,     1,   0.5,     1,     1,     1"},
      {"AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=0.5   MMod=1   WMod=1",
       "\t1,     1,     1,     1,     1,   0.5,     1,     1"},
      {"AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=0.5   I3Mod=1   MMod=1   WMod=1",
       "\t1,     1,     1,     1,     1,     1,   0.5,     1"},
      {"AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=0.5",
       "\t1,     1,     1,     1,     1,     1,     1,   0.5"},
      // the comparison is exact
      {"AMod=1.0000000001   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=1",
       "\t1,     1,     1,     1,     1,     1,     1,     1"}};
  for (const auto& [modifiers, line] : cases) {
    SCOPED_TRACE(modifiers);
    const ConversionRun run = Convert(
        "TABLE:  \"FRAME SECTION PROPERTIES 1 - GENERAL\"\n"
        "   SectionName=B1   Shape=Rectangular   " +
        std::string(modifiers) + "\n");
    EXPECT_THAT(run.Lines("*SECT-SCALE"), ElementsAre(line));
  }
}

TEST(SectionScaleFactors, AbsentModifiersAreZeros) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B1   Shape=Rectangular   t3=0.6   t2=0.3
   SectionName=B2   Shape=Rectangular   t3=0.6   t2=0.3   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1
)");
  // Section 2 is met first and takes the running number 1; of the numbers 1 and 2 the second is
  // written first.
  EXPECT_THAT(run.Lines("*SECT-SCALE"),
              ElementsAre("\t1,     0,     0,     0,     0,     0,     0,     0",
                          "\t2,     1,     1,     1,     1,     1,     1,     0"));
}

TEST(SectionScaleFactors, RowsComeInTheWalkOfTheirRunningNumbers) {
  // The sections are met as 3, 6, 2, 5, 1, 4 and get the numbers 1 to 6, which are walked in the
  // same order: the third met first, then the sixth, and so on.
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B1   Shape=Rectangular   AMod=0.1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=B2   Shape=Rectangular   AMod=0.2   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=B3   Shape=Rectangular   AMod=0.3   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=B4   Shape=Rectangular   AMod=0.4   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=B5   Shape=Rectangular   AMod=0.5   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=B6   Shape=Rectangular   AMod=0.6   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
)");
  EXPECT_THAT(run.Lines("*SECT-SCALE"),
              ElementsAre("\t2,   0.2,     1,     1,     1,     1,     1,     1",
                          "\t4,   0.4,     1,     1,     1,     1,     1,     1",
                          "\t6,   0.6,     1,     1,     1,     1,     1,     1",
                          "\t1,   0.1,     1,     1,     1,     1,     1,     1",
                          "\t3,   0.3,     1,     1,     1,     1,     1,     1",
                          "\t5,   0.5,     1,     1,     1,     1,     1,     1"));
}

TEST(SectionScaleFactors, SectionsWithoutARowTakeNoRunningNumber) {
  // Met as 3, 2, 1, 4; of these 2, 1, 4 have factors and get the numbers 1, 2, 3, written 3, 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B1   Shape=Rectangular   AMod=0.1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=B2   Shape=Rectangular   AMod=0.2   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=B3   Shape=Rectangular   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=B4   Shape=Rectangular   AMod=0.4   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
)");
  EXPECT_THAT(run.Lines("*SECT-SCALE"),
              ElementsAre("\t4,   0.4,     1,     1,     1,     1,     1,     1",
                          "\t1,   0.1,     1,     1,     1,     1,     1,     1",
                          "\t2,   0.2,     1,     1,     1,     1,     1,     1"));
}

TEST(SectionScaleFactors, DroppedAndNonprismaticSectionsHaveNone) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=CELLS   Shape="SD Section"   AMod=0.1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=HAUNCH   Shape=Nonprismatic   AMod=0.2   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
   SectionName=B3   Shape=Rectangular   AMod=0.3   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   WMod=1
)");
  EXPECT_THAT(run.Lines("*SECT-SCALE"),
              ElementsAre("\t3,   0.3,     1,     1,     1,     1,     1,     1"));
}

TEST(SectionScaleFactors, ModifiersOfFramesHaveNoEffect) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B1   Shape=Rectangular   t3=0.6   t2=0.3   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=1

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=B1

TABLE:  "FRAME PROPERTY MODIFIERS"
   Frame=1   AMod=0.5   AS2Mod=0.5   AS3Mod=0.5   JMod=0.5   I22Mod=0.5   I33Mod=0.5   MassMod=0.5   WeightMod=0.5
)");
  EXPECT_THAT(run.Lines("*SECTION"),
              ElementsAre("\t1, VALUE,    B1,    CC,    SB, BUILT,   0.6,   0.3,     0,     0,     "
                          "0,     0",
                          "\t\t0,     0,     0,     0,     0,     0",
                          "\t\t0,     0,     0,     0,     0,     0,     0,     0,     0,     0"));
  EXPECT_EQ(run.Section("*SECT-SCALE"), "");
}

}  // namespace
