#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct LostTable {
  const char* Title;
  const char* Message;
};

const std::vector<LostTable> kLostTables = {
    {"FUNCTION - RESPONSE SPECTRUM - BOCA96", "IDS_S2KV8_RESP_BOCA96_Not_Convert"},
    {"FUNCTION - RESPONSE SPECTRUM - FROM FILE", "IDS_S2KV8_RESP_FILE_Not_Convert"},
    {"FUNCTION - RESPONSE SPECTRUM - NEHRP97", "IDS_S2KV8_RESP_NHERP97_Not_Convert"},
    {"FUNCTION - RESPONSE SPECTRUM - NZS4203", "IDS_S2KV8_RESP_NZS4203_Not_Convert"}};

std::string TableOf(const char* title, const char* rows) {
  return "TABLE:  \"" + std::string(title) + "\"\n" + rows + "\n";
}

TEST(SpectrumFunctions, TableThatIsNotConvertedShowsItsMessageOnce) {
  for (const auto& [title, message] : kLostTables) {
    SCOPED_TRACE(title);
    const ConversionRun run = Convert(TableOf(title,
                                              "   Name=SPEC1   Period=0   Accel=0.4\n"
                                              "   Name=SPEC1   Period=1   Accel=0.2\n"
                                              "   Name=SPEC2   Period=0   Accel=0.3\n"));
    EXPECT_EQ(run.Result, 0);
    EXPECT_THAT(run.Messages, ElementsAre(message));
  }
}

TEST(SpectrumFunctions, TableInTwoBlocksShowsItsMessageOnce) {
  for (const auto& [title, message] : kLostTables) {
    SCOPED_TRACE(title);
    const std::string block = TableOf(title, "   Name=SPEC1   Period=0   Accel=0.4\n");
    EXPECT_THAT(Convert(block + block).Messages, ElementsAre(message));
  }
}

TEST(SpectrumFunctions, TableWithoutRowsShowsNoMessage) {
  for (const auto& [title, message] : kLostTables) {
    SCOPED_TRACE(title);
    EXPECT_THAT(Convert(TableOf(title, "")).Messages, IsEmpty());
  }
}

TEST(SpectrumFunctions, MessagesComeInTheOrderOfTheCodesAndNotOfTheFile) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - NZS4203"
   Name=WELLINGTON   Period=0   Accel=0.4   ScaleFactor=1   SoilCat=B

TABLE:  "FUNCTION - RESPONSE SPECTRUM - FROM FILE"
   Name=MEASURED   Period=0   Accel=0.4   HeaderLines=0   FileName=measured.txt

TABLE:  "FUNCTION - RESPONSE SPECTRUM - NEHRP97"
   Name=WEST   Period=0   Accel=0.4   SDS=1   SD1=0.4

TABLE:  "FUNCTION - RESPONSE SPECTRUM - BOCA96"
   Name=EAST   Period=0   Accel=0.4   Aa=0.4   Av=0.4   R=1   S=1.5
)");
  EXPECT_THAT(
      run.Messages,
      ElementsAre("IDS_S2KV8_RESP_BOCA96_Not_Convert", "IDS_S2KV8_RESP_FILE_Not_Convert",
                  "IDS_S2KV8_RESP_NHERP97_Not_Convert", "IDS_S2KV8_RESP_NZS4203_Not_Convert"));
}

TEST(SpectrumFunctions, CodesThatTheTargetHasShowNoMessage) {
  for (const char* title :
       {"FUNCTION - RESPONSE SPECTRUM - EUROCODE8", "FUNCTION - RESPONSE SPECTRUM - IBC2000",
        "FUNCTION - RESPONSE SPECTRUM - NBCC95", "FUNCTION - RESPONSE SPECTRUM - UBC94",
        "FUNCTION - RESPONSE SPECTRUM - UBC97", "FUNCTION - RESPONSE SPECTRUM - USER"}) {
    SCOPED_TRACE(title);
    EXPECT_THAT(Convert(TableOf(title, "   Name=SPEC1   Period=0   Accel=0.4\n")).Messages,
                IsEmpty());
  }
}

TEST(SpectrumFunctions, TimeHistoryFromAFileIsNoSpectrumFromAFile) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - TIME HISTORY - FROM FILE"
   Name=ELCENTRO   Time=0   Value=0.01   FileName=elcentro.txt
)");
  EXPECT_THAT(run.Messages, Not(Contains("IDS_S2KV8_RESP_FILE_Not_Convert")));
}

TEST(SpectrumFunctions, MessagesComeBehindThoseOfTheAreasAndBeforeThoseOfTheOutput) {
  const ConversionRun run = Convert(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - BOCA96"
   Name=EAST   Period=0   Accel=0.4

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2

TABLE:  "AREA LOADS - GRAVITY"
   Area=1   LoadCase=DEAD   MultiplierZ=-1

TABLE:  "AREA STIFFNESS MODIFIERS"
   Area=1   f11=0.5
)");
  EXPECT_THAT(run.Messages,
              ElementsAre("IDS_S2KV8_AREA_Stif_Not_Convert", "IDS_S2KV8_NOCONVERT_AREA_GRAV",
                          "IDS_S2KV8_RESP_BOCA96_Not_Convert", "IDS_S2KV8_FRAM_LclAx_Not_Convert"));
}

/// Keys of the messages of a run that is stopped behind a stage of the conversion.
std::vector<std::string> MessagesOfRunStoppedBehindStage(int stage) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  WriteFile(path, FileWith(R"(
TABLE:  "FUNCTION - RESPONSE SPECTRUM - BOCA96"
   Name=EAST   Period=0   Accel=0.4
)"));
  ScriptedPlatform platform;
  // The first step is that of the row.
  platform.StopAtStep = 1 + stage;
  s2k2ngt::CConverter converter(platform);
  EXPECT_EQ(converter.Run(path.c_str()), 1);
  std::vector<std::string> keys;
  for (const ScriptedPlatform::Message& message : platform.Messages) {
    keys.push_back(message.Key);
  }
  return keys;
}

TEST(SpectrumFunctions, MessagesBelongToTheFifteenthStage) {
  EXPECT_THAT(MessagesOfRunStoppedBehindStage(14),
              ElementsAre("IDS_S2KV8_Export_must_be_executed"));
  EXPECT_THAT(
      MessagesOfRunStoppedBehindStage(15),
      ElementsAre("IDS_S2KV8_Export_must_be_executed", "IDS_S2KV8_RESP_BOCA96_Not_Convert"));
}

}  // namespace
