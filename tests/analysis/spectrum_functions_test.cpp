#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// ---- Codes that the target does not have ----

struct LostTable {
  const char* Title;
  const char* Message;
};

const std::vector<LostTable> kLostTables = {
    {"FUNCTION - RESPONSE SPECTRUM - BOCA96", "IDS_S2KV8_RESP_BOCA96_Not_Convert"},
    {"FUNCTION - RESPONSE SPECTRUM - FROM FILE", "IDS_S2KV8_RESP_FILE_Not_Convert"},
    {"FUNCTION - RESPONSE SPECTRUM - NEHRP97", "IDS_S2KV8_RESP_NHERP97_Not_Convert"},
    {"FUNCTION - RESPONSE SPECTRUM - NZS4203", "IDS_S2KV8_RESP_NZS4203_Not_Convert"}};

TEST(SpectrumFunctions, TableThatIsNotConvertedShowsItsMessageOnce) {
  for (const auto& [title, message] : kLostTables) {
    SCOPED_TRACE(title);
    const ConversionRun run = Convert(SourceTable(title,
                                                  "   Name=SPEC1   Period=0   Accel=0.4\n"
                                                  "   Name=SPEC1   Period=1   Accel=0.2\n"
                                                  "   Name=SPEC2   Period=0   Accel=0.3\n"));
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, ElementsAre(message));
    EXPECT_EQ(run.Body(), "\n\n");
  }
}

TEST(SpectrumFunctions, TableInTwoBlocksShowsItsMessageOnce) {
  for (const auto& [title, message] : kLostTables) {
    SCOPED_TRACE(title);
    const std::string block = SourceTable(title, "   Name=SPEC1   Period=0   Accel=0.4\n");
    EXPECT_THAT(Convert(block + block).Messages, ElementsAre(message));
  }
}

TEST(SpectrumFunctions, TableWithoutRowsShowsNoMessage) {
  for (const auto& [title, message] : kLostTables) {
    SCOPED_TRACE(title);
    EXPECT_THAT(Convert(SourceTable(title, "")).Messages, IsEmpty());
  }
}

TEST(SpectrumFunctions, MessagesComeInTheOrderOfTheCodesAndNotOfTheFile) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - NZS4203"
   Name=WELLINGTON   Period=0   Accel=0.4   ScaleFactor=1   SoilCat=B

TABLE:  "FUNCTION - RESPONSE SPECTRUM - FROM FILE"
   Name=MEASURED   Period=0   Accel=0.4   HeaderLines=0   FileName=measured.txt

TABLE:  "FUNCTION - RESPONSE SPECTRUM - NEHRP97"
   Name=WEST   Period=0   Accel=0.4   SDS=1   SD1=0.4

TABLE:  "FUNCTION - RESPONSE SPECTRUM - BOCA96"
   Name=EAST   Period=0   Accel=0.4   Aa=0.4   Av=0.4   R=1   S=1.5
)");
  EXPECT_THAT(
      run.Messages,
      ElementsAre("IDS_S2KV8_RESP_BOCA96_Not_Convert", "IDS_S2KV8_RESP_FILE_Not_Convert",
                  "IDS_S2KV8_RESP_NHERP97_Not_Convert", "IDS_S2KV8_RESP_NZS4203_Not_Convert"));
}

TEST(SpectrumFunctions, TimeHistoryFromAFileIsNoSpectrumFromAFile) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - TIME HISTORY - FROM FILE"
   Name=ELCENTRO   Time=0   Value=0.01   FileName=elcentro.txt
)");
  EXPECT_THAT(run.Messages, Not(Contains("IDS_S2KV8_RESP_FILE_Not_Convert")));
}

TEST(SpectrumFunctions, MessagesComeBehindThoseOfTheAreasAndBeforeThoseOfTheOutput) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - BOCA96"
   Name=EAST   Period=0   Accel=0.4

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "AREA LOADS - GRAVITY"
   Area=1   LoadCase=DEAD   MultiplierZ=-1

TABLE:  "AREA STIFFNESS MODIFIERS"
   Area=1   f11=0.5
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_AREA_Stif_Not_Convert", "IDS_S2KV8_NOCONVERT_AREA_GRAV",
                          "IDS_S2KV8_RESP_BOCA96_Not_Convert", "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

