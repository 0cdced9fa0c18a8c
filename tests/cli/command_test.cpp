#include "cli/command_fixture.h"
#include "support/command_run.h"
#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST_F(CommandTest, ConvertsBesideTheInputAndTellsOnStandardError) {
  Write("tower.s2k", kOneJoint);
  const CommandRun run = Call({"tower.s2k"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Out, "");
  EXPECT_THAT(run.Err, StartsWith("tower.s2k: The file must be"));
  EXPECT_TRUE(run.Err.ends_with("s2k2ngt: tower.s2k: converted to tower.ngt\n")) << run.Err;
  EXPECT_THAT(ReadFile(m_Folder.FileName("tower.ngt")), HasSubstr("\n;  tower.ngt\n"));
}

TEST_F(CommandTest, JsonHoldsInputOutputResultMessagesAndError) {
  Write("tower.s2k", FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=A\n"));
  const CommandRun run = Call({"--json", "tower.s2k"});
  EXPECT_EQ(run.Status, 0);
  ASSERT_EQ(JsonLines(run.Out).size(), 1U);
  const json object = JsonLines(run.Out)[0];
  EXPECT_EQ(object["input"], "tower.s2k");
  EXPECT_EQ(object["output"], "tower.ngt");
  EXPECT_EQ(object["result"], 0);
  EXPECT_EQ(object["error"], nullptr);
  EXPECT_EQ(object.size(), 5U);
  ASSERT_EQ(object["messages"].size(), 2U);
  EXPECT_EQ(object["messages"][0]["key"], "IDS_S2KV8_Export_must_be_executed");
  EXPECT_EQ(object["messages"][1]["key"], "IDS_S2KV8_NODE_Renumbering");
  EXPECT_THAT(object["messages"][1]["text"].get<std::string>(), HasSubstr("renumbered"));
}

TEST_F(CommandTest, FailedFileIsNullErrorTextAndStatusTwo) {
  Write("ring.s2k",
        FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=5   CoordType=Cylindrical\n"));
  const CommandRun run = Call({"--json", "ring.s2k"});
  EXPECT_EQ(run.Status, 2);
  const json object = JsonLines(run.Out).at(0);
  EXPECT_EQ(object["output"], nullptr);
  EXPECT_EQ(object["result"], -1);
  const std::string error =
      "ring.s2k:4: reading table \"JOINT COORDINATES\": joint 5 has CoordType=Cylindrical, only "
      "Cartesian is read";
  EXPECT_EQ(object["error"], error);
  EXPECT_THAT(run.Err, HasSubstr("s2k2ngt: " + error + "\n"));
  EXPECT_FALSE(Exists("ring.ngt"));
}

TEST_F(CommandTest, MissingFileIsTold) {
  const CommandRun run = Call({"--json", "missing.s2k"});
  EXPECT_EQ(run.Status, 2);
  const json object = JsonLines(run.Out).at(0);
  EXPECT_EQ(object["result"], -1);
  EXPECT_EQ(object["error"], "missing.s2k: cannot open the input file: No such file or directory");
  ASSERT_EQ(object["messages"].size(), 1U);
  EXPECT_EQ(object["messages"][0]["key"], "");
  EXPECT_EQ(object["messages"][0]["text"], "Cannot open input file!");
}

TEST_F(CommandTest, FolderIsTold) {
  std::filesystem::create_directory(m_Folder.Path() / "models");
  const CommandRun run = Call({"models"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(run.Err,
              HasSubstr("s2k2ngt: models: cannot open the input file: it is a directory\n"));
}

TEST_F(CommandTest, OutputThatCannotBeCreatedIsToldInWords) {
  Write("tower.s2k", kOneJoint);
  std::filesystem::create_directory(m_Folder.Path() / "tower.ngt");
  const CommandRun run = Call({"--json", "tower.s2k"});
  EXPECT_EQ(run.Status, 2);
  const json object = JsonLines(run.Out).at(0);
  EXPECT_EQ(object["result"], -1);
  EXPECT_EQ(object["output"], nullptr);
  EXPECT_EQ(object["error"],
            "tower.s2k: writing: Cannot create output file tower.ngt: Is a directory");
}

TEST_F(CommandTest, MissingUnitsAreToldInWords) {
  Write("tower.s2k", FileWith("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=KN\n"));
  const CommandRun run = Call({"--json", "tower.s2k"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_EQ(
      JsonLines(run.Out).at(0)["error"],
      "tower.s2k:4: reading table \"PROGRAM CONTROL\": CurrUnits= must name force, length and "
      "temperature");
}

TEST_F(CommandTest, InputIsNeverReplacedByItsOutput) {
  Write("tower.ngt", kOneJoint);
  const CommandRun run = Call({"--json", "tower.ngt"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(JsonLines(run.Out).at(0)["error"].get<std::string>(),
              StartsWith("tower.ngt: the output would replace the input"));
  EXPECT_EQ(ReadFile(m_Folder.FileName("tower.ngt")), kOneJoint);
}

TEST_F(CommandTest, LinkToTheInputIsNotReplacedEither) {
  Write("tower.s2k", kOneJoint);
  std::filesystem::create_symlink("tower.s2k", m_Folder.Path() / "tower.ngt");
  Write("mast.s2k", kOneJoint);
  std::filesystem::create_hard_link(m_Folder.Path() / "mast.s2k", m_Folder.Path() / "mast.ngt");
  Write("pylon.ngt", kOneJoint);
  std::filesystem::create_symlink("pylon.ngt", m_Folder.Path() / "pylon.s2k");
  for (const std::string name : {"tower.s2k", "mast.s2k", "pylon.s2k"}) {
    const CommandRun run = Call({name});
    EXPECT_EQ(run.Status, 2);
    EXPECT_THAT(run.Err, HasSubstr(name + ": the output would replace the input"));
    EXPECT_EQ(ReadFile(m_Folder.FileName(name)), kOneJoint);
  }
}

/// Plain text in two bytes a character, the lower or the higher one first.
std::string Utf16(const std::string& text, bool lowerFirst) {
  std::string bytes;
  for (const char character : text) {
    bytes += lowerFirst ? std::string{character, '\0'} : std::string{'\0', character};
  }
  return bytes;
}

TEST_F(CommandTest, Utf16TextIsRefusedAndNothingWritten) {
  for (const std::string& bytes :
       {Utf16(kOneJoint, true), Utf16(kOneJoint, false), "\xFF\xFE" + Utf16(kOneJoint, true),
        "\xFE\xFF" + Utf16(kOneJoint, false)}) {
    SCOPED_TRACE(testing::PrintToString(bytes.substr(0, 4)));
    Write("tower.s2k", bytes);
    const CommandRun run = Call({"--json", "tower.s2k"});
    EXPECT_EQ(run.Status, 2);
    const std::string error =
        "tower.s2k: it is UTF-16 text (\"Unicode\"); save it as plain text or UTF-8";
    EXPECT_EQ(run.Err, "s2k2ngt: " + error + "\n");
    EXPECT_EQ(JsonLines(run.Out).at(0)["result"], -1);
    EXPECT_EQ(JsonLines(run.Out).at(0)["output"], nullptr);
    EXPECT_EQ(JsonLines(run.Out).at(0)["error"], error);
    EXPECT_FALSE(Exists("tower.ngt"));
  }
}

TEST_F(CommandTest, Utf16TextLeavesAnEarlierOutput) {
  Write("tower.s2k", "\xFF\xFE" + Utf16(kOneJoint, true));
  Write("tower.ngt", "from before");
  EXPECT_EQ(Call({"tower.s2k"}).Status, 2);
  EXPECT_EQ(ReadFile(m_Folder.FileName("tower.ngt")), "from before");
}

TEST_F(CommandTest, FilesThatAreNotUtf16AreConverted) {
  // With a mark of UTF-8, of bytes without a text, and too short for any mark.
  for (const std::string& bytes : {"\xEF\xBB\xBF" + kOneJoint, std::string(2, '\0') + kOneJoint,
                                   "\xFF" + kOneJoint, std::string("\xFF"), std::string()}) {
    SCOPED_TRACE(testing::PrintToString(bytes.substr(0, 4)));
    Write("tower.s2k", bytes);
    EXPECT_EQ(Call({"tower.s2k"}).Status, 0);
    EXPECT_TRUE(Exists("tower.ngt"));
  }
}

TEST_F(CommandTest, PipeIsReadFromItsFirstByteOn) {
  const std::string pipe = m_Folder.FileName("tower.s2k");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const CommandRun run =
      RunCommand({.Words = {S2K2NGT_COMMAND, "--json", "tower.s2k"},
                  .Folder = m_Folder.Path(),
                  .WhileRunning = [&](pid_t) { std::ofstream(pipe) << kOneJoint; }});
  EXPECT_EQ(run.Status, 0);
  // Without its first bytes the first line would be a foreign one, and have a message.
  EXPECT_EQ(JsonLines(run.Out).at(0)["messages"].size(), 1U);
}

TEST_F(CommandTest, FailureOfOneFileDoesNotStopTheRest) {
  Write("a.s2k", kOneJoint);
  Write("c.s2k", kOneJoint);
  const CommandRun run = Call({"--json", "a.s2k", "b.s2k", "c.s2k"});
  EXPECT_EQ(run.Status, 2);
  std::vector<int> results;
  for (const json& object : JsonLines(run.Out)) {
    results.push_back(object["result"]);
  }
  EXPECT_THAT(results, ElementsAre(0, -1, 0));
  EXPECT_TRUE(Exists("c.ngt"));
}

TEST_F(CommandTest, LabelsOfOtherCharacterSetsDoNotBreakTheJson) {
  Write("caf\xE9.s2k", kOneJoint);
  const CommandRun run = Call({"--json", "caf\xE9.s2k"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(JsonLines(run.Out).at(0)["input"], "caf\xEF\xBF\xBD.s2k");
}

TEST_F(CommandTest, FileNamesAreTakenAsTheyStand) {
  for (const char* name : {"[a,b]", "a b", "*", "-x.s2k"}) {
    Write(name, kOneJoint);
    const CommandRun run = Call({"--json", "--", name});
    EXPECT_EQ(run.Status, 0) << name;
    EXPECT_EQ(JsonLines(run.Out).at(0)["input"], name);
  }
  EXPECT_EQ(Call({"[a,b]"}).Status, 0);
}

TEST_F(CommandTest, OutputOfAnotherInputOfTheCallIsNotReplaced) {
  Write("a.s2k", kOneJoint);
  Write("a.txt", kOneJoint);
  const CommandRun run = Call({"--json", "a.s2k", "a.txt", "a.s2k"});
  EXPECT_EQ(run.Status, 2);
  const std::vector<json> objects = JsonLines(run.Out);
  ASSERT_EQ(objects.size(), 3U);
  EXPECT_EQ(objects[0]["result"], 0);
  EXPECT_EQ(objects[1]["error"], "a.txt: the output would replace that of a.s2k");
  EXPECT_EQ(objects[2]["result"], 0);
}

TEST_F(CommandTest, OutputThatIsAnotherInputOfTheCallIsNotReplaced) {
  Write("two.txt", kOneJoint);
  Write("two.ngt", kOneJoint);
  const CommandRun run = Call({"--json", "two.txt", "two.ngt"});
  EXPECT_EQ(run.Status, 2);
  const std::vector<json> objects = JsonLines(run.Out);
  ASSERT_EQ(objects.size(), 2U);
  EXPECT_EQ(objects[0]["error"], "two.txt: the output would replace the input two.ngt");
  EXPECT_EQ(objects[1]["error"],
            "two.ngt: the output would replace the input; rename the input to end in .s2k");
  EXPECT_EQ(ReadFile(m_Folder.FileName("two.ngt")), kOneJoint);
}

TEST_F(CommandTest, InputOfTheCallIsNotReplacedUnderItsHardLink) {
  Write("a.s2k", kOneJoint);
  Write("b.s2k", kOneJoint);
  std::filesystem::create_hard_link(m_Folder.FileName("b.s2k"), m_Folder.FileName("a.ngt"));
  const CommandRun run = Call({"a.s2k", "b.s2k"});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(run.Err, HasSubstr("a.s2k: the output would replace the input b.s2k"));
  EXPECT_EQ(ReadFile(m_Folder.FileName("b.s2k")), kOneJoint);
}

TEST_F(CommandTest, OutputOfTheCallIsNotReplacedUnderItsHardLink) {
  Write("a.s2k", kOneJoint);
  Write("b.s2k", kOneJoint);
  Write("a.ngt", "");
  std::filesystem::create_hard_link(m_Folder.FileName("a.ngt"), m_Folder.FileName("b.ngt"));
  EXPECT_THAT(Call({"a.s2k", "b.s2k"}).Err,
              HasSubstr("b.s2k: the output would replace that of a.s2k"));
}

TEST_F(CommandTest, OutputOfAnotherInputIsNotReplacedUnderAnotherName) {
  Write("a.s2k", kOneJoint);
  Write("a.txt", kOneJoint);
  std::filesystem::create_directory_symlink(m_Folder.Path(), m_Folder.Path() / "here");
  for (const std::string folder : {"./", "here/", "here/here/"}) {
    const CommandRun run = Call({"--json", "a.s2k", folder + "a.txt"});
    EXPECT_EQ(run.Status, 2);
    EXPECT_EQ(JsonLines(run.Out).at(1)["error"],
              folder + "a.txt: the output would replace that of a.s2k");
  }
}

TEST_F(CommandTest, InputWhoseOutputWouldNotLieBesideItIsRefused) {
  // The output's path is that of the input up to its last dot.
  std::filesystem::create_directory(m_Folder.Path() / "bridge.v2");
  Write("bridge.v2/model", kOneJoint);
  Write("model", kOneJoint);
  for (const std::string file : {"bridge.v2/model", "./model"}) {
    const CommandRun run = Call({"--json", file});
    EXPECT_EQ(run.Status, 2);
    EXPECT_EQ(
        JsonLines(run.Out).at(0)["error"],
        file + ": the output would not lie beside the input; rename the input to end in .s2k");
  }
  EXPECT_FALSE(std::filesystem::exists(m_Folder.Path() / "bridge.ngt"));
  EXPECT_FALSE(std::filesystem::exists(m_Folder.Path() / ".ngt"));
  EXPECT_EQ(Call({"model"}).Status, 0);
  EXPECT_TRUE(std::filesystem::exists(m_Folder.Path() / "model.ngt"));
}

TEST_F(CommandTest, FileWithoutARowOfUseIsToldToGiveAnEmptyOutput) {
  Write("notes.txt", "");
  const CommandRun run = Call({"notes.txt"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_THAT(run.Err,
              HasSubstr("notes.txt: converted to notes.ngt, which is empty: the file has no "
                        "row that is converted\n"));
}

TEST_F(CommandTest, ControlCharactersOfALabelDoNotReachTheTerminal) {
  Write("tower.s2k",
        FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=\x1b]0;owned\a   CoordType=Polar\n"));
  const CommandRun run = Call({"--json", "tower.s2k"});
  EXPECT_THAT(run.Err, Not(HasSubstr("\x1b")));
  EXPECT_THAT(run.Err, HasSubstr("joint ?]0;owned? has"));
  EXPECT_THAT(JsonLines(run.Out).at(0)["error"].get<std::string>(), HasSubstr("\x1b]0;owned\a"));
}

TEST_F(CommandTest, InputTooLargeForTheMemoryIsToldInWords) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "the sanitizer takes more address space than any limit leaves";
#endif
  // A file with nothing in it but its size.
  Write("vast.s2k", "");
  std::filesystem::resize_file(m_Folder.Path() / "vast.s2k", std::uintmax_t{1} << 36U);
  const CommandRun run = CallInShell("ulimit -v 2000000; exec $S2K2NGT --json vast.s2k");
  EXPECT_EQ(run.Status, 2);
  EXPECT_EQ(JsonLines(run.Out).at(0)["error"],
            "vast.s2k: there is not enough memory for this model");
}

TEST_F(CommandTest, QuietShowsNothingButFailures) {
  Write("tower.s2k", kOneJoint);
  EXPECT_EQ(Call({"--quiet", "tower.s2k"}).Err, "");
  EXPECT_EQ(Call({"--quiet", "missing.s2k"}).Err,
            "s2k2ngt: missing.s2k: cannot open the input file: No such file or directory\n");
}

TEST_F(CommandTest, WrongUsageIsStatusSixtyFour) {
  EXPECT_EQ(Call({}).Status, 64);
  EXPECT_THAT(Call({}).Err, HasSubstr("there is no file to convert"));
  EXPECT_EQ(Call({"--no-such-option", "a.s2k"}).Status, 64);
  EXPECT_THAT(Call({"--no-such-option", "a.s2k"}).Err, HasSubstr("--no-such-option"));
  EXPECT_EQ(Call({"--json=yes", "a.s2k"}).Status, 64);
  EXPECT_EQ(Call({"--json"}).Status, 64);
  EXPECT_EQ(Call({"--json"}).Out, "");
}

TEST_F(CommandTest, HelpAndVersionGoToStandardOutput) {
  const CommandRun help = Call({"--help"});
  EXPECT_EQ(help.Status, 0);
  for (const char* option :
       {"--json", "--quiet", "--no-progress", "--list-messages", "--version"}) {
    EXPECT_THAT(help.Out, HasSubstr(option));
  }
  EXPECT_THAT(help.Out, HasSubstr("Exit status: 0"));
  const CommandRun version = Call({"--version"});
  EXPECT_EQ(version.Status, 0);
  EXPECT_EQ(version.Out, "s2k2ngt 0.1.0\n");
}

TEST_F(CommandTest, ListMessagesPrintsAllKeysWithTheirTexts) {
  const CommandRun run = Call({"--list-messages"});
  EXPECT_EQ(run.Status, 0);
  std::istringstream lines(run.Out);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count) {
    EXPECT_THAT(line, StartsWith("IDS_S2KV8_"));
    EXPECT_GT(line.size() - line.find('\t'), 40U) << line;
  }
  EXPECT_EQ(count, 59);
}

TEST_F(CommandTest, BarIsDrawnOnATerminalAndErasedAgain) {
  Write("tower.s2k", kOneJoint);
  const CommandRun run = RunCommand({.Words = {S2K2NGT_COMMAND, "--json", "tower.s2k"},
                                     .Folder = m_Folder.Path(),
                                     .OnTerminal = true});
  EXPECT_EQ(run.Status, 0);
  EXPECT_THAT(run.Err, HasSubstr("] Reading [s2k] file of SAP2000 V8\x1b[K"));
  EXPECT_THAT(run.Err, HasSubstr("\r\x1b[Ks2k2ngt: tower.s2k: converted to tower.ngt"));
  EXPECT_EQ(JsonLines(run.Out).size(), 1U);
}

TEST_F(CommandTest, BarIsRedrawnAtMostTwentyTimesASecond) {
  std::string rows = "TABLE:  \"JOINT COORDINATES\"\n";
  for (int joint = 1; joint <= 100'000; ++joint) {
    rows += "   Joint=" + std::to_string(joint) + "   XorR=1   Y=2   Z=3\n";
  }
  Write("tower.s2k", FileWith(rows));
  const auto begin = std::chrono::steady_clock::now();
  const CommandRun run = RunCommand(
      {.Words = {S2K2NGT_COMMAND, "tower.s2k"}, .Folder = m_Folder.Path(), .OnTerminal = true});
  const auto passed = std::chrono::steady_clock::now() - begin;
  int drawings = 0;
  for (std::size_t at = run.Err.find("\r["); at != std::string::npos;
       at = run.Err.find("\r[", at + 1)) {
    ++drawings;
  }
  EXPECT_GE(drawings, 1);
  EXPECT_LE(drawings, passed / std::chrono::milliseconds(50) + 1);
}

TEST_F(CommandTest, NoBarIsDrawnElsewhereOrWhenNotWanted) {
  Write("tower.s2k", kOneJoint);
  EXPECT_THAT(Call({"tower.s2k"}).Err, Not(HasSubstr("\x1b")));
  const CommandRun run = RunCommand({.Words = {S2K2NGT_COMMAND, "--no-progress", "tower.s2k"},
                                     .Folder = m_Folder.Path(),
                                     .OnTerminal = true});
  EXPECT_THAT(run.Err, Not(HasSubstr("\x1b")));
}

TEST_F(CommandTest, InterruptStopsAtTheNextStepWithStatusOne) {
  // The input is a pipe, so that the interrupt comes for certain while the file is being read.
  const std::string pipe = m_Folder.FileName("tower.s2k");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  Write("second.s2k", kOneJoint);
  const CommandRun run =
      RunCommand({.Words = {S2K2NGT_COMMAND, "--json", "--quiet", "tower.s2k", "second.s2k"},
                  .Folder = m_Folder.Path(),
                  .WhileRunning = [&](pid_t process) {
                    std::ofstream writer(pipe);  // waits until the command opens its input
                    kill(process, SIGINT);
                    writer << kOneJoint;
                  }});
  EXPECT_EQ(run.Status, 1);
  const std::vector<json> objects = JsonLines(run.Out);
  ASSERT_EQ(objects.size(), 2U);
  for (const json& object : objects) {
    EXPECT_EQ(object["result"], 1);
    EXPECT_EQ(object["output"], nullptr);
    EXPECT_EQ(object["error"], nullptr);
  }
  EXPECT_FALSE(Exists("tower.ngt"));
  EXPECT_FALSE(Exists("second.ngt"));
  EXPECT_EQ(run.Err, "s2k2ngt: tower.s2k: stopped\ns2k2ngt: second.s2k: stopped\n");
}

}  // namespace
