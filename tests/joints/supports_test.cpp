#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(Supports, PinnedJointGivesTheWholeSectionWithAnEmptyLineBehindItsHeader) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT RESTRAINT ASSIGNMENTS"
   Joint=1   U1=Yes   U2=Yes   U3=Yes   R1=No   R2=No   R3=No
)");
  EXPECT_EQ(run.Section("*CONSTRAINT"),
            "*CONSTRAINT    ; Supports\n"
            "\n"
            "; NODE_LIST, CONST(Dx,Dy,Dz,Rx,Ry,Rz), GROUP\n"
            "\t1, 111000,\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Supports, EachDirectionHasItsPlace) {
  const struct {
    std::string Directions;
    std::string Line;
  } rows[] = {
      {"U1=Yes", "\t1, 100000,"},
      {"U2=Yes", "\t1, 010000,"},
      {"U3=Yes", "\t1, 001000,"},
      {"R1=Yes", "\t1, 000100,"},
      {"R2=Yes", "\t1, 000010,"},
      {"R3=Yes", "\t1, 000001,"},
      {"U1=Yes   U2=Yes   U3=Yes   R1=Yes   R2=Yes   R3=Yes", "\t1, 111111,"},
      {"U1=No   U2=No   U3=No   R1=No   R2=No   R3=No", "\t1, 000000,"},
      {"R3=Yes   U2=Yes   U1=No", "\t1, 010001,"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Directions);
    const ConversionRun run =
        Convert("TABLE:  \"JOINT RESTRAINT ASSIGNMENTS\"\n   Joint=1   " + row.Directions + "\n");
    EXPECT_THAT(run.Lines("*CONSTRAINT"), ElementsAre(row.Line));
  }
}

TEST(Supports, OnlyTheWordYesRestrains) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT RESTRAINT ASSIGNMENTS"
   Joint=1   U1=yes   U2=YES   U3=1   R1=True   R2=Y   R3="Yes"
)");
  EXPECT_THAT(run.Lines("*CONSTRAINT"), ElementsAre("\t1, 000001,"));
}

TEST(Supports, LinesFollowTheWalkOverTheRows) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT RESTRAINT ASSIGNMENTS"
   Joint=10   U1=Yes
   Joint=20   U1=Yes
   Joint=30   U1=Yes
   Joint=40   U1=Yes
   Joint=50   U1=Yes
   Joint=60   U1=Yes
)");
  EXPECT_THAT(run.Lines("*CONSTRAINT"),
              ElementsAre("\t30, 100000,", "\t60, 100000,", "\t20, 100000,", "\t50, 100000,",
                          "\t10, 100000,", "\t40, 100000,"));
}

TEST(Supports, RowsOfOneBucketAreTurnedRoundFromSourceToTarget) {
  // Rows 1 and 10,002 share a bucket of 10,001. The source is walked 10,002 first; what is put into
  // the target last, row 1, is printed first.
  std::string tables = "TABLE:  \"JOINT RESTRAINT ASSIGNMENTS\"\n";
  for (int joint = 1; joint <= 10'002; ++joint) {
    tables += "   Joint=" + std::to_string(joint) + "   U1=Yes\n";
  }
  EXPECT_THAT(Convert(tables).Section("*CONSTRAINT"),
              HasSubstr("\n\t1, 100000,\n\t10002, 100000,\n"));
}

TEST(Supports, JointRestrainedTwiceGivesTwoLines) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT RESTRAINT ASSIGNMENTS"
   Joint=5   U1=Yes
   Joint=5   U3=Yes
)");
  EXPECT_THAT(run.Lines("*CONSTRAINT"), ElementsAre("\t5, 001000,", "\t5, 100000,"));
}

TEST(Supports, LabelOfDigitsIsTheNumberOfAJointThatHasNoCoordinatesToo) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0   Y=0   Z=0

TABLE:  "JOINT RESTRAINT ASSIGNMENTS"
   Joint=007   U1=Yes
)");
  EXPECT_THAT(run.Lines("*CONSTRAINT"), ElementsAre("\t7, 100000,"));
}

TEST(Supports, LabelWithALetterIsItsPositionAndAnUnknownOneZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=B   XorR=1   Y=0   Z=0

TABLE:  "JOINT RESTRAINT ASSIGNMENTS"
   Joint=B   U1=Yes
   Joint=9   U1=Yes
   Joint=A   U1=Yes
)");
  EXPECT_THAT(run.Lines("*CONSTRAINT"),
              ElementsAre("\t1, 100000,", "\t0, 100000,", "\t2, 100000,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_Renumbering"));
}

TEST(Supports, NoRowsGiveNoSection) {
  const ConversionRun run = Convert("TABLE:  \"JOINT RESTRAINT ASSIGNMENTS\"\n\n");
  EXPECT_EQ(run.Section("*CONSTRAINT"), "");
  EXPECT_EQ(run.Result, 0);
}

}  // namespace
