#pragma once

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

/// What came of a program that was run to its end.
struct CommandRun {
  int Status = -1;  // exit status, or 128 and the number of the signal that ended it
  std::string Out;
  std::string Err;
};

struct CommandCall {
  std::vector<std::string> Words;  // the program and its arguments
  std::string Folder = ".";        // to run it in
  /// Standard error is a terminal, and all that is written to it comes back in CommandRun::Err.
  bool OnTerminal = false;
  /// What is typed on the terminal, or comes from standard input.
  std::string Input = {};
  /// Called once the program runs, with its process.
  std::function<void(pid_t)> WhileRunning = {};
};

CommandRun RunCommand(const CommandCall& call);
