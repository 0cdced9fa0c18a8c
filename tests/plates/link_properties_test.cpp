#include "plates/links.h"
#include "support/conversion_run.h"
#include "support/writer_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr const char* kLink = R"(
TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=1   LinkType=MultiLinear   LinkJoint=TwoJoint   LinkProp=M1

)";

constexpr const char* kGeneral = "TABLE:  \"LINK PROPERTY DEFINITIONS 01 - GENERAL\"\n";
constexpr const char* kDamper = "TABLE:  \"LINK PROPERTY DEFINITIONS 04 - DAMPER\"\n";
constexpr const char* kGap = "TABLE:  \"LINK PROPERTY DEFINITIONS 05 - GAP\"\n";

/// A kind of property and the table of its directions.
struct Kind {
  const char* LinkType;
  const char* Title;
  const char* TYPE;  // padded
};

constexpr Kind kKinds[] = {
    {"Damper", "LINK PROPERTY DEFINITIONS 04 - DAMPER", "   VD"},
    {"Gap", "LINK PROPERTY DEFINITIONS 05 - GAP", "  GAP"},
    {"Hook", "LINK PROPERTY DEFINITIONS 06 - HOOK", " HOOK"},
    {"Rubber Isolator", "LINK PROPERTY DEFINITIONS 07 - RUBBER ISOLATOR", " LRBI"},
    {"Friction Isolator", "LINK PROPERTY DEFINITIONS 08 - FRICTION ISOLATOR", " FPSI"},
    {"Plastic (Wen)", "LINK PROPERTY DEFINITIONS 09 - PLASTIC (WEN)", "   HS"},
};

/// A model of property P of this kind and weight 2.5, with these rows of its directions.
ConversionRun ConvertProperty(const Kind& kind, const std::string& rows) {
  return Convert(
      std::string(kLink) + kGeneral + "   Link=P   LinkType=\"" + kind.LinkType +
      "\"   Mass=0.25   Weight=2.5   RotInert1=1   RotInert2=2   RotInert3=3\n\nTABLE:  \"" +
      kind.Title + "\"\n" + rows);
}

constexpr const char* kNoDirection = "\t\tNO,     0,    NO";

// Each kind; the axes 2 and 3 are exchanged. Keys that do not count in their row are 99.

