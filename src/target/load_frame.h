#pragma once

#include "common/keyed_table.h"
#include "common/text.h"
#include "target/line_writer.h"

#include <cstdint>
#include <initializer_list>
#include <ranges>

namespace s2k2ngt {

// Static loads are written case by case, and each command frames its loads of a case itself:
//
//   *USE-STLD,       DEAD
//
//   *CONLOAD    ; Nodal Loads
//   ;NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP
//   	1,     0,     0,   -10,     0,     0,     0,
//   ;End of data for load case [DEAD]
//
// A table is grouped by load case when the first case is written, so that the cases together cost
// one pass over it.

/// The loads of a case in walk order.
template <auto LoadCase, class Load>
auto LoadsInWalkOrder(const CKeyedTable<Load>& loads, Text loadCase) {
  return loads.template AllWith<LoadCase>(loadCase) |
         std::views::transform([&loads](std::uint32_t position) -> const Load& {
           return loads.AtWalk(position).Value;
         });
}

/// The loads of a case in the order of their keys.
template <auto LoadCase, class Load>
auto LoadsByKey(const CKeyedTable<Load>& loads, Text loadCase) {
  return loads.template KeysWith<LoadCase>(loadCase) |
         std::views::transform(
             [&loads](std::uint32_t key) -> const Load& { return *loads.Find(key); });
}

/// Opens the use of a load case.
inline void WriteUseOf(LineWriter& out, Text loadCase) {
  out.WriteLine("%s, %10s\n\n", "*USE-STLD", loadCase);
}

/// Writes the loads of a case in their frame; nothing at all when there are none. `head` is the
/// command line and the comments behind it.
template <class Loads, class WriteLoad>
void WriteLoads(LineWriter& out, Text loadCase, std::initializer_list<Text> head,
                const Loads& loads, WriteLoad writeLoad) {
  if (loads.empty()) {
    return;
  }
  WriteUseOf(out, loadCase);
  for (const Text line : head) {
    out.WriteLine("%s\n", line);
  }
  for (const auto& load : loads) {
    writeLoad(load);
  }
  out.WriteLine(";End of data for load case [%s]\n", loadCase);
  out.WriteLine("\n");
}

}  // namespace s2k2ngt
