// Lets the allocations of a run fail, one in each run, until a run comes through.
#include "support/examples.h"
#include "support/open_files.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>
#include <s2k2ngt/platform.h>

#include <cstddef>
#include <cstdlib>
#include <new>
#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace {

std::size_t s_AllocationsToFailure = 0;  // 0: none fails
std::ptrdiff_t s_Living = 0;

}  // namespace

void* operator new(std::size_t size) {
  if (s_AllocationsToFailure > 0 && --s_AllocationsToFailure == 0) {
    throw std::bad_alloc();
  }
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  ++s_Living;
  return memory;
}

void operator delete(void* memory) noexcept {
  s_Living -= memory == nullptr ? 0 : 1;
  std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }

namespace {

/// Shows nothing, and counts its windows.
class QuietPlatform : public s2k2ngt::Platform {
 public:
  void ShowMessage(const std::string& /*key*/, const std::string& /*text*/) override {}
  void OpenProgress() override { ++WindowsOpen; }
  void CloseProgress() override { --WindowsOpen; }

  int WindowsOpen = 0;
};

/// Where a run ended one of whose allocations failed; nothing when it came through.
std::optional<s2k2ngt::Diagnostic> RunWithFailure(const std::string& path, std::size_t allocation) {
  std::optional<s2k2ngt::Diagnostic> failure;
  QuietPlatform platform;
  {
    s2k2ngt::CConverter converter(platform);
    s_AllocationsToFailure = allocation;
    try {
      const int result = converter.Run(path.c_str());
      s_AllocationsToFailure = 0;
      EXPECT_EQ(result, s2k2ngt::kConverted);
    } catch (const s2k2ngt::MemoryException&) {
      s_AllocationsToFailure = 0;
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
    const std::ptrdiff_t livingBefore = s_Living;
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
    ASSERT_EQ(s_Living, livingBefore);
    ASSERT_EQ(OpenFiles(), filesBefore);
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_GT(allocation, 100U);
  EXPECT_EQ(ReadFile(output), wanted);
}

INSTANTIATE_TEST_SUITE_P(Examples, EveryAllocation, testing::ValuesIn(ExampleNames()));

}  // namespace
