#pragma once

#include "common/numbers.h"
#include "common/text.h"
#include "target/output_file.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <vector>

namespace s2k2ngt {

/// A printf format, taken apart and checked against the types of its arguments when it is compiled.
///
/// The output's format strings use "%s" for texts, "%d" for 32-bit integers and "%g" for doubles,
/// each with or without a width, and nothing else; anything else does not compile.
template <class... Arguments>
class LineFormat {
 public:
  static constexpr std::size_t kCount = sizeof...(Arguments);

  struct Directive {
    std::size_t Width = 0;
    std::string_view TextBehind;
  };

  consteval LineFormat(const char* format) {
    constexpr std::array<char, kCount + 1> kinds = {KindOf<Arguments>()..., '\0'};
    std::string_view rest = format;
    TextBefore = TakeText(rest);
    for (std::size_t index = 0; index < kCount; ++index) {
      if (rest.empty()) {
        throw "more arguments than the format has places for";
      }
      rest.remove_prefix(1);
      for (; !rest.empty() && rest.front() >= '0' && rest.front() <= '9'; rest.remove_prefix(1)) {
        Directives[index].Width =
            Directives[index].Width * 10 + static_cast<std::size_t>(rest.front() - '0');
      }
      if (rest.empty() || rest.front() != kinds[index]) {
        throw "the format does not fit the type of its argument";
      }
      rest.remove_prefix(1);
      Directives[index].TextBehind = TakeText(rest);
    }
    if (!rest.empty()) {
      throw "fewer arguments than the format has places for";
    }
  }

  std::string_view TextBefore;
  std::array<Directive, kCount> Directives{};

 private:
  template <class Argument>
  static consteval char KindOf() {
    if constexpr (std::same_as<Argument, double>) {
      return 'g';
    } else if constexpr (std::same_as<Argument, std::int32_t>) {
      return 'd';
    } else {
      static_assert(std::convertible_to<const Argument&, std::string_view>,
                    "a line takes texts, doubles and 32-bit integers");
      return 's';
    }
  }

  static consteval std::string_view TakeText(std::string_view& rest) {
    const std::size_t size = std::min(rest.find('%'), rest.size());
    const std::string_view text = rest.substr(0, size);
    rest.remove_prefix(size);
    return text;
  }
};

/// Writes lines into the output file through one large buffer, with the bytes that printf gives in
/// the "C" locale. It adds nothing: newlines and separators are all in the formats.
class LineWriter {
 public:
  explicit LineWriter(OutputFile& file) : m_File(file), m_Buffer(kBufferSize) {}

  template <class... Arguments>
  void WriteLine(std::type_identity_t<LineFormat<std::remove_cvref_t<Arguments>...>> format,
                 const Arguments&... arguments) {
    Append(format.TextBefore);
    [[maybe_unused]] std::size_t index = 0;
    [[maybe_unused]] const auto write = [&](const auto& argument) {
      const auto& directive = format.Directives[index++];
      AppendArgument(argument, directive.Width);
      Append(directive.TextBehind);
    };
    (write(arguments), ...);
  }

  /// Hands what is buffered to the file.
  void Flush();

 private:
  static constexpr std::size_t kBufferSize = std::size_t{1} << 20U;

  void Append(std::string_view text) {
    if (text.size() > m_Buffer.size() - m_Used) {
      AppendBehindFlush(text);
      return;
    }
    std::copy(text.begin(), text.end(), m_Buffer.data() + m_Used);
    m_Used += text.size();
  }
  void AppendPadded(std::string_view text, std::size_t width) {
    for (std::size_t size = text.size(); size < width; ++size) {
      Append(" ");
    }
    Append(text);
  }
  void AppendArgument(std::string_view text, std::size_t width) { AppendPadded(text, width); }
  void AppendArgument(double value, std::size_t width) {
    std::array<char, kRealSize> text{};
    AppendPadded({text.data(), FormatReal(text.data(), value)}, width);
  }
  void AppendArgument(std::int32_t value, std::size_t width) {
    std::array<char, kIntegerSize> text{};
    AppendPadded({text.data(), FormatInteger(text.data(), value)}, width);
  }
  void AppendBehindFlush(std::string_view text);

  OutputFile& m_File;
  std::vector<char> m_Buffer;
  std::size_t m_Used = 0;
};

}  // namespace s2k2ngt
