#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

constexpr const char* kFrameAndJoints = R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   CoordType=Cartesian   XorR=0   Y=0   Z=0
   Joint=2   CoordType=Cartesian   XorR=5   Y=1   Z=1
   Joint=3   CoordType=Cartesian   XorR=0   Y=0   Z=4
   Joint=4   CoordType=Cartesian   XorR=9   Y=0   Z=0
   Joint=5   XorR=0   Y=9   Z=0   SpecialJt=Yes   GlobalX=0   GlobalY=1   GlobalZ=1
   Joint=6   XorR=0   Y=9   Z=0   SpecialJt=No   GlobalX=0   GlobalY=0   GlobalZ=-2

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

)";

/// A frame of this angle that asks for the advanced axes of this row.
ConversionRun ConvertAdvanced(const std::string& angle, const std::string& advanced) {
  return Convert(kFrameAndJoints + std::string(R"(
TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=1   MirrorAbt2=No   MirrorAbt3=No   AdvanceAxes=Yes   Angle=)") +
                 angle + R"(

TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Frame=1   )" + advanced +
                 "\n");
}

std::string Line(const std::string& angle) {
  return "\t1,  BEAM,     0,     0,     1,     2, " + angle;
}

TEST(FrameAngle, IsThatOfTheFrameOfThisVeryLabel) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3
   Frame=3   JointI=3   JointJ=4

TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=3   Angle=-12.3456789   AdvanceAxes=No
   Frame=02   Angle=45   AdvanceAxes=No
   Frame=1   Angle=90   AdvanceAxes=No
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,  BEAM,     0,     0,     1,     2,    90",
                          "\t2,  BEAM,     0,     0,     2,     3,     0",
                          "\t3,  BEAM,     0,     0,     3,     4, -12.3457"));
}

TEST(FrameAngle, MirroringHasNoEffect) {
  const ConversionRun run = Convert(std::string(kFrameAndJoints) + R"(
TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=1   Angle=30   MirrorAbt2=Yes   MirrorAbt3=Yes   AdvanceAxes=No
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Line("   30")));
}

TEST(FrameAngle, OfTwoRowsOfAFrameTheOneThatTheWalkMeetsFirstCounts) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const ConversionRun run = Convert(std::string(kFrameAndJoints) + R"(
TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=1   Angle=10   AdvanceAxes=No
   Frame=1   Angle=20   AdvanceAxes=No
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Line("   20")));
}

TEST(FrameAngle, AdvancedAxesCountOnlyWhenAskedForByYes) {
  for (const char* word : {"No", "YES", "yes", ""}) {
    const ConversionRun run = Convert(std::string(kFrameAndJoints) + R"(
TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=1   Angle=30   AdvanceAxes=)" +
                                      word + R"(

TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Frame=1   LocalPlan=12   PlOption1="Coord Dir"   CoordDir1=X   CoordDir2=-Z
)");
    EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Line("   30"))) << word;
  }
}

TEST(FrameAngle, AdvancedAxesOfAFrameWithoutATypicalRowAreNotLookedAt) {
  const ConversionRun run = Convert(std::string(kFrameAndJoints) + R"(
TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Frame=1   LocalPlan=12   PlOption1="Coord Dir"   CoordDir1=X   CoordDir2=-Z
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Line("    0")));
}

TEST(FrameAngle, MissingAdvancedTableLeavesTheAngle) {
  const ConversionRun run = Convert(std::string(kFrameAndJoints) + R"(
TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=1   Angle=30   AdvanceAxes=Yes
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Line("   30")));
}

TEST(FrameAngle, MissingAdvancedRowOfTheFrameLeavesTheAngle) {
  const ConversionRun run = Convert(std::string(kFrameAndJoints) + R"(
TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=1   Angle=30   AdvanceAxes=Yes

TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Frame=01   LocalPlan=12   PlOption1="Coord Dir"   CoordDir1=X   CoordDir2=-Z
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Line("   30")));
}

TEST(FrameAngle, OfTwoAdvancedRowsOfAFrameTheOneThatTheWalkMeetsFirstCounts) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const ConversionRun run =
      ConvertAdvanced("30", R"(LocalPlan=12   PlOption1="Coord Dir"   CoordDir1=X   CoordDir2=-Z
   Frame=1   LocalPlan=12   PlOption1="Coord Dir"   CoordDir1=X   CoordDir2=-Y)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Line("  120")));
}

