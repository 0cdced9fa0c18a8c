#include "target/element_numbers.h"

#include "common/numbers.h"

namespace s2k2ngt {

std::int32_t ElementNumbers::NumberOf(std::uint32_t position, Text label) const {
  return Renumbered() ? static_cast<std::int32_t>(position) : ParseInteger(label);
}

std::int32_t ElementNumbers::NumberAt(std::uint32_t position, Text label, Text family) {
  const std::int32_t iEl = NumberOf(position, label);
  if (Renumbered()) {
    m_ElemMap.Insert(position, {position, iEl, {label, family}});
  }
  return iEl;
}

bool ElementNumbers::FindElemByLabel(Text label, Text family, std::int32_t& iEl) const {
  if (m_ElemMap.Empty()) {
    return true;
  }
  const auto element = m_ElemMap.FirstWith<&MAP_ELEM::Name>(QualifiedLabel{label, family});
  if (element) {
    iEl = element->Value.iEl;
  }
  return element.has_value();
}

std::int32_t ElementReferences::NumberOf(Text label, Text family) {
  if (m_Numbers.Renumbered()) {
    m_Numbers.FindElemByLabel(label, family, m_Number);
  } else {
    m_Number = ParseInteger(label);
  }
  return m_Number;
}

}  // namespace s2k2ngt
