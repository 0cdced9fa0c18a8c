#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <string>

#include <gtest/gtest.h>

namespace {

/// What the driver tells of a failed run over the bytes.
std::string FailureOf(const std::string& bytes) {
  const ConversionRun run = ConvertBytes(bytes);
  EXPECT_EQ(run.Result, -1);
  return run.Failure.Describe("model.s2k");
}

TEST(FailureReasons, OfAFileOfTheOlderFormat) {
  EXPECT_EQ(FailureOf("SYSTEM\nLENGTH=M\n"),
            "model.s2k:1: reading: the file is of the format before V8");
}

TEST(FailureReasons, OfALineThatIsNoTable) {
  EXPECT_EQ(FailureOf("File model.s2k\n"
                      "TABLE:  \"JOINT COORDINATES\"\n"
                      "   Joint=1\n"
                      "\n"
                      "\n"
                      "Something of another program\n"
                      "END TABLE DATA\n"),
            "model.s2k:6: reading: the line is neither a table's title nor the end of the file");
}

TEST(FailureReasons, OfAFileWithoutItsEndInsideATable) {
  EXPECT_EQ(FailureOf("TABLE:  \"JOINT COORDINATES\"\n   Joint=1\n   Joint=2\n"),
            "model.s2k:3: reading table \"JOINT COORDINATES\": the file ends without a line that "
            "begins with END");
}

TEST(FailureReasons, OfAFileWhoseLastLineIsForeign) {
  EXPECT_EQ(FailureOf("abcdefgh"),
            "model.s2k:1: reading: the file ends without a line that begins with END");
}

TEST(FailureReasons, OfATableWithoutARowNamesTheLineOfItsTitle) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  WriteFile(path, "File model.s2k\n\n\nTABLE:  \"PROGRAM CONTROL\"\n\nEND TABLE DATA\n");
  ScriptedPlatform platform;
  s2k2ngt::CConverter converter(platform);
  EXPECT_THROW(converter.Run(path.c_str()), s2k2ngt::InvalidArgumentException);
  EXPECT_EQ(converter.Failure().Describe("model.s2k"),
            "model.s2k:4: reading table \"PROGRAM CONTROL\": the table has no row");
}

}  // namespace