TEST(FrameAngle, CoordinateDirectionsTurnTheAngleByTheirTable) {
  struct Case {
    const char* LocalPlan;
    const char* CoordDir1;
    const char* CoordDir2;
    const char* Angle;
  };
  const Case cases[] = {
      // the first direction is not along X: it decides
      {"12", "Y", "X", "  -60"},
      {"12", "-Y", "X", "  120"},
      {"12", "-Z", "X", "  210"},
      {"13", "Y", "X", "  210"},
      {"13", "Z", "X", "  -60"},
      {"13", "-Z", "X", "  120"},
      {"12", "Y", "-Z", "  -60"},
      {"12", "Z", "-Z", "   30"},
      // the first direction is along X: the second decides
      {"12", "X", "Y", "  -60"},
      {"12", "X", "-Y", "  120"},
      {"12", "X", "-Z", "  210"},
      {"13", "X", "Y", "  210"},
      {"13", "X", "Z", "  -60"},
      {"13", "X", "-Z", "  120"},
      {"12", "-X", "Y", "  -60"},
      {"12", "-X", "-Y", "  120"},
      {"12", "-X", "-Z", "  210"},
      {"13", "-X", "Y", "  210"},
      {"13", "-X", "Z", "  -60"},
      {"13", "-X", "-Z", "  120"},
      // not in the table
      {"12", "Z", "X", "   30"},
      {"13", "-Y", "X", "   30"},
      {"12", "X", "X", "   30"},
      {"12", "-X", "-X", "   30"},
      {"23", "Y", "X", "   30"},
      {"12", "y", "X", "   30"},
      {"12", "+Y", "X", "   30"},
  };
  for (const Case& c : cases) {
    const std::string row = std::string("LocalPlan=") + c.LocalPlan +
                            R"(   PlOption1="Coord Dir"   PlCoordSys=GLOBAL   CoordDir1=)" +
                            c.CoordDir1 + "   CoordDir2=" + c.CoordDir2;
    SCOPED_TRACE(row);
    EXPECT_THAT(ConvertAdvanced("30", row).Lines("*ELEMENT"), ElementsAre(Line(c.Angle)));
  }
}

TEST(FrameAngle, TwoJointsTurnTheAngleByTheirDirectionInTheGlobalPlaneOfYAndZ) {
  struct Case {
    const char* Joints;
    const char* Angle;
    const char* Expected;
  };
  const Case cases[] = {
      {"PlVecJt1=1   PlVecJt2=2", "10", "  -35"},   // 45 - 90 + 10
      {"PlVecJt1=2   PlVecJt2=1", "10", " -215"},   // -135 - 90 + 10
      {"PlVecJt1=1   PlVecJt2=3", "30", "   30"},   // 90 - 90 + 30
      {"PlVecJt1=3   PlVecJt2=1", "30", " -150"},   // -90 - 90 + 30
      {"PlVecJt1=1   PlVecJt2=4", "10", "  -80"},   // along X: 0 - 90 + 10
      {"PlVecJt1=1   PlVecJt2=5", "10", "  -35"},   // special: 45 - 90 + 10
      {"PlVecJt1=1   PlVecJt2=6", "10", " -170"},   // not special: -90 - 90 + 10
      {"PlVecJt1=77   PlVecJt2=2", "10", "  -35"},  // unknown, from the origin
      {"PlVecJt1=2   PlVecJt2=77", "10", " -215"},  // unknown, to the origin
      {"PlVecJt1=1", "10", "  -80"},                // no second joint
      {"LocalPlan=13   PlVecJt1=1   PlVecJt2=2", "10", "  -35"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Joints);
    const ConversionRun run =
        ConvertAdvanced(c.Angle, std::string(R"(PlOption1="Two Joints"   )") + c.Joints);
    EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Line(c.Expected)));
  }
}

TEST(FrameAngle, PiHasTenDigits) {
  // A right angle is 90.00000000257 degrees with 3.1415926535.
  const ConversionRun run =
      ConvertAdvanced("0", R"(PlOption1="Two Joints"   PlVecJt1=1   PlVecJt2=3)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Line("2.57238e-09")));
}

TEST(FrameAngle, UserVectorTurnsTheAngleByItsYAndZ) {
  struct Case {
    const char* Row;
    const char* Expected;
  };
  const Case cases[] = {
      {R"(PlOption1="User Vector"   PlVecX=7   PlVecY=1   PlVecZ=1)", "  -35"},
      {R"(PlOption1="User Vector"   PlVecX=0   PlVecY=-1   PlVecZ=1)", "   55"},
      {R"(PlOption1="User Vector"   PlVecX=-3   PlVecY=0   PlVecZ=-2)", " -170"},
      {R"(PlOption1="User Vector"   PlVecX=5)", "  -80"},
      // any other option is taken as a vector, the words of another case among them
      {R"(PlVecX=0   PlVecY=1   PlVecZ=1)", "  -35"},
      {R"(LocalPlan=12   PlOption1="coord dir"   CoordDir1=-Z   PlVecY=1   PlVecZ=1)", "  -35"},
      {R"(PlOption1="two joints"   PlVecJt1=1   PlVecJt2=2   PlVecY=-1   PlVecZ=0)", "  100"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Row);
    EXPECT_THAT(ConvertAdvanced("10", c.Row).Lines("*ELEMENT"), ElementsAre(Line(c.Expected)));
  }
}

}  // namespace
