#include "support/account_of_table.h"
#include "support/load_tables.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

constexpr const char* kUniform = "AREA LOADS - UNIFORM";
constexpr const char* kPressures = "AREA LOADS - SURFACE PRESSURE";
constexpr const char* kPatterns = "JOINT PATTERN ASSIGNMENTS";

/// The static case SNOW, the area 1 and the triangle 2, and tables of loads.
AccountRun Keep(const std::string& loads) {
  return KeepAccount(StaticCases({"SNOW"}) +
                     SourceTable("CONNECTIVITY - AREA",
                                 "   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n"
                                 "   Area=2   Joint1=3   Joint2=4   Joint3=5\n") +
                     loads);
}

AccountRun KeepUniform(std::string_view rows) { return Keep(SourceTable(kUniform, rows)); }
AccountRun KeepPressures(std::string_view rows) { return Keep(SourceTable(kPressures, rows)); }

TEST(AccountOfUniformLoadsTest, GlobalLoadsAndThoseAlongAxisThreeAreConverted) {
  const AccountRun run = KeepUniform(
      "   Area=1   LoadCase=SNOW   CoordSys=GLOBAL   Dir=\"Grav Proj\"   UnifLoad=3\n"
      "   Area=2   LoadCase=SNOW   CoordSys=Local   Dir=3   UnifLoad=3\n");
  EXPECT_EQ(FatesOf(run, kUniform), "2 rows, 2 converted");
}

TEST(AccountOfUniformLoadsTest, ALoadCaseThatNoStaticCaseNamesIsDropped) {
  EXPECT_THAT(
      LossesOf(KeepUniform("   Area=1   LoadCase=RAIN   CoordSys=GLOBAL   Dir=Z   UnifLoad=3\n"),
               kUniform),
      ElementsAre("Area=1: load-case-not-static"));
}

TEST(AccountOfUniformLoadsTest, ALoadOfAnAreaThatIsNotThereIsChanged) {
  EXPECT_THAT(
      LossesOf(KeepUniform("   Area=9   LoadCase=SNOW   CoordSys=GLOBAL   Dir=Z   UnifLoad=3\n"),
               kUniform),
      ElementsAre("Area=9: element-not-there"));
}

TEST(AccountOfUniformLoadsTest, AnUnknownDirectionIsChanged) {
  EXPECT_THAT(
      LossesOf(KeepUniform("   Area=1   LoadCase=SNOW   CoordSys=GLOBAL   Dir=Up   UnifLoad=3\n"),
               kUniform),
      ElementsAre("Area=1: area-direction-unknown"));
}

TEST(AccountOfUniformLoadsTest, ALoadAlongAxisOneIsDropped) {
  EXPECT_THAT(
      LossesOf(KeepUniform("   Area=1   LoadCase=SNOW   CoordSys=Local   Dir=1   UnifLoad=3\n"),
               kUniform),
      ElementsAre("Area=1: uniform-load-without-like"));
}

TEST(AccountOfUniformLoadsTest, ALoadInASystemOfTheUsersBehindAnotherIsChanged) {
  // The second row comes first, and is written twice.
  const AccountRun run = KeepUniform(
      "   Area=1   LoadCase=SNOW   CoordSys=CSYS1   Dir=Z   UnifLoad=3\n"
      "   Area=2   LoadCase=SNOW   CoordSys=GLOBAL   Dir=Z   UnifLoad=5\n");
  const std::vector<std::string> lines = run.Run.LoadLines("SNOW", "*PRESSURE");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], lines[1]);
  EXPECT_THAT(LossesOf(run, kUniform), ElementsAre("Area=1: load-before-in-its-place"));
}

TEST(AccountOfUniformLoadsTest, ALoadBehindOneThatIsNotWrittenIsDropped) {
  EXPECT_THAT(
      LossesOf(KeepUniform("   Area=1   LoadCase=SNOW   CoordSys=CSYS1   Dir=Z   UnifLoad=3\n"
                           "   Area=2   LoadCase=RAIN   CoordSys=GLOBAL   Dir=Z   UnifLoad=5\n"),
               kUniform),
      ElementsAre("Area=1: uniform-load-without-like", "Area=2: load-case-not-static"));
}

// ---- Pressures ----

TEST(AccountOfPressuresTest, PressuresOnBothFacesAreConverted) {
  const AccountRun run = KeepPressures(
      "   Area=1   LoadCase=SNOW   Face=5   Pressure=3   JtPattern=None\n"
      "   Area=2   LoadCase=SNOW   Face=6   Pressure=3\n");
  EXPECT_EQ(FatesOf(run, kPressures), "2 rows, 2 converted");
}

