#pragma once

#include "common/messages.h"

#include <s2k2ngt/platform.h>

#include <string>

namespace s2k2ngt {

/// Shows the catalogue's texts in message boxes of the platform.
class MessageBoxes : public Messages {
 public:
  explicit MessageBoxes(Platform& platform) : m_Platform(platform) {}

  void Show(MessageKey key) override;
  void ShowWith(MessageKey key, Text argument) override;
  /// Shows a text that stands outside the catalogue.
  void ShowLiteral(const std::string& text);

 private:
  Platform& m_Platform;
};

/// The loaded catalogue's text of a key; empty when the catalogue has none.
const char* CatalogueText(const char* key);

}  // namespace s2k2ngt
