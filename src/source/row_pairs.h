#pragma once

#include "common/text.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace s2k2ngt {

/// The pairs `Key=Value` of a row, from one equals sign to the next, in a single pass over its
/// bytes.
///
/// The value of a pair runs to the last blank before the next sign, where the word of the next pair
/// begins. A blank right behind a sign does not end the value: in "Name= Next=1" the value of
/// "Name=" is " Next=1".
class RowPairs {
 public:
  explicit RowPairs(Text row) : m_Row(row) {
    LoadBlock();
    m_Next = FindSign();
  }

  /// Goes to the next pair, at first to the first; false when there is none.
  bool Next() {
    m_Current = m_Next;
    if (m_Current.Place == Text::npos) {
      return false;
    }
    m_Next = FindSign();
    return true;
  }

  /// What stands before the sign, with the last blank before it and with the sign. The row holds a
  /// key here if the word ends in it.
  Text Word() const { return m_Row.substr(m_Current.Word, m_Current.Place + 1 - m_Current.Word); }

  /// The text of the value, without trailing white space.
  Text Value() const {
    const std::size_t begin = m_Current.Place + 1;
    const bool endsBeforeWord = m_Next.Place != Text::npos && m_Next.Word > begin;
    return TrimRight(m_Row.substr(begin, endsBeforeWord ? m_Next.Word - begin : Text::npos));
  }

 private:
  struct Sign {
    std::size_t Place = 0;  // npos behind the last
    std::size_t Word = 0;  // the last blank before it; without one the place behind the sign before
  };

  // The row is looked at in blocks of eight bytes. The marks of a block are the top bits of the
  // bytes that are looked for.
  static constexpr std::size_t kBlock = 8;

  static std::uint64_t MarksOf(std::uint64_t block, char wanted) {
    constexpr std::uint64_t kOnes = 0x0101010101010101U;
    constexpr std::uint64_t kLowBits = 0x7F7F7F7F7F7F7F7FU;
    const std::uint64_t zeroIfWanted = block ^ (kOnes * static_cast<unsigned char>(wanted));
    return ~(((zeroIfWanted & kLowBits) + kLowBits) | zeroIfWanted | kLowBits);
  }
  static std::size_t FirstMarked(std::uint64_t marks) {
    return static_cast<std::size_t>(std::countr_zero(marks)) / kBlock;
  }
  static std::size_t LastMarked(std::uint64_t marks) {
    return kBlock - 1 - static_cast<std::size_t>(std::countl_zero(marks)) / kBlock;
  }

  void LoadBlock() {
    std::uint64_t block = 0;
    if (m_Row.size() - m_Block >= kBlock) {
      std::memcpy(&block, m_Row.data() + m_Block, kBlock);
    } else if (!m_Row.empty()) {
      std::memcpy(&block, m_Row.data() + m_Block, m_Row.size() - m_Block);
    }
    block = FirstByteLowest(block);
    m_Signs = MarksOf(block, '=');
    m_Blanks = MarksOf(block, ' ');
  }
  static std::uint64_t FirstByteLowest(std::uint64_t block) {
    if constexpr (std::endian::native == std::endian::little) {
      return block;
    }
    std::uint64_t turned = 0;
    for (std::size_t byte = 0; byte < kBlock; ++byte) {
      turned = turned << 8U | (block >> (8 * byte) & 0xFFU);
    }
    return turned;
  }

  Sign FindSign() {
    std::size_t word = m_BehindSign;
    while (m_Signs == 0) {
      if (m_Blanks != 0) {
        word = m_Block + LastMarked(m_Blanks);
      }
      if (m_Row.size() - m_Block <= kBlock) {
        return {Text::npos, Text::npos};
      }
      m_Block += kBlock;
      LoadBlock();
    }
    const std::uint64_t sign = m_Signs & -m_Signs;
    const std::uint64_t before = sign - 1;
    if ((m_Blanks & before) != 0) {
      word = m_Block + LastMarked(m_Blanks & before);
    }
    m_Signs ^= sign;
    m_Blanks &= ~before;
    const std::size_t place = m_Block + FirstMarked(sign);
    m_BehindSign = place + 1;
    return {place, word};
  }

  Text m_Row;
  std::size_t m_Block = 0;  // where it begins
  std::uint64_t m_Signs = 0;
  std::uint64_t m_Blanks = 0;  // of the block, behind the last sign
  std::size_t m_BehindSign = 0;
  Sign m_Current;
  Sign m_Next;
};

}  // namespace s2k2ngt
