#include "support/conversion_run.h"

#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A moving load case that is written.
constexpr const char* kMovingLoad = R"(
TABLE:  "BRIDGE LOADS 5 - VEHICLE CLASSES"
   VehClass=TRUCKS   VehName=HS20

TABLE:  "CASE - MOVING LOAD 1 - LANE ASSIGNMENTS"
   Case=TRUCKS   AssignNum=1   VehClass=TRUCKS
)";

constexpr const char* kAnalysis = R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=TRUCKS   Type=LinMoving   InitialCond=Zero
)";

constexpr const char* kAllWanted =
    "   Reactions=ALL   Displs=ALL   Frames=ALL   CalcMethod=EXACT\n";

/// Runs over rows of bridge response settings, with a moving load case and its analysis.
ConversionRun ConvertSettings(std::string_view rows, const std::string& analysis = kAnalysis,
                              const std::string& movingLoad = kMovingLoad) {
  return Convert(movingLoad + analysis + "\nTABLE:  \"BRIDGE LOADS 6 - BRIDGE RESPONSE\"\n" +
                 std::string(rows));
}

TEST(MovingControl, StandsBehindTheMovingLoadCases) {
  const ConversionRun run = Convert(R"(
TABLE:  "BRIDGE LOADS 1 - LANES"
   LaneName=L1   Frame=1   Eccen=1

TABLE:  "BRIDGE LOADS 2 - VEHICLES - STANDARD"
   VehName=HS20   Type=HSn-44   ScaleFactor=20

TABLE:  "BRIDGE LOADS 5 - VEHICLE CLASSES"
   VehClass=TRUCKS   VehName=HS20

TABLE:  "BRIDGE LOADS 6 - BRIDGE RESPONSE"
   InitialCond=Zero   Displs=ALL   Reactions=PIERS   Springs=ALL   Frames=None   Correspond=Yes   CalcMethod=EXACT

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=TRUCKS   Type=LinMoving   InitialCond=Zero

TABLE:  "CASE - MOVING LOAD 1 - LANE ASSIGNMENTS"
   Case=TRUCKS   AssignNum=1   VehClass=TRUCKS

TABLE:  "CASE - MOVING LOAD 2 - LANES LOADED"
   Case=TRUCKS   AssignNum=1   Lane=L1
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Body(),
            "*LINELANE    ; Traffic Line Lanes\n"
            "; NAME=NAME, LDIST, GROUP, SKEWS, SKEWE, MOVING  ; line 1\n"
            ";      iELEM1, ECC1, FACT1, ...                  ; from line 2\n"
            "\n"
            "\tNAME=L1,  LANE,     0,     0,     0, FORWARD\n"
            "\t\t1,    -1,     0\n"
            "\n"
            "*VEHICLE    ; Vehicles\n"
            "; NAME=NAME, 1\n"
            "; NAME=NAME, 2, bTRAIN, W(W1), PL(D1), PLM(W2), PLV(D2)  ; line 1\n"
            ";      LOAD1, DIST1, LOAD2, DIST2, ...                   ; from line 2\n"
            "\tNAME=HS20-44,  1\n"
            "\n"
            "*VCLASS    ; Vehicle Classes\n"
            "; NAME=NAME                  ; line 1\n"
            ";      VLOAD1, VLOAD2, ...   ; from line 2\n"
            "\tNAME=TRUCKS\n"
            "\t\tHS20-44\n"
            "\n"
            "*MVLDCASE   ; Moving Load Cases\n"
            "; NAME=NAME, SCALE1, SCALE2, SCALE3, SCALE4, COMB, DESC           ; 1st line\n"
            ";      TYPE1, VCLASS1, SCALE1, iMIN1, iMAX1, LANE11, LANE12, ...  ; 2nd line\n"
            ";      ...                                                        ; ...\n"
            ";      TYPEn, VCLASSn, SCALEn, iMINn, iMAXn, LANEn1, LANEn2, ...  ; n+1th line\n"
            "\tNAME=TRUCKS,     1,     1,     1,     1, INDEPENDENT,      \n"
            "\t\tVC, TRUCKS,     1,     1,     1,   L1\n"
            "\n"
            "*MOVE-CTRL    ; Moving Load Analysis Control\n"
            "; METHOD, POINT, iIGPN, PLATE, bSTRCALC, FRAME, bCSTRCALC, bREAC, bRG, RGN, bDISP, "
            "bDG, DGN, bFM, bFG, FGN\n"
            "\tEXACT, NODAL,     0, NORMAL,      , AXIAL,      ,   YES,   YES, PIERS,   YES,    "
            "NO,      ,    NO,    NO,      \n"
            "\n"
            "\n\n");
}

