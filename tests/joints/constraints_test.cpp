#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Joints 1, 2, 3 in a constraint LINK of this type.
std::string ThreeJoints(const std::string& type) {
  std::string table = "TABLE:  \"JOINT CONSTRAINT ASSIGNMENTS\"\n";
  for (const char* joint : {"1", "2", "3"}) {
    table += "   Joint=" + std::string(joint) + "   Constraint=LINK   Type=" + type + "\n";
  }
  return table + "\n";
}

std::string Definition(const std::string& kind, const std::string& row) {
  return "TABLE:  \"CONSTRAINT DEFINITIONS - " + kind + "\"\n   " + row + "\n\n";
}

std::string MassOn(const std::string& joint) {
  return "TABLE:  \"JOINT ADDED MASS ASSIGNMENTS\"\n   Joint=" + joint +
         "   CoordSys=Local   Mass1=1\n\n";
}

/// A second constraint, FURTHER, that makes a link in any case.
constexpr const char* kFurtherLink = R"(TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=1   Constraint=LINK   Type=KIND
   Joint=2   Constraint=LINK   Type=KIND
   Joint=3   Constraint=FURTHER   Type=Weld
   Joint=4   Constraint=FURTHER   Type=Weld

TABLE:  "CONSTRAINT DEFINITIONS - WELD"
   Name=FURTHER   UX=Yes

)";

std::string WithFurtherLink(const std::string& type) {
  std::string tables = kFurtherLink;
  for (std::size_t at = tables.find("KIND"); at != std::string::npos; at = tables.find("KIND")) {
    tables.replace(at, 4, type);
  }
  return tables;
}

constexpr const char* kFurtherLine = "\t3, 100000,     4,      ";

// ---- Nodes ----

TEST(RigidLinks, DiaphragmGivesTheWholeSectionWithTheJointOfMassAsMaster) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=1   Constraint=FLOOR1   Type=Diaphragm
   Joint=2   Constraint=FLOOR1   Type=Diaphragm
   Joint=3   Constraint=FLOOR1   Type=Diaphragm

TABLE:  "CONSTRAINT DEFINITIONS - DIAPHRAGM"
   Name=FLOOR1   CoordSys=GLOBAL   Axis=Z   MultiLevel=No

TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=2   CoordSys=Local   Mass1=10   Mass2=10
)");
  EXPECT_EQ(run.Section("*RIGIDLINK"),
            "*RIGIDLINK    ; Rigid Link\n"
            "; M-NODE, DOF, S-NODE LIST, GROUP\n"
            "\t2, 110001,   1 3,      \n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(RigidLinks, WithoutMassesTheFirstJointIsTheMaster) {
  const ConversionRun run =
      Convert(ThreeJoints("Diaphragm") + Definition("DIAPHRAGM", "Name=LINK   Axis=Z"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t1, 110001,   2 3,      "));
}

TEST(RigidLinks, WithMassesOfOtherJointsOnlyThereIsNoMasterAndTheFirstJointIsLost) {
  const ConversionRun run = Convert(ThreeJoints("Diaphragm") +
                                    Definition("DIAPHRAGM", "Name=LINK   Axis=Z") + MassOn("7"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t, 110001,   2 3,      "));
}

TEST(RigidLinks, OfTwoJointsWithMassThatOfTheRowWalkedFirstIsTheMaster) {
  const ConversionRun run =
      Convert(ThreeJoints("Diaphragm") + Definition("DIAPHRAGM", "Name=LINK   Axis=Z") + R"(
TABLE:  "JOINT ADDED MASS ASSIGNMENTS"
   Joint=2   Mass1=1
   Joint=3   Mass1=1
)");
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t3, 110001,   1 2,      "));
}

TEST(RigidLinks, MasterThatStandsTwiceInItsConstraintStaysAsASlave) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=5   Constraint=LINK   Type=Plate
   Joint=8   Constraint=LINK   Type=Plate
   Joint=6   Constraint=LINK   Type=Plate
   Joint=8   Constraint=LINK   Type=Plate

)" + Definition("PLATE", "Name=LINK   Axis=X") +
                                    MassOn("8"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t8, 011100, 5 6 8,      "));
}

TEST(RigidLinks, JointsStandInTheOrderOfTheirRows) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=15   Constraint=LINK   Type=Equal
   Joint=14   Constraint=LINK   Type=Equal
   Joint=11   Constraint=OTHER   Type=Equal
   Joint=13   Constraint=LINK   Type=Equal
   Joint=16   Constraint=LINK   Type=Equal
   Joint=12   Constraint=LINK   Type=Equal

)" + Definition("EQUAL", "Name=LINK   UX=Yes"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t15, 100000, 14 13 16 12,      "));
}

TEST(RigidLinks, LabelsOfDigitsArePrintedAsTheyStand) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=007   XorR=0   Y=0   Z=0

TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=007   Constraint=LINK   Type=Body
   Joint=N9   Constraint=LINK   Type=Body

)" + Definition("BODY", "Name=LINK   UX=Yes"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t007, 100000,    N9,      "));
}

