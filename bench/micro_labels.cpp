// Records by label: the first with it, and all with it.
#include "common/keyed_table.h"
#include "joints/nodes.h"
#include "loads/joint_loads.h"
#include "micro.h"
#include "pieces.h"
#include "target/ngt_model.h"

#include <memory>
#include <numeric>
#include <string>
#include <unordered_map>
#include <vector>

namespace s2k2ngt::micro {
namespace {

using Numbers = std::vector<std::uint32_t>;

Text Label(TextStore& texts, Text prefix, std::uint32_t number) {
  std::string label;
  AppendPieces(label, prefix, number);
  return texts.Keep(label);
}

// A replaced record has the indexes of its table made anew, which is how that is measured.
void ForgetIndexes(auto& table) { table.Insert(1, *table.Find(1)); }

// ---- The first with a label ----

/// Joints, and their labels in the order in which other tables name them.
struct Joints {
  Joints(Text prefix, const Numbers& sought) {
    Table.Reserve(sought.size());
    for (std::uint32_t i = 1; i <= sought.size(); ++i) {
      Table.Append({.Joint = Label(Texts, prefix, i), .XorR = i * 0.25});
    }
    for (const std::uint32_t number : sought) {
      Sought.push_back(Label(Texts, prefix, number));
    }
    Standard = MapLabels();
  }

  std::unordered_map<Text, const T_JTCD_D*> MapLabels() const {
    std::unordered_map<Text, const T_JTCD_D*> joints;
    joints.reserve(Table.Count());
    for (const T_JTCD_D& joint : Table.Records()) {
      joints.emplace(joint.Joint, &joint);
    }
    return joints;
  }

  TextStore Texts;
  std::vector<Text> Sought;
  CKeyedTable<T_JTCD_D> Table{kTargetBuckets};
  std::unordered_map<Text, const T_JTCD_D*> Standard;
};

void AddFirst(const std::string& subject, const std::shared_ptr<Joints>& joints) {
  const Load load = {joints->Sought.size()};
  Compare("label/index/" + subject, load,
          Way{"FirstWith",
              [joints](auto use) {
                ForgetIndexes(joints->Table);
                use(joints->Table.FirstWith<&T_JTCD_D::Joint>(joints->Sought[0])->Value.XorR);
              }},
          Way{"unordered_map", [joints](auto use) {
                const auto map = joints->MapLabels();
                use(map.find(joints->Sought[0])->second->XorR);
              }});
  Compare("label/first/" + subject, load,
          Way{"FirstWith",
              [joints](auto use) {
                for (const Text label : joints->Sought) {
                  use(joints->Table.FirstWith<&T_JTCD_D::Joint>(label)->Value.XorR);
                }
              }},
          Way{"unordered_map", [joints](auto use) {
                for (const Text label : joints->Sought) {
                  use(joints->Standard.find(label)->second->XorR);
                }
              }});
}

// ---- All with a label ----

/// Loads of joints that go from case to case.
struct Loads {
  Loads(std::uint32_t count, std::uint32_t cases) {
    for (std::uint32_t i = 1; i <= cases; ++i) {
      Cases.push_back(Label(Texts, "L", i));
    }
    Table.Reserve(count);
    for (std::uint32_t i = 0; i < count; ++i) {
      T_JTLF_D load;
      load.LoadCase = Cases[i % Cases.size()];
      Table.Append(load);
    }
    Standard = MapCases();
  }

  /// The walk positions by case.
  std::unordered_map<Text, Numbers> MapCases() const {
    std::unordered_map<Text, Numbers> positions;
    for (std::uint32_t position = 0; position < Table.Count(); ++position) {
      positions[Table.AtWalk(position).Value.LoadCase].push_back(position);
    }
    return positions;
  }

  TextStore Texts;
  std::vector<Text> Cases;
  CKeyedTable<T_JTLF_D> Table{kTargetBuckets};
  std::unordered_map<Text, Numbers> Standard;
};

void AddAll(std::uint32_t count, std::uint32_t cases) {
  const auto loads = std::make_shared<Loads>(count, cases);
  const Load load = {count};
  const std::string subject = std::to_string(count) + "/of_" + std::to_string(cases) + "_cases";
  Compare("label/group/" + subject, load,
          Way{"AllWith",
              [loads](auto use) {
                ForgetIndexes(loads->Table);
                use(loads->Table.AllWith<&T_JTLF_D::LoadCase>(loads->Cases[0]).size());
              }},
          Way{"unordered_map", [loads](auto use) {
                const auto map = loads->MapCases();
                use(map.find(loads->Cases[0])->second.size());
              }});
  Compare("label/all/" + subject, load,
          Way{"AllWith",
              [loads](auto use) {
                for (const Text name : loads->Cases) {
                  for (const auto position : loads->Table.AllWith<&T_JTLF_D::LoadCase>(name)) {
                    use(position);
                  }
                }
              }},
          Way{"unordered_map", [loads](auto use) {
                for (const Text name : loads->Cases) {
                  for (const auto position : loads->Standard.find(name)->second) {
                    use(position);
                  }
                }
              }});
}

}  // namespace

void AddLabels() {
  for (const std::uint32_t count : kCounts) {
    Numbers inOrder(count);
    std::iota(inOrder.begin(), inOrder.end(), 1U);
    Numbers shuffled = inOrder;
    Random().Shuffle(shuffled);
    for (const auto* const prefix : {"", "J"}) {
      const std::string subject = std::to_string(count) + '/' + prefix + "1..n/";
      AddFirst(subject + "in_order", std::make_shared<Joints>(prefix, inOrder));
      AddFirst(subject + "shuffled", std::make_shared<Joints>(prefix, shuffled));
    }
  }
  for (const std::uint32_t count : {30'000U, 400'000U}) {
    for (const std::uint32_t cases : {1U, 100U, 10'000U}) {
      AddAll(count, cases);
    }
  }
}

}  // namespace s2k2ngt::micro
