#include "source/line_reader.h"

#include <algorithm>

namespace s2k2ngt {
namespace {

/// What one read of at most `limit` characters takes off the front of a text file.
struct Piece {
  Text Content;  // without the newline
  bool HasNewline;
  std::size_t Taken;  // bytes, the newline's among them
};

Piece ReadPiece(Text rest, std::size_t limit) {
  // The longest line that fits is limit - 1 characters and the two bytes of a CR LF.
  const Text window = rest.substr(0, limit + 1);
  const std::size_t newline = window.find('\n');
  if (newline != Text::npos) {
    const bool afterReturn = newline > 0 && window[newline - 1] == '\r';
    const std::size_t length = afterReturn ? newline - 1 : newline;
    if (length < limit) {
      return {window.substr(0, length), true, newline + 1};
    }
  }
  const std::size_t length = std::min(limit, rest.size());
  return {rest.substr(0, length), false, length};
}

}  // namespace

bool LineReader::Next() {
  constexpr std::size_t kLineBuffer = 500;
  if (m_Rest.empty()) {
    return false;
  }
  const Piece piece = ReadPiece(m_Rest, kLineBuffer - 1);
  m_Rest.remove_prefix(piece.Taken);
  m_LineNumber += m_AtLineStart ? 1 : 0;
  m_AtLineStart = piece.HasNewline;
  const std::size_t end = piece.Content.find('\0');
  m_Line = piece.Content.substr(0, end);
  m_HasNewline = piece.HasNewline && end == Text::npos;
  return true;
}

std::uint64_t CountLines(Text image) {
  constexpr std::size_t kLongestRead = 500;
  std::uint64_t count = 0;
  while (!image.empty()) {
    image.remove_prefix(ReadPiece(image, kLongestRead).Taken);
    ++count;
  }
  return count;
}

}  // namespace s2k2ngt
