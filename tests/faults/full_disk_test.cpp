// Lets the disk be full at one place of the output after the other.
#include "support/conversion_run.h"
#include "support/large_model.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

/// As long as it lives, no file of this process grows beyond a size.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(std::size_t size) : m_Handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_Before);
    rlimit limit = m_Before;
    limit.rlim_cur = size;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &m_Before);
    std::signal(SIGXFSZ, m_Handler);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  void (*m_Handler)(int);
  rlimit m_Before{};
};

/// The exception of a run on a disk that is full behind so many bytes of the output; nothing when
/// they are enough.
std::optional<s2k2ngt::FileException> RunOnFullDisk(const std::string& path, std::size_t size) {
  ScriptedPlatform platform;
  s2k2ngt::CConverter converter(platform);
  const FileSizeLimit limit(size);
  try {
    EXPECT_EQ(converter.Run(path.c_str()), s2k2ngt::kConverted);
    return std::nullopt;
  } catch (const s2k2ngt::FileException& exception) {
    EXPECT_EQ(converter.Failure().Phase, s2k2ngt::kWriting);
    EXPECT_EQ(converter.Failure().Reason, exception.what());
    return exception;
  }
}

TEST(FullDisk, IsToldWhereverTheOutputEnds) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  const std::string output = folder.FileName("model.ngt");
  WriteFile(path, LargeModel());
  constexpr std::size_t kNoLimit = std::size_t{1} << 40U;
  ASSERT_FALSE(RunOnFullDisk(path, kNoLimit).has_value());
  const std::string wanted = ReadFile(output);
  const std::size_t size = wanted.size();
  constexpr std::size_t kMebibyte = std::size_t{1} << 20U;
  ASSERT_GT(size, kMebibyte + 1);  // more than one write

  for (const std::size_t room : {std::size_t{0}, std::size_t{1}, std::size_t{4096}, kMebibyte - 100,
                                 kMebibyte, kMebibyte + 1, size - 1}) {
    SCOPED_TRACE(room);
    const auto exception = RunOnFullDisk(path, room);
    ASSERT_TRUE(exception.has_value());
    EXPECT_EQ(exception->FileName(), output);
    EXPECT_EQ(exception->SystemError(), EFBIG);
    EXPECT_EQ(std::string(exception->what()),
              "Cannot write output file " + output + ": File too large");
    EXPECT_TRUE(ReadFile(output) == wanted.substr(0, room));
  }

  EXPECT_FALSE(RunOnFullDisk(path, size).has_value());
  EXPECT_TRUE(ReadFile(output) == wanted);
}

TEST(FullDisk, IsToldAlsoWhenTheUserStops) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  WriteFile(path, FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=1\n"));
  std::filesystem::create_symlink("/dev/full", folder.FileName("model.ngt"));
  ScriptedPlatform whole;
  EXPECT_THROW(s2k2ngt::CConverter(whole).Run(path.c_str()), s2k2ngt::FileException);

  int told = 0;
  for (int step = 1; step <= whole.Steps; ++step) {
    SCOPED_TRACE(step);
    ScriptedPlatform platform;
    platform.StopAtStep = step;
    {
      s2k2ngt::CConverter converter(platform);
      try {
        EXPECT_EQ(converter.Run(path.c_str()), s2k2ngt::kStopped);
        EXPECT_LT(converter.Failure().Phase, s2k2ngt::kWriting);
      } catch (const s2k2ngt::FileException& exception) {
        EXPECT_EQ(exception.SystemError(), ENOSPC);
        EXPECT_EQ(converter.Failure().Phase, s2k2ngt::kWriting);
        ++told;
      }
    }
    EXPECT_EQ(platform.WindowsOpen, 0);
  }
  EXPECT_GT(told, 30);  // a step for each section
}

}  // namespace
