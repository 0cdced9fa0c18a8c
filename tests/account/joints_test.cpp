#include "support/account_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Joints 1 to 3 of a frame.
constexpr const char* kJoints = R"(TABLE:  "JOINT COORDINATES"
   Joint=1   CoordSys=GLOBAL   CoordType=Cartesian   XorR=0   Y=0   Z=0   SpecialJt=No   GlobalX=0   GlobalY=0   GlobalZ=0
   Joint=2   CoordSys=GLOBAL   CoordType=Cartesian   XorR=0   Y=0   Z=4   SpecialJt=Yes   GlobalX=0   GlobalY=0   GlobalZ=4
   Joint=3   CoordSys=GLOBAL   CoordType=Cartesian   XorR=6   Y=0   Z=4   SpecialJt=No   GlobalX=6   GlobalY=0   GlobalZ=4

)";

/// What is lost of these tables of a model with joints 1 to 3.
std::vector<std::string> LossesOf(const std::string& tables) {
  return KeepAccount(kJoints + tables).Losses();
}

std::string Restraints(const std::string& rows) {
  return SourceTable("JOINT RESTRAINT ASSIGNMENTS", rows);
}
std::string Springs(const std::string& rows) {
  return SourceTable("JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED", rows);
}
std::string Coupled(const std::string& rows) {
  return SourceTable("JOINT SPRING ASSIGNMENTS 2 - COUPLED", rows);
}
std::string Typical(const std::string& rows) {
  return SourceTable("JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL", rows);
}
std::string Advanced(const std::string& rows) {
  return SourceTable("JOINT LOCAL AXES ASSIGNMENTS 2 - ADVANCED", rows);
}
std::string Masses(const std::string& rows) {
  return SourceTable("JOINT ADDED MASS ASSIGNMENTS", rows);
}

std::string TurnedBy30() {
  return Typical("   Joint=1   AngleA=30   AngleB=0   AngleC=0   AdvanceAxes=No\n");
}
std::string AsksForAdvanced() {
  return Typical("   Joint=1   AngleA=0   AngleB=0   AngleC=0   AdvanceAxes=Yes\n");
}

/// Advanced axes of joint 1, the axis by a direction.
std::string AxesOfJoint1(const std::string& axis, const std::string& plane) {
  return "   Joint=1   LocalPlane=12   AxOption1=\"Coord Dir\"   " + axis + "   " + plane + "\n";
}
constexpr const char* kAxisZ = "AxCoordSys=GLOBAL   AxCoordDir=Z";
constexpr const char* kPlaneX =
    "PlOption1=\"Coord Dir\"   PlCoordSys=GLOBAL   CoordDir1=X   CoordDir2=Y";

TEST(AccountOfJoints, RowsOfASoundModelAreConverted) {
  const AccountRun run = KeepAccount(
      kJoints + Restraints("   Joint=1   U1=Yes   U2=Yes   U3=Yes   R1=No   R2=No   R3=No\n") +
      Springs("   Joint=1   CoordSys=Local   U1=0   U2=0   U3=500   R1=0   R2=0   R3=0\n"
              "   Joint=2   CoordSys=GLOBAL   U1=100   U2=0   U3=500   R1=0   R2=0   R3=0\n") +
      Coupled("   Joint=3   CoordSys=GLOBAL   U1=10   U2=20   U1U2=5   U3=30   R1=1   R2=2   R3=3\n"
              "   Joint=1   CoordSys=Local   U1=10   U1U2=0   U3=30\n") +
      Typical("   Joint=1   AngleA=30   AngleB=0   AngleC=0   AdvanceAxes=No\n"
              "   Joint=2   AngleA=0   AngleB=0   AngleC=0   AdvanceAxes=Yes\n") +
      Advanced("   Joint=2   LocalPlane=31   AxOption1=\"User Vector\"   AxCoordSys=GLOBAL   "
               "PlOption1=\"Two Joints\"   PlCoordSys=FLOOR   PlVecJt1=2   PlVecJt2=3   AxVecX=0   "
               "AxVecY=0   AxVecZ=1\n") +
      Masses("   Joint=1   CoordSys=GLOBAL   Mass1=2   Mass2=2   Mass3=2\n"
             "   Joint=3   CoordSys=Local   Mass1=2   Mass2=2   Mass3=2\n"));
  EXPECT_THAT(run.Losses(), IsEmpty());
  EXPECT_THAT(run.Tables(),
              ElementsAre("JOINT COORDINATES: 3 rows, 3 converted",
                          "JOINT RESTRAINT ASSIGNMENTS: 1 rows, 1 converted",
                          "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED: 2 rows, 2 converted",
                          "JOINT SPRING ASSIGNMENTS 2 - COUPLED: 2 rows, 2 converted",
                          "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL: 2 rows, 2 converted",
                          "JOINT LOCAL AXES ASSIGNMENTS 2 - ADVANCED: 1 rows, 1 converted",
                          "JOINT ADDED MASS ASSIGNMENTS: 2 rows, 2 converted"));
}

// ---- Joints ----

