#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Tables for an analysis case C of every kind, and for a case D that no analysis names.
const std::string kTablesOfAllKinds = R"(
TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=DEAD   DesignType=DEAD   SelfWtMult=0   AutoLoad=None
   LoadCase=LIVE   DesignType=LIVE   SelfWtMult=0   AutoLoad=None

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=C   LoadType="Load case"   LoadName=DEAD   LoadSF=1   TransAccSF=0
   Case=D   LoadType="Load case"   LoadName=LIVE   LoadSF=1   TransAccSF=0

TABLE:  "CASE - MODAL 1 - GENERAL"
   Case=C   ModeType=Eigen   MaxNumModes=12   MinNumModes=1   EigenTol=1E-09

TABLE:  "CASE - RESPONSE SPECTRUM 1 - GENERAL"
   Case=C   ModalCombo=CQC   DirCombo=SRSS   DampingType=Constant   ConstDamp=0.05

TABLE:  "CASE - MODAL HISTORY 1 - GENERAL"
   Case=C   HistoryType=Transient   OutSteps=100   StepSize=0.5   DampingType=Constant
   Case=D   HistoryType=Transient   OutSteps=200   StepSize=0.5   DampingType=Constant

TABLE:  "CASE - DIRECT HISTORY 1 - GENERAL"
   Case=C   OutSteps=100   StepSize=2
   Case=D   OutSteps=200   StepSize=2

TABLE:  "CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING"
   Case=C   SpecifyType=Direct   MassCoeff=0.3   StiffCoeff=0.002
   Case=D   SpecifyType=Direct   MassCoeff=0.3   StiffCoeff=0.002

TABLE:  "BRIDGE LOADS 5 - VEHICLE CLASSES"
   VehClass=TRUCKS   VehName=HS20   ScaleFactor=1

TABLE:  "BRIDGE LOADS 6 - BRIDGE RESPONSE"
   Displs=ALL   Reactions=ALL   Frames=ALL   CalcMethod=Exact   Correspond=No

TABLE:  "CASE - MOVING LOAD 1 - LANE ASSIGNMENTS"
   Case=TRUCKS   AssignNum=1   VehClass=TRUCKS   ScaleFactor=1   MinLoaded=1   MaxLoaded=1

TABLE:  "CASE - BUCKLING 1 - GENERAL"
   Case=C   NumBuckMode=6   EigenTol=1E-09

TABLE:  "CASE - BUCKLING 2 - LOAD ASSIGNMENTS"
   Case=C   LoadType="Load case"   LoadName=DEAD   LoadSF=1
   Case=D   LoadType="Load case"   LoadName=LIVE   LoadSF=1

)";

/// A model of these rows of analysis cases and further tables.
ConversionRun ConvertAnalyses(const std::vector<std::string>& rows, const std::string& tables) {
  std::string analyses = "TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n";
  for (const std::string& row : rows) {
    analyses += "   " + row + "\n";
  }
  return Convert(analyses + "\n" + tables);
}

/// The commands of the output that analysis cases lead to, in this order.
std::vector<std::string> CommandsOfAnalyses(const ConversionRun& run) {
  std::vector<std::string> commands;
  for (const char* command : {"*STRUCTYPE", "*STLDCASE", "*MOVE-CTRL", "*ANAL-CTRL", "*SPEC-CTRL",
                              "*EIGEN-CTRL", "*BUCK-CTRL", "*THLDCASE"}) {
    if (!run.Section(command).empty()) {
      commands.emplace_back(command);
    }
  }
  return commands;
}

const std::string kAnalysisControl =
    "*ANAL-CTRL\n"
    "; bARDC, bANRC, iTYPE, iITER, TOL            ; iTYPE=0\n"
    "; bARDC, bANRC, iTYPE, iITER, iSITER, TOL    ; iTYPE=1\n"
    "\tYES,   YES,     0,    30, 0.001\n"
    "\n";

