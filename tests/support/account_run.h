#pragma once

#include "support/conversion_run.h"

#include <s2k2ngt/account.h>

#include <string>
#include <string_view>
#include <vector>

/// What a run tells of the rows of its input.
struct AccountRun {
  ConversionRun Run;
  s2k2ngt::Account Rows;

  /// The reasons of single rows, as "Frame=12: frame-section-unknown", in the order of the file.
  std::vector<std::string> Losses() const;
  /// Those of the tables whose titles hold these words.
  std::vector<std::string> LossesIn(std::string_view words) const;
  /// The tables, each as "JOINT COORDINATES: 4 rows, 3 converted, 1 dropped", in the order of the
  /// file; fates without a row are left out, and so are the tables that the file does not have.
  std::vector<std::string> Tables() const;
  /// True when one of these tables has a loss.
  bool HasLossOfRows() const;
};

/// Runs the conversion over these bytes keeping account. Checks that the output, the messages and
/// the result are those of a run without, and that the rows of each table are the sum of its fates.
AccountRun KeepAccountOfBytes(const std::string& bytes);

/// The same over these tables, as Convert takes them.
AccountRun KeepAccount(std::string_view tables);
