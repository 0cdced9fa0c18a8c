#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The output from *STLDCASE to its end. Nothing but the two newlines of buckling stands behind
/// the loads of these models.
std::string LoadsOf(const ConversionRun& run) {
  const std::size_t begin = run.Output.find("*STLDCASE");
  return begin == std::string::npos ? std::string() : run.Output.substr(begin);
}

constexpr const char* kEnd = "\n\n*ENDDATA";

/// A static analysis case of the one load DEAD, and this row of it.
ConversionRun ConvertDead(const std::string& loadRow) {
  return Convert("TABLE:  \"LOAD CASE DEFINITIONS\"\n   " + loadRow + R"(

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=DEAD   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=DEAD   LoadType="Load case"   LoadName=DEAD   LoadSF=1
)");
}

// ---- *STLDCASE ----

TEST(LoadCases, AreTheLoadsOfLinearStaticAnalysisCases) {
  const ConversionRun run = Convert(R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=DEAD   DesignType=DEAD   SelfWtMult=0
   LoadCase=LIVE   DesignType=LIVE   SelfWtMult=0

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=SERVICE   Type=LinStatic   InitialCond=Zero

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=SERVICE   LoadType="Load case"   LoadName=DEAD   LoadSF=1.4   TransAccSF=0
   Case=SERVICE   LoadType="Load case"   LoadName=LIVE   LoadSF=1.7   TransAccSF=0
)");
  EXPECT_EQ(run.Section("*STLDCASE"),
            "*STLDCASE    ; Static Load Cases\n"
            "; LCNAME, LCTYPE, DESC\n"
            "\tLIVE,     L, \n"
            "\tDEAD,     D, \n"
            "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(LoadCases, AreWrittenInWalkOrderOfTheAssignmentsOfAllAnalysisCases) {
  const ConversionRun run = Convert(R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=FIRST   Type=LinStatic
   Case=SECOND   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=SECOND   LoadName=A
   Case=FIRST   LoadName=B
   Case=SECOND   LoadName=C
   Case=FIRST   LoadName=D
   Case=FIRST   LoadName=E
   Case=SECOND   LoadName=F
)");
  EXPECT_THAT(run.Lines("*STLDCASE"), ElementsAre("\tC,      , ", "\tF,      , ", "\tB,      , ",
                                                  "\tE,      , ", "\tA,      , ", "\tD,      , "));
}

TEST(LoadCases, DesignTypesHaveLetters) {
  struct Mapping {
    const char* Row;
    const char* Line;
  };
  const std::vector<Mapping> mappings = {
      {"DesignType=DEAD", "\tDEAD,     D, "},
      {"DesignType=LIVE", "\tDEAD,     L, "},
      {"DesignType=WIND   AutoLoad=None", "\tDEAD,     W, "},
      {"DesignType=WIND   AutoLoad=\"UBC 97\"", "\tDEAD,     W, "},
      {"DesignType=SNOW", "\tDEAD,     S, "},
      {"DesignType=QUAKE   AutoLoad=None", "\tDEAD,     E, "},
      {"DesignType=QUAKE   AutoLoad=UBC97", "\tDEAD,     E, "},
      {"DesignType=\"REDUCE LIVE\"", "\tDEAD,  USER, "},
      {"DesignType=OTHER", "\tDEAD,  USER, "},
      {"DesignType=dead", "\tDEAD,  USER, "},
      {"DesignType=Live", "\tDEAD,  USER, "},
      {"DesignType=", "\tDEAD,  USER, "},
      {"", "\tDEAD,  USER, "},
  };
  for (const auto& [row, line] : mappings) {
    SCOPED_TRACE(row);
    const ConversionRun run = ConvertDead("LoadCase=DEAD   " + std::string(row));
    EXPECT_THAT(run.Lines("*STLDCASE"), ElementsAre(line));
  }
}

TEST(LoadCases, NameOfNoLoadHasNoType) {
  const ConversionRun run = Convert(R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=DEAD   DesignType=DEAD

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=PUSH   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=PUSH   LoadType="Load case"   LoadName=PUSH
   Case=PUSH   LoadType=Accel   LoadName=UX

TABLE:  "JOINT LOADS - FORCE"
   Joint=1   LoadCase=PUSH   CoordSys=GLOBAL   F1=10
)");
  EXPECT_THAT(run.Lines("*STLDCASE"), ElementsAre("\tUX,      , ", "\tPUSH,      , "));
  EXPECT_THAT(run.LoadLines("PUSH", "*CONLOAD"),
              ElementsAre("\t1,    10,     0,     0,     0,     0,     0,"));
}

TEST(LoadCases, LoadIsLookedUpByItsExactName) {
  const ConversionRun run = ConvertDead("LoadCase=Dead   DesignType=DEAD");
  EXPECT_THAT(run.Lines("*STLDCASE"), ElementsAre("\tDEAD,      , "));
}

TEST(LoadCases, OfTwoLoadsOfOneNameTheWalkDecides) {
  // Keys 1, 2, 3 of the loads are walked in the order 2, 1, 3.
  const ConversionRun run = ConvertDead(
      "LoadCase=DEAD   DesignType=DEAD\n"
      "   LoadCase=DEAD   DesignType=LIVE\n"
      "   LoadCase=DEAD   DesignType=SNOW");
  EXPECT_THAT(run.Lines("*STLDCASE"), ElementsAre("\tDEAD,     L, "));
}

TEST(LoadCases, LoadOfTwoAnalysisCasesIsTwoLoadCasesWithAllItsLoadsEach) {
  const ConversionRun run = Convert(R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=DEAD   DesignType=DEAD

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=DEAD   Type=LinStatic
   Case=ALL   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=DEAD   LoadName=DEAD
   Case=ALL   LoadName=DEAD

TABLE:  "JOINT LOADS - FORCE"
   Joint=5   LoadCase=DEAD   CoordSys=GLOBAL   F3=-10
)");
  const std::string block =
      "*USE-STLD,       DEAD\n\n"
      "*CONLOAD    ; Nodal Loads\n"
      ";NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n"
      "\t5,     0,     0,   -10,     0,     0,     0,\n"
      ";End of data for load case [DEAD]\n\n";
  EXPECT_EQ(LoadsOf(run),
            "*STLDCASE    ; Static Load Cases\n"
            "; LCNAME, LCTYPE, DESC\n"
            "\tDEAD,     D, \n"
            "\tDEAD,     D, \n"
            "\n" +
                block + block + kEnd);
}

TEST(LoadCases, AnalysisCaseThatStandsTwiceMakesItsLoadCasesOnce) {
  const ConversionRun run = Convert(R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=DEAD   Type=LinStatic
   Case=DEAD   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=DEAD   LoadName=DEAD
)");
  EXPECT_THAT(run.Lines("*STLDCASE"), ElementsAre("\tDEAD,      , "));
}

TEST(LoadCases, OnlyTheExactWordOfLinearStaticCasesMakesThem) {
  for (const char* type :
       {"NonStatic", "LinBuckling", "linstatic", "LINSTATIC", "LinStatic1", "Lin", ""}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(
        "TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n   Case=DEAD   Type=" + std::string(type) + R"(

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=DEAD   LoadName=DEAD

TABLE:  "JOINT LOADS - FORCE"
   Joint=1   LoadCase=DEAD   CoordSys=GLOBAL   F1=10
)");
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(LoadsOf(run), "");
    EXPECT_EQ(run.LoadBlock("DEAD", "*CONLOAD"), "");
  }
}

TEST(LoadCases, StaticCaseWithoutAssignmentsMakesNone) {
  const ConversionRun run = Convert(R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=DEAD   DesignType=DEAD

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=DEAD   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=OTHER   LoadName=DEAD
   Case=dead   LoadName=DEAD
)");
  EXPECT_EQ(LoadsOf(run), "");
}

TEST(LoadCases, LoadOfNoAnalysisCaseIsNotWritten) {
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + R"(
TABLE:  "JOINT LOADS - FORCE"
   Joint=1   LoadCase=SPARE   CoordSys=GLOBAL   F1=10

TABLE:  "JOINT LOADS - GROUND DISPLACEMENT"
   Joint=1   LoadCase=SPARE   CoordSys=GLOBAL   U1=0.01

TABLE:  "FRAME LOADS - DISTRIBUTED"
   Frame=1   LoadCase=SPARE   CoordSys=GLOBAL   Type=Force   Dir=Z   DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=1   FOverLB=1
)");
  EXPECT_EQ(LoadsOf(run), std::string("*STLDCASE    ; Static Load Cases\n"
                                      "; LCNAME, LCTYPE, DESC\n"
                                      "\tDEAD,  USER, \n"
                                      "\n") +
                              kEnd);
}

