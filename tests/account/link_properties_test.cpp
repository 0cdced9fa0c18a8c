#include "support/account_run.h"
#include "support/box_joints.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Kind {
  std::string LinkType;
  std::string Table;
};

const Kind kDamper = {"Damper", "LINK PROPERTY DEFINITIONS 04 - DAMPER"};
const Kind kGap = {"Gap", "LINK PROPERTY DEFINITIONS 05 - GAP"};
const Kind kRubber = {"Rubber Isolator", "LINK PROPERTY DEFINITIONS 07 - RUBBER ISOLATOR"};
const Kind kSlider = {"Friction Isolator", "LINK PROPERTY DEFINITIONS 08 - SLIDING ISOLATOR"};

/// A link of a property D of this kind, with rows of its directions.
AccountRun KeepAccountOfKind(const Kind& kind, const std::string& rows) {
  const std::string type = "   LinkType=\"" + kind.LinkType + "\"";
  return KeepAccount(
      BoxJoints() + SourceTable("CONNECTIVITY - LINK", "   Link=1   JointI=1   JointJ=3\n") +
      SourceTable("SUMMARY - LINK ASSIGNMENTS",
                  "   Link=1" + type + "   LinkJoint=TwoJoint   LinkProp=D\n") +
      SourceTable("LINK PROPERTY DEFINITIONS 01 - GENERAL", "   Link=D" + type + "   Weight=2\n") +
      SourceTable(kind.Table, rows));
}

/// The losses of rows of directions, each without the name of the property.
std::vector<std::string> LossesOf(const Kind& kind, const std::string& rows) {
  return KeepAccountOfKind(kind, rows).Losses();
}

/// A further property in the table of properties, besides that of a sound elastic link.
std::vector<std::string> LossesOfGeneral(const std::string& row) {
  return KeepAccount(BoxJoints() +
                     SourceTable("CONNECTIVITY - LINK", "   Link=1   JointI=1   JointJ=3\n") +
                     SourceTable("SUMMARY - LINK ASSIGNMENTS",
                                 "   Link=1   LinkType=Linear   LinkProp=PAD\n") +
                     SourceTable("LINK PROPERTY DEFINITIONS 01 - GENERAL",
                                 "   Link=PAD   LinkType=Linear\n" + row))
      .Losses();
}

TEST(AccountOfLinkProperties, SoundPropertiesOfAllKindsAreConverted) {
  const std::vector<Kind> kinds = {
      kDamper, kGap,    {"Hook", "LINK PROPERTY DEFINITIONS 06 - HOOK"},
      kRubber, kSlider, {"Plastic (Wen)", "LINK PROPERTY DEFINITIONS 09 - PLASTIC (WEN)"}};
  for (const Kind& kind : kinds) {
    SCOPED_TRACE(kind.LinkType);
    const AccountRun run = KeepAccountOfKind(
        kind,
        "   Link=D   DOF=U1   NonLinear=No   TransKE=90   TransCE=0\n"
        "   Link=D   DOF=U2   NonLinear=Yes   TransKE=90   TransCE=4   DJ=0   TransK=70\n"
        "   Link=D   DOF=U3   NonLinear=No   TransKE=90   TransCE=0   DJ=0\n"
        "   Link=D   DOF=R1   NonLinear=No   RotKE=90   RotCE=0\n");
    EXPECT_THAT(run.Losses(), IsEmpty());
    EXPECT_EQ(run.Tables().back(), kind.Table + ": 4 rows, 4 converted");
  }
}

TEST(AccountOfLinkProperties, ThoseThatTheHostDoesNotHaveAreDropped) {
  EXPECT_THAT(LossesOfGeneral("   Link=STOP   LinkType=MultiLinear\n"
                              "   Link=YOKE   LinkType=\"Plastic (Kinematic)\"\n"),
              ElementsAre("Link=STOP: link-kind-unlike", "Link=YOKE: link-kind-unlike"));
  const AccountRun run =
      KeepAccount(SourceTable("LINK PROPERTY DEFINITIONS 03 - MULTILINEAR",
                              "   Link=STOP   DOF=U1   TransKE=100\n") +
                  SourceTable("LINK PROPERTY DEFINITIONS 10 - PLASTIC (KINEMATIC)",
                              "   Link=YOKE   DOF=U1   Point=1   Force=0   Displ=0\n"));
  EXPECT_THAT(run.Losses(),
              ElementsAre("Link=STOP: link-kind-unlike", "Link=YOKE: link-kind-unlike"));
}

