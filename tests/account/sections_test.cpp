#include "support/account_run.h"
#include "support/frame_tables.h"

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

std::string Sections(const std::string& rows) {
  return SourceTable("FRAME SECTION PROPERTIES 1 - GENERAL", rows);
}

std::string Segments(std::string_view rows) {
  return SourceTable("FRAME SECTION PROPERTIES 5 - NONPRISMATIC", rows);
}

/// A section of S235, without modifiers.
std::string Section(std::string_view nameAndShape) {
  return SectionRow(std::string(nameAndShape) + "   Material=S235   t3=0.4   t2=0.2");
}

/// A nonprismatic section HAUNCH, and what it may be made of: two rectangles, pairs of double
/// angles, general sections and ones of shapes that the target does not have.
std::string HaunchAndEnds() {
  return FrameMaterial() + Sections(SectionRow("SectionName=HAUNCH   Shape=Nonprismatic") +
                                    Section("SectionName=LOW   Shape=Rectangular") +
                                    Section("SectionName=HIGH   Shape=Rectangular") +
                                    Section("SectionName=ROUND   Shape=Circle") +
                                    Section("SectionName=PAIR   Shape=\"Double Angle\"") +
                                    Section("SectionName=ANY   Shape=General"));
}

std::vector<std::string> LossesOf(const std::string& tables) {
  return KeepAccount(tables).Losses();
}

/// The reasons of HAUNCH and its segments.
std::vector<std::string> LossesOfHaunch(std::string_view segments) {
  return LossesOf(HaunchAndEnds() + Segments(segments));
}

TEST(AccountOfSectionsTest, SoundSectionsAreConverted) {
  const AccountRun run =
      KeepAccount(HaunchAndEnds() +
                  Segments("   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=LOW "
                           "  EndSect=HIGH   EI33Var=Cubic   EI22Var=Linear\n"));
  EXPECT_THAT(run.Tables(),
              ElementsAre("MATERIAL PROPERTIES 1 - GENERAL: 1 rows, 1 converted",
                          "FRAME SECTION PROPERTIES 1 - GENERAL: 6 rows, 6 converted",
                          "FRAME SECTION PROPERTIES 5 - NONPRISMATIC: 1 rows, 1 converted"));
}

TEST(AccountOfSectionsTest, ASectionOfAnUnknownMaterialIsChanged) {
  EXPECT_THAT(LossesOf(FrameJoints() + FrameMaterial() + FrameConnectivity() + FrameAssignments() +
                       Sections(Section("SectionName=BEAM   Shape=Circle") +
                                SectionRow("SectionName=COLUMN   Material=S460   Shape=Circle"))),
              ElementsAre("SectionName=COLUMN: frame-section-material-unknown"));
}

TEST(AccountOfSectionsTest, AShapeThatTheHostDoesNotHaveIsDropped) {
  EXPECT_THAT(LossesOf(FrameMaterial() + Sections(Section("SectionName=A   Shape=Circle") +
                                                  Section("SectionName=B   Shape=\"SD Section\""))),
              ElementsAre("SectionName=B: section-shape-unknown"));
}

TEST(AccountOfSectionsTest, TheLastSectionsAreDroppedForOthersThatAre) {
  EXPECT_THAT(LossesOf(FrameMaterial() + Sections(Section("SectionName=A   Shape=\"SD Section\"") +
                                                  Section("SectionName=B   Shape=Circle") +
                                                  Section("SectionName=C   Shape=Circle"))),
              ElementsAre("SectionName=A: section-shape-unknown",
                          "SectionName=C: section-behind-dropped-ones"));
}

TEST(AccountOfSectionsTest, ModifiersAreConverted) {
  EXPECT_THAT(
      LossesOf(FrameMaterial() +
               Sections("   SectionName=A   Material=S235   Shape=Circle   AMod=0.5 _\n"
                        "   A2Mod=0.5   A3Mod=0.5   JMod=0   I2Mod=0.7   I3Mod=0.7   MMod=1 _\n"
                        "   WMod=1\n")),
      IsEmpty());
}

TEST(AccountOfSectionsTest, ASectionWithoutModifiersIsChanged) {
  EXPECT_THAT(
      LossesOf(FrameMaterial() + Sections("   SectionName=A   Material=S235   Shape=Circle\n")),
      ElementsAre("SectionName=A: section-modifiers-missing"));
}

TEST(AccountOfSectionsTest, AModifierOfTheMassIsChanged) {
  EXPECT_THAT(LossesOf(FrameMaterial() +
                       Sections("   SectionName=A   Material=S235   Shape=Circle   MMod=2" +
                                std::string(kNoModifiers))),
              ElementsAre("SectionName=A: section-mass-modifier"));
}

// ---- Nonprismatic sections ----

TEST(AccountOfNonprismaticSectionsTest, WithoutSegmentsTheSectionIsChanged) {
  EXPECT_THAT(LossesOf(HaunchAndEnds()),
              Contains("SectionName=HAUNCH: nonprismatic-without-segments"));
}

TEST(AccountOfNonprismaticSectionsTest, WithoutAMaterialTheSectionIsChanged) {
  EXPECT_THAT(LossesOf(FrameConnectivity() + HaunchAndEnds()),
              Contains("SectionName=HAUNCH: frame-section-material-unknown"));
}

