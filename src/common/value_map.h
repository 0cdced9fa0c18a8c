#pragma once

#include "common/number_hash.h"
#include "common/text.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <utility>

namespace s2k2ngt {

/// Values by keys, close together in the order in which the keys came.
template <class Key, class Value>
class ValueMap {
 public:
  struct Met {
    Value& Result;  // valid as long as the map
    bool IsNew;
  };

  /// The value of a key; that of a new key is made now.
  Met Meet(const Key& key) {
    const auto count = static_cast<std::uint32_t>(m_Entries.size());
    const std::uint32_t number = m_Numbers.FindOrAdd(
        LookUpHash(key), count, [&](std::uint32_t known) { return m_Entries[known].first == key; });
    if (number == count) {
      m_Entries.emplace_back(key, Value{});
    }
    return {m_Entries[number].second, number == count};
  }

 private:
  NumberHash m_Numbers;
  std::deque<std::pair<Key, Value>> m_Entries;
};

}  // namespace s2k2ngt
