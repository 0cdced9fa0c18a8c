#pragma once

#include "platform/dynamic_library.h"

namespace s2k2ngt {

/// Loads the texts that users are shown. They lie in a library of their own, "Convertmsg.DLL" on
/// every platform, so that a host can bring them in another language. Without it every key has one
/// built-in text, and runs go on as usual.
class CMsgDll {
 public:
  virtual ~CMsgDll() = default;

  /// Called when the host loads us. True when the catalogue is loaded, or was already.
  static bool Load();
  /// Called when the host unloads us.
  static bool Free();

  /// What the catalogue exports under the name "LoadStr": the text of a key.
  using LoadStrFunction = const char* (*)(const char* key);
};

/// The text of a message key, from the loaded catalogue or built in.
extern CMsgDll::LoadStrFunction LoadStr;

}  // namespace s2k2ngt
