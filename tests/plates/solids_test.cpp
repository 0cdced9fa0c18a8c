#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

/// The lines of solids.
std::vector<std::string> SolidLines(const ConversionRun& run) {
  std::vector<std::string> lines = run.Lines("*ELEMENT");
  std::erase_if(
      lines, [](const std::string& line) { return line.find(", SOLID, ") == std::string::npos; });
  return lines;
}

/// The output behind its first lines, which tell its path.
std::string Body(const ConversionRun& run) {
  return run.Output.substr(run.Output.find("*VERSION"));
}

TEST(Solids, HexahedronAndWedgeGiveTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8   Volume=1
   Solid=20   Joint1=9   Joint2=10   Joint3=11   Joint4=12   Joint5=13   Joint6=14   Volume=0.5
)");
  EXPECT_EQ(run.Section("*ELEMENT"),
            "*ELEMENT    ; Elements\n"
            "; iEL, TYPE, iMAT, iPRO, iN1, iN2, ANGLE, iSUB, EXVAL              ; Frame Element\n"
            "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iSUB, iWID            ; Planar Element\n"
            "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iN5, iN6, iN7, iN8    ; Solid  Element\n"
            "; iEL, TYPE, iMAT, iPRO, iN1, iN2, REF, RPX, RPY, RPZ, iSUB, EXVAL ; Frame(Ref. "
            "Point)\n"
            "\t1, SOLID,     0,     0,     1,     2,     4,     3,     5,     6,     8,     7\n"
            "\t20, SOLID,     0,     0,     9,    10,    11,    12,    13,    14, 0, 0\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SOLD_LclAx_Not_Convert"));
}

TEST(Solids, SeventhJointAloneDecidesBetweenHexahedronAndWedge) {
  struct Case {
    const char* Joints;
    const char* Nodes;
  };
  const Case cases[] = {
      // no seventh joint, or one of number 0
      {"Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint8=8",
       "    1,     2,     3,     4,     5,     6, 0, 0"},
      {"Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=0   Joint8=8",
       "    1,     2,     3,     4,     5,     6, 0, 0"},
      {"Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=A7   Joint8=8",
       "    1,     2,     3,     4,     5,     6, 0, 0"},
      {"Joint1=1   Joint2=2   Joint3=3   Joint4=4",
       "    1,     2,     3,     4,     0,     0, 0, 0"},
      // a seventh joint, others missing
      {"Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7",
       "    1,     2,     4,     3,     5,     6,     0,     7"},
      {"Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8",
       "    0,     2,     4,     3,     5,     6,     8,     7"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Joints);
    const ConversionRun run =
        Convert(std::string("TABLE:  \"CONNECTIVITY - SOLID\"\n   Solid=1   ") + c.Joints + "\n");
    EXPECT_THAT(run.Lines("*ELEMENT"),
                ElementsAre(std::string("\t1, SOLID,     0,     0, ") + c.Nodes));
  }
}

constexpr const char* kJointsWithLetters = R"(
TABLE:  "JOINT COORDINATES"
   Joint=N1   XorR=0   Y=0   Z=0
   Joint=N2   XorR=1   Y=0   Z=0
   Joint=N3   XorR=0   Y=1   Z=0
   Joint=N4   XorR=1   Y=1   Z=0
   Joint=N5   XorR=0   Y=0   Z=1
   Joint=N6   XorR=1   Y=0   Z=1
   Joint=N7   XorR=0   Y=1   Z=1
   Joint=N8   XorR=1   Y=1   Z=1

)";

