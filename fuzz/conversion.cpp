// Whole conversions: a file of any bytes in, a whole output, a result that says why there is none,
// or one of the documented exceptions out, in bounded time. The same again with an account, in
// which every row has one fate.
#include "target.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>
#include <s2k2ngt/platform.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <numeric>
#include <string>

namespace {

/// Far above what an input of a fuzzer's size takes, also with sanitizers on a busy machine.
constexpr std::chrono::seconds kLongestRun{20};

/// Shows nothing, and asks for a text in each message.
class CheckingPlatform : public s2k2ngt::Platform {
 public:
  void ShowMessage(const std::string& /*key*/, const std::string& text) override {
    Require(!text.empty(), "a message without a text");
  }
};

void CheckOutput(const std::string& output) {
  Require(output.starts_with(";---"), "an output without a head");
  Require(output.ends_with("*ENDDATA"), "an output without an end");
}

std::uint64_t RowsOfAllFates(const s2k2ngt::TableAccount& table) {
  return std::accumulate(std::begin(table.ByFate), std::end(table.ByFate), std::uint64_t{0});
}

/// A dry run with an account must end as the run before did.
void CheckAccount(const std::string& input, const s2k2ngt::Diagnostic& before, int resultBefore) {
  CheckingPlatform platform;
  s2k2ngt::CConverter converter(platform);
  s2k2ngt::RunOptions options;
  options.WritesOutput = false;
  options.KeepsAccount = true;
  int result = s2k2ngt::kFailed;
  try {
    result = converter.Run(input.c_str(), options);
  } catch (const s2k2ngt::InvalidArgumentException&) {
  }
  Require(result == resultBefore, "another result with an account");
  Require(converter.Failure().Reason == before.Reason, "another reason with an account");
  for (const s2k2ngt::TableAccount& table : converter.AccountOfRows().Tables) {
    Require(RowsOfAllFates(table) == table.Rows, "rows without a fate in " + table.Title);
  }
  const s2k2ngt::Drawing drawing = converter.DrawingOfModel();
  for (const s2k2ngt::DrawnElement& element : drawing.Elements) {
    for (const std::uint32_t node : element.Nodes) {
      Require(node < drawing.Nodes.size(), "an element of a node that is not there");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input = Folder().FileName("model.s2k");
  const std::string output = s2k2ngt::CConverter::OutputPath(input);
  WriteFile(input, {reinterpret_cast<const char*>(data), size});
  std::filesystem::remove(output);
  CheckingPlatform platform;
  s2k2ngt::CConverter converter(platform);
  const auto begin = std::chrono::steady_clock::now();
  int result = s2k2ngt::kFailed;
  try {
    result = converter.Run(input.c_str());
    if (result == s2k2ngt::kConverted) {
      CheckOutput(ReadFile(output));
    } else {
      Require(result == s2k2ngt::kFailed, "stopped by nobody");
      Require(!converter.Failure().Reason.empty(), "failed for no reason");
      Require(!std::filesystem::exists(output), "an output of a file that was not read");
    }
  } catch (const s2k2ngt::InvalidArgumentException& exception) {
    Require(converter.Failure().Reason == exception.what(), "another reason than the exception's");
  }
  CheckAccount(input, converter.Failure(), result);
  Require(std::chrono::steady_clock::now() - begin < kLongestRun, "an endless run");
  return 0;
}
