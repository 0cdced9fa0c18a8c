#include "support/conversion_run.h"

#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kHead =
    "*VCLASS    ; Vehicle Classes\n"
    "; NAME=NAME                  ; line 1\n"
    ";      VLOAD1, VLOAD2, ...   ; from line 2\n";

/// The section, in an output where nothing stands behind it but the two newlines of every run.
std::string ClassesText(const ConversionRun& run) { return run.Between("*VCLASS", "\n\n*ENDDATA"); }

/// Vehicles V1 to V12, which are written as P1 to P12.
std::string TwelveVehicles() {
  std::string table = "TABLE:  \"BRIDGE LOADS 2 - VEHICLES - STANDARD\"\n";
  for (int number = 1; number <= 12; ++number) {
    const std::string digits = std::to_string(number);
    table.append("   VehName=V").append(digits).append("   Type=P").append(digits).append("\n");
  }
  return table + "\n";
}

ConversionRun ConvertClasses(std::string_view rows, const std::string& vehicles) {
  rows.remove_prefix(rows.starts_with('\n') ? 1 : 0);
  return Convert(vehicles + "\nTABLE:  \"BRIDGE LOADS 5 - VEHICLE CLASSES\"\n" + std::string(rows));
}

ConversionRun ConvertClasses(std::string_view rows) {
  return ConvertClasses(rows, TwelveVehicles());
}

TEST(VehicleClasses, ListHasSixVehiclesOnItsFirstLineAndFiveOnEachFurther) {
  // The rows of the class are V1, V2 and so on. A sixth or eleventh vehicle that is the last still
  // ends its line, and an empty line follows.
  const struct {
    int Vehicles;
    const char* List;
  } kRows[] = {
      {1, "\t\tP1\n"},
      // walked in the order 4, 3, 2, 1, 5
      {5, "\t\tP4,\t\tP3,\t\tP2,\t\tP1,\t\tP5\n"},
      // 4, 3, 2, 6, 1, 5
      {6, "\t\tP4,\t\tP3,\t\tP2,\t\tP6,\t\tP1,\t\tP5\n\n"},
      // 4, 3, 7, 2, 6, 1, 5
      {7, "\t\tP4,\t\tP3,\t\tP7,\t\tP2,\t\tP6,\t\tP1,\n\t\tP5\n"},
      // 9, 4, 8, 3, 7, 2, 11, 6, 1, 10, 5
      {11, "\t\tP9,\t\tP4,\t\tP8,\t\tP3,\t\tP7,\t\tP2,\n\t\tP11,\t\tP6,\t\tP1,\t\tP10,\t\tP5\n\n"},
      // 9, 4, 8, 3, 12, 7, 2, 11, 6, 1, 10, 5
      {12,
       "\t\tP9,\t\tP4,\t\tP8,\t\tP3,\t\tP12,\t\tP7,\n\t\tP2,\t\tP11,\t\tP6,\t\tP1,\t\tP10,\n"
       "\t\tP5\n"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Vehicles);
    std::string rows;
    for (int number = 1; number <= row.Vehicles; ++number) {
      rows += "   VehClass=TRUCKS   VehName=V" + std::to_string(number) + "   ScaleFactor=1.5\n";
    }
    const ConversionRun run = ConvertClasses(rows);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_EQ(ClassesText(run), std::string(kHead) + "\tNAME=TRUCKS\n" + row.List + "\n");
  }
}

TEST(VehicleClasses, NoClassesGiveNoCommand) {
  EXPECT_EQ(ConvertClasses("").Section("*VCLASS"), "");
}

TEST(VehicleClasses, ClassWithoutConvertedVehiclesHasAnEmptyList) {
  const ConversionRun run = ConvertClasses("   VehClass=TRUCKS   VehName=V1\n", "");
  EXPECT_EQ(run.Body(), std::string(kHead) + "\tNAME=TRUCKS\n\n\n\n\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(VehicleClasses, RefusedAndUnknownVehiclesAreLeftOut) {
  // Rows are walked in the order 4, 3, 2, 1.
  const ConversionRun run = ConvertClasses(R"(
   VehClass=TRUCKS   VehName=RAIL
   VehClass=TRUCKS   VehName=HS20
   VehClass=TRUCKS   VehName=hs20
   VehClass=TRUCKS   VehName=HS30
)",
                                           R"(
TABLE:  "BRIDGE LOADS 2 - VEHICLES - STANDARD"
   VehName=HS20   Type=HSn-44   ScaleFactor=20
   VehName=HS30   Type=HSn-44   ScaleFactor=30
   VehName=RAIL   Type=RL
)");
  EXPECT_EQ(ClassesText(run), std::string(kHead) + "\tNAME=TRUCKS\n\t\tHS20-44\n\n");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NOCONVERT_VEHICLE"));
}

