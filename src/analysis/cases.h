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
  Text ModalCase;    // whose modes it goes by, for the account

  QualifiedLabel CaseOfType() const { return {Case, Type}; }
};

inline constexpr Text kStartsUnstressed = "Zero";

// Kinds of analysis cases.
inline constexpr Text kLinearStatic = "LinStatic";
inline constexpr Text kModal = "LinModal";
inline constexpr Text kResponseSpectrum = "LinRespSpec";
inline constexpr Text kLinearModalHistory = "LinModHist";
inline constexpr Text kNonlinearModalHistory = "NonModHist";
inline constexpr Text kLinearDirectHistory = "LinDirHis";  // the source's word, without a last t
inline constexpr Text kNonlinearDirectHistory = "NonDirHist";
inline constexpr Text kMovingLoad = "LinMoving";
inline constexpr Text kBuckling = "LinBuckling";

template <>
inline constexpr RowKey<T_ANAL_D> kRowKeys<T_ANAL_D>[] = {
    {"Case=", &T_ANAL_D::Case},
    {"Type=", &T_ANAL_D::Type},
    {"InitialCond=", &T_ANAL_D::InitialCond},
    Noted{"ModalCase=", &T_ANAL_D::ModalCase}};

// ---- Conversion ----

/// Hands each analysis case to the conversion of its kind, other kinds being passed over, and
/// settles the structure type. A model without analysis cases gets none.
bool ConvertAnalysisCases(Conversion& run);

// ---- Account ----

/// True when an analysis case of this kind bears the name.
bool IsAnalysed(Conversion& run, Text name, Text type);

/// Notes the analysis cases that do not go over as they stand.
void CloseAnalysisCases(Conversion& run);

}  // namespace s2k2ngt
