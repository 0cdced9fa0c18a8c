// Records by key, inserted as they come in a file and in the order of a walk over another table.
#include "common/keyed_table.h"
#include "joints/nodes.h"
#include "micro.h"
#include "support/chained_hash.h"
#include "target/ngt_model.h"

#include <memory>
#include <numeric>
#include <string>
#include <unordered_map>
#include <vector>

namespace s2k2ngt::micro {
namespace {

using Keys = std::vector<std::uint32_t>;

T_NGT_NODE_D RecordOf(std::uint32_t key) { return {"", key * 0.25, key * 0.5, 0}; }

// The three ways, under the names that the measurements ask for. `use` gets a field of each record
// that is met.

struct OurTable {
  explicit OurTable(std::size_t count) : Records(kTargetBuckets) { Records.Reserve(count); }
  void Insert(std::uint32_t key) { Records.Insert(key, RecordOf(key)); }
  const T_NGT_NODE_D* Find(std::uint32_t key) const { return Records.Find(key); }
  void Walk(auto use) const {
    for (const auto [key, record] : Records.Walk()) {
      use(record.X);
    }
  }
  CKeyedTable<T_NGT_NODE_D> Records;
};

/// Its walk has an order of its own.
struct StandardTable {
  explicit StandardTable(std::size_t count) { Records.reserve(count); }
  void Insert(std::uint32_t key) { Records.insert_or_assign(key, RecordOf(key)); }
  const T_NGT_NODE_D* Find(std::uint32_t key) const {
    const auto found = Records.find(key);
    return found == Records.end() ? nullptr : &found->second;
  }
  void Walk(auto use) const {
    for (const auto& [key, record] : Records) {
      use(record.X);
    }
  }
  std::unordered_map<std::uint32_t, T_NGT_NODE_D> Records;
};

struct ChainedTable {
  explicit ChainedTable(std::size_t /*count*/) : Records(kTargetBuckets) {}
  void Insert(std::uint32_t key) { Records.Insert(key, RecordOf(key)); }
  const T_NGT_NODE_D* Find(std::uint32_t key) const { return Records.Find(key); }
  void Walk(auto use) const {
    for (const auto& chain : Records.Buckets()) {
      for (const auto& [key, record] : chain) {
        use(record.X);
      }
    }
  }
  ChainedHash<T_NGT_NODE_D> Records;
};

template <class Table>
Table Filled(const Keys& keys) {
  Table table(keys.size());
  for (const std::uint32_t key : keys) {
    table.Insert(key);
  }
  return table;
}

template <class Table>
struct Ways {
  const char* Name = nullptr;
  std::shared_ptr<const Keys> Inserted;
  std::shared_ptr<const Keys> Sought;
  std::shared_ptr<const Table> Full = std::make_shared<const Table>(Filled<Table>(*Inserted));

  auto Insert() const {
    return Way{Name, [keys = Inserted](auto use) {
                 const auto table = Filled<Table>(*keys);
                 use(table.Find(keys->back())->X);
               }};
  }
  /// With what is done for the first walk over a table.
  auto InsertAndWalk() const {
    return Way{Name, [keys = Inserted](auto use) { Filled<Table>(*keys).Walk(use); }};
  }
  auto Find() const {
    return Way{Name, [keys = Sought, table = Full](auto use) {
                 for (const std::uint32_t key : *keys) {
                   use(table->Find(key)->X);
                 }
               }};
  }
  auto Walk() const {
    return Way{Name, [table = Full](auto use) { table->Walk(use); }};
  }
};

template <class... Tables>
void AddWays(const std::string& subject, std::size_t count, const Ways<Tables>&... ways) {
  const Load load = {count};
  Compare("table/insert/" + subject, load, ways.Insert()...);
  Compare("table/insert+walk/" + subject, load, ways.InsertAndWalk()...);
  Compare("table/find/" + subject, load, ways.Find()...);
  Compare("table/walk/" + subject, load, ways.Walk()...);
}

void AddKeys(const std::string& order, Keys keys) {
  constexpr std::size_t kShortChains = 30'000;
  Keys shuffled = keys;
  Random().Shuffle(shuffled);
  const auto inserted = std::make_shared<const Keys>(std::move(keys));
  const auto sought = std::make_shared<const Keys>(std::move(shuffled));
  const std::size_t count = inserted->size();
  const std::string subject = std::to_string(count) + '/' + order;
  const Ways<OurTable> ours = {"CKeyedTable", inserted, sought};
  const Ways<StandardTable> standard = {"unordered_map", inserted, sought};
  if (count <= kShortChains) {
    AddWays(subject, count, ours, standard, Ways<ChainedTable>{"chained", inserted, sought});
  } else {
    AddWays(subject, count, ours, standard);
  }
}

}  // namespace

void AddTables() {
  for (const std::uint32_t count : kCounts) {
    Keys inOrder(count);
    std::iota(inOrder.begin(), inOrder.end(), 1U);
    Keys inWalkOrder;
    const auto table = Filled<OurTable>(inOrder);
    for (const auto [key, record] : table.Records.Walk()) {
      inWalkOrder.push_back(key);
    }
    AddKeys("in_order", std::move(inOrder));
    AddKeys("in_walk_order", std::move(inWalkOrder));
  }
}

}  // namespace s2k2ngt::micro
