#include "run/prgs_dlg.h"

#include "support/conversion_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

using testing::ElementsAre;

TEST(ProgressWindow, ShowsTheTextOfEachPhaseAndOfNoOther) {
  ScriptedPlatform platform;
  CPrgsDlg dialog(platform);
  for (const int phase : {0, 1, 2, 3, 4, -1}) {
    dialog.SetPhase(phase);
  }
  EXPECT_THAT(platform.Statuses,
              ElementsAre("Reading [s2k] file of SAP2000 V8",
                          "Converting [s2k] file to NORDA text file", "Writing NORDA text file"));
}

}  // namespace
}  // namespace s2k2ngt
