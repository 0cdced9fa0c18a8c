#include "support/account_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A bridge of frames 1 to 3 with a lane, a vehicle of each kind, and a moving load case.
struct BridgeTables {
  std::string Elements = SourceTable("CONNECTIVITY - FRAME",
                                     "   Frame=1   JointI=1   JointJ=2   Length=10\n"
                                     "   Frame=2   JointI=2   JointJ=3   Length=10\n"
                                     "   Frame=3   JointI=3   JointJ=4   Length=10\n");
  std::string Analyses = "   Case=LIVE   Type=LinMoving   InitialCond=Zero\n";
  std::string Lanes =
      "   LaneName=EAST   Frame=1   Eccen=0.5\n   LaneName=EAST   Frame=2   Eccen=0.5\n";
  std::string Standard =
      "   VehName=HS20-44   Type=HSn-44   ScaleFactor=20   DynAllow=0\n"
      "   VehName=AML   Type=AML   ScaleFactor=1   DynAllow=0\n";
  std::string General =
      "   VehName=CRANE   LeadUnif=3   TrailUnif=9   FirstAxle=60   AxleMom=0   AxleOther=0\n";
  // The least distance of a single axle behind a train's first is all that is written of it.
  std::string Axles = "   VehName=CRANE   InterUnif=0   InterAxle=0   InterMinD=3   InterMaxD=3\n";
  std::string Classes =
      "   VehClass=LIVE   VehName=HS20-44   ScaleFactor=1\n   VehClass=LIVE   VehName=CRANE\n";
  std::string Response = "   Displs=ALL   Reactions=None   Frames=PIERS   CalcMethod=EXACT\n";
  std::string Assignments = "   Case=LIVE   AssignNum=1   VehClass=LIVE   MaxLoaded=2\n";
  std::string LanesLoaded = "   Case=LIVE   AssignNum=1   Lane=EAST\n";
  std::string Factors = "   Case=LIVE   NumberLanes=2   ScaleFactor=0.9\n";
};

AccountRun KeepAccountOf(const BridgeTables& tables) {
  return KeepAccount(tables.Elements + SourceTable("ANALYSIS CASE DEFINITIONS", tables.Analyses) +
                     SourceTable("BRIDGE LOADS 1 - LANES", tables.Lanes) +
                     SourceTable("BRIDGE LOADS 2 - VEHICLES - STANDARD", tables.Standard) +
                     SourceTable("BRIDGE LOADS 3 - VEHICLES - GENERAL 1", tables.General) +
                     SourceTable("BRIDGE LOADS 4 - VEHICLES - GENERAL 2", tables.Axles) +
                     SourceTable("BRIDGE LOADS 5 - VEHICLE CLASSES", tables.Classes) +
                     SourceTable("BRIDGE LOADS 6 - BRIDGE RESPONSE", tables.Response) +
                     SourceTable("CASE - MOVING LOAD 1 - LANE ASSIGNMENTS", tables.Assignments) +
                     SourceTable("CASE - MOVING LOAD 2 - LANES LOADED", tables.LanesLoaded) +
                     SourceTable("CASE - MOVING LOAD 3 - MULTILANE FACTORS", tables.Factors));
}

/// What is lost of the tables that are about bridges.
std::vector<std::string> LossesOf(const BridgeTables& tables) {
  const AccountRun run = KeepAccountOf(tables);
  const std::vector<std::string> all = run.Losses();
  std::vector<std::string> losses;
  for (std::size_t index = 0; index < all.size(); ++index) {
    const std::string& title = run.Rows.Tables[run.Rows.Losses[index].Table].Title;
    if (title.starts_with("BRIDGE") || title.starts_with("CASE - MOVING")) {
      losses.push_back(all[index]);
    }
  }
  return losses;
}

