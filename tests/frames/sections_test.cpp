#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The second and third line of a section without properties.
constexpr const char* kNoStiffness = "\t\t0,     0,     0,     0,     0,     0";
constexpr const char* kNothingFurther =
    "\t\t0,     0,     0,     0,     0,     0,     0,     0,     0,     0";

TEST(Sections, RectangleGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=B300X600   Material=C30   Shape=Rectangular   t3=0.6   t2=0.3   Area=0.18   TorsConst=0.003708   I33=0.0054   I22=0.00135   AS2=0.15   AS3=0.14   S33=0.018   S22=0.009   Z33=0.027   Z22=0.0135   R33=0.173   R22=0.0866   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=1
)");
  EXPECT_EQ(
      run.Section("*SECTION"),
      "*SECTION    ; Section\n"
      "\n"
      "; iSEC, TYPE, SNAME, OFFSET, SHAPE, [DATA] {, CCSHAPE}                     ; DB/USER\n"
      "; iSEC, TYPE, SNAME, OFFSET, SHAPE, BLT, D1, D2, D3, D4, D5, D6            ; 1st line - "
      "VALUE\n"
      ";       AREA, ASy, ASz, Ixx, Iyy, Izz                                      ; 2nd line\n"
      ";       CyP, CyM, CzP, CzM, QyB, QzB, PERI_OUT, PERI_IN, Cy, Cz            ; 3rd line\n"
      "; iSEC, TYPE, SNAME, OFFSET, SHAPE, iyVAR, izVAR, STYPE                    ; 1st line - "
      "TAPERED\n"
      ";       [DIM1], [DIM2]                                                     ; 2nd "
      "line(STYPE=USER)\n"
      ";       D11, D12, D13, D14, D15, D16                                       ; 2nd "
      "line(STYPE=VALUE)\n"
      ";       AREA1, ASy1, ASz1, Ixx1, Iyy1, Izz1                                ; 3rd "
      "line(STYPE=VALUE)\n"
      ";       CyP1, CyM1, CzP1, CzM1, QyB1, QzB1, PERI_OUT1, PERI_IN1, Cy1, Cz1  ; 4th "
      "line(STYPE=VALUE)\n"
      ";       D21, D22, D23, D24, D25, D26                                       ; 5th "
      "line(STYPE=VALUE)\n"
      ";       AREA2, ASy2, ASz2, Ixx2, Iyy2, Izz2                                ; 6th "
      "line(STYPE=VALUE)\n"
      ";       CyP2, CyM2, CzP2, CzM2, QyB2, QzB2, PERI_OUT2, PERI_IN2, Cy2, Cz2  ; 7th "
      "line(STYPE=VALUE)\n"
      "; [DATA] : 1, DB, NAME or 2, D1, D2, D3, D4, D5, D6\n"
      "; [DIM1], [DIM2] : D1, D2, D3, D4, D5, D6\n"
      "\t1, VALUE, B300X600,    CC,    SB, BUILT,   0.6,   0.3,     0,     0,     0,     0\n"
      "\t\t0.18,  0.15,  0.14, 0.003708, 0.0054, 0.00135\n"
      "\t\t0,     0,     0,     0,     0,     0,     0,     0,     0,     0\n"
      "\n");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Sections, NoSectionsWriteNothing) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=B300X600
)");
  EXPECT_EQ(run.Section("*SECTION"), "");
}

