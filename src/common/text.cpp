#include "common/text.h"

#include <cstring>

namespace s2k2ngt {

char* TextStore::Allocate(std::size_t size) {
  return static_cast<char*>(m_Memory.allocate(size, alignof(char)));
}

Text TextStore::Keep(Text text) {
  if (text.empty()) {
    return {};
  }
  char* bytes = Allocate(text.size());
  std::memcpy(bytes, text.data(), text.size());
  return {bytes, text.size()};
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
