#include "support/account_of_table.h"
#include "support/load_tables.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

constexpr const char* kLoads = "LOAD CASE DEFINITIONS";
constexpr const char* kStaticCases = "CASE - STATIC 1 - LOAD ASSIGNMENTS";

/// Loads, and the rows of the linear static cases GRAVITY and SERVICE and the nonlinear one LATER.
AccountRun Keep(std::string_view loads, std::string_view rowsOfCases) {
  return KeepAccount(SourceTable(kLoads, loads) +
                     SourceTable("ANALYSIS CASE DEFINITIONS",
                                 "   Case=GRAVITY   Type=LinStatic\n"
                                 "   Case=SERVICE   Type=LinStatic\n"
                                 "   Case=LATER   Type=NonStatic\n") +
                     SourceTable(kStaticCases, rowsOfCases));
}

constexpr const char* kGravity = "   Case=GRAVITY   LoadName=GRAVITY   LoadSF=1\n";

TEST(AccountOfLoadCasesTest, ALoadWithItsSelfWeightIsConverted) {
  const AccountRun run = Keep("   LoadCase=GRAVITY   DesignType=DEAD   SelfWtMult=1\n", kGravity);
  EXPECT_EQ(FatesOf(run, kLoads), "1 rows, 1 converted");
  EXPECT_EQ(FatesOf(run, kStaticCases), "1 rows, 1 converted");
}

TEST(AccountOfLoadCasesTest, ALoadThatNoLinearStaticCaseNamesIsDropped) {
  const AccountRun run = Keep(
      "   LoadCase=GRAVITY   DesignType=DEAD\n   LoadCase=CREEP   DesignType=OTHER   "
      "SelfWtMult=1\n",
      std::string(kGravity) + "   Case=LATER   LoadName=CREEP   LoadSF=1\n");
  EXPECT_THAT(LossesOf(run, kLoads), ElementsAre("LoadCase=CREEP: load-case-not-static"));
  EXPECT_THAT(LossesOf(run, kStaticCases), ElementsAre("Case=LATER: analysis-case-not-static"));
  EXPECT_EQ(FatesOf(run, kStaticCases), "2 rows, 1 converted, 1 dropped");
}