/// Keys of the messages of a run that is stopped behind a stage of the conversion.
std::vector<std::string> MessagesOfRunStoppedBehindStage(int stage) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  WriteFile(path, FileWith(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - BOCA96"
   Name=EAST   Period=0   Accel=0.4
)"));
  ScriptedPlatform platform;
  // The first step is that of the row.
  platform.StopAtStep = 1 + stage;
  s2k2ngt::CConverter converter(platform);
  EXPECT_EQ(converter.Run(path.c_str()), 1);
  std::vector<std::string> keys;
  for (const ScriptedPlatform::Message& message : platform.Messages) {
    keys.push_back(message.Key);
  }
  return keys;
}

TEST(SpectrumFunctions, MessagesBelongToTheFifteenthStage) {
  EXPECT_THAT(MessagesOfRunStoppedBehindStage(14),
              ElementsAre("IDS_S2KV8_Export_must_be_executed"));
  EXPECT_THAT(
      MessagesOfRunStoppedBehindStage(15),
      ElementsAre("IDS_S2KV8_Export_must_be_executed", "IDS_S2KV8_RESP_BOCA96_Not_Convert"));
}

// ---- Codes that the target has ----

const std::string kUserTable = "TABLE:  \"FUNCTION - RESPONSE SPECTRUM - USER\"\n";

/// Rows of one function, at the periods 1, 2 and so on.
std::string RowsOf(const char* name, int count) {
  std::string rows;
  for (int period = 1; period <= count; ++period) {
    rows +=
        "   Name=" + std::string(name) + "   Period=" + std::to_string(period) + "   Accel=0.5\n";
  }
  return rows;
}

TEST(SpectrumFunctions, FunctionOfOneRowHasOnePair) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - USER"
   Name=SITE   Period=0.2   Accel=0.75
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Body(),
            "*SFUNCTION    ; Specturm Function\n"
            "; FUNC=NAME, iTYPE, SCALE, GRAV, DESC          ; line 1\n"
            ";      PERIOD1, VALUE1, PERIOD2, VALUE2, ...   ; from line 2\n"
            "\tFUNC=SITE,     2,     1, 9.806,      \n"
            "\t\t0.2,  0.75\n"
            "\n"
            "\n\n");
}

struct ConvertedTable {
  const char* Title;
  const char* CodeParameters;
};

const std::vector<ConvertedTable> kConvertedTables = {
    {"FUNCTION - RESPONSE SPECTRUM - EUROCODE8", "Ag=0.4   DampFactor=1   SoilClass=B"},
    {"FUNCTION - RESPONSE SPECTRUM - IBC2000", "SDS=1.2   SD1=0.6"},
    {"FUNCTION - RESPONSE SPECTRUM - NBCC95", "V=0.4   Za=6   Zv=6"},
    {"FUNCTION - RESPONSE SPECTRUM - UBC94", "Z=0.3   SoilType=S2"},
    {"FUNCTION - RESPONSE SPECTRUM - UBC97", "Ca=0.4   Cv=0.6"},
    {"FUNCTION - RESPONSE SPECTRUM - USER", ""}};

TEST(SpectrumFunctions, EachCodeThatTheTargetHasGivesItsPointsAndNotItsParameters) {
  for (const auto& [title, parameters] : kConvertedTables) {
    SCOPED_TRACE(title);
    const std::string first = "   Name=HILL   Period=0   Accel=0.4   " + std::string(parameters);
    const ConversionRun run = Convert(SourceTable(title, (first + R"(
   Name=HILL   Period=0.15   Accel=1
   Name=HILL   Period=0.6   Accel=0.25
)")
                                                             .c_str()));
    EXPECT_THAT(run.Lines("*SFUNCTION"), ElementsAre("\tFUNC=HILL,     2,     1, 9.806,      ",
                                                     "\t\t0,   0.4,0.15,     1,0.6,  0.25"));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(SpectrumFunctions, FunctionsComeInTheOrderOfTheCodesAndNotOfTheFile) {
  std::string tables;
  for (const char* titleAndRow :
       {"USER\"\n   Name=F6", "UBC97\"\n   Name=F5", "UBC94\"\n   Name=F4", "NBCC95\"\n   Name=F3",
        "IBC2000\"\n   Name=F2", "EUROCODE8\"\n   Name=F1"}) {
    tables += "TABLE:  \"FUNCTION - RESPONSE SPECTRUM - " + std::string(titleAndRow) +
              "   Period=1   Accel=2\n\n";
  }
  EXPECT_THAT(Convert(tables).Lines("*SFUNCTION"),
              ElementsAre("\tFUNC=F1,     2,     1, 9.806,      ", "\t\t1,     2",
                          "\tFUNC=F2,     2,     1, 9.806,      ", "\t\t1,     2",
                          "\tFUNC=F3,     2,     1, 9.806,      ", "\t\t1,     2",
                          "\tFUNC=F4,     2,     1, 9.806,      ", "\t\t1,     2",
                          "\tFUNC=F5,     2,     1, 9.806,      ", "\t\t1,     2",
                          "\tFUNC=F6,     2,     1, 9.806,      ", "\t\t1,     2"));
}

TEST(SpectrumFunctions, MessagesAndFunctionsOfOneModelDoNotDisturbEachOther) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - NEHRP97"
   Name=LOST   Period=0   Accel=0.4

TABLE:  "FUNCTION - RESPONSE SPECTRUM - UBC97"
   Name=KEPT   Period=0   Accel=0.4
)");
  EXPECT_THAT(run.Lines("*SFUNCTION"),
              ElementsAre("\tFUNC=KEPT,     2,     1, 9.806,      ", "\t\t0,   0.4"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_RESP_NHERP97_Not_Convert"));
}

TEST(SpectrumFunctions, NameThatComesBackOpensASecondFunction) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - USER"
   Name=SOFT   Period=0   Accel=0.5
   Name=SOFT   Period=1   Accel=0.3
   Name=STIFF   Period=0   Accel=0.6
   Name=SOFT   Period=2   Accel=0.1
)");
  EXPECT_THAT(run.Lines("*SFUNCTION"),
              ElementsAre("\tFUNC=SOFT,     2,     1, 9.806,      ", "\t\t0,   0.5,1,   0.3",
                          "\tFUNC=STIFF,     2,     1, 9.806,      ", "\t\t0,   0.6",
                          "\tFUNC=SOFT,     2,     1, 9.806,      ", "\t\t2,   0.1"));
}

