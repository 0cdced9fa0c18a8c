#include "support/conversion_run.h"

#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::IsEmpty;

constexpr const char* kHead =
    "*LINELANE    ; Traffic Line Lanes\n"
    "; NAME=NAME, LDIST, GROUP, SKEWS, SKEWE, MOVING  ; line 1\n"
    ";      iELEM1, ECC1, FACT1, ...                  ; from line 2\n";

/// The section, in an output where nothing stands behind it but the two newlines of every run.
std::string LanesText(const ConversionRun& run) { return run.Between("*LINELANE", "\n\n*ENDDATA"); }

/// Runs over the rows of a lane table, behind further tables.
ConversionRun ConvertLaneRows(std::string_view rows, std::string_view tables = "") {
  rows.remove_prefix(rows.starts_with('\n') ? 1 : 0);
  return Convert(std::string(tables) + "\nTABLE:  \"BRIDGE LOADS 1 - LANES\"\n" +
                 std::string(rows));
}

TEST(Lanes, LaneOfFourFramesHasThreeOnItsFirstLine) {
  const ConversionRun run = Convert(R"(
TABLE:  "BRIDGE LOADS 1 - LANE DEFINITIONS"
   LaneName=EAST   Frame=1   Eccen=0.5
   LaneName=EAST   Frame=2   Eccen=0.5
   LaneName=EAST   Frame=3   Eccen=-1.25
   LaneName=EAST   Frame=4   Eccen=0
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Body(),
            "*LINELANE    ; Traffic Line Lanes\n"
            "; NAME=NAME, LDIST, GROUP, SKEWS, SKEWE, MOVING  ; line 1\n"
            ";      iELEM1, ECC1, FACT1, ...                  ; from line 2\n"
            "\n"
            "\tNAME=EAST,  LANE,     0,     0,     0, FORWARD\n"
            "\t\t1,  -0.5,     0,\t\t2,  -0.5,     0,\t\t3,  1.25,     0\n"
            "\t\t4,    -0,     0\n"
            "\n"
            "\n\n");
}

TEST(Lanes, TableWithoutRowsGivesNoCommand) { EXPECT_EQ(ConvertLaneRows("").Body(), "\n\n"); }

TEST(Lanes, FurtherLinesHoldThreeFramesEach) {
  const ConversionRun run = ConvertLaneRows(R"(
   LaneName=L   Frame=8   Eccen=-1
   LaneName=L   Frame=7   Eccen=-1
   LaneName=L   Frame=6   Eccen=-1
   LaneName=L   Frame=5   Eccen=-1
   LaneName=L   Frame=4   Eccen=-1
   LaneName=L   Frame=3   Eccen=-1
   LaneName=L   Frame=2   Eccen=-1
)");
  EXPECT_EQ(LanesText(run), std::string(kHead) +
                                "\n"
                                "\tNAME=L,  LANE,     0,     0,     0, FORWARD\n"
                                "\t\t8,     1,     0,\t\t7,     1,     0,\t\t6,     1,     0\n"
                                "\t\t5,     1,     0,\t\t4,     1,     0,\t\t3,     1,     0\n"
                                "\t\t2,     1,     0\n"
                                "\n");
}

TEST(Lanes, EccentricityIsNegated) {
  const struct {
    const char* Given;
    const char* Written;
  } kRows[] = {
      {"Eccen=0.5", " -0.5"},
      {"Eccen=-2", "    2"},
      {"Eccen=0", "   -0"},
      {"Eccen=-0", "    0"},
      {"", "   -0"},
      {"Eccen=", "   -0"},
      {"Eccen=wide", "   -0"},
      {"Eccen=0x10", "  -16"},
      {"Eccen=1e-7", "-1e-07"},
      {"Eccen=12.3456789", "-12.3457"},
      {"Eccen=-inf", "  inf"},
      {"Eccen=inf", " -inf"},
      {"Eccen=nan", "  nan"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Given);
    const ConversionRun run =
        ConvertLaneRows("   LaneName=L   Frame=1   " + std::string(row.Given) + "\n");
    EXPECT_EQ(LanesText(run), std::string(kHead) +
                                  "\n\tNAME=L,  LANE,     0,     0,     0, FORWARD\n"
                                  "\t\t1, " +
                                  row.Written + ",     0\n\n");
  }
}

TEST(Lanes, LaneWhoseRowsAreNotConsecutiveOpensAgain) {
  const ConversionRun run = ConvertLaneRows(R"(
   LaneName="NORTH 1"   Frame=1   Eccen=-1
   LaneName="NORTH 1"   Frame=2   Eccen=-1
   LaneName=südlich   Frame=3   Eccen=-1
   LaneName=südlich   Frame=4   Eccen=-1
   LaneName="NORTH 1"   Frame=5   Eccen=-1
   LaneName="NORTH 1"   Frame=6   Eccen=-1
   LaneName="NORTH 1"   Frame=7   Eccen=-1
   LaneName="NORTH 1"   Frame=8   Eccen=-1
)");
  EXPECT_EQ(LanesText(run), std::string(kHead) +
                                "\n"
                                "\tNAME=NORTH 1,  LANE,     0,     0,     0, FORWARD\n"
                                "\t\t1,     1,     0,\t\t2,     1,     0\n"
                                "\tNAME=südlich,  LANE,     0,     0,     0, FORWARD\n"
                                "\t\t3,     1,     0,\t\t4,     1,     0\n"
                                "\tNAME=NORTH 1,  LANE,     0,     0,     0, FORWARD\n"
                                "\t\t5,     1,     0,\t\t6,     1,     0,\t\t7,     1,     0\n"
                                "\t\t8,     1,     0\n"
                                "\n");
}

