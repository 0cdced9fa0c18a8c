// The matrix of a joint's local axes is not written. It shows in the masses, which are turned from
// local to global axes, and in the springs, which are turned the other way.
#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

std::string Typical(const std::string& rows) {
  return "TABLE:  \"JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL\"\n" + rows + "\n\n";
}

std::string Advanced(const std::string& rows) {
  return "TABLE:  \"JOINT LOCAL AXES ASSIGNMENTS 2 - ADVANCED\"\n" + rows + "\n\n";
}

std::string Mass(const std::string& values) {
  return "TABLE:  \"JOINT ADDED MASS ASSIGNMENTS\"\n   Joint=1   CoordSys=Local   " + values +
         "\n\n";
}

/// A spring of joint 1 that a matrix, even an identity, clears away.
constexpr const char* kTinySpring =
    "TABLE:  \"JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED\"\n"
    "   Joint=1   CoordSys=GLOBAL   U1=2   U2=0.000001\n\n";
constexpr const char* kTinyCleared = "\t1,     2,     0,     0,     0,     0,     0,";
constexpr const char* kTinyCopied = "\t1,     2, 1e-06,     0,     0,     0,     0,";

// ---- From angles ----

TEST(AxesMatrix, AnglesTurnAboutTheirAxes) {
  const struct {
    std::string Angles;
    std::string Mass;
    std::string Line;
  } rows[] = {
      // A, about Z: X to Y, Y to -X.
      {"AngleA=90", "Mass1=10", "\t1,     0,    10,     0,     0,     0,     0"},
      {"AngleA=90", "Mass2=10", "\t1,   -10,     0,     0,     0,     0,     0"},
      {"AngleA=90", "MMI3=10", "\t1,     0,     0,     0,     0,     0,    10"},
      // B, about Y: Z to X, X to -Z.
      {"AngleB=90", "Mass3=10", "\t1,    10,     0,     0,     0,     0,     0"},
      {"AngleB=90", "MMI1=10", "\t1,     0,     0,     0,     0,     0,   -10"},
      {"AngleB=90", "MMI2=10", "\t1,     0,     0,     0,     0,    10,     0"},
      // C, about X: Y to Z, Z to -Y.
      {"AngleC=90", "Mass1=10", "\t1,    10,     0,     0,     0,     0,     0"},
      {"AngleC=90", "Mass2=10", "\t1,     0,     0,    10,     0,     0,     0"},
      {"AngleC=90", "MMI3=10", "\t1,     0,     0,     0,     0,   -10,     0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Angles + " " + row.Mass);
    const ConversionRun run = Convert(Typical("   Joint=1   " + row.Angles) + Mass(row.Mass));
    EXPECT_THAT(run.Lines("*NODALMASS"), ElementsAre(row.Line));
  }
}

TEST(AxesMatrix, TurnsAboutXFirstThenYThenZ) {
  const struct {
    std::string Angles;
    std::string Mass;
    std::string Line;
  } rows[] = {
      // X stays about X and goes to Y about Z.
      {"AngleA=90   AngleC=90", "Mass1=10", "\t1,     0,    10,     0,     0,     0,     0"},
      // Y goes to Z about X and stays about Z.
      {"AngleA=90   AngleC=90", "MMI2=10", "\t1,     0,     0,     0,     0,     0,    10"},
      // Y goes to Z about X and to X about Y.
      {"AngleB=90   AngleC=90", "Mass2=10", "\t1,    10,     0,     0,     0,     0,     0"},
      // Z goes to X about Y and to Y about Z.
      {"AngleA=90   AngleB=90", "Mass3=10", "\t1,     0,    10,     0,     0,     0,     0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Angles + " " + row.Mass);
    const ConversionRun run = Convert(Typical("   Joint=1   " + row.Angles) + Mass(row.Mass));
    EXPECT_THAT(run.Lines("*NODALMASS"), ElementsAre(row.Line));
  }
}

TEST(AxesMatrix, ThreeAnglesTurnWithPiCutBehindItsSixthDecimal) {
  // The columns of Rz(30) Ry(45) Rx(60), each times 100. With the whole of pi the first number
  // would be 61.2372.
  const std::string axes = Typical("   Joint=1   AngleA=30   AngleB=45   AngleC=60");
  EXPECT_THAT(Convert(axes + Mass("Mass1=100   MMI2=100")).Lines("*NODALMASS"),
              ElementsAre("\t1, 61.2373, 35.3553, -70.7107, 28.033, 73.9199, 61.2372"));
  EXPECT_THAT(Convert(axes + Mass("Mass3=100")).Lines("*NODALMASS"),
              ElementsAre("\t1, 73.9199, -57.3223, 35.3554,     0,     0,     0"));
}

TEST(AxesMatrix, ShortPiLeavesATraceThatOnlyClearingRemoves) {
  // The cosine of its 90 degrees is 3.26795e-07.
  const std::string axes = Typical("   Joint=1   AngleA=90");
  EXPECT_THAT(Convert(axes + Mass("Mass1=100")).Lines("*NODALMASS"),
              ElementsAre("\t1, 3.26795e-05,   100,     0,     0,     0,     0"));
  EXPECT_THAT(Convert(axes + Mass("Mass1=30")).Lines("*NODALMASS"),
              ElementsAre("\t1,     0,    30,     0,     0,     0,     0"));
}

TEST(AxesMatrix, SpringsAreTurnedTheOtherWay) {
  const ConversionRun run = Convert(Typical("   Joint=1   AngleA=90") + R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   Joint=1   CoordSys=GLOBAL   U1=10   R2=20
)");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t1,     0,   -10,     0,    20,     0,     0,"));
}

