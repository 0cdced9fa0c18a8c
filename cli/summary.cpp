#include "summary.h"

#include "command.h"
#include "conversion_of_file.h"

#include <s2k2ngt/converter.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace {

std::size_t Count(const std::vector<int>& results, int result) {
  return static_cast<std::size_t>(std::count(results.begin(), results.end(), result));
}

}  // namespace

int StatusOf(const std::vector<int>& results) {
  if (Count(results, s2k2ngt::kFailed) > 0) {
    return kOneFailed;
  }
  return Count(results, s2k2ngt::kStopped) > 0 ? kOneStopped : kAllConverted;
}

void PrintSummary(std::ostream& err, const std::vector<FileToConvert>& files,
                  const std::vector<int>& results) {
  const std::size_t stopped = Count(results, s2k2ngt::kStopped);
  const std::size_t failed = Count(results, s2k2ngt::kFailed);
  std::string text = std::to_string(files.size()) +
                     " files: " + std::to_string(Count(results, s2k2ngt::kConverted)) +
                     " converted";
  if (stopped > 0) {
    text += ", " + std::to_string(stopped) + " stopped";
  }
  if (failed > 0) {
    text += ", " + std::to_string(failed) + " failed:";
  }
  PrintLine(err, text);
  for (std::size_t index = 0; index < files.size(); ++index) {
    if (results[index] == s2k2ngt::kFailed) {
      PrintLine(err, "  " + files[index].Input);
    }
  }
}
