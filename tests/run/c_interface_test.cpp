#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/s2k2ngt.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A host that notes what its call-backs are told.
struct Host {
  std::vector<std::string> Keys;
  std::vector<std::string> Phases;
  int LastPosition = 0;
  int LastRange = 0;
  int StepsUntilStop = 1'000'000;
  std::vector<std::string> Failures;
};

Host& HostOf(void* context) { return *static_cast<Host*>(context); }

void OnMessage(void* context, const char* key, const char* /*text*/) {
  HostOf(context).Keys.emplace_back(key);
}

void OnProgress(void* context, const char* phase, int position, int range) {
  Host& host = HostOf(context);
  if (host.Phases.empty() || host.Phases.back() != phase) {
    host.Phases.emplace_back(phase);
  }
  host.LastPosition = position;
  host.LastRange = range;
}

int OnStop(void* context) { return --HostOf(context).StepsUntilStop < 0 ? 1 : 0; }

void OnFailure(void* context, const char* reason) { HostOf(context).Failures.emplace_back(reason); }

class CInterface : public testing::Test {
 protected:
  CInterface() {
    m_CallBacks.size = sizeof m_CallBacks;
    m_CallBacks.context = &m_Host;
    m_CallBacks.message = OnMessage;
    m_CallBacks.progress = OnProgress;
    m_CallBacks.stop = OnStop;
    m_CallBacks.failure = OnFailure;
    WriteFile(m_Input, FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=A\n"));
  }

  TemporaryFolder m_Folder;
  std::string m_Input = m_Folder.FileName("model.s2k");
  Host m_Host;
  s2k2ngt_host m_CallBacks = {};
  std::array<char, 4096> m_Output = {"as it was"};
};

TEST_F(CInterface, ConvertsAndTellsPathMessagesAndProgress) {
  ASSERT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, m_Output.data(), m_Output.size()),
            S2K2NGT_CONVERTED);
  EXPECT_EQ(std::string(m_Output.data()), m_Folder.FileName("model.ngt"));
  EXPECT_THAT(m_Host.Keys,
              ElementsAre("IDS_S2KV8_Export_must_be_executed", "IDS_S2KV8_NODE_Renumbering"));
  EXPECT_EQ(m_Host.Phases.size(), 3U);
  EXPECT_EQ(m_Host.LastPosition, 37);
  EXPECT_EQ(m_Host.LastRange, 37);
  EXPECT_TRUE(m_Host.Failures.empty());
}

TEST_F(CInterface, WorksWithoutCallBacksAndWithoutABuffer) {
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), nullptr, nullptr, 0), S2K2NGT_CONVERTED);
  s2k2ngt_host empty = {};
  empty.size = sizeof empty;
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &empty, nullptr, 0), S2K2NGT_CONVERTED);
}

TEST_F(CInterface, StopGivesOneAndLeavesTheBuffer) {
  m_Host.StepsUntilStop = 3;
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, m_Output.data(), m_Output.size()),
            S2K2NGT_STOPPED);
  EXPECT_STREQ(m_Output.data(), "as it was");
}

TEST_F(CInterface, FailureTellsItsReasonOnce) {
  WriteFile(m_Input, FileWith("TABLE:  \"JOINT COORDINATES\"\n   Joint=1   CoordType=Polar\n"));
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, m_Output.data(), m_Output.size()),
            S2K2NGT_FAILED);
  EXPECT_STREQ(m_Output.data(), "as it was");
  EXPECT_THAT(m_Host.Failures,
              ElementsAre(m_Input + ":4: reading table \"JOINT COORDINATES\": joint 1 has "
                                    "CoordType=Polar, only Cartesian is read"));
}

TEST_F(CInterface, FailureThatNobodyIsToldIsStillTheResult) {
  const std::string missing = m_Folder.FileName("missing.s2k");
  EXPECT_EQ(s2k2ngt_convert(missing.c_str(), nullptr, nullptr, 0), S2K2NGT_FAILED);
  m_CallBacks.failure = nullptr;
  EXPECT_EQ(s2k2ngt_convert(missing.c_str(), &m_CallBacks, nullptr, 0), S2K2NGT_FAILED);
}

TEST_F(CInterface, ExceptionsBecomeFailuresWithTheirReason) {
  std::filesystem::create_directory(m_Folder.FileName("model.ngt"));
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, nullptr, 0), S2K2NGT_FAILED);
  ASSERT_EQ(m_Host.Failures.size(), 1U);
  EXPECT_THAT(m_Host.Failures[0], HasSubstr("Cannot create output file"));
}

TEST_F(CInterface, ExceptionOfACallBackIsNotThrownAcross) {
  m_CallBacks.message = [](void*, const char*, const char*) { throw std::runtime_error("host"); };
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, nullptr, 0), S2K2NGT_FAILED);
  m_CallBacks.message = [](void*, const char*, const char*) { throw 7; };
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, nullptr, 0), S2K2NGT_FAILED);
  m_CallBacks.failure = [](void*, const char*) { throw 7; };
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, nullptr, 0), S2K2NGT_FAILED);
}

TEST_F(CInterface, BufferThatIsTooSmallFailsBeforeAnythingIsDone) {
  const std::string output = m_Folder.FileName("model.ngt");
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, m_Output.data(), output.size()),
            S2K2NGT_FAILED);
  EXPECT_FALSE(std::filesystem::exists(output));
  EXPECT_TRUE(m_Host.Keys.empty());
  EXPECT_EQ(m_Host.Failures.size(), 1U);
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, m_Output.data(), output.size() + 1),
            S2K2NGT_CONVERTED);
}

TEST_F(CInterface, MissingPathOrBufferFails) {
  EXPECT_EQ(s2k2ngt_convert(nullptr, &m_CallBacks, nullptr, 0), S2K2NGT_FAILED);
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, nullptr, 10), S2K2NGT_FAILED);
  EXPECT_EQ(m_Host.Failures.size(), 2U);
}

TEST_F(CInterface, CallBacksBeyondTheHostsOwnVersionAreNotCalled) {
  m_CallBacks.size = offsetof(s2k2ngt_host, stop);
  m_Host.StepsUntilStop = 0;
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &m_CallBacks, nullptr, 0), S2K2NGT_CONVERTED);
  EXPECT_FALSE(m_Host.Keys.empty());
}

TEST_F(CInterface, NamesItsVersionAndMessageKeys) {
  EXPECT_STREQ(s2k2ngt_version(), "0.1.0");
  EXPECT_EQ(s2k2ngt_message_count(), 59U);
  EXPECT_STREQ(s2k2ngt_message_key(0), "IDS_S2KV8_Export_must_be_executed");
  EXPECT_EQ(s2k2ngt_message_key(59), nullptr);
  EXPECT_STREQ(s2k2ngt_message_text(nullptr), "");
}

}  // namespace
