#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>

#include <algorithm>
#include <cctype>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The output behind its first lines, which tell its path.
std::string Body(const ConversionRun& run) {
  EXPECT_EQ(run.Result, 0);
  return run.Output.substr(run.Output.find("*VERSION"));
}

std::string Block(const std::string& title) {
  return "TABLE:  \"" + title + "\"\n   Area=1   Solid=1   Case=W1   Dir=X   CoordType=Polar\n" +
         "   Area=2   Solid=2   Case=W2   Dir=Y\n\n";
}

/// A model around other tables, so that a run that broke off there would show.
std::string Around(const std::string& tables) {
  return "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m, C\"\n\n" + tables +
         "TABLE:  \"JOINT COORDINATES\"\n   Joint=1\n   Joint=2   XorR=3\n\n";
}

const std::string kBodyOfTheModelAround =
    "*VERSION\n"
    "5.8.1\n"
    "\n"
    "*UNIT    ; Unit System\n"
    "; FORCE, LENGTH\n"
    "\tKN,     M\n"
    "\n"
    "*NODE    ; Nodes\n"
    "; iNO, X, Y, Z\n"
    "\t1,     0,     0,     0\n"
    "\t2,     3,     0,     0\n"
    "\n"
    "\n\n"
    "*ENDDATA";

struct RefusedTable {
  const char* Title;
  const char* Message;
};

