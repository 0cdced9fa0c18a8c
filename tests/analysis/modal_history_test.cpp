#include "support/conversion_run.h"
#include "support/time_histories.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr const char* kDampingLost = "IDS_S2KV8_MDHT_IntpDamp_Not_Convert";
constexpr const char* kDataLost = "IDS_S2KV8_THLC_Data_Not_Convert";

std::string Analyses(std::string_view rows) {
  return SourceTable("ANALYSIS CASE DEFINITIONS", rows);
}
std::string Definitions(std::string_view rows) {
  return SourceTable("CASE - MODAL HISTORY 1 - GENERAL", rows);
}
std::string Dampings(std::string_view rows) {
  return SourceTable("CASE - MODAL HISTORY 4 - PROPORTIONAL DAMPING", rows);
}
std::string Modes(std::string_view rows) {
  return SourceTable("CASE - MODAL HISTORY 5 - DAMPING OVERRIDES", rows);
}
std::string Parameters(std::string_view rows) {
  return SourceTable("CASE - MODAL HISTORY 6 - NONLINEAR PARAMETERS", rows);
}

const std::string kLinear = Analyses("   Case=QUAKE   Type=LinModHist   InitialCond=Zero\n");
const std::string kNonlinear = Analyses("   Case=QUAKE   Type=NonModHist   InitialCond=Zero\n");
const std::string kConstant = Definitions(
    "   Case=QUAKE   HistoryType=Transient   DampingType=Constant   OutSteps=100   "
    "StepSize=0.02   ConstDamp=0.05\n");

/// A constant case of another name, by which the section has a record.
const std::string kLinearAndAnother = Analyses(
    "   Case=QUAKE   Type=LinModHist   InitialCond=Zero\n"
    "   Case=WIND   Type=LinModHist   InitialCond=Zero\n");
const std::string kAnother = "   Case=WIND   DampingType=Constant\n";

