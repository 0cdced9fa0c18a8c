#include "support/conversion_run.h"

#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Vehicle classes A and B, without vehicles.
constexpr const char* kClasses = R"(
TABLE:  "BRIDGE LOADS 5 - VEHICLE CLASSES"
   VehClass=A   VehName=TRUCK
   VehClass=B   VehName=TRUCK
)";

/// Runs over assignments of moving load cases, with the classes and further tables.
ConversionRun ConvertAssignments(std::string_view rows, std::string_view tables = "") {
  rows.remove_prefix(rows.starts_with('\n') ? 1 : 0);
  return Convert(std::string(kClasses) + std::string(tables) +
                 "\nTABLE:  \"CASE - MOVING LOAD 1 - LANE ASSIGNMENTS\"\n" + std::string(rows));
}

TEST(MovingLoads, CaseNamedAsAVehicleClassGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "BRIDGE LOADS 5 - VEHICLE CLASSES"
   VehClass=TRUCKS   VehName=HS20

TABLE:  "CASE - MOVING LOAD 1 - LANE ASSIGNMENTS"
   Case=TRUCKS   AssignNum=1   VehClass=TRUCKS   ScaleFactor=1.5   MinLoaded=0   MaxLoaded=3   NumLanes=3
   Case=TRUCKS   AssignNum=2   VehClass=CARS   ScaleFactor=0.75   MinLoaded=1   MaxLoaded=1   NumLanes=1

TABLE:  "CASE - MOVING LOAD 2 - LANES LOADED"
   Case=TRUCKS   AssignNum=1   Lane=L1
   Case=TRUCKS   AssignNum=1   Lane=L2
   Case=TRUCKS   AssignNum=1   Lane=L3
   Case=TRUCKS   AssignNum=2   Lane="EAST 1"

TABLE:  "CASE - MOVING LOAD 3 - MULTILANE FACTORS"
   Case=TRUCKS   NumberLanes=1   ScaleFactor=1.2
   Case=TRUCKS   NumberLanes=2   ScaleFactor=1
   Case=TRUCKS   NumberLanes=3   ScaleFactor=0.85
   Case=TRUCKS   NumberLanes=4   ScaleFactor=0.65
   Case=TRUCKS   NumberLanes=5   ScaleFactor=0.5
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Between("*MVLDCASE", "*ENDDATA"),
            "*MVLDCASE   ; Moving Load Cases\n"
            "; NAME=NAME, SCALE1, SCALE2, SCALE3, SCALE4, COMB, DESC           ; 1st line\n"
            ";      TYPE1, VCLASS1, SCALE1, iMIN1, iMAX1, LANE11, LANE12, ...  ; 2nd line\n"
            ";      ...                                                        ; ...\n"
            ";      TYPEn, VCLASSn, SCALEn, iMINn, iMAXn, LANEn1, LANEn2, ...  ; n+1th line\n"
            "\tNAME=TRUCKS,   1.2,     1,  0.85,  0.65, INDEPENDENT,      \n"
            "\t\tVC, TRUCKS,   1.5,     0,     3,   L3,   L2,   L1\n"
            "\t\tVC,  CARS,  0.75,     1,     1,EAST 1\n"
            "\n"
            "\n\n");
}

