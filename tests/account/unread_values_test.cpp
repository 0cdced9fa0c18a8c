#include "support/account_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

using testing::Contains;
using testing::EndsWith;
using testing::Not;

namespace {

// Values that state a part of the model and that no line of the output has.

std::vector<std::string> LossesWith(std::string_view title, std::string_view row) {
  return KeepAccount(SourceTable(title, row)).Losses();
}

struct UnreadValue {
  const char* Title;
  const char* Sound;  // a row that is not told for the reason
  const char* Lossy;
  const char* Code;
};

class AccountOfUnreadValuesTest : public testing::TestWithParam<UnreadValue> {};

TEST_P(AccountOfUnreadValuesTest, ThatAreNotNeutralAreTold) {
  const auto& [title, sound, lossy, code] = GetParam();
  EXPECT_THAT(LossesWith(title, lossy), Contains(EndsWith(std::string(": ") + code)));
  EXPECT_THAT(LossesWith(title, sound), Not(Contains(EndsWith(std::string(": ") + code))));
}

INSTANTIATE_TEST_SUITE_P(
    AllTables, AccountOfUnreadValuesTest,
    testing::Values(
        UnreadValue{"MATERIAL PROPERTIES 1 - GENERAL",
                    "   Material=A   UnitMass=2.4   UnitWeight=23.5\n",
                    "   Material=A   UnitMass=0   UnitWeight=23.5\n", "mass-unlike-weight"},
        UnreadValue{"MATERIAL PROPERTIES 1 - GENERAL",
                    "   Material=A   UnitMass=2.42   UnitWeight=23.5\n",
                    "   Material=A   UnitMass=2.5   UnitWeight=23.5\n", "mass-unlike-weight"},
        UnreadValue{"MATERIAL PROPERTIES 1 - GENERAL",
                    "   Material=A   UnitMass=0   UnitWeight=0\n",
                    "   Material=A   UnitMass=9   UnitWeight=23.5\n", "mass-unlike-weight"},
        UnreadValue{"MATERIAL PROPERTIES 1 - GENERAL", "   Material=A   UnitWeight=23.5\n",
                    "   Material=A   UnitMass=2.4   UnitWeight=0\n", "mass-unlike-weight"},
        UnreadValue{"AREA SECTION PROPERTIES", "   Section=A   F11Mod=1   V23Mod=1   WMod=1\n",
                    "   Section=A   F11Mod=0.25\n", "area-section-modifiers"},
        UnreadValue{"AREA SECTION PROPERTIES", "   Section=A\n", "   Section=A   V23Mod=0.5\n",
                    "area-section-modifiers"},
        UnreadValue{"AREA SECTION PROPERTIES", "   Section=A   MatAngle=0\n",
                    "   Section=A   MatAngle=35\n", "material-angle"}));

TEST(AccountOfUnreadValues, GravityInAnotherSystemThanTheGlobalOneIsTold) {
  const auto losses = [](const std::string& system) {
    return KeepAccount(SourceTable("FRAME SECTION ASSIGNMENTS", "   Frame=1   AnalSect=A\n") +
                       SourceTable("FRAME LOADS - GRAVITY",
                                   "   Frame=1   LoadCase=DEAD   CoordSys=" + system +
                                       "   MultiplierZ=-1\n"))
        .Losses();
  };
  EXPECT_THAT(losses("SKEW"), Contains("Frame=1: coordinate-system-ignored"));
  EXPECT_THAT(losses("GLOBAL"), Not(Contains("Frame=1: coordinate-system-ignored")));
}

TEST(AccountOfUnreadValues, CoordinateSystemsBelowTheFirstAreNoLossByThemselves) {
  const AccountRun run = KeepAccount(
      SourceTable("COORDINATE SYSTEMS",
                  "   Name=GLOBAL   Type=Cartesian\n   Name=SKEW   Type=Cartesian   X=5\n"));
  EXPECT_THAT(run.Losses(), testing::ElementsAre("Name=SKEW: coordinate-system-below-first"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfUnreadValues, TitlesThatBeginOtherwiseMayHoldAPartOfTheModel) {
  const AccountRun run =
      KeepAccount(SourceTable("AUTO WIND LOADS TO GROUPS", "   LoadCase=W   Group=ALL\n") +
                  SourceTable("GROUPS 1 - DEFINITIONS", "   GroupName=ALL\n"));
  ASSERT_EQ(run.Rows.Tables.size(), 2U);
  EXPECT_TRUE(run.Rows.Tables[0].Reasons[0].Why->IsLoss);
  EXPECT_FALSE(run.Rows.Tables[1].Reasons[0].Why->IsLoss);
}

}  // namespace
