#include "platform/message_catalogue.h"
#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A table of these rows, or nothing without rows. A newline at the head of the rows is dropped.
std::string Table(const std::string& title, const std::string& rows) {
  if (rows.empty()) {
    return {};
  }
  return "TABLE:  \"" + title + "\"\n" + rows.substr(rows.starts_with('\n') ? 1 : 0) + "\n";
}

ConversionRun ConvertReleases(const std::string& releases, const std::string& fixities = "") {
  return Convert(Table("FRAME RELEASE ASSIGNMENTS 1 - GENERAL", releases) +
                 Table("FRAME RELEASE ASSIGNMENTS 2 - PARTIAL FIXITY", fixities));
}

ConversionRun ConvertOffsets(const std::string& endLengths, const std::string& insertionPoints) {
  return Convert(Table("FRAME OFFSET (LENGTH) ASSIGNMENTS", endLengths) +
                 Table("FRAME INSERTION POINT ASSIGNMENTS", insertionPoints));
}

// Releases

TEST(Releases, SectionOfAMomentReleaseAboutAxisTwo) {
  const ConversionRun run = ConvertReleases(R"(
   Frame=7   PI=No   V2I=No   V3I=No   TI=No   M2I=Yes   M3I=No   PJ=No   V2J=No   PartialFix=No
)");
  EXPECT_EQ(run.Section("*FRAME-RLS"),
            "*FRAME-RLS    ; Beam End Release\n"
            "; ELEM_LIST, FLAG-i, Fxi, Fyi, Fzi, Mxi, Myi, Mzi        ; 1st line\n"
            ";            FLAG-j, Fxj, Fyj, Fzj, Mxj, Myj, Mzj, GROUP ; 2nd line\n"
            "\t7, \t000001,     0,     0,     0,     0,     0,     0\n"
            "\t\t000000,     0,     0,     0,     0,     0,     0,\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Releases, ModelWithoutReleasesHasNoSection) {
  const ConversionRun run = ConvertOffsets("   Frame=1   LengthI=0.1   LengthJ=0\n", "");
  EXPECT_EQ(run.Section("*FRAME-RLS"), "");
}

TEST(Releases, PlacesOfTheTargetExchangeAxesTwoAndThree) {
  struct Case {
    const char* Key;
    const char* FlagI;
    const char* FlagJ;
    const char* ValuesI;
    const char* ValuesJ;
  };
  const char* const none = ",     0,     0,     0,     0,     0,     0";
  const char* const first = ",     1,     0,     0,     0,     0,     0";
  const char* const second = ",     0,     1,     0,     0,     0,     0";
  const char* const third = ",     0,     0,     1,     0,     0,     0";
  const char* const fourth = ",     0,     0,     0,     1,     0,     0";
  const char* const fifth = ",     0,     0,     0,     0,     1,     0";
  const char* const sixth = ",     0,     0,     0,     0,     0,     1";
  const Case cases[] = {
      {"PI", "100000", "000000", first, none},  {"V3I", "010000", "000000", second, none},
      {"V2I", "001000", "000000", third, none}, {"TI", "000100", "000000", fourth, none},
      {"M3I", "000010", "000000", fifth, none}, {"M2I", "000001", "000000", sixth, none},
      {"PJ", "000000", "100000", none, first},  {"V3J", "000000", "010000", none, second},
      {"V2J", "000000", "001000", none, third}, {"TJ", "000000", "000100", none, fourth},
      {"M3J", "000000", "000010", none, fifth}, {"M2J", "000000", "000001", none, sixth},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Key);
    const ConversionRun run =
        ConvertReleases(std::string("   Frame=1   ") + c.Key + "=Yes   PartialFix=Yes\n",
                        std::string("   Frame=1   ") + c.Key + "=500\n");
    EXPECT_THAT(run.Lines("*FRAME-RLS"),
                ElementsAre(std::string("\t1, \t") + c.FlagI + c.ValuesI,
                            std::string("\t\t") + c.FlagJ + c.ValuesJ + ","));
  }
}

TEST(Releases, OnlyYesReleases) {
  const ConversionRun run = ConvertReleases(R"(
   Frame=1   PI=YES   V2I=yes   V3I=1   TI=Y   M2I=True   M3I=Yes   PartialFix=YES
)",
                                            "   Frame=1   M3I=500\n");
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t1, \t000010,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Releases, PartialFixityKeepsThePresenceOfASpringAndNotItsSize) {
  const ConversionRun run = ConvertReleases(R"(
   Frame=1   TI=Yes   M2I=Yes   M3I=Yes   M2J=Yes   M3J=Yes   PartialFix=Yes
)",
                                            R"(
   Frame=1   PI=1E-15   V2I=9E-16   V3I=-500   TI=0   M2I=1E+09   M3I=500   M2J=-1E-15   M3J=2E-15
)");
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t1, \t000111,     1,     0,     0,     0,     1,     1",
                          "\t\t000011,     0,     0,     0,     0,     1,     0,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_BEAM_End_Release"));
}

