#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Text and numbers as they stand in a page.

/// The text for any place of a page, attributes included. Labels and paths are bytes of any
/// character set: what is not UTF-8 becomes replacement characters, as in the JSON, and so do
/// control characters, which no page may hold.
std::string Escaped(std::string_view text);

/// A number with commas between thousands.
std::string Grouped(std::uint64_t number);

/// "1 row" or "1,234 rows".
std::string Counted(std::uint64_t count, std::string_view one, std::string_view many);
