#pragma once

#include "source/model.h"

namespace s2k2ngt {

/// The parser of the rows that a stored table of the catalogue holds; null for a table that nothing
/// reads, whose rows are then passed over.
RowParser FindRowParser(Text recordName);

}  // namespace s2k2ngt