TEST(SpectrumFunctions, OneNameInTwoTablesIsTwoFunctions) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - UBC94"
   Name=SITE   Period=0   Accel=0.5

TABLE:  "FUNCTION - RESPONSE SPECTRUM - UBC97"
   Name=SITE   Period=1   Accel=0.3
)");
  EXPECT_THAT(run.Lines("*SFUNCTION"),
              ElementsAre("\tFUNC=SITE,     2,     1, 9.806,      ", "\t\t0,   0.5",
                          "\tFUNC=SITE,     2,     1, 9.806,      ", "\t\t1,   0.3"));
}

TEST(SpectrumFunctions, NamesDifferByCaseAndAMissingNameIsANameOfItsOwn) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - USER"
   Period=0   Accel=0.5
   Period=1   Accel=0.4
   Name=Site   Period=0   Accel=0.3
   Name=SITE   Period=0   Accel=0.2
   Period=0   Accel=0.1
)");
  EXPECT_THAT(run.Lines("*SFUNCTION"),
              ElementsAre("\tFUNC=,     2,     1, 9.806,      ", "\t\t0,   0.5,1,   0.4",
                          "\tFUNC=Site,     2,     1, 9.806,      ", "\t\t0,   0.3",
                          "\tFUNC=SITE,     2,     1, 9.806,      ", "\t\t0,   0.2",
                          "\tFUNC=,     2,     1, 9.806,      ", "\t\t0,   0.1"));
}

TEST(SpectrumFunctions, MissingPeriodOrAccelerationIsZeroAndNotThatOfTheRowBefore) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - USER"
   Name=SITE   Period=0.5   Accel=0.8
   Name=SITE   Period=0.6
   Name=SITE   Accel=0.2
)");
  EXPECT_THAT(run.Lines("*SFUNCTION"), ElementsAre("\tFUNC=SITE,     2,     1, 9.806,      ",
                                                   "\t\t0.5,   0.8,0.6,     0,0,   0.2"));
}

TEST(SpectrumFunctions, LaterBlockOfATableTakesTheFirstRowsAndLeavesTheOthers) {
  const ConversionRun run = Convert(kUserTable + RowsOf("OLD", 3) + "\n" + kUserTable +
                                    "   Name=NEW   Period=9   Accel=8\n");
  EXPECT_THAT(run.Lines("*SFUNCTION"),
              ElementsAre("\tFUNC=NEW,     2,     1, 9.806,      ", "\t\t9,     8",
                          "\tFUNC=OLD,     2,     1, 9.806,      ", "\t\t2,   0.5,3,   0.5"));
}

