#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <type_traits>
#include <unordered_map>
#include <utility>
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

/// Bucket count of a table that has not been reset to its final size.
inline constexpr std::uint32_t kInitialBuckets = 17;

/// Records by a 32-bit key, kept densely, with the walk of a chained hash.
///
/// A walk goes through the buckets in ascending order and through each bucket from the newest key
/// to the oldest. Storing under a key that is there replaces the record and leaves its place. With
/// 10,001 buckets the keys 1 to 6 are walked in the order 3, 6, 2, 5, 1, 4.
///
/// Insert, Find and a step of a walk take constant time; the order of a walk and the indexes by
/// label are computed when first asked for and brought up to date after a change. A table must not
/// be added to while it is walked.
template <class Record>
class CKeyedTable {
 public:
  struct Entry {
    std::uint32_t Key;
    const Record& Value;
  };

  explicit CKeyedTable(std::uint32_t bucketCount = kInitialBuckets) : m_BucketCount(bucketCount) {}

  /// Stores `record` under `key`.
  void Insert(std::uint32_t key, Record record) {
    const std::uint32_t slot = SlotOf(key);
    if (slot != kNoSlot) {
      m_Records[slot] = std::move(record);
      ++m_Replacements;
      return;
    }
    NoteSlotOfNewKey(key);
    m_Records.push_back(std::move(record));
  }

  /// Stores `record` under the key behind the count of records.
  void Append(Record record) {
    Insert(static_cast<std::uint32_t>(m_Records.size()) + 1, std::move(record));
  }

  std::size_t Count() const { return m_Records.size(); }
  bool Empty() const { return m_Records.empty(); }

  /// The record of `key`, or null. Valid until the next Insert.
  const Record* Find(std::uint32_t key) const {
    const std::uint32_t slot = SlotOf(key);
    return slot == kNoSlot ? nullptr : &m_Records[slot];
  }

  /// The record of `key` to be changed in place, or null. A field by which the table is searched
  /// must keep its value.
  Record* FindToChange(std::uint32_t key) {
    return const_cast<Record*>(std::as_const(*this).Find(key));
  }

  /// All records, for questions whose answer does not depend on an order.
  std::span<const Record> Records() const { return m_Records; }

  class WalkIterator {
   public:
    WalkIterator(const CKeyedTable& table, std::size_t position)
        : m_Table(&table), m_Position(position) {}
    Entry operator*() const { return m_Table->AtWalk(m_Position); }
    WalkIterator& operator++() {
      ++m_Position;
      return *this;
    }
    bool operator==(const WalkIterator& other) const = default;
    std::size_t Position() const { return m_Position; }

   private:
    const CKeyedTable* m_Table;
    std::size_t m_Position;
  };

  struct WalkRange {
    WalkIterator First;
    WalkIterator Last;
    std::size_t Size() const { return Last.Position() - First.Position(); }
    WalkIterator begin() const { return First; }
    WalkIterator end() const { return Last; }
  };

  /// All entries, in walk order.
  WalkRange Walk() const {
    ComputeWalk();
    return {WalkIterator(*this, 0), WalkIterator(*this, m_Walk.size())};
  }

  /// The entry that a walk reaches at `position`, from 0. Only for positions that Walk or AllWith
  /// gave since the last Insert.
  Entry AtWalk(std::size_t position) const {
    const std::uint32_t slot = m_Walk[position];
    return {KeyOfSlot(slot), m_Records[slot]};
  }

  /// The last entry of a walk; nothing when the table is empty.
  std::optional<Entry> LastWalked() const {
    ComputeWalk();
    return m_Walk.empty() ? std::nullopt : std::optional<Entry>(AtWalk(m_Walk.size() - 1));
  }

  // A search names what it compares: a field of the record, or a function of it.

  /// The first entry in walk order whose `Field` equals `value`.
  template <auto Field, class Value>
  std::optional<Entry> FirstWith(const Value& value) const {
    const auto& index = IndexOf<FirstIndex<Field>>();
    const auto found = index.Slots.find(FieldValue<Field>(value));
    if (found == index.Slots.end()) {
      return std::nullopt;
    }
    return Entry{KeyOfSlot(found->second), m_Records[found->second]};
  }

