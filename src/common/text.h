#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace s2k2ngt {

/// A text of a record. It is a view: its bytes are a constant of the program or lie in a TextStore
/// that lives as long as the models that hold the record. Bytes above 127 pass through unchanged;
/// no character set is interpreted.
using Text = std::string_view;

/// A label that is unique only together with what qualifies it, as an element's with its family.
struct QualifiedLabel {
  Text Label;
  Text Qualifier;
  bool operator==(const QualifiedLabel&) const = default;
};

/// Owns the bytes of the texts of records. Addresses stay valid until the store goes.
///
/// The texts lie close together. Large models spend most of their time waiting for memory, and
/// labels that were left where they stand in the source file would be among its other bytes.
class TextStore {
 public:
  TextStore() = default;
  TextStore(const TextStore&) = delete;
  TextStore& operator=(const TextStore&) = delete;

  /// A copy of `text` that lives as long as the store. Words that come again and again are kept
  /// once, as a rule.
  Text Keep(Text text) {
    if (text.empty()) {
      return {};
    }
    Text& recent = m_Recent[PlaceOf(text)];
    if (recent != text) {
      recent = Copy(text);
    }
    return recent;
  }

  /// Forgets all texts.
  void Clear();

 private:
  static constexpr std::size_t kRecent = 256;

  /// Spreads words; that labels share places does no harm.
  static std::size_t PlaceOf(Text text) {
    const auto first = static_cast<unsigned char>(text.front());
    const auto last = static_cast<unsigned char>(text.back());
    return (first * 7U + last * 31U + text.size()) % kRecent;
  }

  Text Copy(Text text) {
    if (text.size() > m_Free) {
      AddBlock(text.size());
    }
    std::memcpy(m_End, text.data(), text.size());
    const Text copy(m_End, text.size());
    m_End += text.size();
    m_Free -= text.size();
    return copy;
  }
  void AddBlock(std::size_t size);

  std::vector<std::unique_ptr<char[]>> m_Blocks;
  char* m_End = nullptr;  // of what is taken of the last block
  std::size_t m_Free = 0;
  std::array<Text, kRecent> m_Recent{};
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

/// Differs from process to process, so that no file can be made whose labels all have one hash.
std::uint64_t LookUpKey();

/// A hash by which labels that are numbered, as "J7" and "J8", are neighbours. It must decide
/// nothing that shows: it is another one in every process.
inline std::uint32_t LookUpHash(Text label) {
  constexpr std::size_t kMostDigits = 9;
  std::size_t begin = label.size();
  while (begin > 0 && label.size() - begin < kMostDigits && IsDigitChar(label[begin - 1])) {
    --begin;
  }
  std::uint32_t number = 0;
  for (const char digit : label.substr(begin)) {
    number = number * 10 + static_cast<std::uint32_t>(digit - '0');
  }
  if (begin == 0) {
    return number;
  }
  const std::uint64_t prefix = std::hash<Text>()(label.substr(0, begin));
  return number + static_cast<std::uint32_t>(((prefix ^ LookUpKey()) * 0x9E3779B97F4A7C15U) >> 32U);
}

inline std::uint32_t LookUpHash(const QualifiedLabel& name) {
  return LookUpHash(name.Label) + LookUpHash(name.Qualifier) * 0x9E3779B1U;
}

}  // namespace s2k2ngt
