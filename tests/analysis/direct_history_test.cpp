#include "support/conversion_run.h"
#include "support/time_histories.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kDataLost = "IDS_S2KV8_THLC_Data_Not_Convert";
constexpr const char* kMethodLost = "IDS_S2KV8_TMHT_NewMark_Only_Convert";

std::string Analyses(std::string_view rows) {
  return SourceTable("ANALYSIS CASE DEFINITIONS", rows);
}
std::string Definitions(std::string_view rows) {
  return SourceTable("CASE - DIRECT HISTORY 1 - GENERAL", rows);
}
std::string Dampings(std::string_view rows) {
  return SourceTable("CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING", rows);
}
std::string Methods(std::string_view rows) {
  return SourceTable("CASE - DIRECT HISTORY 4 - INTEGRATION PARAMETERS", rows);
}
std::string Parameters(std::string_view rows) {
  return SourceTable("CASE - DIRECT HISTORY 5 - NONLINEAR PARAMETERS", rows);
}

const std::string kLinear = Analyses("   Case=BLAST   Type=LinDirHis   InitialCond=Zero\n");
const std::string kNonlinear = Analyses("   Case=BLAST   Type=NonDirHist   InitialCond=Zero\n");
const std::string kDefinition = Definitions("   Case=BLAST   OutSteps=100   StepSize=0.02\n");
const std::string kDamping =
    Dampings("   Case=BLAST   SpecifyType=Direct   MassCoeff=0.3   StiffCoeff=0.02\n");
const std::string kMethod = Methods("   Case=BLAST   IntMethod=Newmark   Gamma=0.5   Beta=0.25\n");

/// A modal case, by which the section has a record of three lines.
const std::string kLinearAndModal = Analyses(
    "   Case=BLAST   Type=LinDirHis   InitialCond=Zero\n"
    "   Case=WIND   Type=LinModHist   InitialCond=Zero\n");
const std::string kModal =
    SourceTable("CASE - MODAL HISTORY 1 - GENERAL", "   Case=WIND   DampingType=Constant\n");

TEST(DirectHistory, LinearCaseWritesTheWholeSection) {
  const ConversionRun run = Convert(kLinear + kDefinition + kDamping + kMethod);
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
            "\tNAME=BLAST,      \n"
            "\t\t2,  0.02,     1,     1,      ,     1,     2,     1\n"
            "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    3,   0.5,  0.25, , ,\n"
            "\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(DirectHistory, NonlinearCaseTakesItsStepAndItsLimitsFromTheParametersOfItsCase) {
  // Rows 1 to 3 are walked 2, 1, 3: of the two of the case, the first counts.
  const std::string parameters = Parameters(
      "   Case=BLAST   DTMax=2   DTMin=0.001   MaxIter=25   ItConvTol=0.0001   "
      "EvLumpTol=0.01   GeoNonLin=None\n"
      "   Case=OTHER   DTMax=7   DTMin=7   MaxIter=7   ItConvTol=7\n"
      "   Case=BLAST   DTMax=8   DTMin=8   MaxIter=8   ItConvTol=8\n");
  EXPECT_THAT(
      HistoryLines(Convert(kNonlinear + kDefinition + kDamping + kMethod + parameters)),
      ElementsAre("\tNAME=BLAST,      ", "\t\t2,     2,    50,     1,      ,     2,     2,     1",
                  "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    3,   0.5,  0.25,0.001,    25, "
                  "0.0001"));
  // A linear case does not look at them.
  EXPECT_THAT(
      HistoryLines(Convert(kLinear + kDefinition + kDamping + kMethod + parameters)),
      ElementsAre("\tNAME=BLAST,      ", "\t\t2,  0.02,     1,     1,      ,     1,     2,     1",
                  "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    3,   0.5,  0.25, , ,"));
}

