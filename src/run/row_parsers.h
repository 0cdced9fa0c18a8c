#pragma once

#include "common/messages.h"
#include "source/model.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace s2k2ngt {

/// The parser of the rows that a stored table of the catalogue holds; null for a table that nothing
/// reads, whose rows are then passed over.
RowParser FindRowParser(Text recordName);

/// What the conversion takes from a table.
struct TableUse {
  /// The keys of its rows; none for a table whose rows nothing reads.
  std::span<const KeyUse> Keys;
  /// The message about a table for which the target has no like.
  std::optional<MessageKey> Lost;
  /// True for a table that is looked at and not converted.
  bool IsChecked = false;
  /// Gives the label by which people know a row that the model holds: the first text of its keys,
  /// as "Joint=12". Null where the model keeps none of them.
  std::string (*Label)(CModel& model, std::uint32_t key) = nullptr;
};

/// The use of a stored table of the catalogue, as its record declares it; nothing for a table that
/// nothing reads.
std::optional<TableUse> UseOfTable(Text recordName);

}  // namespace s2k2ngt