TEST(MovingControl, WordGivesItsTwoFlagsAndTheName) {
  const struct {
    const char* Word;
    const char* Columns;
  } kRows[] = {
      {"ALL", "   YES,    NO,      "},  {"None", "    NO,    NO,      "},
      {"All", "   YES,   YES,   All"},  {"NONE", "   YES,   YES,  NONE"},
      {"none", "   YES,   YES,  none"}, {"\"DECK SLAB\"", "   YES,   YES, DECK SLAB"},
  };
  const std::string begin = "\tEXACT, NODAL,     0, NORMAL,      , NORMAL,      ,";
  const std::string no = "    NO,    NO,      ";
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Word);
    const std::string word = row.Word;
    const std::string columns = row.Columns;
    EXPECT_THAT(ConvertSettings("   Reactions=" + word +
                                "   Displs=None   Frames=None   CalcMethod=EXACT\n")
                    .Lines("*MOVE-CTRL"),
                ElementsAre(begin + columns + "," + no + "," + no));
    EXPECT_THAT(ConvertSettings("   Displs=" + word +
                                "   Reactions=None   Frames=None   CalcMethod=EXACT\n")
                    .Lines("*MOVE-CTRL"),
                ElementsAre(begin + no + "," + columns + "," + no));
    EXPECT_THAT(ConvertSettings("   Frames=" + word +
                                "   Reactions=None   Displs=None   CalcMethod=EXACT\n")
                    .Lines("*MOVE-CTRL"),
                ElementsAre(begin + no + "," + no + "," + columns));
  }
}

TEST(MovingControl, MethodAndFrameComeFromTheSettings) {
  const struct {
    const char* Given;
    const char* Begin;
  } kRows[] = {
      {"CalcMethod=QUICK0   Correspond=Yes",
       "\tQUICK0, NODAL,     0, NORMAL,      , AXIAL,      ,"},
      {"CalcMethod=Exact   Correspond=No", "\tExact, NODAL,     0, NORMAL,      , NORMAL,      ,"},
      {"CalcMethod=EXACT   Correspond=YES", "\tEXACT, NODAL,     0, NORMAL,      , NORMAL,      ,"},
      {"", "\t, NODAL,     0, NORMAL,      , NORMAL,      ,"},
      {"CalcMethod=", "\t, NODAL,     0, NORMAL,      , NORMAL,      ,"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Given);
    EXPECT_THAT(ConvertSettings("   Reactions=ALL   Displs=ALL   Frames=ALL   " +
                                std::string(row.Given) + "\n")
                    .Lines("*MOVE-CTRL"),
                ElementsAre(std::string(row.Begin) +
                            "   YES,    NO,      ,   YES,    NO,      ,   YES,    NO,      "));
  }
}

TEST(MovingControl, AnEmptyWordLeavesTheCommandOut) {
  for (const char* settings : {
           "   Reactions=ALL   Displs=ALL   CalcMethod=EXACT\n",
           "   Reactions=ALL   Displs=ALL   Frames=\n",
           "   Reactions=ALL   Displs=ALL   Frames=   CalcMethod=EXACT\n",
           "   Reactions=ALL   Frames=ALL   CalcMethod=EXACT\n",
           "   Displs=ALL   Frames=ALL   CalcMethod=EXACT\n",
           "   Springs=ALL   CalcMethod=EXACT\n",
       }) {
    SCOPED_TRACE(settings);
    const ConversionRun run = ConvertSettings(settings);
    EXPECT_THAT(run.Lines("*MVLDCASE"), testing::SizeIs(2));
    EXPECT_EQ(run.Section("*MOVE-CTRL"), "");
  }
}

TEST(MovingControl, OnlyTheFirstRowIsRead) {
  const std::string empty = "   Displs=ALL\n";
  EXPECT_THAT(
      ConvertSettings(kAllWanted + empty).Lines("*MOVE-CTRL"),
      ElementsAre("\tEXACT, NODAL,     0, NORMAL,      , NORMAL,      ,   YES,    NO,      ,   "
                  "YES,    NO,      ,   YES,    NO,      "));
  EXPECT_EQ(ConvertSettings(empty + kAllWanted).Section("*MOVE-CTRL"), "");
}

TEST(MovingControl, NeedsAnAnalysisCaseOfItsKind) {
  for (const char* type : {"LinStatic", "linmoving", "LinMovingLoad", ""}) {
    SCOPED_TRACE(type);
    const ConversionRun run = ConvertSettings(
        kAllWanted, "\nTABLE:  \"ANALYSIS CASE DEFINITIONS\"\n   Case=TRUCKS   Type=" +
                        std::string(type) + "\n");
    EXPECT_THAT(run.Lines("*MVLDCASE"), testing::SizeIs(2));
    EXPECT_EQ(run.Section("*MOVE-CTRL"), "");
  }
  EXPECT_EQ(ConvertSettings(kAllWanted, "").Section("*MOVE-CTRL"), "");
}

TEST(MovingControl, TwoAnalysisCasesOfAnyNameGiveOneLine) {
  const ConversionRun run = ConvertSettings(kAllWanted, R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=FIRST   Type=LinMoving
   Case=SECOND   Type=LinMoving
)");
  EXPECT_THAT(run.Lines("*MOVE-CTRL"), testing::SizeIs(1));
}

TEST(MovingControl, IsNotWrittenWithoutMovingLoadCases) {
  const ConversionRun run = ConvertSettings(kAllWanted, kAnalysis, R"(
TABLE:  "CASE - MOVING LOAD 1 - LANE ASSIGNMENTS"
   Case=TRUCKS   AssignNum=1   VehClass=TRUCKS
)");
  EXPECT_EQ(run.Body(), "\n\n");
}

TEST(MovingControl, IsNotWrittenWithoutSettings) {
  const ConversionRun run = ConvertSettings("");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Lines("*MVLDCASE"), testing::SizeIs(2));
  EXPECT_EQ(run.Section("*MOVE-CTRL"), "");
}

}  // namespace
