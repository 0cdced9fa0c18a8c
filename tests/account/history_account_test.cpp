#include "support/account_run.h"
#include "support/analysis_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

std::string ModalDefinitions(std::string_view rows) {
  return SourceTable("CASE - MODAL HISTORY 1 - GENERAL", rows);
}
std::string ModalProportional(std::string_view rows) {
  return SourceTable("CASE - MODAL HISTORY 4 - PROPORTIONAL DAMPING", rows);
}
std::string ModeDampings(std::string_view rows) {
  return SourceTable("CASE - MODAL HISTORY 5 - DAMPING OVERRIDES", rows);
}
std::string ModalParameters(std::string_view rows) {
  return SourceTable("CASE - MODAL HISTORY 6 - NONLINEAR PARAMETERS", rows);
}
std::string DirectDefinitions(std::string_view rows) {
  return SourceTable("CASE - DIRECT HISTORY 1 - GENERAL", rows);
}
std::string DirectDamping(std::string_view rows) {
  return SourceTable("CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING", rows);
}
std::string Methods(std::string_view rows) {
  return SourceTable("CASE - DIRECT HISTORY 4 - INTEGRATION PARAMETERS", rows);
}
std::string DirectParameters(std::string_view rows) {
  return SourceTable("CASE - DIRECT HISTORY 5 - NONLINEAR PARAMETERS", rows);
}

const std::string kModal =
    AnalysesBesideStatic("   Case=TH   Type=LinModHist   InitialCond=Zero\n");
const std::string kNonlinearModal =
    AnalysesBesideStatic("   Case=TH   Type=NonModHist   InitialCond=Zero\n");
const std::string kDirect =
    AnalysesBesideStatic("   Case=TH   Type=LinDirHis   InitialCond=Zero\n");
const std::string kNonlinearDirect =
    AnalysesBesideStatic("   Case=TH   Type=NonDirHist   InitialCond=Zero\n");

const std::string kConstant =
    ModalDefinitions("   Case=TH   OutSteps=50   StepSize=0.02   DampingType=Constant\n");
const std::string kByFactors = ModalDefinitions("   Case=TH   DampingType=Pro-Direct\n");
const std::string kByPeriods = ModalDefinitions("   Case=TH   DampingType=Pro-Period\n");
const std::string kStep = DirectDefinitions("   Case=TH   OutSteps=50   StepSize=1\n");
const std::string kFactors = "   Case=TH   SpecifyType=Direct   MassCoeff=0.3   StiffCoeff=0.02\n";
const std::string kPeriods = "   Case=TH   SpecifyType=Period   MassCoeff=0.3   Period1=1\n";
const std::string kNewmark = Methods("   Case=TH   IntMethod=Newmark   Gamma=0.5   Beta=0.25\n");

/// The losses of history tables.
std::vector<std::string> LossesOf(const std::string& tables) {
  return KeepAccount(tables).LossesIn("HISTORY");
}

// ---- Modal ----

TEST(AccountOfModalHistoriesTest, ACaseOfConstantDampingIsConverted) {
  const AccountRun run =
      KeepAccount(kModal + kConstant + ModeDampings("   Case=TH   Mode=2   Damping=0.03\n"));
  EXPECT_THAT(run.LossesIn("HISTORY"), IsEmpty());
  EXPECT_THAT(run.Tables(), Contains("CASE - MODAL HISTORY 1 - GENERAL: 1 rows, 1 converted"));
  EXPECT_THAT(run.Tables(),
              Contains("CASE - MODAL HISTORY 5 - DAMPING OVERRIDES: 1 rows, 1 converted"));
}

TEST(AccountOfModalHistoriesTest, ACaseOfProportionalDampingByFactorsIsConverted) {
  const AccountRun run = KeepAccount(kModal + kByFactors + ModalProportional(kFactors));
  EXPECT_THAT(run.Tables(),
              Contains("CASE - MODAL HISTORY 4 - PROPORTIONAL DAMPING: 1 rows, 1 converted"));
}

TEST(AccountOfModalHistoriesTest, ACaseThatIsNotAnalysedIsDropped) {
  EXPECT_THAT(
      LossesOf(kDirect + kConstant + ModalProportional(kFactors) +
               ModeDampings("   Case=OLD   Mode=1\n") + ModalParameters("   Case=TH   DTMax=1\n")),
      ElementsAre("Case=TH: analysis-case-missing", "Case=TH: no-part-in-its-case",
                  "Case=OLD: analysis-case-missing", "Case=TH: analysis-case-missing"));
}

TEST(AccountOfModalHistoriesTest, OtherDampingIsDroppedWithAllOfItsCase) {
  EXPECT_THAT(LossesOf(kModal + ModalDefinitions("   Case=TH   DampingType=Interpolated\n") +
                       SourceTable("CASE - MODAL HISTORY 3 - INTERPOLATED DAMPING",
                                   "   Case=TH   Period=1   Damping=0.03\n") +
                       ModalProportional(kFactors) + ModeDampings("   Case=TH   Mode=1\n")),
              ElementsAre("Case=TH: history-damping-unknown", "Case=TH: damping-of-other-kind",
                          "Case=TH: case-not-converted", "Case=TH: case-not-converted"));
}

