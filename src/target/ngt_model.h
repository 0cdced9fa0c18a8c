#pragma once

#include "common/record_tables.h"
#include "common/text.h"

#include <cstdint>

namespace s2k2ngt {

/// Ties a joint's label to its node number, for models whose joint labels are not all numbers.
struct MAP_NODE {
  std::uint32_t iKey = 0;
  std::int32_t iNode = 0;
  Text Label;
};

/// Bucket count of most tables of the target model. A target record with another count says so by
/// `static constexpr std::uint32_t kBuckets`.
inline constexpr std::uint32_t kTargetBuckets = 10'001;

/// The output file as tables of target records, one for each kind of record, and control records
/// and the like, of which there is one for each kind. The stages fill it and the writers print it.
/// The room of a record's topic declares it.
class CNgtModel {
 public:
  /// The table of a record, empty at first.
  template <class Record>
  CKeyedTable<Record>& Table() {
    if constexpr (requires { Record::kBuckets; }) {
      return m_Tables.Of<Record>(Record::kBuckets);
    } else {
      return m_Tables.Of<Record>(kTargetBuckets);
    }
  }

  /// Stores a copy of the record under the key, in the place of one that is there.
  template <class Record>
  void Add(std::uint32_t key, const Record& record) {
    Table<Record>().Insert(key, record);
  }

  /// The control record of a kind.
  template <class Record>
  Record& Control() {
    return m_Tables.Only<Record>();
  }

  /// The node number of a joint's label. Found: `iNode` is set; not found: it is left and the
  /// result is false. An empty map counts as found and leaves `iNode`.
  bool FindNodeByLabel(Text label, std::int32_t& iNode) const;

  /// The number that a node has in the output: the label itself when all labels are numbers, else
  /// the joint's row position; 0 for a joint that is not there.
  std::int32_t NodeNumber(Text label) const;

  /// The bytes of the texts of the records that are not those of source records.
  TextStore& Texts() { return m_Texts; }

  CKeyedTable<MAP_NODE> m_NodeMap{kTargetBuckets};
  bool NodeLabelsNumeric = true;
  bool NeedAnalCtrl = false;  // an analysis case calls for *ANAL-CTRL

  // Set where something is lost, shown by the writer of the section concerned.
  bool bSectionMultiSegment = false;
  bool bSectionStartMissing = false;
  bool bSectionEndMissing = false;
  bool bAreaPropertyLost = false;
  bool bConstraintAutoAxis = false;
  bool bConstraintLocal = false;
  bool bLinkMultiLinearLost = false;
  bool bLinkKinematicLost = false;

 private:
  RecordTables m_Tables;
  TextStore m_Texts;
};

}  // namespace s2k2ngt
