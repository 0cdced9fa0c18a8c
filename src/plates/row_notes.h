#pragma once

#include "common/keyed_table.h"
#include "common/value_map.h"
#include "target/conversion.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace s2k2ngt {

// Questions that the accounts of areas, solids and links have in common.

/// True when a search for the row's name meets this row, and not another one of the name.
template <auto Name, class Record>
bool IsTheOneMet(const CKeyedTable<Record>& rows, std::uint32_t key, const Record& row) {
  return rows.template FirstWith<Name>(std::invoke(Name, row))->Key == key;
}

/// The rows that a search for each element meets; `Element` names the element of a row.
template <auto Element, class Row>
class MetRows {
 public:
  explicit MetRows(const CKeyedTable<Row>& rows) : m_Rows(rows), m_IsMet(rows.Count() + 1) {}

  auto Of(Text element) {
    const auto found = m_Rows.template FirstWith<Element>(element);
    if (found) {
      m_IsMet[found->Key] = true;
    }
    return found;
  }

  bool IsMet(std::uint32_t key) const { return m_IsMet[key]; }

  /// Notes the rows that none of the searches has met: those of elements that are not there, and
  /// those of which another row is met.
  void NoteOthers(Conversion& run, Why elementUnknown) const {
    for (const auto [key, row] : m_Rows.Entries()) {
      if (!m_IsMet[key]) {
        const auto met = m_Rows.template FirstWith<Element>(std::invoke(Element, row));
        run.Accounts.Note<Row>(key, m_IsMet[met->Key] ? Why("row-of-same-name") : elementUnknown);
      }
    }
  }

 private:
  const CKeyedTable<Row>& m_Rows;
  std::vector<bool> m_IsMet;  // by key
};

/// Names of sections and properties that elements have.
class NamesInUse {
 public:
  void Add(Text name) { m_AreUsed.Meet(name).Result = true; }
  bool Has(Text name) { return m_AreUsed.Meet(name).Result; }

 private:
  ValueMap<Text, bool> m_AreUsed;
};

/// Which joints the model has.
class KnownJoints {
 public:
  explicit KnownJoints(Conversion& run) : m_Run(run) {}

  bool Has(Text joint);

  /// Notes of an element of which a joint is not there that it has no node in its place.
  template <class Element>
  void NoteUnknown(std::uint32_t key, std::span<const Text> joints) {
    for (const Text joint : joints) {
      if (!Has(joint)) {
        m_Run.Accounts.Note<Element>(key, "end-or-corner-unknown");
        return;
      }
    }
  }

 private:
  void TakeNumbers();
  /// The number of a label, if it is one that the set has room for.
  std::optional<std::size_t> NumberOf(Text joint) const;

  Conversion& m_Run;
  bool m_HasTakenNumbers = false;  // which many models never ask for
  std::vector<bool> m_HasNumber;   // by number, of labels that are small numbers; else empty
};

}  // namespace s2k2ngt
