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

// ---- UBC 97 ----

TEST(SeismicUbc97, WholeCommandOfALoadCase) {
  const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQX", "UBC97"}}) + R"(
TABLE:  "AUTO SEISMIC - UBC97"
   LoadCase=EQX   Dir=X   PercentEcc=0.05   EccOverride=Yes   PeriodCalc="Prog Calc"   Ct=0.03   _
      R=8.5   SoilType=SC   Z=0.4   MaxZ=40   MinZ=0   SourceType=B   SourceDist=5   I=1.25
)");
  EXPECT_EQ(TextOfLoads(run),
            "*USE-STLD,        EQX\n"
            "\n"
            "*SEIS    ; Static Seismic Loads\n"
            "; CODE=CODE, SFX, SFY, ECCX, ECCY, DESC              ; line 1\n"
            "; [UBC1997] : SPT, ZF, SST, CD, IF, PX, PY, NCX, NCY ; line 2\n"
            "\tCODE=UBC1997,     1,     0,   POS,   POS,     \n"
            "\t\tSc,   0.4,     B,     5,  1.25,  0.03,     0,   8.5,     0\n"
            "\n"
            ";End of data for load case [EQX]\n"
            "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SeismicUbc97, DirectionsButXAreY) {
  for (const char* dir : {"Dir=Y", "Dir=Z", "Dir=x", "Dir=", ""}) {
    SCOPED_TRACE(dir);
    const ConversionRun run =
        Convert(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) +
                "TABLE:  \"AUTO SEISMIC - UBC97\"\n"
                "   LoadCase=EQ   PeriodCalc=Program   Ct=0.03   R=8.5   SoilType=SC   "
                "Z=0.4   SourceType=B   SourceDist=5   I=1   " +
                dir + "\n");
    EXPECT_THAT(run.LoadLines("EQ", "*SEIS"),
                ElementsAre("\tCODE=UBC1997,     0,     1,   POS,   POS,     ",
                            "\t\tSc,   0.4,     B,     5,     1,     0,  0.03,     0,   8.5"));
  }
}

TEST(SeismicUbc97, PeriodIsCtWhateverTheHeightUnlessItIsTheUsers) {
  struct Row {
    const char* Period;
    const char* Line;
  };
  for (const Row& row : {
           Row{"PeriodCalc=\"Prog Calc\"   Ct=0.03   UserT=1.2   Z=0.4   MaxZ=40   MinZ=0",
               "\t\tSa,   0.4,      ,     0,     0,  0.03,     0,     0,     0"},
           Row{"PeriodCalc=\"Prog Calc\"   Ct=0.03   UserT=1.2   Z=0.4   MaxZ=7   MinZ=7",
               "\t\tSa,   0.4,      ,     0,     0,  0.03,     0,     0,     0"},
           Row{"PeriodCalc=\"Prog Calc\"   Ct=0.03   UserT=1.2   Z=0.4   MaxZ=0   MinZ=9",
               "\t\tSa,   0.4,      ,     0,     0,  0.03,     0,     0,     0"},
           Row{"PeriodCalc=user   Ct=0.03   UserT=1.2   Z=0.4   MaxZ=40   MinZ=0",
               "\t\tSa,   0.4,      ,     0,     0,  0.03,     0,     0,     0"},
           Row{"Ct=0.03   UserT=1.2   Z=0.4   MaxZ=40   MinZ=0",
               "\t\tSa,   0.4,      ,     0,     0,  0.03,     0,     0,     0"},
           Row{"PeriodCalc=User   Ct=0.03   UserT=1.2   Z=0.4   MaxZ=40   MinZ=0",
               "\t\tSa,   0.4,      ,     0,     0,   1.2,     0,     0,     0"},
       }) {
    SCOPED_TRACE(row.Period);
    const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) +
                                      "TABLE:  \"AUTO SEISMIC - UBC97\"\n"
                                      "   LoadCase=EQ   Dir=X   " +
                                      row.Period + "\n");
    EXPECT_THAT(run.LoadLines("EQ", "*SEIS"),
                ElementsAre("\tCODE=UBC1997,     1,     0,   POS,   POS,     ", row.Line));
  }
}

