#include "source/scanner.h"

#include "source/table_catalogue.h"

#include <s2k2ngt/converter.h>

#include <algorithm>
#include <array>

namespace s2k2ngt {
namespace {

constexpr std::size_t kShortBetweenBlocks = 5;
constexpr std::size_t kShortInBlock = 3;
constexpr int kShortLinesAtMost = 10;
/// Foreign lines are passed over only at the head of a file.
constexpr std::int64_t kForeignLinesAtMost = 3;

constexpr std::array<Text, 7> kOlderFormatWords = {"SYSTEM", "JOINT", "RESTRAINT", "MATERIAL",
                                                   "FRAME",  "LOAD",  "PATTERN"};

/// The title as people read it: what stands between the quotes.
std::string TitleText(Text titleLine) {
  const std::size_t opening = titleLine.find('"');
  if (opening == Text::npos) {
    return std::string(TrimRight(titleLine));
  }
  const Text title = titleLine.substr(opening + 1);
  return std::string(TrimRight(title.substr(0, title.find('"'))));
}

/// The place of the first " _". Rows are full of blanks and have hardly an underscore.
std::size_t FindContinuationMark(Text row) {
  std::size_t underscore = row.find('_');
  while (underscore != Text::npos && (underscore == 0 || row[underscore - 1] != ' ')) {
    underscore = row.find('_', underscore + 1);
  }
  return underscore == Text::npos ? Text::npos : underscore - 1;
}

}  // namespace

bool JoinContinuation(Text& row) {
  row = TrimLeft(row);
  const std::size_t mark = FindContinuationMark(row);
  if (mark != Text::npos) {
    row = row.substr(0, mark);
    return true;
  }
  row = TrimRight(row);
  return false;
}

TableScanner::TableScanner(Text image, Messages& messages, Progress& progress, TableSink& sink)
    : m_Lines(image), m_Messages(messages), m_Progress(progress), m_Sink(sink) {}

int TableScanner::Read() {
  m_Progress.SetPhase(kReading);
  State state = State::BetweenBlocks;
  for (;;) {
    switch (state) {
      case State::BetweenBlocks:
        m_Title.clear();
        state = FindBlock();
        break;
      case State::BlockFound:
        state = ReadBlock();
        if (state != State::BlockEnded) {
          LoseRows(RowsLost::ToEndOfScan);
        }
        break;
      case State::BlockEnded:
        if (!m_Sink.DispatchRows(CurrentBlock())) {
          return kFailed;
        }
        if (m_RowGoesOn) {
          m_Rows.clear();
          LoseRows(RowsLost::WithoutEnd);
        }
        state = State::BetweenBlocks;
        break;
      case State::FileEnded:
        PassOverRest();
        return kConverted;
      case State::Refused:
        return kFailed;
      case State::Stopped:
        return kStopped;
    }
  }
}

TableScanner::State TableScanner::FindBlock() {
  int shortLines = 0;
  for (;;) {
    const bool isNew = m_Lines.Next();
    if (m_Lines.Length() < kShortBetweenBlocks) {
      if (shortLines == kShortLinesAtMost) {
        return State::FileEnded;
      }
      ++shortLines;
      continue;
    }
    shortLines = 0;
    const std::string line = ToUpper(m_Lines.Line());
    ++m_LineCounter;
    if (line.starts_with("END")) {
      m_HasEnd = true;
      return State::FileEnded;
    }
    if (line.starts_with("FILE")) {
      if (!isNew) {
        return RefuseEndlessText();
      }
      continue;
    }
    if (line.starts_with("TABLE")) {
      m_TableId = IdOfTitle(line);
      m_Title = TitleText(m_Lines.Line());
      m_TitleLine = m_Lines.LineNumber();
      return State::BlockFound;
    }
    const bool isOlderFormat =
        std::ranges::any_of(kOlderFormatWords, [&](Text word) { return line.starts_with(word); });
    const State state = TakeForeignLine(isOlderFormat, isNew);
    if (state != State::BetweenBlocks) {
      return state;
    }
  }
}

TableScanner::State TableScanner::TakeForeignLine(bool isOlderFormat, bool isNew) {
  if (isOlderFormat) {
    return Refuse("the file is of the format before V8");
  }
  if (m_LineCounter > kForeignLinesAtMost) {
    return isNew ? Refuse("the line is neither a table's title nor the end of the file")
                 : RefuseEndlessText();
  }
  if (isNew) {
    m_Sink.PassOver(m_Lines.LineNumber());
  }
  m_Messages.Show("IDS_S2KV8_DATA_Not_Convert");
  return State::BetweenBlocks;
}

TableScanner::State TableScanner::ReadBlock() {
  StartBlock();
  for (;;) {
    const bool isNew = m_Lines.Next();
    if (m_Lines.Length() < kShortInBlock) {
      return State::BlockEnded;
    }
    const Text line = m_Lines.Line();
    if (!isNew) {
      // The buffer would give this line for ever. A block that ends on FILE is no way out: between
      // blocks FILE is passed over, again for ever.
      return RefuseEndlessText();
    }
    if (!m_Progress.Step(static_cast<int>(m_LineCounter))) {
      return State::Stopped;
    }
    ++m_LineCounter;
    if (line.starts_with("END") || line.starts_with("FILE")) {
      m_HasEnd = m_HasEnd || line.starts_with("END");
      return State::BlockEnded;
    }
    if (line.starts_with("TABLE")) {
      // Meant so: the block starts over under the title that opened it. The new title is not
      // looked at, and the rows read so far are lost.
      LoseRows(RowsLost::ToFurtherTitle);
      StartBlock();
      m_FurtherTitle = TitleText(line);
      m_FurtherLine = m_Lines.LineNumber();
      continue;
    }
    if (m_RowsAreWanted) {
      AddLineToRow(line);
    }
  }
}

void TableScanner::StartBlock() {
  m_RowsAreWanted = m_Sink.WantsRows(m_TableId);
  m_Rows.clear();
  m_JoinedRows.Clear();
  m_PendingText.clear();
  m_RowGoesOn = false;
  m_FurtherTitle.clear();
  m_FurtherLine = 0;
}

TableBlock TableScanner::CurrentBlock() const {
  return {m_TableId, m_Title, m_TitleLine, m_Rows, m_FurtherTitle, m_FurtherLine};
}

void TableScanner::LoseRows(RowsLost how) {
  if (m_RowGoesOn) {
    m_Rows.push_back({m_PendingText, m_PendingLine});
  }
  if (!m_Rows.empty()) {
    m_Sink.LoseRows(CurrentBlock(), how);
  }
}

/// Tells of what stands behind the lines by which the scan has ended.
void TableScanner::PassOverRest() {
  while (m_Lines.Next()) {
    if (ToUpper(m_Lines.Line().substr(0, 3)) == "END") {
      m_HasEnd = true;
    } else if (m_Lines.Length() >= kShortBetweenBlocks) {
      m_Sink.PassOver(m_Lines.LineNumber());
    }
  }
}

void TableScanner::AddLineToRow(Text line) {
  const bool goesOn = JoinContinuation(line);
  if (!m_RowGoesOn) {
    m_PendingLine = m_Lines.LineNumber();
  }
  if (m_RowGoesOn || goesOn) {
    m_PendingText += line;
  }
  if (!goesOn) {
    m_Rows.push_back({m_RowGoesOn ? m_JoinedRows.Keep(m_PendingText) : line, m_PendingLine});
    m_PendingText.clear();
  }
  m_RowGoesOn = goesOn;
}

TableScanner::State TableScanner::Refuse(const std::string& reason) {
  m_Messages.Show("IDS_S2KV8_Not_Convert");
  m_Reason = reason;
  return State::Refused;
}

TableScanner::State TableScanner::RefuseEndlessText() {
  return Refuse("the file ends without a line that begins with END");
}

}  // namespace s2k2ngt
