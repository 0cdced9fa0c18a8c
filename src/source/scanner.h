#pragma once

#include "common/messages.h"
#include "common/progress.h"
#include "source/line_reader.h"
#include "source/str_parser.h"
#include "source/table_block.h"

#include <cstdint>
#include <string>
#include <vector>

namespace s2k2ngt {

/// Takes the blocks that a scan finds, each at its end.
class TableSink {
 public:
  virtual ~TableSink() = default;
  /// False when the rows of a table are not looked at; its blocks then come without them.
  virtual bool WantsRows(int tableId) = 0;
  /// False ends the scan in failure. The rows are there until the call ends.
  virtual bool DispatchRows(const TableBlock& block) = 0;
  /// Tells of rows that were read and that no block brings.
  virtual void LoseRows(const TableBlock& /*block*/, RowsLost /*how*/) {}
  /// Tells of a line that is read as no part of a table, before the end of the scan or behind it.
  virtual void PassOver(std::uint64_t /*line*/) {}

 protected:
  TableSink() = default;
  TableSink(const TableSink&) = default;
  TableSink& operator=(const TableSink&) = default;
};

/// Walks a source file line by line, finds its blocks of rows, and hands each to a sink.
///
/// A file is title lines (`TABLE:  "JOINT COORDINATES"`), each followed by the rows of its block up
/// to an all but empty line, and at last a line that begins with END. A row goes on in the next
/// line where it holds " _". The scanner knows nothing of a table's keys.
///
/// The rules for short, foreign and repeated lines are those of a C program that reads line after
/// line into one buffer and never asks whether it got one: at the end of the file the buffer keeps
/// the last line, and a file may end by that.
class TableScanner {
 public:
  /// The image must outlive the scanner.
  TableScanner(Text image, Messages& messages, Progress& progress, TableSink& sink);

  /// Scans the whole file. Returns a RunResult.
  int Read();

  /// Where the scan stands: line of the file, title of the block (empty outside one), and after a
  /// failure of its own the reason.
  std::uint64_t LineNumber() const { return m_Lines.LineNumber(); }
  const std::string& Title() const { return m_Title; }
  const std::string& Reason() const { return m_Reason; }
  /// False when the lines ran out without one that begins with END.
  bool HasEnd() const { return m_HasEnd; }

 private:
  enum class State { BetweenBlocks, BlockFound, BlockEnded, FileEnded, Refused, Stopped };

  State FindBlock();
  State ReadBlock();
  State TakeForeignLine(bool isOlderFormat, bool isNew);
  State Refuse(const std::string& reason);
  State RefuseEndlessText();
  void StartBlock();
  void AddLineToRow(Text line);
  TableBlock CurrentBlock() const;
  void LoseRows(RowsLost how);
  void PassOverRest();

  LineReader m_Lines;
  Messages& m_Messages;
  Progress& m_Progress;
  TableSink& m_Sink;

  std::int64_t m_LineCounter = 0;  // of all lines but the short ones
  int m_TableId = 0;
  bool m_RowsAreWanted = false;
  std::string m_Title;
  std::uint64_t m_TitleLine = 0;
  std::string m_FurtherTitle;  // met inside the block
  std::uint64_t m_FurtherLine = 0;
  std::vector<SourceRow> m_Rows;
  TextStore m_JoinedRows;     // of the block, as they do not stand in the file
  std::string m_PendingText;  // the row whose end is not read yet
  std::uint64_t m_PendingLine = 0;
  bool m_RowGoesOn = false;
  bool m_HasEnd = false;
  std::string m_Reason;
};

/// Trims a line of a row and cuts it at its continuation mark, the first " _". True when it has
/// one, that is when the row goes on in the next line.
bool JoinContinuation(Text& row);

}  // namespace s2k2ngt
