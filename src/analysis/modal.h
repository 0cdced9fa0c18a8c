#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

/// Definition of a modal case.
struct T_MDL1_D {
  static constexpr Text kTable = "T_MDL1_D";
  Text Case;
  Text ModeType;  // "Eigen" or "Ritz"
  std::int32_t MaxNumModes = 0;
  double EigenTol = 0.0;
};

template <>
inline constexpr RowKey<T_MDL1_D> kRowKeys<T_MDL1_D>[] = {
    {"Case=", &T_MDL1_D::Case},
    {"ModeType=", &T_MDL1_D::ModeType},
    {"MaxNumModes=", &T_MDL1_D::MaxNumModes},
    LostUnless{"MinNumModes=", "1", "search-of-modes"},
    LostUnless{"EigenShift=", "0", "search-of-modes"},
    LostUnless{"EigenCutOff=", "0", "search-of-modes"},
    {"EigenTol=", &T_MDL1_D::EigenTol}};

/// Loads of which an eigenvalue analysis is to reach a share. They have no place in the output.
struct T_MDL2_D {
  static constexpr Text kTable = "T_MDL2_D";
};

template <>
inline constexpr RowKey<T_MDL2_D> kRowKeys<T_MDL2_D>[] = {Unread{"Case="}, Unread{"LoadType="},
                                                          Unread{"LoadName="}, Unread{"TargetPar="},
                                                          Unread{"StatCorrect="}};

/// A starting vector of a Ritz analysis.
struct T_MDL3_D {
  static constexpr Text kTable = "T_MDL3_D";
  Text Case;
  Text LoadType;  // "Load case" or "Accel"
  Text LoadName;
  std::int32_t MaxCycles = 0;  // 0 for as many as it takes
};

template <>
inline constexpr RowKey<T_MDL3_D> kRowKeys<T_MDL3_D>[] = {
    {"Case=", &T_MDL3_D::Case},
    {"LoadType=", &T_MDL3_D::LoadType},
    {"LoadName=", &T_MDL3_D::LoadName},
    {"MaxCycles=", &T_MDL3_D::MaxCycles},
    LostUnless{"TargetPar=", "0", "participation-of-vectors"}};

// ---- Target records ----

/// Eigenvalue control. The lists of a Ritz analysis need not be of one length: they are paired by
/// position as they stand.
struct T_NGT_EGCT_D {
  Text TYPE;  // "EIGEN", "RITZ" or what the source says
  std::int32_t iFREQ = 3;
  double TOL = 1e-6;
  std::vector<Text> KIND;  // "CASE" or "GROUND"
  std::vector<Text> CASE;
  std::vector<std::int32_t> iNOG;
  bool bWrite = false;
};

// ---- Conversion ----

/// The modal case of the first definition, whichever case it is of.
void ConvertModalCase(Conversion& run);

// ---- Output ----

/// Writes *EIGEN-CTRL.
bool WriteEigenvalueControl(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes the definitions and starting vectors of modal cases that do not go over as they stand.
void CloseModal(Conversion& run);

}  // namespace s2k2ngt
