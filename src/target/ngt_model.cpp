#include "target/ngt_model.h"

#include "common/numbers.h"

namespace s2k2ngt {

bool CNgtModel::FindNodeByLabel(Text label, std::int32_t& iNode) const {
  if (m_NodeMap.Empty()) {
    return true;
  }
  const auto node = m_NodeMap.FirstWith<&MAP_NODE::Label>(label);
  if (node) {
    iNode = node->Value.iNode;
  }
  return node.has_value();
}

std::int32_t CNgtModel::NodeNumber(Text label) const {
  if (NodeLabelsNumeric) {
    return ParseInteger(label);
  }
  std::int32_t iNode = 0;
  FindNodeByLabel(label, iNode);
  return iNode;
}

}  // namespace s2k2ngt
