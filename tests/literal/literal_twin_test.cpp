#include "run/sections.h"
#include "support/command_run.h"
#include "support/examples.h"
#include "support/random_model.h"
#include "support/temporary_folder.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using testing::Contains;
using testing::Ge;
using testing::Pair;

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

/// Source files by their names.
using Models = std::map<std::string, std::string>;

/// What a command makes of the models, in a folder of its own: a line of JSON and the output, which
/// is empty where there is none.
struct Converted {
  std::string Json;
  std::string Output;
};

std::map<std::string, Converted> ConvertAll(const std::string& command, const Models& models) {
  const TemporaryFolder folder;
  CommandCall call{.Words = {command, "--json", "--quiet"}, .Folder = folder.Path()};
  for (const auto& [name, bytes] : models) {
    WriteFile(folder.FileName(name + ".s2k"), bytes);
    call.Words.push_back(name + ".s2k");
  }
  const std::vector<std::string> objects = LinesOf(RunCommand(call).Out);
  std::map<std::string, Converted> converted;
  for (const auto& [name, bytes] : models) {
    Converted& one = converted[name];
    if (converted.size() <= objects.size()) {
      one.Json = objects[converted.size() - 1];
    }
    const std::string output = folder.FileName(name + ".ngt");
    if (std::filesystem::exists(output)) {
      one.Output = ReadFile(output);
    }
  }
  return converted;
}

std::string FirstDifference(const std::string& ours, const std::string& literal) {
  const std::vector<std::string> ourLines = LinesOf(ours);
  const std::vector<std::string> literalLines = LinesOf(literal);
  const auto lineOf = [](const std::vector<std::string>& lines, std::size_t index) {
    return index < lines.size() ? lines[index] : std::string("(the end)");
  };
  std::size_t index = 0;
  while (index < ourLines.size() && index < literalLines.size() &&
         ourLines[index] == literalLines[index]) {
    ++index;
  }
  return "line " + std::to_string(index + 1) + "\n  the command: " + lineOf(ourLines, index) +
         "\n  its literal twin: " + lineOf(literalLines, index);
}

void ExpectTheSame(const Models& models) {
  const auto ours = ConvertAll(S2K2NGT_COMMAND, models);
  const auto literal = ConvertAll(S2K2NGT_LITERAL_COMMAND, models);
  for (const auto& [name, bytes] : models) {
    const Converted& one = ours.at(name);
    const Converted& other = literal.at(name);
    EXPECT_EQ(one.Json, other.Json) << name;
    EXPECT_TRUE(one.Output == other.Output)
        << name << " differs at " << FirstDifference(one.Output, other.Output);
    EXPECT_TRUE(json::accept(one.Json)) << name << " has no result";
  }
}

TEST(LiteralTwin, WritesTheSameForEveryKindOfLargeModel) {
  Models models;
  for (const std::string& scenario :
       LinesOf(RunCommand({.Words = {S2K2NGT_GENERATE, "--list"}}).Out)) {
    models[scenario] = RunCommand({.Words = {S2K2NGT_GENERATE, scenario, "60"}}).Out;
  }
  ASSERT_GT(models.size(), 25U);
  ExpectTheSame(models);
}

