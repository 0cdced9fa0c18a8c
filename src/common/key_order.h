#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <vector>

namespace s2k2ngt {

/// The bucket in which a chained hash of `bucketCount` buckets keeps `key`.
///
/// The order of many output lines is that of such a hash. It is part of the output format: outputs
/// of one model are compared line by line.
constexpr std::uint32_t BucketOf(std::uint32_t key, std::uint32_t bucketCount) {
  const auto signedKey = static_cast<std::int32_t>(key);
  const std::int32_t quotient = signedKey / 127773;
  const std::int32_t remainder = signedKey % 127773;
  std::int32_t hash = 16807 * remainder - 2836 * quotient;
  if (hash < 0) {
    hash += std::numeric_limits<std::int32_t>::max();
  }
  return static_cast<std::uint32_t>(hash) % bucketCount;
}

/// The keys of a keyed table: each new key gets the next slot, from 0, and the walk over all slots
/// is that of a chained hash.
class KeyOrder {
 public:
  static constexpr std::uint32_t kNoSlot = std::numeric_limits<std::uint32_t>::max();

  explicit KeyOrder(std::uint32_t bucketCount) : m_BucketCount(bucketCount) {}

  /// Makes room for `count` keys in all, each at most `count`.
  void Reserve(std::size_t count) { m_Reserved = count; }

  /// Gives the next slot to a key that has none.
  void Append(std::uint32_t key);

  /// The slot of a key; kNoSlot when it has none.
  std::uint32_t SlotOf(std::uint32_t key) const {
    if (CameInOrder()) {
      return key - 1 < m_Count ? key - 1 : kNoSlot;
    }
    return SlotOfAnyKey(key);
  }

  std::uint32_t KeyOf(std::uint32_t slot) const { return CameInOrder() ? slot + 1 : m_Keys[slot]; }
  std::uint32_t BucketOfSlot(std::uint32_t slot) const {
    return BucketOf(KeyOf(slot), m_BucketCount);
  }

  /// True while the keys came as 1, 2, 3, ...
  bool CameInOrder() const { return m_Keys.empty(); }

  /// The slots by ascending keys.
  std::vector<std::uint32_t> SlotsByKey() const;

  /// The slots in the order of a walk; computed when first asked for after a change.
  const std::vector<std::uint32_t>& Walk() const {
    if (m_Walk.size() != m_Count) {
      ComputeWalk();
    }
    return m_Walk;
  }

 private:
  void ComputeWalk() const;
  std::uint32_t SlotOfAnyKey(std::uint32_t key) const;
  void SetSlot(std::uint32_t key, std::uint32_t slot);

  std::uint32_t m_BucketCount;
  std::uint32_t m_Count = 0;
  std::size_t m_Reserved = 0;         // no memory is taken before a key is out of order
  std::vector<std::uint32_t> m_Keys;  // by slot; empty while they came in order
  std::vector<std::uint32_t> m_SlotOfKey;
  std::unordered_map<std::uint32_t, std::uint32_t> m_SlotOfOutlier;
  mutable std::vector<std::uint32_t> m_Walk;
};

}  // namespace s2k2ngt
