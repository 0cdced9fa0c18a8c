#include "support/conversion_run.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A model of link 1 from joint 1 to joint 2, of this type and of property P, and these tables.
/// `summary` are further pairs of its summary row.
ConversionRun ConvertLink(const std::string& type, const std::string& summary = "",
                          const std::string& tables = "") {
  return Convert("TABLE:  \"SUMMARY - LINK ASSIGNMENTS\"\n   Link=1   LinkType=\"" + type +
                 "\"   LinkJoint=TwoJoint   LinkProp=P   " + summary + R"(

TABLE:  "CONNECTIVITY - LINK"
   Link=1   JointI=1   JointJ=2   Length=2

)" + tables);
}

/// The line of that link when it is linear, from the angle to the distances of the shear springs.
std::string ElasticLine(const std::string& angle,
                        const std::string& stiffness = "    0,     0,     0,     0,     0,     0",
                        const std::string& shear = "   NO,     0,     0") {
  return "\t1,     2,   GEN, " + angle + ", " + stiffness + ", " + shear + ",      ";
}

/// The line of that link when it is of another kind.
std::string NonlinearLine(const std::string& angle) {
  return "\t1,     2,     P, " + angle + ",      ";
}

// Which link becomes what

TEST(Links, LinearLinkGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - LINK"
   Link=1   JointI=3   JointJ=12   Length=2

TABLE:  "LINK PROPERTY DEFINITIONS 01 - GENERAL"
   Link=SPR1   LinkType=Linear   Mass=0.1   Weight=0.98   RotInert1=0   RotInert2=0   RotInert3=0   PDM2I=0   PDM2J=0   PDM3I=0   PDM3J=0   Color=Green

TABLE:  "LINK PROPERTY DEFINITIONS 02 - LINEAR"
   Link=SPR1   DOF=U1   Fixed=No   TransKE=1000   TransCE=5
   Link=SPR1   DOF=U2   Fixed=No   TransKE=200   TransCE=5   DJ=0.5
   Link=SPR1   DOF=U3   Fixed=No   TransKE=300   TransCE=5   DJ=0.25
   Link=SPR1   DOF=R1   Fixed=No   RotKE=40   RotCE=5
   Link=SPR1   DOF=R2   Fixed=No   RotKE=50   RotCE=5
   Link=SPR1   DOF=R3   Fixed=No   RotKE=60   RotCE=5

TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=1   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=SPR1   LocalAxes=No   GravLoads=No   Length=2   CentroidX=0   CentroidY=0   CentroidZ=1
)");
  EXPECT_EQ(run.Section("*ELASTICLINK"),
            "*ELASTICLINK\n"
            "; iNODE1, iNODE2, LINK, ANGLE, SDx, SDy, SDz, SRx, SRy, SRz, bSHEAR, DRy, DRz, GROUP  "
            " ; GEN\n"
            "; iNODE1, iNODE2, LINK, ANGLE, bSHEAR, DRy, DRz, GROUP                                "
            " ; RIGID\n"
            "; iNODE1, iNODE2, LINK, ANGLE, SDx, bSHEAR, DRy, DRz, GROUP                           "
            " ; TENS,COMP\n"
            "\t3,    12,   GEN,     0,  1000,   300,   200,    40,    60,    50,   YES,  0.25,   "
            "0.5,      \n"
            "\n");
  EXPECT_EQ(run.Section("*NL-LINK"), "");
  EXPECT_EQ(run.Section("*NL-PROP"), "");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Links, DamperGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - LINK"
   Link=1   JointI=3   JointJ=12   Length=2

TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=1   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=DMP1   LocalAxes=No   GravLoads=No   Length=2   CentroidX=0   CentroidY=0   CentroidZ=1
)");
  EXPECT_EQ(run.Section("*NL-LINK"),
            "*NL-LINK  ; Nonlinear Link\n"
            "; iNODE1, iNODE2, PROP, ANGLE, GROUP\n"
            "\t3,    12,  DMP1,   180,      \n"
            "\n");
  EXPECT_EQ(run.Section("*ELASTICLINK"), "");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Links, EachTypeBecomesItsLink) {
  for (const char* type : {"Damper", "Gap", "Hook", "Rubber Isolator", "Friction Isolator",
                           "Plastic (Wen)", "Bilinear", "linear", "LINEAR", "Multilinear", ""}) {
    SCOPED_TRACE(type);
    const ConversionRun run = ConvertLink(type);
    EXPECT_EQ(run.Section("*ELASTICLINK"), "");
    EXPECT_THAT(run.Lines("*NL-LINK"), ElementsAre(NonlinearLine("  180")));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
  for (const char* type : {"MultiLinear", "Plastic (Kinematic)"}) {
    SCOPED_TRACE(type);
    const ConversionRun run = ConvertLink(type);
    EXPECT_EQ(run.Section("*ELASTICLINK"), "");
    EXPECT_EQ(run.Section("*NL-LINK"), "");
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

constexpr const char* kDamperProperty = R"(
TABLE:  "LINK PROPERTY DEFINITIONS 01 - GENERAL"
   Link=P   LinkType=Damper   Weight=5

TABLE:  "LINK PROPERTY DEFINITIONS 04 - DAMPER"
   Link=P   DOF=U1   NonLinear=No   TransKE=7

)";

TEST(Links, TypeOfTheSummaryCountsAndNotThatOfTheProperty) {
  const ConversionRun run = ConvertLink("Linear", "", kDamperProperty);
  EXPECT_THAT(run.Lines("*ELASTICLINK"), ElementsAre(ElasticLine("    0")));
  EXPECT_EQ(run.Section("*NL-LINK"), "");
  EXPECT_NE(run.Section("*NL-PROP"), "");
}

TEST(Links, WithoutASummaryWriteNoCommand) {
  const ConversionRun run = Convert(std::string(R"(
TABLE:  "CONNECTIVITY - LINK"
   Link=1   JointI=1   JointJ=2   Length=2

TABLE:  "LINK PROPERTY DEFINITIONS 02 - LINEAR"
   Link=P   DOF=U1   TransKE=1000

TABLE:  "LINK PROPERTY ASSIGNMENTS"
   Link=1   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=P

)") + kDamperProperty);
  EXPECT_EQ(run.Section("*ELASTICLINK"), "");
  EXPECT_EQ(run.Section("*NL-LINK"), "");
  EXPECT_EQ(run.Section("*NL-PROP"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Links, WithoutConnectivityMakeNoLinkButTheirProperties) {
  for (const char* type : {"Linear", "Damper"}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(
        "TABLE:  \"SUMMARY - LINK ASSIGNMENTS\"\n   Link=1   LinkType=" + std::string(type) +
        "   LinkJoint=TwoJoint   LinkProp=P\n" + kDamperProperty);
    EXPECT_EQ(run.Section("*ELASTICLINK"), "");
    EXPECT_EQ(run.Section("*NL-LINK"), "");
    EXPECT_NE(run.Section("*NL-PROP"), "");
  }
}

constexpr const char* kSixLinks = R"(
TABLE:  "CONNECTIVITY - LINK"
   Link=1   JointI=10   JointJ=11
   Link=2   JointI=20   JointJ=21
   Link=3   JointI=30   JointJ=31
   Link=4   JointI=40   JointJ=41
   Link=5   JointI=50   JointJ=51
   Link=6   JointI=60   JointJ=61

)";

/// The line of a linear link without stiffness between these joints.
std::string BareElasticLine(const std::string& nodes) {
  return "\t" + nodes + ",   GEN,     0,     0,     0,     0,     0,     0,     0,    NO,     0," +
         "     0,      ";
}

TEST(Links, OfBothCommandsAreCountedApartAndComeInTheWalkOfTheirNumbers) {
  // The summary is walked in the order 3, 6, 2, 5, 1, 4, so that the linear links 3, 2, 1 and the
  // dampers 6, 5, 4 get the numbers 1, 2, 3, which are walked in the order 2, 1, 3.
  const ConversionRun run = Convert(std::string(kSixLinks) + R"(
TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=1   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=S
   Link=2   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=S
   Link=3   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=S
   Link=4   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=D
   Link=5   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=D
   Link=6   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=D
)" + kDamperProperty);
  EXPECT_THAT(run.Lines("*ELASTICLINK"),
              ElementsAre(BareElasticLine("20,    21"), BareElasticLine("30,    31"),
                          BareElasticLine("10,    11")));
  EXPECT_THAT(run.Lines("*NL-LINK"),
              ElementsAre("\t50,    51,     D,   180,      ", "\t60,    61,     D,   180,      ",
                          "\t40,    41,     D,   180,      "));
  // The commands stand in this order.
  EXPECT_LT(run.Output.find("*ELASTICLINK"), run.Output.find("*NL-PROP"));
  EXPECT_LT(run.Output.find("*NL-PROP"), run.Output.find("*NL-LINK"));
}

TEST(Links, WithoutARowOfConnectivityHaveTheJointsOfTheLastRowOfTheWalk) {
  // Rows 1 to 6 are walked in the order 3, 6, 2, 5, 1, 4.
  const ConversionRun linear = Convert(std::string(kSixLinks) + R"(
TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=9   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=S
)");
  EXPECT_THAT(linear.Lines("*ELASTICLINK"), ElementsAre(BareElasticLine("40,    41")));
  const ConversionRun damper = Convert(std::string(kSixLinks) + R"(
TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=9   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=D
)");
  EXPECT_THAT(damper.Lines("*NL-LINK"), ElementsAre("\t40,    41,     D,   180,      "));
}

TEST(Links, OfTwoRowsOfConnectivityTheOneThatTheWalkMeetsFirstCounts) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - LINK"
   Link=A   JointI=10   JointJ=11
   Link=A   JointI=20   JointJ=21

TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=A   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=D
)");
  EXPECT_THAT(run.Lines("*NL-LINK"), ElementsAre("\t20,    21,     D,   180,      "));
}

TEST(Links, JointsWithLettersAreWrittenByTheirNumbersAndUnknownOnesByZero) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0
   Joint=B   XorR=1   Y=0   Z=0

TABLE:  "CONNECTIVITY - LINK"
   Link=1   JointI=B   JointJ=A
   Link=2   JointI=A   JointJ=C
   Link=3   JointI=1

TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=1   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=S
   Link=2   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=D
   Link=3   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=D
)");
  EXPECT_THAT(run.Lines("*ELASTICLINK"), ElementsAre(BareElasticLine("2,     1")));
  // The summary is walked in the order 3, 2, 1; of the numbers 1 and 2 the second comes first.
  EXPECT_THAT(run.Lines("*NL-LINK"),
              ElementsAre("\t1,     0,     D,   180,      ", "\t0,     0,     D,   180,      "));
}

