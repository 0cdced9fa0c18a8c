#include "support/conversion_run.h"
#include "support/examples.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <filesystem>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

/// Converts an example model in a folder of its own, under its bare file name.
class GoldenConversion : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    m_Before = fs::current_path();
    fs::current_path(m_Folder.Path());
  }
  void TearDown() override { fs::current_path(m_Before); }

 private:
  TemporaryFolder m_Folder;
  fs::path m_Before;
};

/// The keys shown, a line each.
std::string KeysShown(const ScriptedPlatform& platform) {
  std::ostringstream keys;
  for (const ScriptedPlatform::Message& message : platform.Messages) {
    keys << message.Key << '\n';
  }
  return keys.str();
}

TEST_P(GoldenConversion, GivesTheExpectedBytesAndMessages) {
  const std::string name = GetParam();
  WriteFile(name + ".s2k", Example(name));
  ScriptedPlatform platform;
  s2k2ngt::CConverter converter(platform);
  ASSERT_EQ(converter.Run((name + ".s2k").c_str()), s2k2ngt::kConverted);
  const fs::path golden(S2K2NGT_GOLDEN);
  EXPECT_EQ(ReadFile(name + ".ngt"), ReadFile((golden / (name + ".ngt")).string()));
  EXPECT_EQ(KeysShown(platform), ReadFile((golden / (name + ".messages")).string()));
}

INSTANTIATE_TEST_SUITE_P(Examples, GoldenConversion, testing::ValuesIn(ExampleNames()),
                         [](const auto& example) { return example.param; });

}  // namespace
