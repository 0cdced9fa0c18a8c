#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::string kFileLine = "File model.s2k was saved on 5/12/03 at 9:30:00\n";
const std::string kJointTitle = "TABLE:  \"JOINT COORDINATES\"\n";
const std::string kEnd = "END TABLE DATA\n";

/// The joints that a file gives, as they stand in the output.
std::vector<std::string> Joints(const std::string& bytes) {
  const ConversionRun run = ConvertBytes(bytes);
  EXPECT_EQ(run.Result, 0);
  return run.Lines("*NODE");
}

struct Ending {
  const char* Name;
  std::string Bytes;
};

void ExpectRefusal(const ConversionRun& run) {
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_Not_Convert"));
  EXPECT_FALSE(run.HasOutput);
}

TEST(LinesBetweenBlocks, FileLinesArePassedOverInAnyCase) {
  const ConversionRun run =
      ConvertBytes("File a.s2k\nFILE a.s2k\nfile a.s2k\nFiles and folders\nFile a.s2k\n" +
                   kJointTitle + "   Joint=1\n\n" + "FILE b.s2k\n" + kEnd);
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t1,     0,     0,     0"));
}

TEST(LinesBetweenBlocks, EndLineInAnyCaseEndsTheScan) {
  for (const char* end : {"END TABLE DATA\n", "end table data\n", "End\t\n", "ENDING\n"}) {
    SCOPED_TRACE(end);
    const ConversionRun run =
        ConvertBytes(kFileLine + end + "nothing of this is read\n" + kJointTitle + "   Joint=1\n");
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_EQ(run.Section("*NODE"), "");
  }
}

TEST(LinesBetweenBlocks, EndAloneIsTooShortToEndTheScan) {
  EXPECT_THAT(Joints(kFileLine + "END\n" + kJointTitle + "   Joint=1\n\nEND\n"),
              ElementsAre("\t1,     0,     0,     0"));
}

TEST(LinesBetweenBlocks, TitleInAnyCaseStartsABlock) {
  for (const char* title : {"TABLE:  \"JOINT COORDINATES\"\n", "table:  \"joint coordinates\"\n",
                            "Table:  \"Joint Coordinates\"\n"}) {
    EXPECT_THAT(Joints(kFileLine + title + "   Joint=1\n\n" + kEnd),
                ElementsAre("\t1,     0,     0,     0"))
        << title;
  }
}

TEST(LinesBetweenBlocks, TitleIsKnownByTheWordsAtItsTenthCharacter) {
  for (const char* title : {"TABLE:  \"JOINT COORDINATES\n", "TABLE:  \"JOINT COORDINATES\"  ; 1\n",
                            "TABLE   'JOINT COORDINATES'\n", "TABLES: \"JOINT COORDINATES\"\n",
                            "TABLE:  \"JOINT: SPECIAL COORDINATES\"\r\n"}) {
    EXPECT_THAT(Joints(kFileLine + title + "   Joint=1\n\n" + kEnd),
                ElementsAre("\t1,     0,     0,     0"))
        << title;
  }
}

TEST(LinesBetweenBlocks, TitleOutOfItsColumnIsUnknown) {
  for (const char* title : {"TABLE: \"JOINT COORDINATES\"\n", "TABLE:   \"JOINT COORDINATES\"\n",
                            "TABLE:  JOINT COORDINATES\n", "TABLE:  \" JOINT COORDINATES\"\n",
                            "TABLE:\t\"JOINT COORDINATES\"\n", "TABLE\n"}) {
    SCOPED_TRACE(title);
    const ConversionRun run = ConvertBytes(kFileLine + title + "   Joint=1\n\n" + kEnd);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_EQ(run.Section("*NODE"), "");
  }
}

TEST(LinesBetweenBlocks, TenShortLinesAreReadAndElevenEndTheScan) {
  const std::string tables = kJointTitle + "   Joint=1\n\n" + kEnd;
  for (const char* line : {"\n", "    ", "abc\n", "\r\n", "END\n", "****"}) {
    SCOPED_TRACE(line);
    // A line of four characters without its newline counts as short only where a NUL byte ends it.
    const std::string text = std::string(line).ends_with('\n') ? line : line + "\0\n"s;
    std::string lines;
    for (int count = 0; count < 10; ++count) {
      lines += text;
    }
    EXPECT_THAT(Joints(kFileLine + lines + tables), SizeIs(1));
    EXPECT_THAT(Joints(kFileLine + lines + text + tables), IsEmpty());
  }
}

TEST(LinesBetweenBlocks, LongerLineStartsTheCountOfShortLinesAfresh) {
  const std::string tenLines(10, '\n');
  EXPECT_THAT(Joints(tenLines + kFileLine + tenLines + kJointTitle + "   Joint=1\n\n" + kEnd),
              SizeIs(1));
}