TEST(VehicleClasses, ClassFindsAGeneralVehicleByItsName) {
  // Rows are walked in the order 2, 1.
  const ConversionRun run = ConvertClasses(R"(
   VehClass=TRUCKS   VehName=V1
   VehClass=TRUCKS   VehName=LORRY
)",
                                           TwelveVehicles() + R"(
TABLE:  "BRIDGE LOADS 3 - VEHICLES - GENERAL 1"
   VehName=LORRY

TABLE:  "BRIDGE LOADS 4 - VEHICLES - GENERAL 2 - INTERMEDIATE"
   VehName=LORRY   InterUnif=1
)");
  EXPECT_EQ(ClassesText(run), std::string(kHead) + "\tNAME=TRUCKS\n\t\tLORRY,\t\tP1\n\n");
}

TEST(VehicleClasses, OfVehiclesOfOneNameTheFirstOfTheWalkIsTaken) {
  // The general vehicle is vehicle 2, which the walk meets before vehicle 1.
  const ConversionRun general = ConvertClasses("   VehClass=C   VehName=LORRY\n", R"(
TABLE:  "BRIDGE LOADS 2 - VEHICLES - STANDARD"
   VehName=LORRY   Type=HL-93K

TABLE:  "BRIDGE LOADS 3 - VEHICLES - GENERAL 1"
   VehName=LORRY

TABLE:  "BRIDGE LOADS 4 - VEHICLES - GENERAL 2 - INTERMEDIATE"
   VehName=LORRY   InterUnif=1
)");
  EXPECT_EQ(ClassesText(general), std::string(kHead) + "\tNAME=C\n\t\tLORRY\n\n");
  // Row 1 of two is converted last and is vehicle 2.
  const ConversionRun standard = ConvertClasses("   VehClass=C   VehName=LORRY\n", R"(
TABLE:  "BRIDGE LOADS 2 - VEHICLES - STANDARD"
   VehName=LORRY   Type=HL-93K
   VehName=LORRY   Type=HL-93M
)");
  EXPECT_EQ(ClassesText(standard), std::string(kHead) + "\tNAME=C\n\t\tHL-93TRK\n\n");
}

TEST(VehicleClasses, VehicleNamedTwiceStandsTwice) {
  EXPECT_EQ(ClassesText(ConvertClasses(R"(
   VehClass=C   VehName=V1
   VehClass=C   VehName=V1
)")),
            std::string(kHead) + "\tNAME=C\n\t\tP1,\t\tP1\n\n");
}

TEST(VehicleClasses, VehicleOfANewClassStandsInThatClass) {
  // Rows are walked in the order 4, 3, 2, 1, so B is class 1 and A class 2, which is written first.
  EXPECT_EQ(ClassesText(ConvertClasses(R"(
   VehClass=A   VehName=V1
   VehClass=A   VehName=V2
   VehClass=B   VehName=V3
   VehClass=B   VehName=V4
)")),
            std::string(kHead) +
                "\tNAME=A\n\t\tP2,\t\tP1\n"
                "\tNAME=B\n\t\tP4,\t\tP3\n"
                "\n");
}

TEST(VehicleClasses, ClassWhoseRowsTheWalkDividesIsFinishedEarlyAndComesAgain) {
  // Rows are walked in the order 3, 2, 1 and classes 1, 2, 3 written in the order 2, 1, 3.
  EXPECT_EQ(ClassesText(ConvertClasses(R"(
   VehClass=A   VehName=V1
   VehClass=B   VehName=V2
   VehClass=A   VehName=V3
)")),
            std::string(kHead) +
                "\tNAME=B\n\t\tP2\n"
                "\tNAME=A\n\t\tP3\n"
                "\tNAME=A\n\t\tP1\n"
                "\n");
  // Rows 1 to 5 follow each other in the file, but are walked in the order 4, 3, 2, 1, 5. Classes:
  // B of row 4, A of rows 3, 2, 1, B of row 5.
  EXPECT_EQ(ClassesText(ConvertClasses(R"(
   VehClass=A   VehName=V1
   VehClass=A   VehName=V2
   VehClass=A   VehName=V3
   VehClass=B   VehName=V4
   VehClass=B   VehName=V5
)")),
            std::string(kHead) +
                "\tNAME=A\n\t\tP3,\t\tP2,\t\tP1\n"
                "\tNAME=B\n\t\tP4\n"
                "\tNAME=B\n\t\tP5\n"
                "\n");
}

TEST(VehicleClasses, ClassOfNoNameIsLeftOutAndTakesNoKey) {
  // Rows are walked in the order 4, 3, 2, 1: a class of no name, B, one of no name, A. So B is
  // class 1 and A class 2, which is written first.
  EXPECT_EQ(ClassesText(ConvertClasses(R"(
   VehClass=A   VehName=V1
   VehName=V2
   VehClass=B   VehName=V3
   VehName=V4
)")),
            std::string(kHead) +
                "\tNAME=A\n\t\tP1\n"
                "\tNAME=B\n\t\tP3\n"
                "\n");
  EXPECT_EQ(ConvertClasses("   VehName=V1\n").Section("*VCLASS"), "");
}

}  // namespace
