#include "support/account_of_table.h"
#include "support/axes_tables.h"
#include "support/load_tables.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

constexpr const char* kForces = "JOINT LOADS - FORCE";
constexpr const char* kDisplacements = "JOINT LOADS - GROUND DISPLACEMENT";

/// A table of loads beside the static case WIND and the joints 1 and 2, of which joint 1 has axes
/// of its own.
AccountRun Keep(const char* title, std::string_view rows) {
  return KeepAccount(
      StaticCases({"WIND"}) +
      SourceTable("JOINT COORDINATES", "   Joint=1   XorR=0\n   Joint=2   XorR=4\n") +
      kAxesOfJoint1 + "\n" + SourceTable(title, rows));
}

TEST(AccountOfJointLoadsTest, ForcesInBothSystemsAreConverted) {
  const AccountRun run = Keep(kForces,
                              "   Joint=1   LoadCase=WIND   CoordSys=Local   F1=10   F2=3   M3=2\n"
                              "   Joint=2   LoadCase=WIND   CoordSys=GLOBAL   F1=10\n"
                              "   Joint=2   LoadCase=WIND   F1=10\n");
  EXPECT_EQ(FatesOf(run, kForces), "3 rows, 3 converted");
}

TEST(AccountOfJointLoadsTest, DisplacementsInBothSystemsAreConverted) {
  const AccountRun run = Keep(kDisplacements,
                              "   Joint=1   LoadCase=WIND   CoordSys=GLOBAL   U1=0.01   U2=0.02\n"
                              "   Joint=2   LoadCase=WIND   CoordSys=Local   U1=0.000001\n");
  EXPECT_EQ(FatesOf(run, kDisplacements), "2 rows, 2 converted");
}

TEST(AccountOfJointLoadsTest, LoadsOfALoadCaseThatNoStaticCaseNamesAreDropped) {
  EXPECT_THAT(LossesOf(Keep(kForces, "   Joint=1   LoadCase=QUAKE   F1=10\n"), kForces),
              ElementsAre("Joint=1: load-case-not-static"));
  EXPECT_THAT(
      LossesOf(Keep(kDisplacements, "   Joint=1   LoadCase=QUAKE   U1=0.01\n"), kDisplacements),
      ElementsAre("Joint=1: load-case-not-static"));
}

TEST(AccountOfJointLoadsTest, ALoadOfAJointThatIsNotThereIsChanged) {
  const AccountRun run = Keep(kForces, "   Joint=7   LoadCase=WIND   F1=10\n");
  EXPECT_THAT(run.Run.LoadLines("WIND", "*CONLOAD"),
              ElementsAre("\t7,    10,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(LossesOf(run, kForces), ElementsAre("Joint=7: joint-not-there"));
}

TEST(AccountOfJointLoadsTest, ALoadThatReadsAsThatOfAnotherJointIsChanged) {
  const AccountRun run = Keep(kForces, "   Joint=2A   LoadCase=WIND   F1=10\n");
  EXPECT_THAT(run.Run.LoadLines("WIND", "*CONLOAD"),
              ElementsAre("\t2,    10,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(LossesOf(run, kForces), ElementsAre("Joint=2A: joint-taken-from-another"));
}

TEST(AccountOfJointLoadsTest, ALoadOfAnUnknownJointAmongLabelsOfWordsIsChanged) {
  const AccountRun run =
      KeepAccount(StaticCases({"WIND"}) + SourceTable("JOINT COORDINATES", "   Joint=TOP\n") +
                  SourceTable(kForces,
                              "   Joint=TOP   LoadCase=WIND   F1=10\n"
                              "   Joint=1   LoadCase=WIND   F1=10\n"));
  EXPECT_THAT(LossesOf(run, kForces), ElementsAre("Joint=1: joint-not-there"));
}

TEST(AccountOfJointLoadsTest, AForceInASystemOfTheUsersIsChanged) {
  const AccountRun run = Keep(kForces, "   Joint=1   LoadCase=WIND   CoordSys=CSYS1   F1=10\n");
  EXPECT_THAT(LossesOf(run, kForces), ElementsAre("Joint=1: coordinate-system-ignored"));
}

TEST(AccountOfJointLoadsTest, ADisplacementInASystemOfTheUsersIsChanged) {
  const AccountRun run =
      Keep(kDisplacements, "   Joint=1   LoadCase=WIND   CoordSys=CSYS1   U1=0.01\n");
  EXPECT_THAT(LossesOf(run, kDisplacements), ElementsAre("Joint=1: coordinate-system-ignored"));
}

TEST(AccountOfJointLoadsTest, ASmallComponentThatIsTurnedIsChanged) {
  // Each component is turned to another axis; those of joint 2 stay.
  const AccountRun run =
      Keep(kDisplacements,
           "   Joint=1   LoadCase=WIND   CoordSys=GLOBAL   U1=0.001   U2=0.000005\n"
           "   Joint=1   LoadCase=WIND   CoordSys=GLOBAL   R1=0.001   R2=0.000005\n"
           "   Joint=2   LoadCase=WIND   CoordSys=GLOBAL   U1=0.001   U2=0.000005\n");
  EXPECT_THAT(LossesOf(run, kDisplacements),
              ElementsAre("Joint=1: component-near-zero", "Joint=1: component-near-zero"));
  const AccountRun forces =
      Keep(kForces, "   Joint=1   LoadCase=WIND   CoordSys=Local   F1=0.000005\n");
  EXPECT_THAT(LossesOf(forces, kForces), ElementsAre("Joint=1: component-near-zero"));
}

}  // namespace
