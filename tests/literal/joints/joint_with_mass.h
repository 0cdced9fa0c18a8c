#pragma once

#include "common/text.h"
#include "joints/masses.h"
#include "source/model.h"

#include <cstddef>
#include <optional>
#include <vector>

// Every row of masses is held against every joint.

namespace s2k2ngt {

inline std::optional<std::size_t> PlaceOfJointWithMass(CModel& model,
                                                       const std::vector<Text>& joints) {
  for (const auto [key, mass] : model.Rows<T_JTMA_D>().Walk()) {
    for (std::size_t place = 0; place < joints.size(); ++place) {
      if (joints[place] == mass.Joint) {
        return place;
      }
    }
  }
  return std::nullopt;
}

}  // namespace s2k2ngt
