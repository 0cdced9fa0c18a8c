#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

namespace s2k2ngt {

// What the source spreads along a frame and the target has at nodes alone: springs and added
// masses. Half of a mass goes to either end. Of a spring one half alone goes over, as one point
// spring that names both ends; the message about it says so.

// ---- Source rows ----

/// A spring along a frame.
struct T_FRSA_D {
  static constexpr Text kTable = "T_FRSA_D";
  Text Frame;
  Text Dir;                // local axis "1", "2" or "3"
  double Stiffness = 0.0;  // per length
};

template <>
inline constexpr RowKey<T_FRSA_D> kRowKeys<T_FRSA_D>[] = {
    {"Frame=", &T_FRSA_D::Frame}, {"Dir=", &T_FRSA_D::Dir}, {"Stiffness=", &T_FRSA_D::Stiffness}};

/// Added mass of a frame.
struct T_FRAD_D {
  static constexpr Text kTable = "T_FRAD_D";
  Text Frame;
  double MassPerLen = 0.0;
};

template <>
inline constexpr RowKey<T_FRAD_D> kRowKeys<T_FRAD_D>[] = {{"Frame=", &T_FRAD_D::Frame},
                                                          {"MassPerLen=", &T_FRAD_D::MassPerLen}};

// ---- Conversion ----

/// Springs along frames into point springs.
bool ConvertFrameSprings(Conversion& run);

/// Added masses of frames into those of their end nodes.
bool ConvertFrameMasses(Conversion& run);

}  // namespace s2k2ngt
