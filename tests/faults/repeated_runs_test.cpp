// Runs a thousand times in one process, and looks for what the runs leave behind.
#include "run/sections.h"
#include "support/conversion_run.h"
#include "support/counted_allocations.h"
#include "support/examples.h"
#include "support/open_files.h"
#include "support/quiet_platform.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <array>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kRuns = 1'000;

/// What a process has that runs could use up.
struct Holdings {
  LivingMemory Memory;
  std::ptrdiff_t OpenFiles = 0;
  bool operator==(const Holdings&) const = default;
};

Holdings CountHoldings() { return {CountLivingMemory(), OpenFiles()}; }

/// The example of a run: every twentieth is one of all, in turn; the others are of the smallest, as
/// they must not take long.
const std::string& ExampleOfRun(const std::vector<std::string>& names, std::size_t run) {
  static const std::string smallest = "portal_frame";
  return run % 20 == 0 ? names[run / 20 % names.size()] : smallest;
}

class RepeatedRuns : public testing::Test {
 protected:
  RepeatedRuns() {
    for (const std::string& name : m_Names) {
      WriteFile(PathOf(name), Example(name));
    }
  }

  std::string PathOf(const std::string& name) const { return m_Folder.FileName(name + ".s2k"); }
  std::string OutputOf(const std::string& name) const {
    return ReadFile(m_Folder.FileName(name + ".ngt"));
  }

  /// Converts each example once, with a driver of its own, and returns the outputs.
  std::map<std::string, std::string> ConvertEachOnce() {
    std::map<std::string, std::string> outputs;
    for (const std::string& name : m_Names) {
      s2k2ngt::CConverter converter(m_Platform);
      EXPECT_EQ(converter.Run(PathOf(name).c_str()), s2k2ngt::kConverted);
      outputs[name] = OutputOf(name);
    }
    return outputs;
  }

  const std::vector<std::string> m_Names = ExampleNames();
  const TemporaryFolder m_Folder;
  QuietPlatform m_Platform;
};

TEST_F(RepeatedRuns, WithANewDriverEachLeaveNothingBehind) {
  const auto wanted = ConvertEachOnce();
  const Holdings before = CountHoldings();
  for (std::size_t run = 0; run < kRuns; ++run) {
    const std::string& name = ExampleOfRun(m_Names, run);
    {
      s2k2ngt::CConverter converter(m_Platform);
      ASSERT_EQ(converter.Run(PathOf(name).c_str()), s2k2ngt::kConverted);
    }
    ASSERT_EQ(OutputOf(name), wanted.at(name));
    ASSERT_EQ(CountHoldings(), before) << "run " << run;
  }
  EXPECT_EQ(m_Platform.WindowsOpen, 0);
}

TEST_F(RepeatedRuns, WithOneDriverHoldNoMoreThanItsLastRun) {
  const auto wanted = ConvertEachOnce();
  std::map<std::string, std::size_t> held;  // living allocations after a run over each example
  for (const std::string& name : m_Names) {
    held[name] = 0;
  }
  const Holdings before = CountHoldings();
  {
    s2k2ngt::CConverter converter(m_Platform);
    for (const std::string& name : m_Names) {
      ASSERT_EQ(converter.Run(PathOf(name).c_str()), s2k2ngt::kConverted);
      held[name] = CountLivingMemory().Allocations;
    }
    for (std::size_t run = 0; run < kRuns; ++run) {
      const std::string& name = ExampleOfRun(m_Names, run);
      ASSERT_EQ(converter.Run(PathOf(name).c_str()), s2k2ngt::kConverted);
      ASSERT_EQ(OutputOf(name), wanted.at(name));
      ASSERT_EQ(CountLivingMemory().Allocations, held.at(name)) << "run " << run;
      ASSERT_EQ(OpenFiles(), before.OpenFiles) << "run " << run;
    }
  }
  EXPECT_EQ(CountHoldings(), before);
  EXPECT_EQ(m_Platform.WindowsOpen, 0);
}

/// A way for a run to end before its end.
struct Failure {
  std::string Name;  // of the file
  int Result = 0;    // or kThrows
  s2k2ngt::RunPhase Phase = s2k2ngt::kNotBegun;
  int StopAtStep = 0;
};

constexpr int kThrows = 2;  // no result of a run

int ResultOf(s2k2ngt::CConverter& converter, const std::string& path) {
  try {
    return converter.Run(path.c_str());
  } catch (const std::exception&) {
    return kThrows;
  }
}

class RepeatedFailures : public RepeatedRuns {
 protected:
  RepeatedFailures() {
    WriteFile(PathOf("refused_row"),
              FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=1   CoordType=Cylindrical\n"));
    WriteFile(PathOf("older_format"), "SYSTEM\nLENGTH=M\n");
    WriteFile(PathOf("without_units"), FileWith("TABLE:  \"PROGRAM CONTROL\"\n"));
    WriteFile(PathOf("folder_in_the_way"), FileWith(""));
    std::filesystem::create_directory(m_Folder.FileName("folder_in_the_way.ngt"));
    std::filesystem::create_directory(PathOf("folder"));
  }

  /// Lets a driver fail, and looks whether it did so in the right way.
  void Fail(s2k2ngt::CConverter& converter, const Failure& failure) {
    m_Platform.Steps = 0;
    m_Platform.StopAtStep = failure.StopAtStep;
    const std::string path = PathOf(failure.Name);
    ASSERT_EQ(ResultOf(converter, path), failure.Result) << path;
    ASSERT_EQ(converter.Failure().Phase, failure.Phase) << path;
    ASSERT_EQ(converter.Failure().Reason.empty(), failure.Result == s2k2ngt::kStopped) << path;
  }
};

TEST_F(RepeatedFailures, LeaveNothingBehind) {
  using namespace s2k2ngt;
  const auto wanted = ConvertEachOnce();
  m_Platform.Steps = 0;
  ASSERT_EQ(CConverter(m_Platform).Run(PathOf("portal_frame").c_str()), kConverted);
  const int writing = m_Platform.Steps - static_cast<int>(kSections.size()) / 2;
  const int converting = m_Platform.Steps - static_cast<int>(kSections.size()) - 1;
  const std::array<Failure, 9> failures = {{
      {"missing", kFailed, kNotBegun},
      {"folder", kFailed, kNotBegun},
      {"refused_row", kFailed, kReading},
      {"older_format", kFailed, kReading},
      {"without_units", kThrows, kReading},
      {"folder_in_the_way", kThrows, kWriting},
      {"portal_frame", kStopped, kReading, 1},
      {"portal_frame", kStopped, kConverting, converting},
      {"portal_frame", kStopped, kWriting, writing},
  }};
  for (const Failure& failure : failures) {
    CConverter converter(m_Platform);
    ASSERT_NO_FATAL_FAILURE(Fail(converter, failure));
  }
  const Holdings before = CountHoldings();
  {
    CConverter again(m_Platform);
    for (std::size_t run = 0; run < kRuns; ++run) {
      const Failure& failure = failures.at(run % failures.size());
      const bool withNewDriver = run / failures.size() % 2 == 0;
      CConverter converter(m_Platform);
      ASSERT_NO_FATAL_FAILURE(Fail(withNewDriver ? converter : again, failure)) << "run " << run;
      ASSERT_EQ(OpenFiles(), before.OpenFiles) << "run " << run;
    }
  }
  EXPECT_EQ(CountHoldings(), before);
  EXPECT_EQ(m_Platform.WindowsOpen, 0);

  m_Platform.StopAtStep = 0;
  EXPECT_EQ(ConvertEachOnce(), wanted);
}

}  // namespace