TEST(SpectrumFunctions, FirstLineHoldsFourPairsAndTheOthersThree) {
  struct Case {
    int Pairs;
    std::vector<std::string> Lines;
  };
  const std::string four = "\t\t1,   0.5,2,   0.5,3,   0.5,4,   0.5";
  const std::string three = "\t\t5,   0.5,6,   0.5,7,   0.5";
  // A line that is full opens the next one, though nothing may follow.
  const std::vector<Case> cases = {{3, {"\t\t1,   0.5,2,   0.5,3,   0.5"}},
                                   {4, {four, "\t\t"}},
                                   {5, {four, "\t\t5,   0.5"}},
                                   {6, {four, "\t\t5,   0.5,6,   0.5"}},
                                   {7, {four, three, "\t\t"}},
                                   {8, {four, three, "\t\t8,   0.5"}},
                                   {10, {four, three, "\t\t8,   0.5,9,   0.5,10,   0.5", "\t\t"}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Pairs);
    std::vector<std::string> expected = {"\tFUNC=SITE,     2,     1, 9.806,      "};
    expected.insert(expected.end(), c.Lines.begin(), c.Lines.end());
    EXPECT_EQ(Convert(kUserTable + RowsOf("SITE", c.Pairs)).Lines("*SFUNCTION"), expected);
  }
}

TEST(SpectrumFunctions, LineOfTwoTabsStandsBetweenAFunctionOfFourPairsAndTheNext) {
  const ConversionRun run = Convert(kUserTable + RowsOf("FIRST", 4) + RowsOf("SECOND", 1));
  EXPECT_EQ(run.Section("*SFUNCTION"),
            "*SFUNCTION    ; Specturm Function\n"
            "; FUNC=NAME, iTYPE, SCALE, GRAV, DESC          ; line 1\n"
            ";      PERIOD1, VALUE1, PERIOD2, VALUE2, ...   ; from line 2\n"
            "\tFUNC=FIRST,     2,     1, 9.806,      \n"
            "\t\t1,   0.5,2,   0.5,3,   0.5,4,   0.5\n"
            "\t\t\n"
            "\tFUNC=SECOND,     2,     1, 9.806,      \n"
            "\t\t1,   0.5\n"
            "\n");
}

TEST(SpectrumFunctions, GravityFollowsTheLengthUnitOfTheModel) {
  // The factors of centimetres and millimetres run the other way from those of inches and feet.
  const std::vector<std::pair<const char*, const char*>> unitsAndGravities = {
      {"KN, m, C", "9.806"},    {"KN, M, C", "9.806"},    {"KN, cm, C", "0.09806"},
      {"N, mm, C", "0.009806"}, {"N, Mm, C", "0.009806"}, {"Kip, in, F", "386.063"},
      {"lb, ft, F", "32.1715"}, {"KN, km, C", "9.806"}};
  for (const auto& [units, gravity] : unitsAndGravities) {
    SCOPED_TRACE(units);
    const ConversionRun run =
        Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"" + std::string(units) + "\"\n\n" +
                kUserTable + "   Name=SITE   Period=0.2   Accel=1\n");
    EXPECT_THAT(run.Lines("*SFUNCTION"),
                ElementsAre("\tFUNC=SITE,     2,     1, " + std::string(gravity) + ",      ",
                            "\t\t0.2,     1"));
  }
}

TEST(SpectrumFunctions, OnlyTheAccelerationIsPaddedToFivePlaces) {
  const std::vector<std::pair<const char*, const char*>> rowsAndPairs = {
      {"Period=-0.5   Accel=-9.81", "\t\t-0.5, -9.81"},
      {"Period=0.0123456789   Accel=1234567", "\t\t0.0123457, 1.23457e+06"},
      {"Period=1e-7   Accel=2e-5", "\t\t1e-07, 2e-05"},
      {"Period=1/2   Accel=3g", "\t\t1,     3"},
      {"Period=inf   Accel=-inf", "\t\tinf,  -inf"},
      {"Period=-nan   Accel=-nan", "\t\tnan,   nan"}};
  for (const auto& [row, pair] : rowsAndPairs) {
    SCOPED_TRACE(row);
    const ConversionRun run = Convert(kUserTable + "   Name=SITE   " + row + "\n");
    EXPECT_THAT(run.Lines("*SFUNCTION"),
                ElementsAre("\tFUNC=SITE,     2,     1, 9.806,      ", pair));
  }
}

TEST(SpectrumFunctions, NameOfBytesAboveAsciiIsWrittenAsItStands) {
  const ConversionRun run = Convert(kUserTable +
                                    "   Name=\"B\xD6"
                                    "DEN A\"   Period=0   Accel=1\n");
  EXPECT_THAT(run.Lines("*SFUNCTION"), ElementsAre("\tFUNC=B\xD6"
                                                   "DEN A,     2,     1, 9.806,      ",
                                                   "\t\t0,     1"));
}

}  // namespace
