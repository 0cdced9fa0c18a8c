#pragma once

#include "common/key_order.h"
#include "common/number_hash.h"
#include "common/text.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <numeric>
#include <optional>
#include <span>
#include <type_traits>
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

  /// Makes room for `count` records in all, with keys up to that count.
  void Reserve(std::size_t count) {
    m_Records.reserve(count);
    m_Keys.Reserve(count);
  }

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

  /// Entries one after the other; `At` gives that of a position.
  template <Entry (CKeyedTable::*At)(std::size_t) const>
  class Range {
   public:
    class Iterator {
     public:
      Iterator(const CKeyedTable& table, std::size_t position)
          : m_Table(&table), m_Position(position) {}
      Entry operator*() const { return (m_Table->*At)(m_Position); }
      Iterator& operator++() {
        ++m_Position;
        return *this;
      }
      bool operator==(const Iterator& other) const = default;

     private:
      const CKeyedTable* m_Table;
      std::size_t m_Position;
    };

    explicit Range(const CKeyedTable& table) : m_Table(table) {}
    Iterator begin() const { return {m_Table, 0}; }
    Iterator end() const { return {m_Table, m_Table.Count()}; }

   private:
    const CKeyedTable& m_Table;
  };

  /// All entries, in walk order.
  auto Walk() const { return Range<&CKeyedTable::AtWalk>(*this); }

  /// All entries in the order of their first insertion, which is the quickest: for what does not
  /// depend on an order.
  auto Entries() const { return Range<&CKeyedTable::AtSlot>(*this); }

  /// The entry that a walk reaches at `position`, from 0 and below the count of records.
  Entry AtWalk(std::size_t position) const { return AtSlot(m_Keys.Walk()[position]); }

  /// The last entry of a walk; nothing when the table is empty.
  std::optional<Entry> LastWalked() const {
    return Empty() ? std::nullopt : std::optional<Entry>(AtWalk(Count() - 1));
  }

  // A search names what it compares: a field of the record, or a function of it.

  /// The first entry in walk order whose `Field` equals `value`.
  template <auto Field, class Value>
  std::optional<Entry> FirstWith(const Value& value) const {
    if (Empty()) {
      return std::nullopt;
    }
    const std::uint32_t slot = IndexOf<FirstIndex<Field>>().Find(*this, value);
    return slot == KeyOrder::kNoSlot ? std::nullopt : std::optional(AtSlot(slot));
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
    return GroupIn<WalkGroupIndex<Field>>(value);
  }

  /// The keys, ascending, of all entries whose `Field` equals `value`.
  template <auto Field, class Value>
  std::span<const std::uint32_t> KeysWith(const Value& value) const {
    return GroupIn<KeyGroupIndex<Field>>(value);
  }

 private:
  template <auto Field>
  using FieldValue = std::remove_cvref_t<std::invoke_result_t<decltype(Field), const Record&>>;

  struct Index {
    virtual ~Index() = default;
    explicit Index(const void* kind) : Kind(kind) {}
    Index(const Index&) = delete;
    Index& operator=(const Index&) = delete;

    const void* Kind;
    std::size_t Indexed = 0;
    std::uint64_t Replacements = 0;
  };

  /// Slot of the first entry in walk order by the value of a field. New entries are taken in one by
  /// one, so that a table may be searched and added to in turn.
  template <auto Field>
  struct FirstIndex final : Index {
    using Index::Index;

    void BringUpToDate(const CKeyedTable& table) {
      if (this->Replacements != table.m_Replacements) {
        Slots.Clear();
        this->Indexed = 0;
        this->Replacements = table.m_Replacements;
      }
      if (this->Indexed == 0) {
        Slots.Reserve(table.Count());
      }
      for (; this->Indexed < table.Count(); ++this->Indexed) {
        const auto slot = static_cast<std::uint32_t>(this->Indexed);
        const auto& value = std::invoke(Field, table.m_Records[slot]);
        std::uint32_t& first = Slots.FindOrAdd(LookUpHash(value), slot, [&](std::uint32_t known) {
          return std::invoke(Field, table.m_Records[known]) == value;
        });
        if (first != slot && table.m_Keys.BucketOfSlot(slot) <= table.m_Keys.BucketOfSlot(first)) {
          first = slot;
        }
      }
    }

    std::uint32_t Find(const CKeyedTable& table, const FieldValue<Field>& value) const {
      return Slots.Find(LookUpHash(value), [&](std::uint32_t slot) {
        return std::invoke(Field, table.m_Records[slot]) == value;
      });
    }

    NumberHash Slots;
  };

  /// All entries by the value of a field, made anew after a change.
  template <auto Field>
  struct GroupIndex : Index {
    using Index::Index;

    /// Takes in all entries, the one at each position under the number that `number` gives it.
    template <class At, class Number>
    void Fill(const CKeyedTable& table, At at, Number number) {
      const auto count = static_cast<std::uint32_t>(table.Count());
      Groups.Clear();
      Firsts.clear();
      Begins.assign(1, 0);
      std::vector<std::uint32_t> groupAt(count);
      for (std::uint32_t position = 0; position < count; ++position) {
        const std::uint32_t slot = at(position);
        const auto& value = std::invoke(Field, table.m_Records[slot]);
        const auto newGroup = static_cast<std::uint32_t>(Firsts.size());
        const std::uint32_t group =
            Groups.FindOrAdd(LookUpHash(value), newGroup, [&](std::uint32_t known) {
              return std::invoke(Field, table.m_Records[Firsts[known]]) == value;
            });
        if (group == newGroup) {
          Firsts.push_back(slot);
          Begins.push_back(0);
        }
        groupAt[position] = group;
        ++Begins[group + 1];
      }
      std::partial_sum(Begins.begin(), Begins.end(), Begins.begin());
      std::vector<std::uint32_t> next(Begins.begin(), Begins.end() - 1);
      Members.resize(count);
      for (std::uint32_t position = 0; position < count; ++position) {
        Members[next[groupAt[position]]++] = number(position);
      }
      this->Indexed = count;
      this->Replacements = table.m_Replacements;
    }

    bool IsUpToDate(const CKeyedTable& table) const {
      return this->Indexed == table.Count() && this->Replacements == table.m_Replacements;
    }

    std::span<const std::uint32_t> Find(const CKeyedTable& table,
                                        const FieldValue<Field>& value) const {
      const std::uint32_t group = Groups.Find(LookUpHash(value), [&](std::uint32_t known) {
        return std::invoke(Field, table.m_Records[Firsts[known]]) == value;
      });
      if (group == NumberHash::kNone) {
        return {};
      }
      return std::span(Members).subspan(Begins[group], Begins[group + 1] - Begins[group]);
    }

    NumberHash Groups;
    std::vector<std::uint32_t> Firsts;   // a slot of each group
    std::vector<std::uint32_t> Begins;   // of each group in Members, and the end of the last
    std::vector<std::uint32_t> Members;  // one group behind the other
  };

  /// By their walk positions.
  template <auto Field>
  struct WalkGroupIndex final : GroupIndex<Field> {
    using GroupIndex<Field>::GroupIndex;

    void BringUpToDate(const CKeyedTable& table) {
      if (!this->IsUpToDate(table)) {
        this->Fill(
            table, [&](std::uint32_t position) { return table.m_Keys.Walk()[position]; },
            [](std::uint32_t position) { return position; });
      }
    }
  };

  /// By their keys.
  template <auto Field>
  struct KeyGroupIndex final : GroupIndex<Field> {
    using GroupIndex<Field>::GroupIndex;

    void BringUpToDate(const CKeyedTable& table) {
      if (!this->IsUpToDate(table)) {
        const std::vector<std::uint32_t> slots = table.m_Keys.SlotsByKey();
        this->Fill(
            table, [&](std::uint32_t position) { return slots[position]; },
            [&](std::uint32_t position) { return table.m_Keys.KeyOf(slots[position]); });
      }
    }
  };

  template <class GroupsIndex, class Value>
  std::span<const std::uint32_t> GroupIn(const Value& value) const {
    return Empty() ? std::span<const std::uint32_t>() : IndexOf<GroupsIndex>().Find(*this, value);
  }

  template <class WantedIndex>
  const WantedIndex& IndexOf() const {
    static constexpr char kind = 0;  // its address tells the indexes apart
    for (const auto& index : m_Indexes) {
      if (index->Kind == &kind) {
        auto& wanted = static_cast<WantedIndex&>(*index);
        wanted.BringUpToDate(*this);
        return wanted;
      }
    }
    auto index = std::make_unique<WantedIndex>(&kind);
    index->BringUpToDate(*this);
    const WantedIndex& wanted = *index;
    m_Indexes.push_back(std::move(index));
    return wanted;
  }

  Entry AtSlot(std::size_t slot) const {
    return {m_Keys.KeyOf(static_cast<std::uint32_t>(slot)), m_Records[slot]};
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
