#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

/// An area of joints 1 to 4 in the plane Y = 0, of a section that is number 2.
ConversionRun ConvertAreaOf(const std::string& areaType, const std::string& type) {
  return Convert(
      "TABLE:  \"MATERIAL PROPERTIES 1 - GENERAL\"\n"
      "   Material=STEEL   Type=Isotropic\n"
      "   Material=C30   Type=Isotropic\n"
      "   Material=C40   Type=Isotropic\n"
      "\n"
      "TABLE:  \"AREA SECTION PROPERTIES\"\n"
      "   Section=OTHER   Material=STEEL   AreaType=Shell   Type=Shell-Thick\n"
      "   Section=WALL   Material=C40   AreaType=" +
      areaType + "   Type=" + type +
      "   Thickness=0.25   BendThick=0.25\n"
      "\n"
      "TABLE:  \"CONNECTIVITY - AREA\"\n"
      "   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n"
      "\n"
      "TABLE:  \"AREA SECTION ASSIGNMENTS\"\n"
      "   Area=1   Section=WALL\n");
}

struct Case {
  const char* AreaType;
  const char* Type;
  const char* Line;
};

constexpr const char* kThickPlate = "\t1, PLATE,     3,     2,     1,     2,     4,     3,     1";
constexpr const char* kThinPlate = "\t1, PLATE,     3,     2,     1,     2,     4,     3,     2";
constexpr const char* kPlaneStress = "\t1, PLSTRS,     3,     2,     1,     2,     4,     3\t";
constexpr const char* kPlaneStrain = "\t1, PLSTRN,     3, 0,     1,     2,     4,     3\t\t";
constexpr const char* kAxisymmetric = "\t1, AXISYM,     3, 0,     1,     2,     4,     3\t\t";
constexpr const char* kNoType = "\t1,      ,     3,     2,     1,     2,     4,     3,     1";

TEST(AreaSections, KnownTypesGiveElementsWithoutAMessage) {
  const std::vector<Case> cases = {
      {"Shell", "Shell-Thick", kThickPlate},
      {"Shell", "Plate-Thick", kThickPlate},
      {"Shell", "Shell-Thin", kThinPlate},
      {"Shell", "Plate-Thin", kThinPlate},
      {"Shell", "\"Very Thick\"", kThickPlate},
      // Thick is looked for first
      {"Shell", "Thin-Thick", kThickPlate},
      {"Shell", "Shell-Thin-Thick", kThickPlate},
      // only the first place of Thick is looked at, and it is no match at the beginning
      {"Shell", "Thick-Thin", kThinPlate},
      {"Shell", "Thick-Thick-Thin", kThinPlate},
      {"Shell", "Membrane", kPlaneStress},
      {"Plane", "Plane-Stress", kPlaneStress},
      {"Plane", "Plane-Strain", kPlaneStrain},
      {"Asolid", "Asolid", kAxisymmetric},
      {"Asolid", "Shell-Thick", kAxisymmetric},
      {"Asolid", "", kAxisymmetric}};
  for (const auto& [areaType, type, line] : cases) {
    SCOPED_TRACE(std::string(areaType) + " " + type);
    const ConversionRun run = ConvertAreaOf(areaType, type);
    EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(line));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
  }
}

TEST(AreaSections, OtherTypesOfAShellAreThickPlatesWithAMessage) {
  const std::vector<const char*> types = {
      "Thick",    "Thin",    "Shell-thick", "SHELL-THIN", "Shell-Membrane",
      "membrane", "Layered", "Thick-Thick", "Thin-Thin",  ""};
  for (const char* type : types) {
    SCOPED_TRACE(type);
    const ConversionRun run = ConvertAreaOf("Shell", type);
    EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(kThickPlate));
    EXPECT_THAT(run.Messages,
                ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert", "IDS_S2KV8_AREA_Prop_Not_Convert"));
  }
}

TEST(AreaSections, OneCharacterBeforeTheWordIsEnough) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   AreaType=Shell   Type=XThin   Thickness=0.2   BendThick=0.2

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=4   Joint4=3

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLATE,     1,     1,     1,     2,     3,     4,     2"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(AreaSections, OtherKindsHaveNoTypeAndShowAMessage) {
  const std::vector<Case> cases = {
      {"Plane", "Plane-stress", kNoType}, {"Plane", "Stress", kNoType},
      {"Plane", "Membrane", kNoType},     {"Plane", "", kNoType},
      {"shell", "Shell-Thick", kNoType},  {"PLANE", "Plane-Stress", kNoType},
      {"ASolid", "ASolid", kNoType},      {"Cable", "Shell-Thin", kNoType},
      {"", "Shell-Thick", kNoType}};
  for (const auto& [areaType, type, line] : cases) {
    SCOPED_TRACE(std::string(areaType) + " " + type);
    const ConversionRun run = ConvertAreaOf(areaType, type);
    EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(line));
    EXPECT_THAT(run.Messages,
                ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert", "IDS_S2KV8_AREA_Prop_Not_Convert"));
  }
}