TEST(LinesBetweenBlocks, LineThatEndsABlockIsNoneOfTheShortLinesBehindIt) {
  const std::string block = kJointTitle + "   Joint=1\n\n";
  const std::string units = "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"lb, in, F\"\n\n" + kEnd;
  const auto unitsBehind = [&](std::size_t shortLines) {
    return ConvertBytes(kFileLine + block + std::string(shortLines, '\n') + units).Lines("*UNIT");
  };
  EXPECT_THAT(unitsBehind(10), ElementsAre("\tLBF,    IN"));
  EXPECT_THAT(unitsBehind(11), ElementsAre("\tTONF,     M"));
}

TEST(LinesBetweenBlocks, LineOfFiveCharactersWithItsNewlineIsNotShort) {
  const ConversionRun run = ConvertBytes("abcd\n" + kEnd);
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_DATA_Not_Convert"));
}

TEST(ForeignLines, ThreeAtTheHeadOfTheFileAreEachAnsweredAndPassedOver) {
  const ConversionRun run = ConvertBytes("$ exported\n   TABLE: x\n\xEF\xBB\xBF" + kFileLine +
                                         kJointTitle + "   Joint=1\n\n" + kEnd);
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_DATA_Not_Convert",
                                        "IDS_S2KV8_DATA_Not_Convert"));
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t1,     0,     0,     0"));
}

TEST(ForeignLines, FourthRefusesTheFile) {
  const ConversionRun run = ConvertBytes("one line\ntwo lines\nthree lines\nfour lines\n" + kEnd);
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_DATA_Not_Convert",
                                        "IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_Not_Convert"));
  EXPECT_FALSE(run.HasOutput);
  EXPECT_EQ(run.Failure.Line, 4U);
}

TEST(ForeignLines, FileLinesCountAmongTheFirstThreeAndShortLinesDoNot) {
  EXPECT_THAT(ConvertBytes(kFileLine + "\n\nvery\n\nforeign\n" + kEnd).Messages,
              ElementsAre("IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_DATA_Not_Convert"));
  EXPECT_THAT(ConvertBytes(kFileLine + "very\nforeign\n\nline\n" + kEnd).Messages,
              ElementsAre("IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_DATA_Not_Convert",
                          "IDS_S2KV8_Not_Convert"));
}

TEST(ForeignLines, LineBehindATableRefusesTheFile) {
  const ConversionRun run =
      ConvertBytes(kFileLine + kJointTitle + "   Joint=1\n\n; joints\n" + kEnd);
  ExpectRefusal(run);
  EXPECT_EQ(run.Failure.Line, 5U);
}

TEST(ForeignLines, RowsAndTitlesCountAmongTheFirstThreeLines) {
  // Title and row are two lines, so that a foreign line can be the third.
  EXPECT_THAT(ConvertBytes(kJointTitle + "   Joint=1\n\n; joints\n" + kEnd).Messages,
              ElementsAre("IDS_S2KV8_DATA_Not_Convert"));
  ExpectRefusal(ConvertBytes(kJointTitle + "   Joint=1\n   Joint=2\n\n; joints\n" + kEnd));
}

TEST(OlderFormat, FirstWordOfALineRefusesTheFileAtOnce) {
  for (const char* word : {"SYSTEM", "JOINT", "RESTRAINT", "MATERIAL", "FRAME", "LOAD", "PATTERN",
                           "system", "Joint", "restraints", "Materials", "framework", "Loads"}) {
    SCOPED_TRACE(word);
    const ConversionRun run = ConvertBytes(std::string(word) + "\n  DOF=UX,UZ,RY\n\n" + kEnd);
    ExpectRefusal(run);
    EXPECT_EQ(run.Failure.Line, 1U);
  }
}

TEST(OlderFormat, WordBehindABlankIsAForeignLine) {
  const ConversionRun run = ConvertBytes("  SYSTEM\n" + kEnd);
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_DATA_Not_Convert"));
}

TEST(OlderFormat, WordsInsideABlockAreRows) {
  EXPECT_THAT(Joints(kFileLine + kJointTitle + "JOINT Joint=1\nLOAD Joint=2\n\n" + kEnd),
              SizeIs(2));
}

TEST(LinesInABlock, AnyTextIsARow) {
  // Of the rows here the second, third and fourth hold no key.
  EXPECT_THAT(
      Joints(kFileLine + kJointTitle + "Joint=1\n; upper floor\nabc\n  \n\tJoint=2\n\n" + kEnd),
      ElementsAre("\t1,     0,     0,     0", "\t0,     0,     0,     0",
                  "\t0,     0,     0,     0", "\t0,     0,     0,     0",
                  "\t2,     0,     0,     0"));
}

