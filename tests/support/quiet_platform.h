#pragma once

#include <s2k2ngt/platform.h>

#include <string>

/// Shows nothing, keeps nothing of what it is shown, and counts its windows.
class QuietPlatform : public s2k2ngt::Platform {
 public:
  void ShowMessage(const std::string& /*key*/, const std::string& /*text*/) override {}
  void OpenProgress() override { ++WindowsOpen; }
  void CloseProgress() override { --WindowsOpen; }
  bool AskStop() override { return ++Steps == StopAtStep; }

  /// Stops the run at the step that is asked for the so-manieth time, from 1; 0 never.
  int StopAtStep = 0;
  int Steps = 0;
  int WindowsOpen = 0;
};
