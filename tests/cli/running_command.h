#pragma once

#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <sys/types.h>

// What tests see of a command, or of one of its processes, while it runs.

/// Throws when it does not come true.
inline void WaitFor(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) {
      throw std::runtime_error("what the test waits for does not come");
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

inline std::vector<pid_t> ChildrenOf(pid_t process) {
  const std::string id = std::to_string(process);
  std::ifstream list("/proc/" + id + "/task/" + id + "/children");
  std::vector<pid_t> children;
  for (pid_t child = 0; list >> child;) {
    children.push_back(child);
  }
  return children;
}

/// A line of what the system tells of a process; empty when it has ended.
inline std::string StatusLine(pid_t process, const std::string& name) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name)) {
      return line.substr(line.find('\t') + 1);
    }
  }
  return {};
}

inline bool HasEnded(pid_t process) {
  const std::string state = StatusLine(process, "State:");
  return state.empty() || state.front() == 'Z';
}

/// True while the process has a handler for the signal. The command's go when they have run.
inline bool Catches(pid_t process, int signal) {
  const std::string caught = StatusLine(process, "SigCgt:");
  const unsigned long long bit = 1ULL << static_cast<unsigned>(signal - 1);
  return !caught.empty() && (std::stoull(caught, nullptr, 16) & bit) != 0;
}

/// Sends a signal, and waits until the process has taken note of it.
inline void SignalAndWait(pid_t process, int signal) {
  WaitFor([&] { return Catches(process, signal); });
  kill(process, signal);
  WaitFor([&] { return !Catches(process, signal); });
}
