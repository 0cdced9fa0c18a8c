#include "target/line_writer.h"

namespace s2k2ngt {

void LineWriter::Flush() {
  m_File.Write({m_Buffer.data(), m_Used});
  m_Used = 0;
}

void LineWriter::MakeRoom(std::size_t room) {
  Flush();
  if (room > m_Buffer.size()) {
    m_Buffer.resize(room);
  }
}

}  // namespace s2k2ngt
