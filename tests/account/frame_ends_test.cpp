#include "support/account_run.h"
#include "support/frame_tables.h"

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// The reasons of single rows of sound frames with these further tables.
std::vector<std::string> LossesOfFrames(const std::string& tables) {
  return KeepAccount(SoundFrames() + tables).Losses();
}

std::string Releases(std::string_view rows) {
  return SourceTable("FRAME RELEASE ASSIGNMENTS 1 - GENERAL", rows);
}

std::string PartialFixity(std::string_view rows) {
  return SourceTable("FRAME RELEASE ASSIGNMENTS 2 - PARTIAL FIXITY", rows);
}

std::string EndLengths(std::string_view rows) {
  return SourceTable("FRAME OFFSET ALONG LENGTH ASSIGNMENTS", rows);
}

std::string InsertionPoints(std::string_view rows) {
  return SourceTable("FRAME INSERTION POINT ASSIGNMENTS", rows);
}

std::string InitialForces(std::string_view rows) {
  return SourceTable("FRAME P-DELTA FORCE ASSIGNMENTS", rows);
}

TEST(AccountOfFrameEndsTest, SoundRowsAreConverted) {
  const AccountRun run = KeepAccount(
      SoundFrames() + Releases("   Frame=1   M3I=Yes   PartialFix=No\n") +
      EndLengths("   Frame=1   LengthI=0.2   LengthJ=0   RigidFactor=0\n") +
      InsertionPoints(
          "   Frame=2   CardinalPt=\"8 (Top Center)\"   CoordSys=GLOBAL   JtOffsetXI=0.1\n"
          "   Frame=1   CardinalPt=\"10 (Centroid)\"\n") +
      InitialForces("   Frame=1   Direction=\"Local 1\"   Force=-20\n"));
  EXPECT_THAT(run.Losses(), IsEmpty());
  EXPECT_THAT(run.Tables(), Contains("FRAME INSERTION POINT ASSIGNMENTS: 2 rows, 2 converted"));
}

// ---- Releases ----

TEST(AccountOfFrameEndsTest, TheFirstFrameWithoutPartialFixityEndsTheReleases) {
  // Rows 1 and 2 are walked in the order 2, 1: row 2 goes over, and is number 2 of a list of one.
  EXPECT_THAT(
      LossesOfFrames(Releases("   Frame=1   M3I=Yes   PartialFix=No\n"
                              "   Frame=2   M3I=Yes   PartialFix=Yes\n") +
                     PartialFixity("   Frame=2   M3I=0\n")),
      ElementsAre("Frame=1: partial-fixity-row-missing", "Frame=2: partial-fixity-row-missing",
                  "Frame=2: partial-fixity-row-missing"));
}

TEST(AccountOfFrameEndsTest, ReleasesBeforeTheEndAreConverted) {
  // Rows 1, 2 and 3 are walked in the order 2, 1, 3.
  EXPECT_THAT(LossesOfFrames(Releases("   Frame=1   M3I=Yes   PartialFix=Yes\n"
                                      "   Frame=2   M3I=Yes   PartialFix=Yes\n"
                                      "   Frame=3   M3I=Yes   PartialFix=Yes\n") +
                             PartialFixity("   Frame=1   M3I=0\n   Frame=2   M3I=1\n")),
              ElementsAre("Frame=3: partial-fixity-row-missing"));
}

TEST(AccountOfFrameEndsTest, PartialFixityWithoutItsTableIsChanged) {
  EXPECT_THAT(LossesOfFrames(Releases("   Frame=1   M3I=Yes   PartialFix=Yes\n")),
              ElementsAre("Frame=1: partial-fixity-not-stated"));
}

TEST(AccountOfFrameEndsTest, TheStiffnessOfPartialFixityIsChanged) {
  EXPECT_THAT(LossesOfFrames(Releases("   Frame=1   M3J=Yes   PartialFix=Yes\n") +
                             PartialFixity("   Frame=1   M3J=500\n")),
              ElementsAre("Frame=1: partial-fixity-stiffness"));
  EXPECT_THAT(LossesOfFrames(Releases("   Frame=1   PI=Yes   PartialFix=Yes\n") +
                             PartialFixity("   Frame=1   PI=-500\n")),
              ElementsAre("Frame=1: partial-fixity-stiffness"));
}

