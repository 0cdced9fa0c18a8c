#include "support/axes_tables.h"
#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// ---- Uncoupled springs ----

TEST(PointSprings, SpringOfAJointGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   CoordSys=Local   U1=1000   U2=20000   U3=30.5   R1=4   R2=5.25   R3=6000000
)");
  EXPECT_EQ(run.Section("*SPRING"),
            "*SPRING    ; Point Spring Supports\n"
            "; NODE_LIST, SDx, SDy, SDz, SRx, SRy,SRz, GROUP\n"
            "\t1,  1000, 20000,  30.5,     4,  5.25, 6e+06,\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(PointSprings, MissingStiffnessIsZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   CoordSys=Local   R2=5
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t1,     0,     0,     0,     0,     5,     0,"));
}

TEST(PointSprings, LinesFollowTheWalkOverNumbersGivenInTheWalkOverTheRows) {
  // Rows 3, 6, 2, 5, 1, 4 become springs 1 to 6, of which 3, 6, 2, 5, 1, 4 are printed.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=10   U1=1
   Joint=20   U1=2
   Joint=30   U1=3
   Joint=40   U1=4
   Joint=50   U1=5
   Joint=60   U1=6
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t20,     2,     0,     0,     0,     0,     0,",
                                                "\t40,     4,     0,     0,     0,     0,     0,",
                                                "\t60,     6,     0,     0,     0,     0,     0,",
                                                "\t10,     1,     0,     0,     0,     0,     0,",
                                                "\t30,     3,     0,     0,     0,     0,     0,",
                                                "\t50,     5,     0,     0,     0,     0,     0,"));
}

TEST(PointSprings, SpringsOfOneJointAreNotAddedUp) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   U1=1
   Joint=1   U1=2
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t1,     1,     0,     0,     0,     0,     0,",
                                                "\t1,     2,     0,     0,     0,     0,     0,"));
}

TEST(PointSprings, GlobalSpringIsTurnedIntoTheAxesOfItsJoint) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   CoordSys=GLOBAL   U1=1   U2=2   U3=3   R1=4   R2=5   R3=6
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t1,     3,     1,     2,     6,     4,     5,"));
}

TEST(PointSprings, SpringOfAnotherSystemIsCopiedOnAJointWithAxes) {
  for (const std::string system :
       {"CoordSys=Local   ", "CoordSys=RING   ", "CoordSys=global   ", "CoordSys=Global   ", ""}) {
    SCOPED_TRACE(system);
    const ConversionRun run =
        ConvertWithAxes("\nTABLE:  \"JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED\"\n   Joint=1   " +
                        system + "U1=1   U2=2   U3=3   R1=4   R2=5   R3=6\n");
    EXPECT_THAT(run.Lines("*SPRING"),
                ElementsAre("\t1,     1,     2,     3,     4,     5,     6,"));
  }
}

TEST(PointSprings, GlobalSpringIsCopiedOnAJointWithoutAxes) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=2   CoordSys=GLOBAL   U1=1   U2=2   U3=0.000001   R1=4   R2=5   R3=6
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t2,     1,     2, 1e-06,     4,     5,     6,"));
}

TEST(PointSprings, TurnedValueBelowAHundredThousandthIsZero) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   CoordSys=GLOBAL   U1=0.000001   U2=0.00001   U3=0.00000999   R1=-0.000001   R2=-0.00001   R3=-0
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t1,     0,     0, 1e-05,     0,     0, -1e-05,"));
}

TEST(PointSprings, CopiedValueKeepsItsMinusSignOfZero) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   CoordSys=Local   U1=-0   U2=0   U3=-1   R1=0   R2=0   R3=-0.0
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t1,    -0,     0,    -1,     0,     0,    -0,"));
}

TEST(PointSprings, LabelWithALetterIsItsPositionAndAnUnknownOneZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=B   XorR=1   Y=0   Z=0

TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=B   U1=1
   Joint=9   U1=2
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t2,     1,     0,     0,     0,     0,     0,",
                                                "\t0,     2,     0,     0,     0,     0,     0,"));
}

TEST(PointSprings, NoRowsGiveNoSection) {
  const ConversionRun run = Convert("TABLE:  \"JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED\"\n\n");
  EXPECT_EQ(run.Section("*SPRING"), "");
  EXPECT_EQ(run.Result, 0);
}

// ---- Coupled springs ----

