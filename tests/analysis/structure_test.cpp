#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::IsEmpty;

/// A model with an analysis case that has no effect of its own, so that the structure type is
/// settled.
ConversionRun ConvertWithAnalysis(const std::string& tables) {
  return Convert("TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n   Case=STAGES   Type=NonStatic\n\n" +
                 tables);
}

std::string FreedomTable(const std::string& row) {
  return "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   " + row + "\n\n";
}

std::string MassTable(const std::vector<std::string>& rows) {
  std::string table = "TABLE:  \"MASSES 1 - MASS SOURCE\"\n";
  for (const std::string& row : rows) {
    table += "   " + row + "\n";
  }
  return table + "\n";
}

std::string UnitsTable(const std::string& units) {
  return "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"" + units + "\"\n\n";
}

/// The line of *STRUCTYPE with these first two numbers, in metres.
std::string StructureLine(const std::string& type, const std::string& selfMass) {
  return "\t" + type + ",     " + selfMass + ", 9.806,     0,    NO,    NO";
}

/// The data line of *STRUCTYPE.
std::string StructureType(const ConversionRun& run) {
  const std::vector<std::string> lines = run.Lines("*STRUCTYPE");
  return lines.empty() ? "" : lines.front();
}

// ---- Structure type ----

TEST(StructureType, StandsBehindTheUnitsUnderItsHeader) {
  const ConversionRun run = ConvertWithAnalysis("");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Between("*UNIT", "*ENDDATA"),
            "*UNIT    ; Unit System\n"
            "; FORCE, LENGTH\n"
            "\tTONF,     M\n"
            "\n"
            "*STRUCTYPE    ; Structure Type\n"
            "; iSTYP, iSMAS, GRAV, TEMPER, bALIGNBEAM, bALIGNSLAB\n"
            "\t0,     0, 9.806,     0,    NO,    NO\n"
            "\n"
            "\n\n");
}

TEST(StructureType, FollowsTheActiveTranslationsAndSelfMassFollowsIt) {
  struct Freedom {
    const char* Row;
    const char* Type;
    const char* SelfMass;
  };
  const std::vector<Freedom> freedoms = {
      {"UX=Yes   UY=Yes   UZ=Yes", "0", "1"}, {"UX=Yes   UY=No   UZ=Yes", "1", "3"},
      {"UX=No   UY=Yes   UZ=Yes", "2", "3"},  {"UX=Yes   UY=Yes   UZ=No", "3", "2"},
      {"UX=Yes   UY=No   UZ=No", "0", "1"},   {"UX=No   UY=Yes   UZ=No", "0", "1"},
      {"UX=No   UY=No   UZ=Yes", "0", "1"},   {"UX=No   UY=No   UZ=No", "0", "1"},
  };
  for (const auto& [row, type, selfMass] : freedoms) {
    SCOPED_TRACE(row);
    const std::string freedom = FreedomTable(row);
    EXPECT_EQ(StructureType(ConvertWithAnalysis(freedom)), StructureLine(type, "0"));
    EXPECT_EQ(StructureType(ConvertWithAnalysis(freedom + MassTable({"MassFrom=Elements"}))),
              StructureLine(type, selfMass));
  }
}

TEST(StructureType, RotationsPlayNoPart) {
  for (const char* rotations : {"RX=No   RY=Yes   RZ=No", "RX=Yes   RY=No   RZ=Yes"}) {
    SCOPED_TRACE(rotations);
    EXPECT_EQ(StructureType(ConvertWithAnalysis(
                  FreedomTable("UX=Yes   UY=No   UZ=Yes   " + std::string(rotations)))),
              StructureLine("1", "0"));
  }
}

TEST(StructureType, OnlyTheWordYesMakesATranslationActive) {
  for (const char* word : {"yes", "YES", "True", "1", ""}) {
    SCOPED_TRACE(word);
    EXPECT_EQ(StructureType(
                  ConvertWithAnalysis(FreedomTable("UX=Yes   UZ=Yes   UY=" + std::string(word)))),
              StructureLine("1", "0"));
  }
}

TEST(StructureType, OnlyTheFirstRowOfTheActiveDegreesOfFreedomCounts) {
  const ConversionRun run = ConvertWithAnalysis(R"(
TABLE:  "ACTIVE DEGREES OF FREEDOM"
   UX=Yes   UY=No   UZ=Yes   RX=No   RY=Yes   RZ=No
   UX=No   UY=Yes   UZ=Yes   RX=Yes   RY=No   RZ=No
)");
  EXPECT_EQ(StructureType(run), StructureLine("1", "0"));
}

TEST(StructureType, WithoutActiveDegreesOfFreedomTheStructureIsInSpace) {
  EXPECT_EQ(StructureType(ConvertWithAnalysis(MassTable({"MassFrom=Elements"}))),
            StructureLine("0", "1"));
}

