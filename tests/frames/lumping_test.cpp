#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// ---- Springs ----

TEST(FrameSprings, HalfOfTheLineSpringGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=5   JointJ=6   Length=4

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=2   Stiffness=10
)");
  EXPECT_EQ(run.Section("*SPRING"),
            "*SPRING    ; Point Spring Supports\n"
            "; NODE_LIST, SDx, SDy, SDz, SRx, SRy,SRz, GROUP\n"
            "\t5,     0,     0,    20,     0,     0,     0,\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_FRAME_2_NSPR"));
}

TEST(FrameSprings, DirectionsTwoAndThreeAreExchanged) {
  const struct {
    std::string Direction;
    std::string Line;
  } rows[] = {
      {"1", "\t5,    20,     0,     0,     0,     0,     0,"},
      {"2", "\t5,     0,     0,    20,     0,     0,     0,"},
      {"3", "\t5,     0,    20,     0,     0,     0,     0,"},
      {"4", "\t5,     0,     0,     0,     0,     0,     0,"},
      {"Gravity", "\t5,     0,     0,     0,     0,     0,     0,"},
      {"", "\t5,     0,     0,     0,     0,     0,     0,"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Direction);
    const ConversionRun run = Convert(
        "TABLE:  \"CONNECTIVITY - FRAME\"\n   Frame=1   JointI=5   JointJ=6   Length=4\n\n"
        "TABLE:  \"FRAME SPRING ASSIGNMENTS\"\n   Frame=1   Stiffness=10   Dir=" +
        row.Direction + "\n");
    EXPECT_THAT(run.Lines("*SPRING"), ElementsAre(row.Line));
  }
}

TEST(FrameSprings, ProductWithALengthOfZeroKeepsItsSign) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=5   JointJ=6   Length=0

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=3   Stiffness=-10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t5,     0,    -0,     0,     0,     0,     0,"));
}

TEST(FrameSprings, FrameWithoutAFirstJointNamesItsSecond) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointJ=6   Length=4

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t6,    20,     0,     0,     0,     0,     0,"));
}

TEST(FrameSprings, LabelsWithALetterNameNoNode) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=2   XorR=4   Y=0   Z=0

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=2   JointJ=A   Length=4

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t0,    20,     0,     0,     0,     0,     0,"));
}

TEST(FrameSprings, JointsOfAFrameAreDividedByTwoBlanks) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A B   XorR=0   Y=0   Z=0
   Joint=A  B   XorR=4   Y=0   Z=0

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=A   JointJ=B   Length=4

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t2,    20,     0,     0,     0,     0,     0,"));
}

TEST(FrameSprings, UnknownFrameTakesTheRowWalkedLast) {
  // Rows 1 to 6 are walked 3, 6, 2, 5, 1, 4.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=11   JointJ=12   Length=1
   Frame=2   JointI=21   JointJ=22   Length=2
   Frame=3   JointI=31   JointJ=32   Length=3
   Frame=4   JointI=41   JointJ=42   Length=4
   Frame=5   JointI=51   JointJ=52   Length=5
   Frame=6   JointI=61   JointJ=62   Length=6

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=99   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t41,    20,     0,     0,     0,     0,     0,"));
}

TEST(FrameSprings, OfTwoFramesOfOneLabelTheOneWalkedFirstCounts) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=11   JointJ=12   Length=1
   Frame=1   JointI=21   JointJ=22   Length=2

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t21,    10,     0,     0,     0,     0,     0,"));
}

TEST(FrameSprings, SpringOfAModelWithoutFramesIsOneOfZeros) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=1   Stiffness=10
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t0,     0,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAME_2_NSPR"));
}

