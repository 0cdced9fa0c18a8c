#include "support/account_run.h"
#include "support/frame_tables.h"

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// The reasons of single rows of two frames, joined, placed and made as these tables say.
std::vector<std::string> LossesWith(const std::string& connectivity,
                                    const std::string& assignments) {
  return KeepAccount(FrameJoints() + FrameMaterial() + FrameSections() +
                     SourceTable("CONNECTIVITY - FRAME", connectivity) +
                     SourceTable("FRAME SECTION ASSIGNMENTS", assignments))
      .Losses();
}

constexpr const char* kTwoFrames =
    "   Frame=1   JointI=1   JointJ=2   Length=4\n"
    "   Frame=2   JointI=2   JointJ=3   Length=3\n";

/// The reasons of single rows of sound frames with these further tables.
std::vector<std::string> LossesOfFrames(const std::string& tables) {
  return KeepAccount(SoundFrames() + tables).Losses();
}

std::string TypicalAxes(std::string_view rows) {
  return SourceTable("FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL", rows);
}

std::string AdvancedAxes(std::string_view rows) {
  return SourceTable("FRAME LOCAL AXES ASSIGNMENTS 2 - ADVANCED", rows);
}

TEST(AccountOfFramesTest, SoundFramesAreConverted) {
  const AccountRun run = KeepAccount(
      SoundFrames() + TypicalAxes("   Frame=1   Angle=30   MirrorAbt2=No   MirrorAbt3=No\n"));
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 3 rows, 3 converted",
                                        "MATERIAL PROPERTIES 1 - GENERAL: 1 rows, 1 converted",
                                        "FRAME SECTION PROPERTIES 1 - GENERAL: 2 rows, 2 converted",
                                        "CONNECTIVITY - FRAME: 2 rows, 2 converted",
                                        "FRAME SECTION ASSIGNMENTS: 2 rows, 2 converted",
                                        "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL: 1 rows, "
                                        "1 converted"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfFramesTest, AFrameOfAnUnknownJointIsChanged) {
  const std::string assignments = "   Frame=1   AnalSect=BEAM\n   Frame=2   AnalSect=COLUMN\n";
  EXPECT_THAT(LossesWith("   Frame=1   JointI=1   JointJ=4\n   Frame=2   JointI=2   JointJ=3\n",
                         assignments),
              ElementsAre("Frame=1: end-or-corner-unknown"));
  EXPECT_THAT(LossesWith("   Frame=1   JointI=1   JointJ=2\n   Frame=2   JointJ=3\n", assignments),
              ElementsAre("Frame=2: end-or-corner-unknown"));
}

TEST(AccountOfFramesTest, AJointIsKnownWhereverItsRowStands) {
  EXPECT_THAT(
      KeepAccount(SourceTable("JOINT COORDINATES", "   Joint=20\n   Joint=1   XorR=4\n") +
                  FrameMaterial() + FrameSections() +
                  SourceTable("CONNECTIVITY - FRAME", "   Frame=1   JointI=20   JointJ=1\n") +
                  SourceTable("FRAME SECTION ASSIGNMENTS", "   Frame=1   AnalSect=BEAM\n"))
          .Losses(),
      IsEmpty());
}

TEST(AccountOfFramesTest, AJointOfALabelWithLettersIsKnownOrNot) {
  EXPECT_THAT(KeepAccount(SourceTable("JOINT COORDINATES", "   Joint=A1\n   Joint=A2   XorR=4\n") +
                          FrameMaterial() + FrameSections() +
                          SourceTable("CONNECTIVITY - FRAME",
                                      "   Frame=1   JointI=A1   JointJ=A2\n"
                                      "   Frame=2   JointI=A2   JointJ=A3\n") +
                          FrameAssignments())
                  .Losses(),
              ElementsAre("Frame=2: end-or-corner-unknown"));
}

TEST(AccountOfFramesTest, AFrameOfAnUnknownSectionIsChanged) {
  EXPECT_THAT(LossesWith(kTwoFrames, "   Frame=1   AnalSect=BEAM\n   Frame=2   AnalSect=None\n"),
              ElementsAre("Frame=2: frame-section-unknown"));
}

TEST(AccountOfFramesTest, AFrameWithoutASectionIsChanged) {
  EXPECT_THAT(LossesWith(kTwoFrames, "   Frame=1   AnalSect=BEAM\n"),
              ElementsAre("Frame=2: section-assignment-missing"));
}

TEST(AccountOfFramesTest, SectionsInAnotherOrderThanTheFramesAreChanged) {
  EXPECT_THAT(
      LossesWith(kTwoFrames, "   Frame=2   AnalSect=COLUMN\n   Frame=1   AnalSect=BEAM\n"),
      ElementsAre("Frame=2: section-of-another-frame", "Frame=1: section-of-another-frame"));
}

