#pragma once

#include <string>

namespace s2k2ngt::reference {

// The pages of docs/ that are made from the code's own declarations. scripts/write-docs writes
// them, and a test fails when they have changed.

/// docs/source_tables.md: all tables of a source file and what becomes of each.
std::string SourceTablesPage();

/// docs/messages.md: all messages and when each is shown.
std::string MessagesPage();

/// docs/reasons.md: why rows do not go over as they stand.
std::string ReasonsPage();

}  // namespace s2k2ngt::reference
