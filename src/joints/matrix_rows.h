#pragma once

#include "common/keyed_table.h"
#include "common/text.h"
#include "common/value_map.h"
#include "joints/local_axes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace s2k2ngt {

/// The rows of the matrix table while they are made: appended, and found again by their joint to be
/// written over. A row that has lost its joint is no longer found by it. The table itself is made
/// when all rows are there, as it would have to index all its labels anew after each that is lost.
class MatrixRows {
 public:
  void Append(const T_NGT_LCMX_D& matrix) {
    m_Rows.push_back(matrix);
    Add(m_PlacesOf.Meet(matrix.Label).Result, PlaceOf(m_Rows.size()));
  }

  /// Writes over the row of the joint that a walk over the table meets first, if there is one.
  void ReplaceOrAppend(Text joint, const T_NGT_LCMX_D& matrix) {
    Places& places = m_PlacesOf.Meet(joint).Result;
    if (places.empty()) {
      Append(matrix);
      return;
    }
    const WalkPlace first = places.front();
    m_Rows[KeyOf(first) - 1] = matrix;
    if (matrix.Label != joint) {
      std::ranges::pop_heap(places, std::ranges::greater());
      places.pop_back();
      Add(m_PlacesOf.Meet(matrix.Label).Result, first);
    }
  }

  void Store(CNgtModel& target) const {
    auto& matrices = target.Table<T_NGT_LCMX_D>();
    matrices.Reserve(m_Rows.size());
    for (const T_NGT_LCMX_D& matrix : m_Rows) {
      matrices.Append(matrix);
    }
  }

 private:
  /// Orders rows as a walk meets them: by bucket, and within it the newest first.
  using WalkPlace = std::pair<std::uint32_t, std::int64_t>;
  static WalkPlace PlaceOf(std::size_t key) {
    return {BucketOf(static_cast<std::uint32_t>(key), T_NGT_LCMX_D::kBuckets),
            -static_cast<std::int64_t>(key)};
  }
  static std::size_t KeyOf(WalkPlace place) { return static_cast<std::size_t>(-place.second); }

  using Places = std::vector<WalkPlace>;  // a heap, the first of the walk in front
  static void Add(Places& places, WalkPlace place) {
    places.push_back(place);
    std::ranges::push_heap(places, std::ranges::greater());
  }

  std::vector<T_NGT_LCMX_D> m_Rows;  // by key, from 1
  ValueMap<Text, Places> m_PlacesOf;
};

}  // namespace s2k2ngt
