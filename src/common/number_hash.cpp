#include "common/number_hash.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace s2k2ngt {

void NumberHash::Reserve(std::size_t count) {
  constexpr std::size_t kFewest = 16;
  const std::size_t size = std::bit_ceil(std::max(kFewest, count / 3 * 4 + 4));
  if (size <= m_Places.size()) {
    return;
  }
  const std::vector<Place> places = std::exchange(m_Places, std::vector<Place>(size));
  for (const Place& place : places) {
    if (place.Number != kNone) {
      m_Places[PlaceOf(place.Hash, [](std::uint32_t) { return false; })] = place;
    }
  }
}

void NumberHash::Clear() {
  std::ranges::fill(m_Places, Place{});
  m_Count = 0;
}

}  // namespace s2k2ngt
