#include "support/account_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Classes LIVE and RARE with a moving load case each, and lanes EAST and WEST.
struct MovingTables {
  std::string Classes = "   VehClass=LIVE   VehName=AML\n   VehClass=RARE   VehName=AML\n";
  std::string Lanes = "   LaneName=EAST   Frame=1\n   LaneName=WEST   Frame=1\n";
  std::string Assignments = "   Case=LIVE   AssignNum=1   VehClass=LIVE\n";
  std::string LanesLoaded = "   Case=LIVE   AssignNum=1   Lane=EAST\n";
  std::string Factors = "   Case=LIVE   NumberLanes=1   ScaleFactor=1.2\n";
  std::string Response = "   Displs=ALL   Reactions=ALL   Frames=ALL\n";
  std::string Analyses = "   Case=LIVE   Type=LinMoving\n";
};

/// What is lost of the tables of moving loads.
std::vector<std::string> LossesOf(const MovingTables& tables) {
  const AccountRun run = KeepAccount(
      SourceTable("ANALYSIS CASE DEFINITIONS", tables.Analyses) +
      SourceTable("CONNECTIVITY - FRAME", "   Frame=1   JointI=1   JointJ=2   Length=10\n") +
      SourceTable("BRIDGE LOADS 1 - LANES", tables.Lanes) +
      SourceTable("BRIDGE LOADS 2 - VEHICLES - STANDARD", "   VehName=AML   Type=AML\n") +
      SourceTable("BRIDGE LOADS 5 - VEHICLE CLASSES", tables.Classes) +
      SourceTable("BRIDGE LOADS 6 - BRIDGE RESPONSE", tables.Response) +
      SourceTable("CASE - MOVING LOAD 1 - LANE ASSIGNMENTS", tables.Assignments) +
      SourceTable("CASE - MOVING LOAD 2 - LANES LOADED", tables.LanesLoaded) +
      SourceTable("CASE - MOVING LOAD 3 - MULTILANE FACTORS", tables.Factors));
  const std::vector<std::string> all = run.Losses();
  std::vector<std::string> losses;
  for (std::size_t index = 0; index < all.size(); ++index) {
    const std::string& title = run.Rows.Tables[run.Rows.Losses[index].Table].Title;
    if (title.starts_with("BRIDGE LOADS 6") || title.starts_with("CASE - MOVING")) {
      losses.push_back(all[index]);
    }
  }
  return losses;
}

TEST(AccountOfMovingLoads, SoundRowsAreConverted) { EXPECT_THAT(LossesOf({}), IsEmpty()); }

TEST(AccountOfMovingLoads, ACaseNamedUnlikeEveryClassIsDroppedWithAllThatIsStatedOfIt) {
  EXPECT_THAT(
      LossesOf({.Assignments = "   Case=BRIDGE   AssignNum=1   VehClass=LIVE\n",
                .LanesLoaded = "   Case=BRIDGE   AssignNum=1   Lane=EAST\n",
                .Factors = "   Case=BRIDGE   NumberLanes=1   ScaleFactor=1.2\n"}),
      ElementsAre("Displs=ALL: moving-case-not-written", "Case=BRIDGE: moving-case-without-class",
                  "Case=BRIDGE: moving-case-not-written", "Case=BRIDGE: moving-case-not-written"));
}

TEST(AccountOfMovingLoads, AsManyRowsAsAreLeftOutAreLostAtTheEnd) {
  EXPECT_THAT(
      LossesOf({.Assignments = "   Case=LIVE   AssignNum=1   VehClass=LIVE\n"
                               "   Case=BRIDGE   AssignNum=1   VehClass=LIVE\n"
                               "   Case=RARE   AssignNum=1   VehClass=LIVE\n",
                .LanesLoaded = "   Case=LIVE   AssignNum=1   Lane=EAST\n"
                               "   Case=RARE   AssignNum=1   Lane=EAST\n",
                .Factors = "   Case=LIVE   NumberLanes=1   ScaleFactor=1.2\n"
                           "   Case=RARE   NumberLanes=1   ScaleFactor=1.2\n"}),
      ElementsAre("Case=BRIDGE: moving-case-without-class", "Case=RARE: behind-left-out-cases",
                  "Case=RARE: moving-case-not-written", "Case=RARE: moving-case-not-written"));
}

