#include "source/str_parser.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

using testing::ElementsAre;

std::vector<std::string> Strings(Text row, Text key) {
  std::vector<std::string> values;
  EXPECT_TRUE(CStrParser::GetStrings(row, key, values)) << row;
  return values;
}

std::vector<double> Doubles(Text row, Text key) {
  std::vector<double> values;
  EXPECT_TRUE(CStrParser::GetDoubles(row, key, values)) << row;
  return values;
}

TEST(FindValue, ValueRunsToTheLastBlankBeforeTheNextEqualsSign) {
  EXPECT_EQ(FindValue("Joint=12   XorR=1.5   Y=2", "Joint="), "12");
  EXPECT_EQ(FindValue("Joint=12   XorR=1.5   Y=2", "XorR="), "1.5");
  EXPECT_EQ(FindValue("Name=A B  Next=1", "Name="), "A B");
}

TEST(FindValue, LastValueRunsToTheEndOfTheRow) {
  EXPECT_EQ(FindValue("Joint=12   Note=left of the lift", "Note="), "left of the lift");
}

TEST(FindValue, LeadingBlanksAreKeptAndTrailingWhiteSpaceIsNot) {
  EXPECT_EQ(FindValue("Name=  A B \t\r\v\f\n  Next=1", "Name="), "  A B");
  EXPECT_EQ(FindValue("Name=  A B \t\r\v\f\n", "Name="), "  A B");
}

TEST(FindValue, KeyThatTheRowDoesNotHoldHasNoValue) {
  EXPECT_EQ(FindValue("Joint=12   XorR=1.5", "Y="), std::nullopt);
  EXPECT_EQ(FindValue("", "Y="), std::nullopt);
  EXPECT_EQ(FindValue("a comment without a pair", "comment="), std::nullopt);
  EXPECT_EQ(FindValue("Joint 12", "Joint="), std::nullopt);
}

TEST(FindValue, KeyIsFoundInItsExactCaseAlone) {
  EXPECT_EQ(FindValue("JOINT=1   joint=2   Joint=3", "Joint="), "3");
  EXPECT_EQ(FindValue("JOINT=1   joint=2", "Joint="), std::nullopt);
}

TEST(FindValue, KeyWithABlankBeforeItsEqualsSignIsNotFound) {
  EXPECT_EQ(FindValue("Joint =1   Y= 2", "Joint="), std::nullopt);
}

TEST(FindValue, FirstOfTwoKeysCounts) {
  EXPECT_EQ(FindValue("Joint=1   Y=2   Joint=3", "Joint="), "1");
}

TEST(FindValue, TailOfALongerKeyIsTheKeyIfItStandsFirst) {
  EXPECT_EQ(FindValue("PanelJoint=7   Joint=1", "Joint="), "7");
  EXPECT_EQ(FindValue("Joint=1   PanelJoint=7", "Joint="), "1");
  EXPECT_EQ(FindValue("GlobalZ=6   Y=2   Z=3", "Z="), "6");
  EXPECT_EQ(FindValue("GlobalZ=6   Y=2", "Z="), "6");
}

TEST(FindValue, KeyIsFoundInsideAValue) {
  EXPECT_EQ(FindValue("Note=\"see Z=4\"   Z=3", "Z="), "4\"");
}

TEST(FindValue, EmptyValueAtTheEndOfTheRowIsThere) {
  EXPECT_EQ(FindValue("Joint=1   Note=", "Note="), "");
  EXPECT_EQ(FindValue("Note=", "Note="), "");
  EXPECT_EQ(FindValue("Note=   ", "Note="), "");
}

TEST(FindValue, BlankRightBehindTheKeyDoesNotEndTheValue) {
  EXPECT_EQ(FindValue("Name= Next=1", "Name="), " Next=1");
  EXPECT_EQ(FindValue("Name=  Next=1", "Name="), "");
  EXPECT_EQ(FindValue("Name=   Next=1", "Name="), "");
}

