#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory_resource>
#include <string>
#include <string_view>

namespace s2k2ngt {

/// A text of a record. It is a view: its bytes lie in the source file's image or in a TextStore,
/// both of which live as long as the models that hold the record. Bytes above 127 pass through
/// unchanged; no character set is interpreted.
using Text = std::string_view;

/// A label that is unique only together with what qualifies it, as an element's with its family.
struct QualifiedLabel {
  Text Label;
  Text Qualifier;
  bool operator==(const QualifiedLabel&) const = default;
};

/// Owns the bytes of texts that do not stand in the source file as they are needed: joined rows,
/// values without their quotes, upper-cased words. Addresses stay valid until the store goes.
class TextStore {
 public:
  /// Room for `size` bytes.
  char* Allocate(std::size_t size);
  /// A copy of `text` that lives as long as the store.
  Text Keep(Text text);

 private:
  std::pmr::monotonic_buffer_resource m_Memory;
};

// The formats are those of a program that ran in the "C" locale: white space, digits and upper
// case are those of ASCII, whatever the locale of the host process.

inline bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
/// True for the characters of "0123456789".
inline bool IsDigitChar(char c) { return c >= '0' && c <= '9'; }
/// True when every character is a digit; so also for an empty text.
inline bool IsAllDigits(Text text) { return std::all_of(text.begin(), text.end(), IsDigitChar); }

inline Text TrimLeft(Text text) {
  std::size_t first = 0;
  while (first < text.size() && IsSpace(text[first])) {
    ++first;
  }
  return text.substr(first);
}

inline Text TrimRight(Text text) {
  std::size_t size = text.size();
  while (size > 0 && IsSpace(text[size - 1])) {
    --size;
  }
  return text.substr(0, size);
}

std::string ToUpper(Text text);
char ToLower(char c);

}  // namespace s2k2ngt

template <>
struct std::hash<s2k2ngt::QualifiedLabel> {
  std::size_t operator()(const s2k2ngt::QualifiedLabel& name) const noexcept {
    const std::hash<s2k2ngt::Text> hashText;
    return hashText(name.Label) * 31 + hashText(name.Qualifier);
  }
};
