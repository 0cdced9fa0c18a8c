#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <functional>
#include <list>
#include <optional>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

// The keyed table as its rules say it, without an index: a chained hash that is walked from its
// beginning for every question. The literal command is built with it in the place of the real one,
// and must write the same bytes.

namespace s2k2ngt {

inline constexpr std::uint32_t kInitialBuckets = 17;

/// Keys are hashed as numbers with a sign.
constexpr std::uint32_t BucketOf(std::uint32_t key, std::uint32_t bucketCount) {
  const std::int64_t k = static_cast<std::int32_t>(key);
  const std::int64_t q = k / 127773;
  const std::int64_t r = k % 127773;
  std::int64_t h = 16807 * r - 2836 * q;
  if (h < 0) {
    h += 2147483647;
  }
  return static_cast<std::uint32_t>(h % bucketCount);
}

template <class Record>
class CKeyedTable {
 public:
  struct Entry {
    std::uint32_t Key;
    const Record& Value;
  };

  explicit CKeyedTable(std::uint32_t bucketCount = kInitialBuckets) : m_Buckets(bucketCount) {}

  /// A new key goes to the head of its bucket's chain.
  void Insert(std::uint32_t key, Record record) {
    if (Record* const there = FindToChange(key)) {
      *there = std::move(record);
      return;
    }
    ChainOf(key).push_front({key, std::move(record)});
    ++m_Count;
  }

  void Append(Record record) { Insert(static_cast<std::uint32_t>(Count()) + 1, std::move(record)); }

  void Reserve(std::size_t /*count*/) {}

  std::size_t Count() const { return m_Count; }
  bool Empty() const { return m_Count == 0; }

  const Record* Find(std::uint32_t key) const {
    return const_cast<CKeyedTable*>(this)->FindToChange(key);
  }

  Record* FindToChange(std::uint32_t key) {
    for (Node& node : ChainOf(key)) {
      if (node.Key == key) {
        return &node.Value;
      }
    }
    return nullptr;
  }

  std::span<const Record> Records() const {
    std::vector<Record>& records = m_GivenRecords.emplace_back();
    for (const Entry entry : Walk()) {
      records.push_back(entry.Value);
    }
    return records;
  }

 private:
  struct Node {
    std::uint32_t Key;
    Record Value;
  };
  using Chain = std::forward_list<Node>;

 public:
  class WalkIterator {
   public:
    WalkIterator(const std::vector<Chain>& buckets, std::size_t bucket, std::size_t position)
        : m_Buckets(&buckets), m_Bucket(bucket), m_Position(position) {
      if (m_Bucket < m_Buckets->size()) {
        m_Node = (*m_Buckets)[m_Bucket].begin();
        PassEmptyBuckets();
      }
    }
    Entry operator*() const { return {m_Node->Key, m_Node->Value}; }
    WalkIterator& operator++() {
      ++m_Position;
      ++m_Node;
      PassEmptyBuckets();
      return *this;
    }
    bool operator==(const WalkIterator& other) const { return m_Position == other.m_Position; }
    std::size_t Position() const { return m_Position; }

   private:
    void PassEmptyBuckets() {
      while (m_Node == (*m_Buckets)[m_Bucket].end() && ++m_Bucket < m_Buckets->size()) {
        m_Node = (*m_Buckets)[m_Bucket].begin();
      }
    }

    const std::vector<Chain>* m_Buckets;
    std::size_t m_Bucket;
    std::size_t m_Position;
    typename Chain::const_iterator m_Node{};
  };

  struct WalkRange {
    WalkIterator First;
    WalkIterator Last;
    WalkIterator begin() const { return First; }
    WalkIterator end() const { return Last; }
  };

  /// Through the buckets, and through each chain from its head.
  WalkRange Walk() const {
    return {WalkIterator(m_Buckets, 0, 0), WalkIterator(m_Buckets, m_Buckets.size(), m_Count)};
  }

  /// An order as good as any.
  WalkRange Entries() const { return Walk(); }

  Entry AtWalk(std::size_t position) const {
    WalkIterator walk = Walk().First;
    while (walk.Position() < position) {
      ++walk;
    }
    return *walk;
  }

  std::optional<Entry> LastWalked() const {
    std::optional<std::uint32_t> last;
    for (const Entry entry : Walk()) {
      last = entry.Key;
    }
    return last ? std::optional<Entry>({*last, *Find(*last)}) : std::nullopt;
  }

  template <auto Field, class Value>
  std::optional<Entry> FirstWith(const Value& value) const {
    for (const Entry entry : Walk()) {
      if (Has<Field>(entry, value)) {
        return entry;
      }
    }
    return std::nullopt;
  }

  template <auto Field, class Value>
  std::optional<Entry> FirstOrLastWith(const Value& value) const {
    const std::optional<Entry> first = FirstWith<Field>(value);
    return first ? first : LastWalked();
  }

  template <auto Field, class Value>
  std::span<const std::uint32_t> AllWith(const Value& value) const {
    std::vector<std::uint32_t>& positions = m_GivenNumbers.emplace_back();
    std::uint32_t position = 0;
    for (const Entry entry : Walk()) {
      if (Has<Field>(entry, value)) {
        positions.push_back(position);
      }
      ++position;
    }
    return positions;
  }

  template <auto Field, class Value>
  std::span<const std::uint32_t> KeysWith(const Value& value) const {
    std::vector<std::uint32_t>& keys = m_GivenNumbers.emplace_back();
    for (const Entry entry : Walk()) {
      if (Has<Field>(entry, value)) {
        keys.push_back(entry.Key);
      }
    }
    std::ranges::sort(keys);
    return keys;
  }

 private:
  template <auto Field, class Value>
  static bool Has(const Entry& entry, const Value& value) {
    using FieldValue = std::remove_cvref_t<std::invoke_result_t<decltype(Field), const Record&>>;
    return std::invoke(Field, entry.Value) == FieldValue(value);
  }

  Chain& ChainOf(std::uint32_t key) {
    return m_Buckets[BucketOf(key, static_cast<std::uint32_t>(m_Buckets.size()))];
  }

  std::vector<Chain> m_Buckets;
  std::size_t m_Count = 0;
  // What was given out as a span is kept as long as the table.
  mutable std::list<std::vector<Record>> m_GivenRecords;
  mutable std::list<std::vector<std::uint32_t>> m_GivenNumbers;
};

template <class Record>
const Record& RecordOr(const Record* found, const Record& fallback) {
  if (found == nullptr) {
    return fallback;
  }
  return *found;
}

}  // namespace s2k2ngt
