#include "platform/message_catalogue.h"

namespace s2k2ngt {
namespace {

const char* BuiltInText(const char* /*key*/) {
  return "Error : DLL is not loaded. check message dll!";
}

LibraryHandle g_catalogue = nullptr;

}  // namespace

CMsgDll::LoadStrFunction LoadStr = BuiltInText;

bool CMsgDll::Load() {
  if (g_catalogue != nullptr) {
    return true;
  }
  g_catalogue = LoadDynamicLibrary("Convertmsg.DLL");
  if (g_catalogue == nullptr) {
    return false;
  }
  void* const symbol = FindDynamicSymbol(g_catalogue, "LoadStr");
  if (symbol == nullptr) {
    Free();
    return false;
  }
  LoadStr = reinterpret_cast<LoadStrFunction>(symbol);
  return true;
}

bool CMsgDll::Free() {
  // The texts go with the library that holds them.
  LoadStr = BuiltInText;
  if (g_catalogue != nullptr) {
    FreeDynamicLibrary(g_catalogue);
    g_catalogue = nullptr;
  }
  return true;
}

}  // namespace s2k2ngt
