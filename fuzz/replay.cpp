// Runs a target over stored inputs: all files of the folders, and the files, that it is called
// with. With "--models=N" also over N random models and as many that are changed.
#include "model_mutator.h"
#include "target.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace {

void RunTarget(const std::string& bytes) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

std::size_t Replay(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  Require(file.is_open(), "cannot read " + path.string());
  std::cerr << path.filename().string() << '\n';
  RunTarget(bytes);
  return 1;
}

std::size_t ReplayFolder(const std::filesystem::path& folder) {
  std::size_t inputs = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    inputs += Replay(entry.path());
  }
  return inputs;
}

std::size_t ReplayModels(std::uint32_t count) {
  constexpr std::size_t kSizeAtMost = 32768;
  for (std::uint32_t seed = 1; seed <= count; ++seed) {
    std::cerr << "model " << seed << '\n';
    const std::string model = SmallRandomModel(kSizeAtMost, seed);
    RunTarget(model);
    RunTarget(MutateModel(model, kSizeAtMost, seed));
  }
  return std::size_t{2} * count;
}

}  // namespace

int main(int count, char** arguments) {
  const std::string models = "--models=";
  std::size_t inputs = 0;
  for (int index = 1; index < count; ++index) {
    const std::string argument = arguments[index];
    if (argument.starts_with(models)) {
      inputs +=
          ReplayModels(static_cast<std::uint32_t>(std::stoul(argument.substr(models.size()))));
    } else {
      inputs += std::filesystem::is_directory(argument) ? ReplayFolder(argument) : Replay(argument);
    }
  }
  std::cerr << inputs << " inputs\n";
  return inputs == 0 ? 1 : 0;
}