TEST(SeismicUbc97, SoilProfileIsTwoLettersOfWhichTheSecondIsSmall) {
  struct Row {
    const char* SoilType;
    const char* Line;
  };
  for (const Row& row : {
           Row{"SoilType=SD", "\t\tSd,     0,      ,     0,     0,     0,     0,     0,     0"},
           Row{"SoilType=sE", "\t\tse,     0,      ,     0,     0,     0,     0,     0,     0"},
           Row{"SoilType=SBX", "\t\tSb,     0,      ,     0,     0,     0,     0,     0,     0"},
           Row{"SoilType=S2", "\t\tS2,     0,      ,     0,     0,     0,     0,     0,     0"},
           Row{"SoilType=S", "\t\tS,     0,      ,     0,     0,     0,     0,     0,     0"},
           // the default of the target
           Row{"SoilType=", "\t\tSa,     0,      ,     0,     0,     0,     0,     0,     0"},
           Row{"", "\t\tSa,     0,      ,     0,     0,     0,     0,     0,     0"},
       }) {
    SCOPED_TRACE(row.SoilType);
    const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) +
                                      "TABLE:  \"AUTO SEISMIC - UBC97\"\n"
                                      "   LoadCase=EQ   Dir=X   " +
                                      row.SoilType + "\n");
    EXPECT_THAT(run.LoadLines("EQ", "*SEIS"),
                ElementsAre("\tCODE=UBC1997,     1,     0,   POS,   POS,     ", row.Line));
  }
}

TEST(SeismicUbc97, ZoneFactorIsTheNumberThatTheTextBeginsWith) {
  // The key is also found inside a MaxZ= that stands before it.
  struct Row {
    const char* Zone;
    const char* Line;
  };
  for (const Row& row : {
           Row{"Z=\"0.15 (2A)\"   MaxZ=40",
               "\t\tSa,  0.15,      ,     0,     0,     0,     0,     0,     0"},
           Row{"Z=Zone4   MaxZ=40",
               "\t\tSa,     0,      ,     0,     0,     0,     0,     0,     "
               "0"},
           Row{"MaxZ=40   Z=0.4", "\t\tSa,    40,      ,     0,     0,     0,     0,     0,     0"},
       }) {
    SCOPED_TRACE(row.Zone);
    const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) +
                                      "TABLE:  \"AUTO SEISMIC - UBC97\"\n"
                                      "   LoadCase=EQ   Dir=X   " +
                                      row.Zone + "\n");
    EXPECT_THAT(run.LoadLines("EQ", "*SEIS"),
                ElementsAre("\tCODE=UBC1997,     1,     0,   POS,   POS,     ", row.Line));
  }
}

TEST(SeismicUbc97, FirstRowOfTheLoadInTheWalkIsTheOnlyOne) {
  // Row 2 comes before row 1.
  const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) + R"(
TABLE:  "AUTO SEISMIC - UBC97"
   LoadCase=EQ   Dir=X   Ct=0.03   R=8.5   SoilType=SC   Z=0.4   SourceType=B   SourceDist=5   I=1
   LoadCase=EQ   Dir=Y   Ct=0.02   R=4.5   SoilType=SC   Z=0.4   SourceType=B   SourceDist=5   I=1
)");
  EXPECT_THAT(run.LoadLines("EQ", "*SEIS"),
              ElementsAre("\tCODE=UBC1997,     0,     1,   POS,   POS,     ",
                          "\t\tSc,   0.4,     B,     5,     1,     0,  0.02,     0,   4.5"));
}

TEST(SeismicUbc97, EachLoadFindsItsOwnRow) {
  const ConversionRun run =
      Convert(AutomaticCases("QUAKE", {{"EQX", "UBC97"}, {"EQY", "UBC97"}}) + R"(
TABLE:  "AUTO SEISMIC - UBC97"
   LoadCase=EQX   Dir=X   Ct=0.03   R=8.5   SoilType=SC   Z=0.4   SourceType=B   SourceDist=5   I=1
   LoadCase=EQY   Dir=Y   Ct=0.03   R=4.5   SoilType=SD   Z=0.3   SourceType=A   SourceDist=2   I=1
)");
  EXPECT_THAT(run.LoadLines("EQX", "*SEIS"),
              ElementsAre("\tCODE=UBC1997,     1,     0,   POS,   POS,     ",
                          "\t\tSc,   0.4,     B,     5,     1,  0.03,     0,   8.5,     0"));
  EXPECT_THAT(run.LoadLines("EQY", "*SEIS"),
              ElementsAre("\tCODE=UBC1997,     0,     1,   POS,   POS,     ",
                          "\t\tSd,   0.3,     A,     2,     1,     0,  0.03,     0,   4.5"));
}

TEST(SeismicUbc97, TableOfIsolatedStructuresIsReadAsTheOther) {
  const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) + R"(
