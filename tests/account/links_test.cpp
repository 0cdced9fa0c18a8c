#include "support/account_run.h"
#include "support/box_joints.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct LinkTables {
  std::string Summary = "   Link=1   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=PAD\n";
  std::string Connectivity = "   Link=1   JointI=1   JointJ=3\n";
  std::string Further = "";
};

constexpr const char* kPad = "   Link=PAD   LinkType=Linear   Mass=0   Weight=0\n";

std::string General(const std::string& rows) {
  return SourceTable("LINK PROPERTY DEFINITIONS 01 - GENERAL", rows);
}
std::string Linear(const std::string& rows) {
  return SourceTable("LINK PROPERTY DEFINITIONS 02 - LINEAR", rows);
}
std::string Typical(const std::string& rows) {
  return SourceTable("LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL", rows);
}
std::string Advanced(const std::string& rows) {
  return SourceTable("LINK LOCAL AXES ASSIGNMENTS 2 - ADVANCED", rows);
}

AccountRun KeepAccountOf(const LinkTables& tables) {
  return KeepAccount(BoxJoints() + General(kPad) +
                     SourceTable("SUMMARY - LINK ASSIGNMENTS", tables.Summary) +
                     SourceTable("CONNECTIVITY - LINK", tables.Connectivity) + tables.Further);
}

std::vector<std::string> LossesOf(const LinkTables& tables) {
  return KeepAccountOf(tables).Losses();
}

std::vector<std::string> LossesOfLinear(const std::string& rows) {
  return LossesOf({.Further = Linear(rows)});
}

// ---- Links ----

TEST(AccountOfLinks, SoundLinksAreConverted) {
  const AccountRun run =
      KeepAccountOf({.Summary = "   Link=1   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=PAD   "
                                "LocalAxes=Yes\n",
                     .Further = Linear("   Link=PAD   DOF=U1   TransKE=100   TransCE=0\n"
                                       "   Link=PAD   DOF=U2   TransKE=10   TransCE=0   DJ=0.5\n") +
                                Typical("   Link=1   Angle=30   AdvanceAxes=No\n")});
  EXPECT_THAT(run.Losses(), IsEmpty());
  EXPECT_THAT(run.Tables(),
              ElementsAre("JOINT COORDINATES: 8 rows, 8 converted",
                          "LINK PROPERTY DEFINITIONS 01 - GENERAL: 1 rows, 1 converted",
                          "SUMMARY - LINK ASSIGNMENTS: 1 rows, 1 converted",
                          "CONNECTIVITY - LINK: 1 rows, 1 converted",
                          "LINK PROPERTY DEFINITIONS 02 - LINEAR: 2 rows, 2 converted",
                          "LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL: 1 rows, 1 converted"));
}

TEST(AccountOfLinks, ALinkOfASingleJointIsDroppedWithItsRows) {
  EXPECT_THAT(LossesOf({.Summary = "   Link=1   LinkType=Linear   LinkJoint=SingleJoint   "
                                   "LinkProp=PAD   LocalAxes=Yes\n",
                        .Further = Typical("   Link=1   Angle=30   AdvanceAxes=Yes\n") +
                                   Advanced("   Link=1   LocalPlane=12\n")}),
              ElementsAre("Link=1: link-of-single-joint", "Link=1: link-of-single-joint",
                          "Link=1: link-of-single-joint", "Link=1: link-of-single-joint"));
}

TEST(AccountOfLinks, LinksOfKindsThatTheHostDoesNotHaveAreDroppedWithTheirRows) {
  for (const char* kind : {"MultiLinear", "\"Plastic (Kinematic)\""}) {
    SCOPED_TRACE(kind);
    EXPECT_THAT(LossesOf({.Summary = "   Link=1   LinkJoint=TwoJoint   LinkProp=STOP   LinkType=" +
                                     std::string(kind) + "\n",
                          .Further = {}}),
                ElementsAre("Link=1: link-kind-unlike", "Link=1: link-kind-unlike"));
  }
}

TEST(AccountOfLinks, ALinkThatGoesOverOnceIsNotLost) {
  EXPECT_THAT(LossesOf({.Summary = "   Link=1   LinkType=Linear   LinkProp=PAD\n"
                                   "   Link=1   LinkType=MultiLinear   LinkProp=STOP\n"}),
              ElementsAre("Link=1: link-kind-unlike"));
}

