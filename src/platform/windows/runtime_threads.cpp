// The compiler's runtime is linked into the library. It takes a slot of thread-local storage, of
// which a process has about a thousand, and for each thread some handles, and gives them back when
// the thread ends, but not when the library goes. A host that loads and unloads us again and again
// would run out of them, so that what the unloading thread holds goes with the library.
#include <algorithm>
#include <array>
#include <cstddef>

#include <windows.h>

namespace {

using AllocateSlot = DWORD(WINAPI*)();

constexpr std::size_t kMostSlots = 16;
std::array<DWORD, kMostSlots> g_slots{};
std::size_t g_slotCount = 0;

DWORD WINAPI AllocateAndNote() {
  const auto allocate = reinterpret_cast<AllocateSlot>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "TlsAlloc")));
  const DWORD slot = allocate();
  if (slot != TLS_OUT_OF_INDEXES && g_slotCount < kMostSlots) {
    g_slots[g_slotCount++] = slot;
  }
  return slot;
}

}  // namespace

/// What the library has the system call for each thread that begins or ends, a list with a null
/// behind it. The linker knows the directory by this name.
extern "C" const IMAGE_TLS_DIRECTORY _tls_used;

namespace {

/// Tells the runtime that this thread ends, as far as the library is concerned.
void EndThread() {
  const auto* callback = reinterpret_cast<const PIMAGE_TLS_CALLBACK*>(_tls_used.AddressOfCallBacks);
  for (; *callback != nullptr; ++callback) {
    (*callback)(nullptr, DLL_THREAD_DETACH, nullptr);
  }
}

struct ThreadsOfTheRuntime {
  ~ThreadsOfTheRuntime() {
    EndThread();
    std::for_each(g_slots.begin(), g_slots.begin() + g_slotCount,
                  [](DWORD slot) { TlsFree(slot); });
  }
};

// Constructed first, and so gone behind everything else that may still ask for its slot.
__attribute__((init_priority(101), used)) ThreadsOfTheRuntime g_release;

}  // namespace

/// What a call of TlsAlloc goes through; here it stands for the one of the import library.
extern "C" {
extern const AllocateSlot __imp_TlsAlloc;  // NOLINT(bugprone-reserved-identifier)
const AllocateSlot __imp_TlsAlloc = AllocateAndNote;
}
