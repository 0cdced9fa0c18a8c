#pragma once

#include "account/ledger.h"
#include "source/model.h"
#include "source/table_block.h"
#include "source/table_catalogue.h"
#include "target/conversion.h"

namespace s2k2ngt {

// What the driver enters into the ledger of a run that keeps account.

/// Enters a block, and why its rows are not looked at if no table of the model takes them.
void EnterBlock(const TableBlock& block, const TableOutcome& outcome, CModel& model,
                Ledger& ledger);

/// Notes what is lost with rows of the block entered last, which the model has stored.
void EnterLostValues(CModel& model, Ledger& ledger);

/// Notes the row of the block entered last that refuses the file.
void EnterRefusal(const TableBlock& block, const Refusal& refusal, Ledger& ledger);

/// Enters rows that no block brings.
void EnterLostRows(const TableBlock& block, RowsLost how, Ledger& ledger);

/// Enters a line that the scan passes over.
void EnterLineOfNoTable(std::uint64_t line, Ledger& ledger);

/// Enters what the file, of so many lines, should have and does not: its end, and for a model the
/// tables that say what its numbers mean.
void EnterWhatIsMissing(CModel& model, std::uint64_t lines, bool hasEnd, Ledger& ledger);

/// Notes the rows that are lost because no stage and no writer has asked for them. Runs when all
/// is written.
void CloseAccounts(Conversion& run);

}  // namespace s2k2ngt
