#include "support/conversion_run.h"
#include "support/host_locale.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <cerrno>
#include <clocale>
#include <filesystem>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;

const std::string kTwoJoints = FileWith(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=0   Y=0   Z=0
   Joint=2   XorR=1.5   Y=0   Z=0
)");

/// A run over a file of its own, with a platform to look at.
class RunTest : public testing::Test {
 protected:
  int Run(const std::string& bytes) {
    WriteFile(m_Input, bytes);
    return m_Converter.Run(m_Input.c_str());
  }

  TemporaryFolder m_Folder;
  std::string m_Input = m_Folder.FileName("model.s2k");
  std::string m_Output = m_Folder.FileName("model.ngt");
  ScriptedPlatform m_Platform;
  CConverter m_Converter{m_Platform};
};

TEST_F(RunTest, WritesTheHeadWithTheOutputPath) {
  ASSERT_EQ(Run(kTwoJoints), kConverted);
  const std::string rule =
      ";---------------------------------------------------------------------------\n";
  ASSERT_EQ(rule.size(), 77U);
  EXPECT_THAT(ReadFile(m_Output), StartsWith(rule + ";  NORDA/Gen Text(NGT) File.\n;  " + m_Output +
                                             "\n" + rule + "\n*VERSION\n5.8.1\n\n"));
}

TEST_F(RunTest, EmptyModelGivesVersionUnitAndEnd) {
  ASSERT_EQ(Run(FileWith("")), kConverted);
  const std::string output = ReadFile(m_Output);
  EXPECT_EQ(output.substr(output.find("*VERSION")),
            "*VERSION\n"
            "5.8.1\n"
            "\n"
            "*UNIT    ; Unit System\n"
            "; FORCE, LENGTH\n"
            "\tTONF,     M\n"
            "\n"
            "\n\n"
            "*ENDDATA");
}

TEST_F(RunTest, ReminderIsShownFirstOnEveryRun) {
  ASSERT_EQ(Run("nonsense that no table holds\n"), kFailed);
  ASSERT_FALSE(m_Platform.Messages.empty());
  EXPECT_EQ(m_Platform.Messages.front().Key, "IDS_S2KV8_Export_must_be_executed");
}

TEST_F(RunTest, PhasesShowTheirTextsRangesAndPositions) {
  ASSERT_EQ(Run(kTwoJoints), kConverted);
  EXPECT_THAT(m_Platform.Statuses,
              ElementsAre("Reading [s2k] file of SAP2000 V8",
                          "Converting [s2k] file to NORDA text file", "Writing NORDA text file"));
  // Seven lines are read: first line, blank, title, two rows, blank, END.
  EXPECT_THAT(m_Platform.Ranges, ElementsAre(7, 20, 37));
  // The line counter has counted the first line and the title when the first row is met.
  std::vector<int> expected = {2, 3};
  for (int stage = 1; stage <= 19; ++stage) {
    expected.push_back(stage);
  }
  for (int section = 1; section <= 37; ++section) {
    expected.push_back(section);
  }
  EXPECT_EQ(m_Platform.Positions, expected);
}

TEST_F(RunTest, ProgressWindowIsClosedWhenTheRunIsOver) {
  ASSERT_EQ(Run(kTwoJoints), kConverted);
  EXPECT_EQ(m_Platform.WindowsOpened, 1);
  EXPECT_EQ(m_Platform.WindowsOpen, 0);
}

TEST_F(RunTest, MissingInputShowsTheBuiltInTextAndLeavesTheWindowOpen) {
  EXPECT_EQ(m_Converter.Run(m_Input.c_str()), kFailed);
  ASSERT_EQ(m_Platform.Messages.size(), 1U);
  EXPECT_EQ(m_Platform.Messages[0].Key, "");
  EXPECT_EQ(m_Platform.Messages[0].Text, "Cannot open input file!");
  EXPECT_EQ(m_Platform.WindowsOpen, 1);
  EXPECT_EQ(m_Converter.Failure().Describe("model.s2k"),
            "model.s2k: cannot open the input file: No such file or directory");
}

TEST_F(RunTest, NoPathIsAsOneOfNoFile) {
  for (const char* const path : {static_cast<const char*>(nullptr), ""}) {
    ScriptedPlatform platform;
    CConverter converter(platform);
    EXPECT_EQ(converter.Run(path), kFailed);
    ASSERT_EQ(platform.Messages.size(), 1U);
    EXPECT_EQ(platform.Messages[0].Text, "Cannot open input file!");
    EXPECT_THAT(converter.Failure().Reason, StartsWith("cannot open the input file: "));
  }
}

TEST_F(RunTest, FolderCannotBeOpenedAsAnInput) {
  EXPECT_EQ(m_Converter.Run(m_Folder.Path().c_str()), kFailed);
  EXPECT_EQ(m_Platform.Messages[0].Text, "Cannot open input file!");
  EXPECT_EQ(m_Converter.Failure().Reason, "cannot open the input file: it is a directory");
}