TEST(ModalHistory, LinearCaseWritesTheWholeSection) {
  const ConversionRun run = Convert(kLinear + kConstant);
  EXPECT_EQ(run.Between("*THLDCASE", "*ENDDATA"),
            "*THLDCASE   ; Time History Load Cases\n"
            "; NAME=NAME, DESC                                                  ; line 1\n"
            ";      ETIME, INC, iOUT, iICOND, FSPLC, iATYPE, iAMETHOD, iTHTYPE  ; line 2\n"
            ";      iMDTYPE, [DR-DC], [TIP], [NACP]                             ; line 3\n"
            ";      iMODE1, DAMPING1, iMODE2, DAMPING2, ...                     ; from line 4\n"
            "; [DR-DC] : DALL                                                   ; iMDTYPE=1\n"
            ";         : iCOEF, bMASSP, MASSC, bSTIFFP, STIFFC                  ; iMDTYPE=2, "
            "iCOEF=1\n"
            ";         : iCOEF, iCALC, bMASSP, FP1, DR1, bSTIFFP, FP2, DR2      ; iMDTYPE=2, "
            "iCOEF=2\n"
            "; [TIP]   : iNMM, GAMMA, BETA                                      ; iAMETHOD=2\n"
            "; [NACP]  : MINSSS, iMAXITER, CONVTOL                              ; iATYPE=2\n"
            "\tNAME=QUAKE,      \n"
            "\t\t2,  0.02,     1,     1,      ,     1,     1,     1\n"
            "\t\t1, 0.05, 1, , , , ,\n"
            "\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(ModalHistory, NonlinearCaseTakesItsStepAndItsLimitsFromTheParametersOfItsCase) {
  const std::string parameters = Parameters(
      "   Case=OTHER   DTMax=7   DTMin=7   ForceItMax=7   FConvTol=7\n"
      "   Case=OTHER   DTMax=8   DTMin=8   ForceItMax=8   FConvTol=8\n"
      "   Case=QUAKE   DTMax=0.5   DTMin=0.001   ForceItMax=20   ForceItMin=2   "
      "EConvTol=0.3   FConvTol=0.00001\n");
  EXPECT_THAT(
      HistoryLines(Convert(kNonlinear + kConstant + parameters)),
      ElementsAre("\tNAME=QUAKE,      ", "\t\t2,   0.5,    50,     1,      ,     2,     1,     1",
                  "\t\t1, 0.05, 1, , ,0.001,    20, 1e-05"));
  // A linear case does not look at them.
  EXPECT_THAT(
      HistoryLines(Convert(kLinear + kConstant + parameters)),
      ElementsAre("\tNAME=QUAKE,      ", "\t\t2,  0.02,     1,     1,      ,     1,     1,     1",
                  "\t\t1, 0.05, 1, , , , ,"));
}

TEST(ModalHistory, FirstRowOfParametersAndOfDampingIsThatOfTheWalk) {
  // Rows 1 and 2 are walked 2, 1.
  const ConversionRun run = Convert(
      kNonlinear +
      Definitions("   Case=QUAKE   DampingType=Pro-Direct   OutSteps=10   StepSize=1\n") +
      Dampings("   Case=QUAKE   SpecifyType=Direct   MassCoeff=0.1\n"
               "   Case=QUAKE   SpecifyType=Direct   MassCoeff=0.2\n") +
      Parameters("   Case=QUAKE   DTMax=0.1   DTMin=0.01   ForceItMax=10   FConvTol=0.1\n"
                 "   Case=QUAKE   DTMax=0.2   DTMin=0.02   ForceItMax=20   FConvTol=0.2\n"));
  EXPECT_THAT(
      HistoryLines(run),
      ElementsAre("\tNAME=QUAKE,      ", "\t\t10,   0.2,     2,     1,      ,     2,     1,     2",
                  "\t\t2,\t\t1,   YES,  0.2   NO, , 1, , , 0.02,    20,   0.2"));
}

TEST(ModalHistory, NonlinearOutputStepIsTheProductOfStepsAndLongestStep) {
  struct Sample {
    const char* OutSteps;
    const char* DTMax;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"100", "0.5", "\t\t2,   0.5,    50,     1,      ,     2,     1,     2"},
      {"100", "0.29", "\t\t2,  0.29,    28,     1,      ,     2,     1,     2"},
      {"7", "0.1", "\t\t0.14,   0.1,     0,     1,      ,     2,     1,     2"},
      {"3.9", "2", "\t\t0.06,     2,     6,     1,      ,     2,     1,     2"},
      {"-3", "0.5", "\t\t-0.06,   0.5,    -1,     1,      ,     2,     1,     2"},
      {"100000", "1e6", "\t\t2000, 1e+06, 2147483647,     1,      ,     2,     1,     2"},
      {"-100000", "1e6", "\t\t-2000, 1e+06, -2147483648,     1,      ,     2,     1,     2"},
      {"100", "inf", "\t\t2,   inf, 2147483647,     1,      ,     2,     1,     2"},
      {"100", "nan", "\t\t2,   nan,     0,     1,      ,     2,     1,     2"},
      {"1e12", "1", "\t\t4.29497e+07,     1, 2147483647,     1,      ,     2,     1,     2"}};
  for (const auto& [steps, longest, line] : samples) {
    SCOPED_TRACE(std::string(steps) + " of " + longest);
    const ConversionRun run =
        Convert(kNonlinear +
                Definitions("   Case=QUAKE   DampingType=Constant   StepSize=0.02   OutSteps=" +
                            std::string(steps) + "\n") +
                Parameters("   Case=QUAKE   DTMax=" + std::string(longest) + "\n"));
    EXPECT_EQ(HistoryLine(run, 2), line);
  }
}

