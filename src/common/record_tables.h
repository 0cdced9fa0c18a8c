#pragma once

#include "common/keyed_table.h"

#include <cstdint>
#include <memory>
#include <typeindex>
#include <unordered_map>

namespace s2k2ngt {

/// One keyed table for each kind of record, made when first asked for. References to a table stay
/// valid as long as the set.
class RecordTables {
 public:
  /// The table of the records; `bucketCount` is that of a table made now.
  template <class Record>
  CKeyedTable<Record>& Of(std::uint32_t bucketCount) {
    std::unique_ptr<AnyTable>& table = m_Tables[typeid(Record)];
    if (table == nullptr) {
      table = std::make_unique<TableOf<Record>>(bucketCount);
    }
    return static_cast<TableOf<Record>&>(*table).Records;
  }

 private:
  struct AnyTable {
    AnyTable() = default;
    virtual ~AnyTable() = default;
    AnyTable(const AnyTable&) = delete;
    AnyTable& operator=(const AnyTable&) = delete;
  };
  template <class Record>
  struct TableOf : AnyTable {
    explicit TableOf(std::uint32_t bucketCount) : Records(bucketCount) {}
    CKeyedTable<Record> Records;
  };

  std::unordered_map<std::type_index, std::unique_ptr<AnyTable>> m_Tables;
};

}  // namespace s2k2ngt
