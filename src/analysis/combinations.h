#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

/// A term of a load combination. Rows of one name that follow each other are one combination.
struct T_COMB_D {
  static constexpr Text kTable = "T_COMB_D";
  Text ComboName;
  Text ComboType;  // on the first row, and empty on those behind it
  Text CaseType;
  Text CaseName;
  double ScaleFactor = 1.0;
};

template <>
inline constexpr RowKey<T_COMB_D> kRowKeys<T_COMB_D>[] = {{"ComboName=", &T_COMB_D::ComboName},
                                                          {"ComboType=", &T_COMB_D::ComboType},
                                                          {"CaseType=", &T_COMB_D::CaseType},
                                                          {"CaseName=", &T_COMB_D::CaseName},
                                                          {"ScaleFactor=", &T_COMB_D::ScaleFactor},
                                                          Unread{"SteelDesign="},
                                                          Unread{"ConcreteDesign="},
                                                          Unread{"AlumDesign="},
                                                          Unread{"ColdDesign="}};

// ---- Target records ----

/// A term of a combination. That of a spectrum case stands for all load cases which the case has
/// become.
struct CombinationTerm {
  Text ANAL;  // "ST", "RS", "TH", "MV" or "CB"
  Text LCNAME;
  double FACT = 0.0;
};

/// A load combination, keyed by a running number.
struct T_NGT_COMB_D {
  Text NAME;
  std::int32_t iTYPE = 0;  // 0 linear sum, 1 envelope, 2 sum of absolute values, 3 SRSS
  std::vector<CombinationTerm> Terms;
};

// ---- Conversion ----

/// Combinations whose terms all bear names of static load cases. Runs last, as it looks the names
/// up among those that are there.
bool ConvertCombinations(Conversion& run);

// ---- Output ----

/// Writes *LOADCOMB.
bool WriteCombinations(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes the terms of combinations that do not go over as they stand.
void CloseCombinations(Conversion& run);

}  // namespace s2k2ngt
