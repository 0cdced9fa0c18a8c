#include "support/account_run.h"
#include "support/analysis_tables.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

std::string Units(std::string_view rows) { return SourceTable("PROGRAM CONTROL", rows); }
std::string Freedoms(std::string_view row) { return SourceTable("ACTIVE DEGREES OF FREEDOM", row); }
std::string MassSources(std::string_view rows) {
  return SourceTable("MASSES 1 - MASS SOURCE", rows);
}
const std::string kStatic = AnalysesBesideStatic("");

TEST(AccountOfStructureTest, UnitsOfMetresInchesAndFeetAreConverted) {
  for (const char* length : {"m", "in", "ft"}) {
    const AccountRun run =
        KeepAccount(Units("   CurrUnits=\"KN, " + std::string(length) + ", C\"\n") + kStatic);
    EXPECT_THAT(run.Tables(), Contains("PROGRAM CONTROL: 1 rows, 1 converted")) << length;
  }
}

TEST(AccountOfStructureTest, UnitsWhoseGravityIsWrittenTooSmallAreChanged) {
  for (const char* length : {"mm", "cm"}) {
    const AccountRun run =
        KeepAccount(Units("   CurrUnits=\"KN, " + std::string(length) + ", C\"\n") + kStatic);
    EXPECT_THAT(
        run.LossesIn("PROGRAM CONTROL"),
        ElementsAre("CurrUnits=\"KN, " + std::string(length) + ", C\": gravity-of-small-unit"));
  }
}

TEST(AccountOfStructureTest, SmallUnitsAreConvertedWhereNoGravityIsWritten) {
  EXPECT_THAT(KeepAccount(Units("   CurrUnits=\"KN, mm, C\"\n")).Losses(), IsEmpty());
}

TEST(AccountOfStructureTest, SmallUnitsAreChangedForTheGravityOfASpectrumFunctionAlone) {
  const AccountRun run = KeepAccount(
      Units("   CurrUnits=\"KN, mm, C\"\n") +
      SourceTable("FUNCTION - RESPONSE SPECTRUM - USER", "   Name=SITE   Period=0   Accel=0.25\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("CurrUnits=\"KN, mm, C\": gravity-of-small-unit"));
}

TEST(AccountOfStructureTest, AnUnknownLengthUnitIsChanged) {
  const AccountRun run = KeepAccount(Units("   CurrUnits=\"KN, yd, C\"\n") + kStatic);
  EXPECT_THAT(run.LossesIn("PROGRAM CONTROL"),
              ElementsAre("CurrUnits=\"KN, yd, C\": length-unit-unknown"));
}

TEST(AccountOfStructureTest, ProgramControlWithoutUnitsIsChanged) {
  EXPECT_THAT(KeepAccount(Units("   ProgramName=SAP2000\n")).Losses(),
              ElementsAre("ProgramName=SAP2000: value-not-stated"));
}

TEST(AccountOfStructureTest, FreedomsOfSpaceAndOfPlanesAreConverted) {
  for (const char* row : {"   UX=Yes   UY=Yes   UZ=Yes   RX=Yes   RY=Yes   RZ=Yes\n",
                          "   UX=Yes   UY=No   UZ=Yes   RX=No   RY=Yes   RZ=No\n",
                          "   UX=No   UY=Yes   UZ=Yes   RX=Yes   RY=No   RZ=No\n",
                          "   UX=Yes   UY=Yes   UZ=No   RX=No   RY=No   RZ=Yes\n"}) {
    EXPECT_THAT(KeepAccount(Freedoms(row) + kStatic).Tables(),
                Contains("ACTIVE DEGREES OF FREEDOM: 1 rows, 1 converted"))
        << row;
  }
}

TEST(AccountOfStructureTest, OtherFreedomsAreChanged) {
  for (const char* row : {"UX=No   UY=No   UZ=Yes   RX=Yes   RY=Yes   RZ=No",
                          "UX=Yes   UY=Yes   UZ=Yes   RX=No   RY=No   RZ=No",
                          "UX=Yes   UY=No   UZ=Yes   RX=No   RY=No   RZ=No",
                          "UX=Yes   UY=No   UZ=Yes   RX=Yes   RY=Yes   RZ=No",
                          "UX=Yes   UY=No   UZ=Yes   RX=No   RY=Yes   RZ=Yes",
                          "UX=No   UY=Yes   UZ=Yes   RX=No   RY=No   RZ=No",
                          "UX=No   UY=Yes   UZ=Yes   RX=Yes   RY=Yes   RZ=No",
                          "UX=No   UY=Yes   UZ=Yes   RX=Yes   RY=No   RZ=Yes",
                          "UX=Yes   UY=Yes   UZ=No   RX=Yes   RY=No   RZ=Yes",
                          "UX=Yes   UY=Yes   UZ=No   RX=No   RY=Yes   RZ=Yes",
                          "UX=Yes   UY=Yes   UZ=No   RX=No   RY=No   RZ=No"}) {
    const AccountRun run = KeepAccount(Freedoms("   " + std::string(row) + "\n") + kStatic);
    EXPECT_THAT(run.LossesIn("FREEDOM"),
                ElementsAre(std::string(row).substr(0, std::string(row).find(' ')) +
                            ": freedoms-not-of-host"))
        << row;
  }
}

TEST(AccountOfStructureTest, WithoutAnalysisCasesFreedomsAndMassSourcesAreDropped) {
  const AccountRun run =
      KeepAccount(Freedoms("   UX=Yes   UY=Yes   UZ=Yes   RX=Yes   RY=Yes   RZ=Yes\n") +
                  MassSources("   MassFrom=Elements\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("UX=Yes: analysis-case-missing",
                                        "MassFrom=Elements: analysis-case-missing"));
  EXPECT_TRUE(run.HasLossOfRows());
}

TEST(AccountOfStructureTest, FurtherFreedomsAreNotRead) {
  const AccountRun run = KeepAccount(
      Freedoms("   UX=Yes   UY=Yes   UZ=Yes   RX=Yes   RY=Yes   RZ=Yes\n   UX=No\n") + kStatic);
  EXPECT_THAT(run.LossesIn("FREEDOM"), ElementsAre("UX=No: first-row-counts"));
}

TEST(AccountOfStructureTest, ACoordinateSystemIsConverted) {
  EXPECT_THAT(
      KeepAccount(SourceTable("COORDINATE SYSTEMS", "   Name=GLOBAL   Type=Cartesian\n")).Tables(),
      ElementsAre("COORDINATE SYSTEMS: 1 rows, 1 converted"));
}

TEST(AccountOfStructureTest, MassOfElementsAndOfLoadsIsConverted) {
  const AccountRun run = KeepAccount(
      MassSources("   MassFrom=Elements\n   MassFrom=Loads   LoadCase=DEAD   Multiplier=1\n") +
      kStatic);
  EXPECT_THAT(run.Tables(), Contains("MASSES 1 - MASS SOURCE: 2 rows, 2 converted"));
}

TEST(AccountOfStructureTest, MassOfALoadThatIsNoLoadCaseIsChanged) {
  const AccountRun run =
      KeepAccount(MassSources("   MassFrom=Loads   LoadCase=SNOW   Multiplier=0.5\n") + kStatic);
  EXPECT_THAT(run.LossesIn("MASSES"), ElementsAre("MassFrom=Loads: load-case-not-written"));
}

}  // namespace
