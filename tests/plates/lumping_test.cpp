#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// ---- Springs ----

TEST(AreaSprings, QuarterOfTheAreaSpringGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   Joint4=8   AreaArea=4

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Face=5   Dir=2   Stiffness=10
)");
  EXPECT_EQ(run.Section("*SPRING"),
            "*SPRING    ; Point Spring Supports\n"
            "; NODE_LIST, SDx, SDy, SDz, SRx, SRy,SRz, GROUP\n"
            "\t5,     0,    10,     0,     0,     0,     0,\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert", "IDS_S2KV8_PLATE_2_NSPR"));
}

TEST(AreaSprings, DirectionsKeepTheirPlacesOnBothFaces) {
  for (const std::string face : {"5", "6"}) {
    const struct {
      std::string Direction;
      std::string Line;
    } rows[] = {
        {"1", "\t5,    10,     0,     0,     0,     0,     0,"},
        {"2", "\t5,     0,    10,     0,     0,     0,     0,"},
        {"3", "\t5,     0,     0,    10,     0,     0,     0,"},
        {"4", "\t5,     0,     0,     0,     0,     0,     0,"},
        {"Normal", "\t5,     0,     0,     0,     0,     0,     0,"},
        {"", "\t5,     0,     0,     0,     0,     0,     0,"},
    };
    for (const auto& row : rows) {
      SCOPED_TRACE(face + " " + row.Direction);
      const ConversionRun run = Convert(
          "TABLE:  \"CONNECTIVITY - AREA\"\n"
          "   Area=1   Joint1=5   Joint2=6   Joint3=7   Joint4=8   AreaArea=4\n\n"
          "TABLE:  \"AREA SPRING ASSIGNMENTS\"\n   Area=1   Stiffness=10   Face=" +
          face + "   Dir=" + row.Direction + "\n");
      EXPECT_THAT(run.Lines("*SPRING"), ElementsAre(row.Line));
    }
  }
}

TEST(AreaSprings, TriangleTakesAQuarterToo) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   AreaArea=4

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Face=6   Dir=3   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t5,     0,     0,    10,     0,     0,     0,"));
}

TEST(AreaSprings, ProductWithAnAreaOfZeroKeepsItsSign) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   Joint4=8

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Face=5   Dir=1   Stiffness=-10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t5,    -0,     0,     0,     0,     0,     0,"));
}

TEST(AreaSprings, LabelsWithALetterNameNoNode) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=2   XorR=4   Y=0   Z=0
   Joint=3   XorR=4   Y=4   Z=0

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=2   Joint2=3   Joint3=A   AreaArea=4

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Face=5   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t0,    10,     0,     0,     0,     0,     0,"));
}

TEST(AreaSprings, JointsOfAnAreaAreDividedByTwoBlanks) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A B C D   XorR=0   Y=0   Z=0
   Joint=A  B  C  D   XorR=4   Y=0   Z=0

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=A   Joint2=B   Joint3=C   Joint4=D   AreaArea=4

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Face=5   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t2,    10,     0,     0,     0,     0,     0,"));
}

TEST(AreaSprings, AnyOtherFaceIsLostAndToldBesideAnotherSpring) {
  for (const std::string face : {"1", "4", "7", "Top", "56", ""}) {
    SCOPED_TRACE(face);
    const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   U1=1

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   Joint4=8   AreaArea=4

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Dir=1   Stiffness=10   Face=)" +
                                      face + "\n");
    EXPECT_THAT(run.Lines("*SPRING"),
                ElementsAre("\t1,     1,     0,     0,     0,     0,     0,"));
    EXPECT_THAT(run.Messages,
                ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert", "IDS_S2KV8_PLATE_2_NSPR",
                            "IDS_S2KV8_PLATE_NSPR_Not_Convert"));
  }
}

TEST(AreaSprings, AnyOtherFaceIsNotToldWithoutASpring) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   Joint4=8   AreaArea=4

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Face=1   Dir=1   Stiffness=10
)");
  EXPECT_EQ(run.Section("*SPRING"), "");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(AreaSprings, UnknownAreaEndsTheirConversion) {
  // Rows 1, 2, 3 are walked 2, 1, 3: the third is not reached.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   Joint4=8   AreaArea=4

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=99   Face=5   Dir=1   Stiffness=10
   Area=1   Face=5   Dir=1   Stiffness=20
   Area=1   Face=1   Dir=1   Stiffness=30
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t5,    20,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert", "IDS_S2KV8_PLATE_2_NSPR"));
}

TEST(AreaSprings, AreaIsNotLookedUpForAnotherFace) {
  // Rows 1, 2, 3 are walked 2, 1, 3: all are reached.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   Joint4=8   AreaArea=4

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=99   Face=1   Dir=1   Stiffness=10
   Area=1   Face=5   Dir=1   Stiffness=20
   Area=1   Face=5   Dir=1   Stiffness=30
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t5,    30,     0,     0,     0,     0,     0,",
                                                "\t5,    20,     0,     0,     0,     0,     0,"));
}

TEST(AreaSprings, ModelWithoutAreasGetsNone) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   U1=1

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Face=5   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t1,     1,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLATE_2_NSPR"));
}

TEST(AreaSprings, TableWithoutARowShowsNoMessageBesideOtherSprings) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   U1=1

TABLE:  "AREA SPRING ASSIGNMENTS"

)");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(AreaSprings, OfTwoAreasOfOneLabelTheOneWalkedFirstCounts) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   Joint4=8   AreaArea=4
   Area=1   Joint1=9   Joint2=6   Joint3=7   Joint4=8   AreaArea=8

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Face=5   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t9,    20,     0,     0,     0,     0,     0,"));
}