TEST(AccountOfBridges, RowsOfASoundBridgeAreConverted) {
  EXPECT_THAT(LossesOf({}), IsEmpty());
  std::vector<std::string> tables = KeepAccountOf({}).Tables();
  tables.erase(tables.begin(), tables.begin() + 2);
  EXPECT_THAT(tables, ElementsAre("BRIDGE LOADS 1 - LANES: 2 rows, 2 converted",
                                  "BRIDGE LOADS 2 - VEHICLES - STANDARD: 2 rows, 2 converted",
                                  "BRIDGE LOADS 3 - VEHICLES - GENERAL 1: 1 rows, 1 converted",
                                  "BRIDGE LOADS 4 - VEHICLES - GENERAL 2: 1 rows, 1 converted",
                                  "BRIDGE LOADS 5 - VEHICLE CLASSES: 2 rows, 2 converted",
                                  "BRIDGE LOADS 6 - BRIDGE RESPONSE: 1 rows, 1 converted",
                                  "CASE - MOVING LOAD 1 - LANE ASSIGNMENTS: 1 rows, 1 converted",
                                  "CASE - MOVING LOAD 2 - LANES LOADED: 1 rows, 1 converted",
                                  "CASE - MOVING LOAD 3 - MULTILANE FACTORS: 1 rows, 1 converted"));
}

// ---- Lanes ----

TEST(AccountOfBridges, ALaneAlongAFrameThatIsNotThereIsChanged) {
  EXPECT_THAT(LossesOf({.Lanes = "   LaneName=EAST   Frame=9\n"}),
              ElementsAre("LaneName=EAST: element-not-there"));
}

TEST(AccountOfBridges, ALaneAlongAnElementThatIsNoFrameIsChanged) {
  for (const char* title : {"CONNECTIVITY - AREA", "CONNECTIVITY - SOLID"}) {
    SCOPED_TRACE(title);
    const std::string key = std::string(title).ends_with("AREA") ? "Area" : "Solid";
    EXPECT_THAT(LossesOf({.Elements = SourceTable(title, "   " + key + "=9   Joint1=1\n"),
                          .Lanes = "   LaneName=EAST   Frame=9\n"}),
                ElementsAre("LaneName=EAST: element-taken-from-another"));
  }
}

TEST(AccountOfBridges, AmongRenumberedFramesAnUnknownOneHasTheNumberOfAnother) {
  EXPECT_THAT(LossesOf({.Elements = SourceTable("CONNECTIVITY - FRAME", "   Frame=DECK\n"),
                        .Lanes = "   LaneName=EAST   Frame=DECK\n   LaneName=EAST   Frame=1\n"}),
              ElementsAre("LaneName=EAST: element-taken-from-another"));
}

TEST(AccountOfBridges, RowsThatOpenALaneOnceMoreAreChanged) {
  EXPECT_THAT(LossesOf({.Lanes = "   LaneName=EAST   Frame=1\n   LaneName=WEST   Frame=1\n"
                                 "   LaneName=EAST   Frame=2\n   LaneName=EAST   Frame=3\n"}),
              ElementsAre("LaneName=EAST: written-in-parts", "LaneName=EAST: written-in-parts"));
}

TEST(AccountOfBridges, ALaneWithoutANameIsChangedAtTheBeginningAlone) {
  EXPECT_THAT(LossesOf({.Lanes = "   Frame=1\n   LaneName=EAST   Frame=2\n   Frame=3\n"}),
              ElementsAre("Frame=1: lane-without-name"));
}

// ---- Vehicles ----

TEST(AccountOfBridges, StandardVehiclesThatTheHostDoesNotHaveAreDropped) {
  EXPECT_THAT(LossesOf({.Standard = "   VehName=HS20-44   Type=HSn-44   ScaleFactor=20\n"
                                    "   VehName=A   Type=HSn-44   ScaleFactor=30\n"
                                    "   VehName=B   Type=HL-93S\n"}),
              ElementsAre("VehName=A: vehicle-not-of-host", "VehName=B: vehicle-not-of-host"));
}

