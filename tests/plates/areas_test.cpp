#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

TEST(Areas, QuadrilateralGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=C30   Type=Isotropic   DesignType=Concrete   E=30000000   U=0.2

TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   Material=C30   MatAngle=0   AreaType=Shell   Type=Shell-Thick   Thickness=0.25   BendThick=0.25

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   AreaArea=12

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB   MatProp=Default
)");
  EXPECT_EQ(
      run.Section("*ELEMENT"),
      "*ELEMENT    ; Elements\n"
      "; iEL, TYPE, iMAT, iPRO, iN1, iN2, ANGLE, iSUB, EXVAL              ; Frame Element\n"
      "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iSUB, iWID            ; Planar Element\n"
      "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iN5, iN6, iN7, iN8    ; Solid  Element\n"
      "; iEL, TYPE, iMAT, iPRO, iN1, iN2, REF, RPX, RPY, RPZ, iSUB, EXVAL ; Frame(Ref. Point)\n"
      "\t1, PLATE,     1,     1,     1,     2,     4,     3,     1\n"
      "\n");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(Areas, NoAreasShowNoMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(Areas, LinesComeInKeyOrder) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=30   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=20   Joint1=3   Joint2=4   Joint3=5   Joint4=6
   Area=10   Joint1=5   Joint2=6   Joint3=7   Joint4=8
   Area=040   Joint1=7   Joint2=8   Joint3=9   Joint4=10
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t30,      ,     1,     1,     1,     2,     4,     3,     1",
                          "\t20,      ,     1,     1,     3,     4,     6,     5,     1",
                          "\t10,      ,     1,     1,     5,     6,     8,     7,     1",
                          "\t40,      ,     1,     1,     7,     8,    10,     9,     1"));
}

// ---- Corners ----

TEST(Areas, TriangleWithRepeatedLastJointWritesZeroInFourthPlace) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=3
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,      ,     1,     1,     1,     2,     3,     0,     1"));
}

TEST(Areas, TriangleWithoutAFourthJointWritesZeroInThirdPlace) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,      ,     1,     1,     1,     2,     0,     3,     1"));
}

TEST(Areas, CornersAreRenumberedWithTheJoints) {
  // Joint X9 is nowhere.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=B   XorR=1   Y=0   Z=0
   Joint=C   XorR=0   Y=0   Z=1
   Joint=D   XorR=1   Y=0   Z=1

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=B   Joint2=A   Joint3=D   Joint4=C
   Area=2   Joint1=A   Joint2=B   Joint3=C   Joint4=C
   Area=3   Joint1=A   Joint2=B   Joint3=C
   Area=4   Joint1=A   Joint2=X9   Joint3=C   Joint4=D
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,      ,     1,     1,     2,     1,     3,     4,     1",
                          "\t2,      ,     1,     1,     1,     2,     3,     0,     1",
                          "\t3,      ,     1,     1,     1,     2,     0,     3,     1",
                          "\t4,      ,     1,     1,     1,     0,     4,     3,     1"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_NODE_Renumbering", "IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

// ---- Section and material of an area ----

TEST(Areas, AreaWithoutASectionKeepsTheDefaultsWithoutAMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=C30   Type=Isotropic

TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   Material=C30   AreaType=Shell   Type=Shell-Thin   Thickness=0.25   BendThick=0.25

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=2   Joint1=3   Joint2=4   Joint3=5   Joint4=6

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=2   Section=None
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,      ,     1,     1,     1,     2,     4,     3,     1",
                          "\t2,      ,     1,     1,     3,     4,     6,     5,     1"));
  EXPECT_NE(run.Section("*THICKNESS"), "");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(Areas, SectionIsFoundByTheAreasLabelAndItsNumberIsItsPosition) {
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=STEEL   Type=Isotropic
   Material=C30   Type=Isotropic

TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   Material=C30   AreaType=Shell   Type=Shell-Thin
   Section=WEB   Material=STEEL   AreaType=Shell   Type=Shell-Thick

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=2   Joint1=3   Joint2=4   Joint3=5   Joint4=6

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=2   Section=SLAB
   Area=1   Section=WEB
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLATE,     1,     2,     1,     2,     4,     3,     1",
                          "\t2, PLATE,     2,     1,     3,     4,     6,     5,     2"));
}

