#include "support/conversion_run.h"
#include "support/time_histories.h"

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr std::string_view kModal = "   Case=TH1   Type=LinModHist   InitialCond=Zero\n";
constexpr std::string_view kDirect = "   Case=BLAST   Type=LinDirHis   InitialCond=Zero\n";
/// Analysis cases 1 and 2 are walked 2, 1: the modal case comes first.
constexpr std::string_view kModalThenDirect =
    "   Case=BLAST   Type=LinDirHis   InitialCond=Zero\n"
    "   Case=TH1   Type=LinModHist   InitialCond=Zero\n";
/// A load of the modal case that brings in the function and nothing else.
constexpr std::string_view kFunctionOnly = "   Case=TH1   LoadType=None   Function=PULSE\n";

TEST(HistoryLoads, SectionsAreWrittenOneBehindTheOther) {
  // Load rows 1 and 2 are walked 2, 1.
  const ConversionRun run = Convert(ModalAndDirectCases(
      kModal,
      R"(   Case=TH1   LoadType=Accel   LoadName="Accel U1"   Function=PULSE   TransAccSF=9.81   ArrivalTime=2   Angle=30
   Case=TH1   LoadType="Load case"   LoadName=LIVE   Function=PULSE   LoadSF=3   ArrivalTime=1.5   Angle=40
)",
      ""));
  EXPECT_EQ(run.Between("*GROUND-ACC", "*ENDDATA"),
            "*GROUND-ACC    ; Ground Acceleration\n"
            "; THIS, FUNCX, SCALEX, ATIMEX, FUNCY, SCALEY, ATIMEY, FUNCZ, SCALEZ, ATIMEZ, ANGLE\n"
            "\tTH1, PULSE,     1,    30,      ,     1,     0,      ,     1,     0,     0\n"
            "\n"
            "*DYN-SLOAD    ; Time Varying Static Load\n"
            "; THIS, SLOAD, FUNC, ATIME, SCALE\n"
            "\tTH1,  LIVE, PULSE,   1.5,     1\n"
            "\n");
  std::vector<std::string> commands;
  std::istringstream stream(run.Body());
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with('*')) {
      commands.push_back(line.substr(0, line.find(' ')));
    }
  }
  EXPECT_THAT(commands,
              ElementsAre("*ANAL-CTRL", "*TFUNCTION", "*THLDCASE", "*GROUND-ACC", "*DYN-SLOAD"));
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(HistoryLoads, LoadNameSaysTheDirectionWhoseArrivalTimeIsTheAngle) {
  struct Sample {
    const char* LoadName;
    const char* Modal;
    const char* Direct;
  };
  const std::vector<Sample> samples = {
      {"LoadName=\"Accel U1\"",
       "\tTH1, PULSE,     1,    30,      ,     1,     0,      ,     1,     0,     0",
       "\tBLAST, PULSE,     1,    30,      ,     1,     0,      ,     1,     0,     0"},
      {"LoadName=\"Accel U2\"",
       "\tTH1,      ,     1,     0, PULSE,     1,    30,      ,     1,     0,     0",
       "\tBLAST,      ,     1,     0, PULSE,     1,    30,      ,     1,     0,     0"},
      {"LoadName=\"Accel U3\"",
       "\tTH1,      ,     1,     0,      ,     1,     0, PULSE,     1,    30,     0",
       "\tBLAST,      ,     1,     0,      ,     1,     0, PULSE,     1,    30,     0"},
      {"LoadName=\"Accel R1\"",
       "\tTH1,      ,     1,     0,      ,     1,     0,      ,     1,     0,     0",
       "\tBLAST,      ,     1,     0,      ,     1,     0,      ,     1,     0,     0"},
      {"LoadName=\"accel u1\"",
       "\tTH1,      ,     1,     0,      ,     1,     0,      ,     1,     0,     0",
       "\tBLAST,      ,     1,     0,      ,     1,     0,      ,     1,     0,     0"},
      {"", "\tTH1,      ,     1,     0,      ,     1,     0,      ,     1,     0,     0",
       "\tBLAST,      ,     1,     0,      ,     1,     0,      ,     1,     0,     0"}};
  for (const auto& [loadName, modal, direct] : samples) {
    SCOPED_TRACE(loadName);
    const std::string load =
        "   LoadType=Accel   Function=PULSE   TransAccSF=9.81   CoordSys=GLOBAL   ArrivalTime=2   "
        "Angle=30   " +
        std::string(loadName) + "\n";
    EXPECT_THAT(Convert(ModalAndDirectCases(kModal, "   Case=TH1" + load, "")).Lines("*GROUND-ACC"),
                ElementsAre(modal));
    EXPECT_THAT(
        Convert(ModalAndDirectCases(kDirect, "", "   Case=BLAST" + load)).Lines("*GROUND-ACC"),
        ElementsAre(direct));
  }
}

