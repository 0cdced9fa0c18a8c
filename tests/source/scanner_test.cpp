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
/// The head of a file up to the rows of its joint table.
const std::string kToRows = kFileLine + kJointTitle;
const std::string kEnd = "END TABLE DATA\n";

/// The joints that a file gives, as they stand in the output.
std::vector<std::string> Joints(const std::string& bytes) {
  const ConversionRun run = ConvertBytes(bytes);
  EXPECT_EQ(run.Result, 0);
  return run.Lines("*NODE");
}

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

TEST(LinesBetweenBlocks, TitleIsKnownByItsWordAtTheTenthCharacterInAnyCase) {
  for (const char* title : {"TABLE:  \"JOINT COORDINATES\n", "TABLE:  \"JOINT COORDINATES\"  ; 1\n",
                            "TABLE   'JOINT COORDINATES'\n", "TABLES: \"JOINT COORDINATES\"\n",
                            "table:  \"joint coordinates\"\n", "Table:  \"Joint Coordinates\"\n",
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
  for (const std::string& line : {"\n"s, "abc\n"s, "\r\n"s, "END\n"s, "TAB\n"s, "    \0\n"s}) {
    SCOPED_TRACE(testing::PrintToString(line));
    std::string lines;
    for (int count = 0; count < 10; ++count) {
      lines += line;
    }
    EXPECT_THAT(Joints(kFileLine + lines + tables), SizeIs(1));
    EXPECT_THAT(Joints(kFileLine + lines + line + tables), IsEmpty());
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
  const ConversionRun run =
      ConvertBytes("$ exported\n   TABLE: x\n\xEF\xBB\xBF" + kToRows + "   Joint=1\n\n" + kEnd);
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
  const ConversionRun run = ConvertBytes(kToRows + "   Joint=1\n\n; joints\n" + kEnd);
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
  EXPECT_THAT(Joints(kToRows + "JOINT Joint=1\nLOAD Joint=2\n\n" + kEnd), SizeIs(2));
}

TEST(LinesInABlock, AnyTextIsARow) {
  // Of the rows here the second, third and fourth hold no key.
  EXPECT_THAT(Joints(kToRows + "Joint=1\n; upper floor\nabc\n  \n\tJoint=2\n\n" + kEnd),
              ElementsAre("\t1,     0,     0,     0", "\t0,     0,     0,     0",
                          "\t0,     0,     0,     0", "\t0,     0,     0,     0",
                          "\t2,     0,     0,     0"));
}

TEST(LinesInABlock, LineOfTwoBlanksIsAnEmptyRow) {
  for (const char* blanks : {"  \n", "  \r\n", "\t\t\n", "\r\r\r\n"}) {
    EXPECT_THAT(Joints(kToRows + blanks + "   Joint=2\n\n" + kEnd),
                ElementsAre("\t0,     0,     0,     0", "\t2,     0,     0,     0"));
  }
}

TEST(LinesInABlock, LineOfLessThanThreeCharactersEndsTheBlock) {
  for (const char* line : {"\n", " \n", "x\n", "\r\n", " \r\n", "\r\r\n"}) {
    SCOPED_TRACE(testing::PrintToString(line));
    const ConversionRun run = ConvertBytes(kToRows + "   Joint=1\n" + line + "   Joint=2\n" + kEnd);
    ExpectRefusal(run);
    EXPECT_EQ(run.Failure.Line, 5U);
  }
}

TEST(LinesInABlock, EndInCapitalsEndsTheBlockAndNotTheScan) {
  for (const char* end : {"END\n", "END TABLE DATA\n", "ENDING\n"}) {
    const ConversionRun run =
        ConvertBytes(kToRows + "   Joint=1\n" + end +
                     "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"lb, in, F\"\n" + end);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t1,     0,     0,     0"));
    EXPECT_THAT(run.Lines("*UNIT"), ElementsAre("\tLBF,    IN")) << end;
  }
}

TEST(LinesInABlock, FileInCapitalsEndsTheBlock) {
  EXPECT_THAT(Joints(kToRows + "   Joint=1\nFILE b.s2k\n" + kEnd), SizeIs(1));
  ExpectRefusal(ConvertBytes(kToRows + "   Joint=1\nFILE b.s2k\n   Joint=2\n"));
}

TEST(LinesInABlock, EndFileAndTableInOtherLettersOrBehindABlankAreRows) {
  EXPECT_THAT(Joints(kToRows +
                     "End Joint=1\nend Joint=2\nFile Joint=3\nfile Joint=4\nTable Joint=5\n"
                     "table:  \"frame\" Joint=6\n END Joint=7\n FILE Joint=8\n TABLE Joint=9\n\n" +
                     kEnd),
              SizeIs(9));
}

TEST(LinesInABlock, BlockWithoutRowsIsNoTrouble) {
  const ConversionRun run = ConvertBytes(kToRows + "\n" + kJointTitle + kEnd);
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Section("*NODE"), "");
}

TEST(LinesInABlock, EveryLineOfAnyTableMovesTheProgressBar) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  WriteFile(path, kFileLine + "TABLE:  \"PAINT COLORS\"\n   Color=Red\n   Color=Blue\n\n" +
                      kJointTitle + "   Joint=1   XorR=1 _\n   Y=1\n" + kEnd);
  ScriptedPlatform platform;
  s2k2ngt::CConverter converter(platform);
  ASSERT_EQ(converter.Run(path.c_str()), 0);
  // First line and title count before the first row; the END line of the block is a step too.
  platform.Positions.resize(5);
  EXPECT_THAT(platform.Positions, ElementsAre(2, 3, 5, 6, 7));
  EXPECT_THAT(platform.Messages, SizeIs(1));
}

TEST(BlockWithoutABlankLine, RowsOfTheFirstAreLostAndThoseOfTheSecondAreReadAsTheFirst) {
  const ConversionRun run = ConvertBytes(kToRows +
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
  EXPECT_THAT(Joints(kToRows + "   Joint=1 _\n" + kJointTitle + "   XorR=2   Y=3\n\n" + kEnd),
              ElementsAre("\t0,     2,     3,     0"));
}

TEST(ContinuedRow, PiecesAreJoinedWithNothingBetweenThem) {
  // The numbers at the seams, "1Y=2" and "2Z=3", are read as far as they are numbers.
  EXPECT_THAT(
      Joints(kToRows + "   Joint=5   XorR=1 _\n        Y=2 _\n\t  Z=3\n   Joint=6   XorR=4\n\n" +
             kEnd),
      ElementsAre("\t5,     1,     2,     3", "\t6,     4,     0,     0"));
}

TEST(ContinuedRow, TextAtTheSeamRunsOnIntoTheNextPair) {
  const ConversionRun run =
      ConvertBytes(kToRows + "   Joint=1 _\n   XorR=2   Y=3   Z=4\n\n" + kEnd);
  EXPECT_THAT(run.Lines("*NODE"),
              ElementsAre("\t1,     2,     3,     4 \t\t;Joint=1XorR=2   Y=3   Z=4"));
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_NODE_Renumbering"));
}

TEST(ContinuedRow, BlanksBeforeTheMarkKeepTheTextApart) {
  EXPECT_THAT(Joints(kToRows + "   Joint=1   _\n   XorR=2   Y=3\n\n" + kEnd),
              ElementsAre("\t1,     2,     3,     0"));
}

TEST(ContinuedRow, TextBehindTheFirstMarkIsLost) {
  EXPECT_THAT(Joints(kToRows + "   Joint=1   XorR=2  _ Y=9   Z=9 _ more\n   Z=4\n\n" + kEnd),
              ElementsAre("\t1,     2,     0,     4"));
}

TEST(ContinuedRow, MarkIsFoundInsideAValue) {
  EXPECT_THAT(
      Joints(kToRows + "   Joint=1   Note=north _side   XorR=9\n   XorR=2\n   Joint=3\n\n" + kEnd),
      ElementsAre("\t1,     2,     0,     0", "\t3,     0,     0,     0"));
}

TEST(ContinuedRow, UnderscoreWithoutABlankIsNoMark) {
  for (const char* row : {"   Joint=1   Note=a_b\n", "   Joint=1   Note=a_\n", "   Joint=1\t_\n"}) {
    EXPECT_THAT(Joints(kToRows + row + "   XorR=2\n\n" + kEnd), SizeIs(2)) << row;
  }
}

TEST(ContinuedRow, UnderscoreAtTheHeadOfARowIsNoMark) {
  // The blanks before it are the row's indent.
  EXPECT_THAT(Joints(kToRows + "   _\n   Joint=1\n\n" + kEnd),
              ElementsAre("\t0,     0,     0,     0", "\t1,     0,     0,     0"));
}

TEST(ContinuedRow, RowWithoutItsEndIsLostWithTheBlock) {
  for (const std::string& end : {"\n"s + kEnd, kEnd, "END"s, "FILE b.s2k\n"s + kEnd, "\n"s}) {
    SCOPED_TRACE(end);
    EXPECT_THAT(Joints(kToRows + "   Joint=1\n   Joint=2 _\n" + end),
                ElementsAre("\t1,     0,     0,     0"));
  }
}

TEST(ContinuedRow, RowWithoutItsEndIsNotCarriedIntoTheNextBlock) {
  for (const char* row : {"   XorR=2   Y=3\n\n", "   XorR=2   _\n   Y=3\n\n"}) {
    EXPECT_THAT(Joints(kToRows + "   Joint=1   _\n\n" + kJointTitle + row + kEnd),
                ElementsAre("\t0,     2,     3,     0"));
  }
}

TEST(ContinuedRow, RefusalTellsTheLineOnWhichTheRowBegins) {
  const ConversionRun run = ConvertBytes(kToRows + "   Joint=1   _\n\n" + kJointTitle +
                                         "   Joint=1\n   Joint=2   _\n   CoordType=Polar\n\n");
  EXPECT_EQ(run.Result, -1);
  EXPECT_EQ(run.Failure.Line, 7U);
  EXPECT_EQ(ConvertBytes(kToRows + "   Joint=1   _\n\n" + kJointTitle + "   CoordType=Polar\n\n")
                .Failure.Line,
            6U);
}

TEST(SameTableTwice, RowsOfTheSecondReplaceThoseOfTheSamePositions) {
  EXPECT_THAT(Joints(kToRows + "   Joint=1\n   Joint=2\n\n" + kJointTitle + "   Joint=8\n" + kEnd),
              ElementsAre("\t8,     0,     0,     0", "\t2,     0,     0,     0"));
}

TEST(EndOfTheFile, EndingsThatConvertTheRowsBeforeThem) {
  const std::string rows = kToRows + "   Joint=1\n";
  for (const char* ending :
       {"END TABLE DATA", "END TABLE DATA\n", "END", "END\n", "EN", "X", "\n", " ", "  ", "\r\n",
        "\n\n\n", "\nEND", "\nend table data", "\nabcd", "\nend\nx\n"}) {
    EXPECT_THAT(Joints(rows + ending), ElementsAre("\t1,     0,     0,     0"))
        << testing::PrintToString(ending);
  }
}

TEST(EndOfTheFile, LastLineThatWouldBeReadForeverRefusesTheFile) {
  // A row, a title and a FILE line come again and again when nothing follows them.
  const std::string rows = kToRows + "   Joint=1\n";
  for (const std::string& bytes :
       {rows, rows + "   Joint=2", rows + "   Joint=2 _", rows + "end table data", rows + "  \n",
        rows + "x\r\r\n", rows + "TABLE", rows + "\n" + kJointTitle, rows + "FILE b.s2k",
        rows + "\nFile b.s2k\n", kFileLine, kJointTitle, "Table: lower case\n"s,
        "TABLE:  \"PAINT COLORS\"\n   Color=Red\n"s}) {
    SCOPED_TRACE(bytes);
    ExpectRefusal(ConvertBytes(bytes));
  }
}

TEST(EndOfTheFile, BlockBeforeALastLineThatWouldBeReadForeverIsTakenIn) {
  const ConversionRun run =
      ConvertBytes(kFileLine + "TABLE:  \"AREA STIFFNESS MODIFIERS\"\n   Area=1\nFILE b.s2k");
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_AREA_Stif_Not_Convert", "IDS_S2KV8_Not_Convert"));
}

TEST(EndOfTheFile, ForeignLastLineIsReadUntilItRefusesTheFile) {
  const ConversionRun run = ConvertBytes("Dear reader");
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_DATA_Not_Convert",
                                        "IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_Not_Convert"));
  EXPECT_THAT(ConvertBytes(kFileLine + "Dear reader\n").Messages,
              ElementsAre("IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_DATA_Not_Convert",
                          "IDS_S2KV8_Not_Convert"));
}

