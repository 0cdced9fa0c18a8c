#pragma once

#include "support/temporary_folder.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

// What every target has: it takes an input of any bytes and returns. It ends the process when what
// it looks at does not hold, or a sanitizer does.

/// The target of this program; the fuzzer, or the replay of stored inputs, calls it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Ends the process, with a word on what was found, unless the condition holds.
void Require(bool holds, const std::string& what);

/// A folder of this process, in memory where the system offers that.
const TemporaryFolder& Folder();

/// An input, taken from its beginning piece by piece. Behind its end all numbers are 0.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : m_Rest(reinterpret_cast<const char*>(data), size) {}

  bool Empty() const { return m_Rest.empty(); }
  std::string_view Rest() const { return m_Rest; }

  template <class Number>
  Number Take() {
    Number number{};
    const std::string_view bytes = TakeText(sizeof number);
    std::memcpy(&number, bytes.data(), bytes.size());
    return number;
  }

  std::string_view TakeText(std::size_t size) {
    const std::string_view text = m_Rest.substr(0, size);
    m_Rest.remove_prefix(text.size());
    return text;
  }

 private:
  std::string_view m_Rest;
};