TEST(ModalHistory, NonlinearCaseWithoutParametersMultipliesItsOwnStep) {
  const std::string definition =
      Definitions("   Case=QUAKE   DampingType=Constant   OutSteps=100   StepSize=0.5\n");
  for (const std::string& parameters :
       {std::string(), Parameters("   Case=OTHER   DTMax=7   DTMin=7   ForceItMax=7\n")}) {
    SCOPED_TRACE(parameters);
    EXPECT_THAT(HistoryLines(Convert(kNonlinear + definition + parameters)),
                ElementsAre("\tNAME=QUAKE,      ",
                            "\t\t50,   0.5,    50,     1,      ,     2,     1,     2",
                            "\t\t1,    0, 1, , ,    0,     0,     0"));
  }
}

TEST(ModalHistory, DefinitionWithoutNumbersHasOneStepOfNoLength) {
  EXPECT_THAT(
      HistoryLines(Convert(kLinear + Definitions("   Case=QUAKE   DampingType=Constant\n"))),
      ElementsAre("\tNAME=QUAKE,      ", "\t\t0,     0,     1,     1,      ,     1,     1,     2",
                  "\t\t1,    0, 1, , , , ,"));
}

TEST(ModalHistory, InitialConditionOtherThanZeroIsTheNameOfACase) {
  struct Sample {
    const char* InitialCond;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"InitialCond=Zero", "\t\t2,  0.02,     1,     1,      ,     1,     1,     1"},
      {"InitialCond=GRAV", "\t\t2,  0.02,     1,     2,  GRAV,     1,     1,     1"},
      {"InitialCond=PDELTA", "\t\t2,  0.02,     1,     2, PDELTA,     1,     1,     1"},
      {"InitialCond=zero", "\t\t2,  0.02,     1,     2,  zero,     1,     1,     1"},
      {"", "\t\t2,  0.02,     1,     2,      ,     1,     1,     1"}};
  for (const auto& [condition, line] : samples) {
    SCOPED_TRACE(condition);
    const ConversionRun run = Convert(
        Analyses("   Case=QUAKE   Type=LinModHist   " + std::string(condition) + "\n") + kConstant);
    EXPECT_EQ(HistoryLine(run, 2), line);
  }
}

TEST(ModalHistory, OnlyTransientIsNotPeriodic) {
  struct Sample {
    const char* HistoryType;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"HistoryType=Transient", "\t\t0,     0,     1,     1,      ,     1,     1,     1"},
      {"HistoryType=Periodic", "\t\t0,     0,     1,     1,      ,     1,     1,     2"},
      {"HistoryType=transient", "\t\t0,     0,     1,     1,      ,     1,     1,     2"},
      {"", "\t\t0,     0,     1,     1,      ,     1,     1,     2"}};
  for (const auto& [type, line] : samples) {
    SCOPED_TRACE(type);
    const ConversionRun run =
        Convert(kLinear +
                Definitions("   Case=QUAKE   DampingType=Constant   " + std::string(type) + "\n"));
    EXPECT_EQ(HistoryLine(run, 2), line);
  }
}

