// The mutator is of use only if most of what it makes is read to the end.
#include "model_mutator.h"

#include "support/conversion_run.h"

#include <s2k2ngt/converter.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kSizeAtMost = 32768;
constexpr std::uint32_t kModels = 60;

TEST(ModelMutator, MakesModelsOfWhichMostConvert) {
  std::uint32_t converted = 0;
  std::uint32_t convertedWhenChanged = 0;
  std::uint32_t reallyChanged = 0;
  for (std::uint32_t seed = 1; seed <= kModels; ++seed) {
    const std::string model = SmallRandomModel(kSizeAtMost, seed);
    const std::string changed = MutateModel(model, kSizeAtMost, seed);
    EXPECT_LE(model.size(), kSizeAtMost);
    EXPECT_LE(changed.size(), kSizeAtMost);
    reallyChanged += changed != model ? 1 : 0;
    converted += ConvertBytes(model).Result == s2k2ngt::kConverted ? 1 : 0;
    convertedWhenChanged += ConvertBytes(changed).Result == s2k2ngt::kConverted ? 1 : 0;
  }
  EXPECT_GT(reallyChanged, kModels * 9 / 10);
  EXPECT_GT(converted, kModels * 9 / 10);
  EXPECT_GT(convertedWhenChanged, kModels * 8 / 10);
}

TEST(ModelMutator, MakesSourceFilesOfAnything) {
  for (const char* bytes : {"", "\n", "TABLE", "\xFF\xFE", "TABLE:  \"JOINT COORDINATES\"\n"}) {
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
      EXPECT_LE(MutateModel(bytes, 100, seed).size(), 100U);
    }
  }
}

}  // namespace
