#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <initializer_list>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

const std::string kUbcRowOfW1 = R"(
TABLE:  "AUTO WIND - UBC97"
   LoadCase=W1   ExposeFrom=Diaphragms   Exposure=C   Angle=30   WindwardCq=0.8   _
      LeewardCq=0.5   MaxZ=12   MinZ=1   WindSpeed=90   I=1.15
)";

const std::string kUbcBlockOfW1 =
    "*USE-STLD,         W1\n"
    "\n"
    "*WIND    ; Wind Loads\n"
    "; CODE=CODE, SFX, SFY, DESC                   ; line 1\n"
    "; [UBC1997]   : iMETHOD, EC, BWS, IF, PC, MRH ; line 2\n"
    "\n"
    "\tCODE=UBC1997,     1,     1,      \n"
    "\t\t2,     C,    90,  1.15,     0,    12\n"
    "\n"
    ";End of data for load case [W1]\n"
    "\n";

const std::string kAsceRowOfW2 = R"(
TABLE:  "AUTO WIND - ASCE7-98"
   LoadCase=W2   ExposeFrom=Diaphragms   Exposure=B   Angle=0   WindwardCp=0.8   LeewardCp=0.5   _
      MaxZ=24.5   MinZ=1   WindSpeed=110   I=1.15   Kzt=1.5   GustFactor=0.9   Kd=0.95
)";

const std::string kIbcBlockOfW2 =
    "*USE-STLD,         W2\n"
    "\n"
    "*WIND    ; Wind Loads\n"
    "; CODE=CODE, SFX, SFY, DESC                                 ; line 1\n"
    "; [IBC2000]   : iPROC, BWS, IF, EC, WDF, MRH, iST, GFX, GFY ; line 2\n"
    "\tCODE=IBC2000,     1,     1,      \n"
    "\t\t2,   110,  1.15,     B,  0.95,  24.5,  1,   0.9,   0.9, NO, , , , , , NO, 1\n"
    "\n"
    ";End of data for load case [W2]\n"
    "\n";

const std::string kNbccRowOfW3 = R"(
TABLE:  "AUTO WIND - NBCC95"
   LoadCase=W3   ExposeFrom=Diaphragms   Angle=0   WindwardCp=0.8   LeewardCp=0.5   MaxZ=24   _
      MinZ=1   VelPressure=0.64645   Cg=2.5
)";

const std::string kNbcBlockOfW3 =
    "*USE-STLD,         W3\n"
    "\n"
    "*WIND    ; Wind Loads\n"
    "; CODE=CODE, SFX, SFY, DESC                       ; line 1\n"
    "; [NBC1995]   : iPROC, RWS, GEF, CGX, CGY, BH, EC ; line 2\n"
    "\tCODE=NBC1995,     1,     1,      \n"
    "\t\t1, 31.6228,   2.5, , , 0,      , NO, , , , , , NO, 1\n"
    "\n"
    ";End of data for load case [W3]\n"
    "\n";