TEST(AxesMatrix, JointOfZeroAnglesHasNone) {
  const ConversionRun run = Convert(
      Typical("   Joint=1   AngleA=0   AngleB=0   AngleC=0   AdvanceAxes=No") + kTinySpring + R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=1   CoordSys=GLOBAL   U1=5
)");
  EXPECT_THAT(run.Lines("*LOCALAXIS"), ElementsAre("\t1,     1,     0,     0,     0"));
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre(kTinyCopied));
  EXPECT_THAT(run.Lines("*GSPRING"), ElementsAre("\t1, GSPR1,"));
}

TEST(AxesMatrix, SumOfTheAnglesDecidesWhetherAJointHasOne) {
  const struct {
    std::string Angles;
    std::string Line;
  } rows[] = {
      {"AngleA=1e-16   AngleB=1e-16   AngleC=1e-16", kTinyCopied},
      {"AngleA=6e-16   AngleB=-6e-16", kTinyCleared},  // an identity, but one of the joint
      {"AngleC=-1e-14", kTinyCleared},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Angles);
    EXPECT_THAT(Convert(Typical("   Joint=1   " + row.Angles) + kTinySpring).Lines("*SPRING"),
                ElementsAre(row.Line));
  }
}

TEST(AxesMatrix, OfTwoRowsOfAJointTheLastMadeIsWalkedFirst) {
  // Row 2 is walked first and makes matrix 1, row 1 makes matrix 2; of 17 buckets 2 comes first.
  const ConversionRun run =
      Convert(Typical("   Joint=1   AngleA=90\n   Joint=1   AngleB=90") + Mass("Mass1=10"));
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t1,     0,    10,     0,     0,     0,     0"));
}

// ---- From vectors ----

TEST(AxesMatrix, ColumnsAreTheUnitVectorsOfTheAxes) {
  // Axis 1 is along (3, 4, 0), axis 2 along Z and axis 3 along (4, -3, 0).
  const std::string axes = Typical("   Joint=1   AdvanceAxes=Yes") +
                           Advanced(
                               "   Joint=1   LocalPlane=12   AxOption1=\"User Vector\"   "
                               "PlOption1=\"User Vector\"   AxVecX=3   AxVecY=4   AxVecZ=0   "
                               "PlVecX=0   PlVecY=0   PlVecZ=5");
  const ConversionRun run = Convert(axes + Mass("Mass1=10   Mass2=20   Mass3=5   MMI2=1"));
  EXPECT_THAT(run.Lines("*LOCALAXIS"),
              ElementsAre("\t1,     3,     3,     4,     0,    -0,     0,   125"));
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t1,    10,     5,    20,     0,     0,     1"));
}

TEST(AxesMatrix, AxesThatSpanNoPlaneHaveNone) {
  for (const std::string row : {
           "LocalPlane=12   AxCoordDir=X   CoordDir1=X   CoordDir2=X",
           "LocalPlane=11   AxCoordDir=X   CoordDir1=Y",
           "LocalPlane=12   AxCoordDir=CR   CoordDir1=Y",
       }) {
    SCOPED_TRACE(row);
    // The angles' own matrix is lost with it.
    const ConversionRun run = Convert(Typical("   Joint=1   AngleA=90   AdvanceAxes=Yes") +
                                      Advanced("   Joint=1   " + row) + kTinySpring + R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 2 - COUPLED"
   Joint=1   CoordSys=GLOBAL   U1=5
)");
    EXPECT_THAT(run.Lines("*SPRING"), ElementsAre(kTinyCopied));
    EXPECT_THAT(run.Lines("*GSPRING"), ElementsAre("\t1, GSPR1,"));
  }
}

TEST(AxesMatrix, SquaredLengthBelowTheToleranceSpansNoPlane) {
  // Axis 2 is (1e-7, 0, 0) or (1e-8, 0, 0), axis 1 is along Z and axis 3 along Y, and both are long
  // enough.
  const struct {
    std::string AxVecX;
    std::string Line;
  } rows[] = {
      {"1e-7", "\t1,     2,     3,     0,     0,     0,     0,"},
      {"1e-8", "\t1,     3,     0,     2,     0,     0,     0,"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.AxVecX);
    const ConversionRun run = Convert(
        Typical("   Joint=1   AdvanceAxes=Yes") +
        Advanced("   Joint=1   LocalPlane=23   AxOption1=\"User Vector\"   "
                 "PlOption1=\"User Vector\"   AxVecX=" +
                 row.AxVecX + "   AxVecY=0   AxVecZ=0   PlVecX=0   PlVecY=1000000000   PlVecZ=0") +
        "TABLE:  \"JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED\"\n"
        "   Joint=1   CoordSys=GLOBAL   U1=3   U2=0   U3=2\n");
    EXPECT_THAT(run.Lines("*SPRING"), ElementsAre(row.Line));
  }
}