TEST(AccountOfBridges, ScaleFactorsOfStandardVehiclesAreChangedUnlessTheNameHoldsThem) {
  EXPECT_THAT(
      LossesOf({.Standard = "   VehName=HS20-44   Type=HSn-44   ScaleFactor=20.5\n"
                            "   VehName=H15-44   Type=Hn-44   ScaleFactor=15\n"
                            "   VehName=AML   Type=AML   ScaleFactor=0.5\n"
                            "   VehName=P13   Type=P13\n"}),
      ElementsAre("VehName=HS20-44: vehicle-scale-factor", "VehName=AML: vehicle-scale-factor"));
}

TEST(AccountOfBridges, TheDynamicAllowanceOfAStandardVehicleIsChanged) {
  EXPECT_THAT(
      LossesOf({.Standard = "   VehName=HS20-44   Type=HSn-44   ScaleFactor=20   DynAllow=0.33\n"}),
      ElementsAre("VehName=HS20-44: vehicle-dynamic-allowance"));
}

TEST(AccountOfBridges, AVehicleUnderTheNameOfItsTypeIsNoLoss) {
  const AccountRun run =
      KeepAccountOf({.Standard = "   VehName=TRUCK   Type=HL-93K   ScaleFactor=1\n",
                     .Classes = "   VehClass=LIVE   VehName=TRUCK\n"});
  ASSERT_FALSE(run.Rows.Tables[3].Reasons.empty());
  EXPECT_STREQ(run.Rows.Tables[3].Reasons[0].Why->Code, "vehicle-named-by-type");
  EXPECT_FALSE(run.Rows.Tables[3].Reasons[0].Why->IsLoss);
}

TEST(AccountOfBridges, WithoutAnyAxleBetweenGeneralVehiclesAreDroppedAndMissingInClasses) {
  EXPECT_THAT(LossesOf({.Axles = ""}), ElementsAre("VehName=CRANE: vehicle-without-axles",
                                                   "VehClass=LIVE: class-vehicle-missing"));
}

TEST(AccountOfBridges, LoadsThatTheFormOfAVehicleHasNoPlaceForAreChanged) {
  EXPECT_THAT(LossesOf({.General = "   VehName=CRANE   TrailUnif=9   AxleMom=1\n"
                                   "   VehName=CRANE   TrailUnif=9   AxleOther=1\n"
                                   "   VehName=CRANE   TrailUnif=9   LeadUnif=1   FirstAxle=1\n"}),
              ElementsAre("VehName=CRANE: vehicle-values-left-out",
                          "VehName=CRANE: vehicle-values-left-out"));
  EXPECT_THAT(LossesOf({.General = "   VehName=CRANE   LeadUnif=1\n   VehName=CRANE   FirstAxle=1\n"
                                   "   VehName=CRANE   TrailUnif=-1\n"
                                   "   VehName=CRANE   AxleMom=1   AxleOther=1\n",
                        .Axles = "   VehName=CRANE   InterUnif=2\n"}),
              ElementsAre("VehName=CRANE: vehicle-values-left-out",
                          "VehName=CRANE: vehicle-values-left-out",
                          "VehName=CRANE: vehicle-values-left-out"));
}

/// Axles of a vehicle with a uniform load behind it.
std::vector<std::string> LossesOfTrain(const std::string& rows) {
  return LossesOf({.Axles = rows});
}

TEST(AccountOfBridges, OfATrainTheFirstAxleIsDroppedAndTheOthersAreNot) {
  EXPECT_THAT(LossesOfTrain("   VehName=CRANE   InterAxle=10   InterMinD=3\n"
                            "   VehName=CRANE   InterAxle=20   InterMinD=4\n"
                            "   VehName=CRANE   InterAxle=30   InterMinD=5\n"),
              ElementsAre("VehName=CRANE: axle-left-out"));
}

