#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstddef>
#include <cstdint>

namespace s2k2ngt {

/// An assignment of a moving load case, or a number of lanes of it.
struct NumberInCase {
  Text Case;
  std::int32_t Number = 0;
  bool operator==(const NumberInCase&) const = default;
};

inline std::uint32_t LookUpHash(const NumberInCase& number) {
  return LookUpHash(number.Case) * 31U + static_cast<std::uint32_t>(number.Number);
}

// ---- Source rows ----

/// An assignment of a moving load case: vehicles of a class on some of its lanes.
struct T_MVL1_D {
  static constexpr Text kTable = "T_MVL1_D";
  Text Case;
  Text VehClass;
  std::int32_t AssignNum = 1;
  std::int32_t MinLoaded = 1;
  std::int32_t MaxLoaded = 1;
  double ScaleFactor = 1.0;

  NumberInCase Assignment() const { return {Case, AssignNum}; }
};

template <>
inline constexpr RowKey<T_MVL1_D> kRowKeys<T_MVL1_D>[] = {{"Case=", &T_MVL1_D::Case},
                                                          {"VehClass=", &T_MVL1_D::VehClass},
                                                          {"AssignNum=", &T_MVL1_D::AssignNum},
                                                          {"MinLoaded=", &T_MVL1_D::MinLoaded},
                                                          {"MaxLoaded=", &T_MVL1_D::MaxLoaded},
                                                          Unread{"NumLanes="},
                                                          {"ScaleFactor=", &T_MVL1_D::ScaleFactor}};

/// A lane of an assignment.
struct T_MVL2_D {
  static constexpr Text kTable = "T_MVL2_D";
  Text Case;
  Text Lane;
  std::int32_t AssignNum = 1;

  NumberInCase Assignment() const { return {Case, AssignNum}; }
};

template <>
inline constexpr RowKey<T_MVL2_D> kRowKeys<T_MVL2_D>[] = {
    {"Case=", &T_MVL2_D::Case}, {"Lane=", &T_MVL2_D::Lane}, {"AssignNum=", &T_MVL2_D::AssignNum}};

/// Reduction of a moving load case for a number of loaded lanes.
struct T_MVL3_D {
  static constexpr Text kTable = "T_MVL3_D";
  Text Case;
  std::int32_t NumberLanes = 1;
  double ScaleFactor = 1.0;

  NumberInCase LanesOfCase() const { return {Case, NumberLanes}; }
};

template <>
inline constexpr RowKey<T_MVL3_D> kRowKeys<T_MVL3_D>[] = {{"Case=", &T_MVL3_D::Case},
                                                          {"NumberLanes=", &T_MVL3_D::NumberLanes},
                                                          {"ScaleFactor=", &T_MVL3_D::ScaleFactor}};

/// For which parts of the model the response to moving loads is wanted: empty, "ALL", "None" or a
/// group.
struct T_BLBR_D {
  static constexpr Text kTable = "T_BLBR_D";
  Text Displs;
  Text Reactions;
  Text Frames;
  Text CalcMethod;
  bool Correspond = false;

  /// Whether it says of each part what is wanted; else nothing is written.
  bool IsWhole() const { return !Reactions.empty() && !Displs.empty() && !Frames.empty(); }
};

template <>
inline constexpr RowKey<T_BLBR_D> kRowKeys<T_BLBR_D>[] = {
    LostUnless{"InitialCond=", "Zero", "initial-condition-lost"},
    {"Displs=", &T_BLBR_D::Displs},
    {"Reactions=", &T_BLBR_D::Reactions},
    LostUnless{"Springs=", "None", "response-of-springs"},
    {"Frames=", &T_BLBR_D::Frames},
    {"CalcMethod=", &T_BLBR_D::CalcMethod},
    {"Correspond=", &T_BLBR_D::Correspond}};

// ---- Target records ----

/// An assignment of a moving load case, under the key of its source row.
struct T_NGT_MVLC_D {
  Text NAME;
  double SCALE1 = 0.0;  // for one loaded lane
  double SCALE2 = 0.0;
  double SCALE3 = 0.0;
  double SCALE4 = 0.0;
  Text VCLASS;
  double SCALE = 0.0;
  std::int32_t iMIN = 0;
  std::int32_t iMAX = 0;
  NumberInCase Assignment;  // whose lanes are those of the source rows
};

/// Whether a response is wanted, and for a group or for all of the model.
struct WantedResponse {
  Text bWanted;  // "YES" or "NO"
  Text bGroup;
  Text Group;
};

/// Control of the moving load analysis.
struct T_NGT_MVCT_D {
  Text METHOD;
  Text FRAME;  // "AXIAL" or "NORMAL"
  WantedResponse Reactions;
  WantedResponse Displacements;
  WantedResponse Frames;
  bool bWrite = false;
};

// ---- Conversion ----

/// Moving load cases. Meant so: only a case that bears the name of a vehicle class comes through.
bool ConvertMovingLoads(Conversion& run);

/// The control of all moving load cases.
void ConvertMovingControl(Conversion& run);

// ---- Output ----

/// Writes *MVLDCASE, and *MOVE-CTRL behind it.
bool WriteMovingLoads(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes what is not in the output, and what names something that is not there.
void CloseMovingLoads(Conversion& run);

}  // namespace s2k2ngt
