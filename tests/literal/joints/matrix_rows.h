#pragma once

#include "common/keyed_table.h"
#include "common/text.h"
#include "joints/local_axes.h"

// The rows of the matrix table are in such a table from the beginning.

namespace s2k2ngt {

class MatrixRows {
 public:
  void Append(const T_NGT_LCMX_D& matrix) { m_Rows.Append(matrix); }

  void ReplaceOrAppend(Text joint, const T_NGT_LCMX_D& matrix) {
    for (const auto [key, row] : m_Rows.Walk()) {
      if (row.Label == joint) {
        m_Rows.Insert(key, matrix);
        return;
      }
    }
    m_Rows.Append(matrix);
  }

  void Store(CNgtModel& target) const {
    for (std::uint32_t key = 1; key <= m_Rows.Count(); ++key) {
      target.Add(key, *m_Rows.Find(key));
    }
  }

 private:
  CKeyedTable<T_NGT_LCMX_D> m_Rows{T_NGT_LCMX_D::kBuckets};
};

}  // namespace s2k2ngt
