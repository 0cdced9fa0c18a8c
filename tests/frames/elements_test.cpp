#include "support/conversion_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kThreeMaterials = R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=STEEL   Type=Isotropic   DesignType=Steel   E=2E+08   U=0.3   A=1.17E-05
   Material=CONC   Type=Isotropic   DesignType=Concrete   E=2.5E+07   U=0.2   A=9.9E-06
   Material=ALUM   Type=Isotropic   DesignType=None   E=7E+07   U=0.33   A=2.4E-05

)";

constexpr const char* kThreeSections = R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Material=ALUM   Shape="I/Wide Flange"   t3=0.4   t2=0.2
   SectionName=COLUMN   Material=CONC   Shape=Rectangular   t3=0.6   t2=0.4
   SectionName=BRACE   Material=STEEL   Shape=Pipe   t3=0.2   tw=0.01

)";

constexpr const char* kThreeFrames = R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2   Length=3
   Frame=2   JointI=2   JointJ=3   Length=6
   Frame=3   JointI=4   JointJ=3   Length=3

)";

/// Three frames, materials and sections, and these tables.
ConversionRun ConvertFrames(const std::string& tables) {
  return Convert(std::string(kThreeMaterials) + kThreeSections + kThreeFrames + tables);
}

/// Three frames, the third on the nonprismatic section TAPER that these tables speak of. TAPER is
/// the fourth of the sections and of aluminium, HAUNCH the fifth and of steel.
ConversionRun ConvertTapered(const std::string& tables) {
  return Convert(std::string(kThreeMaterials) + kThreeFrames + R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Material=ALUM   Shape="I/Wide Flange"   t3=0.4   t2=0.2
   SectionName=COLUMN   Material=CONC   Shape=Rectangular   t3=0.6   t2=0.4
   SectionName=BRACE   Material=STEEL   Shape=Pipe   t3=0.2   tw=0.01
   SectionName=TAPER   Material=ALUM   Shape=Nonprismatic
   SectionName=HAUNCH   Material=STEEL   Shape=Nonprismatic

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=COLUMN
   Frame=2   AnalSect=COLUMN
   Frame=3   AnalSect=TAPER

)" + tables);
}

TEST(FrameElements, SectionOfAModelWithFrames) {
  const ConversionRun run = ConvertFrames(R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   SectionType=Rectangular   AutoSelect=N.A.   AnalSect=COLUMN   DesignSect=BEAM
   Frame=2   SectionType=Pipe   AutoSelect=N.A.   AnalSect=BRACE   DesignSect=BEAM
   Frame=3   SectionType="I/Wide Flange"   AutoSelect=N.A.   AnalSect=BEAM   MatProp=STEEL

TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=2   Angle=22.5   MirrorAbt2=No   MirrorAbt3=No   AdvanceAxes=No
)");
  EXPECT_EQ(run.Section("*ELEMENT"),
            "*ELEMENT    ; Elements\n"
            "; iEL, TYPE, iMAT, iPRO, iN1, iN2, ANGLE, iSUB, EXVAL              ; Frame Element\n"
            "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iSUB, iWID            ; Planar Element\n"
            "; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iN5, iN6, iN7, iN8    ; Solid  Element\n"
            "; iEL, TYPE, iMAT, iPRO, iN1, iN2, REF, RPX, RPY, RPZ, iSUB, EXVAL ; Frame(Ref. "
            "Point)\n"
            "\t1,  BEAM,     2,     2,     1,     2,     0\n"
            "\t2,  BEAM,     1,     3,     2,     3,  22.5\n"
            "\t3,  BEAM,     3,     1,     4,     3,     0\n"
            "\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(FrameElements, ModelWithoutElementsHasNoSectionAndNoMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Frame=A   Angle=30   AdvanceAxes=No
)");
  EXPECT_EQ(run.Section("*ELEMENT"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(FrameElements, ModelWithoutFramesLosesNoFrameAxes) {
  const ConversionRun run = Convert(R"(
TABLE:  "CONNECTIVITY - AREA"
   Area=1   NumJoints=4   Joint1=1   Joint2=2   Joint3=3   Joint4=4
)");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(FrameElements, FramesWithoutAnyFurtherTableHaveNumbersZeroAndAngleZero) {
  const ConversionRun run = Convert(kThreeFrames);
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0",
                                                 "\t2,  BEAM,     0,     0,     2,     3,     0",
                                                 "\t3,  BEAM,     0,     0,     4,     3,     0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(FrameElements, JointLabelsBecomeNodeNumbers) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A1   CoordType=Cartesian   XorR=0   Y=0   Z=0
   Joint=A2   CoordType=Cartesian   XorR=0   Y=0   Z=3

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=A2   JointJ=A1
   Frame=2   JointI=A3   JointJ=A2
   Frame=3   JointI=A1
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     0,     0,     2,     1,     0",
                                                 "\t2,  BEAM,     0,     0,     0,     2,     0",
                                                 "\t3,  BEAM,     0,     0,     1,     0,     0"));
}

TEST(FrameElements, UnknownJointsAndALengthOfZeroGiveNoFurtherMessage) {
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   CoordType=Cartesian   XorR=0   Y=0   Z=0

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=8   JointJ=B9   Length=0
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     0,     0,     8,     0,     0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(FrameElements, SecondConnectivityTableWritesOverTheRowsOfItsPositions) {
  const ConversionRun run = ConvertFrames(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=9   JointI=8   JointJ=9
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t9,  BEAM,     0,     0,     8,     9,     0",
                                                 "\t2,  BEAM,     0,     0,     2,     3,     0",
                                                 "\t3,  BEAM,     0,     0,     4,     3,     0"));
}

TEST(FrameProperties, SectionIsThatOfTheAssignmentInTheSamePositionWhateverFrameItNames) {
  const ConversionRun run = ConvertFrames(R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=3   AnalSect=BEAM
   Frame=2   AnalSect=COLUMN
   Frame=1   AnalSect=BRACE
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     3,     1,     1,     2,     0",
                                                 "\t2,  BEAM,     2,     2,     2,     3,     0",
                                                 "\t3,  BEAM,     1,     3,     4,     3,     0"));
}

