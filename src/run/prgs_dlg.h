#pragma once

#include "common/progress.h"

#include <s2k2ngt/platform.h>

namespace s2k2ngt {

/// The progress window of a run, on whatever the platform makes of one.
class CPrgsDlg : public Progress {
 public:
  explicit CPrgsDlg(Platform& platform) : m_Platform(platform) {}
  ~CPrgsDlg() override;
  CPrgsDlg(const CPrgsDlg&) = delete;
  CPrgsDlg& operator=(const CPrgsDlg&) = delete;

  void Create();
  /// Destroys the window if it still exists.
  void Destroy();

  void SetPhase(int phase) override;
  void SetRange(int high) override;
  /// A stop destroys the window.
  bool Step(int position) override;

 private:
  Platform& m_Platform;
  bool m_Exists = false;
};

}  // namespace s2k2ngt
