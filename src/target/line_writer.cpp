#include "target/line_writer.h"

namespace s2k2ngt {

void LineWriter::Flush() {
  m_File.Write({m_Buffer.get(), m_Used});
  m_Used = 0;
}

void LineWriter::MakeRoom(std::size_t room) {
  Flush();
  if (room > m_Size) {
    m_Buffer = std::make_unique_for_overwrite<char[]>(room);
    m_Size = room;
  }
}

}  // namespace s2k2ngt
