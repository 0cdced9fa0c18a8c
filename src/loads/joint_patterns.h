#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"

namespace s2k2ngt {

// ---- Source rows ----

/// The value of a pattern at a joint. Pressures and temperatures are multiplied by it.
struct T_JTPA_D {
  static constexpr Text kTable = "T_JTPA_D";
  Text Joint;
  Text Pattern;
  double Value = 0.0;

  QualifiedLabel JointInPattern() const { return {Joint, Pattern}; }
};

template <>
inline constexpr RowKey<T_JTPA_D> kRowKeys<T_JTPA_D>[] = {
    {"Joint=", &T_JTPA_D::Joint}, {"Pattern=", &T_JTPA_D::Pattern}, {"Value=", &T_JTPA_D::Value}};

/// True when a row of loads goes by a joint pattern. One that does not state its JtPattern= does.
inline bool GoesByPattern(Text jtPattern) { return jtPattern != "None"; }

/// 0 where the pattern has no value at the joint.
inline double PatternValue(CModel& model, Text joint, Text pattern) {
  const auto row =
      model.Rows<T_JTPA_D>().FirstWith<&T_JTPA_D::JointInPattern>(QualifiedLabel{joint, pattern});
  return row ? row->Value.Value : 0.0;
}

}  // namespace s2k2ngt
