#include "common/keyed_table.h"

#include "common/text.h"
#include "support/chained_hash.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Record {
  int Number = 0;
  Text Label = {};
};

std::vector<std::uint32_t> WalkedKeys(const CKeyedTable<Record>& table) {
  std::vector<std::uint32_t> keys;
  for (const auto [key, record] : table.Walk()) {
    keys.push_back(key);
  }
  return keys;
}

TEST(KeyedTable, SixKeysInTenThousandAndOneBuckets) {
  CKeyedTable<Record> table(10'001);
  for (std::uint32_t key = 1; key <= 6; ++key) {
    table.Insert(key, {});
  }
  EXPECT_THAT(WalkedKeys(table), ElementsAre(3, 6, 2, 5, 1, 4));
}

TEST(KeyedTable, ThreeKeysInSeventeenBuckets) {
  CKeyedTable<Record> table;
  for (std::uint32_t key = 1; key <= 3; ++key) {
    table.Insert(key, {});
  }
  EXPECT_EQ(BucketOf(1, 17), 11U);
  EXPECT_EQ(BucketOf(2, 17), 5U);
  EXPECT_EQ(BucketOf(3, 17), 16U);
  EXPECT_THAT(WalkedKeys(table), ElementsAre(2, 1, 3));
}

TEST(KeyedTable, NewestOfABucketIsWalkedFirst) {
  // 16807 k is 0 modulo 17 for k = 17, 34 and 51.
  CKeyedTable<Record> table;
  table.Insert(34, {});
  table.Insert(17, {});
  table.Insert(51, {});
  EXPECT_THAT(WalkedKeys(table), ElementsAre(51, 17, 34));
}

TEST(KeyedTable, ReplacedRecordKeepsItsPlace) {
  CKeyedTable<Record> table;
  table.Insert(17, {.Number = 1});
  table.Insert(34, {.Number = 2});
  table.Insert(17, {.Number = 3});
  EXPECT_THAT(WalkedKeys(table), ElementsAre(34, 17));
  EXPECT_EQ(table.Find(17)->Number, 3);
  EXPECT_EQ(table.Count(), 2U);
}

TEST(KeyedTable, FindsNothingUnderAKeyThatWasNotStored) {
  CKeyedTable<Record> table;
  EXPECT_EQ(table.Find(1), nullptr);
  table.Insert(1, {});
  EXPECT_EQ(table.Find(0), nullptr);
  EXPECT_EQ(table.Find(2), nullptr);
  EXPECT_EQ(table.Find(0xFFFFFFFFU), nullptr);
}

TEST(KeyedTable, EmptyTableHasAnEmptyWalk) {
  const CKeyedTable<Record> table(10'001);
  EXPECT_THAT(WalkedKeys(table), IsEmpty());
  EXPECT_FALSE(table.LastWalked().has_value());
}

TEST(KeyedTable, KeysAtTheLimitsAreKept) {
  CKeyedTable<Record> table(10'001);
  ChainedHash<int> twin(10'001);
  int number = 0;
  for (const std::uint32_t key : {0x7FFFFFFFU, 0U, 0xFFFFFFFFU, 1U, 0x80000000U, 127'773U}) {
    table.Insert(key, {.Number = ++number});
    twin.Insert(key, number);
  }
  std::vector<std::uint32_t> expected;
  for (const auto& [key, value] : twin.Walk()) {
    expected.push_back(key);
    EXPECT_EQ(table.Find(key)->Number, value);
  }
  EXPECT_EQ(WalkedKeys(table), expected);
}

TEST(KeyedTable, KeyFarBeyondTheOthersIsStillFoundWhenTheyHaveCaughtUp) {
  constexpr std::uint32_t kFar = 6'000'000;
  constexpr std::uint32_t kMany = 1'600'000;
  CKeyedTable<std::uint32_t> table(10'001);
  table.Insert(kFar, 1);
  for (std::uint32_t key = 1; key <= kMany; ++key) {
    table.Insert(key, 2);
  }
  table.Insert(kFar + 1, 3);
  ASSERT_NE(table.Find(kFar), nullptr);
  EXPECT_EQ(*table.Find(kFar), 1U);
  EXPECT_EQ(*table.Find(kMany), 2U);
  EXPECT_EQ(*table.Find(kFar + 1), 3U);
  EXPECT_EQ(table.Find(kFar - 1), nullptr);
  EXPECT_EQ(table.Count(), kMany + 2);
}

TEST(KeyedTable, KeysUpToAReservedCountAreFoundHoweverFewTheyAre) {
  constexpr std::uint32_t kReserved = 5'000'000;
  CKeyedTable<std::uint32_t> table(10'001);
  table.Reserve(kReserved);
  table.Insert(kReserved, 1);
  table.Insert(kReserved + 1, 2);
  EXPECT_EQ(*table.Find(kReserved), 1U);
  EXPECT_EQ(*table.Find(kReserved + 1), 2U);
  EXPECT_EQ(table.Find(kReserved - 1), nullptr);
}

/// Keys as stages make them, and others.
std::vector<std::uint32_t> RandomKeys(std::mt19937& random, int kind, std::size_t count) {
  std::vector<std::uint32_t> keys;
  std::uniform_int_distribution<std::uint32_t> few(0, static_cast<std::uint32_t>(count));
  std::uniform_int_distribution<std::uint32_t> any;
  for (std::uint32_t position = 1; position <= count; ++position) {
    switch (kind) {
      case 0:
        keys.push_back(position);
        break;
      case 1:
        keys.push_back(few(random));
        break;
      default:
        keys.push_back(any(random));
        break;
    }
  }
  return keys;
}

TEST(KeyedTable, AgreesWithAChainedHashOnRandomKeys) {
  std::mt19937 random(20031);
  for (const std::uint32_t buckets : {17U, 1'001U, 10'001U}) {
    for (int kind = 0; kind < 3; ++kind) {
      SCOPED_TRACE(std::to_string(buckets) + " buckets, kind of keys " + std::to_string(kind));
      CKeyedTable<Record> table(buckets);
      ChainedHash<int> twin(buckets);
      int number = 0;
      for (const std::uint32_t key : RandomKeys(random, kind, 3'000)) {
        table.Insert(key, {.Number = ++number});
        twin.Insert(key, number);
      }
      std::vector<std::pair<std::uint32_t, int>> walked;
      for (const auto [key, record] : table.Walk()) {
        walked.emplace_back(key, record.Number);
        ASSERT_EQ(table.Find(key)->Number, record.Number);
      }
      EXPECT_EQ(walked, twin.Walk());
    }
  }
}

TEST(KeyedTableIndex, FindsTheFirstOfTheWalkAndNotOfTheFile) {
  CKeyedTable<Record> table(10'001);
  table.Insert(1, {.Number = 1, .Label = "A"});
  table.Insert(2, {.Number = 2, .Label = "B"});
  table.Insert(3, {.Number = 3, .Label = "A"});
  EXPECT_EQ(table.FirstWith<&Record::Label>("A")->Key, 3U);
  EXPECT_EQ(table.FirstWith<&Record::Label>("B")->Key, 2U);
  EXPECT_FALSE(table.FirstWith<&Record::Label>("C").has_value());
}

TEST(KeyedTableIndex, OfAnEmptyTableFindsNothing) {
  const CKeyedTable<Record> table(10'001);
  EXPECT_FALSE(table.FirstWith<&Record::Label>("A").has_value());
  EXPECT_THAT(table.AllWith<&Record::Label>("A"), IsEmpty());
  EXPECT_THAT(table.KeysWith<&Record::Label>("A"), IsEmpty());
}

TEST(KeyedTableIndex, WithoutAMatchTheLastOfTheWalkStands) {
  CKeyedTable<Record> table(10'001);
  EXPECT_FALSE(table.FirstOrLastWith<&Record::Label>("A").has_value());
  for (std::uint32_t key = 1; key <= 3; ++key) {
    table.Insert(key, {.Label = "A"});
  }
  EXPECT_EQ(table.FirstOrLastWith<&Record::Label>("C")->Key, 1U);
  EXPECT_EQ(table.FirstOrLastWith<&Record::Label>("A")->Key, 3U);
}

TEST(KeyedTableIndex, SeesRecordsThatAreAddedAndReplacedBetweenSearches) {
  CKeyedTable<Record> table(10'001);
  table.Insert(1, {.Label = "A"});
  EXPECT_EQ(table.FirstWith<&Record::Label>("A")->Key, 1U);
  table.Insert(2, {.Label = "A"});
  EXPECT_EQ(table.FirstWith<&Record::Label>("A")->Key, 2U);
  table.Insert(4, {.Label = "A"});
  EXPECT_EQ(table.FirstWith<&Record::Label>("A")->Key, 2U);
  table.Insert(2, {.Label = "B"});
  EXPECT_EQ(table.FirstWith<&Record::Label>("A")->Key, 1U);
  EXPECT_EQ(table.FirstWith<&Record::Label>("B")->Key, 2U);
}

TEST(KeyedTableIndex, AgreesWithAWalkOnRandomTables) {
  std::mt19937 random(777);
  const std::vector<std::string> labels = {"", "1", "2", "A", "B", "AB"};
  std::uniform_int_distribution<std::size_t> anyLabel(0, labels.size() - 1);
  for (const std::uint32_t buckets : {17U, 10'001U}) {
    CKeyedTable<Record> table(buckets);
    table.Reserve(100);  // fewer than come, and keys go beyond it
    for (const std::uint32_t key : RandomKeys(random, 1, 400)) {
      table.Insert(key, {.Label = labels[anyLabel(random)]});
      for (const std::string& label : labels) {
        std::vector<std::uint32_t> walked;
        std::vector<std::uint32_t> positions;
        std::uint32_t position = 0;
        for (const auto [walkedKey, record] : table.Walk()) {
          if (record.Label == label) {
            walked.push_back(walkedKey);
            positions.push_back(position);
          }
          ++position;
        }
        const auto first = table.FirstWith<&Record::Label>(label);
        ASSERT_EQ(first.has_value(), !walked.empty());
        if (first) {
          ASSERT_EQ(first->Key, walked.front());
        }
        const auto all = table.AllWith<&Record::Label>(label);
        ASSERT_EQ(std::vector<std::uint32_t>(all.begin(), all.end()), positions);
        std::ranges::sort(walked);
        const auto keys = table.KeysWith<&Record::Label>(label);
        ASSERT_EQ(std::vector<std::uint32_t>(keys.begin(), keys.end()), walked);
      }
    }
  }
}

}  // namespace
}  // namespace s2k2ngt
