#include "platform/terminal/interrupt.h"

#include <csignal>

namespace s2k2ngt {
namespace {

volatile std::sig_atomic_t g_interrupted = 0;

void NoteInterrupt(int /*signal*/) {
  g_interrupted = 1;
  std::signal(SIGINT, SIG_DFL);
}

}  // namespace

InterruptGuard::InterruptGuard() : m_Before(std::signal(SIGINT, NoteInterrupt)) {}

InterruptGuard::~InterruptGuard() { std::signal(SIGINT, m_Before); }

bool WasInterrupted() { return g_interrupted != 0; }

void ForgetInterrupt() { g_interrupted = 0; }

}  // namespace s2k2ngt
