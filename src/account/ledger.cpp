#include "account/ledger.h"

#include "source/row_pairs.h"
#include "source/table_catalogue.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <utility>

namespace s2k2ngt {
namespace {

/// The first pair of a row as it stands.
Text FirstPair(Text row) {
  RowPairs pairs(row);
  if (!pairs.Next()) {
    return row;
  }
  const Text value = pairs.Value();
  return row.substr(0, static_cast<std::size_t>(value.data() - row.data()) + value.size());
}

bool FollowLineByLine(const TableBlock& block, std::uint64_t titleLine) {
  // The first row may begin anywhere behind the title; as a rule all lines are rows.
  std::uint64_t line = titleLine;
  return std::ranges::all_of(block.Rows, [&](const SourceRow& row) { return row.Line == ++line; });
}

/// Which of a row's fates is told.
int RankOf(RowFate fate) {
  switch (fate) {
    case RowFate::Converted:
      return 0;
    case RowFate::Changed:
      return 1;
    case RowFate::NotLookedAt:
      return 2;
    case RowFate::Dropped:
      return 3;
    case RowFate::Refused:
      return 4;
  }
  return 0;
}

int RankOf(std::uint16_t why) { return RankOf(kReasons[why].Fate); }

}  // namespace

// ---- Reasons and accounts ----

ReasonList Reasons() { return {kReasons.data(), kReasons.size()}; }

std::uint64_t Account::With(RowFate fate) const {
  std::uint64_t rows = 0;
  for (const TableAccount& table : Tables) {
    rows += table.With(fate);
  }
  return rows;
}

bool Account::HasLoss() const {
  return std::ranges::any_of(Tables, [](const TableAccount& table) {
    return std::ranges::any_of(table.Reasons,
                               [](const ReasonCount& count) { return count.Why->IsLoss; });
  });
}

// ---- While the file is read ----

std::size_t Ledger::KindOfRecord(Text record) {
  static const std::vector<Text> kinds = [] {
    std::vector<Text> names = {kActiveDegreesOfFreedom, kCoordinateSystem, kUnits};
    for (const SourceTable& table : SourceTables()) {
      names.push_back(table.Name);
    }
    return names;
  }();
  const auto found = std::ranges::find(kinds, record);
  if (found == kinds.end()) {
    throw std::logic_error("the catalogue has no table of " + std::string(record));
  }
  return static_cast<std::size_t>(found - kinds.begin());
}

void Ledger::Enter(const TableBlock& block, Text record, LabelFunction labelOf) {
  const bool isFurther = block.FurtherLine > 0;
  Block entry;
  entry.Title = isFurther ? block.FurtherTitle : block.Title;
  entry.Line = isFurther ? block.FurtherLine : block.Line;
  entry.TableId = block.TableId;
  entry.Rows = static_cast<std::uint32_t>(block.Rows.size());
  if (!FollowLineByLine(block, entry.Line)) {
    entry.Lines.reserve(block.Rows.size());
    for (const SourceRow& row : block.Rows) {
      entry.Lines.push_back(static_cast<std::uint32_t>(row.Line - entry.Line));
    }
  }
  entry.LabelOf = std::move(labelOf);
  m_Blocks.push_back(std::move(entry));
  if (!record.empty()) {
    const std::size_t number = KindOfRecord(record);
    m_Kinds.resize(std::max(m_Kinds.size(), number + 1));
    WriteOver(m_Kinds[number], m_Blocks.back().Rows);
    m_Kinds[number].push_back(static_cast<std::uint32_t>(m_Blocks.size() - 1));
  }
}

/// Takes note that the rows of a kind up to this position are those of a new block.
void Ledger::WriteOver(Kind& kind, std::uint32_t rows) {
  constexpr Why kOverwritten = "overwritten-by-later-block";
  std::uint32_t done = 0;  // rows of the blocks before, which are no longer in the model
  while (!kind.empty()) {
    const std::uint32_t before = kind.back();
    const std::uint32_t end = std::min(m_Blocks[before].Rows, rows);
    for (std::uint32_t row = done; row < end; ++row) {
      m_Blocks[before].Labels[row] = LabelOf(m_Blocks[before], row);
      NoteAt(before, row, kOverwritten.Number());
    }
    if (m_Blocks[before].Rows > rows) {
      return;
    }
    done = std::max(done, m_Blocks[before].Rows);
    kind.pop_back();
  }
}

void Ledger::NoteBlock(Why why, Text message) {
  m_Blocks.back().WhyOfAll = why.Number();
  m_Blocks.back().Message = message;
}

void Ledger::KeepLabels(const TableBlock& block) {
  std::map<std::uint32_t, std::string>& labels = m_Blocks.back().Labels;
  for (std::uint32_t row = 0; row < block.Rows.size(); ++row) {
    labels.emplace_hint(labels.end(), row, FirstPair(block.Rows[row].Content));
  }
}

void Ledger::NoteRow(const TableBlock& block, std::uint32_t position, Why why) {
  const std::uint32_t row = position - 1;
  m_Blocks.back().Labels[row] = FirstPair(block.Rows[row].Content);
  NoteAt(static_cast<std::uint32_t>(m_Blocks.size() - 1), row, why.Number());
}

void Ledger::NoteValue(std::uint32_t position, Why why) {
  m_Values.push_back({static_cast<std::uint32_t>(m_Blocks.size() - 1), position - 1, why.Number()});
}

void Ledger::EnterLine(Text title, std::uint64_t line, Why why) {
  if (m_Blocks.empty() || m_Blocks.back().Title != title) {
    m_Blocks.emplace_back();
    m_Blocks.back().Title = title;
    m_Blocks.back().Line = line;
    m_Blocks.back().WhyOfAll = why.Number();
  }
  ++m_Blocks.back().Rows;
}

// ---- While it is converted and written ----

void Ledger::NoteKey(std::size_t kind, std::uint32_t key, Why why) {
  if (kind >= m_Kinds.size() || key == 0) {
    return;
  }
  // From the newest block, which has the fewest rows, to that which holds the key.
  const Kind& blocks = m_Kinds[kind];
  const auto found = std::partition_point(blocks.rbegin(), blocks.rend(), [&](std::uint32_t block) {
    return m_Blocks[block].Rows < key;
  });
  if (found != blocks.rend()) {
    NoteAt(*found, key - 1, why.Number());
  }
}

void Ledger::NoteKind(std::size_t kind, Why why) {
  if (kind >= m_Kinds.size()) {
    return;
  }
  std::uint32_t done = 0;
  const Kind newestFirst(m_Kinds[kind].rbegin(), m_Kinds[kind].rend());
  for (const std::uint32_t block : newestFirst) {
    for (; done < m_Blocks[block].Rows; ++done) {
      NoteAt(block, done, why.Number());
    }
  }
}

void Ledger::NoteAt(std::uint32_t block, std::uint32_t row, std::uint16_t why) {
  std::vector<std::uint16_t>& whys = m_Blocks[block].Whys;
  if (whys.empty()) {
    whys.assign(m_Blocks[block].Rows, kNone);
  }
  std::uint16_t& worst = whys[row];
  if (worst == kNone) {
    worst = why;
  } else if (worst != why) {
    std::uint16_t further = why;
    if (RankOf(why) > RankOf(worst)) {
      std::swap(worst, further);
    }
    m_Further.push_back({block, row, further});
  }
}

void Ledger::SettleValues() {
  for (const FurtherNote& value : m_Values) {
    const Block& block = m_Blocks[value.Block];
    const std::uint16_t why = block.Whys.empty() ? kNone : block.Whys[value.Row];
    const bool rowGoesOver = why == kNone || kReasons[why].Fate == RowFate::Changed;
    if (rowGoesOver && block.WhyOfAll == kNone) {
      NoteAt(value.Block, value.Row, value.Why);
    }
  }
  m_Values.clear();
}

// ---- The account ----

namespace {

/// Counts rows of a table under a reason.
void Count(std::uint16_t why, std::uint64_t rows, TableAccount& table) {
  const Reason* const reason = &kReasons[why];
  const auto found = std::ranges::find(table.Reasons, reason, &ReasonCount::Why);
  if (found == table.Reasons.end()) {
    table.Reasons.push_back({reason, rows});
  } else {
    found->Rows += rows;
  }
}

std::uint64_t& RowsOf(RowFate fate, TableAccount& table) {
  return table.ByFate[static_cast<std::size_t>(fate)];
}

}  // namespace

std::string Ledger::LabelOf(const Block& block, std::uint32_t row) {
  const auto known = block.Labels.find(row);
  if (known != block.Labels.end()) {
    return known->second;
  }
  return block.LabelOf ? block.LabelOf(row + 1) : std::string();
}

Account Ledger::MakeAccount(bool runIsWhole) {
  SettleValues();
  std::vector<std::uint32_t> order(m_Blocks.size());
  std::iota(order.begin(), order.end(), 0);
  std::ranges::stable_sort(order, {}, [&](std::uint32_t number) { return m_Blocks[number].Line; });
  std::vector<FurtherNote> further = m_Further;
  std::sort(further.begin(), further.end());
  further.erase(std::unique(further.begin(), further.end()), further.end());
  Account account;
  account.Tables.reserve(m_Blocks.size());
  for (const std::uint32_t number : order) {
    const auto first = std::ranges::lower_bound(further, number, {}, &FurtherNote::Block);
    const auto last = std::ranges::upper_bound(further, number, {}, &FurtherNote::Block);
    Tell(m_Blocks[number], {first, last}, runIsWhole, account);
  }
  return account;
}

void Ledger::Tell(const Block& block, std::span<const FurtherNote> further, bool runIsWhole,
                  Account& account) {
  constexpr Why kRunEnded = "run-ended";
  const auto tableNumber = static_cast<std::uint32_t>(account.Tables.size());
  TableAccount& table = account.Tables.emplace_back();
  table.Title = block.Title;
  table.Line = block.Line;
  table.TableId = block.TableId;
  table.Message = block.Message;
  table.Rows = block.Rows;
  const std::uint16_t ofRest =
      block.WhyOfAll == kNone && !runIsWhole ? kRunEnded.Number() : block.WhyOfAll;
  const RowFate fateOfRest = ofRest == kNone ? RowFate::Converted : kReasons[ofRest].Fate;
  std::uint64_t rest = block.Rows;
  auto next = further.begin();
  for (std::uint32_t row = 0; row < block.Whys.size(); ++row) {
    const std::uint16_t why = block.Whys[row];
    if (why != kNone) {
      --rest;
      const RowFate fate = kReasons[why].Fate;
      ++RowsOf(RankOf(fate) < RankOf(fateOfRest) ? fateOfRest : fate, table);
      const std::uint64_t line =
          block.Line + (block.Lines.empty() ? std::uint64_t{row} + 1 : block.Lines[row]);
      const std::string label = LabelOf(block, row);
      const auto tell = [&](std::uint16_t reason) {
        Count(reason, 1, table);
        account.Losses.push_back({tableNumber, row + 1, line, label, &kReasons[reason]});
      };
      tell(why);
      if (RankOf(fate) < RankOf(fateOfRest)) {
        tell(ofRest);
      }
      for (; next != further.end() && next->Row == row; ++next) {
        tell(next->Why);
      }
    }
  }
  RowsOf(fateOfRest, table) += rest;
  if (ofRest != kNone && rest > 0) {
    Count(ofRest, rest, table);
  }
}

}  // namespace s2k2ngt
