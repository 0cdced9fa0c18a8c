#include "platform/windows/placement.h"

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

constexpr ScreenArea kWindow = {300, 300, 600, 450};  // 300 wide, 150 high

TEST(WindowPlacement, IsBelowTheHostAndFlushWithItsLeftEdge) {
  EXPECT_EQ(PlaceBelow({100, 50, 700, 400}, kWindow, 1024, 768), (ScreenArea{100, 400, 400, 550}));
}

TEST(WindowPlacement, ThatEndsAtTheEdgesOfTheScreenStays) {
  EXPECT_EQ(PlaceBelow({724, 50, 1000, 618}, kWindow, 1024, 768),
            (ScreenArea{724, 618, 1024, 768}));
}

TEST(WindowPlacement, BeyondTheEdgesComesBackToTheLastPixelButOne) {
  EXPECT_EQ(PlaceBelow({725, 50, 1000, 619}, kWindow, 1024, 768),
            (ScreenArea{723, 617, 1023, 767}));
}

TEST(WindowPlacement, OnAScreenThatIsTooSmallBeginsAtItsCorner) {
  EXPECT_EQ(PlaceBelow({20, 10, 200, 90}, kWindow, 250, 120), (ScreenArea{0, 0, 300, 150}));
}

TEST(WindowPlacement, LeftOfTheScreenStaysWithItsHost) {
  EXPECT_EQ(PlaceBelow({-40, 10, 200, 90}, kWindow, 1024, 768), (ScreenArea{-40, 90, 260, 240}));
}

}  // namespace
}  // namespace s2k2ngt