TEST(FrameProperties, FrameTakesOverFromTheLaterOneInItsBucket) {
  // The keys 1 and 10,002 share a bucket, which a walk goes through from the newest. Of the keys 2
  // to 5 only that of 4 comes behind it.
  std::string frames = "TABLE:  \"CONNECTIVITY - FRAME\"\n";
  std::string assignments = " \nTABLE:  \"FRAME SECTION ASSIGNMENTS\"\n";
  for (int frame = 1; frame <= 10'002; ++frame) {
    const std::string label = "   Frame=" + std::to_string(frame);
    frames += label + "\n";
    assignments += label + "   AnalSect=" + (frame == 10'002 ? "BEAM" : "None") + "\n";
  }
  const std::vector<std::string> lines = Convert(frames + assignments + R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Shape=Pipe   t3=0.3
)")
                                             .Lines("*ELEMENT");
  ASSERT_EQ(lines.size(), 10'002U);
  EXPECT_EQ(lines.back(), "\t10002,  BEAM,     0,     1,     0,     0,     0");
  EXPECT_EQ(lines[0], "\t1,  BEAM,     0,     1,     0,     0,     0");
  EXPECT_EQ(lines[1], "\t2,  BEAM,     0,     0,     0,     0,     0");
  EXPECT_EQ(lines[2], "\t3,  BEAM,     0,     0,     0,     0,     0");
  EXPECT_EQ(lines[3], "\t4,  BEAM,     0,     1,     0,     0,     0");
  EXPECT_EQ(lines[4], "\t5,  BEAM,     0,     0,     0,     0,     0");
}

TEST(FrameProperties, FirstFrameOfTheWalkWithoutASectionHasNumbersZero) {
  // Keys 1, 2, 3 are walked in the order 3, 2, 1.
  const ConversionRun run = ConvertFrames(R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
   Frame=2   AnalSect=COLUMN
   Frame=3   AnalSect=None
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     3,     1,     1,     2,     0",
                                                 "\t2,  BEAM,     2,     2,     2,     3,     0",
                                                 "\t3,  BEAM,     0,     0,     4,     3,     0"));
}

TEST(FrameProperties, FrameOfAnUnknownSectionInheritsFromTheFrameWalkedBefore) {
  // Keys 1, 2, 3 are walked in the order 3, 2, 1.
  const ConversionRun run = ConvertFrames(R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
   Frame=2   AnalSect=None
   Frame=3   AnalSect=COLUMN
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     3,     1,     1,     2,     0",
                                                 "\t2,  BEAM,     2,     2,     2,     3,     0",
                                                 "\t3,  BEAM,     2,     2,     4,     3,     0"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(FrameProperties, FrameWithoutAnAssignmentRowInheritsFromTheFrameWalkedBefore) {
  // Keys 1 to 6 are walked in the order 3, 6, 2, 5, 1, 4.
  const ConversionRun run = ConvertFrames(R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3
   Frame=3   JointI=3   JointJ=4
   Frame=4   JointI=4   JointJ=5
   Frame=5   JointI=5   JointJ=6
   Frame=6   JointI=6   JointJ=7

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
   Frame=2   AnalSect=COLUMN
   Frame=3   AnalSect=BRACE
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     3,     1,     1,     2,     0",
                                                 "\t2,  BEAM,     2,     2,     2,     3,     0",
                                                 "\t3,  BEAM,     1,     3,     3,     4,     0",
                                                 "\t4,  BEAM,     3,     1,     4,     5,     0",
                                                 "\t5,  BEAM,     2,     2,     5,     6,     0",
                                                 "\t6,  BEAM,     1,     3,     6,     7,     0"));
}

TEST(FrameProperties, FrameWithoutAnAssignmentRowTakesTheSectionOfEmptyName) {
  const ConversionRun run = Convert(std::string(kThreeMaterials) + kThreeFrames + R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Material=STEEL   Shape=Rectangular
   Material=CONC   Shape=Rectangular

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     1,     1,     1,     2,     0",
                                                 "\t2,  BEAM,     2,     2,     2,     3,     0",
                                                 "\t3,  BEAM,     2,     2,     4,     3,     0"));
}

TEST(FrameProperties, NamesAreComparedExactly) {
  const ConversionRun run = ConvertFrames(R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
   Frame=2   AnalSect=BRACE
   Frame=3   AnalSect=Column
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), Contains("\t3,  BEAM,     0,     0,     4,     3,     0"));
}