TEST(AccountOfNonprismaticSectionsTest, EndsOfTwoShapesDropTheSection) {
  EXPECT_THAT(LossesOfHaunch("   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=LOW "
                             "  EndSect=ROUND\n"),
              ElementsAre("SectionName=HAUNCH: nonprismatic-ends-unlike",
                          "SectionName=ANY: section-behind-dropped-ones",
                          "SectionName=HAUNCH: nonprismatic-ends-unlike"));
}

TEST(AccountOfNonprismaticSectionsTest, AnEndThatIsNotThereDropsTheSection) {
  for (const char* ends : {"StartSect=LOW   EndSect=NONE", "StartSect=NONE   EndSect=LOW"}) {
    EXPECT_THAT(LossesOfHaunch("   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   " +
                               std::string(ends) + "\n"),
                Contains("SectionName=HAUNCH: nonprismatic-ends-unlike").Times(2));
  }
}

TEST(AccountOfNonprismaticSectionsTest, FurtherSectionsOfADroppedNameAreDropped) {
  EXPECT_THAT(LossesOf(FrameMaterial() +
                       Sections(SectionRow("SectionName=HAUNCH   Shape=Nonprismatic") +
                                SectionRow("SectionName=HAUNCH   Shape=Nonprismatic")) +
                       Segments("   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   "
                                "StartSect=LOW   EndSect=HIGH\n")),
              Contains("SectionName=HAUNCH: nonprismatic-ends-unlike").Times(3));
}

TEST(AccountOfNonprismaticSectionsTest, EndsOfAShapeThatTheHostDoesNotHaveChangeTheSection) {
  EXPECT_THAT(LossesOf(FrameMaterial() +
                       Sections(SectionRow("SectionName=HAUNCH   Shape=Nonprismatic") +
                                Section("SectionName=ODD   Shape=\"SD Section\"")) +
                       Segments("   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   "
                                "StartSect=ODD   EndSect=ODD\n")),
              ElementsAre("SectionName=HAUNCH: nonprismatic-shape-unknown",
                          "SectionName=ODD: section-shape-unknown"));
}

TEST(AccountOfNonprismaticSectionsTest, EndsOfDoubleAnglesChangeTheSection) {
  EXPECT_THAT(
      LossesOfHaunch("   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=PAIR "
                     "  EndSect=PAIR\n"),
      ElementsAre("SectionName=HAUNCH: nonprismatic-double-angle"));
}

TEST(AccountOfNonprismaticSectionsTest, AGeneralEndChangesTheSection) {
  for (const char* ends : {"StartSect=ANY   EndSect=LOW", "StartSect=LOW   EndSect=ANY"}) {
    EXPECT_THAT(LossesOfHaunch("   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   " +
                               std::string(ends) + "\n"),
                ElementsAre("SectionName=HAUNCH: nonprismatic-of-general"));
  }
}

TEST(AccountOfNonprismaticSectionsTest, ModifiersChangeTheSection) {
  const auto losses = [](const std::string& modifiers) {
    return LossesOf(FrameMaterial() +
                    Sections("   SectionName=HAUNCH   Shape=Nonprismatic" + modifiers + "\n" +
                             Section("SectionName=LOW   Shape=Rectangular")) +
                    Segments("   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   "
                             "StartSect=LOW   EndSect=LOW\n"));
  };
  EXPECT_THAT(losses("   AMod=1   I3Mod=0.5"),
              ElementsAre("SectionName=HAUNCH: nonprismatic-modifiers"));
  EXPECT_THAT(losses(""), IsEmpty());
}

// ---- Segments ----

TEST(AccountOfSegmentsTest, OfSeveralTheInnerOnesAreDroppedAndTheOthersChanged) {
  EXPECT_THAT(
      LossesOfHaunch(
          "   SectionName=HAUNCH   NumSegments=3   SegmentNum=1   StartSect=LOW   EndSect=LOW\n"
          "   SectionName=HAUNCH   NumSegments=3   SegmentNum=2   StartSect=LOW   EndSect=HIGH\n"
          "   SectionName=HAUNCH   NumSegments=3   SegmentNum=3   StartSect=HIGH   EndSect=HIGH\n"),
      ElementsAre("SectionName=HAUNCH: segment-of-several", "SectionName=HAUNCH: segment-inside",
                  "SectionName=HAUNCH: segment-of-several"));
}

TEST(AccountOfSegmentsTest, AnUnknownVariationIsChanged) {
  for (const char* variation : {"EI33Var=Parabolic", "EI22Var=Parabolic"}) {
    EXPECT_THAT(
        LossesOfHaunch("   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=LOW "
                       "  EndSect=HIGH   " +
                       std::string(variation) + "\n"),
        ElementsAre("SectionName=HAUNCH: segment-variation-unknown"));
  }
}

TEST(AccountOfSegmentsTest, SegmentsOfNoNonprismaticSectionAreDropped) {
  EXPECT_THAT(
      LossesOfHaunch(
          "   SectionName=HAUNCH   NumSegments=1   SegmentNum=1   StartSect=LOW   EndSect=HIGH\n"
          "   SectionName=LOW   NumSegments=1   SegmentNum=1   StartSect=LOW   EndSect=HIGH\n"
          "   SectionName=OTHER   NumSegments=1   SegmentNum=1   StartSect=LOW   EndSect=HIGH\n"),
      ElementsAre("SectionName=LOW: segment-without-section",
                  "SectionName=OTHER: segment-without-section"));
}

}  // namespace