TEST(Sections, EachShapeHasItsCodeAndDimensions) {
  struct Case {
    const char* Shape;
    const char* Line;
  };
  // Of dimensions D3 is the web's thickness and D4 the flange's.
  const std::vector<Case> cases = {
      {"I/Wide Flange",
       "\t1, VALUE,    S1,    CC,     H, BUILT,   0.6,   0.3,  0.01,  0.02,  0.25, 0.015"},
      {"Channel",
       "\t1, VALUE,    S1,    CC,     C, BUILT,   0.6,   0.3,  0.01,  0.02,  0.25, 0.015"},
      {"Tee", "\t1, VALUE,    S1,    CC,     T, BUILT,   0.6,   0.3,  0.01,  0.02,  0.25, 0.015"},
      {"Angle", "\t1, VALUE,    S1,    CC,     L, BUILT,   0.6,   0.3,  0.01,  0.02,  0.25, 0.015"},
      {"Double Angle",
       "\t1, VALUE,    S1,    CC,    2L, BUILT,   0.6, 0.125,  0.01,  0.02,  0.05,     0"},
      {"Box/Tube",
       "\t1, VALUE,    S1,    CC,     B, BUILT,   0.6,   0.3,  0.01,  0.02,  0.25, 0.015"},
      {"Pipe", "\t1, VALUE,    S1,    CC,     P, BUILT,   0.6,  0.01,     0,     0,     0,     0"},
      {"Rectangular",
       "\t1, VALUE,    S1,    CC,    SB, BUILT,   0.6,   0.3,  0.01,  0.02,  0.25, 0.015"},
      {"Circle",
       "\t1, VALUE,    S1,    CC,    SR, BUILT,   0.6,   0.3,  0.01,  0.02,  0.25, 0.015"},
      {"General",
       "\t1, VALUE,    S1,    CC,    SB, BUILT,   0.6,   0.3,  0.01,  0.02,  0.25, 0.015"}};
  for (const auto& [shape, line] : cases) {
    SCOPED_TRACE(shape);
    const ConversionRun run = Convert(
        "TABLE:  \"FRAME SECTION PROPERTIES 1 - GENERAL\"\n"
        "   SectionName=S1   Material=STEEL   Shape=\"" +
        std::string(shape) +
        "\"   t3=0.6   t2=0.3   tf=0.02   tw=0.01   t2b=0.25   tfb=0.015   dis=0.05\n");
    EXPECT_THAT(run.Lines("*SECTION"), ElementsAre(line, kNoStiffness, kNothingFurther));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(Sections, PipePrintsDiameterAndThickness) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=PIP500   Shape=Pipe   t3=0.5   tw=0.01
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE, PIP500,    CC,     P, BUILT,   0.5,  0.01,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
}

TEST(Sections, DoubleAnglePrintsTheWidthOfOneLegAndTheDistance) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=2L150   Shape="Double Angle"   t3=0.15   t2=0.3   tf=0.012   tw=0.01   dis=0.02
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE, 2L150,    CC,    2L, BUILT,  0.15,  0.14,  0.01, 0.012,  0.02,     0",
          kNoStiffness, kNothingFurther));
}

TEST(Sections, PropertiesCrossFromAxes3And2ToYAndZ) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=G1   Shape=General   Area=11   AS2=22   AS3=33   TorsConst=44   I33=55   I22=66
)");
  EXPECT_THAT(run.Lines("*SECTION"),
              ElementsAre("\t1, VALUE,    G1,    CC,    SB, BUILT,     0,     0,     0,     0,     "
                          "0,     0",
                          "\t\t11,    22,    33,    44,    55,    66", kNothingFurther));
}

TEST(Sections, LinesComeInKeyOrder) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=D1   Shape=Circle   t3=0.1
   SectionName=D2   Shape=Circle   t3=0.2
   SectionName=D3   Shape=Circle   t3=0.3
   SectionName=D4   Shape=Circle   t3=0.4
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE,    D1,    CC,    SR, BUILT,   0.1,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther,
          "\t2, VALUE,    D2,    CC,    SR, BUILT,   0.2,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther,
          "\t3, VALUE,    D3,    CC,    SR, BUILT,   0.3,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther,
          "\t4, VALUE,    D4,    CC,    SR, BUILT,   0.4,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
}

TEST(Sections, NameWithBlanksIsPrintedAsItStands) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName="Main girder"   Shape=Circle   t3=0.1
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE, Main girder,    CC,    SR, BUILT,   0.1,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
}

