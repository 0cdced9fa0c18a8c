#include "support/conversion_run.h"

#include <s2k2ngt/exceptions.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Nodes, SmallestModelGivesTheWholeFile) {
  const ConversionRun run = ConvertBytes(
      "File sample.s2k\n"
      "TABLE:  \"PROGRAM CONTROL\"\n"
      "   CurrUnits=\"KN, m, C\"\n"
      "\n"
      "TABLE:  \"JOINT COORDINATES\"\n"
      "   Joint=1   CoordSys=GLOBAL   CoordType=Cartesian   XorR=0   Y=0   Z=0   SpecialJt=No\n"
      "   Joint=2   CoordSys=GLOBAL   CoordType=Cartesian   XorR=3.5   Y=0   Z=1200000   "
      "SpecialJt=No\n"
      "END TABLE DATA");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  const std::string behindHead = run.Output.substr(run.Output.find("*VERSION"));
  EXPECT_EQ(behindHead,
            "*VERSION\n"
            "5.8.1\n"
            "\n"
            "*UNIT    ; Unit System\n"
            "; FORCE, LENGTH\n"
            "\tKN,     M\n"
            "\n"
            "*NODE    ; Nodes\n"
            "; iNO, X, Y, Z\n"
            "\t1,     0,     0,     0\n"
            "\t2,   3.5,     0, 1.2e+06\n"
            "\n"
            "\n\n"
            "*ENDDATA");
}

TEST(Nodes, LabelsOfDigitsAreTheNumbers) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0   Y=0   Z=0
   Joint=5   XorR=1   Y=0   Z=0
   Joint=10   XorR=2   Y=0   Z=0
)");
  EXPECT_EQ(run.Section("*NODE"),
            "*NODE    ; Nodes\n"
            "; iNO, X, Y, Z\n"
            "\t1,     0,     0,     0\n"
            "\t5,     1,     0,     0\n"
            "\t10,     2,     0,     0\n"
            "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Nodes, OneLabelWithALetterRenumbersAllByPosition) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0   Y=0   Z=0
   Joint=A   XorR=1   Y=0   Z=0
   Joint=3   XorR=2   Y=0   Z=0

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=3
   Frame=2   JointI=A   JointJ=99
)");
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t1,     0,     0,     0 \t\t;Joint=1",
                                              "\t2,     1,     0,     0 \t\t;Joint=A",
                                              "\t3,     2,     0,     0 \t\t;Joint=3"));
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     0,     0,     1,     3,     0",
                                                 "\t2,  BEAM,     0,     0,     2,     0,     0"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_NODE_Renumbering", "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(Nodes, NegativeLabelIsNotDigits) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=-1   XorR=0   Y=0   Z=0
)");
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t1,     0,     0,     0 \t\t;Joint=-1"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_Renumbering"));
}

TEST(Nodes, LeadingZerosAreDroppedFromTheNumber) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=007   XorR=0   Y=0   Z=0
)");
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t7,     0,     0,     0"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Nodes, EmptyLabelPassesAsDigitsAndIsNumberZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   XorR=1   Y=2   Z=3
)");
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t0,     1,     2,     3"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Nodes, RepeatedLabelWithALetterGivesBothTheNumberThatTheWalkMeetsFirst) {
  // Keys 1, 2, 3 are walked in the order 3, 2, 1: of the two joints A, key 3 comes first.
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=B   XorR=1   Y=0   Z=0
   Joint=A   XorR=2   Y=0   Z=0
)");
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t3,     0,     0,     0 \t\t;Joint=A",
                                              "\t2,     1,     0,     0 \t\t;Joint=B",
                                              "\t3,     2,     0,     0 \t\t;Joint=A"));
}

TEST(Nodes, RepeatedLabelWithALetterInOneBucketGivesBothTheNumberOfTheFirstRow) {
  // With 10,001 buckets the keys 1 and 10,002 share one. The walk over the joints takes the later
  // one first, so that the map has the earlier one as its newest.
  std::string joints = "TABLE:  \"JOINT COORDINATES\"\n";
  for (int joint = 1; joint <= 10'002; ++joint) {
    joints += "   Joint=J" + std::to_string(joint % 10'001) + "   XorR=0   Y=0   Z=0\n";
  }
  const std::vector<std::string> lines = Convert(joints).Lines("*NODE");
  ASSERT_EQ(lines.size(), 10'002U);
  EXPECT_EQ(lines.front(), "\t1,     0,     0,     0 \t\t;Joint=J1");
  EXPECT_EQ(lines.back(), "\t1,     0,     0,     0 \t\t;Joint=J1");
}

TEST(Nodes, RepeatedLabelOfDigitsGivesTwoLinesOfOneNumber) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=4   XorR=0   Y=0   Z=0
   Joint=4   XorR=1   Y=0   Z=0
)");
  EXPECT_THAT(run.Lines("*NODE"),
              ElementsAre("\t4,     0,     0,     0", "\t4,     1,     0,     0"));
}