TEST(ModalHistory, DampingTypeSaysWhereTheValuesGoAndSpecifyTypeWhichTheyAre) {
  struct Sample {
    const char* DampingType;
    const char* SpecifyType;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"Pro-Direct", "Direct", "\t\t2,\t\t1,   YES,  0.3  YES, 0.02 1, , , , ,"},
      {"Pro-Direct", "Period", "\t\t2,\t\t1,   YES,  0.5   NO, , 1, , , , ,"},
      {"Pro-Direct", "Frequency", "\t\t2,\t\t1,   YES,    2   NO, , 1, , , , ,"},
      {"Pro-Period", "Direct",
       "\t\t2,\t\t2,     2,   YES,  0.3,  0.02,  YES,    0,     0, 1, , , , ,"},
      {"Pro-Period", "Period", "\t\t2,\t\t2,     2,   YES,  0.1,  0.03,   NO, , , 1, , , , ,"},
      {"Pro-Period", "Frequency", "\t\t2,\t\t2,     2,   YES,   10,  0.03,   NO, , , 1, , , , ,"},
      {"Pro-Freq", "Direct",
       "\t\t2,\t\t2,     1,   YES,  0.3,  0.02,  YES,    0,     0, 1, , , , ,"},
      {"Pro-Freq", "Period", "\t\t2,\t\t2,     1,   YES,  0.1,  0.03,   NO, , , 1, , , , ,"},
      {"Pro-Freq", "Frequency", "\t\t2,\t\t2,     1,   YES,   10,  0.03,   NO, , , 1, , , , ,"}};
  for (const auto& [dampingType, specifyType, line] : samples) {
    SCOPED_TRACE(std::string(dampingType) + ", " + specifyType);
    // Modes are for a constant damping alone.
    const ConversionRun run = Convert(
        kLinear + Definitions("   Case=QUAKE   DampingType=" + std::string(dampingType) + "\n") +
        Dampings("   Case=OTHER   SpecifyType=Direct   MassCoeff=9   StiffCoeff=9\n"
                 "   Case=OTHER   SpecifyType=Direct   MassCoeff=8   StiffCoeff=8\n"
                 "   Case=QUAKE   MassCoeff=0.3   StiffCoeff=0.02   Period1=0.5   Frequency1=2   "
                 "Damping1=0.03   Period2=0.1   Frequency2=10   Damping2=0.04   SpecifyType=" +
                 std::string(specifyType) + "\n") +
        Modes("   Case=QUAKE   Mode=1   Damping=0.01\n"));
    EXPECT_THAT(HistoryLines(run),
                ElementsAre("\tNAME=QUAKE,      ",
                            "\t\t0,     0,     1,     1,      ,     1,     1,     2", line));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(ModalHistory, CoefficientThatIsAbsentLeavesItsSlotsAsTheyAre) {
  struct Sample {
    const char* DampingType;
    const char* Damping;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"Pro-Direct", "SpecifyType=Direct   MassCoeff=0.3",
       "\t\t2,\t\t1,   YES,  0.3   NO, , 1, , , , ,"},
      {"Pro-Direct", "SpecifyType=Direct   StiffCoeff=0.02",
       "\t\t2,\t\t1,    NO, ,  YES, 0.02 1, , , , ,"},
      {"Pro-Direct", "SpecifyType=Period   StiffCoeff=0.02",
       "\t\t2,\t\t1,   YES,    0   NO, , 1, , , , ,"},
      {"Pro-Period", "SpecifyType=Direct   MassCoeff=0.3",
       "\t\t2,\t\t2,     2,   YES,  0.3,     0,   NO, , , 1, , , , ,"},
      {"Pro-Freq", "SpecifyType=Direct   StiffCoeff=0.02",
       "\t\t2,\t\t2,     1,    NO, , ,  YES,    0,     0, 1, , , , ,"},
      {"Pro-Period", "SpecifyType=Period   MassCoeff=0.3",
       "\t\t2,\t\t2,     2,   YES,  0.5,  0.03,   NO, , , 1, , , , ,"},
      {"Pro-Period", "SpecifyType=Period   StiffCoeff=0.02",
       "\t\t2,\t\t2,     2,   YES,  0.1,     0,   NO, , , 1, , , , ,"},
      {"Pro-Freq", "SpecifyType=Frequency   MassCoeff=0.3",
       "\t\t2,\t\t2,     1,   YES,    2,  0.03,   NO, , , 1, , , , ,"},
      {"Pro-Freq", "SpecifyType=Frequency   StiffCoeff=0.02",
       "\t\t2,\t\t2,     1,   YES,   10,     0,   NO, , , 1, , , , ,"},
      // What is smaller than 1e-15, whatever its sign, is absent.
      {"Pro-Direct", "SpecifyType=Direct   MassCoeff=1e-15   StiffCoeff=9e-16",
       "\t\t2,\t\t1,   YES,1e-15   NO, , 1, , , , ,"},
      {"Pro-Direct", "SpecifyType=Direct   MassCoeff=-9e-16   StiffCoeff=-0.5",
       "\t\t2,\t\t1,    NO, ,  YES, -0.5 1, , , , ,"}};
  for (const auto& [dampingType, damping, line] : samples) {
    SCOPED_TRACE(std::string(dampingType) + ", " + damping);
    const ConversionRun run = Convert(
        kLinear + Definitions("   Case=QUAKE   DampingType=" + std::string(dampingType) + "\n") +
        Dampings("   Case=QUAKE   Period1=0.5   Frequency1=2   Damping1=0.03   Period2=0.1   "
                 "Frequency2=10   Damping2=0.04   " +
                 std::string(damping) + "\n"));
    EXPECT_EQ(HistoryLine(run, 3), line);
  }
}

