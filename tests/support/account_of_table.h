#pragma once

#include "support/account_run.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

// What a run tells of one table of its input, whatever the others have.

/// The reasons of its rows, as "Frame=12: frame-unknown".
inline std::vector<std::string> LossesOf(const AccountRun& run, std::string_view title) {
  std::vector<std::string> losses;
  for (const s2k2ngt::RowLoss& loss : run.Rows.Losses) {
    if (run.Rows.Tables[loss.Table].Title == title) {
      losses.push_back(loss.Label + ": " + loss.Why->Code);
    }
  }
  return losses;
}

/// Its rows by their fates, as "2 rows, 1 converted, 1 dropped".
inline std::string FatesOf(const AccountRun& run, std::string_view title) {
  const std::string beginning = std::string(title) + ": ";
  for (const std::string& table : run.Tables()) {
    if (table.starts_with(beginning)) {
      return table.substr(beginning.size());
    }
  }
  return {};
}

/// True when one of its reasons is a loss.
inline bool HasLoss(const AccountRun& run, std::string_view title) {
  return std::ranges::any_of(run.Rows.Losses, [&](const s2k2ngt::RowLoss& loss) {
    return run.Rows.Tables[loss.Table].Title == title && loss.Why->IsLoss;
  });
}
