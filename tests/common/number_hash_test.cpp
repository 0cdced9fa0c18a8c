#include "common/number_hash.h"

#include "common/text.h"
#include "common/value_map.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

/// Words under a hash of the test's choice, found by a NumberHash.
class Words {
 public:
  explicit Words(std::uint32_t (*hash)(Text)) : m_Hash(hash) {}

  /// The number of the word, which is that of its first addition.
  std::uint32_t Add(const std::string& word) {
    const auto count = static_cast<std::uint32_t>(m_Words.size());
    const std::uint32_t number = m_Numbers.FindOrAdd(
        m_Hash(word), count, [&](std::uint32_t known) { return m_Words[known] == word; });
    if (number == count) {
      m_Words.push_back(word);
    }
    return number;
  }
  std::uint32_t Find(const std::string& word) const {
    return m_Numbers.Find(m_Hash(word),
                          [&](std::uint32_t known) { return m_Words[known] == word; });
  }
  void Clear() {
    m_Numbers.Clear();
    m_Words.clear();
  }
  void Reserve(std::size_t count) { m_Numbers.Reserve(count); }

 private:
  std::uint32_t (*m_Hash)(Text);
  NumberHash m_Numbers;
  std::vector<std::string> m_Words;
};

std::uint32_t Same(Text /*word*/) { return 7; }

TEST(NumberHash, FindsEachWordAmongManyWhateverTheHash) {
  for (const auto hash : {+[](Text word) { return LookUpHash(word); }, +Same}) {
    Words words(hash);
    for (std::uint32_t number = 0; number < 300; ++number) {
      EXPECT_EQ(words.Add("J" + std::to_string(number)), number);
    }
    for (std::uint32_t number = 0; number < 300; ++number) {
      EXPECT_EQ(words.Add("J" + std::to_string(number)), number);
      EXPECT_EQ(words.Find("J" + std::to_string(number)), number);
    }
    EXPECT_EQ(words.Find("J300"), NumberHash::kNone);
    EXPECT_EQ(words.Find("K7"), NumberHash::kNone);
  }
}

TEST(NumberHash, FindsFamiliesOfLabelsThatWantTheSamePlaces) {
  // "7", "07", "007": one hash, three labels.
  Words words([](Text word) { return LookUpHash(word); });
  for (const char* const prefix : {"", "0", "00", "A", "B"}) {
    for (int number = 0; number < 1'000; ++number) {
      words.Add(prefix + std::to_string(number));
    }
  }
  EXPECT_EQ(words.Find("7"), 7U);
  EXPECT_EQ(words.Find("07"), 1'007U);
  EXPECT_EQ(words.Find("007"), 2'007U);
  EXPECT_EQ(words.Find("A7"), 3'007U);
  EXPECT_EQ(words.Find("B999"), 4'999U);
}

TEST(NumberHash, IsEmptyAtFirstAndWhenCleared) {
  Words words(Same);
  EXPECT_EQ(words.Find("J1"), NumberHash::kNone);
  words.Reserve(100);
  EXPECT_EQ(words.Find("J1"), NumberHash::kNone);
  words.Add("J1");
  words.Clear();
  EXPECT_EQ(words.Find("J1"), NumberHash::kNone);
  EXPECT_EQ(words.Add("J2"), 0U);
}

TEST(LookUpHash, MakesNeighboursOfNumberedLabels) {
  EXPECT_EQ(LookUpHash(Text("8")), LookUpHash(Text("7")) + 1);
  EXPECT_EQ(LookUpHash(Text("1000")), LookUpHash(Text("999")) + 1);
  EXPECT_EQ(LookUpHash(Text("J10")), LookUpHash(Text("J9")) + 1);
  EXPECT_EQ(LookUpHash(QualifiedLabel{"8", "FRAME"}), LookUpHash(QualifiedLabel{"7", "FRAME"}) + 1);
}

TEST(LookUpHash, TellsPrefixesAndQualifiersApart) {
  EXPECT_NE(LookUpHash(Text("J7")), LookUpHash(Text("K7")));
  EXPECT_NE(LookUpHash(Text("")), LookUpHash(Text("J")));
  EXPECT_NE(LookUpHash(QualifiedLabel{"7", "FRAME"}), LookUpHash(QualifiedLabel{"7", "AREA"}));
}

TEST(LookUpHash, SpreadsLabelsThatAreMadeToMeet) {
  // The tail makes up for the difference of the prefixes in the hash of the standard library.
  std::set<std::uint32_t> hashes;
  int count = 0;
  for (int number = 0; count < 1'000; ++number) {
    const std::string prefix = "P" + std::to_string(number) + "_";
    const auto tail = 4'000'000'000U - static_cast<std::uint32_t>(std::hash<std::string>()(prefix));
    if (tail < 1'000'000'000U) {
      const std::string digits = std::to_string(tail);
      hashes.insert(LookUpHash(Text(prefix + std::string(9 - digits.size(), '0') + digits)));
      ++count;
    }
  }
  EXPECT_GT(hashes.size(), 990U);
}

TEST(LookUpHash, TakesLabelsOfAnyNumberOfDigits) {
  const std::string digits(400, '9');
  EXPECT_EQ(LookUpHash(Text(digits)), LookUpHash(Text(digits)));
  EXPECT_NE(LookUpHash(Text(digits)), LookUpHash(Text(digits).substr(1)));
}

TEST(ValueMap, KeepsTheValueOfAKeyInItsPlace) {
  ValueMap<Text, int> values;
  int& first = values.Meet("A1").Result;
  EXPECT_EQ(first, 0);
  first = 5;
  TextStore labels;
  for (int number = 0; number < 1'000; ++number) {
    EXPECT_TRUE(values.Meet(labels.Keep("B" + std::to_string(number))).IsNew);
  }
  const auto met = values.Meet("A1");
  EXPECT_FALSE(met.IsNew);
  EXPECT_EQ(&met.Result, &first);
  EXPECT_EQ(first, 5);
}

}  // namespace
}  // namespace s2k2ngt
