#include "support/account_run.h"
#include "support/load_tables.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

std::string Ubc97(const std::string& rows) { return SourceTable("AUTO SEISMIC - UBC97", rows); }
std::string Nbcc95(const std::string& rows) { return SourceTable("AUTO SEISMIC - NBCC95", rows); }

/// All that a row by UBC 97 states, but for its load and direction, as it goes over.
const std::string kParameters =
    "   PeriodCalc=User   UserT=0.6   R=8.5   SoilType=SC   Z=0.4   MaxZ=12   MinZ=0   "
    "SourceType=B   SourceDist=5   I=1\n";

std::vector<std::string> LossesOfUbc97(const std::string& row) {
  return KeepAccount(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) + Ubc97("   LoadCase=EQ" + row))
      .Losses();
}

// ---- Which rows are taken ----

TEST(AccountOfAutoLoads, LoadsOfCodesThatTheHostHasAreConverted) {
  const AccountRun run = KeepAccount(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) +
                                     Ubc97("   LoadCase=EQ   Dir=X" + kParameters));
  EXPECT_EQ(run.Tables().front(), "LOAD CASE DEFINITIONS: 1 rows, 1 converted");
  EXPECT_EQ(run.Tables().back(), "AUTO SEISMIC - UBC97: 1 rows, 1 changed");
}

TEST(AccountOfAutoLoads, OfTwoRowsTheOneThatTheWalkMeetsLaterIsDropped) {
  // Row 2 is walked before row 1.
  EXPECT_THAT(KeepAccount(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) +
                          Ubc97("   LoadCase=EQ   Dir=X" + kParameters + "   LoadCase=EQ   Dir=Y" +
                                kParameters))
                  .Losses(),
              ElementsAre("LoadCase=EQ: row-of-same-name", "LoadCase=EQ: seismic-eccentricity"));
}

TEST(AccountOfAutoLoads, RowsOfLoadsThatNoStaticCaseNamesAreDropped) {
  EXPECT_THAT(
      KeepAccount(Ubc97("   LoadCase=EQ   Dir=X" + kParameters) +
                  SourceTable("LOAD CASE DEFINITIONS",
                              "   LoadCase=EQ   DesignType=QUAKE   AutoLoad=UBC97\n"))
          .Losses(),
      ElementsAre("LoadCase=EQ: load-case-not-static", "LoadCase=EQ: load-case-not-static"));
}

TEST(AccountOfAutoLoads, RowsOfLoadsOfAnotherTypeOrCodeAreDropped) {
  for (const char* load : {"DesignType=WIND   AutoLoad=None", "DesignType=QUAKE   AutoLoad=None"}) {
    SCOPED_TRACE(load);
    EXPECT_THAT(
        KeepAccount(StaticCasesOf({{"EQ", load}}) + Ubc97("   LoadCase=EQ   Dir=X" + kParameters))
            .Losses(),
        ElementsAre("LoadCase=EQ: auto-load-not-asked-for"));
  }
  EXPECT_THAT(KeepAccount(StaticCasesOf({{"EQ", "DesignType=LIVE   AutoLoad=UBC97"}}) +
                          Ubc97("   LoadCase=EQ   Dir=X" + kParameters))
                  .Losses(),
              ElementsAre("LoadCase=EQ: auto-load-of-other-design",
                          "LoadCase=EQ: auto-load-not-asked-for"));
  EXPECT_THAT(
      KeepAccount(AutomaticCases("QUAKE", {{"EQ", "UBC97"}}) +
                  Ubc97("   LoadCase=EQ   Dir=X" + kParameters) +
                  Nbcc95("   LoadCase=EQ   Dir=X   UserT=0.5\n"))
          .Losses(),
      ElementsAre("LoadCase=EQ: seismic-eccentricity", "LoadCase=EQ: auto-load-not-asked-for"));
}

TEST(AccountOfAutoLoads, RowsOfAStaticCaseWhoseLoadIsNotThereAreDropped) {
  EXPECT_THAT(
      KeepAccount(SourceTable("ANALYSIS CASE DEFINITIONS", "   Case=E   Type=LinStatic\n") +
                  SourceTable("CASE - STATIC 1 - LOAD ASSIGNMENTS",
                              "   Case=E   LoadType=\"Load case\"   LoadName=EQ   LoadSF=1\n") +
                  Nbcc95("   LoadCase=EQ   Dir=X   UserT=0.5\n"))
          .Losses()
          .back(),
      "LoadCase=EQ: auto-load-not-asked-for");
}

// ---- Loads without parameters ----

