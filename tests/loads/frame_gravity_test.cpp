#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// Sections of concrete, 25 heavy, and of steel, 77 heavy: BEAM weighs 3.75 and TIE 0.77 per
/// length, DEEP 7.5.
constexpr const char* kSections = R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=CONC   Type=Isotropic   DesignType=Concrete   UnitMass=2.5   UnitWeight=25
   Material=STEEL   Type=Isotropic   DesignType=Steel   UnitMass=7.8   UnitWeight=77

TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Material=CONC   Shape=Rectangular   t3=0.5   t2=0.3   Area=0.15
   SectionName=TIE   Material=STEEL   Shape=Circle   t3=0.1   Area=0.01
   SectionName=DEEP   Material=CONC   Shape=Rectangular   t3=1   t2=0.3   Area=0.3
   SectionName=ODD   Material=UNOBTAINIUM   Shape=Rectangular   Area=0.3
   SectionName=HAUNCH   Material=STEEL   Shape=Nonprismatic   Area=100
)";

/// The load case DEAD, frame 1 of this section, and gravity loads of these rows, each of frame 1
/// and of DEAD.
ConversionRun ConvertGravity(const std::string& section, const std::vector<std::string>& rows,
                             const std::string& furtherTables = "") {
  std::string loads;
  for (const std::string& row : rows) {
    loads += "   Frame=1   LoadCase=DEAD   " + row + "\n";
  }
  return Convert(StaticCases({"DEAD"}) + kSections +
                 "\nTABLE:  \"FRAME SECTION ASSIGNMENTS\"\n   Frame=1   SectionType=Rectangular   "
                 "AnalSect=" +
                 section + "   DesignSect=BEAM\n" + furtherTables +
                 "\nTABLE:  \"FRAME LOADS - GRAVITY\"\n" + loads);
}

/// The line of a frame's weight with this direction and these values at its ends.
std::string Line(const std::string& element, const std::string& direction,
                 const std::string& valueI, const std::string& valueJ) {
  return "\t" + element + ",  BEAM, UNILOAD,    " + direction + ",    NO,     0, " + valueI +
         ",     1, " + valueJ + ",     0,     0,     0,     0,";
}

TEST(FrameGravity, IsTheWeightPerLengthOverTheWholeFrameWithItsSignKept) {
  const ConversionRun run =
      ConvertGravity("BEAM", {"CoordSys=GLOBAL   MultiplierX=0   MultiplierY=0   MultiplierZ=-1"});
  EXPECT_EQ(run.LoadBlock("DEAD", "*BEAMLOAD"),
            "*USE-STLD,       DEAD\n\n"
            "*BEAMLOAD    ; Element Beam Loads\n"
            "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n"
            "\t1,  BEAM, UNILOAD,    GZ,    NO,     0, -3.75,     1, -3.75,     0,     0,     0,"
            "     0,\n"
            ";End of data for load case [DEAD]\n"
            "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(FrameGravity, RowGivesALineForEachMultiplierThatIsNotZero) {
  EXPECT_THAT(ConvertGravity("BEAM", {"MultiplierX=2   MultiplierY=-4   MultiplierZ=1"})
                  .LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(Line("1", "GX", "  7.5", "  7.5"), Line("1", "GY", "  -15", "  -15"),
                          Line("1", "GZ", " 3.75", " 3.75")));
  EXPECT_THAT(
      ConvertGravity("BEAM", {"MultiplierX=0.1   MultiplierZ=0.2"}).LoadLines("DEAD", "*BEAMLOAD"),
      ElementsAre(Line("1", "GX", "0.375", "0.375"), Line("1", "GZ", " 0.75", " 0.75")));
}

TEST(FrameGravity, LoadsOfOneSectionHaveTheSameWeight) {
  EXPECT_THAT(
      ConvertGravity("BEAM", {"MultiplierX=2", "MultiplierX=1"}).LoadLines("DEAD", "*BEAMLOAD"),
      UnorderedElementsAre(Line("1", "GX", "  7.5", "  7.5"), Line("1", "GX", " 3.75", " 3.75")));
}

TEST(FrameGravity, MultiplierUpToTheToleranceIsNone) {
  const ConversionRun none =
      ConvertGravity("BEAM", {"MultiplierX=1E-15   MultiplierY=-1E-15   MultiplierZ=0"});
  EXPECT_EQ(none.LoadBlock("DEAD", "*BEAMLOAD"), "");
  const ConversionRun some = ConvertGravity("BEAM", {"MultiplierY=-2E-15"});
  EXPECT_THAT(some.LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(Line("1", "GY", "-7.5e-15", "-7.5e-15")));
}

TEST(FrameGravity, CoordinateSystemIsNotLookedAt) {
  for (const char* system : {"CoordSys=Local", "CoordSys=CSYS1", ""}) {
    SCOPED_TRACE(system);
    EXPECT_THAT(ConvertGravity("BEAM", {std::string(system) + "   MultiplierX=1"})
                    .LoadLines("DEAD", "*BEAMLOAD"),
                ElementsAre(Line("1", "GX", " 3.75", " 3.75")));
  }
}

TEST(FrameGravity, MaterialIsThatOfTheSection) {
  EXPECT_THAT(ConvertGravity("TIE", {"MultiplierZ=-1"}).LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(Line("1", "GZ", "-0.77", "-0.77")));
}

TEST(FrameGravity, OfAnUnknownSectionOrMaterialIsWrittenAsZero) {
  for (const char* section : {"ODD", "GONE", "None", ""}) {
    SCOPED_TRACE(section);
    EXPECT_THAT(ConvertGravity(section, {"MultiplierX=1"}).LoadLines("DEAD", "*BEAMLOAD"),
                ElementsAre(Line("1", "GX", "    0", "    0")));
    EXPECT_THAT(ConvertGravity(section, {"MultiplierZ=-1"}).LoadLines("DEAD", "*BEAMLOAD"),
                ElementsAre(Line("1", "GZ", "   -0", "   -0")));
  }
}

TEST(FrameGravity, OfAFrameWithoutAnAssignmentIsLeftOut) {
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + kSections + R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
   Frame=3   AnalSect=TIE

TABLE:  "FRAME LOADS - GRAVITY"
   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierZ=-1
   Frame=2   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierZ=-1
   Frame=3   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierZ=-1
)");
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(Line("3", "GZ", "-0.77", "-0.77"), Line("1", "GZ", "-3.75", "-3.75")));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(FrameGravity, WithoutAssignmentsIsLeftOut) {
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + kSections + R"(
TABLE:  "FRAME LOADS - GRAVITY"
   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierZ=-1
)");
  EXPECT_EQ(run.LoadBlock("DEAD", "*BEAMLOAD"), "");
}