TEST(Areas, OfSeveralRowsOfOneNameTheFirstOfTheWalkCounts) {
  // In each table row 2 is walked before row 1.
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=C30   Type=Isotropic
   Material=C30   Type=Isotropic

TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   Material=C30   AreaType=Shell   Type=Shell-Thick
   Section=SLAB   Material=C30   AreaType=Shell   Type=Shell-Thin

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=None
   Area=1   Section=SLAB
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLATE,     2,     2,     1,     2,     4,     3,     2"));
}

TEST(Areas, UnknownMaterialKeepsTheTypeAndTheDefaultNumbers) {
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=STEEL   Type=Isotropic
   Material=C30   Type=Isotropic

TABLE:  "AREA SECTION PROPERTIES"
   Section=WEB   Material=STEEL   AreaType=Shell   Type=Shell-Thick
   Section=SLAB   Material=C99   AreaType=Shell   Type=Shell-Thin
   Section=WALL   Material=C99   AreaType=Shell   Type=Membrane

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=2   Joint1=3   Joint2=4   Joint3=5   Joint4=6

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB
   Area=2   Section=WALL
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLATE,     1,     1,     1,     2,     4,     3,     1",
                          "\t2, PLSTRS,     1,     1,     3,     4,     6,     5\t"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(Areas, EmptyMaterialTableGivesMaterial1AndTheSectionsOwnNumbers) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=WEB   Material=STEEL   AreaType=Shell   Type=Shell-Thick
   Section=SLAB   Material=C30   AreaType=Shell   Type=Shell-Thin

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLATE,     1,     2,     1,     2,     4,     3,     2"));
}

TEST(Areas, TypeAndSubtypeAreCarriedOverRowsOfUnknownMaterial) {
  // Row 4 is walked last, after 3, 2 and 1; of each name the row with C30 comes last.
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=C30   Type=Isotropic

TABLE:  "AREA SECTION PROPERTIES"
   Section=WALL   Material=C30   AreaType=Shell   Type=Layered
   Section=WALL   Material=C99   AreaType=Shell   Type=Membrane
   Section=SLAB   Material=C99   AreaType=Shell   Type=Shell-Thin
   Section=SLAB   Material=C30   AreaType=Cable

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=2   Joint1=3   Joint2=4   Joint3=5   Joint4=6

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=WALL
   Area=2   Section=SLAB
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLATE,     1,     1,     1,     2,     4,     3,     0",
                          "\t2, PLATE,     1,     4,     3,     4,     6,     5,     2"));
}

// ---- Numbers of elements ----

TEST(Areas, LabelWithALetterRenumbersAllElementsAfterTheFrames) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   Material=C30   AreaType=Shell   Type=Shell-Thick
   Section=WALL   Material=C30   AreaType=Shell   Type=Membrane
   Section=RING   Material=C30   AreaType=Asolid   Type=Asolid

TABLE:  "CONNECTIVITY - FRAME"
   Frame=10   JointI=1   JointJ=2
   Frame=20   JointI=2   JointJ=3

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=W2   Joint1=3   Joint2=4   Joint3=5   Joint4=6
   Area=3   Joint1=5   Joint2=6   Joint3=7   Joint4=8

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB
   Area=W2   Section=WALL
   Area=3   Section=RING
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=10",
                          "\t2,  BEAM,     0,     0,     2,     3,     0\t\t;Frame=20",
                          "\t3, PLATE,     1,     1,     1,     2,     4,     3,     1\t;Plate=1",
                          "\t4, PLSTRS,     1,     2,     3,     4,     6,     5\t\t;Plate=W2",
                          "\t5, AXISYM,     1, 0,     5,     6,     8,     7\t\t\t;Plate=3"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_ELEM_Renumbering", "IDS_S2KV8_FRAM_LclAx_Not_Convert",
                          "IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(Areas, LabelSharedWithAFrameRenumbersWithoutAMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=7   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=6   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=7   Joint1=3   Joint2=4   Joint3=5   Joint4=6
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=7",
                          "\t2,      ,     1,     1,     1,     2,     4,     3,     1\t;Plate=6",
                          "\t3,      ,     1,     1,     3,     4,     6,     5,     1\t;Plate=7"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(Areas, LabelRepeatedAmongAreasIsNoClash) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=7   Joint1=3   Joint2=4   Joint3=5   Joint4=6
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t7,      ,     1,     1,     1,     2,     4,     3,     1",
                          "\t7,      ,     1,     1,     3,     4,     6,     5,     1"));
}

