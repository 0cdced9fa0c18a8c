#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>

namespace s2k2ngt {

// ---- Source rows ----

/// A load of the source file. It becomes a load case when a linear static analysis case names it.
struct T_LDCS_D {
  static constexpr Text kTable = "T_LDCS_D";
  Text LoadCase;
  Text DesignType;  // "DEAD", "LIVE", "WIND", "SNOW", "QUAKE" or another word
  Text AutoLoad;    // "None", or the code by which wind or earthquake is computed
  double SelfWtMult = 0.0;
};

template <>
inline constexpr RowKey<T_LDCS_D> kRowKeys<T_LDCS_D>[] = {{"LoadCase=", &T_LDCS_D::LoadCase},
                                                          {"DesignType=", &T_LDCS_D::DesignType},
                                                          {"AutoLoad=", &T_LDCS_D::AutoLoad},
                                                          {"SelfWtMult=", &T_LDCS_D::SelfWtMult}};

/// A load of a linear static analysis case. The target's load cases have no scale factors.
struct T_STC1_D {
  static constexpr Text kTable = "T_STC1_D";
  Text Case;
  Text LoadName;
};

template <>
inline constexpr RowKey<T_STC1_D> kRowKeys<T_STC1_D>[] = {
    {"Case=", &T_STC1_D::Case},
    Unread{"LoadType="},
    {"LoadName=", &T_STC1_D::LoadName},
    LostUnless{"LoadSF=", "1", "load-scale-factor"},
    Unread{"TransAccSF="}};

// ---- Target records ----

inline constexpr Text kWindType = "W";     ///< of a load case that may have *WIND
inline constexpr Text kSeismicType = "E";  ///< of a load case that may have *SEIS

/// A static load case.
struct T_NGT_STLC_D {
  Text LCNAME;
  Text LCTYPE;         // "D", "L", "W", "S", "E" or "USER"; empty for a load that is not there
  bool bAuto = false;  // of wind or earthquake by a code, whether or not it has parameters
};

/// The self weight of a load: factors of gravity along the global axes.
struct T_NGT_FRSW_D {
  static constexpr std::uint32_t kBuckets = 1'001;
  Text LoadCase;
  double X = 0.0;
  double Y = 0.0;
  double Z = 0.0;
};

// ---- Conversion ----

/// The loads of a linear static analysis case into load cases, with the wind and earthquake
/// parameters of those that are computed by a code. True when the output differs for it: a case of
/// the same name that is met again makes no difference when it made none before.
bool ConvertStaticCase(Conversion& run, Text analysisCase);

/// Self-weight multipliers into self weights.
bool ConvertSelfWeights(Conversion& run);

// ---- Output ----

/// Writes *STLDCASE.
void WriteLoadCases(Conversion& run, LineWriter& out);

/// Writes the *SELFWEIGHT lines of a load case.
void WriteSelfWeights(Conversion& run, Text loadCase, LineWriter& out);

// ---- Account ----

/// Notes loads that become no load case, and what load cases do not say of them.
void CloseLoadCases(Conversion& run);

}  // namespace s2k2ngt
