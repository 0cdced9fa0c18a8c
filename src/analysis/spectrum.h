#pragma once

#include "common/text.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

namespace s2k2ngt {

// ---- Source rows ----

// Response spectrum functions of codes that the target does not have; the stages only ask whether
// there are any.

struct T_FRSB_D {  // BOCA 96
  static constexpr Text kTable = "T_FRSB_D";
};
struct T_FRSF_D {  // from a file
  static constexpr Text kTable = "T_FRSF_D";
};
struct T_FRSH_D {  // NEHRP 97
  static constexpr Text kTable = "T_FRSH_D";
};
struct T_FRSZ_D {  // NZS 4203
  static constexpr Text kTable = "T_FRSZ_D";
};

template <>
inline constexpr NoRowKeys<T_FRSB_D> kRowKeys<T_FRSB_D>{};
template <>
inline constexpr NoRowKeys<T_FRSF_D> kRowKeys<T_FRSF_D>{};
template <>
inline constexpr NoRowKeys<T_FRSH_D> kRowKeys<T_FRSH_D>{};
template <>
inline constexpr NoRowKeys<T_FRSZ_D> kRowKeys<T_FRSZ_D>{};

// ---- Conversion ----

/// Tells at once which kinds of spectrum functions are lost.
bool CheckSpectrumFunctions(Conversion& run);

}  // namespace s2k2ngt