TEST(AccountOfPressuresTest, ALoadCaseThatNoStaticCaseNamesIsDropped) {
  EXPECT_THAT(
      LossesOf(KeepPressures("   Area=1   LoadCase=RAIN   Face=5   Pressure=3   JtPattern=None\n"),
               kPressures),
      ElementsAre("Area=1: load-case-not-static"));
}

TEST(AccountOfPressuresTest, APressureOnAnAreaThatIsNotThereIsChanged) {
  EXPECT_THAT(
      LossesOf(KeepPressures("   Area=9   LoadCase=SNOW   Face=5   Pressure=3   JtPattern=None\n"),
               kPressures),
      ElementsAre("Area=9: element-not-there"));
}

TEST(AccountOfPressuresTest, APressureOnAnEdgeIsDropped) {
  EXPECT_THAT(
      LossesOf(KeepPressures("   Area=1   LoadCase=SNOW   Face=1   Pressure=3   JtPattern=None\n"),
               kPressures),
      ElementsAre("Area=1: pressure-on-edge"));
}

TEST(AccountOfPressuresTest, APressureByAPatternIsChangedAndTakesTheValuesAtItsCorners) {
  // Joint 9 is no corner; area 9 is not there, and the edge and the load case are not written.
  const AccountRun run =
      Keep(SourceTable(kPatterns,
                       "   Joint=1   Pattern=DEPTH   Value=1\n"
                       "   Joint=4   Pattern=DEPTH   Value=2\n"
                       "   Joint=4   Pattern=LEVEL   Value=2\n"
                       "   Joint=5   Pattern=DEPTH   Value=2\n"
                       "   Joint=9   Pattern=DEPTH   Value=2\n") +
           SourceTable(kPressures,
                       "   Area=1   LoadCase=SNOW   Face=5   Pressure=3   JtPattern=DEPTH\n"
                       "   Area=2   LoadCase=SNOW   Face=1   Pressure=3   JtPattern=DEPTH\n"
                       "   Area=2   LoadCase=RAIN   Face=5   Pressure=3   JtPattern=DEPTH\n"
                       "   Area=9   LoadCase=SNOW   Face=5   Pressure=3   JtPattern=DEPTH\n"
                       "   Area=2   LoadCase=SNOW   Face=5   Pressure=3   JtPattern=None\n"));
  EXPECT_EQ(LossesOf(run, kPressures)[0], "Area=1: pressure-by-pattern");
  EXPECT_THAT(LossesOf(run, kPatterns),
              ElementsAre("Joint=4: pattern-value-not-used", "Joint=5: pattern-value-not-used",
                          "Joint=9: pattern-value-not-used"));
  EXPECT_EQ(FatesOf(run, kPatterns), "5 rows, 2 converted, 3 dropped");
}

TEST(AccountOfPressuresTest, AValueThatNoLoadTakesIsNoLoss) {
  const AccountRun run =
      KeepAccount(SourceTable(kPatterns, "   Joint=1   Pattern=DEPTH   Value=1\n"));
  EXPECT_THAT(LossesOf(run, kPatterns), ElementsAre("Joint=1: pattern-value-not-used"));
  EXPECT_FALSE(HasLoss(run, kPatterns));
}

// ---- Loads without a like ----

struct LoadWithoutLike {
  const char* Title;
  const char* Code;
};

class AccountOfLoadsWithoutLikeTest : public testing::TestWithParam<LoadWithoutLike> {};

TEST_P(AccountOfLoadsWithoutLikeTest, AllRowsAreDropped) {
  const auto [title, code] = GetParam();
  const AccountRun run = Keep(SourceTable(title,
                                          "   Area=1   LoadCase=SNOW\n"
                                          "   Area=2   LoadCase=SNOW\n"));
  EXPECT_THAT(LossesOf(run, title),
              ElementsAre("Area=1: " + std::string(code), "Area=2: " + std::string(code)));
  EXPECT_EQ(FatesOf(run, title), "2 rows, 2 dropped");
}

INSTANTIATE_TEST_SUITE_P(
    AllTables, AccountOfLoadsWithoutLikeTest,
    testing::Values(LoadWithoutLike{"AREA LOADS - ROTATE", "load-by-rotation"},
                    LoadWithoutLike{"AREA LOADS - UNIFORM TO FRAME", "area-load-to-frames"},
                    LoadWithoutLike{"AREA LOADS - WIND PRESSURE COEFFICIENTS",
                                    "wind-coefficients-of-area"},
                    LoadWithoutLike{"AREA MATERIAL ASSIGNMENTS", "material-temperature"}));

}  // namespace
