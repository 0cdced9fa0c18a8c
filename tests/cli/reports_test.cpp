#include "cli/reports_fixture.h"
#include "cli/running_command.h"
#include "support/command_run.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kJointWithUnits = FileWith(
    "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m, C\"\n\n"
    "TABLE:  \"JOINT COORDINATES\"\n   Joint=1   XorR=2\n");

TEST_F(ReportsTest, AReportInJsonTellsWhatBecameOfEveryRow) {
  Write("lossy.s2k", kLosses);
  EXPECT_EQ(Call({"--report", "lost.json", "lossy.s2k"}).Status, 0);
  const json report = Report("lost.json");
  EXPECT_EQ(report["schema"], "s2k2ngt-report");
  EXPECT_EQ(report["version"], 1);
  ASSERT_EQ(report["files"].size(), 1U);
  const json& file = report["files"][0];
  EXPECT_EQ(file["input"], "lossy.s2k");
  EXPECT_EQ(file["output"], "lossy.ngt");
  EXPECT_EQ(file["result"], 0);
  EXPECT_EQ(file["error"], nullptr);
  EXPECT_EQ(file["verdict"], "losses");
  EXPECT_EQ(file["rows"], json({{"read", 4},
                                {"converted", 2},
                                {"changed", 0},
                                {"dropped", 1},
                                {"refused", 1},
                                {"not_looked_at", 0}}));
  ASSERT_EQ(file["tables"].size(), 3U);
  EXPECT_EQ(file["tables"][1]["title"], "AREA AUTO MESH ASSIGNMENTS");
  EXPECT_EQ(file["tables"][1]["line"], 7);
  EXPECT_EQ(file["tables"][1]["message"], "IDS_S2KV8_AREA_AtMesh_Not_Convert");
  EXPECT_EQ(file["tables"][1]["reasons"], json({{{"code", "table-refused"}, {"rows", 1}}}));
  EXPECT_EQ(file["losses"], json({{{"table", 0},
                                   {"position", 1},
                                   {"line", 4},
                                   {"label", "Name=1"},
                                   {"reason", "overwritten-by-later-block"}}}));
  EXPECT_EQ(file["numbers"], json({{"joints", nullptr}, {"elements", nullptr}}));
  EXPECT_EQ(file["messages"].size(), 2U);
  ASSERT_EQ(report["reasons"].size(), 2U);
  EXPECT_EQ(report["reasons"][0]["code"], "table-refused");
  EXPECT_EQ(report["reasons"][0]["fate"], "refused");
  EXPECT_EQ(report["reasons"][0]["loss"], true);
}

TEST_F(ReportsTest, NumbersOfLabelsStandInTheReport) {
  Write("named.s2k", FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=B\n   Joint=A\n"));
  Call({"--report", "lost.json", "named.s2k"});
  EXPECT_EQ(Report("lost.json")["files"][0]["numbers"]["joints"],
            json({{{"label", "B"}, {"number", 1}}, {{"label", "A"}, {"number", 2}}}));
}

TEST_F(ReportsTest, NumbersOfElementsThatCannotBeDrawnStandInTheReportToo) {
  Write("named.s2k", FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=1   XorR=0\n   Joint=2   "
                              "XorR=4\n\n"
                              "TABLE:  \"CONNECTIVITY - FRAME\"\n"
                              "   Frame=A   JointI=1   JointJ=7\n"
                              "   Frame=B   JointI=1   JointJ=2\n"));
  Call({"--report", "lost.json", "--report", "lost.html", "named.s2k"});
  EXPECT_EQ(Report("lost.json")["files"][0]["numbers"]["elements"],
            json({{{"kind", "frame"}, {"label", "A"}, {"number", 1}},
                  {{"kind", "frame"}, {"label", "B"}, {"number", 2}}}));
  EXPECT_THAT(Text("lost.html"),
              HasSubstr("data-drawn=\"left-out\">1</span> element is not drawn"));
}

TEST_F(ReportsTest, APageIsWrittenWhereTheNameEndsInHtml) {
  Write("lossy.s2k", kLosses);
  Write("lost.html", "of an earlier call");
  EXPECT_EQ(Call({"--report", "lost.html", "--report", "lost.json", "lossy.s2k"}).Status, 0);
  EXPECT_THAT(Text("lost.html"), testing::StartsWith("<!DOCTYPE html>"));
  EXPECT_TRUE(Exists("lost.json"));
}

TEST_F(ReportsTest, ReportsAreTheSameFromOneProcessAndFromSeveral) {
  for (const std::string name : {"a.s2k", "b.s2k", "c.s2k"}) {
    Write(name, kLosses);
  }
  Write("d.s2k", "JOINT\n");
  Call({"--report", "one.json", "--report", "one.html", "a.s2k", "b.s2k", "c.s2k", "d.s2k"});
  Call({"-j", "3", "--report", "several.json", "--report", "several.html", "a.s2k", "b.s2k",
        "c.s2k", "d.s2k"});
  EXPECT_EQ(Text("one.json"), Text("several.json"));
  EXPECT_EQ(Text("one.html"), Text("several.html"));
  EXPECT_EQ(Report("several.json")["files"].size(), 4U);
}

