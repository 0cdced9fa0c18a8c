#pragma once

namespace s2k2ngt {

/// What a phase tells of its progress, and learns of the user's wish to stop.
class Progress {
 public:
  virtual ~Progress() = default;
  /// Shows the text of phase 1 (reading), 2 (converting) or 3 (writing).
  virtual void SetPhase(int phase) = 0;
  /// The bar goes from 0 to `high`, of which the bar takes 16 bits.
  virtual void SetRange(int high) = 0;
  /// Moves the bar; false when the user wants to stop. After that no further step may follow.
  virtual bool Step(int position) = 0;

 protected:
  Progress() = default;
  Progress(const Progress&) = default;
  Progress& operator=(const Progress&) = default;
};

}  // namespace s2k2ngt
