#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A model with these rows of analysis cases, definitions of buckling cases and their loads.
/// Keys 1, 2, 3 of each table are walked in the order 2, 1, 3.
ConversionRun ConvertBuckling(const std::vector<std::string>& analyses,
                              const std::vector<std::string>& definitions,
                              const std::vector<std::string>& loads) {
  std::string tables = "TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n";
  for (const std::string& row : analyses) {
    tables += "   Type=LinBuckling   " + row + "\n";
  }
  tables += "\nTABLE:  \"CASE - BUCKLING 1 - GENERAL\"\n";
  for (const std::string& row : definitions) {
    tables += "   " + row + "\n";
  }
  tables += "\nTABLE:  \"CASE - BUCKLING 2 - LOAD ASSIGNMENTS\"\n";
  for (const std::string& row : loads) {
    tables += "   " + row + "\n";
  }
  return Convert(tables);
}

TEST(BucklingCases, CaseGivesTheWholeSection) {
  const ConversionRun run = ConvertBuckling(
      {"Case=BUCK"}, {"Case=BUCK   NumBuckMode=6   EigenTol=1E-09"},
      {"Case=BUCK   LoadType=\"Load case\"   LoadName=LIVE   LoadSF=1.5   TransAccSF=2",
       "Case=BUCK   LoadType=\"Load case\"   LoadName=DEAD   LoadSF=1   TransAccSF=2"});
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Body(),
            "*BUCK-CTRL    ; Buckling Analysis Control\n"
            "; iMODENUM, iITER, TOL                 ; line 1\n"
            "; LCNAME1, FACT1, LCNAME2, FACT2, ...  ; from line 2\n"
            "\t6,    30, 1e-09\n"
            "\t\t DEAD,     1, LIVE,   1.5\n"
            "\n");
}

TEST(BucklingCases, TwoNewlinesStandInItsPlaceWithoutABucklingCase) {
  EXPECT_EQ(Convert("").Body(), "\n\n");
  EXPECT_EQ(ConvertBuckling({"Case=BUCK"}, {}, {}).Body(), "\n\n");
}

TEST(BucklingCases, LoadsStandInThreesOnALine) {
  // Keys 1 to 7 are walked in the order 5, 2, 7, 4, 1, 6, 3.
  std::vector<std::string> loads;
  for (const char* number : {"1", "2", "3", "4", "5", "6", "7"}) {
    loads.push_back("Case=BUCK   LoadName=L" + std::string(number) + "   LoadSF=" + number);
  }
  EXPECT_EQ(ConvertBuckling({"Case=BUCK"}, {"Case=BUCK"}, loads).Between("\t1,", "*ENDDATA"),
            "\t1,    30, 0.001\n"
            "\t\t   L5,     5,   L2,     2,   L7,     7\n"
            "\t\t   L4,     4,   L1,     1,   L6,     6\n"
            "\t\t   L3,     3\n"
            "\n");
  loads.resize(3);
  EXPECT_THAT(ConvertBuckling({"Case=BUCK"}, {"Case=BUCK"}, loads).Lines("*BUCK-CTRL"),
              ElementsAre("\t1,    30, 0.001", "\t\t   L2,     2,   L1,     1,   L3,     3"));
}

// ---- Definitions ----

TEST(BucklingCases, DefinitionIsFoundByItsCase) {
  struct Definition {
    std::vector<std::string> Rows;
    const char* Line;
  };
  const std::string a = "Case=BUCK   NumBuckMode=2   EigenTol=0.02";
  const std::string b = "Case=BUCK   NumBuckMode=3   EigenTol=0.03";
  const std::string c = "Case=BUCK   NumBuckMode=4   EigenTol=0.04";
  const std::string other = "Case=buck   NumBuckMode=9   EigenTol=0.09";
  const std::vector<Definition> definitions = {
      {{a}, "\t2,    30,  0.02"},
      // of several the last one of the walk: keys 2, 1, 3
      {{a, b}, "\t2,    30,  0.02"},
      {{a, b, c}, "\t4,    30,  0.04"},
      {{a, b, other}, "\t2,    30,  0.02"},
      {{other, b}, "\t3,    30,  0.03"},
      // none of its case
      {{other}, "\t1,    30, 0.001"},
      // a row without its numbers, and numbers without a fraction
      {{"Case=BUCK"}, "\t1,    30, 0.001"},
      {{"Case=BUCK   NumBuckMode=5"}, "\t5,    30, 0.001"},
      {{"Case=BUCK   EigenTol=0.5"}, "\t1,    30,   0.5"},
      {{"Case=BUCK   NumBuckMode=5.9   EigenTol=0"}, "\t5,    30,     0"},
      // of two rows the last one takes its defaults with it
      {{"Case=BUCK", b}, "\t1,    30, 0.001"},
  };
  for (const auto& [rows, line] : definitions) {
    SCOPED_TRACE(testing::PrintToString(rows));
    const ConversionRun run = ConvertBuckling({"Case=BUCK"}, rows, {"Case=BUCK   LoadName=DEAD"});
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_THAT(run.Lines("*BUCK-CTRL"), ElementsAre(line, "\t\t DEAD,     1"));
  }
}

