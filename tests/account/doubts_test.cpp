#include "support/account_run.h"
#include "support/box_joints.h"
#include "support/frame_tables.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

// Models of which the output says something else than an engineer would think.

const std::string kUnits = SourceTable("PROGRAM CONTROL", "   CurrUnits=\"KN, m, C\"\n");
const std::string kFreedoms = SourceTable(
    "ACTIVE DEGREES OF FREEDOM", "   UX=Yes   UY=Yes   UZ=Yes   RX=Yes   RY=Yes   RZ=Yes\n");

std::vector<std::string> CodesOfTables(const std::string& tables) {
  std::vector<std::string> codes;
  for (const s2k2ngt::TableAccount& table : KeepAccount(tables).Rows.Tables) {
    for (const s2k2ngt::ReasonCount& reason : table.Reasons) {
      codes.push_back(table.Title + ": " + reason.Why->Code);
    }
  }
  return codes;
}

TEST(MissingTables, UnitsAreALoss) {
  EXPECT_THAT(CodesOfTables(FrameJoints() + kFreedoms),
              Contains("(PROGRAM CONTROL): units-missing"));
  EXPECT_TRUE(KeepAccount(FrameJoints() + kFreedoms).HasLossOfRows());
}

TEST(MissingTables, DegreesOfFreedomAreNoLoss) {
  EXPECT_THAT(CodesOfTables(kUnits + FrameJoints()),
              ElementsAre("(ACTIVE DEGREES OF FREEDOM): freedoms-missing"));
  EXPECT_FALSE(KeepAccount(kUnits + FrameJoints()).HasLossOfRows());
}

TEST(MissingTables, OfAFileWithoutJointsAreNotTold) { EXPECT_THAT(CodesOfTables(""), IsEmpty()); }

TEST(MissingTables, ThatAreThereAreNotTold) {
  EXPECT_THAT(CodesOfTables(kUnits + kFreedoms + FrameJoints()),
              ElementsAre("ACTIVE DEGREES OF FREEDOM: analysis-case-missing"));
}

// ---- Coordinates in six digits ----

/// Two joints, 20 m apart in X and this far from the origin.
std::vector<std::string> LossesAt(const std::string& first, const std::string& second) {
  return KeepAccount(SourceTable("JOINT COORDINATES",
                                 "   Joint=1   CoordType=Cartesian   XorR=" + first +
                                     "\n   Joint=2   CoordType=Cartesian   XorR=" + second + "\n"))
      .Losses();
}

TEST(RoundedCoordinates, AreToldFarFromTheOrigin) {
  // 500123.4 goes over as 500123, which is 0.4 m of a model of 20 m.
  EXPECT_THAT(LossesAt("500123.4", "500143"), ElementsAre("Joint=1: joint-coordinate-rounded"));
  EXPECT_THAT(
      LossesAt("4512345.25", "4512365.25"),
      ElementsAre("Joint=1: joint-coordinate-rounded", "Joint=2: joint-coordinate-rounded"));
}

TEST(RoundedCoordinates, AreNotToldWhereTheyMoveNothing) {
  EXPECT_THAT(LossesAt("500123", "500143"), IsEmpty());
  // 0.0004 m of a model of 20 m.
  EXPECT_THAT(LossesAt("123.4564", "143.4564"), IsEmpty());
}

// ---- Names that are used twice ----

struct NamedRow {
  std::string Tables;
  std::string Title;
  std::string Row;
};

TEST(SharedNames, AreToldOfTheRowThatASearchDoesNotMeet) {
  const std::vector<NamedRow> tables = {
      {"", "MATERIAL PROPERTIES 1 - GENERAL", "   Material=S235   Type=Isotropic   E=2E+08\n"},
      {FrameMaterial(), "FRAME SECTION PROPERTIES 1 - GENERAL",
       SectionRow("SectionName=BEAM   Material=S235   Shape=Circle   t3=0.4")},
      {FrameJoints(), "CONNECTIVITY - FRAME", "   Frame=1   JointI=1   JointJ=2   Length=4\n"},
      {BoxJoints(), "CONNECTIVITY - AREA",
       "   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n"},
      {BoxJoints(), "CONNECTIVITY - SOLID",
       "   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   Joint6=6   Joint7=7"
       "   Joint8=8\n"},
      {FrameJoints(), "JOINT RESTRAINT ASSIGNMENTS", "   Joint=1   U1=Yes\n"},
      {SoundFrames(), "FRAME RELEASE ASSIGNMENTS 1 - GENERAL",
       "   Frame=1   M3I=Yes   PartialFix=No\n"}};
  for (const NamedRow& table : tables) {
    const std::string label = table.Row.substr(3, table.Row.find(' ', 3) - 3);
    const std::string told = label + ": name-used-twice";
    const auto losses = [&](const std::string& rows) {
      return KeepAccount(table.Tables + SourceTable(table.Title, rows)).LossesIn(table.Title);
    };
    EXPECT_THAT(losses(table.Row + table.Row), Contains(told).Times(1)) << table.Title;
    EXPECT_THAT(losses(table.Row), Not(Contains(told))) << table.Title;
  }
}

// ---- Loads and analyses ----

TEST(RelativeDistances, ThatAreNotStatedLoseTheLoad) {
  const auto losses = [](const std::string& distances) {
    return KeepAccount(SoundFrames() +
                       SourceTable("FRAME LOADS - DISTRIBUTED",
                                   "   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force"
                                   "   Dir=Gravity   DistType=RelDist   " +
                                       distances + "   FOverLA=2   FOverLB=2\n"))
        .LossesIn("FRAME LOADS");
  };
  EXPECT_THAT(losses("RelDistA=0"), Contains("Frame=1: span-not-stated"));
  EXPECT_THAT(losses("RelDistA=0.5   RelDistB=0.5"), Contains("Frame=1: span-of-nothing"));
}

TEST(AnalysisSettings, AreNoCaseAndNoLoss) {
  const AccountRun run = KeepAccount(
      SourceTable("ANALYSIS OPTIONS", "   Solver=Advanced   Force32Bit=No   GeomMod=No\n"));
  EXPECT_THAT(run.Losses(), ElementsAre(testing::EndsWith(": analysis-settings")));
  EXPECT_FALSE(run.HasLossOfRows());
}

TEST(SpectrumDefinition, OfACaseThatIsNotAnalysedServesAnother) {
  const auto losses = [](const std::string& name) {
    return KeepAccount(SourceTable("ANALYSIS CASE DEFINITIONS", "   Case=EQ   Type=LinRespSpec\n") +
                       SourceTable("CASE - RESPONSE SPECTRUM 1 - GENERAL",
                                   "   Case=" + name + "   ModalCombo=SRSS   ConstDamp=0\n"))
        .LossesIn("RESPONSE SPECTRUM 1");
  };
  EXPECT_THAT(losses("OLD"), ElementsAre("Case=OLD: definition-of-another-case"));
  EXPECT_THAT(losses("EQ"), IsEmpty());
}

}  // namespace