TEST(AreaSections, TypeIsNotReadFromTheEndOfAreaType) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=WALL   AreaType=Shell-Thin   Type=Shell-Thin
   Section=SLAB   AreaType=Shell

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=2   Joint1=3   Joint2=4   Joint3=5   Joint4=6

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=WALL
   Area=2   Section=SLAB
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,      ,     1,     1,     1,     2,     4,     3,     1",
                          "\t2, PLATE,     1,     2,     3,     4,     6,     5,     1"));
}

TEST(AreaSections, SectionThatNoAreaHasShowsNoMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   AreaType=Shell   Type=Shell-Thick
   Section=SPARE   AreaType=Cable   Type=Cable

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB
)");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

// ---- Plane of constant Y ----

/// An area of plane strain as element 1 and one of an axisymmetric solid as element 2, both of
/// these corners. The sections are the numbers 2 and 3.
ConversionRun ConvertPlanes(const std::string& joints, const std::string& corners) {
  return Convert("TABLE:  \"JOINT COORDINATES\"\n" + joints +
                 "\n"
                 "TABLE:  \"AREA SECTION PROPERTIES\"\n"
                 "   Section=OTHER   AreaType=Shell   Type=Shell-Thick\n"
                 "   Section=DAM   AreaType=Plane   Type=Plane-Strain   Thickness=1   BendThick=1\n"
                 "   Section=RING   AreaType=Asolid   Type=Asolid   Thickness=1   BendThick=1\n"
                 "\n"
                 "TABLE:  \"CONNECTIVITY - AREA\"\n"
                 "   Area=1   " +
                 corners + "\n   Area=2   " + corners +
                 "\n"
                 "\n"
                 "TABLE:  \"AREA SECTION ASSIGNMENTS\"\n"
                 "   Area=1   Section=DAM\n"
                 "   Area=2   Section=RING\n");
}

constexpr const char* kQuadrilateral = "Joint1=1   Joint2=2   Joint3=3   Joint4=4";

TEST(PlaneOfConstantY, ElementsInItKeepTheirTypeAndPrintNoSection) {
  const ConversionRun run = ConvertPlanes(
      "   Joint=1   XorR=0   Y=2.5   Z=0\n"
      "   Joint=2   XorR=4   Y=2.5   Z=0\n"
      "   Joint=3   XorR=0   Y=2.5   Z=3\n"
      "   Joint=4   XorR=4   Y=2.5   Z=5\n",
      kQuadrilateral);
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRN,     1, 0,     1,     2,     4,     3\t\t",
                          "\t2, AXISYM,     1, 0,     1,     2,     4,     3\t\t"));
}

TEST(PlaneOfConstantY, EachCornerOutsideItGivesPlaneStressThatPrintsItsSection) {
  // The difference may be as small as it likes.
  for (const char* out : {"1", "2", "3", "4"}) {
    SCOPED_TRACE(out);
    std::string joints;
    for (const char* joint : {"1", "2", "3", "4"}) {
      joints += "   Joint=" + std::string(joint) +
                "   XorR=0   Y=" + (std::string(joint) == out ? "2.500000000001" : "2.5") +
                "   Z=0\n";
    }
    EXPECT_THAT(ConvertPlanes(joints, kQuadrilateral).Lines("*ELEMENT"),
                ElementsAre("\t1, PLSTRS,     1,     2,     1,     2,     4,     3\t",
                            "\t2, PLSTRS,     1,     3,     1,     2,     4,     3\t"));
  }
}

TEST(PlaneOfConstantY, AreaOfThreeJointsMustLieAtZero) {
  constexpr const char* kThreeJoints = "Joint1=1   Joint2=2   Joint3=3";
  EXPECT_THAT(ConvertPlanes("   Joint=1   XorR=0   Y=0   Z=0\n"
                            "   Joint=2   XorR=4   Y=0   Z=0\n"
                            "   Joint=3   XorR=0   Y=0   Z=3\n",
                            kThreeJoints)
                  .Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRN,     1, 0,     1,     2,     0,     3\t\t",
                          "\t2, AXISYM,     1, 0,     1,     2,     0,     3\t\t"));
  EXPECT_THAT(ConvertPlanes("   Joint=1   XorR=0   Y=2   Z=0\n"
                            "   Joint=2   XorR=4   Y=2   Z=0\n"
                            "   Joint=3   XorR=0   Y=2   Z=3\n",
                            kThreeJoints)
                  .Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRS,     1,     2,     1,     2,     0,     3\t",
                          "\t2, PLSTRS,     1,     3,     1,     2,     0,     3\t"));
}

TEST(PlaneOfConstantY, TriangleWithRepeatedLastJointLiesWhereItsJointsLie) {
  const ConversionRun run = ConvertPlanes(
      "   Joint=1   XorR=0   Y=2   Z=0\n"
      "   Joint=2   XorR=4   Y=2   Z=0\n"
      "   Joint=3   XorR=0   Y=2   Z=3\n",
      "Joint1=1   Joint2=2   Joint3=3   Joint4=3");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRN,     1, 0,     1,     2,     3,     0\t\t",
                          "\t2, AXISYM,     1, 0,     1,     2,     3,     0\t\t"));
}

