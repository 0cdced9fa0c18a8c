#pragma once

#include "common/keyed_table.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace s2k2ngt {

/// One keyed table for each kind of record, or the one record of a kind that has no more, made when
/// first asked for. References to a table and to such a record stay valid as long as the set.
class RecordTables {
 public:
  /// The table of the records; `bucketCount` is that of a table made now.
  template <class Record>
  CKeyedTable<Record>& Of(std::uint32_t bucketCount) {
    std::unique_ptr<Any>& table = PlaceOf<TableOf<Record>>();
    if (table == nullptr) {
      table = std::make_unique<TableOf<Record>>(bucketCount);
    }
    return static_cast<TableOf<Record>&>(*table).Records;
  }

  /// The record of a kind that has only one.
  template <class Record>
  Record& Only() {
    std::unique_ptr<Any>& only = PlaceOf<OnlyOf<Record>>();
    if (only == nullptr) {
      only = std::make_unique<OnlyOf<Record>>();
    }
    return static_cast<OnlyOf<Record>&>(*only).Value;
  }

 private:
  struct Any {
    Any() = default;
    virtual ~Any() = default;
    Any(const Any&) = delete;
    Any& operator=(const Any&) = delete;
  };
  template <class Record>
  struct TableOf : Any {
    explicit TableOf(std::uint32_t bucketCount) : Records(bucketCount) {}
    CKeyedTable<Record> Records;
  };
  template <class Record>
  struct OnlyOf : Any {
    Record Value;
  };

  /// Where the set keeps its contents of a kind; null at first.
  template <class Contents>
  std::unique_ptr<Any>& PlaceOf() {
    static const std::size_t number = s_Kinds++;  // the same in all sets
    if (number >= m_Contents.size()) {
      m_Contents.resize(number + 1);
    }
    return m_Contents[number];
  }

  static inline std::atomic<std::size_t> s_Kinds = 0;
  std::vector<std::unique_ptr<Any>> m_Contents;
};

}  // namespace s2k2ngt
