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

TEST(TerminalPlatform, InterruptIsAWishToStopWhileProgressIsShown) {
  ForgetInterrupt();
  TerminalPlatform platform;
  platform.OpenProgress();
  EXPECT_FALSE(platform.AskStop());
  std::raise(SIGINT);
  EXPECT_TRUE(platform.AskStop());
  platform.CloseProgress();
}

TEST(TerminalPlatform, HandlerOfTheHostIsBackWhenTheProgressIsClosed) {
  std::signal(SIGINT, SIG_IGN);
  TerminalPlatform platform;
  platform.OpenProgress();
  EXPECT_NE(CurrentHandler(), SIG_IGN);
  platform.CloseProgress();
  EXPECT_EQ(CurrentHandler(), SIG_IGN);
  std::signal(SIGINT, SIG_DFL);
}

TEST(TerminalPlatform, SecondInterruptIsNotCaught) {
  ForgetInterrupt();
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