TEST(Links, TakeNoPartInTheNumberingOfElements) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=7   JointI=1   JointJ=2

TABLE:  "CONNECTIVITY - LINK"
   Link=7   JointI=1   JointJ=2
   Link=L1   JointI=2   JointJ=3

TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=7   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=S
   Link=L1   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=D
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t7,  BEAM,     0,     0,     1,     2,     0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
  EXPECT_EQ(run.Lines("*ELASTICLINK").size(), 1U);
  EXPECT_EQ(run.Lines("*NL-LINK").size(), 1U);
}

// Stiffness of elastic links

TEST(ElasticLinks, EachDirectionHasItsColumnWithTheAxes2And3Exchanged) {
  struct Case {
    const char* DOF;
    const char* Stiffness;
  };
  const Case cases[] = {
      {"U1", "    7,     0,     0,     0,     0,     0"},
      {"U2", "    0,     0,     7,     0,     0,     0"},
      {"U3", "    0,     7,     0,     0,     0,     0"},
      {"R1", "    0,     0,     0,     8,     0,     0"},
      {"R2", "    0,     0,     0,     0,     0,     8"},
      {"R3", "    0,     0,     0,     0,     8,     0"},
      {"U4", "    0,     0,     0,     0,     0,     0"},
      {"u1", "    0,     0,     0,     0,     0,     0"},
      {"", "    0,     0,     0,     0,     0,     0"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.DOF);
    const ConversionRun run = ConvertLink("Linear", "", R"(
TABLE:  "LINK PROPERTY DEFINITIONS 02 - LINEAR"
   Link=P   DOF=)" + std::string(c.DOF) + "   TransKE=7   RotKE=8   TransCE=9   RotCE=9\n");
    EXPECT_THAT(run.Lines("*ELASTICLINK"), ElementsAre(ElasticLine("    0", c.Stiffness)));
  }
}

