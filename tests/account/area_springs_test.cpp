#include "support/account_run.h"
#include "support/box_joints.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

/// Rows of springs or masses of areas: of the wall 1, of 20 square units, of the triangles 2 and 3,
/// with a repeated fourth joint and without, and of the wall 4 of unknown size.
AccountRun KeepAccountOfRows(const std::string& title, const std::string& rows) {
  return KeepAccount(
      BoxJoints() + ConcreteMaterial() +
      SourceTable("AREA SECTION PROPERTIES",
                  "   Section=SLAB   Material=C30   AreaType=Shell   Type=Shell-Thick   "
                  "Thickness=0.2\n") +
      SourceTable("CONNECTIVITY - AREA",
                  "   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   AreaArea=20\n"
                  "   Area=2   Joint1=1   Joint2=2   Joint3=3   Joint4=3   AreaArea=10\n"
                  "   Area=3   Joint1=5   Joint2=6   Joint3=7   AreaArea=10\n"
                  "   Area=4   Joint1=5   Joint2=6   Joint3=7   Joint4=8\n") +
      SourceTable("AREA SECTION ASSIGNMENTS",
                  "   Area=1   Section=SLAB\n   Area=2   Section=SLAB\n"
                  "   Area=3   Section=SLAB\n   Area=4   Section=SLAB\n") +
      SourceTable(title, rows));
}

/// The losses of the rows alone, as area 3 has one of its own.
std::vector<std::string> LossesOfRows(const AccountRun& run) {
  std::vector<std::string> losses = run.Losses();
  std::erase(losses, "Area=3: area-of-three-joints");
  return losses;
}

std::vector<std::string> LossesOfSprings(const std::string& rows) {
  return LossesOfRows(KeepAccountOfRows("AREA SPRING ASSIGNMENTS", rows));
}

std::vector<std::string> LossesOfMasses(const std::string& rows) {
  return LossesOfRows(KeepAccountOfRows("AREA ADDED MASS ASSIGNMENTS", rows));
}

TEST(AccountOfAreaSprings, ASpringOnAFaceIsChanged) {
  EXPECT_THAT(LossesOfSprings("   Area=1   Face=5   Dir=3   Stiffness=10\n"
                              "   Area=2   Face=6   Dir=1   Stiffness=10\n"),
              ElementsAre("Area=1: spring-on-face", "Area=2: spring-on-face"));
}

TEST(AccountOfAreaSprings, ASpringOnAFaceAmongNamedJointsIsChanged) {
  EXPECT_THAT(KeepAccount(SourceTable("JOINT COORDINATES", "   Joint=A\n   Joint=B\n") +
                          SourceTable("CONNECTIVITY - AREA",
                                      "   Area=1   Joint1=A   Joint2=B   Joint3=A   Joint4=B   "
                                      "AreaArea=2\n") +
                          SourceTable("AREA SPRING ASSIGNMENTS",
                                      "   Area=1   Face=5   Dir=3   Stiffness=10\n"))
                  .Losses(),
              ElementsAre("Area=1: area-without-section", "Area=1: spring-at-no-node"));
}

TEST(AccountOfAreaSprings, ASpringOnAnEdgeIsDropped) {
  EXPECT_THAT(LossesOfSprings("   Area=1   Face=1   Dir=3   Stiffness=10\n"),
              ElementsAre("Area=1: spring-on-edge"));
}

TEST(AccountOfAreaSprings, ASpringOfAnUnknownDirectionIsChanged) {
  EXPECT_THAT(LossesOfSprings("   Area=1   Face=5   Dir=4   Stiffness=10\n"),
              UnorderedElementsAre("Area=1: spring-on-face", "Area=1: spring-direction-unknown"));
}

TEST(AccountOfAreaSprings, ASpringOnAnAreaOfUnknownSizeIsChanged) {
  EXPECT_THAT(LossesOfSprings("   Area=4   Face=5   Dir=3   Stiffness=10\n"),
              UnorderedElementsAre("Area=4: spring-on-face", "Area=4: area-without-size"));
}

TEST(AccountOfAreaSprings, AllThatTheWalkMeetsBehindAnUnknownAreaAreDropped) {
  // Rows 1 to 5 are walked in the order 5, 2, 4, 1, 3.
  const AccountRun run = KeepAccountOfRows("AREA SPRING ASSIGNMENTS",
                                           "   Area=1   Face=5   Dir=3   Stiffness=10\n"
                                           "   Area=1   Face=1   Dir=3   Stiffness=10\n"
                                           "   Area=2   Face=1   Dir=3   Stiffness=10\n"
                                           "   Area=9   Face=5   Dir=3   Stiffness=10\n"
                                           "   Area=2   Face=5   Dir=3   Stiffness=10\n");
  EXPECT_THAT(LossesOfRows(run),
              ElementsAre("Area=1: spring-behind-unknown-area", "Area=1: spring-on-edge",
                          "Area=2: spring-behind-unknown-area", "Area=9: area-unknown",
                          "Area=2: spring-on-face"));
  EXPECT_EQ(run.Tables().back(), "AREA SPRING ASSIGNMENTS: 5 rows, 1 changed, 4 dropped");
}

TEST(AccountOfAreaMasses, AMassOnAQuadrilateralIsConverted) {
  EXPECT_THAT(LossesOfMasses("   Area=1   MassPerArea=0.05\n"), IsEmpty());
}

TEST(AccountOfAreaMasses, AMassOnATriangleIsChanged) {
  EXPECT_THAT(LossesOfMasses("   Area=2   MassPerArea=0.05\n   Area=3   MassPerArea=0.05\n"),
              ElementsAre("Area=2: mass-on-triangle", "Area=3: mass-on-triangle"));
}

TEST(AccountOfAreaMasses, AMassOnAnAreaOfUnknownSizeIsChanged) {
  EXPECT_THAT(LossesOfMasses("   Area=4   MassPerArea=0.05\n"),
              ElementsAre("Area=4: area-without-size"));
}

TEST(AccountOfAreaMasses, AMassOfAnUnknownAreaGoesToAnother) {
  // Of the areas 1 to 4 the walk meets 4 last: 3, 2, 1, 4.
  EXPECT_THAT(LossesOfMasses("   Area=9   MassPerArea=0.05\n"),
              UnorderedElementsAre("Area=9: mass-of-unknown-area", "Area=9: area-without-size"));
}

TEST(AccountOfAreaMasses, AMassInAModelWithoutAreasIsDropped) {
  EXPECT_THAT(KeepAccount(BoxJoints() + SourceTable("AREA ADDED MASS ASSIGNMENTS",
                                                    "   Area=1   MassPerArea=0.05\n"))
                  .Losses(),
              ElementsAre("Area=1: area-unknown"));
}

}  // namespace
