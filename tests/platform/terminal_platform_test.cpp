#include "platform/terminal/terminal_platform.h"

#include <csignal>

#include <gtest/gtest.h>

namespace s2k2ngt {
namespace {

/// The handler of Ctrl-C that is there now.
auto CurrentHandler() {
  const auto handler = std::signal(SIGINT, SIG_IGN);
  std::signal(SIGINT, handler);
  return handler;
}

void HandleAsAHostDoes(int /*signal*/) {}

/// The handler of a host is there, whatever the tests were started with.
class TerminalPlatformTest : public testing::Test {
 protected:
  TerminalPlatformTest() : m_Before(std::signal(SIGINT, HandleAsAHostDoes)) { ForgetInterrupt(); }
  ~TerminalPlatformTest() override { std::signal(SIGINT, m_Before); }

 private:
  void (*m_Before)(int);
};

TEST_F(TerminalPlatformTest, InterruptIsAWishToStopWhileProgressIsShown) {
  TerminalPlatform platform;
  platform.OpenProgress();
  EXPECT_FALSE(platform.AskStop());
  std::raise(SIGINT);
  EXPECT_TRUE(platform.AskStop());
  platform.CloseProgress();
}

TEST_F(TerminalPlatformTest, HandlerOfTheHostIsBackWhenTheProgressIsClosed) {
  TerminalPlatform platform;
  platform.OpenProgress();
  EXPECT_NE(CurrentHandler(), HandleAsAHostDoes);
  platform.CloseProgress();
  EXPECT_EQ(CurrentHandler(), HandleAsAHostDoes);
}

TEST_F(TerminalPlatformTest, InterruptsThatAreIgnoredStaySo) {
  std::signal(SIGINT, SIG_IGN);
  TerminalPlatform platform;
  platform.OpenProgress();
  EXPECT_EQ(CurrentHandler(), SIG_IGN);
  std::raise(SIGINT);
  EXPECT_FALSE(platform.AskStop());
  platform.CloseProgress();
}

TEST_F(TerminalPlatformTest, SecondInterruptIsNotCaught) {
  TerminalPlatform platform;
  platform.OpenProgress();
  std::raise(SIGINT);
  EXPECT_EQ(CurrentHandler(), SIG_DFL);
  platform.CloseProgress();
}

TEST(Printable, KeepsTextsAndReplacesControlCharacters) {
  EXPECT_EQ(Printable("Tr\xC3\xA4ger 5"), "Tr\xC3\xA4ger 5");
  EXPECT_EQ(Printable("a\x1b[2J\rb\x7F\n"), "a?[2J?b??");
}

}  // namespace
}  // namespace s2k2ngt
