#include "support/account_run.h"
#include "support/analysis_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kLoads = "CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS";
const std::string kFunction = SourceTable("FUNCTION - RESPONSE SPECTRUM - USER",
                                          "   Name=SITE   Period=0   Accel=0.25\n"
                                          "   Name=SITE   Period=1   Accel=0.1\n");

/// A load of a case along U1 with the function SITE.
std::string LoadOf(const std::string& name) {
  return "   Case=" + name + "   LoadName=U1   CoordSys=GLOBAL   Function=SITE   TransAccSF=9.81\n";
}
std::vector<std::string> LossesOfLoads(const std::string& rows) {
  return KeepAccount(kFunction + SourceTable(kLoads, rows)).LossesIn("SPECTRUM 2");
}
std::vector<std::string> LossesOfDefinitions(const std::string& rows) {
  return KeepAccount(AnalysesBesideStatic("   Case=RS   Type=LinRespSpec\n") + kFunction +
                     SourceTable("CASE - RESPONSE SPECTRUM 1 - GENERAL", rows) +
                     SourceTable(kLoads, LoadOf("RS")))
      .LossesIn("SPECTRUM 1");
}

TEST(AccountOfSpectrumTest, FunctionsOfAllCodesThatTheHostHasAreConverted) {
  for (const std::string code : {"EUROCODE8", "IBC2000", "NBCC95", "UBC94", "UBC97", "USER"}) {
    const std::string title = "FUNCTION - RESPONSE SPECTRUM - " + code;
    EXPECT_THAT(KeepAccount(SourceTable(title,
                                        "   Name=F   Period=0   Accel=0.4\n"
                                        "   Name=F   Period=1   Accel=0.2\n"
                                        "   Name=G   Period=0   Accel=0.1\n"))
                    .Tables(),
                ElementsAre(title + ": 3 rows, 3 converted"));
  }
}

TEST(AccountOfSpectrumTest, FunctionsOfOtherCodesAreRefused) {
  for (const std::string code : {"BOCA96", "FROM FILE", "NEHRP97", "NZS4203"}) {
    const std::string title = "FUNCTION - RESPONSE SPECTRUM - " + code;
    EXPECT_THAT(KeepAccount(SourceTable(title, "   Name=F   Period=0   Accel=0.4\n")).Tables(),
                ElementsAre(title + ": 1 rows, 1 refused"));
  }
}

