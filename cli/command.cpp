#include "command.h"

#include "conversion_of_file.h"
#include "files_of_call.h"
#include "platform/terminal/interrupt.h"

#include <s2k2ngt/s2k2ngt.h>

#include <iostream>
#include <string>

int ConvertFiles(const CommandOptions& options) {
  const s2k2ngt::InterruptGuard interrupts;
  FilesOfCall files(options.Files);
  bool oneFailed = false;
  bool oneStopped = false;
  for (const std::string& file : options.Files) {
    Outcome outcome;
    if (s2k2ngt::WasInterrupted()) {
      outcome.Result = s2k2ngt::kStopped;
    } else {
      outcome = Convert(file, options, files);
    }
    PrintOutcome(file, outcome, options);
    if (options.Json) {
      PrintJson(file, outcome);
    }
    oneFailed = oneFailed || outcome.Result == s2k2ngt::kFailed;
    oneStopped = oneStopped || outcome.Result == s2k2ngt::kStopped;
  }
  if (oneFailed) {
    return kOneFailed;
  }
  return oneStopped ? kOneStopped : kAllConverted;
}

void ListMessages() {
  for (std::size_t position = 0; position < s2k2ngt_message_count(); ++position) {
    const char* const key = s2k2ngt_message_key(position);
    std::cout << key << '\t' << s2k2ngt_message_text(key) << '\n';
  }
}
