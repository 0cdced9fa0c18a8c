#include "platform/message_catalogue.h"

namespace s2k2ngt {
namespace {

// The system runs these when a host loads and unloads the library.

__attribute__((constructor)) void OnLoad() { CMsgDll::Load(); }

__attribute__((destructor)) void OnUnload() { CMsgDll::Free(); }

}  // namespace
}  // namespace s2k2ngt
