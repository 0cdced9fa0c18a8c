// Folders, an output folder, and the summary of a call.
#include "cli/command_fixture.h"
#include "support/command_run.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

/// A file that fails in line 4.
const std::string kRefused =
    FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=5   CoordType=Cylindrical\n");

class Batches : public CommandTest {
 protected:
  /// A file in folders that are made for it.
  void WriteBelow(const std::string& name, const std::string& bytes = kOneJoint) {
    std::filesystem::create_directories((m_Folder.Path() / name).parent_path());
    Write(name, bytes);
  }
  std::string Read(const std::string& name) { return ReadFile(m_Folder.FileName(name)); }
};

std::vector<std::string> Values(const CommandRun& run, const char* key) {
  std::vector<std::string> values;
  for (const json& object : JsonLines(run.Out)) {
    values.push_back(object[key].is_string() ? object[key].get<std::string>() : object[key].dump());
  }
  return values;
}

TEST_F(Batches, FolderIsItsSourceFilesAtAnyDepthInTheOrderOfTheirPaths) {
  for (const char* name : {"models/b/z.s2k", "models/b/c/y.s2k", "models/a.S2K", "models/b.s2k",
                           "models/notes.txt", "models/b/old.s2k.bak"}) {
    WriteBelow(name);
  }
  const CommandRun run = Call({"--json", "-r", "models"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_THAT(Values(run, "input"),
              ElementsAre("models/a.S2K", "models/b/c/y.s2k", "models/b/z.s2k", "models/b.s2k"));
  EXPECT_THAT(Values(run, "output"),
              ElementsAre("models/a.ngt", "models/b/c/y.ngt", "models/b/z.ngt", "models/b.ngt"));
  EXPECT_TRUE(Exists("models/b/c/y.ngt"));
  EXPECT_FALSE(Exists("models/notes.ngt"));
}

TEST_F(Batches, FilesAndFoldersAreTakenInTheOrderOfTheCall) {
  WriteBelow("z.txt");
  WriteBelow("models/b.s2k");
  WriteBelow("a.s2k");
  const CommandRun run = Call({"--json", "z.txt", "models/", "--recursive", "a.s2k"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_THAT(Values(run, "input"), ElementsAre("z.txt", "models/b.s2k", "a.s2k"));
}

TEST_F(Batches, FolderFailsWithoutTheOptionAndTheRestIsConverted) {
  WriteBelow("models/a.s2k");
  WriteBelow("b.s2k");
  const CommandRun run = Call({"--json", "models", "b.s2k"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(Values(run, "input"), ElementsAre("models", "b.s2k"));
  EXPECT_THAT(Values(run, "result"), ElementsAre("-1", "0"));
  EXPECT_THAT(Values(run, "error"),
              ElementsAre("models: cannot open the input file: it is a directory", "null"));
}

TEST_F(Batches, LinksToFilesAreFollowedAndLinksToFoldersAreNot) {
  WriteBelow("models/a.s2k");
  WriteBelow("elsewhere/far.s2k");
  const std::filesystem::path models = m_Folder.Path() / "models";
  std::filesystem::create_directory_symlink("../models", models / "loop");
  std::filesystem::create_directory_symlink("../elsewhere", models / "folder.s2k");
  std::filesystem::create_symlink("../elsewhere/far.s2k", models / "near.s2k");
  std::filesystem::create_symlink("nowhere", models / "torn.s2k");
  std::filesystem::create_symlink("self.s2k", models / "self.s2k");
  // Opening it would wait for ever.
  ASSERT_EQ(mkfifo((models / "pipe.s2k").c_str(), 0600), 0);
  const CommandRun run = Call({"--json", "-r", "models"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(Values(run, "input"),
              ElementsAre("models/a.s2k", "models/near.s2k", "models/self.s2k", "models/torn.s2k"));
  EXPECT_THAT(Values(run, "result"), ElementsAre("0", "0", "-1", "-1"));
}

TEST_F(Batches, FolderOfTheCallMayBeALink) {
  WriteBelow("models/a.s2k");
  std::filesystem::create_directory_symlink("models", m_Folder.Path() / "link");
  EXPECT_THAT(Values(Call({"--json", "-r", "link"}), "output"), ElementsAre("link/a.ngt"));
}

TEST_F(Batches, FolderWithoutASourceFileFails) {
  WriteBelow("models/notes.txt");
  WriteBelow("a.s2k");
  const CommandRun run = Call({"--json", "-r", "models", "a.s2k"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(Values(run, "error"),
              ElementsAre("models: no file in this folder has a name that ends in .s2k", "null"));
}

TEST_F(Batches, FolderThatCannotBeReadFailsAndTheRestIsConverted) {
  // Its path is longer than the system takes, which stops the superuser too.
  WriteBelow("models/a.s2k");
  WriteBelow("models/z.s2k");
  ASSERT_EQ(CallInShell("name=$(printf '%0250d' 0); cd models; for level in $(seq 16); do "
                        "mkdir $name && cd -P $name || exit; done; mkdir $name")
                .Status,
            0);
  const CommandRun run = Call({"--json", "-r", "models"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(Values(run, "result"), ElementsAre("-1", "0", "0"));
  EXPECT_THAT(JsonLines(run.Out).at(0)["error"].get<std::string>(),
              EndsWith("0: cannot read the folder: File name too long"));
}

TEST_F(Batches, OutputFolderIsMadeAndKeepsTheFoldersBelowThatOfTheCall) {
  WriteBelow("models/north/v2/bridge.s2k");
  WriteBelow("models/tower.s2k");
  for (const char* folder : {"models", "models/", "./models", "models/."}) {
    SCOPED_TRACE(folder);
    const CommandRun run = Call({"--json", "-r", "--output-dir", "new/results", folder});
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(Values(run, "output"),
                ElementsAre("new/results/north/v2/bridge.ngt", "new/results/tower.ngt"));
    EXPECT_TRUE(Exists("new/results/north/v2/bridge.ngt"));
    std::filesystem::remove_all(m_Folder.Path() / "new");
  }
  EXPECT_FALSE(Exists("models/tower.ngt"));
}

TEST_F(Batches, OutputHasTheBytesOfOneWrittenBesideAnInputThere) {
  WriteBelow("models/north/bridge.s2k");
  ASSERT_EQ(Call({"-r", "-o", "results", "models"}).Status, 0);
  const std::string output = Read("results/north/bridge.ngt");
  EXPECT_THAT(output, HasSubstr("\n;  results/north/bridge.ngt\n"));
  WriteBelow("results/north/bridge.s2k");
  ASSERT_EQ(Call({"results/north/bridge.s2k"}).Status, 0);
  EXPECT_EQ(output, Read("results/north/bridge.ngt"));
}

TEST_F(Batches, FilesOfTheCallGoIntoTheOutputFolderItself) {
  WriteBelow("north/bridge.s2k");
  WriteBelow("v1.2/tower");
  const CommandRun run = Call({"--json", "-o", "results/", "north/bridge.s2k", "v1.2/tower"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_THAT(Values(run, "output"), ElementsAre("results/bridge.ngt", "results/tower.ngt"));
}

TEST_F(Batches, SecondInputWithTheSameOutputIsRefused) {
  for (const char* name : {"north/deck/a.s2k", "south/deck/a.s2k", "south/a.s2k"}) {
    WriteBelow(name);
  }
  const CommandRun run =
      Call({"--json", "-r", "-o", "results", "north", "south", "north/deck/a.s2k"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(Values(run, "error"),
              ElementsAre("null", "null",
                          "south/deck/a.s2k: the output would replace that of north/deck/a.s2k",
                          "north/deck/a.s2k: the output would replace that of south/a.s2k"));
}

TEST_F(Batches, OutputsThatAreLinksToTheSameNewFileAreNotBothWritten) {
  WriteBelow("a.s2k");
  WriteBelow("b.s2k");
  std::filesystem::create_symlink("c.ngt", m_Folder.Path() / "a.ngt");
  std::filesystem::create_symlink("b.ngt", m_Folder.Path() / "c.ngt");
  const CommandRun run = Call({"--json", "a.s2k", "b.s2k"});
  EXPECT_THAT(Values(run, "error"),
              ElementsAre("null", "b.s2k: the output would replace that of a.s2k"));
}

TEST_F(Batches, OutputFolderMayNotMakeAnOutputReplaceAnInput) {
  WriteBelow("a.s2k");
  WriteBelow("results/a.ngt", "an input");
  const CommandRun run = Call({"--json", "-o", "results", "a.s2k", "results/a.ngt"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(Values(run, "error"),
              ElementsAre("a.s2k: the output would replace the input results/a.ngt",
                          "results/a.ngt: the output would replace the input; rename the input to "
                          "end in .s2k"));
  EXPECT_EQ(Read("results/a.ngt"), "an input");
}

TEST_F(Batches, OutputFolderThatCannotBeMadeIsTold) {
  WriteBelow("a.s2k");
  WriteBelow("results", "a file");
  const CommandRun run = Call({"--json", "-o", "results", "a.s2k"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(Values(run, "error"),
              ElementsAre("a.s2k: cannot make the folder of results/a.ngt: Not a directory"));
}

TEST_F(Batches, SummaryCountsFilesAndNamesThoseThatFailed) {
  WriteBelow("a.s2k");
  WriteBelow("b.s2k", kRefused);
  WriteBelow("c.s2k");
  EXPECT_THAT(Call({"a.s2k", "b.s2k", "c.s2k", "d.s2k"}).Err,
              EndsWith("s2k2ngt: 4 files: 2 converted, 2 failed:\n"
                       "s2k2ngt:   b.s2k\n"
                       "s2k2ngt:   d.s2k\n"));
  EXPECT_THAT(Call({"a.s2k", "c.s2k"}).Err, EndsWith("\ns2k2ngt: 2 files: 2 converted\n"));
  EXPECT_THAT(Call({"a.s2k"}).Err, Not(HasSubstr("files")));
}

TEST_F(Batches, QuietCallHasASummaryOnlyIfAFileFailed) {
  WriteBelow("a.s2k");
  WriteBelow("b.s2k");
  EXPECT_EQ(Call({"--quiet", "a.s2k", "b.s2k"}).Err, "");
  EXPECT_THAT(Call({"--quiet", "a.s2k", "c.s2k"}).Err,
              EndsWith("\ns2k2ngt: 2 files: 1 converted, 1 failed:\ns2k2ngt:   c.s2k\n"));
}

TEST_F(Batches, WrongUsageIsTold) {
  WriteBelow("a.s2k");
  for (const char* jobs : {"two", "-1", "1.5", "2x", "", "99999999999"}) {
    SCOPED_TRACE(jobs);
    const CommandRun run = Call({"-j", jobs, "a.s2k"});
    EXPECT_EQ(run.Status, 64);
    EXPECT_EQ(run.Err, "s2k2ngt: --jobs wants a number, not " + std::string(jobs) +
                           "\nTry s2k2ngt --help.\n");
  }
  EXPECT_EQ(Call({"-o", "", "a.s2k"}).Status, 64);
  EXPECT_EQ(Call({"a.s2k", "-o"}).Status, 64);
  EXPECT_FALSE(Exists("a.ngt"));
}

TEST_F(Batches, HelpNamesTheOptions) {
  const std::string help = Call({"--help"}).Out;
  for (const char* option : {"-r, --recursive", "-o, --output-dir DIR", "-j, --jobs N"}) {
    EXPECT_THAT(help, HasSubstr(option));
  }
}

}  // namespace