TEST(ElasticLinks, PositiveDistanceOfDirection2Or3MakesAShearSpring) {
  struct Case {
    const char* Row;
    const char* Shear;
  };
  const Case cases[] = {
      {"DOF=U2   DJ=0.5", "  YES,     0,   0.5"},
      {"DOF=U3   DJ=0.5", "  YES,   0.5,     0"},
      {"DOF=U2   DJ=3", "  YES,     0,     3"},
      {"DOF=U3   DJ=3", "  YES,     3,     0"},
      {"DOF=U2   DJ=1E-16", "  YES,     0, 1e-16"},
      {"DOF=U3   DJ=1E-16", "  YES, 1e-16,     0"},
      {"DOF=U2   DJ=0", "   NO,     0,     0"},
      {"DOF=U3   DJ=0", "   NO,     0,     0"},
      {"DOF=U2   DJ=-0.5", "   NO,     0,     0"},
      {"DOF=U3   DJ=-0.5", "   NO,     0,     0"},
      {"DOF=U2", "   NO,     0,     0"},
      {"DOF=U1   DJ=0.5", "   NO,     0,     0"},
      {"DOF=R1   DJ=0.5", "   NO,     0,     0"},
      {"DOF=R2   DJ=0.5", "   NO,     0,     0"},
      {"DOF=R3   DJ=0.5", "   NO,     0,     0"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Row);
    const ConversionRun run =
        ConvertLink("Linear", "",
                    std::string("TABLE:  \"LINK PROPERTY DEFINITIONS 02 - LINEAR\"\n   Link=P   ") +
                        c.Row + "\n");
    EXPECT_THAT(
        run.Lines("*ELASTICLINK"),
        ElementsAre(ElasticLine("    0", "    0,     0,     0,     0,     0,     0", c.Shear)));
  }
}

TEST(ElasticLinks, OnlyTheRowsOfTheLinksPropertyCount) {
  const ConversionRun run = ConvertLink("Linear", "", R"(
TABLE:  "LINK PROPERTY DEFINITIONS 02 - LINEAR"
   Link=P   DOF=U1   TransKE=1
   Link=p   DOF=U2   TransKE=2   DJ=0.5
   Link=1   DOF=U3   TransKE=3   DJ=0.5
   Link=P1   DOF=U1   TransKE=4
   Link=P   DOF=R1   RotKE=5
)");
  EXPECT_THAT(run.Lines("*ELASTICLINK"),
              ElementsAre(ElasticLine("    0", "    1,     0,     0,     5,     0,     0")));
}

TEST(ElasticLinks, OfTwoRowsOfADirectionTheLaterOfTheWalkCountsAndAShearSpringStays) {
  // Rows 1 and 2 are walked in the order 2, 1.
  const ConversionRun run = ConvertLink("Linear", "", R"(
TABLE:  "LINK PROPERTY DEFINITIONS 02 - LINEAR"
   Link=P   DOF=U2   TransKE=100   DJ=0
   Link=P   DOF=U2   TransKE=200   DJ=0.5
)");
  EXPECT_THAT(run.Lines("*ELASTICLINK"),
              ElementsAre(ElasticLine("    0", "    0,     0,   100,     0,     0,     0",
                                      "  YES,     0,   0.5")));
}

// Links with a single joint

constexpr const char* kSingleJointLinks = R"s2k(
TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=1   LinkType=Linear   LinkJoint=SingleJoint   LinkProp=P
   Link=2   LinkType=Damper   LinkJoint=SingleJoint   LinkProp=P
   Link=3   LinkType=MultiLinear   LinkJoint=SingleJoint   LinkProp=P
   Link=4   LinkType="Plastic (Kinematic)"   LinkJoint=SingleJoint   LinkProp=P
)s2k";

