#include "html.h"

#include <algorithm>

#include <nlohmann/json.hpp>

namespace {

/// The text with replacement characters where it is not UTF-8, by the rules of the JSON.
std::string Utf8(std::string_view text) {
  if (std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
    return std::string(text);
  }
  using nlohmann::json;
  const std::string quoted =
      json(std::string(text)).dump(-1, ' ', false, json::error_handler_t::replace);
  return json::parse(quoted).get<std::string>();
}

bool IsControl(char c) {
  return (static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t') || c == 0x7F;
}

}  // namespace

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : Utf8(text)) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&#39;";
        break;
      default:
        if (IsControl(c)) {
          escaped += "\uFFFD";
        } else {
          escaped += c;
        }
    }
  }
  return escaped;
}

std::string Grouped(std::uint64_t number) {
  std::string digits = std::to_string(number);
  for (std::size_t place = digits.size(); place > 3; place -= 3) {
    digits.insert(place - 3, ",");
  }
  return digits;
}

std::string Counted(std::uint64_t count, std::string_view one, std::string_view many) {
  return Grouped(count).append(" ").append(count == 1 ? one : many);
}
