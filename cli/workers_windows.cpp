#include "conversion_of_file.h"
#include "workers.h"

#include <deque>
#include <functional>
#include <future>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>

namespace {

struct Report {
  FileResult Result;
  std::string Out;
  std::string Err;
};

Report ConvertOne(const FileToConvert& file, const CommandOptions& options) {
  std::ostringstream out;
  std::ostringstream err;
  Outcome outcome = Convert(file, options, err);
  Tell(outcome, options, {.Out = out, .Err = err});
  return {ResultOf(std::move(outcome)), out.str(), err.str()};
}

}  // namespace

std::vector<FileResult> ConvertInWorkers(const std::vector<FileToConvert>& files,
                                         const CommandOptions& options) {
  CommandOptions withoutBar = options;
  withoutBar.NoProgress = true;
  std::deque<std::future<Report>> running;
  std::vector<FileResult> results;
  const auto printFirst = [&] {
    Report report = running.front().get();
    running.pop_front();
    std::cerr << report.Err;
    std::cout << report.Out << std::flush;
    results.push_back(std::move(report.Result));
  };
  for (const FileToConvert& file : files) {
    while (running.size() >= options.Jobs || (file.IsRepeated && !running.empty())) {
      printFirst();
    }
    running.push_back(
        std::async(std::launch::async, ConvertOne, std::cref(file), std::cref(withoutBar)));
  }
  while (!running.empty()) {
    printFirst();
  }
  return results;
}
