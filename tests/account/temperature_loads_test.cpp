#include "support/account_of_table.h"
#include "support/load_tables.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

constexpr const char* kFrames = "FRAME LOADS - TEMPERATURE";
constexpr const char* kAreas = "AREA LOADS - TEMPERATURE";
constexpr const char* kSolids = "SOLID LOADS - TEMPERATURE";
constexpr const char* kOfFrames = "FRAME REFERENCE TEMPERATURES";
constexpr const char* kOfAreas = "AREA REFERENCE ASSIGNMENTS";
constexpr const char* kOfSolids = "SOLID REFERENCE TEMPERATURES";
constexpr const char* kPatterns = "JOINT PATTERN ASSIGNMENTS";

std::string Degrees(std::string_view unit) {
  return SourceTable("PROGRAM CONTROL", "   CurrUnits=\"KN, m, " + std::string(unit) + "\"\n");
}

/// The static case SUN; the frames 1 and 2, of which 1 has a section; the area 11 with a section
/// and the triangle 12 without; the block 21 and the wedge 22; the pattern HEAT at all joints but
/// joint 8; and tables of loads.
AccountRun Keep(const std::string& tables) {
  std::string heat;
  for (int joint = 1; joint < 8; ++joint) {
    heat += "   Joint=" + std::to_string(joint) + "   Pattern=HEAT   Value=1\n";
  }
  return KeepAccount(
      StaticCases({"SUN"}) + SourceTable(kPatterns, heat) +
      SourceTable("CONNECTIVITY - FRAME",
                  "   Frame=1   JointI=1   JointJ=2\n   Frame=2   JointI=2   JointJ=3\n") +
      SourceTable("FRAME SECTION ASSIGNMENTS", "   Frame=1   AnalSect=BEAM\n") +
      SourceTable("FRAME SECTION PROPERTIES 1 - GENERAL",
                  "   SectionName=BEAM   Shape=Rectangular   t3=0.4   t2=0.2\n") +
      SourceTable("CONNECTIVITY - AREA",
                  "   Area=11   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n"
                  "   Area=12   Joint1=1   Joint2=2   Joint3=3\n") +
      SourceTable("AREA SECTION ASSIGNMENTS", "   Area=11   Section=SLAB\n") +
      SourceTable("AREA SECTION PROPERTIES",
                  "   Section=SLAB   AreaType=Shell   Type=Shell-Thick   Thickness=0.2\n") +
      SourceTable(
          "CONNECTIVITY - SOLID",
          "   Solid=21   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   "
          "Joint7=7   Joint8=8\n"
          "   Solid=22   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6\n") +
      tables);
}

/// Loads of a kind, in a model of this unit without reference temperatures.
AccountRun Keep(std::string_view unit, const char* title, std::string_view rows) {
  return Keep(Degrees(unit) + SourceTable(title, rows));
}

TEST(AccountOfTemperaturesTest, TemperaturesOfAllFamiliesAreConverted) {
  const AccountRun run = Keep(
      SourceTable(kFrames,
                  "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None\n") +
      SourceTable(kAreas,
                  "   Area=11   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None\n") +
      SourceTable(kSolids, "   Solid=21   LoadCase=SUN   Temp=30   JtPattern=None\n"));
  for (const char* title : {kFrames, kAreas, kSolids}) {
    EXPECT_EQ(FatesOf(run, title), "1 rows, 1 converted") << title;
  }
}