TEST(FindValue, EqualsSignRightBehindTheKeyCutsNothing) {
  EXPECT_EQ(FindValue("Name==5  Next=1", "Name="), "=5  Next=1");
}

TEST(FindValue, EqualsSignInAQuotedValueIsTakenForTheNextPair) {
  EXPECT_EQ(FindValue("Note=\"a=b\" Next=1", "Note="), "\"a=b\" Next=1");
  EXPECT_EQ(FindValue("Note=\"x a=b\" Next=1", "Note="), "\"x");
}

TEST(FindValue, TabDoesNotEndAValue) {
  EXPECT_EQ(FindValue("Joint=1\tXorR=2\tY=3", "Joint="), "1\tXorR=2\tY=3");
  EXPECT_EQ(FindValue("Joint=1 \tXorR=2", "Joint="), "1");
}

TEST(FindValue, SeamOfAContinuedRowHidesTheEndOfTheValue) {
  EXPECT_EQ(FindValue("Joint=1Z=0  Next=2", "Joint="), "1Z=0  Next=2");
  EXPECT_EQ(FindValue("Joint=1Z=0  Next=2", "Z="), "0");
}

TEST(GetStrings, QuotesAreRemovedWhereverTheyAre) {
  EXPECT_THAT(Strings("Name=\"A B\"  Next=1", "Name="), ElementsAre("A B"));
  EXPECT_THAT(Strings("Name=12\" pipe  Next=1", "Name="), ElementsAre("12 pipe"));
  EXPECT_THAT(Strings("Name=\"A\"\"B\"", "Name="), ElementsAre("AB"));
  EXPECT_THAT(Strings("Name=\"\"", "Name="), ElementsAre(""));
  EXPECT_THAT(Strings("Name=\"", "Name="), ElementsAre(""));
  EXPECT_THAT(Strings("Name=\" A \"", "Name="), ElementsAre(" A "));
  EXPECT_THAT(Strings("Note=\"a=b\" Next=1", "Note="), ElementsAre("a=b Next=1"));
  EXPECT_THAT(Strings("Note=\"x a=b\" Next=1", "Note="), ElementsAre("x"));
}

TEST(GetStrings, TabsInsideAValueBecomeBlanks) {
  EXPECT_THAT(Strings("Joint=1\tXorR=2", "Joint="), ElementsAre("1 XorR=2"));
}

TEST(GetStrings, BlanksOfASingleValueAreKept) {
  EXPECT_THAT(Strings("Name=  A  B", "Name="), ElementsAre("  A  B"));
  EXPECT_THAT(Strings("Name= Next=1", "Name="), ElementsAre(" Next=1"));
  EXPECT_THAT(Strings("Name=  Next=1", "Name="), ElementsAre(""));
}

TEST(GetStrings, ListIsSplitAtItsCommasAndLosesItsBlanks) {
  EXPECT_THAT(Strings("CurrUnits=\"KN, m, C\"", "CurrUnits="), ElementsAre("KN", "m", "C"));
  EXPECT_THAT(Strings("Name=\"a, b\"", "Name="), ElementsAre("a", "b"));
  EXPECT_THAT(Strings("Name=first story ,\tsecond story", "Name="),
              ElementsAre("firststory", "secondstory"));
}

TEST(GetStrings, EmptyPiecesOfAListAreValues) {
  EXPECT_THAT(Strings("Name=,a,,b,", "Name="), ElementsAre("", "a", "", "b", ""));
  EXPECT_THAT(Strings("Name=,", "Name="), ElementsAre("", ""));
}

TEST(GetStrings, MissingKeyLeavesTheArrayUntouched) {
  std::vector<std::string> values = {"kept"};
  EXPECT_FALSE(CStrParser::GetStrings("Joint=1", "Name=", values));
  EXPECT_THAT(values, ElementsAre("kept"));
}

TEST(GetStrings, ValuesAreAppended) {
  std::vector<std::string> values = {"kept"};
  EXPECT_TRUE(CStrParser::GetStrings("Name=a,b", "Name=", values));
  EXPECT_THAT(values, ElementsAre("kept", "a", "b"));
}

