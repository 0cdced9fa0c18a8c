#include "target/line_writer.h"

namespace s2k2ngt {

void LineWriter::Flush() {
  m_File.Write({m_Buffer.data(), m_Used});
  m_Used = 0;
}

void LineWriter::AppendBehindFlush(std::string_view text) {
  Flush();
  if (text.size() > m_Buffer.size()) {
    m_File.Write(text);
    return;
  }
  Append(text);
}

}  // namespace s2k2ngt
