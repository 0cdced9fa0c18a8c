#include "support/account_run.h"
#include "support/analysis_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// The losses of buckling tables, of the analysis cases B1 and B2 of buckling, of which B2 is
/// walked first.
std::vector<std::string> LossesOf(std::string_view definitions, std::string_view loads) {
  return KeepAccount(AnalysesBesideStatic("   Case=B1   Type=LinBuckling\n"
                                          "   Case=B2   Type=LinBuckling\n") +
                     SourceTable("CASE - BUCKLING 1 - GENERAL", definitions) +
                     SourceTable("CASE - BUCKLING 2 - LOAD ASSIGNMENTS", loads))
      .LossesIn("BUCKLING");
}

TEST(AccountOfBucklingTest, ACaseOfLoadCasesIsConverted) {
  const AccountRun run = KeepAccount(
      AnalysesBesideStatic("   Case=BUCK   Type=LinBuckling\n") +
      SourceTable("CASE - BUCKLING 1 - GENERAL", "   Case=BUCK   NumBuckMode=6\n") +
      SourceTable("CASE - BUCKLING 2 - LOAD ASSIGNMENTS",
                  "   Case=BUCK   LoadType=\"Load case\"   LoadName=DEAD   LoadSF=1\n"
                  "   Case=BUCK   LoadType=\"Load case\"   LoadName=LIVE   LoadSF=2\n"));
  EXPECT_THAT(run.LossesIn("BUCKLING"), IsEmpty());
  EXPECT_THAT(run.Tables(), Contains("CASE - BUCKLING 1 - GENERAL: 1 rows, 1 converted"));
  EXPECT_THAT(run.Tables(), Contains("CASE - BUCKLING 2 - LOAD ASSIGNMENTS: 2 rows, 2 converted"));
}

TEST(AccountOfBucklingTest, AFurtherCaseIsDropped) {
  EXPECT_THAT(LossesOf("   Case=B1\n   Case=B2\n",
                       "   Case=B1   LoadName=DEAD\n"
                       "   Case=B2   LoadName=LIVE\n"),
              ElementsAre("Case=B1: definition-not-first", "Case=B1: definition-not-first"));
}

TEST(AccountOfBucklingTest, ACaseThatIsNotAnalysedIsDropped) {
  EXPECT_THAT(LossesOf("   Case=OLD\n   Case=B2\n",
                       "   Case=OLD   LoadName=DEAD\n"
                       "   Case=B2   LoadName=LIVE\n"),
              ElementsAre("Case=OLD: analysis-case-missing", "Case=OLD: analysis-case-missing"));
}

TEST(AccountOfBucklingTest, OfDefinitionsOfOneCaseTheLastWalkedCounts) {
  // Keys 1 to 3 are walked 2, 1, 3.
  EXPECT_THAT(LossesOf("   Case=B2   NumBuckMode=1\n   Case=B2   NumBuckMode=2\n"
                       "   Case=B2   NumBuckMode=3\n",
                       "   Case=B2   LoadName=LIVE\n"),
              ElementsAre("Case=B2: case-defined-again", "Case=B2: case-defined-again"));
}

TEST(AccountOfBucklingTest, AnAccelerationIsDroppedAndEndsTheLoadsOfItsCase) {
  // Keys 1 to 3 are walked 2, 1, 3.
  EXPECT_THAT(LossesOf("   Case=B2\n",
                       "   Case=B2   LoadType=Accel   LoadName=\"Accel UX\"\n"
                       "   Case=B2   LoadName=DEAD\n"
                       "   Case=B2   LoadName=LIVE\n"),
              ElementsAre("Case=B2: buckling-load-not-load-case", "Case=B2: behind-lost-row"));
}

TEST(AccountOfBucklingTest, ACaseThatBeginsWithAnAccelerationIsDropped) {
  // Keys 1 and 2 are walked 2, 1.
  EXPECT_THAT(LossesOf("   Case=B2\n",
                       "   Case=B2   LoadName=DEAD\n"
                       "   Case=B2   LoadType=Accel   LoadName=\"Accel UX\"\n"),
              ElementsAre("Case=B2: case-not-converted", "Case=B2: case-not-converted",
                          "Case=B2: buckling-load-not-load-case"));
}

TEST(AccountOfBucklingTest, ALoadThatIsNoLoadCaseOfTheOutputIsChanged) {
  EXPECT_THAT(LossesOf("   Case=B2\n", "   Case=B2   LoadName=SNOW\n"),
              ElementsAre("Case=B2: load-case-not-written"));
}

}  // namespace
