#include "support/account_run.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::string Joints(std::string_view rows) { return SourceTable("JOINT COORDINATES", rows); }

TEST(AccountOfTablesTest, RowsOfAKnownTableAreConverted) {
  const AccountRun run = KeepAccount(Joints("   Joint=1   XorR=2\n   Joint=2   XorR=3\n"));
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 2 rows, 2 converted"));
  EXPECT_THAT(run.Losses(), IsEmpty());
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfTablesTest, WithoutBeingAskedForThereIsNone) {
  ScriptedPlatform platform;
  s2k2ngt::CConverter converter(platform);
  EXPECT_THAT(converter.AccountOfRows().Tables, IsEmpty());
  converter.Run("/no/such/file.s2k");
  EXPECT_THAT(converter.AccountOfRows().Tables, IsEmpty());
}

TEST(AccountOfTablesTest, ATableStandsWithItsTitleLineAndId) {
  const AccountRun run = KeepAccount(Joints("   Joint=1\n"));
  ASSERT_GE(run.Rows.Tables.size(), 1U);
  EXPECT_EQ(run.Rows.Tables[0].Title, "JOINT COORDINATES");
  EXPECT_EQ(run.Rows.Tables[0].Line, 3U);  // behind the line of the file's name and an empty one
  EXPECT_GT(run.Rows.Tables[0].TableId, 0);
}

TEST(AccountOfTablesTest, RowsOfAnUnknownTitleAreNotLookedAt) {
  const AccountRun run = KeepAccount(SourceTable("CABLE SHAPES", "   Cable=1\n   Cable=2\n"));
  EXPECT_THAT(run.Tables(), ElementsAre("CABLE SHAPES: 2 rows, 2 not looked at"));
  ASSERT_EQ(run.Rows.Tables[0].Reasons.size(), 1U);
  EXPECT_STREQ(run.Rows.Tables[0].Reasons[0].Why->Code, "table-unknown");
  EXPECT_EQ(run.Rows.Tables[0].Reasons[0].Rows, 2U);
  EXPECT_EQ(run.Rows.Tables[0].TableId, 0);
  EXPECT_TRUE(run.HasLossOfRows());
}

TEST(AccountOfTablesTest, RowsOfAKnownTableThatNothingReadsAreNotLookedAt) {
  const AccountRun run =
      KeepAccount(SourceTable("AREA LOCAL AXES ASSIGNMENTS 2 - ADVANCED", "   Area=1\n"));
  ASSERT_EQ(run.Rows.Tables.size(), 1U);
  EXPECT_STREQ(run.Rows.Tables[0].Reasons[0].Why->Code, "table-not-read");
}

TEST(AccountOfTablesTest, SettingsAreNotLookedAtAndAreNoLoss) {
  const AccountRun run = KeepAccount(
      SourceTable("PREFERENCES - STEEL DESIGN - AISC-LRFD99", "   THDesign=Envelopes\n"));
  ASSERT_EQ(run.Rows.Tables.size(), 1U);
  EXPECT_STREQ(run.Rows.Tables[0].Reasons[0].Why->Code, "table-without-model-data");
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfTablesTest, ARefusedTableHasItsMessage) {
  const AccountRun run = KeepAccount(SourceTable("AREA AUTO MESH ASSIGNMENTS", "   Area=1\n"));
  EXPECT_THAT(run.Tables(), ElementsAre("AREA AUTO MESH ASSIGNMENTS: 1 rows, 1 refused"));
  EXPECT_STREQ(run.Rows.Tables[0].Reasons[0].Why->Code, "table-refused");
  EXPECT_EQ(run.Rows.Tables[0].Message, "IDS_S2KV8_AREA_AtMesh_Not_Convert");
  EXPECT_THAT(run.Run.Messages, ElementsAre("IDS_S2KV8_AREA_AtMesh_Not_Convert"));
}

