// Calls that a signal ends: whatever is left half-written is named, then or later.
#include "cli/command_fixture.h"
#include "cli/running_command.h"
#include "support/command_run.h"
#include "support/temporary_folder.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>

namespace {

using nlohmann::json;
using testing::HasSubstr;

/// The output is a pipe that takes less than one piece of what is written, so that the command
/// stands in the middle of its writing until the test reads on.
class EndedCalls : public CommandTest {
 protected:
  EndedCalls() {
    std::string rows = "TABLE:  \"JOINT COORDINATES\"\n";
    for (int joint = 1; joint <= 60'000; ++joint) {
      rows += "   Joint=" + std::to_string(joint) + "   XorR=1   Y=2   Z=3\n";
    }
    Write("large.s2k", FileWith(rows));
    Write("next.s2k", kOneJoint);
  }

  CommandRun CallWhileWriting(std::vector<std::string> arguments,
                              const std::function<void(pid_t)>& end) {
    const std::string output = m_Folder.FileName("large.ngt");
    EXPECT_EQ(mkfifo(output.c_str(), 0600), 0);
    arguments.insert(arguments.begin(), S2K2NGT_COMMAND);
    CommandRun run =
        RunCommand({.Words = arguments, .Folder = m_Folder.Path(), .WhileRunning = [&](pid_t id) {
                      std::ifstream reader(output);
                      reader.get();
                      end(id);
                      m_Written.assign(std::istreambuf_iterator<char>(reader), {});
                    }});
    std::filesystem::remove(output);
    return run;
  }

  std::string m_Written;
};

constexpr const char* kLeft = "s2k2ngt: large.s2k: stopped; large.ngt is left unfinished\n";

TEST_F(EndedCalls, StopInOrderAndNameTheOutput) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    SCOPED_TRACE(signal);
    const CommandRun run = CallWhileWriting({"--json", "large.s2k", "next.s2k"},
                                            [&](pid_t process) { SignalAndWait(process, signal); });
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(run.Err, HasSubstr(kLeft));
    EXPECT_THAT(run.Err, HasSubstr("\ns2k2ngt: next.s2k: stopped\n"
                                   "s2k2ngt: 2 files: 0 converted, 2 stopped\n"));
    ASSERT_EQ(JsonLines(run.Out).size(), 2U);
    EXPECT_EQ(JsonLines(run.Out)[0]["result"], 1);
    EXPECT_FALSE(m_Written.ends_with("*ENDDATA"));
    EXPECT_FALSE(Exists("next.ngt"));
  }
}

TEST_F(EndedCalls, StopAllWorkersInOrderAndNameTheirOutputs) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    SCOPED_TRACE(signal);
    const CommandRun run =
        CallWhileWriting({"--json", "-j", "1", "large.s2k", "next.s2k"}, [&](pid_t process) {
          const pid_t worker = ChildrenOf(process).at(0);
          WaitFor([&] { return Catches(worker, SIGUSR1); });
          // As a terminal does, or a scheduler: to all of them, and again.
          for (int times = 0; times < 3; ++times) {
            kill(worker, signal);
            WaitFor([&] { return StatusLine(worker, "ShdPnd:") == "0000000000000000"; });
          }
          kill(process, signal);
          WaitFor([&] { return !Catches(worker, SIGUSR1); });
        });
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(run.Err, HasSubstr(kLeft));
    EXPECT_THAT(run.Err, HasSubstr("\ns2k2ngt: next.s2k: stopped\n"
                                   "s2k2ngt: 2 files: 0 converted, 2 stopped\n"));
    ASSERT_EQ(JsonLines(run.Out).size(), 2U);
    EXPECT_EQ(JsonLines(run.Out)[0]["result"], 1);
    EXPECT_EQ(JsonLines(run.Out)[1]["result"], 1);
    EXPECT_FALSE(Exists("next.ngt"));
  }
}

TEST_F(EndedCalls, WorkersOfAKilledCommandStopAndNameTheirOutputs) {
  for (const char* jobs : {"1", "2"}) {
    SCOPED_TRACE(jobs);
    const CommandRun run =
        CallWhileWriting({"--quiet", "-j", jobs, "large.s2k"}, [](pid_t process) {
          const pid_t worker = ChildrenOf(process).at(0);
          kill(process, SIGKILL);
          WaitFor([&] { return HasEnded(process) && !Catches(worker, SIGUSR2); });
        });
    EXPECT_EQ(run.Status, 128 + SIGKILL);
    EXPECT_EQ(run.Err, kLeft);
    EXPECT_FALSE(m_Written.ends_with("*ENDDATA"));
  }
}

TEST_F(EndedCalls, SignalThatIsIgnoredStaysSo) {
  // As by nohup.
  const CommandRun run = RunCommand(
      {.Words = {"/bin/sh", "-c", "trap '' HUP; mkfifo a.s2k; exec " S2K2NGT_COMMAND " a.s2k"},
       .Folder = m_Folder.Path(),
       .WhileRunning = [&](pid_t process) {
         WaitFor([&] { return Exists("a.s2k"); });
         std::ofstream writer(m_Folder.FileName("a.s2k"));
         EXPECT_FALSE(Catches(process, SIGHUP));
         kill(process, SIGHUP);
         writer << kOneJoint;
       }});
  EXPECT_EQ(run.Status, 0);
  EXPECT_TRUE(Exists("a.ngt"));
}

