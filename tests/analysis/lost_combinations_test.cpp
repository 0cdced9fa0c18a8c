#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kTable = "TABLE:  \"COMBINATION DEFINITIONS\"\n";

/// A row of a combination and the factor of its term; the case of a row with a factor of 0 does not
/// exist.
struct Row {
  const char* Combination;
  int Factor;
};

/// A combination that is left, and its line of terms.
struct Left {
  const char* Name;
  const char* Terms;
};

void ExpectLeft(const std::vector<Row>& rows, const std::vector<Left>& left) {
  std::string tables = StaticCases({"LC"}) + kTable;
  for (const auto& [name, factor] : rows) {
    tables += "   ComboName=" + std::string(name) +
              "   CaseType=\"Linear Static\"   CaseName=" + (factor == 0 ? "NOWHERE" : "LC") +
              "   ScaleFactor=" + std::to_string(factor) + "\n";
  }
  SCOPED_TRACE(tables.substr(tables.find(kTable)));
  std::vector<std::string> lines;
  for (const auto& [name, terms] : left) {
    lines.push_back("\tNAME=" + std::string(name) + ",   GEN, ACTIVE,     0,      ");
    lines.push_back("\t\t" + std::string(terms));
  }
  const ConversionRun run = Convert(tables);
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Lines("*LOADCOMB"), lines);
  EXPECT_THAT(run.Messages, IsEmpty());
}

// ---- Combinations by their rows ----

TEST(LostCombinations, RowsOfOneNameThatFollowEachOtherAreOneCombination) {
  ExpectLeft({{"A", 1}, {"A", 2}, {"B", 3}},
             {{"A", "ST,    LC,     1,ST,    LC,     2"}, {"B", "ST,    LC,     3"}});
}

TEST(LostCombinations, NameThatComesBackOpensASecondCombination) {
  ExpectLeft({{"A", 1}, {"B", 2}, {"A", 3}},
             {{"A", "ST,    LC,     1"}, {"B", "ST,    LC,     2"}, {"A", "ST,    LC,     3"}});
}

TEST(LostCombinations, NamesDifferByCase) {
  ExpectLeft({{"A", 1}, {"a", 2}}, {{"A", "ST,    LC,     1"}, {"a", "ST,    LC,     2"}});
}

// ---- Rows whose case is no static load case ----

TEST(LostCombinations, UnknownCaseInTheFirstRowTakesTheCombinationBeforeToo) {
  ExpectLeft({{"A", 1}, {"B", 0}, {"B", 2}, {"C", 3}}, {{"C", "ST,    LC,     3"}});
  ExpectLeft({{"A", 1}, {"A", 2}, {"B", 0}, {"C", 3}, {"C", 4}},
             {{"C", "ST,    LC,     3,ST,    LC,     4"}});
  // Only the one before; those that are stored already stay.
  ExpectLeft({{"A", 1}, {"B", 2}, {"C", 0}, {"D", 4}},
             {{"A", "ST,    LC,     1"}, {"D", "ST,    LC,     4"}});
}

TEST(LostCombinations, UnknownCaseInALaterRowTakesOnlyItsCombination) {
  ExpectLeft({{"A", 1}, {"B", 2}, {"B", 0}, {"C", 3}},
             {{"A", "ST,    LC,     1"}, {"C", "ST,    LC,     3"}});
  ExpectLeft({{"A", 1}, {"B", 2}, {"B", 0}, {"B", 4}, {"B", 5}, {"C", 3}},
             {{"A", "ST,    LC,     1"}, {"C", "ST,    LC,     3"}});
  ExpectLeft({{"A", 1}, {"A", 0}, {"A", 2}, {"B", 3}}, {{"B", "ST,    LC,     3"}});
}

