#include "support/account_run.h"
#include "support/analysis_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;

/// The losses of analysis cases beside DEAD and LIVE, with further tables.
std::vector<std::string> LossesOfCases(std::string_view rows, const std::string& tables = "") {
  return KeepAccount(AnalysesBesideStatic(rows) + tables).LossesIn("ANALYSIS");
}
const std::string kModal =
    SourceTable("CASE - MODAL 1 - GENERAL", "   Case=MODAL   ModeType=Eigen   MaxNumModes=1\n");

TEST(AccountOfCasesTest, StaticCasesAreConverted) {
  EXPECT_THAT(KeepAccount(AnalysesBesideStatic("")).Tables(),
              Contains("ANALYSIS CASE DEFINITIONS: 2 rows, 2 converted"));
}

TEST(AccountOfCasesTest, ACaseOfAnotherKindIsDropped) {
  EXPECT_THAT(LossesOfCases("   Case=PUSH   Type=NonStatic   InitialCond=Zero\n"
                            "   Case=BLAST   Type=LinDirHist   InitialCond=Zero\n"),
              ElementsAre("Case=PUSH: analysis-case-of-other-kind",
                          "Case=BLAST: analysis-case-of-other-kind"));
}

TEST(AccountOfCasesTest, AStaticCaseWithoutLoadsIsDropped) {
  EXPECT_THAT(LossesOfCases("   Case=SNOW   Type=LinStatic   InitialCond=Zero\n"),
              ElementsAre("Case=SNOW: case-without-loads"));
}

TEST(AccountOfCasesTest, AStaticCaseOfSeveralLoadsIsChanged) {
  const AccountRun run =
      KeepAccount(SourceTable("ANALYSIS CASE DEFINITIONS", "   Case=ALL   Type=LinStatic\n") +
                  SourceTable("CASE - STATIC 1 - LOAD ASSIGNMENTS",
                              "   Case=ALL   LoadName=DEAD\n   Case=ALL   LoadName=LIVE\n"));
  EXPECT_THAT(run.LossesIn("ANALYSIS"), ElementsAre("Case=ALL: case-of-several-loads"));
}

TEST(AccountOfCasesTest, AStaticCaseThatItsLoadGivesTheNameIsReworded) {
  const AccountRun run = KeepAccount(
      SourceTable("ANALYSIS CASE DEFINITIONS", "   Case=CASE1   Type=LinStatic\n") +
      SourceTable("CASE - STATIC 1 - LOAD ASSIGNMENTS", "   Case=CASE1   LoadName=DEAD\n"));
  EXPECT_THAT(run.LossesIn("ANALYSIS"), ElementsAre("Case=CASE1: case-of-another-name"));
}

TEST(AccountOfCasesTest, ACaseThatStartsFromAnotherIsChangedUnlessItIsAHistory) {
  EXPECT_THAT(LossesOfCases("   Case=MODAL   Type=LinModal   InitialCond=PUSH\n"
                            "   Case=SHAKE   Type=LinModHist   InitialCond=PUSH\n",
                            kModal + SourceTable("CASE - MODAL HISTORY 1 - GENERAL",
                                                 "   Case=SHAKE   DampingType=Constant\n")),
              ElementsAre("Case=MODAL: initial-condition-lost"));
}

TEST(AccountOfCasesTest, ModalCaseOfTheFirstDefinitionIsConvertedAndOthersAreDropped) {
  EXPECT_THAT(
      LossesOfCases("   Case=MODAL   Type=LinModal\n   Case=RITZ   Type=LinModal\n", kModal),
      ElementsAre("Case=RITZ: definition-not-first"));
}

TEST(AccountOfCasesTest, AModalCaseThatTakesTheDefinitionOfAnotherIsChanged) {
  EXPECT_THAT(LossesOfCases("   Case=RITZ   Type=LinModal\n", kModal),
              ElementsAre("Case=RITZ: definition-of-another-case"));
}

TEST(AccountOfCasesTest, CasesThatNoTableDefinesAreDropped) {
  EXPECT_THAT(
      LossesOfCases("   Case=MODAL   Type=LinModal\n"
                    "   Case=RS   Type=LinRespSpec\n"
                    "   Case=SHAKE   Type=LinModHist\n"
                    "   Case=BLAST   Type=LinDirHis\n"
                    "   Case=BUCK   Type=LinBuckling\n"),
      ElementsAre("Case=MODAL: case-without-definition", "Case=RS: case-without-definition",
                  "Case=SHAKE: case-without-definition", "Case=BLAST: case-without-definition",
                  "Case=BUCK: case-without-definition"));
}

