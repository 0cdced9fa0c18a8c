#include "support/account_run.h"
#include "support/analysis_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kDefinitions = "CASE - MODAL 1 - GENERAL";
constexpr const char* kVectors = "CASE - MODAL 3 - LOAD ASSIGNMENTS - RITZ";

const std::string kAnalysis = AnalysesBesideStatic("   Case=MODAL   Type=LinModal\n");
const std::string kFrames =
    SourceTable("CONNECTIVITY - FRAME", "   Frame=1\n   Frame=2\n   Frame=3\n");
const std::string kEigen =
    SourceTable(kDefinitions, "   Case=MODAL   ModeType=Eigen   MaxNumModes=3\n");

std::string Ritz(int modes) {
  return SourceTable(kDefinitions,
                     "   Case=MODAL   ModeType=Ritz   MaxNumModes=" + std::to_string(modes) + "\n");
}
std::string Vectors(std::string_view rows) { return SourceTable(kVectors, rows); }

TEST(AccountOfModalTest, ADefinitionOfAsManyModesAsElementsIsConverted) {
  EXPECT_THAT(KeepAccount(kAnalysis + kFrames + kEigen).Tables(),
              Contains("CASE - MODAL 1 - GENERAL: 1 rows, 1 converted"));
}

TEST(AccountOfModalTest, ADefinitionOfMoreModesThanElementsIsChanged) {
  const AccountRun run =
      KeepAccount(kAnalysis + kFrames +
                  SourceTable(kDefinitions, "   Case=MODAL   ModeType=Eigen   MaxNumModes=4\n"));
  EXPECT_THAT(run.LossesIn(kDefinitions), ElementsAre("Case=MODAL: mode-number-changed"));
}

TEST(AccountOfModalTest, DefinitionsBehindTheFirstAreDropped) {
  const AccountRun run = KeepAccount(kAnalysis + kFrames +
                                     SourceTable(kDefinitions,
                                                 "   Case=MODAL   ModeType=Eigen   MaxNumModes=3\n"
                                                 "   Case=RITZ   ModeType=Ritz   MaxNumModes=2\n"));
  EXPECT_THAT(run.LossesIn(kDefinitions), ElementsAre("Case=RITZ: definition-not-first"));
}

TEST(AccountOfModalTest, ADefinitionThatServesAnotherCaseIsChanged) {
  const AccountRun run =
      KeepAccount(kAnalysis + kFrames +
                  SourceTable(kDefinitions, "   Case=OTHER   ModeType=Eigen   MaxNumModes=3\n"));
  EXPECT_THAT(run.LossesIn(kDefinitions), ElementsAre("Case=OTHER: definition-of-another-case"));
}

TEST(AccountOfModalTest, ADefinitionOfOtherModesIsDropped) {
  const AccountRun run = KeepAccount(
      kAnalysis + kFrames + SourceTable(kDefinitions, "   Case=MODAL   ModeType=Lanczos\n"));
  EXPECT_THAT(run.LossesIn(kDefinitions), ElementsAre("Case=MODAL: modal-type-unknown"));
}

TEST(AccountOfModalTest, WithoutAModalAnalysisDefinitionsAndVectorsAreDropped) {
  const AccountRun run =
      KeepAccount(AnalysesBesideStatic("") + kEigen + Vectors("   Case=MODAL   LoadType=Accel\n"));
  EXPECT_THAT(run.LossesIn("CASE - MODAL"), ElementsAre("Case=MODAL: analysis-case-missing",
                                                        "Case=MODAL: analysis-case-missing"));
}

