#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

namespace s2k2ngt {

// ---- Source rows ----

/// An analysis case.
struct T_ANAL_D {
  static constexpr Text kTable = "T_ANAL_D";
  Text Case;
  Text Type;         // its kind, "LinStatic" and the like
  Text InitialCond;  // "Zero", or the case at whose end it starts
};

template <>
inline constexpr RowKey<T_ANAL_D> kRowKeys<T_ANAL_D>[] = {{"Case=", &T_ANAL_D::Case},
                                                          {"Type=", &T_ANAL_D::Type},
                                                          {"InitialCond=", &T_ANAL_D::InitialCond},
                                                          Unread{"ModalCase="}};

// ---- Conversion ----

/// Hands each analysis case to the conversion of its kind, other kinds being passed over, and
/// settles the structure type. A model without analysis cases gets none.
bool ConvertAnalysisCases(Conversion& run);

}  // namespace s2k2ngt
