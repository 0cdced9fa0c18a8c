#pragma once

#include <cstdint>
#include <list>
#include <utility>
#include <vector>

/// A chained hash as it stands in textbooks, the slow twin that the keyed table must agree with.
template <class Value>
class ChainedHash {
 public:
  explicit ChainedHash(std::uint32_t bucketCount) : m_Buckets(bucketCount) {}

  void Insert(std::uint32_t key, const Value& value) {
    auto& chain = m_Buckets[Hash(key) % m_Buckets.size()];
    for (auto& [chainKey, chainValue] : chain) {
      if (chainKey == key) {
        chainValue = value;
        return;
      }
    }
    chain.push_front({key, value});
  }

  /// The value of a key, or null.
  const Value* Find(std::uint32_t key) const {
    for (const auto& [chainKey, chainValue] : m_Buckets[Hash(key) % m_Buckets.size()]) {
      if (chainKey == key) {
        return &chainValue;
      }
    }
    return nullptr;
  }

  /// All keys and values, bucket by bucket from the head of each chain.
  std::vector<std::pair<std::uint32_t, Value>> Walk() const {
    std::vector<std::pair<std::uint32_t, Value>> walked;
    for (const auto& chain : m_Buckets) {
      walked.insert(walked.end(), chain.begin(), chain.end());
    }
    return walked;
  }

  /// The chains, for a walk that copies nothing.
  const std::vector<std::list<std::pair<std::uint32_t, Value>>>& Buckets() const {
    return m_Buckets;
  }

 private:
  static std::uint32_t Hash(std::uint32_t key) {
    const std::int64_t signedKey = static_cast<std::int32_t>(key);
    std::int64_t hash = 16807 * (signedKey % 127773) - 2836 * (signedKey / 127773);
    if (hash < 0) {
      hash += 2147483647;
    }
    return static_cast<std::uint32_t>(hash);
  }

  std::vector<std::list<std::pair<std::uint32_t, Value>>> m_Buckets;
};