TEST(FrameSprings, StandBehindThoseOfJointsInTheWalkOverAllNumbers) {
  // Joint rows 1, 2 become springs 2, 1; frame rows 1, 2, 3 are walked 2, 1, 3 and become springs
  // 4, 3, 5; printed are 3, 2, 5, 1, 4.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   U1=1
   Joint=2   U1=2

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=11   JointJ=12   Length=2
   Frame=2   JointI=21   JointJ=22   Length=2
   Frame=3   JointI=31   JointJ=32   Length=2

TABLE:  "FRAME SPRING ASSIGNMENTS"
   Frame=1   Dir=1   Stiffness=10
   Frame=2   Dir=1   Stiffness=20
   Frame=3   Dir=1   Stiffness=30
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t21,    20,     0,     0,     0,     0,     0,",
                                                "\t1,     1,     0,     0,     0,     0,     0,",
                                                "\t31,    30,     0,     0,     0,     0,     0,",
                                                "\t2,     2,     0,     0,     0,     0,     0,",
                                                "\t11,    10,     0,     0,     0,     0,     0,"));
}

TEST(FrameSprings, TableWithoutARowShowsNoMessageBesideOtherSprings) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   U1=1

TABLE:  "FRAME SPRING ASSIGNMENTS"

)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t1,     1,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

// ---- Masses ----

TEST(FrameMasses, HalfOfTheLineMassGoesToEachEnd) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=5   JointJ=6   Length=4

TABLE:  "FRAME ADDED MASS ASSIGNMENTS"
   Frame=1   MassPerLen=2.5
)");
  EXPECT_EQ(run.Section("*NODALMASS"),
            "*NODALMASS    ; Nodal Masses\n"
            "; NODE_LIST, mX, mY, mZ, rmX, rmY, rmZ\n"
            "\t5,     5,     5,     5,     0,     0,     0\n"
            "\t6,     5,     5,     5,     0,     0,     0\n"
            "\n");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(FrameMasses, AreAddedToThatOfTheirJoint) {
  // The joint's mass comes first; frame rows 1, 2 are walked 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2   Length=4
   Frame=2   JointI=2   JointJ=3   Length=6

TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=2   CoordSys=GLOBAL   Mass1=1   Mass2=2   Mass3=3   MMI1=0.5   MMI2=0.6   MMI3=0.7

TABLE:  "FRAME ADDED MASS ASSIGNMENTS"
   Frame=1   MassPerLen=2
   Frame=2   MassPerLen=3
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t2,    14,    15,    16,   0.5,   0.6,   0.7",
                          "\t3,     9,     9,     9,     0,     0,     0",
                          "\t1,     4,     4,     4,     0,     0,     0"));
}

TEST(FrameMasses, FrameOfOneJointGivesItBothHalves) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=5   JointJ=5   Length=4

TABLE:  "FRAME ADDED MASS ASSIGNMENTS"
   Frame=1   MassPerLen=2.5
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t5,    10,    10,    10,     0,     0,     0"));
}

TEST(FrameMasses, AreNotTurnedIntoTheAxesOfTheJoint) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=5   AngleA=30

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=5   JointJ=6   Length=4

TABLE:  "FRAME ADDED MASS ASSIGNMENTS"
   Frame=1   MassPerLen=0.000001
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t5, 2e-06, 2e-06, 2e-06,     0,     0,     0",
                          "\t6, 2e-06, 2e-06, 2e-06,     0,     0,     0"));
}

TEST(FrameMasses, LabelsWithALetterAreTheirPositions) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=9   XorR=0   Y=0   Z=0
   Joint=A   XorR=4   Y=0   Z=0

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=A   JointJ=9   Length=4

TABLE:  "FRAME ADDED MASS ASSIGNMENTS"
   Frame=1   MassPerLen=1
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t2,     2,     2,     2,     0,     0,     0",
                          "\t1,     2,     2,     2,     0,     0,     0"));
}

TEST(FrameMasses, UnknownFrameTakesTheRowWalkedLast) {
  // Rows 1, 2, 3 are walked 3, 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=11   JointJ=12   Length=1
   Frame=2   JointI=21   JointJ=22   Length=2
   Frame=3   JointI=31   JointJ=32   Length=3

TABLE:  "FRAME ADDED MASS ASSIGNMENTS"
   Frame=99   MassPerLen=10
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t11,     5,     5,     5,     0,     0,     0",
                          "\t12,     5,     5,     5,     0,     0,     0"));
}

TEST(FrameMasses, MassOfAModelWithoutFramesIsOneOfZeros) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME ADDED MASS ASSIGNMENTS"
   Frame=1   MassPerLen=10
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t0,     0,     0,     0,     0,     0,     0"));
}

}  // namespace