TEST(HistoryLoads, LoadTypeSaysTheCommandAndOnlyAModalCaseKnowsPatterns) {
  struct Sample {
    const char* LoadType;
    std::vector<std::string> Modal;
    std::vector<std::string> Direct;
    bool IsAcceleration;
  };
  const std::vector<Sample> samples = {
      {"LoadType=\"Load case\"",
       {"\tTH1,  LIVE, PULSE,     2,     1"},
       {"\tBLAST,  LIVE, PULSE,     2,     1"},
       false},
      {"LoadType=LoadPattern", {"\tTH1,  LIVE, PULSE,     2,     1"}, {}, false},
      {"LoadType=Accel", {}, {}, true},
      {"LoadType=\"Load Case\"", {}, {}, false},
      {"LoadType=\"Load pattern\"", {}, {}, false},
      {"LoadType=accel", {}, {}, false},
      {"", {}, {}, false}};
  for (const auto& [loadType, modal, direct, isAcceleration] : samples) {
    SCOPED_TRACE(loadType);
    const std::string load =
        "   LoadName=LIVE   Function=PULSE   LoadSF=5   ArrivalTime=2   Angle=30   " +
        std::string(loadType) + "\n";
    const ConversionRun modalRun = Convert(ModalAndDirectCases(kModal, "   Case=TH1" + load, ""));
    EXPECT_THAT(modalRun.Lines("*DYN-SLOAD"), ElementsAreArray(modal));
    EXPECT_EQ(modalRun.Lines("*GROUND-ACC").size(), isAcceleration ? 1U : 0U);
    const ConversionRun directRun =
        Convert(ModalAndDirectCases(kDirect, "", "   Case=BLAST" + load));
    EXPECT_THAT(directRun.Lines("*DYN-SLOAD"), ElementsAreArray(direct));
    EXPECT_EQ(directRun.Lines("*GROUND-ACC").size(), isAcceleration ? 1U : 0U);
    if (modal.empty()) {
      EXPECT_EQ(modalRun.Output.find("*DYN-SLOAD"), std::string::npos);
    }
    if (!isAcceleration) {
      EXPECT_EQ(modalRun.Output.find("*GROUND-ACC"), std::string::npos);
    }
  }
}

TEST(HistoryLoads, TimeVaryingLoadsComeInTheWalkOverKeysGivenInTheWalkOverRows) {
  struct Sample {
    std::size_t Rows;
    std::vector<std::string> Lines;
  };
  const std::string line1 = "\tTH1,    L1, PULSE,     1,     1";
  const std::string line2 = "\tTH1,    L2, PULSE,     2,     1";
  const std::string line3 = "\tTH1,    L3, PULSE,     3,     1";
  const std::string line4 = "\tTH1,    L4, PULSE,     4,     1";
  const std::string line5 = "\tTH1,    L5, PULSE,     5,     1";
  const std::string line6 = "\tTH1,    L6, PULSE,     6,     1";
  // Rows and keys 1 to 3 are walked 2, 1, 3, those to 5 as 5, 2, 4, 1, 3, those to 6 as
  // 5, 2, 4, 1, 6, 3: key 1 is the row that is walked first.
  const std::vector<Sample> samples = {{1, {line1}},
                                       {3, {line1, line2, line3}},
                                       {5, {line3, line2, line1, line5, line4}},
                                       {6, {line6, line2, line1, line5, line3, line4}}};
  for (const auto& [rows, lines] : samples) {
    SCOPED_TRACE(rows);
    std::string loads;
    for (std::size_t row = 1; row <= rows; ++row) {
      const std::string number = std::to_string(row);
      loads += "   Case=TH1   LoadType=\"Load case\"   LoadName=L" + number +
               "   Function=PULSE   ArrivalTime=" + number + "\n";
    }
    EXPECT_THAT(Convert(ModalAndDirectCases(kModal, loads, "")).Lines("*DYN-SLOAD"),
                ElementsAreArray(lines));
  }
}

