#include "source/row_reader.h"

#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

/// A row of a made-up table of columns, with a field of each kind.
struct ColumnRow {
  Text Label;
  Text Shape = "Round";
  double Depth = 0.0;
  double Factor = 1.0;
  std::int32_t Bars = 0;
  std::int32_t Ties = 4;
  bool IsSway = false;
  bool IsBraced = true;
  bool StatesOffset = false;
};

}  // namespace

template <>
inline constexpr RowKey<ColumnRow> kRowKeys<ColumnRow>[] = {
    {"Column=", &ColumnRow::Label},
    {"Shape=", &ColumnRow::Shape},
    {"Depth=", &ColumnRow::Depth},
    {"Factor=", &ColumnRow::Factor},
    {"Bars=", &ColumnRow::Bars},
    {"Ties=", &ColumnRow::Ties},
    {"Sway=", &ColumnRow::IsSway},
    {"Braced=", &ColumnRow::IsBraced},
    States{"OffsetX=", &ColumnRow::StatesOffset},
    States{"OffsetY=", &ColumnRow::StatesOffset},
    Unread{"GUID="}};

namespace {

class RowGrammar : public testing::Test {
 protected:
  ColumnRow Parse(Text row) { return RowReader<ColumnRow>(m_Store).Read(row); }

 private:
  TextStore m_Store;
};

TEST_F(RowGrammar, KeysStandInAnyOrder) {
  for (const char* row : {"Column=C1   Shape=Box   Depth=0.4   Bars=8   Sway=Yes",
                          "Sway=Yes   Bars=8   Depth=0.4   Shape=Box   Column=C1"}) {
    const ColumnRow column = Parse(row);
    EXPECT_EQ(column.Label, "C1");
    EXPECT_EQ(column.Shape, "Box");
    EXPECT_EQ(column.Depth, 0.4);
    EXPECT_EQ(column.Bars, 8);
    EXPECT_TRUE(column.IsSway);
  }
}

TEST_F(RowGrammar, AbsentKeysLeaveTheDefaults) {
  const ColumnRow column = Parse("");
  EXPECT_EQ(column.Label, "");
  EXPECT_EQ(column.Shape, "Round");
  EXPECT_EQ(column.Depth, 0.0);
  EXPECT_EQ(column.Factor, 1.0);
  EXPECT_EQ(column.Bars, 0);
  EXPECT_EQ(column.Ties, 4);
  EXPECT_FALSE(column.IsSway);
  EXPECT_TRUE(column.IsBraced);
  EXPECT_FALSE(column.StatesOffset);
}

TEST_F(RowGrammar, KeysWithoutAValueOverrideTheDefaults) {
  const ColumnRow column = Parse("Shape=  Factor=  Ties=  Braced=");
  EXPECT_EQ(column.Shape, "");
  EXPECT_EQ(column.Factor, 0.0);
  EXPECT_EQ(column.Ties, 0);
  EXPECT_FALSE(column.IsBraced);
}

TEST_F(RowGrammar, OneBlankBehindAKeyWithoutAValueTakesTheNextPairAsItsText) {
  EXPECT_EQ(Parse("Shape= Factor=2").Shape, " Factor=2");
  EXPECT_EQ(Parse("Shape= Factor=2").Factor, 2.0);
}

TEST_F(RowGrammar, FieldIsTheFirstOfSeveralValues) {
  const ColumnRow column = Parse("Column=\"C 1, C 2\"   Depth=1/2,3   Bars=2*3,1   Sway=Yes,No");
  EXPECT_EQ(column.Label, "C1");
  EXPECT_EQ(column.Depth, 0.5);
  EXPECT_EQ(column.Bars, 6);
  EXPECT_TRUE(column.IsSway);
}

TEST_F(RowGrammar, TextIsTakenWithoutQuotesAndWithItsBlanks) {
  EXPECT_EQ(Parse("Column=\"C 1\"   Depth=1").Label, "C 1");
  EXPECT_EQ(Parse("Column=C 1   Depth=1").Label, "C 1");
}

TEST_F(RowGrammar, NumberThatIsNoneIsZero) {
  const ColumnRow column = Parse("Factor=tall   Ties=few");
  EXPECT_EQ(column.Factor, 0.0);
  EXPECT_EQ(column.Ties, 0);
}

TEST_F(RowGrammar, WholeNumberLosesItsFraction) {
  EXPECT_EQ(Parse("Bars=2.9").Bars, 2);
  EXPECT_EQ(Parse("Bars=-2.9").Bars, -2);
  EXPECT_EQ(Parse("Bars=1.2E3").Bars, 1200);
}

TEST_F(RowGrammar, WholeNumberBeyond32BitsIsTheNearest) {
  EXPECT_EQ(Parse("Bars=1E10").Bars, std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(Parse("Bars=-1E10").Bars, std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(Parse("Bars=nan").Bars, 0);
}

TEST_F(RowGrammar, FlagIsSetByYesInThisFormAlone) {
  EXPECT_TRUE(Parse("Sway=Yes").IsSway);
  EXPECT_TRUE(Parse("Sway=\"Yes\"").IsSway);
  for (const char* word : {"yes", "YES", "No", "True", "1"}) {
    const ColumnRow column = Parse("Sway=" + std::string(word) + "  Braced=" + word);
    EXPECT_FALSE(column.IsSway) << word;
    EXPECT_FALSE(column.IsBraced) << word;
  }
}

TEST_F(RowGrammar, StatedKeyIsNotedWhateverItsValue) {
  EXPECT_TRUE(Parse("OffsetX=0").StatesOffset);
  EXPECT_TRUE(Parse("OffsetX=").StatesOffset);
  EXPECT_TRUE(Parse("OffsetY=No").StatesOffset);
  EXPECT_TRUE(Parse("OffsetX=0   OffsetY=0").StatesOffset);
  EXPECT_FALSE(Parse("OffsetZ=1").StatesOffset);
}

TEST_F(RowGrammar, UnreadKeyChangesNothing) {
  const ColumnRow column = Parse("GUID=8f14   Column=C1");
  EXPECT_EQ(column.Label, "C1");
  EXPECT_EQ(column.Shape, "Round");
}

TEST_F(RowGrammar, EachRowStartsFromTheDefaults) {
  Parse("Column=C1   Shape=Box   Factor=2   Ties=6   Sway=Yes   OffsetX=1");
  const ColumnRow second = Parse("Column=C2");
  EXPECT_EQ(second.Label, "C2");
  EXPECT_EQ(second.Shape, "Round");
  EXPECT_EQ(second.Factor, 1.0);
  EXPECT_EQ(second.Ties, 4);
  EXPECT_FALSE(second.IsSway);
  EXPECT_FALSE(second.StatesOffset);
}

}  // namespace
}  // namespace s2k2ngt
