#include "plates/areas.h"
#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Thickness, SectionGivesTheWholeSection) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   Material=C30   MatAngle=0   AreaType=Shell   Type=Shell-Thick   Thickness=0.25   BendThick=0.25   Arc=0   InComp=Yes   Color=Red   F11Mod=1   F22Mod=1   F12Mod=1   M11Mod=1   M22Mod=1   M12Mod=1   V13Mod=1   V23Mod=1   MMod=1   WMod=1
)");
  EXPECT_EQ(run.Section("*THICKNESS"),
            "*THICKNESS    ; Thickness\n"
            "; iTHK, TYPE, bSAME, THIK-IN, THIK-OUT                 ; TYPE=VALUE\n"
            "\t1, VALUE,   YES,  0.25,     0\n"
            "\n");
  EXPECT_EQ(run.Section("*ELEMENT"), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(Thickness, BendingThicknessIsPrintedWhereItDiffersExactly) {
  struct Case {
    const char* Thicknesses;
    const char* Line;
  };
  const std::vector<Case> cases = {
      {"Thickness=0.2   BendThick=0.3", "\t1, VALUE,    NO,   0.2,   0.3"},
      {"Thickness=0.3   BendThick=0.2", "\t1, VALUE,    NO,   0.3,   0.2"},
      {"Thickness=0.2   BendThick=0.20", "\t1, VALUE,   YES,   0.2,     0"},
      {"Thickness=0.2   BendThick=0.2000000001", "\t1, VALUE,    NO,   0.2,   0.2"},
      {"Thickness=0.2", "\t1, VALUE,    NO,   0.2,     0"},
      {"BendThick=0.2", "\t1, VALUE,    NO,     0,   0.2"},
      {"Color=Red", "\t1, VALUE,   YES,     0,     0"},
      {"Thickness=10.75   BendThick=1234567", "\t1, VALUE,    NO, 10.75, 1.23457e+06"}};
  for (const auto& [thicknesses, line] : cases) {
    SCOPED_TRACE(thicknesses);
    const ConversionRun run = Convert(
        "TABLE:  \"AREA SECTION PROPERTIES\"\n"
        "   Section=SLAB   AreaType=Shell   Type=Shell-Thick   " +
        std::string(thicknesses) + "\n");
    EXPECT_THAT(run.Lines("*THICKNESS"), ElementsAre(line));
  }
}

TEST(Thickness, LinesComeInWalkOrder) {
  // With 1,001 buckets keys 1 to 6 lie in the buckets 791, 581, 371, 161, 952, 742.
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=S1   AreaType=Shell   Type=Shell-Thick   Thickness=0.1   BendThick=0.1
   Section=S2   AreaType=Shell   Type=Shell-Thick   Thickness=0.2   BendThick=0.2
   Section=S3   AreaType=Shell   Type=Shell-Thick   Thickness=0.3   BendThick=0.3
   Section=S4   AreaType=Shell   Type=Shell-Thick   Thickness=0.4   BendThick=0.4
   Section=S5   AreaType=Shell   Type=Shell-Thick   Thickness=0.5   BendThick=0.5
   Section=S6   AreaType=Shell   Type=Shell-Thick   Thickness=0.6   BendThick=0.6
)");
  EXPECT_THAT(run.Lines("*THICKNESS"),
              ElementsAre("\t4, VALUE,   YES,   0.4,     0", "\t3, VALUE,   YES,   0.3,     0",
                          "\t2, VALUE,   YES,   0.2,     0", "\t6, VALUE,   YES,   0.6,     0",
                          "\t1, VALUE,   YES,   0.1,     0", "\t5, VALUE,   YES,   0.5,     0"));
}

TEST(Thickness, SectionsOfAxisymmetricSolidsHaveNone) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=RING   AreaType=Asolid   Type=Asolid   Thickness=0.1   BendThick=0.1
   Section=SLAB   AreaType=Shell   Type=Shell-Thick   Thickness=0.2   BendThick=0.2
)");
  EXPECT_THAT(run.Lines("*THICKNESS"), ElementsAre("\t2, VALUE,   YES,   0.2,     0"));
}

TEST(Thickness, SectionsOfAxisymmetricSolidsAloneWriteNothing) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=RING   AreaType=Asolid   Type=Asolid   Thickness=0.1   BendThick=0.1

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=RING
)");
  EXPECT_EQ(run.Section("*THICKNESS"), "");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert"));
}

TEST(Thickness, SectionsOfEveryOtherKindHaveOne) {
  for (const char* kind :
       {"AreaType=Shell   Type=Membrane", "AreaType=Shell   Type=Layered",
        "AreaType=Plane   Type=Plane-Stress", "AreaType=Plane   Type=Plane-Strain",
        "AreaType=Plane   Type=Other", "AreaType=Cable   Type=Cable",
        "AreaType=asolid   Type=Asolid", "Color=Red"}) {
    SCOPED_TRACE(kind);
    const ConversionRun run = Convert(
        "TABLE:  \"AREA SECTION PROPERTIES\"\n"
        "   Section=WALL   " +
        std::string(kind) + "   Thickness=0.2   BendThick=0.3\n");
    EXPECT_THAT(run.Lines("*THICKNESS"), ElementsAre("\t1, VALUE,    NO,   0.2,   0.3"));
  }
}