TEST(FrameGravity, SectionIsThatOfTheFramesLabelNotOfItsPosition) {
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + kSections + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=2   AnalSect=BEAM
   Frame=1   AnalSect=TIE

TABLE:  "FRAME LOADS - GRAVITY"
   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierX=1
)");
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"), ElementsAre(Line("1", "GX", " 0.77", " 0.77")));
}

TEST(FrameGravity, OfRowsOfOneNameTheOneWalkedFirstCounts) {
  // Keys 1 and 2 are walked as 2, 1: of the assignments, of the sections and of the materials.
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=CONC   UnitWeight=1
   Material=CONC   UnitWeight=25

TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Material=CONC   Shape=Rectangular   Area=1
   SectionName=BEAM   Material=CONC   Shape=Rectangular   Area=0.15

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=GONE
   Frame=1   AnalSect=BEAM

TABLE:  "FRAME LOADS - GRAVITY"
   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierX=1
)");
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"), ElementsAre(Line("1", "GX", " 3.75", " 3.75")));
}

// ---- Nonprismatic sections ----

/// The line of frame 1 along X when it has the section HAUNCH of these segments.
std::vector<std::string> HaunchLines(const std::string& segments) {
  return ConvertGravity("HAUNCH", {"MultiplierX=2"},
                        "\nTABLE:  \"FRAME SECTION PROPERTIES 5 - NONPRISMATIC\"\n" + segments)
      .LoadLines("DEAD", "*BEAMLOAD");
}

std::string Segment(const std::string& numbers, const std::string& start, const std::string& end) {
  return "   SectionName=HAUNCH   " + numbers + "   StartSect=" + start + "   EndSect=" + end +
         "   LengthType=Variable   VarLength=1   EI33Var=Linear   EI22Var=Linear\n";
}

TEST(NonprismaticGravity, HasTheWeightsOfBothEndSections) {
  EXPECT_THAT(HaunchLines(Segment("NumSegments=1   SegmentNum=1", "BEAM", "TIE")),
              ElementsAre(Line("1", "GX", "  7.5", " 1.54")));
}

TEST(NonprismaticGravity, OfSegmentsTakesTheStartOfTheFirstAndTheEndOfTheLast) {
  EXPECT_THAT(HaunchLines(Segment("NumSegments=3   SegmentNum=1", "BEAM", "TIE") +
                          Segment("NumSegments=3   SegmentNum=2", "TIE", "BEAM") +
                          Segment("NumSegments=3   SegmentNum=3", "TIE", "DEEP")),
              ElementsAre(Line("1", "GX", "  7.5", "   15")));
}

TEST(NonprismaticGravity, OfSegmentsThatFitTakesTheRowWalkedLast) {
  // Rows 1, 2, 3 are walked as 3, 2, 1.
  EXPECT_THAT(HaunchLines(Segment("NumSegments=1   SegmentNum=1", "DEEP", "BEAM") +
                          Segment("NumSegments=1   SegmentNum=1", "BEAM", "TIE") +
                          Segment("NumSegments=1   SegmentNum=1", "TIE", "DEEP")),
              ElementsAre(Line("1", "GX", "   15", "  7.5")));
}

