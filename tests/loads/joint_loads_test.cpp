#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The load case DEAD and these tables.
ConversionRun ConvertDead(const std::string& tables) {
  return Convert(StaticCases({"DEAD"}) + tables);
}

/// The load case DEAD, and joint 1 whose local axes 1, 2, 3 are the global axes Y, Z, X: local
/// (a, b, c) is global (c, a, b), and global (a, b, c) is local (b, c, a).
ConversionRun ConvertTurned(const std::string& tables) {
  return ConvertDead(R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=1   AngleA=0   AngleB=0   AngleC=0   AdvanceAxes=Yes

TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Joint=1   LocalPlane=12   AxOption1="Coord Dir"   AxCoordDir=Y   PlOption1="Coord Dir"   CoordDir1=Z   CoordDir2=X
)" + tables);
}

// ---- Forces ----

std::string ForceTable(const std::string& rows) {
  return "\nTABLE:  \"JOINT LOADS - FORCE\"\n   " + rows + "\n";
}

TEST(JointForces, AreNodalLoadsAlongTheGlobalAxes) {
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT LOADS - FORCE"
   Joint=2   LoadCase=DEAD   CoordSys=GLOBAL   F1=1   F2=-2.5   F3=3   M1=4   M2=5   M3=-0.0000125
   Joint=15   LoadCase=DEAD   CoordSys=GLOBAL   F1=0   F2=0   F3=-1234567   M1=0   M2=0   M3=0
)");
  EXPECT_EQ(run.LoadBlock("DEAD", "*CONLOAD"),
            "*USE-STLD,       DEAD\n\n"
            "*CONLOAD    ; Nodal Loads\n"
            ";NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n"
            "\t15,     0,     0, -1.23457e+06,     0,     0,     0,\n"
            "\t2,     1,  -2.5,     3,     4,     5, -1.25e-05,\n"
            ";End of data for load case [DEAD]\n"
            "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(JointForces, MissingComponentsAreZero) {
  const ConversionRun run = ConvertDead(ForceTable("Joint=1   LoadCase=DEAD   M2=7"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1,     0,     0,     0,     0,     7,     0,"));
}

TEST(JointForces, OfLocalSystemAreTurnedToTheGlobalAxes) {
  const ConversionRun run = ConvertTurned(ForceTable(
      "Joint=1   LoadCase=DEAD   CoordSys=Local   F1=1   F2=2   F3=3   M1=4   M2=5   M3=6"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1,     3,     1,     2,     6,     4,     5,"));
}

TEST(JointForces, OfAnyOtherSystemAreTakenAsGlobal) {
  for (const char* system :
       {"CoordSys=GLOBAL", "CoordSys=LOCAL", "CoordSys=local", "CoordSys=CSYS1", "CoordSys=", ""}) {
    SCOPED_TRACE(system);
    const ConversionRun run = ConvertTurned(
        ForceTable("Joint=1   LoadCase=DEAD   F1=1   F2=2   F3=3   M1=4   M2=5   M3=6   " +
                   std::string(system)));
    EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
                ElementsAre("\t1,     1,     2,     3,     4,     5,     6,"));
  }
}

TEST(JointForces, OfLocalSystemStayAtAJointWithoutLocalAxes) {
  const ConversionRun run = ConvertTurned(ForceTable(
      "Joint=2   LoadCase=DEAD   CoordSys=Local   F1=1   F2=2   F3=0.000005   M1=4   M2=5   M3=6"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t2,     1,     2, 5e-06,     4,     5,     6,"));
}

TEST(JointForces, OfLocalSystemStayWhereAllAnglesAreZero) {
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=1   AngleA=0   AngleB=0   AngleC=0   AdvanceAxes=No
)" + ForceTable("Joint=1   LoadCase=DEAD   CoordSys=Local   F1=1   F2=0.000005"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1,     1, 5e-06,     0,     0,     0,     0,"));
}

/// Joint 1 has an axis and a plane of the same direction, and so no axes of its own.
constexpr const char* kDegenerateAxes = R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=1   AdvanceAxes=Yes

TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Joint=1   LocalPlane=12   AxOption1="Coord Dir"   AxCoordDir=Y   PlOption1="Coord Dir"   CoordDir1=Y   CoordDir2=Y
)";

TEST(JointForces, OfLocalSystemStayWhereTheLocalAxesAreDegenerate) {
  const ConversionRun run =
      ConvertDead(kDegenerateAxes +
                  ForceTable("Joint=1   LoadCase=DEAD   CoordSys=Local   F1=1   F2=0.000005"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1,     1, 5e-06,     0,     0,     0,     0,"));
}

TEST(JointForces, OfLocalSystemAtAJointWithoutALabelAreTurnedByTheDegenerateAxes) {
  // These axes are the global ones and have no label: only what is below the threshold changes.
  const ConversionRun run =
      ConvertDead(kDegenerateAxes + ForceTable("LoadCase=DEAD   CoordSys=Local   F1=1   "
                                               "F2=0.000005"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t0,     1,     0,     0,     0,     0,     0,"));
}

TEST(JointForces, TurnedComponentsBelowTheirThresholdBecomeZero) {
  // Local 1, 2, 3 come out as global Y, Z, X.
  const ConversionRun run = ConvertTurned(ForceTable(
      "Joint=1   LoadCase=DEAD   CoordSys=Local   F1=0.000005   F2=-0.00000999   F3=-0.00001"
      "   M1=0.00001   M2=-0.0   M3=9.9E-06"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1, -1e-05,     0,     0,     0, 1e-05,     0,"));
}

TEST(JointForces, AngleOfNinetyDegreesLeavesARestAboveTheThreshold) {
  // 90 degrees by the constant 0.01745328888889 are 3.267949e-07 short of a right angle.
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=1   AngleA=90   AngleB=0   AngleC=0   AdvanceAxes=No
)" + ForceTable("Joint=1   LoadCase=DEAD   CoordSys=Local   F1=10   M1=100   M2=-100"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1,     0,    10,     0,   100,   100,     0,"));
  const ConversionRun far = ConvertDead(R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=1   AngleA=90   AngleB=0   AngleC=0   AdvanceAxes=No
)" + ForceTable("Joint=1   LoadCase=DEAD   CoordSys=Local   F1=100"));
  EXPECT_THAT(far.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1, 3.26795e-05,   100,     0,     0,     0,     0,"));
}

TEST(JointForces, StandInWalkOrder) {
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT LOADS - FORCE"
   Joint=1   LoadCase=DEAD   F1=1
   Joint=2   LoadCase=DEAD   F1=1
   Joint=3   LoadCase=DEAD   F1=1
   Joint=4   LoadCase=LIVE   F1=1
   Joint=5   LoadCase=DEAD   F1=1
   Joint=6   LoadCase=DEAD   F1=1
)");
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t3,     1,     0,     0,     0,     0,     0,",
                          "\t6,     1,     0,     0,     0,     0,     0,",
                          "\t2,     1,     0,     0,     0,     0,     0,",
                          "\t5,     1,     0,     0,     0,     0,     0,",
                          "\t1,     1,     0,     0,     0,     0,     0,"));
}

TEST(JointForces, OfOneJointAndCaseAreNotMerged) {
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT LOADS - FORCE"
   Joint=1   LoadCase=DEAD   F3=-10
   Joint=1   LoadCase=DEAD   F3=-10
)");
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1,     0,     0,   -10,     0,     0,     0,",
                          "\t1,     0,     0,   -10,     0,     0,     0,"));
}

