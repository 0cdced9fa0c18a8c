#include <s2k2ngt/platform.h>

namespace s2k2ngt {

Platform::~Platform() = default;

std::optional<std::string> Platform::ChooseFile(const FileDialog& /*dialog*/) {
  return std::nullopt;
}

void Platform::OpenProgress() {}
void Platform::CloseProgress() {}
void Platform::SetStatus(const std::string& /*text*/) {}
void Platform::SetRange(int /*high*/) {}
void Platform::SetPosition(int /*position*/) {}
bool Platform::AskStop() { return false; }

}  // namespace s2k2ngt