TEST(AccountOfFramesTest, EqualSectionsInAnotherOrderThanTheFramesAreConverted) {
  EXPECT_THAT(LossesWith(kTwoFrames, "   Frame=2   AnalSect=BEAM\n   Frame=1   AnalSect=BEAM\n"),
              IsEmpty());
}

TEST(AccountOfFramesTest, ASectionOfAnUnknownFrameGoesToTheFrameOfItsPlaceOrIsDropped) {
  EXPECT_THAT(LossesWith(kTwoFrames,
                         "   Frame=1   AnalSect=BEAM\n   Frame=7   AnalSect=COLUMN\n"
                         "   Frame=8   AnalSect=COLUMN\n"),
              ElementsAre("Frame=7: section-of-another-frame", "Frame=8: frame-unknown"));
}

TEST(AccountOfFramesTest, ASectionBehindAllFramesIsChangedUnlessItsFrameHasIt) {
  EXPECT_THAT(
      LossesWith("   Frame=2   JointI=2   JointJ=3\n",
                 "   Frame=1   AnalSect=BEAM\n   Frame=2   AnalSect=COLUMN\n"),
      ElementsAre("Frame=1: section-of-another-frame", "Frame=2: section-of-another-frame"));
}

TEST(AccountOfFramesTest, AMirroredFrameIsChanged) {
  EXPECT_THAT(
      LossesOfFrames(TypicalAxes("   Frame=1   Angle=0   MirrorAbt2=Yes   MirrorAbt3=No\n"
                                 "   Frame=2   Angle=0   MirrorAbt2=No   MirrorAbt3=Yes\n")),
      ElementsAre("Frame=1: frame-mirrored", "Frame=2: frame-mirrored"));
}

TEST(AccountOfFramesTest, AxesOfAnUnknownFrameAreDropped) {
  EXPECT_THAT(LossesOfFrames(TypicalAxes("   Frame=9   Angle=30\n") +
                             AdvancedAxes("   Frame=9   LocalPlan=12\n")),
              ElementsAre("Frame=9: frame-unknown", "Frame=9: frame-unknown"));
}

TEST(AccountOfFramesTest, OfAxesOfOneFrameASingleRowCounts) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const AccountRun run = KeepAccount(
      SoundFrames() +
      TypicalAxes("   Frame=1   Angle=10   AdvanceAxes=Yes\n"
                  "   Frame=1   Angle=20   AdvanceAxes=Yes\n") +
      AdvancedAxes("   Frame=1   LocalPlan=12   PlOption1=\"Coord Dir\"   CoordDir1=Y\n"
                   "   Frame=1   LocalPlan=12   PlOption1=\"Coord Dir\"   CoordDir1=Z\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Frame=1: row-of-same-name", "Frame=1: row-of-same-name"));
  ASSERT_EQ(run.Rows.Losses.size(), 2U);
  EXPECT_EQ(run.Rows.Losses[0].Position, 1U);
  EXPECT_EQ(run.Rows.Losses[1].Position, 1U);
}

TEST(AccountOfFramesTest, AdvancedAxesThatAreAskedForAndMissingAreTold) {
  EXPECT_THAT(LossesOfFrames(TypicalAxes("   Frame=1   Angle=10   AdvanceAxes=Yes\n")),
              ElementsAre("Frame=1: advanced-axes-missing"));
}

TEST(AccountOfFramesTest, AdvancedAxesThatNoTypicalRowAsksForAreDropped) {
  const std::string advanced =
      AdvancedAxes("   Frame=1   LocalPlan=12   PlOption1=\"Coord Dir\"\n");
  EXPECT_THAT(LossesOfFrames(advanced), ElementsAre("Frame=1: advanced-axes-without-typical"));
  const AccountRun off = KeepAccount(SoundFrames() + advanced +
                                     TypicalAxes("   Frame=1   Angle=10   AdvanceAxes=No\n"));
  EXPECT_THAT(off.Losses(), ElementsAre("Frame=1: switched-off"));
  EXPECT_FALSE(off.HasLossOfRows());
}

/// The reasons of advanced axes of a frame, by what their row states.
std::vector<std::string> LossesOfAdvancedAxes(const std::string& frame, const std::string& row) {
  return LossesOfFrames(TypicalAxes("   Frame=" + frame + "   AdvanceAxes=Yes\n") +
                        AdvancedAxes("   Frame=" + frame + "   " + row + "\n"));
}

TEST(AccountOfFramesTest, AdvancedAxesOfAFrameAlongXAreConverted) {
  for (const char* row : {R"(LocalPlan=12   PlOption1="Coord Dir"   CoordDir1=Y   CoordDir2=Z)",
                          R"(LocalPlan=13   PlOption1="Coord Dir"   CoordDir1=X   CoordDir2=-Z)",
                          R"(LocalPlan=12   PlOption1="Two Joints"   PlVecJt1=1   PlVecJt2=3)",
                          R"(LocalPlan=12   PlOption1="User Vector"   PlVecX=0   PlVecY=1)"}) {
    EXPECT_THAT(LossesOfAdvancedAxes("1", row), IsEmpty()) << row;
  }
}