TEST(AxesMatrix, ThirdAxisTooShortSpansNoPlaneThoughTheOthersAreLongEnough) {
  // Axis 1 is (0, 0, 1e-7), axis 2 is (1e-5, 0, 0), and axis 3 (0, 1e-12, 0).
  const ConversionRun run =
      Convert(Typical("   Joint=1   AdvanceAxes=Yes") +
              Advanced("   Joint=1   LocalPlane=12   AxOption1=\"User Vector\"   "
                       "PlOption1=\"User Vector\"   AxVecX=0   AxVecY=0   AxVecZ=1e-7   "
                       "PlVecX=1000000000   PlVecY=0   PlVecZ=0") +
              "TABLE:  \"JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED\"\n"
              "   Joint=1   CoordSys=GLOBAL   U1=3   U2=0   U3=2\n");
  EXPECT_THAT(run.Lines("*SPRING"), ElementsAre("\t1,     3,     0,     2,     0,     0,     0,"));
}

TEST(AxesMatrix, AxesThatSpanNoPlaneLeaveAnIdentityToJointsOfEmptyLabel) {
  const std::string spring = R"(
TABLE:  "JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED"
   CoordSys=GLOBAL   U1=2   U2=0.000001
)";
  EXPECT_THAT(Convert(spring).Lines("*SPRING"),
              ElementsAre("\t0,     2, 1e-06,     0,     0,     0,     0,"));
  EXPECT_THAT(Convert(Typical("   Joint=1   AdvanceAxes=Yes") +
                      Advanced("   Joint=1   LocalPlane=12   AxCoordDir=X   CoordDir1=X   "
                               "CoordDir2=X") +
                      spring)
                  .Lines("*SPRING"),
              ElementsAre("\t0,     2,     0,     0,     0,     0,     0,"));
}

/// Axis 1 along Z, axis 2 along X, axis 3 along Y.
constexpr const char* kZxy = "   Joint=1   LocalPlane=12   AxCoordDir=Z   CoordDir1=X";

TEST(AxesMatrix, AdvancedAxesReplaceThatOfTheAngles) {
  const ConversionRun run = Convert(Typical("   Joint=1   AngleA=90   AdvanceAxes=Yes") +
                                    Advanced(kZxy) + Mass("Mass1=10   Mass2=20   Mass3=30"));
  EXPECT_THAT(run.Lines("*LOCALAXIS"),
              ElementsAre("\t1,     3,     0,     0,     1,     1,     0,     0"));
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t1,    20,    30,    10,     0,     0,     0"));
}

TEST(AxesMatrix, JointWithoutItsAdvancedRowKeepsThatOfTheAngles) {
  const ConversionRun run =
      Convert(Typical("   Joint=1   AngleA=90   AdvanceAxes=Yes") +
              Advanced("   Joint=2   LocalPlane=12   AxCoordDir=Z") + Mass("Mass1=10"));
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t1,     0,    10,     0,     0,     0,     0"));
}

TEST(AxesMatrix, AdvancedAxesReplaceThatOfAnEarlierRowOfTheJoint) {
  // Row 2 is walked first: its angles make matrix 1, which row 1 writes over.
  const ConversionRun run =
      Convert(Typical("   Joint=1   AdvanceAxes=Yes\n   Joint=1   AngleA=90") + Advanced(kZxy) +
              Mass("Mass1=10   Mass2=20   Mass3=30"));
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t1,    20,    30,    10,     0,     0,     0"));
}

TEST(AxesMatrix, AnglesDoNotReplaceTheAdvancedAxesOfAnEarlierRowButAreWalkedFirst) {
  // Row 2 is walked first and makes matrix 1; the angles of row 1 make matrix 2.
  const ConversionRun run =
      Convert(Typical("   Joint=1   AngleA=90\n   Joint=1   AdvanceAxes=Yes") + Advanced(kZxy) +
              Mass("Mass1=10"));
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t1,     0,    10,     0,     0,     0,     0"));
}

TEST(AxesMatrix, ReplacingFindsTheRowOfTheJointThatIsWalkedFirst) {
  // The walk over the rows is 3, 2, 1: angles of rows 3 and 2 make matrices 1 and 2; the advanced
  // axes of row 1 span no plane and take the joint's label from matrix 2, the one walked first.
  // Matrix 1, about Y, is left.
  const ConversionRun run =
      Convert(Typical("   Joint=1   AdvanceAxes=Yes\n   Joint=1   AngleA=90\n"
                      "   Joint=1   AngleB=90") +
              Advanced("   Joint=1   LocalPlane=12   AxCoordDir=X   CoordDir1=X   CoordDir2=X") +
              Mass("Mass3=10"));
  EXPECT_THAT(run.Lines("*NODALMASS"),
              ElementsAre("\t1,    10,     0,     0,     0,     0,     0"));
}

}  // namespace
