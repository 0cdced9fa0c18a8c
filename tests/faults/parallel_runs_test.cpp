// Converts in several threads at once, as a host does that has many files. The build with the
// thread sanitizer makes a failure of every access to memory that two of them share.
#include "platform/message_catalogue.h"
#include "support/conversion_run.h"
#include "support/examples.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>
#include <s2k2ngt/s2k2ngt.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <latch>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

/// What a host gets of a run. The folder of the file, which differs, is taken out of all texts.
struct Conversion {
  int Result = 0;
  std::vector<std::string> Messages;  // keys, and the texts behind them
  std::string Failure;
  std::string Output;
  bool operator==(const Conversion&) const = default;
};

std::string WithoutFolder(std::string text, const TemporaryFolder& folder) {
  const std::string prefix = folder.FileName("");
  for (std::size_t place = 0; (place = text.find(prefix, place)) != std::string::npos;) {
    text.erase(place, prefix.size());
  }
  return text;
}

std::string OutputIn(const TemporaryFolder& folder, const std::string& name) {
  const std::string path = folder.FileName(name + ".ngt");
  return std::filesystem::exists(path) ? WithoutFolder(ReadFile(path), folder) : std::string();
}

Conversion ConvertByDriver(const TemporaryFolder& folder, const std::string& name) {
  const std::string path = folder.FileName(name + ".s2k");
  ScriptedPlatform platform;
  s2k2ngt::CConverter converter(platform);
  Conversion conversion;
  conversion.Result = converter.Run(path.c_str());
  for (const ScriptedPlatform::Message& message : platform.Messages) {
    conversion.Messages.push_back(message.Key + ": " + message.Text);
  }
  if (conversion.Result == s2k2ngt::kFailed) {
    conversion.Failure = WithoutFolder(converter.Failure().Describe(path), folder);
  }
  conversion.Output = OutputIn(folder, name);
  return conversion;
}

Conversion ConvertByCInterface(const TemporaryFolder& folder, const std::string& name) {
  Conversion conversion;
  s2k2ngt_host host = {};
  host.size = sizeof host;
  host.context = &conversion;
  host.message = [](void* context, const char* key, const char* text) {
    static_cast<Conversion*>(context)->Messages.push_back(std::string(key) + ": " + text);
  };
  host.failure = [](void* context, const char* reason) {
    static_cast<Conversion*>(context)->Failure = reason;
  };
  std::array<char, 4096> output{};
  conversion.Result =
      s2k2ngt_convert(folder.FileName(name + ".s2k").c_str(), &host, output.data(), output.size());
  conversion.Failure = WithoutFolder(conversion.Failure, folder);
  conversion.Output = OutputIn(folder, name);
  return conversion;
}

using Convert = Conversion (*)(const TemporaryFolder&, const std::string&);

/// All examples, a file that is refused, and the name of one that is not there.
std::vector<std::string> ModelNames() {
  std::vector<std::string> names = ExampleNames();
  names.insert(names.end(), {"refused", "missing"});
  return names;
}

void WriteModels(const TemporaryFolder& folder) {
  for (const std::string& name : ExampleNames()) {
    WriteFile(folder.FileName(name + ".s2k"), Example(name));
  }
  WriteFile(folder.FileName("refused.s2k"),
            FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=1   CoordType=Cylindrical\n"));
}

/// What one thread converted.
using Conversions = std::vector<std::pair<std::string, Conversion>>;

class ParallelRuns : public testing::TestWithParam<Convert> {
 protected:
  void SetUp() override { ASSERT_TRUE(s2k2ngt::CMsgDll::Load()); }
  void TearDown() override { s2k2ngt::CMsgDll::Free(); }
};

TEST_P(ParallelRuns, GiveWhatRunsOneAfterTheOtherGive) {
  constexpr std::size_t kThreads = 4;
  constexpr std::size_t kRounds = 3;
  const std::vector<std::string> names = ModelNames();
  std::array<TemporaryFolder, kThreads> folders;
  for (const TemporaryFolder& folder : folders) {
    WriteModels(folder);
  }

  // They come first, so that what is made by the first run of a process is made by many at once.
  std::array<Conversions, kThreads> converted;
  std::latch start(kThreads);
  std::vector<std::thread> threads;
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      start.arrive_and_wait();
      for (std::size_t round = 0; round < kRounds; ++round) {
        for (std::size_t model = 0; model < names.size(); ++model) {
          // In the first round all are at the same model, in the others at different ones.
          const std::string& name = names[(model + round * thread) % names.size()];
          converted[thread].emplace_back(name, GetParam()(folders[thread], name));
        }
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }

  std::map<std::string, Conversion> wanted;
  for (const std::string& name : names) {
    wanted[name] = GetParam()(folders.front(), name);
  }
  ASSERT_EQ(wanted.at("portal_frame").Result, s2k2ngt::kConverted);
  ASSERT_EQ(wanted.at("missing").Failure,
            "missing.s2k: cannot open the input file: No such file or directory");
  for (const Conversions& ofThread : converted) {
    ASSERT_EQ(ofThread.size(), kRounds * names.size());
    for (const auto& [name, conversion] : ofThread) {
      EXPECT_TRUE(conversion == wanted.at(name)) << name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(By, ParallelRuns, testing::Values(ConvertByDriver, ConvertByCInterface),
                         [](const auto& way) {
                           return way.param == ConvertByDriver ? "Driver" : "CInterface";
                         });

}  // namespace