TEST(EndOfTheFile, BlankLinesAloneAreAnEmptyModel) {
  for (const std::string& bytes : {""s, std::string(3, '\n'), std::string(10, '\n'),
                                   std::string(11, '\n'), std::string(11, '\n') + "not read\n"}) {
    const ConversionRun run = ConvertBytes(bytes);
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, IsEmpty());
    EXPECT_EQ(run.Output.substr(run.Output.find("*VERSION")),
              "*VERSION\n5.8.1\n\n*UNIT    ; Unit System\n; FORCE, LENGTH\n\tTONF,     M\n\n\n\n"
              "*ENDDATA");
  }
}

TEST(HostileInput, FileOfOneByteIsAnEmptyModel) {
  for (int code = 0; code < 256; ++code) {
    const ConversionRun run = ConvertBytes(std::string(1, static_cast<char>(code)));
    EXPECT_EQ(run.Result, 0) << code;
    EXPECT_THAT(run.Messages, IsEmpty()) << code;
    EXPECT_TRUE(run.Output.ends_with("*ENDDATA")) << code;
  }
}

TEST(HostileInput, NulBytesAloneAreAnEmptyModel) {
  const ConversionRun run = ConvertBytes(std::string(10'000, '\0'));
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
}

TEST(HostileInput, NulByteEndsTheTextOfItsLine) {
  EXPECT_THAT(Joints(kToRows + "   Joint=1   XorR=2\0   Y=3\n   Joint=4\n"s + "\n" + kEnd),
              ElementsAre("\t1,     2,     0,     0", "\t4,     0,     0,     0"));
  // The two characters before the byte are too few for a row, even with the newline behind it.
  EXPECT_THAT(Joints(kToRows + "   Joint=1\n  \0\n"s + kEnd), SizeIs(1));
}

TEST(HostileInput, BinaryFileIsRefusedAsForeign) {
  // A line from byte 11 on, up to the zero byte, three times passed over.
  std::string bytes;
  for (int code = 0; code < 5 * 256; ++code) {
    bytes += static_cast<char>(code % 256);
  }
  const ConversionRun run = ConvertBytes(bytes);
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_DATA_Not_Convert",
                                        "IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_Not_Convert"));
}