TEST(Nodes, MissingCoordinateIsZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   Y=2   Z=3
)");
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t1,     0,     2,     3"));
}

TEST(Nodes, SpecialJointIsWrittenAtItsGlobalCoordinates) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=1   Y=2   Z=3   SpecialJt=Yes   GlobalX=4   GlobalY=5   GlobalZ=6
   Joint=2   XorR=1   Y=2   Z=3   SpecialJt=YES   GlobalX=4   GlobalY=5   GlobalZ=6
   Joint=3   XorR=1   Y=2   Z=3   SpecialJt=Yes
)");
  EXPECT_THAT(run.Lines("*NODE"),
              ElementsAre("\t1,     4,     5,     6", "\t2,     1,     2,     3",
                          "\t3,     0,     0,     0"));
}

TEST(Nodes, NoJointTableGivesNoNodesAndNumbersOfLabels) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=7   JointJ=B
)");
  EXPECT_EQ(run.Section("*NODE"), "");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     0,     0,     7,     0,     0"));
}

TEST(Nodes, SecondJointTableWritesOverTheRowsOfItsPositions) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=1   Y=0   Z=0
   Joint=2   XorR=2   Y=0   Z=0
   Joint=3   XorR=3   Y=0   Z=0

TABLE:  "JOINT COORDINATES"
   Joint=9   XorR=9   Y=0   Z=0
)");
  EXPECT_THAT(run.Lines("*NODE"),
              ElementsAre("\t9,     9,     0,     0", "\t2,     2,     0,     0",
                          "\t3,     3,     0,     0"));
}

TEST(Nodes, JointThatIsNotCartesianRefusesTheFileWithoutAMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   CoordType=Cartesian   XorR=1   Y=0   Z=0
   Joint=2   CoordType=Cylindrical   XorR=2   T=0   Z=0
)");
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_FALSE(run.HasOutput);
  EXPECT_EQ(run.Failure.Phase, 1);
  EXPECT_EQ(run.Failure.Line, 5U);
  EXPECT_EQ(run.Failure.Table, "JOINT COORDINATES");
  EXPECT_EQ(run.Failure.Reason, "joint 2 has CoordType=Cylindrical, only Cartesian is read");
}

TEST(Nodes, CoordTypeIsTestedExactly) {
  for (const char* type : {"cartesian", "CARTESIAN", ""}) {
    const ConversionRun run = Convert(
        "TABLE:  \"JOINT COORDINATES\"\n   Joint=1   CoordType=" + std::string(type) + "\n");
    EXPECT_EQ(run.Result, -1) << type;
  }
}

TEST(CoordinateSystem, NotCartesianRefusesTheFileWithAMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "COORDINATE SYSTEMS"
   Name=GLOBAL   Type=Cylindrical   X=0   Y=0   Z=0
)");
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_NOT_Cylindrical"));
  EXPECT_EQ(run.Failure.Line, 4U);
}

TEST(CoordinateSystem, FurtherSystemsAreNotLookedAt) {
  const ConversionRun run = Convert(R"(
TABLE:  "COORDINATE SYSTEMS"
   Name=GLOBAL   Type=Cartesian   X=0   Y=0   Z=0
   Name=RING   Type=Cylindrical   X=0   Y=0   Z=0
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(CoordinateSystem, TableWithoutARowIsAnInvalidArgument) {
  EXPECT_THROW(Convert("TABLE:  \"COORDINATE SYSTEMS\"\n\n"), s2k2ngt::InvalidArgumentException);
}

TEST(Units, TableWithoutARowIsAnInvalidArgument) {
  EXPECT_THROW(Convert("TABLE:  \"PROGRAM CONTROL\"\n\n"), s2k2ngt::InvalidArgumentException);
}

TEST(Units, FewerThanThreeUnitsAreAnInvalidArgument) {
  EXPECT_THROW(Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m\"\n"),
               s2k2ngt::InvalidArgumentException);
  EXPECT_THROW(Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=KN\n"),
               s2k2ngt::InvalidArgumentException);
}

}  // namespace