TEST(DirectHistory, NonlinearOutputStepIsTheWholeQuotientOfStepsByLongestStep) {
  struct Sample {
    const char* OutSteps;
    const char* DTMax;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"100", "2", "\t\t100,     2,    50,     1,      ,     2,     2,     1"},
      {"7", "2", "\t\t7,     2,     3,     1,      ,     2,     2,     1"},
      {"-7", "2", "\t\t-7,     2,    -3,     1,      ,     2,     2,     1"},
      {"100", "-3", "\t\t100,    -3,   -33,     1,      ,     2,     2,     1"},
      {"100", "2.9", "\t\t100,   2.9,    50,     1,      ,     2,     2,     1"},
      {"3", "5", "\t\t3,     5,     0,     1,      ,     2,     2,     1"},
      {"7.9", "1", "\t\t7,     1,     7,     1,      ,     2,     2,     1"},
      // A divisor of zero gives zero.
      {"100", "0", "\t\t100,     0,     0,     1,      ,     2,     2,     1"},
      {"100", "0.5", "\t\t100,   0.5,     0,     1,      ,     2,     2,     1"},
      {"100", "-0.5", "\t\t100,  -0.5,     0,     1,      ,     2,     2,     1"},
      {"100", "nan", "\t\t100,   nan,     0,     1,      ,     2,     2,     1"},
      // What an integer does not hold is its end.
      {"-2147483648", "-1",
       "\t\t-2.14748e+09,    -1, 2147483647,     1,      ,     2,     2,     1"},
      {"2147483647", "1", "\t\t2.14748e+09,     1, 2147483647,     1,      ,     2,     2,     1"},
      {"1e12", "1e10", "\t\t2.14748e+09, 1e+10,     1,     1,      ,     2,     2,     1"},
      {"1e12", "2", "\t\t2.14748e+09,     2, 1073741823,     1,      ,     2,     2,     1"},
      {"2147483647", "-inf", "\t\t2.14748e+09,  -inf,     0,     1,      ,     2,     2,     1"},
      {"-1e12", "inf", "\t\t-2.14748e+09,   inf,    -1,     1,      ,     2,     2,     1"}};
  for (const auto& [steps, longest, line] : samples) {
    SCOPED_TRACE(std::string(steps) + " by " + longest);
    const ConversionRun run =
        Convert(kNonlinear + kDamping +
                Definitions("   Case=BLAST   StepSize=1   OutSteps=" + std::string(steps) + "\n") +
                Parameters("   Case=BLAST   DTMax=" + std::string(longest) + "\n"));
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(HistoryLine(run, 2), line);
  }
}

TEST(DirectHistory, NonlinearCaseWithoutParametersDividesByItsOwnStep) {
  struct Sample {
    const char* StepSize;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"StepSize=4", "\t\t400,     4,    25,     1,      ,     2,     2,     1"},
      {"StepSize=0.02", "\t\t2,  0.02,     0,     1,      ,     2,     2,     1"},
      {"", "\t\t100,     1,   100,     1,      ,     2,     2,     1"}};
  for (const std::string& parameters :
       {std::string(), Parameters("   Case=blast   DTMax=7   DTMin=7   MaxIter=7\n")}) {
    for (const auto& [step, line] : samples) {
      SCOPED_TRACE(step + parameters);
      const ConversionRun run =
          Convert(kNonlinear + kDamping + kMethod + parameters +
                  Definitions("   Case=BLAST   OutSteps=100   " + std::string(step) + "\n"));
      EXPECT_THAT(HistoryLines(run),
                  ElementsAre("\tNAME=BLAST,      ", line,
                              "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    3,   0.5,  0.25,    0,     "
                              "0,     0"));
    }
  }
}

TEST(DirectHistory, AbsentNumbersHaveTheirDefaults) {
  // One step of 1; a longest step of 0, one iteration, factors of 0.
  const ConversionRun run =
      Convert(kNonlinear + kDamping + Definitions("   Case=BLAST\n") +
              Methods("   Case=BLAST   IntMethod=Newmark\n") + Parameters("   Case=BLAST\n"));
  EXPECT_THAT(
      HistoryLines(run),
      ElementsAre("\tNAME=BLAST,      ", "\t\t1,     0,     0,     1,      ,     2,     2,     1",
                  "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    3,     0,     0,    0,     1,  "
                  "   0"));
  EXPECT_EQ(HistoryLine(Convert(kLinear + kDamping + Definitions("   Case=BLAST\n")), 2),
            "\t\t1,     1,     1,     1,      ,     1,     2,     1");
}