// ---- Automatic loads ----

/// The loads WX, of a wind code, and W2, this; both have a row of the code.
ConversionRun ConvertSecondWind(const std::string& rowOfW2) {
  return Convert(R"(TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=WX   DesignType=WIND   AutoLoad="UBC 97"
   LoadCase=W2   )" +
                 rowOfW2 + R"(

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=WIND   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=WIND   LoadName=W2
   Case=WIND   LoadName=WX

TABLE:  "AUTO WIND - UBC97"
   LoadCase=WX   Exposure=C   MaxZ=30   WindSpeed=70   I=1
   LoadCase=W2   Exposure=D   MaxZ=40   WindSpeed=90   I=1
)");
}

constexpr const char* kWindOfWX =
    "*USE-STLD,         WX\n\n"
    "*WIND    ; Wind Loads\n"
    "; CODE=CODE, SFX, SFY, DESC                   ; line 1\n"
    "; [UBC1997]   : iMETHOD, EC, BWS, IF, PC, MRH ; line 2\n\n"
    "\tCODE=UBC1997,     1,     1,      \n"
    "\t\t2,     C,    70,     1,     0,    30\n\n"
    ";End of data for load case [WX]\n\n";

constexpr const char* kWindCaseHead =
    "*STLDCASE    ; Static Load Cases\n"
    "; LCNAME, LCTYPE, DESC\n"
    "\tWX,     W, \n";

