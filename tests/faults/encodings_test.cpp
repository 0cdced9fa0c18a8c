// One model in every encoding that an editor or an export may leave it in, with every kind of line
// end, under hosts of several locales.
#include "support/conversion_run.h"
#include "support/host_locale.h"

#include <clocale>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kForeignLine = "IDS_S2KV8_DATA_Not_Convert";
constexpr const char* kRefused = "IDS_S2KV8_Not_Convert";

/// A model of two joints and a frame, with newlines; it is shorter than the longest line.
std::string Model(const std::string& label) {
  return "File tower.s2k was saved\n \n"
         "Table:  \"Program Control\"\n   CurrUnits=\"kip, in, F\"\n \n"
         "Table:  \"Joint Coordinates\"\n"
         "   Joint=" +
         label +
         "1   XorR=1.25   Z=-0.5\n"
         "   Joint=" +
         label +
         "2   XorR=2.5E-7\n \n"
         "Table:  \"Connectivity - Frame\"\n"
         "   Frame=" +
         label + "3   JointI=" + label + "1   JointJ=" + label +
         "2\n \n"
         "END TABLE DATA\n";
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}

/// The text with each second newline as the others are on Windows.
std::string MixedLineEnds(const std::string& text) {
  std::string mixed;
  bool withReturn = false;
  for (const char character : text) {
    if (character == '\n') {
      mixed += withReturn ? "\r" : "";
      withReturn = !withReturn;
    }
    mixed += character;
  }
  return mixed;
}

std::vector<std::string> WithLinesEndedByNewlines(const std::string& text) {
  return {text, Replaced(text, "\n", "\r\n"), MixedLineEnds(text)};
}

std::string LinesEndedByReturns(const std::string& text) { return Replaced(text, "\n", "\r"); }

/// Each byte as a character of two bytes, the lower or the higher one first.
std::string Utf16(const std::string& text, bool lowerFirst) {
  std::string bytes;
  for (const char byte : text) {
    bytes += lowerFirst ? std::string{byte, '\0'} : std::string{'\0', byte};
  }
  return bytes;
}

void ExpectConverted(const ConversionRun& run, const std::string& label) {
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Lines("*UNIT"), ElementsAre("\tKIP,    IN"));
  EXPECT_THAT(run.Lines("*NODE"),
              ElementsAre("\t1,  1.25,     0,  -0.5 \t\t;Joint=" + label + "1",
                          "\t2, 2.5e-07,     0,     0 \t\t;Joint=" + label + "2"));
  EXPECT_THAT(
      run.Lines("*ELEMENT"),
      ElementsAre("\t1,  BEAM,     0,     0,     1,     2,     0\t\t;Frame=" + label + "3"));
  EXPECT_EQ(run.Output.find('\r'), std::string::npos);
}

/// Where nothing in the file is known, the output has its head and its end.
void ExpectEmptyModel(const ConversionRun& run) {
  EXPECT_EQ(run.Result, 0);
  EXPECT_THAT(run.Messages, IsEmpty());
  EXPECT_THAT(run.Lines("*UNIT"), ElementsAre("\tTONF,     M"));
  EXPECT_EQ(run.Section("*NODE"), "");
  EXPECT_TRUE(run.Output.ends_with("*ENDDATA"));
}

class Encodings : public testing::TestWithParam<const char*> {
 private:
  HostLocale m_Locale{GetParam()};
};

TEST_P(Encodings, HostHasItsLocale) {
  ASSERT_STREQ(std::setlocale(LC_ALL, nullptr), GetParam());
  EXPECT_EQ(*std::localeconv()->decimal_point, ',');
}

TEST_P(Encodings, LabelsPassThroughByteByByte) {
  // Plain, a capital and a small letter of UTF-8, the same of Latin 1, and bytes of no text.
  for (const char* label : {"Col-", "\xC3\x9C\xC3\xBC-", "\xDC\xFC-", "\x80\x9F\xA0\xFF-"}) {
    SCOPED_TRACE(testing::PrintToString(label));
    for (const std::string& file : WithLinesEndedByNewlines(Model(label))) {
      const ConversionRun run = ConvertBytes(file);
      ExpectConverted(run, label);
      EXPECT_THAT(run.Messages,
                  ElementsAre("IDS_S2KV8_NODE_Renumbering", "IDS_S2KV8_ELEM_Renumbering",
                              "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
    }
  }
}

TEST_P(Encodings, MarkOfUtf8MakesTheFirstLineAForeignOne) {
  for (const std::string& file : WithLinesEndedByNewlines("\xEF\xBB\xBF" + Model("Col-"))) {
    const ConversionRun run = ConvertBytes(file);
    ExpectConverted(run, "Col-");
    EXPECT_THAT(run.Messages,
                ElementsAre(kForeignLine, "IDS_S2KV8_NODE_Renumbering",
                            "IDS_S2KV8_ELEM_Renumbering", "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
  }
}

TEST_P(Encodings, NulBytesAtTheEndsOfLinesChangeNothing) {
  for (const std::string& file : WithLinesEndedByNewlines(Model("Col-"))) {
    ExpectConverted(ConvertBytes(Replaced(file, "\n", std::string("\0\n", 2))), "Col-");
  }
}

TEST_P(Encodings, ReturnBetweenTwoRowsMakesOneOfThem) {
  const ConversionRun run = ConvertBytes(Replaced(Model("Col-"), "-0.5\n", "-0.5\r"));
  EXPECT_THAT(run.Lines("*NODE"), ElementsAre("\t1,  1.25,     0,  -0.5 \t\t;Joint=Col-1"));
}

TEST_P(Encodings, FileOfReturnsAloneIsOneLineThatIsReadForever) {
  for (const char* label : {"Col-", "\xC3\x9C\xC3\xBC-", "\xDC\xFC-"}) {
    const ConversionRun run = ConvertBytes(LinesEndedByReturns(Model(label)));
    EXPECT_EQ(run.Result, -1);
    EXPECT_THAT(run.Messages, ElementsAre(kRefused));
    EXPECT_FALSE(run.HasOutput);
  }
}

TEST_P(Encodings, FileOfReturnsAloneWithAMarkIsAForeignLineUntilItIsRefused) {
  const ConversionRun run = ConvertBytes("\xEF\xBB\xBF" + LinesEndedByReturns(Model("Col-")));
  EXPECT_EQ(run.Result, -1);
  EXPECT_THAT(run.Messages, ElementsAre(kForeignLine, kForeignLine, kForeignLine, kRefused));
  EXPECT_FALSE(run.HasOutput);
}

TEST_P(Encodings, Utf16TextIsOfShortLinesAndAnEmptyModel) {
  std::vector<std::string> files = WithLinesEndedByNewlines(Model("Col-"));
  files.push_back(LinesEndedByReturns(Model("Col-")));
  for (const std::string& file : files) {
    ExpectEmptyModel(ConvertBytes(Utf16(file, true)));
    ExpectEmptyModel(ConvertBytes(Utf16(file, false)));
    ExpectEmptyModel(ConvertBytes("\xFF\xFE" + Utf16(file, true)));
    ExpectEmptyModel(ConvertBytes("\xFE\xFF" + Utf16(file, false)));
  }
}

INSTANTIATE_TEST_SUITE_P(OfHosts, Encodings, testing::Values("de_DE.UTF-8", "tr_TR.UTF-8"),
                         [](const auto& host) { return std::string(host.param, 2); });

}  // namespace