TEST(RigidLinks, JointsOfLabelsWithALetterHaveNoNumberYet) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=2   XorR=1   Y=0   Z=0
   Joint=3   XorR=2   Y=0   Z=0

)" + ThreeJoints("Body") + Definition("BODY", "Name=LINK   UX=Yes"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t(null), 100000, (null) (null),      "));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_Renumbering"));
}

TEST(RigidLinks, JointsWithoutANumberAreNeverThoseWithMass) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0

)" + ThreeJoints("Plate") + Definition("PLATE", "Name=LINK   Axis=Y") +
                                    MassOn("2"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t, 101010, (null) (null),      "));
}

TEST(RigidLinks, ConstraintOfOneJointGivesNoLink) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=1   Constraint=LINK   Type=Body

)" + Definition("BODY", "Name=LINK   UX=Yes"));
  EXPECT_EQ(run.Section("*RIGIDLINK"), "");
  EXPECT_EQ(run.Result, 0);
}

// ---- Kinds ----

TEST(RigidLinks, KindSaysWhetherTheFirstJointOrThatOfMassIsTheMaster) {
  const struct {
    std::string Type;
    std::string Table;
    std::string Row;
    std::string Line;
  } kinds[] = {
      {"Beam", "BEAM", "Axis=X", "\t1, 011100,   2 3,      "},
      {"Rod", "ROD", "Axis=X", "\t1, 011100,   2 3,      "},
      {"Diaphragm", "DIAPHRAGM", "Axis=X", "\t2, 011100,   1 3,      "},
      {"Plate", "PLATE", "Axis=X", "\t2, 011100,   1 3,      "},
      {"Body", "BODY", "UX=Yes", "\t1, 100000,   2 3,      "},
      {"Equal", "EQUAL", "UX=Yes", "\t1, 100000,   2 3,      "},
      {"Line", "LINE", "UX=Yes", "\t1, 100000,   2 3,      "},
      {"Weld", "WELD", "UX=Yes", "\t1, 100000,   2 3,      "},
  };
  for (const auto& kind : kinds) {
    SCOPED_TRACE(kind.Type);
    const ConversionRun run =
        Convert(ThreeJoints(kind.Type) + MassOn("2") +
                Definition(kind.Table, "Name=LINK   CoordSys=GLOBAL   " + kind.Row));
    EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre(kind.Line));
  }
}

TEST(RigidLinks, AxisGivesTheDirections) {
  for (const std::string kind : {"Beam", "Rod", "Diaphragm", "Plate"}) {
    const struct {
      std::string Axis;
      std::string Line;
    } axes[] = {
        {"X", "\t1, 011100,   2 3,      "},
        {"Y", "\t1, 101010,   2 3,      "},
        {"Z", "\t1, 110001,   2 3,      "},
    };
    for (const auto& row : axes) {
      SCOPED_TRACE(kind + " " + row.Axis);
      const ConversionRun run =
          Convert(ThreeJoints(kind) + Definition(kind, "Name=LINK   Axis=" + row.Axis));
      EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre(row.Line));
      EXPECT_THAT(run.Messages, IsEmpty());
    }
  }
}

TEST(RigidLinks, AnyOtherAxisGivesNoLinkAndIsToldBesideAFurtherLink) {
  for (const std::string kind : {"Beam", "Rod", "Diaphragm", "Plate"}) {
    for (const std::string axis : {"Axis=Auto", "Axis=z", "Axis=-X", ""}) {
      SCOPED_TRACE(kind + " " + axis);
      const ConversionRun run =
          Convert(WithFurtherLink(kind) + Definition(kind, "Name=LINK   " + axis));
      EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre(kFurtherLine));
      EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_REST_AutoAX_Not_Convert"));
    }
  }
}

