#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <string>
#include <string_view>

/// Puts a piece of a row behind what `row` holds.
inline void AppendPiece(std::string& row, std::string_view text) { row += text; }
template <class Number>
requires std::integral<Number> || std::floating_point<Number>
void AppendPiece(std::string& row, Number value) {
  std::array<char, 40> text{};
  row.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr);
}

/// Puts the pieces of a row, texts and numbers, behind what `row` holds.
template <class... Pieces>
void AppendPieces(std::string& row, const Pieces&... pieces) {
  (AppendPiece(row, pieces), ...);
}