TABLE:  "AUTO SEISMIC - UBC97 ISOLATED"
   LoadCase=EQ   Dir=X   Ct=0.03   R=2   SoilType=SC   Z=0.4   SourceType=B   SourceDist=5   I=1
)");
  EXPECT_THAT(run.LoadLines("EQ", "*SEIS"),
              ElementsAre("\tCODE=UBC1997,     1,     0,   POS,   POS,     ",
                          "\t\tSc,   0.4,     B,     5,     1,  0.03,     0,     2,     0"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

// ---- NBCC 95 ----

TEST(SeismicNbcc95, WholeCommandOfALoadCase) {
  const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQX", "NBCC95"}}) + R"(
TABLE:  "AUTO SEISMIC - NBCC95"
   LoadCase=EQX   Dir=X   PercentEcc=0.1   EccOverride=Yes   StructType=Other   PeriodCalc=User   _
      Ds=12   UserT=0.9   MaxZ=40   MinZ=0   R=3.5   Za=4   Zv=5   VType="From Zv"   V=0.3   _
      I=1.3   F=1.5
)");
  EXPECT_EQ(TextOfLoads(run),
            "*USE-STLD,        EQX\n"
            "\n"
            "*SEIS    ; Static Seismic Loads\n"
            "; CODE=CODE, SFX, SFY, ECCX, ECCY, DESC                          ; line 1\n"
            "; [NBC1995] : ZVR, AZ, VZ, IF, FF, PAX, PAY, PCX, PCY, FMFX, FMFY; line 2\n"
            "\tCODE=NBC1995,     1,     0,   POS,   POS,      \n"
            "\t\t0.3,     4,     5,   1.3,   1.5,   0.9,     0,   0.9,     0,   3.5,     0\n"
            "\n"
            ";End of data for load case [EQX]\n"
            "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SeismicNbcc95, DirectionsButXAreYAndTheUsersPeriodIsTakenHoweverItIsCalculated) {
  for (const char* dir :
       {"Dir=Y   PeriodCalc=\"Code\"", "Dir=Z   PeriodCalc=Program", "Dir=x", "PeriodCalc=User"}) {
    SCOPED_TRACE(dir);
    const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQ", "NBCC95"}}) +
                                      "TABLE:  \"AUTO SEISMIC - NBCC95\"\n"
                                      "   LoadCase=EQ   Ds=12   UserT=0.9   R=3.5   Za=4   Zv=5   "
                                      "V=0.3   I=1.3   F=1.5   " +
                                      dir + "\n");
    EXPECT_THAT(
        run.LoadLines("EQ", "*SEIS"),
        ElementsAre("\tCODE=NBC1995,     0,     1,   POS,   POS,      ",
                    "\t\t0.3,     4,     5,   1.3,   1.5,     0,   0.9,     0,   0.9,     0,   "
                    "3.5"));
  }
}

TEST(SeismicNbcc95, WhatTheRowDoesNotStateIsZeroAndZonesAreIntegers) {
  const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQ", "NBCC95"}}) + R"(
TABLE:  "AUTO SEISMIC - NBCC95"
   LoadCase=EQ   Dir=X   Za=4.9   Zv=Zone5
)");
  EXPECT_THAT(run.LoadLines("EQ", "*SEIS"),
              ElementsAre("\tCODE=NBC1995,     1,     0,   POS,   POS,      ",
                          "\t\t0,     4,     0,     0,     0,     0,     0,     0,     0,     0,  "
                          "   0"));
}

// ---- Closing lines without an opening ----

const std::string kRowOfEqx = R"(
TABLE:  "AUTO SEISMIC - UBC97"
   LoadCase=EQX   Dir=X   Ct=0.03   R=8.5   SoilType=SC   Z=0.4   SourceType=B   SourceDist=5   I=1
)";

const std::string kBlockOfEqx =
    "*USE-STLD,        EQX\n"
    "\n"
    "*SEIS    ; Static Seismic Loads\n"
    "; CODE=CODE, SFX, SFY, ECCX, ECCY, DESC              ; line 1\n"
    "; [UBC1997] : SPT, ZF, SST, CD, IF, PX, PY, NCX, NCY ; line 2\n"
    "\tCODE=UBC1997,     1,     0,   POS,   POS,     \n"
    "\t\tSc,   0.4,     B,     5,     1,  0.03,     0,   8.5,     0\n"
    "\n"
    ";End of data for load case [EQX]\n"
    "\n";

TEST(SeismicClosingLine, LoadWithoutARowClosesThatOfAnother) {
  // EQY is written first.
  const ConversionRun run =
      Convert(AutomaticCases("QUAKE", {{"EQX", "UBC97"}, {"EQY", "UBC97"}}) + kRowOfEqx);
  EXPECT_EQ(TextOfLoads(run), ";End of data for load case [EQX]\n\n" + kBlockOfEqx);
}

TEST(SeismicClosingLine, EachCodeClosesAfterItsOwnBlockAlsoForTheLoadsOfTheOther) {
  // EQY is written first: the block of UBC 97 closes EQX, that of NBCC 95 is its own.
  const ConversionRun run =
      Convert(AutomaticCases("QUAKE", {{"EQX", "UBC97"}, {"EQY", "NBCC95"}}) + kRowOfEqx + R"(
TABLE:  "AUTO SEISMIC - NBCC95"
   LoadCase=EQY   Dir=Y   UserT=0.9   R=3.5   Za=4   Zv=5   V=0.3   I=1.3   F=1.5
)");
  EXPECT_EQ(TextOfLoads(run),
            ";End of data for load case [EQX]\n"
            "\n"
            "*USE-STLD,        EQY\n"
            "\n"
            "*SEIS    ; Static Seismic Loads\n"
            "; CODE=CODE, SFX, SFY, ECCX, ECCY, DESC                          ; line 1\n"
            "; [NBC1995] : ZVR, AZ, VZ, IF, FF, PAX, PAY, PCX, PCY, FMFX, FMFY; line 2\n"
            "\tCODE=NBC1995,     0,     1,   POS,   POS,      \n"
            "\t\t0.3,     4,     5,   1.3,   1.5,     0,   0.9,     0,   0.9,     0,   3.5\n"
            "\n"
            ";End of data for load case [EQY]\n"
            "\n" +
                kBlockOfEqx +
                ";End of data for load case [EQY]\n"
                "\n");
}

TEST(SeismicClosingLine, CodesThatAreNotConvertedAreAutomaticAllTheSame) {
  for (const char* code : {"BOCA96", "IBC2000", "\"USER COEFF\"", "\"UBC 97\"", "ubc97", "none",
                           "\"ASCE 7-98\"", ""}) {
    SCOPED_TRACE(code);
    const ConversionRun run =
        Convert(AutomaticCases("QUAKE", {{"EQX", "UBC97"}, {"EQY", code}}) + kRowOfEqx);
    EXPECT_EQ(TextOfLoads(run), ";End of data for load case [EQX]\n\n" + kBlockOfEqx);
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(SeismicClosingLine, LoadThatIsNotAutomaticHasNone) {
  const ConversionRun run =
      Convert(AutomaticCases("QUAKE", {{"EQX", "UBC97"}, {"EQY", "None"}}) + kRowOfEqx);
  EXPECT_EQ(TextOfLoads(run), kBlockOfEqx);
}

TEST(SeismicClosingLine, TableWithoutRecordsHasNone) {
  // The only load names a code that is not converted, or has no row.
  for (const char* code : {"BOCA96", "UBC97", "NBCC95"}) {
    SCOPED_TRACE(code);
    const ConversionRun run = Convert(AutomaticCases("QUAKE", {{"EQY", code}}) + kRowOfEqx);
    EXPECT_EQ(run.Section("*STLDCASE"),
              "*STLDCASE    ; Static Load Cases\n"
              "; LCNAME, LCTYPE, DESC\n"
              "\tEQY,     E, \n"
              "\n");
    EXPECT_EQ(TextOfLoads(run), "");
  }
}

TEST(SeismicClosingLine, NamesTheLastRecordOfTheWalk) {
  // Records 1, 2, 3 belong to EQ2, EQ1, EQ3. Those of UBC 97 are walked in the order 2, 1, 3,
  // those of NBCC 95 in the order 3, 2, 1. EQ4 has no row and is written last.
  struct Row {
    const char* Code;
    const char* Last;
  };
  for (const Row& row : {Row{"UBC97", "EQ3"}, Row{"NBCC95", "EQ2"}}) {
    SCOPED_TRACE(row.Code);
    const ConversionRun run = Convert(
        AutomaticCases(
            "QUAKE", {{"EQ1", row.Code}, {"EQ2", row.Code}, {"EQ3", row.Code}, {"EQ4", row.Code}}) +
        "TABLE:  \"AUTO SEISMIC - " + row.Code +
        "\"\n   LoadCase=EQ1   Dir=X\n   LoadCase=EQ2   Dir=X\n   LoadCase=EQ3   Dir=X\n");
    EXPECT_THAT(TextOfLoads(run), EndsWith("\n\n;End of data for load case [EQ1]\n\n"
                                           ";End of data for load case [" +
                                           std::string(row.Last) + "]\n\n"));
  }
}

TEST(SeismicLoads, OtherDesignTypesHaveNoSeismicLoad) {
  for (const char* type : {"DEAD", "LIVE", "SNOW", "WIND", "OTHER", "Quake"}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(AutomaticCases(type, {{"EQX", "UBC97"}}) + kRowOfEqx);
    EXPECT_EQ(TextOfLoads(run), "");
  }
}

TEST(SeismicLoads, LoadThatIsInNoStaticCaseIsNotConverted) {
  // Otherwise the load without a row would close it.
  const ConversionRun run = Convert(R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=EQX   DesignType=QUAKE   SelfWtMult=0   AutoLoad=UBC97
   LoadCase=EQY   DesignType=QUAKE   SelfWtMult=0   AutoLoad=UBC97

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=EQY   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=EQY   LoadType="Load case"   LoadName=EQY
)" + kRowOfEqx);
  EXPECT_EQ(TextOfLoads(run), "");
}

}  // namespace