TEST(HostileInput, ControlZDoesNotEndTheFile) {
  EXPECT_THAT(Joints(kToRows + "   Joint=1   Note=\x1A\n   Joint=2\n\n" + kEnd), SizeIs(2));
}

TEST(HostileInput, LinesEndedByReturnAloneAreOneLine) {
  ExpectRefusal(ConvertBytes("File model.s2k\rTABLE:  \"JOINT COORDINATES\"\r   Joint=1\r\rEND\r"));
}

TEST(HostileInput, LinesEndedByReturnAndNewlineAreReadAsThoseOfNewlinesAlone) {
  const ConversionRun run = ConvertBytes(
      "File model.s2k\r\nTABLE:  \"JOINT COORDINATES\"\r\n   Joint=1   XorR=2  _\r\n   Z=3\r\n"
      "   Joint=A\r\n\r\nEND TABLE DATA\r\n");
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t1,     2,     0,     3 \t\t;Joint=1",
                                              "\t2,     0,     0,     0 \t\t;Joint=A"));
  EXPECT_EQ(run.Output.find('\r'), std::string::npos);
}

/// A row of a joint at X = 2 that is `length` characters long, without its newline.
std::string LongRow(std::size_t length) {
  std::string row = "   Joint=1   XorR=2   Note=";
  row.resize(length, 'n');
  return row;
}