  /// The same; without such an entry the last of the walk, where a search from its beginning would
  /// have ended. Nothing when the table is empty.
  template <auto Field, class Value>
  std::optional<Entry> FirstOrLastWith(const Value& value) const {
    const std::optional<Entry> first = FirstWith<Field>(value);
    return first ? first : LastWalked();
  }

  /// The walk positions, ascending, of all entries whose `Field` equals `value`. Valid until the
  /// next Insert; so also the keys.
  template <auto Field, class Value>
  std::span<const std::uint32_t> AllWith(const Value& value) const {
    return IndexOf<WalkGroupIndex<Field>>().Of(value);
  }

  /// The keys, ascending, of all entries whose `Field` equals `value`.
  template <auto Field, class Value>
  std::span<const std::uint32_t> KeysWith(const Value& value) const {
    return IndexOf<KeyGroupIndex<Field>>().Of(value);
  }

 private:
  static constexpr std::uint32_t kNoSlot = std::numeric_limits<std::uint32_t>::max();

  template <auto Field>
  using FieldValue = std::remove_cvref_t<std::invoke_result_t<decltype(Field), const Record&>>;

  struct Index {
    virtual ~Index() = default;
    Index() = default;
    Index(const Index&) = delete;
    Index& operator=(const Index&) = delete;
    virtual void BringUpToDate(const CKeyedTable& table) = 0;
  };

  /// Slot of the first entry in walk order by the value of a field. New entries are taken in one by
  /// one, so that a table may be searched and added to in turn.
  template <auto Field>
  struct FirstIndex final : Index {
    void BringUpToDate(const CKeyedTable& table) override {
      if (Replacements != table.m_Replacements) {
        Slots.clear();
        Indexed = 0;
        Replacements = table.m_Replacements;
      }
      for (; Indexed < table.Count(); ++Indexed) {
        const auto slot = static_cast<std::uint32_t>(Indexed);
        const auto [place, isNew] =
            Slots.try_emplace(std::invoke(Field, table.m_Records[slot]), slot);
        if (!isNew && table.BucketOfSlot(slot) <= table.BucketOfSlot(place->second)) {
          place->second = slot;
        }
      }
    }

    std::unordered_map<FieldValue<Field>, std::uint32_t> Slots;
    std::size_t Indexed = 0;
    std::uint64_t Replacements = 0;
  };

  /// All entries by the value of a field, made anew after a change.
  template <auto Field>
  struct GroupIndex : Index {
    void BringUpToDate(const CKeyedTable& table) override {
      if (Indexed == table.Count() && Replacements == table.m_Replacements) {
        return;
      }
      Groups.clear();
      Fill(table);
      Indexed = table.Count();
      Replacements = table.m_Replacements;
    }
    virtual void Fill(const CKeyedTable& table) = 0;

    std::span<const std::uint32_t> Of(const FieldValue<Field>& value) const {
      const auto found = Groups.find(value);
      if (found == Groups.end()) {
        return {};
      }
      return found->second;
    }

    std::unordered_map<FieldValue<Field>, std::vector<std::uint32_t>> Groups;
    std::size_t Indexed = 0;
    std::uint64_t Replacements = 0;
  };

  /// By their walk positions.
  template <auto Field>
  struct WalkGroupIndex final : GroupIndex<Field> {
    void Fill(const CKeyedTable& table) override {
      table.ComputeWalk();
      for (std::uint32_t position = 0; position < table.m_Walk.size(); ++position) {
        this->Groups[std::invoke(Field, table.AtWalk(position).Value)].push_back(position);
      }
    }
  };

  /// By their keys.
  template <auto Field>
  struct KeyGroupIndex final : GroupIndex<Field> {
    void Fill(const CKeyedTable& table) override {
      for (std::uint32_t slot = 0; slot < table.Count(); ++slot) {
        this->Groups[std::invoke(Field, table.m_Records[slot])].push_back(table.KeyOfSlot(slot));
      }
      if (table.m_Keys.empty()) {
        return;  // the keys came in order
      }
      for (auto& [value, keys] : this->Groups) {
        std::ranges::sort(keys);
      }
    }
  };