TEST(GeneralSprings, SpringOfAJointGivesBothSectionsWithTwentyTwoNumbers) {
  // The couplings of the rotations have places of their own and are not read; the last number
  // belongs to no value.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=4   CoordSys=Local   U1=1   U2=3   U3=6   R1=10   R2=15   R3=21   U1U2=2   U1U3=4   U2U3=5   U1R1=7   U2R1=8   U3R1=9   U1R2=11   U2R2=12   U3R2=13   R1R2=14   U1R3=16   U2R3=17   U3R3=18   R1R3=19   R2R3=20
)");
  EXPECT_EQ(run.Section("*GSPRING"),
            "*GSPRING    ; General Spring Supports\n"
            "; NODE_LIST, TYPE-NAME, GROUP\n"
            "\t4, GSPR1,\n"
            "\n");
  EXPECT_EQ(
      run.Section("*GSPRTYPE"),
      "*GSPRTYPE    ; Define General Spring Supports\n"
      "; NAME, SDx1, SDy1, SDy2, SDz1, SDz2, SDz3, ..., SRz1, ..., SRz6\n"
      "\tGSPR1,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11,    12,"
      "    13,     0,    15,   16,    17,    18,     0,     0,    21,     0\n"
      "\n");
  EXPECT_EQ(run.Section("*SPRING"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(GeneralSprings, DiagonalBehindItsCouplingsTakesTheFirstOfThem) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=4   CoordSys=Local   U1=1   U1U2=2   U2=3   U1U3=4   U2U3=5   U3=6   U1R1=7   U2R1=8   U3R1=9   R1=10   U1R2=11   U2R2=12   U3R2=13   R1R2=14   R2=15   U1R3=16   U2R3=17   U3R3=18   R1R3=19   R2R3=20   R3=21
)");
  EXPECT_THAT(
      run.Lines("*GSPRTYPE"),
      ElementsAre("\tGSPR1,     1,     2,     2,     4,     5,     4,     7,     8,     9,     7,"
                  "    11,    12,    13,     0,    11,   16,    17,    18,     0,     0,    16,"
                  "     0"));
}

TEST(GeneralSprings, LinesFollowTheWalkAndNamesTheRows) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=7   CoordSys=Local   U1=1
   Joint=8   CoordSys=Local   U1=2
   Joint=9   CoordSys=Local   U1=3
)");
  EXPECT_THAT(run.Lines("*GSPRING"), ElementsAre("\t9, GSPR3,", "\t8, GSPR2,", "\t7, GSPR1,"));
  const std::string zeros =
      "     0,     0,     0,     0,     0,     0,     0,     0,     0,     0,     0,     0,     0,"
      "     0,    0,     0,     0,     0,     0,     0,     0";
  EXPECT_THAT(
      run.Lines("*GSPRTYPE"),
      ElementsAre("\tGSPR3,     3," + zeros, "\tGSPR2,     2," + zeros, "\tGSPR1,     1," + zeros));
}

TEST(GeneralSprings, GlobalSpringOnAJointWithAxesIsLostAndKeepsItsNumber) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=1   CoordSys=GLOBAL   U1=1
   Joint=1   CoordSys=GLOBAL   U1=2
   Joint=2   CoordSys=GLOBAL   U1=3
)");
  EXPECT_THAT(run.Lines("*GSPRING"), ElementsAre("\t2, GSPR3,"));
}

TEST(GeneralSprings, SpringOfAnotherSystemIsCopiedWithoutARotation) {
  for (const std::string system :
       {"CoordSys=Local   ", "CoordSys=RING   ", "CoordSys=global   ", ""}) {
    SCOPED_TRACE(system);
    const ConversionRun run =
        ConvertWithAxes("\nTABLE:  \"JOINT SPRING ASSIGNMENTS 2 - COUPLED\"\n   Joint=1   " +
                        system + "U1=1   U2=2   U3=3\n");
    EXPECT_THAT(run.Lines("*GSPRING"), ElementsAre("\t1, GSPR1,"));
    EXPECT_THAT(
        run.Lines("*GSPRTYPE"),
        ElementsAre("\tGSPR1,     1,     0,     2,     0,     0,     3,     0,     0,     0,     0,"
                    "     0,     0,     0,     0,     0,    0,     0,     0,     0,     0,     0,"
                    "     0"));
  }
}

TEST(GeneralSprings, LostSpringIsToldWhereAPointSpringIsWritten) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=2   CoordSys=Local   U1=1

TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=1   CoordSys=GLOBAL   U1=1
)");
  EXPECT_EQ(run.Section("*GSPRING"), "");
  EXPECT_EQ(run.Section("*GSPRTYPE"), "");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_NSPR_Not_Convert"));
}

TEST(GeneralSprings, LostSpringIsNotToldWithoutAPointSpring) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=1   CoordSys=GLOBAL   U1=1
   Joint=2   CoordSys=GLOBAL   U1=1
)");
  EXPECT_THAT(run.Lines("*GSPRING"), ElementsAre("\t2, GSPR2,"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(GeneralSprings, LabelWithALetterIsItsPositionAndAnUnknownOneZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=B   XorR=1   Y=0   Z=0

TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=B   CoordSys=Local   U1=1
   Joint=9   CoordSys=Local   U1=1
)");
  EXPECT_THAT(run.Lines("*GSPRING"), ElementsAre("\t0, GSPR2,", "\t2, GSPR1,"));
}

}  // namespace