TEST(FrameProperties, SectionDefinedTwiceIsTheOneThatTheWalkMeetsFirst) {
  // Keys 1 and 2 are walked in the order 2, 1.
  const ConversionRun run = Convert(std::string(kThreeMaterials) + kThreeFrames + R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Material=STEEL   Shape=Rectangular
   SectionName=BEAM   Material=CONC   Shape=Rectangular

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
   Frame=2   AnalSect=BEAM
   Frame=3   AnalSect=BEAM
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     2,     2,     1,     2,     0",
                                                 "\t2,  BEAM,     2,     2,     2,     3,     0",
                                                 "\t3,  BEAM,     2,     2,     4,     3,     0"));
}

TEST(FrameProperties, UnknownMaterialIsTheLastOneThatTheWalkMeets) {
  // The four materials are walked in the order 2, 4, 1, 3.
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=STEEL   Type=Isotropic
   Material=CONC   Type=Isotropic
   Material=ALUM   Type=Isotropic
   Material=TIMBER   Type=Isotropic

TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Material=BAMBOO   Shape=Rectangular
   SectionName=COLUMN   Material=TIMBER   Shape=Rectangular

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
   Frame=2   AnalSect=COLUMN
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     3,     1,     1,     2,     0",
                                                 "\t2,  BEAM,     4,     2,     2,     3,     0"));
}

TEST(FrameProperties, MaterialDefinedTwiceIsTheOneThatTheWalkMeetsFirst) {
  // The three materials are walked in the order 2, 1, 3.
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=STEEL   Type=Isotropic
   Material=CONC   Type=Isotropic
   Material=STEEL   Type=Isotropic

TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=BEAM   Material=STEEL   Shape=Rectangular

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     1,     1,     1,     2,     0"));
}

TEST(FrameProperties, WithoutMaterialsTheMaterialNumberIsZero) {
  const ConversionRun run = Convert(std::string(kThreeSections) + kThreeFrames + R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=BEAM
   Frame=2   AnalSect=COLUMN
   Frame=3   AnalSect=BRACE
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     0,     1,     1,     2,     0",
                                                 "\t2,  BEAM,     0,     2,     2,     3,     0",
                                                 "\t3,  BEAM,     0,     3,     4,     3,     0"));
}

TEST(FrameProperties, NonprismaticSectionHasTheMaterialOfItsStartSection) {
  const ConversionRun run = ConvertTapered(R"(
TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=TAPER   NumSegments=1   SegmentNum=1   StartSect=BRACE   EndSect=COLUMN
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), Contains("\t3,  BEAM,     1,     4,     4,     3,     0"));
}

TEST(FrameProperties, OfSeveralSegmentsTheOneThatTheWalkMeetsFirstCounts) {
  // Segment rows 1 and 2 are walked in the order 2, 1.
  const ConversionRun run = ConvertTapered(R"(
TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=TAPER   NumSegments=2   SegmentNum=1   StartSect=BRACE   EndSect=COLUMN
   SectionName=TAPER   NumSegments=2   SegmentNum=2   StartSect=COLUMN   EndSect=BEAM
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), Contains("\t3,  BEAM,     2,     4,     4,     3,     0"));
}