TEST_F(RunTest, ExistingOutputIsReplacedWhole) {
  WriteFile(m_Output, std::string(10'000, 'x'));
  ASSERT_EQ(Run(kTwoJoints), kConverted);
  const std::string output = ReadFile(m_Output);
  EXPECT_THAT(output, StartsWith(";---"));
  EXPECT_TRUE(output.ends_with("*ENDDATA"));
}

TEST_F(RunTest, FailureWhileReadingLeavesAnExistingOutputUntouched) {
  WriteFile(m_Output, "earlier output");
  ASSERT_EQ(Run(FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=1   CoordType=Polar\n")),
            kFailed);
  EXPECT_EQ(ReadFile(m_Output), "earlier output");
}

TEST_F(RunTest, OutputThatCannotBeCreatedIsAFileException) {
  std::filesystem::create_directory(m_Output);
  WriteFile(m_Input, kTwoJoints);
  try {
    m_Converter.Run(m_Input.c_str());
    FAIL() << "converted";
  } catch (const FileException& exception) {
    EXPECT_EQ(exception.FileName(), m_Output);
    EXPECT_EQ(exception.SystemError(), EISDIR);
  }
  EXPECT_EQ(m_Converter.Failure().Phase, 3);
}

TEST_F(RunTest, MoreLinesThanSixteenBitsWrapTheRangeAndChangeNothing) {
  std::string tables = "TABLE:  \"JOINT COORDINATES\"\n";
  for (int joint = 1; joint <= 70'000; ++joint) {
    tables += "   Joint=" + std::to_string(joint) + "   XorR=" + std::to_string(joint) + "   Y=0\n";
  }
  ASSERT_EQ(Run(FileWith(tables)), kConverted);
  // First line, blank, title, rows, blank, END.
  EXPECT_EQ(m_Platform.Ranges[0], 70'005 - 65'536);
  EXPECT_THAT(m_Platform.Positions, Contains(70'001));
  const std::string output = ReadFile(m_Output);
  EXPECT_NE(output.find("\n\t1,     1,     0,     0\n"), std::string::npos);
  EXPECT_NE(output.find("\n\t70000, 70000,     0,     0\n"), std::string::npos);
}

TEST_F(RunTest, StopAtARowEndsTheRunWithoutAnOutput) {
  m_Platform.StopAtStep = 2;
  EXPECT_EQ(Run(kTwoJoints), kStopped);
  EXPECT_FALSE(std::filesystem::exists(m_Output));
  EXPECT_EQ(m_Platform.Steps, 2);
  EXPECT_EQ(m_Platform.WindowsOpen, 0);
  EXPECT_EQ(m_Converter.Failure().Reason, "");
}

TEST_F(RunTest, StopAtSeventhStageLeavesTheFileOnDiskUntouched) {
  WriteFile(m_Output, "earlier output");
  m_Platform.StopAtStep = 2 + 7;
  EXPECT_EQ(Run(kTwoJoints), kStopped);
  EXPECT_EQ(ReadFile(m_Output), "earlier output");
  EXPECT_EQ(m_Platform.Positions.back(), 6);
}

TEST_F(RunTest, StopWhileWritingLeavesTheFileAsFarAsItIs) {
  m_Platform.StopAtStep = 2 + 19 + 3;  // behind *NODE
  EXPECT_EQ(Run(kTwoJoints), kStopped);
  const std::string output = ReadFile(m_Output);
  EXPECT_TRUE(output.ends_with("\t2,   1.5,     0,     0\n\n")) << output;
  EXPECT_EQ(output.find("*ENDDATA"), std::string::npos);
}

TEST_F(RunTest, StopAtTheLastStepOfEachPhaseStillStops) {
  for (const int step : {2, 2 + 19, 2 + 19 + 37}) {
    ScriptedPlatform platform;
    platform.StopAtStep = step;
    WriteFile(m_Input, kTwoJoints);
    CConverter converter(platform);
    EXPECT_EQ(converter.Run(m_Input.c_str()), kStopped) << step;
    EXPECT_EQ(platform.Steps, step);
  }
}

TEST_F(RunTest, DriverStartsAfreshOnEachRun) {
  ASSERT_EQ(Run(FileWith(R"(
TABLE:  "JOINT COORDINATES"
   Joint=A   XorR=0   Y=0   Z=0

TABLE:  "CONNECTIVITY - FRAME"
   Frame=F1   JointI=A   JointJ=A
)")),
            kConverted);
  m_Platform.Messages.clear();
  ASSERT_EQ(Run(kTwoJoints), kConverted);
  EXPECT_EQ(m_Platform.Messages.size(), 1U);
  EXPECT_EQ(ReadFile(m_Output).find("*ELEMENT"), std::string::npos);
  EXPECT_EQ(m_Converter.RowCount(), 2U);
}

TEST_F(RunTest, DriverThatHasNotRunHasNoRowsAndNoFailure) {
  EXPECT_EQ(m_Converter.RowCount(), 0U);
  EXPECT_EQ(m_Converter.Failure().Phase, kNotBegun);
  EXPECT_EQ(m_Converter.Failure().Reason, "");
}

TEST_F(RunTest, RowCountIsThatOfTheRowsReadIntoTheModel) {
  ASSERT_EQ(Run(FileWith(R"(
TABLE:  "PROGRAM CONTROL"
   CurrUnits="KN, m, C"

TABLE:  "GRID LINES"
   CoordSys=GLOBAL   AxisDir=X   GridID=A

TABLE:  "JOINT COORDINATES"
   Joint=1
   Joint=2
   Joint=3
)")),
            kConverted);
  EXPECT_EQ(m_Converter.RowCount(), 4U);
}

TEST_F(RunTest, FailureTellsPhaseLineTableAndReason) {
  ASSERT_EQ(
      Run(FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=1\n   Joint=2   CoordType=Polar\n")),
      kFailed);
  EXPECT_EQ(m_Converter.Failure().Describe("model.s2k"),
            "model.s2k:5: reading table \"JOINT COORDINATES\": joint 2 has CoordType=Polar, only "
            "Cartesian is read");
}

TEST_F(RunTest, ExceptionLeavesItsPlaceBehind) {
  WriteFile(m_Input, FileWith("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m\"\n"));
  EXPECT_THROW(m_Converter.Run(m_Input.c_str()), InvalidArgumentException);
  EXPECT_EQ(
      m_Converter.Failure().Describe("model.s2k"),
      "model.s2k:4: reading table \"PROGRAM CONTROL\": CurrUnits= must name force, length and "
      "temperature");
}

TEST_F(RunTest, ExceptionsOfThePlatformGoToTheHost) {
  class Throwing : public ScriptedPlatform {
   public:
    void ShowMessage(const std::string& /*key*/, const std::string& /*text*/) override {
      throw std::runtime_error("the window is gone");
    }
    void CloseProgress() override { throw std::runtime_error("closed twice"); }
  };
  WriteFile(m_Input, kTwoJoints);
  Throwing platform;
  CConverter converter(platform);
  EXPECT_THROW(converter.Run(m_Input.c_str()), std::runtime_error);
  EXPECT_EQ(converter.Failure().Reason, "the window is gone");
}

TEST(Units, ForceAndLengthWordsOfTheTarget) {
  struct Case {
    const char* CurrUnits;
    const char* Line;
  };
  for (const Case& units :
       {Case{"\"Ton, m, C\"", "\tTONF,     M"}, Case{"\"lb, in, F\"", "\tLBF,    IN"},
        Case{"\"KN, mm, C\"", "\tKN,    MM"}, Case{"\"Kip, ft, F\"", "\tKIP,    FT"},
        Case{"tonf,cm,C", "\tTONF,    CM"}}) {
    const ConversionRun run =
        Convert("TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=" + std::string(units.CurrUnits) + "\n");
    EXPECT_THAT(run.Lines("*UNIT"), ElementsAre(units.Line));
  }
}

TEST(OutputPath, IsCutAtTheLastDotOfTheWholePath) {
  EXPECT_EQ(CConverter::OutputPath("bridge.s2k"), "bridge.ngt");
  EXPECT_EQ(CConverter::OutputPath("bridge.v2.s2k"), "bridge.v2.ngt");
  EXPECT_EQ(CConverter::OutputPath("bridge"), "bridge.ngt");
  EXPECT_EQ(CConverter::OutputPath("models.2003/bridge"), "models.ngt");
  EXPECT_EQ(CConverter::OutputPath("./bridge"), ".ngt");
}

TEST(OutputPath, FileWithoutExtensionInAFolderWithADotIsWrittenBesideTheFolder) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() / "models.2003");
  const std::string input = folder.FileName("models.2003/bridge");
  WriteFile(input, kTwoJoints);
  ScriptedPlatform platform;
  CConverter converter(platform);
  EXPECT_EQ(converter.Run(input.c_str()), kConverted);
  EXPECT_TRUE(std::filesystem::exists(folder.FileName("models.ngt")));
}

TEST(Locale, DecimalCommaOfTheHostChangesNoByte) {
  const HostLocale locale("de_DE.UTF-8");
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  const ConversionRun run = Convert(R"(
TABLE:  "JOINT COORDINATES"
   Joint=1   XorR=1.25   Y=-3.5E-7   Z=1234567.8
   Joint=2345   XorR=1,5   Y=0.5,2   Z=0
)");
  EXPECT_EQ(run.Section("*NODE"),
            "*NODE    ; Nodes\n"
            "; iNO, X, Y, Z\n"
            "\t1,  1.25, -3.5e-07, 1.23457e+06\n"
            "\t2345,     1,   0.5,     0\n"
            "\n");
}

}  // namespace
}  // namespace s2k2ngt
