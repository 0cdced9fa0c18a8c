#include "target/wrapped_list.h"

#include <cstddef>
#include <string>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

std::string ListBefore(std::size_t count, std::size_t perLine, Text lineBreak) {
  std::string list;
  for (std::size_t index = 0; index < count; ++index) {
    list += SeparatorBefore(index, perLine, lineBreak);
    list += std::to_string(index);
  }
  return list;
}

template <class Separator>
std::string ListBehind(std::size_t count, Separator separatorBehind) {
  std::string list;
  for (std::size_t index = 0; index < count; ++index) {
    list += std::to_string(index);
    list += separatorBehind(index, count);
  }
  return list;
}

TEST(WrappedList, SeparatorBeforeBreaksTheLineBeforeTheFirstAndEverySoMany) {
  const struct {
    std::size_t Count;
    std::size_t PerLine;
    const char* LineBreak;
    const char* List;
  } kRows[] = {
      {0, 3, "\n\t\t", ""},
      {1, 3, "\n\t\t", "\n\t\t0"},
      {3, 3, "\n\t\t", "\n\t\t0,1,2"},
      {4, 3, "\n\t\t", "\n\t\t0,1,2\n\t\t3"},
      {7, 3, "\n\t\t", "\n\t\t0,1,2\n\t\t3,4,5\n\t\t6"},
      {7, 2, "\n\t\t\t", "\n\t\t\t0,1\n\t\t\t2,3\n\t\t\t4,5\n\t\t\t6"},
      {3, 1, "\n", "\n0\n1\n2"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.List);
    EXPECT_EQ(ListBefore(row.Count, row.PerLine, row.LineBreak), row.List);
  }
}

TEST(WrappedList, FourThenThreeBreaksTheLineBehindALastOneAsWell) {
  const struct {
    std::size_t Count;
    const char* List;
  } kRows[] = {
      {0, ""},
      {1, "0"},
      {3, "0,1,2"},
      {4, "0,1,2,3\n\t\t"},
      {5, "0,1,2,3\n\t\t4"},
      {6, "0,1,2,3\n\t\t4,5"},
      {7, "0,1,2,3\n\t\t4,5,6\n\t\t"},
      {8, "0,1,2,3\n\t\t4,5,6\n\t\t7"},
      {10, "0,1,2,3\n\t\t4,5,6\n\t\t7,8,9\n\t\t"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Count);
    EXPECT_EQ(ListBehind(row.Count, SeparatorBehindFourThenThree), row.List);
  }
}

TEST(WrappedList, OneThenFiveBreaksTheLineOnceBehindTheLast) {
  const struct {
    std::size_t Count;
    const char* List;
  } kRows[] = {
      {0, ""},
      {1, "0\n\t"},
      {2, "0\n\t1\n\t"},
      {5, "0\n\t1,2,3,4\n\t"},
      {6, "0\n\t1,2,3,4,5\n\t"},
      {7, "0\n\t1,2,3,4,5\n\t6\n\t"},
      {11, "0\n\t1,2,3,4,5\n\t6,7,8,9,10\n\t"},
      {12, "0\n\t1,2,3,4,5\n\t6,7,8,9,10\n\t11\n\t"},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.Count);
    EXPECT_EQ(ListBehind(row.Count, SeparatorBehindOneThenFive), row.List);
  }
}

}  // namespace
}  // namespace s2k2ngt
