#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The load case DEAD, frames 1 and 2 of lengths 4 and 8, and these point loads.
ConversionRun ConvertLoads(const std::string& rows) {
  return Convert(StaticCases({"DEAD"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2   Length=4
   Frame=2   JointI=2   JointJ=3   Length=8

TABLE:  "FRAME LOADS - POINT"
   )" + rows + "\n");
}

std::vector<std::string> BeamLoads(const std::string& rows) {
  return ConvertLoads(rows).LoadLines("DEAD", "*BEAMLOAD");
}

TEST(PointLoads, AreBeamLoadsAtAPlaceOfTheFrame) {
  const ConversionRun run = ConvertLoads(
      "Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Gravity   DistType=RelDist   "
      "RelDist=0.5   AbsDist=2   Force=40\n"
      "   Frame=2   LoadCase=DEAD   CoordSys=Local   Type=Moment   Dir=1   DistType=RelDist   "
      "RelDist=0.25   AbsDist=2   Moment=-7.5");
  EXPECT_EQ(run.LoadBlock("DEAD", "*BEAMLOAD"),
            "*USE-STLD,       DEAD\n\n"
            "*BEAMLOAD    ; Element Beam Loads\n"
            "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n"
            "\t2,  BEAM, CONMOMENT,    LX,    NO,  0.25,  -7.5,     0,     0,     0,     0,     0,"
            "     0,\n"
            "\t1,  BEAM, CONLOAD,    GZ,    NO,   0.5,   -40,     0,     0,     0,     0,     0,"
            "     0,\n"
            ";End of data for load case [DEAD]\n"
            "\n");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(PointLoads, DirectionsOfForcesAndMoments) {
  struct Mapping {
    const char* Direction;
    const char* Words;
    const char* Value;  // of 2
  };
  const std::vector<Mapping> mappings = {
      {"CoordSys=GLOBAL   Dir=X", "   GX,    NO", "    2"},
      {"CoordSys=GLOBAL   Dir=Y", "   GY,    NO", "    2"},
      {"CoordSys=GLOBAL   Dir=Z", "   GZ,    NO", "    2"},
      {"CoordSys=GLOBAL   Dir=Gravity", "   GZ,    NO", "   -2"},
      {"CoordSys=Local   Dir=1", "   LX,    NO", "    2"},
      {"CoordSys=Local   Dir=2", "   LZ,    NO", "    2"},
      {"CoordSys=Local   Dir=3", "   LY,    NO", "   -2"},
      // anything else, and nothing is projected
      {"CoordSys=GLOBAL   Dir=\"X Proj\"", "     ,      ", "    2"},
      {"CoordSys=GLOBAL   Dir=\"Y Proj\"", "     ,      ", "    2"},
      {"CoordSys=GLOBAL   Dir=\"Z Proj\"", "     ,      ", "    2"},
      {"CoordSys=GLOBAL   Dir=\"Grav Proj\"", "     ,      ", "    2"},
      {"CoordSys=GLOBAL   Dir=GRAVITY", "     ,      ", "    2"},
      {"CoordSys=GLOBAL   Dir=1", "     ,      ", "    2"},
      {"CoordSys=GLOBAL", "     ,      ", "    2"},
      {"CoordSys=Local   Dir=Z", "     ,      ", "    2"},
      {"CoordSys=local   Dir=3", "     ,      ", "    2"},
      {"CoordSys=CSYS1   Dir=Gravity", "     ,      ", "    2"},
      {"Dir=X", "     ,      ", "    2"},
  };
  for (const auto& [direction, words, value] : mappings) {
    SCOPED_TRACE(direction);
    const std::string place =
        "Frame=1   LoadCase=DEAD   DistType=RelDist   RelDist=0   " + std::string(direction);
    const std::string rest =
        std::string(words) + ",     0, " + value + ",     0,     0,     0,     0,     0,     0,";
    EXPECT_THAT(BeamLoads("Type=Force   Force=2   " + place),
                ElementsAre("\t1,  BEAM, CONLOAD, " + rest));
    EXPECT_THAT(BeamLoads("Type=Moment   Moment=2   " + place),
                ElementsAre("\t1,  BEAM, CONMOMENT, " + rest));
  }
}

TEST(PointLoads, ValueIsThatOfTheKind) {
  const std::string place =
      "   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Dir=Gravity   DistType=RelDist   RelDist=1   "
      "Force=2   Moment=-3";
  EXPECT_THAT(BeamLoads("Type=Force" + place),
              ElementsAre("\t1,  BEAM, CONLOAD,    GZ,    NO,     1,    -2,     0,     0,     0,"
                          "     0,     0,     0,"));
  EXPECT_THAT(BeamLoads("Type=Moment" + place),
              ElementsAre("\t1,  BEAM, CONMOMENT,    GZ,    NO,     1,     3,     0,     0,     0,"
                          "     0,     0,     0,"));
}

TEST(PointLoads, ZeroThatIsTurnedIsMinusZero) {
  EXPECT_THAT(BeamLoads("Frame=1   LoadCase=DEAD   CoordSys=Local   Type=Force   Dir=3   "
                        "DistType=RelDist   RelDist=0.5   Force=0"),
              ElementsAre("\t1,  BEAM, CONLOAD,    LY,    NO,   0.5,    -0,     0,     0,     0,"
                          "     0,     0,     0,"));
}

TEST(PointLoads, OfAnUnknownKindHaveNoTypeAndAPlainZero) {
  for (const char* type : {"Type=force", "Type=MOMENT", "Type=Torque", "Type="}) {
    SCOPED_TRACE(type);
    EXPECT_THAT(BeamLoads(std::string(type) +
                          "   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Dir=Gravity   "
                          "DistType=RelDist   RelDist=0.5   Force=2   Moment=3"),
                ElementsAre("\t1,  BEAM,      ,    GZ,    NO,   0.5,     0,     0,     0,     0,"
                            "     0,     0,     0,"));
  }
}

std::string ForceAt(const std::string& frame, const std::string& place) {
  return "Frame=" + frame + "   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Z   Force=2   " +
         place;
}

/// The line of such a force.
std::string LineAt(const std::string& element, const std::string& place) {
  return "\t" + element + ",  BEAM, CONLOAD,    GZ,    NO, " + place +
         ",     2,     0,     0,     0,     0,     0,     0,";
}

TEST(PointLoads, PlacesAreFractionsOfTheFrame) {
  struct Mapping {
    const char* Place;
    const char* Fraction;
  };
  // Frame 2 is 8 long.
  const std::vector<Mapping> mappings = {{"DistType=RelDist   RelDist=0.75   AbsDist=1", " 0.75"},
                                         {"DistType=RelDist   RelDist=0", "    0"},
                                         {"DistType=RelDist", "    0"},
                                         {"DistType=AbsDist   AbsDist=1   RelDist=0.75", "0.125"},
                                         {"DistType=AbsDist   AbsDist=12", "  1.5"},
                                         {"DistType=AbsDist", "    0"},
                                         {"DistType=reldist   RelDist=0.75", "    0"},
                                         {"DistType=   RelDist=0.75   AbsDist=6", "    0"},
                                         {"RelDist=0.75   AbsDist=6", "    0"}};
  for (const auto& [place, fraction] : mappings) {
    SCOPED_TRACE(place);
    EXPECT_THAT(BeamLoads(ForceAt("2", place)), ElementsAre(LineAt("2", fraction)));
  }
}

TEST(PointLoads, AtAbsoluteDistanceOnAFrameWithoutLengthEndTheConversion) {
  // Rows 3, 2, 1: row 2 ends it, and row 1, by a relative distance, is not reached.
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2   Length=4
   Frame=2   JointI=2   JointJ=2   Length=0

TABLE:  "FRAME LOADS - POINT"
   )" + ForceAt("1", "DistType=RelDist   RelDist=0.5") +
                                    "\n   " + ForceAt("2", "DistType=AbsDist   AbsDist=2") +
                                    "\n   " + ForceAt("1", "DistType=AbsDist   AbsDist=1") + "\n");
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"), ElementsAre(LineAt("1", " 0.25")));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_ELEM_Length_Zero", "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(PointLoads, ThatEndTheirConversionLeaveTheDistributedLoads) {
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2   Length=-4

TABLE:  "FRAME LOADS - POINT"
   )" + ForceAt("1", "DistType=AbsDist   AbsDist=2") +
                                    R"(

TABLE:  "FRAME LOADS - DISTRIBUTED"
   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Z   DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=2   FOverLB=3
)");
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre("\t1,  BEAM, UNILOAD,    GZ,    NO,     0,     2,     1,     3,     0,"
                          "     0,     0,     0,"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_ELEM_Length_Zero", "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(PointLoads, OnAnUnknownFrameAreMeasuredByTheLastRowWalked) {
  // Rows 1 and 2 of the frames are walked as 2, 1.
  EXPECT_THAT(BeamLoads(ForceAt("99", "DistType=AbsDist   AbsDist=1")),
              ElementsAre(LineAt("99", " 0.25")));
}

TEST(PointLoads, WithoutFramesTheirLengthIsZeroAndTheReportStaysSilent) {
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + "\nTABLE:  \"FRAME LOADS - POINT\"\n" +
                                    "   " + ForceAt("1", "DistType=AbsDist   AbsDist=1") + "\n");
  EXPECT_EQ(run.LoadBlock("DEAD", "*BEAMLOAD"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(PointLoads, AtOnePlaceAreNotMerged) {
  EXPECT_THAT(BeamLoads(ForceAt("1", "DistType=RelDist   RelDist=0.5") + "\n   " +
                        ForceAt("1", "DistType=RelDist   RelDist=0.5")),
              ElementsAre(LineAt("1", "  0.5"), LineAt("1", "  0.5")));
}

TEST(PointLoads, StandInTheOrderOfTheirConversionNotInWalkOrder) {
  // Six rows are walked as 3, 6, 2, 5, 1, 4 and get the keys 1 to 6, which are counted through.
  std::string rows;
  for (const char* frame : {"1", "2", "3", "4", "5", "6"}) {
    rows += "   " + ForceAt(frame, "DistType=RelDist   RelDist=0") + "\n";
  }
  EXPECT_THAT(BeamLoads(rows),
              ElementsAre(LineAt("3", "    0"), LineAt("6", "    0"), LineAt("2", "    0"),
                          LineAt("5", "    0"), LineAt("1", "    0"), LineAt("4", "    0")));
}

// ---- Element numbers of beam loads ----

TEST(BeamLoadElements, AreTheNumbersOfTheirLabels) {
  EXPECT_THAT(BeamLoads(ForceAt("0012", "DistType=RelDist   RelDist=0")),
              ElementsAre(LineAt("12", "    0")));
}

TEST(BeamLoadElements, InARenumberedModelAreThoseOfFramesAndOtherwiseOfTheLineBefore) {
  std::string rows;
  // Walked as 3, 6, 2, 5, 1, 4.
  for (const char* frame : {"7", "C", "GONE", "LOST", "7", "B"}) {
    rows += "   " + ForceAt(frame, "DistType=RelDist   RelDist=0") + "\n";
  }
  const ConversionRun run = Convert(StaticCases({"DEAD"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=A   JointI=1   JointJ=2   Length=4
   Frame=B   JointI=2   JointJ=3   Length=4
   Frame=C   JointI=3   JointJ=4   Length=4
   Frame=7   JointI=4   JointJ=5   Length=4

TABLE:  "CONNECTIVITY - AREA"
   Area=7   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=LOST   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "FRAME LOADS - POINT"
)" + rows);
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(LineAt("0", "    0"),    // GONE, before any other
                          LineAt("2", "    0"),    // B
                          LineAt("3", "    0"),    // C
                          LineAt("4", "    0"),    // 7
                          LineAt("4", "    0"),    // 7
                          LineAt("4", "    0")));  // LOST is an area and no frame
}

TEST(BeamLoadElements, ThatAreNotThereStartAtZeroInEachLoadCase) {
  const auto force = [](const std::string& frame, const std::string& loadCase) {
    return "   Frame=" + frame + "   LoadCase=" + loadCase +
           "   CoordSys=GLOBAL   Type=Force   Dir=Z   DistType=RelDist   RelDist=0   Force=2\n";
  };
  const ConversionRun run = Convert(StaticCases({"LIVE", "DEAD"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=A   JointI=1   JointJ=2   Length=4
   Frame=B   JointI=2   JointJ=3   Length=4

TABLE:  "FRAME LOADS - POINT"
)" + force("B", "LIVE") + force("GONE", "LIVE") +
                                    force("GONE", "DEAD") + force("GONE", "DEAD") +
                                    force("GONE", "DEAD") + force("B", "DEAD"));
  // Walked as 3, 6, 2, 5, 1, 4; the load case DEAD is written first.
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(LineAt("0", "    0"), LineAt("2", "    0"), LineAt("2", "    0"),
                          LineAt("2", "    0")));
  EXPECT_THAT(run.LoadLines("LIVE", "*BEAMLOAD"),
              ElementsAre(LineAt("0", "    0"), LineAt("2", "    0")));
}

}  // namespace
