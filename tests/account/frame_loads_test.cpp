#include "support/account_of_table.h"
#include "support/load_tables.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

constexpr const char* kDistributed = "FRAME LOADS - DISTRIBUTED";
constexpr const char* kPoints = "FRAME LOADS - POINT";
constexpr const char* kGravity = "FRAME LOADS - GRAVITY";
constexpr const char* kTendons = "FRAME PRESTRESS ASSIGNMENTS 1 - TENDON PATTERNS";
constexpr const char* kMultipliers = "FRAME PRESTRESS ASSIGNMENTS 2 - LOAD MULTIPLIERS";

const std::string kAreaFour =
    SourceTable("CONNECTIVITY - AREA", "   Area=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n");

/// The static case SNOW, the area 4, and the frames 1, 2, which has no length, and 3.
std::string Frames() {
  return StaticCases({"SNOW"}) + kAreaFour +
         SourceTable("CONNECTIVITY - FRAME",
                     "   Frame=1   JointI=1   JointJ=2   Length=4\n"
                     "   Frame=2   JointI=2   JointJ=3   Length=0\n"
                     "   Frame=3   JointI=3   JointJ=4   Length=5\n");
}

AccountRun Keep(const char* title, std::string_view rows) {
  return KeepAccount(Frames() + SourceTable(title, rows));
}

std::vector<std::string> LossesOfDistributed(std::string_view rows) {
  return LossesOf(Keep(kDistributed, rows), kDistributed);
}

std::vector<std::string> LossesOfPoints(std::string_view rows) {
  return LossesOf(Keep(kPoints, rows), kPoints);
}

TEST(AccountOfFrameLoadsTest, DistributedLoadsAreConverted) {
  const AccountRun run =
      Keep(kDistributed,
           "   Frame=1   LoadCase=SNOW   CoordSys=GLOBAL   Type=Force   Dir=\"Z Proj\"   "
           "DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=2   FOverLB=2\n"
           "   Frame=3   LoadCase=SNOW   CoordSys=Local   Type=Moment   Dir=1   DistType=AbsDist   "
           "AbsDistA=0   AbsDistB=5   MOverLA=2   MOverLB=2\n");
  EXPECT_EQ(FatesOf(run, kDistributed), "2 rows, 2 converted");
}

TEST(AccountOfFrameLoadsTest, PointLoadsAreConverted) {
  const AccountRun run =
      Keep(kPoints,
           "   Frame=1   LoadCase=SNOW   CoordSys=GLOBAL   Type=Force   Dir=Gravity   "
           "DistType=RelDist   RelDist=0.5   Force=2\n"
           "   Frame=3   LoadCase=SNOW   CoordSys=Local   Type=Moment   Dir=3   DistType=AbsDist   "
           "AbsDist=2   Moment=2\n");
  EXPECT_EQ(FatesOf(run, kPoints), "2 rows, 2 converted");
}

TEST(AccountOfFrameLoadsTest, LoadsOfALoadCaseThatNoStaticCaseNamesAreDropped) {
  EXPECT_THAT(LossesOfDistributed("   Frame=1   LoadCase=RAIN   CoordSys=Local   Type=Force   "
                                  "Dir=2   DistType=RelDist   RelDistB=1   FOverLA=2\n"),
              ElementsAre("Frame=1: load-case-not-static"));
  EXPECT_THAT(LossesOfPoints("   Frame=1   LoadCase=RAIN   CoordSys=Local   Type=Force   Dir=2   "
                             "DistType=RelDist   RelDist=1   Force=2\n"),
              ElementsAre("Frame=1: load-case-not-static"));
}

TEST(AccountOfFrameLoadsTest, LoadsOfFramesThatAreNotThereAreChanged) {
  const std::string further =
      "   LoadCase=SNOW   CoordSys=Local   Type=Force   Dir=2   DistType=RelDist   RelDistB=1   "
      "FOverLA=2\n";
  EXPECT_THAT(LossesOfDistributed("   Frame=9" + further),
              ElementsAre("Frame=9: element-not-there"));
  EXPECT_THAT(LossesOfDistributed("   Frame=4" + further),
              ElementsAre("Frame=4: element-taken-from-another"));
  EXPECT_THAT(LossesOfDistributed("   Frame=3A" + further),
              ElementsAre("Frame=3A: element-taken-from-another"));
}

TEST(AccountOfFrameLoadsTest, ALoadThatReadsAsThatOfASolidIsChanged) {
  const AccountRun run =
      KeepAccount(Frames() + SourceTable("CONNECTIVITY - SOLID", "   Solid=8   Joint1=1\n") +
                  SourceTable(kPoints,
                              "   Frame=8   LoadCase=SNOW   CoordSys=Local   Type=Force   "
                              "Dir=2   DistType=RelDist   RelDist=1   Force=2\n"));
  EXPECT_THAT(LossesOf(run, kPoints), ElementsAre("Frame=8: element-taken-from-another"));
}