TEST(AccountOfModalTest, VectorsWithoutAnyDefinitionAreDropped) {
  const AccountRun run =
      KeepAccount(kAnalysis + Vectors("   Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"\n"));
  EXPECT_THAT(run.LossesIn(kVectors), ElementsAre("Case=MODAL: case-without-definition"));
}

TEST(AccountOfModalTest, ParticipationTargetsAreDropped) {
  const AccountRun run =
      KeepAccount(kAnalysis + kFrames + kEigen +
                  SourceTable("CASE - MODAL 2 - LOAD ASSIGNMENTS - EIGEN",
                              "   Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"\n"));
  EXPECT_THAT(run.LossesIn("MODAL 2"), ElementsAre("Case=MODAL: participation-target"));
}

TEST(AccountOfModalTest, StartingVectorsWithTheirNumbersAreConverted) {
  const AccountRun run = KeepAccount(
      kAnalysis + kFrames + Ritz(3) +
      Vectors("   Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=1\n"
              "   Case=MODAL   LoadType=\"Load case\"   LoadName=LIVE   MaxCycles=2\n"));
  EXPECT_THAT(run.LossesIn("CASE - MODAL"), IsEmpty());
  EXPECT_THAT(run.Tables(),
              Contains("CASE - MODAL 3 - LOAD ASSIGNMENTS - RITZ: 2 rows, 2 converted"));
}

TEST(AccountOfModalTest, ARitzDefinitionOfOtherModesThanItsVectorsIsChanged) {
  const AccountRun run = KeepAccount(
      kAnalysis + kFrames + Ritz(3) +
      Vectors("   Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=1\n"));
  EXPECT_THAT(run.LossesIn(kDefinitions), ElementsAre("Case=MODAL: mode-number-changed"));
}

TEST(AccountOfModalTest, AVectorThatStatesNoNumberIsReworded) {
  const AccountRun run = KeepAccount(
      kAnalysis + kFrames + Ritz(3) +
      Vectors("   Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=0\n"
              "   Case=MODAL   LoadType=Accel   LoadName=\"Accel UY\"   MaxCycles=2\n"));
  EXPECT_THAT(run.LossesIn("CASE - MODAL"),
              ElementsAre("Case=MODAL: starting-vector-shares-modes"));
}

TEST(AccountOfModalTest, AVectorOfALoadThatIsNoLoadCaseIsChanged) {
  const AccountRun run = KeepAccount(
      kAnalysis + kFrames + Ritz(3) +
      Vectors("   Case=MODAL   LoadType=\"Load case\"   LoadName=SNOW   MaxCycles=3\n"));
  EXPECT_THAT(run.LossesIn(kVectors), ElementsAre("Case=MODAL: load-case-not-written"));
}

TEST(AccountOfModalTest, AVectorOfAnotherKindIsDroppedAndMovesTheNumbersBehindIt) {
  // Keys 1 to 3 are walked 2, 1, 3. The number of the second stands with the first.
  const AccountRun run = KeepAccount(
      kAnalysis + kFrames + Ritz(3) +
      Vectors("   Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=1\n"
              "   Case=MODAL   LoadType=Link   MaxCycles=2\n"
              "   Case=MODAL   LoadType=Accel   LoadName=\"Accel UZ\"   MaxCycles=1\n"));
  EXPECT_THAT(run.LossesIn("CASE - MODAL"),
              ElementsAre("Case=MODAL: starting-vector-shifted",
                          "Case=MODAL: starting-vector-of-other-kind"));
}

TEST(AccountOfModalTest, AnAccelerationAlongNoAxisIsDroppedAndMovesTheKindsBehindIt) {
  // Keys 1 and 2 are walked 2, 1.
  const AccountRun run = KeepAccount(
      kAnalysis + kFrames + Ritz(2) +
      Vectors("   Case=MODAL   LoadType=\"Load case\"   LoadName=LIVE   MaxCycles=2\n"
              "   Case=MODAL   LoadType=Accel   LoadName=\"Accel RX\"   MaxCycles=2\n"));
  EXPECT_THAT(run.LossesIn("CASE - MODAL"),
              ElementsAre("Case=MODAL: starting-vector-shifted",
                          "Case=MODAL: starting-vector-of-other-kind"));
}

TEST(AccountOfModalTest, VectorsOfAnEigenCaseAndOfOtherCasesAreDropped) {
  const AccountRun run =
      KeepAccount(kAnalysis + kFrames + kEigen +
                  Vectors("   Case=MODAL   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=1\n"
                          "   Case=RITZ   LoadType=Accel   LoadName=\"Accel UX\"   MaxCycles=1\n"));
  EXPECT_THAT(run.LossesIn(kVectors),
              ElementsAre("Case=MODAL: no-part-in-its-case", "Case=RITZ: definition-not-first"));
}

}  // namespace