TEST(LongLines, RowOf498CharactersIsOneRow) {
  for (const char* newline : {"\n", "\r\n"}) {
    for (const std::size_t length : {497U, 498U}) {
      EXPECT_THAT(Joints(kToRows + LongRow(length) + newline + "   Joint=2\n\n" + kEnd),
                  ElementsAre("\t1,     2,     0,     0", "\t2,     0,     0,     0"));
    }
  }
}

TEST(LongLines, RestOfARowOf499Or500CharactersEndsTheBlock) {
  for (const char* newline : {"\n", "\r\n"}) {
    for (const std::size_t length : {499U, 500U}) {
      const std::string rows = kToRows + LongRow(length) + newline;
      EXPECT_THAT(Joints(rows + kEnd), ElementsAre("\t1,     2,     0,     0"));
      ExpectRefusal(ConvertBytes(rows + "   Joint=2\n\n" + kEnd));
    }
  }
}

TEST(LongLines, RestOfARowOf501CharactersIsARow) {
  for (const char* newline : {"\n", "\r\n"}) {
    EXPECT_THAT(Joints(kToRows + LongRow(501) + newline + "   Joint=2\n\n" + kEnd),
                ElementsAre("\t1,     2,     0,     0", "\t0,     0,     0,     0",
                            "\t2,     0,     0,     0"));
  }
}

