// Several files at once, each in a process of its own.
#include "cli/command_fixture.h"
#include "cli/running_command.h"
#include "support/command_run.h"
#include "support/temporary_folder.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using nlohmann::json;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class Workers : public CommandTest {
 protected:
  /// Inputs that the command waits for, until the test opens them for writing.
  std::string WritePipe(const std::string& name) {
    const std::string path = m_Folder.FileName(name);
    EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
    return path;
  }
  CommandRun CallWhile(std::vector<std::string> arguments,
                       const std::function<void(pid_t)>& whileRunning) {
    arguments.insert(arguments.begin(), S2K2NGT_COMMAND);
    return RunCommand(
        {.Words = arguments, .Folder = m_Folder.Path(), .WhileRunning = whileRunning});
  }
};

std::string Joints(int count) {
  std::string rows = "TABLE:  \"JOINT COORDINATES\"\n";
  for (int joint = 1; joint <= count; ++joint) {
    rows += "   Joint=" + std::to_string(joint) + "   XorR=1   Y=2   Z=3\n";
  }
  return FileWith(rows);
}

TEST_F(Workers, TellTheSameInTheSameOrderAsOneProcess) {
  std::vector<std::string> arguments = {"--json"};
  for (int number = 1; number <= 12; ++number) {
    const std::string name = "model" + std::to_string(number);
    arguments.push_back(name + ".s2k");
    if (number % 4 == 2) {
      Write(name + ".s2k", FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=A\n"));
    } else if (number % 4 != 0) {
      // The first takes longest.
      Write(name + ".s2k", Joints(number == 1 ? 50'000 : number));
    }
  }
  const CommandRun one = Call(arguments);
  EXPECT_EQ(one.Status, 2);
  EXPECT_EQ(JsonLines(one.Out).size(), 12U);
  for (const char* jobs : {"1", "2", "5", "100"}) {
    SCOPED_TRACE(jobs);
    arguments.insert(arguments.begin(), {"-j", jobs});
    for (int number = 1; number <= 12; ++number) {
      std::filesystem::remove(m_Folder.FileName("model" + std::to_string(number) + ".ngt"));
    }
    const CommandRun run = Call(arguments);
    arguments.erase(arguments.begin(), arguments.begin() + 2);
    EXPECT_EQ(run.Status, 2);
    EXPECT_EQ(run.Out, one.Out);
    EXPECT_EQ(run.Err, one.Err);
    EXPECT_TRUE(Exists("model1.ngt"));
  }
}

TEST_F(Workers, AreAsManyAsAskedForAndNoMore) {
  const std::string a = WritePipe("a.s2k");
  const std::string b = WritePipe("b.s2k");
  const std::string c = WritePipe("c.s2k");
  const CommandRun run =
      CallWhile({"--json", "--jobs", "2", "a.s2k", "b.s2k", "c.s2k"}, [&](pid_t process) {
        std::ofstream second(b);  // waits until somebody reads
        std::ofstream first(a);
        EXPECT_EQ(ChildrenOf(process).size(), 2U);
        EXPECT_EQ(open(c.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC), -1);
        first << kOneJoint;
        first.close();
        std::ofstream(c) << kOneJoint;
        second << kOneJoint;
      });
  EXPECT_EQ(run.Status, 0);
  ASSERT_EQ(JsonLines(run.Out).size(), 3U);
  EXPECT_EQ(JsonLines(run.Out)[2]["output"], "c.ngt");
}

TEST_F(Workers, KilledOneFailsForItself) {
  for (const char* jobs : {"1", "2"}) {
    SCOPED_TRACE(jobs);
    std::filesystem::remove(m_Folder.Path() / "a.s2k");
    const std::string a = WritePipe("a.s2k");
    Write("b.s2k", kOneJoint);
    const CommandRun run =
        CallWhile({"--json", "--jobs", jobs, "a.s2k", "b.s2k"}, [&](pid_t process) {
          const std::ofstream writer(a);
          kill(ChildrenOf(process).at(0), SIGKILL);
        });
    EXPECT_EQ(run.Status, 2);
    const std::vector<json> objects = JsonLines(run.Out);
    ASSERT_EQ(objects.size(), 2U);
    EXPECT_EQ(objects[0]["result"], -1);
    EXPECT_EQ(objects[0]["output"], nullptr);
    EXPECT_EQ(objects[0]["error"], "a.s2k: the conversion was ended by signal 9");
    EXPECT_EQ(objects[1]["result"], 0);
    EXPECT_THAT(run.Err, HasSubstr("s2k2ngt: a.s2k: the conversion was ended by signal 9\n"));
    EXPECT_THAT(run.Err, EndsWith("2 files: 1 converted, 1 failed:\ns2k2ngt:   a.s2k\n"));
  }
}

TEST_F(Workers, KilledOneThatHasBegunToWriteIsToldWithItsOutput) {
  // A file that grows too large ends the process; half a megabyte is less than one piece.
  Write("large.s2k", Joints(60'000));
  Write("small.s2k", kOneJoint);
  const CommandRun run = CallInShell(
      "ulimit -c 0; ulimit -f 1024; exec $S2K2NGT --json --report lost.json -j 2 "
      "large.s2k small.s2k");
  EXPECT_EQ(run.Status, 2);
  const std::vector<json> objects = JsonLines(run.Out);
  ASSERT_EQ(objects.size(), 2U);
  EXPECT_EQ(objects[0]["error"], "large.s2k: the conversion was ended by signal " +
                                     std::to_string(SIGXFSZ) + "; large.ngt is left unfinished");
  EXPECT_EQ(objects[1]["result"], 0);
  EXPECT_EQ(std::filesystem::file_size(m_Folder.Path() / "large.ngt"), 1024U * 512U);
  // What was shown before is not lost.
  EXPECT_THAT(run.Err, StartsWith("large.s2k: The file must be"));
  EXPECT_THAT(run.Err, HasSubstr("s2k2ngt: " + objects[0]["error"].get<std::string>() + "\n"));
  const json report = json::parse(ReadFile(m_Folder.FileName("lost.json")));
  EXPECT_EQ(report["files"][0]["unfinished"], "large.ngt");
  EXPECT_EQ(report["files"][1]["unfinished"], nullptr);
}

TEST_F(Workers, KilledOneIsNotSaidToHaveSpoiltAWholeOutput) {
  const std::string a = WritePipe("a.s2k");
  Write("a.ngt", "whole\n*ENDDATA");
  const CommandRun run = CallWhile({"--json", "-j", "2", "a.s2k"}, [&](pid_t process) {
    const std::ofstream writer(a);
    kill(ChildrenOf(process).at(0), SIGKILL);
  });
  EXPECT_EQ(JsonLines(run.Out).at(0)["error"], "a.s2k: the conversion was ended by signal 9");
}

TEST_F(Workers, NeverWriteTheSameOutputAtOnce) {
  const std::string a = WritePipe("a.s2k");
  const CommandRun run = CallWhile({"--json", "-j", "4", "a.s2k", "./a.s2k"}, [&](pid_t process) {
    {
      const std::ofstream writer(a);
      std::this_thread::sleep_for(std::chrono::milliseconds(50));  // for one that must not come
      const std::vector<pid_t> children = ChildrenOf(process);
      EXPECT_EQ(children.size(), 1U);
      kill(children.at(0), SIGKILL);
      WaitFor([&] { return HasEnded(children.at(0)); });
    }
    int writer = -1;  // opened as soon as the second begins to read
    WaitFor([&] {
      writer = open(a.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
      return writer != -1;
    });
    EXPECT_EQ(write(writer, kOneJoint.data(), kOneJoint.size()),
              static_cast<ssize_t>(kOneJoint.size()));
    close(writer);
  });
  const std::vector<json> objects = JsonLines(run.Out);
  ASSERT_EQ(objects.size(), 2U);
  EXPECT_EQ(objects[0]["result"], -1);
  EXPECT_EQ(objects[1]["result"], 0);
}

TEST_F(Workers, OfWhichSomeHaveEndedAreHeardBelowTheLimitOfFiles) {
  // 40 processes have 80 streams, of which no more than 64 may be listed at once.
  std::vector<std::string> words = {S2K2NGT_COMMAND, "--json", "-j", "40"};
  for (int number = 1; number <= 200; ++number) {
    const std::string name = "model" + std::to_string(number) + ".s2k";
    Write(name, kOneJoint);
    words.push_back(name);
  }
  std::string line;
  for (const std::string& word : words) {
    line += " " + word;
  }
  const CommandRun run = CallInShell("ulimit -n 64; exec timeout -s KILL 60" + line);
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(JsonLines(run.Out).size(), 200U);
}

TEST_F(Workers, WaitForRoomWhenTheSystemHasNone) {
  std::vector<std::string> names;
  std::string words;
  for (int number = 1; number <= 30; ++number) {
    const std::string name = "model" + std::to_string(number) + ".s2k";
    Write(name, kOneJoint);
    words += " " + name;
  }
  // Room for the pipes of some ten of them.
  const CommandRun run = CallInShell("ulimit -n 30; exec $S2K2NGT --json -j 30" + words);
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(JsonLines(run.Out).size(), 30U);
}

TEST_F(Workers, ShowTheBarOnlyOneAtATime) {
  Write("a.s2k", kOneJoint);
  Write("b.s2k", kOneJoint);
  for (const bool several : {false, true}) {
    const CommandRun run =
        RunCommand({.Words = {S2K2NGT_COMMAND, "-j", several ? "2" : "1", "a.s2k", "b.s2k"},
                    .Folder = m_Folder.Path(),
                    .OnTerminal = true});
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Err.find("\x1b[K") == std::string::npos, several);
    EXPECT_THAT(run.Err, HasSubstr("s2k2ngt: a.s2k: converted to a.ngt"));
  }
}

TEST_F(Workers, FullStandardOutputIsToldWithStatusTwo) {
  Write("a.s2k", kOneJoint);
  for (const char* jobs : {"1", "2"}) {
    const CommandRun run =
        CallInShell("$S2K2NGT --json -j " + std::string(jobs) + " a.s2k >/dev/full");
    EXPECT_EQ(run.Status, 2);
    EXPECT_THAT(run.Err, EndsWith("s2k2ngt: cannot write to standard output\n"));
  }
}

TEST_F(Workers, WriteNothingIntoTheOutputInPlaceOfAClosedStream) {
  Write("tower.s2k", FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=A\n"));
  ASSERT_EQ(CallInShell("$S2K2NGT tower.s2k").Status, 0);
  const std::string wanted = ReadFile(m_Folder.FileName("tower.ngt"));
  for (const char* jobs : {"1", "2"}) {
    for (const char* closed : {"<&-", ">&-", "2>&-", "<&- >&- 2>&-"}) {
      SCOPED_TRACE(closed);
      std::filesystem::remove(m_Folder.Path() / "tower.ngt");
      CallInShell("$S2K2NGT --json -j " + std::string(jobs) + " tower.s2k " + closed);
      EXPECT_EQ(ReadFile(m_Folder.FileName("tower.ngt")), wanted);
    }
  }
}

}  // namespace
