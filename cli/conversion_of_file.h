#pragma once

#include "command.h"
#include "inputs.h"

#include <s2k2ngt/converter.h>

#include <iosfwd>
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

/// The streams of a call, or what stands for them: one line of JSON a file, and all for people.
struct Streams {
  std::ostream& Out;
  std::ostream& Err;
};

/// Converts a file, unless it is refused or the user has stopped the call, and shows its messages.
Outcome Convert(const FileToConvert& file, const CommandOptions& options, std::ostream& err);

/// Tells what became of a file.
void Tell(const FileToConvert& file, const Outcome& outcome, const CommandOptions& options,
          Streams streams);

/// Writes a line of the command's own for people.
void PrintLine(std::ostream& err, const std::string& text);
