#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

namespace s2k2ngt {

// What the source spreads over an area and the target has at nodes alone: springs and added masses.
// A quarter of a mass goes to each of four corners, also on a triangle. Of a spring one quarter
// alone goes over, as one point spring that names all corners; the message about it says so.

// ---- Source rows ----

/// A spring on an area.
struct T_ASPA_D {
  static constexpr Text kTable = "T_ASPA_D";
  Text Area;
  Text Face;               // "5" bottom, "6" top, or an edge
  Text Dir;                // local axis "1", "2" or "3"
  double Stiffness = 0.0;  // per area
};

template <>
inline constexpr RowKey<T_ASPA_D> kRowKeys<T_ASPA_D>[] = {{"Area=", &T_ASPA_D::Area},
                                                          {"Face=", &T_ASPA_D::Face},
                                                          {"Dir=", &T_ASPA_D::Dir},
                                                          {"Stiffness=", &T_ASPA_D::Stiffness}};

/// Added mass of an area.
struct T_ADMA_D {
  static constexpr Text kTable = "T_ADMA_D";
  Text Area;
  double MassPerArea = 0.0;
};

template <>
inline constexpr RowKey<T_ADMA_D> kRowKeys<T_ADMA_D>[] = {{"Area=", &T_ADMA_D::Area},
                                                          {"MassPerArea=", &T_ADMA_D::MassPerArea}};

// ---- Conversion ----

/// Springs on the two faces of areas into point springs. Those on edges are lost.
bool ConvertAreaSprings(Conversion& run);

/// Added masses of areas into those of their corner nodes.
bool ConvertAreaMasses(Conversion& run);

}  // namespace s2k2ngt