TEST(Releases, FixitiesAreWrittenForPlacesThatAreNotReleased) {
  const ConversionRun run =
      ConvertReleases("   Frame=1   M3I=Yes   PartialFix=Yes\n", "   Frame=1   M3J=500   PJ=2\n");
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t1, \t000010,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     1,     0,     0,     0,     1,     0,"));
}

TEST(Releases, FixitiesOfAFrameThatIsNotPartiallyFixedAreZero) {
  const ConversionRun run =
      ConvertReleases("   Frame=1   M3I=Yes   PartialFix=No\n", "   Frame=1   M3I=500   M3J=500\n");
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t1, \t000010,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Releases, PartialFixWithoutAFixityTableIsZeroAndShowsTheMessage) {
  const ConversionRun run = ConvertReleases(R"(
   Frame=1   M3I=Yes   PartialFix=Yes
   Frame=2   M3I=Yes   PartialFix=Yes
)");
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t1, \t000010,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,",
                          "\t2, \t000010,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_BEAM_End_Release"));
}

TEST(Releases, FrameWithoutAFixityRowEndsTheConversionOfReleases) {
  // Rows 1, 2, 3 are walked in the order 2, 1, 3.
  const ConversionRun run = ConvertReleases(R"(
   Frame=1   M3I=Yes   PartialFix=No
   Frame=2   M2I=Yes   PartialFix=Yes
   Frame=3   TI=Yes   PartialFix=Yes
)",
                                            R"(
   Frame=1   M3I=1
   Frame=2   M2I=1
   Frame=03   TI=1
)");
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t1, \t000010,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,",
                          "\t2, \t000001,     0,     0,     0,     0,     0,     1",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
  EXPECT_EQ(run.Result, 0);
}

TEST(Releases, FrameWithoutAFixityRowEndsTheConversionEvenWhenItIsNotPartiallyFixed) {
  // Row 2 is walked first, so that nothing is left to write.
  const ConversionRun run = ConvertReleases(R"(
   Frame=1   M3I=Yes   PartialFix=Yes
   Frame=2   M3I=Yes   PartialFix=No
)",
                                            "   Frame=1   M3I=500\n");
  EXPECT_EQ(run.Section("*FRAME-RLS"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Result, 0);
}

TEST(Releases, MissingFirstRowIsWrittenAsAnEmptyRecord) {
  // Row 2 is walked first and converted; row 1 has no fixity and ends the conversion. The lines
  // are counted, so that the one row that there is stands behind the end of the count.
  const ConversionRun run = ConvertReleases(R"(
   Frame=8   M3I=Yes   PartialFix=No
   Frame=9   M3I=Yes   PartialFix=No
)",
                                            "   Frame=9   M3I=500\n");
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t0, \t,     0,     0,     0,     0,     0,     0",
                          "\t\t,     0,     0,     0,     0,     0,     0,"));
}

TEST(Releases, MissingRowRepeatsTheRecordBefore) {
  // Rows 1 to 5 are walked in the order 5, 2, 4, 1, 3: row 3 has no fixity and is missing. The
  // lines are counted to four, so that row 5 stands behind the end of the count.
  const ConversionRun run = ConvertReleases(R"(
   Frame=11   PI=Yes   PartialFix=No
   Frame=12   TJ=Yes   PartialFix=Yes
   Frame=13   TI=Yes   PartialFix=No
   Frame=14   M3I=Yes   PartialFix=No
   Frame=15   M2I=Yes   PartialFix=No
)",
                                            R"(
   Frame=11   PI=0
   Frame=12   TJ=25
   Frame=14   PI=0
   Frame=15   PI=0
)");
  EXPECT_THAT(run.Lines("*FRAME-RLS"),
              ElementsAre("\t11, \t100000,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,",
                          "\t12, \t000000,     0,     0,     0,     0,     0,     0",
                          "\t\t000100,     0,     0,     0,     1,     0,     0,",
                          "\t12, \t000000,     0,     0,     0,     0,     0,     0",
                          "\t\t000100,     0,     0,     0,     1,     0,     0,",
                          "\t14, \t000010,     0,     0,     0,     0,     0,     0",
                          "\t\t000000,     0,     0,     0,     0,     0,     0,"));
}

