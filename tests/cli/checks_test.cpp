// Dry runs.
#include "cli/reports_fixture.h"
#include "support/command_run.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

using ChecksTest = ReportsTest;

TEST_F(ChecksTest, ACheckSaysSoInTheReports) {
  Write("model.s2k", kOneJoint);
  Call({"--check", "--report", "lost.json", "--report", "lost.html", "model.s2k"});
  const json checked = Report("lost.json")["files"][0];
  EXPECT_EQ(checked["check"], true);
  EXPECT_EQ(checked["output"], nullptr);
  EXPECT_EQ(checked["unfinished"], nullptr);
  EXPECT_THAT(Text("lost.html"), HasSubstr("Checked only: no output was written."));
  Call({"--report", "lost.json", "--report", "lost.html", "model.s2k"});
  EXPECT_EQ(Report("lost.json")["files"][0]["check"], false);
  EXPECT_THAT(Text("lost.html"), Not(HasSubstr("Checked only")));
}

TEST_F(ChecksTest, ACheckTellsTheLossesAndWritesNothing) {
  Write("lossy.s2k", kLosses);
  const CommandRun run = Call({"--check", "lossy.s2k"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_FALSE(Exists("lossy.ngt"));
  EXPECT_THAT(run.Err, HasSubstr("s2k2ngt: lossy.s2k: checked\n"
                                 "s2k2ngt: lossy.s2k: of 4 rows 2 converted, 0 changed, 1 dropped, "
                                 "1 refused, 0 not looked at\n"));
  EXPECT_THAT(run.Err, HasSubstr("  1 row, table-refused: "));
  EXPECT_THAT(run.Err, HasSubstr("  1 row, overwritten-by-later-block: "));
}

TEST_F(ChecksTest, ACheckLeavesAnOutputThatIsThere) {
  Write("model.s2k", kOneJoint);
  Write("model.ngt", "of an earlier call");
  const CommandRun run = Call({"--check", "--json", "model.s2k"});
  EXPECT_EQ(Text("model.ngt"), "of an earlier call");
  EXPECT_EQ(JsonLines(run.Out)[0]["output"], nullptr);
  EXPECT_EQ(JsonLines(run.Out)[0]["result"], 0);
  EXPECT_THAT(run.Err, Not(HasSubstr("unfinished")));
}

TEST_F(ChecksTest, ACheckMakesNoFolder) {
  Write("model.s2k", kOneJoint);
  EXPECT_EQ(Call({"--check", "-o", "outputs", "model.s2k"}).Status, 0);
  EXPECT_FALSE(Exists("outputs"));
}

TEST_F(ChecksTest, ACheckRefusesWhatAConversionWouldRefuse) {
  for (const char* name : {"a.s2k", "a.txt", "own.ngt"}) {
    Write(name, kOneJoint);
  }
  const std::vector<std::string> files = {"--json", "a.s2k", "a.txt", "own.ngt"};
  std::vector<std::string> check = files;
  check.insert(check.begin(), "--check");
  const CommandRun dry = Call(check);
  EXPECT_EQ(dry.Status, 2);
  EXPECT_FALSE(Exists("a.ngt"));
  const std::vector<json> lines = JsonLines(dry.Out);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0]["error"], nullptr);
  EXPECT_EQ(lines[1]["error"], "a.txt: the output would replace that of a.s2k");
  EXPECT_EQ(lines[2]["error"],
            "own.ngt: the output would replace the input; rename the input to end in .s2k");
  const std::vector<json> real = JsonLines(Call(files).Out);
  ASSERT_EQ(real.size(), 3U);
  for (std::size_t file = 0; file < real.size(); ++file) {
    EXPECT_EQ(real[file]["error"], lines[file]["error"]);
  }
}

TEST_F(ChecksTest, ACheckTellsOfAFolderThatCannotBeMade) {
  Write("a.s2k", kOneJoint);
  Write("outputs", "a file");
  for (const std::string folder : {"outputs", "outputs/below/it"}) {
    const CommandRun run = Call({"--check", "--json", "-o", folder, "a.s2k"});
    EXPECT_EQ(run.Status, 2);
    EXPECT_EQ(JsonLines(run.Out).at(0)["error"],
              "a.s2k: cannot make the folder of " + folder + "/a.ngt: Not a directory");
  }
  EXPECT_EQ(Call({"--check", "-o", "new/below/it", "a.s2k"}).Status, 0);
  EXPECT_FALSE(Exists("new"));
}

TEST_F(ChecksTest, ACheckOfAFileThatFailsFails) {
  Write("old.s2k", "JOINT\n");
  EXPECT_EQ(Call({"--check", "old.s2k"}).Status, 2);
}

}  // namespace
