#include "conversion_of_file.h"
#include "platform/terminal/interrupt.h"
#include "workers.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace {

// What a worker is told by: that the user wants to stop, and that nobody waits for it any more.
constexpr int kStop = SIGUSR1;
constexpr int kAbandoned = SIGUSR2;

/// What became of a file, with all that is to be printed of it.
struct Report {
  FileResult Result;
  std::string Out;
  std::string Err;
};

// A worker writes what the call needs of its file before what it prints, each piece ended by a NUL:
// neither JSON nor drawings hold one.
constexpr char kEndOfPiece = '\0';

void WritePieces(const Outcome& outcome, std::ostream& out) {
  out << (outcome.Facts.HasLoss ? "loss" : "") << kEndOfPiece << outcome.Part.Json << kEndOfPiece
      << outcome.Part.Summary << kEndOfPiece << outcome.Part.Drawings << kEndOfPiece;
}

std::string TakePiece(std::string_view& text) {
  const std::size_t end = text.find(kEndOfPiece);
  std::string piece(text.substr(0, end));
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return piece;
}

/// What a worker writes to one of its streams.
struct Captured {
  int ReadEnd = -1;
  std::string Text;

  /// Reads what there is, and closes at the end.
  void Read() {
    std::array<char, 65536> bytes{};
    const ssize_t count = read(ReadEnd, bytes.data(), bytes.size());
    if (count > 0) {
      Text.append(bytes.data(), static_cast<std::size_t>(count));
    } else if (count == 0 || errno != EINTR) {
      close(ReadEnd);
      ReadEnd = -1;
    }
  }
};

struct Worker {
  std::size_t File;
  pid_t Process;
  Captured Out;
  Captured Err;
};

/// A pipe must not get the number of a standard stream that the caller has closed.
void FillStandardStreams() {
  int file = 0;
  while (file >= 0 && file <= STDERR_FILENO) {
    file = open("/dev/null", O_RDONLY | O_CLOEXEC);
  }
  close(file);
}

class Workers {
 public:
  Workers(const std::vector<FileToConvert>& files, const CommandOptions& options)
      : m_Files(files), m_Options(options), m_Reports(files.size()) {}

  std::vector<FileResult> Run();

 private:
  bool MayBegin() const;
  bool Begin();
  void Await();
  void End(const Worker& worker);
  [[noreturn]] void BeWorker(const FileToConvert& file, pid_t parent, int out, int err);
  Report ReportOf(Outcome outcome) const;

  const std::vector<FileToConvert>& m_Files;
  const CommandOptions& m_Options;
  std::size_t m_Begun = 0;
  std::vector<Worker> m_Running;
  std::vector<std::optional<Report>> m_Reports;
  bool m_IsStopping = false;
};

std::vector<FileResult> Workers::Run() {
  std::vector<FileResult> results;
  while (results.size() < m_Files.size()) {
    if (std::optional<Report>& report = m_Reports[results.size()]) {
      std::cerr << report->Err;
      std::cout << report->Out << std::flush;
      results.push_back(std::move(report->Result));
      report = Report();  // its texts are no longer of use
    } else if (!MayBegin() || !Begin()) {
      Await();
    }
  }
  return results;
}

bool Workers::MayBegin() const {
  if (m_Begun == m_Files.size() || m_Running.size() >= m_Options.Jobs) {
    return false;
  }
  return m_Running.empty() || !m_Files[m_Begun].IsRepeated;
}

/// Begins with the next file. False when the system has no room for one more worker, as long as
/// others run.
bool Workers::Begin() {
  const FileToConvert& file = m_Files[m_Begun];
  std::optional<Report>& report = m_Reports[m_Begun];
  if (file.Refusal || s2k2ngt::WasInterrupted()) {
    std::ostringstream noMessages;
    report = ReportOf(Convert(file, m_Options, noMessages));
    ++m_Begun;
    return true;
  }
  std::array<int, 2> out = {-1, -1};
  std::array<int, 2> err = {-1, -1};
  const pid_t parent = getpid();
  pid_t process = -1;
  if (pipe2(out.data(), O_CLOEXEC) == 0 && pipe2(err.data(), O_CLOEXEC) == 0) {
    process = fork();
  }
  if (process == 0) {
    close(out[0]);
    close(err[0]);
    BeWorker(file, parent, out[1], err[1]);
  }
  const int systemError = errno;
  close(out[1]);
  close(err[1]);
  if (process > 0) {
    m_Running.push_back({m_Begun, process, {out[0], {}}, {err[0], {}}});
  } else {
    close(out[0]);
    close(err[0]);
    if (!m_Running.empty()) {
      return false;
    }
    report = ReportOf(FailureOf(
        file, "cannot begin a process: " + std::string(std::strerror(systemError)), m_Options));
  }
  ++m_Begun;
  return true;
}

