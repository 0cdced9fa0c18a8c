// Prints the dialog templates of the library's resources, as they stand: for each its id, title,
// font and size, and the same of its controls, in dialog units.
#include "platform/windows/wide.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace {

/// Reads a template's fields one after the other, each at its alignment.
class TemplateReader {
 public:
  explicit TemplateReader(const std::byte* begin) : m_Begin(begin) {}

  template <class Number>
  Number Take() {
    Number value{};
    std::memcpy(&value, m_Begin + m_Place, sizeof value);
    m_Place += sizeof value;
    return value;
  }
  void Skip(std::size_t bytes) { m_Place += bytes; }
  void AlignTo4() { m_Place = (m_Place + 3) / 4 * 4; }

  std::wstring TakeText() {
    std::wstring text;
    for (auto unit = Take<wchar_t>(); unit != 0; unit = Take<wchar_t>()) {
      text += unit;
    }
    return text;
  }
  /// A text, or the number that stands for a class of windows.
  std::wstring TakeNameOrNumber() {
    constexpr wchar_t kNumber = 0xFFFF;
    if (Take<wchar_t>() != kNumber) {
      m_Place -= sizeof(wchar_t);
      return TakeText();
    }
    switch (Take<std::uint16_t>()) {
      case 0x80:
        return L"Button";
      case 0x82:
        return L"Static";
      case 0x83:
        return L"ListBox";
      default:
        return L"another class";
    }
  }

 private:
  const std::byte* m_Begin;
  std::size_t m_Place = 0;
};

struct Place {
  int Left;
  int Top;
  int Width;
  int Height;
};

Place TakePlace(TemplateReader& reader) {
  const int left = reader.Take<std::int16_t>();
  const int top = reader.Take<std::int16_t>();
  const int width = reader.Take<std::int16_t>();
  const int height = reader.Take<std::int16_t>();
  return {left, top, width, height};
}

void PrintTemplate(HMODULE library, int id) {
  const HRSRC resource =
      FindResourceW(library, MAKEINTRESOURCEW(id), reinterpret_cast<const wchar_t*>(RT_DIALOG));
  if (resource == nullptr) {
    std::printf("%d is missing\n", id);
    return;
  }
  TemplateReader reader(
      static_cast<const std::byte*>(LockResource(LoadResource(library, resource))));
  reader.Skip(2 * sizeof(std::uint16_t) + 3 * sizeof(std::uint32_t));  // version, help, styles
  const int controls = reader.Take<std::uint16_t>();
  const Place dialog = TakePlace(reader);
  reader.TakeText();  // menu
  reader.TakeText();  // class
  const std::wstring title = reader.TakeText();
  const int points = reader.Take<std::uint16_t>();
  reader.Skip(2 * sizeof(std::uint16_t));  // weight, italic and character set
  const std::wstring font = reader.TakeText();
  std::printf("%d \"%s\" %s %d %d %d\n", id, s2k2ngt::Utf8(title).c_str(),
              s2k2ngt::Utf8(font).c_str(), points, dialog.Width, dialog.Height);
  for (int control = 0; control < controls; ++control) {
    reader.AlignTo4();
    reader.Skip(3 * sizeof(std::uint32_t));  // help and styles
    const Place place = TakePlace(reader);
    const int number = reader.Take<std::int32_t>();
    const std::wstring kind = reader.TakeNameOrNumber();
    const std::wstring text = reader.TakeNameOrNumber();
    reader.Skip(reader.Take<std::uint16_t>());
    std::printf("%d %s \"%s\" %d %d %d %d\n", number, s2k2ngt::Utf8(kind).c_str(),
                s2k2ngt::Utf8(text).c_str(), place.Left, place.Top, place.Width, place.Height);
  }
}

}  // namespace

int main() {
  _setmode(_fileno(stdout), _O_BINARY);
  const HMODULE library = LoadLibraryW(L"s2k2ngt.dll");
  PrintTemplate(library, 1001);
  PrintTemplate(library, 1000);
  FreeLibrary(library);
  return 0;
}
