#pragma once

#include "common/text.h"

#include <cstddef>
#include <cstdint>

namespace s2k2ngt {

// All reading and printing of numbers. Nothing here looks at the locale, so that a host with a
// decimal comma reads and writes the same bytes as any other.

/// What C's atof gives: leading white space skipped, the longest number that the text begins with
/// (decimal, hexadecimal, "inf", "nan"), 0 when there is none. Too large gives an infinity.
double ParseReal(Text text);

/// Sets `value` to what ParseReal gives and returns true, if the text is a plain number from its
/// first character to its last.
bool ParseWholeReal(Text text, double& value);

/// What C's atoi gives; a value beyond 32 bits becomes the nearest that fits.
std::int32_t ParseInteger(Text text);

/// The value without its fraction; beyond 32 bits the nearest that fits, and 0 for a NaN.
std::int32_t TruncateToInteger(double value);

/// The longest text that FormatReal gives: sign, 6 digits, point, "e-308".
inline constexpr std::size_t kRealSize = 16;
/// The longest text that FormatInteger gives: sign and 10 digits.
inline constexpr std::size_t kIntegerSize = 11;

/// Writes what printf's "%g" prints (every NaN as "nan") and returns the end of the text. There
/// must be room for kRealSize characters.
char* FormatReal(char* first, double value);

/// Writes what printf's "%d" prints and returns the end; room for kIntegerSize characters.
char* FormatInteger(char* first, std::int32_t value);

}  // namespace s2k2ngt
