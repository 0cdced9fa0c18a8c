#include "support/axes_tables.h"
#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(NodalMasses, MassOfAJointGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=4   CoordSys=Local   Mass1=12.5   Mass2=12   Mass3=1000000   MMI1=0.25   MMI2=5   MMI3=6
)");
  EXPECT_EQ(run.Section("*NODALMASS"),
            "*NODALMASS    ; Nodal Masses\n"
            "; NODE_LIST, mX, mY, mZ, rmX, rmY, rmZ\n"
            "\t4,  12.5,    12, 1e+06,  0.25,     5,     6\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(NodalMasses, LinesStandInTheOrderInWhichTheWalkMeetsTheJoints) {
  // Rows 1 to 6 are walked 3, 6, 2, 5, 1, 4.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=10   Mass1=1
   Joint=20   Mass1=2
   Joint=30   Mass1=3
   Joint=40   Mass1=4
   Joint=50   Mass1=5
   Joint=60   Mass1=6
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t30,     3,     0,     0,     0,     0,     0",
                          "\t60,     6,     0,     0,     0,     0,     0",
                          "\t20,     2,     0,     0,     0,     0,     0",
                          "\t50,     5,     0,     0,     0,     0,     0",
                          "\t10,     1,     0,     0,     0,     0,     0",
                          "\t40,     4,     0,     0,     0,     0,     0"));
}

TEST(NodalMasses, MassesOfOneJointAreAddedUpWhereItIsMetFirst) {
  // Rows 1, 2, 3 are walked 3, 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=8   Mass1=1   Mass2=2   Mass3=3   MMI1=4   MMI2=5   MMI3=6
   Joint=9   Mass1=7
   Joint=8   Mass1=10   Mass2=20   Mass3=30   MMI1=40   MMI2=50   MMI3=60
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t8,    11,    22,    33,    44,    55,    66",
                          "\t9,     7,     0,     0,     0,     0,     0"));
}

TEST(NodalMasses, LabelsAreTwoJointsEvenWhereTheirNumbersAreOne) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=5   Mass1=1
   Joint=05   Mass1=2
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t5,     2,     0,     0,     0,     0,     0",
                          "\t5,     1,     0,     0,     0,     0,     0"));
}

TEST(NodalMasses, LocalMassIsTurnedIntoGlobalAxes) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=1   CoordSys=Local   Mass1=1   Mass2=2   Mass3=3   MMI1=4   MMI2=5   MMI3=6
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t1,     2,     3,     1,     5,     6,     4"));
}

TEST(NodalMasses, MassOfAnotherSystemIsCopiedOnAJointWithAxes) {
  for (const std::string system :
       {"CoordSys=GLOBAL   ", "CoordSys=RING   ", "CoordSys=local   ", "CoordSys=LOCAL   ", ""}) {
    SCOPED_TRACE(system);
    const ConversionRun run =
        ConvertWithAxes("\nTABLE:  \"JOINT ADDED MASS ASSIGNMENTS\"\n   Joint=1   " + system +
                        "Mass1=1   Mass2=2   Mass3=3   MMI1=4   MMI2=5   MMI3=6\n");
    EXPECT_THAT(run.Lines("*NODALMASS"),
                ElementsAre("\t1,     1,     2,     3,     4,     5,     6"));
  }
}

TEST(NodalMasses, LocalMassIsCopiedOnAJointWithoutAxes) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=2   CoordSys=Local   Mass1=1   Mass2=0.000001   Mass3=3   MMI1=-0   MMI2=5   MMI3=6
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t2,     1, 1e-06,     3,    -0,     5,     6"));
}

TEST(NodalMasses, TurnedMassBelowAHundredThousandthIsZero) {
  const ConversionRun run = ConvertWithAxes(R"(
TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=1   CoordSys=Local   Mass1=0.00000999   Mass2=0.00001   Mass3=-0   MMI1=-0.00001   MMI2=-0.00000999   MMI3=0
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t1, 1e-05,     0,     0,     0,     0, -1e-05"));
}

TEST(NodalMasses, LabelWithALetterIsItsPositionAndAnUnknownOneZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=B   XorR=1   Y=0   Z=0

TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=B   Mass1=1
   Joint=9   Mass1=2
)");
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t0,     2,     0,     0,     0,     0,     0",
                          "\t2,     1,     0,     0,     0,     0,     0"));
}

TEST(NodalMasses, NoRowsGiveNoSection) {
  const ConversionRun run = Convert("TABLE:  \"JOINT ADDED MASS ASSIGNMENTS\"\n\n");
  EXPECT_EQ(run.Section("*NODALMASS"), "");
  EXPECT_EQ(run.Result, 0);
}

}  // namespace