TEST(Sections, EmptyNameIsPadded) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   Shape=Circle   t3=0.1
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE,      ,    CC,    SR, BUILT,   0.1,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
}

// ---- Dropped sections ----

constexpr const char* kDefaultLineOf1 =
    "\t1, DBUSER,      ,    CC,    SB, 2,     0,     0,     0,     0,     0,     0";

TEST(DroppedSections, NumberPrintsTheDefaultLineAndTheHighestIsNotPrinted) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=D1   Shape=Circle   t3=0.1
   SectionName=CELLS   Shape="SD Section"   t3=0.2
   SectionName=D3   Shape=Circle   t3=0.3
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE,    D1,    CC,    SR, BUILT,   0.1,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther,
          "\t2, DBUSER,      ,    CC,    SB, 2,     0,     0,     0,     0,     0,     0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SECT_Not_Trans"));
}

TEST(DroppedSections, LastOneLeavesTheOthersAsTheyAre) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=D1   Shape=Circle   t3=0.1
   SectionName=CELLS   Shape="SD Section"   t3=0.2
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE,    D1,    CC,    SR, BUILT,   0.1,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SECT_Not_Trans"));
}

TEST(DroppedSections, AsManyAsAreKeptHideTheKeptOnes) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=CELLS1   Shape="SD Section"
   SectionName=CELLS2   Shape="SD Section"
   SectionName=D3   Shape=Circle   t3=0.3
   SectionName=D4   Shape=Circle   t3=0.4
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(kDefaultLineOf1,
                  "\t2, DBUSER,      ,    CC,    SB, 2,     0,     0,     0,     0,     0,     0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SECT_Not_Trans"));
}

TEST(DroppedSections, ShapeIsTestedExactly) {
  for (const char* shape : {"rectangular", "CIRCLE", "Box", "Wide Flange", "I/Wide flange",
                            "Double Channel", "Auto Select", "nonprismatic", " Pipe", ""}) {
    SCOPED_TRACE(shape);
    const ConversionRun run = Convert(
        "TABLE:  \"FRAME SECTION PROPERTIES 1 - GENERAL\"\n"
        "   SectionName=S1   Material=STEEL   Shape=\"" +
        std::string(shape) +
        "\"   t3=0.6   t2=0.3\n"
        "   SectionName=D2   Material=STEEL   Shape=Circle   t3=0.2\n");
    EXPECT_THAT(run.Lines("*SECTION"), ElementsAre(kDefaultLineOf1));
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SECT_Not_Trans"));
  }
}

TEST(DroppedSections, RowWithoutAShapeIsDropped) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=D1   Shape=Circle   t3=0.1
   SectionName=S2   Material=STEEL   t3=0.6
)");
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE,    D1,    CC,    SR, BUILT,   0.1,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_SECT_Not_Trans"));
}

TEST(DroppedSections, MessageIsSilentWhenAllAreDropped) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=CELLS   Shape="SD Section"
)");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Section("*SECTION"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(DroppedSections, FramesKeepTheNumber) {
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=STEEL   Type=Isotropic   DesignType=Steel   E=200000000   U=0.3

TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=D1   Material=STEEL   Shape=Circle   t3=0.1
   SectionName=CELLS   Material=STEEL   Shape="SD Section"

TABLE:  "CONNECTIVITY - FRAME"
   Frame=8   JointI=1   JointJ=2

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=8   AnalSect=CELLS
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t8,  BEAM,     1,     2,     1,     2,     0"));
  EXPECT_THAT(
      run.Lines("*SECTION"),
      ElementsAre(
          "\t1, VALUE,    D1,    CC,    SR, BUILT,   0.1,     0,     0,     0,     0,     0",
          kNoStiffness, kNothingFurther));
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert", "IDS_S2KV8_SECT_Not_Trans"));
}

}  // namespace
