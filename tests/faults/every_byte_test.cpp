// Cuts small models, which have every table between them, at each of their bytes, and changes each
// of their bytes.
#include "common/text.h"
#include "run/sections.h"
#include "source/table_catalogue.h"
#include "support/conversion_run.h"
#include "support/examples.h"
#include "support/quiet_platform.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using s2k2ngt::TableFate;
using testing::HasSubstr;
using testing::IsEmpty;

/// The ids of the tables that are stored, or refused with a message, as far as a title can give
/// them.
std::set<int> IdsWithAnOutcome() {
  std::set<int> ids;
  const auto add = [&](int id, std::string_view keyword, std::string_view word) {
    const std::string title =
        s2k2ngt::ToUpper("TABLE:  \"" + std::string(keyword) + " - " + std::string(word));
    if (s2k2ngt::OutcomeOf(id).Fate != TableFate::Ignored && s2k2ngt::IdOfTitle(title) == id) {
      ids.insert(id);
    }
  };
  for (const s2k2ngt::TableKeyword& keyword : s2k2ngt::kKeywords) {
    int id = keyword.Id;
    if (keyword.Words.empty()) {
      add(id, keyword.Word, "");
    }
    for (const s2k2ngt::TableWord& word : keyword.Words) {
      add(id++, keyword.Word, word.Word);
    }
  }
  return ids;
}

/// The ids of all tables with at least one row.
std::set<int> IdsIn(const std::string& file) {
  std::set<int> ids;
  std::istringstream lines(file);
  std::string title;
  for (std::string line; std::getline(lines, line);) {
    if (title.starts_with("TABLE:") && line.starts_with("   ")) {
      ids.insert(s2k2ngt::IdOfTitle(title));
    }
    title = line;
  }
  return ids;
}

/// A file that is changed in place, and runs over it.
class ChangedFile {
 public:
  explicit ChangedFile(const std::string& bytes) : m_Bytes(bytes) {
    WriteFile(m_Path, bytes);
    m_File = open(m_Path.c_str(), O_WRONLY | O_CLOEXEC);
    Convert();
    EXPECT_EQ(m_Converted, 1);
    m_WholeSize = m_OutputSize;
  }
  ~ChangedFile() { close(m_File); }
  ChangedFile(const ChangedFile&) = delete;
  ChangedFile& operator=(const ChangedFile&) = delete;

  void Cut(std::size_t size) {
    if (ftruncate(m_File, static_cast<off_t>(size)) != 0) {
      throw std::runtime_error("cannot cut " + m_Path);
    }
  }
  void Change(std::size_t position, char byte) {
    if (pwrite(m_File, &byte, 1, static_cast<off_t>(position)) != 1) {
      throw std::runtime_error("cannot change " + m_Path);
    }
  }
  void ChangeBack(std::size_t position) { Change(position, m_Bytes[position]); }

  /// A run must end by itself: with an output, or with a reason and none.
  void Convert() {
    const auto begin = std::chrono::steady_clock::now();
    QuietPlatform platform;
    s2k2ngt::CConverter converter(platform);
    int result = s2k2ngt::kFailed;
    try {
      result = converter.Run(m_Path.c_str());
    } catch (const s2k2ngt::InvalidArgumentException&) {
      // a single row that is missing, or units that are
      ASSERT_EQ(converter.Failure().Phase, s2k2ngt::kReading);
    }
    ASSERT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
    struct stat output {};
    const bool hasOutput = stat(m_Output.c_str(), &output) == 0;
    if (result == s2k2ngt::kConverted) {
      ++m_Converted;
      ASSERT_EQ(converter.Failure().Reason, "");
      ASSERT_TRUE(hasOutput);
      m_OutputSize = static_cast<std::size_t>(output.st_size);
      ASSERT_LT(m_OutputSize, m_WholeSize * 2);
      unlink(m_Output.c_str());
    } else {
      ++m_Failed;
      ASSERT_EQ(result, s2k2ngt::kFailed);
      ASSERT_NE(converter.Failure().Reason, "");
      ASSERT_FALSE(hasOutput);
    }
  }

  int Converted() const { return m_Converted; }
  int Failed() const { return m_Failed; }

 private:
  TemporaryFolder m_Folder;
  std::string m_Path = m_Folder.FileName("model.s2k");
  std::string m_Output = m_Folder.FileName("model.ngt");
  std::string m_Bytes;
  int m_File = -1;
  std::size_t m_WholeSize = std::size_t{1} << 20U;
  std::size_t m_OutputSize = 0;
  int m_Converted = 0;
  int m_Failed = 0;
};

TEST(EveryTable, HasARowInOneOfTheModels) {
  std::set<int> missing = IdsWithAnOutcome();
  ASSERT_GT(missing.size(), 100U);
  for (const std::string& name : ExampleNames()) {
    for (const int id : IdsIn(Example(name))) {
      missing.erase(id);
    }
  }
  EXPECT_THAT(missing, IsEmpty());
}

TEST(EveryTable, LeadsToEverySectionOfTheOutput) {
  std::string outputs;
  for (const std::string& name : ExampleNames()) {
    outputs += ConvertBytes(Example(name)).Output;
  }
  for (const s2k2ngt::Section& section : s2k2ngt::kSections) {
    std::istringstream commands(section.Commands);
    for (std::string command; std::getline(commands >> std::ws, command, ',');) {
      EXPECT_THAT(outputs, HasSubstr(command));
    }
  }
}

// With sanitizers a run takes several times as long.
#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kCutStride = 3;
#else
constexpr std::size_t kCutStride = 1;
#endif

class EveryByte : public testing::TestWithParam<std::string> {};

TEST_P(EveryByte, MayBeTheLast) {
  const std::string bytes = Example(GetParam());
  ChangedFile file(bytes);
  for (std::size_t lost = 1; lost <= bytes.size(); lost += kCutStride) {
    SCOPED_TRACE(lost);
    file.Cut(bytes.size() - lost);
    file.Convert();
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_GT(file.Converted(), 20);
  EXPECT_GT(file.Failed(), 20);
}

char Changed(char byte, std::size_t way) {
  constexpr std::string_view kOthers("\xFF \"\n=\0", 6);
  return way < kOthers.size() ? kOthers[way] : static_cast<char>(byte ^ 1);
}

TEST_P(EveryByte, MayBeAnother) {
  const std::string bytes = Example(GetParam());
  ChangedFile file(bytes);
  for (std::size_t position = 0; position < bytes.size(); ++position) {
    SCOPED_TRACE(position);
    // All ways come in turn.
    file.Change(position, Changed(bytes[position], position % 7));
    file.Convert();
    file.ChangeBack(position);
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_GT(file.Converted(), 100);
  EXPECT_GT(file.Failed(), 0);
}

INSTANTIATE_TEST_SUITE_P(OfModels, EveryByte, testing::ValuesIn(ExampleNames()),
                         [](const auto& name) { return name.param; });

}  // namespace
