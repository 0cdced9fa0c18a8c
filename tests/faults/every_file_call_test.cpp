// Lets the calls on files of a run fail, one in each run, until a run comes through.
#include "faults/failing_file_calls.h"
#include "support/conversion_run.h"
#include "support/examples.h"
#include "support/large_model.h"
#include "support/open_files.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>
#include <s2k2ngt/s2k2ngt.h>

#include <array>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

using s2k2ngt::CConverter;
using s2k2ngt::FileException;
using testing::ElementsAre;
using testing::IsEmpty;

class EveryFileCall : public testing::Test {
 protected:
  /// Lets every call fail in every way. `putInput` puts the input in its place before each run.
  void LetEachFail(const std::function<void()>& putInput);

  TemporaryFolder m_Folder;
  std::string m_Path = m_Folder.FileName("model.s2k");
  std::string m_Output = m_Folder.FileName("model.ngt");
  /// How many calls of each kind have failed, each in one way after the other.
  std::map<FileCall, int> m_Failures;

 private:
  void PrepareRun(int callToFail, int whichFault);
  void CheckFiles();
  void FailInDriver(CConverter& converter, ScriptedPlatform& platform, int call, int whichFault);
  void FailInCInterface(int call, int whichFault);
  void RunWhole(CConverter& converter);
  std::string Description() const;

  std::function<void()> m_PutInput;
  std::string m_Wanted;
  std::ptrdiff_t m_OpenFilesBefore = 0;
};

/// What the host is told of the failure; empty for one that it need not know of.
std::string EveryFileCall::Description() const {
  const std::string why = std::string(": ") + std::strerror(g_fileCalls.With.Error);
  switch (g_fileCalls.Failed) {
    case FileCall::OpenInput:
      return m_Path + ": cannot open the input file" + why;
    case FileCall::Read:
      return m_Path + ": Cannot read input file " + m_Path + why;
    case FileCall::OpenOutput:
      return m_Path + ": writing: Cannot create output file " + m_Output + why;
    case FileCall::Write:
    case FileCall::CloseOutput:
      return m_Path + ": writing: Cannot write output file " + m_Output + why;
    case FileCall::CloseInput:  // all of it has been read
    case FileCall::SetBuffer:   // costs time alone
    case FileCall::None:
      break;
  }
  return {};
}

void EveryFileCall::PrepareRun(int callToFail, int whichFault) {
  WriteFile(m_Output, "from before");
  m_PutInput();
  m_OpenFilesBefore = OpenFiles();
  g_fileCalls = {};
  g_fileCalls.CallToFail = callToFail;
  g_fileCalls.WhichFault = whichFault;
}

void EveryFileCall::CheckFiles() {
  g_fileCalls.CallToFail = 0;  // the files of this program must not fail
  EXPECT_EQ(OpenFiles(), m_OpenFilesBefore);
  EXPECT_EQ(g_fileCalls.Closed, g_fileCalls.Opened);
  // Comparisons of large texts are not to be printed.
  const std::string output = ReadFile(m_Output);
  switch (g_fileCalls.Failed) {
    case FileCall::OpenInput:
    case FileCall::Read:
    case FileCall::OpenOutput:
      EXPECT_TRUE(output == "from before");
      break;
    case FileCall::Write:
      EXPECT_LT(output.size(), m_Wanted.size());
      EXPECT_TRUE(output == m_Wanted.substr(0, g_fileCalls.BytesWritten));
      break;
    case FileCall::CloseInput:
    case FileCall::SetBuffer:
    case FileCall::CloseOutput:
    case FileCall::None:
      EXPECT_TRUE(output == m_Wanted);
      break;
  }
}

void EveryFileCall::FailInDriver(CConverter& converter, ScriptedPlatform& platform, int call,
                                 int whichFault) {
  PrepareRun(call, whichFault);
  platform.Messages.clear();
  std::optional<FileException> thrown;
  int result = s2k2ngt::kConverted;
  try {
    result = converter.Run(m_Path.c_str());
  } catch (const FileException& exception) {
    thrown = exception;
  }
  const FileCall failed = g_fileCalls.Failed;
  const std::string description = Description();
  EXPECT_EQ(result, failed == FileCall::OpenInput ? s2k2ngt::kFailed : s2k2ngt::kConverted);
  const bool toldByMessage =
      !platform.Messages.empty() && platform.Messages.back().Text == "Cannot open input file!";
  EXPECT_EQ(toldByMessage, failed == FileCall::OpenInput);
  EXPECT_EQ(thrown.has_value(), !description.empty() && failed != FileCall::OpenInput);
  if (thrown) {
    EXPECT_EQ(thrown->FileName(), failed == FileCall::Read ? m_Path : m_Output);
    EXPECT_EQ(thrown->SystemError(), g_fileCalls.With.Error);
    EXPECT_EQ(converter.Failure().Reason, thrown->what());
  }
  if (description.empty()) {
    EXPECT_EQ(converter.Failure().Reason, "");
  } else {
    EXPECT_EQ(converter.Failure().Describe(m_Path), description);
    EXPECT_EQ(converter.Failure().Phase, failed == FileCall::OpenInput || failed == FileCall::Read
                                             ? s2k2ngt::kNotBegun
                                             : s2k2ngt::kWriting);
  }
  CheckFiles();
}

