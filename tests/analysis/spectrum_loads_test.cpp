#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kTable = "TABLE:  \"CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS\"\n";

/// Cases of the rows, in order; a star in front marks a row of another coordinate system. All rows
/// have the function F and the direction U1.
std::string RowsOfCases(const std::vector<std::string>& cases) {
  std::string rows = kTable;
  for (const std::string& name : cases) {
    const bool isLocal = name.starts_with('*');
    rows += "   Case=" + name.substr(isLocal ? 1 : 0) + "   LoadType=Acceleration   LoadName=U1" +
            "   CoordSys=" + (isLocal ? "CSYS1" : "GLOBAL") +
            "   Function=F   Angle=0   TransAccSF=1\n";
  }
  return rows;
}

/// The line of a record of such rows.
std::string LineOf(const std::string& name) {
  return "\t" + name + ",     F,    XY,     0,     1,      ";
}

std::vector<std::string> LinesOf(const std::vector<std::string>& names) {
  std::vector<std::string> lines;
  for (const std::string& name : names) {
    lines.push_back(LineOf(name));
  }
  return lines;
}

/// What a first row of another coordinate system leaves.
const std::string kEmptyLine = "\t,      ,      ,     0,     1,      ";

TEST(SpectrumLoads, CaseInTwoDirectionsGivesTwoLoadCases) {
  const ConversionRun run = Convert(R"(
TABLE:  "CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS"
   Case=S   LoadName=U1   CoordSys=GLOBAL   Function=UBC   Angle=0   TransAccSF=9.81
   Case=S   LoadName=U2   CoordSys=GLOBAL   Function=UBC   Angle=0   TransAccSF=9.81
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Body(),
            "*SPLDCASE    ; Spectrum Load Cases\n"
            "; NAME, FUNC, DIR, ANGLE, SCALE, DESC\n"
            "\tS1,   UBC,    XY,     0,  9.81,      \n"
            "\tS2,   UBC,    XY,    90,  9.81,      \n"
            "\n"
            "\n\n");
}

