#pragma once

#include "common/keyed_table.h"
#include "common/text.h"
#include "target/line_writer.h"

#include <cstdint>
#include <span>

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

/// Opens the use of a load case.
inline void WriteUseOf(LineWriter& out, Text loadCase) {
  out.WriteLine("%s, %10s\n\n", "*USE-STLD", loadCase);
}

/// Closes it.
inline void WriteEndOf(LineWriter& out, Text loadCase) {
  out.WriteLine(";End of data for load case [%s]\n\n", loadCase);
}

/// Writes what `write` gives for each of the places, in the frame of a load case; nothing at all
/// when there are none. `head` is the command line and the comments behind it.
template <class Write>
void WriteInFrame(LineWriter& out, Text loadCase, Text head, std::span<const std::uint32_t> places,
                  Write write) {
  if (places.empty()) {
    return;
  }
  WriteUseOf(out, loadCase);
  out.WriteLine("%s", head);
  for (const std::uint32_t place : places) {
    write(place);
  }
  WriteEndOf(out, loadCase);
}

/// Writes the loads of a case, by their field `LoadCase`, in walk order.
template <auto LoadCase, class Load, class WriteLoad>
void WriteLoadsInWalkOrder(LineWriter& out, Text loadCase, Text head,
                           const CKeyedTable<Load>& loads, WriteLoad writeLoad) {
  WriteInFrame(out, loadCase, head, loads.template AllWith<LoadCase>(loadCase),
               [&](std::uint32_t position) { writeLoad(loads.AtWalk(position).Value); });
}

/// The same in the order of their keys.
template <auto LoadCase, class Load, class WriteLoad>
void WriteLoadsByKey(LineWriter& out, Text loadCase, Text head, const CKeyedTable<Load>& loads,
                     WriteLoad writeLoad) {
  WriteInFrame(out, loadCase, head, loads.template KeysWith<LoadCase>(loadCase),
               [&](std::uint32_t key) { writeLoad(*loads.Find(key)); });
}

}  // namespace s2k2ngt
