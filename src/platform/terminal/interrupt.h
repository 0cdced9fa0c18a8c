#pragma once

#include <csignal>

namespace s2k2ngt {

/// Makes a signal, that of Ctrl-C if no other is named, a wish to stop, for as long as the object
/// lives; then the handler that was there before is back. A signal that is ignored stays so, and
/// one that comes a second time does what it does without us.
class InterruptGuard {
 public:
  explicit InterruptGuard(int signal = SIGINT);
  ~InterruptGuard();
  InterruptGuard(const InterruptGuard&) = delete;
  InterruptGuard& operator=(const InterruptGuard&) = delete;

 private:
  using Handler = void (*)(int);
  int m_Signal;
  Handler m_Before;
};

/// True once the signal of a guard has come.
bool WasInterrupted();

/// Forgets an earlier signal.
void ForgetInterrupt();

}  // namespace s2k2ngt
