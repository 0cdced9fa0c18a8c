// The lines, blocks and titles of a file of any bytes.
#include "source/scanner.h"

#include "common/messages.h"
#include "common/progress.h"
#include "source/line_reader.h"
#include "source/table_catalogue.h"
#include "target.h"

#include <s2k2ngt/converter.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using s2k2ngt::Text;

namespace {

/// Lines as a C program gets them: the file read as text, each line by fgets into a buffer of 500
/// characters, looked at as a text that ends at a zero.
class LiteralLines {
 public:
  explicit LiteralLines(Text image) {
    for (std::size_t at = 0; at < image.size(); ++at) {
      const bool isPair = image[at] == '\r' && at + 1 < image.size() && image[at + 1] == '\n';
      if (!isPair) {
        m_Bytes += image[at];
      }
    }
  }

  /// False at the end of the file.
  bool Next(std::string& line) {
    constexpr std::size_t kBuffer = 500;
    line.clear();
    while (m_At < m_Bytes.size() && line.size() < kBuffer - 1) {
      line += m_Bytes[m_At++];
      if (line.back() == '\n') {
        break;
      }
    }
    const bool isRead = !line.empty();
    line.resize(std::min(line.find('\0'), line.size()));
    return isRead;
  }

 private:
  std::string m_Bytes;
  std::size_t m_At = 0;
};

void CompareLines(Text image) {
  LiteralLines literal(image);
  s2k2ngt::LineReader lines(image);
  std::string wanted;
  while (literal.Next(wanted)) {
    Require(lines.Next(), "the file ends before its end");
    const bool endsInNewline = wanted.ends_with('\n');
    Require(lines.Length() == wanted.size(), "a line of another length");
    Require(std::string(lines.Line()) + (endsInNewline ? "\n" : "") == wanted, "another line");
  }
  const std::string last(lines.Line());
  Require(!lines.Next() && lines.Line() == last, "the file does not end");
}

class NoMessages : public s2k2ngt::Messages {
  void Show(s2k2ngt::MessageKey /*key*/) override {}
  void ShowWith(s2k2ngt::MessageKey /*key*/, Text /*argument*/) override {}
};

class NoProgress : public s2k2ngt::Progress {
  void SetPhase(int /*phase*/) override {}
  void SetRange(int /*high*/) override {}
  bool Step(int /*position*/) override { return true; }
};

struct Block {
  int TableId;
  std::string Title;
  std::uint64_t Line;
  bool operator==(const Block&) const = default;
};

class BlockList : public s2k2ngt::TableSink {
 public:
  explicit BlockList(bool wantsRows) : m_WantsRows(wantsRows) {}
  const std::vector<Block>& Blocks() const { return m_Blocks; }

 private:
  bool WantsRows(int /*tableId*/) override { return m_WantsRows; }
  bool DispatchRows(const s2k2ngt::TableBlock& block) override {
    Require(block.Line > 0, "a block without a place");
    Require(m_WantsRows || block.Rows.empty(), "rows that were not wanted");
    s2k2ngt::OutcomeOf(block.TableId);
    std::uint64_t before = block.Line;
    for (const s2k2ngt::SourceRow& row : block.Rows) {
      Require(row.Line >= before, "rows out of order");
      before = row.Line;
      // Every byte is there to be read.
      m_Sum += static_cast<std::size_t>(row.Content.find('\0'));
      Require(row.Content.empty() || !s2k2ngt::IsSpace(row.Content.front()), "a row not trimmed");
    }
    if (block.TableId > 0) {
      m_Blocks.push_back({block.TableId, std::string(block.Title), block.Line});
    }
    return true;
  }

  bool m_WantsRows;
  std::size_t m_Sum = 0;
  std::vector<Block> m_Blocks;
};

int Scan(Text image, BlockList& blocks) {
  NoMessages messages;
  NoProgress progress;
  s2k2ngt::TableScanner scanner(image, messages, progress, blocks);
  const int result = scanner.Read();
  Require(result == s2k2ngt::kConverted || result == s2k2ngt::kFailed, "another result");
  Require(scanner.Reason().empty() == (result == s2k2ngt::kConverted), "a reason, or none");
  return result;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Text image(reinterpret_cast<const char*>(data), size);
  CompareLines(image);
  s2k2ngt::CountLines(image);
  BlockList withRows(true);
  BlockList withoutRows(false);
  const int result = Scan(image, withRows);
  Require(Scan(image, withoutRows) == result, "the rows decide the result");
  Require(withRows.Blocks() == withoutRows.Blocks(), "the rows decide what is a block");
  return 0;
}
