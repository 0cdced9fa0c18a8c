#pragma once

#include "account/reasons.h"
#include "common/text.h"
#include "source/table_block.h"

#include <s2k2ngt/account.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace s2k2ngt {

/// Where the reading, the stages and the writers note what becomes of the rows of the source file.
/// A row of which nothing is noted counts as converted. A ledger that is not kept takes no notes
/// and costs nothing.
///
/// Rows are named as the source model names them: by the kind of their record, and by their key,
/// the position below the title. Where several blocks of a table wrote over each other's rows, a
/// key means the row that the model holds.
class Ledger {
 public:
  /// Gives the label of a row that the model holds at the moment.
  using LabelFunction = std::function<std::string(std::uint32_t key)>;

  explicit Ledger(bool isKept) : m_IsKept(isKept) {}

  bool IsKept() const { return m_IsKept; }

  // ---- While the file is read ----

  /// Enters the rows of a block. `record` is the name of the record that the model is to keep them
  /// as; empty for a block that goes to no table of the model.
  void Enter(const TableBlock& block, Text record = {}, LabelFunction labelOf = {});
  /// Keeps the labels of all rows of the block, which was entered last, as the model will not have
  /// them.
  void KeepLabels(const TableBlock& block);
  /// Gives all rows of the block that was entered last a reason. A message that the table calls
  /// for stands with it.
  void NoteBlock(Why why, Text message = {});
  /// Gives a row of the block, which was entered last, a reason. The row is not in the model.
  void NoteRow(const TableBlock& block, std::uint32_t position, Why why);
  /// Notes that a value of a row of the block entered last is lost. It is told unless the whole row
  /// turns out to be, or there is a reason for all rows.
  void NoteValue(std::uint32_t position, Why why);

  /// Enters a line that belongs to no table: under a title of our own, with those before it that
  /// have the same.
  void EnterLine(Text title, std::uint64_t line, Why why);

  // ---- While it is converted and written ----

  /// Notes of a row why it does not go over as it stands. A row may have several reasons; the worst
  /// decides what its fate is: refused, dropped, not looked at, changed.
  template <class Record>
  void Note(std::uint32_t key, Why why) {
    if (m_IsKept) {
      NoteKey(KindOf<Record>(), key, why);
    }
  }

  /// The same of all rows that the model holds of a record.
  template <class Record>
  void NoteAll(Why why) {
    if (m_IsKept) {
      NoteKind(KindOf<Record>(), why);
    }
  }

  /// True when the file has a table of the record.
  template <class Record>
  bool Has() const {
    const std::size_t kind = KindOf<Record>();
    return kind < m_Kinds.size() && !m_Kinds[kind].empty();
  }

  /// The account of all that was noted. Rows without a reason are converted if the run has come to
  /// its end, and else not looked at.
  Account MakeAccount(bool runIsWhole);

 private:
  static constexpr std::uint16_t kNone = 65535;

  struct Block {
    std::string Title;
    std::uint64_t Line = 0;
    int TableId = 0;
    std::string Message;
    std::uint32_t Rows = 0;
    std::uint16_t WhyOfAll = kNone;
    std::vector<std::uint16_t> Whys;   // of the rows, the worst of each; empty without any
    std::vector<std::uint32_t> Lines;  // behind the title; empty when they follow it one by one
    LabelFunction LabelOf;             // of the rows that the model holds
    std::map<std::uint32_t, std::string>
        Labels;  // of rows that the model does not hold, or no more
  };
  /// A reason of a row beside that in Whys.
  struct FurtherNote {
    std::uint32_t Block;
    std::uint32_t Row;
    std::uint16_t Why;
    bool operator==(const FurtherNote&) const = default;
    bool operator<(const FurtherNote& other) const {
      return std::tie(Block, Row, Why) < std::tie(other.Block, other.Row, other.Why);
    }
  };
  /// The blocks of a table that have rows in the model, the newest last. Each has more rows than
  /// the next, which has written over the first of them.
  using Kind = std::vector<std::uint32_t>;

  template <class Record>
  static std::size_t KindOf() {
    static const std::size_t kind = KindOfRecord(Record::kTable);
    return kind;
  }
  static std::size_t KindOfRecord(Text record);

  void NoteKey(std::size_t kind, std::uint32_t key, Why why);
  void NoteKind(std::size_t kind, Why why);
  void WriteOver(Kind& kind, std::uint32_t rows);
  void NoteAt(std::uint32_t block, std::uint32_t row, std::uint16_t why);
  void SettleValues();
  static std::string LabelOf(const Block& block, std::uint32_t row);
  static void Tell(const Block& block, std::span<const FurtherNote> further, bool runIsWhole,
                   Account& account);

  bool m_IsKept;
  std::vector<Block> m_Blocks;
  std::vector<FurtherNote> m_Further;  // that are worse, or were noted before
  std::vector<FurtherNote> m_Values;   // of values that are lost, until the fates of rows are known
  std::vector<Kind> m_Kinds;
};

}  // namespace s2k2ngt
