#include "support/account_run.h"
#include "support/time_histories.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// Load cases whose static cases have the analysis rows behind them.
std::string Analyses(const std::string& rows) {
  return "   Case=LIVE   Type=LinStatic   InitialCond=Zero\n" + rows;
}
const std::string kStaticLoad =
    SourceTable("CASE - STATIC 1 - LOAD ASSIGNMENTS", "   Case=LIVE   LoadName=LIVE\n");

// Keys 2 and 3 of the analysis cases are walked 2, 3.
const std::string kModal = Analyses("   Case=TH1   Type=LinModHist   InitialCond=Zero\n");
const std::string kModalThenDirect = Analyses(
    "   Case=TH1   Type=LinModHist   InitialCond=Zero\n"
    "   Case=BLAST   Type=LinDirHis   InitialCond=Zero\n");

/// A load of a case that goes by a function.
std::string LoadOf(const std::string& name, const std::string& function,
                   const std::string& scale = "1", const std::string& timeFactor = "1") {
  return "   Case=" + name + "   LoadType=\"Load case\"   LoadName=LIVE   Function=" + function +
         "   LoadSF=" + scale + "   TimeFactor=" + timeFactor + "   ArrivalTime=2\n";
}
/// A ground acceleration of a case by the function PULSE.
std::string AccelerationOf(const std::string& name, const std::string& direction) {
  return "   Case=" + name + "   LoadType=Accel   LoadName=\"" + direction +
         "\"   Function=PULSE   TransAccSF=9.81   TimeFactor=1\n";
}

AccountRun Keep(const std::string& analyses, const std::string& modal, const std::string& direct) {
  return KeepAccount(kStaticLoad + ModalAndDirectCases(analyses, modal, direct));
}
std::vector<std::string> ModalLosses(const std::string& rows) {
  return Keep(kModal, rows, "").LossesIn("MODAL HISTORY 2");
}

TEST(AccountOfHistoryLoadsTest, LoadsAndAccelerationsAreConverted) {
  EXPECT_THAT(Keep(kModal, LoadOf("TH1", "PULSE"), "").Tables(),
              Contains("CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS: 1 rows, 1 converted"));
  for (const char* direction : {"Accel U1", "Accel U2", "Accel U3"}) {
    EXPECT_THAT(ModalLosses(AccelerationOf("TH1", direction)), IsEmpty());
  }
}

TEST(AccountOfHistoryLoadsTest, LoadsOfACaseThatIsNotAnalysedAreDropped) {
  const AccountRun run = Keep(kModal, LoadOf("TH2", "PULSE"), AccelerationOf("BLAST", "Accel U1"));
  EXPECT_THAT(run.LossesIn("HISTORY 2"),
              ElementsAre("Case=TH2: analysis-case-missing", "Case=BLAST: analysis-case-missing"));
}

TEST(AccountOfHistoryLoadsTest, LoadsOfACaseThatIsLostAreDropped) {
  EXPECT_THAT(Keep(Analyses("   Case=TH9   Type=LinModHist\n"), LoadOf("TH9", "PULSE"), "")
                  .LossesIn("HISTORY 2"),
              ElementsAre("Case=TH9: case-not-converted"));
}

TEST(AccountOfHistoryLoadsTest, AFunctionWithoutPointsIsChangedAndEndsTheLoadsOfItsCase) {
  // Keys 1 to 3 are walked 2, 1, 3.
  EXPECT_THAT(ModalLosses(LoadOf("TH1", "LOST") + LoadOf("TH1", "PULSE") + LoadOf("TH1", "PULSE")),
              ElementsAre("Case=TH1: time-function-without-points", "Case=TH1: behind-lost-row"));
}

TEST(AccountOfHistoryLoadsTest, AFunctionKeepsTheScaleAndTheTimeFactorOfItsFirstLoad) {
  // Keys 1 to 4 are walked 2, 4, 1, 3.
  const AccountRun run = Keep(kModal,
                              LoadOf("TH1", "PULSE", "1", "5") + LoadOf("TH1", "PULSE", "1", "1") +
                                  LoadOf("TH1", "PULSE", "2", "1") + LoadOf("TH1", "PULSE"),
                              "");
  EXPECT_THAT(run.LossesIn("HISTORY 2"), ElementsAre("Case=TH1: time-function-of-first-load",
                                                     "Case=TH1: time-function-of-first-load"));
}

TEST(AccountOfHistoryLoadsTest, AFunctionKeepsTheKindOfItsFirstLoad) {
  // Keys 1 and 2 are walked 2, 1.
  EXPECT_THAT(ModalLosses(LoadOf("TH1", "PULSE", "9.81") + AccelerationOf("TH1", "Accel U1")),
              ElementsAre("Case=TH1: time-function-of-first-load"));
}

TEST(AccountOfHistoryLoadsTest, ALoadThatIsNoLoadCaseIsChanged) {
  EXPECT_THAT(ModalLosses("   Case=TH1   LoadType=\"Load case\"   LoadName=SNOW   "
                          "Function=PULSE   LoadSF=1   TimeFactor=1\n"),
              ElementsAre("Case=TH1: load-case-not-written"));
}

TEST(AccountOfHistoryLoadsTest, ALoadOfAnotherKindIsChanged) {
  EXPECT_THAT(ModalLosses("   Case=TH1   LoadType=Mode   LoadName=LIVE   Function=PULSE\n"),
              ElementsAre("Case=TH1: history-load-of-other-kind"));
}

