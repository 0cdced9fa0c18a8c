#pragma once

#include "support/conversion_run.h"

#include <string>

/// A source file whose output takes more than two mebibytes, and with them more than two writes,
/// with few rows: the labels of its joints, which the output repeats, are long.
inline std::string LargeModel() {
  std::string rows;
  for (int joint = 1; joint <= 6'000; ++joint) {
    rows += "   Joint=" + std::string(400, 'J') + std::to_string(joint) + "   XorR=2\n";
  }
  return FileWith(SourceTable("JOINT COORDINATES", rows));
}