  template <class WantedIndex>
  const WantedIndex& IndexOf() const {
    for (const auto& index : m_Indexes) {
      if (auto* wanted = dynamic_cast<WantedIndex*>(index.get())) {
        wanted->BringUpToDate(*this);
        return *wanted;
      }
    }
    m_Indexes.push_back(std::make_unique<WantedIndex>());
    m_Indexes.back()->BringUpToDate(*this);
    return static_cast<const WantedIndex&>(*m_Indexes.back());
  }

  std::uint32_t KeyOfSlot(std::uint32_t slot) const {
    return m_Keys.empty() ? slot + 1 : m_Keys[slot];
  }
  std::uint32_t BucketOfSlot(std::uint32_t slot) const {
    return BucketOf(KeyOfSlot(slot), m_BucketCount);
  }

  std::uint32_t SlotOf(std::uint32_t key) const {
    if (m_Keys.empty()) {
      return key - 1 < m_Records.size() ? key - 1 : kNoSlot;
    }
    if (key < m_SlotOfKey.size()) {
      return m_SlotOfKey[key];
    }
    const auto outlier = m_SlotOfOutlier.find(key);
    return outlier == m_SlotOfOutlier.end() ? kNoSlot : outlier->second;
  }

  /// The record about to be added gets the next slot. While the keys come as 1, 2, 3, ... a key
  /// tells its slot and nothing is kept of it.
  void NoteSlotOfNewKey(std::uint32_t key) {
    const auto slot = static_cast<std::uint32_t>(m_Records.size());
    if (m_Keys.empty()) {
      if (key == slot + 1) {
        return;
      }
      for (std::uint32_t earlier = 0; earlier < slot; ++earlier) {
        m_Keys.push_back(earlier + 1);
        SetSlot(earlier + 1, earlier);
      }
    }
    m_Keys.push_back(key);
    SetSlot(key, slot);
  }

  void SetSlot(std::uint32_t key, std::uint32_t slot) {
    // Keys are as a rule row positions, so an array by key holds them; the odd key far beyond the
    // number of records must not blow it up.
    constexpr std::uint32_t kAlwaysByArray = 1U << 16U;
    if (key >= m_SlotOfKey.size() && (key < kAlwaysByArray || key / 4 < m_Records.size())) {
      const std::size_t oldSize = m_SlotOfKey.size();
      m_SlotOfKey.resize(std::max<std::size_t>(std::size_t{key} + 1, 2 * oldSize), kNoSlot);
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

  void ComputeWalk() const {
    if (m_Walk.size() == m_Records.size()) {
      return;
    }
    const auto count = static_cast<std::uint32_t>(m_Records.size());
    std::vector<std::uint32_t> next(std::size_t{m_BucketCount} + 1, 0);
    for (std::uint32_t slot = 0; slot < count; ++slot) {
      ++next[std::size_t{BucketOfSlot(slot)} + 1];
    }
    for (std::size_t bucket = 1; bucket < next.size(); ++bucket) {
      next[bucket] += next[bucket - 1];
    }
    m_Walk.resize(count);
    for (std::uint32_t slot = count; slot-- > 0;) {
      m_Walk[next[BucketOfSlot(slot)]++] = slot;
    }
  }

  std::uint32_t m_BucketCount;
  std::vector<Record> m_Records;      // in the order of their first insertion
  std::vector<std::uint32_t> m_Keys;  // by slot; empty while the keys are 1, 2, 3, ...
  std::vector<std::uint32_t> m_SlotOfKey;
  std::unordered_map<std::uint32_t, std::uint32_t> m_SlotOfOutlier;
  std::uint64_t m_Replacements = 0;
  mutable std::vector<std::uint32_t> m_Walk;  // slots in walk order
  mutable std::vector<std::unique_ptr<Index>> m_Indexes;
};

/// The record that a look-up by key found, or what a key without a record stands for.
template <class Record>
const Record& RecordOr(const Record* found, const Record& fallback) {
  return found == nullptr ? fallback : *found;
}

}  // namespace s2k2ngt
