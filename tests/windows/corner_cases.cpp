// What keys and clicks cannot bring about at a certain moment. Prints each case that fails.
#include "platform/windows/progress_window.h"
#include "platform/windows/resource.h"
#include "platform/windows/windows_platform.h"
#include "source/source_file.h"

#include <cstdio>

#include <windows.h>

namespace {

int g_failures = 0;

void Expect(bool isSo, const char* what) {
  if (!isSo) {
    std::printf("%s\n", what);
    ++g_failures;
  }
}

HWND OpenWindow(HWND owner) {
  return CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 40, 300, 100,
                         owner, nullptr, GetModuleHandleW(nullptr), nullptr);
}

void ClickStop() {
  const HWND window = FindWindowW(nullptr, L"Conversion Progress Window");
  PostMessageW(window, WM_COMMAND, MAKEWPARAM(IDC_STOP, BN_CLICKED), 0);
}

/// The same by the mouse, whose messages stand behind a quit that waits.
void ClickStopByMouse() {
  const HWND window = FindWindowW(nullptr, L"Conversion Progress Window");
  RECT button = {};
  GetWindowRect(GetDlgItem(window, IDC_STOP), &button);
  SetCursorPos((button.left + button.right) / 2, (button.top + button.bottom) / 2);
  mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
  mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
}

bool StopsWithin(s2k2ngt::ProgressWindow& progress, int steps) {
  for (int step = 0; step < steps; ++step) {
    if (progress.AskStop()) {
      return true;
    }
  }
  return false;
}

void StopIsSeenAtTheNextStep() {
  s2k2ngt::ProgressWindow progress(nullptr);
  Expect(!progress.AskStop(), "a window that nobody touches stops");
  ClickStop();
  Expect(progress.AskStop(), "the button is not seen at the next step");
  Expect(progress.AskStop(), "the button is forgotten");
}

void QuitOfTheHostWaitsForTheEndOfTheRun() {
  constexpr int kExitCode = 7;
  PostQuitMessage(kExitCode);
  {
    s2k2ngt::ProgressWindow progress(nullptr);
    Expect(!progress.AskStop(), "a quit of the host stops the run");
    ClickStopByMouse();
    Expect(StopsWithin(progress, 200), "the button is not seen behind a quit");
  }
  MSG message = {};
  Expect(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0 &&
             message.wParam == kExitCode,
         "the quit of the host is lost");
}

HWND g_ownerOfBox = nullptr;

LRESULT CALLBACK OnBox(int code, WPARAM window, LPARAM details) {
  const auto box = reinterpret_cast<HWND>(window);
  if (code == HCBT_ACTIVATE && GetDlgItem(box, IDOK) != nullptr) {
    g_ownerOfBox = GetWindow(box, GW_OWNER);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  }
  return CallNextHookEx(nullptr, code, window, details);
}

void BoxBelongsToTheDialogThatTheHostIsIn() {
  const HWND main = OpenWindow(nullptr);
  const HWND dialog = OpenWindow(main);
  SetActiveWindow(dialog);
  s2k2ngt::WindowsPlatform platform;
  platform.OpenProgress();
  const HHOOK hook = SetWindowsHookExW(WH_CBT, OnBox, nullptr, GetCurrentThreadId());
  platform.ShowMessage("", "a text");
  UnhookWindowsHookEx(hook);
  platform.CloseProgress();
  Expect(g_ownerOfBox == dialog, "a box belongs to another window than the host's dialog");
  DestroyWindow(dialog);
  DestroyWindow(main);
}

void PathOfTheCodePageIsAFileThatIsNotThere() {
  const s2k2ngt::SourceFile source = s2k2ngt::ReadSourceFile("\xE9t\xE9.s2k");
  Expect(!source.OpenError.empty(), "a path that is not UTF-8 was opened");
}

}  // namespace

int main() {
  StopIsSeenAtTheNextStep();
  QuitOfTheHostWaitsForTheEndOfTheRun();
  BoxBelongsToTheDialogThatTheHostIsIn();
  PathOfTheCodePageIsAFileThatIsNotThere();
  return g_failures;
}
