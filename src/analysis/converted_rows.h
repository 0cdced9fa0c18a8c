#pragma once

#include "target/conversion.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace s2k2ngt {

/// Which source rows of a kind were converted, by key. It is for the account alone, which tells of
/// the others why they were not, and stays empty without one.
template <class Record>
struct ConvertedRows {
  std::vector<bool> ByKey;
};

/// Notes that the rows from the first key up to the last were converted.
template <class Record>
void MarkConverted(Conversion& run, std::uint32_t firstKey, std::uint32_t lastKey) {
  if (!run.Accounts.IsKept()) {
    return;
  }
  std::vector<bool>& rows = run.Target.Control<ConvertedRows<Record>>().ByKey;
  rows.resize(std::max(rows.size(), std::size_t{lastKey} + 1));
  std::fill(rows.begin() + firstKey, rows.begin() + lastKey + 1, true);
}

template <class Record>
bool WasConverted(Conversion& run, std::uint32_t key) {
  const std::vector<bool>& rows = run.Target.Control<ConvertedRows<Record>>().ByKey;
  return key < rows.size() && rows[key];
}

}  // namespace s2k2ngt
