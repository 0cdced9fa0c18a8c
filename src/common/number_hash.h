#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace s2k2ngt {

/// Numbers of things that are kept elsewhere, found by the hash of the thing. It takes 8 bytes for
/// each place, of which at least a quarter is free.
///
/// Things whose hashes are neighbours are kept as neighbours, so that labels that are numbered are
/// found in memory that is at hand. Those whose place is taken are spread over all.
class NumberHash {
 public:
  static constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

  /// Makes room for `count` numbers in all.
  void Reserve(std::size_t count);
  void Clear();

  /// The number of the thing with this hash for which `isWanted(number)` is true; kNone when there
  /// is none.
  template <class IsWanted>
  std::uint32_t Find(std::uint32_t hash, IsWanted isWanted) const {
    return m_Places.empty() ? kNone : m_Places[PlaceOf(hash, isWanted)].Number;
  }

  /// The same, and where there is none the number is added. The reference is valid until the next
  /// call.
  template <class IsWanted>
  std::uint32_t& FindOrAdd(std::uint32_t hash, std::uint32_t number, IsWanted isWanted) {
    if (m_Count >= m_Places.size() / 4 * 3) {
      Reserve(m_Count + 1);
    }
    Place& place = m_Places[PlaceOf(hash, isWanted)];
    if (place.Number == kNone) {
      place = {hash, number};
      ++m_Count;
    }
    return place.Number;
  }

 private:
  struct Place {
    std::uint32_t Hash = 0;
    std::uint32_t Number = kNone;
  };

  /// The place of the wanted number, or the free one where it belongs.
  template <class IsWanted>
  std::size_t PlaceOf(std::uint32_t hash, IsWanted isWanted) const {
    const std::size_t mask = m_Places.size() - 1;
    const auto isEnd = [&](std::size_t at) {
      const Place& place = m_Places[at];
      return place.Number == kNone || (place.Hash == hash && isWanted(place.Number));
    };
    std::size_t at = hash & mask;
    if (!isEnd(at)) {
      at = (hash * 0x9E3779B97F4A7C15U >> 32U) & mask;
      while (!isEnd(at)) {
        at = (at + 1) & mask;
      }
    }
    return at;
  }

  std::vector<Place> m_Places;  // a power of two, or none
  std::size_t m_Count = 0;
};

}  // namespace s2k2ngt