TEST(AccountOfFramesTest, AdvancedAxesThatNoRuleFitsAreChanged) {
  for (const char* row : {R"(LocalPlan=13   PlOption1="User Vector"   PlVecY=1)",
                          R"(LocalPlan=13   PlOption1="Two Joints"   PlVecJt1=1   PlVecJt2=3)",
                          R"(LocalPlane=12   PlOption1="Coord Dir"   CoordDir1=Y   CoordDir2=Z)",
                          R"(LocalPlan=12   PlOption1="Coord Dir"   CoordDir1=CR   CoordDir2=Z)"}) {
    EXPECT_THAT(LossesOfAdvancedAxes("1", row), ElementsAre("Frame=1: advanced-axes-as-along-x"))
        << row;
  }
}

TEST(AccountOfFramesTest, AdvancedAxesOfAFrameThatIsNotAlongXAreChanged) {
  EXPECT_THAT(LossesOfAdvancedAxes("2", R"(LocalPlan=12   PlOption1="Coord Dir"   CoordDir1=Y)"),
              ElementsAre("Frame=2: advanced-axes-as-along-x"));
}

TEST(AccountOfFramesTest, ModifiersOfSingleFramesAreDropped) {
  EXPECT_THAT(LossesOfFrames(SourceTable("FRAME PROPERTY MODIFIERS", "   Frame=1   AMod=0.5\n")),
              ElementsAre("Frame=1: frame-modifiers"));
}

// ---- Springs and masses ----

std::string Springs(std::string_view rows) { return SourceTable("FRAME SPRING ASSIGNMENTS", rows); }

std::string Masses(std::string_view rows) {
  return SourceTable("FRAME ADDED MASS ASSIGNMENTS", rows);
}

TEST(AccountOfFrameLumpsTest, AMassIsConverted) {
  EXPECT_THAT(KeepAccount(SoundFrames() + Masses("   Frame=1   MassPerLen=2\n")).Tables(),
              Contains("FRAME ADDED MASS ASSIGNMENTS: 1 rows, 1 converted"));
}

TEST(AccountOfFrameLumpsTest, ASpringIsChanged) {
  EXPECT_THAT(LossesOfFrames(Springs("   Frame=1   Dir=2   Stiffness=10\n")),
              ElementsAre("Frame=1: frame-spring-halved"));
}

TEST(AccountOfFrameLumpsTest, ASpringWhoseJointLabelsAreNotAllNumbersIsChanged) {
  EXPECT_THAT(KeepAccount(SourceTable("JOINT COORDINATES", "   Joint=A1\n   Joint=A2   XorR=4\n") +
                          SourceTable("CONNECTIVITY - FRAME",
                                      "   Frame=1   JointI=A1   JointJ=A2   Length=4\n") +
                          Springs("   Frame=1   Dir=2   Stiffness=10\n"))
                  .Losses(),
              Contains("Frame=1: frame-spring-at-no-node"));
}

TEST(AccountOfFrameLumpsTest, ASpringOfAnUnknownDirectionIsChanged) {
  EXPECT_THAT(LossesOfFrames(Springs("   Frame=1   Dir=Z   Stiffness=10\n")),
              Contains("Frame=1: frame-spring-direction-unknown"));
}

TEST(AccountOfFrameLumpsTest, WhatIsSpreadAlongAnUnknownFrameIsChanged) {
  EXPECT_THAT(LossesOfFrames(Springs("   Frame=9   Dir=2   Stiffness=10\n")),
              Contains("Frame=9: last-frame-for-unknown"));
  EXPECT_THAT(LossesOfFrames(Masses("   Frame=9   MassPerLen=2\n")),
              ElementsAre("Frame=9: last-frame-for-unknown"));
}

TEST(AccountOfFrameLumpsTest, WhatIsSpreadAlongAFrameWithoutLengthIsChanged) {
  EXPECT_THAT(
      KeepAccount(SourceTable("CONNECTIVITY - FRAME", "   Frame=1   JointI=1   JointJ=2\n") +
                  Masses("   Frame=1   MassPerLen=2\n"))
          .Losses(),
      Contains("Frame=1: spread-along-no-length"));
}

TEST(AccountOfFrameLumpsTest, WhatIsSpreadAlongAFrameOfAModelWithoutFramesIsDropped) {
  EXPECT_THAT(KeepAccount(FrameJoints() + Masses("   Frame=1   MassPerLen=2\n")).Losses(),
              ElementsAre("Frame=1: frame-unknown"));
}

}  // namespace