TEST(LostCombinations, UnknownCaseAtTheHeadOfTheTableTakesItsCombination) {
  ExpectLeft({{"A", 0}, {"B", 1}}, {{"B", "ST,    LC,     1"}});
  ExpectLeft({{"A", 0}, {"A", 1}, {"B", 2}}, {{"B", "ST,    LC,     2"}});
}

TEST(LostCombinations, SeveralLostCombinationsInARowTakeOneBeforeThem) {
  ExpectLeft({{"A", 1}, {"B", 2}, {"C", 0}, {"D", 0}, {"D", 3}, {"E", 4}},
             {{"A", "ST,    LC,     1"}, {"E", "ST,    LC,     4"}});
  ExpectLeft({{"A", 0}, {"A", 1}, {"A", 0}, {"B", 2}}, {{"B", "ST,    LC,     2"}});
}

TEST(LostCombinations, CombinationAfterALostOneMayHaveAnyNameButItsOwn) {
  // The name of the one before.
  ExpectLeft({{"A", 1}, {"B", 0}, {"A", 2}}, {{"A", "ST,    LC,     2"}});
  // The name of the lost one, further on.
  ExpectLeft({{"B", 0}, {"A", 1}, {"B", 2}},
             {{"A", "ST,    LC,     1"}, {"B", "ST,    LC,     2"}});
}

TEST(LostCombinations, TableThatEndsWithALostCombinationStoresNothingMore) {
  // The last row opens the lost combination: that before it is lost with it.
  ExpectLeft({{"A", 1}, {"B", 2}, {"C", 0}}, {{"A", "ST,    LC,     1"}});
  ExpectLeft({{"A", 1}, {"B", 0}}, {});
  // The last row is a later one: that before it is stored already.
  ExpectLeft({{"A", 1}, {"B", 2}, {"B", 0}}, {{"A", "ST,    LC,     1"}});
  // The last row is passed over.
  ExpectLeft({{"A", 1}, {"B", 2}, {"C", 0}, {"C", 3}}, {{"A", "ST,    LC,     1"}});
  ExpectLeft({{"A", 1}, {"B", 2}, {"B", 0}, {"B", 3}}, {{"A", "ST,    LC,     1"}});
}

TEST(LostCombinations, TableOfLostCombinationsGivesNoCommandAndNoMessage) {
  const ConversionRun run = Convert(StaticCases({"LC"}) + kTable +
                                    "   ComboName=A   CaseName=NOWHERE\n"
                                    "   ComboName=B   CaseName=NEITHER\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Output.find("*LOADCOMB"), std::string::npos);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(LostCombinations, NothingOfALostCombinationIsLeftInTheNext) {
  const ConversionRun run = Convert(StaticCases({"LC"}) + R"(
TABLE:  "COMBINATION DEFINITIONS"
   ComboName=A   ComboType=SRSS   CaseType="Linear Static"   CaseName=LC   ScaleFactor=1
   ComboName=A   CaseType="Linear Static"   CaseName=NOWHERE
   ComboName=A   ComboType=Envelope   CaseType="Linear Static"   CaseName=LC   ScaleFactor=2
   ComboName=B   CaseType="Linear Static"   CaseName=LC   ScaleFactor=3
)");
  EXPECT_THAT(run.Lines("*LOADCOMB"),
              ElementsAre("\tNAME=B,   GEN, ACTIVE,     0,      ", "\t\tST,    LC,     3"));
}

TEST(LostCombinations, CombinationsWithoutANameAreOneOfAnEmptyName) {
  const std::string row = "   CaseType=\"Linear Static\"   CaseName=LC\n";
  const std::string lost = "   CaseType=\"Linear Static\"   CaseName=NOWHERE\n";
  const std::string tables = StaticCases({"LC"}) + kTable;
  EXPECT_THAT(
      Convert(tables + row + row).Lines("*LOADCOMB"),
      ElementsAre("\tNAME=,   GEN, ACTIVE,     0,      ", "\t\tST,    LC,     1,ST,    LC,     1"));
  EXPECT_EQ(Convert(tables + lost + row).Section("*LOADCOMB"), "");
}

// ---- What counts as a static load case ----

/// The names that a combination is left for, among these.
std::vector<std::string> NamesThatCombine(const std::string& tables,
                                          const std::vector<std::string>& names) {
  std::vector<std::string> found;
  for (const std::string& name : names) {
    const std::string table =
        kTable + "   ComboName=C   CaseType=\"Linear Static\"   CaseName=" + name + "   Note=1\n";
    if (Convert(tables + "\n" + table).Output.find("*LOADCOMB") != std::string::npos) {
      found.push_back(name);
    }
  }
  return found;
}

TEST(LostCombinations, NameIsThatOfTheLoadAndNotOfTheAnalysisCase) {
  const std::string tables = R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=DEAD   DesignType=DEAD
   LoadCase=UNUSED   DesignType=LIVE

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=ACASE1   Type=LinStatic
   Case=ACASE2   Type=NonStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=ACASE1   LoadType="Load case"   LoadName=DEAD
   Case=ACASE1   LoadType="Load case"   LoadName=UNDEFINED
   Case=ACASE2   LoadType="Load case"   LoadName=UNUSED
   Case=ACASE1   LoadType="Load case"
)";
  EXPECT_THAT(NamesThatCombine(tables, {"DEAD", "UNDEFINED", "ACASE1", "ACASE2", "UNUSED", "dead",
                                        "DEAD2", "DEA", " "}),
              ElementsAre("DEAD", "UNDEFINED", " "));
}