TEST(LinesInABlock, LineOfTwoBlanksIsAnEmptyRow) {
  for (const char* blanks : {"  \n", "  \r\n", "\t\t\n", "\r\r\r\n"}) {
    EXPECT_THAT(Joints(kFileLine + kJointTitle + blanks + "   Joint=2\n\n" + kEnd),
                ElementsAre("\t0,     0,     0,     0", "\t2,     0,     0,     0"));
  }
}

TEST(LinesInABlock, LineOfLessThanThreeCharactersEndsTheBlock) {
  for (const char* line : {"\n", " \n", "x\n", "\r\n", " \r\n", "\r\r\n"}) {
    SCOPED_TRACE(testing::PrintToString(line));
    const ConversionRun run =
        ConvertBytes(kFileLine + kJointTitle + "   Joint=1\n" + line + "   Joint=2\n" + kEnd);
    ExpectRefusal(run);
    EXPECT_EQ(run.Failure.Line, 5U);
  }
}

TEST(LinesInABlock, EndInCapitalsEndsTheBlockAndNotTheScan) {
  for (const char* end : {"END\n", "END TABLE DATA\n", "ENDING\n"}) {
    const ConversionRun run =
        ConvertBytes(kFileLine + kJointTitle + "   Joint=1\n" + end +
                     "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"lb, in, F\"\n" + end);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t1,     0,     0,     0"));
    EXPECT_THAT(run.Lines("*UNIT"), ElementsAre("\tLBF,    IN")) << end;
  }
}

TEST(LinesInABlock, FileInCapitalsEndsTheBlock) {
  EXPECT_THAT(Joints(kFileLine + kJointTitle + "   Joint=1\nFILE b.s2k\n" + kEnd), SizeIs(1));
  ExpectRefusal(ConvertBytes(kFileLine + kJointTitle + "   Joint=1\nFILE b.s2k\n   Joint=2\n"));
}

TEST(LinesInABlock, EndFileAndTableInOtherLettersOrBehindABlankAreRows) {
  EXPECT_THAT(Joints(kFileLine + kJointTitle +
                     "End Joint=1\nend Joint=2\nFile Joint=3\nfile Joint=4\nTable Joint=5\n"
                     "table:  \"frame\" Joint=6\n END Joint=7\n FILE Joint=8\n TABLE Joint=9\n\n" +
                     kEnd),
              SizeIs(9));
}

TEST(LinesInABlock, BlockWithoutRowsIsNoTrouble) {
  const ConversionRun run = ConvertBytes(kFileLine + kJointTitle + "\n" + kJointTitle + kEnd);
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Section("*NODE"), "");
}

TEST(LinesInABlock, EveryLineOfAnyTableMovesTheProgressBar) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  WriteFile(path, kFileLine + "TABLE:  \"PAINT COLORS\"\n   Color=Red\n   Color=Blue\n\n" +
                      kJointTitle + "   Joint=1 _\n   XorR=1\n" + kEnd);
  ScriptedPlatform platform;
  s2k2ngt::CConverter converter(platform);
  ASSERT_EQ(converter.Run(path.c_str()), 0);
  // First line and title count before the first row; the END line of the block is a step too.
  platform.Positions.resize(5);
  EXPECT_THAT(platform.Positions, ElementsAre(2, 3, 5, 6, 7));
  EXPECT_THAT(platform.Messages, SizeIs(1));
}

TEST(BlockWithoutABlankLine, RowsOfTheFirstAreLostAndThoseOfTheSecondAreReadAsTheFirst) {
  const ConversionRun run = ConvertBytes(kFileLine + kJointTitle +
                                         "   Joint=1   XorR=1\n   Joint=2   XorR=2\n"
                                         "TABLE:  \"PROGRAM CONTROL\"\n"
                                         "   CurrUnits=\"lb, in, F\"   Joint=3   XorR=3\n\n" +
                                         kEnd);
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Lines("*UNIT"), ElementsAre("\tTONF,     M"));
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t3,     3,     0,     0"));
}

TEST(BlockWithoutABlankLine, TableBehindAnUnknownOneIsUnknownToo) {
  const ConversionRun run = ConvertBytes(kFileLine + "TABLE:  \"PAINT COLORS\"\n   Color=Red\n" +
                                         kJointTitle + "   Joint=1\n\n" + kEnd);
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_EQ(run.Section("*NODE"), "");
}

TEST(BlockWithoutABlankLine, UnfinishedRowIsLostToo) {
  EXPECT_THAT(Joints(kFileLine + kJointTitle + "   Joint=1 _\n" + kJointTitle +
                     "   XorR=2   Y=3\n\n" + kEnd),
              ElementsAre("\t0,     2,     3,     0"));
}

}  // namespace