TEST(FrameProperties, StartSectionThatAnEarlierRowOfTheWalkSpeaksOfEndsTheChain) {
  // Segment rows 1 and 2 are walked in the order 2, 1, so that HAUNCH comes before it is wanted.
  const ConversionRun run = ConvertTapered(R"(
TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=TAPER   NumSegments=1   SegmentNum=1   StartSect=HAUNCH   EndSect=COLUMN
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=COLUMN   EndSect=COLUMN
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), Contains("\t3,  BEAM,     1,     4,     4,     3,     0"));
}

TEST(FrameProperties, StartSectionThatALaterRowOfTheWalkSpeaksOfIsFollowed) {
  const ConversionRun run = ConvertTapered(R"(
TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=COLUMN   EndSect=COLUMN
   SectionName=TAPER   NumSegments=1   SegmentNum=1   StartSect=HAUNCH   EndSect=COLUMN
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), Contains("\t3,  BEAM,     2,     4,     4,     3,     0"));
}

TEST(FrameProperties, UnknownStartSectionLeavesTheMaterialAndTheChainGoesOn) {
  const ConversionRun alone = ConvertTapered(R"(
TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=TAPER   NumSegments=1   SegmentNum=1   StartSect=GONE   EndSect=COLUMN
)");
  EXPECT_THAT(alone.Lines("*ELEMENT"), Contains("\t3,  BEAM,     0,     4,     4,     3,     0"));
  const ConversionRun chained = ConvertTapered(R"(
TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=GONE   NumSegments=1   SegmentNum=1   StartSect=BRACE   EndSect=COLUMN
   SectionName=TAPER   NumSegments=1   SegmentNum=1   StartSect=GONE   EndSect=COLUMN
)");
  EXPECT_THAT(chained.Lines("*ELEMENT"), Contains("\t3,  BEAM,     1,     4,     4,     3,     0"));
}

TEST(FrameProperties, NonprismaticSectionWithoutSegmentsInheritsTheMaterialAlone) {
  // Frame 1 is walked last, behind frame 2.
  for (const char* segments : {"", R"(
TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=BRACE   EndSect=BRACE
)"}) {
    const ConversionRun run = ConvertTapered(std::string(R"(
TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=TAPER
   Frame=2   AnalSect=COLUMN
   Frame=3   AnalSect=BEAM

)") + segments);
    EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     2,     4,     1,     2,     0",
                                                   "\t2,  BEAM,     2,     2,     2,     3,     0",
                                                   "\t3,  BEAM,     3,     1,     4,     3,     0"))
        << segments;
  }
}

TEST(FrameProperties, ShapeNonprismaticIsTestedExactly) {
  const ConversionRun run = ConvertFrames(R"(
TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=TAPER   Material=CONC   Shape=NONPRISMATIC

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=TAPER   NumSegments=1   SegmentNum=1   StartSect=BRACE   EndSect=BRACE

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=TAPER
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), Contains("\t1,  BEAM,     2,     1,     1,     2,     0"));
}

TEST(FrameProperties, ChainOfNonprismaticSectionsIsFollowedAsFarAsTheWalkAllows) {
  // Segments are walked in the order 3, 2, 1. From A the walk meets key 2 (A starts in B), then
  // key 1 (B starts in C); from B it meets key 1 alone. Key 3 lies before both.
  const ConversionRun run = Convert(R"(
TABLE:  "MATERIAL PROPERTIES 1 - GENERAL"
   Material=M1   Type=Isotropic
   Material=M2   Type=Isotropic
   Material=M3   Type=Isotropic

TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=A   Shape=Nonprismatic
   SectionName=B   Shape=Nonprismatic   Material=M1
   SectionName=C   Shape=Rectangular   Material=M2
   SectionName=D   Shape=Rectangular   Material=M3

TABLE:  "FRAME SECTION PROPERTIES 5 - NONPRISMATIC"
   SectionName=B   NumSegments=1   SegmentNum=1   StartSect=C   EndSect=C
   SectionName=A   NumSegments=1   SegmentNum=1   StartSect=B   EndSect=B
   SectionName=C   NumSegments=1   SegmentNum=1   StartSect=D   EndSect=D

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2
   Frame=2   JointI=2   JointJ=3

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=A
   Frame=2   AnalSect=B
)");
  EXPECT_THAT(run.Lines("*ELEMENT"), ElementsAre("\t1,  BEAM,     2,     1,     1,     2,     0",
                                                 "\t2,  BEAM,     2,     2,     2,     3,     0"));
}

}  // namespace