TEST(AccountOfJoints, JointsOfOneLabelAreChangedAndTheOthersAreNot) {
  EXPECT_THAT(KeepAccount(SourceTable("JOINT COORDINATES",
                                      "   Joint=7\n   Joint=8   XorR=1\n   Joint=7   XorR=2\n"))
                  .Losses(),
              ElementsAre("Joint=7: joint-number-shared", "Joint=7: joint-number-shared"));
}

TEST(AccountOfJoints, LabelsThatAreReadAsOneNumberAreChanged) {
  EXPECT_THAT(
      KeepAccount(SourceTable("JOINT COORDINATES", "   Joint=7\n   Joint=007   XorR=1\n")).Losses(),
      ElementsAre("Joint=7: joint-number-shared", "Joint=007: joint-number-shared"));
}

TEST(AccountOfJoints, WordsAsLabelsShareANumberOnlyIfTheyAreTheSame) {
  EXPECT_THAT(
      KeepAccount(
          SourceTable("JOINT COORDINATES",
                      "   Joint=A\n   Joint=B   XorR=1\n   Joint=007   XorR=2\n   Joint=7   "
                      "XorR=3\n   Joint=B   XorR=4\n"))
          .Losses(),
      ElementsAre("Joint=B: joint-number-shared", "Joint=B: joint-number-shared"));
}

TEST(AccountOfJoints, AJointOfAUsersSystemIsChangedUnlessItsGlobalCoordinatesAreWritten) {
  EXPECT_THAT(KeepAccount(SourceTable("JOINT COORDINATES",
                                      "   Joint=1   CoordSys=TOWER   XorR=1   Y=0   Z=0   "
                                      "SpecialJt=No   GlobalX=11   GlobalY=0   GlobalZ=0\n"
                                      "   Joint=2   CoordSys=TOWER   XorR=2   Y=0   Z=0   "
                                      "SpecialJt=Yes   GlobalX=12   GlobalY=0   GlobalZ=0\n"))
                  .Losses(),
              ElementsAre("Joint=1: joint-coordinates-differ"));
}

TEST(AccountOfJoints, ASpecialJointWithoutGlobalCoordinatesIsChanged) {
  EXPECT_THAT(KeepAccount(SourceTable("JOINT COORDINATES",
                                      "   Joint=1   XorR=1   SpecialJt=Yes\n"
                                      "   Joint=2   XorR=0   SpecialJt=Yes\n"))
                  .Losses(),
              ElementsAre("Joint=1: joint-coordinates-differ"));
}

// ---- Rows of joints that are not there ----

TEST(AccountOfJoints, RowsOfAnUnknownJointAreChangedInEveryTable) {
  const std::string row = "   Joint=9\n";
  EXPECT_THAT(LossesOf(Restraints(row) + Springs(row) + Coupled(row) + Typical(row) + Masses(row)),
              ElementsAre("Joint=9: joint-not-there", "Joint=9: joint-not-there",
                          "Joint=9: joint-not-there", "Joint=9: joint-not-there",
                          "Joint=9: joint-not-there"));
}

TEST(AccountOfJoints, ALabelThatIsReadAsTheNumberOfAnotherJointIsTold) {
  EXPECT_THAT(LossesOf(Restraints("   Joint=2A   U1=Yes\n")),
              ElementsAre("Joint=2A: joint-taken-from-another"));
}

TEST(AccountOfJoints, AmongJointsThatAreNotAllNumbersAnUnknownOneIsNotThere) {
  EXPECT_THAT(KeepAccount(SourceTable("JOINT COORDINATES", "   Joint=2\n   Joint=TOP   Z=3\n") +
                          Restraints("   Joint=TOP   U1=Yes\n   Joint=2A   U1=Yes\n"))
                  .Losses(),
              ElementsAre("Joint=2A: joint-not-there"));
}

// ---- Springs and masses ----

TEST(AccountOfJoints, SpringsAndMassesThatAreTurnedAreChangedUnlessTheyStayAsTheyAre) {
  EXPECT_THAT(LossesOf(TurnedBy30() +
                       Springs("   Joint=1   CoordSys=GLOBAL   U1=100   U2=200\n"
                               "   Joint=1   CoordSys=GLOBAL   U3=300\n") +
                       Masses("   Joint=1   CoordSys=Local   Mass1=2   Mass2=2   Mass3=2\n"
                              "   Joint=1   CoordSys=Local   Mass3=2\n")),
              ElementsAre("Joint=1: turned-as-vector", "Joint=1: turned-as-vector"));
}

TEST(AccountOfJoints, RowsOfAUsersSystemAreChanged) {
  EXPECT_THAT(
      LossesOf(Springs("   Joint=1   CoordSys=TOWER   U1=100\n") +
               Coupled("   Joint=1   CoordSys=TOWER   U1=100\n") +
               Masses("   Joint=1   CoordSys=TOWER   Mass1=2\n")),
      ElementsAre("Joint=1: coordinate-system-ignored", "Joint=1: coordinate-system-ignored",
                  "Joint=1: coordinate-system-ignored"));
}