TEST(ModalHistory, CaseWhoseProportionalDampingIsNoneIsLostWithAMessage) {
  const std::string noRows = "";
  for (const std::string& dampings :
       {noRows, Dampings("   Case=quake   SpecifyType=Direct   MassCoeff=0.3   StiffCoeff=0.02\n"),
        Dampings("   Case=QUAKE   SpecifyType=Direct   MassCoeff=0   StiffCoeff=1e-16\n"),
        Dampings("   Case=QUAKE   SpecifyType=Period   Period1=1   Period2=0.1   Damping1=0.05\n"),
        Dampings("   Case=QUAKE   SpecifyType=Both   MassCoeff=0.3   StiffCoeff=0.02\n"),
        Dampings("   Case=QUAKE   MassCoeff=0.3   StiffCoeff=0.02\n")}) {
    for (const char* type : {"Pro-Direct", "Pro-Period", "Pro-Freq"}) {
      SCOPED_TRACE(type + dampings);
      const std::string lost = "   Case=QUAKE   DampingType=" + std::string(type) + "\n";
      const ConversionRun alone = Convert(kLinear + Definitions(lost) + dampings);
      EXPECT_EQ(alone.Output.find("*THLDCASE"), std::string::npos);
      EXPECT_THAT(alone.Messages, IsEmpty());

      const ConversionRun withAnother =
          Convert(kLinearAndAnother + Definitions(lost + kAnother) + dampings);
      EXPECT_EQ(HistoryLines(withAnother).size(), 3U);
      EXPECT_EQ(HistoryLine(withAnother, 1), "\tNAME=WIND,      ");
      EXPECT_THAT(withAnother.Messages, ElementsAre(kDataLost));
    }
  }
}

TEST(ModalHistory, CaseOfAnyOtherDampingTypeIsLostWithAMessage) {
  for (const char* type : {"DampingType=Interpolated", "DampingType=constant",
                           "DampingType=\"Pro Direct\"", "HistoryType=Transient"}) {
    SCOPED_TRACE(type);
    const std::string lost = "   Case=QUAKE   OutSteps=10   " + std::string(type) + "\n";
    // Its damping by period is read and has no place to go.
    const std::string points = SourceTable(
        "CASE - MODAL HISTORY 3 - INTERPOLATED DAMPING",
        "   Case=QUAKE   Period=0.1   Damping=0.02\n   Case=QUAKE   Period=1   Damping=0.05\n");
    const ConversionRun alone = Convert(kLinear + Definitions(lost) + points);
    EXPECT_EQ(alone.Output.find("*THLDCASE"), std::string::npos);
    EXPECT_THAT(alone.Messages, IsEmpty());

    const ConversionRun withAnother =
        Convert(kLinearAndAnother + Definitions(lost + kAnother) + points);
    EXPECT_EQ(HistoryLines(withAnother).size(), 3U);
    EXPECT_EQ(HistoryLine(withAnother, 1), "\tNAME=WIND,      ");
    EXPECT_THAT(withAnother.Messages, ElementsAre(kDampingLost));
  }
}

