// Lets the allocations of a run fail, one in each run, until a run comes through.
#include "support/counted_allocations.h"
#include "support/examples.h"
#include "support/open_files.h"
#include "support/quiet_platform.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>

#include <cstddef>
#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace {

/// Where a run ended one of whose allocations failed; nothing when it came through.
std::optional<s2k2ngt::Diagnostic> RunWithFailure(const std::string& path, std::size_t allocation) {
  std::optional<s2k2ngt::Diagnostic> failure;
  QuietPlatform platform;
  {
    s2k2ngt::CConverter converter(platform);
    FailAtAllocation(allocation);
    try {
      const int result = converter.Run(path.c_str());
      FailAtAllocation(0);
      EXPECT_EQ(result, s2k2ngt::kConverted);
    } catch (const s2k2ngt::MemoryException&) {
      FailAtAllocation(0);
      failure = converter.Failure();
    }
  }
  EXPECT_EQ(platform.WindowsOpen, 0);
  return failure;
}

class EveryAllocation : public testing::TestWithParam<std::string> {};

TEST_P(EveryAllocation, MayFailAndLeavesNothingBehind) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  const std::string output = folder.FileName("model.ngt");
  WriteFile(path, Example(GetParam()));
  ASSERT_FALSE(RunWithFailure(path, 0).has_value());
  const std::string wanted = ReadFile(output);

  std::size_t allocation = 1;
  for (;; ++allocation) {
    SCOPED_TRACE(allocation);
    WriteFile(output, "from before");
    const std::ptrdiff_t filesBefore = OpenFiles();
    const LivingMemory livingBefore = CountLivingMemory();
    {
      const auto failure = RunWithFailure(path, allocation);
      if (!failure) {
        break;
      }
      // The first allocation is that of the run itself, which has no place for a reason without it.
      EXPECT_EQ(failure->Reason,
                allocation == 1 ? "" : "there is not enough memory for this model");
      if (failure->Phase < s2k2ngt::kWriting) {
        EXPECT_EQ(ReadFile(output), "from before");
      }
    }
    ASSERT_EQ(CountLivingMemory(), livingBefore);
    ASSERT_EQ(OpenFiles(), filesBefore);
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_GT(allocation, 100U);
  EXPECT_EQ(ReadFile(output), wanted);
}

INSTANTIATE_TEST_SUITE_P(Examples, EveryAllocation, testing::ValuesIn(ExampleNames()));

}  // namespace