TEST(AccountOfJoints, CoupledSpringsOfGlobalDirectionsAtATurnedJointAreDropped) {
  const AccountRun run = KeepAccount(kJoints + TurnedBy30() +
                                     Coupled("   Joint=1   CoordSys=GLOBAL   U1=10   R1R2=1\n"
                                             "   Joint=2   CoordSys=GLOBAL   U1=10\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Joint=1: coupled-spring-at-turned-joint"));
  EXPECT_EQ(run.Tables().back(),
            "JOINT SPRING ASSIGNMENTS 2 - COUPLED: 2 rows, 1 converted, 1 dropped");
}

TEST(AccountOfJoints, ADiagonalBehindAnotherCouplingIsChanged) {
  for (const char* values : {"U1U2=5   U2=20", "U2U3=5   U3=20", "U2R1=5   R1=20", "U1R2=5   R2=20",
                             "U3R3=5   R3=20", "U1U2=5"}) {
    SCOPED_TRACE(values);
    EXPECT_THAT(LossesOf(Coupled("   Joint=1   CoordSys=Local   " + std::string(values) + "\n")),
                ElementsAre("Joint=1: coupled-spring-diagonal"));
  }
}

TEST(AccountOfJoints, CouplingsOfRotationsAreChanged) {
  for (const char* coupling : {"R1R2", "R1R3", "R2R3"}) {
    SCOPED_TRACE(coupling);
    EXPECT_THAT(LossesOf(Coupled("   Joint=1   CoordSys=Local   R1=1   R2=2   R3=3   " +
                                 std::string(coupling) + "=0.5\n")),
                ElementsAre("Joint=1: coupled-spring-rotations"));
  }
}

// ---- Local axes ----

TEST(AccountOfJoints, AdvancedAxesWithoutARowLeaveTheTypicalOnesChanged) {
  EXPECT_THAT(LossesOf(AsksForAdvanced()), ElementsAre("Joint=1: joint-axes-missing"));
}

TEST(AccountOfJoints, AnglesOfAJointWithAdvancedAxesAreChanged) {
  for (const char* angle : {"AngleA=30", "AngleB=-30", "AngleC=30"}) {
    SCOPED_TRACE(angle);
    EXPECT_THAT(LossesOf(Typical("   Joint=1   " + std::string(angle) + "   AdvanceAxes=Yes\n") +
                         Advanced(AxesOfJoint1(kAxisZ, kPlaneX))),
                ElementsAre("Joint=1: joint-axes-angles"));
  }
}

TEST(AccountOfJoints, AdvancedAxesThatNoTypicalRowAsksForAreDropped) {
  for (const std::string& typical : {std::string(), TurnedBy30()}) {
    SCOPED_TRACE(typical);
    EXPECT_THAT(LossesOf(typical + Advanced(AxesOfJoint1(kAxisZ, kPlaneX))),
                ElementsAre("Joint=1: joint-axes-not-asked-for"));
  }
}

TEST(AccountOfJoints, OfTwoRowsOfAdvancedAxesTheFirstOfTheWalkCounts) {
  // rows are walked in the order 2, 1
  EXPECT_THAT(LossesOf(AsksForAdvanced() + Advanced(AxesOfJoint1(kAxisZ, "PlOption1=Second") +
                                                    AxesOfJoint1(kAxisZ, kPlaneX))),
              ElementsAre("Joint=1: row-of-same-name"));
}

TEST(AccountOfJoints, AdvancedAxesThatSpanNoPlaneAreChanged) {
  for (const char* axis : {"AxCoordDir=X", "AxCoordDir=Radial"}) {
    SCOPED_TRACE(axis);
    EXPECT_THAT(LossesOf(AsksForAdvanced() + Advanced(AxesOfJoint1(axis, "CoordDir1=-X"))),
                ElementsAre("Joint=1: joint-axes-span-no-plane"));
  }
}

TEST(AccountOfJoints, AdvancedAxesThroughAnUnknownJointAreChanged) {
  for (const char* joints : {"PlVecJt1=9   PlVecJt2=3", "PlVecJt1=3   PlVecJt2=9"}) {
    SCOPED_TRACE(joints);
    EXPECT_THAT(
        LossesOf(AsksForAdvanced() + Advanced(AxesOfJoint1(kAxisZ, "PlOption1=\"Two Joints\"   " +
                                                                       std::string(joints)))),
        ElementsAre("Joint=1: joint-axes-joint-unknown"));
  }
}

TEST(AccountOfJoints, AdvancedAxesInAUsersSystemAreChanged) {
  EXPECT_THAT(LossesOf(AsksForAdvanced() +
                       Advanced(AxesOfJoint1("AxCoordSys=TOWER   AxCoordDir=Z", kPlaneX))),
              ElementsAre("Joint=1: coordinate-system-ignored"));
  EXPECT_THAT(LossesOf(AsksForAdvanced() +
                       Advanced(AxesOfJoint1(
                           kAxisZ, "PlOption1=\"User Vector\"   PlCoordSys=TOWER   PlVecX=1"))),
              ElementsAre("Joint=1: coordinate-system-ignored"));
}

}  // namespace
