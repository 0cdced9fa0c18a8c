#include "plates/row_notes.h"

#include "joints/nodes.h"

namespace s2k2ngt {

void KnownJoints::TakeNumbers() {
  // Elements ask for joints more often than for all else together. A set of small numbers answers
  // at once, and large models have no other labels as a rule.
  const auto& joints = m_Run.Source.Rows<T_JTCD_D>();
  m_HasNumber.resize(16 * joints.Count() + 1'000);
  for (const T_JTCD_D& joint : joints.Records()) {
    const auto number = NumberOf(joint.Joint);
    if (!number) {
      m_HasNumber.clear();
      return;
    }
    m_HasNumber[*number] = true;
  }
}

std::optional<std::size_t> KnownJoints::NumberOf(Text joint) const {
  std::size_t number = 0;
  for (const char digit : joint) {
    if (!IsDigitChar(digit)) {
      return std::nullopt;
    }
    number = 10 * number + static_cast<std::size_t>(digit - '0');
    if (number >= m_HasNumber.size()) {
      return std::nullopt;
    }
  }
  return joint.empty() ? std::nullopt : std::optional(number);
}

bool KnownJoints::Has(Text joint) {
  if (!m_HasTakenNumbers) {
    TakeNumbers();
    m_HasTakenNumbers = true;
  }
  if (m_HasNumber.empty()) {
    return m_Run.Source.Rows<T_JTCD_D>().FirstWith<&T_JTCD_D::Joint>(joint).has_value();
  }
  const auto number = NumberOf(joint);
  return number && m_HasNumber[*number];
}

}  // namespace s2k2ngt