TEST(AccountOfMovingLoads, RowsThatBeginACaseOnceMoreAreChanged) {
  EXPECT_THAT(LossesOf({.Assignments = "   Case=LIVE   AssignNum=1   VehClass=LIVE\n"
                                       "   Case=RARE   AssignNum=1   VehClass=LIVE\n"
                                       "   Case=LIVE   AssignNum=2   VehClass=LIVE\n"}),
              ElementsAre("Case=LIVE: written-in-parts"));
}

TEST(AccountOfMovingLoads, NoLaneLoadedAtMostIsChanged) {
  EXPECT_THAT(
      LossesOf({.Assignments = "   Case=LIVE   AssignNum=1   VehClass=LIVE   MaxLoaded=0\n"}),
      ElementsAre("Case=LIVE: max-loaded-zero"));
}

TEST(AccountOfMovingLoads, AClassThatIsNotThereIsChanged) {
  EXPECT_THAT(LossesOf({.Assignments = "   Case=LIVE   AssignNum=1   VehClass=TRAMS\n"}),
              ElementsAre("Case=LIVE: vehicle-class-not-written"));
}

TEST(AccountOfMovingLoads, LanesOfAnAssignmentThatIsNotThereAreDropped) {
  EXPECT_THAT(LossesOf({.LanesLoaded = "   Case=LIVE   AssignNum=2   Lane=EAST\n"}),
              ElementsAre("Case=LIVE: moving-case-not-written"));
}

TEST(AccountOfMovingLoads, AnUnknownLaneIsChanged) {
  EXPECT_THAT(LossesOf({.LanesLoaded = "   Case=LIVE   AssignNum=1   Lane=NORTH\n"}),
              ElementsAre("Case=LIVE: lane-unknown"));
}

TEST(AccountOfMovingLoads, FactorsForMoreThanFourLanesAreDropped) {
  EXPECT_THAT(
      LossesOf({.Factors = "   Case=LIVE   NumberLanes=4   ScaleFactor=0.65\n"
                           "   Case=LIVE   NumberLanes=5   ScaleFactor=0.5\n"
                           "   Case=LIVE   NumberLanes=0   ScaleFactor=0.5\n"}),
      ElementsAre("Case=LIVE: factor-beyond-four-lanes", "Case=LIVE: factor-beyond-four-lanes"));
}

TEST(AccountOfMovingLoads, OfTwoFactorsForAsManyLanesTheFirstOfTheWalkCounts) {
  // rows are walked in the order 2, 1
  EXPECT_THAT(LossesOf({.Factors = "   Case=LIVE   NumberLanes=2   ScaleFactor=0\n"
                                   "   Case=LIVE   NumberLanes=2   ScaleFactor=0.9\n"}),
              ElementsAre("Case=LIVE: row-of-same-name"));
}

TEST(AccountOfMovingLoads, AFactorOfNothingIsChanged) {
  EXPECT_THAT(LossesOf({.Factors = "   Case=LIVE   NumberLanes=2   ScaleFactor=0\n"}),
              ElementsAre("Case=LIVE: factor-of-nothing"));
}

TEST(AccountOfMovingLoads, ResponsesThatAreNotAllStatedAreDropped) {
  for (const char* row : {"   Displs=ALL   Reactions=ALL\n", "   Displs=ALL   Frames=ALL\n",
                          "   Displs=   Reactions=ALL   Frames=ALL\n"}) {
    SCOPED_TRACE(row);
    EXPECT_EQ(LossesOf({.Response = row}).size(), 1U);
    EXPECT_THAT(LossesOf({.Response = row}),
                ElementsAre(testing::EndsWith(": bridge-response-incomplete")));
  }
}

TEST(AccountOfMovingLoads, OfResponsesTheFirstRowCounts) {
  EXPECT_THAT(LossesOf({.Response = "   Displs=ALL   Reactions=ALL   Frames=ALL\n"
                                    "   Displs=None   Reactions=None   Frames=None\n"}),
              ElementsAre("Displs=None: first-row-counts"));
}

TEST(AccountOfMovingLoads, AResponseThatNoAnalysisCaseAsksForIsDropped) {
  EXPECT_THAT(LossesOf({.Analyses = "   Case=LIVE   Type=LinStatic\n"}),
              ElementsAre("Displs=ALL: analysis-case-missing"));
}

}  // namespace
