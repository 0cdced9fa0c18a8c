#pragma once

#include <unordered_map>

namespace s2k2ngt {

/// What has been worked out for keys, so that a key that comes again is not worked out again.
template <class Key, class Value>
class WorkedOut {
 public:
  struct Met {
    Value& Result;  // valid as long as this object
    bool IsNew;
  };

  /// The value of a key, still to be worked out when the key is new.
  Met Meet(const Key& key) {
    const auto [place, isNew] = m_Values.try_emplace(key);
    return {place->second, isNew};
  }

 private:
  std::unordered_map<Key, Value> m_Values;
};

}  // namespace s2k2ngt