TEST(AccountOfTablesTest, ALaterBlockWritesOverTheRowsOfItsPositions) {
  const AccountRun run =
      KeepAccount(Joints("   Joint=1\n   Joint=2\n   Joint=3\n") + Joints("   Joint=4\n"));
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 3 rows, 2 converted, 1 dropped",
                                        "JOINT COORDINATES: 1 rows, 1 converted"));
  EXPECT_THAT(run.Losses(), ElementsAre("Joint=1: overwritten-by-later-block"));
}

TEST(AccountOfTablesTest, ALongerBlockWritesOverAllBlocksBefore) {
  const AccountRun run = KeepAccount(Joints("   Joint=1\n   Joint=2\n") + Joints("   Joint=3\n") +
                                     Joints("   Joint=4\n   Joint=5\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Joint=1: overwritten-by-later-block",
                                        "Joint=2: overwritten-by-later-block",
                                        "Joint=3: overwritten-by-later-block"));
}

TEST(AccountOfTablesTest, ATitleWithoutAnEmptyLineDropsTheRowsAboveAndTakesTheOnesBelow) {
  const AccountRun run = KeepAccount(
      "TABLE:  \"JOINT COORDINATES\"\n   Joint=1\n"
      "TABLE:  \"JOINT RESTRAINT ASSIGNMENTS\"\n   Joint=1   U1=Yes\n   Joint=2   U1=Yes\n");
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 1 rows, 1 dropped",
                                        "JOINT RESTRAINT ASSIGNMENTS: 2 rows, 2 changed"));
  EXPECT_STREQ(run.Rows.Tables[0].Reasons[0].Why->Code, "title-without-empty-line");
  EXPECT_STREQ(run.Rows.Tables[1].Reasons[0].Why->Code, "read-under-title-before");
  EXPECT_EQ(run.Rows.Tables[1].Line, 5U);
}

TEST(AccountOfTablesTest, ARowThatEndsInItsMarkOfContinuationIsDropped) {
  const AccountRun run = KeepAccount(Joints("   Joint=1\n   Joint=2   XorR=3 _\n"));
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 1 rows, 1 converted",
                                        "JOINT COORDINATES: 1 rows, 1 dropped"));
  EXPECT_STREQ(run.Rows.Tables[1].Reasons[0].Why->Code, "row-without-end");
}

TEST(AccountOfTablesTest, OfUnitsTheFirstRowCounts) {
  const AccountRun run = KeepAccount(
      SourceTable("PROGRAM CONTROL", "   CurrUnits=\"KN, m, C\"\n   CurrUnits=\"Kip, ft, F\"\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("CurrUnits=\"Kip, ft, F\": first-row-counts"));
}

TEST(AccountOfTablesTest, ALossNamesItsLineBehindRowsOfSeveralLines) {
  const AccountRun run =
      KeepAccount(Joints("   Joint=1   XorR=1 _\n   Y=2\n   Joint=2\n   Joint=3\n") +
                  Joints("   Joint=4\n   Joint=5\n"));
  ASSERT_EQ(run.Rows.Losses.size(), 2U);
  EXPECT_EQ(run.Rows.Losses[0].Line, 4U);
  EXPECT_EQ(run.Rows.Losses[1].Line, 6U);
  EXPECT_EQ(run.Rows.Losses[1].Position, 2U);
}

TEST(AccountOfTablesTest, ARowThatRefusesTheFileLeavesAllOthersNotLookedAt) {
  const AccountRun run =
      KeepAccount(SourceTable("FRAME PROPS 01 - GENERAL", "   SectionName=A\n") +
                  Joints("   Joint=1\n   Joint=2   CoordType=Cylindrical\n   Joint=3\n"));
  EXPECT_EQ(run.Run.Result, s2k2ngt::kFailed);
  EXPECT_EQ(run.Rows.With(s2k2ngt::RowFate::Converted), 0U);
  EXPECT_EQ(run.Tables().back(), "JOINT COORDINATES: 3 rows, 1 refused, 2 not looked at");
  EXPECT_THAT(run.Losses(), ElementsAre("Joint=2: row-refused"));
}