TEST(SpectrumLoads, TableWithoutRowsGivesNoSection) {
  const ConversionRun run = Convert(kTable);
  EXPECT_EQ(run.Body(), "\n\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

// ---- Names ----

struct Naming {
  std::vector<std::string> Cases;
  std::vector<std::string> Names;
};

TEST(SpectrumLoads, LastRowOfACaseBearsTheBareNameAndThatOfTheTableANumber) {
  const std::vector<Naming> namings = {
      {{"S"}, {"S1"}},
      {{"S", "S"}, {"S1", "S2"}},
      {{"S", "S", "S"}, {"S1", "S2", "S3"}},
      {{"A", "B"}, {"A", "B1"}},
      {{"A", "A", "B"}, {"A1", "A", "B1"}},
      {{"A", "B", "B"}, {"A", "B1", "B2"}},
      {{"A", "A", "B", "B", "C"}, {"A1", "A", "B1", "B", "C1"}},
      {{"A", "A", "A", "B", "B", "B"}, {"A1", "A2", "A", "B1", "B2", "B3"}},
      {{"A", "B", "A"}, {"A", "B", "A1"}},
      {{"A", "a"}, {"A", "a1"}},
      {{"S", "S", "S", "S", "S", "S", "S", "S", "S", "S", "S"},
       {"S1", "S2", "S3", "S4", "S5", "S6", "S7", "S8", "S9", "S10", "S11"}}};
  for (const auto& [cases, names] : namings) {
    SCOPED_TRACE(testing::PrintToString(cases));
    const ConversionRun run = Convert(RowsOfCases(cases));
    EXPECT_EQ(run.Lines("*SPLDCASE"), LinesOf(names));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(SpectrumLoads, RowsWithoutACaseAreNumberedAlone) {
  const std::string row = "   LoadName=U1   CoordSys=GLOBAL   Function=F   Angle=0\n";
  EXPECT_THAT(Convert(kTable + row + row).Lines("*SPLDCASE"),
              ElementsAre(LineOf("1"), LineOf("2")));
}

TEST(SpectrumLoads, MadeNameMayBeThatOfAnotherCase) {
  EXPECT_THAT(Convert(RowsOfCases({"S", "S", "S1", "T"})).Lines("*SPLDCASE"),
              ElementsAre(LineOf("S1"), LineOf("S"), LineOf("S1"), LineOf("T1")));
}

// ---- Rows of another coordinate system ----

struct Dropped {
  std::vector<std::string> Cases;
  std::vector<std::string> Lines;
};

TEST(SpectrumLoads, RowsOfAnotherCoordinateSystemAreDroppedWithOneMessage) {
  const std::vector<Dropped> models = {
      // At the head they leave one empty load case under the first key.
      {{"*S", "S"}, {kEmptyLine, LineOf("S1")}},
      {{"*S", "*S", "S", "S"}, {kEmptyLine, LineOf("S1"), LineOf("S2")}},
      {{"*A", "B", "C"}, {kEmptyLine, LineOf("B"), LineOf("C1")}},
      // In the middle they are passed over as if they were not there.
      {{"S", "*S", "S"}, {LineOf("S1"), LineOf("S2")}},
      {{"A", "*B", "A"}, {LineOf("A1"), LineOf("A2")}},
      {{"A", "*A", "*B", "B"}, {LineOf("A"), LineOf("B1")}},
      // At the end they take the load case before them with them.
      {{"S", "S", "*S"}, {LineOf("S1")}},
      {{"A", "B", "*B"}, {LineOf("A")}},
      {{"A", "B", "*C", "*D"}, {LineOf("A")}},
      {{"*A", "B", "*C"}, {kEmptyLine}}};
  for (const auto& [cases, lines] : models) {
    SCOPED_TRACE(testing::PrintToString(cases));
    const ConversionRun run = Convert(RowsOfCases(cases));
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Lines("*SPLDCASE"), lines);
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_RESP_SPLC_Not_Convert"));
  }
}

TEST(SpectrumLoads, EmptyLoadCaseBeforeARowWithoutACaseIsNumbered) {
  const ConversionRun run = Convert(kTable +
                                    "   Case=S   CoordSys=CSYS1\n"
                                    "   LoadName=U1   CoordSys=GLOBAL   Function=F\n");
  EXPECT_THAT(run.Lines("*SPLDCASE"),
              ElementsAre("\t1,      ,      ,     0,     1,      ", LineOf("2")));
}

TEST(SpectrumLoads, DroppedRowsShowNoMessageWhenNoLoadCaseIsLeft) {
  const std::vector<std::vector<std::string>> models = {{"*S"}, {"*A", "*A", "*B"}, {"S", "*S"}};
  for (const std::vector<std::string>& cases : models) {
    SCOPED_TRACE(testing::PrintToString(cases));
    const ConversionRun run = Convert(RowsOfCases(cases));
    EXPECT_EQ(run.Body(), "\n\n");
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(SpectrumLoads, OnlyTheWordGlobalIsTheGlobalSystem) {
  for (const char* system : {"CoordSys=Global", "CoordSys=GLOBAL2", "CoordSys=  X=1", ""}) {
    SCOPED_TRACE(system);
    const ConversionRun run = Convert(kTable +
                                      "   Case=A   LoadName=U1   CoordSys=GLOBAL   Function=F\n"
                                      "   Case=B   LoadName=U3   Function=G   Angle=45   " +
                                      system +
                                      "\n"
                                      "   Case=C   LoadName=U1   CoordSys=GLOBAL   Function=F\n");
    EXPECT_THAT(run.Lines("*SPLDCASE"), ElementsAre(LineOf("A"), LineOf("C1")));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_RESP_SPLC_Not_Convert"));
  }
}

TEST(SpectrumLoads, MessageOfDroppedRowsComesAtTheOutput) {
  const ConversionRun run = Convert(RowsOfCases({"S", "*S", "S"}) + R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - NZS4203"
   Name=F   Period=0   Accel=0.4

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_RESP_NZS4203_Not_Convert", "IDS_S2KV8_FRAM_LclAx_Not_Convert",
                          "IDS_S2KV8_RESP_SPLC_Not_Convert"));
}

// ---- Directions, angles and scales ----

struct Row {
  const char* Keys;
  const char* Line;  // behind name and function
};

void ExpectLines(const std::vector<Row>& rows) {
  for (const auto& [keys, line] : rows) {
    SCOPED_TRACE(keys);
    const ConversionRun run =
        Convert(kTable + "   Case=S   CoordSys=GLOBAL   Function=F   " + keys + "\n");
    EXPECT_THAT(run.Lines("*SPLDCASE"), ElementsAre("\tS1,     F, " + std::string(line)));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(SpectrumLoads, HorizontalDirectionsAreXYAndAllOthersZ) {
  ExpectLines({{"LoadName=U1   Angle=30", "   XY,    30,     1,      "},
               {"LoadName=U2   Angle=30", "   XY,   120,     1,      "},
               {"LoadName=U3   Angle=30", "    Z,    30,     1,      "},
               {"LoadName=R1   Angle=30", "    Z,    30,     1,      "},
               {"LoadName=u2   Angle=30", "    Z,    30,     1,      "},
               {"LoadName=\"U1 \"   Angle=30", "    Z,    30,     1,      "},
               {"Angle=30", "     ,    30,     1,      "}});
}

TEST(SpectrumLoads, AnglesAboveAFullTurnAreBroughtDownToIt) {
  ExpectLines({{"LoadName=U1   Angle=360", "   XY,   360,     1,      "},
               {"LoadName=U1   Angle=360.0625", "   XY, 0.0625,     1,      "},
               {"LoadName=U3   Angle=405", "    Z,    45,     1,      "},
               {"LoadName=U1   Angle=720", "   XY,   360,     1,      "},
               {"LoadName=U1   Angle=1085", "   XY,     5,     1,      "},
               {"LoadName=U2   Angle=270", "   XY,   360,     1,      "},
               {"LoadName=U2   Angle=300", "   XY,    30,     1,      "},
               {"LoadName=U2   Angle=630", "   XY,   360,     1,      "},
               {"LoadName=U2", "   XY,    90,     1,      "}});
}

TEST(SpectrumLoads, NegativeAnglesStayAsTheyAre) {
  ExpectLines({{"LoadName=U1   Angle=-90", "   XY,   -90,     1,      "},
               {"LoadName=U1   Angle=-450", "   XY,  -450,     1,      "},
               {"LoadName=U2   Angle=-90", "   XY,     0,     1,      "},
               {"LoadName=U2   Angle=-400", "   XY,  -310,     1,      "}});
}

TEST(SpectrumLoads, AnglesOfManyTurnsAndNoNumbersEndTheRunAsWell) {
  // 1e15 is 2,777,777,777,777 full turns and 280 degrees.
  ExpectLines({{"LoadName=U1   Angle=1e15", "   XY,   280,     1,      "},
               {"LoadName=U1   Angle=3.6e20", "   XY,   360,     1,      "},
               {"LoadName=U1   Angle=inf", "   XY,   inf,     1,      "},
               {"LoadName=U2   Angle=-inf", "   XY,  -inf,     1,      "},
               {"LoadName=U1   Angle=nan", "   XY,   nan,     1,      "}});
}

TEST(SpectrumLoads, ScaleOfZeroIsOneAndOthersStay) {
  ExpectLines({{"LoadName=U1   TransAccSF=0", "   XY,     0,     1,      "},
               {"LoadName=U1   TransAccSF=-9.81", "   XY,     0, -9.81,      "},
               {"LoadName=U1   TransAccSF=386.22", "   XY,     0, 386.22,      "},
               {"LoadName=U1   TransAccSF=1e-15", "   XY,     0, 1e-15,      "},
               {"LoadName=U1   TransAccSF=9.9e-16", "   XY,     0,     1,      "},
               {"LoadName=U1   TransAccSF=-1e-15", "   XY,     0, -1e-15,      "},
               {"LoadName=U1   TransAccSF=-9.9e-16", "   XY,     0,     1,      "},
               {"LoadName=U1   TransAccSF=-inf", "   XY,     0,  -inf,      "},
               {"LoadName=U1   TransAccSF=nan", "   XY,     0,     1,      "},
               {"LoadName=U1   TransAccSF=g", "   XY,     0,     1,      "}});
}

TEST(SpectrumLoads, KindOfLoadPlaysNoPart) {
  ExpectLines({{"LoadType=Accel   LoadName=U1", "   XY,     0,     1,      "},
               {"LoadType=Mode   LoadName=U1", "   XY,     0,     1,      "},
               {"LoadType=\"Load case\"   LoadName=U1", "   XY,     0,     1,      "}});
}

// ---- What a row takes over from the one before ----

TEST(SpectrumLoads, FunctionAndDirectionCarryOverToRowsThatStateNone) {
  const ConversionRun run = Convert(R"(
TABLE:  "CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS"
   Case=A   CoordSys=GLOBAL   LoadName=U3   Function=HARD
   Case=A   CoordSys=GLOBAL   Function=SOFT
   Case=A   CoordSys=GLOBAL   LoadName=U1
   Case=B   CoordSys=GLOBAL
   Case=B   CoordSys=GLOBAL   LoadName=U3
)");
  EXPECT_THAT(run.Lines("*SPLDCASE"), ElementsAre("\tA1,  HARD,     Z,     0,     1,      ",
                                                  "\tA2,  SOFT,     Z,     0,     1,      ",
                                                  "\tA,  SOFT,    XY,     0,     1,      ",
                                                  "\tB1,  SOFT,    XY,     0,     1,      ",
                                                  "\tB2,  SOFT,     Z,     0,     1,      "));
}

TEST(SpectrumLoads, AngleAndScaleDoNotCarryOver) {
  const ConversionRun run = Convert(R"(
TABLE:  "CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS"
   Case=S   CoordSys=GLOBAL   LoadName=U2   Function=F   Angle=15   TransAccSF=2.5
   Case=S   CoordSys=GLOBAL
   Case=S   CoordSys=GLOBAL   Angle=20   TransAccSF=0.5
)");
  EXPECT_THAT(run.Lines("*SPLDCASE"), ElementsAre("\tS1,     F,    XY,   105,   2.5,      ",
                                                  "\tS2,     F,    XY,     0,     1,      ",
                                                  "\tS3,     F,    XY,    20,   0.5,      "));
}

TEST(SpectrumLoads, NothingCarriesOverFromADroppedRow) {
  const ConversionRun run = Convert(R"(
TABLE:  "CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS"
   Case=S   CoordSys=GLOBAL   LoadName=U1   Function=F
   Case=S   CoordSys=CSYS1   LoadName=U3   Function=G   Angle=70   TransAccSF=3
   Case=S   CoordSys=GLOBAL
)");
  EXPECT_THAT(run.Lines("*SPLDCASE"), ElementsAre(LineOf("S1"), LineOf("S2")));
}

// ---- What the stage does not ask for ----

TEST(SpectrumLoads, FunctionNeedNotExistNorBeOfACodeThatTheTargetHas) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - BOCA96"
   Name=EAST   Period=0   Accel=0.4

TABLE:  "CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS"
   Case=A   LoadName=U1   CoordSys=GLOBAL   Function=EAST
   Case=B   LoadName=U1   CoordSys=GLOBAL   Function=NOWHERE
)");
  EXPECT_THAT(run.Lines("*SPLDCASE"), ElementsAre("\tA,  EAST,    XY,     0,     1,      ",
                                                  "\tB1, NOWHERE,    XY,     0,     1,      "));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_RESP_BOCA96_Not_Convert"));
}

TEST(SpectrumLoads, FunctionsStandBeforeTheLoadCases) {
  const ConversionRun run = Convert(RowsOfCases({"S"}) + R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - USER"
   Name=F   Period=0   Accel=0.4
)");
  EXPECT_EQ(run.Body(),
            "*SFUNCTION    ; Specturm Function\n"
            "; FUNC=NAME, iTYPE, SCALE, GRAV, DESC          ; line 1\n"
            ";      PERIOD1, VALUE1, PERIOD2, VALUE2, ...   ; from line 2\n"
            "\tFUNC=F,     2,     1, 9.806,      \n"
            "\t\t0,   0.4\n"
            "\n"
            "*SPLDCASE    ; Spectrum Load Cases\n"
            "; NAME, FUNC, DIR, ANGLE, SCALE, DESC\n"
            "\tS1,     F,    XY,     0,     1,      \n"
            "\n"
            "\n\n");
}

TEST(SpectrumLoads, NamesOfBytesAboveAsciiAreWrittenAsTheyStand) {
  const ConversionRun run = Convert(kTable +
                                    "   Case=\"L\xC4NGS X\"   LoadName=U1   CoordSys=GLOBAL   "
                                    "Function=\"B\xD6"
                                    "DEN\"\n");
  EXPECT_THAT(run.Lines("*SPLDCASE"), ElementsAre("\tL\xC4NGS X1, B\xD6"
                                                  "DEN,    XY,     0,     1,      "));
}

}  // namespace