TEST(LinkProperties, DamperGivesTheWholeSection) {
  const ConversionRun run = ConvertProperty(
      kKinds[0],
      R"(   Link=P   DOF=U1   NonLinear=Yes   TransKE=11   RotKE=99   TransCE=12   RotCE=99   DJ=0   TransK=13   RotK=99   TransC=14   RotC=99   CExp=0.15
   Link=P   DOF=U2   NonLinear=Yes   TransKE=21   RotKE=99   TransCE=22   RotCE=99   DJ=0   TransK=23   RotK=99   TransC=24   RotC=99   CExp=0.25
   Link=P   DOF=U3   NonLinear=Yes   TransKE=31   RotKE=99   TransCE=32   RotCE=99   DJ=0   TransK=33   RotK=99   TransC=34   RotC=99   CExp=0.35
   Link=P   DOF=R1   NonLinear=Yes   TransKE=99   RotKE=41   TransCE=99   RotCE=42   DJ=0   TransK=99   RotK=43   TransC=99   RotC=44   CExp=0.45
   Link=P   DOF=R2   NonLinear=Yes   TransKE=99   RotKE=51   TransCE=99   RotCE=52   DJ=0   TransK=99   RotK=53   TransC=99   RotC=54   CExp=0.55
   Link=P   DOF=R3   NonLinear=Yes   TransKE=99   RotKE=61   TransCE=99   RotCE=62   DJ=0   TransK=99   RotK=63   TransC=99   RotC=64   CExp=0.65
)");
  EXPECT_EQ(
      run.Section("*NL-PROP"),
      "*NL-PROP    ; Nonlinear Link Property\n"
      "; NAME, TYPE, TW, bSSL, DY, DZ, DESC\n"
      "; bLDX, DX, bNDX, [NL_PROP]\n"
      "; bLDY, DY, bNDY, [NL_PROP]\n"
      "; bLDZ, DZ, bNDZ, [NL_PROP]\n"
      "; bLRX, RX, bNRX, [NL_PROP]\n"
      "; bLRY, RY, bNRY, [NL_PROP]\n"
      "; bLRZ, RZ, bNRZ, [NL_PROP]\n"
      "; [NL_PROP] : DSTIFF, DAMP, DEXP, bRIGDBR, BSTIFF, EFFDAMP    ; Visco-elastic Damper "
      "Type\n"
      "; [NL_PROP] : STIFF, OPEN, EFFDAMP                            ; Gap Type or Hook Type\n"
      "; [NL_PROP] : STIFF, YSTR, PYS_RATIO, YEXP, PA, PB, EFFDAMP   ; Hysteretic System "
      "Type\n"
      "; [NL_PROP] : STIFF, YSTR, PYS_RATIO, PA, PB, EFFDAMP         ; Lead Rubber Bearing "
      "Type\n"
      "; [NL_PROP] : STIFF, FCS, FCF, RP, RADIUS, PA, PB, EFFDAMP    ; Friction Pendulum "
      "System Type\n"
      "\tP,    VD,   2.5,    NO,     0,     0,      \n"
      "\t\tYES,    11,   YES,    13,    14,  0.15,   YES,     0,    12\n"
      "\t\tYES,    31,   YES,    33,    34,  0.35,   YES,     0,    32\n"
      "\t\tYES,    21,   YES,    23,    24,  0.25,   YES,     0,    22\n"
      "\t\tYES,    41,   YES,    43,    44,  0.45,   YES,     0,    42\n"
      "\t\tYES,    61,   YES,    63,    64,  0.65,   YES,     0,    62\n"
      "\t\tYES,    51,   YES,    53,    54,  0.55,   YES,     0,    52\n"
      "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(LinkProperties, GapAndHookHaveTheirStiffnessAndOpening) {
  for (const Kind& kind : {kKinds[1], kKinds[2]}) {
    SCOPED_TRACE(kind.LinkType);
    const ConversionRun run = ConvertProperty(
        kind,
        R"(   Link=P   DOF=U1   NonLinear=Yes   TransKE=11   RotKE=99   TransCE=12   RotCE=99   DJ=0   TransK=13   RotK=99   TransOpen=14   RotOpen=99
   Link=P   DOF=U2   NonLinear=Yes   TransKE=21   RotKE=99   TransCE=22   RotCE=99   DJ=0   TransK=23   RotK=99   TransOpen=24   RotOpen=99
   Link=P   DOF=U3   NonLinear=Yes   TransKE=31   RotKE=99   TransCE=32   RotCE=99   DJ=0   TransK=33   RotK=99   TransOpen=34   RotOpen=99
   Link=P   DOF=R1   NonLinear=Yes   TransKE=99   RotKE=41   TransCE=99   RotCE=42   DJ=0   TransK=99   RotK=43   TransOpen=99   RotOpen=44
   Link=P   DOF=R2   NonLinear=Yes   TransKE=99   RotKE=51   TransCE=99   RotCE=52   DJ=0   TransK=99   RotK=53   TransOpen=99   RotOpen=54
   Link=P   DOF=R3   NonLinear=Yes   TransKE=99   RotKE=61   TransCE=99   RotCE=62   DJ=0   TransK=99   RotK=63   TransOpen=99   RotOpen=64
)");
    EXPECT_THAT(run.Lines("*NL-PROP"), ElementsAre("\tP, " + std::string(kind.TYPE) +
                                                       ",   2.5,    NO,     0,     0,      ",
                                                   "\t\tYES,    11,   YES,    13,    14,    12",
                                                   "\t\tYES,    31,   YES,    33,    34,    32",
                                                   "\t\tYES,    21,   YES,    23,    24,    22",
                                                   "\t\tYES,    41,   YES,    43,    44,    42",
                                                   "\t\tYES,    61,   YES,    63,    64,    62",
                                                   "\t\tYES,    51,   YES,    53,    54,    52"));
  }
}

TEST(LinkProperties, PlasticOfWenHasItsYieldValues) {
  const ConversionRun run = ConvertProperty(
      kKinds[5],
      R"(   Link=P   DOF=U1   NonLinear=Yes   TransKE=11   RotKE=99   TransCE=12   RotCE=99   DJ=0   TransK=13   RotK=99   TransYield=14   RotYield=99   Ratio=0.15   YieldExp=16
   Link=P   DOF=U2   NonLinear=Yes   TransKE=21   RotKE=99   TransCE=22   RotCE=99   DJ=0   TransK=23   RotK=99   TransYield=24   RotYield=99   Ratio=0.25   YieldExp=26
   Link=P   DOF=U3   NonLinear=Yes   TransKE=31   RotKE=99   TransCE=32   RotCE=99   DJ=0   TransK=33   RotK=99   TransYield=34   RotYield=99   Ratio=0.35   YieldExp=36
   Link=P   DOF=R1   NonLinear=Yes   TransKE=99   RotKE=41   TransCE=99   RotCE=42   DJ=0   TransK=99   RotK=43   TransYield=99   RotYield=44   Ratio=0.45   YieldExp=46
   Link=P   DOF=R2   NonLinear=Yes   TransKE=99   RotKE=51   TransCE=99   RotCE=52   DJ=0   TransK=99   RotK=53   TransYield=99   RotYield=54   Ratio=0.55   YieldExp=56
   Link=P   DOF=R3   NonLinear=Yes   TransKE=99   RotKE=61   TransCE=99   RotCE=62   DJ=0   TransK=99   RotK=63   TransYield=99   RotYield=64   Ratio=0.65   YieldExp=66
)");
  EXPECT_THAT(
      run.Lines("*NL-PROP"),
      ElementsAre("\tP,    HS,   2.5,    NO,     0,     0,      ",
                  "\t\tYES,    11,   YES,    13,    14,  0.15,    16,   0.5,   0.5,    12",
                  "\t\tYES,    31,   YES,    33,    34,  0.35,    36,   0.5,   0.5,    32",
                  "\t\tYES,    21,   YES,    23,    24,  0.25,    26,   0.5,   0.5,    22",
                  "\t\tYES,    41,   YES,    43,    44,  0.45,    46,   0.5,   0.5,    42",
                  "\t\tYES,    61,   YES,    63,    64,  0.65,    66,   0.5,   0.5,    62",
                  "\t\tYES,    51,   YES,    53,    54,  0.55,    56,   0.5,   0.5,    52"));
}

TEST(LinkProperties, RubberIsolatorHasItsLongFormOnTheLinesOfDZAndRX) {
  const ConversionRun run = ConvertProperty(
      kKinds[3],
      R"(   Link=P   DOF=U1   NonLinear=Yes   TransKE=11   RotKE=99   TransCE=12   RotCE=99   DJ=0   TransK=13   RotK=99   TransYield=14   Ratio=0.15
   Link=P   DOF=U2   NonLinear=Yes   TransKE=21   RotKE=99   TransCE=22   RotCE=99   DJ=0   TransK=23   RotK=99   TransYield=24   Ratio=0.25
   Link=P   DOF=U3   NonLinear=Yes   TransKE=31   RotKE=99   TransCE=32   RotCE=99   DJ=0   TransK=33   RotK=99   TransYield=34   Ratio=0.35
   Link=P   DOF=R1   NonLinear=Yes   TransKE=99   RotKE=41   TransCE=99   RotCE=42   DJ=0   TransK=99   RotK=99   TransYield=99   Ratio=99
   Link=P   DOF=R2   NonLinear=Yes   TransKE=99   RotKE=51   TransCE=99   RotCE=52   DJ=0   TransK=99   RotK=99   TransYield=99   Ratio=99
   Link=P   DOF=R3   NonLinear=Yes   TransKE=99   RotKE=61   TransCE=99   RotCE=62   DJ=0   TransK=99   RotK=99   TransYield=99   Ratio=99
)");
  EXPECT_THAT(
      run.Lines("*NL-PROP"),
      ElementsAre("\tP,  LRBI,   2.5,    NO,     0,     0,      ",
                  "\t\tYES,    11,   YES,    13,    12", "\t\tYES,    31,   YES,    33,    32",
                  "\t\tYES,    21,   YES,    23,    24,  0.25,   0.5,   0.5,    22",
                  "\t\tYES,    41,   YES,     0,     0,     0,     0,     0,    42",
                  "\t\tYES,    61,   YES,     0,    62", "\t\tYES,    51,   YES,     0,    52"));
}

TEST(LinkProperties, FrictionIsolatorHasItsLongFormOnTheLinesOfDZAndRX) {
  const ConversionRun run = ConvertProperty(
      kKinds[4],
      R"(   Link=P   DOF=U1   NonLinear=Yes   TransKE=11   RotKE=99   TransCE=12   RotCE=99   DJ=0   TransK=13   RotK=99   Slow=0.14   Fast=0.15   Rate=16   Radius=17
   Link=P   DOF=U2   NonLinear=Yes   TransKE=21   RotKE=99   TransCE=22   RotCE=99   DJ=0   TransK=23   RotK=99   Slow=0.24   Fast=0.25   Rate=26   Radius=27
   Link=P   DOF=U3   NonLinear=Yes   TransKE=31   RotKE=99   TransCE=32   RotCE=99   DJ=0   TransK=33   RotK=99   Slow=0.34   Fast=0.35   Rate=36   Radius=37
   Link=P   DOF=R1   NonLinear=Yes   TransKE=99   RotKE=41   TransCE=99   RotCE=42   DJ=0   TransK=99   RotK=99   Slow=99   Fast=99   Rate=99   Radius=99
   Link=P   DOF=R2   NonLinear=Yes   TransKE=99   RotKE=51   TransCE=99   RotCE=52   DJ=0   TransK=99   RotK=99   Slow=99   Fast=99   Rate=99   Radius=99
   Link=P   DOF=R3   NonLinear=Yes   TransKE=99   RotKE=61   TransCE=99   RotCE=62   DJ=0   TransK=99   RotK=99   Slow=99   Fast=99   Rate=99   Radius=99
)");
  EXPECT_THAT(
      run.Lines("*NL-PROP"),
      ElementsAre("\tP,  FPSI,   2.5,    NO,     0,     0,      ",
                  "\t\tYES,    11,   YES,    13,    12", "\t\tYES,    31,   YES,    33,    32",
                  "\t\tYES,    21,   YES,    23,  0.24,  0.25,    26,    27,   0.5,   0.5,    22",
                  "\t\tYES,    41,   YES,     0,     0,     0,     0,     0,     0,     0,    42",
                  "\t\tYES,    61,   YES,     0,    62", "\t\tYES,    51,   YES,     0,    52"));
}

// What all kinds share

TEST(LinkProperties, DirectionThatIsNotNonlinearHasItsLinearStiffnessAlone) {
  for (const Kind& kind : kKinds) {
    for (const char* word : {"No", "yes", "YES", ""}) {
      SCOPED_TRACE(std::string(kind.LinkType) + " " + word);
      const std::string values =
          std::string("   NonLinear=") + word +
          "   TransKE=7   RotKE=8   TransCE=99   RotCE=99   TransK=99   RotK=99   TransC=99\n";
      const ConversionRun run =
          ConvertProperty(kind, "   Link=P   DOF=U2" + values + "   Link=P   DOF=R1" + values);
      EXPECT_THAT(
          run.Lines("*NL-PROP"),
          ElementsAre("\tP, " + std::string(kind.TYPE) + ",   2.5,    NO,     0,     0,      ",
                      kNoDirection, kNoDirection, "\t\tYES,     7,    NO", "\t\tYES,     8,    NO",
                      kNoDirection, kNoDirection));
    }
  }
}

TEST(LinkProperties, MissingValuesOfANonlinearDirectionAreZero) {
  const std::string rows = "   Link=P   DOF=U1   NonLinear=Yes\n";
  const char* const lines[] = {
      "\t\tYES,     0,   YES,     0,     0,     0,   YES,     0,     0",
      "\t\tYES,     0,   YES,     0,     0,     0",
      "\t\tYES,     0,   YES,     0,     0,     0",
      "\t\tYES,     0,   YES,     0,     0",
      "\t\tYES,     0,   YES,     0,     0",
      "\t\tYES,     0,   YES,     0,     0,     0,     0,   0.5,   0.5,     0"};
  for (std::size_t kind = 0; kind < std::size(kKinds); ++kind) {
    SCOPED_TRACE(kKinds[kind].LinkType);
    EXPECT_EQ(ConvertProperty(kKinds[kind], rows).Lines("*NL-PROP").at(1), lines[kind]);
  }
}

TEST(LinkProperties, DistanceOfDirection2Or3MakesAShearSpringOfAtMostOne) {
  struct Case {
    const char* Row;
    const char* Shear;  // bSSL, DY, DZ
  };
  const Case cases[] = {
      {"DOF=U2   DJ=0.5", "  YES,   0.5,     0"},   {"DOF=U3   DJ=0.5", "  YES,     0,   0.5"},
      {"DOF=U2   DJ=1", "  YES,     1,     0"},     {"DOF=U3   DJ=1", "  YES,     0,     1"},
      {"DOF=U2   DJ=3", "  YES,     1,     0"},     {"DOF=U3   DJ=3", "  YES,     0,     1"},
      {"DOF=U2   DJ=2E-15", "  YES, 2e-15,     0"}, {"DOF=U3   DJ=2E-15", "  YES,     0, 2e-15"},
      {"DOF=U2   DJ=1E-15", "   NO,     0,     0"}, {"DOF=U3   DJ=1E-15", "   NO,     0,     0"},
      {"DOF=U2   DJ=-0.5", "   NO,     0,     0"},  {"DOF=U3   DJ=-0.5", "   NO,     0,     0"},
      {"DOF=U1   DJ=0.5", "   NO,     0,     0"},   {"DOF=R1   DJ=0.5", "   NO,     0,     0"},
      {"DOF=R2   DJ=0.5", "   NO,     0,     0"},   {"DOF=R3   DJ=0.5", "   NO,     0,     0"},
  };
  for (const Kind& kind : kKinds) {
    for (const char* nonlinear : {"No", "Yes"}) {
      for (const Case& c : cases) {
        SCOPED_TRACE(std::string(kind.LinkType) + " " + nonlinear + " " + c.Row);
        const ConversionRun run = ConvertProperty(
            kind, std::string("   Link=P   NonLinear=") + nonlinear + "   " + c.Row + "\n");
        EXPECT_EQ(run.Lines("*NL-PROP").at(0),
                  "\tP, " + std::string(kind.TYPE) + ",   2.5, " + c.Shear + ",      ");
      }
    }
  }
}

TEST(LinkProperties, OfTwoRowsOfADirectionTheLaterOfTheWalkCountsAndWhatItDoesNotSetStays) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const ConversionRun run = ConvertProperty(
      kKinds[1],
      "   Link=P   DOF=U2   NonLinear=No   TransKE=11   TransCE=12   DJ=0   TransK=13   "
      "TransOpen=14\n"
      "   Link=P   DOF=U2   NonLinear=Yes   TransKE=21   TransCE=22   DJ=0.5   TransK=23   "
      "TransOpen=24\n");
  EXPECT_THAT(run.Lines("*NL-PROP"),
              ElementsAre("\tP,   GAP,   2.5,   YES,   0.5,     0,      ", kNoDirection,
                          kNoDirection, "\t\tYES,    11,   YES,    23,    24,    22", kNoDirection,
                          kNoDirection, kNoDirection));
}