TEST(AccountOfCasesTest, ASpectrumCaseIsConvertedIfItHasALoad) {
  EXPECT_THAT(LossesOfCases("   Case=RS   Type=LinRespSpec\n   Case=RSZ   Type=LinRespSpec\n",
                            SourceTable("CASE - RESPONSE SPECTRUM 1 - GENERAL",
                                        "   Case=RS   ModalCombo=SRSS\n") +
                                SourceTable("CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS",
                                            "   Case=RS   LoadName=U1   CoordSys=GLOBAL   "
                                            "Function=F   TransAccSF=1\n")),
              ElementsAre("Case=RSZ: case-without-loads"));
}

TEST(AccountOfCasesTest, AHistoryCaseIsConvertedAndOneThatIsLostIsDropped) {
  EXPECT_THAT(
      LossesOfCases("   Case=SHAKE   Type=NonModHist   InitialCond=Zero\n"
                    "   Case=ROTOR   Type=LinModHist   InitialCond=Zero\n"
                    "   Case=BLAST   Type=NonDirHist   InitialCond=Zero\n",
                    SourceTable("CASE - MODAL HISTORY 1 - GENERAL",
                                "   Case=SHAKE   DampingType=Constant\n"
                                "   Case=ROTOR   DampingType=Interpolated\n") +
                        SourceTable("CASE - DIRECT HISTORY 1 - GENERAL", "   Case=BLAST\n")),
      ElementsAre("Case=ROTOR: case-not-converted", "Case=BLAST: case-not-converted"));
}

TEST(AccountOfCasesTest, AHistoryThatDoesNotSayFromWhatItStartsIsChanged) {
  EXPECT_THAT(LossesOfCases("   Case=SHAKE   Type=LinModHist\n",
                            SourceTable("CASE - MODAL HISTORY 1 - GENERAL",
                                        "   Case=SHAKE   DampingType=Constant\n")),
              ElementsAre("Case=SHAKE: value-not-stated"));
}

TEST(AccountOfCasesTest, AMovingCaseIsConvertedIfItsAssignmentsAre) {
  EXPECT_THAT(LossesOfCases("   Case=TRUCKS   Type=LinMoving\n   Case=TRAINS   Type=LinMoving\n",
                            SourceTable("BRIDGE LOADS 5 - VEHICLE CLASSES",
                                        "   VehClass=TRUCKS   VehName=HS20\n") +
                                SourceTable("CASE - MOVING LOAD 1 - LANE ASSIGNMENTS",
                                            "   Case=TRUCKS   VehClass=TRUCKS\n"
                                            "   Case=TRAINS   VehClass=TRUCKS\n")),
              ElementsAre("Case=TRAINS: case-not-converted"));
}

TEST(AccountOfCasesTest, AMovingCaseBehindAnotherThatIsLostIsDroppedWithIt) {
  // Of one assignment in the output, that under key 2 is not written.
  EXPECT_THAT(LossesOfCases("   Case=TRUCKS   Type=LinMoving\n",
                            SourceTable("BRIDGE LOADS 5 - VEHICLE CLASSES",
                                        "   VehClass=TRUCKS   VehName=HS20\n") +
                                SourceTable("CASE - MOVING LOAD 1 - LANE ASSIGNMENTS",
                                            "   Case=TRAINS   VehClass=TRUCKS\n"
                                            "   Case=TRUCKS   VehClass=TRUCKS\n")),
              ElementsAre("Case=TRUCKS: case-not-converted"));
}

TEST(AccountOfCasesTest, OfBucklingCasesTheFirstWithALoadIsConverted) {
  const std::string definitions =
      SourceTable("CASE - BUCKLING 1 - GENERAL", "   Case=B1\n   Case=B2\n");
  const std::string loads = SourceTable("CASE - BUCKLING 2 - LOAD ASSIGNMENTS",
                                        "   Case=B1   LoadName=DEAD\n   Case=B2   LoadName=DEAD\n");
  // Keys 3 and 4 are walked 4, 3.
  const std::string analyses = "   Case=B1   Type=LinBuckling\n   Case=B2   Type=LinBuckling\n";
  EXPECT_THAT(LossesOfCases(analyses, definitions + loads),
              ElementsAre("Case=B1: definition-not-first"));
  EXPECT_THAT(LossesOfCases(analyses, definitions),
              ElementsAre("Case=B1: case-without-loads", "Case=B2: case-without-loads"));
}

TEST(AccountOfCasesTest, ABucklingCaseOfDefaultsIsChanged) {
  EXPECT_THAT(LossesOfCases("   Case=BUCK   Type=LinBuckling\n",
                            SourceTable("CASE - BUCKLING 1 - GENERAL", "   Case=OTHER\n") +
                                SourceTable("CASE - BUCKLING 2 - LOAD ASSIGNMENTS",
                                            "   Case=BUCK   LoadName=DEAD\n")),
              ElementsAre("Case=BUCK: value-not-stated"));
}

}  // namespace