constexpr RefusedTable kRefusedTables[] = {
    {"AREA AUTOMATIC MESH ASSIGNMENTS", "IDS_S2KV8_AREA_AtMesh_Not_Convert"},
    {"AREA LOADS - PORE PRESSURE", "IDS_S2KV8_AREA_PrPrsr_Not_Convert"},
    {"AREA LOCAL AXES ASSIGNMENTS 1 - TYPICAL", "IDS_S2KV8_AREA_Local_Not_Convert"},
    {"AREA STIFFNESS MODIFIERS", "IDS_S2KV8_AREA_Stif_Not_Convert"},
    {"AUTO SEISMIC - BOCA96", "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {"AUTO SEISMIC - IBC2000", "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {"AUTO SEISMIC - NEHRP97", "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {"AUTO SEISMIC - UBC94", "IDS_S2KV8_SEIS_Data_Not_Convert"},
    {"AUTO WIND - ASCE7-88", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {"AUTO WIND - ASCE7-95", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {"AUTO WIND - BOCA96", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {"AUTO WIND - BS6399-95", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {"AUTO WIND - UBC94", "IDS_S2KV8_WIND_Data_Not_Convert"},
    {"SOLID LOADS - PORE PRESSURE", "IDS_S2KV8_SOLD_PrPrsr_Not_Convert"},
    {"SOLID LOADS - SURFACE PRESSURE", "IDS_S2KV8_SOLD_SurfP_Not_Convert"},
    {"SOLID LOCAL AXES ASSIGNMENTS 1 - TYPICAL", "IDS_S2KV8_SOLD_Local_Not_Convert"},
    {"SOLID SPRING ASSIGNMENTS", "IDS_S2KV8_SOLD_Spr_Not_Convert"},
};

class RefusedTables : public testing::TestWithParam<RefusedTable> {};

TEST_P(RefusedTables, TableIsAnsweredByItsMessageOnceAndTheRunGoesOn) {
  const ConversionRun run = Convert(Around(Block(GetParam().Title)));
  EXPECT_THAT(run.Messages, ElementsAre(GetParam().Message));
  EXPECT_EQ(Body(run), kBodyOfTheModelAround);
}

TEST_P(RefusedTables, TableWithoutARowIsAnsweredAsWell) {
  const ConversionRun run =
      Convert(Around("TABLE:  \"" + std::string(GetParam().Title) + "\"\n\n"));
  EXPECT_THAT(run.Messages, ElementsAre(GetParam().Message));
  EXPECT_EQ(Body(run), kBodyOfTheModelAround);
}

/// The title with what no test name may hold replaced.
std::string NameOf(const testing::TestParamInfo<RefusedTable>& table) {
  std::string name = table.param.Title;
  std::ranges::replace_if(
      name, [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(AllTables, RefusedTables, testing::ValuesIn(kRefusedTables), NameOf);

TEST(RefusedTable, EachBlockIsAnswered) {
  const ConversionRun run =
      Convert(Block("AREA STIFFNESS MODIFIERS") + Block("AUTO WIND - UBC94") +
              Block("AREA STIFFNESS MODIFIERS") + Block("AUTO WIND - BOCA96"));
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_AREA_Stif_Not_Convert", "IDS_S2KV8_WIND_Data_Not_Convert",
                          "IDS_S2KV8_AREA_Stif_Not_Convert", "IDS_S2KV8_WIND_Data_Not_Convert"));
}

TEST(RefusedTable, BlockThatStartsOverIsAnsweredOnceAtItsEnd) {
  const ConversionRun run = Convert(
      "TABLE:  \"AREA STIFFNESS MODIFIERS\"\n   Area=1\nTABLE:  \"JOINT COORDINATES\"\n"
      "   Joint=1\n\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_AREA_Stif_Not_Convert"));
  EXPECT_EQ(run.Section("*NODE"), "");
}

TEST(RefusedTable, BlockWithoutAnEndIsNotAnswered) {
  const ConversionRun run =
      ConvertBytes("File model.s2k\nTABLE:  \"AREA STIFFNESS MODIFIERS\"\n   Area=1\n");
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_Not_Convert"));
}

TEST(RefusedTable, SolidSpringsOnASurfaceAreAnsweredAsSurfacePressure) {
  EXPECT_THAT(Convert(Block("SOLID SURFACE SPRING ASSIGNMENTS")).Messages,
              ElementsAre("IDS_S2KV8_SOLD_SurfP_Not_Convert"));
}

TEST(RefusedTable, IsolatedBuildingIsReadAsAnOrdinaryOneWithoutAMessage) {
  EXPECT_THAT(Convert(Block("AUTO SEISMIC - UBC97 ISOLATED")).Messages, IsEmpty());
}

TEST(RefusedTable, PressuresAndSpringsOfAreasAreNotRefused) {
  for (const char* title : {"AREA LOADS - SURFACE PRESSURE", "AREA SPRING ASSIGNMENTS"}) {
    EXPECT_THAT(Convert(Block(title)).Messages, IsEmpty()) << title;
  }
}

TEST(IgnoredTables, AreSkippedWithoutAMessage) {
  for (const char* title : {"GENERALIZED DISPLACEMENTS 1 - TRANSLATIONAL",
                            "GRID LINES",
                            "PROJECT INFORMATION",
                            "REBAR SIZES",
                            "OPTIONS - COLORS - DISPLAY",
                            "AREA LOCAL AXES ASSIGNMENTS 2 - ADVANCED",
                            "AUTO SEISMIC - USER COEFFICIENT",
                            "AUTO SEISMIC - USER LOADS",
                            "AUTO SEISMIC ECCENTRICITY OVERRIDES",
                            "AUTO SEISMIC LOADS TO GROUPS",
                            "AUTO SEISMIC LOADS TO HORIZONTAL DIAPHRAGMS",
                            "AUTO SEISMIC LOADS TO JOINTS",
                            "AUTO WIND - USER",
                            "AUTO WIND EXPOSURE FOR HORIZONTAL DIAPHRAGMS",
                            "AUTO WIND LOADS TO GROUPS",
                            "AUTO WIND LOADS TO HORIZONTAL DIAPHRAGMS",
                            "AUTO WIND LOADS TO JOINTS",
                            "CASE - STATIC 2 - NONLINEAR LOAD APPLICATION",
                            "CASE - STATE 1",
                            "DATABASE FORMAT TYPES",
                            "FRAME CABLE ASSIGNMENTS",
                            "FRAME DESIGN PROCEDURES",
                            "FRAME MATERIAL TEMPERATURES",
                            "FRAME NL HINGE ASSIGNMENTS",
                            "FRAME OUTPUT STATION ASSIGNMENTS",
                            "FRAME SECTION PROPERTIES 2 - CONCRETE COLUMN",
                            "FRAME SECTION PROPERTIES 3 - CONCRETE BEAM",
                            "FRAME AUTO SELECT SECTIONS",
                            "FRAME AUTOMATIC SUBDIVISION",
                            "FRAME TENSION AND COMPRESSION LIMITS",
                            "HINGES 1 - OVERVIEW",
                            "JOINT PANEL ZONE ASSIGNMENTS",
                            "MATERIAL PROPERTIES 3 - DESIGN STEEL",
                            "NAMED SETS - JOINTS",
                            "OVERWRITES - STEEL DESIGN - AISC-ASD89",
                            "PREFERENCES - DIMENSIONAL",
                            "SECTION DESIGNER PROPERTIES 1",
                            "SOLID LOCAL AXES ASSIGNMENTS 2 - ADVANCED",
                            "SUMMARY - FRAME",
                            "SUMMARY - JOINT"}) {
    SCOPED_TRACE(title);
    const ConversionRun run = Convert(Around(Block(title)));
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_EQ(Body(run), kBodyOfTheModelAround);
  }
}

TEST(UnknownTables, AreSkippedWithoutAMessage) {
  for (const char* title :
       {"PAINT COLORS", "CASE - PUSHOVER 1", "AREA COLORS", "JOINT COLORS", "", "my joints"}) {
    SCOPED_TRACE(title);
    const ConversionRun run = Convert(Around(Block(title)));
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_EQ(Body(run), kBodyOfTheModelAround);
  }
}

TEST(SingleRowTables, UnitsAreThoseOfTheFirstRow) {
  EXPECT_THAT(Convert(R"(
TABLE:  "PROGRAM CONTROL"
   CurrUnits="lb, in, F"
   CurrUnits="KN, m, C"
)")
                  .Lines("*UNIT"),
              ElementsAre("\tLBF,    IN"));
  EXPECT_THAT(Convert(R"(
TABLE:  "PROGRAM CONTROL"
   ProgramName=SAP2000
   CurrUnits="KN, m, C"
)")
                  .Lines("*UNIT"),
              ElementsAre("\tTONF,     M"));
}

TEST(SingleRowTables, UnitsOfALaterBlockReplaceThoseBefore) {
  const std::string earlier = "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"lb, in, F\"\n\n";
  EXPECT_THAT(
      Convert(earlier + "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m, C\"\n").Lines("*UNIT"),
      ElementsAre("\tKN,     M"));
  // What its row does not state is the default again.
  EXPECT_THAT(Convert(earlier + "TABLE:  \"PROGRAM CONTROL\"\n   Version=8.0\n").Lines("*UNIT"),
              ElementsAre("\tTONF,     M"));
}

TEST(SingleRowTables, UnitsBeyondTheThirdAreNotLookedAt) {
  EXPECT_THAT(Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=KN, mm, C, s\n").Lines("*UNIT"),
              ElementsAre("\tKN,    MM"));
}

TEST(SingleRowTables, EmptyUnitsAreAnInvalidArgument) {
  EXPECT_THROW(Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\n"),
               s2k2ngt::InvalidArgumentException);
}

TEST(SingleRowTables, CoordinateSystemWithoutATypeIsCartesian) {
  const ConversionRun run = Convert("TABLE:  \"COORDINATE SYSTEMS\"\n   Name=GLOBAL   X=0\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SingleRowTables, CoordinateSystemOfAnotherWordRefusesTheFile) {
  for (const char* type : {"", "cartesian", "CARTESIAN", "Polar"}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(
        "TABLE:  \"COORDINATE SYSTEMS\"\n   Name=GLOBAL   Type=" + std::string(type) + "\n");
    EXPECT_EQ(run.Result, -1);
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_NOT_Cylindrical"));
    EXPECT_FALSE(run.HasOutput);
  }
}

TEST(SingleRowTables, FirstSystemOfALaterBlockIsLookedAtToo) {
  const ConversionRun run = Convert(R"(
TABLE:  "COORDINATE SYSTEMS"
   Name=GLOBAL   Type=Cartesian

TABLE:  "COORDINATE SYSTEMS"
   Name=RING   Type=Cylindrical
)");
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_NOT_Cylindrical"));
}

TEST(SingleRowTables, DegreesOfFreedomWithoutARowAreAnInvalidArgument) {
  EXPECT_THROW(Convert("TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n\n"),
               s2k2ngt::InvalidArgumentException);
}

TEST(RowCount, CountsOneRowOfASingleRowTableAndNoneOfTablesThatAreNotKept) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  WriteFile(path, FileWith(R"(
TABLE:  "ACTIVE DEGREES OF FREEDOM"
   UX=Yes   UY=Yes   UZ=Yes
   UX=No   UY=No   UZ=No

TABLE:  "PROGRAM CONTROL"
   CurrUnits="KN, m, C"
   CurrUnits="KN, m, C"

TABLE:  "COORDINATE SYSTEMS"
   Name=GLOBAL   Type=Cartesian
   Name=RING   Type=Cylindrical

TABLE:  "AREA STIFFNESS MODIFIERS"
   Area=1
   Area=2

TABLE:  "GRID LINES"
   GridID=A

TABLE:  "PAINT COLORS"
   Color=Red

TABLE:  "JOINT COORDINATES"
   Joint=1
   Joint=2
)"));
  ScriptedPlatform platform;
  s2k2ngt::CConverter converter(platform);
  ASSERT_EQ(converter.Run(path.c_str()), 0);
  EXPECT_EQ(converter.RowCount(), 5U);
}

}  // namespace