const std::string kEigenvalueHeader =
    "*EIGEN-CTRL    ; Eigenvalue Analysis Control\n"
    "; TYPE, iFREQ, iITER, iDIM, TOL          ; TYPE=EIGEN\n"
    "; TYPE, bINCNL, iGNUM                    ; TYPE=RITZ(line 1)\n"
    ";       KIND1, CASE1/GROUND1, iNOG1, ... ; TYPE=RITZ(from line2)\n";

// ---- Kinds ----

TEST(AnalysisCases, KindLeadsToItsCommands) {
  struct Kind {
    const char* Type;
    std::vector<std::string> Commands;
  };
  const std::vector<Kind> kinds = {
      {"LinStatic", {"*STRUCTYPE", "*STLDCASE"}},
      {"LinModal", {"*STRUCTYPE", "*ANAL-CTRL", "*EIGEN-CTRL"}},
      {"LinRespSpec", {"*STRUCTYPE", "*ANAL-CTRL", "*SPEC-CTRL"}},
      {"LinModHist", {"*STRUCTYPE", "*ANAL-CTRL", "*THLDCASE"}},
      {"NonModHist", {"*STRUCTYPE", "*ANAL-CTRL", "*THLDCASE"}},
      {"LinDirHis", {"*STRUCTYPE", "*ANAL-CTRL", "*THLDCASE"}},
      {"NonDirHist", {"*STRUCTYPE", "*ANAL-CTRL", "*THLDCASE"}},
      {"LinMoving", {"*STRUCTYPE", "*MOVE-CTRL"}},
      {"LinBuckling", {"*STRUCTYPE", "*BUCK-CTRL"}},
  };
  for (const auto& [type, commands] : kinds) {
    SCOPED_TRACE(type);
    const ConversionRun run =
        ConvertAnalyses({"Case=C   Type=" + std::string(type)}, kTablesOfAllKinds);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_EQ(CommandsOfAnalyses(run), commands);
  }
}

TEST(AnalysisCases, OtherKindsArePassedOverInSilence) {
  for (const char* type :
       {"LinDirHist", "NonDirHis", "linstatic", "LINMODAL", "LinModal2", "Lin", "NonStatic",
        "LinSteady", "LinPSD", "\" LinStatic\"", "LinStaticLinModal", ""}) {
    SCOPED_TRACE(type);
    const ConversionRun run =
        ConvertAnalyses({"Case=C   Type=" + std::string(type)}, kTablesOfAllKinds);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_THAT(CommandsOfAnalyses(run), ElementsAre("*STRUCTYPE"));
  }
  EXPECT_THAT(CommandsOfAnalyses(ConvertAnalyses({"Case=C"}, kTablesOfAllKinds)),
              ElementsAre("*STRUCTYPE"));
}

TEST(AnalysisCases, StaticAndBucklingCasesAreFoundByTheNameOfTheRow) {
  const ConversionRun run =
      ConvertAnalyses({"Case=D   Type=LinStatic", "Case=D   Type=LinBuckling"}, kTablesOfAllKinds);
  EXPECT_THAT(run.Lines("*STLDCASE"), ElementsAre("\tLIVE,     L, "));
  EXPECT_THAT(run.Lines("*BUCK-CTRL"), ElementsAre("\t1,    30, 0.001", "\t\t LIVE,     1"));
}

TEST(AnalysisCases, ModalSpectrumAndMovingCasesNeedNoNameOfTheirs) {
  EXPECT_THAT(CommandsOfAnalyses(ConvertAnalyses(
                  {"Case=X   Type=LinModal", "Case=X   Type=LinRespSpec", "Type=LinMoving"},
                  kTablesOfAllKinds)),
              ElementsAre("*STRUCTYPE", "*MOVE-CTRL", "*ANAL-CTRL", "*SPEC-CTRL", "*EIGEN-CTRL"));
}