TEST(AreaSprings, StandBehindThoseOfJointsAndFramesAndAllFourMessagesInTheirOrder) {
  // The joint's spring is 1, the frame's 2 and the area's 3; printed are 3, 2, 1. Axes 2 and 3 are
  // exchanged for the frame alone.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=2   AngleA=30

TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   U1=1

TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=2   CoordSys=GLOBAL   U1=1

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=3   JointJ=4   Length=4

TABLE:  "CONNECTIVITY - AREA"
   Area=2   Joint1=5   Joint2=6   Joint3=7   Joint4=8   AreaArea=4

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=2   Stiffness=10

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=2   Face=1   Dir=2   Stiffness=10
   Area=2   Face=6   Dir=2   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t5,     0,    10,     0,     0,     0,     0,",
                                                "\t3,     0,     0,    20,     0,     0,     0,",
                                                "\t1,     1,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_PLAT_LclAx_Not_Convert",
                          "IDS_S2KV8_NODE_NSPR_Not_Convert", "IDS_S2KV8_FRAME_2_NSPR",
                          "IDS_S2KV8_PLATE_2_NSPR", "IDS_S2KV8_PLATE_NSPR_Not_Convert"));
}

// ---- Masses ----

TEST(AreaMasses, QuarterOfTheAreaMassGoesToEachCorner) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   Joint4=8   AreaArea=12

TABLE:  "AREA ADDED MASS ASSIGNMENTS"
   Area=1   MassPerArea=0.5
)");
  EXPECT_EQ(run.Section("*NODALMASS"),
            "*NODALMASS    ; Nodal Masses\n"
            "; NODE_LIST, mX, mY, mZ, rmX, rmY, rmZ\n"
            "\t5,   1.5,   1.5,   1.5,     0,     0,     0\n"
            "\t6,   1.5,   1.5,   1.5,     0,     0,     0\n"
            "\t7,   1.5,   1.5,   1.5,     0,     0,     0\n"
            "\t8,   1.5,   1.5,   1.5,     0,     0,     0\n"
            "\n");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(AreaMasses, FourthQuarterOfTrianglesIsAddedUpUnderNodeZero) {
  // Rows 1 and 2 are walked 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=5   Joint2=6   Joint3=7   AreaArea=4
   Area=2   Joint1=5   Joint2=7   Joint3=8   AreaArea=8

TABLE:  "AREA ADDED MASS ASSIGNMENTS"
   Area=1   MassPerArea=1
   Area=2   MassPerArea=1
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t5,     3,     3,     3,     0,     0,     0",
                          "\t7,     3,     3,     3,     0,     0,     0",
                          "\t8,     2,     2,     2,     0,     0,     0",
                          "\t0,     3,     3,     3,     0,     0,     0",
                          "\t6,     1,     1,     1,     0,     0,     0"));
}

TEST(AreaMasses, StandBehindThoseOfJointsAndFramesAndAreAddedToThem) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=2   Joint1=4   Joint2=5   Joint3=6   Joint4=7   AreaArea=4

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=5   JointJ=6   Length=20

TABLE:  "AREA ADDED MASS ASSIGNMENTS"
   Area=2   MassPerArea=1

TABLE:  "FRAME ADDED MASS ASSIGNMENTS"
   Frame=1   MassPerLen=1

TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=6   Mass1=100   MMI3=3
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t6,   111,    11,    11,     0,     0,     3",
                          "\t5,    11,    11,    11,     0,     0,     0",
                          "\t4,     1,     1,     1,     0,     0,     0",
                          "\t7,     1,     1,     1,     0,     0,     0"));
}

TEST(AreaMasses, LabelsWithALetterAreTheirPositions) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=9   XorR=0   Y=0   Z=0
   Joint=A   XorR=4   Y=0   Z=0
   Joint=B   XorR=4   Y=4   Z=0

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=B   Joint2=9   Joint3=A   AreaArea=4

TABLE:  "AREA ADDED MASS ASSIGNMENTS"
   Area=1   MassPerArea=1
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t3,     1,     1,     1,     0,     0,     0",
                          "\t1,     1,     1,     1,     0,     0,     0",
                          "\t2,     1,     1,     1,     0,     0,     0",
                          "\t0,     1,     1,     1,     0,     0,     0"));
}

TEST(AreaMasses, UnknownAreaTakesTheRowWalkedLast) {
  // Rows 1, 2, 3 are walked 3, 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=11   Joint2=12   Joint3=13   Joint4=14   AreaArea=4
   Area=2   Joint1=21   Joint2=22   Joint3=23   Joint4=24   AreaArea=8
   Area=3   Joint1=31   Joint2=32   Joint3=33   Joint4=34   AreaArea=12

TABLE:  "AREA ADDED MASS ASSIGNMENTS"
   Area=99   MassPerArea=10
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t11,    10,    10,    10,     0,     0,     0",
                          "\t12,    10,    10,    10,     0,     0,     0",
                          "\t13,    10,    10,    10,     0,     0,     0",
                          "\t14,    10,    10,    10,     0,     0,     0"));
}

TEST(AreaMasses, MassOfAModelWithoutAreasIsOneOfZeros) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA ADDED MASS ASSIGNMENTS"
   Area=1   MassPerArea=10
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t0,     0,     0,     0,     0,     0,     0"));
}

}  // namespace
