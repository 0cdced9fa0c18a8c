#include "loads/joint_patterns.h"

#include "loads/area_loads.h"
#include "loads/temperature_loads.h"

namespace s2k2ngt {

// ---- Source rows ----

namespace {

auto FindValue(const CKeyedTable<T_JTPA_D>& values, Text joint, Text pattern) {
  return values.FirstWith<&T_JTPA_D::JointInPattern>(QualifiedLabel{joint, pattern});
}

}  // namespace

double PatternValue(CModel& model, Text joint, Text pattern) {
  const auto row = FindValue(model.Rows<T_JTPA_D>(), joint, pattern);
  return row ? row->Value.Value : 0.0;
}

// ---- Account ----

bool HasPattern(CModel& model, Text pattern) {
  return model.Rows<T_JTPA_D>().FirstWith<&T_JTPA_D::Pattern>(pattern).has_value();
}

PatternUses::PatternUses(CModel& model)
    : m_Values(model.Rows<T_JTPA_D>()), m_IsTaken(m_Values.Count() + 1) {}

void PatternUses::Take(std::span<const Text> joints, Text pattern) {
  for (const Text joint : joints) {
    if (const auto value = FindValue(m_Values, joint, pattern)) {
      m_IsTaken[value->Key] = true;
    }
  }
}

void PatternUses::NoteOthers(Ledger& accounts) const {
  for (std::uint32_t key = 1; key < m_IsTaken.size(); ++key) {
    if (!m_IsTaken[key]) {
      accounts.Note<T_JTPA_D>(key, "pattern-value-not-used");
    }
  }
}

void CloseJointPatterns(Conversion& run) {
  if (run.Source.Rows<T_JTPA_D>().Empty()) {
    return;
  }
  PatternUses uses(run.Source);
  TakePatternsOfPressures(run, uses);
  TakePatternsOfTemperatures(run, uses);
  uses.NoteOthers(run.Accounts);
}

}  // namespace s2k2ngt