TEST(AnalysisCases, HistoryGetsItsNameItsKindAndItsStart) {
  struct History {
    const char* Row;
    const char* Name;
    const char* Values;
  };
  // ETIME, INC, iOUT, iICOND, FSPLC, then linear or not, modal or direct, transient
  const std::vector<History> histories = {
      {"Case=C   Type=LinModHist   InitialCond=Zero", "\tNAME=C,      ",
       "\t\t50,   0.5,     1,     1,      ,     1,     1,     1"},
      {"Case=C   Type=NonModHist   InitialCond=Zero", "\tNAME=C,      ",
       "\t\t50,   0.5,    50,     1,      ,     2,     1,     1"},
      {"Case=C   Type=LinDirHis   InitialCond=Zero", "\tNAME=C,      ",
       "\t\t200,     2,     1,     1,      ,     1,     2,     1"},
      {"Case=C   Type=NonDirHist   InitialCond=Zero", "\tNAME=C,      ",
       "\t\t200,     2,    50,     1,      ,     2,     2,     1"},
      {"Case=D   Type=LinModHist   InitialCond=DEAD", "\tNAME=D,      ",
       "\t\t100,   0.5,     1,     2,  DEAD,     1,     1,     1"},
      {"Case=D   Type=NonModHist   InitialCond=DEAD", "\tNAME=D,      ",
       "\t\t100,   0.5,   100,     2,  DEAD,     2,     1,     1"},
      {"Case=D   Type=LinDirHis   InitialCond=DEAD", "\tNAME=D,      ",
       "\t\t400,     2,     1,     2,  DEAD,     1,     2,     1"},
      {"Case=D   Type=NonDirHist   InitialCond=DEAD", "\tNAME=D,      ",
       "\t\t400,     2,   100,     2,  DEAD,     2,     2,     1"},
  };
  for (const auto& [row, name, values] : histories) {
    SCOPED_TRACE(row);
    std::vector<std::string> lines = ConvertAnalyses({row}, kTablesOfAllKinds).Lines("*THLDCASE");
    ASSERT_THAT(lines, SizeIs(3));
    lines.pop_back();
    EXPECT_THAT(lines, ElementsAre(name, values));
  }
}

TEST(AnalysisCases, ModalCaseOfARowPlaysNoPart) {
  const ConversionRun without =
      ConvertAnalyses({"Case=C   Type=LinRespSpec", "Case=C   Type=LinModal"}, kTablesOfAllKinds);
  const ConversionRun with = ConvertAnalyses(
      {"Case=C   Type=LinRespSpec   ModalCase=C", "Case=C   Type=LinModal   ModalCase=OTHER"},
      kTablesOfAllKinds);
  EXPECT_THAT(without.Lines("*SPEC-CTRL"), ElementsAre("\tCQC,  0.05,    NO"));
  EXPECT_EQ(with.Body(), without.Body());
}

TEST(AnalysisCases, ModalCaseBeforeTheNameIsTakenForTheName) {
  EXPECT_THAT(CommandsOfAnalyses(
                  ConvertAnalyses({"ModalCase=X   Type=LinBuckling   Case=C"}, kTablesOfAllKinds)),
              ElementsAre("*STRUCTYPE"));
}

// ---- No analysis cases ----

TEST(AnalysisCases, WithoutThemThereIsNoControlOfAnyKind) {
  const std::string masses = R"(
TABLE:  "ACTIVE DEGREES OF FREEDOM"
   UX=Yes   UY=No   UZ=Yes   RX=No   RY=Yes   RZ=No

TABLE:  "MASSES 1 - MASS SOURCE"
   MassFrom=Loads   LoadCase=DEAD   Multiplier=1

)";
  for (const std::string& analyses :
       {std::string(), std::string("TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n\n")}) {
    SCOPED_TRACE(analyses);
    const ConversionRun run = Convert(analyses + masses + kTablesOfAllKinds);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_THAT(CommandsOfAnalyses(run), IsEmpty());
    EXPECT_EQ(run.Output.find("*LOADTOMASS"), std::string::npos);
  }
  EXPECT_EQ(Convert(masses).Body(), "\n\n");
}

// ---- Analysis control ----