TEST(GetDoubles, SingleValueIsTheNumberThatItBeginsWith) {
  struct Case {
    const char* Row;
    double Value;
  };
  for (const Case& single : {Case{"Val=1.5E-3", 0.0015},
                             {"Val=1.5e-3", 0.0015},
                             {"Val=-2.5", -2.5},
                             {"Val=+2.5", 2.5},
                             {"Val=   7", 7},
                             {"Val=\"4.5\"", 4.5},
                             {"Val=\t4.5", 4.5},
                             {"Val=3.5 4", 3.5},
                             {"Val=12mm", 12},
                             {"Val=wide", 0},
                             {"Val=", 0},
                             {"Val=  Next=1", 0},
                             {"Joint=3  Val=1Z=0  Next=2", 1}}) {
    EXPECT_THAT(Doubles(single.Row, "Val="), ElementsAre(single.Value)) << single.Row;
  }
}

TEST(GetDoubles, SingleValueIsNotCalculated) {
  EXPECT_THAT(Doubles("Val=1/2", "Val="), ElementsAre(1));
  EXPECT_THAT(Doubles("Val=1+2*3", "Val="), ElementsAre(1));
}

TEST(GetDoubles, PiecesOfAListAreCalculated) {
  EXPECT_THAT(Doubles("Val=1/2,3", "Val="), ElementsAre(0.5, 3));
  EXPECT_THAT(Doubles("Val=1,2*3,4/2", "Val="), ElementsAre(1, 6, 2));
  EXPECT_THAT(Doubles("Val=\"1 + 2 , 10 - 4\"", "Val="), ElementsAre(3, 6));
}

TEST(GetDoubles, SignOfAnExponentOrAtTheHeadOfAPieceIsNoOperator) {
  EXPECT_THAT(Doubles("Val=1.5E-3,2", "Val="), ElementsAre(0.0015, 2));
  EXPECT_THAT(Doubles("Val=1.5e-3,2", "Val="), ElementsAre(0.0015, 2));
  EXPECT_THAT(Doubles("Val=-3,4", "Val="), ElementsAre(-3, 4));
}

TEST(GetDoubles, EmptyPiecesOfAListAreZero) {
  EXPECT_THAT(Doubles("Val=1,2,", "Val="), ElementsAre(1, 2, 0));
  EXPECT_THAT(Doubles("Val=,5", "Val="), ElementsAre(0, 5));
}

TEST(GetDoubles, MissingKeyLeavesTheArrayUntouched) {
  std::vector<double> values = {8};
  EXPECT_FALSE(CStrParser::GetDoubles("Joint=1", "Val=", values));
  EXPECT_THAT(values, ElementsAre(8));
}

TEST(GetDoubles, ValuesAreAppended) {
  std::vector<double> values = {8};
  EXPECT_TRUE(CStrParser::GetDoubles("Val=1,2", "Val=", values));
  EXPECT_THAT(values, ElementsAre(8, 1, 2));
}

TEST(FirstValue, IsElementZeroOfTheValues) {
  for (const char* text :
       {"", " ", "7", " 7 ", "1/2", "1/2,3", "1 / 2 , 3", "\"KN, m, C\"", "\"A B\"", "\"", "\"\"",
        "\"A\" \"B\"", "a\tb", ",5", "5,", "\"2*3\",4", "\"x", "12\" pipe"}) {
    SCOPED_TRACE(text);
    std::vector<double> doubles;
    CStrParser::SplitDoubles(text, doubles);
    EXPECT_EQ(CStrParser::FirstDouble(text), doubles.at(0));
    std::vector<std::string> strings;
    CStrParser::SplitStrings(text, strings);
    TextStore store;
    EXPECT_EQ(CStrParser::FirstString(text, store), strings.at(0));
  }
}

