// A host on Windows: it has a window of its own, loads the library, converts what its user chooses,
// and prints each window that comes up and what the conversion returns. It counts what a run leaves
// behind.
//
//   s2k2ngt_window_host choose ROUNDS       by ConvertFile2
//   s2k2ngt_window_host choose-in-c ROUNDS  by s2k2ngt_convert_chosen
//   s2k2ngt_window_host convert ROUNDS FILE by s2k2ngt_convert, without windows of ours
#include "platform/windows/wide.h"

#include <s2k2ngt/entry_points.h>
#include <s2k2ngt/s2k2ngt.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <io.h>
#include <windows.h>
// Behind windows.h, which it needs.
#include <psapi.h>

namespace {

using s2k2ngt::Utf8;

void Print(const std::string& line) {
  std::printf("%s\n", line.c_str());
  std::fflush(stdout);
}

std::string TextOf(HWND window) {
  std::array<wchar_t, 2048> text{};
  GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  return Utf8(text.data());
}

BOOL CALLBACK PrintStaticText(HWND child, LPARAM /*state*/) {
  std::array<wchar_t, 16> kind{};
  GetClassNameW(child, kind.data(), static_cast<int>(kind.size()));
  if (std::wstring(kind.data()) == L"Static" && !TextOf(child).empty()) {
    Print("text " + TextOf(child));
  }
  return TRUE;
}

/// Told of the windows of this thread that become active, with all that they hold.
LRESULT CALLBACK OnWindowEvent(int code, WPARAM window, LPARAM details) {
  if (code == HCBT_ACTIVATE) {
    const auto active = reinterpret_cast<HWND>(window);
    Print("active " + TextOf(active));
    EnumChildWindows(active, PrintStaticText, 0);
  }
  return CallNextHookEx(nullptr, code, window, details);
}

BOOL CALLBACK CountWindow(HWND /*window*/, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

/// True for a key of the registry. Wine's file dialog keeps one for each file that is chosen.
bool IsRegistryKey(HANDLE handle) {
  using QueryObject = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
  struct TypeInformation {
    USHORT Bytes;
    USHORT Room;
    const wchar_t* Name;
    std::array<std::byte, 512> Further;
  } type{};
  const auto query = reinterpret_cast<QueryObject>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryObject")));
  constexpr int kTypeInformation = 2;
  return query(handle, kTypeInformation, &type, sizeof type, nullptr) == 0 &&
         std::wstring_view(type.Name, type.Bytes / sizeof(wchar_t)) == L"Key";
}

/// The open handles. Wine does not tell their number, so each that may be is looked at.
int CountHandles() {
  int count = 0;
  for (std::uintptr_t number = 4; number < 0x10000; number += 4) {
    const auto handle = reinterpret_cast<HANDLE>(number);
    DWORD flags = 0;
    count += GetHandleInformation(handle, &flags) != 0 && !IsRegistryKey(handle) ? 1 : 0;
  }
  return count;
}

/// The slots of thread-local storage that are left.
int CountFreeSlots() {
  std::vector<DWORD> slots;
  for (DWORD slot = TlsAlloc(); slot != TLS_OUT_OF_INDEXES; slot = TlsAlloc()) {
    slots.push_back(slot);
  }
  for (const DWORD slot : slots) {
    TlsFree(slot);
  }
  return static_cast<int>(slots.size());
}

/// What the process holds: windows of this thread, modules, handles, slots that are left.
std::string Holdings() {
  int windows = 0;
  EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&windows));
  std::array<HMODULE, 1024> modules{};
  DWORD bytes = 0;
  EnumProcessModules(GetCurrentProcess(), modules.data(), sizeof modules, &bytes);
  return std::to_string(windows) + " windows " + std::to_string(bytes / sizeof(HMODULE)) +
         " modules " + std::to_string(CountHandles()) + " handles " +
         std::to_string(CountFreeSlots()) + " slots";
}

HWND OpenHostWindow() {
  const HWND window =
      CreateWindowExW(0, L"STATIC", L"Host application", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 40,
                      420, 120, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  RECT area = {};
  GetWindowRect(window, &area);
  Print("host left " + std::to_string(area.left) + " bottom " + std::to_string(area.bottom));
  return window;
}

template <class Function>
Function Find(HMODULE library, const char* name) {
  const auto address = GetProcAddress(library, name);
  if (address == nullptr) {
    Print(std::string("not exported: ") + name);
    ExitProcess(3);
  }
  return reinterpret_cast<Function>(reinterpret_cast<void*>(address));
}

struct Outcome {
  int Result = 0;
  std::string Path = "as it was";
};

Outcome Choose(HMODULE library) {
  Outcome outcome;
  const auto convert = Find<decltype(&ConvertFile2)>(library, "ConvertFile2");
  outcome.Result = convert(outcome.Path);
  return outcome;
}

Outcome ChooseInC(HMODULE library) {
  std::array<char, 4096> path{"as it was"};
  const auto convert = Find<decltype(&s2k2ngt_convert_chosen)>(library, "s2k2ngt_convert_chosen");
  const int result = convert(nullptr, path.data(), path.size());
  return {result, path.data()};
}

Outcome Convert(HMODULE library, const std::string& file) {
  std::array<char, 4096> path{"as it was"};
  const auto convert = Find<decltype(&s2k2ngt_convert)>(library, "s2k2ngt_convert");
  const int result = convert(file.c_str(), nullptr, path.data(), path.size());
  return {result, path.data()};
}

Outcome RunOnce(const std::string& action, const std::string& file) {
  // The library goes again after each round, and its catalogue with it.
  const HMODULE library = LoadLibraryW(L"s2k2ngt.dll");
  if (library == nullptr) {
    Print("cannot load s2k2ngt.dll");
    ExitProcess(3);
  }
  const Outcome outcome = action == "choose"        ? Choose(library)
                          : action == "choose-in-c" ? ChooseInC(library)
                                                    : Convert(library, file);
  FreeLibrary(library);
  return outcome;
}

}  // namespace

int wmain(int count, wchar_t** words) {
  if (count < 3) {
    return 64;
  }
  _setmode(_fileno(stdout), _O_BINARY);
  // As in a host that has windows, the system's own libraries stay when ours goes; loading them
  // again and again costs handles of theirs.
  LoadLibraryW(L"comctl32.dll");
  LoadLibraryW(L"comdlg32.dll");
  const std::string action = Utf8(words[1]);
  const int rounds = _wtoi(words[2]);
  const std::string file = count > 3 ? Utf8(words[3]) : std::string();
  const HWND window = action == "convert" ? nullptr : OpenHostWindow();
  const HHOOK hook = SetWindowsHookExW(WH_CBT, OnWindowEvent, nullptr, GetCurrentThreadId());
  for (int round = 1; round <= rounds; ++round) {
    const Outcome outcome = RunOnce(action, file);
    Print("result " + std::to_string(outcome.Result) + " path " + outcome.Path);
    if (round == 1 || round == rounds) {
      Print("holds " + Holdings());
    }
  }
  const bool isGone =
      GetModuleHandleW(L"s2k2ngt.dll") == nullptr && GetModuleHandleW(L"Convertmsg.DLL") == nullptr;
  Print(isGone ? "unloaded" : "still loaded");
  UnhookWindowsHookEx(hook);
  if (window != nullptr) {
    DestroyWindow(window);
  }
  return 0;
}
