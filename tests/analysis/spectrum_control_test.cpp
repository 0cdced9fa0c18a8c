#include "support/conversion_run.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kSpectrumCase = R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=QUAKE   Type=LinRespSpec   ModalCase=MODAL

)";

const std::string kDefinitions = "TABLE:  \"CASE - RESPONSE SPECTRUM 1 - GENERAL\"\n";

TEST(SpectrumControl, SpectrumCaseGivesItsControlBehindThatOfTheAnalysis) {
  const ConversionRun run = Convert(kSpectrumCase + R"(
TABLE:  "CASE - RESPONSE SPECTRUM 1 - GENERAL"
   Case=QUAKE   ModalCombo=CQC   DirCombo=SRSS   DampingType=Constant   ConstDamp=0.05
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Body(),
            "*ANAL-CTRL\n"
            "; bARDC, bANRC, iTYPE, iITER, TOL            ; iTYPE=0\n"
            "; bARDC, bANRC, iTYPE, iITER, iSITER, TOL    ; iTYPE=1\n"
            "\tYES,   YES,     0,    30, 0.001\n"
            "\n"
            "*SPEC-CTRL    ; Response Spectrum Analysis Control\n"
            "; TYPE, DAMPING, bADDSIGN\n"
            "\tCQC,  0.05,    NO\n"
            "\n"
            "\n\n");
}