TEST(PlaneOfConstantY, UnknownJointLiesAtZero) {
  // Joint 4 is not there.
  EXPECT_THAT(ConvertPlanes("   Joint=1   XorR=0   Y=0   Z=0\n"
                            "   Joint=2   XorR=4   Y=0   Z=0\n"
                            "   Joint=3   XorR=0   Y=0   Z=3\n",
                            kQuadrilateral)
                  .Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRN,     1, 0,     1,     2,     4,     3\t\t",
                          "\t2, AXISYM,     1, 0,     1,     2,     4,     3\t\t"));
  EXPECT_THAT(ConvertPlanes("   Joint=1   XorR=0   Y=2   Z=0\n"
                            "   Joint=2   XorR=4   Y=2   Z=0\n"
                            "   Joint=3   XorR=0   Y=2   Z=3\n",
                            kQuadrilateral)
                  .Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRS,     1,     2,     1,     2,     4,     3\t",
                          "\t2, PLSTRS,     1,     3,     1,     2,     4,     3\t"));
}

TEST(PlaneOfConstantY, MissingFourthJointLiesAtZeroEvenIfAJointHasNoLabel) {
  const ConversionRun run = ConvertPlanes(
      "   Joint=1   XorR=0   Y=2   Z=0\n"
      "   Joint=2   XorR=4   Y=2   Z=0\n"
      "   Joint=3   XorR=0   Y=2   Z=3\n"
      "   XorR=4   Y=2   Z=3\n",
      "Joint1=1   Joint2=2   Joint3=3");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRS,     1,     2,     1,     2,     0,     3\t",
                          "\t2, PLSTRS,     1,     3,     1,     2,     0,     3\t"));
}

TEST(PlaneOfConstantY, AreasOfOneSectionAreTestedEachByItsOwnCorners) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0   Y=2   Z=0
   Joint=2   XorR=4   Y=2   Z=0
   Joint=3   XorR=0   Y=2   Z=3
   Joint=4   XorR=4   Y=2   Z=3
   Joint=5   XorR=8   Y=3   Z=0
   Joint=6   XorR=8   Y=3   Z=3

TABLE:  "AREA SECTION PROPERTIES"
   Section=DAM   AreaType=Plane   Type=Plane-Strain

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=2   Joint1=2   Joint2=5   Joint3=4   Joint4=6
   Area=3   Joint1=2   Joint2=1   Joint3=4   Joint4=3

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=DAM
   Area=2   Section=DAM
   Area=3   Section=DAM
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRN,     1, 0,     1,     2,     4,     3\t\t",
                          "\t2, PLSTRS,     1,     1,     2,     5,     6,     4\t",
                          "\t3, PLSTRN,     1, 0,     2,     1,     3,     4\t\t"));
}

TEST(PlaneOfConstantY, GlobalCoordinatesCountWhereARowStatesOne) {
  const ConversionRun apart = ConvertPlanes(
      "   Joint=1   XorR=0   Y=2   Z=0   SpecialJt=No   GlobalX=0   GlobalY=2   GlobalZ=0\n"
      "   Joint=2   XorR=4   Y=2   Z=0   SpecialJt=No   GlobalX=4   GlobalY=2   GlobalZ=0\n"
      "   Joint=3   XorR=0   Y=2   Z=3   SpecialJt=No   GlobalX=0   GlobalY=7   GlobalZ=3\n"
      "   Joint=4   XorR=4   Y=2   Z=3   SpecialJt=No   GlobalX=4   GlobalY=2   GlobalZ=3\n",
      kQuadrilateral);
  EXPECT_THAT(apart.Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRS,     1,     2,     1,     2,     4,     3\t",
                          "\t2, PLSTRS,     1,     3,     1,     2,     4,     3\t"));
  const ConversionRun together = ConvertPlanes(
      "   Joint=1   XorR=0   Y=1   Z=0   SpecialJt=No   GlobalX=0   GlobalY=7   GlobalZ=0\n"
      "   Joint=2   XorR=4   Y=2   Z=0   SpecialJt=Yes   GlobalX=4   GlobalY=7   GlobalZ=0\n"
      "   Joint=3   XorR=0   Y=3   Z=3   SpecialJt=No   GlobalX=0   GlobalY=7   GlobalZ=3\n"
      "   Joint=4   XorR=4   Y=7   Z=3\n",
      kQuadrilateral);
  EXPECT_THAT(together.Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRN,     1, 0,     1,     2,     4,     3\t\t",
                          "\t2, AXISYM,     1, 0,     1,     2,     4,     3\t\t"));
}

TEST(PlaneOfConstantY, PlaneStressMayLieAnywhere) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0   Y=0   Z=0
   Joint=2   XorR=0   Y=4   Z=0
   Joint=3   XorR=0   Y=0   Z=3
   Joint=4   XorR=0   Y=4   Z=3

TABLE:  "AREA SECTION PROPERTIES"
   Section=WALL   AreaType=Plane   Type=Plane-Stress

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=WALL
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLSTRS,     1,     1,     1,     2,     4,     3\t"));
}

}  // namespace