TEST(AnalysisControl, StandsWhenACaseThatNeedsItWasConverted) {
  struct Need {
    const char* Row;
    const char* Tables;
    bool IsNeeded;
  };
  const std::vector<Need> needs = {
      {"Case=C   Type=LinModal", "", true},
      // without their definitions
      {"Case=C   Type=LinRespSpec", "", false},
      {"Case=C   Type=LinModHist", "", false},
      {"Case=C   Type=NonModHist", "", false},
      {"Case=C   Type=LinDirHis", "", false},
      {"Case=C   Type=NonDirHist", "", false},
      {"Case=C   Type=LinStatic", "", false},
      {"Case=C   Type=LinMoving", "", false},
      {"Case=C   Type=LinBuckling", "", false},
      // with definitions that are of another case or lost
      {"Case=C   Type=LinRespSpec",
       "TABLE:  \"CASE - RESPONSE SPECTRUM 1 - GENERAL\"\n   Case=D   ModalCombo=SRSS\n", true},
      {"Case=C   Type=LinModHist",
       "TABLE:  \"CASE - MODAL HISTORY 1 - GENERAL\"\n   Case=D   DampingType=Constant\n", false},
      {"Case=C   Type=LinModHist",
       "TABLE:  \"CASE - MODAL HISTORY 1 - GENERAL\"\n   Case=C   DampingType=Interpolated\n",
       false},
      {"Case=C   Type=LinDirHis",
       "TABLE:  \"CASE - DIRECT HISTORY 1 - GENERAL\"\n   Case=C   OutSteps=10   StepSize=1\n",
       false},
  };
  for (const auto& [row, tables, isNeeded] : needs) {
    SCOPED_TRACE(std::string(row) + "\n" + tables);
    const ConversionRun run = ConvertAnalyses({row}, tables);
    EXPECT_EQ(run.Section("*ANAL-CTRL"), isNeeded ? kAnalysisControl : "");
    EXPECT_THAT(run.Lines("*STRUCTYPE"), SizeIs(1));
  }
}

TEST(AnalysisControl, StandsOnceForSeveralCasesThatNeedIt) {
  const ConversionRun run = ConvertAnalyses(
      {"Case=C   Type=LinModal", "Case=C   Type=LinRespSpec", "Case=C   Type=LinModHist"},
      kTablesOfAllKinds);
  EXPECT_EQ(run.Section("*ANAL-CTRL"), kAnalysisControl);
  EXPECT_EQ(run.Output.find("*ANAL-CTRL"), run.Output.rfind("*ANAL-CTRL"));
}

TEST(AnalysisControl, ControlsStandInTheOrderOfTheOutput) {
  const ConversionRun run =
      ConvertAnalyses({"Case=BUCK   Type=LinBuckling", "Case=MODAL   Type=LinModal",
                       "Case=QUAKE   Type=LinRespSpec   ModalCase=MODAL"},
                      R"(
TABLE:  "MASSES 1 - MASS SOURCE"
   MassFrom=Loads   LoadCase=DEAD   Multiplier=1

TABLE:  "CASE - MODAL 1 - GENERAL"
   Case=MODAL   ModeType=Eigen   MaxNumModes=12   MinNumModes=1   EigenTol=1E-09

TABLE:  "CASE - RESPONSE SPECTRUM 1 - GENERAL"
   Case=QUAKE   ModalCombo=CQC   ConstDamp=0.05

TABLE:  "CASE - BUCKLING 1 - GENERAL"
   Case=BUCK   NumBuckMode=6   EigenTol=1E-09

TABLE:  "CASE - BUCKLING 2 - LOAD ASSIGNMENTS"
   Case=BUCK   LoadName=DEAD   LoadSF=1
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Body(),
            "; *LOADTOMASS, DIR, bNODAL, bBEAM, bFLOOR, bPRES, GRAV\n"
            ";     LCNAME1, FACTOR1, LCNAME2, FACTOR2, ...   ; from line 1\n"
            "\t*LOADTOMASS,   XYZ,   YES,   YES,   YES,   YES, 9.806\n"
            "\tDEAD,     1\n"
            "\t\n" +
                kAnalysisControl +
                "*SPEC-CTRL    ; Response Spectrum Analysis Control\n"
                "; TYPE, DAMPING, bADDSIGN\n"
                "\tCQC,  0.05,    NO\n"
                "\n" +
                kEigenvalueHeader +
                "\tEIGEN,     0,    20,     0, 1e-09\n"
                "\n\n"
                "*BUCK-CTRL    ; Buckling Analysis Control\n"
                "; iMODENUM, iITER, TOL                 ; line 1\n"
                "; LCNAME1, FACT1, LCNAME2, FACT2, ...  ; from line 2\n"
                "\t6,    30, 1e-09\n"
                "\t\t DEAD,     1\n"
                "\n");
}

