#include "model_mutator.h"

#include "common/text.h"
#include "support/random_model.h"

#include <algorithm>
#include <array>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Text = std::string_view;

/// Values at the edges of what is read, beside the words that other rows have.
constexpr std::array<Text, 34> kOddValues = {
    "",           " ",          "0",           "-0",         "1",
    "-1",         "2",          "3",           "0.5",        "1E-300",
    "1E+308",     "1E+999",     "-1E+40",      "nan",        "inf",
    "2147483647", "2147483648", "-2147483649", "4294967296", "99999999999999999999",
    "Yes",        "No",         "\"a, b\"",    "1/2,3",      "1/0,0",
    "0x1p3",      "%s%n%d",     "=",           "a=b",        " _",
    "\"",         "A",          "GLOBAL",      "END"};

/// A shorter line ends a table; a row of blanks does not.
constexpr std::size_t kShortestRow = 2;

struct Block {
  std::string Title;  // line of the title, or any other line between the blocks
  std::vector<std::string> Rows = {};
  bool IsTable = false;
};

class Model {
 public:
  Model(Text text, std::uint32_t seed) : m_Random(seed) {
    while (!text.empty()) {
      const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
      TakeLine(text.substr(0, text[size - 1] == '\n' ? size - 1 : size));
      text.remove_prefix(size);
    }
  }

  void Mutate() {
    if (m_Blocks.empty()) {
      m_Blocks = {{.Title = "File model.s2k"}, {.Title = "END TABLE DATA"}};
    }
    switch (Below(12)) {
      case 0:
        Insert(RandomBlock());
        break;
      case 1:
        Insert(AnyBlock());
        break;
      case 2:
        m_Blocks.erase(m_Blocks.begin() + Offset(m_Blocks));
        break;
      case 3:
        std::swap(AnyBlock(), AnyBlock());
        break;
      case 4:
        AnyBlock().Title = RandomBlock().Title;
        break;
      case 5:
        MutateRows(AnyBlock().Rows);
        break;
      case 6:
        RepeatRows(AnyBlock().Rows);
        break;
      default:
        MutateRow();
        break;
    }
  }

  /// Keeps a few rows of each table.
  void Thin(std::size_t rowsAtMost) {
    for (Block& block : m_Blocks) {
      block.Rows.resize(std::min<std::size_t>(block.Rows.size(), 1 + Below(rowsAtMost)));
    }
  }

  /// The text, without the tables for which there is no room any more.
  std::string Write(std::size_t sizeAtMost) const {
    constexpr Text kEnd = "END TABLE DATA\n";
    std::string text;
    for (const Block& block : m_Blocks) {
      std::string lines = block.Title + "\n";
      for (const std::string& row : block.Rows) {
        lines += row + "\n";
      }
      lines += block.IsTable ? " \n" : "";
      if (text.size() + lines.size() + kEnd.size() <= sizeAtMost) {
        text += lines;
      }
    }
    if (text.size() + kEnd.size() <= sizeAtMost && !text.ends_with(kEnd)) {
      text += kEnd;
    }
    return text;
  }

 private:
  void TakeLine(Text line) {
    if (line.starts_with("TABLE")) {
      m_Blocks.push_back({std::string(line), {}, true});
      m_InTable = true;
    } else if (line.size() < kShortestRow) {
      m_InTable = false;
    } else if (m_InTable) {
      m_Blocks.back().Rows.emplace_back(line);
    } else {
      m_Blocks.push_back({std::string(line), {}, false});
    }
  }

  std::size_t Below(std::size_t count) { return count == 0 ? 0 : m_Random() % count; }
  template <class List>
  std::ptrdiff_t Offset(const List& list) {
    return static_cast<std::ptrdiff_t>(Below(list.size()));
  }

  Block& AnyBlock() { return m_Blocks[Below(m_Blocks.size())]; }

