#pragma once

#include "common/text.h"

#include <cstddef>
#include <optional>

// The look-up of a row's value as its rules say it, which is slow, and what quicker ones must
// agree with.

/// The text behind the first place of `key`, up to the last blank before the next equals sign.
inline std::optional<s2k2ngt::Text> ValueInRow(s2k2ngt::Text row, s2k2ngt::Text key) {
  const std::size_t place = row.find(key);
  if (place == s2k2ngt::Text::npos) {
    return std::nullopt;
  }
  s2k2ngt::Text value = row.substr(place + key.size());
  const std::size_t sign = value.find('=');
  if (sign != s2k2ngt::Text::npos) {
    // A blank right behind the key does not end its value.
    const std::size_t blank = value.rfind(' ', sign);
    if (blank != s2k2ngt::Text::npos && blank > 0) {
      value = value.substr(0, blank);
    }
  }
  while (!value.empty() && s2k2ngt::IsSpace(value.back())) {
    value.remove_suffix(1);
  }
  return value;
}
