#pragma once

#include "inputs.h"

#include <ostream>
#include <vector>

/// The exit status of a call whose files had these results.
int StatusOf(const std::vector<int>& results);

/// Prints how many files of a call were converted and how many not, and the names of those that
/// failed.
void PrintSummary(std::ostream& err, const std::vector<FileToConvert>& files,
                  const std::vector<int>& results);