TEST(AccountOfTemperaturesTest, ReferenceTemperaturesOfLoadsThatAreWrittenAreConverted) {
  // Loads of the elements behind are gradients or of a load case that is not written.
  const AccountRun run =
      Keep(SourceTable(kFrames,
                       "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None\n"
                       "   Frame=2   LoadCase=SUN   Type=Gradient2\n") +
           SourceTable(kAreas,
                       "   Area=11   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None\n"
                       "   Area=12   LoadCase=SUN   Type=Gradient\n") +
           SourceTable(kSolids,
                       "   Solid=21   LoadCase=SUN   Temp=30   JtPattern=None\n"
                       "   Solid=22   LoadCase=RAIN   Temp=30   JtPattern=None\n") +
           SourceTable(kOfFrames, "   Frame=1   Temp=10\n   Frame=2   Temp=10\n") +
           SourceTable(kOfAreas, "   Area=11   Temp=10\n   Area=12   Temp=10\n") +
           SourceTable(kOfSolids, "   Solid=21   Temp=10\n   Solid=22   Temp=10\n"));
  EXPECT_THAT(LossesOf(run, kOfFrames), ElementsAre("Frame=2: reference-not-used"));
  EXPECT_THAT(LossesOf(run, kOfAreas), ElementsAre("Area=12: reference-not-used"));
  EXPECT_THAT(LossesOf(run, kOfSolids), ElementsAre("Solid=22: reference-not-used"));
}

TEST(AccountOfTemperaturesTest, LoadCasesThatNoStaticCaseNamesAreDropped) {
  const AccountRun run = Keep(
      SourceTable(kFrames, "   Frame=1   LoadCase=RAIN   Type=Temperature   JtPattern=None\n") +
      SourceTable(kAreas, "   Area=11   LoadCase=RAIN   Type=Temperature   JtPattern=None\n") +
      SourceTable(kSolids, "   Solid=21   LoadCase=RAIN   JtPattern=None\n"));
  EXPECT_THAT(LossesOf(run, kFrames), ElementsAre("Frame=1: load-case-not-static"));
  EXPECT_THAT(LossesOf(run, kAreas), ElementsAre("Area=11: load-case-not-static"));
  EXPECT_THAT(LossesOf(run, kSolids), ElementsAre("Solid=21: load-case-not-static"));
}

TEST(AccountOfTemperaturesTest, RowsWithoutALoadCaseAreOfReferenceTemperaturesOfAreas) {
  const char* title = "AREA REFERENCE TEMPERATURES";
  EXPECT_THAT(LossesOf(Keep(SourceTable(title, "   Area=11   Temp=0\n")), title),
              ElementsAre("Area=11: temperature-without-load-case"));
}

TEST(AccountOfTemperaturesTest, LoadsOfElementsThatAreNotThereAreChanged) {
  const AccountRun run = Keep(
      SourceTable(kFrames,
                  "   Frame=90   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None\n") +
      SourceTable(kAreas,
                  "   Area=91   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None\n") +
      SourceTable(kSolids, "   Solid=92   LoadCase=SUN   Temp=30   JtPattern=None\n"));
  EXPECT_THAT(LossesOf(run, kFrames), ElementsAre("Frame=90: element-not-there"));
  EXPECT_THAT(LossesOf(run, kAreas), ElementsAre("Area=91: element-not-there"));
  EXPECT_THAT(LossesOf(run, kSolids), ElementsAre("Solid=92: element-not-there"));
}

TEST(AccountOfTemperaturesTest, AnUnknownUnitChangesLoadsAndReferenceTemperatures) {
  const AccountRun run = Keep(
      Degrees("K") +
      SourceTable(kFrames,
                  "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None\n") +
      SourceTable(kOfFrames, "   Frame=1   Temp=10\n"));
  EXPECT_THAT(LossesOf(run, kFrames), ElementsAre("Frame=1: temperature-unit-unknown"));
  EXPECT_THAT(LossesOf(run, kOfFrames), ElementsAre("Frame=1: temperature-unit-unknown"));
}

TEST(AccountOfTemperaturesTest, TheReferenceOfAnElementBeforeIsAChange) {
  // The second row comes first.
  const AccountRun run = Keep(
      SourceTable(kFrames,
                  "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None\n"
                  "   Frame=2   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=None\n") +
      SourceTable(kOfFrames, "   Frame=2   Temp=10\n"));
  EXPECT_THAT(run.Run.LoadLines("SUN", "*ELTEMPER"), ElementsAre("\t2,    20,", "\t1,    20,"));
  EXPECT_THAT(LossesOf(run, kFrames), ElementsAre("Frame=1: reference-of-another-element"));
}

