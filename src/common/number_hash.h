#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace s2k2ngt {

/// Numbers of things that are kept elsewhere, found by the hash of the thing. It takes 8 bytes for
/// each place, of which at least a quarter is free.
class NumberHash {
 public:
  static constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

  /// Makes room for `count` numbers in all.
  void Reserve(std::size_t count);
  void Clear();

  /// The number of the thing with this hash for which `isWanted(number)` is true; kNone when there
  /// is none.
  template <class IsWanted>
  std::uint32_t Find(std::size_t hash, IsWanted isWanted) const {
    return m_Places.empty() ? kNone : m_Places[PlaceOf(Mixed(hash), isWanted)].Number;
  }

  /// The same, and where there is none the number is added. The reference is valid until the next
  /// call.
  template <class IsWanted>
  std::uint32_t& FindOrAdd(std::size_t hash, std::uint32_t number, IsWanted isWanted) {
    if (m_Count >= m_Places.size() / 4 * 3) {
      Reserve(m_Count + 1);
    }
    Place& place = m_Places[PlaceOf(Mixed(hash), isWanted)];
    if (place.Number == kNone) {
      place = {Mixed(hash), number};
      ++m_Count;
    }
    return place.Number;
  }

 private:
  struct Place {
    std::uint32_t Hash = 0;
    std::uint32_t Number = kNone;
  };

  /// Spreads hashes that differ in few bits, as those of small integers do.
  static std::uint32_t Mixed(std::size_t hash) {
    return static_cast<std::uint32_t>((hash * 0x9E3779B97F4A7C15U) >> 32U);
  }

  /// The place of the wanted number, or the free one where it belongs.
  template <class IsWanted>
  std::size_t PlaceOf(std::uint32_t hash, IsWanted isWanted) const {
    const std::size_t mask = m_Places.size() - 1;
    std::size_t at = hash & mask;
    while (m_Places[at].Number != kNone &&
           (m_Places[at].Hash != hash || !isWanted(m_Places[at].Number))) {
      at = (at + 1) & mask;
    }
    return at;
  }

  std::vector<Place> m_Places;  // a power of two, or none
  std::size_t m_Count = 0;
};

}  // namespace s2k2ngt
