#pragma once

#include "s2k2ngt/exceptions.h"
#include "s2k2ngt/export.h"
#include "s2k2ngt/platform.h"

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

/// Where and why a run failed, for people to read. The result code alone decides; this explains.
struct S2K2NGT_API Diagnostic {
  /// 0 before reading, 1 reading, 2 converting, 3 writing.
  int Phase = 0;
  /// Line of the source file, counted from 1; 0 when no line is to blame.
  std::uint64_t Line = 0;
  /// Title of the table that was being read; empty outside a table.
  std::string Table;
  /// A sentence without its full stop; empty as long as nothing failed.
  std::string Reason;

  /// All of it in one line that begins with the file's name.
  std::string Describe(const std::string& fileName) const;
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
/// its last run; nothing of an earlier one survives. Drivers are independent of each other.
class S2K2NGT_API CConverter {
 public:
  /// The platform must outlive the driver.
  explicit CConverter(Platform& platform);
  ~CConverter();
  CConverter(const CConverter&) = delete;
  CConverter& operator=(const CConverter&) = delete;

  /// Reads, converts and writes. Returns a RunResult.
  ///
  /// A failure before writing leaves no output file; a stop or failure while writing leaves the
  /// file as far as it was written, without its closing `*ENDDATA`. Throws FileException when a
  /// file cannot be read on, created or written, MemoryException, and InvalidArgumentException for
  /// a table of units or coordinate systems without the row that it must have.
  int Run(const char* pszPath);

  /// Why the run failed; its reason is empty after any other result.
  const Diagnostic& Failure() const;

  /// The number of rows read into the model.
  std::uint64_t RowCount() const;

  /// The path of the output of an input file: all up to the last dot, then ".ngt". The dot is
  /// looked for in the whole path, its directories included, as hosts do when they compute it.
  static std::string OutputPath(const std::string& inputPath);

 private:
  class Impl;
  Platform& m_Platform;
  std::unique_ptr<Impl> m_Impl;
};

}  // namespace s2k2ngt