TEST(NonprismaticGravity, RowWalkedLastCountsThoughItsSectionsAreUnknown) {
  EXPECT_THAT(HaunchLines(Segment("NumSegments=1   SegmentNum=1", "GONE", "LOST") +
                          Segment("NumSegments=1   SegmentNum=1", "BEAM", "TIE")),
              ElementsAre(Line("1", "GX", "    0", "    0")));
}

TEST(NonprismaticGravity, EndThatIsUnknownWeighsNothing) {
  EXPECT_THAT(HaunchLines(Segment("NumSegments=1   SegmentNum=1", "GONE", "TIE")),
              ElementsAre(Line("1", "GX", "    0", " 1.54")));
  EXPECT_THAT(HaunchLines(Segment("NumSegments=1   SegmentNum=1", "BEAM", "ODD")),
              ElementsAre(Line("1", "GX", "  7.5", "    0")));
  EXPECT_THAT(HaunchLines(Segment("NumSegments=2   SegmentNum=1", "BEAM", "TIE")),
              ElementsAre(Line("1", "GX", "  7.5", "    0")));
  EXPECT_THAT(HaunchLines(Segment("NumSegments=2   SegmentNum=2", "BEAM", "TIE")),
              ElementsAre(Line("1", "GX", "    0", " 1.54")));
}

TEST(NonprismaticGravity, SegmentWithoutNumbersIsAnEndAndNotAStart) {
  EXPECT_THAT(HaunchLines(Segment("", "BEAM", "TIE")),
              ElementsAre(Line("1", "GX", "    0", " 1.54")));
}

TEST(NonprismaticGravity, WithoutSegmentsIsZeroAtBothEnds) {
  const std::string ofAnother =
      "   SectionName=OTHER   NumSegments=1   SegmentNum=1   StartSect=BEAM   EndSect=TIE\n";
  EXPECT_THAT(HaunchLines(ofAnother), ElementsAre(Line("1", "GX", "    0", "    0")));
  EXPECT_THAT(ConvertGravity("HAUNCH", {"MultiplierZ=-1"}).LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(Line("1", "GZ", "   -0", "   -0")));
}

TEST(NonprismaticGravity, NonprismaticEndWeighsByItsOwnArea) {
  // HAUNCH itself: 100 of steel.
  EXPECT_THAT(HaunchLines(Segment("NumSegments=1   SegmentNum=1", "BEAM", "HAUNCH")),
              ElementsAre(Line("1", "GX", "  7.5", "15400")));
}

TEST(NonprismaticGravity, SegmentsOfAPrismaticSectionAreNotLookedAt) {
  EXPECT_THAT(ConvertGravity("BEAM", {"MultiplierX=2"},
                             "\nTABLE:  \"FRAME SECTION PROPERTIES 5 - NONPRISMATIC\"\n"
                             "   SectionName=BEAM   NumSegments=1   SegmentNum=1   StartSect=TIE   "
                             "EndSect=DEEP\n")
                  .LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(Line("1", "GX", "  7.5", "  7.5")));
}

// ---- Among the other loads of frames ----

TEST(FrameLoadOrder, IsGravityThenPointsThenDistributedWhateverTheOrderOfTheFile) {
  const ConversionRun run = Convert(StaticCases({"LIVE", "DEAD"}) + kSections + R"(
TABLE:  "FRAME LOADS - DISTRIBUTED"
   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Z   DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=1   FOverLB=1
   Frame=2   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Z   DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=2   FOverLB=2

TABLE:  "FRAME LOADS - POINT"
   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Z   DistType=RelDist   RelDist=0.5   Force=3
   Frame=2   LoadCase=LIVE   CoordSys=GLOBAL   Type=Force   Dir=Z   DistType=RelDist   RelDist=0.5   Force=4

TABLE:  "FRAME LOADS - GRAVITY"
   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierY=1   MultiplierZ=1
   Frame=2   LoadCase=DEAD   CoordSys=GLOBAL   MultiplierX=1

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
   Frame=2   AnalSect=TIE
)");
  // Rows 1 and 2 of each table are walked as 2, 1.
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(Line("2", "GX", " 0.77", " 0.77"), Line("1", "GY", " 3.75", " 3.75"),
                          Line("1", "GZ", " 3.75", " 3.75"),
                          "\t1,  BEAM, CONLOAD,    GZ,    NO,   0.5,     3,     0,     0,     0,"
                          "     0,     0,     0,",
                          Line("2", "GZ", "    2", "    2"), Line("1", "GZ", "    1", "    1")));
  EXPECT_THAT(run.LoadLines("LIVE", "*BEAMLOAD"),
              ElementsAre("\t2,  BEAM, CONLOAD,    GZ,    NO,   0.5,     4,     0,     0,     0,"
                          "     0,     0,     0,"));
}

TEST(FrameLoadOrder, GravityIsWrittenThoughPointLoadsEndTheirConversion) {
  const ConversionRun run = ConvertGravity("BEAM", {"MultiplierX=1"}, R"(
TABLE:  "FRAME LOADS - POINT"
   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Z   DistType=AbsDist   AbsDist=0.5   Force=3
)");
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"), ElementsAre(Line("1", "GX", " 3.75", " 3.75")));
}

}  // namespace
