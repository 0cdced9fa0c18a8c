#pragma once

#include "common/text.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

namespace s2k2ngt {

// ---- Source rows ----

/// Connectivity of a solid. So far its label alone is read.
struct T_CNSL_D {
  static constexpr Text kTable = "T_CNSL_D";
  Text Solid;
};

template <>
inline constexpr std::tuple kRowKeys<T_CNSL_D>{Key{"Solid=", &T_CNSL_D::Solid}};

// ---- Conversion ----

/// Notes the labels of the solids, which take part in the numbering of all elements.
bool NoteSolidLabels(Conversion& run);

}  // namespace s2k2ngt