TEST(LinkProperties, UnknownDirectionIsPassedOverBeforeAKnownOneAndFallsOnItBehind) {
  // Rows 1 to 5 are walked in the order 5, 2, 4, 1, 3: the first before any known direction, 4 on
  // that of 2, and 3 on that of 1.
  for (const char* unknown : {"U4", "u1", "Z", ""}) {
    SCOPED_TRACE(unknown);
    const std::string dof = std::string("DOF=") + unknown;
    const ConversionRun run =
        ConvertProperty(kKinds[1],
                        "   Link=P   DOF=U3   NonLinear=Yes   TransKE=1   TransK=10\n"
                        "   Link=P   DOF=R3   NonLinear=No   RotKE=2\n"
                        "   Link=P   " +
                            dof +
                            "   NonLinear=No   TransKE=3   RotKE=99   DJ=0.5\n"
                            "   Link=P   " +
                            dof +
                            "   NonLinear=Yes   TransKE=99   RotKE=4   RotK=40\n"
                            "   Link=P   " +
                            dof + "   NonLinear=Yes   TransKE=99   RotKE=99\n");
    EXPECT_THAT(
        run.Lines("*NL-PROP"),
        ElementsAre("\tP,   GAP,   2.5,   YES,     0,   0.5,      ", kNoDirection,
                    "\t\tYES,     3,   YES,    10,     0,     0", kNoDirection, kNoDirection,
                    "\t\tYES,     4,   YES,    40,     0,     0", kNoDirection));
  }
}

