#include "support/account_run.h"
#include "support/analysis_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A row of a combination, of a term of this kind and name.
std::string Term(const std::string& combination, const std::string& type, const std::string& name) {
  return "   ComboName=" + combination + "   ComboType=\"Linear Add\"   CaseType=\"" + type +
         "\"   CaseName=" + name + "   ScaleFactor=1.2\n";
}
std::string Static(const std::string& combination, const std::string& name) {
  return Term(combination, "Linear Static", name);
}
AccountRun KeepCombinations(const std::string& rows, const std::string& tables = "") {
  return KeepAccount(AnalysesBesideStatic("") + tables +
                     SourceTable("COMBINATION DEFINITIONS", rows));
}
std::vector<std::string> LossesOf(const std::string& rows, const std::string& tables = "") {
  return KeepCombinations(rows, tables).LossesIn("COMBINATION");
}

TEST(AccountOfCombinationsTest, CombinationsOfStaticLoadCasesAreConverted) {
  const AccountRun run = KeepCombinations(
      "   ComboName=ULS   ComboType=Envelope   CaseType=\"Linear Static\"   "
      "CaseName=DEAD   ScaleFactor=1.35\n"
      "   ComboName=ULS   CaseType=\"Linear Static\"   CaseName=LIVE\n" +
      Static("SLS", "LIVE"));
  EXPECT_EQ(run.Tables().back(), "COMBINATION DEFINITIONS: 3 rows, 3 converted");
}

TEST(AccountOfCombinationsTest, ATermThatIsNoStaticLoadCaseDropsAllOfItsCombination) {
  EXPECT_THAT(
      LossesOf(Static("A", "DEAD") + Static("A", "EQ") + Static("A", "LIVE") + Static("B", "LIVE")),
      ElementsAre("ComboName=A: combination-of-lost-term",
                  "ComboName=A: combination-term-not-static",
                  "ComboName=A: combination-of-lost-term"));
}

TEST(AccountOfCombinationsTest, AFirstTermThatIsNoStaticLoadCaseTakesTheCombinationBeforeAlong) {
  EXPECT_THAT(LossesOf(Static("A", "DEAD") + Static("B", "DEAD") + Static("B", "LIVE") +
                       Static("C", "EQ") + Static("C", "LIVE") + Static("D", "LIVE")),
              ElementsAre("ComboName=B: lost-with-next-row", "ComboName=B: lost-with-next-row",
                          "ComboName=C: combination-term-not-static",
                          "ComboName=C: combination-of-lost-term"));
}

TEST(AccountOfCombinationsTest, ALostCombinationAtTheEndTakesTheOneBeforeAlongOnlyByItsFirstTerm) {
  EXPECT_THAT(LossesOf(Static("A", "DEAD") + Static("B", "DEAD") + Static("B", "EQ")),
              ElementsAre("ComboName=B: combination-of-lost-term",
                          "ComboName=B: combination-term-not-static"));
  EXPECT_THAT(
      LossesOf(Static("A", "DEAD") + Static("B", "EQ")),
      ElementsAre("ComboName=A: lost-with-next-row", "ComboName=B: combination-term-not-static"));
}

TEST(AccountOfCombinationsTest, LostCombinationsBehindEachOtherTakeNothingAlong) {
  EXPECT_THAT(LossesOf(Static("A", "EQ") + Static("B", "EQ") + Static("C", "DEAD")),
              ElementsAre("ComboName=A: combination-term-not-static",
                          "ComboName=B: combination-term-not-static"));
}

TEST(AccountOfCombinationsTest, ACombinationThatComesBackIsChanged) {
  EXPECT_THAT(LossesOf(Static("A", "DEAD") + Static("B", "DEAD") + Static("A", "LIVE")),
              ElementsAre("ComboName=A: rows-of-name-apart"));
}

TEST(AccountOfCombinationsTest, AnUnknownTypeOfCombinationIsChanged) {
  EXPECT_THAT(LossesOf("   ComboName=A   ComboType=Range   CaseType=\"Linear Static\"   "
                       "CaseName=DEAD\n"),
              ElementsAre("ComboName=A: combination-type-unknown"));
}

TEST(AccountOfCombinationsTest, ACombinationWithoutATypeIsChanged) {
  EXPECT_THAT(LossesOf("   ComboName=A   CaseType=\"Linear Static\"   CaseName=DEAD\n"
                       "   ComboName=A   CaseType=\"Linear Static\"   CaseName=LIVE\n"
                       "   ComboName=B   CaseType=\"Linear Static\"   CaseName=LIVE\n"),
              ElementsAre("ComboName=A: value-not-stated", "ComboName=B: value-not-stated"));
}

TEST(AccountOfCombinationsTest, ATermTakenForAStaticOneIsChanged) {
  EXPECT_THAT(
      LossesOf(Term("A", "NonLin Static", "DEAD") + Term("B", "Linear Direct Hist", "DEAD")),
      ElementsAre("ComboName=A: combination-case-as-static",
                  "ComboName=B: combination-case-as-static"));
}

TEST(AccountOfCombinationsTest, ATermOfACaseOfItsKindIsConverted) {
  // All of these bear the name of a static load case as well.
  const std::string spectrum =
      SourceTable("CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS",
                  "   Case=LIVE   LoadName=U1   CoordSys=GLOBAL   Function=F   TransAccSF=1\n"
                  "   Case=LIVE   LoadName=U2   CoordSys=GLOBAL   Function=F   TransAccSF=1\n"
                  "   Case=DEAD   LoadName=U2   CoordSys=GLOBAL   Function=F   TransAccSF=1\n"
                  "   Case=LAST   LoadName=U2   CoordSys=GLOBAL   Function=F   TransAccSF=1\n");
  EXPECT_THAT(
      LossesOf(Term("A", "Response Spectrum", "LIVE") + Term("B", "Response Spectrum", "DEAD") +
                   Term("LIVE", "Linear Static", "LIVE") + Term("C", "Response Combo", "LIVE"),
               spectrum),
      IsEmpty());
}

TEST(AccountOfCombinationsTest, AHistoryAndAMovingLoadOfTheNameAreConverted) {
  const AccountRun run = KeepAccount(
      AnalysesBesideStatic("   Case=DEAD   Type=LinModHist   InitialCond=Zero\n") +
      SourceTable("CASE - MODAL HISTORY 1 - GENERAL", "   Case=DEAD   DampingType=Constant\n") +
      SourceTable("BRIDGE LOADS 5 - VEHICLE CLASSES", "   VehClass=LIVE   VehName=HS20\n") +
      SourceTable("CASE - MOVING LOAD 1 - LANE ASSIGNMENTS", "   Case=LIVE   VehClass=LIVE\n") +
      SourceTable("COMBINATION DEFINITIONS",
                  Term("A", "Linear Modal Hist", "DEAD") + Term("B", "Moving Load", "LIVE")));
  EXPECT_THAT(run.LossesIn("COMBINATION"), IsEmpty());
}

TEST(AccountOfCombinationsTest, ATermOfAKindThatTheNameDoesNotHaveIsChanged) {
  EXPECT_THAT(
      LossesOf(Term("A", "Response Spectrum", "DEAD") + Term("B", "Linear Modal Hist", "DEAD") +
               Term("C", "Moving Load", "DEAD") + Term("D", "Response Combo", "DEAD")),
      ElementsAre("ComboName=A: load-case-not-written", "ComboName=B: load-case-not-written",
                  "ComboName=C: load-case-not-written", "ComboName=D: load-case-not-written"));
}

}  // namespace
