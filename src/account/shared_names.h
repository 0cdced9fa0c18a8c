#pragma once

#include "common/numbers.h"
#include "target/conversion.h"

#include <cstdint>
#include <functional>

namespace s2k2ngt {

/// Notes the rows of which a search for their name meets another.
template <auto Name, class Row>
void NoteSharedNames(Conversion& run) {
  const auto& rows = run.Source.Rows<Row>();
  // Rows that are numbered from 1, as a rule, need no search.
  std::uint32_t numbered = 0;
  for (const auto [key, row] : rows.Entries()) {
    const Text name = std::invoke(Name, row);
    const bool isPlain = !name.empty() && name.front() != '0' && IsAllDigits(name);
    if (!isPlain || ParseInteger(name) != static_cast<std::int32_t>(key)) {
      break;
    }
    ++numbered;
  }
  if (numbered == rows.Count()) {
    return;
  }
  for (const auto [key, row] : rows.Entries()) {
    if (rows.template FirstWith<Name>(std::invoke(Name, row))->Key != key) {
      run.Accounts.Note<Row>(key, "name-used-twice");
    }
  }
}

}  // namespace s2k2ngt