TEST(AccountOfLinkProperties, TheWeightOfALinearPropertyIsDropped) {
  EXPECT_THAT(LossesOfGeneral("   Link=FOOT   LinkType=Linear   Weight=3\n"),
              ElementsAre("Link=FOOT: weight-of-linear-link"));
}

TEST(AccountOfLinkProperties, APropertyOfAnUnknownKindOrWithoutATableIsChanged) {
  EXPECT_THAT(
      LossesOfGeneral("   Link=D   LinkType=Damper\n   Link=F   LinkType=Friction\n"),
      ElementsAre("Link=D: link-property-without-values", "Link=F: link-property-without-values"));
}

TEST(AccountOfLinkProperties, DirectionsOfAPropertyOfAnotherNameOrKindAreDropped) {
  EXPECT_THAT(
      LossesOf(kDamper, "   Link=D   DOF=U1   TransKE=90\n   Link=E   DOF=U1   TransKE=9\n"),
      ElementsAre("Link=E: direction-of-unknown-property"));
  const AccountRun run = KeepAccount(
      BoxJoints() + SourceTable("CONNECTIVITY - LINK", "   Link=1   JointI=1   JointJ=3\n") +
      SourceTable("SUMMARY - LINK ASSIGNMENTS", "   Link=1   LinkType=Linear   LinkProp=D\n") +
      SourceTable("LINK PROPERTY DEFINITIONS 01 - GENERAL", "   Link=D   LinkType=Linear\n") +
      SourceTable(kGap.Table, "   Link=D   DOF=U1   TransKE=90\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Link=D: direction-of-unknown-property"));
}

TEST(AccountOfLinkProperties, AnUnknownDirectionIsDroppedOrFallsOnTheOneBefore) {
  // Rows 1 to 3 are walked in the order 2, 1, 3.
  EXPECT_THAT(LossesOf(kDamper,
                       "   Link=D   DOF=U1   TransKE=90\n"
                       "   Link=D   DOF=X   TransKE=80\n"
                       "   Link=D   DOF=Y   TransKE=70\n"),
              ElementsAre("Link=D: row-of-same-name", "Link=D: link-direction-unknown",
                          "Link=D: link-direction-misplaced"));
}

TEST(AccountOfLinkProperties, OfTwoRowsOfADirectionTheOneThatTheWalkMeetsFirstIsDropped) {
  // Row 2 is walked before row 1.
  const AccountRun run =
      KeepAccountOfKind(kGap, "   Link=D   DOF=U1   TransKE=90\n   Link=D   DOF=U1   TransKE=80\n");
  ASSERT_THAT(run.Losses(), ElementsAre("Link=D: row-of-same-name"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 2U);
}

TEST(AccountOfLinkProperties, TheEffectiveDampingOfALinearDirectionIsChanged) {
  EXPECT_THAT(
      LossesOf(kDamper,
               "   Link=D   DOF=U1   NonLinear=No   TransCE=5   RotCE=0\n"
               "   Link=D   DOF=R1   NonLinear=No   TransCE=0   RotCE=5\n"
               "   Link=D   DOF=R2   NonLinear=No   TransCE=5   RotCE=0\n"
               "   Link=D   DOF=R3   NonLinear=Yes   TransCE=0   RotCE=5\n"),
      ElementsAre("Link=D: damping-of-linear-direction", "Link=D: damping-of-linear-direction"));
}

TEST(AccountOfLinkProperties, YieldValuesOfIsolatorsInDirectionU3AreChanged) {
  const std::string rows =
      "   Link=D   DOF=U1   NonLinear=Yes   TransK=90\n"
      "   Link=D   DOF=U2   NonLinear=Yes   TransK=90\n"
      "   Link=D   DOF=U3   NonLinear=Yes   TransK=90\n";
  for (const Kind& kind : {kRubber, kSlider}) {
    SCOPED_TRACE(kind.LinkType);
    const AccountRun run = KeepAccountOfKind(kind, rows);
    ASSERT_THAT(run.Losses(), ElementsAre("Link=D: isolator-yield-in-u3"));
    EXPECT_EQ(run.Rows.Losses[0].Position, 3U);
  }
  EXPECT_THAT(LossesOf(kDamper, rows), IsEmpty());
}

TEST(AccountOfLinkProperties, ShearDistancesAreChanged) {
  EXPECT_THAT(LossesOf(kGap,
                       "   Link=D   DOF=U2   TransKE=90   DJ=0.5\n"
                       "   Link=D   DOF=U3   TransKE=90   DJ=-3\n"
                       "   Link=D   DOF=R3   RotKE=90   DJ=0.5\n"),
              ElementsAre("Link=D: link-shear-distance", "Link=D: link-shear-distance",
                          "Link=D: link-shear-distance"));
}

}  // namespace
