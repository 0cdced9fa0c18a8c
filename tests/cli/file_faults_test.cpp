// What the command says when a file or a stream of its own fails.
#include "cli/command_fixture.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using testing::HasSubstr;

using CommandFaults = CommandTest;

TEST_F(CommandFaults, FullDiskIsToldInWordsAndTheNextFileIsConverted) {
  Write("tower.s2k", kOneJoint);
  Write("mast.s2k", kOneJoint);
  std::filesystem::create_symlink("/dev/full", m_Folder.Path() / "tower.ngt");
  const CommandRun run = Call({"--json", "tower.s2k", "mast.s2k"});
  EXPECT_EQ(run.Status, 2);
  const std::string error =
      "tower.s2k: writing: Cannot write output file tower.ngt: No space left on device";
  EXPECT_THAT(run.Err, HasSubstr("s2k2ngt: " + error + "\n"));
  const std::vector<json> objects = JsonLines(run.Out);
  ASSERT_EQ(objects.size(), 2U);
  EXPECT_EQ(objects[0]["output"], nullptr);
  EXPECT_EQ(objects[0]["result"], -1);
  EXPECT_EQ(objects[0]["error"], error);
  EXPECT_EQ(objects[1]["output"], "mast.ngt");
  EXPECT_EQ(objects[1]["result"], 0);
  EXPECT_EQ(objects[1]["error"], nullptr);
  EXPECT_TRUE(ReadFile(m_Folder.FileName("mast.ngt")).ends_with("*ENDDATA"));
}

TEST_F(CommandFaults, ReadErrorIsToldInWordsAndLeavesAnEarlierOutput) {
  // A process has no memory at the address 0, so that its first byte cannot be read.
  std::filesystem::create_symlink("/proc/self/mem", m_Folder.Path() / "tower.s2k");
  Write("tower.ngt", "from before");
  const CommandRun run = Call({"--json", "tower.s2k"});
  EXPECT_EQ(run.Status, 2);
  const std::string error = "tower.s2k: Cannot read input file tower.s2k: Input/output error";
  EXPECT_THAT(run.Err, HasSubstr("s2k2ngt: " + error + "\n"));
  const json object = JsonLines(run.Out).at(0);
  EXPECT_EQ(object["output"], nullptr);
  EXPECT_EQ(object["result"], -1);
  EXPECT_EQ(object["error"], error);
  EXPECT_EQ(ReadFile(m_Folder.FileName("tower.ngt")), "from before");
}

TEST_F(CommandFaults, FullStandardOutputIsToldWithStatusTwo) {
  Write("tower.s2k", kOneJoint);
  for (const char* words : {"--json tower.s2k", "--list-messages", "--help", "--version"}) {
    SCOPED_TRACE(words);
    const CommandRun run = CallInShell("$S2K2NGT " + std::string(words) + " >/dev/full");
    EXPECT_EQ(run.Status, 2);
    EXPECT_TRUE(run.Err.ends_with("s2k2ngt: cannot write to standard output\n")) << run.Err;
  }
  EXPECT_TRUE(Exists("tower.ngt"));
}

// The output gets the number that the closed stream had.
TEST_F(CommandFaults, NothingIsWrittenIntoTheOutputInPlaceOfAClosedStream) {
  Write("tower.s2k", FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=A\n"));
  ASSERT_EQ(CallInShell("$S2K2NGT tower.s2k").Status, 0);
  const std::string wanted = ReadFile(m_Folder.FileName("tower.ngt"));
  for (const char* closed : {"<&-", ">&-", "2>&-", "<&- >&- 2>&-"}) {
    SCOPED_TRACE(closed);
    CallInShell("$S2K2NGT --json tower.s2k " + std::string(closed));
    EXPECT_EQ(ReadFile(m_Folder.FileName("tower.ngt")), wanted);
  }
}

}  // namespace