TEST(JointForces, OfZeroAreWritten) {
  const ConversionRun run = ConvertDead(ForceTable("Joint=1   LoadCase=DEAD"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1,     0,     0,     0,     0,     0,     0,"));
}

TEST(JointForces, CaseIsComparedExactly) {
  const ConversionRun run = ConvertDead(ForceTable(
      "Joint=1   LoadCase=Dead   F1=1\n   Joint=1   LoadCase=DEAD2   F1=1\n   Joint=1   F1=1"));
  EXPECT_THAT(run.Output, HasSubstr("*STLDCASE"));
  EXPECT_THAT(run.Output, Not(HasSubstr("*USE-STLD")));
}

TEST(JointForces, AtALabelOfDigitsNeedNoJoint) {
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0   Y=0   Z=0
)" + ForceTable("Joint=99   LoadCase=DEAD   F1=1\n   Joint=007   LoadCase=DEAD   F1=1"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t7,     1,     0,     0,     0,     0,     0,",
                          "\t99,     1,     0,     0,     0,     0,     0,"));
}

TEST(JointForces, InARenumberedModelStandAtTheNodeOfTheirLabelOrAtZero) {
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A1   XorR=0   Y=0   Z=0
   Joint=7   XorR=1   Y=0   Z=0
   Joint=B   XorR=2   Y=0   Z=0
)" + ForceTable("Joint=99   LoadCase=DEAD   F1=1\n"
                "   Joint=7   LoadCase=DEAD   F1=1\n"
                "   Joint=B   LoadCase=DEAD   F1=1"));
  // Rows 3, 2, 1: the joint that is not there stands behind others and is 0 all the same.
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t3,     1,     0,     0,     0,     0,     0,",
                          "\t2,     1,     0,     0,     0,     0,     0,",
                          "\t0,     1,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_Renumbering"));
}

