#pragma once

#include "command.h"
#include "conversion_of_file.h"
#include "inputs.h"

#include <optional>
#include <string>
#include <vector>

/// True for the name of a file of which is known what it is to hold: .html or .json.
bool IsReportName(const std::string& name);

/// Why a report cannot be written, in words for the user: it would replace a file of the call, or
/// its folder is not there or not to be written to. Asked before anything is converted.
std::optional<std::string> WhyNoReport(const std::vector<FileToConvert>& files,
                                       const CommandOptions& options);

/// Writes the reports that the call asks for, of what became of its files. False when one could not
/// be written, which it tells.
bool WriteReports(const std::vector<FileResult>& results, const CommandOptions& options);

/// Tells that the call has no memory for what its reports are to hold.
void TellNoMemoryForReports(const CommandOptions& options);