TEST(BucklingCases, WithoutAnyDefinitionOrAnyLoadNothingIsConverted) {
  const ConversionRun withoutDefinitions = ConvertBuckling(
      {"Case=BUCK"}, {}, {"Case=BUCK   LoadName=DEAD", "Case=BUCK   LoadType=Accel   LoadName=UX"});
  EXPECT_EQ(withoutDefinitions.Body(), "\n\n");
  EXPECT_THAT(withoutDefinitions.Messages, IsEmpty());
  const ConversionRun withoutLoads =
      ConvertBuckling({"Case=BUCK"}, {"Case=BUCK   NumBuckMode=6"}, {});
  EXPECT_EQ(withoutLoads.Body(), "\n\n");
  EXPECT_THAT(withoutLoads.Messages, IsEmpty());
}

TEST(BucklingCases, TablesWithoutAnAnalysisCaseOfBucklingAreNotConverted) {
  const ConversionRun run =
      ConvertBuckling({"Case=OTHER"}, {"Case=BUCK   NumBuckMode=6"},
                      {"Case=BUCK   LoadName=DEAD", "Case=BUCK   LoadType=Accel   LoadName=UX"});
  EXPECT_EQ(run.Body(), "\n\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

// ---- Loads ----

TEST(BucklingCases, LoadWithoutAKindIsALoadCaseAndItsFactorIsOne) {
  EXPECT_THAT(ConvertBuckling({"Case=BUCK"}, {"Case=BUCK"}, {"Case=BUCK   LoadName=DEAD"})
                  .Lines("*BUCK-CTRL"),
              ElementsAre("\t1,    30, 0.001", "\t\t DEAD,     1"));
  EXPECT_THAT(ConvertBuckling({"Case=BUCK"}, {"Case=BUCK"}, {"Case=BUCK"}).Lines("*BUCK-CTRL"),
              ElementsAre("\t1,    30, 0.001", "\t\t     ,     1"));
}

TEST(BucklingCases, LoadsOfOtherCasesArePassedOver) {
  const ConversionRun run = ConvertBuckling(
      {"Case=BUCK"}, {"Case=BUCK"},
      {"Case=BUCK   LoadName=DEAD   LoadSF=-2",
       "Case=Buck   LoadType=Accel   LoadName=\"Accel UX\"", "Case=OTHER   LoadName=LIVE"});
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_THAT(run.Lines("*BUCK-CTRL"), ElementsAre("\t1,    30, 0.001", "\t\t DEAD,    -2"));
}

TEST(BucklingCases, LoadOfAnotherKindBeforeAllOthersLeavesNeitherCommandNorMessage) {
  // Key 2 comes first in the walk.
  for (const char* kind : {"Accel", "\"load case\"", "Link", " "}) {
    SCOPED_TRACE(kind);
    const ConversionRun run =
        ConvertBuckling({"Case=BUCK"}, {"Case=BUCK"},
                        {"Case=BUCK   LoadName=DEAD",
                         "Case=BUCK   LoadName=\"Accel UX\"   LoadType=" + std::string(kind)});
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Body(), "\n\n");
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(BucklingCases, LoadOfAnotherKindEndsTheListWithAMessage) {
  // Keys 2, 1, 3: the load of key 3 is lost with the acceleration of key 1.
  const ConversionRun run =
      ConvertBuckling({"Case=BUCK"}, {"Case=BUCK   NumBuckMode=6   EigenTol=0.01"},
                      {"Case=BUCK   LoadType=Accel   LoadName=\"Accel UX\"",
                       "Case=BUCK   LoadType=\"Load case\"   LoadName=DEAD",
                       "Case=BUCK   LoadType=\"Load case\"   LoadName=LIVE"});
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Lines("*BUCK-CTRL"), ElementsAre("\t6,    30,  0.01", "\t\t DEAD,     1"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_BUCK_LdType_Not_Convert"));
}

TEST(BucklingCases, LoadOfAnotherKindBehindAllOthersShowsTheMessage) {
  const ConversionRun run =
      ConvertBuckling({"Case=BUCK"}, {"Case=BUCK"},
                      {"Case=BUCK   LoadName=DEAD", "Case=BUCK   LoadName=LIVE",
                       "Case=BUCK   LoadType=Accel   LoadName=\"Accel UX\""});
  EXPECT_THAT(run.Lines("*BUCK-CTRL"),
              ElementsAre("\t1,    30, 0.001", "\t\t LIVE,     1, DEAD,     1"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_BUCK_LdType_Not_Convert"));
}

// ---- Several cases ----

TEST(BucklingCases, FirstCaseOfTheWalkIsTheOnlyOne) {
  const ConversionRun run = ConvertBuckling({"Case=A", "Case=B", "Case=A"},
                                            {"Case=A   NumBuckMode=2", "Case=B   NumBuckMode=3"},
                                            {"Case=A   LoadName=DEAD", "Case=B   LoadName=LIVE"});
  EXPECT_EQ(run.Between("\t3,", "*ENDDATA"),
            "\t3,    30, 0.001\n"
            "\t\t LIVE,     1\n"
            "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(BucklingCases, CaseBehindAConvertedOneIsNotTriedAndShowsNoMessage) {
  const ConversionRun run = ConvertBuckling(
      {"Case=A", "Case=B"}, {"Case=A   NumBuckMode=2", "Case=B   NumBuckMode=3"},
      {"Case=A   LoadType=Accel   LoadName=\"Accel UX\"", "Case=B   LoadName=LIVE"});
  EXPECT_THAT(run.Lines("*BUCK-CTRL"), ElementsAre("\t3,    30, 0.001", "\t\t LIVE,     1"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(BucklingCases, CaseBehindARejectedOneIsConvertedAndTheMessageShown) {
  const ConversionRun run = ConvertBuckling(
      {"Case=A", "Case=B"}, {"Case=A   NumBuckMode=2", "Case=B   NumBuckMode=3"},
      {"Case=A   LoadName=DEAD", "Case=B   LoadType=Accel   LoadName=\"Accel UX\""});
  EXPECT_THAT(run.Lines("*BUCK-CTRL"), ElementsAre("\t2,    30, 0.001", "\t\t DEAD,     1"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_BUCK_LdType_Not_Convert"));
}

TEST(BucklingCases, CaseThatIsConvertedInPartIsTheOnlyOneToo) {
  // Loads in the walk: B's of key 2, A's of key 1, B's of key 3.
  const ConversionRun run =
      ConvertBuckling({"Case=A", "Case=B"}, {"Case=A   NumBuckMode=2", "Case=B   NumBuckMode=3"},
                      {"Case=A   LoadName=DEAD", "Case=B   LoadName=LIVE",
                       "Case=B   LoadType=Accel   LoadName=\"Accel UX\""});
  EXPECT_THAT(run.Lines("*BUCK-CTRL"), ElementsAre("\t3,    30, 0.001", "\t\t LIVE,     1"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_BUCK_LdType_Not_Convert"));
}

TEST(BucklingCases, CaseBehindOneWithoutLoadsIsConverted) {
  const ConversionRun run =
      ConvertBuckling({"Case=A", "Case=B"}, {"Case=A   NumBuckMode=2", "Case=B   NumBuckMode=3"},
                      {"Case=A   LoadName=DEAD"});
  EXPECT_THAT(run.Lines("*BUCK-CTRL"), ElementsAre("\t2,    30, 0.001", "\t\t DEAD,     1"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(BucklingCases, AllCasesRejectedLeaveNeitherCommandNorMessage) {
  const ConversionRun run = ConvertBuckling({"Case=A", "Case=B"}, {"Case=A", "Case=B"},
                                            {"Case=A   LoadType=Accel   LoadName=\"Accel UX\"",
                                             "Case=B   LoadType=Accel   LoadName=\"Accel UY\""});
  EXPECT_EQ(run.Body(), "\n\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

}  // namespace