// ---- Ground displacements ----

std::string DisplacementTable(const std::string& rows) {
  return "\nTABLE:  \"JOINT LOADS - GROUND DISPLACEMENT\"\n   " + rows + "\n";
}

TEST(GroundDisplacements, AreSpecifiedDisplacementsWithAFlagForEachComponent) {
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT LOADS - GROUND DISPLACEMENT"
   Joint=1   LoadCase=DEAD   CoordSys=GLOBAL   U1=0.001   U2=0   U3=0   R1=0   R2=0   R3=0
   Joint=12   LoadCase=DEAD   CoordSys=GLOBAL   U1=0   U2=0.02   U3=-0.015   R1=0   R2=0   R3=0.5
)");
  EXPECT_EQ(run.LoadBlock("DEAD", "*SPDISP"),
            "*USE-STLD,       DEAD\n\n"
            "*SPDISP    ; Specified Displacement of Supports\n"
            "; NODE_LIST, FLAG, Dx, Dy, Dz, Rx, Ry, Rz, GROUP\n"
            "\t12, 011001,     0,  0.02, -0.015,     0,     0,   0.5,\n"
            "\t1, 100000, 0.001,     0,     0,     0,     0,     0,\n"
            ";End of data for load case [DEAD]\n"
            "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(GroundDisplacements, EachComponentHasItsPlaceInTheFlag) {
  struct Mapping {
    const char* Component;
    const char* Line;
  };
  const std::vector<Mapping> mappings = {
      {"U1=2", "\t1, 100000,     2,     0,     0,     0,     0,     0,"},
      {"U2=2", "\t1, 010000,     0,     2,     0,     0,     0,     0,"},
      {"U3=2", "\t1, 001000,     0,     0,     2,     0,     0,     0,"},
      {"R1=2", "\t1, 000100,     0,     0,     0,     2,     0,     0,"},
      {"R2=2", "\t1, 000010,     0,     0,     0,     0,     2,     0,"},
      {"R3=2", "\t1, 000001,     0,     0,     0,     0,     0,     2,"},
      {"U1=0", "\t1, 000000,     0,     0,     0,     0,     0,     0,"},
      {"U1=-1   R3=-1", "\t1, 100001,    -1,     0,     0,     0,     0,    -1,"}};
  for (const auto& [component, line] : mappings) {
    SCOPED_TRACE(component);
    const ConversionRun run =
        ConvertDead(DisplacementTable("Joint=1   LoadCase=DEAD   " + std::string(component)));
    EXPECT_THAT(run.LoadLines("DEAD", "*SPDISP"), ElementsAre(line));
  }
}

TEST(GroundDisplacements, ValueAtTheToleranceIsFlaggedAndOneBelowItIsWrittenUnflagged) {
  const ConversionRun run = ConvertDead(DisplacementTable(
      "Joint=1   LoadCase=DEAD   CoordSys=GLOBAL   U1=1E-15   U2=-1E-15   U3=9E-16   R1=-9E-16"));
  EXPECT_THAT(run.LoadLines("DEAD", "*SPDISP"),
              ElementsAre("\t1, 110000, 1e-15, -1e-15, 9e-16, -9e-16,     0,     0,"));
}

TEST(GroundDisplacements, OfGlobalSystemAreTurnedToTheLocalAxesAndThenFlagged) {
  const ConversionRun run = ConvertTurned(DisplacementTable(
      "Joint=1   LoadCase=DEAD   CoordSys=GLOBAL   U1=1   U2=2   U3=0   R1=4   R2=0   R3=0"));
  EXPECT_THAT(run.LoadLines("DEAD", "*SPDISP"),
              ElementsAre("\t1, 101001,     2,     0,     1,     0,     0,     4,"));
}