TEST(AccountOfTablesTest, RowsAboveTheEndOfAFileWithoutEndAreTold) {
  const AccountRun run =
      KeepAccountOfBytes("File model.s2k\n \nTABLE:  \"JOINT COORDINATES\"\n   Joint=1\n");
  EXPECT_EQ(run.Run.Result, s2k2ngt::kFailed);
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 1 rows, 1 not looked at"));
  EXPECT_STREQ(run.Rows.Tables[0].Reasons[0].Why->Code, "run-ended");
}

// ---- What stands in no table ----

TEST(AccountOfNoTable, RowsBeforeTheFirstTitleAreNotLookedAt) {
  const AccountRun run =
      KeepAccountOfBytes("File model.s2k\n   Joint=1   XorR=2\n   Joint=2   XorR=3\n\n" +
                         Joints("   Joint=3\n") + "END TABLE DATA\n");
  EXPECT_THAT(run.Tables(), ElementsAre("(outside of the tables): 2 rows, 2 not looked at",
                                        "JOINT COORDINATES: 1 rows, 1 converted"));
  EXPECT_STREQ(run.Rows.Tables[0].Reasons[0].Why->Code, "outside-of-tables");
  EXPECT_EQ(run.Rows.Tables[0].Line, 2U);
  EXPECT_TRUE(run.HasLossOfRows());
}

TEST(AccountOfNoTable, RowsBehindTheEndAreNotLookedAt) {
  const AccountRun run = KeepAccountOfBytes(Joints("   Joint=1\n") + "END TABLE DATA\n\n" +
                                            Joints("   Joint=2\n   Joint=3\n"));
  // The title is one of the lines.
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 1 rows, 1 converted",
                                        "(outside of the tables): 3 rows, 3 not looked at"));
  EXPECT_EQ(run.Rows.Tables[1].Line, 6U);
}

TEST(AccountOfNoTable, RowsBehindAsManyEmptyLinesAsEndAFileAreNotLookedAt) {
  const AccountRun run = KeepAccountOfBytes(Joints("   Joint=1\n") + std::string(12, '\n') +
                                            Joints("   Joint=2\n") + "END TABLE DATA\n");
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 1 rows, 1 converted",
                                        "(outside of the tables): 2 rows, 2 not looked at"));
}

TEST(AccountOfNoTable, AFileThatDoesNotStateItsEndMayBeCutOff) {
  const std::string sound = SourceTable("GROUPS 1 - DEFINITIONS", "   GroupName=ALL\n");
  for (const std::string& bytes : {sound, std::string(), std::string("\n\n")}) {
    const AccountRun run = KeepAccountOfBytes(bytes);
    EXPECT_EQ(run.Run.Result, s2k2ngt::kConverted);
    EXPECT_EQ(run.Tables().back(), "(end of the file): 1 rows, 1 not looked at");
    EXPECT_STREQ(run.Rows.Tables.back().Reasons[0].Why->Code, "end-missing");
    EXPECT_TRUE(run.HasLossOfRows());
  }
}

TEST(AccountOfNoTable, AnEndRightBehindTheRowsIsOne) {
  const AccountRun run = KeepAccountOfBytes(
      "TABLE:  \"JOINT COORDINATES\"\n   Joint=1\nEND TABLE DATA\n\n\n\n\n\n\n\n\n\n\n\n\n\n");
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 1 rows, 1 converted"));
}

TEST(ReasonsTest, CodesAreWordsInSmallLettersAndAllDifferent) {
  std::vector<std::string> codes;
  for (const s2k2ngt::Reason& reason : s2k2ngt::Reasons()) {
    codes.emplace_back(reason.Code);
    EXPECT_THAT(codes.back(), testing::MatchesRegex("[a-z0-9-]+"));
    EXPECT_NE(reason.Fate, s2k2ngt::RowFate::Converted) << reason.Code;
    EXPECT_THAT(reason.Text, testing::EndsWith(".")) << reason.Code;
    EXPECT_THAT(reason.Advice, testing::EndsWith(".")) << reason.Code;
  }
  std::ranges::sort(codes);
  EXPECT_EQ(std::ranges::adjacent_find(codes), codes.end());
}

}  // namespace
