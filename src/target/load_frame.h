#pragma once

#include "common/keyed_table.h"
#include "common/text.h"
#include "target/line_writer.h"

#include <initializer_list>
#include <vector>

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
// The tables are grouped by load case when the first case is written, so that all cases together
// cost one pass over the loads.

/// The loads of a case in walk order.
template <auto LoadCase, class Load>
std::vector<const Load*> LoadsInWalkOrder(const CKeyedTable<Load>& loads, Text loadCase) {
  std::vector<const Load*> found;
  for (const std::uint32_t position : loads.template AllWith<LoadCase>(loadCase)) {
    found.push_back(&loads.AtWalk(position).Value);
  }
  return found;
}

/// The loads of a case in the order of their keys.
template <auto LoadCase, class Load>
std::vector<const Load*> LoadsByKey(const CKeyedTable<Load>& loads, Text loadCase) {
  std::vector<const Load*> found;
  for (const std::uint32_t key : loads.template KeysWith<LoadCase>(loadCase)) {
    found.push_back(loads.Find(key));
  }
  return found;
}

/// Opens the use of a load case.
inline void WriteUseOf(LineWriter& out, Text loadCase) {
  out.WriteLine("%s, %10s\n\n", "*USE-STLD", loadCase);
}

/// Writes the loads of a case in their frame; nothing at all when there are none. `head` is the
/// command line and the comments behind it.
template <class Load, class WriteLoad>
void WriteLoads(LineWriter& out, Text loadCase, std::initializer_list<Text> head,
                const std::vector<const Load*>& loads, WriteLoad writeLoad) {
  if (loads.empty()) {
    return;
  }
  WriteUseOf(out, loadCase);
  for (const Text line : head) {
    out.WriteLine("%s\n", line);
  }
  for (const Load* load : loads) {
    writeLoad(*load);
  }
  out.WriteLine(";End of data for load case [%s]\n", loadCase);
  out.WriteLine("\n");
}

}  // namespace s2k2ngt
