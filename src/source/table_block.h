#pragma once

#include "common/text.h"
#include "source/str_parser.h"

#include <cstdint>
#include <span>

namespace s2k2ngt {

/// A block of rows as it stands in the file.
struct TableBlock {
  int TableId;         // 0 for a title that is not known
  Text Title;          // what stands between the quotes of the title line
  std::uint64_t Line;  // of the title
  std::span<const SourceRow> Rows;
  /// The last title that stands inside the block, and its line: its rows are those below it. Empty
  /// for nearly all blocks.
  Text FurtherTitle = {};
  std::uint64_t FurtherLine = 0;
};

/// By what rows are lost before a block is whole.
enum class RowsLost {
  ToFurtherTitle,  ///< a title without an empty line before it: the block starts over
  WithoutEnd,      ///< the block's last row, whose end is missing
  ToEndOfScan,     ///< the scan ended inside the block
};

}  // namespace s2k2ngt