TEST(DirectHistory, InitialConditionOtherThanZeroIsTheNameOfACase) {
  struct Sample {
    const char* InitialCond;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"InitialCond=GRAV", "\t\t2,  0.02,     1,     2,  GRAV,     1,     2,     1"},
      {"InitialCond=ZERO", "\t\t2,  0.02,     1,     2,  ZERO,     1,     2,     1"},
      {"", "\t\t2,  0.02,     1,     2,      ,     1,     2,     1"}};
  for (const auto& [condition, line] : samples) {
    SCOPED_TRACE(condition);
    const ConversionRun run =
        Convert(Analyses("   Case=BLAST   Type=LinDirHis   " + std::string(condition) + "\n") +
                kDefinition + kDamping);
    EXPECT_EQ(HistoryLine(run, 2), line);
  }
}

TEST(DirectHistory, SpecifyTypeSaysTheKindOfDampingAndAbsentCoefficientsLeaveTheirSlots) {
  struct Sample {
    const char* Damping;
    const char* Line;
  };
  const std::vector<Sample> samples = {
      {"SpecifyType=Direct   MassCoeff=0.3   StiffCoeff=0.02",
       "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    0,     0,     0, , ,"},
      {"SpecifyType=Direct   MassCoeff=0.3",
       "\t\t2,\t\t1,   YES,  0.3   NO, ,    0,     0,     0, , ,"},
      {"SpecifyType=Direct   StiffCoeff=0.02",
       "\t\t2,\t\t1,    NO, ,  YES, 0.02    0,     0,     0, , ,"},
      {"SpecifyType=Direct   MassCoeff=-1e-15   StiffCoeff=-9e-16",
       "\t\t2,\t\t1,   YES,-1e-15   NO, ,    0,     0,     0, , ,"},
      {"SpecifyType=Period   MassCoeff=0.3   StiffCoeff=0.02",
       "\t\t2,\t\t2,     1,   YES,  0.1,  0.03,   NO, , ,    0,     0,     0, , ,"},
      {"SpecifyType=Period   MassCoeff=0.3",
       "\t\t2,\t\t2,     1,   YES,    0,  0.03,   NO, , ,    0,     0,     0, , ,"},
      {"SpecifyType=Period   StiffCoeff=0.02",
       "\t\t2,\t\t2,     1,   YES,  0.1,     0,   NO, , ,    0,     0,     0, , ,"},
      {"SpecifyType=Frequency   MassCoeff=0.3   StiffCoeff=0.02",
       "\t\t2,\t\t2,     2,   YES,   10,  0.03,   NO, , ,    0,     0,     0, , ,"},
      {"SpecifyType=Frequency   MassCoeff=0.3",
       "\t\t2,\t\t2,     2,   YES,    0,  0.03,   NO, , ,    0,     0,     0, , ,"},
      {"SpecifyType=Frequency   StiffCoeff=0.02",
       "\t\t2,\t\t2,     2,   YES,   10,     0,   NO, , ,    0,     0,     0, , ,"}};
  for (const auto& [damping, line] : samples) {
    SCOPED_TRACE(damping);
    // Rows 1 to 3 are walked 2, 1, 3: of the two of the case, the first counts.
    const ConversionRun run = Convert(
        kLinear + kDefinition +
        Dampings("   Case=BLAST   Period1=0.5   Frequency1=2   Damping1=0.03   Period2=0.1   "
                 "Frequency2=10   Damping2=0.04   " +
                 std::string(damping) +
                 "\n   Case=blast   SpecifyType=Direct   MassCoeff=8   StiffCoeff=8\n"
                 "   Case=BLAST   SpecifyType=Direct   MassCoeff=9   StiffCoeff=9\n"));
    EXPECT_EQ(HistoryLine(run, 3), line);
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(DirectHistory, CaseWithoutDampingIsLostWithAMessageAndWithoutALookAtItsMethod) {
  for (const std::string& dampings :
       {std::string(), Dampings("   Case=OTHER   SpecifyType=Direct   MassCoeff=0.3\n"),
        Dampings("   Case=BLAST   SpecifyType=Direct   MassCoeff=9e-16   StiffCoeff=-9e-16\n"),
        Dampings("   Case=BLAST   SpecifyType=Frequency   Frequency1=1   Frequency2=9\n"),
        Dampings("   Case=BLAST   SpecifyType=period   MassCoeff=0.3   StiffCoeff=0.02\n"),
        Dampings("   Case=BLAST   MassCoeff=0.3   StiffCoeff=0.02\n")}) {
    SCOPED_TRACE(dampings);
    const std::string rest = kDefinition + dampings + Methods("   Case=BLAST   IntMethod=Wilson\n");
    const ConversionRun alone = Convert(kLinear + rest);
    EXPECT_EQ(alone.Output.find("*THLDCASE"), std::string::npos);
    EXPECT_EQ(alone.Section("*ANAL-CTRL"), "");
    EXPECT_THAT(alone.Messages, IsEmpty());

    const ConversionRun withModal = Convert(kLinearAndModal + rest + kModal);
    EXPECT_EQ(HistoryLines(withModal).size(), 3U);
    EXPECT_EQ(HistoryLine(withModal, 1), "\tNAME=WIND,      ");
    EXPECT_THAT(withModal.Messages, ElementsAre(kDataLost));
  }
}

TEST(DirectHistory, CaseOfAMethodOtherThanNewmarkIsLostWithAMessage) {
  for (const char* method : {"IntMethod=Wilson   Theta=1.4", "IntMethod=Collocation",
                             "IntMethod=\"Hilber-Hughes-Taylor\"   Alpha=-0.1",
                             "IntMethod=\"Chung and Hulbert\"   AlphaM=0.1", "IntMethod=newmark",
                             "Gamma=0.5   Beta=0.25"}) {
    SCOPED_TRACE(method);
    const std::string rest =
        kDefinition + kDamping + Methods("   Case=BLAST   " + std::string(method) + "\n");
    const ConversionRun alone = Convert(kLinear + rest);
    EXPECT_EQ(alone.Output.find("*THLDCASE"), std::string::npos);
    EXPECT_EQ(alone.Section("*ANAL-CTRL"), "");
    EXPECT_THAT(alone.Messages, IsEmpty());

    const ConversionRun withModal = Convert(kLinearAndModal + rest + kModal);
    EXPECT_EQ(HistoryLines(withModal).size(), 3U);
    EXPECT_EQ(HistoryLine(withModal, 1), "\tNAME=WIND,      ");
    EXPECT_THAT(withModal.Messages, ElementsAre(kMethodLost));
  }
}

TEST(DirectHistory, CaseWithoutAMethodHasZeros) {
  for (const std::string& methods :
       {std::string(), Methods("   Case=OTHER   IntMethod=Newmark   Gamma=0.5   Beta=0.25\n"),
        Methods("   Case=OTHER   IntMethod=Wilson\n")}) {
    SCOPED_TRACE(methods);
    const ConversionRun run = Convert(kLinear + kDefinition + kDamping + methods);
    EXPECT_EQ(HistoryLine(run, 3), "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    0,     0,     0, , ,");
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(DirectHistory, FirstMethodOfTheCaseIsThatOfTheWalk) {
  const std::string newmark = "   Case=BLAST   IntMethod=Newmark   Gamma=0.6   Beta=0.3\n";
  const std::string wilson = "   Case=BLAST   IntMethod=Wilson\n";
  const std::string rest = kLinear + kDefinition + kDamping;
  // Rows 1 and 2 are walked 2, 1.
  EXPECT_EQ(HistoryLine(Convert(rest + Methods(wilson + newmark)), 3),
            "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    3,   0.6,   0.3, , ,");
  EXPECT_THAT(HistoryLines(Convert(rest + Methods(newmark + wilson))), IsEmpty());
}

TEST(DirectHistory, EachDefinitionOfTheVeryNameGivesARecord) {
  // Definitions 1 to 4 are walked 2, 4, 1, 3; the records of keys 1 to 3 are written 3, 2, 1.
  const ConversionRun run = Convert(kLinear +
                                    Definitions("   Case=BLAST   OutSteps=1   StepSize=0.1\n"
                                                "   Case=BLAST   OutSteps=2   StepSize=0.2\n"
                                                "   Case=Blast   OutSteps=3   StepSize=0.3\n"
                                                "   Case=BLAST   OutSteps=4   StepSize=0.4\n") +
                                    kDamping);
  const std::string line3 = "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    0,     0,     0, , ,";
  EXPECT_THAT(
      HistoryLines(run),
      ElementsAre("\tNAME=BLAST,      ", "\t\t0.1,   0.1,     1,     1,      ,     1,     2,     1",
                  line3, "\tNAME=BLAST,      ",
                  "\t\t1.6,   0.4,     1,     1,      ,     1,     2,     1", line3,
                  "\tNAME=BLAST,      ", "\t\t0.4,   0.2,     1,     1,      ,     1,     2,     1",
                  line3));
}

TEST(DirectHistory, ModalAndDirectCasesAreNumberedTogether) {
  // Analysis cases 1, 2, 3 are walked 2, 1, 3; the records of keys 1, 2, 3 are written 3, 2, 1.
  // The modal tables give nothing to a direct case of the same name.
  const ConversionRun run =
      Convert(Analyses("   Case=WIND   Type=LinModHist   InitialCond=Zero\n"
                       "   Case=BLAST   Type=LinDirHis   InitialCond=Zero\n"
                       "   Case=BLAST   Type=LinModHist   InitialCond=Zero\n") +
              kDefinition + kDamping +
              SourceTable("CASE - MODAL HISTORY 1 - GENERAL",
                          "   Case=WIND   DampingType=Constant   ConstDamp=0.02\n"
                          "   Case=BLAST   DampingType=Constant   ConstDamp=0.03\n") +
              SourceTable("CASE - MODAL HISTORY 5 - DAMPING OVERRIDES",
                          "   Case=BLAST   Mode=1   Damping=0.01\n"));
  EXPECT_THAT(
      HistoryLines(run),
      ElementsAre("\tNAME=BLAST,      ", "\t\t0,     0,     1,     1,      ,     1,     1,     2",
                  "\t\t1, 0.03, 1, , , , ,", "\t\t    1,  0.01", "\tNAME=WIND,      ",
                  "\t\t0,     0,     1,     1,      ,     1,     1,     2",
                  "\t\t1, 0.02, 1, , , , ,", "\tNAME=BLAST,      ",
                  "\t\t2,  0.02,     1,     1,      ,     1,     2,     1",
                  "\t\t2,\t\t1,   YES,  0.3  YES, 0.02    0,     0,     0, , ,"));
}

TEST(DirectHistory, KindOfALinearCaseIsALetterShorter) {
  for (const char* type : {"LinDirHist", "NonDirHis", "lindirhis"}) {
    SCOPED_TRACE(type);
    const ConversionRun run =
        Convert(Analyses("   Case=BLAST   Type=" + std::string(type) + "   InitialCond=Zero\n") +
                kDefinition + kDamping);
    EXPECT_EQ(run.Output.find("*THLDCASE"), std::string::npos);
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(DirectHistory, OnlyAConvertedCaseNeedsTheAnalysisControl) {
  EXPECT_NE(Convert(kLinear + kDefinition + kDamping).Section("*ANAL-CTRL"), "");
  EXPECT_EQ(Convert(kLinear + kDamping).Section("*ANAL-CTRL"), "");
}

}  // namespace
