#pragma once

#include <cstddef>
#include <cstdio>

/// The calls on files of a run.
enum class FileCall {
  None,
  OpenInput,
  Read,
  CloseInput,
  OpenOutput,
  SetBuffer,
  Write,
  CloseOutput
};

/// How a call fails.
struct Fault {
  int Error = 0;
  std::size_t BytesThrough = 0;  // in hundredths
};

/// Each call can fail in this many ways, of which some may be the same.
constexpr int kFaultsPerCall = 2;

/// What the functions that the linker puts in the place of the C library's are to do, and what they
/// did. A run has one file open at a time.
struct FileCalls {
  int CallToFail = 0;  // 0: none fails
  int WhichFault = 0;

  int Count = 0;
  FileCall Failed = FileCall::None;
  Fault With;
  std::FILE* Broken = nullptr;  // reading or writing it has failed
  bool IsOutput = false;
  int Opened = 0;
  int Closed = 0;
  std::size_t BytesWritten = 0;
};

extern FileCalls g_fileCalls;