TEST_F(ReportsTest, AFileThatFailsStandsInTheReport) {
  Write("whole.s2k", kJointWithUnits);
  const CommandRun run = Call({"--report", "lost.json", "whole.s2k", "missing.s2k"});
  EXPECT_EQ(run.Status, 2);
  const json report = Report("lost.json");
  EXPECT_EQ(report["files"][0]["verdict"], "whole");
  EXPECT_EQ(report["files"][1]["verdict"], "failed");
  EXPECT_THAT(report["files"][1]["error"], HasSubstr("missing.s2k"));
  EXPECT_THAT(report["files"][1]["tables"], IsEmpty());
}

TEST_F(ReportsTest, OutputAndMessagesAreThoseOfACallWithoutAReportAndTheLineOfJsonIsLonger) {
  Write("lossy.s2k", kLosses);
  const CommandRun plain = Call({"--json", "lossy.s2k"});
  EXPECT_THAT(plain.Out, testing::EndsWith("],\"error\":null}\n"));
  const std::string output = Text("lossy.ngt");
  const CommandRun run = Call({"--json", "--report", "lost.json", "lossy.s2k"});
  EXPECT_EQ(run.Out, plain.Out.substr(0, plain.Out.size() - 2) +
                         R"(,"verdict":"losses","has_loss":true,"rows":{"read":4,"converted":2,)"
                         R"("changed":0,"dropped":1,"refused":1,"not_looked_at":0}})"
                         "\n");
  EXPECT_EQ(Text("lossy.ngt"), output);
}

TEST_F(ReportsTest, LinesOfJsonHaveVerdictsWhereverAnAccountIsKept) {
  Write("whole.s2k", kJointWithUnits);
  for (const std::vector<std::string>& how : std::vector<std::vector<std::string>>{
           {"--check"}, {"--fail-on-loss"}, {"--report", "lost.json"}, {"--check", "-j", "2"}}) {
    SCOPED_TRACE(how[0]);
    std::vector<std::string> words = {"--json", "whole.s2k", "missing.s2k"};
    words.insert(words.begin(), how.begin(), how.end());
    const std::vector<json> lines = JsonLines(Call(words).Out);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0]["verdict"], "whole");
    EXPECT_EQ(lines[0]["has_loss"], false);
    EXPECT_EQ(lines[0]["rows"]["converted"], 2);  // the joint and the units
    EXPECT_EQ(lines[1]["verdict"], "failed");
    EXPECT_EQ(lines[1]["rows"]["read"], 0);
  }
}

TEST_F(ReportsTest, AReportOfAnotherEndingIsWrongUsage) {
  Write("model.s2k", kOneJoint);
  const CommandRun run = Call({"--report", "lost.txt", "model.s2k"});
  EXPECT_EQ(run.Status, 64);
  EXPECT_THAT(run.Err, HasSubstr("--report wants a file that ends in .html or .json"));
  EXPECT_FALSE(Exists("model.ngt"));
}

TEST_F(ReportsTest, AReportInAFolderThatIsNotThereIsToldBeforeAnythingIsConverted) {
  Write("model.s2k", kOneJoint);
  const CommandRun run = Call({"--report", "none/lost.json", "model.s2k"});
  EXPECT_EQ(run.Status, 64);
  EXPECT_THAT(run.Err,
              HasSubstr("none/lost.json: cannot write the report: No such file or directory"));
  EXPECT_FALSE(Exists("model.ngt"));
}

TEST_F(ReportsTest, AReportReplacesNeitherInputNorOutput) {
  Write("model.json", kOneJoint);
  EXPECT_EQ(Call({"--report", "model.json", "model.json"}).Status, 64);
  EXPECT_EQ(Text("model.json"), kOneJoint);
  std::filesystem::create_symlink("model.ngt", m_Folder.Path() / "lost.json");
  EXPECT_EQ(Call({"--report", "lost.json", "model.json"}).Status, 64);
  EXPECT_FALSE(Exists("model.ngt"));
}

TEST_F(ReportsTest, AReportDoesNotReplaceAnInputByAnotherOfItsNames) {
  Write("model.s2k", kOneJoint);
  std::filesystem::create_hard_link(m_Folder.Path() / "model.s2k", m_Folder.Path() / "lost.json");
  EXPECT_EQ(Call({"--report", "lost.json", "model.s2k"}).Status, 64);
  EXPECT_EQ(Text("model.s2k"), kOneJoint);
}

TEST_F(ReportsTest, AReportThatCannotBeWrittenIsToldBeforeAnythingIsConverted) {
  Write("model.s2k", kOneJoint);
  std::filesystem::create_directory(m_Folder.Path() / "lost.json");
  const CommandRun run = Call({"--report", "lost.json", "model.s2k"});
  EXPECT_EQ(run.Status, 64);
  EXPECT_THAT(run.Err, HasSubstr("lost.json: the report would replace a folder"));
  EXPECT_FALSE(Exists("model.ngt"));
}

