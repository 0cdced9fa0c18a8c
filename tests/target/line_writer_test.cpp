#include "target/line_writer.h"

#include "support/temporary_folder.h"

#include <s2k2ngt/exceptions.h>

#include <cerrno>
#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

/// What the lines of a writer leave in the file.
template <class WriteLines>
std::string Written(WriteLines writeLines) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("lines.ngt");
  OutputFile file(path);
  LineWriter out(file);
  writeLines(out);
  out.Flush();
  file.Close();
  return ReadFile(path);
}

TEST(LineWriter, PadsToTheWidthAndAddsNothing) {
  EXPECT_EQ(Written([](LineWriter& out) {
              out.WriteLine("\t%d, %5d, %5g, %5s, %10s|%s|%g", 1, 22, 3.5, "AB", Text("CDE"),
                            std::string("F"), -0.0);
            }),
            "\t1,    22,   3.5,    AB,        CDE|F|-0");
}

TEST(LineWriter, WiderValuesAreNotCut) {
  EXPECT_EQ(Written([](LineWriter& out) {
              out.WriteLine("%5d,%5g,%5s\n", std::numeric_limits<std::int32_t>::min(), 1.23456e-300,
                            "ABCDEFG");
            }),
            "-2147483648,1.23456e-300,ABCDEFG\n");
}

TEST(LineWriter, PadsInfinitiesAndNotANumber) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(
      Written([&](LineWriter& out) { out.WriteLine("%5g,%5g,%5g", infinity, -infinity, nan); }),
      "  inf, -inf,  nan");
}

TEST(LineWriter, PercentSignsOfValuesAreOrdinary) {
  EXPECT_EQ(Written([](LineWriter& out) { out.WriteLine(";Frame=%s\n", "100%s%n"); }),
            ";Frame=100%s%n\n");
}

TEST(LineWriter, TextsLongerThanTheBufferGoThrough) {
  const std::string small(700'000, 'a');
  const std::string large(3'000'000, 'b');
  EXPECT_EQ(Written([&](LineWriter& out) {
              out.WriteLine("%s\n", small);
              out.WriteLine("%s\n", large);
              out.WriteLine("%s\n", small);
            }),
            small + "\n" + large + "\n" + small + "\n");
}

TEST(OutputFile, ThatCannotBeCreatedSaysWhichAndWhy) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("missing/model.ngt");
  try {
    const OutputFile file(path);
    FAIL() << "created";
  } catch (const FileException& exception) {
    EXPECT_EQ(exception.FileName(), path);
    EXPECT_EQ(exception.SystemError(), ENOENT);
    EXPECT_EQ(std::string(exception.what()),
              "Cannot create output file " + path + ": No such file or directory");
  }
}

TEST(OutputFile, FullDiskIsAFileException) {
  OutputFile file("/dev/full");
  LineWriter out(file);
  out.WriteLine("%s\n", "*ENDDATA");
  EXPECT_THROW(out.Flush(), FileException);
}

}  // namespace
}  // namespace s2k2ngt
