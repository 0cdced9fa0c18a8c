#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <span>
#include <vector>

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
double PatternValue(CModel& model, Text joint, Text pattern);

// ---- Account ----

/// True when a joint has a value in the pattern.
bool HasPattern(CModel& model, Text pattern);

/// Which values the loads take that are written.
class PatternUses {
 public:
  explicit PatternUses(CModel& model);

  /// Takes the values of a pattern at these joints.
  void Take(std::span<const Text> joints, Text pattern);

  /// Notes all values that were not taken.
  void NoteOthers(Ledger& accounts) const;

 private:
  const CKeyedTable<T_JTPA_D>& m_Values;
  std::vector<bool> m_IsTaken;  // by key
};

/// Notes the values that no load takes.
void CloseJointPatterns(Conversion& run);

}  // namespace s2k2ngt
