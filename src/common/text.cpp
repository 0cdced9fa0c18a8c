#include "common/text.h"

#include <chrono>

namespace s2k2ngt {

void TextStore::Clear() {
  if (!m_Blocks.empty()) {
    m_Recent.fill({});
    m_Free = 0;
    m_Blocks.clear();
  }
}

void TextStore::AddBlock(std::size_t size) {
  constexpr std::size_t kUsual = std::size_t{1} << 18U;
  const std::size_t room = std::max(size, kUsual);
  m_Blocks.push_back(std::make_unique_for_overwrite<char[]>(room));
  m_End = m_Blocks.back().get();
  m_Free = room;
}

std::uint64_t LookUpKey() {
  static const std::uint64_t key =
      static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()) ^
      reinterpret_cast<std::uintptr_t>(&key);
  return key;
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
