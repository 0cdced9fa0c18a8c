#include "faults/failing_file_calls.h"

#include <cerrno>
#include <cstdlib>
#include <new>

FileCalls g_fileCalls;

namespace {

Fault FaultOf(FileCall call, int which) {
  switch (call) {
    case FileCall::OpenInput:
    case FileCall::OpenOutput:
      return {.Error = which == 0 ? EACCES : EMFILE};
    case FileCall::Read:
      return {.Error = EIO, .BytesThrough = which == 0 ? 0U : 50U};
    case FileCall::Write:
      return {.Error = ENOSPC, .BytesThrough = which == 0 ? 0U : 50U};
    case FileCall::CloseInput:
    case FileCall::CloseOutput:
      return {.Error = which == 0 ? EIO : ENOSPC};
    case FileCall::SetBuffer:
      return {.Error = ENOMEM};
    case FileCall::None:
      break;
  }
  return {};
}

bool Fails(FileCall call) {
  if (++g_fileCalls.Count != g_fileCalls.CallToFail) {
    return false;
  }
  g_fileCalls.Failed = call;
  g_fileCalls.With = FaultOf(call, g_fileCalls.WhichFault);
  return true;
}

}  // namespace

extern "C" {
std::FILE* __real_fopen(const char* path, const char* mode);
int __real_setvbuf(std::FILE* file, char* buffer, int mode, std::size_t size);
std::size_t __real_fread(void* bytes, std::size_t size, std::size_t count, std::FILE* file);
int __real_ferror(std::FILE* file);
std::size_t __real_fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file);
int __real_fclose(std::FILE* file);

std::FILE* __wrap_fopen(const char* path, const char* mode) {
  g_fileCalls.IsOutput = *mode == 'w';
  if (Fails(g_fileCalls.IsOutput ? FileCall::OpenOutput : FileCall::OpenInput)) {
    errno = g_fileCalls.With.Error;
    return nullptr;
  }
  std::FILE* const file = __real_fopen(path, mode);
  g_fileCalls.Opened += file != nullptr ? 1 : 0;
  return file;
}

int __wrap_setvbuf(std::FILE* file, char* buffer, int mode, std::size_t size) {
  if (Fails(FileCall::SetBuffer)) {
    errno = g_fileCalls.With.Error;
    return -1;
  }
  return __real_setvbuf(file, buffer, mode, size);
}

std::size_t __wrap_fread(void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  if (Fails(FileCall::Read)) {
    const std::size_t through = count * g_fileCalls.With.BytesThrough / 100;
    const std::size_t got = __real_fread(bytes, size, through, file);
    g_fileCalls.Broken = file;
    errno = g_fileCalls.With.Error;
    return got;
  }
  return __real_fread(bytes, size, count, file);
}

int __wrap_ferror(std::FILE* file) { return file == g_fileCalls.Broken ? 1 : __real_ferror(file); }

std::size_t __wrap_fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  const bool fails = Fails(FileCall::Write);
  const std::size_t through = fails ? count * g_fileCalls.With.BytesThrough / 100 : count;
  const std::size_t done = __real_fwrite(bytes, size, through, file);
  g_fileCalls.BytesWritten += size * done;
  if (fails) {
    g_fileCalls.Broken = file;
    errno = g_fileCalls.With.Error;
  }
  return done;
}

int __wrap_fclose(std::FILE* file) {
  const bool fails = Fails(g_fileCalls.IsOutput ? FileCall::CloseOutput : FileCall::CloseInput);
  const bool isBroken = file == g_fileCalls.Broken;
  g_fileCalls.Broken = nullptr;
  g_fileCalls.Closed += 1;
  const int result = __real_fclose(file);
  if (fails || isBroken) {
    // What a file that has failed before fails with now is not what anyone wants to know.
    errno = isBroken ? EBADF : g_fileCalls.With.Error;
    return EOF;
  }
  return result;
}
}

// An allocation may change errno, also when it succeeds.
void* operator new(std::size_t size) {
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  errno = EDOM;
  return memory;
}

void operator delete(void* memory) noexcept {
  std::free(memory);
  errno = EDOM;
}

void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
