#include "joints/local_axes.h"

#include "support/conversion_run.h"
#include "support/writer_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string Typical(const std::string& rows) {
  return "TABLE:  \"JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL\"\n" + rows + "\n\n";
}

std::string Advanced(const std::string& rows) {
  return "TABLE:  \"JOINT LOCAL AXES ASSIGNMENTS 2 - ADVANCED\"\n" + rows + "\n\n";
}

/// Joint 1 has advanced axes as this row tells them.
ConversionRun ConvertAdvanced(const std::string& row, const std::string& furtherTables = "") {
  return Convert(Typical("   Joint=1   AngleA=0   AngleB=0   AngleC=0   AdvanceAxes=Yes") +
                 Advanced("   Joint=1   " + row) + furtherTables);
}

// ---- Angles ----

TEST(LocalAxes, AnglesGiveTheWholeSectionInReversedOrder) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=4   AngleA=30   AngleB=0   AngleC=0   AdvanceAxes=No
)");
  EXPECT_EQ(run.Section("*LOCALAXIS"),
            "*LOCALAXIS    ; Node Local Axis\n"
            "; NODE_LIST, iMETHOD, ANGLE-x, ANGLE-y, ANGLE-z                    ; iMETHOD=1\n"
            "; NODE_LIST, iMETHOD, P0X, P0Y, P0Z, P1X, P1Y, P1Z, P2X, P2Y, P2Z  ; iMETHOD=2\n"
            "; NODE_LIST, iMETHOD, V1X, V1Y, V1Z, V2X, V2Y, V2Z                 ; iMETHOD=3\n"
            "\t4,     1,     0,     0,    30\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(LocalAxes, EachAngleHasItsPlace) {
  EXPECT_THAT(
      Convert(Typical("   Joint=1   AngleA=12.5   AngleB=-20   AngleC=400")).Lines("*LOCALAXIS"),
      ElementsAre("\t1,     1,   400,   -20,  12.5"));
}

TEST(LocalAxes, LinesStandInTheOrderOfTheRows) {
  EXPECT_THAT(Convert(Typical("   Joint=30   AngleA=3\n"
                              "   Joint=20   AngleA=2\n"
                              "   Joint=10\n"
                              "   Joint=20   AngleA=4"))
                  .Lines("*LOCALAXIS"),
              ElementsAre("\t30,     1,     0,     0,     3", "\t20,     1,     0,     0,     2",
                          "\t10,     1,     0,     0,     0", "\t20,     1,     0,     0,     4"));
}

TEST(LocalAxes, LabelWithALetterIsItsPositionAndAnUnknownOneZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=B   XorR=1   Y=0   Z=0

)" + Typical("   Joint=B   AngleA=30\n"
             "   Joint=9   AngleA=40"));
  EXPECT_THAT(run.Lines("*LOCALAXIS"),
              ElementsAre("\t2,     1,     0,     0,    30", "\t0,     1,     0,     0,    40"));
}

TEST(LocalAxes, NoRowsGiveNoSection) {
  // Advanced axes alone are not looked at.
  const ConversionRun run =
      Convert(Typical("") + Advanced("   Joint=1   LocalPlane=12   AxCoordDir=X   CoordDir1=Y"));
  EXPECT_EQ(run.Section("*LOCALAXIS"), "");
  EXPECT_EQ(run.Result, 0);
}