TEST(ModalHistory, ModesStandInLinesOfThreeInTheOrderOfTheWalk) {
  struct Sample {
    std::size_t Modes;
    std::vector<std::string> Lines;
  };
  const std::vector<std::string> rows = {
      "   Case=QUAKE   Mode=1   Damping=0.01\n", "   Case=QUAKE   Mode=2   Damping=0.02\n",
      "   Case=QUAKE   Mode=3   Damping=0.03\n", "   Case=QUAKE   Mode=4   Damping=0.04\n",
      "   Case=QUAKE   Mode=5   Damping=0.05\n", "   Case=QUAKE   Mode=6   Damping=0.06\n",
      "   Case=QUAKE   Mode=7   Damping=0.07\n"};
  const std::string line1 = "\tNAME=QUAKE,      ";
  const std::string line2 = "\t\t2,  0.02,     1,     1,      ,     1,     1,     1";
  const std::string line3 = "\t\t1, 0.05, 1, , , , ,";
  // Rows 1 to 7 are walked 5, 2, 7, 4, 1, 6, 3.
  const std::vector<Sample> samples = {
      {1, {line1, line2, line3, "\t\t    1,  0.01"}},
      {3, {line1, line2, line3, "\t\t    2,  0.02,    1,  0.01,    3,  0.03"}},
      {4, {line1, line2, line3, "\t\t    2,  0.02,    4,  0.04,    1,  0.01", "\t\t    3,  0.03"}},
      {7,
       {line1, line2, line3, "\t\t    5,  0.05,    2,  0.02,    7,  0.07",
        "\t\t    4,  0.04,    1,  0.01,    6,  0.06", "\t\t    3,  0.03"}}};
  for (const auto& [modes, lines] : samples) {
    SCOPED_TRACE(modes);
    std::string text;
    for (std::size_t index = 0; index < modes; ++index) {
      text += rows[index];
    }
    const ConversionRun run = Convert(kLinear + kConstant + Modes(text));
    EXPECT_THAT(HistoryLines(run), ElementsAreArray(lines));
  }
}

TEST(ModalHistory, ModeIsTheIntegerThatItsTextBeginsWith) {
  // Rows 1 to 6 are walked 5, 2, 4, 1, 6, 3; those of other cases have no part.
  const ConversionRun run = Convert(kLinear + kConstant +
                                    Modes("   Case=QUAKE   Mode=99999999999   Damping=0.1\n"
                                          "   Case=QUAKE   Mode=2.9   Damping=0.2\n"
                                          "   Case=QUAKE   Mode=-99999999999   Damping=0.3\n"
                                          "   Case=QUAKE   Mode=\"Mode 3\"   Damping=0.4\n"
                                          "   Case=quake   Mode=5   Damping=0.5\n"
                                          "   Case=QUAKE   Damping=0.6\n"));
  EXPECT_EQ(HistoryLine(run, 4), "\t\t    2,   0.2,    0,   0.4,2147483647,   0.1");
  EXPECT_EQ(HistoryLine(run, 5), "\t\t    0,   0.6,-2147483648,   0.3");
}

TEST(ModalHistory, RecordCarriesOverBetweenDefinitionsOfOneNameWithItsModes) {
  // Definitions 1, 2, 3 are walked 2, 1, 3; the records of keys 1 and 2 are written 2, 1. The
  // definition between the two gives no record, and the walk goes on.
  const ConversionRun run = Convert(
      kLinear +
      Definitions("   Case=QUAKE   DampingType=Interpolated   OutSteps=1   StepSize=1\n"
                  "   Case=QUAKE   DampingType=Constant   OutSteps=2   StepSize=1   ConstDamp=0.2\n"
                  "   Case=QUAKE   DampingType=Constant   OutSteps=3   StepSize=1   "
                  "ConstDamp=0.3\n") +
      Modes("   Case=QUAKE   Mode=1   Damping=0.01\n   Case=QUAKE   Mode=2   Damping=0.02\n"));
  EXPECT_THAT(
      HistoryLines(run),
      ElementsAre("\tNAME=QUAKE,      ", "\t\t3,     1,     1,     1,      ,     1,     1,     2",
                  "\t\t1,  0.3, 1, , , , ,", "\t\t    2,  0.02,    1,  0.01,    2,  0.02",
                  "\t\t    1,  0.01", "\tNAME=QUAKE,      ",
                  "\t\t2,     1,     1,     1,      ,     1,     1,     2",
                  "\t\t1,  0.2, 1, , , , ,", "\t\t    2,  0.02,    1,  0.01"));
  EXPECT_THAT(run.Messages, ElementsAre(kDampingLost));
}

