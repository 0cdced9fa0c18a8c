// Lines of any values, against printf's.
#include "target/line_writer.h"

#include "target.h"
#include "target/output_file.h"

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

using s2k2ngt::LineWriter;
using s2k2ngt::OutputFile;

namespace {

/// What one file of a run holds at most, to keep the runs short.
constexpr std::size_t kLinesAtMost = 200;

/// What printf prints.
// NOLINTNEXTLINE(cert-dcl50-cpp): with the arguments of printf
[[gnu::format(printf, 1, 2)]] std::string Printed(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  char* text = nullptr;
  const int size = vasprintf(&text, format, arguments);
  va_end(arguments);
  Require(size >= 0, "printf prints nothing");
  std::string printed(text, static_cast<std::size_t>(size));
  std::free(text);
  return printed;
}

/// Writes a line with both, of a format that both understand.
#define WRITE_WITH_BOTH(format, ...) \
  (out.WriteLine(format, __VA_ARGS__), expected += Printed(format, __VA_ARGS__))

void WriteLines(Input& input, LineWriter& out, std::string& expected) {
  for (std::size_t line = 0; line < kLinesAtMost && !input.Empty(); ++line) {
    const auto kind = input.Take<std::uint8_t>();
    const auto number = input.Take<std::int32_t>();
    auto real = input.Take<double>();
    if (real != real) {
      real = 0.0;  // of a NaN this program prints no sign
    }
    switch (kind % 8) {
      case 0:
        WRITE_WITH_BOTH("\t%5d, %5g\n", number, real);
        break;
      case 1:
        WRITE_WITH_BOTH("%g", real);
        break;
      case 2:
        WRITE_WITH_BOTH("%d", number);
        break;
      case 3:
        WRITE_WITH_BOTH("%16g;%17g;%1g\n", real, -real, 1.0 / real);
        break;
      case 4:
        WRITE_WITH_BOTH("%d, %10d, %11d, %12d", number, number, number / 7, -(number / 3));
        break;
      case 5: {
        const std::string text(input.TakeText(kind));
        const char* const words = text.c_str();  // for both up to the first zero
        WRITE_WITH_BOTH("%10s|%s|%3s\n", words, words, words);
        break;
      }
      case 6: {
        // decimal fractions, as models have them
        const double fraction = number / 1000.0;
        WRITE_WITH_BOTH("%5g,%g,%g\n", fraction, fraction * 1e-9, fraction * 1e7);
        break;
      }
      default: {
        // a line that has no room in what is left of the buffer, at times
        const std::string text(static_cast<std::size_t>(number & 0xFFF) * (kind >> 3U), 'x');
        const char* const words = text.c_str();
        WRITE_WITH_BOTH("%s%g", words, real);
        break;
      }
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::string path = Folder().FileName("lines");
  std::string expected;
  {
    OutputFile file(path);
    LineWriter out(file);
    WriteLines(input, out, expected);
    out.Flush();
    file.Close();
  }
  Require(ReadFile(path) == expected, "another line than printf's");
  return 0;
}
