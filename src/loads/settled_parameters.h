#pragma once

#include "common/keyed_table.h"
#include "common/text.h"

#include <cstdint>

namespace s2k2ngt {

/// The first key that falls into the last bucket of a table: once it is there a walk ends with it,
/// whatever is appended.
inline std::uint32_t FirstKeyOfLastBucket(std::uint32_t bucketCount) {
  std::uint32_t key = 1;
  while (BucketOf(key, bucketCount) != bucketCount - 1) {
    ++key;
  }
  return key;
}

/// True when parameters of a load that are appended once more change nothing: neither the first of
/// the load nor the last of a walk.
template <class Parameters>
bool AreSettled(const CKeyedTable<Parameters>& table, Text load) {
  static const std::uint32_t countWhenSettled = FirstKeyOfLastBucket(Parameters::kBuckets);
  return table.Count() >= countWhenSettled &&
         table.template FirstWith<&Parameters::LoadCase>(load).has_value();
}

}  // namespace s2k2ngt