TEST(StructureType, FrameInThePlaneOfXAndZWithElementMass) {
  const ConversionRun run = Convert(R"(
TABLE:  "PROGRAM CONTROL"
   CurrUnits="KN, m, C"

TABLE:  "ACTIVE DEGREES OF FREEDOM"
   UX=Yes   UY=No   UZ=Yes   RX=No   RY=Yes   RZ=No

TABLE:  "MASSES 1 - MASS SOURCE"
   MassFrom=Elements

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=DEAD   Type=LinStatic   InitialCond=Zero
)");
  EXPECT_EQ(StructureType(run), "\t1,     3, 9.806,     0,    NO,    NO");
}

// ---- Gravity ----

TEST(Gravity, FollowsTheLengthUnitInWhicheverCase) {
  struct Unit {
    const char* Units;
    const char* Gravity;
  };
  const std::vector<Unit> units = {
      {"KN, m, C", "9.806"},     {"KN, M, C", "9.806"},     {"Kgf, cm, C", "0.09806"},
      {"KN, Cm, C", "0.09806"},  {"N, mm, C", "0.009806"},  {"N, MM, C", "0.009806"},
      {"Kip, in, F", "386.063"}, {"Kip, IN, F", "386.063"}, {"Kip, ft, F", "32.1715"},
      {"Kip, Ft, F", "32.1715"},
  };
  for (const auto& [words, gravity] : units) {
    SCOPED_TRACE(words);
    const ConversionRun run = ConvertWithAnalysis(
        UnitsTable(words) + MassTable({"MassFrom=Loads   LoadCase=DEAD   Multiplier=1"}));
    EXPECT_EQ(StructureType(run), "\t0,     0, " + std::string(gravity) + ",     0,    NO,    NO");
    EXPECT_EQ(run.Body(),
              "; *LOADTOMASS, DIR, bNODAL, bBEAM, bFLOOR, bPRES, GRAV\n"
              ";     LCNAME1, FACTOR1, LCNAME2, FACTOR2, ...   ; from line 1\n"
              "\t*LOADTOMASS,   XYZ,   YES,   YES,   YES,   YES, " +
                  std::string(gravity) +
                  "\n"
                  "\tDEAD,     1\n"
                  "\t\n"
                  "\n\n");
  }
}

TEST(Gravity, IsThatOfMetresForAnUnknownLengthUnit) {
  EXPECT_EQ(StructureType(ConvertWithAnalysis(UnitsTable("KN, yd, C"))),
            "\t0,     0, 9.806,     0,    NO,    NO");
}

// ---- Mass sources ----

TEST(MassSources, LoadsAloneBecomeMassWithoutSelfMass) {
  const ConversionRun run =
      ConvertWithAnalysis(FreedomTable("UX=Yes   UY=Yes   UZ=Yes") +
                          MassTable({"MassFrom=Loads   LoadCase=LIVE   Multiplier=0.25"}));
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(StructureType(run), StructureLine("0", "0"));
  EXPECT_EQ(run.Body(),
            "; *LOADTOMASS, DIR, bNODAL, bBEAM, bFLOOR, bPRES, GRAV\n"
            ";     LCNAME1, FACTOR1, LCNAME2, FACTOR2, ...   ; from line 1\n"
            "\t*LOADTOMASS,   XYZ,   YES,   YES,   YES,   YES, 9.806\n"
            "\tLIVE,  0.25\n"
            "\t\n"
            "\n\n");
}

TEST(MassSources, ElementsAloneGiveSelfMassWithoutLoads) {
  const ConversionRun run =
      ConvertWithAnalysis(MassTable({"MassFrom=Elements   LoadCase=LIVE   Multiplier=0.25"}));
  EXPECT_EQ(StructureType(run), StructureLine("0", "1"));
  EXPECT_EQ(run.Body(), "\n\n");
}

/// Everything behind the two comments and the first line of *LOADTOMASS, and what closes the file.
std::string LoadsOfMass(const ConversionRun& run) {
  const std::string head = "   YES,   YES,   YES,   YES, 9.806\n";
  const std::string body = run.Body();
  const std::size_t begin = body.find(head);
  return begin == std::string::npos ? "" : body.substr(begin + head.size());
}

TEST(MassSources, AnyOtherWordIsForLoadsAndElements) {
  for (const char* word : {"MassFrom=\"Elements and Loads\"", "MassFrom=elements", "MassFrom=LOADS",
                           "MassFrom=", ""}) {
    SCOPED_TRACE(word);
    const ConversionRun run =
        ConvertWithAnalysis(MassTable({"LoadCase=LIVE   Multiplier=0.5   " + std::string(word)}));
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_EQ(StructureType(run), StructureLine("0", "1"));
    EXPECT_EQ(LoadsOfMass(run),
              "\tLIVE,   0.5\n"
              "\t\n"
              "\n\n");
  }
}

