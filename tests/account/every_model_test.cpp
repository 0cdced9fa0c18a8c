#include "support/account_run.h"
#include "support/examples.h"
#include "support/random_model.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace {

// KeepAccount holds of each model that the rows of a table are the sum of their fates, and that
// the run is the same with an account and without.

TEST(AccountOfEveryModelTest, RowsOfAllExamplesAreTheSumOfTheirFates) {
  for (const std::string& name : ExampleNames()) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(KeepAccountOfBytes(Example(name)).Rows.Tables.empty());
  }
}

TEST(AccountOfEveryModelTest, RowsOfModelsThatHaveEveryTableAreTheSumOfTheirFates) {
  for (const auto& file : std::filesystem::directory_iterator(S2K2NGT_FAULT_MODELS)) {
    SCOPED_TRACE(file.path());
    EXPECT_FALSE(KeepAccountOfBytes(ReadFile(file.path().string())).Rows.Tables.empty());
  }
}

TEST(AccountOfEveryModelTest, RowsOfRandomModelsAreTheSumOfTheirFates) {
  for (std::uint32_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    KeepAccountOfBytes(RandomModel(seed));
  }
}

}  // namespace