  Block RandomBlock() {
    constexpr std::uint32_t kModels = 24;
    static const std::vector<Model> models = [] {
      std::vector<Model> made;
      for (std::uint32_t seed = 0; seed < kModels; ++seed) {
        made.emplace_back(RandomModel(seed), seed);
        made.back().Thin(12);
      }
      return made;
    }();
    const Model& model = models[Below(models.size())];
    return model.m_Blocks[Below(model.m_Blocks.size())];
  }

  void Insert(Block block) {
    m_Blocks.insert(m_Blocks.begin() + Offset(m_Blocks), std::move(block));
  }

  void MutateRows(std::vector<std::string>& rows) {
    if (rows.empty()) {
      return;
    }
    switch (Below(3)) {
      case 0:
        rows.erase(rows.begin() + Offset(rows));
        break;
      case 1:
        rows.insert(rows.begin() + Offset(rows), std::string(rows[Below(rows.size())]));
        break;
      default:
        std::swap(rows[Below(rows.size())], rows[Below(rows.size())]);
        break;
    }
  }

  void RepeatRows(std::vector<std::string>& rows) {
    constexpr std::size_t kRowsAtMost = 200;
    for (std::size_t count = Below(40); count > 0 && !rows.empty() && rows.size() < kRowsAtMost;
         --count) {
      rows.push_back(rows[Below(rows.size())]);
    }
  }

  void MutateRow() {
    Block& block = AnyBlock();
    if (block.Rows.empty()) {
      return;
    }
    std::string& row = block.Rows[Below(block.Rows.size())];
    const std::size_t sign = row.find('=', Below(row.size() + 1));
    if (sign == std::string::npos) {
      row += "   " + std::string(OddValue()) + "=" + std::string(OddValue());
      return;
    }
    const std::size_t next = row.find('=', sign + 1);
    const std::size_t blank = next == std::string::npos ? next : row.rfind(' ', next);
    const std::size_t end = blank == std::string::npos || blank < sign ? row.size() : blank;
    const std::string other = ValueOf(block.Rows[Below(block.Rows.size())], WordBefore(row, sign));
    switch (Below(5)) {
      case 0:
        row.erase(row.rfind(' ', sign) + 1, end - row.rfind(' ', sign) - 1);
        break;
      case 1:
        row.insert(end, " _\n");
        break;
      case 2:
        row.replace(sign + 1, end - sign - 1, other);
        break;
      default:
        row.replace(sign + 1, end - sign - 1, OddValue());
        break;
    }
  }

  static std::string WordBefore(const std::string& row, std::size_t sign) {
    const std::size_t first = row.rfind(' ', sign) + 1;
    return row.substr(first, sign + 1 - first);
  }

  static std::string ValueOf(const std::string& row, const std::string& word) {
    const std::size_t place = row.find(word);
    if (place == std::string::npos) {
      return {};
    }
    const std::size_t first = place + word.size();
    return row.substr(first, std::min(row.find(' ', first), row.size()) - first);
  }

  Text OddValue() { return kOddValues[Below(kOddValues.size())]; }

  std::mt19937 m_Random;
  std::vector<Block> m_Blocks;
  bool m_InTable = false;
};

}  // namespace

std::string MutateModel(const std::string& model, std::size_t sizeAtMost, std::uint32_t seed) {
  std::mt19937 random(seed);
  if (random() % 50 == 0) {
    return SmallRandomModel(sizeAtMost, static_cast<std::uint32_t>(random()));
  }
  Model mutated(model, static_cast<std::uint32_t>(random()));
  for (std::uint_fast32_t changes = 1 + random() % 4; changes > 0; --changes) {
    mutated.Mutate();
  }
  return mutated.Write(sizeAtMost);
}

std::string SmallRandomModel(std::size_t sizeAtMost, std::uint32_t seed) {
  Model model(RandomModel(seed), seed);
  model.Thin(8);
  return model.Write(sizeAtMost);
}