TEST_F(ReportsTest, NothingIsLeftBesideAReport) {
  Write("model.s2k", kOneJoint);
  Write("lost.json", "of an earlier call");
  Call({"--report", "lost.json", "model.s2k"});
  EXPECT_EQ(Report("lost.json")["version"], 1);
  EXPECT_FALSE(Exists("lost.json.part"));
}

TEST_F(ReportsTest, AReportMayLieInTheFolderOfTheOutputs) {
  Write("model.s2k", kOneJoint);
  EXPECT_EQ(Call({"-o", "outputs", "--report", "outputs/lost.json", "model.s2k"}).Status, 0);
  EXPECT_TRUE(Exists("outputs/lost.json"));
}

TEST_F(ReportsTest, AFileThatStandsWhereTheReportIsWrittenAtFirstStays) {
  Write("report.json.part", kJointWithUnits);
  EXPECT_EQ(Call({"--report", "report.json", "report.json.part"}).Status, 0);
  EXPECT_EQ(Text("report.json.part"), kJointWithUnits);
  EXPECT_TRUE(Exists("report.json"));
  EXPECT_FALSE(Exists("report.json.part2"));
}

TEST_F(ReportsTest, ALossFailsWhereItIsAskedTo) {
  Write("lossy.s2k", kLosses);
  Write("whole.s2k", kJointWithUnits);
  EXPECT_EQ(Call({"--fail-on-loss", "lossy.s2k"}).Status, 3);
  EXPECT_TRUE(Exists("lossy.ngt"));
  EXPECT_EQ(Call({"--fail-on-loss", "whole.s2k"}).Status, 0);
  EXPECT_EQ(Call({"--fail-on-loss", "-j", "2", "whole.s2k", "lossy.s2k"}).Status, 3);
}

TEST_F(ReportsTest, AFailureGoesBeforeALoss) {
  Write("lossy.s2k", kLosses);
  EXPECT_EQ(Call({"--fail-on-loss", "lossy.s2k", "missing.s2k"}).Status, 2);
}

TEST_F(ReportsTest, TheSummaryTellsHowManyFilesHaveLosses) {
  Write("lossy.s2k", kLosses);
  Write("whole.s2k", kJointWithUnits);
  EXPECT_THAT(Call({"--fail-on-loss", "lossy.s2k", "whole.s2k"}).Err,
              HasSubstr("s2k2ngt: 2 files: 2 converted (1 with losses)\n"
                        "s2k2ngt: with losses:\n"
                        "s2k2ngt:   lossy.s2k\n"));
  EXPECT_THAT(Call({"--check", "lossy.s2k", "whole.s2k"}).Err,
              HasSubstr("s2k2ngt: 2 files: 2 checked (1 with losses)\n"));
}

TEST_F(ReportsTest, AQuietCallTellsNothingOfTheRows) {
  Write("lossy.s2k", kLosses);
  EXPECT_EQ(Call({"--quiet", "--check", "lossy.s2k"}).Err, "");
}

TEST_F(ReportsTest, WantOfMemoryForAPageIsToldByItsName) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "the sanitizer takes more address space than any limit leaves";
#endif
  // The second block writes over each row of the first.
  std::string rows = "TABLE:  \"JOINT COORDINATES\"\n";
  for (int joint = 1; joint <= 200'000; ++joint) {
    rows += "   Joint=" + std::to_string(joint) + "\n";
  }
  Write("lossy.s2k", FileWith(rows + "\n" + rows));
  Write("lost.html", "of an earlier call");
  const std::string last = m_Folder.FileName("last.s2k");
  ASSERT_EQ(mkfifo(last.c_str(), 0600), 0);
  // Memory that is free goes back to the system.
  const std::string freeing =
      "GLIBC_TUNABLES=glibc.malloc.trim_threshold=65536:glibc.malloc.mmap_threshold=65536";
  const CommandRun run =
      RunCommand({.Words = {"/usr/bin/env", freeing, S2K2NGT_COMMAND, "--report", "lost.html",
                            "lossy.s2k", "last.s2k"},
                  .Folder = m_Folder.Path(),
                  .WhileRunning = [&](pid_t process) {
                    std::ofstream writer(last);
                    // Enough for one joint, and much less than the losses take as an object.
                    constexpr rlim_t kRoom = rlim_t{32} << 20U;
                    const rlim_t size = (std::stoul(StatusLine(process, "VmSize:")) << 10U) + kRoom;
                    const rlimit limit = {size, size};
                    EXPECT_EQ(prlimit(process, RLIMIT_AS, &limit, nullptr), 0);
                    writer << kOneJoint;
                  }});
  EXPECT_EQ(run.Status, 2);
  EXPECT_THAT(run.Err,
              testing::EndsWith("s2k2ngt: lost.html: cannot write the report: there is not "
                                "enough memory\n"));
  EXPECT_TRUE(Text("lost.html") == "of an earlier call");
  EXPECT_FALSE(Exists("lost.html.part"));
  EXPECT_TRUE(Exists("last.ngt"));
}

}  // namespace
