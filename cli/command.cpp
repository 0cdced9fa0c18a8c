#include "command.h"

#include "conversion_of_file.h"
#include "inputs.h"
#include "platform/terminal/interrupt.h"
#include "summary.h"
#include "workers.h"

#include <s2k2ngt/s2k2ngt.h>

#include <csignal>
#include <cstddef>
#include <iostream>
#include <vector>

namespace {

std::vector<int> ConvertOneByOne(const std::vector<FileToConvert>& files,
                                 const CommandOptions& options) {
  std::vector<int> results;
  for (const FileToConvert& file : files) {
    const Outcome outcome = Convert(file, options, std::cerr);
    Tell(file, outcome, options, {.Out = std::cout, .Err = std::cerr});
    results.push_back(outcome.Result);
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
  for (const FileToConvert& file : files) {
    // A call that was killed could not say so.
    if (!file.Refusal && !file.IsRepeated && IsUnfinished(file.Output)) {
      PrintLine(std::cerr,
                file.Output + ": found unfinished, as a call leaves it that is stopped or killed");
    }
  }
  const std::vector<int> results =
      options.Jobs > 0 ? ConvertInWorkers(files, options) : ConvertOneByOne(files, options);
  const int status = StatusOf(results);
  if (files.size() > 1 && (!options.Quiet || status == kOneFailed)) {
    PrintSummary(std::cerr, files, results);
  }
  return status;
}

void ListMessages() {
  for (std::size_t position = 0; position < s2k2ngt_message_count(); ++position) {
    const char* const key = s2k2ngt_message_key(position);
    std::cout << key << '\t' << s2k2ngt_message_text(key) << '\n';
  }
}