TEST(Areas, LabelSharedWithASolidRenumbersInAModelWithoutFrames) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "CONNECTIVITY - SOLID"
   Solid=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              Contains("\t1,      ,     1,     1,     1,     2,     4,     3,     1\t;Plate=7"));
  EXPECT_THAT(run.Messages, Not(Contains("IDS_S2KV8_ELEM_Renumbering")));
}

TEST(Areas, LabelSharedWithASolidIsNotSeenInAModelWithFrames) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - AREA"
   Area=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "CONNECTIVITY - SOLID"
   Solid=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              Contains("\t7,      ,     1,     1,     1,     2,     4,     3,     1"));
}

// ---- Tables that are not converted ----

TEST(AreaTables, RefusedTableShowsItsMessageForEachBlock) {
  struct Case {
    const char* Title;
    const char* Message;
  };
  const std::vector<Case> cases = {
      {"AREA AUTO MESH ASSIGNMENTS", "IDS_S2KV8_AREA_AtMesh_Not_Convert"},
      {"AREA LOADS - PORE PRESSURE", "IDS_S2KV8_AREA_PrPrsr_Not_Convert"},
      {"AREA LOCAL AXES ASSIGNMENTS 1 - TYPICAL", "IDS_S2KV8_AREA_Local_Not_Convert"},
      {"AREA STIFFNESS MODIFIERS", "IDS_S2KV8_AREA_Stif_Not_Convert"}};
  for (const auto& [title, message] : cases) {
    SCOPED_TRACE(title);
    const std::string table = "TABLE:  \"" + std::string(title) + "\"\n";
    EXPECT_THAT(Convert(table + "   Area=1   Angle=30\n   Area=2   Angle=45\n").Messages,
                ElementsAre(message));
    EXPECT_THAT(Convert(table).Messages, ElementsAre(message));
    const ConversionRun twice = Convert(table + "   Area=1\n\n" + table + "   Area=2\n");
    EXPECT_THAT(twice.Messages, ElementsAre(message, message));
    EXPECT_EQ(twice.Result, 0);
  }
}

TEST(AreaTables, LocalAxesAndStiffnessModifiersAreNotKept) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   Material=C30   AreaType=Shell   Type=Shell-Thick   Thickness=0.25   BendThick=0.25

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB

TABLE:  "AREA LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Area=1   Angle=30   AdvanceAxes=No

TABLE:  "AREA STIFFNESS MODIFIERS"
   Area=1   f11=0.5   f22=0.5   f12=0.5
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre("\t1, PLATE,     1,     1,     1,     2,     4,     3,     1"));
  EXPECT_THAT(run.Lines("*THICKNESS"), ElementsAre("\t1, VALUE,   YES,  0.25,     0"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_AREA_Local_Not_Convert", "IDS_S2KV8_AREA_Stif_Not_Convert",
                          "IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(AreaTables, AdvancedLocalAxesAreIgnoredWithoutAMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Area=1   LocalPlane=31   AxOption1="Coord Dir"
)");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(AreaTables, SurfacePressuresAndSpringsHaveNoMessageOfTheirTable) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA LOADS - SURFACE PRESSURE"
   Area=1   LoadCase=WATER   Face=Top   Pressure=2

TABLE:  "AREA SPRING ASSIGNMENTS"
   Area=1   Type=Simple   Stiffness=1000
)");
  EXPECT_THAT(run.Messages, Not(Contains("IDS_S2KV8_AREA_SurfP_Not_Convert")));
  EXPECT_THAT(run.Messages, Not(Contains("IDS_S2KV8_AREA_Spr_Not_Convert")));
}

TEST(AreaTables, GravityLoadsShowOneMessageBeforeAnyOfTheOutput) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA LOADS - GRAVITY"
   Area=1   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierX=0   MultiplierY=0   MultiplierZ=-1
   Area=2   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierX=0   MultiplierY=0   MultiplierZ=-1
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_NOCONVERT_AREA_GRAV", "IDS_S2KV8_PLAT_LclAx_Not_Convert"));
  EXPECT_THAT(run.Section("*ELEMENT"), StartsWith("*ELEMENT    ; Elements\n"));
}

TEST(AreaTables, GravityLoadsWithoutAreasShowTheirMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA LOADS - GRAVITY"
   Area=1   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierX=0   MultiplierY=0   MultiplierZ=-1
)");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NOCONVERT_AREA_GRAV"));
}

TEST(AreaTables, GravityTableWithoutRowsShowsNoMessage) {
  const ConversionRun run = Convert("TABLE:  \"AREA LOADS - GRAVITY\"\n\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

}  // namespace
