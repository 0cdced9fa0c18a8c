#pragma once

#include "pieces.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

/// Writes a source file to standard output, table by table.
class SourceWriter {
 public:
  SourceWriter() { m_Buffer = "File bench.s2k was saved on 6/2/03 at 8:15:00\n \n"; }
  ~SourceWriter() {
    m_Buffer += "END TABLE DATA\n";
    Flush();
  }
  SourceWriter(const SourceWriter&) = delete;
  SourceWriter& operator=(const SourceWriter&) = delete;

  /// A table with so many rows; `writeRow` gives the pieces of row 1 and on.
  template <class WriteRow>
  void Table(std::string_view title, int rows, WriteRow writeRow) {
    m_Buffer.append("TABLE:  \"").append(title).append("\"\n");
    for (int row = 1; row <= rows; ++row) {
      m_Buffer += "   ";
      writeRow(row);
      m_Buffer += '\n';
      if (m_Buffer.size() > kFlushAt) {
        Flush();
      }
    }
    m_Buffer += " \n";
  }

  /// The pieces of a row, texts and numbers.
  template <class... Pieces>
  void Row(const Pieces&... pieces) {
    AppendPieces(m_Buffer, pieces...);
  }

 private:
  static constexpr std::size_t kFlushAt = std::size_t{1} << 20U;

  void Flush() {
    std::fwrite(m_Buffer.data(), 1, m_Buffer.size(), stdout);
    m_Buffer.clear();
  }

  std::string m_Buffer;
};
