#pragma once

#include "common/text.h"
#include "joints/masses.h"
#include "source/model.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

namespace s2k2ngt {

/// Place of the joint whose row of masses a walk meets first.
inline std::optional<std::size_t> PlaceOfJointWithMass(CModel& model,
                                                       const std::vector<Text>& joints) {
  const auto& masses = model.Rows<T_JTMA_D>();
  std::optional<std::size_t> place;
  std::size_t firstPosition = std::numeric_limits<std::size_t>::max();
  for (std::size_t index = 0; index < joints.size(); ++index) {
    const auto positions = masses.AllWith<&T_JTMA_D::Joint>(joints[index]);
    if (!positions.empty() && positions.front() < firstPosition) {
      firstPosition = positions.front();
      place = index;
    }
  }
  return place;
}

}  // namespace s2k2ngt
