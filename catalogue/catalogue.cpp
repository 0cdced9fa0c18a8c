#include "catalogue.h"

#include "texts.h"

#include <algorithm>

const char* LoadStr(const char* key) {
  using s2k2ngt::catalogue::kMessageTexts;
  using s2k2ngt::catalogue::MessageText;
  if (key == nullptr) {
    return "";
  }
  const auto* const text =
      std::ranges::find(kMessageTexts, std::string_view(key), &MessageText::Key);
  return text == kMessageTexts.end() ? "The message catalogue has no text for this message."
                                     : text->Text;
}