TEST(AccountOfFrameLoadsTest, ALoadOfAnUnknownFrameInARenumberedModelIsChanged) {
  const AccountRun run = KeepAccount(
      StaticCases({"SNOW"}) +
      SourceTable("CONNECTIVITY - FRAME", "   Frame=BEAM   JointI=1   JointJ=2\n") +
      SourceTable(kPoints,
                  "   Frame=BEAM   LoadCase=SNOW   CoordSys=Local   Type=Force   Dir=2   "
                  "DistType=RelDist   RelDist=1   Force=2\n"
                  "   Frame=9   LoadCase=SNOW   CoordSys=Local   Type=Force   Dir=2   "
                  "DistType=RelDist   RelDist=1   Force=2\n"));
  EXPECT_THAT(LossesOf(run, kPoints), ElementsAre("Frame=9: element-taken-from-another"));
}

TEST(AccountOfFrameLoadsTest, AnAbsoluteDistanceOnAnUnknownFrameIsOneOfTheLastFrame) {
  // Walks end with frame 1, of length 4.
  const AccountRun run = Keep(kPoints,
                              "   Frame=9   LoadCase=SNOW   CoordSys=Local   Type=Force   Dir=2   "
                              "DistType=AbsDist   AbsDist=1   Force=2\n");
  EXPECT_THAT(
      run.Run.LoadLines("SNOW", "*BEAMLOAD"),
      ElementsAre("\t9,  BEAM, CONLOAD,    LZ,    NO,  0.25,     2,     0,     0,     0,     "
                  "0,     0,     0,"));
  EXPECT_THAT(LossesOf(run, kPoints),
              ElementsAre("Frame=9: element-not-there", "Frame=9: last-frame-for-unknown"));
}

TEST(AccountOfFrameLoadsTest, WithoutFramesThereIsNoLastOne) {
  const AccountRun run =
      KeepAccount(StaticCases({"SNOW"}) +
                  SourceTable(kPoints,
                              "   Frame=9   LoadCase=SNOW   CoordSys=Local   Type=Force   Dir=2   "
                              "DistType=AbsDist   AbsDist=1   Force=2\n"));
  EXPECT_THAT(LossesOf(run, kPoints),
              ElementsAre("Frame=9: frame-without-length", "Frame=9: element-not-there"));
}

TEST(AccountOfFrameLoadsTest, LoadsInASystemOfTheUsersAreChanged) {
  EXPECT_THAT(LossesOfDistributed("   Frame=1   LoadCase=SNOW   CoordSys=CSYS1   Type=Force   "
                                  "Dir=Z   DistType=RelDist   RelDistB=1   FOverLA=2\n"),
              ElementsAre("Frame=1: load-direction-without-like"));
}

TEST(AccountOfFrameLoadsTest, AProjectedPointLoadIsChanged) {
  EXPECT_THAT(LossesOfPoints("   Frame=1   LoadCase=SNOW   CoordSys=GLOBAL   Type=Force   "
                             "Dir=\"X Proj\"   DistType=RelDist   RelDist=1   Force=2\n"),
              ElementsAre("Frame=1: load-direction-without-like"));
}

TEST(AccountOfFrameLoadsTest, LoadsOfAnUnknownTypeAreChanged) {
  // The type of the second is found inside DistType=, which stands before it.
  EXPECT_THAT(LossesOfDistributed("   Frame=1   LoadCase=SNOW   CoordSys=Local   Type=Torque   "
                                  "Dir=2   DistType=RelDist   RelDistB=1   FOverLA=2\n"),
              ElementsAre("Frame=1: load-type-unknown"));
  EXPECT_THAT(LossesOfPoints("   Frame=1   LoadCase=SNOW   CoordSys=Local   DistType=RelDist   "
                             "Type=Force   Dir=2   RelDist=1   Force=2\n"),
              ElementsAre("Frame=1: load-type-unknown"));
}

TEST(AccountOfFrameLoadsTest, LoadsAtDistancesOfAnUnknownTypeAreChanged) {
  EXPECT_THAT(LossesOfDistributed("   Frame=1   LoadCase=SNOW   CoordSys=Local   Type=Force   "
                                  "Dir=2   RelDistB=1   FOverLA=2\n"),
              ElementsAre("Frame=1: distance-type-unknown"));
  EXPECT_THAT(LossesOfPoints("   Frame=1   LoadCase=SNOW   CoordSys=Local   Type=Force   Dir=2   "
                             "RelDist=1   Force=2\n"),
              ElementsAre("Frame=1: distance-type-unknown"));
}

