#include "source/line_reader.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;

/// A line with its length, which counts the newline.
struct ReadLine {
  std::string Content;
  std::size_t Length;

  bool operator==(const ReadLine&) const = default;
};

void PrintTo(const ReadLine& line, std::ostream* out) {
  *out << testing::PrintToString(line.Content) << " of length " << line.Length;
}

std::vector<ReadLine> AllLines(const std::string& image) {
  LineReader reader(image);
  std::vector<ReadLine> lines;
  while (reader.Next()) {
    lines.push_back({std::string(reader.Line()), reader.Length()});
  }
  return lines;
}

TEST(LineReader, EmptyFileHasNoLineAndAnEmptyBuffer) {
  LineReader reader("");
  EXPECT_FALSE(reader.Next());
  EXPECT_EQ(reader.Line(), "");
  EXPECT_EQ(reader.Length(), 0U);
}

TEST(LineReader, NewlineCountsInTheLengthAndIsNotInTheText) {
  EXPECT_THAT(AllLines("ab\n\ncd\n"),
              ElementsAre(ReadLine{"ab", 3}, ReadLine{"", 1}, ReadLine{"cd", 3}));
}

TEST(LineReader, LastLineWithoutANewlineIsShorterByOne) {
  EXPECT_THAT(AllLines("END\nEND"), ElementsAre(ReadLine{"END", 4}, ReadLine{"END", 3}));
}

TEST(LineReader, BlanksAroundTheTextAreKept) {
  EXPECT_THAT(AllLines("  ab \t\n"), ElementsAre(ReadLine{"  ab \t", 7}));
}

TEST(LineReader, ReturnAndNewlineAreOneNewline) {
  EXPECT_THAT(AllLines("ab\r\n\r\ncd"),
              ElementsAre(ReadLine{"ab", 3}, ReadLine{"", 1}, ReadLine{"cd", 2}));
}

TEST(LineReader, OnlyTheReturnRightBeforeANewlineBelongsToIt) {
  EXPECT_THAT(AllLines("ab\r\r\n"), ElementsAre(ReadLine{"ab\r", 4}));
}

TEST(LineReader, LoneReturnIsAnOrdinaryCharacter) {
  EXPECT_THAT(AllLines("ab\rcd\nef\r"), ElementsAre(ReadLine{"ab\rcd", 6}, ReadLine{"ef\r", 3}));
}

TEST(LineReader, ControlZIsAnOrdinaryCharacter) {
  EXPECT_THAT(AllLines("ab\x1A\ncd\n"), ElementsAre(ReadLine{"ab\x1A", 4}, ReadLine{"cd", 3}));
}

TEST(LineReader, BytesAbove127PassThrough) {
  EXPECT_THAT(AllLines("\xEF\xBB\xBF\x80\xFF\n"), ElementsAre(ReadLine{"\xEF\xBB\xBF\x80\xFF", 6}));
}

TEST(LineReader, NulByteEndsTheTextOfItsLineAndHidesTheNewline) {
  EXPECT_THAT(AllLines("ab\0cd\nef\n\0\n"s),
              ElementsAre(ReadLine{"ab", 2}, ReadLine{"ef", 3}, ReadLine{"", 0}));
}

TEST(LineReader, LineOf498CharactersAndItsNewlineAreOneRead) {
  const std::string text(498, 'x');
  for (const char* newline : {"\n", "\r\n"}) {
    EXPECT_THAT(AllLines(text + newline + "ab\n"),
                ElementsAre(ReadLine{text, 499}, ReadLine{"ab", 3}));
  }
}

TEST(LineReader, NewlineOfALineOf499CharactersIsALineOfItsOwn) {
  const std::string text(499, 'x');
  for (const char* newline : {"\n", "\r\n"}) {
    EXPECT_THAT(AllLines(text + newline + "ab\n"),
                ElementsAre(ReadLine{text, 499}, ReadLine{"", 1}, ReadLine{"ab", 3}));
  }
}

TEST(LineReader, LineOf500CharactersLeavesOneForTheNextRead) {
  const std::string text(499, 'x');
  for (const char* newline : {"\n", "\r\n"}) {
    EXPECT_THAT(AllLines(text + "y" + newline + "ab\n"),
                ElementsAre(ReadLine{text, 499}, ReadLine{"y", 2}, ReadLine{"ab", 3}));
  }
}

