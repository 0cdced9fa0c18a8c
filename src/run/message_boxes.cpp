#include "run/message_boxes.h"

#include "platform/message_catalogue.h"

namespace s2k2ngt {

const char* CatalogueText(const char* key) {
  const char* const text = LoadStr(key);
  return text == nullptr ? "" : text;
}

void MessageBoxes::Show(MessageKey key) {
  m_Platform.ShowMessage(key.Get(), CatalogueText(key.Get()));
}

void MessageBoxes::ShowWith(MessageKey key, Text argument) {
  // Not by a printf: a catalogue is another's file, and its percent signs must not do harm.
  std::string text = CatalogueText(key.Get());
  const std::size_t place = text.find("%s");
  if (place != std::string::npos) {
    text.replace(place, 2, argument);
  }
  m_Platform.ShowMessage(key.Get(), text);
}

void MessageBoxes::ShowLiteral(const std::string& text) { m_Platform.ShowMessage("", text); }

}  // namespace s2k2ngt