TEST(LinkProperties, OnlyTheRowsOfThePropertyCount) {
  const ConversionRun run =
      ConvertProperty(kKinds[1],
                      "   Link=P   DOF=U1   NonLinear=No   TransKE=1\n"
                      "   Link=p   DOF=U2   NonLinear=Yes   TransKE=2   DJ=0.5\n"
                      "   Link=1   DOF=U3   NonLinear=Yes   TransKE=3   DJ=0.5\n");
  EXPECT_THAT(run.Lines("*NL-PROP"),
              ElementsAre("\tP,   GAP,   2.5,    NO,     0,     0,      ", "\t\tYES,     1,    NO",
                          kNoDirection, kNoDirection, kNoDirection, kNoDirection, kNoDirection));
}

TEST(LinkProperties, WithoutARowInATableOfOthersHasItsNameAndType) {
  for (const Kind& kind : kKinds) {
    SCOPED_TRACE(kind.LinkType);
    const ConversionRun run =
        ConvertProperty(kind, "   Link=Q   DOF=U1   NonLinear=No   TransKE=1\n");
    EXPECT_THAT(run.Lines("*NL-PROP"), ElementsAre("\tP, " + std::string(kind.TYPE) +
                                                       ",   2.5,    NO,     0,     0,      ",
                                                   kNoDirection, kNoDirection, kNoDirection,
                                                   kNoDirection, kNoDirection, kNoDirection));
  }
}

