#pragma once

#include "common/text.h"
#include "frames/materials.h"
#include "frames/sections.h"
#include "source/model.h"

#include <cstdint>
#include <optional>

// Each section is followed through the segments from the first to the last.

namespace s2k2ngt {

class NonprismaticMaterials {
 public:
  explicit NonprismaticMaterials(CModel& model) : m_Model(model) {}

  std::optional<std::int32_t> Of(Text sectionName) const {
    std::optional<std::int32_t> material;
    Text wanted = sectionName;
    for (const auto [key, segment] : m_Model.Rows<T_FSNP_D>().Walk()) {
      if (segment.SectionName != wanted) {
        continue;
      }
      wanted = segment.StartSect;
      for (const auto [sectionKey, section] : m_Model.Rows<T_FRSG_D>().Walk()) {
        if (section.SectionName == wanted) {
          material = MaterialOrLastKey(m_Model, section.Material);
          break;
        }
      }
    }
    return material;
  }

 private:
  CModel& m_Model;
};

}  // namespace s2k2ngt