/// Joints and frames of which the last hundred bear the labels of the first: so many rows that keys
/// of one label share a bucket.
std::string ModelOfRepeatedLabels(const std::string& prefix) {
  constexpr int kRows = 10'101;
  const auto label = [&](int row) { return prefix + std::to_string((row - 1) % 10'001 + 1); };
  const auto table = [&](const std::string& title, const auto& contentOf) {
    std::string rows = "TABLE:  \"" + title + "\"\n";
    for (int row = 1; row <= kRows; ++row) {
      rows.append("   ").append(contentOf(row)).append("\n");
    }
    return rows + " \n";
  };
  return "File repeated.s2k\n \n" +
         table("JOINT COORDINATES",
               [&](int row) { return "Joint=" + label(row) + "   XorR=" + std::to_string(row); }) +
         table("CONNECTIVITY - FRAME",
               [&](int row) {
                 return "Frame=" + label(row) + "   JointI=" + label(row) +
                        "   JointJ=" + label(row % 50 + 1);
               }) +
         table("FRAME SECTION ASSIGNMENTS",
               [&](int row) {
                 // Every third has a section that is not there.
                 return "Frame=" + label(row) + "   AnalSect=S" +
                        std::to_string(row % 3 == 0 ? 99 : row % 7);
               }) +
         "TABLE:  \"FRAME SECTION PROPERTIES 1 - GENERAL\"\n"
         "   SectionName=S1   Shape=Pipe   t3=0.5   AMod=2\n"
         "   SectionName=S2   Shape=Circle   t3=0.4   JMod=3\n"
         "   SectionName=S4   Shape=Rectangular   t3=0.5   t2=0.3\n"
         "   SectionName=S2   Shape=Box/Tube   t3=0.6   t2=0.2\n"
         " \nEND TABLE DATA\n";
}

TEST(LiteralTwin, WritesTheSameForLabelsThatComeAgainInTheirBucket) {
  ExpectTheSame({{"numbers", ModelOfRepeatedLabels("")}, {"names", ModelOfRepeatedLabels("J")}});
}

TEST(LiteralTwin, WritesTheSameForEveryExample) {
  Models models;
  for (const std::string& name : ExampleNames()) {
    models[name] = Example(name);
  }
  ASSERT_GE(models.size(), 6U);
  ExpectTheSame(models);
}

constexpr std::uint32_t kBlocks = 8;
constexpr std::uint32_t kSeedsInBlock = 60;

Models RandomModels(std::uint32_t block) {
  Models models;
  for (std::uint32_t seed = block * kSeedsInBlock; seed < (block + 1) * kSeedsInBlock; ++seed) {
    models["seed_" + std::to_string(seed)] = RandomModel(seed);
  }
  return models;
}

class LiteralTwinOfRandomModels : public testing::TestWithParam<std::uint32_t> {};

TEST_P(LiteralTwinOfRandomModels, WritesTheSame) { ExpectTheSame(RandomModels(GetParam())); }

INSTANTIATE_TEST_SUITE_P(Block, LiteralTwinOfRandomModels,
                         testing::Range(std::uint32_t{0}, kBlocks));

/// What random models lead to, all together.
struct Reached {
  int Converted = 0;
  std::set<std::string> Messages;
  std::map<std::string, int> Commands;  // of the output, and how many models have each
};

std::set<std::string> CommandsOf(const std::string& output) {
  std::set<std::string> commands;
  for (const std::string& line : LinesOf(output)) {
    // The command of a self weight stands in each of its lines.
    const std::size_t place = line.find_first_not_of('\t');
    if (place != std::string::npos && line[place] == '*') {
      commands.insert(line.substr(place, line.find_first_of(" ,\t", place) - place));
    }
  }
  return commands;
}

Reached ReachedByRandomModels() {
  Reached reached;
  for (std::uint32_t block = 0; block < kBlocks; ++block) {
    for (const auto& [name, model] : ConvertAll(S2K2NGT_COMMAND, RandomModels(block))) {
      const json object = json::parse(model.Json);
      reached.Converted += object["result"] == 0 ? 1 : 0;
      for (const json& message : object["messages"]) {
        reached.Messages.insert(message["key"].get<std::string>());
      }
      for (const std::string& command : CommandsOf(model.Output)) {
        ++reached.Commands[command];
      }
    }
  }
  return reached;
}

TEST(RandomModels, LeadToEveryCommandAndToMostMessages) {
  const Reached reached = ReachedByRandomModels();
  EXPECT_GT(reached.Converted, static_cast<int>(kBlocks * kSeedsInBlock) * 9 / 10);
  EXPECT_GE(reached.Messages.size(), 45U);
  std::string wanted =
      "*CONLOAD, *SELFWEIGHT, *BEAMLOAD, *ELTEMPER, *NDTEMPER, *THERGRAD, *SPDISP, *PRESTRESS, "
      "*PRESSURE, *WIND, *SEIS";
  for (const s2k2ngt::Section& section : s2k2ngt::kSections) {
    wanted.append(", ").append(section.Commands);
  }
  std::istringstream commands(wanted);
  for (std::string command; commands >> command;) {
    command.erase(command.find_last_not_of(',') + 1);
    EXPECT_THAT(reached.Commands, Contains(Pair(command, Ge(5)))) << command;
  }
}

}  // namespace
