#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

/// Expects that a linear link has the one angle and a damper the other, both of label 1, with these
/// pairs in their summary row and these tables.
void ExpectAngles(const std::string& elastic, const std::string& nonlinear,
                  const std::string& summary, const std::string& tables) {
  const auto convert = [&](const std::string& type) {
    return Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   CoordType=Cartesian   XorR=0   Y=0   Z=0
   Joint=2   CoordType=Cartesian   XorR=5   Y=1   Z=1
   Joint=3   XorR=0   Y=9   Z=0   SpecialJt=Yes   GlobalX=0   GlobalY=0   GlobalZ=-2

TABLE:  "CONNECTIVITY - LINK"
   Link=1   JointI=1   JointJ=2

TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=1   LinkType=)" +
                   type + "   LinkJoint=TwoJoint   LinkProp=P   " + summary + "\n" + tables);
  };
  EXPECT_THAT(
      convert("Linear").Lines("*ELASTICLINK"),
      ElementsAre("\t1,     2,   GEN, " + elastic +
                  ",     0,     0,     0,     0,     0,     0,    NO,     0,     0,      "));
  EXPECT_THAT(convert("Damper").Lines("*NL-LINK"),
              ElementsAre("\t1,     2,     P, " + nonlinear + ",      "));
}

constexpr const char* kTypical = R"(
TABLE:  "LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Link=2   Angle=10   AdvanceAxes=No
   Link=01   Angle=20   AdvanceAxes=No
   Link=1   Angle=30   AdvanceAxes=No
)";

TEST(LinkAngles, WithoutLocalAxesAreZeroForElasticAnd180ForNonlinearLinks) {
  for (const char* summary : {"", "LocalAxes=No", "LocalAxes=yes", "LocalAxes=YES"}) {
    SCOPED_TRACE(summary);
    ExpectAngles("    0", "  180", summary, kTypical);
  }
}

TEST(LinkAngles, WithLocalAxesAreThoseOfTheLink) {
  ExpectAngles("   30", "   30", "LocalAxes=Yes", kTypical);
}

TEST(LinkAngles, WithLocalAxesThatAreNotThereAreZero) {
  ExpectAngles("    0", "    0", "LocalAxes=Yes", "");
  ExpectAngles("    0", "    0", "LocalAxes=Yes", R"(
TABLE:  "LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Link=2   Angle=10   AdvanceAxes=No
   Link=P   Angle=20   AdvanceAxes=No
)");
}

TEST(LinkAngles, OfTwoRowsOfALinkTheOneThatTheWalkMeetsFirstCounts) {
  // Rows 1 and 2 are walked in the order 2, 1.
  ExpectAngles("   20", "   20", "LocalAxes=Yes", R"(
TABLE:  "LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Link=1   Angle=10   AdvanceAxes=No
   Link=1   Angle=20   AdvanceAxes=No
)");
}

/// The link has this angle when it asks for the advanced axes of this row with an angle of 30.
void ExpectAdvancedAngle(const std::string& angle, const std::string& advanced) {
  ExpectAngles(angle, angle, "LocalAxes=Yes", R"(
TABLE:  "LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Link=1   Angle=30   AdvanceAxes=Yes

TABLE:  "LINK LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   )" + advanced + "\n");
}

TEST(LinkAngles, AdvancedAxesCountOnlyWhenAskedForByYes) {
  for (const char* word : {"No", "YES", "yes", ""}) {
    SCOPED_TRACE(word);
    ExpectAngles("   30", "   30", "LocalAxes=Yes",
                 R"(
TABLE:  "LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Link=1   Angle=30   AdvanceAxes=)" +
                     std::string(word) +
                     R"(

TABLE:  "LINK LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Link=1   LocalPlane=12   PlOption1="Coord Dir"   CoordDir1=Z   CoordDir2=Y
   Link=1   LocalPlane=12   PlOption1="Coord Dir"   CoordDir1=-Z   CoordDir2=Y
)");
  }
}

TEST(LinkAngles, AdvancedAxesThatAreNotThereLeaveTheAngle) {
  ExpectAngles("   30", "   30", "LocalAxes=Yes", R"(
TABLE:  "LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Link=1   Angle=30   AdvanceAxes=Yes
)");
  ExpectAdvancedAngle("   30", R"(Link=01   LocalPlane=12   PlOption1="Coord Dir"   CoordDir1=-Z)");
}

