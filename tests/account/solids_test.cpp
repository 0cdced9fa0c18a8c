#include "support/account_run.h"
#include "support/box_joints.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kBox =
    "   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   "
    "Joint8=8\n";
constexpr const char* kBoxIsABlock = "   Solid=1   SolidProp=BLOCK\n";
constexpr const char* kBlock = "   SolidProp=BLOCK   Material=C30\n";

AccountRun KeepAccountOfSolids(const std::string& solids, const std::string& assignments,
                               const std::string& properties) {
  return KeepAccount(BoxJoints() + ConcreteMaterial() +
                     SourceTable("SOLID PROPERTY DEFINITIONS", properties) +
                     SourceTable("CONNECTIVITY - SOLID", solids) +
                     SourceTable("SOLID PROPERTY ASSIGNMENTS", assignments));
}

TEST(AccountOfSolids, SoundSolidsWithTheirPropertiesAreConverted) {
  const AccountRun run = KeepAccountOfSolids(
      std::string(kBox) +
          "   Solid=2   Joint1=1   Joint2=2   Joint3=3   Joint4=5   Joint5=6   Joint6=7\n",
      std::string(kBoxIsABlock) + "   Solid=2   SolidProp=BLOCK\n", kBlock);
  EXPECT_THAT(run.Losses(), IsEmpty());
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 8 rows, 8 converted",
                                        "MATERIAL PROPERTIES 1 - GENERAL: 1 rows, 1 converted",
                                        "SOLID PROPERTY DEFINITIONS: 1 rows, 1 converted",
                                        "CONNECTIVITY - SOLID: 2 rows, 2 converted",
                                        "SOLID PROPERTY ASSIGNMENTS: 2 rows, 2 converted"));
}

TEST(AccountOfSolids, ASolidWithoutAnAssignmentIsChanged) {
  const AccountRun run = KeepAccountOfSolids(kBox, "   Solid=9   SolidProp=BLOCK\n", kBlock);
  EXPECT_THAT(run.Losses(),
              ElementsAre("SolidProp=BLOCK: property-not-used", "Solid=1: solid-without-property",
                          "Solid=9: solid-unknown"));
}

TEST(AccountOfSolids, AnAssignmentOfAnUnknownPropertyIsChanged) {
  const AccountRun run = KeepAccountOfSolids(kBox, "   Solid=1   SolidProp=STONE\n", "");
  EXPECT_THAT(run.Losses(), ElementsAre("Solid=1: solid-property-unknown"));
}

TEST(AccountOfSolids, APropertyOfAnUnknownMaterialIsChangedAndSoAreItsAssignments) {
  const AccountRun run =
      KeepAccountOfSolids(kBox, kBoxIsABlock, "   SolidProp=BLOCK   Material=C99\n");
  EXPECT_THAT(run.Losses(), ElementsAre("SolidProp=BLOCK: solid-material-unknown",
                                        "Solid=1: solid-material-unknown"));
}

TEST(AccountOfSolids, OfTwoAssignmentsAndPropertiesTheOnesThatTheWalkMeetsLaterAreDropped) {
  // In each table row 2 is walked before row 1.
  const AccountRun run = KeepAccountOfSolids(kBox, std::string(kBoxIsABlock) + kBoxIsABlock,
                                             std::string(kBlock) + kBlock);
  ASSERT_THAT(run.Losses(),
              ElementsAre("SolidProp=BLOCK: row-of-same-name", "Solid=1: row-of-same-name"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 1U);
  EXPECT_EQ(run.Rows.Losses[1].Position, 1U);
}

TEST(AccountOfSolids, APropertyThatNoSolidHasIsNoLoss) {
  const AccountRun run = KeepAccountOfSolids(
      kBox, kBoxIsABlock, std::string(kBlock) + "   SolidProp=STONE   Material=C30\n");
  EXPECT_THAT(run.Losses(), ElementsAre("SolidProp=STONE: property-not-used"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfSolids, ASolidWithAnUnknownOrAMissingCornerIsChanged) {
  for (const char* corners : {"Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=66",
                              "Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   "
                              "Joint7=7",
                              "Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   "
                              "Joint8=8"}) {
    SCOPED_TRACE(corners);
    const AccountRun run =
        KeepAccountOfSolids("   Solid=1   " + std::string(corners) + "\n", kBoxIsABlock, kBlock);
    EXPECT_THAT(run.Losses(), ElementsAre("Solid=1: end-or-corner-unknown"));
  }
}

std::string FrameAndAreaOfLabels(const std::string& frame, const std::string& area) {
  return SourceTable("CONNECTIVITY - FRAME", "   Frame=" + frame + "   JointI=1   JointJ=2\n") +
         SourceTable("CONNECTIVITY - AREA",
                     "   Area=" + area + "   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n");
}

bool SharesItsNumber(const std::string& frame, const std::string& area) {
  const AccountRun run = KeepAccount(BoxJoints() + FrameAndAreaOfLabels(frame, area) +
                                     SourceTable("CONNECTIVITY - SOLID", kBox));
  const std::vector<std::string> losses = run.Losses();
  return std::ranges::find(losses, "Solid=1: element-number-shared") != losses.end();
}

TEST(AccountOfSolids, ASolidThatKeepsTheLabelOfAnAreaIsChanged) {
  EXPECT_TRUE(SharesItsNumber("7", "1"));
  EXPECT_FALSE(SharesItsNumber("7", "2"));
  EXPECT_FALSE(SharesItsNumber("1", "1"));   // a frame of the label, too: all are renumbered
  EXPECT_FALSE(SharesItsNumber("B7", "1"));  // renumbered for the name
}

TEST(AccountOfSolids, GravityLoadsAreDropped) {
  const AccountRun run = KeepAccount(
      SourceTable("SOLID LOADS - GRAVITY", "   Solid=1   LoadCase=DEAD   MultiplierZ=-1\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Solid=1: gravity-of-solid-or-link"));
  EXPECT_TRUE(run.HasLossOfRows());
}

TEST(AccountOfSolids, MeshSettingsAndMaterialTemperaturesAreNotLookedAt) {
  const AccountRun run =
      KeepAccount(SourceTable("SOLID AUTO MESH ASSIGNMENTS", "   Solid=1   AutoMesh=Yes\n") +
                  SourceTable("SOLID MATERIAL TEMPERATURES", "   Solid=1   Temp=11\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Solid=1: table-not-read", "Solid=1: table-not-read"));
  EXPECT_THAT(run.Tables(), ElementsAre("SOLID AUTO MESH ASSIGNMENTS: 1 rows, 1 not looked at",
                                        "SOLID MATERIAL TEMPERATURES: 1 rows, 1 not looked at"));
}

}  // namespace
