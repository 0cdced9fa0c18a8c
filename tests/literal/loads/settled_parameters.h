#pragma once

#include "common/keyed_table.h"
#include "common/text.h"

// Parameters are appended each time that their load is met.

namespace s2k2ngt {

template <class Parameters>
bool AreSettled(const CKeyedTable<Parameters>& /*table*/, Text /*load*/) {
  return false;
}

}  // namespace s2k2ngt
