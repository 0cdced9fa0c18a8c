#pragma once

#include <s2k2ngt/account.h>
#include <s2k2ngt/drawing.h>
#include <s2k2ngt/exceptions.h>
#include <s2k2ngt/export.h>
#include <s2k2ngt/platform.h>

#include <cstdint>
#include <memory>
#include <string>

namespace s2k2ngt {

/// How a run, or one of its phases, ended.
enum RunResult : int {
  kFailed = -1,
  kConverted = 0,
  kStopped = 1,  ///< by the user
};

/// The phases of a run.
enum RunPhase : int { kNotBegun = 0, kReading = 1, kConverting = 2, kWriting = 3 };

/// Where a run ended, and why if it failed, for people to read. The result code alone decides.
struct S2K2NGT_API Diagnostic {
  /// The phase that was begun last.
  RunPhase Phase = kNotBegun;
  /// Line of the source file, counted from 1; 0 when no line is to blame.
  std::uint64_t Line = 0;
  /// Title of the table that was being read; empty outside a table.
  std::string Table;
  /// A sentence without its full stop; empty as long as nothing failed.
  std::string Reason;

  /// All of it in one line that begins with the file's name.
  std::string Describe(const std::string& fileName) const;
};

/// What a run does besides what it does always.
struct RunOptions {
  /// Path of the output, which stands in its head; empty for the one that OutputPath gives.
  std::string Output;
  /// False for a dry run: everything is converted, and shown, but no file is written or replaced.
  bool WritesOutput = true;
  /// True to keep an account of every row of the input, for AccountOfRows. The output and the
  /// messages are the same with it and without.
  bool KeepsAccount = false;
};

/// One conversion of one SAP2000 V8 text file (.s2k) into the host's command text file (.ngt).
///
///     TerminalOrOwnPlatform platform;
///     s2k2ngt::CConverter converter(platform);
///     if (converter.Run("bridge.s2k") == s2k2ngt::kConverted) { ... OutputPath("bridge.s2k") ... }
///     else { ... converter.Failure().Describe("bridge.s2k") ... }
///
/// The output is written beside the input, under the name that OutputPath gives, and replaces a
/// file that is there. Results do not depend on the process's locale. A driver owns the models of
/// its last run; nothing of an earlier one survives.
///
/// Bytes are read as they stand, in no character set. Of UTF-16 text hardly a line is known: its
/// output is all but empty, and the result 0.
///
/// Drivers are independent of each other: their runs may go on in several threads at once, each
/// with a platform of its own. A single driver is for one thread at a time. No two runs at once may
/// write the same output. A message catalogue that a host brings is called on the threads of all
/// runs. Relative paths begin in the working directory, which all threads have in common.
class S2K2NGT_API CConverter {
 public:
  /// The platform must outlive the driver.
  explicit CConverter(Platform& platform);
  ~CConverter();
  CConverter(const CConverter&) = delete;
  CConverter& operator=(const CConverter&) = delete;

  /// Reads, converts and writes. Returns a RunResult. A null path is as one of no file.
  ///
  /// A failure or stop before writing leaves an output file that is there as it was; one while
  /// writing leaves the new file as far as it was written, without its closing `*ENDDATA`. An input
  /// whose name ends in ".ngt" is its own output and is replaced.
  ///
  /// Throws FileException when a file cannot be read on, created or written, MemoryException, and
  /// InvalidArgumentException for a table of units, coordinate systems or active degrees of freedom
  /// without a row, or units that are not three. What the platform throws goes through.
  int Run(const char* pszPath);
  int Run(const char* pszPath, const RunOptions& options);

  /// Where the last run ended; also after an exception. Its reason is empty unless the run failed.
  /// Valid until the next run.
  const Diagnostic& Failure() const;

  /// The number of rows read into the model.
  std::uint64_t RowCount() const;

  /// What became of the rows of the last run, if it kept account of them; else it is empty. Also
  /// after a stop, a failure or an exception: the rows that are not converted by then are told as
  /// not looked at.
  Account AccountOfRows() const;

  /// The converted model of the last run, as far as it can be drawn. Empty unless the run converted
  /// it to the end: its numbers stand when the output does.
  Drawing DrawingOfModel() const;

  /// The path of the output of an input file: all up to the last dot, then ".ngt". The dot is
  /// looked for in the whole path, its directories included, as hosts do when they compute it.
  static std::string OutputPath(const std::string& inputPath);

  /// Opens a file in the host's companion editor, ZEdit.exe, as a process of its own. Returns 1
  /// when it was started and 0 when not. No run calls it; it is there for hosts.
  static int LaunchEditor(const std::string& path);

 private:
  class Impl;
  Platform& m_Platform;
  std::unique_ptr<Impl> m_Impl;
};

}  // namespace s2k2ngt
