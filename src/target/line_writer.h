#pragma once

#include "common/numbers.h"
#include "common/text.h"
#include "target/output_file.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <type_traits>

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
    // cppcheck-suppress useInitializationList; the compiler does all of this
    TextBefore = TakeText(rest);
    Room = TextBefore.size();
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
      Room += Directives[index].Width + Directives[index].TextBehind.size();
    }
    if (!rest.empty()) {
      throw "fewer arguments than the format has places for";
    }
  }

  std::string_view TextBefore;
  std::array<Directive, kCount> Directives{};
  std::size_t Room = 0;  ///< for all but the arguments

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
  explicit LineWriter(OutputFile& file)
      : m_File(file), m_Buffer(std::make_unique_for_overwrite<char[]>(kBufferSize)) {}

  template <class... Arguments>
  void WriteLine(std::type_identity_t<LineFormat<std::remove_cvref_t<Arguments>...>> format,
                 const Arguments&... arguments) {
    const std::size_t room = (format.Room + ... + RoomOf(arguments));
    if (room > m_Size - m_Used) {
      MakeRoom(room);
    }
    char* end = Put(m_Buffer.get() + m_Used, format.TextBefore);
    [[maybe_unused]] std::size_t index = 0;
    [[maybe_unused]] const auto put = [&](const auto& argument) {
      const auto& directive = format.Directives[index++];
      end = Put(Pad(end, Put(end, argument), directive.Width), directive.TextBehind);
    };
    (put(arguments), ...);
    m_Used = static_cast<std::size_t>(end - m_Buffer.get());
  }

  /// Hands what is buffered to the file.
  void Flush();

 private:
  static constexpr std::size_t kBufferSize = std::size_t{1} << 20U;

  static std::size_t RoomOf(std::string_view text) { return text.size(); }
  static std::size_t RoomOf(double /*value*/) { return kRealSize; }
  static std::size_t RoomOf(std::int32_t /*value*/) { return kIntegerSize; }

  // These write from `first` on and return the end of what they wrote.
  static char* Put(char* first, std::string_view text) {
    return std::copy(text.begin(), text.end(), first);
  }
  static char* Put(char* first, double value) { return FormatReal(first, value); }
  static char* Put(char* first, std::int32_t value) { return FormatInteger(first, value); }
  /// Brings what stands from `first` to `last` to the right of the width.
  static char* Pad(char* first, char* last, std::size_t width) {
    const auto size = static_cast<std::size_t>(last - first);
    if (size >= width) {
      return last;
    }
    char* const text = first + (width - size);
    std::copy_backward(first, last, text + size);
    std::fill(first, text, ' ');
    return text + size;
  }

  /// Empties the buffer; it grows for a line that has no room in it.
  void MakeRoom(std::size_t room);

  OutputFile& m_File;
  std::unique_ptr<char[]> m_Buffer;
  std::size_t m_Size = kBufferSize;
  std::size_t m_Used = 0;
};

}  // namespace s2k2ngt
