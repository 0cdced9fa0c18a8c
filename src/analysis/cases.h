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
  Text Type;  // its kind, "LinStatic" and the like
};

template <>
inline constexpr RowKey<T_ANAL_D> kRowKeys<T_ANAL_D>[] = {{"Case=", &T_ANAL_D::Case},
                                                          {"Type=", &T_ANAL_D::Type},
                                                          Unread{"InitialCond="},
                                                          Unread{"ModalCase="}};

// ---- Conversion ----

/// Hands each analysis case to the conversion of its kind. Other kinds are passed over.
bool ConvertAnalysisCases(Conversion& run);

}  // namespace s2k2ngt