TEST(HistoryLoads, TimeVaryingLoadsOfModalAndDirectCasesAreNumberedTogether) {
  // Keys 1 and 2 are the modal rows 2 and 1, keys 3 and 4 the direct rows 2 and 1; they are
  // written 2, 4, 1, 3.
  const ConversionRun run = Convert(
      ModalAndDirectCases(kModalThenDirect,
                          R"(   Case=TH1   LoadType="Load case"   LoadName=L1   Function=PULSE
   Case=TH1   LoadType="Load case"   LoadName=L2   Function=PULSE
)",
                          R"(   Case=BLAST   LoadType="Load case"   LoadName=L3   Function=PULSE
   Case=BLAST   LoadType="Load case"   LoadName=L4   Function=PULSE
)"));
  EXPECT_THAT(
      run.Lines("*DYN-SLOAD"),
      ElementsAre("\tTH1,    L1, PULSE,     0,     1", "\tBLAST,    L3, PULSE,     0,     1",
                  "\tTH1,    L2, PULSE,     0,     1", "\tBLAST,    L4, PULSE,     0,     1"));
}

/// Rows of a case, each an acceleration of a direction and an angle.
std::string Accelerations(std::string_view name, const std::vector<int>& angles) {
  std::string rows;
  for (const int angle : angles) {
    rows += "   Case=" + std::string(name) +
            "   LoadType=Accel   LoadName=\"Accel U1\"   Function=PULSE   Angle=" +
            std::to_string(angle) + "\n";
  }
  return rows;
}

/// Name and angle of the accelerations that are written.
std::vector<std::string> WrittenAccelerations(const ConversionRun& run) {
  std::vector<std::string> written;
  for (const std::string& line : run.Lines("*GROUND-ACC")) {
    const std::string tail = ",      ,     1,     0,      ,     1,     0,     0";
    EXPECT_TRUE(line.ends_with(tail)) << line;
    written.push_back(line.substr(0, line.size() - tail.size()));
  }
  return written;
}

TEST(HistoryLoads, AccelerationsOfAModalCaseBeginAtKeyTwo) {
  // Rows 1, 2, 3 are walked 2, 1, 3 and get the keys 2, 3, 4, written 3, 2, 4.
  EXPECT_THAT(WrittenAccelerations(
                  Convert(ModalAndDirectCases(kModal, Accelerations("TH1", {1, 2, 3}), ""))),
              ElementsAre("\tTH1, PULSE,     1,     1", "\tTH1, PULSE,     1,     2",
                          "\tTH1, PULSE,     1,     3"));
  // Rows 1 to 5 are walked 5, 2, 4, 1, 3 and get the keys 2 to 6, written 3, 6, 2, 5, 4.
  EXPECT_THAT(WrittenAccelerations(
                  Convert(ModalAndDirectCases(kModal, Accelerations("TH1", {1, 2, 3, 4, 5}), ""))),
              ElementsAre("\tTH1, PULSE,     1,     2", "\tTH1, PULSE,     1,     3",
                          "\tTH1, PULSE,     1,     5", "\tTH1, PULSE,     1,     1",
                          "\tTH1, PULSE,     1,     4"));
}

TEST(HistoryLoads, AccelerationsOfADirectCaseBeginAtKeyOne) {
  // Rows 1, 2, 3 are walked 2, 1, 3 and get the keys 1, 2, 3, written 3, 2, 1.
  EXPECT_THAT(WrittenAccelerations(Convert(ModalAndDirectCases(kModalThenDirect, kFunctionOnly,
                                                               Accelerations("BLAST", {1, 2, 3})))),
              ElementsAre("\tBLAST, PULSE,     1,     3", "\tBLAST, PULSE,     1,     1",
                          "\tBLAST, PULSE,     1,     2"));
}

