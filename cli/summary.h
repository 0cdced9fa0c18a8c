#pragma once

#include "command.h"
#include "conversion_of_file.h"
#include "inputs.h"

#include <ostream>
#include <vector>

/// The exit status of a call whose files had these results.
int StatusOf(const std::vector<FileResult>& results, const CommandOptions& options);

/// Prints how many files of a call were converted and how many not, and the names of those that
/// failed.
void PrintSummary(std::ostream& err, const std::vector<FileToConvert>& files,
                  const std::vector<FileResult>& results, const CommandOptions& options);