TEST(MassSources, ElementsBesideLoadsGiveSelfMassAndOnlyThePairsOfTheLoads) {
  const std::string loads = "MassFrom=Loads   LoadCase=DEAD   Multiplier=1";
  const std::string elements = "MassFrom=Elements   LoadCase=LIVE   Multiplier=0.5";
  for (const auto& rows : {std::vector{loads, elements}, std::vector{elements, loads}}) {
    const ConversionRun run =
        ConvertWithAnalysis(FreedomTable("UX=Yes   UY=Yes   UZ=No") + MassTable(rows));
    EXPECT_EQ(StructureType(run), StructureLine("3", "2"));
    EXPECT_EQ(LoadsOfMass(run),
              "\tDEAD,     1\n"
              "\t\n"
              "\n\n");
  }
}

TEST(MassSources, RowsOfLoadsAndOfBothGiveAllTheirPairs) {
  // Keys 1, 2, 3 are walked in the order 2, 1, 3.
  const ConversionRun run = ConvertWithAnalysis(R"(
TABLE:  "MASSES 1 - MASS SOURCE"
   MassFrom=Loads   LoadCase=DEAD   Multiplier=1
   MassFrom=Both   LoadCase=LIVE   Multiplier=-0.5
   MassFrom=Elements   LoadCase=WIND   Multiplier=0.3
)");
  EXPECT_EQ(LoadsOfMass(run),
            "\tLIVE,  -0.5\n"
            "\t\tDEAD,     1\n"
            "\t\n"
            "\n\n");
}

TEST(MassSources, RowThatStatesNoLoadAndNoMultiplierGivesAnEmptyNameAndZero) {
  EXPECT_EQ(LoadsOfMass(ConvertWithAnalysis(MassTable({"MassFrom=Loads"}))),
            "\t,     0\n"
            "\t\n"
            "\n\n");
}

TEST(MassSources, FirstPairStandsAloneAndFiveStandOnEachFurtherLine) {
  struct List {
    int Count;
    const char* Text;
  };
  // Twelve keys are walked in the order 11, 8, 5, 2, 10, 7, 4, 1, 12, 9, 6, 3.
  const std::vector<List> lists = {
      {1,
       "\tL1,     1\n"
       "\t\n"
       "\n\n"},
      {2,
       "\tL2,     2\n"
       "\t\tL1,     1\n"
       "\t\n"
       "\n\n"},
      {5,
       "\tL5,     5\n"
       "\t\tL2,     2,\tL4,     4,\tL1,     1,\tL3,     3\n"
       "\t\n"
       "\n\n"},
      {6,
       "\tL5,     5\n"
       "\t\tL2,     2,\tL4,     4,\tL1,     1,\tL6,     6,\tL3,     3\n"
       "\t\n"
       "\n\n"},
      {7,
       "\tL5,     5\n"
       "\t\tL2,     2,\tL7,     7,\tL4,     4,\tL1,     1,\tL6,     6\n"
       "\t\tL3,     3\n"
       "\t\n"
       "\n\n"},
      {11,
       "\tL11,    11\n"
       "\t\tL8,     8,\tL5,     5,\tL2,     2,\tL10,    10,\tL7,     7\n"
       "\t\tL4,     4,\tL1,     1,\tL9,     9,\tL6,     6,\tL3,     3\n"
       "\t\n"
       "\n\n"},
      {12,
       "\tL11,    11\n"
       "\t\tL8,     8,\tL5,     5,\tL2,     2,\tL10,    10,\tL7,     7\n"
       "\t\tL4,     4,\tL1,     1,\tL12,    12,\tL9,     9,\tL6,     6\n"
       "\t\tL3,     3\n"
       "\t\n"
       "\n\n"},
  };
  for (const auto& [count, text] : lists) {
    SCOPED_TRACE(count);
    std::vector<std::string> rows;
    for (int number = 1; number <= count; ++number) {
      const std::string digits = std::to_string(number);
      rows.push_back("MassFrom=Loads   LoadCase=L" + digits + "   Multiplier=" + digits);
    }
    EXPECT_EQ(LoadsOfMass(ConvertWithAnalysis(MassTable(rows))), text);
  }
}

TEST(MassSources, LoadNeedsNoLoadCaseOfItsName) {
  const ConversionRun run =
      ConvertWithAnalysis(MassTable({"MassFrom=Loads   LoadCase=NOWHERE   Multiplier=1E6"}));
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(LoadsOfMass(run),
            "\tNOWHERE, 1e+06\n"
            "\t\n"
            "\n\n");
}

}  // namespace