TEST(HistoryLoads, AccelerationOfADirectCaseReplacesTheLastOneOfAModalCase) {
  // The modal rows 2 and 1 get the keys 2 and 3, written 3, 2; the direct rows 2 and 1 both get
  // the key 3, since the number of records stays 2.
  const std::string modal = Accelerations("TH1", {1, 2});
  EXPECT_THAT(WrittenAccelerations(Convert(
                  ModalAndDirectCases(kModalThenDirect, modal, Accelerations("BLAST", {11})))),
              ElementsAre("\tBLAST, PULSE,     1,    11", "\tTH1, PULSE,     1,     2"));
  EXPECT_THAT(WrittenAccelerations(Convert(
                  ModalAndDirectCases(kModalThenDirect, modal, Accelerations("BLAST", {11, 12})))),
              ElementsAre("\tBLAST, PULSE,     1,    11", "\tTH1, PULSE,     1,     2"));
}

TEST(HistoryLoads, ModalCaseBehindAReplacedAccelerationTakesTheNextKey) {
  // Analysis cases 1, 2, 3 are walked 2, 1, 3. TH1 gets the keys 2 and 3, BLAST replaces 3, and
  // TH2 gets 4, written 3, 2, 4. Modal load rows 1, 2, 3 are walked 2, 1, 3.
  const ConversionRun run = Convert(ModalAndDirectCases(
      R"(   Case=BLAST   Type=LinDirHis   InitialCond=Zero
   Case=TH1   Type=LinModHist   InitialCond=Zero
   Case=TH2   Type=LinModHist   InitialCond=Zero
)",
      Accelerations("TH1", {1, 2}) + Accelerations("TH2", {3}), Accelerations("BLAST", {11})));
  EXPECT_THAT(WrittenAccelerations(run),
              ElementsAre("\tBLAST, PULSE,     1,    11", "\tTH1, PULSE,     1,     2",
                          "\tTH2, PULSE,     1,     3"));
}

TEST(HistoryLoads, DirectCaseAheadOfAModalOneLosesNoAcceleration) {
  // Analysis cases 1 and 2 are walked 2, 1. BLAST gets the key 1 and ends there, its function being
  // unknown; TH1 gets 3, written 3, 1.
  const ConversionRun run = Convert(ModalAndDirectCases(
      R"(   Case=TH1   Type=LinModHist   InitialCond=Zero
   Case=BLAST   Type=LinDirHis   InitialCond=Zero
)",
      Accelerations("TH1", {1}), Accelerations("BLAST", {11})));
  EXPECT_THAT(WrittenAccelerations(run),
              ElementsAre("\tTH1, PULSE,     1,     1", "\tBLAST, PULSE,     1,    11"));
}

TEST(HistoryLoads, UnknownFunctionEndsTheLoadsOfADirectCaseBehindItsOwn) {
  const std::string lost = R"(   Case=BLAST   LoadType="Load case"   LoadName=L1   Function=LOST
)";
  const std::string known = R"(   Case=BLAST   LoadType="Load case"   LoadName=L2   Function=PULSE
)";
  // Rows 1, 2, 3 are walked 2, 1, 3; keys 1 and 2 are written 2, 1.
  const ConversionRun run =
      Convert(ModalAndDirectCases(kModalThenDirect, kFunctionOnly, lost + known + known));
  EXPECT_THAT(run.Lines("*DYN-SLOAD"), ElementsAre("\tBLAST,    L1,  LOST,     0,     1",
                                                   "\tBLAST,    L2, PULSE,     0,     1"));
  EXPECT_THAT(run.Messages, IsEmpty());
  // The case stays, and so do the loads of the next one.
  EXPECT_NE(run.Output.find("\tNAME=BLAST,"), std::string::npos);
  EXPECT_THAT(
      Convert(ModalAndDirectCases(
                  R"(   Case=BLAST   Type=LinDirHis   InitialCond=Zero
   Case=SHOCK   Type=LinDirHis   InitialCond=Zero
)",
                  "", known + R"(   Case=SHOCK   LoadType="Load case"   LoadName=L3   Function=LOST
)"))
          .Lines("*DYN-SLOAD"),
      // Analysis cases 1 and 2 are walked 2, 1, which are the keys 1 and 2, written 2, 1.
      ElementsAre("\tBLAST,    L2, PULSE,     0,     1", "\tSHOCK,    L3,  LOST,     0,     1"));
}

