#pragma once

#include "command.h"
#include "conversion_of_file.h"
#include "inputs.h"

#include <vector>

/// Converts as many files at once as the options say, and tells what became of each in the order of
/// the files, as if they had been converted one after the other. Returns
/// what the call needs of each.
///
/// Each file has a process of its own, so that one which crashes or takes all memory does not take
/// others along; it is told as a failure. A signal that asks this process to end stops them all. If
/// this process is killed they stop by themselves, and tell what they leave unfinished. On Windows
/// they are threads.
std::vector<FileResult> ConvertInWorkers(const std::vector<FileToConvert>& files,
                                         const CommandOptions& options);
