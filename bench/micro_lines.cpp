// Formatting of output lines, into a buffer that goes to the system whenever it is full.
#include "frames/elements.h"
#include "joints/nodes.h"
#include "micro.h"
#include "support/temporary_folder.h"
#include "target/line_writer.h"
#include "target/output_file.h"

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

namespace s2k2ngt::micro {
namespace {

constexpr std::int32_t kLines = 10'000;

/// What LineWriter does, by printf.
class PrintfWriter {
 public:
  explicit PrintfWriter(OutputFile& file) : m_File(file), m_Buffer(std::size_t{1} << 20U) {}

  template <class... Arguments>
  void WriteLine(const char* format, Arguments... arguments) {
    constexpr std::size_t kLongestLine = 1'000;
    if (m_Buffer.size() - m_Used < kLongestLine) {
      Flush();
    }
    m_Used += static_cast<std::size_t>(
        std::snprintf(m_Buffer.data() + m_Used, m_Buffer.size() - m_Used, format, arguments...));
  }

  void Flush() {
    m_File.Write({m_Buffer.data(), m_Used});
    m_Used = 0;
  }

 private:
  OutputFile& m_File;
  std::vector<char> m_Buffer;
  std::size_t m_Used = 0;
};

struct NodeLine {
  std::int32_t Number;
  double X, Y, Z;

  static NodeLine Of(std::int32_t i) {
    return {i, i % 997 * 1.25, i % 89 * 37 / 100.0, i % 13 * 3.5};
  }
  void Write(auto& out) const { out.WriteLine("\t%d, %5g, %5g, %5g\n", Number, X, Y, Z); }
};

struct FrameLine {
  std::int32_t Number, Material, Property, NodeI, NodeJ;
  double Angle;

  static FrameLine Of(std::int32_t i) {
    return {i, i % 20 + 1, i % 200 + 1, i, i + 1, i % 4 * 90.0};
  }
  void Write(auto& out) const {
    out.WriteLine("\t%d, %5s, %5d, %5d, %5d, %5d, %5g\n", Number, "BEAM", Material, Property, NodeI,
                  NodeJ, Angle);
  }
};

template <class Line>
using SharedLines = std::shared_ptr<const std::vector<Line>>;

template <class Writer, class Line>
std::string WrittenBy(const SharedLines<Line>& lines) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("lines");
  OutputFile file(path);
  Writer out(file);
  for (const Line& line : *lines) {
    line.Write(out);
  }
  out.Flush();
  file.Close();
  return ReadFile(path);
}

/// A way that gives no result, but for its lines.
template <class Writer, class Line>
auto WriteAll(const char* name, const SharedLines<Line>& lines) {
  const auto file = std::make_shared<OutputFile>("/dev/null");
  const auto out = std::make_shared<Writer>(*file);
  return Way{name, [file, out, lines](auto /*use*/) {
               for (const Line& line : *lines) {
                 line.Write(*out);
               }
             }};
}

template <class Line>
void AddLine(const std::string& subject) {
  std::vector<Line> made;
  for (std::int32_t i = 1; i <= kLines; ++i) {
    made.push_back(Line::Of(i));
  }
  const SharedLines<Line> lines = std::make_shared<const std::vector<Line>>(std::move(made));
  const std::string written = WrittenBy<LineWriter>(lines);
  if (written != WrittenBy<PrintfWriter>(lines)) {
    throw std::runtime_error(subject + ": the writers do not write the same");
  }
  const Load load = {kLines, written.size()};
  Measure(subject, load, WriteAll<LineWriter>("LineWriter", lines));
  Measure(subject, load, WriteAll<PrintfWriter>("snprintf", lines));
}

}  // namespace

void AddLines() {
  AddLine<NodeLine>("line/node");
  AddLine<FrameLine>("line/frame");
}

}  // namespace s2k2ngt::micro
