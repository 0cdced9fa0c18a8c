#include "command.h"

#include "common/files.h"
#include "conversion_of_file.h"
#include "inputs.h"
#include "platform/terminal/interrupt.h"
#include "reports.h"
#include "summary.h"
#include "workers.h"

#include <s2k2ngt/s2k2ngt.h>

#include <csignal>
#include <cstddef>
#include <filesystem>
#include <iostream>
#include <new>
#include <system_error>
#include <utility>
#include <vector>

namespace {

std::vector<FileResult> ConvertOneByOne(const std::vector<FileToConvert>& files,
                                        const CommandOptions& options) {
  std::vector<FileResult> results;
  for (const FileToConvert& file : files) {
    Outcome outcome = Convert(file, options, std::cerr);
    Tell(outcome, options, {.Out = std::cout, .Err = std::cerr});
    results.push_back(ResultOf(std::move(outcome)));
  }
  return results;
}

}  // namespace

int ConvertFiles(const CommandOptions& options) {
  const s2k2ngt::InterruptGuard interrupt;
  const s2k2ngt::InterruptGuard termination(SIGTERM);
#ifdef SIGHUP
  const s2k2ngt::InterruptGuard hangUp(SIGHUP);
#endif
  const std::vector<FileToConvert> files = ListFiles(options);
  if (!options.OutputDirectory.empty() && !options.Check) {
    // A report may lie in it. What hinders its making is told with each file.
    std::error_code error;
    std::filesystem::create_directories(s2k2ngt::NativePath(options.OutputDirectory), error);
  }
  if (const auto reason = WhyNoReport(files, options)) {
    PrintLine(std::cerr, *reason);
    return kWrongUsage;
  }
  for (const FileToConvert& file : files) {
    // A call that was killed could not say so.
    if (!options.Check && !file.Refusal && !file.IsRepeated && IsUnfinished(file.Output)) {
      PrintLine(std::cerr,
                file.Output + ": found unfinished, as a call leaves it that is stopped or killed");
    }
  }
  std::vector<FileResult> results;
  try {
    results = options.Jobs > 0 ? ConvertInWorkers(files, options) : ConvertOneByOne(files, options);
  } catch (const std::bad_alloc&) {
    if (options.Reports.empty()) {
      throw;
    }
    TellNoMemoryForReports(options);
    return kOneFailed;
  }
  const int status = StatusOf(results, options);
  if (files.size() > 1 && (!options.Quiet || status == kOneFailed || status == kOneLost)) {
    PrintSummary(std::cerr, files, results, options);
  }
  return WriteReports(results, options) ? status : kOneFailed;
}

void ListMessages() {
  for (std::size_t position = 0; position < s2k2ngt_message_count(); ++position) {
    const char* const key = s2k2ngt_message_key(position);
    std::cout << key << '\t' << s2k2ngt_message_text(key) << '\n';
  }
}