TEST(AccountOfFrameEndsTest, PartialFixityThatIsNotInUseIsNoLoss) {
  const AccountRun run =
      KeepAccount(SoundFrames() + Releases("   Frame=1   M3J=Yes   PartialFix=No\n") +
                  PartialFixity("   Frame=1   M3J=500\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Frame=1: switched-off"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfFrameEndsTest, PartialFixityOfAFrameWithoutReleasesIsDropped) {
  EXPECT_THAT(LossesOfFrames(PartialFixity("   Frame=1   M3J=500\n   Frame=9   M3J=500\n")),
              ElementsAre("Frame=1: partial-fixity-without-release", "Frame=9: frame-unknown"));
}

TEST(AccountOfFrameEndsTest, OfPartialFixityOfOneFrameASingleRowCounts) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const AccountRun run =
      KeepAccount(SoundFrames() + Releases("   Frame=1   M3J=Yes   PartialFix=Yes\n") +
                  PartialFixity("   Frame=1   M3J=0\n   Frame=1   M3J=1\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Frame=1: row-of-same-name"));
  ASSERT_EQ(run.Rows.Losses.size(), 1U);
  EXPECT_EQ(run.Rows.Losses[0].Position, 1U);
}

TEST(AccountOfFrameEndsTest, RowsOfUnknownFramesAreWrittenAllTheSame) {
  EXPECT_THAT(
      LossesOfFrames(Releases("   Frame=9   M3I=Yes\n") + EndLengths("   Frame=9   LengthI=0.2\n") +
                     InsertionPoints("   Frame=9   CoordSys=GLOBAL   JtOffsetXI=0.1\n") +
                     InitialForces("   Frame=9   Direction=\"X Proj\"   Force=1\n")),
      ElementsAre("Frame=9: element-not-there", "Frame=9: end-lengths-replaced",
                  "Frame=9: element-not-there", "Frame=9: element-not-there",
                  "Frame=9: element-not-there"));
}

TEST(AccountOfFrameEndsTest, RowsOfUnknownFramesOfARenumberedModelHaveAnotherNumber) {
  EXPECT_THAT(
      KeepAccount(FrameJoints() +
                  SourceTable("CONNECTIVITY - FRAME", "   Frame=B1   JointI=1   JointJ=2\n") +
                  Releases("   Frame=B9   M3I=Yes\n"))
          .Losses(),
      Contains("Frame=B9: element-taken-from-another"));
}

// ---- Offsets ----

TEST(AccountOfFrameEndsTest, EndLengthsOfZeroAreNoLoss) {
  const AccountRun run = KeepAccount(
      SoundFrames() + EndLengths("   Frame=1   LengthI=0   LengthJ=0   RigidFactor=0.5\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Frame=1: end-lengths-zero"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfFrameEndsTest, TheRigidFactorOfEndLengthsIsChanged) {
  EXPECT_THAT(
      LossesOfFrames(EndLengths("   Frame=1   LengthI=0.2   LengthJ=0   RigidFactor=0.5\n")),
      ElementsAre("Frame=1: rigid-factor"));
}

TEST(AccountOfFrameEndsTest, EndLengthsOfAFrameWithAJointOffsetAreDropped) {
  EXPECT_THAT(LossesOfFrames(EndLengths("   Frame=1   LengthI=0.2\n   Frame=2   LengthI=0.3\n") +
                             InsertionPoints("   Frame=2   CoordSys=GLOBAL   JtOffsetXI=0.1\n")),
              ElementsAre("Frame=2: end-lengths-replaced"));
}

TEST(AccountOfFrameEndsTest, AJointOffsetInLocalDirectionsIsChanged) {
  EXPECT_THAT(LossesOfFrames(InsertionPoints("   Frame=1   CoordSys=Local   JtOffsetYI=0.1\n")),
              ElementsAre("Frame=1: joint-offset-not-global"));
}

TEST(AccountOfFrameEndsTest, AJointOffsetInASystemOfTheUsersIsChanged) {
  EXPECT_THAT(
      LossesOfFrames(InsertionPoints("   Frame=1   CoordSys=CSYS1   JtOffsetYI=0.1\n"
                                     "   Frame=2   CoordSys=Element   JtOffsetXI=0.1\n")),
      ElementsAre("Frame=1: joint-offset-not-global", "Frame=2: coordinate-system-ignored"));
}

TEST(AccountOfFrameEndsTest, OfJointOffsetsOfOneFrameTheLastCounts) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const AccountRun run = KeepAccount(
      SoundFrames() + InsertionPoints("   Frame=1   CoordSys=GLOBAL   JtOffsetXI=0.1\n"
                                      "   Frame=1   CoordSys=GLOBAL   JtOffsetXI=0.2\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Frame=1: joint-offset-stated-twice"));
  ASSERT_EQ(run.Rows.Losses.size(), 1U);
  EXPECT_EQ(run.Rows.Losses[0].Position, 2U);
}

TEST(AccountOfFrameEndsTest, AnInsertionPointOfAnUnknownFrameIsDropped) {
  EXPECT_THAT(LossesOfFrames(InsertionPoints("   Frame=9   CardinalPt=\"8 (Top Center)\"\n")),
              ElementsAre("Frame=9: frame-unknown"));
}

// ---- Cardinal points ----

/// Sound frames of one section, with these insertion points. Assignment 2 is walked first, so that
/// frame 2 gives the section its offset.
std::vector<std::string> LossesOfPoints(std::string_view rows) {
  return KeepAccount(FrameJoints() + FrameMaterial() + FrameSections() + FrameConnectivity() +
                     SourceTable("FRAME SECTION ASSIGNMENTS",
                                 "   Frame=1   AnalSect=BEAM\n   Frame=2   AnalSect=BEAM\n") +
                     InsertionPoints(rows))
      .Losses();
}

TEST(AccountOfCardinalPointsTest, OneForAllFramesOfASectionIsConverted) {
  EXPECT_THAT(LossesOfPoints("   Frame=1   CardinalPt=\"8 (Top Center)\"\n"
                             "   Frame=2   CardinalPt=\"8 (Top Center)\"\n"),
              IsEmpty());
}

TEST(AccountOfCardinalPointsTest, TwoForFramesOfASectionChangeOne) {
  EXPECT_THAT(LossesOfPoints("   Frame=1   CardinalPt=\"2 (Bottom Center)\"\n"
                             "   Frame=2   CardinalPt=\"8 (Top Center)\"\n"),
              ElementsAre("Frame=1: cardinal-point-of-another-frame"));
}

TEST(AccountOfCardinalPointsTest, AFrameWithoutOneTakesThatOfAnother) {
  EXPECT_THAT(LossesOfPoints("   Frame=2   CardinalPt=\"8 (Top Center)\"\n"),
              ElementsAre("Frame=1: cardinal-point-of-another-frame"));
  EXPECT_THAT(LossesOfPoints("   Frame=2   CardinalPt=\"10 (Centroid)\"\n"), IsEmpty());
}

TEST(AccountOfCardinalPointsTest, TheShearCenterIsChanged) {
  const std::string shearCenter = "CardinalPt=\"11 (Shear Center)\"\n";
  EXPECT_THAT(
      LossesOfPoints("   Frame=1   " + shearCenter + "   Frame=2   " + shearCenter),
      ElementsAre("Frame=1: cardinal-point-shear-center", "Frame=2: cardinal-point-shear-center"));
}

TEST(AccountOfCardinalPointsTest, AnUnknownOneIsChanged) {
  EXPECT_THAT(LossesOfPoints("   Frame=1   CardinalPt=Bottom\n"),
              ElementsAre("Frame=1: cardinal-point-unknown"));
}

TEST(AccountOfCardinalPointsTest, OfASectionThatIsNotWrittenNothingIsSaid) {
  EXPECT_THAT(KeepAccount(FrameConnectivity() + FrameAssignments() +
                          InsertionPoints("   Frame=1   CardinalPt=\"8 (Top Center)\"\n"))
                  .Losses(),
              testing::Not(Contains("Frame=1: cardinal-point-of-another-frame")));
}

// ---- P-delta forces ----

TEST(AccountOfFrameEndsTest, AnInitialForceOfAnUnknownDirectionIsChanged) {
  EXPECT_THAT(LossesOfFrames(InitialForces("   Frame=1   Direction=\"Local 2\"   Force=1\n")),
              ElementsAre("Frame=1: initial-force-direction-unknown"));
}

}  // namespace