TEST(AccountOfTemperaturesTest, InFahrenheitAMissingReferenceIsAChange) {
  const AccountRun run = Keep(
      Degrees("F") +
      SourceTable(kFrames,
                  "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=80   JtPattern=None\n"
                  "   Frame=2   LoadCase=SUN   Type=Temperature   Temp=80   JtPattern=None\n") +
      SourceTable(kOfFrames, "   Frame=2   Temp=32\n"));
  EXPECT_THAT(LossesOf(run, kFrames), ElementsAre("Frame=1: reference-missing"));
}

TEST(AccountOfTemperaturesTest, AnUnknownTypeOfAFrameIsDropped) {
  EXPECT_THAT(
      LossesOf(Keep("C", kFrames, "   Frame=1   LoadCase=SUN   Type=Heat   Temp=30\n"), kFrames),
      ElementsAre("Frame=1: temperature-type-unknown"));
}

TEST(AccountOfTemperaturesTest, ATemperatureOfAnAreaThatIsTakenAsAGradientIsChanged) {
  EXPECT_THAT(LossesOf(Keep("C", kAreas, "   Area=11   LoadCase=SUN   Temp=30\n"), kAreas),
              ElementsAre("Area=11: temperature-taken-as-gradient"));
}

// ---- By joint patterns ----

TEST(AccountOfPatternTemperaturesTest, ATemperatureByAPatternIsChangedAndTakesItsValues) {
  const AccountRun run = Keep(
      SourceTable(kFrames,
                  "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=HEAT\n"
                  "   Frame=2   LoadCase=SUN   Type=Gradient2   JtPattern=HEAT\n") +
      SourceTable(kAreas,
                  "   Area=12   LoadCase=RAIN   Type=Temperature   Temp=30   JtPattern=HEAT\n"));
  EXPECT_EQ(LossesOf(run, kFrames)[0], "Frame=1: temperature-by-pattern");
  EXPECT_EQ(FatesOf(run, kPatterns), "7 rows, 2 converted, 5 dropped");
}

TEST(AccountOfPatternTemperaturesTest, AreasAndSolidsTakeTheValuesOfTheirJoints) {
  EXPECT_EQ(
      FatesOf(Keep("C", kAreas,
                   "   Area=11   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=HEAT\n"),
              kPatterns),
      "7 rows, 4 converted, 3 dropped");
  EXPECT_EQ(FatesOf(Keep("C", kSolids, "   Solid=21   LoadCase=SUN   Temp=30   JtPattern=HEAT\n"),
                    kPatterns),
            "7 rows, 7 converted");
}

TEST(AccountOfPatternTemperaturesTest, AnUnknownPatternIsChanged) {
  EXPECT_THAT(
      LossesOf(Keep("C", kFrames,
                    "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=9   JtPattern=COLD\n"),
               kFrames),
      ElementsAre("Frame=1: pattern-unknown"));
}

TEST(AccountOfPatternTemperaturesTest, ARowThatDoesNotStateItsPatternIsChanged) {
  const AccountRun run =
      Keep("C", kFrames, "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=9\n");
  EXPECT_THAT(run.Run.LoadLines("SUN", "*ELTEMPER"), ElementsAre());
  EXPECT_THAT(LossesOf(run, kFrames), ElementsAre("Frame=1: pattern-unknown"));
}

TEST(AccountOfPatternTemperaturesTest, TrianglesAndWedgesAreChanged) {
  EXPECT_THAT(
      LossesOf(Keep("C", kAreas,
                    "   Area=12   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=HEAT\n"),
               kAreas),
      UnorderedElementsAre("Area=12: temperature-by-pattern", "Area=12: pattern-on-fewer-joints"));
  EXPECT_THAT(
      LossesOf(Keep("C", kSolids, "   Solid=22   LoadCase=SUN   Temp=30   JtPattern=HEAT\n"),
               kSolids),
      UnorderedElementsAre("Solid=22: temperature-by-pattern",
                           "Solid=22: pattern-on-fewer-joints"));
}