TEST(AccountOfFrameLoadsTest, ALoadOverNoLengthIsDroppedWithoutLoss) {
  const AccountRun run = Keep(kDistributed,
                              "   Frame=1   LoadCase=SNOW   CoordSys=Local   Type=Force   Dir=2   "
                              "DistType=RelDist   RelDistA=0.5   RelDistB=0.5   FOverLA=2\n");
  EXPECT_THAT(LossesOf(run, kDistributed), ElementsAre("Frame=1: span-of-nothing"));
  EXPECT_FALSE(HasLoss(run, kDistributed));
}

TEST(AccountOfFrameLoadsTest, AFrameWithoutALengthDropsItsLoadAndThoseBehind) {
  // The walk goes from the third row to the first.
  EXPECT_THAT(LossesOfDistributed("   Frame=1   LoadCase=SNOW   CoordSys=Local   Type=Force   "
                                  "Dir=2   DistType=RelDist   RelDistB=1   FOverLA=2\n"
                                  "   Frame=2   LoadCase=SNOW   CoordSys=Local   Type=Force   "
                                  "Dir=2   DistType=AbsDist   AbsDistB=1   FOverLA=2\n"
                                  "   Frame=3   LoadCase=SNOW   CoordSys=Local   Type=Force   "
                                  "Dir=2   DistType=RelDist   RelDistB=1   FOverLA=2\n"),
              ElementsAre("Frame=1: behind-frame-without-length", "Frame=2: frame-without-length"));
  EXPECT_THAT(LossesOfPoints("   Frame=1   LoadCase=SNOW   CoordSys=Local   Type=Force   Dir=2   "
                             "DistType=RelDist   RelDist=1   Force=2\n"
                             "   Frame=2   LoadCase=SNOW   CoordSys=Local   Type=Force   Dir=2   "
                             "DistType=AbsDist   AbsDist=1   Force=2\n"),
              ElementsAre("Frame=1: behind-frame-without-length", "Frame=2: frame-without-length"));
}

// ---- Gravity ----

/// Gravity loads of the frames, of which frame 1 has this section and frame 2 none.
AccountRun KeepGravity(std::string_view section, std::string_view rows) {
  return KeepAccount(
      Frames() +
      SourceTable("FRAME SECTION ASSIGNMENTS", "   Frame=1   AnalSect=" + std::string(section) +
                                                   "\n   Frame=9   AnalSect=STEEL\n") +
      SourceTable("FRAME SECTION PROPERTIES 1 - GENERAL",
                  "   SectionName=STEEL   Material=S235   Shape=Rectangular   Area=0.1   WMod=1\n"
                  "   SectionName=BARE   Material=NONE   Shape=Rectangular   Area=0.1   WMod=1\n"
                  "   SectionName=LIGHT   Material=S235   Shape=Rectangular   Area=0.1   WMod=0.5\n"
                  "   SectionName=HAUNCH   Shape=Nonprismatic   WMod=1\n"
                  "   SectionName=LIGHTHAUNCH   Shape=Nonprismatic   WMod=0.5\n"
                  "   SectionName=LIGHTEND   Shape=Nonprismatic   WMod=1\n"
                  "   SectionName=BAREEND   Shape=Nonprismatic   WMod=1\n"
                  "   SectionName=NOENDS   Shape=Nonprismatic   WMod=1\n") +
      SourceTable("FRAME SECTION PROPERTIES 5 - NONPRISMATIC",
                  "   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=STEEL   "
                  "EndSect=STEEL\n"
                  "   SectionName=LIGHTHAUNCH   NumSegments=1   SegmentNum=1   StartSect=STEEL   "
                  "EndSect=STEEL\n"
                  "   SectionName=LIGHTEND   NumSegments=1   SegmentNum=1   StartSect=STEEL   "
                  "EndSect=LIGHT\n"
                  "   SectionName=BAREEND   NumSegments=1   SegmentNum=1   StartSect=STEEL   "
                  "EndSect=MISSING\n") +
      SourceTable("MATERIAL PROPERTIES 1 - GENERAL",
                  "   Material=S235   Type=Isotropic   UnitWeight=77\n") +
      SourceTable(kGravity, rows));
}

constexpr const char* kRow = "   Frame=1   LoadCase=SNOW   MultiplierZ=-1\n";

TEST(AccountOfFrameGravityTest, AFrameWithAWeightIsConverted) {
  EXPECT_EQ(FatesOf(KeepGravity("STEEL", kRow), kGravity), "1 rows, 1 converted");
  EXPECT_EQ(FatesOf(KeepGravity("HAUNCH", kRow), kGravity), "1 rows, 1 converted");
}

TEST(AccountOfFrameGravityTest, ALoadCaseThatNoStaticCaseNamesIsDropped) {
  EXPECT_THAT(
      LossesOf(KeepGravity("STEEL", "   Frame=1   LoadCase=RAIN   MultiplierZ=-1\n"), kGravity),
      ElementsAre("Frame=1: load-case-not-static"));
}

