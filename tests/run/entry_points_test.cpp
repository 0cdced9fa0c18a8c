#include "run/entry_points.h"

#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/entry_points.h>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

TEST(ConvertChosenFile, AsksWithTheFilterOfTheSourceProgramsFiles) {
  ScriptedPlatform platform;
  std::string output = "as it was";
  EXPECT_EQ(ConvertChosenFile(platform, output), 1);
  EXPECT_EQ(platform.DialogExtension, ".dat");
  EXPECT_EQ(platform.DialogFilter, "SAP2000(v8) Files(*.s2k)|*.s2k|All Files(*.*)|*.*||");
}

TEST(ConvertChosenFile, DismissedDialogEndsWithOneAndNothingElse) {
  ScriptedPlatform platform;
  std::string output = "as it was";
  EXPECT_EQ(ConvertChosenFile(platform, output), 1);
  EXPECT_EQ(output, "as it was");
  EXPECT_TRUE(platform.Messages.empty());
  EXPECT_EQ(platform.WindowsOpened, 0);
}

TEST(ConvertChosenFile, TellsTheOutputPathOfAConvertedFile) {
  const TemporaryFolder folder;
  ScriptedPlatform platform;
  platform.ChosenFile = folder.FileName("tower.s2k");
  WriteFile(*platform.ChosenFile, FileWith(""));
  std::string output;
  EXPECT_EQ(ConvertChosenFile(platform, output), 0);
  EXPECT_EQ(output, folder.FileName("tower.ngt"));
}

TEST(ConvertChosenFile, LeavesThePathOnFailureAndStop) {
  const TemporaryFolder folder;
  ScriptedPlatform platform;
  platform.ChosenFile = folder.FileName("tower.s2k");
  std::string output = "as it was";
  EXPECT_EQ(ConvertChosenFile(platform, output), -1);
  EXPECT_EQ(output, "as it was");
  WriteFile(*platform.ChosenFile, FileWith(""));
  platform.StopAtStep = 1;
  EXPECT_EQ(ConvertChosenFile(platform, output), 1);
  EXPECT_EQ(output, "as it was");
}

}  // namespace
}  // namespace s2k2ngt