TEST(ModalHistory, ModesOfAConstantDefinitionStayWithAProportionalOneBehindIt) {
  // Definitions 1 and 2 are walked 2, 1; the records of keys 1 and 2 are written 2, 1.
  const ConversionRun run =
      Convert(kLinear +
              Definitions("   Case=QUAKE   DampingType=Pro-Direct\n"
                          "   Case=QUAKE   DampingType=Constant   ConstDamp=0.2\n") +
              Dampings("   Case=QUAKE   SpecifyType=Direct   MassCoeff=0.3\n") +
              Modes("   Case=QUAKE   Mode=1   Damping=0.01\n"));
  const std::string line2 = "\t\t0,     0,     1,     1,      ,     1,     1,     2";
  EXPECT_THAT(HistoryLines(run), ElementsAre("\tNAME=QUAKE,      ", line2,
                                             "\t\t2,\t\t1,   YES,  0.3   NO, , 1, , , , ,",
                                             "\t\t    1,  0.01", "\tNAME=QUAKE,      ", line2,
                                             "\t\t1,  0.2, 1, , , , ,", "\t\t    1,  0.01"));
}

TEST(ModalHistory, MissingDampingEndsTheWalkOverTheDefinitionsOfTheCase) {
  const std::string constant = "   Case=QUAKE   DampingType=Constant\n";
  const std::string lost = "   Case=QUAKE   DampingType=Pro-Freq\n";
  // Definitions 1 and 2 are walked 2, 1.
  EXPECT_THAT(HistoryLines(Convert(kLinear + Definitions(constant + lost))), IsEmpty());
  const ConversionRun run = Convert(kLinear + Definitions(lost + constant));
  EXPECT_EQ(HistoryLines(run).size(), 3U);
  EXPECT_THAT(run.Messages, ElementsAre(kDataLost));
}

TEST(ModalHistory, DefinitionOfAnotherDampingTellsOfItselfOnlyWhenTheWalkMeetsIt) {
  const std::string other = "   Case=QUAKE   DampingType=Interpolated\n";
  const std::string missing = "   Case=QUAKE   DampingType=Pro-Freq\n";
  // Definitions 1, 2, 3 are walked 2, 1, 3; the one whose damping is missing ends the walk.
  EXPECT_THAT(Convert(kLinearAndAnother + Definitions(other + missing + kAnother)).Messages,
              ElementsAre(kDataLost));
  EXPECT_THAT(Convert(kLinearAndAnother + Definitions(missing + other + kAnother)).Messages,
              ElementsAre(kDampingLost, kDataLost));
}

TEST(ModalHistory, CaseThatStandsTwiceAmongTheAnalysesStartsAfresh) {
  // Analysis cases 1 and 2 are walked 2, 1; the records of keys 1 and 2 are written 2, 1.
  const ConversionRun run =
      Convert(Analyses("   Case=QUAKE   Type=LinModHist   InitialCond=Zero\n"
                       "   Case=QUAKE   Type=NonModHist   InitialCond=GRAV\n") +
              kConstant + Modes("   Case=QUAKE   Mode=1   Damping=0.01\n"));
  EXPECT_THAT(
      HistoryLines(run),
      ElementsAre("\tNAME=QUAKE,      ", "\t\t2,  0.02,     1,     1,      ,     1,     1,     1",
                  "\t\t1, 0.05, 1, , , , ,", "\t\t    1,  0.01", "\tNAME=QUAKE,      ",
                  "\t\t2,  0.02,     2,     2,  GRAV,     2,     1,     1",
                  "\t\t1, 0.05, 1, , ,    0,     0,     0", "\t\t    1,  0.01"));
}

