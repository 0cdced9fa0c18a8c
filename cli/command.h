#pragma once

#include <string>
#include <vector>

/// How the command was called.
struct CommandOptions {
  std::vector<std::string> Files;  // and folders
  bool Recursive = false;          // folders are all source files in them
  std::string OutputDirectory;     // empty: each output beside its input
  unsigned Jobs = 0;               // processes at once, one for each file; 0: none but this one
  bool Json = false;               // one object a file on standard output
  bool Quiet = false;              // no messages and no progress, but failures
  bool NoProgress = false;         // no progress bar
  bool Check = false;              // a dry run: no output is written
  bool FailOnLoss = false;
  std::vector<std::string> Reports;  // files, by whose endings it is known what they hold

  /// True when somebody wants to know what became of every row.
  bool WantsAccount() const { return Check || FailOnLoss || !Reports.empty(); }
};

// Exit statuses.
inline constexpr int kAllConverted = 0;
inline constexpr int kOneStopped = 1;
inline constexpr int kOneFailed = 2;
inline constexpr int kOneLost = 3;  // all converted, but not as they stood
inline constexpr int kWrongUsage = 64;

/// Converts the files, whatever becomes of each, and returns the exit status.
int ConvertFiles(const CommandOptions& options);

/// Prints the message keys and their texts.
void ListMessages();
