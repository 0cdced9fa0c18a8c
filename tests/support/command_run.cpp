#include "support/command_run.h"

#include <array>
#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Pipe {
  Pipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
      throw std::runtime_error("cannot make a pipe");
    }
    ReadEnd = ends[0];
    WriteEnd = ends[1];
  }
  int ReadEnd;
  int WriteEnd;
};

[[noreturn]] void BecomeCommand(const CommandCall& call, int in, int out, int err) {
  // The tests may run in the background, where some signals are ignored, and the command with them.
  for (const int signal : {SIGINT, SIGQUIT, SIGHUP, SIGTERM}) {
    std::signal(signal, SIG_DFL);
  }
  dup2(in, STDIN_FILENO);
  dup2(out, STDOUT_FILENO);
  dup2(err, STDERR_FILENO);
  std::vector<char*> words;
  for (const std::string& word : call.Words) {
    words.push_back(const_cast<char*>(word.c_str()));
  }
  words.push_back(nullptr);
  if (chdir(call.Folder.c_str()) == 0) {
    execv(words[0], words.data());
  }
  _exit(127);
}

/// Reads both streams until they end.
void Collect(int out, int err, CommandRun& run) {
  std::array<pollfd, 2> streams = {{{out, POLLIN, 0}, {err, POLLIN, 0}}};
  const std::array<std::string*, 2> texts = {&run.Out, &run.Err};
  int open = 2;
  while (open > 0 && poll(streams.data(), streams.size(), -1) > 0) {
    for (std::size_t index = 0; index < streams.size(); ++index) {
      if (streams[index].revents == 0) {
        continue;
      }
      std::array<char, 4096> bytes{};
      const ssize_t count = read(streams[index].fd, bytes.data(), bytes.size());
      if (count > 0) {
        texts[index]->append(bytes.data(), static_cast<std::size_t>(count));
      } else {
        close(streams[index].fd);
        streams[index].fd = -1;
        --open;
      }
    }
  }
}

}  // namespace

CommandRun RunCommand(const CommandCall& call) {
  const Pipe in;
  const Pipe out;
  int terminal = -1;
  int errReadEnd = -1;
  int errWriteEnd = -1;
  if (call.OnTerminal) {
    if (openpty(&terminal, &errWriteEnd, nullptr, nullptr, nullptr) != 0) {
      throw std::runtime_error("cannot open a terminal");
    }
    errReadEnd = terminal;
  } else {
    const Pipe err;
    errReadEnd = err.ReadEnd;
    errWriteEnd = err.WriteEnd;
  }
  const pid_t process = fork();
  if (process == 0) {
    BecomeCommand(call, call.OnTerminal ? errWriteEnd : in.ReadEnd, out.WriteEnd, errWriteEnd);
  }
  close(in.ReadEnd);
  close(out.WriteEnd);
  close(errWriteEnd);
  const int input = call.OnTerminal ? terminal : in.WriteEnd;
  if (write(input, call.Input.data(), call.Input.size()) < 0) {
    throw std::runtime_error("the command does not read its input");
  }
  close(in.WriteEnd);
  if (call.WhileRunning) {
    call.WhileRunning(process);
  }
  CommandRun run;
  Collect(out.ReadEnd, errReadEnd, run);
  int status = 0;
  waitpid(process, &status, 0);
  run.Status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return run;
}
