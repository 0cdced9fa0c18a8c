#include "common/text.h"

namespace s2k2ngt {

void TextStore::AddBlock(std::size_t size) {
  constexpr std::size_t kUsual = std::size_t{1} << 18U;
  m_Free = std::max(size, kUsual);
  m_Blocks.push_back(std::make_unique_for_overwrite<char[]>(m_Free));
  m_End = m_Blocks.back().get();
}

std::string ToUpper(Text text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') {
      c = static_cast<char>(c - 'a' + 'A');
    }
  }
  return upper;
}

char ToLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace s2k2ngt
