#include "platform/terminal/interrupt.h"

namespace s2k2ngt {
namespace {

volatile std::sig_atomic_t g_interrupted = 0;

void NoteInterrupt(int signal) {
  g_interrupted = 1;
  std::signal(signal, SIG_DFL);
}

}  // namespace

InterruptGuard::InterruptGuard(int signal)
    : m_Signal(signal), m_Before(std::signal(signal, NoteInterrupt)) {
  if (m_Before == SIG_IGN) {
    std::signal(signal, SIG_IGN);
  }
}

InterruptGuard::~InterruptGuard() { std::signal(m_Signal, m_Before); }

bool WasInterrupted() { return g_interrupted != 0; }

void ForgetInterrupt() { g_interrupted = 0; }

}  // namespace s2k2ngt
