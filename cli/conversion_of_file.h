#pragma once

#include "command.h"
#include "files_of_call.h"

#include <s2k2ngt/converter.h>

#include <optional>
#include <string>
#include <vector>

struct Message {
  std::string Key;
  std::string Text;
};

/// What became of a file.
struct Outcome {
  int Result = s2k2ngt::kFailed;
  std::optional<std::string> Output;  // when it was written whole
  bool IsEmpty = false;               // for want of rows
  std::vector<Message> Messages;
  std::optional<std::string> Error;       // of a failure
  std::optional<std::string> Unfinished;  // output that a stop has left on disk
};

Outcome Convert(const std::string& file, const CommandOptions& options, FilesOfCall& files);

/// Prints what became of a file as a line of JSON.
void PrintJson(const std::string& file, const Outcome& outcome);

/// Tells people what became of a file.
void PrintOutcome(const std::string& file, const Outcome& outcome, const CommandOptions& options);