// Offsets

TEST(Offsets, SectionOfEndLengthsAndGlobalOffsets) {
  const ConversionRun run =
      ConvertOffsets("   Frame=7   Type=User   LengthI=0.1   LengthJ=0   RigidFactor=1\n",
                     "   Frame=8   CardinalPt=\"10 (Centroid)\"   CoordSys=GLOBAL   JtOffsetXI=0.1"
                     "   JtOffsetYI=-0.2   JtOffsetZI=0.3   JtOffsetXJ=1E-06   JtOffsetYJ=1234567"
                     "   JtOffsetZJ=0.6\n");
  EXPECT_EQ(run.Section("*OFFSET"),
            "*OFFSET    ; Beam End Offsets\n"
            "; ELEM_LIST, TYPE, RGDXi, RGDYi, RGDZi, RGDXj, RGDYj, RGDZj, GROUP  ; TYPE=GLOBAL\n"
            "; ELEM_LIST, TYPE, RGDi, RGDj, GROUP                                ; TYPE=ELEMENT\n"
            "\t7, ELEMENT,   0.1,     0,\n"
            "\t8, GLOBAL,   0.1,  -0.2,   0.3, 1e-06, 1.23457e+06,   0.6,\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Offsets, EndLengthsOfZeroGiveNoRow) {
  const ConversionRun run = ConvertOffsets(R"(
   Frame=1   LengthI=0   LengthJ=0
   Frame=2   LengthI=1E-15   LengthJ=0
   Frame=3   LengthI=-4E-16   LengthJ=4E-16
)",
                                           "");
  EXPECT_EQ(run.Section("*OFFSET"), "");
}

TEST(Offsets, EndLengthsAreTestedByTheSumOfTheirAbsoluteValues) {
  // Rows 1, 2, 3 are walked, and so written, in the order 3, 2, 1.
  const ConversionRun run = ConvertOffsets(R"(
   Frame=1   LengthI=-0.5   LengthJ=0.5
   Frame=2   LengthI=0   LengthJ=0.25
   Frame=3   LengthI=6E-16   LengthJ=6E-16
)",
                                           "");
  EXPECT_THAT(run.Lines("*OFFSET"), ElementsAre("\t3, ELEMENT, 6e-16, 6e-16,",  //
                                                "\t2, ELEMENT,     0,  0.25,",  //
                                                "\t1, ELEMENT,  -0.5,   0.5,"));
}

TEST(Offsets, JointOffsetsAreTestedByTheSumOfTheirAbsoluteValues) {
  // Rows 1 to 4 are walked, and so written, in the order 3, 2, 1, 4.
  const ConversionRun run = ConvertOffsets("", R"(
   Frame=1   CoordSys=GLOBAL   JtOffsetXI=-0.5   JtOffsetZJ=0.5
   Frame=2   CoordSys=GLOBAL   JtOffsetXI=0   JtOffsetYI=0
   Frame=3   CoordSys=GLOBAL   JtOffsetYJ=2E-15
   Frame=4   CoordSys=GLOBAL   JtOffsetYJ=1E-15
)");
  EXPECT_THAT(run.Lines("*OFFSET"),
              ElementsAre("\t3, GLOBAL,     0,     0,     0,     0, 2e-15,     0,",
                          "\t1, GLOBAL,  -0.5,     0,     0,     0,     0,   0.5,"));
}

TEST(Offsets, EachJointOffsetCountsForTheTest) {
  struct Case {
    const char* Key;
    const char* Line;
  };
  const Case cases[] = {
      {"JtOffsetXI", "\t1, GLOBAL,   0.2,     0,     0,     0,     0,     0,"},
      {"JtOffsetYI", "\t1, GLOBAL,     0,   0.2,     0,     0,     0,     0,"},
      {"JtOffsetZI", "\t1, GLOBAL,     0,     0,   0.2,     0,     0,     0,"},
      {"JtOffsetXJ", "\t1, GLOBAL,     0,     0,     0,   0.2,     0,     0,"},
      {"JtOffsetYJ", "\t1, GLOBAL,     0,     0,     0,     0,   0.2,     0,"},
      {"JtOffsetZJ", "\t1, GLOBAL,     0,     0,     0,     0,     0,   0.2,"},
  };
  for (const Case& c : cases) {
    const ConversionRun run =
        ConvertOffsets("", std::string("   Frame=1   CoordSys=GLOBAL   ") + c.Key + "=0.2\n");
    EXPECT_THAT(run.Lines("*OFFSET"), ElementsAre(c.Line)) << c.Key;
  }
}