TEST(AutomaticLoads, WindOfAutoLoadNoneIsWindWithoutParameters) {
  const ConversionRun run = ConvertSecondWind("DesignType=WIND   AutoLoad=None");
  EXPECT_EQ(LoadsOf(run), std::string(kWindCaseHead) + "\tW2,     W, \n\n" + kWindOfWX + kEnd);
}

TEST(AutomaticLoads, OnlyTheExactWordNoneIsNotAutomatic) {
  // The load has no record of a code, so that only the name of the last record is left to close.
  for (const char* autoLoad : {"AutoLoad=none", "AutoLoad=", "", "AutoLoad=\"BOCA 96\""}) {
    SCOPED_TRACE(autoLoad);
    const ConversionRun run = ConvertSecondWind("DesignType=WIND   " + std::string(autoLoad));
    EXPECT_EQ(LoadsOf(run), std::string(kWindCaseHead) + "\tW2,     W, \n\n" + kWindOfWX +
                                ";End of data for load case [WX]\n\n" + kEnd);
  }
}

TEST(AutomaticLoads, OfOtherTypesThanWindAndEarthquakeAreNotLookedAt) {
  const ConversionRun run = ConvertSecondWind("DesignType=LIVE   AutoLoad=\"UBC 97\"");
  EXPECT_EQ(LoadsOf(run), std::string(kWindCaseHead) + "\tW2,     L, \n\n" + kWindOfWX + kEnd);
}