/// Kills the command, or its worker, as soon as there is something in the output, until it was
/// early enough.
class KilledCalls : public EndedCalls {
 protected:
  CommandRun CallAndKill(const std::vector<std::string>& arguments, bool worker) {
    std::vector<std::string> words = {S2K2NGT_COMMAND};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const std::string output = m_Folder.FileName("large.ngt");
    for (int attempt = 0; attempt < 50; ++attempt) {
      std::filesystem::remove(output);
      CommandRun run =
          RunCommand({.Words = words, .Folder = m_Folder.Path(), .WhileRunning = [&](pid_t id) {
                        std::error_code none;
                        const auto hasBegun = [&] {
                          const auto size = std::filesystem::file_size(output, none);
                          return !none && size > 0;
                        };
                        while (!hasBegun() && !HasEnded(id)) {
                        }
                        const std::vector<pid_t> children = ChildrenOf(id);
                        if (!worker || !children.empty()) {
                          kill(worker ? children.front() : id, SIGKILL);
                        }
                      }});
      if (!ReadFile(output).ends_with("*ENDDATA")) {
        return run;
      }
    }
    ADD_FAILURE() << "the output was whole each time";
    return {};
  }
};

TEST_F(KilledCalls, NameTheUnfinishedOutputInTheNextCall) {
  const CommandRun killed = CallAndKill({"next.s2k", "large.s2k"}, false);
  EXPECT_EQ(killed.Status, 128 + SIGKILL);
  const CommandRun run = Call({"--quiet", "next.s2k", "large.s2k"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Err,
            "s2k2ngt: large.ngt: found unfinished, as a call leaves it that is stopped or "
            "killed\n");
  EXPECT_TRUE(ReadFile(m_Folder.FileName("large.ngt")).ends_with("*ENDDATA"));
  EXPECT_EQ(Call({"--quiet", "next.s2k", "large.s2k"}).Err, "");
}

TEST_F(KilledCalls, NameTheUnfinishedOutputOfAKilledWorker) {
  const CommandRun run = CallAndKill({"--json", "-j", "2", "large.s2k"}, true);
  EXPECT_EQ(run.Status, 2);
  EXPECT_EQ(JsonLines(run.Out).at(0)["error"],
            "large.s2k: the conversion was ended by signal 9; large.ngt is left unfinished");
}

TEST_F(EndedCalls, OutputIsFoundUnfinishedByItsLastLine) {
  const std::string found =
      "s2k2ngt: next.ngt: found unfinished, as a call leaves it that is stopped or killed\n";
  for (const char* unfinished : {"", "*ENDDAT", "*ENDDATA\n\t1,     0", "; half a line"}) {
    SCOPED_TRACE(unfinished);
    Write("next.ngt", kBeginningOfOutput + unfinished);
    EXPECT_EQ(Call({"--quiet", "next.s2k"}).Err, found);
  }
  for (const std::string& whole : {std::string("*ENDDATA"), std::string("*ENDDATA\r\n"),
                                   std::string(1000, ';') + "\n*ENDDATA\n"}) {
    SCOPED_TRACE(whole);
    Write("next.ngt", kBeginningOfOutput + whole);
    EXPECT_EQ(Call({"--quiet", "next.s2k"}).Err, "");
  }
}

TEST_F(EndedCalls, OutputIsFoundUnfinishedWhereverItWasCutOff) {
  Call({"next.s2k"});
  const std::string whole = ReadFile(m_Folder.FileName("next.ngt"));
  for (const std::size_t size :
       {std::size_t{0}, std::size_t{1}, std::size_t{80}, whole.size() / 2, whole.size() - 1}) {
    SCOPED_TRACE(size);
    Write("next.ngt", whole.substr(0, size));
    EXPECT_THAT(Call({"--quiet", "next.s2k"}).Err, HasSubstr("next.ngt: found unfinished"));
  }
}

TEST_F(EndedCalls, OutputOfAnotherProgramIsNotSaidToBeUnfinished) {
  for (const std::string& foreign :
       {std::string("*NODE\n"), std::string("; half a line"), ";" + std::string(76, '-') + "\n",
        ";" + std::string(75, '-') + "\n;  of another program\n"}) {
    SCOPED_TRACE(foreign);
    Write("next.ngt", foreign);
    EXPECT_EQ(Call({"--quiet", "next.s2k"}).Err, "");
  }
}

TEST_F(EndedCalls, UnfinishedOutputOfAStopStandsInTheReports) {
  const CommandRun run =
      CallWhileWriting({"--report", "lost.json", "--report", "lost.html", "large.s2k", "next.s2k"},
                       [](pid_t process) { SignalAndWait(process, SIGINT); });
  EXPECT_EQ(run.Status, 1);
  const json report = json::parse(ReadFile(m_Folder.FileName("lost.json")));
  EXPECT_EQ(report["files"][0]["verdict"], "stopped");
  EXPECT_EQ(report["files"][0]["unfinished"], "large.ngt");
  EXPECT_EQ(report["files"][1]["verdict"], "stopped");
  EXPECT_EQ(report["files"][1]["unfinished"], nullptr);
  EXPECT_THAT(ReadFile(m_Folder.FileName("lost.html")),
              HasSubstr("<bdi>large.ngt</bdi> is left unfinished."));
}

}  // namespace
