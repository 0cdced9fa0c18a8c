#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

/// Definition of a buckling case.
struct T_BKL1_D {
  static constexpr Text kTable = "T_BKL1_D";
  Text Case;
  std::int32_t NumBuckMode = 1;
  double EigenTol = 0.001;
};

template <>
inline constexpr RowKey<T_BKL1_D> kRowKeys<T_BKL1_D>[] = {{"Case=", &T_BKL1_D::Case},
                                                          {"NumBuckMode=", &T_BKL1_D::NumBuckMode},
                                                          {"EigenTol=", &T_BKL1_D::EigenTol}};

/// A load of a buckling case.
struct T_BKL2_D {
  static constexpr Text kTable = "T_BKL2_D";
  Text Case;
  Text LoadType = "Load case";
  Text LoadName;
  double LoadSF = 1.0;

  /// False for an acceleration and the like.
  bool IsLoadCase() const { return LoadType == "Load case"; }
};

template <>
inline constexpr RowKey<T_BKL2_D> kRowKeys<T_BKL2_D>[] = {{"Case=", &T_BKL2_D::Case},
                                                          {"LoadType=", &T_BKL2_D::LoadType},
                                                          {"LoadName=", &T_BKL2_D::LoadName},
                                                          {"LoadSF=", &T_BKL2_D::LoadSF},
                                                          Unread{"TransAccSF="}};

// ---- Target records ----

/// A load of the buckling analysis.
struct BucklingLoad {
  Text LCNAME;
  double FACT = 0.0;
};

/// Buckling control.
struct T_NGT_BKCT_D {
  Text Case;  // the source case
  std::int32_t iMODENUM = 1;
  double TOL = 0.001;
  std::vector<BucklingLoad> Loads;
  bool bWrite = false;
};

// ---- Conversion ----

/// A buckling case, unless there was one before: the target has room for one. Its loads are taken
/// up to the first that is not a load case, such as an acceleration.
void ConvertBucklingCase(Conversion& run, Text analysisCase);

// ---- Output ----

/// Writes *BUCK-CTRL. Meant so: its two closing newlines stand in every output, whether or not
/// there is a buckling case.
bool WriteBucklingControl(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes the definitions and loads of buckling cases that do not go over as they stand.
void CloseBuckling(Conversion& run);

}  // namespace s2k2ngt