void EveryFileCall::FailInCInterface(int call, int whichFault) {
  PrepareRun(call, whichFault);
  std::vector<std::string> reasons;
  s2k2ngt_host host = {};
  host.size = sizeof host;
  host.context = &reasons;
  host.failure = [](void* context, const char* reason) {
    static_cast<std::vector<std::string>*>(context)->emplace_back(reason);
  };
  std::array<char, 4096> output = {"as it was"};
  const int result = s2k2ngt_convert(m_Path.c_str(), &host, output.data(), output.size());
  const std::string description = Description();
  if (description.empty()) {
    EXPECT_EQ(result, S2K2NGT_CONVERTED);
    EXPECT_STREQ(output.data(), m_Output.c_str());
    EXPECT_THAT(reasons, IsEmpty());
  } else {
    EXPECT_EQ(result, S2K2NGT_FAILED);
    EXPECT_STREQ(output.data(), "as it was");
    EXPECT_THAT(reasons, ElementsAre(description));
  }
  CheckFiles();
}

void EveryFileCall::RunWhole(CConverter& converter) {
  PrepareRun(0, 0);
  ASSERT_EQ(converter.Run(m_Path.c_str()), s2k2ngt::kConverted);
  CheckFiles();
}

void EveryFileCall::LetEachFail(const std::function<void()>& putInput) {
  m_PutInput = putInput;
  PrepareRun(0, 0);
  ScriptedPlatform unharmed;
  ASSERT_EQ(CConverter(unharmed).Run(m_Path.c_str()), s2k2ngt::kConverted);
  m_Wanted = ReadFile(m_Output);

  for (int whichFault = 0; whichFault < kFaultsPerCall; ++whichFault) {
    m_Failures.clear();
    int call = 0;
    do {
      SCOPED_TRACE(testing::Message() << "call " << ++call << ", fault " << whichFault);
      ScriptedPlatform platform;
      {
        CConverter converter(platform);
        FailInDriver(converter, platform, call, whichFault);
      }
      EXPECT_EQ(platform.WindowsOpen, 0);
      CConverter converter(platform);
      FailInDriver(converter, platform, call, whichFault);
      RunWhole(converter);
      FailInCInterface(call, whichFault);
      ASSERT_FALSE(HasFailure());
      ++m_Failures[g_fileCalls.Failed];
    } while (g_fileCalls.Failed != FileCall::None);
    EXPECT_EQ(m_Failures.size(), 8U);  // the seven kinds, and the run that came through
  }
}

class EveryFileCallOfAnExample : public EveryFileCall,
                                 public testing::WithParamInterface<std::string> {};

TEST_P(EveryFileCallOfAnExample, MayFailAndIsTold) {
  WriteFile(m_Path, Example(GetParam()));
  LetEachFail([] {});
}

INSTANTIATE_TEST_SUITE_P(Examples, EveryFileCallOfAnExample, testing::ValuesIn(ExampleNames()));

TEST_F(EveryFileCall, OfALargeOutputMayFailAndIsTold) {
  WriteFile(m_Path, LargeModel());
  LetEachFail([] {});
  EXPECT_GE(m_Failures[FileCall::Write], 3);
}

/// A pipe that holds the bytes, and ends behind them.
class FullPipe {
 public:
  explicit FullPipe(const std::string& bytes) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
      throw std::runtime_error("cannot make a pipe");
    }
    m_ReadEnd = ends[0];
    const bool holds =
        fcntl(ends[1], F_SETPIPE_SZ, static_cast<int>(bytes.size())) != -1 &&
        write(ends[1], bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    close(ends[1]);
    if (!holds) {
      close(m_ReadEnd);
      throw std::runtime_error("the pipe is too small");
    }
  }
  ~FullPipe() { close(m_ReadEnd); }
  FullPipe(const FullPipe&) = delete;
  FullPipe& operator=(const FullPipe&) = delete;

  std::string FileName() const { return "/proc/self/fd/" + std::to_string(m_ReadEnd); }

 private:
  int m_ReadEnd;
};

// Its size is not known, so that it is read in pieces.
TEST_F(EveryFileCall, OfAPipeMayFailAndIsTold) {
  std::optional<FullPipe> pipe;
  LetEachFail([&] {
    pipe.emplace(Example("office_building"));
    std::filesystem::remove(m_Path);
    std::filesystem::create_symlink(pipe->FileName(), m_Path);
  });
  EXPECT_GE(m_Failures[FileCall::Read], 3);
}

}  // namespace