TEST(LineReader, LoneReturnCountsAsACharacterOfALongLine) {
  const std::string text(498, 'x');
  EXPECT_THAT(AllLines(text + "\rab\n"),
              ElementsAre(ReadLine{text + "\r", 499}, ReadLine{"ab", 3}));
}

TEST(LineReader, LongLineWithoutANewlineEndsWithTheFile) {
  const std::string text(499, 'x');
  EXPECT_THAT(AllLines(text), ElementsAre(ReadLine{text, 499}));
  EXPECT_THAT(AllLines(text + "y"), ElementsAre(ReadLine{text, 499}, ReadLine{"y", 1}));
}

TEST(LineReader, VeryLongLineArrivesInPiecesOf499Characters) {
  // 100,000 are 200 pieces of 499 and 200 characters.
  const std::vector<ReadLine> lines = AllLines(std::string(100'000, 'x') + "\n");
  ASSERT_EQ(lines.size(), 201U);
  EXPECT_EQ(lines[0], (ReadLine{std::string(499, 'x'), 499}));
  EXPECT_EQ(lines[199], (ReadLine{std::string(499, 'x'), 499}));
  EXPECT_EQ(lines[200], (ReadLine{std::string(200, 'x'), 201}));
}

TEST(LineReader, PieceBehindANulByteOfALongLineIsReadAgain) {
  const std::string image = "ab\0"s + std::string(496, 'x') + "cd\n";
  EXPECT_THAT(AllLines(image), ElementsAre(ReadLine{"ab", 2}, ReadLine{"cd", 3}));
}

TEST(LineReader, BufferKeepsTheLastLineAtTheEndOfTheFile) {
  LineReader reader("first\nlast\n");
  EXPECT_TRUE(reader.Next());
  EXPECT_TRUE(reader.Next());
  for (int attempt = 0; attempt < 3; ++attempt) {
    EXPECT_FALSE(reader.Next());
    EXPECT_EQ(reader.Line(), "last");
    EXPECT_EQ(reader.Length(), 5U);
    EXPECT_EQ(reader.LineNumber(), 2U);
  }
}

TEST(LineReader, BufferKeepsTheLastPieceOfALongLine) {
  const std::string image = std::string(499, 'x') + "tail";
  LineReader reader(image);
  EXPECT_TRUE(reader.Next());
  EXPECT_TRUE(reader.Next());
  EXPECT_FALSE(reader.Next());
  EXPECT_EQ(reader.Line(), "tail");
}

TEST(LineReader, LineNumbersAreThoseOfAnEditor) {
  const std::string image = "one\n" + std::string(1200, 'x') + "\r\nthree\n";
  LineReader reader(image);
  std::vector<std::uint64_t> numbers;
  while (reader.Next()) {
    numbers.push_back(reader.LineNumber());
  }
  EXPECT_THAT(numbers, ElementsAre(1, 2, 2, 2, 3));
}

TEST(CountLines, CountsALineOfEachRead) {
  struct Case {
    std::string Image;
    std::uint64_t Count;
  };
  const Case cases[] = {
      {"", 0},         {"a", 1},          {"\n", 1},   {"a\n", 1},       {"a\nb", 2},
      {"a\n\nb\n", 3}, {"a\r\nb\r\n", 2}, {"a\rb", 1}, {"\0\n\0\n"s, 2},
  };
  for (const Case& file : cases) {
    EXPECT_EQ(CountLines(file.Image), file.Count) << testing::PrintToString(file.Image);
  }
}

TEST(CountLines, LineOfMoreThan500CharactersCountsAsSeveral) {
  const auto count = [](std::size_t length, const char* newline) {
    return CountLines(std::string(length, 'x') + newline);
  };
  for (const char* newline : {"\n", "\r\n"}) {
    EXPECT_EQ(count(498, newline), 1U);
    EXPECT_EQ(count(499, newline), 1U);
    EXPECT_EQ(count(500, newline), 2U);
    EXPECT_EQ(count(999, newline), 2U);
    EXPECT_EQ(count(1000, newline), 3U);
    EXPECT_EQ(count(100'000, newline), 201U);
  }
  EXPECT_EQ(count(500, ""), 1U);
  EXPECT_EQ(count(501, ""), 2U);
  EXPECT_EQ(count(1000, ""), 2U);
}

}  // namespace
}  // namespace s2k2ngt
