#pragma once

#include <string>
#include <string_view>

namespace s2k2ngt {

// All texts at our interfaces are UTF-8; Windows is called with UTF-16. What is not UTF-8, such as
// a label in another character set, is shown in the system's own code page.

std::wstring Wide(std::string_view text);
std::string Utf8(std::wstring_view text);

}  // namespace s2k2ngt
