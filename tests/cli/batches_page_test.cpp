// Runs the commands of docs/batches.md as they stand there.
#include "cli/command_fixture.h"
#include "support/command_run.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using testing::AnyOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const std::string& Page() {
  static const std::string page =
      ReadFile((std::filesystem::path(S2K2NGT_DOCS) / "batches.md").string());
  return page;
}

/// The blocks of commands.
std::vector<std::string> Blocks() {
  const std::string begin = "```sh\n";
  std::vector<std::string> blocks;
  for (std::size_t at = Page().find(begin); at != std::string::npos; at = Page().find(begin, at)) {
    at += begin.size();
    blocks.push_back(Page().substr(at, Page().find("```", at) - at));
  }
  return blocks;
}

/// The folder that the page tells of, with the command in the path, and a cluster of one machine.
class BatchesPage : public CommandTest {
 protected:
  BatchesPage() {
    for (const char* folder : {"models/north", "models/south", "bin", "docs"}) {
      std::filesystem::create_directories(m_Folder.Path() / folder);
    }
    Write("models/north/bridge.s2k", kOneJoint);
    Write("models/north/tower.s2k", kOneJoint);
    Write("models/south/mast.s2k", kOneJoint);
    Write("models/south/ring.s2k",
          FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=1   CoordType=Cylindrical\n"));
    std::filesystem::create_symlink(S2K2NGT_COMMAND, m_Folder.Path() / "bin/s2k2ngt");
    std::filesystem::create_symlink(std::filesystem::path(S2K2NGT_DOCS) / "batches",
                                    m_Folder.Path() / "docs/batches");
    Write("bin/sbatch",
          "#!/bin/sh\n"
          "export SLURM_ARRAY_TASK_COUNT=${1#--array=1-}\n"
          "shift\n"
          "for task in $(seq $SLURM_ARRAY_TASK_COUNT); do\n"
          "  SLURM_ARRAY_TASK_ID=$task /bin/bash \"$@\"\n"
          "  echo task $task ended with $?\n"
          "done\n");
    std::filesystem::permissions(m_Folder.Path() / "bin/sbatch", std::filesystem::perms::owner_all);
  }

  CommandRun RunScript(const std::string& script) {
    // parallel keeps things in the home folder.
    return RunCommand(
        {.Words = {"/bin/bash", "-c", "export HOME=$PWD PATH=$PWD/bin:$PATH\n" + script},
         .Folder = m_Folder.Path()});
  }
  /// Runs the block of the page with these words.
  CommandRun RunBlock(const std::string& words) {
    for (const std::string& block : Blocks()) {
      if (block.find(words) != std::string::npos) {
        return RunScript(block);
      }
    }
    ADD_FAILURE() << "the page has no command with " << words;
    return {};
  }
  std::string Read(const std::string& name) { return ReadFile(m_Folder.FileName(name)); }
};

/// Each input with its result.
std::vector<std::string> Results(const std::string& lines) {
  std::vector<std::string> results;
  for (const json& object : JsonLines(lines)) {
    results.push_back(object["input"].get<std::string>() + " " + object["result"].dump());
  }
  return results;
}

const auto kAllOfTheFolder = ElementsAre("models/north/bridge.s2k 0", "models/north/tower.s2k 0",
                                         "models/south/mast.s2k 0", "models/south/ring.s2k -1");

TEST_F(BatchesPage, HasNoCommandThatIsNotRunHere) {
  // One for each of the blocks that the tests below run.
  EXPECT_EQ(Blocks().size(), 8U);
}

TEST_F(BatchesPage, CommandsOverFolders) {
  EXPECT_EQ(RunBlock("s2k2ngt --recursive models").Status, 2);
  EXPECT_TRUE(Exists("models/north/bridge.ngt"));
  EXPECT_FALSE(Exists("results"));
  EXPECT_EQ(RunBlock("--output-dir results").Status, 2);
  EXPECT_THAT(Read("results/north/bridge.ngt"), HasSubstr("\n;  results/north/bridge.ngt\n"));
}

TEST_F(BatchesPage, CommandWithJobsAndItsResults) {
  const CommandRun run = RunBlock("-j 4");
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(Results(Read("results.json")), kAllOfTheFolder);
  EXPECT_TRUE(Exists("results/south/mast.ngt"));
  const std::string summary =
      "s2k2ngt: 4 files: 3 converted, 1 failed:\n"
      "s2k2ngt:   models/south/ring.s2k\n";
  EXPECT_THAT(run.Err, EndsWith(summary));
  EXPECT_THAT(Page(), HasSubstr("    s2k2ngt: 4 files: 3 converted, 1 failed:\n"
                                "    s2k2ngt:   models/south/ring.s2k\n"));
  EXPECT_THAT(Results(RunBlock("grep -v '\"result\":0,' results.json\n").Out),
              ElementsAre("models/south/ring.s2k -1"));
}

TEST_F(BatchesPage, CommandThatFindsUnfinishedOutputs) {
  std::filesystem::create_directories(m_Folder.Path() / "results/north");
  Write("results/north/bridge.ngt", "*NODE\n*ENDDATA");
  Write("results/north/tower.ngt", kBeginningOfOutput + "*NODE\n\t1,     0");
  Write("results/mast.ngt", "");
  EXPECT_THAT(RunBlock("tail -c 8").Out, AnyOf("./results/north/tower.ngt\n./results/mast.ngt\n",
                                               "./results/mast.ngt\n./results/north/tower.ngt\n"));
  EXPECT_THAT(RunScript("s2k2ngt -r -o results models").Err,
              HasSubstr("s2k2ngt: results/north/tower.ngt: found unfinished"));
  EXPECT_THAT(Page(), HasSubstr("    s2k2ngt: results/north/tower.ngt: found unfinished, as a call "
                                "leaves it that is stopped or killed\n"));
}

TEST_F(BatchesPage, CommandOfGnuParallel) {
  const CommandRun run = RunBlock("parallel");
  EXPECT_EQ(run.Status, 1);  // one file that is not converted
  EXPECT_THAT(Results(Read("results.json")), kAllOfTheFolder);
  EXPECT_THAT(run.Err, HasSubstr("s2k2ngt: models/south/ring.s2k:4: reading table"));
  EXPECT_TRUE(Read("models/north/tower.ngt").ends_with("*ENDDATA"));
}

TEST_F(BatchesPage, CommandsOfTheJobArray) {
  // Of four files the first task of three has the first and the fourth, which fails.
  const CommandRun run = RunBlock("sbatch");
  EXPECT_EQ(run.Out, "task 1 ended with 2\ntask 2 ended with 0\ntask 3 ended with 0\n");
  EXPECT_THAT(Results(Read("tasks/task-1.json")),
              ElementsAre("models/north/bridge.s2k 0", "models/south/ring.s2k -1"));
  EXPECT_THAT(Results(Read("tasks/task-2.json")), ElementsAre("models/north/tower.s2k 0"));
  EXPECT_THAT(Read("tasks/task-1.log"), HasSubstr("s2k2ngt: models/south/ring.s2k:4: reading"));
  EXPECT_TRUE(Read("models/south/mast.ngt").ends_with("*ENDDATA"));

  const CommandRun collected = RunBlock("cat tasks/task-*.json");
  EXPECT_THAT(collected.Out, StartsWith("3\n{\"input\":\"models/south/ring.s2k\","));
  EXPECT_THAT(collected.Out, HasSubstr("4 models.txt\n"));
  EXPECT_THAT(collected.Out, HasSubstr("4 results.json\n"));
}

TEST_F(BatchesPage, TaskWithoutAFileEndsWell) {
  Write("models.txt", "models/north/bridge.s2k\n");
  const CommandRun run = RunScript("sbatch --array=1-2 docs/batches/array_job.sh models.txt tasks");
  EXPECT_EQ(run.Out, "task 1 ended with 0\ntask 2 ended with 0\n");
  EXPECT_FALSE(Exists("tasks/task-2.json"));
}

TEST_F(BatchesPage, FileWithSpacesGoesThroughTheJobArray) {
  Write("models/old bridge.s2k", kOneJoint);
  Write("models.txt", "models/old bridge.s2k\n");
  EXPECT_EQ(RunScript("sbatch --array=1-1 docs/batches/array_job.sh models.txt tasks").Out,
            "task 1 ended with 0\n");
  EXPECT_TRUE(Exists("models/old bridge.ngt"));
}

}  // namespace