TEST(AccountOfModalHistoriesTest, ProportionalDampingWithoutValuesDropsTheCase) {
  EXPECT_THAT(
      LossesOf(kModal + kByPeriods + ModalProportional("   Case=TH   SpecifyType=Period\n")),
      ElementsAre("Case=TH: damping-without-values", "Case=TH: damping-without-values"));
  EXPECT_THAT(LossesOf(kModal + kByPeriods), ElementsAre("Case=TH: damping-without-values"));
}

TEST(AccountOfModalHistoriesTest, ADefinitionBehindOneWithoutDampingIsDropped) {
  // Keys 1 and 2 are walked 2, 1.
  EXPECT_THAT(LossesOf(kModal + ModalDefinitions("   Case=TH   DampingType=Constant\n"
                                                 "   Case=TH   DampingType=Pro-Direct\n")),
              ElementsAre("Case=TH: behind-lost-row", "Case=TH: damping-without-values"));
}

TEST(AccountOfModalHistoriesTest, AFurtherDefinitionOfACaseIsChanged) {
  // Keys 1 and 2 are walked 2, 1.
  const AccountRun run =
      KeepAccount(kModal + ModalDefinitions("   Case=TH   DampingType=Constant\n"
                                            "   Case=TH   DampingType=Constant\n"));
  EXPECT_THAT(run.LossesIn("HISTORY"), ElementsAre("Case=TH: history-defined-again"));
  EXPECT_EQ(run.Rows.Losses.back().Position, 1U);
}

TEST(AccountOfModalHistoriesTest, DampingByTwoPointsIsChanged) {
  EXPECT_THAT(LossesOf(kModal + kByPeriods + ModalProportional(kPeriods)),
              ElementsAre("Case=TH: damping-of-two-points"));
}

TEST(AccountOfModalHistoriesTest, DampingThatTheDefinitionCallsOtherwiseIsChanged) {
  EXPECT_THAT(LossesOf(kModal + kByPeriods + ModalProportional(kFactors)),
              ElementsAre("Case=TH: damping-type-differs"));
  EXPECT_THAT(LossesOf(kModal + kByFactors + ModalProportional(kPeriods)),
              ElementsAre("Case=TH: damping-type-differs"));
  EXPECT_THAT(LossesOf(kModal + kByPeriods +
                       ModalProportional("   Case=TH   SpecifyType=Frequency   MassCoeff=1\n")),
              ElementsAre("Case=TH: damping-type-differs"));
}

TEST(AccountOfModalHistoriesTest, OfProportionalDampingsOfACaseTheFirstWalkedCounts) {
  // Keys 1 and 2 are walked 2, 1.
  const AccountRun run = KeepAccount(kModal + kByFactors + ModalProportional(kFactors + kFactors));
  EXPECT_THAT(run.LossesIn("HISTORY"), ElementsAre("Case=TH: case-defined-again"));
  EXPECT_EQ(run.Rows.Losses.back().Position, 1U);
}

