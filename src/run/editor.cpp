#include "run/editor.h"

#include "platform/process.h"

#include <s2k2ngt/converter.h>

namespace s2k2ngt {

std::string EditorCommandLine(const std::string& path) {
  std::string line = "\"";
  line.append(kEditor).append("\" \"").append(path).append("\" ");
  return line;  // with no options behind the path
}

int CConverter::LaunchEditor(const std::string& path) {
  return StartProcess(kEditor, path, EditorCommandLine(path)) ? 1 : 0;
}

}  // namespace s2k2ngt
