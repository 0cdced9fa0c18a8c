#pragma once

#include <string_view>

namespace s2k2ngt {

// The lines by which an output file can be told from one of another program, and a whole one from
// one that was cut off.

inline constexpr std::string_view kRuleLine =
    ";---------------------------------------------------------------------------";
inline constexpr std::string_view kNameLine = ";  NORDA/Gen Text(NGT) File.";
inline constexpr std::string_view kLastLine = "*ENDDATA";

}  // namespace s2k2ngt