TEST(AccountOfAutoLoads, ALoadOfACodeThatTheHostDoesNotHaveIsChanged) {
  EXPECT_THAT(KeepAccount(AutomaticCases("QUAKE", {{"EQ", "BOCA96"}})).Losses(),
              ElementsAre("LoadCase=EQ: auto-load-code-unlike"));
  EXPECT_THAT(KeepAccount(AutomaticCases("WIND", {{"W", "UBC97"}})).Losses(),
              ElementsAre("LoadCase=W: auto-load-code-unlike"));
}

TEST(AccountOfAutoLoads, ALoadWithoutARowOfParametersIsChanged) {
  EXPECT_THAT(KeepAccount(AutomaticCases("WIND", {{"W", "NBCC 95"}})).Losses(),
              ElementsAre("LoadCase=W: auto-load-without-parameters"));
}

TEST(AccountOfAutoLoads, ALoadWithoutACodeIsConverted) {
  EXPECT_THAT(KeepAccount(StaticCasesOf({{"W", "DesignType=WIND   AutoLoad=None"},
                                         {"E", "DesignType=QUAKE"}}))
                  .Losses(),
              IsEmpty());
}

// ---- Values ----

TEST(AccountOfAutoLoads, TheEccentricityOfEarthquakesIsChanged) {
  EXPECT_THAT(LossesOfUbc97("   Dir=X" + kParameters),
              ElementsAre("LoadCase=EQ: seismic-eccentricity"));
  EXPECT_THAT(KeepAccount(AutomaticCases("QUAKE", {{"EQ", "NBCC95"}}) +
                          Nbcc95("   LoadCase=EQ   Dir=Y   PeriodCalc=User   UserT=0.5   R=4   "
                                 "Za=4   Zv=4   V=0.2   I=1   F=1\n"))
                  .Losses(),
              ElementsAre("LoadCase=EQ: seismic-eccentricity"));
}

TEST(AccountOfAutoLoads, APeriodThatIsNotTheUsersIsChanged) {
  EXPECT_THAT(
      LossesOfUbc97("   Dir=X   PeriodCalc=\"Prog Calc\"   Ct=0.03   SoilType=SC   Z=0.4\n"),
      UnorderedElementsAre("LoadCase=EQ: seismic-eccentricity",
                           "LoadCase=EQ: seismic-period-not-of-user"));
  EXPECT_THAT(KeepAccount(AutomaticCases("QUAKE", {{"EQ", "NBCC95"}}) +
                          Nbcc95("   LoadCase=EQ   Dir=Y   PeriodCalc=Code   R=4\n"))
                  .Losses(),
              UnorderedElementsAre("LoadCase=EQ: seismic-eccentricity",
                                   "LoadCase=EQ: seismic-period-not-of-user"));
}

TEST(AccountOfAutoLoads, AZoneFactorBehindAHeightIsChanged) {
  for (const char* height : {"MaxZ=12", "MinZ=0"}) {
    SCOPED_TRACE(height);
    EXPECT_THAT(LossesOfUbc97("   Dir=X   PeriodCalc=User   UserT=1   SoilType=SC   " +
                              std::string(height) + "   Z=0.4\n"),
                UnorderedElementsAre("LoadCase=EQ: seismic-eccentricity",
                                     "LoadCase=EQ: zone-factor-from-height"));
  }
}

TEST(AccountOfAutoLoads, ADirectionThatIsNeitherXNorYIsChanged) {
  EXPECT_THAT(LossesOfUbc97("   Dir=Z" + kParameters),
              UnorderedElementsAre("LoadCase=EQ: seismic-eccentricity",
                                   "LoadCase=EQ: seismic-direction-unknown"));
}

TEST(AccountOfAutoLoads, ASoilTypeThatIsNotOfTwoLettersIsChanged) {
  for (const char* soil : {"", "   SoilType=S", "   SoilType=SC1"}) {
    SCOPED_TRACE(soil);
    EXPECT_THAT(
        LossesOfUbc97("   Dir=X   PeriodCalc=User   UserT=1   Z=0.4" + std::string(soil) + "\n"),
        UnorderedElementsAre("LoadCase=EQ: seismic-eccentricity",
                             "LoadCase=EQ: soil-type-unknown"));
  }
}

TEST(AccountOfAutoLoads, TheDirectionOfWindIsChanged) {
  const std::vector<std::pair<std::string, std::string>> tables = {
      {"UBC 97", "AUTO WIND - UBC97"},
      {"ASCE 7-98", "AUTO WIND - ASCE7-98"},
      {"NBCC 95", "AUTO WIND - NBCC95"}};
  for (const auto& [code, title] : tables) {
    SCOPED_TRACE(code);
    EXPECT_THAT(KeepAccount(AutomaticCases("WIND", {{"W", code}}) +
                            SourceTable(title, "   LoadCase=W   Angle=90   MaxZ=12\n"))
                    .Losses(),
                ElementsAre("LoadCase=W: wind-direction"));
  }
}

}  // namespace
