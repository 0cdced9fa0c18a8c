#include "platform/windows/module.h"

namespace s2k2ngt {

HINSTANCE OwnModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<const wchar_t*>(&OwnModule), &module);
  return module;
}

}  // namespace s2k2ngt