TEST(AccountOfBridges, OfATrainsSingleAxleItsLoadIsLost) {
  EXPECT_THAT(LossesOfTrain("   VehName=CRANE   InterAxle=10   InterMinD=3\n"),
              ElementsAre("VehName=CRANE: vehicle-values-left-out"));
}

TEST(AccountOfBridges, UniformLoadsAndRangesOfDistancesOfATrainAreChanged) {
  for (const char* value : {"InterUnif=1", "InterMaxD=9"}) {
    SCOPED_TRACE(value);
    EXPECT_THAT(
        LossesOfTrain("   VehName=CRANE\n   VehName=CRANE   InterAxle=20   InterMinD=4   " +
                      std::string(value) + "\n"),
        ElementsAre("VehName=CRANE: axle-left-out", "VehName=CRANE: vehicle-values-left-out"));
  }
}

/// Axles of a vehicle without a uniform load behind it.
std::vector<std::string> LossesOfTruck(const std::string& rows) {
  return LossesOf({.General = "   VehName=CRANE   AxleMom=1\n", .Axles = rows});
}

TEST(AccountOfBridges, OfATruckTheLastAxleIsDropped) {
  EXPECT_THAT(LossesOfTruck("   VehName=CRANE   InterUnif=2   InterAxle=10\n"
                            "   VehName=CRANE   InterAxle=20   InterMinD=4\n"
                            "   VehName=CRANE   InterAxle=30   InterMinD=5\n"),
              ElementsAre("VehName=CRANE: axle-left-out"));
}

TEST(AccountOfBridges, OfATruckTheDistanceToTheFirstAxleAndFurtherUniformLoadsAreChanged) {
  EXPECT_THAT(
      LossesOfTruck("   VehName=CRANE   InterAxle=10   InterMinD=3\n"
                    "   VehName=CRANE   InterUnif=2   InterAxle=20   InterMinD=4\n"
                    "   VehName=CRANE\n"),
      ElementsAre("VehName=CRANE: vehicle-values-left-out",
                  "VehName=CRANE: vehicle-values-left-out", "VehName=CRANE: axle-left-out"));
}

TEST(AccountOfBridges, AnAxleOfAnUnknownVehicleIsDropped) {
  EXPECT_THAT(LossesOfTrain("   VehName=CRANE   InterMinD=3\n   VehName=TRAM   InterMinD=3\n"),
              ElementsAre("VehName=TRAM: axle-of-unknown-vehicle"));
}

// ---- Vehicle classes ----

TEST(AccountOfBridges, AnUnknownVehicleOfAClassIsDropped) {
  EXPECT_THAT(LossesOf({.Classes = "   VehClass=LIVE   VehName=TRAM\n"}),
              ElementsAre("VehClass=LIVE: class-vehicle-missing"));
}

TEST(AccountOfBridges, AScaleFactorInAClassIsChanged) {
  EXPECT_THAT(LossesOf({.Classes = "   VehClass=LIVE   VehName=CRANE   ScaleFactor=1.3\n"}),
              ElementsAre("VehClass=LIVE: vehicle-scale-factor"));
}

TEST(AccountOfBridges, AClassWithoutANameIsDropped) {
  EXPECT_THAT(LossesOf({.Classes = "   VehName=CRANE\n   VehClass=LIVE   VehName=CRANE\n"}),
              ElementsAre("VehName=CRANE: class-without-name"));
}

TEST(AccountOfBridges, AClassBetweenRowsOfAnotherMakesPartsOfThat) {
  // rows are walked in the order 3, 2, 1
  EXPECT_THAT(LossesOf({.Classes = "   VehClass=LIVE   VehName=CRANE\n"
                                   "   VehClass=RARE   VehName=CRANE\n"
                                   "   VehClass=LIVE   VehName=HS20-44\n"}),
              ElementsAre("VehClass=LIVE: written-in-parts", "VehClass=LIVE: written-in-parts"));
}

}  // namespace
