#include "interrupt.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t g_interrupted = 0;

void NoteInterrupt(int /*signal*/) {
  g_interrupted = 1;
  std::signal(SIGINT, SIG_DFL);
}

}  // namespace

void CatchInterrupts() { std::signal(SIGINT, NoteInterrupt); }

bool WasInterrupted() { return g_interrupted != 0; }