TEST(RigidLinks, AnyOtherAxisIsNotToldWithoutALink) {
  const ConversionRun run =
      Convert(ThreeJoints("Beam") + Definition("BEAM", "Name=LINK   CoordSys=GLOBAL   Axis=Auto"));
  EXPECT_EQ(run.Section("*RIGIDLINK"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(RigidLinks, AxisOfAConstraintOfOneJointIsNotLookedAt) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=1   Constraint=LINK   Type=Beam
   Joint=3   Constraint=FURTHER   Type=Weld
   Joint=4   Constraint=FURTHER   Type=Weld

)" + Definition("BEAM", "Name=LINK   Axis=Auto") +
                                    Definition("WELD", "Name=FURTHER   UX=Yes"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre(kFurtherLine));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(RigidLinks, FlagsGiveTheDirections) {
  for (const std::string kind : {"Body", "Equal", "Line", "Weld"}) {
    const struct {
      std::string Flags;
      std::string Line;
    } rows[] = {
        {"UX=Yes", "\t1, 100000,   2 3,      "},
        {"UY=Yes", "\t1, 010000,   2 3,      "},
        {"UZ=Yes", "\t1, 001000,   2 3,      "},
        {"RX=Yes", "\t1, 000100,   2 3,      "},
        {"RY=Yes", "\t1, 000010,   2 3,      "},
        {"RZ=Yes", "\t1, 000001,   2 3,      "},
        {"UX=Yes   UY=Yes   UZ=Yes   RX=No   RY=No   RZ=No", "\t1, 111000,   2 3,      "},
        {"UX=yes   UY=YES   UZ=1   RX=Yes", "\t1, 000100,   2 3,      "},
    };
    for (const auto& row : rows) {
      SCOPED_TRACE(kind + " " + row.Flags);
      const ConversionRun run = Convert(
          ThreeJoints(kind) + Definition(kind, "Name=LINK   CoordSys=GLOBAL   " + row.Flags));
      EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre(row.Line));
    }
  }
}

TEST(RigidLinks, ConstraintThatItsTableDoesNotNameLinksNoDirection) {
  for (const std::string kind :
       {"Beam", "Rod", "Diaphragm", "Plate", "Body", "Equal", "Line", "Weld"}) {
    SCOPED_TRACE(kind);
    const ConversionRun run =
        Convert(ThreeJoints(kind) + Definition(kind, "Name=link   Axis=X   UX=Yes"));
    EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t1,      ,   2 3,      "));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(RigidLinks, ConstraintWithoutATableOfItsKindGivesNoLink) {
  for (const std::string kind :
       {"Beam", "Rod", "Diaphragm", "Plate", "Body", "Equal", "Line", "Weld"}) {
    SCOPED_TRACE(kind);
    const std::string tableOfAnotherKind = kind == "Equal" ? "BODY" : "EQUAL";
    const ConversionRun run =
        Convert(ThreeJoints(kind) + Definition(tableOfAnotherKind, "Name=LINK   Axis=X   UX=Yes"));
    EXPECT_EQ(run.Section("*RIGIDLINK"), "");
  }
}

TEST(RigidLinks, OfTwoDefinitionsOfOneNameTheOneWalkedFirstCounts) {
  // Rows 1 and 2 of a table of 17 buckets are walked 2, 1.
  EXPECT_THAT(Convert(ThreeJoints("Rod") + Definition("ROD",
                                                      "Name=LINK   Axis=X\n"
                                                      "   Name=LINK   Axis=Y"))
                  .Lines("*RIGIDLINK"),
              ElementsAre("\t1, 101010,   2 3,      "));
  EXPECT_THAT(Convert(ThreeJoints("Weld") + Definition("WELD",
                                                       "Name=LINK   UX=Yes\n"
                                                       "   Name=LINK   UY=Yes"))
                  .Lines("*RIGIDLINK"),
              ElementsAre("\t1, 010000,   2 3,      "));
}

TEST(RigidLinks, LocalConstraintGivesNoLinkAndIsToldBesideAFurtherLink) {
  const ConversionRun run =
      Convert(WithFurtherLink("Local") +
              Definition("LOCAL", "Name=LINK   U1=Yes   U2=Yes   U3=Yes   R1=No   R2=No   R3=No"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre(kFurtherLine));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_REST_Local_Not_Convert"));
}

TEST(RigidLinks, LocalConstraintIsToldWithoutADefinitionAndOfOneJointToo) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=1   Constraint=LINK   Type=Local
   Joint=3   Constraint=FURTHER   Type=Weld
   Joint=4   Constraint=FURTHER   Type=Weld

)" + Definition("WELD", "Name=FURTHER   UX=Yes"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_REST_Local_Not_Convert"));
}

TEST(RigidLinks, LocalConstraintIsNotToldWithoutALink) {
  const ConversionRun run =
      Convert(ThreeJoints("Local") + Definition("LOCAL", "Name=LINK   U1=Yes"));
  EXPECT_EQ(run.Section("*RIGIDLINK"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(RigidLinks, OtherAxisIsToldBeforeALocalConstraint) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=1   Constraint=LOCAL1   Type=Local
   Joint=2   Constraint=LOCAL1   Type=Local
   Joint=3   Constraint=FURTHER   Type=Weld
   Joint=4   Constraint=FURTHER   Type=Weld
   Joint=5   Constraint=ROD1   Type=Rod
   Joint=6   Constraint=ROD1   Type=Rod

)" + Definition("WELD", "Name=FURTHER   UX=Yes") +
                                    Definition("ROD", "Name=ROD1   Axis=Auto"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre(kFurtherLine));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_REST_AutoAX_Not_Convert", "IDS_S2KV8_REST_Local_Not_Convert"));
}

TEST(RigidLinks, UnknownTypeGivesNeitherLinkNorMessage) {
  for (const std::string type : {"body", "BODY", "Rigid", ""}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(WithFurtherLink(type) + Definition("BODY", "Name=LINK"));
    EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre(kFurtherLine));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(RigidLinks, TypeOfTheRowWalkedFirstIsThatOfTheConstraint) {
  // Rows 1 and 2 are walked 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT CONSTRAINT ASSIGNMENTS"
   Joint=1   Constraint=LINK   Type=Rod
   Joint=2   Constraint=LINK   Type=Weld

)" + Definition("ROD", "Name=LINK   Axis=Z") +
                                    Definition("WELD", "Name=LINK   UY=Yes"));
  EXPECT_THAT(run.Lines("*RIGIDLINK"), ElementsAre("\t1, 010000,     2,      "));
}

}  // namespace
