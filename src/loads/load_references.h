#pragma once

#include "common/text.h"
#include "loads/load_cases.h"
#include "plates/element_references.h"
#include "target/conversion.h"

#include <cstdint>

namespace s2k2ngt {

// What the account asks of the load cases and elements that rows of loads name. The output has what
// such a row names, there or not; the account tells which are not.

/// Tells which loads are written. Rows that follow each other mostly are of the same load case.
class WrittenLoads {
 public:
  explicit WrittenLoads(CNgtModel& target)
      : m_LoadCases(target.Table<T_NGT_STLC_D>()), m_HaveLast(IsLoadCase(m_Last)) {}

  /// True when loads of this load case are written.
  bool Have(Text loadCase) {
    if (loadCase != m_Last) {
      m_Last = loadCase;
      m_HaveLast = IsLoadCase(loadCase);
    }
    return m_HaveLast;
  }

  /// The same of a row, which is noted when it is not written.
  template <class Row>
  bool HaveOrNote(Ledger& accounts, std::uint32_t key, Text loadCase) {
    const bool have = Have(loadCase);
    if (!have) {
      accounts.Note<Row>(key, "load-case-not-static");
    }
    return have;
  }

 private:
  bool IsLoadCase(Text name) const {
    return m_LoadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(name).has_value();
  }

  const CKeyedTable<T_NGT_STLC_D>& m_LoadCases;
  Text m_Last;
  bool m_HaveLast;
};

/// True when an unknown frame has the length and the joints of the last one.
bool TakesLastFrame(CModel& model, Text frame);

}  // namespace s2k2ngt