// ---- Walk ----

/// The names of the time functions in the order of the output.
std::vector<std::string> TimeFunctions(const ConversionRun& run) {
  const std::string opening = "\tFUNC=";
  std::vector<std::string> names;
  for (std::size_t at = run.Output.find(opening); at != std::string::npos;
       at = run.Output.find(opening, at + 1)) {
    const std::size_t begin = at + opening.size();
    names.push_back(run.Output.substr(begin, run.Output.find(',', begin) - begin));
  }
  return names;
}

TEST(AnalysisCases, WalkIsNotThatOfTheFile) {
  // A direct history takes a function only if a modal one has brought it in before. Keys 1, 2 are
  // walked in the order 2, 1.
  const std::string histories = R"(
TABLE:  "CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS"
   Case=C   LoadType="Load case"   LoadName=DEAD   Function=PULSE   LoadSF=1   TimeFactor=1

TABLE:  "CASE - DIRECT HISTORY 2 - LOAD ASSIGNMENTS"
   Case=C   LoadType="Load case"   LoadName=DEAD   Function=PULSE   LoadSF=1   TimeFactor=1

TABLE:  "FUNCTION - TIME HISTORY - USER"
   Name=PULSE   Time=0   Value=0
   Name=PULSE   Time=1   Value=1

)";
  EXPECT_THAT(TimeFunctions(ConvertAnalyses({"Case=C   Type=LinModHist", "Case=C   Type=LinDirHis"},
                                            kTablesOfAllKinds + histories)),
              ElementsAre("PULSE"));
  EXPECT_THAT(TimeFunctions(ConvertAnalyses({"Case=C   Type=LinDirHis", "Case=C   Type=LinModHist"},
                                            kTablesOfAllKinds + histories)),
              ElementsAre("PULSE", "PULSE"));
}

TEST(AnalysisCases, CaseThatFailsDoesNotStopTheWalk) {
  struct Failing {
    const char* Row;
    const char* Tables;
  };
  const std::vector<Failing> failures = {
      // a modal history without definitions
      {"Case=GONE   Type=LinModHist", ""},
      // a buckling case with an acceleration
      {"Case=GONE   Type=LinBuckling",
       "TABLE:  \"CASE - BUCKLING 1 - GENERAL\"\n"
       "   Case=GONE   NumBuckMode=6\n"
       "\n"
       "TABLE:  \"CASE - BUCKLING 2 - LOAD ASSIGNMENTS\"\n"
       "   Case=GONE   LoadType=Accel   LoadName=\"Accel UX\"\n"
       "\n"},
  };
  const std::string masses =
      "TABLE:  \"MASSES 1 - MASS SOURCE\"\n"
      "   MassFrom=Elements\n";
  // Key 2 comes first in the walk.
  for (const auto& [row, tables] : failures) {
    SCOPED_TRACE(row);
    const ConversionRun run = ConvertAnalyses({"Case=MODAL   Type=LinModal", row}, tables + masses);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_THAT(run.Lines("*STRUCTYPE"), ElementsAre("\t0,     1, 9.806,     0,    NO,    NO"));
    EXPECT_EQ(run.Body(), kAnalysisControl + kEigenvalueHeader + "\n\n" + "\n\n");
  }
}

}  // namespace