TEST(AccountOfLoadCasesTest, OfALoadOfTwoRowsOneIsDropped) {
  // The second row is the first of the walk.
  const AccountRun run = Keep(
      "   LoadCase=GRAVITY   DesignType=DEAD\n   LoadCase=GRAVITY   DesignType=LIVE\n", kGravity);
  EXPECT_THAT(run.Run.Lines("*STLDCASE"), ElementsAre("\tGRAVITY,     L, "));
  EXPECT_THAT(LossesOf(run, kLoads), ElementsAre("LoadCase=GRAVITY: load-defined-again"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 1U);
}

TEST(AccountOfLoadCasesTest, OfALoadOfTwoRowsWithSelfWeightOneIsChanged) {
  const AccountRun run = Keep(
      "   LoadCase=GRAVITY   DesignType=DEAD   SelfWtMult=1\n"
      "   LoadCase=GRAVITY   DesignType=DEAD   SelfWtMult=1\n",
      kGravity);
  EXPECT_EQ(run.Run.LoadLines("GRAVITY", "*SELFWEIGHT").size(), 2U);
  EXPECT_THAT(LossesOf(run, kLoads),
              ElementsAre("LoadCase=GRAVITY: load-defined-again-with-weight"));
  EXPECT_EQ(FatesOf(run, kLoads), "2 rows, 1 converted, 1 changed");
}

TEST(AccountOfLoadCasesTest, ADesignTypeThatBecomesTheUsersIsChangedWithoutLoss) {
  const AccountRun run = Keep("   LoadCase=GRAVITY   DesignType=BRAKING\n", kGravity);
  EXPECT_THAT(LossesOf(run, kLoads), ElementsAre("LoadCase=GRAVITY: design-type-without-like"));
  EXPECT_FALSE(HasLoss(run, kLoads));
}

TEST(AccountOfLoadCasesTest, TheDesignTypeOtherIsConverted) {
  const AccountRun run = Keep("   LoadCase=GRAVITY   DesignType=OTHER\n", kGravity);
  EXPECT_EQ(FatesOf(run, kLoads), "1 rows, 1 converted");
}

TEST(AccountOfLoadCasesTest, AnAutomaticLoadOfAnotherDesignIsChanged) {
  const AccountRun run = Keep("   LoadCase=GRAVITY   DesignType=LIVE   AutoLoad=UBC97\n", kGravity);
  EXPECT_THAT(LossesOf(run, kLoads), ElementsAre("LoadCase=GRAVITY: auto-load-of-other-design"));
}

struct AutomaticLoad {
  const char* Design;
  const char* Code;
  const char* Title;
};

class AccountOfAutomaticLoadsTest : public testing::TestWithParam<AutomaticLoad> {};

TEST_P(AccountOfAutomaticLoadsTest, ALoadWithItsParametersIsConverted) {
  const auto [design, code, title] = GetParam();
  const AccountRun run = KeepAccount(AutomaticCases(design, {{"STORM", code}}) +
                                     SourceTable(title, "   LoadCase=STORM   Dir=X\n"));
  EXPECT_EQ(FatesOf(run, kLoads), "1 rows, 1 converted");
}

INSTANTIATE_TEST_SUITE_P(AllCodes, AccountOfAutomaticLoadsTest,
                         testing::Values(AutomaticLoad{"WIND", "UBC 97", "AUTO WIND - UBC97"},
                                         AutomaticLoad{"WIND", "ASCE 7-98", "AUTO WIND - ASCE7-98"},
                                         AutomaticLoad{"WIND", "NBCC 95", "AUTO WIND - NBCC95"},
                                         AutomaticLoad{"WIND", "None", "AUTO WIND - NBCC95"},
                                         AutomaticLoad{"QUAKE", "UBC97", "AUTO SEISMIC - UBC97"},
                                         AutomaticLoad{"QUAKE", "NBCC95",
                                                       "AUTO SEISMIC - NBCC95"}));

TEST(AccountOfLoadCasesTest, ALoadOfTwoCasesIsChangedForItIsWrittenTwice) {
  // The second row is the first of the walk.
  const AccountRun run =
      Keep("   LoadCase=GRAVITY   DesignType=DEAD\n",
           std::string(kGravity) + "   Case=SERVICE   LoadName=GRAVITY   LoadSF=1\n");
  EXPECT_EQ(run.Run.Lines("*STLDCASE").size(), 2U);
  EXPECT_THAT(LossesOf(run, kStaticCases),
              ElementsAre("Case=GRAVITY: load-named-again", "Case=SERVICE: case-of-another-name"));
}

TEST(AccountOfLoadCasesTest, ARowThatNamesAnAccelerationIsChanged) {
  const AccountRun run = Keep("   LoadCase=SNOW   DesignType=SNOW\n",
                              "   Case=GRAVITY   LoadType=Accel   LoadName=GRAVITY   LoadSF=1\n");
  EXPECT_THAT(LossesOf(run, kStaticCases), ElementsAre("Case=GRAVITY: load-unknown"));
}

TEST(AccountOfLoadCasesTest, AScaleFactorIsChanged) {
  const AccountRun run = Keep("   LoadCase=GRAVITY   DesignType=DEAD\n",
                              "   Case=GRAVITY   LoadName=GRAVITY   LoadSF=1.35\n");
  EXPECT_THAT(LossesOf(run, kStaticCases), ElementsAre("Case=GRAVITY: load-scale-factor"));
}

TEST(AccountOfLoadCasesTest, ARowWithoutAScaleFactorIsConverted) {
  const AccountRun run =
      Keep("   LoadCase=GRAVITY   DesignType=DEAD\n", "   Case=GRAVITY   LoadName=GRAVITY\n");
  EXPECT_EQ(FatesOf(run, kStaticCases), "1 rows, 1 converted");
}

TEST(AccountOfLoadCasesTest, RowsOfACaseOfTwoLoadsAreChanged) {
  const AccountRun run =
      Keep("   LoadCase=GRAVITY   DesignType=DEAD\n   LoadCase=CROWD   DesignType=LIVE\n",
           std::string(kGravity) + "   Case=GRAVITY   LoadName=CROWD   LoadSF=1\n");
  EXPECT_THAT(LossesOf(run, kStaticCases), ElementsAre("Case=GRAVITY: case-of-several-loads",
                                                       "Case=GRAVITY: case-of-several-loads"));
}

TEST(AccountOfLoadCasesTest, ACaseOfAnotherNameThanItsLoadIsChangedWithoutLoss) {
  const AccountRun run = Keep("   LoadCase=GRAVITY   DesignType=DEAD\n",
                              "   Case=SERVICE   LoadName=GRAVITY   LoadSF=1\n");
  EXPECT_THAT(LossesOf(run, kStaticCases), ElementsAre("Case=SERVICE: case-of-another-name"));
  EXPECT_FALSE(HasLoss(run, kStaticCases));
}

}  // namespace