TEST(GroundDisplacements, OfAnyOtherSystemAreTakenAsLocal) {
  for (const char* system : {"CoordSys=Local", "CoordSys=Global", "CoordSys=global",
                             "CoordSys=CSYS1", "CoordSys=", ""}) {
    SCOPED_TRACE(system);
    const ConversionRun run = ConvertTurned(
        DisplacementTable("Joint=1   LoadCase=DEAD   U1=1   U2=2   U3=3   R1=4   R2=5   R3=6   " +
                          std::string(system)));
    EXPECT_THAT(run.LoadLines("DEAD", "*SPDISP"),
                ElementsAre("\t1, 111111,     1,     2,     3,     4,     5,     6,"));
  }
}

TEST(GroundDisplacements, OfGlobalSystemStayAtAJointWithoutLocalAxes) {
  const ConversionRun run = ConvertTurned(DisplacementTable(
      "Joint=2   LoadCase=DEAD   CoordSys=GLOBAL   U1=1   U2=0.000005   U3=0   R1=4   R2=0"));
  EXPECT_THAT(run.LoadLines("DEAD", "*SPDISP"),
              ElementsAre("\t2, 110100,     1, 5e-06,     0,     4,     0,     0,"));
}

TEST(GroundDisplacements, TurnedComponentsBelowTheirThresholdBecomeZeroAndAreNotFlagged) {
  // Global X, Y, Z come out as local 3, 1, 2.
  const ConversionRun run = ConvertTurned(DisplacementTable(
      "Joint=1   LoadCase=DEAD   CoordSys=GLOBAL   U1=0.000005   U2=-0.00001   U3=-0.0000099"
      "   R1=0.00001   R2=0.001   R3=9E-06"));
  EXPECT_THAT(run.LoadLines("DEAD", "*SPDISP"),
              ElementsAre("\t1, 100101, -1e-05,     0,     0, 0.001,     0, 1e-05,"));
}

TEST(GroundDisplacements, AreTurnedAgainstTheSenseOfForces) {
  // 90 degrees about Z: local 1 is global Y, so that a global Y is a local 1 and a global X a
  // negative local 2.
  const ConversionRun run =
      ConvertDead(R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=1   AngleA=90   AngleB=0   AngleC=0   AdvanceAxes=No
)" + ForceTable("Joint=1   LoadCase=DEAD   CoordSys=Local   F1=1   M2=2") +
                  DisplacementTable("Joint=1   LoadCase=DEAD   CoordSys=GLOBAL   "
                                    "U1=1   R2=2"));
  EXPECT_THAT(run.LoadLines("DEAD", "*CONLOAD"),
              ElementsAre("\t1,     0,     1,     0,    -2,     0,     0,"));
  EXPECT_THAT(run.LoadLines("DEAD", "*SPDISP"),
              ElementsAre("\t1, 010100,     0,    -1,     0,     2,     0,     0,"));
}

TEST(GroundDisplacements, StandInWalkOrderAndAreNotMerged) {
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT LOADS - GROUND DISPLACEMENT"
   Joint=1   LoadCase=DEAD   CoordSys=GLOBAL   U1=1
   Joint=1   LoadCase=DEAD   CoordSys=GLOBAL   U1=2
   Joint=1   LoadCase=DEAD   CoordSys=GLOBAL   U1=3
   Joint=2   LoadCase=LIVE   CoordSys=GLOBAL   U1=4
)");
  EXPECT_THAT(run.LoadLines("DEAD", "*SPDISP"),
              ElementsAre("\t1, 100000,     3,     0,     0,     0,     0,     0,",
                          "\t1, 100000,     2,     0,     0,     0,     0,     0,",
                          "\t1, 100000,     1,     0,     0,     0,     0,     0,"));
  EXPECT_EQ(run.LoadBlock("LIVE", "*SPDISP"), "");
}

TEST(GroundDisplacements, InARenumberedModelStandAtTheNodeOfTheirLabelOrAtZero) {
  const ConversionRun run = ConvertDead(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0   Y=0   Z=0
   Joint=BASE   XorR=1   Y=0   Z=0
)" + DisplacementTable("Joint=GONE   LoadCase=DEAD   U1=1\n   Joint=BASE   LoadCase=DEAD   U1=1"));
  EXPECT_THAT(run.LoadLines("DEAD", "*SPDISP"),
              ElementsAre("\t2, 100000,     1,     0,     0,     0,     0,     0,",
                          "\t0, 100000,     1,     0,     0,     0,     0,     0,"));
}

}  // namespace