TEST(AccountOfModalHistoriesTest, ProportionalDampingOfAConstantCaseIsNoLoss) {
  const AccountRun run = KeepAccount(kModal + kConstant + ModalProportional(kFactors));
  EXPECT_THAT(run.LossesIn("HISTORY"), ElementsAre("Case=TH: no-part-in-its-case"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfModalHistoriesTest, DampingOfModesOfAProportionalCaseIsDropped) {
  EXPECT_THAT(LossesOf(kModal + kByFactors + ModalProportional(kFactors) +
                       ModeDampings("   Case=TH   Mode=1   Damping=0.02\n")),
              ElementsAre("Case=TH: damping-of-other-kind"));
}

TEST(AccountOfModalHistoriesTest, NonlinearParametersThatKeepTheIntervalAreConverted) {
  // iOUT is 50 times 0.5, and 25 steps of 0.5 are the step of 12.5.
  const AccountRun run = KeepAccount(
      kNonlinearModal +
      ModalDefinitions("   Case=TH   OutSteps=50   StepSize=12.5   DampingType=Constant\n") +
      ModalParameters("   Case=TH   DTMax=0.5   DTMin=0.01\n"));
  EXPECT_THAT(run.LossesIn("HISTORY"), IsEmpty());
  EXPECT_THAT(run.Tables(),
              Contains("CASE - MODAL HISTORY 6 - NONLINEAR PARAMETERS: 1 rows, 1 converted"));
}

TEST(AccountOfModalHistoriesTest, AnotherIntervalOfResultsIsChanged) {
  // iOUT is 50 times 0.1, and 5 steps of 0.1 are not the step of 0.02.
  EXPECT_THAT(LossesOf(kNonlinearModal + kConstant + ModalParameters("   Case=TH   DTMax=0.1\n")),
              ElementsAre("Case=TH: history-output-interval"));
}

TEST(AccountOfModalHistoriesTest, ParametersOfALinearCaseAreNoLoss) {
  EXPECT_THAT(LossesOf(kModal + kConstant + ModalParameters("   Case=TH   DTMax=0.1\n")),
              ElementsAre("Case=TH: no-part-in-its-case"));
}

TEST(AccountOfModalHistoriesTest, OfParametersOfACaseTheFirstWalkedCounts) {
  // Keys 1 and 2 are walked 2, 1.
  EXPECT_THAT(
      LossesOf(kNonlinearModal +
               ModalDefinitions("   Case=TH   OutSteps=50   StepSize=50   DampingType=Constant\n") +
               ModalParameters("   Case=TH   DTMax=9\n   Case=TH   DTMax=1\n")),
      ElementsAre("Case=TH: case-defined-again"));
}

// ---- Direct ----

TEST(AccountOfDirectHistoriesTest, ACaseByNewmarkWithFactorsIsConverted) {
  const AccountRun run = KeepAccount(kDirect + kStep + DirectDamping(kFactors) + kNewmark);
  EXPECT_THAT(run.LossesIn("HISTORY"), IsEmpty());
  EXPECT_THAT(run.Tables(), Contains("CASE - DIRECT HISTORY 1 - GENERAL: 1 rows, 1 converted"));
  EXPECT_THAT(run.Tables(),
              Contains("CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING: 1 rows, 1 converted"));
  EXPECT_THAT(run.Tables(),
              Contains("CASE - DIRECT HISTORY 4 - INTEGRATION PARAMETERS: 1 rows, 1 converted"));
}

TEST(AccountOfDirectHistoriesTest, ACaseThatIsNotAnalysedIsDropped) {
  EXPECT_THAT(LossesOf(kModal + kStep + DirectDamping(kFactors) + kNewmark +
                       DirectParameters("   Case=TH   DTMax=1\n")),
              ElementsAre("Case=TH: analysis-case-missing", "Case=TH: analysis-case-missing",
                          "Case=TH: analysis-case-missing", "Case=TH: analysis-case-missing"));
}

TEST(AccountOfDirectHistoriesTest, AnotherMethodDropsTheCase) {
  EXPECT_THAT(LossesOf(kDirect + kStep + DirectDamping(kFactors) +
                       Methods("   Case=TH   IntMethod=Wilson   Theta=1\n")),
              ElementsAre("Case=TH: integration-not-newmark", "Case=TH: case-not-converted",
                          "Case=TH: integration-not-newmark"));
}

TEST(AccountOfDirectHistoriesTest, ACaseWithoutAMethodIsChanged) {
  EXPECT_THAT(LossesOf(kDirect + kStep + DirectDamping(kFactors)),
              ElementsAre("Case=TH: value-not-stated"));
}

TEST(AccountOfDirectHistoriesTest, OfMethodsOfACaseTheFirstWalkedCounts) {
  // Keys 1 and 2 are walked 2, 1.
  EXPECT_THAT(LossesOf(kDirect + kStep + DirectDamping(kFactors) +
                       Methods("   Case=TH   IntMethod=Wilson\n   Case=TH   IntMethod=Newmark\n")),
              ElementsAre("Case=TH: case-defined-again"));
}

TEST(AccountOfDirectHistoriesTest, DampingWithoutValuesDropsTheCase) {
  EXPECT_THAT(
      LossesOf(kDirect + kStep + DirectDamping("   Case=TH   SpecifyType=Direct\n") + kNewmark),
      ElementsAre("Case=TH: damping-without-values", "Case=TH: damping-without-values",
                  "Case=TH: case-not-converted"));
}

TEST(AccountOfDirectHistoriesTest, DampingByTwoPointsIsChanged) {
  EXPECT_THAT(LossesOf(kDirect + kStep + DirectDamping(kPeriods) + kNewmark),
              ElementsAre("Case=TH: damping-of-two-points"));
}

TEST(AccountOfDirectHistoriesTest, ParametersThatKeepTheIntervalAreConverted) {
  // iOUT is 50 by 5, and 10 steps of 5 are the step of 50.
  const AccountRun run =
      KeepAccount(kNonlinearDirect + DirectDefinitions("   Case=TH   OutSteps=50   StepSize=50\n") +
                  DirectDamping(kFactors) + kNewmark + DirectParameters("   Case=TH   DTMax=5\n"));
  EXPECT_THAT(run.LossesIn("HISTORY"), IsEmpty());
  EXPECT_THAT(run.Tables(),
              Contains("CASE - DIRECT HISTORY 5 - NONLINEAR PARAMETERS: 1 rows, 1 converted"));
}

TEST(AccountOfDirectHistoriesTest, ALongestStepBelowOneChangesTheInterval) {
  EXPECT_THAT(LossesOf(kNonlinearDirect + kStep + DirectDamping(kFactors) + kNewmark +
                       DirectParameters("   Case=TH   DTMax=0.1\n")),
              ElementsAre("Case=TH: history-output-interval"));
}

}  // namespace
