#pragma once

namespace s2k2ngt {

/// Makes Ctrl-C a wish to stop, for as long as the object lives; then the handler that was there
/// before is back. A second Ctrl-C does what it did before.
class InterruptGuard {
 public:
  InterruptGuard();
  ~InterruptGuard();
  InterruptGuard(const InterruptGuard&) = delete;
  InterruptGuard& operator=(const InterruptGuard&) = delete;

 private:
  using Handler = void (*)(int);
  Handler m_Before;
};

/// True once the user has pressed Ctrl-C while a guard was there.
bool WasInterrupted();

/// Forgets an earlier Ctrl-C.
void ForgetInterrupt();

}  // namespace s2k2ngt