TEST(LinkAngles, AdvancedAxesOfAFrameOfTheSameLabelHaveNoEffect) {
  ExpectAngles("   30", "   30", "LocalAxes=Yes", R"(
TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Frame=1   LocalPlan=12   PlOption1="Coord Dir"   CoordDir1=-Z   CoordDir2=Y

TABLE:  "LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Link=1   Angle=30   AdvanceAxes=Yes
)");
}

TEST(LinkAngles, OfTwoAdvancedRowsOfALinkTheOneThatTheWalkMeetsFirstCounts) {
  // Rows 1 and 2 are walked in the order 2, 1.
  ExpectAdvancedAngle("  120",
                      R"(Link=1   LocalPlane=12   PlOption1="Coord Dir"   CoordDir1=-Z
   Link=1   LocalPlane=12   PlOption1="Coord Dir"   CoordDir1=-Y)");
}

TEST(LinkAngles, CoordinateDirectionsTurnTheAngleByTheirTable) {
  struct Case {
    const char* Row;
    const char* Angle;
  };
  const Case cases[] = {
      // the first direction is not along X: it decides
      {"LocalPlane=12   CoordDir1=Y   CoordDir2=-Z", "  -60"},
      {"LocalPlane=12   CoordDir1=-Y   CoordDir2=-Z", "  120"},
      {"LocalPlane=12   CoordDir1=-Z   CoordDir2=Y", "  210"},
      {"LocalPlane=13   CoordDir1=Y   CoordDir2=-Z", "  210"},
      {"LocalPlane=13   CoordDir1=Z   CoordDir2=-Z", "  -60"},
      {"LocalPlane=13   CoordDir1=-Z   CoordDir2=Y", "  120"},
      // the first direction is along X: the second decides
      {"LocalPlane=12   CoordDir1=X   CoordDir2=Y", "  -60"},
      {"LocalPlane=12   CoordDir1=-X   CoordDir2=-Y", "  120"},
      {"LocalPlane=12   CoordDir1=X   CoordDir2=-Z", "  210"},
      {"LocalPlane=13   CoordDir1=-X   CoordDir2=Y", "  210"},
      {"LocalPlane=13   CoordDir1=X   CoordDir2=Z", "  -60"},
      {"LocalPlane=13   CoordDir1=-X   CoordDir2=-Z", "  120"},
      // not in the table
      {"LocalPlane=12   CoordDir1=Z   CoordDir2=-Z", "   30"},
      {"LocalPlane=13   CoordDir1=-Y   CoordDir2=-Z", "   30"},
      {"LocalPlane=12   CoordDir1=X   CoordDir2=X", "   30"},
      {"LocalPlane=23   CoordDir1=-Z   CoordDir2=Y", "   30"},
      // the plane of a link is spelt out, unlike that of a frame
      {"LocalPlan=12   CoordDir1=-Z   CoordDir2=Y", "   30"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Row);
    ExpectAdvancedAngle(c.Angle, std::string(R"(Link=1   PlOption1="Coord Dir"   )") +
                                     "PlCoordSys=GLOBAL   " + c.Row);
  }
}

TEST(LinkAngles, TwoJointsOrAVectorTurnTheAngleByTheirYAndZ) {
  struct Case {
    const char* Row;
    const char* Angle;
  };
  const Case cases[] = {
      {R"(PlOption1="Two Joints"   PlVecJt1=1   PlVecJt2=2)", "  -15"},   // 45 - 90 + 30
      {R"(PlOption1="Two Joints"   PlVecJt1=2   PlVecJt2=1)", " -195"},   // -135 - 90 + 30
      {R"(PlOption1="Two Joints"   PlVecJt1=1   PlVecJt2=3)", " -150"},   // -90 - 90 + 30
      {R"(PlOption1="Two Joints"   PlVecJt1=77   PlVecJt2=2)", "  -15"},  // from the origin
      {R"(PlOption1="User Vector"   PlVecX=7   PlVecY=1   PlVecZ=1)", "  -15"},
      {R"(PlOption1="User Vector"   PlVecX=7   PlVecY=-1   PlVecZ=1)", "   75"},  // 135 - 90 + 30
      {R"(PlOption1="User Vector"   PlVecX=7)", "  -60"},                         // 0 - 90 + 30
      // any other option is a vector; the axis vector plays no part
      {R"(LocalPlane=12   CoordDir1=-Z   PlVecY=1   PlVecZ=1)", "  -15"},
      {R"(AxOption1="Coord Dir"   AxCoordDir=Z   AxVecX=1   AxVecY=-1   AxVecZ=-1   PlVecZ=-2)",
       " -150"},  // -90 - 90 + 30
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Row);
    ExpectAdvancedAngle(c.Angle, std::string("Link=1   ") + c.Row);
  }
}

}  // namespace