TEST(AutomaticLoads, OfUnknownCodesAreNotWritten) {
  for (const char* row : {"DesignType=WIND   AutoLoad=\"BOCA 96\"",
                          "DesignType=QUAKE   AutoLoad=BOCA96", "DesignType=QUAKE"}) {
    SCOPED_TRACE(row);
    const ConversionRun run = ConvertDead("LoadCase=DEAD   " + std::string(row));
    const std::string loads = LoadsOf(run);
    EXPECT_EQ(loads.substr(loads.find("\n\n") + 2), kEnd);
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(AutomaticLoads, EarthquakeIsWrittenUnlessItsAutoLoadIsNone) {
  const std::string parameters =
      "\n\nTABLE:  \"AUTO SEISMIC - UBC97\"\n   LoadCase=DEAD   Dir=X   R=8.5";
  const ConversionRun automatic =
      ConvertDead("LoadCase=DEAD   DesignType=QUAKE   AutoLoad=UBC97" + parameters);
  EXPECT_THAT(automatic.Output, HasSubstr("*SEIS    ; Static Seismic Loads\n"));
  EXPECT_THAT(automatic.Output, Not(HasSubstr("*WIND")));
  const ConversionRun none =
      ConvertDead("LoadCase=DEAD   DesignType=QUAKE   AutoLoad=None" + parameters);
  EXPECT_THAT(none.Output, Not(HasSubstr("*SEIS")));
  EXPECT_THAT(none.Output, Not(HasSubstr("*USE-STLD")));
}

// ---- Self weight ----

TEST(SelfWeight, MultiplierPullsAlongMinusZ) {
  const ConversionRun run = ConvertDead("LoadCase=DEAD   DesignType=DEAD   SelfWtMult=1");
  EXPECT_EQ(LoadsOf(run), std::string("*STLDCASE    ; Static Load Cases\n"
                                      "; LCNAME, LCTYPE, DESC\n"
                                      "\tDEAD,     D, \n"
                                      "\n"
                                      "*USE-STLD,       DEAD\n\n"
                                      "; *SELFWEIGHT, X, Y, Z, GROUP\n"
                                      "\t*SELFWEIGHT,     0,     0,    -1,\n"
                                      ";End of data for load case [DEAD]\n"
                                      "\n") +
                              kEnd);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_GRAV_Not_Convert"));
}

TEST(SelfWeight, MultiplierGoesOverWithItsSignTurned) {
  struct Mapping {
    const char* Multiplier;
    const char* Line;
  };
  const std::vector<Mapping> mappings = {{"1.05", "\t*SELFWEIGHT,     0,     0, -1.05,"},
                                         {"-1", "\t*SELFWEIGHT,     0,     0,     1,"},
                                         {"1.1E-15", "\t*SELFWEIGHT,     0,     0, -1.1e-15,"},
                                         {"-1.1E-15", "\t*SELFWEIGHT,     0,     0, 1.1e-15,"}};
  for (const auto& [multiplier, line] : mappings) {
    SCOPED_TRACE(multiplier);
    const ConversionRun run = ConvertDead("LoadCase=DEAD   SelfWtMult=" + std::string(multiplier));
    EXPECT_THAT(run.LoadLines("DEAD", "*SELFWEIGHT"), ElementsAre(line));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_GRAV_Not_Convert"));
  }
}

TEST(SelfWeight, MultiplierUpToTheToleranceIsNone) {
  for (const char* multiplier : {"SelfWtMult=0", "", "SelfWtMult=1E-15", "SelfWtMult=-1E-15"}) {
    SCOPED_TRACE(multiplier);
    const ConversionRun run = ConvertDead("LoadCase=DEAD   " + std::string(multiplier));
    EXPECT_EQ(run.LoadBlock("DEAD", "*SELFWEIGHT"), "");
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(SelfWeight, IsReportedForEachLoadThatHasIt) {
  const ConversionRun run = Convert(R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=DEAD   DesignType=DEAD   SelfWtMult=1
   LoadCase=LIVE   DesignType=LIVE   SelfWtMult=0
   LoadCase=SDEAD   DesignType=DEAD   SelfWtMult=0.5
   LoadCase=UPLIFT   DesignType=OTHER   SelfWtMult=-0.9
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_GRAV_Not_Convert", "IDS_S2KV8_FRAM_GRAV_Not_Convert",
                          "IDS_S2KV8_FRAM_GRAV_Not_Convert"));
}

TEST(SelfWeight, OfALoadInNoAnalysisCaseIsReportedAndNotWritten) {
  const ConversionRun run = Convert(R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=DEAD   DesignType=DEAD   SelfWtMult=1

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=DEAD   Type=NonStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=DEAD   LoadType="Load case"   LoadName=DEAD   LoadSF=1
)");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_GRAV_Not_Convert"));
  EXPECT_EQ(LoadsOf(run), "");
  EXPECT_EQ(run.LoadBlock("DEAD", "*SELFWEIGHT"), "");
}

TEST(SelfWeight, LinesOfLoadsOfOneNameStandInWalkOrderOfTheirNewKeys) {
  // Rows 1, 2, 3 are walked as 2, 1, 3 and get the keys 1, 2, 3; these are walked as 3, 2, 1.
  const ConversionRun run = ConvertDead(
      "LoadCase=DEAD   SelfWtMult=1\n"
      "   LoadCase=DEAD   SelfWtMult=2\n"
      "   LoadCase=DEAD   SelfWtMult=3");
  EXPECT_THAT(
      run.LoadLines("DEAD", "*SELFWEIGHT"),
      ElementsAre("\t*SELFWEIGHT,     0,     0,    -3,", "\t*SELFWEIGHT,     0,     0,    -1,",
                  "\t*SELFWEIGHT,     0,     0,    -2,"));
}

}  // namespace
