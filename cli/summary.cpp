#include "summary.h"

#include <s2k2ngt/converter.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace {

std::size_t Count(const std::vector<FileResult>& results, int result) {
  return static_cast<std::size_t>(std::ranges::count(results, result, &FileResult::Result));
}

bool HasLosses(const FileResult& result) {
  return result.Result == s2k2ngt::kConverted && result.HasLoss;
}

std::size_t CountLosses(const std::vector<FileResult>& results) {
  return static_cast<std::size_t>(std::ranges::count_if(results, HasLosses));
}

}  // namespace

int StatusOf(const std::vector<FileResult>& results, const CommandOptions& options) {
  if (Count(results, s2k2ngt::kFailed) > 0) {
    return kOneFailed;
  }
  if (Count(results, s2k2ngt::kStopped) > 0) {
    return kOneStopped;
  }
  return options.FailOnLoss && CountLosses(results) > 0 ? kOneLost : kAllConverted;
}

void PrintSummary(std::ostream& err, const std::vector<FileToConvert>& files,
                  const std::vector<FileResult>& results, const CommandOptions& options) {
  const std::size_t converted = Count(results, s2k2ngt::kConverted);
  const std::size_t stopped = Count(results, s2k2ngt::kStopped);
  const std::size_t failed = Count(results, s2k2ngt::kFailed);
  std::string text = std::to_string(files.size()) + " files: " + std::to_string(converted) +
                     (options.Check ? " checked" : " converted");
  if (options.WantsAccount()) {
    text += " (" + std::to_string(CountLosses(results)) + " with losses)";
  }
  if (stopped > 0) {
    text += ", " + std::to_string(stopped) + " stopped";
  }
  if (failed > 0) {
    text += ", " + std::to_string(failed) + " failed:";
  }
  PrintLine(err, text);
  for (std::size_t index = 0; index < files.size(); ++index) {
    if (results[index].Result == s2k2ngt::kFailed) {
      PrintLine(err, "  " + files[index].Input);
    }
  }
  if (CountLosses(results) > 0) {
    PrintLine(err, "with losses:");
    for (std::size_t index = 0; index < files.size(); ++index) {
      if (HasLosses(results[index])) {
        PrintLine(err, "  " + files[index].Input);
      }
    }
  }
}
