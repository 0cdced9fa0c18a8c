#pragma once

#include "common/key_order.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

namespace s2k2ngt {

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

  explicit CKeyedTable(std::uint32_t bucketCount = kInitialBuckets) : m_Keys(bucketCount) {}

  /// Stores `record` under `key`.
  void Insert(std::uint32_t key, Record record) {
    const std::uint32_t slot = m_Keys.SlotOf(key);
    if (slot != KeyOrder::kNoSlot) {
      m_Records[slot] = std::move(record);
      ++m_Replacements;
      return;
    }
    m_Keys.Append(key);
    m_Records.push_back(std::move(record));
  }

  /// Stores `record` under the count of records plus 1, which is a new key while all keys came so.
  void Append(Record record) {
    Insert(static_cast<std::uint32_t>(m_Records.size()) + 1, std::move(record));
  }

  std::size_t Count() const { return m_Records.size(); }
  bool Empty() const { return m_Records.empty(); }

  /// The record of `key`, or null. Valid until the next Insert.
  const Record* Find(std::uint32_t key) const {
    const std::uint32_t slot = m_Keys.SlotOf(key);
    return slot == KeyOrder::kNoSlot ? nullptr : &m_Records[slot];
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
    return {WalkIterator(*this, 0), WalkIterator(*this, m_Keys.Walk().size())};
  }

  /// The entry that a walk reaches at `position`, from 0. Only for positions that Walk or AllWith
  /// gave since the last Insert.
  Entry AtWalk(std::size_t position) const {
    const std::uint32_t slot = m_Keys.Walk()[position];
    return {m_Keys.KeyOf(slot), m_Records[slot]};
  }

  /// The last entry of a walk; nothing when the table is empty.
  std::optional<Entry> LastWalked() const {
    return Empty() ? std::nullopt : std::optional<Entry>(AtWalk(Count() - 1));
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
    return Entry{m_Keys.KeyOf(found->second), m_Records[found->second]};
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
        if (!isNew && table.m_Keys.BucketOfSlot(slot) <= table.m_Keys.BucketOfSlot(place->second)) {
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
      for (std::uint32_t position = 0; position < table.Count(); ++position) {
        this->Groups[std::invoke(Field, table.AtWalk(position).Value)].push_back(position);
      }
    }
  };

  /// By their keys.
  template <auto Field>
  struct KeyGroupIndex final : GroupIndex<Field> {
    void Fill(const CKeyedTable& table) override {
      for (std::uint32_t slot = 0; slot < table.Count(); ++slot) {
        this->Groups[std::invoke(Field, table.m_Records[slot])].push_back(table.m_Keys.KeyOf(slot));
      }
      if (table.m_Keys.CameInOrder()) {
        return;
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

  std::vector<Record> m_Records;  // by slot, in the order of their first insertion
  KeyOrder m_Keys;
  std::uint64_t m_Replacements = 0;
  mutable std::vector<std::unique_ptr<Index>> m_Indexes;
};

/// The record that a look-up by key found, or what a key without a record stands for.
template <class Record>
const Record& RecordOr(const Record* found, const Record& fallback) {
  return found == nullptr ? fallback : *found;
}

}  // namespace s2k2ngt
