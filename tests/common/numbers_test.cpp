#include "common/numbers.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

std::string Formatted(double value) {
  char text[kRealSize];
  return {text, FormatReal(text, value)};
}

std::string PrintedByC(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

TEST(ParseReal, ReadsWhatAtofReads) {
  // Among them what atof makes nothing or half of.
  for (const char* text :
       {"",
        " ",
        "0",
        "-0",
        "+5",
        "++5",
        "+-5",
        "-+5",
        "--5",
        "1.5E-3",
        "1e5x",
        "1e",
        "1e+",
        "1.",
        ".5",
        ".",
        "-.5e1",
        "5,3",
        "3.5 4",
        " \t\n\v\f\r7",
        "0x1F",
        "0xa",
        "0xf",
        "0xg",
        "0x`",
        "0xA",
        "0xF",
        "0xG",
        "0x@",
        "0x:",
        "0x/",
        "0x.g",
        "0xg8",
        "0X1p4",
        "0x",
        "0x.8",
        "0x.",
        "0x1p",
        "0x-1",
        "-0x1.8p1",
        "inf",
        "-inf",
        "INFINITY",
        "infinite",
        "in",
        "1e308",
        "1e309",
        "-1e309",
        "1e-320",
        "1e-400",
        "-1e-400",
        "0e999",
        "0.0e-999",
        "1e99999999999999999999",
        "1e-99999999999999999999",
        "0x1p2000",
        "0x1p-2000",
        "0x0p99999",
        "123456789012345678901234567890",
        "00012",
        "2.2250738585072014e-308",
        "0.00000000000000000000000000000000000000000000000000000000000000000000000000001",
        "12e-3e4",
        "1_000",
        "D5",
        "e5",
        "-"}) {
    const double expected = std::atof(text);
    const double value = ParseReal(text);
    EXPECT_EQ(value, expected) << text;
    EXPECT_EQ(std::signbit(value), std::signbit(expected)) << text;
  }
}

TEST(ParseReal, ReadsTheLargestNumberWrittenInFull) {
  char text[400];
  std::snprintf(text, sizeof text, "%.3f", std::numeric_limits<double>::max());
  EXPECT_EQ(ParseReal(text), std::numeric_limits<double>::max());
}

TEST(ParseReal, LongNumbersBeyondTheRangeGoToTheirSide) {
  const std::string zeros(400, '0');
  EXPECT_EQ(ParseReal("1" + zeros), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseReal("-1" + zeros + ".5"), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseReal("0." + zeros + "1"), 0.0);
  EXPECT_EQ(ParseReal("0." + zeros + "1e500"), 1e99);
  EXPECT_EQ(ParseReal("1" + zeros + "e-500"), 1e-100);
  EXPECT_EQ(ParseReal("0." + zeros + "1e900"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ParseReal("1" + zeros + "e-900"), 0.0);
}

TEST(ParseReal, ReadsNotANumber) {
  EXPECT_TRUE(std::isnan(ParseReal("nan")));
  EXPECT_TRUE(std::isnan(ParseReal("-NAN")));
  EXPECT_TRUE(std::isnan(ParseReal("nan(5)")));
}

TEST(ParseReal, AgreesWithAtofOnRandomNumbers) {
  std::mt19937_64 random(1);
  std::uniform_int_distribution<int> exponent(-330, 320);
  std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
  for (int count = 0; count < 20'000; ++count) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*ge%d", count % 18, mantissa(random), exponent(random));
    ASSERT_EQ(ParseReal(text), std::atof(text)) << text;
  }
}

TEST(ParseWholeReal, TakesANumberToItsLastCharacter) {
  for (const char* text : {"0",
                           "-0",
                           "7",
                           "-7",
                           "5.",
                           ".5",
                           "-.5",
                           "-5.",
                           "007",
                           "12.50",
                           "0.1",
                           "-0.3",
                           "123456.789",
                           "1.23456789012345",
                           "12345678901234",
                           "123456789012345",
                           "1234567890123456",
                           "12345678901234567",
                           "0.00000000000001",
                           "0.000000000000001",
                           "0.3000000000000000444",
                           "9007199254740993",
                           "-999999999999999",
                           "1e5",
                           "-2.5E-3",
                           "1.7976931348623157e308"}) {
    double value = 4.25;
    EXPECT_TRUE(ParseWholeReal(text, value)) << text;
    EXPECT_EQ(value, std::atof(text)) << text;
    EXPECT_EQ(std::signbit(value), std::signbit(std::atof(text))) << text;
  }
}

TEST(ParseWholeReal, LeavesEverythingElse) {
  for (const char* text : {"", "-", ".", "-.", "+5", " 5", "5 ", "1.2.3", "--1", "0x10", "1,5",
                           "\"5\"", "5m", "1e999", "e5"}) {
    double value = 4.25;
    EXPECT_FALSE(ParseWholeReal(text, value)) << text;
    EXPECT_EQ(value, 4.25) << text;
  }
}

TEST(ParseWholeReal, AgreesWithAtofOnRandomDigits) {
  std::mt19937_64 random(5);
  for (int count = 0; count < 100'000; ++count) {
    std::string text = std::to_string(random()).substr(0, 1 + random() % 18);
    text.insert(random() % (text.size() + 1), ".");
    text.insert(0, random() % 2 == 0 ? "-" : "");
    double value = 0.0;
    ASSERT_TRUE(ParseWholeReal(text, value)) << text;
    ASSERT_EQ(value, std::atof(text.c_str())) << text;
  }
}

TEST(ParseInteger, ReadsWhatAtoiReadsAndKeepsTheNearestOfWhatDoesNotFit) {
  EXPECT_EQ(ParseInteger("12"), 12);
  EXPECT_EQ(ParseInteger(" -12x"), -12);
  EXPECT_EQ(ParseInteger("+7"), 7);
  EXPECT_EQ(ParseInteger("A1"), 0);
  EXPECT_EQ(ParseInteger(""), 0);
  EXPECT_EQ(ParseInteger("-"), 0);
  EXPECT_EQ(ParseInteger("--1"), 0);
  EXPECT_EQ(ParseInteger("3.9"), 3);
  EXPECT_EQ(ParseInteger("2147483647"), 2147483647);
  EXPECT_EQ(ParseInteger("2147483648"), 2147483647);
  EXPECT_EQ(ParseInteger("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ParseInteger("-99999999999999999999"), std::numeric_limits<std::int32_t>::min());
}

TEST(TruncateToInteger, DropsTheFractionAndKeepsTheNearestOfWhatDoesNotFit) {
  EXPECT_EQ(TruncateToInteger(2.9), 2);
  EXPECT_EQ(TruncateToInteger(-2.9), -2);
  EXPECT_EQ(TruncateToInteger(1e20), 2147483647);
  EXPECT_EQ(TruncateToInteger(-1e20), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(TruncateToInteger(std::numeric_limits<double>::infinity()), 2147483647);
  EXPECT_EQ(TruncateToInteger(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(FormatReal, PrintsWhatPrintfPrints) {
  for (const double value : {0.0,
                             -0.0,
                             1.0,
                             -1.0,
                             3.5,
                             1.2e6,
                             123456.0,
                             999999.0,
                             999999.5,
                             1e6,
                             1e-4,
                             1e-5,
                             0.00012345678,
                             123456.5,
                             1234567.0,
                             100000.0,
                             1e100,
                             -1e-100,
                             1e-320,
                             1.0 / 3.0,
                             0.1 + 0.2,
                             9.99999e5,
                             9.999995e-5,
                             2.5e-7,
                             std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::max(),
                             std::numeric_limits<double>::denorm_min()}) {
    EXPECT_EQ(Formatted(value), PrintedByC(value));
  }
}

TEST(FormatReal, PrintsEveryNotANumberTheSame) {
  EXPECT_EQ(Formatted(std::numeric_limits<double>::quiet_NaN()), "nan");
  EXPECT_EQ(Formatted(-std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(FormatReal, AgreesWithPrintfOnRandomBits) {
  std::mt19937_64 random(2);
  for (int count = 0; count < 50'000; ++count) {
    const std::uint64_t bits = random();
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isnan(value)) {
      ASSERT_EQ(Formatted(value), PrintedByC(value));
    }
  }
}

TEST(FormatReal, AgreesWithPrintfOnNumbersOfCommonSize) {
  std::mt19937_64 random(3);
  std::uniform_real_distribution<double> exponent(-5.0, 7.0);
  for (int count = 0; count < 100'000; ++count) {
    const double value = std::pow(10.0, exponent(random)) * (count % 2 == 0 ? 1 : -1);
    ASSERT_EQ(Formatted(value), PrintedByC(value));
  }
}

TEST(FormatReal, RoundsAsPrintfWhereTheSeventhDigitIsFive) {
  std::mt19937_64 random(4);
  for (int count = 0; count < 100'000; ++count) {
    // 6 digits and a 5, with the point in any place, and the numbers next to it.
    const double digits = static_cast<double>(random() % 900'000 + 100'000) * 10 + 5;
    const double value = digits * std::pow(10.0, static_cast<int>(random() % 14) - 12);
    for (const double near : {value, std::nextafter(value, 0.0), std::nextafter(value, 1e300)}) {
      ASSERT_EQ(Formatted(near), PrintedByC(near));
    }
  }
}

TEST(FormatReal, AgreesWithPrintfBesideThePowersOfTen) {
  for (int power = -6; power <= 8; ++power) {
    double value = std::pow(10.0, power);
    for (int step = 0; step < 50; ++step) {
      value = std::nextafter(value, 0.0);
    }
    for (int step = 0; step < 100; ++step) {
      ASSERT_EQ(Formatted(value), PrintedByC(value));
      value = std::nextafter(value, 1e300);
    }
    for (const double part : {0.999999, 0.9999995, 0.99999949, 0.99999951}) {
      ASSERT_EQ(Formatted(part * std::pow(10.0, power)), PrintedByC(part * std::pow(10.0, power)));
    }
  }
}

TEST(FormatInteger, PrintsTheLimits) {
  char text[kIntegerSize];
  EXPECT_EQ(std::string(text, FormatInteger(text, std::numeric_limits<std::int32_t>::min())),
            "-2147483648");
  EXPECT_EQ(std::string(text, FormatInteger(text, 0)), "0");
}

}  // namespace
}  // namespace s2k2ngt