TEST(LocalAxes, MethodOfThreePointsHasNoLine) {
  WriterRun run;
  run.Target.Add(1, s2k2ngt::T_NGT_LOCL_D{.Label = "1", .iMETHOD = 2});
  run.Target.Add(2, s2k2ngt::T_NGT_LOCL_D{.Label = "2", .iMETHOD = 1});
  EXPECT_EQ(run.Write(s2k2ngt::WriteLocalAxes),
            "*LOCALAXIS    ; Node Local Axis\n"
            "; NODE_LIST, iMETHOD, ANGLE-x, ANGLE-y, ANGLE-z                    ; iMETHOD=1\n"
            "; NODE_LIST, iMETHOD, P0X, P0Y, P0Z, P1X, P1Y, P1Z, P2X, P2Y, P2Z  ; iMETHOD=2\n"
            "; NODE_LIST, iMETHOD, V1X, V1Y, V1Z, V2X, V2Y, V2Z                 ; iMETHOD=3\n"
            "\t2,     1,     0,     0,     0\n"
            "\n");
}

// ---- Vectors ----

TEST(LocalAxes, PlaneOfTheAxesGivesTheirVectors) {
  // The axis is along X and the plane's vector along Y; the products leave zeros of either sign.
  const struct {
    std::string Plane;
    std::string Line;
  } rows[] = {
      {"12", "\t1,     3,     1,     0,     0,     0,     1,     0"},
      {"13", "\t1,     3,     1,     0,     0,     0,     0,    -1"},
      {"21", "\t1,     3,    -0,     1,     0,     1,     0,     0"},
      {"23", "\t1,     3,     0,     0,     1,     1,     0,     0"},
      {"31", "\t1,     3,    -0,     1,     0,     0,     0,     1"},
      {"32", "\t1,     3,     0,     0,    -1,     0,     1,     0"},
      {"11", "\t1,     3,     0,     0,     0,     0,     0,     0"},
      {"", "\t1,     3,     0,     0,     0,     0,     0,     0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Plane);
    const ConversionRun run =
        ConvertAdvanced("LocalPlane=" + row.Plane +
                        "   AxOption1=\"Coord Dir\"   AxCoordSys=GLOBAL   AxCoordDir=X   "
                        "PlOption1=\"Coord Dir\"   PlCoordSys=GLOBAL   CoordDir1=Y   CoordDir2=Z");
    EXPECT_THAT(run.Lines("*LOCALAXIS"), ElementsAre(row.Line));
  }
}

TEST(LocalAxes, DirectionOfTheAxisIsAUnitVectorOfItsSign) {
  const struct {
    std::string Axis;
    std::string InPlane;
    std::string Line;
  } rows[] = {
      {"X", "Y", "\t1,     3,     1,     0,     0,     0,     1,     0"},
      {"Y", "Z", "\t1,     3,     0,     1,     0,     0,     0,     1"},
      {"Z", "X", "\t1,     3,     0,     0,     1,     1,     0,     0"},
      {"-X", "Y", "\t1,     3,    -1,     0,     0,     0,     1,     0"},
      {"-Y", "Z", "\t1,     3,     0,    -1,     0,     0,     0,     1"},
      {"-Z", "X", "\t1,     3,     0,     0,    -1,     1,     0,     0"},
      {"x", "Y", "\t1,     3,     0,     0,     0,     0,     0,     0"},
      {"+X", "Y", "\t1,     3,     0,     0,     0,     0,     0,     0"},
      {"CR", "Y", "\t1,     3,     0,     0,     0,     0,     0,     0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Axis);
    const ConversionRun run = ConvertAdvanced("LocalPlane=12   AxCoordDir=" + row.Axis +
                                              "   CoordDir1=" + row.InPlane + "   CoordDir2=Z");
    EXPECT_THAT(run.Lines("*LOCALAXIS"), ElementsAre(row.Line));
  }
}

TEST(LocalAxes, SecondDirectionOfThePlaneStandsInWhereTheFirstRepeatsTheAxis) {
  const struct {
    std::string First;
    std::string Second;
    std::string Line;
  } rows[] = {
      {"Y", "Z", "\t1,     3,     1,     0,     0,     0,     1,     0"},
      {"X", "Z", "\t1,     3,     1,     0,     0,    -0,     0,     1"},
      {"X", "X", "\t1,     3,     1,     0,     0,     0,     0,     0"},
      // Another text, though along the same line: it stays.
      {"-X", "Z", "\t1,     3,     1,     0,     0,    -0,     0,     0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.First + " " + row.Second);
    const ConversionRun run = ConvertAdvanced(
        "LocalPlane=12   AxCoordDir=X   CoordDir1=" + row.First + "   CoordDir2=" + row.Second);
    EXPECT_THAT(run.Lines("*LOCALAXIS"), ElementsAre(row.Line));
  }
}

/// Joints 1 and 2, with (3, 4, 0) between them.
constexpr const char* kTwoJoints = R"(TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=1   Y=2   Z=3
   Joint=2   XorR=4   Y=6   Z=3
)";

TEST(LocalAxes, OptionSaysHowTheAxisIsGiven) {
  const struct {
    std::string Option;
    std::string Line;
  } rows[] = {
      {"AxOption1=\"Coord Dir\"   ", "\t1,     3,     1,     0,     0,     0,     0,     0"},
      {"AxOption1=\"Two Joints\"   ", "\t1,     3,     3,     4,     0,     0,     0,     0"},
      {"AxOption1=\"User Vector\"   ", "\t1,     3,     7,     8,   9.5,     0,     0,     0"},
      {"AxOption1=\"two joints\"   ", "\t1,     3,     1,     0,     0,     0,     0,     0"},
      {"AxOption1=Vector   ", "\t1,     3,     1,     0,     0,     0,     0,     0"},
      {"", "\t1,     3,     1,     0,     0,     0,     0,     0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Option);
    const ConversionRun run = ConvertAdvanced(
        "LocalPlane=12   " + row.Option +
            "AxCoordDir=X   AxVecJt1=1   AxVecJt2=2   PlOption1=\"User Vector\"   AxVecX=7   "
            "AxVecY=8   AxVecZ=9.5",
        kTwoJoints);
    EXPECT_THAT(run.Lines("*LOCALAXIS"), ElementsAre(row.Line));
  }
}

TEST(LocalAxes, OptionSaysHowTheVectorOfThePlaneIsGiven) {
  // What of it is across the axis along X is the second vector.
  const struct {
    std::string Option;
    std::string Line;
  } rows[] = {
      {"PlOption1=\"Coord Dir\"   ", "\t1,     3,     1,     0,     0,     0,     1,     0"},
      {"PlOption1=\"Two Joints\"   ", "\t1,     3,     1,     0,     0,     0,     4,     0"},
      {"PlOption1=\"User Vector\"   ", "\t1,     3,     1,     0,     0,    -0,     8,   9.5"},
      {"PlOption1=\"user vector\"   ", "\t1,     3,     1,     0,     0,     0,     1,     0"},
      {"", "\t1,     3,     1,     0,     0,     0,     1,     0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Option);
    const ConversionRun run = ConvertAdvanced(
        "LocalPlane=12   AxCoordDir=X   " + row.Option +
            "CoordDir1=Y   CoordDir2=Z   PlVecJt1=1   PlVecJt2=2   PlVecX=7   PlVecY=8   "
            "PlVecZ=9.5",
        kTwoJoints);
    EXPECT_THAT(run.Lines("*LOCALAXIS"), ElementsAre(row.Line));
  }
}

TEST(LocalAxes, JointsOfAVectorStandAtTheirGlobalCoordinates) {
  const struct {
    std::string Joint2;
    std::string Line;
  } rows[] = {
      {"XorR=1   Y=2   Z=3", "\t1,     3,     1,     2,     3,     0,     0,     0"},
      {"XorR=1   Y=2   Z=3   SpecialJt=No   GlobalX=10   GlobalY=20   GlobalZ=30",
       "\t1,     3,    10,    20,    30,     0,     0,     0"},
      {"XorR=1   Y=2   Z=3   SpecialJt=Yes   GlobalX=10   GlobalY=20   GlobalZ=30",
       "\t1,     3,    10,    20,    30,     0,     0,     0"},
      {"XorR=1   Y=2   Z=3   GlobalY=20", "\t1,     3,     0,    20,     0,     0,     0,     0"},
      {"XorR=1   Y=2   Z=3   SpecialJt=Yes",
       "\t1,     3,     0,     0,     0,     0,     0,     0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Joint2);
    const ConversionRun run = ConvertAdvanced(
        "LocalPlane=12   AxOption1=\"Two Joints\"   AxVecJt1=1   AxVecJt2=2   "
        "PlOption1=\"User Vector\"",
        "TABLE:  \"JOINT COORDINATES\"\n   Joint=1   XorR=0   Y=0   Z=0\n   Joint=2   " +
            row.Joint2 + "\n");
    EXPECT_THAT(run.Lines("*LOCALAXIS"), ElementsAre(row.Line));
  }
}

TEST(LocalAxes, UnknownJointOfAVectorStandsAtTheOrigin) {
  const ConversionRun run = ConvertAdvanced(
      "LocalPlane=12   AxOption1=\"Two Joints\"   AxVecJt1=99   AxVecJt2=2   "
      "PlOption1=\"User Vector\"",
      kTwoJoints);
  EXPECT_THAT(run.Lines("*LOCALAXIS"),
              ElementsAre("\t1,     3,     4,     6,     3,     0,     0,     0"));
}

TEST(LocalAxes, VectorsArePrintedInTheirLengths) {
  // (2, 0, 0) x (0, 3, 0) is (0, 0, 6), and that x (2, 0, 0) is (0, 12, 0).
  const ConversionRun run = ConvertAdvanced(
      "LocalPlane=12   AxOption1=\"User Vector\"   PlOption1=\"User Vector\"   AxVecX=2   "
      "AxVecY=0   AxVecZ=0   PlVecX=0   PlVecY=3   PlVecZ=0");
  EXPECT_THAT(run.Lines("*LOCALAXIS"),
              ElementsAre("\t1,     3,     2,     0,     0,     0,    12,     0"));
}

TEST(LocalAxes, AdvancedAxesAreReadOnlyWhereTheJointAsksForThem) {
  for (const std::string flag : {"AdvanceAxes=No", "AdvanceAxes=yes", ""}) {
    SCOPED_TRACE(flag);
    const ConversionRun run =
        Convert(Typical("   Joint=1   AngleA=30   " + flag) +
                Advanced("   Joint=1   LocalPlane=12   AxCoordDir=X   CoordDir1=Y"));
    EXPECT_THAT(run.Lines("*LOCALAXIS"), ElementsAre("\t1,     1,     0,     0,    30"));
  }
}

TEST(LocalAxes, JointWithoutItsAdvancedRowKeepsItsAngles) {
  const std::string typical = Typical("   Joint=1   AngleA=30   AdvanceAxes=Yes");
  for (const std::string& tables :
       {typical, typical + Advanced("   Joint=2   LocalPlane=12   AxCoordDir=X   CoordDir1=Y")}) {
    EXPECT_THAT(Convert(tables).Lines("*LOCALAXIS"),
                ElementsAre("\t1,     1,     0,     0,    30"));
  }
}

TEST(LocalAxes, OfTwoAdvancedRowsOfAJointTheOneWalkedFirstCounts) {
  // Rows 1 and 2 are walked 2, 1.
  const ConversionRun run =
      Convert(Typical("   Joint=1   AdvanceAxes=Yes") +
              Advanced("   Joint=1   LocalPlane=12   AxCoordDir=X   CoordDir1=Y\n"
                       "   Joint=1   LocalPlane=12   AxCoordDir=Z   CoordDir1=X"));
  EXPECT_THAT(run.Lines("*LOCALAXIS"),
              ElementsAre("\t1,     3,     0,     0,     1,     1,     0,     0"));
}

}  // namespace
