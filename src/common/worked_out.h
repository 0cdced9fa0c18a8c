#pragma once

#include "common/value_map.h"

namespace s2k2ngt {

/// What has been worked out for keys, so that a key that comes again is not worked out again. It is
/// a map and no more; tests put one in its place that forgets, and compare.
template <class Key, class Value>
class WorkedOut {
 public:
  /// The value of a key, still to be worked out when the key is new.
  typename ValueMap<Key, Value>::Met Meet(const Key& key) { return m_Values.Meet(key); }

 private:
  ValueMap<Key, Value> m_Values;
};

}  // namespace s2k2ngt
