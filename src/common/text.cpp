#include "common/text.h"

#include <algorithm>
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

bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

bool IsDigitChar(char c) { return c >= '0' && c <= '9'; }

bool IsAllDigits(Text text) { return std::all_of(text.begin(), text.end(), IsDigitChar); }

Text TrimLeft(Text text) {
  std::size_t first = 0;
  while (first < text.size() && IsSpace(text[first])) {
    ++first;
  }
  return text.substr(first);
}

Text TrimRight(Text text) {
  std::size_t size = text.size();
  while (size > 0 && IsSpace(text[size - 1])) {
    --size;
  }
  return text.substr(0, size);
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