TEST(ModalHistory, CasesComeInTheOrderOfTheWalkOverTheirKeys) {
  // Analysis cases 1, 2, 3 are walked 2, 1, 3, which are the keys 1, 2, 3; those are written
  // 3, 2, 1. A name must be the very same.
  const ConversionRun run =
      Convert(Analyses("   Case=TH1   Type=LinModHist   InitialCond=Zero\n"
                       "   Case=TH2   Type=LinModHist   InitialCond=Zero\n"
                       "   Case=TH3   Type=LinModHist   InitialCond=Zero\n"
                       "   Case=th1   Type=LinModHist   InitialCond=Zero\n") +
              Definitions("   Case=TH1   DampingType=Constant\n   Case=TH2   DampingType=Constant\n"
                          "   Case=TH3   DampingType=Constant\n"));
  ASSERT_EQ(HistoryLines(run).size(), 9U);
  EXPECT_EQ(HistoryLine(run, 1), "\tNAME=TH3,      ");
  EXPECT_EQ(HistoryLine(run, 4), "\tNAME=TH1,      ");
  EXPECT_EQ(HistoryLine(run, 7), "\tNAME=TH2,      ");
}

TEST(ModalHistory, OnlyAConvertedCaseNeedsTheAnalysisControl) {
  EXPECT_NE(Convert(kLinear + kConstant).Section("*ANAL-CTRL"), "");
  EXPECT_EQ(Convert(kLinear + Definitions("   Case=QUAKE   DampingType=Interpolated\n"))
                .Section("*ANAL-CTRL"),
            "");
  EXPECT_EQ(Convert(kLinear).Section("*ANAL-CTRL"), "");
}

TEST(ModalHistory, MessagesComeOnceEachFunctionsFirst) {
  const ConversionRun run =
      Convert(Analyses("   Case=INTP1   Type=LinModHist   InitialCond=Zero\n"
                       "   Case=INTP2   Type=LinModHist   InitialCond=Zero\n"
                       "   Case=NODAMP1   Type=LinModHist   InitialCond=Zero\n"
                       "   Case=NODAMP2   Type=LinModHist   InitialCond=Zero\n"
                       "   Case=WILSON   Type=LinDirHis   InitialCond=Zero\n"
                       "   Case=QUAKE   Type=LinModHist   InitialCond=Zero\n") +
              Definitions("   Case=INTP1   DampingType=Interpolated\n"
                          "   Case=INTP2   DampingType=Interpolated\n"
                          "   Case=NODAMP1   DampingType=Pro-Direct\n"
                          "   Case=NODAMP2   DampingType=Pro-Freq\n"
                          "   Case=QUAKE   DampingType=Constant\n") +
              SourceTable("CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS",
                          "   Case=QUAKE   LoadType=Accel   Function=SINE\n"
                          "   Case=QUAKE   LoadType=Accel   Function=PULSE\n") +
              SourceTable("CASE - DIRECT HISTORY 1 - GENERAL",
                          "   Case=WILSON   OutSteps=10   StepSize=1\n") +
              SourceTable("CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING",
                          "   Case=WILSON   SpecifyType=Direct   MassCoeff=0.3\n") +
              SourceTable("CASE - DIRECT HISTORY 4 - INTEGRATION PARAMETERS",
                          "   Case=WILSON   IntMethod=Wilson   Theta=1.4\n") +
              SourceTable("FUNCTION - TIME HISTORY - USER", "   Name=PULSE   Time=0   Value=1\n"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_TMHT_Func_Not_Convert", kDampingLost, kDataLost,
                                        "IDS_S2KV8_TMHT_NewMark_Only_Convert"));
}

}  // namespace
