#include "support/account_run.h"
#include "support/box_joints.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

constexpr const char* kWall = "   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n";
constexpr const char* kWallIsASlab = "   Area=1   Section=SLAB\n";
constexpr const char* kSlab =
    "   Section=SLAB   Material=C30   AreaType=Shell   Type=Shell-Thick   Thickness=0.2   "
    "BendThick=0.25\n";

AccountRun KeepAccountOfAreas(const std::string& areas, const std::string& assignments,
                              const std::string& sections) {
  return KeepAccount(BoxJoints() + ConcreteMaterial() +
                     SourceTable("AREA SECTION PROPERTIES", sections) +
                     SourceTable("CONNECTIVITY - AREA", areas) +
                     SourceTable("AREA SECTION ASSIGNMENTS", assignments));
}

/// A section of this type, with which the wall is built.
AccountRun KeepAccountOfSection(const std::string& type, const std::string& area = kWall) {
  return KeepAccountOfAreas(area, kWallIsASlab,
                            "   Section=SLAB   Material=C30   " + type + "   Thickness=0.2\n");
}

TEST(AccountOfAreas, SoundAreasWithTheirSectionsAreConverted) {
  const AccountRun run = KeepAccountOfAreas(
      std::string(kWall) + "   Area=2   Joint1=5   Joint2=6   Joint3=7   Joint4=7\n",
      std::string(kWallIsASlab) + "   Area=2   Section=SKIN\n",
      std::string(kSlab) +
          "   Section=SKIN   Material=C30   AreaType=Shell   Type=Membrane   Thickness=0.1\n");
  EXPECT_THAT(run.Losses(), IsEmpty());
  EXPECT_THAT(run.Tables(), ElementsAre("JOINT COORDINATES: 8 rows, 8 converted",
                                        "MATERIAL PROPERTIES 1 - GENERAL: 1 rows, 1 converted",
                                        "AREA SECTION PROPERTIES: 2 rows, 2 converted",
                                        "CONNECTIVITY - AREA: 2 rows, 2 converted",
                                        "AREA SECTION ASSIGNMENTS: 2 rows, 2 converted"));
}

TEST(AccountOfAreas, AnAreaWithoutAnAssignmentIsChanged) {
  const AccountRun run = KeepAccountOfAreas(
      std::string(kWall) + "   Area=2   Joint1=5   Joint2=6   Joint3=7   Joint4=8\n", kWallIsASlab,
      kSlab);
  EXPECT_THAT(run.Losses(), ElementsAre("Area=2: area-without-section"));
}

TEST(AccountOfAreas, AnAssignmentOfAnUnknownSectionIsChanged) {
  const AccountRun run = KeepAccountOfAreas(kWall, "   Area=1   Section=ROOF\n", kSlab);
  EXPECT_THAT(run.Losses(), ElementsAre("Area=1: area-section-unknown"));
  EXPECT_EQ(run.Tables().back(), "AREA SECTION ASSIGNMENTS: 1 rows, 1 changed");
}

TEST(AccountOfAreas, AnAssignmentToAnUnknownAreaIsDropped) {
  const AccountRun run =
      KeepAccountOfAreas(kWall, std::string(kWallIsASlab) + "   Area=9   Section=SLAB\n", kSlab);
  EXPECT_THAT(run.Losses(), ElementsAre("Area=9: area-unknown"));
}