TEST(AccountOfPatternTemperaturesTest, AnUnknownFrameHasTheJointsOfTheLast) {
  EXPECT_THAT(
      LossesOf(Keep("C", kFrames,
                    "   Frame=90   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=HEAT\n"),
               kFrames),
      UnorderedElementsAre("Frame=90: temperature-by-pattern", "Frame=90: element-not-there",
                           "Frame=90: last-frame-for-unknown"));
}

TEST(AccountOfPatternTemperaturesTest, InAnUnknownUnitNoValueIsTaken) {
  const AccountRun run = Keep(
      "K", kFrames, "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30   JtPattern=HEAT\n");
  EXPECT_THAT(LossesOf(run, kFrames), UnorderedElementsAre("Frame=1: temperature-unit-unknown",
                                                           "Frame=1: temperature-by-pattern"));
  EXPECT_EQ(FatesOf(run, kPatterns), "7 rows, 7 dropped");
}

// ---- Gradients ----

TEST(AccountOfGradientsTest, GradientsPerFahrenheitAreConverted) {
  // Each is alone in its file: the second of two would be written with the first.
  for (const char* row : {"   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=9\n",
                          "   Frame=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9\n"}) {
    EXPECT_EQ(FatesOf(Keep("F", kFrames, row), kFrames), "1 rows, 1 converted");
  }
  EXPECT_EQ(FatesOf(Keep("F", kAreas,
                         "   Area=11   LoadCase=SUN   Type=Gradient   TempGrad3=9\n"
                         "   Area=11   LoadCase=SUN   Type=Gradient   TempGrad3=8\n"),
                    kAreas),
            "2 rows, 2 converted");
}

TEST(AccountOfGradientsTest, AGradientPerCelsiusIsChanged) {
  EXPECT_THAT(
      LossesOf(Keep("C", kFrames, "   Frame=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9\n"),
               kFrames),
      ElementsAre("Frame=1: gradient-not-per-fahrenheit"));
}

TEST(AccountOfGradientsTest, AGradientOfAnElementWithoutADepthIsChanged) {
  EXPECT_THAT(
      LossesOf(Keep("F", kFrames, "   Frame=2   LoadCase=SUN   Type=Gradient2   TempGrad2=9\n"),
               kFrames),
      ElementsAre("Frame=2: gradient-without-depth"));
  EXPECT_THAT(
      LossesOf(Keep("F", kAreas, "   Area=12   LoadCase=SUN   Type=Gradient   TempGrad3=9\n"),
               kAreas),
      ElementsAre("Area=12: gradient-without-depth"));
}

TEST(AccountOfGradientsTest, AGradientByAPatternIsChanged) {
  EXPECT_THAT(
      LossesOf(Keep("F", kFrames,
                    "   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=9   JtPattern=HEAT\n"),
               kFrames),
      ElementsAre("Frame=1: gradient-by-pattern"));
}

TEST(AccountOfGradientsTest, AGradientWithTheOneBeforeItIsChanged) {
  // The second row comes first.
  for (const char* rows : {"   Frame=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9\n"
                           "   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=9\n",
                           "   Frame=1   LoadCase=SUN   Type=Gradient2   TempGrad2=9\n"
                           "   Frame=1   LoadCase=SUN   Type=Gradient3   TempGrad3=9\n"}) {
    const AccountRun run = Keep("F", kFrames, rows);
    EXPECT_THAT(LossesOf(run, kFrames), ElementsAre("Frame=1: gradient-of-another-beside-it"));
    EXPECT_EQ(run.Rows.Tables[run.Rows.Losses.back().Table].Title, kFrames);
    EXPECT_EQ(run.Rows.Losses.back().Position, 1U);
  }
}

}  // namespace