TEST(AccountOfLinks, ALinkInAModelWithoutConnectivityIsDropped) {
  EXPECT_THAT(LossesOf({.Connectivity = {}}), ElementsAre("Link=1: link-unknown"));
}

TEST(AccountOfLinks, ALinkWithoutARowOfJointsIsChanged) {
  EXPECT_THAT(LossesOf({.Connectivity = "   Link=2   JointI=1   JointJ=3\n"}),
              ElementsAre("Link=1: link-without-joints", "Link=2: link-without-summary"));
}

TEST(AccountOfLinks, WithoutASummaryAllRowsAreDropped) {
  const AccountRun run =
      KeepAccount(BoxJoints() + General(kPad) + Linear("   Link=PAD   DOF=U1   TransKE=100\n") +
                  SourceTable("CONNECTIVITY - LINK", "   Link=1   JointI=1   JointJ=3\n") +
                  Typical("   Link=1   Angle=30\n") +
                  SourceTable("LINK PROPERTY ASSIGNMENTS", "   Link=1   LinkProp=PAD\n"));
  EXPECT_THAT(run.Losses(),
              ElementsAre("Link=PAD: link-without-summary", "Link=PAD: link-without-summary",
                          "Link=1: link-without-summary", "Link=1: link-without-summary",
                          "Link=1: link-without-summary"));
}

