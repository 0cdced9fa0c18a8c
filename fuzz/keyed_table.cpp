// The keyed table and its indexes, against a chained hash and walks through it.
#include "common/keyed_table.h"

#include "support/chained_hash.h"
#include "target.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

using s2k2ngt::CKeyedTable;
using s2k2ngt::Text;

namespace {

struct Record {
  std::uint32_t Number = 0;
  Text Label;
  bool operator==(const Record&) const = default;
};

/// Words that share beginnings, digits and lengths.
constexpr std::array<Text, 16> kLabels = {
    "",  "1",  "2",         "10",         "01",         "A",  "A1",         "A2",
    "B", "AB", "999999999", "1999999999", "4294967296", "-1", "J000000001", "J1000000001"};

class Tables {
 public:
  explicit Tables(std::uint32_t buckets) : m_Table(buckets), m_Twin(buckets) {}

  void Insert(std::uint32_t key, Text label) {
    const Record record = {++m_Number, label};
    m_Table.Insert(key, record);
    m_Twin.Insert(key, record);
    if (std::ranges::find(m_Keys, key) == m_Keys.end()) {
      m_Keys.push_back(key);
    }
  }
  void Append(Text label) { Insert(static_cast<std::uint32_t>(m_Table.Count()) + 1, label); }
  void Reserve(std::uint32_t count) { m_Table.Reserve(count); }

  void CompareFind(std::uint32_t key) const {
    const Record* const found = m_Table.Find(key);
    const Record* const wanted = m_Twin.Find(key);
    if (found == nullptr || wanted == nullptr) {
      Require(found == wanted, "Find finds what is not there, or not");
    } else {
      Require(*found == *wanted, "Find finds another record");
    }
  }

  void CompareWalk() const {
    const auto walk = m_Twin.Walk();
    Require(m_Table.Count() == walk.size(), "another count");
    std::size_t position = 0;
    for (const auto [key, record] : m_Table.Walk()) {
      Require(key == walk[position].first && record == walk[position].second, "another walk");
      Require(m_Table.AtWalk(position).Key == key, "another entry at a position of the walk");
      ++position;
    }
    const auto last = m_Table.LastWalked();
    Require(last.has_value() != walk.empty(), "a last entry of nothing");
    Require(!last || last->Key == walk.back().first, "another last entry");
    position = 0;
    for (const auto [key, record] : m_Table.Entries()) {
      Require(key == m_Keys[position++], "another order of insertion");
    }
  }

  void CompareSearch(Text label) const {
    std::vector<std::uint32_t> positions;
    std::vector<std::uint32_t> keys;
    std::uint32_t position = 0;
    const auto walk = m_Twin.Walk();
    for (const auto& [key, record] : walk) {
      if (record.Label == label) {
        positions.push_back(position);
        keys.push_back(key);
      }
      ++position;
    }
    const auto first = m_Table.FirstWith<&Record::Label>(label);
    Require(first.has_value() != keys.empty(), "FirstWith finds what is not there, or not");
    Require(!first || first->Key == keys.front(), "FirstWith finds another");
    const auto firstOrLast = m_Table.FirstOrLastWith<&Record::Label>(label);
    Require(firstOrLast.has_value() != walk.empty(), "FirstOrLastWith finds nothing");
    Require(!firstOrLast || firstOrLast->Key == (keys.empty() ? walk.back().first : keys.front()),
            "FirstOrLastWith finds another");
    Require(std::ranges::equal(m_Table.AllWith<&Record::Label>(label), positions),
            "AllWith finds others");
    std::ranges::sort(keys);
    Require(std::ranges::equal(m_Table.KeysWith<&Record::Label>(label), keys),
            "KeysWith finds others");
  }

 private:
  CKeyedTable<Record> m_Table;
  ChainedHash<Record> m_Twin;
  std::vector<std::uint32_t> m_Keys;  // in the order of insertion
  std::uint32_t m_Number = 0;
};

/// A key of the sizes that tables have, of one bucket of 17, or any.
std::uint32_t TakeKey(Input& input) {
  switch (const auto kind = input.Take<std::uint8_t>(); kind % 4) {
    case 0:
      return kind >> 2U;
    case 1:
      return 17U * (kind >> 2U);
    case 2:
      return input.Take<std::uint16_t>();
    default:
      return input.Take<std::uint32_t>();
  }
}

Text TakeLabel(Input& input) { return kLabels[input.Take<std::uint8_t>() % kLabels.size()]; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::array<std::uint32_t, 4> kBuckets = {17, 1, 1'001, 10'001};
  constexpr int kStepsAtMost = 600;
  Input input(data, size);
  Tables tables(kBuckets[input.Take<std::uint8_t>() % kBuckets.size()]);
  for (int step = 0; step < kStepsAtMost && !input.Empty(); ++step) {
    switch (input.Take<std::uint8_t>() % 8) {
      case 0:
      case 1:
      case 2:
        tables.Append(TakeLabel(input));
        break;
      case 3:
      case 4: {
        const std::uint32_t key = TakeKey(input);
        tables.Insert(key, TakeLabel(input));
        break;
      }
      case 5:
        tables.CompareFind(TakeKey(input));
        break;
      case 6:
        tables.CompareSearch(TakeLabel(input));
        break;
      default:
        tables.Reserve(input.Take<std::uint8_t>());
        tables.CompareWalk();
        break;
    }
  }
  tables.CompareWalk();
  tables.CompareSearch(kLabels[1]);
  return 0;
}
