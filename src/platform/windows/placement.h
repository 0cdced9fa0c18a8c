#pragma once

#include <algorithm>

namespace s2k2ngt {

/// A rectangle of the screen, in pixels; right and bottom are the first beyond it.
struct ScreenArea {
  int Left = 0;
  int Top = 0;
  int Right = 0;
  int Bottom = 0;

  int Width() const { return Right - Left; }
  int Height() const { return Bottom - Top; }
  bool operator==(const ScreenArea&) const = default;
};

/// Where a window goes: below the host's, flush with its left edge, and back onto the screen where
/// it would leave that. `width` and `height` are the room that the screen has.
inline ScreenArea PlaceBelow(const ScreenArea& host, const ScreenArea& window, int width,
                             int height) {
  int left = host.Left;
  if (left + window.Width() > width) {
    left = std::max(0, width - 1 - window.Width());
  }
  int top = host.Bottom;
  if (top + window.Height() > height) {
    top = std::max(0, height - 1 - window.Height());
  }
  return {left, top, left + window.Width(), top + window.Height()};
}

}  // namespace s2k2ngt
