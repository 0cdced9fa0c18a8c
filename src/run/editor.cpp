#include "run/editor.h"

#include "platform/process.h"

#include <s2k2ngt/converter.h>

namespace s2k2ngt {

std::string EditorCommandLine(const std::string& path) {
  const std::string noOptions;
  return "\"" + std::string(kEditor) + "\" \"" + path + "\" " + noOptions;
}

int CConverter::LaunchEditor(const std::string& path) {
  return StartProcess(kEditor, path, EditorCommandLine(path)) ? 1 : 0;
}

}  // namespace s2k2ngt
