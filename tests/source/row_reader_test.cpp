#include "source/row_reader.h"

#include "source/str_parser.h"

#include <array>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

/// A row whose keys are parts of each other.
struct WordsRow {
  Text Z = "none";
  Text GlobalZ = "none";
  Text SeparateZ = "none";
  Text Joint = "none";
  Text PanelJoint = "none";
};

}  // namespace

template <>
inline constexpr RowKey<WordsRow> kRowKeys<WordsRow>[] = {
    {"Z=", &WordsRow::Z}, {"GlobalZ=", &WordsRow::GlobalZ}, {" Z=", &WordsRow::SeparateZ},
    Unread{"T="},         {"Joint=", &WordsRow::Joint},     {"PanelJoint=", &WordsRow::PanelJoint}};

namespace {

class RowReaderOfWords : public testing::Test {
 protected:
  /// Reads the row with a reader that has read others, and compares with a search for each key.
  void ExpectWhatASearchFinds(Text text) {
    SCOPED_TRACE(text);
    const Text row = m_Texts.Keep(text);
    const WordsRow words = m_Reader.Read(row);
    const auto searched = [&](Text key) {
      const auto value = FindValue(row, key);
      return value ? CStrParser::FirstString(*value, m_Texts) : Text("none");
    };
    EXPECT_EQ(words.Z, searched("Z="));
    EXPECT_EQ(words.GlobalZ, searched("GlobalZ="));
    EXPECT_EQ(words.SeparateZ, searched(" Z="));
    EXPECT_EQ(words.Joint, searched("Joint="));
    EXPECT_EQ(words.PanelJoint, searched("PanelJoint="));
  }

 private:
  TextStore m_Texts;
  RowReader<WordsRow> m_Reader{m_Texts};
};

TEST_F(RowReaderOfWords, ReadsRowsOfChangingColumns) {
  ExpectWhatASearchFinds("Joint=1   Z=2   GlobalZ=3");
  ExpectWhatASearchFinds("Joint=4   Z=5   GlobalZ=6");
  ExpectWhatASearchFinds("Joint=7   GlobalZ=8   Z=9");
  ExpectWhatASearchFinds("GlobalZ=10");
  ExpectWhatASearchFinds("Joint=11   PanelJoint=12   Z=13   GlobalZ=14");
  ExpectWhatASearchFinds("PanelJoint=15   Joint=16");
  ExpectWhatASearchFinds("");
  ExpectWhatASearchFinds("Joint=17   Z=18   GlobalZ=19");
}

TEST_F(RowReaderOfWords, MeetsAKeyWhereItEndsAWord) {
  ExpectWhatASearchFinds("PanelJoint=7   GlobalZ=6");
  ExpectWhatASearchFinds("XYZ=1   ZZ=2");
  ExpectWhatASearchFinds("Joint=1Z=0  Next=2");
  ExpectWhatASearchFinds("Z=1");
  ExpectWhatASearchFinds("A= Z=1");
  ExpectWhatASearchFinds("Z==5  Joint=1");
  ExpectWhatASearchFinds("Joint =1   Z= 2");
}

TEST_F(RowReaderOfWords, ReadsARowOfMoreColumnsThanAnyTableHas) {
  std::string row;
  for (int pair = 0; pair < 1'000; ++pair) {
    row += "K" + std::to_string(pair) + "=" + std::to_string(pair) + "   ";
  }
  ExpectWhatASearchFinds(row + "Joint=1   Z=2");
  ExpectWhatASearchFinds(row + "Joint=1   Z=3   GlobalZ=4");
}

TEST_F(RowReaderOfWords, FindsWhatASearchFindsInAnyRow) {
  constexpr std::array<const char*, 20> kPieces = {
      "Z=", "GlobalZ=", "Joint=", "PanelJoint=", "T=",  "=",  " ", "  ", "   ",         "\t",
      "\"", "7",        "12345",  "Z",           "a,b", "\v", "-", "E",  "LongishWord", "\xE9"};
  std::mt19937 random(20);  // the same rows everywhere
  for (int round = 0; round < 20'000; ++round) {
    std::string row;
    for (auto pieces = random() % 14; pieces > 0; --pieces) {
      row += kPieces.at(random() % kPieces.size());
    }
    ExpectWhatASearchFinds(row);
  }
}

/// A row of keys that are lost.
struct LossyRow {
  Text Joint;
};

}  // namespace

template <>
inline constexpr RowKey<LossyRow> kRowKeys<LossyRow>[] = {
    {"Joint=", &LossyRow::Joint},
    LostUnless{"Fixed=", "No", "link-direction-fixed"},
    LostUnless{"Mass=", "0", "mass-of-link"}};

namespace {

class RowReaderOfLossyRows : public testing::Test {
 protected:
  std::vector<Why> LostWith(Text row, bool isAccountedFor = true) {
    TextStore texts;
    RowReader<LossyRow> reader(texts, isAccountedFor);
    reader.Read("Joint=1   Fixed=Yes");
    reader.Read(row);
    return reader.Lost();
  }
};

TEST_F(RowReaderOfLossyRows, TellsWhatIsLostWithTheLastRow) {
  const Why fixed = "link-direction-fixed";
  const Why mass = "mass-of-link";
  const Why unknown = "value-of-unknown-name";
  EXPECT_EQ(LostWith("Joint=2   Fixed=Yes"), std::vector<Why>{fixed});
  EXPECT_EQ(LostWith("Mass=3   Joint=2   Fixed=Yes"), (std::vector<Why>{mass, fixed}));
  EXPECT_EQ(LostWith("Joint=2   Fixed=no   Mass=0.0"), std::vector<Why>{});
  EXPECT_EQ(LostWith("Joint=2   Fixed=   Mass="), std::vector<Why>{});
  EXPECT_EQ(LostWith("Joint=2   Gap=3   Fixed=Yes"), (std::vector<Why>{unknown, fixed}));
  EXPECT_EQ(LostWith(""), std::vector<Why>{});
}

TEST_F(RowReaderOfLossyRows, LooksForNothingWithoutAnAccount) {
  EXPECT_EQ(LostWith("Joint=2   Gap=3   Fixed=Yes   Mass=3", false), std::vector<Why>{});
}

}  // namespace
}  // namespace s2k2ngt