TEST(Thickness, LostPropertyShowsItsMessageOnceBehindThoseOfTheElements) {
  const ConversionRun run = Convert(R"(
TABLE:  "AREA SECTION PROPERTIES"
   Section=SLAB   AreaType=Shell   Type=Layered   Thickness=0.2   BendThick=0.2
   Section=NET   AreaType=Cable   Type=Cable   Thickness=0.2   BendThick=0.2

TABLE:  "CONNECTIVITY - AREA"
   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4
   Area=2   Joint1=3   Joint2=4   Joint3=5   Joint4=6
   Area=3   Joint1=5   Joint2=6   Joint3=7   Joint4=8

TABLE:  "AREA SECTION ASSIGNMENTS"
   Area=1   Section=SLAB
   Area=2   Section=SLAB
   Area=3   Section=NET
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_PLAT_LclAx_Not_Convert", "IDS_S2KV8_AREA_Prop_Not_Convert"));
}

// ---- Flags that no conversion leaves so ----

class NotedMessages : public s2k2ngt::Messages {
 public:
  void Show(s2k2ngt::MessageKey key) override { Keys.emplace_back(key.Get()); }
  void ShowWith(s2k2ngt::MessageKey key, s2k2ngt::Text /*argument*/) override {
    Keys.emplace_back(key.Get());
  }
  std::vector<std::string> Keys;
};

/// The writer alone, over a target model of the test's.
class ThicknessWriterTest : public testing::Test {
 protected:
  std::string Write() {
    const TemporaryFolder folder;
    const std::string path = folder.FileName("model.ngt");
    s2k2ngt::OutputFile file(path);
    s2k2ngt::LineWriter out(file);
    EXPECT_TRUE(s2k2ngt::WriteThicknesses(m_Run, out));
    out.Flush();
    file.Close();
    return ReadFile(path);
  }

  s2k2ngt::CModel m_Source;
  s2k2ngt::CNgtModel m_Target;
  s2k2ngt::ElementNumbers m_Elements;
  s2k2ngt::DeferredWarnings m_Warnings;
  NotedMessages m_Shown;
  s2k2ngt::Ledger m_Accounts{false};
  s2k2ngt::Conversion m_Run{m_Source, m_Target, m_Elements, m_Warnings, m_Shown, m_Accounts};
};

TEST_F(ThicknessWriterTest, LostModifiersAndPropertiesShowTheirMessagesInThisOrder) {
  m_Target.Add(8, s2k2ngt::T_NGT_THIK_D{.bSAME = "NO", .ThikIn = 0.2, .ThikOut = 0.3});
  m_Warnings.bAreaModifiersLost = true;
  m_Target.bAreaPropertyLost = true;
  EXPECT_EQ(Write(),
            "*THICKNESS    ; Thickness\n"
            "; iTHK, TYPE, bSAME, THIK-IN, THIK-OUT                 ; TYPE=VALUE\n"
            "\t8, VALUE,    NO,   0.2,   0.3\n"
            "\n");
  EXPECT_THAT(m_Shown.Keys, ElementsAre("IDS_S2KV8_AREA_Thik_Mod_Not_Confert",
                                        "IDS_S2KV8_AREA_Prop_Not_Convert"));
}

TEST_F(ThicknessWriterTest, LostModifiersAloneShowTheirMessage) {
  m_Target.Add(1, s2k2ngt::T_NGT_THIK_D{.bSAME = "YES", .ThikIn = 0.2});
  m_Warnings.bAreaModifiersLost = true;
  Write();
  EXPECT_THAT(m_Shown.Keys, ElementsAre("IDS_S2KV8_AREA_Thik_Mod_Not_Confert"));
}

TEST_F(ThicknessWriterTest, WithoutThicknessesAllIsSilent) {
  m_Warnings.bAreaModifiersLost = true;
  m_Target.bAreaPropertyLost = true;
  EXPECT_EQ(Write(), "");
  EXPECT_THAT(m_Shown.Keys, IsEmpty());
}

TEST_F(ThicknessWriterTest, RowsOfTheStiffnessTableSetTheFlagOfTheModifiers) {
  EXPECT_TRUE(s2k2ngt::CheckAreaModifiers(m_Run));
  EXPECT_FALSE(m_Warnings.bAreaModifiersLost);
  m_Source.Rows<s2k2ngt::T_ASMD_D>().Insert(1, {});
  EXPECT_TRUE(s2k2ngt::CheckAreaModifiers(m_Run));
  EXPECT_TRUE(m_Warnings.bAreaModifiersLost);
}

}  // namespace