TEST(Lanes, LaneNamesOfOtherCaseAreOtherLanes) {
  const ConversionRun run = ConvertLaneRows(R"(
   LaneName=east   Frame=1   Eccen=-1
   LaneName=East   Frame=2   Eccen=-1
)");
  EXPECT_EQ(LanesText(run), std::string(kHead) +
                                "\n"
                                "\tNAME=east,  LANE,     0,     0,     0, FORWARD\n"
                                "\t\t1,     1,     0\n"
                                "\tNAME=East,  LANE,     0,     0,     0, FORWARD\n"
                                "\t\t2,     1,     0\n"
                                "\n");
}

TEST(Lanes, EmptyNameInFrontWritesNoLaneLine) {
  const ConversionRun run = ConvertLaneRows(R"(
   Frame=1   Eccen=-1
   Frame=2   Eccen=-1
   Frame=3   Eccen=-1
   Frame=4   Eccen=-1
   LaneName=L   Frame=5   Eccen=-1
)");
  EXPECT_EQ(LanesText(run), std::string(kHead) +
                                ",\t\t1,     1,     0,\t\t2,     1,     0,\t\t3,     1,     0\n"
                                "\t\t4,     1,     0\n"
                                "\tNAME=L,  LANE,     0,     0,     0, FORWARD\n"
                                "\t\t5,     1,     0\n"
                                "\n");
}

TEST(Lanes, EmptyNameBehindALaneIsALane) {
  const ConversionRun run = ConvertLaneRows(R"(
   LaneName=L   Frame=1   Eccen=-1
   Frame=2   Eccen=-1
)");
  EXPECT_EQ(LanesText(run), std::string(kHead) +
                                "\n"
                                "\tNAME=L,  LANE,     0,     0,     0, FORWARD\n"
                                "\t\t1,     1,     0\n"
                                "\tNAME=,  LANE,     0,     0,     0, FORWARD\n"
                                "\t\t2,     1,     0\n"
                                "\n");
}

TEST(Lanes, WithoutRenumberingTheValueOfTheLabelIsWritten) {
  // No frame of such a label need be there.
  const ConversionRun run = ConvertLaneRows(R"(
   LaneName=L   Frame=20   Eccen=-1
   LaneName=L   Frame=007   Eccen=-1
   LaneName=L   Frame=99   Eccen=-1
   LaneName=L   Frame=12A   Eccen=-1
   LaneName=L   Frame=B1   Eccen=-1
   LaneName=L   Eccen=-1
   LaneName=L   Frame=9999999999   Eccen=-1
)",
                                            R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=10   JointI=1   JointJ=2
   Frame=20   JointI=2   JointJ=3
)");
  EXPECT_EQ(run.Between("\n\t\t", "\n\n\n\n*ENDDATA"),
            "\n\t\t20,     1,     0,\t\t7,     1,     0,\t\t99,     1,     0"
            "\n\t\t12,     1,     0,\t\t0,     1,     0,\t\t0,     1,     0"
            "\n\t\t2147483647,     1,     0");
}

TEST(Lanes, RenumberedFrameThatIsUnknownTakesTheNumberOfTheRowBefore) {
  const ConversionRun run = ConvertLaneRows(R"(
   LaneName=L   Frame=X   Eccen=-1
   LaneName=L   Frame=30   Eccen=-1
   LaneName=L   Frame=A   Eccen=-1
   LaneName=L   Frame=a   Eccen=-1
   LaneName=M   Frame=1   Eccen=-1
   LaneName=M   Frame=20   Eccen=-1
)",
                                            R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=20   JointI=1   JointJ=2
   Frame=A   JointI=2   JointJ=3
   Frame=30   JointI=3   JointJ=4
)");
  EXPECT_EQ(run.Between("\n\t\t", "\n\n\n\n*ENDDATA"),
            "\n\t\t0,     1,     0,\t\t3,     1,     0,\t\t2,     1,     0"
            "\n\t\t2,     1,     0"
            "\n\tNAME=M,  LANE,     0,     0,     0, FORWARD"
            "\n\t\t2,     1,     0,\t\t1,     1,     0");
}

TEST(Lanes, LabelOfAFrameAndAnAreaIsTheFrame) {
  // Label 2 is one of both, so all elements are renumbered; label 5 is an area alone.
  const ConversionRun run = ConvertLaneRows(R"(
   LaneName=L   Frame=2   Eccen=-1
   LaneName=L   Frame=7   Eccen=-1
   LaneName=L   Frame=5   Eccen=-1
)",
                                            R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=5   NumJoints=3   Joint1=1   Joint2=2   Joint3=3
   Area=2   NumJoints=3   Joint1=1   Joint2=2   Joint3=3

TABLE:  "CONNECTIVITY - FRAME"
   Frame=7   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3
)");
  EXPECT_EQ(run.Between("\n\t\t", "\n\n\n\n*ENDDATA"),
            "\n\t\t2,     1,     0,\t\t1,     1,     0,\t\t1,     1,     0");
}

}  // namespace
