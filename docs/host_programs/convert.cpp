// Converts the file that it is given, by the C++ interface of s2k2ngt.
#include <s2k2ngt/converter.h>

#include <csignal>
#include <exception>
#include <iostream>
#include <string>

namespace {

// What a Stop button would set.
volatile std::sig_atomic_t g_stopWanted = 0;

void OnInterrupt(int /*signalNumber*/) { g_stopWanted = 1; }

/// What a run shows to the user: a window in a host with windows. All but ShowMessage may be left
/// out.
class HostPlatform : public s2k2ngt::Platform {
 public:
  /// Comes for each kind of data that was changed or lost.
  void ShowMessage(const std::string& key, const std::string& text) override {
    std::cout << key << ": " << text << '\n';
  }

  void SetStatus(const std::string& text) override { m_Phase = text; }
  void SetRange(int high) override { m_Range = high; }

  /// Comes for every row of the file, so only what has changed is shown.
  void SetPosition(int position) override {
    const int percent = position < m_Range ? static_cast<int>(100LL * position / m_Range) : 100;
    if (percent != m_Percent) {
      m_Percent = percent;
      std::cerr << m_Phase << ' ' << percent << " %\n";
    }
  }

  bool AskStop() override { return g_stopWanted != 0; }

 private:
  std::string m_Phase;
  int m_Range = 0;
  int m_Percent = -1;  // as last shown
};

/// The result of a run, also of one that ended by an exception: a file that cannot be written,
/// memory that ran out, or a table without what it must hold.
int ResultOfRun(s2k2ngt::CConverter& converter, const std::string& input) {
  try {
    return converter.Run(input.c_str());
  } catch (const std::exception&) {
    return s2k2ngt::kFailed;  // the driver knows why and where
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: " << argv[0] << " FILE.s2k\n";
    return 64;
  }
  const std::string input = argv[1];
  std::signal(SIGINT, OnInterrupt);

  HostPlatform platform;
  s2k2ngt::CConverter converter(platform);
  switch (ResultOfRun(converter, input)) {
    case s2k2ngt::kConverted:
      std::cout << s2k2ngt::CConverter::OutputPath(input) << '\n';
      return 0;
    case s2k2ngt::kStopped:
      std::cerr << "stopped\n";
      return 1;
    default:
      std::cerr << converter.Failure().Describe(input) << '\n';
      return 2;
  }
}
