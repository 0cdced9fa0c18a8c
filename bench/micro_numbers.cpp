// Reading and printing of a number, over numbers of three kinds.
#include "common/numbers.h"
#include "micro.h"
#include "pieces.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace s2k2ngt::micro {
namespace {

constexpr std::size_t kNumbers = 10'000;

std::string TextOf(double value) {
  std::string text;
  AppendPiece(text, value);
  return text;
}

/// With up to three digits behind the point, as the coordinates of most models.
std::string Coordinate(Random& random) {
  constexpr std::array<double, 4> kUnits = {1, 4, 100, 1000};
  const double ticks = static_cast<double>(random.Below(100'000)) - 30'000.0;
  return TextOf(ticks / kUnits[random.Below(kUnits.size())]);
}

std::string Integer(Random& random) {
  std::string text;
  AppendPiece(text, random.Below(400'000) + 1);
  return text;
}

/// With 15 to 17 digits, as what a program has computed.
std::string LongNumber(Random& random) {
  const double value = (random.Below(1U << 30U) + 0.1) / (1U << 20U) - 500;
  std::array<char, 32> text{};
  const int digits = 15 + static_cast<int>(random.Below(3));
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value,
                                     std::chars_format::general, digits)
                           .ptr};
}

struct Numbers {
  explicit Numbers(std::string (*makeText)(Random&)) {
    Random random;
    for (std::size_t i = 0; i < kNumbers; ++i) {
      Texts.push_back(makeText(random));
      Values.push_back(std::strtod(Texts.back().c_str(), nullptr));
      Integers.push_back(TruncateToInteger(Values.back()));
      Bytes += Texts.back().size();
    }
  }
  std::vector<std::string> Texts;
  std::vector<double> Values;
  std::vector<std::int32_t> Integers;
  std::size_t Bytes = 0;
};
using SharedNumbers = std::shared_ptr<const Numbers>;

/// A way that makes a number of each text.
template <class Parse>
auto ParseAll(const char* name, const SharedNumbers& numbers, Parse parse) {
  return Way{name, [numbers, parse](auto use) {
               for (const std::string& text : numbers->Texts) {
                 use(parse(text));
               }
             }};
}

/// A way that makes a text of each value: `format` writes it from the beginning of a buffer and
/// returns its end.
template <auto Values, class Format>
auto FormatAll(const char* name, const SharedNumbers& numbers, Format format) {
  return Way{name, [numbers, format](auto use) {
               std::array<char, 32> text{};
               for (const auto value : (*numbers).*Values) {
                 const char* const end = format(text, value);
                 use(Text(text.data(), static_cast<std::size_t>(end - text.data())));
               }
             }};
}

void AddReals(const std::string& kind, const SharedNumbers& numbers) {
  using Buffer = std::array<char, 32>;
  Compare("parse/" + kind, {kNumbers, numbers->Bytes},
          ParseAll("ParseWholeReal", numbers,
                   [](const std::string& text) {
                     double value = 0.0;
                     ParseWholeReal(text, value);
                     return value;
                   }),
          ParseAll("ParseReal", numbers, [](const std::string& text) { return ParseReal(text); }),
          ParseAll("strtod", numbers,
                   [](const std::string& text) { return std::strtod(text.c_str(), nullptr); }),
          ParseAll("from_chars", numbers, [](const std::string& text) {
            double value = 0.0;
            std::from_chars(text.data(), text.data() + text.size(), value);
            return value;
          }));
  Compare("format/" + kind, {kNumbers},
          FormatAll<&Numbers::Values>(
              "FormatReal", numbers,
              [](Buffer& text, double value) { return FormatReal(text.data(), value); }),
          FormatAll<&Numbers::Values>("snprintf", numbers,
                                      [](Buffer& text, double value) {
                                        return text.data() +
                                               std::snprintf(text.data(), text.size(), "%g", value);
                                      }),
          FormatAll<&Numbers::Values>("to_chars", numbers, [](Buffer& text, double value) {
            return std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::general, 6)
                .ptr;
          }));
}

void AddIntegers(const SharedNumbers& numbers) {
  using Buffer = std::array<char, 32>;
  Compare("format/int32", {kNumbers},
          FormatAll<&Numbers::Integers>(
              "FormatInteger", numbers,
              [](Buffer& text, std::int32_t value) { return FormatInteger(text.data(), value); }),
          FormatAll<&Numbers::Integers>("snprintf", numbers, [](Buffer& text, std::int32_t value) {
            return text.data() + std::snprintf(text.data(), text.size(), "%d", value);
          }));
}

}  // namespace

void AddNumbers() {
  AddReals("coordinates", std::make_shared<const Numbers>(Coordinate));
  AddReals("integers", std::make_shared<const Numbers>(Integer));
  AddReals("15-17_digits", std::make_shared<const Numbers>(LongNumber));
  AddIntegers(std::make_shared<const Numbers>(Integer));
}

}  // namespace s2k2ngt::micro