TEST(Offsets, JointOffsetReplacesTheEndLengthsInTheirPlaceWithAMessage) {
  // The end lengths of rows 1, 2, 3 are walked in the order 3, 2, 1.
  const ConversionRun run = ConvertOffsets(R"(
   Frame=1   LengthI=0.1   LengthJ=0.1
   Frame=2   LengthI=0.2   LengthJ=0.2
   Frame=3   LengthI=0.3   LengthJ=0.3
)",
                                           R"(
   Frame=2   CoordSys=GLOBAL   JtOffsetXI=1   JtOffsetYI=2   JtOffsetZI=3   JtOffsetXJ=4
   Frame=4   CoordSys=GLOBAL   JtOffsetZJ=6
)");
  EXPECT_THAT(run.Lines("*OFFSET"),
              ElementsAre("\t3, ELEMENT,   0.3,   0.3,",  //
                          "\t2, GLOBAL,     1,     2,     3,     4,     0,     0,",
                          "\t1, ELEMENT,   0.1,   0.1,",
                          "\t4, GLOBAL,     0,     0,     0,     0,     0,     6,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_OFFSET_REPLACE_GLOBAL"));
}

TEST(Offsets, ReplacingMessageNamesTheFrameAndReadsNoFormatInItsLabel) {
  ASSERT_TRUE(s2k2ngt::CMsgDll::Load());
  const std::string text = s2k2ngt::LoadStr("IDS_S2KV8_OFFSET_REPLACE_GLOBAL");
  const std::size_t place = text.find("%s");
  ASSERT_NE(place, std::string::npos);
  for (const std::string label : {"12", "B%s%d7", "50%"}) {
    const ConversionRun run =
        ConvertOffsets("   Frame=" + label + "   LengthI=0.1   LengthJ=0.1\n",
                       "   Frame=" + label + "   CoordSys=GLOBAL   JtOffsetXI=1\n");
    EXPECT_THAT(run.MessageTexts,
                ElementsAre(text.substr(0, place) + label + text.substr(place + 2)));
  }
  s2k2ngt::CMsgDll::Free();
}

TEST(Offsets, SecondJointOffsetOfAFrameReplacesTheFirstOfTheWalk) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const ConversionRun run = ConvertOffsets("", R"(
   Frame=1   CoordSys=GLOBAL   JtOffsetXI=0.1
   Frame=1   CoordSys=GLOBAL   JtOffsetXI=0.2
)");
  EXPECT_THAT(run.Lines("*OFFSET"),
              ElementsAre("\t1, GLOBAL,   0.1,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_OFFSET_REPLACE_GLOBAL"));
}

TEST(Offsets, OfTwoEndLengthsOfAFrameTheOneThatTheWalkMeetsFirstIsReplaced) {
  // The rows are walked in the order 2, 1 and get the keys 1 and 2, which are walked in the order
  // 2, 1 in turn.
  const ConversionRun run = ConvertOffsets(R"(
   Frame=1   LengthI=0.1   LengthJ=0.1
   Frame=1   LengthI=0.2   LengthJ=0.2
)",
                                           "   Frame=1   CoordSys=GLOBAL   JtOffsetXI=1\n");
  EXPECT_THAT(run.Lines("*OFFSET"),
              ElementsAre("\t1, ELEMENT,   0.2,   0.2,",
                          "\t1, GLOBAL,     1,     0,     0,     0,     0,     0,"));
}

