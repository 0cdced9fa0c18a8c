#include "common/key_order.h"

#include <algorithm>
#include <numeric>

namespace s2k2ngt {

void KeyOrder::Append(std::uint32_t key) {
  const std::uint32_t slot = m_Count++;
  if (CameInOrder()) {
    if (key == slot + 1) {
      return;  // the key tells its slot, and nothing is kept of it
    }
    m_Keys.reserve(m_Reserved);
    for (std::uint32_t earlier = 0; earlier < slot; ++earlier) {
      m_Keys.push_back(earlier + 1);
      SetSlot(earlier + 1, earlier);
    }
  }
  m_Keys.push_back(key);
  SetSlot(key, slot);
}

std::vector<std::uint32_t> KeyOrder::SlotsByKey() const {
  std::vector<std::uint32_t> slots(m_Count);
  std::iota(slots.begin(), slots.end(), 0U);
  if (!CameInOrder()) {
    std::ranges::sort(slots, {}, [this](std::uint32_t slot) { return m_Keys[slot]; });
  }
  return slots;
}

std::uint32_t KeyOrder::SlotOfAnyKey(std::uint32_t key) const {
  if (key < m_SlotOfKey.size()) {
    return m_SlotOfKey[key];
  }
  const auto outlier = m_SlotOfOutlier.find(key);
  return outlier == m_SlotOfOutlier.end() ? kNoSlot : outlier->second;
}

void KeyOrder::SetSlot(std::uint32_t key, std::uint32_t slot) {
  // Keys are as a rule row positions, so an array by key holds them; the odd key far beyond the
  // number of records must not blow it up.
  constexpr std::uint32_t kAlwaysByArray = 1U << 22U;
  const bool byArray = key < kAlwaysByArray || key / 4 < m_Count || key <= m_Reserved;
  if (key >= m_SlotOfKey.size() && byArray) {
    const std::size_t size = std::max<std::size_t>(m_Reserved, key) + 1;
    m_SlotOfKey.resize(std::max(size, 2 * m_SlotOfKey.size()), kNoSlot);
    std::erase_if(m_SlotOfOutlier, [this](const auto& outlier) {
      const auto [outlierKey, outlierSlot] = outlier;
      const bool hasPlace = outlierKey < m_SlotOfKey.size();
      if (hasPlace) {
        m_SlotOfKey[outlierKey] = outlierSlot;
      }
      return hasPlace;
    });
  }
  if (key < m_SlotOfKey.size()) {
    m_SlotOfKey[key] = slot;
  } else {
    m_SlotOfOutlier[key] = slot;
  }
}

void KeyOrder::ComputeWalk() const {
  std::vector<std::uint32_t> next(std::size_t{m_BucketCount} + 1, 0);
  for (std::uint32_t slot = 0; slot < m_Count; ++slot) {
    ++next[std::size_t{BucketOfSlot(slot)} + 1];
  }
  for (std::size_t bucket = 1; bucket < next.size(); ++bucket) {
    next[bucket] += next[bucket - 1];
  }
  m_Walk.resize(m_Count);
  for (std::uint32_t slot = m_Count; slot-- > 0;) {
    m_Walk[next[BucketOfSlot(slot)]++] = slot;
  }
}

}  // namespace s2k2ngt
