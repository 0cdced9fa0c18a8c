#include "support/conversion_run.h"
#include "support/load_tables.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The load case DEAD, frames 1 and 2 of lengths 4 and 8, and these distributed loads.
ConversionRun ConvertLoads(const std::string& rows) {
  return Convert(StaticCases({"DEAD"}) + R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2   Length=4
   Frame=2   JointI=2   JointJ=3   Length=8

TABLE:  "FRAME LOADS - DISTRIBUTED"
   )" + rows + "\n");
}

std::vector<std::string> BeamLoads(const std::string& rows) {
  return ConvertLoads(rows).LoadLines("DEAD", "*BEAMLOAD");
}

TEST(DistributedLoads, AreBeamLoadsOverASpanOfTheFrame) {
  const ConversionRun run = ConvertLoads(
      "Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Gravity   DistType=RelDist   "
      "RelDistA=0   RelDistB=1   AbsDistA=0   AbsDistB=4   FOverLA=12.5   FOverLB=12.5\n"
      "   Frame=2   LoadCase=DEAD   CoordSys=Local   Type=Moment   Dir=1   DistType=RelDist   "
      "RelDistA=0.25   RelDistB=0.75   AbsDistA=2   AbsDistB=6   MOverLA=3   MOverLB=-0.00002");
  EXPECT_EQ(run.LoadBlock("DEAD", "*BEAMLOAD"),
            "*USE-STLD,       DEAD\n\n"
            "*BEAMLOAD    ; Element Beam Loads\n"
            "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n"
            "\t2,  BEAM, UNIMOMENT,    LX,    NO,  0.25,     3,  0.75, -2e-05,     0,     0,     0,"
            "     0,\n"
            "\t1,  BEAM, UNILOAD,    GZ,    NO,     0, -12.5,     1, -12.5,     0,     0,     0,"
            "     0,\n"
            ";End of data for load case [DEAD]\n"
            "\n");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

// ---- Directions ----

TEST(DistributedLoads, DirectionsOfForcesAndMoments) {
  struct Mapping {
    const char* Direction;
    const char* Words;
    const char* Values;  // of 2 at the one end and 3 at the other
  };
  constexpr const char* kKept = "     0,     2,     1,     3";
  constexpr const char* kTurned = "     0,    -2,     1,    -3";
  const std::vector<Mapping> mappings = {
      {"CoordSys=GLOBAL   Dir=X", "    GX,    NO", kKept},
      {"CoordSys=GLOBAL   Dir=Y", "    GY,    NO", kKept},
      {"CoordSys=GLOBAL   Dir=Z", "    GZ,    NO", kKept},
      {"CoordSys=GLOBAL   Dir=\"X Proj\"", "    GX,   YES", kKept},
      {"CoordSys=GLOBAL   Dir=\"Y Proj\"", "    GY,   YES", kKept},
      {"CoordSys=GLOBAL   Dir=\"Z Proj\"", "    GZ,   YES", kKept},
      {"CoordSys=GLOBAL   Dir=Gravity", "    GZ,    NO", kTurned},
      {"CoordSys=Local   Dir=1", "    LX,    NO", kKept},
      {"CoordSys=Local   Dir=2", "    LZ,    NO", kKept},
      {"CoordSys=Local   Dir=3", "    LY,    NO", kTurned},
      // anything else
      {"CoordSys=GLOBAL   Dir=\"Grav Proj\"", "      ,      ", kKept},
      {"CoordSys=GLOBAL   Dir=gravity", "      ,      ", kKept},
      {"CoordSys=GLOBAL   Dir=x", "      ,      ", kKept},
      {"CoordSys=GLOBAL   Dir=3", "      ,      ", kKept},
      {"CoordSys=GLOBAL   Dir=", "      ,      ", kKept},
      {"CoordSys=GLOBAL", "      ,      ", kKept},
      {"CoordSys=Local   Dir=X", "      ,      ", kKept},
      {"CoordSys=Local   Dir=Gravity", "      ,      ", kKept},
      {"CoordSys=LOCAL   Dir=3", "      ,      ", kKept},
      {"CoordSys=Global   Dir=Gravity", "      ,      ", kKept},
      {"CoordSys=CSYS1   Dir=X", "      ,      ", kKept},
      {"Dir=X", "      ,      ", kKept},
  };
  for (const auto& [direction, words, values] : mappings) {
    SCOPED_TRACE(direction);
    const std::string place =
        "Frame=1   LoadCase=DEAD   DistType=RelDist   RelDistA=0   RelDistB=1   " +
        std::string(direction);
    EXPECT_THAT(ConvertLoads("Type=Force   FOverLA=2   FOverLB=3   " + place)
                    .LoadLines("DEAD", "*BEAMLOAD"),
                ElementsAre("\t1,  BEAM, UNILOAD," + std::string(words) + "," + values +
                            ",     0,     0,     0,     0,"));
    EXPECT_THAT(ConvertLoads("Type=Moment   MOverLA=2   MOverLB=3   " + place)
                    .LoadLines("DEAD", "*BEAMLOAD"),
                ElementsAre("\t1,  BEAM, UNIMOMENT," + std::string(words) + "," + values +
                            ",     0,     0,     0,     0,"));
  }
}

TEST(DistributedLoads, NegativeValuesAreTurnedToo) {
  EXPECT_THAT(BeamLoads("Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Gravity   "
                        "DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=-2   FOverLB=-4"),
              ElementsAre("\t1,  BEAM, UNILOAD,    GZ,    NO,     0,     2,     1,     4,     0,"
                          "     0,     0,     0,"));
  EXPECT_THAT(BeamLoads("Frame=1   LoadCase=DEAD   CoordSys=Local   Type=Force   Dir=3   "
                        "DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=2   FOverLB=-4"),
              ElementsAre("\t1,  BEAM, UNILOAD,    LY,    NO,     0,    -2,     1,     4,     0,"
                          "     0,     0,     0,"));
}

TEST(DistributedLoads, ZeroThatIsTurnedIsMinusZero) {
  EXPECT_THAT(BeamLoads("Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Gravity   "
                        "DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=0   FOverLB=6"),
              ElementsAre("\t1,  BEAM, UNILOAD,    GZ,    NO,     0,    -0,     1,    -6,     0,"
                          "     0,     0,     0,"));
  EXPECT_THAT(BeamLoads("Frame=1   LoadCase=DEAD   CoordSys=Local   Type=Moment   Dir=3   "
                        "DistType=RelDist   RelDistA=0   RelDistB=1"),
              ElementsAre("\t1,  BEAM, UNIMOMENT,    LY,    NO,     0,    -0,     1,    -0,     0,"
                          "     0,     0,     0,"));
}

// ---- Kinds ----

TEST(DistributedLoads, ValuesAreThoseOfTheKind) {
  const std::string values = "   FOverLA=2   FOverLB=3   MOverLA=4   MOverLB=5";
  const std::string place =
      "   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Dir=Z   DistType=RelDist   RelDistA=0   "
      "RelDistB=1";
  EXPECT_THAT(BeamLoads("Type=Force" + place + values),
              ElementsAre("\t1,  BEAM, UNILOAD,    GZ,    NO,     0,     2,     1,     3,     0,"
                          "     0,     0,     0,"));
  EXPECT_THAT(BeamLoads("Type=Moment" + place + values),
              ElementsAre("\t1,  BEAM, UNIMOMENT,    GZ,    NO,     0,     4,     1,     5,     0,"
                          "     0,     0,     0,"));
}

TEST(DistributedLoads, OfAnUnknownKindHaveNoTypeAndPlainZeros) {
  for (const char* type : {"Type=force", "Type=FORCE", "Type=Torque", "Type="}) {
    SCOPED_TRACE(type);
    EXPECT_THAT(
        BeamLoads(std::string(type) +
                  "   Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   Dir=Gravity   DistType=RelDist   "
                  "RelDistA=0   RelDistB=1   FOverLA=2   FOverLB=3   MOverLA=4   MOverLB=5"),
        ElementsAre("\t1,  BEAM,      ,    GZ,    NO,     0,     0,     1,     0,     0,     0,"
                    "     0,     0,"));
  }
}

TEST(DistributedLoads, TypeOfTheDistanceThatStandsFirstIsTakenForTheKind) {
  EXPECT_THAT(
      BeamLoads("Frame=1   LoadCase=DEAD   CoordSys=GLOBAL   DistType=RelDist   Type=Force   Dir=Z"
                "   RelDistA=0   RelDistB=1   FOverLA=2   FOverLB=2"),
      ElementsAre("\t1,  BEAM,      ,    GZ,    NO,     0,     0,     1,     0,     0,     0,"
                  "     0,     0,"));
}

// ---- Spans ----

std::string ForceOver(const std::string& span) {
  return "Frame=2   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Z   FOverLA=2   FOverLB=3  "
         " " +
         span;
}

TEST(DistributedLoads, SpansAreFractionsOfTheFrame) {
  struct Mapping {
    const char* Span;
    const char* Values;
  };
  // Frame 2 is 8 long.
  const std::vector<Mapping> mappings = {
      {"DistType=RelDist   RelDistA=0   RelDistB=1   AbsDistA=1   AbsDistB=7",
       "     0,     2,     1,     3"},
      {"DistType=RelDist   RelDistA=0.9   RelDistB=0.1", "   0.9,     2,   0.1,     3"},
      {"DistType=RelDist   RelDistB=0.5", "     0,     2,   0.5,     3"},
      {"DistType=AbsDist   AbsDistA=1   AbsDistB=6   RelDistA=0   RelDistB=1",
       " 0.125,     2,  0.75,     3"},
      {"DistType=AbsDist   AbsDistA=4   AbsDistB=4", "   0.5,     2,   0.5,     3"},
      {"DistType=AbsDist   AbsDistA=0   AbsDistB=16", "     0,     2,     2,     3"},
      {"DistType=AbsDist", "     0,     2,     0,     3"},
      {"DistType=Relative   RelDistA=0.25   RelDistB=1   AbsDistA=1   AbsDistB=7",
       "     0,     2,     0,     3"},
      {"DistType=absdist   RelDistA=0.25   RelDistB=1", "     0,     2,     0,     3"},
      {"RelDistA=0.25   RelDistB=1", "     0,     2,     0,     3"},
  };
  for (const auto& [span, values] : mappings) {
    SCOPED_TRACE(span);
    EXPECT_THAT(BeamLoads(ForceOver(span)),
                ElementsAre("\t2,  BEAM, UNILOAD,    GZ,    NO," + std::string(values) +
                            ",     0,     0,     0,     0,"));
  }
}

TEST(DistributedLoads, RelativeSpanOfNothingIsDropped) {
  for (const char* span : {"RelDistA=0.5   RelDistB=0.5", "RelDistA=0.5   RelDistB=0.5000005",
                           "RelDistA=0.0000009   RelDistB=0", ""}) {
    SCOPED_TRACE(span);
    const ConversionRun run = ConvertLoads(
        ForceOver("DistType=RelDist   AbsDistA=0   AbsDistB=8   " + std::string(span)));
    EXPECT_EQ(run.LoadBlock("DEAD", "*BEAMLOAD"), "");
  }
}

TEST(DistributedLoads, RelativeSpanFromTheLimitOnIsKept) {
  EXPECT_THAT(BeamLoads(ForceOver("DistType=RelDist   RelDistA=0   RelDistB=0.000001")),
              ElementsAre("\t2,  BEAM, UNILOAD,    GZ,    NO,     0,     2, 1e-06,     3,     0,"
                          "     0,     0,     0,"));
}

TEST(DistributedLoads, DroppedSpanDoesNotEndTheConversion) {
  EXPECT_THAT(BeamLoads(ForceOver("DistType=RelDist   RelDistA=0   RelDistB=1") + "\n   " +
                        ForceOver("DistType=RelDist   RelDistA=1   RelDistB=1") + "\n   " +
                        ForceOver("DistType=RelDist   RelDistA=0   RelDistB=0.5")),
              ElementsAre("\t2,  BEAM, UNILOAD,    GZ,    NO,     0,     2,   0.5,     3,     0,"
                          "     0,     0,     0,",
                          "\t2,  BEAM, UNILOAD,    GZ,    NO,     0,     2,     1,     3,     0,"
                          "     0,     0,     0,"));
}

// ---- Lengths ----

/// The load case DEAD, these frames, and loads of 1 along Z over the whole of these frames, the
/// first by relative distances and the others by absolute ones of 0 and 2.
ConversionRun ConvertLengths(const std::string& frames, const std::vector<std::string>& loaded) {
  std::string rows;
  for (const std::string& frame : loaded) {
    const std::string span = &frame == &loaded.front()
                                 ? "DistType=RelDist   RelDistA=0   RelDistB=1"
                                 : "DistType=AbsDist   AbsDistA=0   AbsDistB=2";
    rows += "   Frame=" + frame +
            "   LoadCase=DEAD   CoordSys=GLOBAL   Type=Force   Dir=Z   FOverLA=1   FOverLB=1   " +
            span + "\n";
  }
  return Convert(StaticCases({"DEAD"}) + "\nTABLE:  \"CONNECTIVITY - FRAME\"\n" + frames +
                 "\nTABLE:  \"FRAME LOADS - DISTRIBUTED\"\n" + rows);
}

/// The line of a load of 1 from the frame's end I to here.
std::string LineTo(const std::string& element, const std::string& end) {
  return "\t" + element + ",  BEAM, UNILOAD,    GZ,    NO,     0,     1, " + end +
         ",     1,     0,     0,     0,     0,";
}

TEST(DistributedLoads, FrameWithoutLengthEndsTheConversionAndIsReportedAtTheElements) {
  // Rows 3, 2, 1: row 2 ends it, and row 1, by relative distances, is not reached.
  const ConversionRun run = ConvertLengths(
      "   Frame=1   JointI=1   JointJ=2   Length=4\n"
      "   Frame=2   JointI=2   JointJ=2   Length=0\n",
      {"1", "2", "1"});
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"), ElementsAre(LineTo("1", "  0.5")));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_ELEM_Length_Zero", "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(DistributedLoads, FrameWithoutLengthMattersNotToRelativeDistances) {
  const ConversionRun run = ConvertLengths("   Frame=1   JointI=1   JointJ=1   Length=0\n", {"1"});
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"), ElementsAre(LineTo("1", "    1")));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(DistributedLoads, LengthIsTestedWithoutItsAbsoluteValue) {
  struct Mapping {
    const char* Length;
    bool Ends;
  };
  // The walk meets the absolute distances of row 2 first.
  for (const auto& [length, ends] : std::vector<Mapping>{
           {"Length=1E-15", false}, {"Length=9.9E-16", true}, {"Length=-4", true}, {"", true}}) {
    SCOPED_TRACE(length);
    const ConversionRun run = ConvertLengths(
        "   Frame=1   JointI=1   JointJ=2   " + std::string(length) + "\n", {"1", "1"});
    if (ends) {
      EXPECT_EQ(run.LoadBlock("DEAD", "*BEAMLOAD"), "");
      EXPECT_THAT(run.Messages,
                  ElementsAre("IDS_S2KV8_ELEM_Length_Zero", "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
    } else {
      EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"),
                  ElementsAre(LineTo("1", "2e+15"), LineTo("1", "    1")));
      EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
    }
  }
}

TEST(DistributedLoads, UnknownFrameIsMeasuredByTheLastRowWalked) {
  // Rows 1, 2, 3 are walked as 3, 2, 1.
  const ConversionRun run = ConvertLengths(
      "   Frame=1   JointI=1   JointJ=2   Length=4\n"
      "   Frame=2   JointI=2   JointJ=3   Length=8\n"
      "   Frame=3   JointI=3   JointJ=4   Length=16\n",
      {"2", "99"});
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(LineTo("99", "  0.5"), LineTo("2", "    1")));
}

TEST(DistributedLoads, FrameThatStandsTwiceIsMeasuredByTheRowWalkedFirst) {
  const ConversionRun run = ConvertLengths(
      "   Frame=1   JointI=1   JointJ=2   Length=4\n"
      "   Frame=1   JointI=2   JointJ=3   Length=8\n",
      {"1", "1"});
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"),
              ElementsAre(LineTo("1", " 0.25"), LineTo("1", "    1")));
}

TEST(DistributedLoads, WithoutFramesTheirLengthIsZeroAndTheReportStaysSilent) {
  const ConversionRun run = ConvertLengths("", {"1", "1"});
  EXPECT_EQ(run.LoadBlock("DEAD", "*BEAMLOAD"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(DistributedLoads, WithoutFramesRelativeDistancesAreWritten) {
  const ConversionRun run = ConvertLengths("", {"1"});
  EXPECT_THAT(run.LoadLines("DEAD", "*BEAMLOAD"), ElementsAre(LineTo("1", "    1")));
}

}  // namespace