TEST(Solids, JointsWithLettersAreWrittenByTheirNumbers) {
  const ConversionRun run = Convert(std::string(kJointsWithLetters) + R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=N8   Joint2=N7   Joint3=N6   Joint4=N5   Joint5=N4   Joint6=N3   Joint7=N2   Joint8=N1
   Solid=2   Joint1=N8   Joint2=N7   Joint3=N6   Joint4=N5   Joint5=N4   Joint6=n3   Joint7=N2   Joint8=N1
)");
  EXPECT_THAT(
      run.Lines("*ELEMENT"),
      ElementsAre(
          "\t1, SOLID,     0,     0,     8,     7,     5,     6,     4,     3,     1,     2",
          "\t2, SOLID,     0,     0,     8,     7,     5,     6,     4,     0,     1,     2"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_NODE_Renumbering", "IDS_S2KV8_SOLD_LclAx_Not_Convert"));
}

TEST(Solids, SeventhJointThatIsNotThereMakesAWedge) {
  const ConversionRun run = Convert(std::string(kJointsWithLetters) + R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=N1   Joint2=N2   Joint3=N3   Joint4=N4   Joint5=N5   Joint6=N6   Joint7=N9   Joint8=N8
)");
  EXPECT_THAT(
      run.Lines("*ELEMENT"),
      ElementsAre("\t1, SOLID,     0,     0,     1,     2,     3,     4,     5,     6, 0, 0"));
}

// Materials

/// A model of three wedges with two materials and these property tables.
ConversionRun ConvertWedges(const std::string& tables) {
  return Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=STEEL   Type=Isotropic   DesignType=Steel   E=2E+08   U=0.3
   Material=CONC   Type=Isotropic   DesignType=Concrete   E=2.5E+07   U=0.2

TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
   Solid=2   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
   Solid=3   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6

)" + tables);
}

std::string Wedge(const std::string& number, const std::string& material) {
  return "\t" + number + ", SOLID,     " + material +
         ",     0,     1,     2,     3,     4,     5,     6, 0, 0";
}

TEST(SolidMaterials, AreThoseOfTheirPropertiesByRow) {
  const ConversionRun run = ConvertWedges(R"(
TABLE:  "SOLID PROPERTY ASSIGNMENTS"
   Solid=3   SolidProp=FILL
   Solid=1   SolidProp=FILL
   Solid=2   SolidProp=CORE

TABLE:  "SOLID PROPERTY DEFINITIONS"
   SolidProp=CORE   Material=STEEL   MatAngleA=30   MatAngleB=45   MatAngleC=60   InComp=Yes   Color=Cyan   TotalWt=10   TotalMass=1
   SolidProp=FILL   Material=CONC   MatAngleA=0   MatAngleB=0   MatAngleC=0   InComp=No   Color=Red   TotalWt=20   TotalMass=2
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre(Wedge("1", "2"), Wedge("2", "1"), Wedge("3", "2")));
}

TEST(SolidMaterials, WithoutAnAssignmentIsThatOfTheSolidWalkedBeforeAndAtFirstZero) {
  // Solids 1 to 3 are walked in the order 3, 2, 1.
  const ConversionRun run = ConvertWedges(R"(
TABLE:  "SOLID PROPERTY ASSIGNMENTS"
   Solid=2   SolidProp=FILL

TABLE:  "SOLID PROPERTY DEFINITIONS"
   SolidProp=FILL   Material=CONC
)");
  EXPECT_THAT(run.Lines("*ELEMENT"),
              ElementsAre(Wedge("1", "2"), Wedge("2", "2"), Wedge("3", "0")));
}

TEST(SolidMaterials, AnyStepThatFindsNothingKeepsThatOfTheSolidWalkedBefore) {
  // Solid 1 is walked last, behind solid 2 of steel. Nothing falls on the last material instead.
  for (const char* property : {"NONE", "fill", "BARE", "LOST", "LOWER", ""}) {
    SCOPED_TRACE(property);
    const ConversionRun run = ConvertWedges(R"(
TABLE:  "SOLID PROPERTY ASSIGNMENTS"
   Solid=3   SolidProp=FILL
   Solid=2   SolidProp=CORE
   Solid=1   SolidProp=)" + std::string(property) +
                                            R"(

TABLE:  "SOLID PROPERTY DEFINITIONS"
   SolidProp=CORE   Material=STEEL
   SolidProp=FILL   Material=CONC
   SolidProp=BARE
   SolidProp=LOST   Material=TIMBER
   SolidProp=LOWER   Material=conc
)");
    EXPECT_THAT(run.Lines("*ELEMENT"),
                ElementsAre(Wedge("1", "1"), Wedge("2", "1"), Wedge("3", "2")));
  }
}

TEST(SolidMaterials, WithoutMaterialsAreZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6

TABLE:  "SOLID PROPERTY ASSIGNMENTS"
   Solid=1   SolidProp=FILL

TABLE:  "SOLID PROPERTY DEFINITIONS"
   SolidProp=FILL   Material=CONC
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Wedge("1", "0")));
}