TEST(LongLines, RowOf100000CharactersIsARowForEachRead) {
  // 200 pieces of 499 characters, and 200 characters.
  const std::vector<std::string> joints =
      Joints(kToRows + LongRow(100'000) + "\n   Joint=2\n\n" + kEnd);
  ASSERT_THAT(joints, SizeIs(202));
  EXPECT_EQ(joints.front(), "\t1,     2,     0,     0");
  EXPECT_EQ(joints[200], "\t0,     0,     0,     0");
  EXPECT_EQ(joints.back(), "\t2,     0,     0,     0");
}

TEST(LongLines, LineOf100000CharactersBetweenBlocksIsForeign) {
  EXPECT_THAT(ConvertBytes(std::string(100'000, 'x') + "\n" + kEnd).Messages,
              ElementsAre("IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_DATA_Not_Convert",
                          "IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_Not_Convert"));
  EXPECT_THAT(ConvertBytes("File " + std::string(100'000, 'x') + "\n" + kEnd).Messages,
              ElementsAre("IDS_S2KV8_DATA_Not_Convert", "IDS_S2KV8_DATA_Not_Convert",
                          "IDS_S2KV8_Not_Convert"));
}

TEST(LongLines, NewlineOfATitleOf499CharactersEndsItsBlock) {
  std::string title = "TABLE:  \"JOINT COORDINATES\"";
  title.resize(499, ' ');
  EXPECT_EQ(ConvertBytes(kFileLine + title + "\n" + kEnd).Result, 0);
  ExpectRefusal(ConvertBytes(kFileLine + "FILE\n" + title + "\n   Joint=1\n\n" + kEnd));
  title.pop_back();
  EXPECT_THAT(Joints(kFileLine + title + "\n   Joint=1\n\n" + kEnd), SizeIs(1));
}

}  // namespace