TEST(SpectrumControl, DampingIsThatOfTheDefinitionOnlyForCqc) {
  const std::vector<std::pair<const char*, const char*>> definitionsAndLines = {
      {"ModalCombo=CQC   ConstDamp=0.05", "\tCQC,  0.05,    NO"},
      {"ModalCombo=CQC   ConstDamp=-1", "\tCQC,    -1,    NO"},
      {"ModalCombo=CQC", "\tCQC,     0,    NO"},
      {"ModalCombo=SRSS   ConstDamp=0.05", "\tSRSS,     0,    NO"},
      {"ModalCombo=ABS   ConstDamp=0.05", "\tABS,     0,    NO"},
      {"ModalCombo=GMC   ConstDamp=0.05", "\tGMC,     0,    NO"},
      {"ModalCombo=\"NRC 10 Percent\"   ConstDamp=0.05", "\tNRC 10 Percent,     0,    NO"},
      {"ModalCombo=cqc   ConstDamp=0.05", "\tcqc,     0,    NO"},
      {"ConstDamp=0.05", "\t,     0,    NO"},
      {"", "\t,     0,    NO"}};
  for (const auto& [definition, line] : definitionsAndLines) {
    SCOPED_TRACE(definition);
    const ConversionRun run =
        Convert(kSpectrumCase + kDefinitions + "   Case=QUAKE   " + definition + "\n");
    EXPECT_THAT(run.Lines("*SPEC-CTRL"), ElementsAre(line));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(SpectrumControl, RestOfTheDefinitionPlaysNoPart) {
  for (const char* rest :
       {"DirCombo=ABS", "DirCombo=SRSS", "GMCf1=1   GMCf2=33", "ABSSF=0.3", "DampingType=Constant",
        "DampingType=\"Period Function\"", "FuncDamp=0.07"}) {
    SCOPED_TRACE(rest);
    const ConversionRun run =
        Convert(kSpectrumCase + kDefinitions + "   Case=QUAKE   ModalCombo=CQC   " + rest +
                "   ConstDamp=0.02\n");
    EXPECT_THAT(run.Lines("*SPEC-CTRL"), ElementsAre("\tCQC,  0.02,    NO"));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(SpectrumControl, FirstDefinitionServesWhicheverCaseIsAnalysed) {
  const std::string definitions = R"(
TABLE:  "CASE - RESPONSE SPECTRUM 1 - GENERAL"
   Case=OTHER   ModalCombo=SRSS   ConstDamp=0.02
   Case=QUAKE   ModalCombo=CQC   ConstDamp=0.05
   Case=THIRD   ModalCombo=ABS   ConstDamp=0.07
)";
  EXPECT_THAT(Convert(kSpectrumCase + definitions).Lines("*SPEC-CTRL"),
              ElementsAre("\tSRSS,     0,    NO"));
}

TEST(SpectrumControl, SeveralSpectrumCasesGiveOneControl) {
  const ConversionRun run = Convert(R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=EX   Type=LinRespSpec   ModalCase=MODAL
   Case=EY   Type=LinRespSpec
   Case=EZ   Type=LinRespSpec   ModalCase=RITZ

TABLE:  "CASE - RESPONSE SPECTRUM 1 - GENERAL"
   Case=EX   ModalCombo=CQC   ConstDamp=0.05
   Case=EY   ModalCombo=CQC   ConstDamp=0.03
)");
  EXPECT_EQ(run.Output.find("*SPEC-CTRL"), run.Output.rfind("*SPEC-CTRL"));
  EXPECT_THAT(run.Lines("*SPEC-CTRL"), ElementsAre("\tCQC,  0.05,    NO"));
}

TEST(SpectrumControl, LaterBlockReplacesTheFirstDefinition) {
  const ConversionRun run = Convert(kSpectrumCase + R"(
TABLE:  "CASE - RESPONSE SPECTRUM 1 - GENERAL"
   Case=QUAKE   ModalCombo=CQC   ConstDamp=0.05

TABLE:  "CASE - RESPONSE SPECTRUM 1 - GENERAL"
   Case=QUAKE   ModalCombo=SRSS
)");
  EXPECT_THAT(run.Lines("*SPEC-CTRL"), ElementsAre("\tSRSS,     0,    NO"));
}

TEST(SpectrumControl, SpectrumCaseWithoutDefinitionsLeavesNoTrace) {
  const ConversionRun run = Convert(kSpectrumCase);
  EXPECT_EQ(run.Body(), "\n\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SpectrumControl, SpectrumCaseWithoutDefinitionsLeavesTheAnalysisControlOfTheModes) {
  const ConversionRun run = Convert(R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=MODAL   Type=LinModal
   Case=QUAKE   Type=LinRespSpec   ModalCase=MODAL
)");
  EXPECT_THAT(run.Lines("*ANAL-CTRL"), ElementsAre("\tYES,   YES,     0,    30, 0.001"));
  EXPECT_EQ(run.Section("*SPEC-CTRL"), "");
}

TEST(SpectrumControl, DefinitionsWithoutASpectrumCaseGiveNoControl) {
  const std::string definitions = kDefinitions + "   Case=QUAKE   ModalCombo=CQC\n";
  for (const char* analysis :
       {"", "TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n   Case=QUAKE   Type=LinStatic\n\n",
        "TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n   Case=QUAKE   Type=LinRespSpectrum\n\n",
        "TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n   Case=QUAKE   Type=linrespspec\n\n"}) {
    SCOPED_TRACE(analysis);
    const ConversionRun run = Convert(analysis + definitions);
    EXPECT_EQ(run.Body(), "\n\n");
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(SpectrumControl, DampingTablesOfTheCaseAreReadAndDropped) {
  const ConversionRun run = Convert(R"(
TABLE:  "CASE - RESPONSE SPECTRUM 3 - DAMPING BY PERIOD"
   Case=QUAKE   Period=0.5   Frequency=2   Damping=0.04

TABLE:  "CASE - RESPONSE SPECTRUM 4 - DAMPING PROPORTIONAL"
   Case=QUAKE   SpecifyType=Direct   MassCoeff=0.3   StiffCoeff=0.01   Period1=1   Damping1=0.05

TABLE:  "CASE - RESPONSE SPECTRUM 5 - DAMPING OVERWRITES"
   Case=QUAKE   Mode=1   Damping=0.03
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Body(), "\n\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SpectrumControl, MassesStandBetweenTheLoadCasesAndTheControls) {
  const ConversionRun run = Convert(kSpectrumCase + R"(
TABLE:  "MASSES 1 - MASS SOURCE"
   MassFrom=Loads   LoadCase=DEAD   Multiplier=1

TABLE:  "CASE - RESPONSE SPECTRUM 1 - GENERAL"
   Case=QUAKE   ModalCombo=SRSS

TABLE:  "CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS"
   Case=QUAKE   LoadName=U1   CoordSys=GLOBAL   Function=F
)");
  EXPECT_EQ(run.Body(),
            "*SPLDCASE    ; Spectrum Load Cases\n"
            "; NAME, FUNC, DIR, ANGLE, SCALE, DESC\n"
            "\tQUAKE1,     F,    XY,     0,     1,      \n"
            "\n"
            "; *LOADTOMASS, DIR, bNODAL, bBEAM, bFLOOR, bPRES, GRAV\n"
            ";     LCNAME1, FACTOR1, LCNAME2, FACTOR2, ...   ; from line 1\n"
            "\t*LOADTOMASS,   XYZ,   YES,   YES,   YES,   YES, 9.806\n"
            "\tDEAD,     1\n"
            "\t\n"
            "*ANAL-CTRL\n"
            "; bARDC, bANRC, iTYPE, iITER, TOL            ; iTYPE=0\n"
            "; bARDC, bANRC, iTYPE, iITER, iSITER, TOL    ; iTYPE=1\n"
            "\tYES,   YES,     0,    30, 0.001\n"
            "\n"
            "*SPEC-CTRL    ; Response Spectrum Analysis Control\n"
            "; TYPE, DAMPING, bADDSIGN\n"
            "\tSRSS,     0,    NO\n"
            "\n"
            "\n\n");
}

}  // namespace
