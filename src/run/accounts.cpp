#include "run/accounts.h"

#include "run/row_parsers.h"

#include <algorithm>
#include <array>

namespace s2k2ngt {
namespace {

/// Words of the titles of tables that hold no part of a structural model.
constexpr std::array kWordsOfNoModel = std::to_array<Text>({
    "PREFERENCES",
    "OPTIONS",
    "PROJECT INFORMATION",
    "PROJECT INFO",
    "GRID LINES",
    "GROUPS",
    "DESIGN PROCEDURES",
    "OVERWRITES",
    "DISPLAY",
});

bool HasNoModelData(Text title) {
  const std::string upper = ToUpper(title);
  return std::ranges::any_of(kWordsOfNoModel,
                             [&](Text word) { return upper.find(word) != Text::npos; });
}

/// The closing notes of the rooms, in the order of the source's topics.
constexpr std::array<void (*)(Conversion& run), 0> kClosings = {};

}  // namespace

void EnterBlock(const TableBlock& block, const TableOutcome& outcome, Ledger& ledger) {
  const std::optional<TableUse> use = UseOfTable(outcome.Record);
  ledger.Enter(block, use ? outcome.Record : Text());
  if (outcome.Fate == TableFate::Refused) {
    ledger.NoteBlock("table-refused", outcome.Message->Get());
  } else if (use && use->Lost) {
    ledger.NoteBlock("table-refused", use->Lost->Get());
  } else if (!use) {
    if (HasNoModelData(block.Title)) {
      ledger.NoteBlock("table-without-model-data");
    } else if (block.TableId > 0) {
      ledger.NoteBlock("table-not-read");
    } else {
      ledger.NoteBlock("table-unknown");
    }
  } else if (outcome.Buckets == 0) {
    ledger.NoteRowsFrom(2, "first-row-counts");
  }
  if (block.FurtherLine > 0 && use && !use->Lost) {
    ledger.NoteBlock("read-under-title-before");
  }
}

void EnterRefusal(const TableBlock& block, const Refusal& refusal, Ledger& ledger) {
  const auto row = std::ranges::find(block.Rows, refusal.Line, &SourceRow::Line);
  ledger.NoteRow(static_cast<std::uint32_t>(row - block.Rows.begin()) + 1, "row-refused");
}

void EnterLostRows(const TableBlock& block, RowsLost how, Ledger& ledger) {
  ledger.Enter(block, {});
  switch (how) {
    case RowsLost::ToFurtherTitle:
      ledger.NoteBlock("title-without-empty-line");
      break;
    case RowsLost::WithoutEnd:
      ledger.NoteBlock("row-without-end");
      break;
    case RowsLost::ToEndOfScan:
      ledger.NoteBlock("run-ended");
      break;
  }
}

void CloseAccounts(Conversion& run) {
  for (const auto close : kClosings) {
    close(run);
  }
}

}  // namespace s2k2ngt