TEST(LinkProperties, WithoutTheTableOfItsKindHasItsWeightAlone) {
  for (const Kind& kind : kKinds) {
    SCOPED_TRACE(kind.LinkType);
    const ConversionRun run = ConvertProperty(kind, "");
    EXPECT_THAT(run.Lines("*NL-PROP"),
                ElementsAre("\t,      ,   2.5,    NO,     0,     0,      ", kNoDirection,
                            kNoDirection, kNoDirection, kNoDirection, kNoDirection, kNoDirection));
  }
}

TEST(LinkProperties, OfAnUnknownTypeHasItsWeightAlone) {
  for (const char* type : {"Bilinear", "damper", "GAP", "Plastic", "linear", "Multilinear", ""}) {
    SCOPED_TRACE(type);
    // The table of dampers has rows of the property all the same.
    const ConversionRun run = ConvertProperty(
        {type, kKinds[0].Title, ""}, "   Link=P   DOF=U1   NonLinear=Yes   TransKE=1   DJ=1\n");
    EXPECT_THAT(run.Lines("*NL-PROP"),
                ElementsAre("\t,      ,   2.5,    NO,     0,     0,      ", kNoDirection,
                            kNoDirection, kNoDirection, kNoDirection, kNoDirection, kNoDirection));
  }
}

