#pragma once

#include "command.h"
#include "inputs.h"
#include "report.h"

#include <s2k2ngt/converter.h>

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

/// What a file comes to for the call.
struct FileResult {
  int Result = s2k2ngt::kFailed;
  bool HasLoss = false;  // by the account, if it is kept
  ReportPart Part;
};

/// What became of a file.
struct Outcome {
  FileFacts Facts;
  bool IsEmpty = false;              // for want of rows
  std::vector<std::string> Account;  // lines for people
  ReportPart Part;
};

/// The streams of a call, or what stands for them: one line of JSON a file, and all for people.
struct Streams {
  std::ostream& Out;
  std::ostream& Err;
};

/// Converts a file, unless it is refused or the user has stopped the call, and shows its messages.
Outcome Convert(const FileToConvert& file, const CommandOptions& options, std::ostream& err);

/// The outcome of a file that could not be converted; `unfinished` is an output that this has left.
Outcome FailureOf(const FileToConvert& file, const std::string& reason,
                  const CommandOptions& options,
                  const std::optional<std::string>& unfinished = std::nullopt);

/// What the call needs of an outcome that is told.
FileResult ResultOf(Outcome outcome);

/// Tells what became of a file.
void Tell(const Outcome& outcome, const CommandOptions& options, Streams streams);

/// Writes a line of the command's own for people.
void PrintLine(std::ostream& err, const std::string& text);
