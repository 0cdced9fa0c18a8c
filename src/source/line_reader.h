#pragma once

#include "common/text.h"

#include <cstddef>
#include <cstdint>

namespace s2k2ngt {

/// Reads a source file's image line by line, as a C program reads a text file into a line buffer
/// of 500 characters: a CR LF pair counts as one newline, a line of more than 499 characters (its
/// newline among them) arrives in pieces, each a line of its own, and a NUL byte ends the text of
/// the line it stands in. A lone CR and the byte 1A hexadecimal are ordinary characters.
class LineReader {
 public:
  /// The image must outlive the reader and all texts that it gives.
  explicit LineReader(Text image) : m_Rest(image) {}

  /// Reads the next line into the buffer. At the end of the file it returns false, and the buffer
  /// keeps the line that was read last, as that of a C program does.
  bool Next();

  /// The text of the line in the buffer, without its newline.
  Text Line() const { return m_Line; }
  /// The length of that text with its newline, if it has one.
  std::size_t Length() const { return m_Line.size() + (m_HasNewline ? 1 : 0); }
  /// The line of the file that the buffer was read from, counted from 1 as an editor does.
  std::uint64_t LineNumber() const { return m_LineNumber; }

 private:
  Text m_Rest;
  Text m_Line;
  bool m_HasNewline = false;
  bool m_AtLineStart = true;
  std::uint64_t m_LineNumber = 0;
};

/// The number of reads that a whole image takes when each read gives at most 500 characters. It is
/// the measure of the progress bar while the file is read.
std::uint64_t CountLines(Text image);

}  // namespace s2k2ngt