TEST(SolidMaterials, OfTwoAssignmentsTheOneThatTheWalkMeetsFirstCounts) {
  // Rows 1 and 2 are walked in the order 2, 1, and an unknown property does not lead to the other.
  struct Case {
    const char* First;
    const char* Second;
    const char* Material;
  };
  const Case cases[] = {{"CORE", "FILL", "2"}, {"FILL", "CORE", "1"}, {"FILL", "NONE", "0"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Second);
    const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=STEEL   Type=Isotropic
   Material=CONC   Type=Isotropic

TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6

TABLE:  "SOLID PROPERTY ASSIGNMENTS"
   Solid=1   SolidProp=)" + std::string(c.First) +
                                      "\n   Solid=1   SolidProp=" + c.Second + R"(

TABLE:  "SOLID PROPERTY DEFINITIONS"
   SolidProp=CORE   Material=STEEL
   SolidProp=FILL   Material=CONC
)");
    EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Wedge("1", c.Material)));
  }
}

TEST(SolidMaterials, OfTwoPropertiesOrMaterialsOfOneNameTheOneThatTheWalkMeetsFirstCounts) {
  // Rows 1, 2 and 3 are walked in the order 2, 1, 3: the property is the second, its material
  // TIMBER the second of that name.
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=TIMBER   Type=Isotropic
   Material=TIMBER   Type=Isotropic
   Material=STEEL   Type=Isotropic

TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6

TABLE:  "SOLID PROPERTY ASSIGNMENTS"
   Solid=1   SolidProp=FILL

TABLE:  "SOLID PROPERTY DEFINITIONS"
   SolidProp=FILL   Material=STEEL
   SolidProp=FILL   Material=TIMBER
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre(Wedge("1", "2")));
}

// Numbers

TEST(SolidNumbers, LabelsOfDigitsAreTheNumbers) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=007   Joint1=1
   Solid=300   Joint1=2
   Solid=5   Joint1=3
   Joint1=4
)");
  EXPECT_THAT(
      run.Lines("*ELEMENT"),
      ElementsAre("\t7, SOLID,     0,     0,     1,     0,     0,     0,     0,     0, 0, 0",
                  "\t300, SOLID,     0,     0,     2,     0,     0,     0,     0,     0, 0, 0",
                  "\t5, SOLID,     0,     0,     3,     0,     0,     0,     0,     0, 0, 0",
                  "\t0, SOLID,     0,     0,     4,     0,     0,     0,     0,     0, 0, 0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SOLD_LclAx_Not_Convert"));
}

TEST(SolidNumbers, AnyCharacterThatIsNotADigitRenumbersTheWholeModel) {
  for (const char* label : {"S1", "-4", "4.0", "4S", "4 5"}) {
    SCOPED_TRACE(label);
    const ConversionRun run = Convert(
        std::string(R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=9   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
   Solid=)") +
        label +
        R"(   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7   Joint8=8
)");
    EXPECT_THAT(
        run.Lines("*ELEMENT"),
        ElementsAre(
            "\t1, SOLID,     0,     0,     1,     2,     3,     4,     5,     6, 0, 0"
            "\t\t;Solid=9",
            "\t2, SOLID,     0,     0,     1,     2,     4,     3,     5,     6,     8,     7"
            "\t\t;Solid=" +
                std::string(label)));
    EXPECT_THAT(run.Messages,
                ElementsAre("IDS_S2KV8_ELEM_Renumbering", "IDS_S2KV8_SOLD_LclAx_Not_Convert"));
  }
}

constexpr const char* kFramesAndArea = R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3

TABLE:  "CONNECTIVITY - AREA"
   Area=7   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4

)";

TEST(SolidNumbers, CountOnBehindFramesAndAreasWhenRenumbered) {
  const ConversionRun run = Convert(std::string(kFramesAndArea) + R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=S1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
   Solid=8   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
)");
  EXPECT_THAT(SolidLines(run),
              ElementsAre(Wedge("4", "0") + "\t\t;Solid=S1", Wedge("5", "0") + "\t\t;Solid=8"));
  // The solids come last, and their message behind those of frames and areas.
  EXPECT_EQ(run.Lines("*ELEMENT").size(), 5U);
  EXPECT_EQ(run.Lines("*ELEMENT").at(3), Wedge("4", "0") + "\t\t;Solid=S1");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_ELEM_Renumbering", "IDS_S2KV8_FRAM_LclAx_Not_Convert",
                          "IDS_S2KV8_PLAT_LclAx_Not_Convert", "IDS_S2KV8_SOLD_LclAx_Not_Convert"));
}

