#include "common/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace s2k2ngt {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

/// Takes a sign off the front; true when it was a minus.
bool TakeSign(Text& text) {
  const bool minus = text.starts_with('-');
  if (minus || text.starts_with('+')) {
    text.remove_prefix(1);
  }
  return minus;
}

bool IsHexDigit(char c) {
  return IsDigitChar(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// True when hexadecimal digits follow the "0x" that `text` begins with.
bool BeginsHexadecimal(Text text) {
  if (!text.starts_with("0x") && !text.starts_with("0X")) {
    return false;
  }
  const Text digits = text.substr(2);
  return (!digits.empty() && IsHexDigit(digits[0])) ||
         (digits.size() > 1 && digits[0] == '.' && IsHexDigit(digits[1]));
}

/// Tells for a number that no double holds whether it is too large or too close to zero: by the
/// power of its base at its first digit other than 0.
double NearestToUnrepresentable(Text number, char exponentMark) {
  std::int64_t power = 0;
  bool digitSeen = false;
  bool pointSeen = false;
  std::size_t at = 0;
  for (; at < number.size() && (number[at] | 0x20) != exponentMark; ++at) {
    if (number[at] == '.') {
      pointSeen = true;
    } else {
      digitSeen = digitSeen || number[at] != '0';
      power += digitSeen && !pointSeen ? 1 : 0;
      power -= !digitSeen && pointSeen ? 1 : 0;
    }
  }
  const std::int64_t unitsPerDigit = exponentMark == 'p' ? 4 : 1;
  const std::int64_t exponent = at < number.size() ? ParseInteger(number.substr(at + 1)) : 0;
  return power * unitsPerDigit + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

/// Reads digits with at most a minus and a point, if they are so few that they and the power of ten
/// below them are doubles: then one division rounds as it must.
bool ParseShortReal(Text text, double& value) {
  constexpr std::size_t kMostDigits = 15;
  constexpr std::array<double, kMostDigits + 1> kPowers = {
      1E0, 1E1, 1E2, 1E3, 1E4, 1E5, 1E6, 1E7, 1E8, 1E9, 1E10, 1E11, 1E12, 1E13, 1E14, 1E15};
  const bool minus = text.starts_with('-');
  text.remove_prefix(minus ? 1 : 0);
  if (text.size() > kMostDigits) {
    return false;
  }
  std::int64_t digits = 0;
  std::size_t count = 0;
  std::size_t behindPoint = 0;
  bool pointSeen = false;
  for (const char c : text) {
    if (IsDigitChar(c)) {
      digits = digits * 10 + (c - '0');
      ++count;
      behindPoint += pointSeen ? 1 : 0;
    } else if (c == '.' && !pointSeen) {
      pointSeen = true;
    } else {
      return false;
    }
  }
  if (count == 0) {
    return false;
  }
  const double size = static_cast<double>(digits) / kPowers[behindPoint];
  value = minus ? -size : size;
  return true;
}

/// Writes a number of common size, as nearly all of a model are, in a fraction of the time that any
/// number takes. Null for another one, and where rounding to six digits is a near thing.
char* FormatCommonReal(char* first, double value) {
  constexpr std::array<double, 11> kPowers = {1E-4, 1E-3, 1E-2, 1E-1, 1E0, 1E1,
                                              1E2,  1E3,  1E4,  1E5,  1E6};
  constexpr std::array<double, 10> kScales = {1E9, 1E8, 1E7, 1E6, 1E5, 1E4, 1E3, 1E2, 1E1, 1E0};
  const double size = std::abs(value);
  if (!(size >= kPowers.front() && size < kPowers.back())) {
    return nullptr;
  }
  std::size_t power = 0;
  while (size >= kPowers[power + 1]) {
    ++power;
  }
  const double scaled = size * kScales[power];  // off by less than 1E-9
  auto number = static_cast<std::uint32_t>(scaled);
  const double fraction = scaled - number;
  if (std::abs(fraction - 0.5) < 1E-6) {
    return nullptr;
  }
  number += fraction > 0.5 ? 1 : 0;
  if (number < 100'000 || number > 999'999) {
    return nullptr;
  }
  std::array<char, 6> digits{};
  for (std::size_t place = digits.size(); place-- > 0; number /= 10) {
    digits[place] = static_cast<char>('0' + number % 10);
  }
  const char* last = digits.data() + digits.size();
  while (last[-1] == '0') {
    --last;
  }
  if (value < 0) {
    *first++ = '-';
  }
  if (power < 4) {
    first = std::copy_n("0.000", 5 - power, first);
    return std::copy<const char*>(digits.data(), last, first);
  }
  const char* const point = digits.data() + power - 3;
  first = std::copy<const char*>(digits.data(), point, first);
  if (last > point) {
    *first++ = '.';
    first = std::copy(point, last, first);
  }
  return first;
}

}  // namespace

double ParseReal(Text text) {
  text = TrimLeft(text);
  const bool minus = TakeSign(text);
  const bool hexadecimal = BeginsHexadecimal(text);
  if (hexadecimal) {
    text.remove_prefix(2);
  }
  if (text.starts_with('-')) {
    return 0.0;
  }
  double value = 0.0;
  const auto format = hexadecimal ? std::chars_format::hex : std::chars_format::general;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, format);
  if (error == std::errc::invalid_argument) {
    return 0.0;
  }
  if (error == std::errc::result_out_of_range) {
    const Text number(text.data(), static_cast<std::size_t>(end - text.data()));
    value = NearestToUnrepresentable(number, hexadecimal ? 'p' : 'e');
  }
  return minus ? -value : value;
}

bool ParseWholeReal(Text text, double& value) {
  if (ParseShortReal(text, value)) {
    return true;
  }
  const char* const last = text.data() + text.size();
  double number = 0.0;
  const auto [end, error] = std::from_chars(text.data(), last, number);
  if (error != std::errc{} || end != last) {
    return false;
  }
  value = number;
  return true;
}

std::int32_t ParseInteger(Text text) {
  text = TrimLeft(text);
  const bool minus = TakeSign(text);
  std::int64_t value = 0;
  for (const char c : text) {
    if (!IsDigitChar(c)) {
      break;
    }
    value = value * 10 + (c - '0');
    if (value > kHighest) {
      return minus ? kLowest : kHighest;
    }
  }
  return static_cast<std::int32_t>(minus ? -value : value);
}

std::int32_t TruncateToInteger(double value) {
  if (std::isnan(value)) {
    return 0;
  }
  if (value <= static_cast<double>(kLowest)) {
    return kLowest;
  }
  if (value >= static_cast<double>(kHighest)) {
    return kHighest;
  }
  return static_cast<std::int32_t>(value);
}

char* FormatReal(char* first, double value) {
  if (value == 0.0 && !std::signbit(value)) {
    *first = '0';
    return first + 1;
  }
  if (char* const end = FormatCommonReal(first, value)) {
    return end;
  }
  if (std::isnan(value)) {
    // printf tells the sign of a NaN on one platform and not on another.
    value = std::numeric_limits<double>::quiet_NaN();
  }
  return std::to_chars(first, first + kRealSize, value, std::chars_format::general, 6).ptr;
}

char* FormatInteger(char* first, std::int32_t value) {
  return std::to_chars(first, first + kIntegerSize, value).ptr;
}

}  // namespace s2k2ngt
