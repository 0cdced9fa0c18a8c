#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kTable = "TABLE:  \"COMBINATION DEFINITIONS\"\n";

/// The line that opens a combination of the kind 0.
std::string HeadOf(const std::string& name, int type = 0) {
  return "\tNAME=" + name + ",   GEN, ACTIVE,     " + std::to_string(type) + ",      ";
}

TEST(Combinations, TwoStaticTermsStandOnOneLine) {
  const ConversionRun run = Convert(StaticCases({"DEAD", "LIVE"}) + R"(
TABLE:  "COMBINATION DEFINITIONS"
   ComboName=U1   ComboType="Envelope"   CaseType="Linear Static"   CaseName=DEAD   ScaleFactor=1.2
   ComboName=U1   CaseType="Linear Static"   CaseName=LIVE   ScaleFactor=1.6
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  // The last command of the file, behind the two newlines that always stand there.
  EXPECT_EQ(run.Between("\n\n\n\n", "*ENDDATA"),
            "\n\n\n\n"
            "*LOADCOMB    ; Combinations\n"
            "; NAME=NAME, KIND, ACTIVE, iTYPE, DESC   ; line 1\n"
            ";      ANAL1, LCNAME1, FACT1, ...        ; from line 2\n"
            "\tNAME=U1,   GEN, ACTIVE,     1,      \n"
            "\t\tST,  DEAD,   1.2,ST,  LIVE,   1.6\n"
            "\n");
}

TEST(Combinations, TableWithoutRowsGivesNoCommand) {
  for (const std::string& table : {std::string(), kTable}) {
    EXPECT_EQ(Convert(StaticCases({"DEAD"}) + table).Body(),
              "*STLDCASE    ; Static Load Cases\n"
              "; LCNAME, LCTYPE, DESC\n"
              "\tDEAD,  USER, \n"
              "\n"
              "\n\n");
  }
}

// ---- Kinds of combinations ----

TEST(Combinations, KindFollowsTheWordOfTheFirstRow) {
  const std::vector<std::pair<const char*, int>> wordsAndTypes = {
      {"ComboType=\"Linear Add\"", 0}, {"ComboType=Envelope", 1},  {"ComboType=\"Abs Add\"", 2},
      {"ComboType=SRSS", 3},           {"ComboType=envelope", 0},  {"ComboType=\"Range Add\"", 0},
      {"ComboType=\"Abs  Add\"", 0},   {"ComboType=\"SRSS \"", 0}, {"", 0}};
  for (const auto& [word, type] : wordsAndTypes) {
    SCOPED_TRACE(word);
    const ConversionRun run = Convert(StaticCases({"DEAD"}) + kTable + "   ComboName=C   " + word +
                                      "   CaseType=\"Linear Static\"   CaseName=DEAD\n");
    EXPECT_THAT(run.Lines("*LOADCOMB"), ElementsAre(HeadOf("C", type), "\t\tST,  DEAD,     1"));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(Combinations, LaterRowChangesTheKindOnlyByAWordThatIsKnown) {
  const std::vector<std::pair<const char*, int>> wordsAndTypes = {{"", 1},
                                                                  {"ComboType=\"Range Add\"", 1},
                                                                  {"ComboType=SRSS", 3},
                                                                  {"ComboType=\"Linear Add\"", 0}};
  for (const auto& [word, type] : wordsAndTypes) {
    SCOPED_TRACE(word);
    const ConversionRun run = Convert(StaticCases({"DEAD"}) + kTable +
                                      "   ComboName=C   ComboType=Envelope   CaseName=DEAD   "
                                      "CaseType=\"Linear Static\"\n   ComboName=C   " +
                                      word + "   CaseName=DEAD   CaseType=\"Linear Static\"\n");
    EXPECT_THAT(run.Lines("*LOADCOMB"),
                ElementsAre(HeadOf("C", type), "\t\tST,  DEAD,     1,ST,  DEAD,     1"));
  }
}

TEST(Combinations, KindDoesNotCarryOverToTheNextCombination) {
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + R"(
TABLE:  "COMBINATION DEFINITIONS"
   ComboName=A   ComboType=SRSS   CaseType="Linear Static"   CaseName=DEAD
   ComboName=B   CaseType="Linear Static"   CaseName=DEAD
)");
  EXPECT_THAT(run.Lines("*LOADCOMB"), ElementsAre(HeadOf("A", 3), "\t\tST,  DEAD,     1",
                                                  HeadOf("B", 0), "\t\tST,  DEAD,     1"));
}

// ---- Kinds of cases ----

TEST(Combinations, KindOfCaseGivesTheWordOfTheTerm) {
  const std::vector<std::pair<const char*, const char*>> typesAndWords = {
      {"Linear Static", "ST"},     {"NonLin Static", "ST"},     {"Response Spectrum", "RS"},
      {"Linear Modal Hist", "TH"}, {"NonLin Modal Hist", "TH"}, {"Moving Load", "MV"},
      {"Response Combo", "CB"}};
  for (const auto& [type, word] : typesAndWords) {
    SCOPED_TRACE(type);
    const ConversionRun run =
        Convert(StaticCases({"LC"}) + kTable + "   ComboName=C   CaseType=\"" + type +
                "\"   CaseName=LC   ScaleFactor=0.9\n");
    EXPECT_THAT(run.Lines("*LOADCOMB"),
                ElementsAre(HeadOf("C"), "\t\t" + std::string(word) + ",    LC,   0.9"));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(Combinations, UnknownKindOfCaseIsStaticAndShowsTheMessageOfTheLoadCases) {
  for (const char* type : {"CaseType=\"Linear Direct Hist\"", "CaseType=\"NonLin Direct Hist\"",
                           "CaseType=\"linear static\"", "CaseType=\"Linear Buckling\"",
                           "CaseType=\"Linear  Static\"", "CaseType=  A=1", ""}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(StaticCases({"LC"}) + kTable + "   ComboName=C   " +
                                      "CaseName=LC   ScaleFactor=0.9   " + type + "\n");
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Lines("*LOADCOMB"), ElementsAre(HeadOf("C"), "\t\tST,    LC,   0.9"));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_STLC_Not_Convert"));
  }
}

TEST(Combinations, ManyUnknownKindsShowOneMessageAheadOfThoseOfLaterCommands) {
  const ConversionRun run = Convert(StaticCases({"LC"}) + R"(
TABLE:  "COMBINATION DEFINITIONS"
   ComboName=A   CaseType="Linear Direct Hist"   CaseName=LC
   ComboName=A   CaseType="NonLin Direct Hist"   CaseName=LC
   ComboName=B   CaseType="Linear Direct Hist"   CaseName=LC

TABLE:  "CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS"
   Case=S   LoadName=U1   CoordSys=CSYS1   Function=F
   Case=S   LoadName=U1   CoordSys=GLOBAL   Function=F

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_STLC_Not_Convert",
                          "IDS_S2KV8_RESP_SPLC_Not_Convert"));
}

TEST(Combinations, UnknownKindShowsTheMessageThoughTheCombinationIsLostLater) {
  const ConversionRun run = Convert(StaticCases({"LC"}) + R"(
TABLE:  "COMBINATION DEFINITIONS"
   ComboName=C   CaseType="Linear Direct Hist"   CaseName=LC
   ComboName=C   CaseType="Linear Static"   CaseName=NOWHERE
)");
  EXPECT_EQ(run.Section("*LOADCOMB"), "");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_STLC_Not_Convert"));
}

TEST(Combinations, UnknownKindOnARowThatIsNotAcceptedShowsNoMessage) {
  const ConversionRun run = Convert(StaticCases({"LC"}) + R"(
TABLE:  "COMBINATION DEFINITIONS"
   ComboName=C   CaseType="Linear Direct Hist"   CaseName=NOWHERE
   ComboName=C   CaseType="Linear Direct Hist"   CaseName=LC
)");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Combinations, UnknownKindStaysSilentWithoutStaticLoadCases) {
  const ConversionRun run = Convert(R"(
TABLE:  "COMBINATION DEFINITIONS"
   ComboName=C   CaseType="Linear Direct Hist"   CaseName=LC
   ComboName=D   CaseType="Linear Direct Hist"
)");
  EXPECT_EQ(run.Body(), "\n\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

// ---- Factors ----

TEST(Combinations, FactorIsOneWhereTheRowStatesNone) {
  const std::vector<std::pair<const char*, const char*>> factorsAndTerms = {
      {"", "ST,    LC,     1"},
      {"ScaleFactor=  SteelDesign=No", "ST,    LC,     0"},
      {"ScaleFactor=0", "ST,    LC,     0"},
      {"ScaleFactor=-0.75", "ST,    LC, -0.75"},
      {"ScaleFactor=1.23456789", "ST,    LC, 1.23457"},
      {"ScaleFactor=1e-20", "ST,    LC, 1e-20"},
      {"ScaleFactor=inf", "ST,    LC,   inf"},
      {"ScaleFactor=nan", "ST,    LC,   nan"}};
  for (const auto& [factor, term] : factorsAndTerms) {
    SCOPED_TRACE(factor);
    // The row before has a factor of its own, which does not carry over.
    const ConversionRun run =
        Convert(StaticCases({"LC"}) + kTable +
                "   ComboName=C   CaseType=\"Linear Static\"   CaseName=LC   ScaleFactor=7\n" +
                "   ComboName=C   CaseType=\"Linear Static\"   CaseName=LC   " + factor + "\n");
    EXPECT_THAT(run.Lines("*LOADCOMB"),
                ElementsAre(HeadOf("C"), "\t\tST,    LC,     7," + std::string(term)));
  }
}

TEST(Combinations, UseInDesignPlaysNoPart) {
  for (const char* design :
       {"SteelDesign=Yes   ConcreteDesign=Yes   AlumDesign=Yes   ColdDesign=Yes",
        "SteelDesign=No   ConcreteDesign=No   AlumDesign=No   ColdDesign=No"}) {
    SCOPED_TRACE(design);
    const ConversionRun run = Convert(StaticCases({"LC"}) + kTable +
                                      "   ComboName=C   CaseType=\"Linear Static\"   CaseName=LC   "
                                      "ScaleFactor=2   " +
                                      design + "\n");
    EXPECT_THAT(run.Lines("*LOADCOMB"), ElementsAre(HeadOf("C"), "\t\tST,    LC,     2"));
  }
}

// ---- Lines of terms ----

TEST(Combinations, FirstLineHoldsFourTermsAndTheOthersThree) {
  struct Case {
    int Terms;
    std::vector<std::string> Lines;
  };
  const std::string four =
      "\t\tST,    LC,     1,ST,    LC,     2,ST,    LC,     3,ST,    LC,     4";
  const std::string three = "\t\tST,    LC,     5,ST,    LC,     6,ST,    LC,     7";
  // A line that is full opens the next one, though nothing may follow.
  const std::vector<Case> cases = {
      {1, {"\t\tST,    LC,     1"}},
      {3, {"\t\tST,    LC,     1,ST,    LC,     2,ST,    LC,     3"}},
      {4, {four, "\t\t"}},
      {5, {four, "\t\tST,    LC,     5"}},
      {6, {four, "\t\tST,    LC,     5,ST,    LC,     6"}},
      {7, {four, three, "\t\t"}},
      {8, {four, three, "\t\tST,    LC,     8"}},
      {10, {four, three, "\t\tST,    LC,     8,ST,    LC,     9,ST,    LC,    10", "\t\t"}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Terms);
    std::string rows;
    for (int factor = 1; factor <= c.Terms; ++factor) {
      rows += "   ComboName=C   CaseType=\"Linear Static\"   CaseName=LC   ScaleFactor=" +
              std::to_string(factor) + "\n";
    }
    std::vector<std::string> expected = {HeadOf("C")};
    expected.insert(expected.end(), c.Lines.begin(), c.Lines.end());
    EXPECT_EQ(Convert(StaticCases({"LC"}) + kTable + rows).Lines("*LOADCOMB"), expected);
  }
}

TEST(Combinations, LineOfTwoTabsStandsBetweenACombinationOfFourTermsAndTheNext) {
  const ConversionRun run = Convert(StaticCases({"LC"}) + R"(
TABLE:  "COMBINATION DEFINITIONS"
   ComboName=A   CaseType="Linear Static"   CaseName=LC   ScaleFactor=1
   ComboName=A   CaseType="Linear Static"   CaseName=LC   ScaleFactor=2
   ComboName=A   CaseType="Linear Static"   CaseName=LC   ScaleFactor=3
   ComboName=A   CaseType="Linear Static"   CaseName=LC   ScaleFactor=4
   ComboName=B   CaseType="Linear Static"   CaseName=LC   ScaleFactor=5
)");
  EXPECT_EQ(run.Section("*LOADCOMB"),
            "*LOADCOMB    ; Combinations\n"
            "; NAME=NAME, KIND, ACTIVE, iTYPE, DESC   ; line 1\n"
            ";      ANAL1, LCNAME1, FACT1, ...        ; from line 2\n"
            "\tNAME=A,   GEN, ACTIVE,     0,      \n"
            "\t\tST,    LC,     1,ST,    LC,     2,ST,    LC,     3,ST,    LC,     4\n"
            "\t\t\n"
            "\tNAME=B,   GEN, ACTIVE,     0,      \n"
            "\t\tST,    LC,     5\n"
            "\n");
}

// ---- Terms of spectrum cases ----

const std::string kSpectrumTable = "TABLE:  \"CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS\"\n";

/// The terms of a combination of a spectrum case EX, which is also the name of a static load case.
/// The spectrum cases are those of these rows, in order; a star in front marks a row of another
/// coordinate system.
std::vector<std::string> TermsOfEX(const std::vector<std::string>& spectrumRows,
                                   const std::string& caseType) {
  std::string tables = StaticCases({"EX"}) + kSpectrumTable;
  for (const std::string& name : spectrumRows) {
    const bool isLocal = name.starts_with('*');
    tables += "   Case=" + name.substr(isLocal ? 1 : 0) +
              "   LoadName=U1   Function=F   CoordSys=" + (isLocal ? "CSYS1\n" : "GLOBAL\n");
  }
  tables += "\n" + kTable + "   ComboName=C   CaseName=EX   ScaleFactor=1.4   CaseType=\"" +
            caseType + "\"\n";
  std::vector<std::string> lines = Convert(tables).Lines("*LOADCOMB");
  EXPECT_FALSE(lines.empty());
  if (!lines.empty()) {
    EXPECT_EQ(lines.front(), HeadOf("C"));
    lines.erase(lines.begin());
  }
  return lines;
}

TEST(Combinations, SpectrumCaseOfSeveralComponentsGoesInWithAllOfThem) {
  EXPECT_THAT(TermsOfEX({"EX", "EX"}, "Response Spectrum"),
              ElementsAre("\t\tRS,   EX1,   1.4,RS,   EX2,   1.4"));
  EXPECT_THAT(TermsOfEX({"EX", "EX", "EX", "EX", "EX"}, "Response Spectrum"),
              ElementsAre("\t\tRS,   EX1,   1.4,RS,   EX2,   1.4,RS,   EX3,   1.4,RS,   EX4,   1.4",
                          "\t\tRS,   EX5,   1.4"));
}

TEST(Combinations, ComponentsOfASpectrumCaseAreFoundAmongThoseOfOthers) {
  EXPECT_THAT(TermsOfEX({"EX", "EX", "EY"}, "Response Spectrum"),
              ElementsAre("\t\tRS,   EX1,   1.4,RS,    EX,   1.4"));
  EXPECT_THAT(TermsOfEX({"EX", "EY", "EX", "EZ"}, "Response Spectrum"),
              ElementsAre("\t\tRS,    EX,   1.4,RS,    EX,   1.4"));
  EXPECT_THAT(TermsOfEX({"*EX", "EX", "*EX", "EX"}, "Response Spectrum"),
              ElementsAre("\t\tRS,   EX1,   1.4,RS,   EX2,   1.4"));
}

TEST(Combinations, SpectrumCaseOfOneComponentOrNoneKeepsItsName) {
  const std::vector<std::vector<std::string>> models = {
      {"EX"}, {"EX", "EY"}, {"EY", "EY"}, {"EX", "EX", "*EX"}, {"EX", "*EX"}, {"ex", "ex"}};
  for (const std::vector<std::string>& rows : models) {
    SCOPED_TRACE(testing::PrintToString(rows));
    EXPECT_THAT(TermsOfEX(rows, "Response Spectrum"), ElementsAre("\t\tRS,    EX,   1.4"));
  }
}

TEST(Combinations, ComponentsGoInOnlyForSpectrumCases) {
  EXPECT_THAT(TermsOfEX({"EX", "EX"}, "Linear Static"), ElementsAre("\t\tST,    EX,   1.4"));
  EXPECT_THAT(TermsOfEX({"EX", "EX"}, "Response Combo"), ElementsAre("\t\tCB,    EX,   1.4"));
  EXPECT_THAT(TermsOfEX({"EX", "EX"}, "response spectrum"), ElementsAre("\t\tST,    EX,   1.4"));
}

}  // namespace
