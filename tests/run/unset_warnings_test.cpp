// Warnings that no stage sets, as far as the run goes today. Their writers show them all the same,
// and in the order that hosts expect.
#include "frames/elements.h"
#include "frames/end_conditions.h"
#include "plates/areas.h"
#include "plates/solids.h"
#include "run/element_section.h"
#include "support/writer_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(UnsetWarnings, OfNodesAndLengthsAreShownAtTheHeadOfTheElements) {
  WriterRun run;
  run.Target.Add(1, T_NGT_FRAM_D{});
  run.Warnings.bNodeNotAssigned = true;
  run.Warnings.bElemLengthZero = true;
  run.Warnings.bFrameLocalAxesLost = true;
  run.Write(WriteElements);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_Not_Assgn", "IDS_S2KV8_ELEM_Length_Zero",
                                        "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

TEST(UnsetWarnings, OfElementsStaySilentInAModelWithoutElements) {
  WriterRun run;
  run.Warnings.bNodeNotAssigned = true;
  run.Warnings.bElemLengthZero = true;
  EXPECT_EQ(run.Write(WriteElements), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(UnsetWarnings, OfOffsetsOnReleasedEndsIsShownBeforeThatOfPartialFixity) {
  WriterRun run;
  run.Target.Add(1, T_NGT_FRRL_D{});
  run.Warnings.bFrameEndOffsetRelease = true;
  run.Warnings.bFrameEndPartial = true;
  run.Write(WriteReleases);
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_BEAM_End_Off_Rls", "IDS_S2KV8_BEAM_End_Release"));
}

TEST(UnsetWarnings, OfAreaModifiersIsShownBeforeThatOfAreaSections) {
  WriterRun run;
  run.Target.Add(1, T_NGT_THIK_D{.bSAME = "YES", .ThikIn = 0.2});
  run.Warnings.bAreaModifiersLost = true;
  run.Target.bAreaPropertyLost = true;
  run.Write(WriteThicknesses);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_AREA_Thik_Mod_Not_Confert",
                                        "IDS_S2KV8_AREA_Prop_Not_Convert"));
}

TEST(UnsetWarnings, OfAreaModifiersStaysSilentWithoutThicknesses) {
  WriterRun run;
  run.Warnings.bAreaModifiersLost = true;
  run.Target.bAreaPropertyLost = true;
  EXPECT_EQ(run.Write(WriteThicknesses), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(UnsetWarnings, OfLocalAxesStaySilent) {
  // Conversions of areas and of solids always set them.
  WriterRun run;
  run.Target.Add(1, T_NGT_PLAT_D{});
  run.Target.Add(1, T_NGT_SOLD_D{});
  EXPECT_NE(run.Write(WriteElements), "");
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(UnusedPositions, PrintTheDefaultFrame) {
  // Frames are keyed without gaps; a record that is missing all the same prints element number 1.
  WriterRun run;
  run.Target.Add(2, T_NGT_FRAM_D{});
  const std::string lines = run.Write(WriteElements);
  EXPECT_NE(lines.find("\n\t1,      ,     1,     1,     0,     0,     0\n"), std::string::npos)
      << lines;
}

}  // namespace
}  // namespace s2k2ngt
