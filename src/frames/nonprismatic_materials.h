#pragma once

#include "common/text.h"
#include "frames/materials.h"
#include "frames/sections.h"
#include "source/model.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>

namespace s2k2ngt {

/// The materials of nonprismatic sections by their names.
///
/// A walk over the segments takes each segment of the section, and goes on behind it with the name
/// of the segment's start section; the material is that of the last start section that is there.
/// Gone through from its end, the walk gives the answer for all names at once.
class NonprismaticMaterials {
 public:
  explicit NonprismaticMaterials(CModel& model) {
    const auto& sections = model.Rows<T_FRSG_D>();
    const auto& segments = model.Rows<T_FSNP_D>();
    for (std::size_t position = segments.Count(); position-- > 0;) {
      const T_FSNP_D& segment = segments.AtWalk(position).Value;
      std::optional<std::int32_t> material = Of(segment.StartSect);
      const auto start = sections.FirstWith<&T_FRSG_D::SectionName>(segment.StartSect);
      if (!material && start) {
        material = MaterialOrLastKey(model, start->Value.Material);
      }
      m_Materials[segment.SectionName] = material;
    }
  }

  /// The material of a section; nothing when none of its start sections is there.
  std::optional<std::int32_t> Of(Text sectionName) const {
    const auto found = m_Materials.find(sectionName);
    return found == m_Materials.end() ? std::nullopt : found->second;
  }

 private:
  std::unordered_map<Text, std::optional<std::int32_t>> m_Materials;
};

}  // namespace s2k2ngt