TEST(AccountOfHistoryLoadsTest, AnArrivalTimeOrAnAngleOfAnAccelerationIsChanged) {
  for (const std::string value : {"ArrivalTime=0.5", "Angle=30"}) {
    EXPECT_THAT(ModalLosses("   Case=TH1   LoadType=Accel   LoadName=\"Accel U1\"   "
                            "Function=PULSE   TransAccSF=1   TimeFactor=1   " +
                            value + "\n"),
                ElementsAre("Case=TH1: angle-for-arrival-time"))
        << value;
  }
}

TEST(AccountOfHistoryLoadsTest, AnAccelerationInAnUnknownDirectionIsChanged) {
  EXPECT_THAT(ModalLosses(AccelerationOf("TH1", "Accel R1")),
              ElementsAre("Case=TH1: ground-direction-unknown"));
}

TEST(AccountOfHistoryLoadsTest, ADirectLoadWritesItsFunctionOnceMoreAndIsNoLoss) {
  const AccountRun run = Keep(kModalThenDirect, LoadOf("TH1", "PULSE"), LoadOf("BLAST", "PULSE"));
  EXPECT_THAT(run.LossesIn("HISTORY 2"), ElementsAre("Case=BLAST: time-function-written-again"));
}

TEST(AccountOfHistoryLoadsTest, ADirectLoadOfAnotherScaleIsChanged) {
  const AccountRun run =
      Keep(kModalThenDirect, LoadOf("TH1", "PULSE"), LoadOf("BLAST", "PULSE", "3"));
  EXPECT_THAT(run.LossesIn("HISTORY 2"), ElementsAre("Case=BLAST: time-function-of-first-load"));
}

TEST(AccountOfHistoryLoadsTest, ADirectLoadWhoseFunctionNoModalOneBringsInEndsTheLoads) {
  // Keys 1 and 2 are walked 2, 1.
  const AccountRun run = Keep(Analyses("   Case=BLAST   Type=LinDirHis   InitialCond=Zero\n"), "",
                              LoadOf("BLAST", "PULSE") + LoadOf("BLAST", "PULSE"));
  EXPECT_THAT(run.LossesIn("HISTORY 2"), ElementsAre("Case=BLAST: behind-lost-row",
                                                     "Case=BLAST: time-function-not-brought-in"));
}

TEST(AccountOfHistoryLoadsTest, ADirectAccelerationThatTakesTheKeyOfAModalOneDropsIt) {
  // The modal one has key 2 and leaves key 1. The first direct one takes key 2, and the next too.
  const AccountRun run =
      Keep(kModalThenDirect, AccelerationOf("TH1", "Accel U1"),
           AccelerationOf("BLAST", "Accel U1") + AccelerationOf("BLAST", "Accel U2"));
  EXPECT_THAT(
      run.LossesIn("HISTORY 2"),
      ElementsAre("Case=TH1: acceleration-replaced", "Case=BLAST: time-function-written-again",
                  "Case=BLAST: acceleration-replaced", "Case=BLAST: time-function-written-again"));
  EXPECT_EQ(run.Rows.Losses.back().Position, 2U);  // of the rows 1 and 2, walked 2, 1
}

// ---- Functions ----

std::string FromFile(std::string_view rows) {
  return SourceTable("FUNCTION - TIME HISTORY - FROM FILE", rows);
}

TEST(AccountOfTimeFunctionsTest, PointsOfAFunctionThatALoadBringsInAreConverted) {
  EXPECT_THAT(Keep(kModal, LoadOf("TH1", "PULSE"), "").Tables(),
              Contains("FUNCTION - TIME HISTORY - USER: 2 rows, 2 converted"));
  EXPECT_THAT(KeepAccount(FromFile("   Name=QUAKE   Time=0   Value=1   FileName=q.txt\n") +
                          kStaticLoad + ModalAndDirectCases(kModal, LoadOf("TH1", "QUAKE"), ""))
                  .Tables(),
              Contains("FUNCTION - TIME HISTORY - FROM FILE: 1 rows, 1 converted"));
}

TEST(AccountOfTimeFunctionsTest, PointsOfAFunctionThatNoLoadBringsInAreDropped) {
  EXPECT_THAT(
      Keep(kModal, "", "").LossesIn("FUNCTION"),
      ElementsAre("Name=PULSE: time-function-not-used", "Name=PULSE: time-function-not-used"));
}

TEST(AccountOfTimeFunctionsTest, FunctionsOfTheUserBesideOneFromAFileAreDropped) {
  const AccountRun run = KeepAccount(FromFile("   Name=QUAKE   Time=0   Value=1\n") + kStaticLoad +
                                     ModalAndDirectCases(kModal, LoadOf("TH1", "PULSE"), ""));
  EXPECT_THAT(run.LossesIn("FUNCTION"), ElementsAre("Name=QUAKE: time-function-not-used",
                                                    "Name=PULSE: user-function-beside-file",
                                                    "Name=PULSE: user-function-beside-file"));
  EXPECT_THAT(run.LossesIn("HISTORY 2"), ElementsAre("Case=TH1: time-function-without-points"));
}

TEST(AccountOfTimeFunctionsTest, FunctionsByFormulaAndPeriodicOnesAreDropped) {
  for (const std::string kind :
       {"COSINE", "RAMP", "SAWTOOTH", "SINE", "TRIANGULAR", "USER PERIODIC"}) {
    EXPECT_THAT(KeepAccount(SourceTable("FUNCTION - TIME HISTORY - " + kind,
                                        "   Name=F   Time=0   Value=0\n"))
                    .Losses(),
                ElementsAre("Name=F: time-function-by-formula"))
        << kind;
  }
}

}  // namespace