TEST(HistoryLoads, FunctionWithoutPointsEndsTheLoadsOfAModalCaseBehindItsOwn) {
  // Rows 1, 2, 3 are walked 2, 1, 3; keys 1 and 2 are written 2, 1.
  const ConversionRun run = Convert(ModalAndDirectCases(
      kModal, R"(   Case=TH1   LoadType="Load case"   LoadName=L1   Function=LOST
   Case=TH1   LoadType="Load case"   LoadName=L2   Function=PULSE
   Case=TH1   LoadType="Load case"   LoadName=L3   Function=PULSE
)",
      ""));
  EXPECT_THAT(run.Lines("*DYN-SLOAD"), ElementsAre("\tTH1,    L1,  LOST,     0,     1",
                                                   "\tTH1,    L2, PULSE,     0,     1"));
  EXPECT_NE(run.Output.find("\tNAME=TH1,"), std::string::npos);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_TMHT_Func_Not_Convert"));
}

TEST(HistoryLoads, LoadsOfEveryDefinitionOfACaseAreConvertedAgain) {
  const ConversionRun run = Convert(R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=TH1   Type=LinModHist   InitialCond=Zero

TABLE:  "CASE - MODAL HISTORY 1 - GENERAL"
   Case=TH1   DampingType=Constant
   Case=TH1   DampingType=Constant

TABLE:  "CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS"
   Case=TH1   LoadType="Load case"   LoadName=LIVE   Function=PULSE
)");
  EXPECT_THAT(run.Lines("*DYN-SLOAD"), ElementsAre("\tTH1,  LIVE, PULSE,     0,     1",
                                                   "\tTH1,  LIVE, PULSE,     0,     1"));
}

TEST(HistoryLoads, LoadsOfACaseThatStandsTwiceComeAgainInTheirOrder) {
  // Load rows 1 and 2 are walked 2, 1 for each of the analysis cases and get the keys 2 and 3, 4
  // and 5, which are written 3, 2, 5, 4.
  const ConversionRun run = Convert(ModalAndDirectCases(std::string(kModal) + std::string(kModal),
                                                        Accelerations("TH1", {1, 2}), ""));
  EXPECT_THAT(WrittenAccelerations(run),
              ElementsAre("\tTH1, PULSE,     1,     1", "\tTH1, PULSE,     1,     2",
                          "\tTH1, PULSE,     1,     1", "\tTH1, PULSE,     1,     2"));
}

TEST(HistoryLoads, LoadsOfOtherNamesAndOfLostCasesAreNotConverted) {
  const ConversionRun run = Convert(R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=TH1   Type=LinModHist   InitialCond=Zero
   Case=INTP   Type=LinModHist   InitialCond=Zero
   Case=NODAMP   Type=LinModHist   InitialCond=Zero
   Case=NODEF   Type=LinModHist   InitialCond=Zero
   Case=WILSON   Type=LinDirHis   InitialCond=Zero

TABLE:  "CASE - MODAL HISTORY 1 - GENERAL"
   Case=TH1   DampingType=Constant
   Case=INTP   DampingType=Interpolated
   Case=NODAMP   DampingType=Pro-Freq

TABLE:  "CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS"
   Case=INTP   LoadType=Accel   LoadName="Accel U1"   Function=PULSE
   Case=NODAMP   LoadType=Accel   LoadName="Accel U1"   Function=PULSE
   Case=NODEF   LoadType=Accel   LoadName="Accel U1"   Function=PULSE
   Case=th1   LoadType=Accel   LoadName="Accel U1"   Function=PULSE
   Case=TH1   LoadType="Load case"   LoadName=LIVE   Function=PULSE

TABLE:  "CASE - DIRECT HISTORY 1 - GENERAL"
   Case=WILSON   OutSteps=10   StepSize=1

TABLE:  "CASE - DIRECT HISTORY 2 - LOAD ASSIGNMENTS"
   Case=WILSON   LoadType=Accel   LoadName="Accel U1"   Function=PULSE
   Case=TH1   LoadType=Accel   LoadName="Accel U1"   Function=PULSE

TABLE:  "CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING"
   Case=WILSON   SpecifyType=Direct   MassCoeff=0.3

TABLE:  "CASE - DIRECT HISTORY 4 - INTEGRATION PARAMETERS"
   Case=WILSON   IntMethod=Wilson
)");
  EXPECT_THAT(run.Lines("*DYN-SLOAD"), ElementsAre("\tTH1,  LIVE, PULSE,     0,     1"));
  EXPECT_EQ(run.Output.find("*GROUND-ACC"), std::string::npos);
}

}  // namespace