TEST(LostCombinations, CasesOfOtherKindsLoseTheirCombinationWithoutAMessage) {
  const std::string tables = StaticCases({"LC"}) + R"(
TABLE:  "CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS"
   Case=QUAKE   LoadName=U1   CoordSys=GLOBAL   Function=F
   Case=QUAKE   LoadName=U2   CoordSys=GLOBAL   Function=F

)" + kTable + "   ComboName=FIRST   CaseType=\"Linear Static\"   CaseName=LC\n";
  for (const char* term : {"CaseType=\"Response Spectrum\"   CaseName=QUAKE",
                           "CaseType=\"Response Spectrum\"   CaseName=QUAKE1",
                           "CaseType=\"Linear Modal Hist\"   CaseName=HISTORY",
                           "CaseType=\"NonLin Modal Hist\"   CaseName=HISTORY",
                           "CaseType=\"Linear Direct Hist\"   CaseName=HISTORY",
                           "CaseType=\"Moving Load\"   CaseName=TRUCKS",
                           "CaseType=\"Response Combo\"   CaseName=FIRST"}) {
    SCOPED_TRACE(term);
    const ConversionRun run =
        Convert(tables + "   ComboName=SECOND   CaseType=\"Linear Static\"   CaseName=LC\n" +
                "   ComboName=SECOND   " + term + "\n" +
                "   ComboName=THIRD   CaseType=\"Linear Static\"   CaseName=LC\n");
    EXPECT_THAT(run.Lines("*LOADCOMB"),
                ElementsAre("\tNAME=FIRST,   GEN, ACTIVE,     0,      ", "\t\tST,    LC,     1",
                            "\tNAME=THIRD,   GEN, ACTIVE,     0,      ", "\t\tST,    LC,     1"));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(LostCombinations, NamesOfBytesAboveAsciiAreWrittenAsTheyStand) {
  const ConversionRun run = Convert(StaticCases({"SCHN\xC9"}) + kTable +
                                    "   ComboName=\"\xDC"
                                    "BER ALL\"   CaseType=\"Linear Static\"   CaseName=SCHN\xC9\n");
  EXPECT_THAT(run.Lines("*LOADCOMB"), ElementsAre("\tNAME=\xDC"
                                                  "BER ALL,   GEN, ACTIVE,     0,      ",
                                                  "\t\tST, SCHN\xC9,     1"));
}

}  // namespace