void Workers::BeWorker(const FileToConvert& file, pid_t parent, int out, int err) {
  // The process that we work for is asked to end, and asks us.
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
    std::signal(signal, SIG_IGN);
  }
#ifdef __linux__
  prctl(PR_SET_PDEATHSIG, kAbandoned);
#endif
  const auto isAbandoned = [&] { return getppid() != parent; };
  if (isAbandoned()) {
    static_cast<void>(raise(kAbandoned));
  }
  // Without these its streams would not end with the process that they belong to.
  for (const Worker& other : m_Running) {
    close(other.Out.ReadEnd);
    close(other.Err.ReadEnd);
  }
  const int sharedErr = dup(STDERR_FILENO);
  const bool isAlone = m_Options.Jobs == 1;
  dup2(out, STDOUT_FILENO);
  close(out);
  if (!isAlone) {
    dup2(err, STDERR_FILENO);
    close(err);
  }
  try {
    const Outcome outcome = Convert(file, m_Options, std::cerr);
    if (isAbandoned()) {
      dup2(sharedErr, STDERR_FILENO);
      std::cerr.clear();
    }
    WritePieces(outcome, std::cout);
    Tell(outcome, m_Options, {.Out = std::cout, .Err = std::cerr});
    std::cout.flush();
    std::exit(outcome.Facts.Result == s2k2ngt::kFailed ? kOneFailed : outcome.Facts.Result);
  } catch (const std::exception&) {
    std::abort();  // of want of memory, and so told by the process that waits
  }
}

/// Reads what the running workers print, and takes note of those that have ended.
void Workers::Await() {
  constexpr int kMilliseconds = 100;  // a signal may come just before the system waits
  // The system takes no more entries than files may be open, so that closed ones must not be there.
  std::vector<Captured*> streams;
  std::vector<pollfd> polled;
  for (Worker& worker : m_Running) {
    for (Captured* const stream : {&worker.Out, &worker.Err}) {
      if (stream->ReadEnd != -1) {
        streams.push_back(stream);
        polled.push_back({stream->ReadEnd, POLLIN, 0});
      }
    }
  }
  if (poll(polled.data(), polled.size(), kMilliseconds) > 0) {
    for (std::size_t index = 0; index < polled.size(); ++index) {
      if (polled[index].revents != 0) {
        streams[index]->Read();
      }
    }
  }
  if (s2k2ngt::WasInterrupted() && !m_IsStopping) {
    m_IsStopping = true;
    for (const Worker& worker : m_Running) {
      kill(worker.Process, kStop);
    }
  }
  const auto ended = std::partition(m_Running.begin(), m_Running.end(), [](const Worker& worker) {
    return worker.Out.ReadEnd != -1 || worker.Err.ReadEnd != -1;
  });
  std::for_each(ended, m_Running.end(), [this](const Worker& worker) { End(worker); });
  m_Running.erase(ended, m_Running.end());
}

void Workers::End(const Worker& worker) {
  int status = 0;
  while (waitpid(worker.Process, &status, 0) < 0 && errno == EINTR) {
  }
  std::optional<Report>& report = m_Reports[worker.File];
  const bool hasTold = WIFEXITED(status) && WEXITSTATUS(status) <= kOneFailed;
  if (hasTold) {
    std::string_view out = worker.Out.Text;
    const int result = WEXITSTATUS(status);
    report.emplace();
    report->Result.Result = result == kOneFailed ? s2k2ngt::kFailed : result;
    report->Result.HasLoss = !TakePiece(out).empty();
    report->Result.Part.Json = TakePiece(out);
    report->Result.Part.Summary = TakePiece(out);
    report->Result.Part.Drawings = TakePiece(out);
    report->Out = out;
    report->Err = worker.Err.Text;
    return;
  }
  const FileToConvert& file = m_Files[worker.File];
  const std::string how = WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status))
                                              : "status " + std::to_string(WEXITSTATUS(status));
  const bool hasLeft = !m_Options.Check && IsUnfinished(file.Output);
  report = ReportOf(FailureOf(file, "the conversion was ended by " + how, m_Options,
                              hasLeft ? std::optional(file.Output) : std::nullopt));
  report->Err.insert(0, worker.Err.Text);
}

Report Workers::ReportOf(Outcome outcome) const {
  std::ostringstream out;
  std::ostringstream err;
  Tell(outcome, m_Options, {.Out = out, .Err = err});
  return {.Result = ResultOf(std::move(outcome)), .Out = out.str(), .Err = err.str()};
}

}  // namespace

std::vector<FileResult> ConvertInWorkers(const std::vector<FileToConvert>& files,
                                         const CommandOptions& options) {
  const s2k2ngt::InterruptGuard stop(kStop);
  const s2k2ngt::InterruptGuard abandoned(kAbandoned);
  FillStandardStreams();
  std::cout.flush();
  return Workers(files, options).Run();
}