TEST(SingleJointLinks, OfAnyTypeMakeNoLinkAndStaySilentWithoutAnElasticLink) {
  const ConversionRun run = Convert(std::string(kSixLinks) + kSingleJointLinks);
  EXPECT_EQ(run.Section("*ELASTICLINK"), "");
  EXPECT_EQ(run.Section("*NL-LINK"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SingleJointLinks, StaySilentInAModelOfNonlinearLinksAlone) {
  const ConversionRun run =
      Convert(std::string(kSixLinks) + kSingleJointLinks +
              "   Link=5   LinkType=Damper   LinkJoint=TwoJoint   LinkProp=P\n" + kDamperProperty);
  EXPECT_THAT(run.Lines("*NL-LINK"), ElementsAre("\t50,    51,     P,   180,      "));
  EXPECT_NE(run.Section("*NL-PROP"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(SingleJointLinks, AreAnsweredOnceInAModelWithAnElasticLink) {
  const ConversionRun run =
      Convert(std::string(kSixLinks) + kSingleJointLinks +
              "   Link=5   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=P\n");
  EXPECT_THAT(run.Lines("*ELASTICLINK"), ElementsAre(BareElasticLine("50,    51")));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_LINK_Sinlge_Joint"));
}

TEST(SingleJointLinks, OfEachTypeAreAnswered) {
  for (const char* type : {"Linear", "Damper", "MultiLinear", "Plastic (Kinematic)"}) {
    SCOPED_TRACE(type);
    const ConversionRun run = Convert(std::string(kSixLinks) + R"(
TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=1   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=P
   Link=2   LinkType=")" + type + R"("   LinkJoint=SingleJoint   LinkProp=P
)");
    EXPECT_THAT(run.Lines("*ELASTICLINK"), ElementsAre(BareElasticLine("10,    11")));
    EXPECT_EQ(run.Section("*NL-LINK"), "");
    EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_LINK_Sinlge_Joint"));
  }
}

TEST(SingleJointLinks, AreKnownByThisVeryWord) {
  for (const char* word : {"Singlejoint", "Single Joint", "SINGLEJOINT", "TwoJoint", ""}) {
    SCOPED_TRACE(word);
    const ConversionRun run = Convert(std::string(kSixLinks) + R"(
TABLE:  "SUMMARY - LINK ASSIGNMENTS"
   Link=1   LinkType=Linear   LinkJoint=")" +
                                      word + R"("   LinkProp=P
)");
    EXPECT_THAT(run.Lines("*ELASTICLINK"), ElementsAre(BareElasticLine("10,    11")));
    EXPECT_THAT(run.Messages, IsEmpty());
  }
}

TEST(Links, TablesThatVanishInSilenceHaveNoEffect) {
  for (const char* title : {"LINK LOADS - GRAVITY", "LINK PROPERTY ASSIGNMENTS",
                            "LINK PROPERTY DEFINITIONS 03 - MULTILINEAR",
                            "LINK PROPERTY DEFINITIONS 10 - PLASTIC (KINEMATIC)"}) {
    SCOPED_TRACE(title);
    const auto body = [](const ConversionRun& run) {
      return run.Output.substr(run.Output.find("*VERSION"));
    };
    const ConversionRun plain = ConvertLink("Damper", "", kDamperProperty);
    const ConversionRun loaded =
        ConvertLink("Damper", "",
                    std::string(kDamperProperty) + "TABLE:  \"" + title +
                        "\"\n   Link=P   DOF=U1   NonLinear=Yes   TransKE=9   DJ=0.5   Point=1   "
                        "Force=5   Displ=1   LinkType=Linear   MultiplierZ=-1\n");
    EXPECT_EQ(body(loaded), body(plain));
    EXPECT_NE(loaded.Section("*NL-PROP"), "");
    EXPECT_THAT(loaded.Messages, IsEmpty());
  }
}

}  // namespace
