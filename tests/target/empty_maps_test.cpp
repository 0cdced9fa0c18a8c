#include "target/element_numbers.h"
#include "target/ngt_model.h"

#include <cstdint>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

TEST(EmptyMap, OfElementsCountsAsFoundAndLeavesTheNumber) {
  const ElementNumbers numbers;
  std::int32_t iEl = 7;
  EXPECT_TRUE(numbers.FindElemByLabel("12", kFrameFamily, iEl));
  EXPECT_EQ(iEl, 7);
}

TEST(EmptyMap, OfNodesCountsAsFoundAndLeavesTheNumber) {
  const CNgtModel model;
  std::int32_t iNode = 7;
  EXPECT_TRUE(model.FindNodeByLabel("12", iNode));
  EXPECT_EQ(iNode, 7);
}

}  // namespace
}  // namespace s2k2ngt
