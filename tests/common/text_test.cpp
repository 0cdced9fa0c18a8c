#include "common/text.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

TEST(TextStore, KeepsCopiesOfTextsThatGo) {
  TextStore store;
  std::vector<Text> kept;
  for (int number = 0; number < 100'000; ++number) {
    kept.push_back(store.Keep("J" + std::to_string(number)));
  }
  for (int number = 0; number < 100'000; ++number) {
    ASSERT_EQ(kept[static_cast<std::size_t>(number)], "J" + std::to_string(number));
  }
}

TEST(TextStore, KeepsAWordThatComesAgainOnce) {
  TextStore store;
  const Text first = store.Keep("GLOBAL");
  store.Keep("17");
  EXPECT_EQ(store.Keep(std::string("GLOBAL")).data(), first.data());
}

TEST(TextStore, KeepsTextsLargerThanItsBlocks) {
  TextStore store;
  const std::string large(3'000'000, 'x');
  const Text before = store.Keep("before");
  const Text kept = store.Keep(large);
  const Text behind = store.Keep("behind");
  EXPECT_EQ(before, "before");
  EXPECT_EQ(kept, large);
  EXPECT_EQ(behind, "behind");
}

TEST(TextStore, TakesTextsAgainWhenCleared) {
  TextStore store;
  store.Keep("GLOBAL");
  store.Clear();
  EXPECT_EQ(store.Keep("GLOBAL"), "GLOBAL");
  EXPECT_EQ(store.Keep("Local"), "Local");
}

TEST(TextStore, KeepsTheEmptyTextAndBytesOfAnyKind) {
  TextStore store;
  EXPECT_EQ(store.Keep(""), "");
  const std::string bytes("\0\xFF\t\0", 4);
  EXPECT_EQ(store.Keep(bytes), bytes);
}

TEST(Case, IsThatOfPlainLettersAlone) {
  EXPECT_EQ(ToUpper("azAZ@[`{09\xE4"), "AZAZ@[`{09\xE4");
  for (const auto& [letter, lower] : {std::pair('A', 'a'), std::pair('Z', 'z'), std::pair('a', 'a'),
                                      std::pair('@', '@'), std::pair('[', '[')}) {
    EXPECT_EQ(ToLower(letter), lower);
  }
}

}  // namespace
}  // namespace s2k2ngt