TEST(WindUbc97, WholeCommandOfALoadCase) {
  const ConversionRun run = Convert(AutomaticCases("WIND", {{"W1", "UBC 97"}}) + kUbcRowOfW1);
  EXPECT_EQ(TextOfLoads(run), kUbcBlockOfW1);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(WindUbc97, WhatTheRowDoesNotStateIsEmptyOrZero) {
  const ConversionRun run = Convert(AutomaticCases("WIND", {{"W1", "UBC 97"}}) + R"(
TABLE:  "AUTO WIND - UBC97"
   LoadCase=W1
)");
  EXPECT_THAT(run.LoadLines("W1", "*WIND"),
              ElementsAre("\tCODE=UBC1997,     1,     1,      ",
                          "\t\t2,      ,     0,     0,     0,     0"));
}

TEST(WindAsce98, GoesOverToTheIbc2000OfTheTarget) {
  const ConversionRun run = Convert(AutomaticCases("WIND", {{"W2", "ASCE 7-98"}}) + kAsceRowOfW2);
  EXPECT_EQ(TextOfLoads(run), kIbcBlockOfW2);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(WindAsce98, WhatTheRowDoesNotStateIsEmptyOrZero) {
  const ConversionRun run = Convert(AutomaticCases("WIND", {{"W2", "ASCE 7-98"}}) + R"(
TABLE:  "AUTO WIND - ASCE7-98"
   LoadCase=W2
)");
  EXPECT_THAT(run.LoadLines("W2", "*WIND"),
              ElementsAre("\tCODE=IBC2000,     1,     1,      ",
                          "\t\t2,     0,     0,      ,     0,     0,  1,     0,     0, NO, , , , , "
                          ", NO, 1"));
}

TEST(WindNbcc95, SpeedIsDerivedFromThePressure) {
  const ConversionRun run = Convert(AutomaticCases("WIND", {{"W3", "NBCC 95"}}) + kNbccRowOfW3);
  EXPECT_EQ(TextOfLoads(run), kNbcBlockOfW3);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(WindNbcc95, PressuresOfZeroAndLess) {
  struct Row {
    const char* VelPressure;
    const char* Line;
  };
  for (const Row& row : {
           Row{"0.00064645", "\t\t1,     1,     2, , , 0,      , NO, , , , , , NO, 1"},
           Row{"0", "\t\t1,     0,     2, , , 0,      , NO, , , , , , NO, 1"},
           Row{"-1", "\t\t1,   nan,     2, , , 0,      , NO, , , , , , NO, 1"},
       }) {
    SCOPED_TRACE(row.VelPressure);
    const ConversionRun run = Convert(AutomaticCases("WIND", {{"W3", "NBCC 95"}}) +
                                      "TABLE:  \"AUTO WIND - NBCC95\"\n"
                                      "   LoadCase=W3   Cg=2   VelPressure=" +
                                      row.VelPressure + "\n");
    EXPECT_THAT(run.LoadLines("W3", "*WIND"),
                ElementsAre("\tCODE=NBC1995,     1,     1,      ", row.Line));
  }
}

TEST(WindLoads, FirstRowOfTheLoadInTheWalkIsTheOnlyOne) {
  // Row 2 comes before row 1 in the tables of all three codes.
  const ConversionRun run = Convert(
      AutomaticCases("WIND", {{"W1", "UBC 97"}, {"W2", "ASCE 7-98"}, {"W3", "NBCC 95"}}) + R"(
TABLE:  "AUTO WIND - UBC97"
   LoadCase=W1   Exposure=C   MaxZ=12   WindSpeed=80   I=1
   LoadCase=W1   Exposure=D   MaxZ=24   WindSpeed=90   I=1

TABLE:  "AUTO WIND - ASCE7-98"
   LoadCase=W2   Exposure=C   MaxZ=12   WindSpeed=80   I=1   GustFactor=0.85   Kd=1
   LoadCase=W2   Exposure=D   MaxZ=24   WindSpeed=90   I=1   GustFactor=0.85   Kd=1

TABLE:  "AUTO WIND - NBCC95"
   LoadCase=W3   VelPressure=0.00064645   Cg=2
   LoadCase=W3   VelPressure=0.0025858   Cg=3
)");
  EXPECT_THAT(run.LoadLines("W1", "*WIND"),
              ElementsAre("\tCODE=UBC1997,     1,     1,      ",
                          "\t\t2,     D,    90,     1,     0,    24"));
  EXPECT_THAT(run.Output, testing::HasSubstr("\t\t2,    90,     1,     D,     1,    24,  1,  0.85,"
                                             "  0.85, NO, , , , , , NO, 1\n"));
  EXPECT_THAT(run.Output,
              testing::HasSubstr("\t\t1,     2,     3, , , 0,      , NO, , , , , , NO, 1\n"));
}

TEST(WindLoads, EachLoadFindsItsOwnRow) {
  const ConversionRun run =
      Convert(AutomaticCases("WIND", {{"W1", "UBC 97"}, {"W2", "UBC 97"}}) + R"(
TABLE:  "AUTO WIND - UBC97"
   LoadCase=W1   Exposure=C   MaxZ=12   WindSpeed=80   I=1
   LoadCase=W2   Exposure=D   MaxZ=24   WindSpeed=90   I=1.15
)");
  EXPECT_THAT(run.LoadLines("W1", "*WIND"),
              ElementsAre("\tCODE=UBC1997,     1,     1,      ",
                          "\t\t2,     C,    80,     1,     0,    12"));
  EXPECT_THAT(run.LoadLines("W2", "*WIND"),
              ElementsAre("\tCODE=UBC1997,     1,     1,      ",
                          "\t\t2,     D,    90,  1.15,     0,    24"));
}

// ---- Closing lines without an opening ----

TEST(WindClosingLine, EachCodeClosesInItsOrderAlsoForTheLoadsOfTheOthers) {
  // The load cases are written in the order W3, W2, W1, the codes always UBC, IBC, NBC.
  const ConversionRun run =
      Convert(AutomaticCases("WIND", {{"W1", "UBC 97"}, {"W2", "ASCE 7-98"}, {"W3", "NBCC 95"}}) +
              kUbcRowOfW1 + kAsceRowOfW2 + kNbccRowOfW3);
  EXPECT_EQ(TextOfLoads(run),
            // W3
            ";End of data for load case [W1]\n\n"
            ";End of data for load case [W2]\n\n" +
                kNbcBlockOfW3 +
                // W2
                ";End of data for load case [W1]\n\n" + kIbcBlockOfW2 +
                ";End of data for load case [W3]\n\n" +
                // W1
                kUbcBlockOfW1 +
                ";End of data for load case [W2]\n\n"
                ";End of data for load case [W3]\n\n");
}

TEST(WindClosingLine, LoadWithoutARowClosesThatOfAnother) {
  const ConversionRun run =
      Convert(AutomaticCases("WIND", {{"W1", "UBC 97"}, {"W4", "UBC 97"}}) + kUbcRowOfW1);
  EXPECT_EQ(TextOfLoads(run), ";End of data for load case [W1]\n\n" + kUbcBlockOfW1);
}

TEST(WindClosingLine, CodesThatAreNotConvertedAreAutomaticAllTheSame) {
  for (const char* code :
       {"BOCA96", "UBC97", "ASCE7-98", "ASCE 7-95", "NBCC95", "USER", "ubc 97", "none", ""}) {
    SCOPED_TRACE(code);
    const ConversionRun run =
        Convert(AutomaticCases("WIND", {{"W1", "UBC 97"}, {"W4", code}}) + kUbcRowOfW1);
    EXPECT_EQ(TextOfLoads(run), ";End of data for load case [W1]\n\n" + kUbcBlockOfW1);
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(WindClosingLine, LoadThatIsNotAutomaticHasNone) {
  const ConversionRun run =
      Convert(AutomaticCases("WIND", {{"W1", "UBC 97"}, {"W4", "None"}}) + kUbcRowOfW1);
  EXPECT_EQ(TextOfLoads(run), kUbcBlockOfW1);
}

TEST(WindClosingLine, TableWithoutRecordsHasNone) {
  for (const char* code : {"BOCA 96", "UBC 97", "ASCE 7-98", "NBCC 95"}) {
    SCOPED_TRACE(code);
    const ConversionRun run =
        Convert(AutomaticCases("WIND", {{"W4", code}}) + kUbcRowOfW1 + kAsceRowOfW2 + kNbccRowOfW3);
    EXPECT_EQ(run.Section("*STLDCASE"),
              "*STLDCASE    ; Static Load Cases\n"
              "; LCNAME, LCTYPE, DESC\n"
              "\tW4,     W, \n"
              "\n");
    EXPECT_EQ(TextOfLoads(run), "");
  }
}

TEST(WindClosingLine, NamesTheLastRecordOfTheWalk) {
  // Records 1, 2, 3 belong to W2, W1, W3. Those of UBC 97 and ASCE 7-98 are walked in the order
  // 3, 2, 1, those of NBCC 95 in the order 2, 1, 3. W4 has no row and is written last.
  struct Row {
    const char* Code;
    const char* Title;
    const char* Last;
  };
  for (const Row& row :
       {Row{"UBC 97", "AUTO WIND - UBC97", "W2"}, Row{"ASCE 7-98", "AUTO WIND - ASCE7-98", "W2"},
        Row{"NBCC 95", "AUTO WIND - NBCC95", "W3"}}) {
    SCOPED_TRACE(row.Code);
    const ConversionRun run = Convert(
        AutomaticCases("WIND",
                       {{"W1", row.Code}, {"W2", row.Code}, {"W3", row.Code}, {"W4", row.Code}}) +
        "TABLE:  \"" + row.Title +
        "\"\n   LoadCase=W1   I=1\n   LoadCase=W2   I=1\n   LoadCase=W3   I=1\n");
    EXPECT_THAT(TextOfLoads(run), EndsWith("\n\n;End of data for load case [W1]\n\n"
                                           ";End of data for load case [" +
                                           std::string(row.Last) + "]\n\n"));
  }
}

TEST(WindLoads, OtherDesignTypesHaveNoWindLoad) {
  for (const char* type : {"DEAD", "LIVE", "SNOW", "QUAKE", "OTHER", "Wind"}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(AutomaticCases(type, {{"W1", "UBC 97"}}) + kUbcRowOfW1);
    EXPECT_EQ(TextOfLoads(run), "");
  }
}

TEST(WindLoads, SeismicRecordsAreNotClosedByAWindLoadNorWindRecordsByASeismicOne) {
  const ConversionRun run = Convert(R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=W1   DesignType=WIND   SelfWtMult=0   AutoLoad="UBC 97"
   LoadCase=EQ   DesignType=QUAKE   SelfWtMult=0   AutoLoad=UBC97

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=ALL   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=ALL   LoadType="Load case"   LoadName=W1
   Case=ALL   LoadType="Load case"   LoadName=EQ

TABLE:  "AUTO SEISMIC - UBC97"
   LoadCase=EQ   Dir=X   Ct=0.03   R=8.5   SoilType=SC   Z=0.4   SourceType=B   SourceDist=5   I=1
)" + kUbcRowOfW1);
  EXPECT_EQ(TextOfLoads(run),
            "*USE-STLD,         EQ\n"
            "\n"
            "*SEIS    ; Static Seismic Loads\n"
            "; CODE=CODE, SFX, SFY, ECCX, ECCY, DESC              ; line 1\n"
            "; [UBC1997] : SPT, ZF, SST, CD, IF, PX, PY, NCX, NCY ; line 2\n"
            "\tCODE=UBC1997,     1,     0,   POS,   POS,     \n"
            "\t\tSc,   0.4,     B,     5,     1,  0.03,     0,   8.5,     0\n"
            "\n"
            ";End of data for load case [EQ]\n"
            "\n" +
                kUbcBlockOfW1);
}

}  // namespace