TEST(AccountOfAreas, OfTwoAssignmentsTheOneThatTheWalkMeetsLaterIsDropped) {
  // Row 2 is walked before row 1.
  const AccountRun run = KeepAccountOfAreas(kWall, std::string(kWallIsASlab) + kWallIsASlab, kSlab);
  ASSERT_THAT(run.Losses(), ElementsAre("Area=1: row-of-same-name"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 1U);
}

TEST(AccountOfAreas, ASectionOfAnUnknownMaterialIsChangedAndSoAreItsAssignments) {
  const AccountRun run = KeepAccountOfAreas(
      kWall, kWallIsASlab,
      "   Section=SLAB   Material=C99   AreaType=Shell   Type=Shell-Thick   Thickness=0.2\n");
  EXPECT_THAT(run.Losses(),
              ElementsAre("Section=SLAB: area-material-unknown", "Area=1: area-material-unknown"));
}

TEST(AccountOfAreas, WithoutAnyMaterialTheSectionAloneIsChanged) {
  const AccountRun run = KeepAccount(BoxJoints() + SourceTable("AREA SECTION PROPERTIES", kSlab) +
                                     SourceTable("CONNECTIVITY - AREA", kWall) +
                                     SourceTable("AREA SECTION ASSIGNMENTS", kWallIsASlab));
  EXPECT_THAT(run.Losses(), ElementsAre("Section=SLAB: area-material-unknown"));
}

TEST(AccountOfAreas, ASectionOfATypeThatTheHostDoesNotHaveIsChanged) {
  for (const char* type :
       {"AreaType=Shell   Type=Shell-Layered", "AreaType=Shell   Type=Thick",
        "AreaType=Plane   Type=Plane-Torsion", "AreaType=Cable   Type=Shell-Thick"}) {
    SCOPED_TRACE(type);
    const AccountRun run = KeepAccountOfSection(type);
    EXPECT_THAT(run.Losses(), ElementsAre("Section=SLAB: area-section-type-unlike"));
  }
}

TEST(AccountOfAreas, SectionsOfAllTypesOfTheHostAreConverted) {
  for (const char* type : {"AreaType=Shell   Type=Plate-Thin", "AreaType=Shell   Type=Membrane",
                           "AreaType=Plane   Type=Plane-Stress",
                           "AreaType=Plane   Type=Plane-Strain", "AreaType=Asolid"}) {
    SCOPED_TRACE(type);
    EXPECT_THAT(KeepAccountOfSection(type).Losses(), IsEmpty());
  }
}

TEST(AccountOfAreas, OfTwoSectionsOfANameTheOneThatTheWalkMeetsLaterIsChanged) {
  // Row 2 is walked before row 1.
  const AccountRun run = KeepAccountOfAreas(kWall, kWallIsASlab, std::string(kSlab) + kSlab);
  ASSERT_THAT(run.Losses(), ElementsAre("Section=SLAB: area-section-of-same-name"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 1U);
}

TEST(AccountOfAreas, OfTwoSectionsOfANameTheOneOfAnUnknownMaterialIsChanged) {
  const AccountRun run = KeepAccountOfAreas(
      kWall, kWallIsASlab,
      std::string(kSlab) +
          "   Section=SLAB   Material=C99   AreaType=Shell   Type=Shell-Thin   Thickness=0.1\n");
  ASSERT_THAT(run.Losses(), ElementsAre("Section=SLAB: area-section-of-same-name"));
  EXPECT_EQ(run.Rows.Losses[0].Position, 2U);
}

TEST(AccountOfAreas, ASectionWithoutAreasIsConvertedIfItHasAThickness) {
  const AccountRun run = KeepAccountOfAreas(
      kWall, kWallIsASlab,
      std::string(kSlab) +
          "   Section=RING   Material=C30   AreaType=Asolid   Arc=0\n"
          "   Section=ROOF   Material=C30   AreaType=Shell   Type=Shell-Thin   Thickness=0.1\n");
  EXPECT_THAT(run.Losses(), ElementsAre("Section=RING: property-not-used"));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(AccountOfAreas, AreasOfPlaneStrainAndOfRevolutionOutsideAPlaneOfYAreChanged) {
  for (const char* type : {"AreaType=Plane   Type=Plane-Strain", "AreaType=Asolid"}) {
    SCOPED_TRACE(type);
    const AccountRun run =
        KeepAccountOfSection(type, "   Area=1   Joint1=1   Joint2=2   Joint3=5   Joint4=6\n");
    EXPECT_THAT(run.Losses(), ElementsAre("Area=1: area-not-in-plane"));
  }
}

TEST(AccountOfAreas, AnAreaOfThreeJointsWithoutARepeatedFourthIsChanged) {
  const AccountRun run =
      KeepAccountOfAreas("   Area=1   Joint1=1   Joint2=2   Joint3=3\n", kWallIsASlab, kSlab);
  EXPECT_THAT(run.Losses(), ElementsAre("Area=1: area-of-three-joints"));
}

TEST(AccountOfAreas, AnAreaWithAnUnknownOrAMissingCornerIsChanged) {
  for (const char* corners :
       {"Joint1=1   Joint2=2   Joint3=99   Joint4=4", "Joint1=99   Joint2=2   Joint3=98   Joint4=4",
        "Joint1=1   Joint3=3   Joint4=4"}) {
    SCOPED_TRACE(corners);
    const AccountRun run =
        KeepAccountOfAreas("   Area=1   " + std::string(corners) + "\n", kWallIsASlab, kSlab);
    EXPECT_THAT(run.Losses(), ElementsAre("Area=1: end-or-corner-unknown"));
  }
}

TEST(AccountOfAreas, AnAreaMayHaveSeveralReasons) {
  const AccountRun run =
      KeepAccountOfAreas("   Area=1   Joint1=1   Joint2=2   Joint3=99\n", "", kSlab);
  EXPECT_THAT(run.Losses(),
              UnorderedElementsAre("Area=1: area-without-section", "Area=1: area-of-three-joints",
                                   "Area=1: end-or-corner-unknown"));
}

TEST(AccountOfAreas, GravityLoadsAreRefused) {
  const AccountRun run = KeepAccount(
      SourceTable("AREA LOADS - GRAVITY", "   Area=1   LoadCase=DEAD   MultiplierZ=-1\n"));
  EXPECT_THAT(run.Tables(), ElementsAre("AREA LOADS - GRAVITY: 1 rows, 1 refused"));
}

}  // namespace