TEST(MovingLoads, CaseUnlikeEveryVehicleClassIsLeftOut) {
  const ConversionRun run = ConvertAssignments(R"(
   Case=BRIDGE   VehClass=A
   Case=a   VehClass=A
   VehClass=A
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Section("*MVLDCASE"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(MovingLoads, NoAssignmentsGiveNoCommand) {
  EXPECT_EQ(ConvertAssignments("").Section("*MVLDCASE"), "");
}

TEST(MovingLoads, ValuesOfAnAssignment) {
  const struct {
    const char* Given;
    const char* Line;
  } kRows[] = {
      {"VehClass=NONE   ScaleFactor=2   MinLoaded=3   MaxLoaded=4",
       "\t\tVC,  NONE,     2,     3,     4"},
      {"", "\t\tVC,      ,     1,     1,     1"},
      {"VehClass=A   ScaleFactor=   MinLoaded=", "\t\tVC,     A,     0,     0,     1"},
      {"VehClass=A   ScaleFactor=-0.5   MinLoaded=2.9   MaxLoaded=-1",
       "\t\tVC,     A,  -0.5,     2,    -1"},
      {"VehClass=A   MinLoaded=1e12   MaxLoaded=1e12",
       "\t\tVC,     A,     1, 2147483647, 2147483647"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Given);
    const ConversionRun run = ConvertAssignments("   Case=A   " + std::string(row.Given) + "\n");
    EXPECT_THAT(run.Lines("*MVLDCASE"),
                ElementsAre("\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      ", row.Line));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(MovingLoads, MaximumOfZeroLanesBecomesOneWithAMessage) {
  for (const char* zero : {"0", "", "0.9", "-0.9", "all", "nan"}) {
    SCOPED_TRACE(zero);
    const ConversionRun run =
        ConvertAssignments("   Case=A   VehClass=A   MaxLoaded=" + std::string(zero) + "\n");
    EXPECT_THAT(run.Lines("*MVLDCASE"),
                ElementsAre("\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      ",
                            "\t\tVC,     A,     1,     1,     1"));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_MAXLOADED_VEHICLE_CLASS"));
  }
}

TEST(MovingLoads, MessageOfZeroLanesIsShownOnceForAllAssignments) {
  const ConversionRun run = ConvertAssignments(R"(
   Case=A   VehClass=A   MaxLoaded=0
   Case=A   VehClass=B   MaxLoaded=2
   Case=B   VehClass=B   MaxLoaded=0
)");
  EXPECT_THAT(
      run.Lines("*MVLDCASE"),
      ElementsAre("\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      ",
                  "\t\tVC,     A,     1,     1,     1", "\t\tVC,     B,     1,     1,     2",
                  "\tNAME=B,     1,     1,     1,     1, INDEPENDENT,      ",
                  "\t\tVC,     B,     1,     1,     1"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_MAXLOADED_VEHICLE_CLASS"));
}

TEST(MovingLoads, ZeroLanesOfACaseThatIsLeftOutStaySilent) {
  const ConversionRun run = ConvertAssignments(R"(
   Case=A   VehClass=A   MaxLoaded=2
   Case=X   VehClass=A   MaxLoaded=0
)");
  EXPECT_THAT(run.Lines("*MVLDCASE"), testing::SizeIs(2));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(MovingLoads, CaseBetweenTheRowsOfAnotherGivesThatASecondHead) {
  const ConversionRun run = ConvertAssignments(R"(
   Case=A   VehClass=P
   Case=A   VehClass=Q
   Case=A   VehClass=R
   Case=B   VehClass=S
   Case=A   VehClass=T
)");
  EXPECT_THAT(
      run.Lines("*MVLDCASE"),
      ElementsAre("\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      ",
                  "\t\tVC,     P,     1,     1,     1", "\t\tVC,     Q,     1,     1,     1",
                  "\t\tVC,     R,     1,     1,     1",
                  "\tNAME=B,     1,     1,     1,     1, INDEPENDENT,      ",
                  "\t\tVC,     S,     1,     1,     1",
                  "\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      ",
                  "\t\tVC,     T,     1,     1,     1"));
}

TEST(MovingLoads, RowsLeftOutLeaveGapsThatCutTheEndOff) {
  // Four of six rows come through, with keys 1, 3, 4 and 6: keys 1 to 4 are written.
  const ConversionRun run = ConvertAssignments(R"(
   Case=A   VehClass=P
   Case=X   VehClass=Q
   Case=A   VehClass=R
   Case=B   VehClass=S
   Case=X   VehClass=T
   Case=A   VehClass=U
)");
  EXPECT_THAT(
      run.Lines("*MVLDCASE"),
      ElementsAre("\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      ",
                  "\t\tVC,     P,     1,     1,     1", "\t\tVC,     R,     1,     1,     1",
                  "\tNAME=B,     1,     1,     1,     1, INDEPENDENT,      ",
                  "\t\tVC,     S,     1,     1,     1"));
}

TEST(MovingLoads, CommandStandsWithoutLinesWhenAllKeysLieBehindTheCount) {
  const ConversionRun run = ConvertAssignments(R"(
   Case=X   VehClass=A
   Case=A   VehClass=A   MaxLoaded=0
)");
  EXPECT_EQ(run.Between("*MVLDCASE", "*ENDDATA"),
            "*MVLDCASE   ; Moving Load Cases\n"
            "; NAME=NAME, SCALE1, SCALE2, SCALE3, SCALE4, COMB, DESC           ; 1st line\n"
            ";      TYPE1, VCLASS1, SCALE1, iMIN1, iMAX1, LANE11, LANE12, ...  ; 2nd line\n"
            ";      ...                                                        ; ...\n"
            ";      TYPEn, VCLASSn, SCALEn, iMINn, iMAXn, LANEn1, LANEn2, ...  ; n+1th line\n"
            "\n"
            "\n\n");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_MAXLOADED_VEHICLE_CLASS"));
}

TEST(MovingLoads, LaneScalesOfTheCase) {
  const struct {
    const char* Rows;
    const char* Head;
  } kRows[] = {
      {"   Case=A   NumberLanes=2   ScaleFactor=0.9\n",
       "\tNAME=A,     1,   0.9,     1,     1, INDEPENDENT,      "},
      {"   Case=A   NumberLanes=4   ScaleFactor=0.4\n   Case=A   NumberLanes=3   ScaleFactor=0.3\n",
       "\tNAME=A,     1,     1,   0.3,   0.4, INDEPENDENT,      "},
      // another case, or no number that is asked for
      {"   Case=B   NumberLanes=1   ScaleFactor=0.5\n",
       "\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      "},
      {"   Case=A   NumberLanes=0   ScaleFactor=0.5\n   Case=A   NumberLanes=5   ScaleFactor=0.5\n",
       "\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      "},
      // what a row does not state is 1
      {"   Case=A   ScaleFactor=0.5\n   Case=A   NumberLanes=2\n",
       "\tNAME=A,   0.5,     1,     1,     1, INDEPENDENT,      "},
      {"   Case=A   NumberLanes=3.9   ScaleFactor=0.5\n",
       "\tNAME=A,     1,     1,   0.5,     1, INDEPENDENT,      "},
      // rows 1 and 2 are walked in the order 2, 1
      {"   Case=A   NumberLanes=1   ScaleFactor=0.5\n   Case=A   NumberLanes=1   ScaleFactor=0.6\n",
       "\tNAME=A,   0.6,     1,     1,     1, INDEPENDENT,      "},
      // below the tolerance
      {"   Case=A   NumberLanes=1   ScaleFactor=1e-15\n",
       "\tNAME=A, 1e-15,     1,     1,     1, INDEPENDENT,      "},
      {"   Case=A   NumberLanes=1   ScaleFactor=9.99e-16\n",
       "\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      "},
      {"   Case=A   NumberLanes=1   ScaleFactor=-2\n   Case=A   NumberLanes=2   ScaleFactor=0\n",
       "\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      "},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Rows);
    const ConversionRun run = ConvertAssignments(
        "   Case=A   VehClass=A\n",
        "\nTABLE:  \"CASE - MOVING LOAD 3 - MULTILANE FACTORS\"\n" + std::string(row.Rows));
    EXPECT_THAT(run.Lines("*MVLDCASE"),
                ElementsAre(row.Head, "\t\tVC,     A,     1,     1,     1"));
  }
}

TEST(MovingLoads, LanesAreThoseOfCaseAndAssignmentFromTheLastRowToTheFirst) {
  const ConversionRun run = ConvertAssignments(R"(
   Case=A   VehClass=A
   Case=A   VehClass=A   AssignNum=2
   Case=B   VehClass=B   AssignNum=1
   Case=B   VehClass=B   AssignNum=3
)",
                                               R"(
TABLE:  "CASE - MOVING LOAD 2 - LANES LOADED"
   Case=A   AssignNum=1   Lane=L1
   Case=A   AssignNum=2   Lane=L2
   Case=B   AssignNum=1   Lane=L3
   Case=A   Lane=NORTHBOUND
   Case=A   AssignNum=1   Lane=L5
   Case=A   AssignNum=1
   Case=A   AssignNum=2.5   Lane=L7
)");
  EXPECT_THAT(run.Lines("*MVLDCASE"),
              ElementsAre("\tNAME=A,     1,     1,     1,     1, INDEPENDENT,      ",
                          "\t\tVC,     A,     1,     1,     1,     ,   L5,NORTHBOUND,   L1",
                          "\t\tVC,     A,     1,     1,     1,   L7,   L2",
                          "\tNAME=B,     1,     1,     1,     1, INDEPENDENT,      ",
                          "\t\tVC,     B,     1,     1,     1,   L3",
                          "\t\tVC,     B,     1,     1,     1"));
}

}  // namespace
