// Whole runs over numbers that no integer and hardly a double holds.
#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

TEST(NumberLimits, JointLabelsBeyondAnIntegerHaveItsLargestNumber) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=0   XorR=1
   Joint=2147483647   XorR=2
   Joint=2147483648   XorR=3
   Joint=4294967295   XorR=4
   Joint=4294967296   XorR=5
   Joint=99999999999999999999   XorR=6

TABLE:  "JOINT RESTRAINT ASSIGNMENTS"
   Joint=4294967296   U1=Yes
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(
      run.Lines("*NODE"),
      ElementsAre("\t0,     1,     0,     0", "\t2147483647,     2,     0,     0",
                  "\t2147483647,     3,     0,     0", "\t2147483647,     4,     0,     0",
                  "\t2147483647,     5,     0,     0", "\t2147483647,     6,     0,     0"));
  EXPECT_THAT(run.Lines("*CONSTRAINT"), ElementsAre("\t2147483647, 100000,"));
}

TEST(NumberLimits, ElementLabelsOfOneNumberAreTwoLabels) {
  // The families are compared by their labels, so that nothing is renumbered.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=4294967295   JointI=4294967296   JointJ=0
   Frame=4294967296   JointI=4294967297   JointJ=1

TABLE:  "CONNECTIVITY - AREA"
   Area=2147483647   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=4294967296   Angle=90   AdvanceAxes=No

TABLE:  "FRAME P-DELTA FORCE ASSIGNMENTS"
   Frame=4294967295   Direction="Local 1"   Force=5
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t2147483647,  BEAM,     0,     0, 2147483647,     0,     0",
                          "\t2147483647,  BEAM,     0,     0, 2147483647,     1,    90",
                          "\t2147483647,      ,     1,     1,     1,     2,     4,     3,     1"));
  ASSERT_EQ(run.Lines("*INIFORCE").size(), 1U);
  EXPECT_TRUE(run.Lines("*INIFORCE")[0].starts_with("\t2147483647,"));
}

TEST(NumberLimits, RealsBeyondADoubleAreInfinite) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=1E+400   Y=-1E+400   Z=nan
   Joint=2   XorR=1E+40   Y=-1E-400   Z=1E-310
)");
  EXPECT_THAT(run.Lines("*NODE"),
              ElementsAre("\t1,   inf,  -inf,   nan", "\t2, 1e+40,    -0, 1e-310"));
}

TEST(NumberLimits, AnglesAreWrittenAsTheyStand) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=1   JointJ=2
   Frame=3   JointI=1   JointJ=2

TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=1   Angle=1E+40   AdvanceAxes=No
   Frame=2   Angle=-inf   AdvanceAxes=No
   Frame=3   Angle=nan   AdvanceAxes=No
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     0,     0,     1,     2, 1e+40",
                                                 "\t2,  BEAM,     0,     0,     1,     2,  -inf",
                                                 "\t3,  BEAM,     0,     0,     1,     2,   nan"));
}

TEST(NumberLimits, CountsTakeTheNearestInteger) {
  const struct {
    const char* Count;
    const char* Modes;
    const char* BucklingModes;
  } rows[] = {
      // One frame has one mode at most.
      {"1E+40", "\tEIGEN,     1,    20,     0,     0", "\t2147483647,    30,     0"},
      {"inf", "\tEIGEN,     1,    20,     0,     0", "\t2147483647,    30,     0"},
      {"-1E+40", "\tEIGEN, -2147483648,    20,     0,     0", "\t-2147483648,    30,     0"},
      {"-inf", "\tEIGEN, -2147483648,    20,     0,     0", "\t-2147483648,    30,     0"},
      {"nan", "\tEIGEN,     0,    20,     0,     0", "\t0,    30,     0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Count);
    const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=MODAL   Type=LinModal
   Case=BUCK   Type=LinBuckling

TABLE:  "CASE - MODAL 1 - GENERAL"
   Case=MODAL   ModeType=Eigen   EigenTol=0   MaxNumModes=)" +
                                      std::string(row.Count) + R"(

TABLE:  "CASE - BUCKLING 1 - GENERAL"
   Case=BUCK   EigenTol=0   NumBuckMode=)" +
                                      row.Count + R"(

TABLE:  "CASE - BUCKLING 2 - LOAD ASSIGNMENTS"
   Case=BUCK   LoadType="Load case"   LoadName=DEAD   LoadSF=1
)");
    EXPECT_THAT(run.Lines("*EIGEN-CTRL"), ElementsAre(row.Modes));
    EXPECT_THAT(run.Lines("*BUCK-CTRL"), ElementsAre(row.BucklingModes, "\t\t DEAD,     1"));
  }
}

}  // namespace
