// Lets the allocations of a run fail, one in each run, until a run comes through.
#include "support/counted_allocations.h"
#include "support/examples.h"
#include "support/open_files.h"
#include "support/quiet_platform.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>
#include <s2k2ngt/s2k2ngt.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

/// Where a run ended one of whose allocations failed; nothing when it came through. Every second
/// time all allocations behind it fail too. Where an account is kept it is made as well, and the
/// drawing.
std::optional<s2k2ngt::Diagnostic> RunWithFailure(const std::string& path, std::size_t allocation,
                                                  bool keepsAccount = false) {
  s2k2ngt::RunOptions options;
  options.KeepsAccount = keepsAccount;
  std::optional<s2k2ngt::Diagnostic> failure;
  QuietPlatform platform;
  {
    s2k2ngt::CConverter converter(platform);
    FailAtAllocation(allocation, allocation % 2 == 0);
    try {
      const int result = converter.Run(path.c_str(), options);
      if (keepsAccount) {
        converter.AccountOfRows();
        converter.DrawingOfModel();
      }
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

class EveryAllocation : public testing::TestWithParam<std::string> {
 protected:
  EveryAllocation() {
    WriteFile(m_Path, Example(GetParam()));
    EXPECT_FALSE(RunWithFailure(m_Path, 0).has_value());
    m_Wanted = ReadFile(m_Output);
  }

  /// What a failed run may leave: the output of before, or the beginning of the new one.
  void CheckOutput(bool isWriting) const {
    const std::string output = ReadFile(m_Output);
    if (output != kBefore) {
      EXPECT_TRUE(isWriting && m_Wanted.starts_with(output));
    }
  }

  static constexpr const char* kBefore = "from before";
  TemporaryFolder m_Folder;
  std::string m_Path = m_Folder.FileName("model.s2k");
  std::string m_Output = m_Folder.FileName("model.ngt");
  std::string m_Wanted;
};

TEST_P(EveryAllocation, MayFailAndLeavesNothingBehind) {
  constexpr std::size_t kWholeRunsBetween = 16;  // each would take long
  std::size_t allocation = 1;
  for (;; ++allocation) {
    SCOPED_TRACE(allocation);
    WriteFile(m_Output, kBefore);
    const std::ptrdiff_t filesBefore = OpenFiles();
    const LivingMemory livingBefore = CountLivingMemory();
    {
      const auto failure = RunWithFailure(m_Path, allocation);
      if (!failure) {
        break;
      }
      // The first allocation is that of the run itself, the second that of a place for a reason.
      EXPECT_EQ(failure->Reason,
                allocation <= 2 ? "" : "there is not enough memory for this model");
      CheckOutput(failure->Phase == s2k2ngt::kWriting);
    }
    ASSERT_EQ(CountLivingMemory(), livingBefore);
    ASSERT_EQ(OpenFiles(), filesBefore);
    if (allocation % kWholeRunsBetween == 0) {
      EXPECT_FALSE(RunWithFailure(m_Path, 0).has_value());
      EXPECT_EQ(ReadFile(m_Output), m_Wanted);
    }
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_GT(allocation, 100U);
  EXPECT_EQ(ReadFile(m_Output), m_Wanted);
}

TEST_P(EveryAllocation, MayFailInARunThatKeepsAccount) {
  EXPECT_FALSE(RunWithFailure(m_Path, 0, true).has_value());
  std::size_t allocation = 1;
  for (;; ++allocation) {
    SCOPED_TRACE(allocation);
    const LivingMemory livingBefore = CountLivingMemory();
    if (!RunWithFailure(m_Path, allocation, true)) {
      break;
    }
    ASSERT_EQ(CountLivingMemory(), livingBefore);
  }
  EXPECT_GT(allocation, 100U);
  EXPECT_EQ(ReadFile(m_Output), m_Wanted);
}

/// What a host in C is told of a failure, kept without an allocation.
struct ToldFailure {
  std::array<char, 4096> Reason = {};
  int Count = 0;
};

void OnFailure(void* context, const char* reason) {
  auto& told = *static_cast<ToldFailure*>(context);
  std::strncpy(told.Reason.data(), reason, told.Reason.size() - 1);
  ++told.Count;
}

TEST_P(EveryAllocation, ThatFailsIsToldToAHostInC) {
  for (std::size_t allocation = 1;; ++allocation) {
    SCOPED_TRACE(allocation);
    ToldFailure told;
    s2k2ngt_host host = {};
    host.size = sizeof host;
    host.context = &told;
    host.failure = OnFailure;
    FailAtAllocation(allocation, allocation % 2 == 0);
    const int result = s2k2ngt_convert(m_Path.c_str(), &host, nullptr, 0);
    FailAtAllocation(0);
    if (result == S2K2NGT_CONVERTED) {
      EXPECT_EQ(told.Count, 0);
      break;
    }
    ASSERT_EQ(result, S2K2NGT_FAILED);
    ASSERT_EQ(told.Count, 1);
    ASSERT_THAT(told.Reason.data(), testing::HasSubstr("there is not enough memory"));
  }
  EXPECT_EQ(ReadFile(m_Output), m_Wanted);
}

INSTANTIATE_TEST_SUITE_P(Examples, EveryAllocation, testing::ValuesIn(ExampleNames()));

}  // namespace
