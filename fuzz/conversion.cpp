// Whole conversions: a file of any bytes in, a whole output, a result that says why there is none,
// or one of the documented exceptions out, in bounded time.
#include "target.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/exceptions.h>
#include <s2k2ngt/platform.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input = Folder().FileName("model.s2k");
  const std::string output = s2k2ngt::CConverter::OutputPath(input);
  WriteFile(input, {reinterpret_cast<const char*>(data), size});
  std::filesystem::remove(output);
  CheckingPlatform platform;
  s2k2ngt::CConverter converter(platform);
  const auto begin = std::chrono::steady_clock::now();
  try {
    const int result = converter.Run(input.c_str());
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
  Require(std::chrono::steady_clock::now() - begin < kLongestRun, "an endless run");
  return 0;
}