/// The first lines of properties.
std::vector<std::string> Heads(const ConversionRun& run) {
  std::vector<std::string> lines = run.Lines("*NL-PROP");
  std::erase_if(lines, [](const std::string& line) { return line.starts_with("\t\t"); });
  return lines;
}

TEST(LinkProperties, ComeInTheWalkOfTheirNumbers) {
  // Rows 1 to 3 are walked in the order 2, 1, 3 and get the numbers 1, 2, 3, which are walked in
  // the order 3, 2, 1.
  const ConversionRun run = Convert(std::string(kLink) + kGeneral +
                                    "   Link=D1   LinkType=Damper   Weight=1\n"
                                    "   Link=G1   LinkType=Gap   Weight=2\n"
                                    "   Link=D2   LinkType=Damper\n\n" +
                                    kDamper + "   Link=D1   DOF=U1   NonLinear=No   TransKE=1\n\n" +
                                    kGap + "   Link=G1   DOF=U1   NonLinear=No   TransKE=1\n");
  EXPECT_THAT(Heads(run), ElementsAre("\tD2,    VD,     0,    NO,     0,     0,      ",
                                      "\tD1,    VD,     1,    NO,     0,     0,      ",
                                      "\tG1,   GAP,     2,    NO,     0,     0,      "));
}

TEST(LinkProperties, ThatARowRepeatsComeAgainWithTheWeightOfTheRow) {
  // Rows 1 and 2 are walked in the order 2, 1 and get the numbers 1 and 2, walked 2, 1.
  const ConversionRun run = Convert(std::string(kLink) + kGeneral +
                                    "   Link=D1   LinkType=Damper   Weight=1\n"
                                    "   Link=D1   LinkType=Damper   Weight=2\n\n" +
                                    kDamper + "   Link=D1   DOF=U1   NonLinear=No   TransKE=8\n");
  const std::vector<std::string> lines = run.Lines("*NL-PROP");
  ASSERT_EQ(lines.size(), 14U);
  EXPECT_EQ(lines[0], "\tD1,    VD,     1,    NO,     0,     0,      ");
  EXPECT_EQ(lines[1], "\t\tYES,     8,    NO");
  EXPECT_EQ(lines[7], "\tD1,    VD,     2,    NO,     0,     0,      ");
  EXPECT_EQ(lines[8], "\t\tYES,     8,    NO");
}

