#include "platform/message_catalogue.h"

#include <windows.h>

/// The system calls it when a host loads and unloads the library.
extern "C" BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, void* processEnds) {
  if (reason == DLL_PROCESS_ATTACH) {
    s2k2ngt::CMsgDll::Load();
  } else if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) {
    // When the process ends, the system has taken the catalogue away already.
    s2k2ngt::CMsgDll::Free();
  }
  return TRUE;
}