TEST(AccountOfLinks, PropertiesInAModelWithoutLinksAreNoLoss) {
  const AccountRun run =
      KeepAccount(General(kPad) + Linear("   Link=PAD   DOF=U1   TransKE=100\n"));
  EXPECT_THAT(run.Losses(),
              ElementsAre("Link=PAD: property-not-used", "Link=PAD: property-not-used"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfLinks, ALinkWithAnUnknownJointIsChanged) {
  EXPECT_THAT(LossesOf({.Connectivity = "   Link=1   JointI=1   JointJ=99\n"}),
              ElementsAre("Link=1: end-or-corner-unknown"));
}

TEST(AccountOfLinks, OfTwoRowsOfJointsTheOneThatTheWalkMeetsLaterIsDropped) {
  // Row 2 is walked before row 1.
  const AccountRun run = KeepAccountOf({.Connectivity = "   Link=1   JointI=1   JointJ=3\n"
                                                        "   Link=1   JointI=2   JointJ=4\n"});
  ASSERT_THAT(run.Losses(), ElementsAre("Link=1: row-of-same-name"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 1U);
}

TEST(AccountOfLinks, ALinkWhosePropertyIsNotWrittenIsChanged) {
  for (const char* link : {"LinkType=Linear   LinkProp=NONE",  // not there
                           "LinkType=Damper   LinkProp=PAD",   // of another kind
                           "LinkType=Damper",                  // none stated
                           "LinkType=Friction   LinkProp=NONE"}) {
    SCOPED_TRACE(link);
    EXPECT_THAT(LossesOf({.Summary = "   Link=1   " + std::string(link) + "\n"}),
                ElementsAre("Link=1: link-property-unknown"));
  }
}

TEST(AccountOfLinks, ALinkWhosePropertyHasNoRowsOfDirectionsIsConverted) {
  EXPECT_THAT(LossesOf({}), IsEmpty());
}

TEST(AccountOfLinks, ALinkWhosePropertyHasDirectionsAloneIsConverted) {
  EXPECT_THAT(LossesOf({.Summary = "   Link=1   LinkType=Linear   LinkProp=FOOT\n",
                        .Further = Linear("   Link=FOOT   DOF=U1   TransKE=100\n")}),
              IsEmpty());
}

TEST(AccountOfLinks, GravityLoadsAreDropped) {
  EXPECT_THAT(LossesOf({.Further = SourceTable("LINK LOADS - GRAVITY",
                                               "   Link=1   LoadCase=DEAD   MultiplierZ=-1\n")}),
              ElementsAre("Link=1: gravity-of-solid-or-link"));
}

TEST(AccountOfLinks, AssignmentsOfPropertiesAreInTheSummary) {
  const AccountRun run = KeepAccountOf(
      {.Further = SourceTable("LINK PROPERTY ASSIGNMENTS", "   Link=1   LinkProp=PAD\n")});
  EXPECT_THAT(run.Losses(), ElementsAre("Link=1: link-assignment-in-summary"));
  EXPECT_FALSE(run.HasLossOfRows());
}

// ---- Axes ----

std::vector<std::string> LossesOfAxes(const std::string& localAxes, const std::string& axes) {
  return LossesOf(
      {.Summary = "   Link=1   LinkType=Linear   LinkProp=PAD   LocalAxes=" + localAxes + "\n",
       .Further = axes});
}

TEST(AccountOfLinks, AxesWithoutARowAreMissed) {
  EXPECT_THAT(LossesOfAxes("Yes", ""), ElementsAre("Link=1: link-axes-missing"));
  EXPECT_THAT(LossesOfAxes("Yes", Typical("   Link=1   Angle=30   AdvanceAxes=Yes\n")),
              ElementsAre("Link=1: link-axes-missing"));
}

TEST(AccountOfLinks, AxesThatTheSummaryDoesNotAskForAreDropped) {
  EXPECT_THAT(LossesOfAxes("No", Typical("   Link=1   Angle=30   AdvanceAxes=No\n")),
              ElementsAre("Link=1: link-axes-not-asked-for"));
  EXPECT_THAT(LossesOfAxes("No", Typical("   Link=1   Angle=0   AdvanceAxes=Yes\n") +
                                     Advanced("   Link=1   LocalPlane=12\n")),
              ElementsAre("Link=1: link-axes-not-asked-for", "Link=1: link-axes-not-asked-for"));
  EXPECT_THAT(LossesOfAxes("No", Typical("   Link=1   Angle=0   AdvanceAxes=No\n")), IsEmpty());
}

TEST(AccountOfLinks, AdvancedAxesThatTheTypicalRowDoesNotAskForAreDropped) {
  EXPECT_THAT(LossesOfAxes("Yes", Typical("   Link=1   Angle=30   AdvanceAxes=No\n") +
                                      Advanced("   Link=1   LocalPlane=12\n")),
              ElementsAre("Link=1: link-axes-not-asked-for"));
}

TEST(AccountOfLinks, AdvancedAxesAreChanged) {
  EXPECT_THAT(LossesOfAxes("Yes", Typical("   Link=1   Angle=30   AdvanceAxes=Yes\n") +
                                      Advanced("   Link=1   LocalPlane=12   "
                                               "PlOption1=\"Coord Dir\"   CoordDir1=Y\n")),
              ElementsAre("Link=1: link-advanced-axes"));
}

TEST(AccountOfLinks, AxesOfUnknownLinksAreDropped) {
  EXPECT_THAT(LossesOf({.Further = Typical("   Link=9   Angle=30\n")}),
              ElementsAre("Link=9: link-unknown"));
}

// ---- Directions of linear properties ----

TEST(AccountOfLinks, ADirectionOfAPropertyThatNoElasticLinkHasIsNoLoss) {
  const AccountRun run =
      KeepAccountOf({.Further = Linear("   Link=FOOT   DOF=U1   TransKE=100\n")});
  EXPECT_THAT(run.Losses(), ElementsAre("Link=FOOT: property-not-used"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfLinks, AnUnknownDirectionOfALinearPropertyIsDropped) {
  EXPECT_THAT(LossesOfLinear("   Link=PAD   DOF=X   TransKE=100\n"),
              ElementsAre("Link=PAD: link-direction-unknown"));
}

TEST(AccountOfLinks, OfTwoRowsOfALinearDirectionTheOneThatTheWalkMeetsFirstIsDropped) {
  // Row 2 is walked before row 1.
  const AccountRun run = KeepAccountOf(
      {.Further =
           Linear("   Link=PAD   DOF=U1   TransKE=100\n   Link=PAD   DOF=U1   TransKE=5\n")});
  ASSERT_THAT(run.Losses(), ElementsAre("Link=PAD: row-of-same-name"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 2U);
}

TEST(AccountOfLinks, AShearDistanceThatIsNotWrittenIsChanged) {
  EXPECT_THAT(LossesOfLinear("   Link=PAD   DOF=U1   TransKE=100   DJ=0.5\n"
                             "   Link=PAD   DOF=U2   TransKE=100   DJ=-0.5\n"
                             "   Link=PAD   DOF=U3   TransKE=100   DJ=0.5\n"
                             "   Link=PAD   DOF=R3   RotKE=100   DJ=0.5\n"),
              ElementsAre("Link=PAD: link-shear-distance", "Link=PAD: link-shear-distance",
                          "Link=PAD: link-shear-distance"));
}

}  // namespace