TEST(SolidNumbers, LabelOfAFrameRenumbersWithoutAMessage) {
  const ConversionRun run = Convert(std::string(kFramesAndArea) + R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=2   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
)");
  EXPECT_THAT(SolidLines(run), ElementsAre(Wedge("4", "0") + "\t\t;Solid=2"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_PLAT_LclAx_Not_Convert",
                          "IDS_S2KV8_SOLD_LclAx_Not_Convert"));
}

TEST(SolidNumbers, LabelOfAnAreaIsKeptInAModelWithFrames) {
  const ConversionRun run = Convert(std::string(kFramesAndArea) + R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
)");
  EXPECT_THAT(SolidLines(run), ElementsAre(Wedge("7", "0")));
}

TEST(SolidNumbers, LabelOfAnAreaRenumbersInAModelWithoutFrames) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=7   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "CONNECTIVITY - SOLID"
   Solid=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6
)");
  EXPECT_THAT(SolidLines(run), ElementsAre(Wedge("2", "0") + "\t\t;Solid=7"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert", "IDS_S2KV8_SOLD_LclAx_Not_Convert"));
}

TEST(SolidNumbers, LoadsFindTheNewNumberOfTheSolidAndNotThatOfTheFrameOfItsLabel) {
  const ConversionRun run = Convert(StaticCases({"TEMP"}) + kFramesAndArea + R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=2   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6

TABLE:  "SOLID LOADS - TEMPERATURE"
   Solid=2   LoadCase=TEMP   Temp=30   JtPattern=None
)");
  EXPECT_THAT(run.LoadLines("TEMP", "*ELTEMPER"), ElementsAre("\t4,    30,"));
}

// What is not carried over

constexpr const char* kSolid = R"(
TABLE:  "CONNECTIVITY - SOLID"
   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6

)";

TEST(SolidMessages, RefusedTableIsAnsweredBeforeTheLocalAxesOfTheSolids) {
  struct Case {
    const char* Title;
    const char* Message;
  };
  const Case cases[] = {
      {"SOLID LOADS - PORE PRESSURE", "IDS_S2KV8_SOLD_PrPrsr_Not_Convert"},
      {"SOLID LOADS - SURFACE PRESSURE", "IDS_S2KV8_SOLD_SurfP_Not_Convert"},
      {"SOLID LOCAL AXES ASSIGNMENTS 1 - TYPICAL", "IDS_S2KV8_SOLD_Local_Not_Convert"},
      {"SOLID SPRING ASSIGNMENTS", "IDS_S2KV8_SOLD_Spr_Not_Convert"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Title);
    const ConversionRun run =
        Convert(std::string(kSolid) + "TABLE:  \"" + c.Title +
                "\"\n   Solid=1   LoadCase=DEAD   Face=1   Pressure=5   AngleA=30\n");
    EXPECT_THAT(run.Messages, ElementsAre(c.Message, "IDS_S2KV8_SOLD_LclAx_Not_Convert"));
    EXPECT_EQ(Body(run), Body(Convert(kSolid)));
  }
}

TEST(SolidMessages, TablesThatVanishInSilenceHaveNoEffect) {
  for (const char* table :
       {"SOLID LOADS - GRAVITY", "SOLID AUTOMATIC MESH ASSIGNMENTS", "SOLID MATERIAL TEMPERATURES",
        "SOLID LOCAL AXES ASSIGNMENTS 2 - ADVANCED"}) {
    SCOPED_TRACE(table);
    const std::string loaded =
        std::string("TABLE:  \"") + table +
        "\"\n   Solid=1   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierX=0   "
        "MultiplierY=0   MultiplierZ=-1   AutoMesh=Yes   Number1=2   Temp=20\n\n";
    const std::string cases = StaticCases({"DEAD"});
    const ConversionRun run = Convert(cases + kSolid + loaded);
    EXPECT_EQ(Body(run), Body(Convert(cases + kSolid)));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SOLD_LclAx_Not_Convert"));
    // Nor in a model without solids.
    EXPECT_EQ(Body(Convert(cases + loaded)), Body(Convert(cases)));
    EXPECT_THAT(Convert(cases + loaded).Messages, testing::IsEmpty());
  }
}

TEST(SolidMessages, LocalAxesStaySilentWithoutSolids) {
  const ConversionRun run = Convert(kFramesAndArea);
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

}  // namespace