TEST(LinkProperties, ThatAreLinearOrLostAreSkippedAndTakeNoNumber) {
  // Rows 1 to 4 are walked in the order 2, 4, 1, 3: D1 gets the number 1 and D2 the number 2, which
  // is walked first.
  for (const char* type : {"Linear", "MultiLinear", "Plastic (Kinematic)"}) {
    SCOPED_TRACE(type);
    const std::string skipped = std::string("   Link=S   LinkType=\"") + type + "\"   Weight=9\n";
    const ConversionRun run =
        Convert(std::string(kLink) + kGeneral + "   Link=D1   LinkType=Damper   Weight=1\n" +
                skipped + "   Link=D2   LinkType=Damper   Weight=2\n" + skipped + "\n" + kDamper +
                "   Link=S   DOF=U1   NonLinear=No   TransKE=1\n");
    EXPECT_THAT(Heads(run), ElementsAre("\tD2,    VD,     2,    NO,     0,     0,      ",
                                        "\tD1,    VD,     1,    NO,     0,     0,      "));
  }
}

TEST(LinkProperties, WithoutTheGeneralTableWriteNothing) {
  const ConversionRun run =
      Convert(std::string(kLink) + kDamper + "   Link=P   DOF=U1   NonLinear=Yes   TransKE=1\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Section("*NL-PROP"), "");
}

TEST(LinkProperties, OfSkippedTypesAloneWriteNothing) {
  const ConversionRun run = Convert(std::string(kLink) + kGeneral +
                                    "   Link=S   LinkType=Linear   Weight=1\n"
                                    "   Link=M   LinkType=MultiLinear   Weight=1\n"
                                    "   Link=K   LinkType=\"Plastic (Kinematic)\"   Weight=1\n");
  EXPECT_EQ(run.Section("*NL-PROP"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

// Properties that are lost. No stage asks for them, so that no source file leads to their messages.

TEST(LostLinkProperties, AreAnsweredAtTheHeadOfThePropertiesWhenAskedFor) {
  WriterRun run;
  run.Target.Add(1, T_NGT_NLPR_D{});
  run.Target.bLinkMultiLinearLost = true;
  run.Target.bLinkKinematicLost = true;
  run.Write(WriteLinkProperties);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_LINK_Mult_Lin_Not_Convert",
                                        "IDS_S2KV8_LINK_Mult_Kine_Not_Convert"));
}

TEST(LostLinkProperties, StaySilentWithoutAProperty) {
  WriterRun run;
  run.Target.bLinkMultiLinearLost = true;
  run.Target.bLinkKinematicLost = true;
  EXPECT_EQ(run.Write(WriteLinkProperties), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(LostLinkProperties, EachCheckAsksForTheRowsOfItsTable) {
  struct Case {
    const char* Name;
    bool HasMultiLinear;
    bool HasKinematic;
    std::vector<std::string> Messages;
  };
  const Case cases[] = {
      {"none", false, false, {}},
      {"multilinear", true, false, {"IDS_S2KV8_LINK_Mult_Lin_Not_Convert"}},
      {"kinematic", false, true, {"IDS_S2KV8_LINK_Mult_Kine_Not_Convert"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Name);
    WriterRun run;
    run.Target.Add(1, T_NGT_NLPR_D{});
    if (c.HasMultiLinear) {
      run.Source.Rows<T_LPMT_D>().Insert(1, {});
    }
    if (c.HasKinematic) {
      run.Source.Rows<T_LPPK_D>().Insert(1, {});
    }
    run.Write([](Conversion& conversion, LineWriter& out) {
      CheckMultiLinearProperties(conversion);
      CheckKinematicProperties(conversion);
      return WriteLinkProperties(conversion, out);
    });
    EXPECT_THAT(run.Messages, ElementsAreArray(c.Messages));
  }
}

}  // namespace
}  // namespace s2k2ngt