TEST(Offsets, LabelsOfOneNumberInTwoSpellingsAreTwoFrames) {
  const ConversionRun run = ConvertOffsets("   Frame=01   LengthI=0.1   LengthJ=0\n",
                                           "   Frame=1   CoordSys=GLOBAL   JtOffsetXI=1\n");
  EXPECT_THAT(run.Lines("*OFFSET"),
              ElementsAre("\t1, ELEMENT,   0.1,     0,",
                          "\t1, GLOBAL,     1,     0,     0,     0,     0,     0,"));
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Offsets, LocalJointOffsetsAreLostWithOneMessage) {
  const ConversionRun run = ConvertOffsets("   Frame=1   LengthI=0.1   LengthJ=0.2\n", R"(
   Frame=1   CoordSys=Local   JtOffsetXI=1
   Frame=2   CoordSys=Local   JtOffsetZJ=1
   Frame=3   CoordSys=Local   JtOffsetYI=1
)");
  EXPECT_THAT(run.Lines("*OFFSET"), ElementsAre("\t1, ELEMENT,   0.1,   0.2,"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_OFFSET_LOCAL_DIR"));
}

TEST(Offsets, LocalMessageIsShownEvenWhenNothingIsWritten) {
  const ConversionRun run =
      ConvertOffsets("", "   Frame=1   CoordSys=Local   JtOffsetXI=1   JtOffsetXJ=1\n");
  EXPECT_EQ(run.Section("*OFFSET"), "");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_OFFSET_LOCAL_DIR"));
}

TEST(Offsets, LocalMessageFollowsTheReplacingOnes) {
  // Rows 1, 2, 3 are walked in the order 3, 2, 1.
  const ConversionRun run = ConvertOffsets("   Frame=1   LengthI=0.1   LengthJ=0.2\n", R"(
   Frame=1   CoordSys=GLOBAL   JtOffsetXI=1
   Frame=2   CoordSys=GLOBAL   JtOffsetXI=1
   Frame=3   CoordSys=Local   JtOffsetXI=1
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_OFFSET_REPLACE_GLOBAL", "IDS_S2KV8_OFFSET_LOCAL_DIR"));
}

TEST(Offsets, LocalJointOffsetsOfZeroGiveNoMessage) {
  const ConversionRun run = ConvertOffsets(
      "", "   Frame=1   CardinalPt=\"8 (Top Center)\"   CoordSys=Local   JtOffsetXI=0\n");
  EXPECT_EQ(run.Section("*OFFSET"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Offsets, CoordinateSystemIsUpperCased) {
  for (const char* system : {"GLOBAL", "Global", "global"}) {
    const ConversionRun run =
        ConvertOffsets("", std::string("   Frame=1   CoordSys=") + system + "   JtOffsetXI=1\n");
    EXPECT_THAT(run.Lines("*OFFSET"),
                ElementsAre("\t1, GLOBAL,     1,     0,     0,     0,     0,     0,"))
        << system;
  }
}

TEST(Offsets, OtherCoordinateSystemTakesARowAndPrintsNoLine) {
  for (const char* system : {"local", "LOCAL", "Ramp", ""}) {
    const ConversionRun run =
        ConvertOffsets("", std::string("   Frame=1   JtOffsetXI=1   CoordSys=") + system + "\n");
    EXPECT_EQ(run.Section("*OFFSET"),
              "*OFFSET    ; Beam End Offsets\n"
              "; ELEM_LIST, TYPE, RGDXi, RGDYi, RGDZi, RGDXj, RGDYj, RGDZj, GROUP  ; TYPE=GLOBAL\n"
              "; ELEM_LIST, TYPE, RGDi, RGDj, GROUP                                ; TYPE=ELEMENT\n"
              "\n")
        << system;
    EXPECT_THAT(run.Messages, IsEmpty()) << system;
  }
}

TEST(Offsets, OtherCoordinateSystemReplacesTheEndLengthsToo) {
  const ConversionRun run = ConvertOffsets("   Frame=1   LengthI=0.1   LengthJ=0.2\n",
                                           "   Frame=1   CoordSys=Ramp   JtOffsetXI=1\n");
  EXPECT_THAT(run.Lines("*OFFSET"), IsEmpty());
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_OFFSET_REPLACE_GLOBAL"));
}

TEST(Offsets, SystemNamedElementPrintsItsOffsetsAlongXAsLengths) {
  const ConversionRun run = ConvertOffsets(
      "", "   Frame=1   CoordSys=Element   JtOffsetXI=1   JtOffsetYI=2   JtOffsetXJ=4\n");
  EXPECT_THAT(run.Lines("*OFFSET"), ElementsAre("\t1, ELEMENT,     1,     4,"));
}

TEST(EndConditions, OffsetsAndReleasesOfOneEndGiveNoMessage) {
  const ConversionRun run = Convert(std::string(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME RELEASE ASSIGNMENTS 1 - GENERAL"
   Frame=1   M3I=Yes   PartialFix=Yes

TABLE:  "FRAME OFFSET (LENGTH) ASSIGNMENTS"
   Frame=1   LengthI=0.1   LengthJ=0
)"));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_BEAM_End_Release"));
  EXPECT_LT(run.Output.find("*ELEMENT"), run.Output.find("*OFFSET"));
  EXPECT_LT(run.Output.find("*OFFSET"), run.Output.find("*FRAME-RLS"));
}

}  // namespace