TEST(AccountOfFrameGravityTest, AFrameWithoutASectionIsDropped) {
  EXPECT_THAT(
      LossesOf(KeepGravity("STEEL", "   Frame=2   LoadCase=SNOW   MultiplierZ=-1\n"), kGravity),
      ElementsAre("Frame=2: frame-without-section"));
}

TEST(AccountOfFrameGravityTest, AnUnknownFrameIsDropped) {
  EXPECT_THAT(
      LossesOf(KeepGravity("STEEL", "   Frame=7   LoadCase=SNOW   MultiplierZ=-1\n"), kGravity),
      ElementsAre("Frame=7: frame-unknown"));
}

TEST(AccountOfFrameGravityTest, AnUnknownFrameOfASectionIsChanged) {
  EXPECT_THAT(
      LossesOf(KeepGravity("STEEL", "   Frame=9   LoadCase=SNOW   MultiplierZ=-1\n"), kGravity),
      ElementsAre("Frame=9: element-not-there"));
}

TEST(AccountOfFrameGravityTest, AFrameOfUnknownWeightIsChanged) {
  for (const char* section : {"MISSING", "BARE", "BAREEND", "NOENDS"}) {
    EXPECT_THAT(LossesOf(KeepGravity(section, kRow), kGravity),
                ElementsAre("Frame=1: frame-weight-unknown"))
        << section;
  }
}

TEST(AccountOfFrameGravityTest, AFrameWhoseSectionHasAWeightModifierIsChanged) {
  for (const char* section : {"LIGHT", "LIGHTHAUNCH", "LIGHTEND"}) {
    EXPECT_THAT(LossesOf(KeepGravity(section, kRow), kGravity),
                ElementsAre("Frame=1: section-weight-modified"))
        << section;
  }
}

// ---- Prestress ----

AccountRun KeepTendons(std::string_view tendons, std::string_view multipliers) {
  return KeepAccount(Frames() + SourceTable(kTendons, tendons) +
                     SourceTable(kMultipliers, multipliers));
}

TEST(AccountOfTendonsTest, ATendonAndItsMultiplierAreConverted) {
  const AccountRun run = KeepTendons("   Frame=1   Tension=100   DrapeCenter=0.2\n",
                                     "   Frame=1   LoadCase=SNOW   Multiplier=1\n");
  EXPECT_EQ(FatesOf(run, kTendons), "1 rows, 1 converted");
  EXPECT_EQ(FatesOf(run, kMultipliers), "1 rows, 1 converted");
}

TEST(AccountOfTendonsTest, ALoadCaseThatNoStaticCaseNamesDropsBoth) {
  const AccountRun run =
      KeepTendons("   Frame=1   Tension=100\n", "   Frame=1   LoadCase=RAIN   Multiplier=1\n");
  EXPECT_THAT(LossesOf(run, kTendons), ElementsAre("Frame=1: load-case-not-static"));
  EXPECT_THAT(LossesOf(run, kMultipliers), ElementsAre("Frame=1: load-case-not-static"));
}

TEST(AccountOfTendonsTest, AMultiplierInAnotherPlaceDropsBoth) {
  const AccountRun run = KeepTendons("   Frame=1   Tension=100\n   Frame=2   Tension=100\n",
                                     "   Frame=1   LoadCase=SNOW   Multiplier=1\n"
                                     "   Frame=1   LoadCase=SNOW   Multiplier=2\n"
                                     "   Frame=2   LoadCase=SNOW   Multiplier=1\n");
  EXPECT_THAT(LossesOf(run, kTendons), ElementsAre("Frame=2: tendon-without-multiplier"));
  EXPECT_THAT(LossesOf(run, kMultipliers), ElementsAre("Frame=1: multiplier-without-tendon",
                                                       "Frame=2: multiplier-without-tendon"));
}

TEST(AccountOfTendonsTest, ATendonWithoutAMultiplierIsWrittenForALoadCaseWithoutAName) {
  const AccountRun run = KeepAccount(
      Frames() + SourceTable("CASE - STATIC 1 - LOAD ASSIGNMENTS", "   Case=SNOW   LoadSF=1\n") +
      SourceTable(kTendons, "   Frame=1   Tension=100\n"));
  EXPECT_THAT(LossesOf(run, kTendons), ElementsAre("Frame=1: tendon-with-another-multiplier"));
}

TEST(AccountOfTendonsTest, ATendonOfAFrameThatIsNotThereIsChanged) {
  const AccountRun run =
      KeepTendons("   Frame=9   Tension=100\n", "   Frame=9   LoadCase=SNOW   Multiplier=1\n");
  EXPECT_THAT(LossesOf(run, kTendons), ElementsAre("Frame=9: element-not-there"));
}

}  // namespace
