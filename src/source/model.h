#pragma once

#include "account/reasons.h"
#include "common/messages.h"
#include "common/record_tables.h"
#include "common/text.h"
#include "source/row_reader.h"
#include "source/table_catalogue.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace s2k2ngt {

/// Which translations and rotations the analysis has; of the table's first row.
struct ActiveDegreesOfFreedom {
  static constexpr Text kTable = kActiveDegreesOfFreedom;
  bool UX = false;
  bool UY = false;
  bool UZ = false;
  bool RX = false;
  bool RY = false;
  bool RZ = false;
};

/// The units of the source file, of the program control table's first row.
struct Units {
  static constexpr Text kTable = kUnits;
  Text Force = "Ton";
  Text Length = "m";
  Text Temperature = "C";
  bool IsStated = false;  // and no default
};

/// A value that a row states and that goes nowhere.
struct LostValue {
  std::uint32_t Position;  // of the row in its block
  Why Reason;
};

/// The source file as tables of row records, one for each table that the converter knows. The key
/// of a record is its row's position in its block, from 1; a second block of the same table writes
/// over the rows of the same positions and leaves the rest.
///
/// A row record is a plain struct that names its table, `static constexpr Text kTable =
/// "T_JTCD_D"`, and whose keys are listed in kRowKeys. The room of its topic declares it.
class CModel {
 public:
  template <class Record>
  CKeyedTable<Record>& Rows() {
    static const std::uint32_t buckets = BucketsOfSourceTable(Record::kTable);
    return m_Tables.Of<Record>(buckets);
  }

  void Set(const ActiveDegreesOfFreedom& freedom) { m_ActiveDegreesOfFreedom = freedom; }
  void Set(const Units& units) { m_Units = units; }
  const ActiveDegreesOfFreedom& Freedom() const { return m_ActiveDegreesOfFreedom; }
  const Units& CurrentUnits() const { return m_Units; }

  /// True when an account of the rows is kept, for which all of their keys are looked at.
  bool IsAccountedFor = false;
  /// What is lost with the rows of the block that was stored last; of an account.
  std::vector<LostValue> LostValues;
  void TakeLost(std::uint32_t position, const std::vector<Why>& whys) {
    for (const Why why : whys) {
      LostValues.push_back({position, why});
    }
  }

  /// The bytes of the texts of the records.
  TextStore& Texts() { return m_Texts; }

  void CountRows(std::size_t count) { m_RowCount += count; }
  std::uint64_t RowCount() const { return m_RowCount; }

 private:
  RecordTables m_Tables;
  ActiveDegreesOfFreedom m_ActiveDegreesOfFreedom;
  Units m_Units;
  TextStore m_Texts;
  std::uint64_t m_RowCount = 0;
};

/// A row that cannot be accepted, which ends the reading of the file.
struct Refusal {
  std::uint64_t Line;
  std::string Reason;
};

/// The rows of a block.
using TableRows = std::span<const SourceRow>;

/// Takes the rows of a block into the model. A table that must refuse the file gives the reason,
/// and shows a message of its own where it has one.
using RowParser = std::optional<Refusal> (*)(TableRows rows, CModel& model, Messages& shown);

/// Stores the rows of a block as records of one kind, unless `refuse` gives the reason why a record
/// cannot be accepted.
template <class Record, class Refuse>
std::optional<Refusal> StoreRowsUnless(TableRows rows, CModel& model, Refuse refuse) {
  CKeyedTable<Record>& records = model.Rows<Record>();
  records.Reserve(rows.size());
  RowReader<Record> reader(model.Texts(), model.IsAccountedFor);
  std::uint32_t position = 0;
  for (const SourceRow& row : rows) {
    const Record record = reader.Read(row.Content);
    if (std::optional<std::string> reason = refuse(record)) {
      return Refusal{row.Line, std::move(*reason)};
    }
    records.Insert(++position, record);
    model.TakeLost(position, reader.Lost());
  }
  model.CountRows(rows.size());
  return std::nullopt;
}

/// Stores the rows of a block as records of one kind.
template <class Record>
std::optional<Refusal> StoreRows(TableRows rows, CModel& model, Messages& /*shown*/) {
  return StoreRowsUnless<Record>(rows, model,
                                 [](const Record&) -> std::optional<std::string> { return {}; });
}

}  // namespace s2k2ngt
