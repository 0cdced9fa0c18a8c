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
using testing::Not;

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

TEST_F(CommandFaults, OutputThatAFailureLeavesUnfinishedIsNamed) {
  std::string rows = "TABLE:  \"JOINT COORDINATES\"\n";
  for (int joint = 1; joint <= 60'000; ++joint) {
    rows += "   Joint=" + std::to_string(joint) + "   XorR=1   Y=2   Z=3\n";
  }
  Write("tower.s2k", FileWith(rows));
  // No file may grow beyond half a megabyte, which the output would.
  const CommandRun run = CallInShell(
      "trap '' XFSZ; ulimit -f 1024; exec $S2K2NGT --json --report lost.json --report lost.html "
      "tower.s2k");
  EXPECT_EQ(run.Status, 2);
  const std::string error =
      "tower.s2k: writing: Cannot write output file tower.ngt: File too large";
  EXPECT_THAT(run.Err, HasSubstr("s2k2ngt: " + error + "; tower.ngt is left unfinished\n"));
  EXPECT_EQ(JsonLines(run.Out).at(0)["error"], error);
  EXPECT_EQ(JsonLines(run.Out).at(0)["output"], nullptr);
  const json file = json::parse(ReadFile(m_Folder.FileName("lost.json")))["files"][0];
  EXPECT_EQ(file["error"], error);
  EXPECT_EQ(file["output"], nullptr);
  EXPECT_EQ(file["unfinished"], "tower.ngt");
  EXPECT_THAT(ReadFile(m_Folder.FileName("lost.html")),
              HasSubstr("<bdi>tower.ngt</bdi> is left unfinished."));
}

TEST_F(CommandFaults, FailureBeforeTheOutputIsTouchedLeavesNoneUnfinished) {
  Write("tower.s2k", kOneJoint);
  std::filesystem::create_directory(m_Folder.Path() / "tower.ngt");
  const CommandRun run = Call({"--report", "lost.json", "tower.s2k"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(run.Err, Not(HasSubstr("unfinished")));
  EXPECT_EQ(json::parse(ReadFile(m_Folder.FileName("lost.json")))["files"][0]["unfinished"],
            nullptr);
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