TEST(AccountOfSpectrumTest, PointsOfAFunctionThatComesBackAreChanged) {
  const AccountRun run = KeepAccount(SourceTable("FUNCTION - RESPONSE SPECTRUM - USER",
                                                 "   Name=F   Period=0\n"
                                                 "   Name=G   Period=0\n"
                                                 "   Name=F   Period=1\n"
                                                 "   Name=F   Period=2\n"));
  EXPECT_THAT(run.Losses(),
              ElementsAre("Name=F: rows-of-name-apart", "Name=F: rows-of-name-apart"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 3U);
  EXPECT_EQ(run.Rows.Losses[1].Position, 4U);
}

TEST(AccountOfSpectrumTest, LoadsOfOneDirectionAreConvertedAndTheLastHasANumber) {
  const AccountRun run = KeepAccount(kFunction + SourceTable(kLoads, LoadOf("A") + LoadOf("B")));
  EXPECT_THAT(run.Losses(), ElementsAre("Case=B: spectrum-case-numbered"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfSpectrumTest, LoadsOfACaseOfSeveralDirectionsAreChanged) {
  EXPECT_THAT(LossesOfLoads(LoadOf("A") + LoadOf("A") + LoadOf("B")),
              ElementsAre("Case=A: spectrum-case-split", "Case=A: spectrum-case-split",
                          "Case=B: spectrum-case-numbered"));
}

TEST(AccountOfSpectrumTest, ALoadInAUsersSystemIsDropped) {
  EXPECT_THAT(
      LossesOfLoads("   Case=L   LoadName=U1   CoordSys=CSYS1   Function=SITE\n" + LoadOf("A") +
                    "   Case=N   LoadName=U1   Function=SITE\n" + LoadOf("B")),
      ElementsAre("Case=L: spectrum-load-not-global", "Case=N: spectrum-load-not-global",
                  "Case=B: spectrum-case-numbered"));
}

TEST(AccountOfSpectrumTest, ALastLoadInAUsersSystemTakesTheOneBeforeAlong) {
  EXPECT_THAT(LossesOfLoads(LoadOf("A") + LoadOf("B") +
                            "   Case=L   LoadName=U1   CoordSys=CSYS1   Function=SITE\n"),
              ElementsAre("Case=B: lost-with-next-row", "Case=L: spectrum-load-not-global"));
}

TEST(AccountOfSpectrumTest, ALoadBesideALostOneOfItsCaseIsConverted) {
  EXPECT_THAT(
      LossesOfLoads(LoadOf("A") + "   Case=A   LoadName=U2   CoordSys=CSYS1   Function=SITE\n" +
                    LoadOf("B")),
      ElementsAre("Case=A: spectrum-load-not-global", "Case=B: spectrum-case-numbered"));
}

TEST(AccountOfSpectrumTest, LoadsInUsersSystemsAloneAreDropped) {
  EXPECT_THAT(LossesOfLoads("   Case=L   LoadName=U1   CoordSys=CSYS1   Function=SITE\n"),
              ElementsAre("Case=L: spectrum-load-not-global"));
}

TEST(AccountOfSpectrumTest, ALoadWithoutFunctionOrDirectionIsChanged) {
  EXPECT_THAT(LossesOfLoads("   Case=A   LoadName=U2   CoordSys=GLOBAL   TransAccSF=1\n"
                            "   Case=B   CoordSys=GLOBAL   Function=SITE   TransAccSF=1\n" +
                            LoadOf("C")),
              ElementsAre("Case=A: value-of-row-before", "Case=B: value-of-row-before",
                          "Case=C: spectrum-case-numbered"));
}

TEST(AccountOfSpectrumTest, AnUnknownDirectionIsChanged) {
  EXPECT_THAT(LossesOfLoads("   Case=A   LoadName=\"Accel UX\"   CoordSys=GLOBAL   "
                            "Function=SITE   TransAccSF=1\n"
                            "   Case=B   LoadName=U3   CoordSys=GLOBAL   Function=SITE   "
                            "TransAccSF=1\n" +
                            LoadOf("C")),
              ElementsAre("Case=A: ground-direction-unknown", "Case=C: spectrum-case-numbered"));
}

TEST(AccountOfSpectrumTest, ALoadWithoutScaleIsChanged) {
  EXPECT_THAT(
      LossesOfLoads("   Case=A   LoadName=U2   CoordSys=GLOBAL   Function=SITE\n" + LoadOf("C")),
      ElementsAre("Case=A: value-not-stated", "Case=C: spectrum-case-numbered"));
}

TEST(AccountOfSpectrumTest, ALoadOfAFunctionThatIsLostIsChanged) {
  EXPECT_THAT(
      LossesOfLoads("   Case=A   LoadName=U1   CoordSys=GLOBAL   Function=BOCA   "
                    "TransAccSF=1\n" +
                    LoadOf("C")),
      ElementsAre("Case=A: spectrum-function-not-written", "Case=C: spectrum-case-numbered"));
}

TEST(AccountOfSpectrumTest, DampingOfCqcIsConverted) {
  EXPECT_THAT(LossesOfDefinitions("   Case=RS   ModalCombo=CQC   ConstDamp=0.05\n"), IsEmpty());
  EXPECT_THAT(LossesOfDefinitions("   Case=RS   ModalCombo=SRSS   ConstDamp=0\n"), IsEmpty());
}

TEST(AccountOfSpectrumTest, DampingOfOtherCombinationsIsChanged) {
  EXPECT_THAT(LossesOfDefinitions("   Case=RS   ModalCombo=SRSS   ConstDamp=0.05\n"),
              ElementsAre("Case=RS: spectrum-damping-lost"));
}

TEST(AccountOfSpectrumTest, DefinitionsBehindTheFirstAreDroppedAndAreNoLossIfTheSame) {
  EXPECT_THAT(LossesOfDefinitions("   Case=RS   ModalCombo=CQC   ConstDamp=0.05\n"
                                  "   Case=RS2   ModalCombo=CQC   ConstDamp=0.05\n"
                                  "   Case=RS3   ModalCombo=CQC   ConstDamp=0.02\n"
                                  "   Case=RS4   ModalCombo=SRSS\n"),
              ElementsAre("Case=RS2: definition-as-first", "Case=RS3: definition-not-first",
                          "Case=RS4: definition-not-first"));
}

TEST(AccountOfSpectrumTest, CombinationsOfDirectionsAndOtherDampingOfTheFirstDefinitionAreChanged) {
  EXPECT_THAT(
      LossesOfDefinitions("   Case=RS   ModalCombo=CQC   DirCombo=SRSS   DampingType=Constant\n"
                          "   Case=RS2   ModalCombo=CQC   DirCombo=ABS   ABSSF=0.3 _\n"
                          "   DampingType=Constant\n"),
      ElementsAre("Case=RS2: definition-not-first"));
  EXPECT_THAT(LossesOfDefinitions("   Case=RS   ModalCombo=CQC   DirCombo=ABS   ABSSF=0.3\n"),
              ElementsAre("Case=RS: spectrum-direction-combination"));
  EXPECT_THAT(LossesOfDefinitions("   Case=RS   ModalCombo=CQC   DampingType=Period\n"),
              ElementsAre("Case=RS: spectrum-damping-of-other-kind"));
}

TEST(AccountOfSpectrumTest, DefinitionsThatNoSpectrumCaseAsksForAreDropped) {
  EXPECT_THAT(KeepAccount(SourceTable("CASE - RESPONSE SPECTRUM 1 - GENERAL",
                                      "   Case=RS   ModalCombo=CQC\n"))
                  .Losses(),
              ElementsAre("Case=RS: analysis-case-missing"));
}

TEST(AccountOfSpectrumTest, DampingThatIsNotConstantIsDropped) {
  EXPECT_THAT(KeepAccount(SourceTable("CASE - RESPONSE SPECTRUM 3 - INTERPOLATED DAMPING",
                                      "   Case=P   Period=1   Damping=0.03\n") +
                          SourceTable("CASE - RESPONSE SPECTRUM 4 - PROPORTIONAL DAMPING",
                                      "   Case=Q   SpecifyType=Direct\n") +
                          SourceTable("CASE - RESPONSE SPECTRUM 5 - DAMPING OVERRIDES",
                                      "   Case=M   Mode=1   Damping=0.03\n"))
                  .Losses(),
              ElementsAre("Case=P: damping-of-other-kind", "Case=Q: damping-of-other-kind",
                          "Case=M: damping-of-other-kind"));
}

}  // namespace
