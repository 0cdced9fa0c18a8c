#pragma once

#include "common/keyed_table.h"
#include "joints/nodes.h"
#include "target/conversion.h"

#include <cstdint>
#include <functional>
#include <span>

namespace s2k2ngt {

// Questions that the accounts of areas, solids, links and their loads have in common.

/// True when a search for the row's name meets this row, and not another one of the name.
template <auto Name, class Record>
bool IsTheOneMet(const CKeyedTable<Record>& rows, std::uint32_t key, const Record& row) {
  return rows.template FirstWith<Name>(std::invoke(Name, row))->Key == key;
}

/// Notes of an element of which a joint is not there that it has no node in its place.
template <class Element>
void NoteUnknownJoints(Conversion& run, std::uint32_t key, std::span<const Text> joints) {
  const auto& known = run.Source.Rows<T_JTCD_D>();
  for (const Text joint : joints) {
    if (!known.FirstWith<&T_JTCD_D::Joint>(joint)) {
      run.Accounts.Note<Element>(key, "end-or-corner-unknown");
      return;
    }
  }
}

}  // namespace s2k2ngt