TEST(FirstValue, OfAListOrAQuotedText) {
  TextStore store;
  EXPECT_EQ(CStrParser::FirstString("\"KN, m, C\"", store), "KN");
  EXPECT_EQ(CStrParser::FirstString("\"A B\"", store), "A B");
  EXPECT_EQ(CStrParser::FirstString("story one, two", store), "storyone");
  EXPECT_EQ(CStrParser::FirstDouble("1/2,3"), 0.5);
  EXPECT_EQ(CStrParser::FirstDouble("1/2"), 1);
}

TEST(EvalExpr, WorksStrictlyFromLeftToRight) {
  struct Case {
    const char* Expression;
    double Value;
  };
  for (const Case& sum : {Case{"1+2*3", 9},
                          {"10-4-3", 3},
                          {"24/4/2", 3},
                          {"2+6/4", 2},
                          {"1-2+3*4/8", 1},
                          {"3*2", 6},
                          {"1.5+.25", 1.75}}) {
    EXPECT_EQ(CStrParser::EvalExpr(sum.Expression), sum.Value) << sum.Expression;
  }
}

TEST(EvalExpr, SignsThatAreNoOperators) {
  struct Case {
    const char* Expression;
    double Value;
  };
  for (const Case& number : {Case{"-3", -3},
                             {"+3", 3},
                             {"*3", 0},      // at the head
                             {"5*", 5},      // at the tail
                             {"5/  ", 5},    // at the tail, trailing white space removed
                             {"2E+1", 20},   // of an exponent
                             {"2e-1", 0.2},  // of an exponent in lower case
                             {"1 -2", 1},    // behind a blank, so that the number ends at it
                             {"E-2", 0},
                             {"-3-4", -7},
                             {"-3E-1*-2", -2}}) {
    EXPECT_EQ(CStrParser::EvalExpr(number.Expression), number.Value) << number.Expression;
  }
}

TEST(EvalExpr, SecondOfTwoOperatorsFollowsAnOperandOfZero) {
  EXPECT_EQ(CStrParser::EvalExpr("1--2"), -1);  // 1 - 0 - 2
  EXPECT_EQ(CStrParser::EvalExpr("2*-3"), -3);  // 2 * 0 - 3
  EXPECT_EQ(CStrParser::EvalExpr("1++2"), 3);   // 1 + 0 + 2
}

TEST(EvalExpr, ParenthesesAndWordsAreTextThatEndsANumber) {
  EXPECT_EQ(CStrParser::EvalExpr("2*(1+3)"), 3);  // 2 * 0 + 3
  EXPECT_EQ(CStrParser::EvalExpr("(1+3)*2"), 6);  // (0 + 3) * 2
  EXPECT_EQ(CStrParser::EvalExpr("4m+1"), 5);
  EXPECT_EQ(CStrParser::EvalExpr("wide"), 0);
}

TEST(EvalExpr, EmptyTextIsZero) {
  EXPECT_EQ(CStrParser::EvalExpr(""), 0);
  EXPECT_EQ(CStrParser::EvalExpr("  "), 0);
  EXPECT_EQ(CStrParser::EvalExpr("-"), 0);
}

TEST(EvalExpr, DivisionByZeroStandsAsItComes) {
  EXPECT_EQ(CStrParser::EvalExpr("1/0"), std::numeric_limits<double>::infinity());
  EXPECT_EQ(CStrParser::EvalExpr("-1/0"), -std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(CStrParser::EvalExpr("0/0")));
}

TEST(FirstIsYes, IsTheWordInThisFormAlone) {
  EXPECT_TRUE(CStrParser::FirstIsYes("Yes"));
  for (const char* value : {"yes", "YES", "Y", "Yes ", " Yes", "Yes.", "True", "1", "No", ""}) {
    EXPECT_FALSE(CStrParser::FirstIsYes(value)) << value;
  }
}

TEST(IsDigitChar, IsTrueForTheTenDigitsAlone) {
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(IsDigitChar(static_cast<char>(code)), code >= 48 && code <= 57) << code;
  }
}

}  // namespace
}  // namespace s2k2ngt
