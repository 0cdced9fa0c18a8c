// Stops a run at each of its steps in turn.
#include "support/conversion_run.h"
#include "support/examples.h"
#include "support/open_files.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <cstddef>
#include <string>

#include <gtest/gtest.h>

namespace {

class EveryStop : public testing::TestWithParam<std::string> {};

TEST_P(EveryStop, LeavesTheEarlierOutputOrTheBeginningOfTheNewOne) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  const std::string output = folder.FileName("model.ngt");
  WriteFile(path, Example(GetParam()));
  ScriptedPlatform whole;
  ASSERT_EQ(s2k2ngt::CConverter(whole).Run(path.c_str()), s2k2ngt::kConverted);
  const std::string wanted = ReadFile(output);

  const std::ptrdiff_t filesBefore = OpenFiles();
  std::size_t written = 0;
  for (int step = 1; step <= whole.Steps; ++step) {
    SCOPED_TRACE(step);
    WriteFile(output, "from before");
    ScriptedPlatform platform;
    platform.StopAtStep = step;
    s2k2ngt::CConverter converter(platform);
    ASSERT_EQ(converter.Run(path.c_str()), s2k2ngt::kStopped);
    ASSERT_EQ(platform.Steps, step);
    ASSERT_EQ(platform.WindowsOpen, 0);
    ASSERT_EQ(OpenFiles(), filesBefore);
    ASSERT_EQ(converter.Failure().Reason, "");
    if (converter.Failure().Phase == s2k2ngt::kWriting) {
      const std::string part = ReadFile(output);
      ASSERT_TRUE(wanted.starts_with(part));
      ASSERT_LT(part.size(), wanted.size());
      ASSERT_TRUE(part.starts_with(";---"));
      ASSERT_GE(part.size(), written);
      written = part.size();
    } else {
      ASSERT_EQ(ReadFile(output), "from before");
    }
  }

  EXPECT_GT(written, wanted.size() / 2);

  ScriptedPlatform again;
  ASSERT_EQ(s2k2ngt::CConverter(again).Run(path.c_str()), s2k2ngt::kConverted);
  EXPECT_EQ(ReadFile(output), wanted);
}

INSTANTIATE_TEST_SUITE_P(Examples, EveryStop, testing::ValuesIn(ExampleNames()));

}  // namespace
