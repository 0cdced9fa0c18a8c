#include "command.h"
#include "console.h"
#include "reports.h"

#include <s2k2ngt/s2k2ngt.h>

#include <array>
#include <charconv>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <getopt.h>

namespace {

constexpr const char* kHelp =
    R"(Usage: s2k2ngt [options] FILE...

Converts SAP2000 V8 text files (.s2k) into the host application's command text
files (.ngt), one after the other. Each output is written beside its input,
under the same name; a file that is there is replaced.

Options:
  -r, --recursive  a FILE may be a folder: all .s2k files in it, at any depth
  -o, --output-dir DIR
                   write outputs into DIR, which is made if it is not there;
                   those of a folder keep their places below it
  -j, --jobs N     convert up to N files at once, each in a process of its own
  --check          convert without writing an output, and tell what would be
                   lost
  --report FILE    write what became of every row into FILE: a page for people
                   if it ends in .html, JSON for programs if in .json; may be
                   given more than once
  --fail-on-loss   end with status 3 if anything is lost
  --json           print what became of each file as one line of JSON
  --quiet          show no messages and no progress, only failures
  --no-progress    show no progress bar
  --list-messages  print the key and the text of every message, and exit
  --help           print this help, and exit
  --version        print the version, and exit

Results go to standard output, everything for people to standard error.
Exit status: 0 all files converted, 1 a run was stopped, 2 at least one file
failed, 3 something was lost and --fail-on-loss was given, 64 wrong usage.
)";

int WrongUsage(const std::string& reason) {
  std::cerr << "s2k2ngt: " << reason << "\nTry s2k2ngt --help.\n";
  return kWrongUsage;
}

std::optional<unsigned> WholeNumber(std::string_view text) {
  unsigned number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    return std::nullopt;
  }
  return number;
}

int Run(std::vector<std::string> words, const Console& console) {
  enum Option : int {
    Recursive = 'r',
    OutputDirectory = 'o',
    Jobs = 'j',
    Check = 1,
    Report,
    FailOnLoss,
    Json,
    Quiet,
    NoProgress,
    ListAllMessages,
    Help,
    Version
  };
  constexpr std::array<option, 13> kOptions = {
      {{"recursive", no_argument, nullptr, Recursive},
       {"output-dir", required_argument, nullptr, OutputDirectory},
       {"jobs", required_argument, nullptr, Jobs},
       {"check", no_argument, nullptr, Check},
       {"report", required_argument, nullptr, Report},
       {"fail-on-loss", no_argument, nullptr, FailOnLoss},
       {"json", no_argument, nullptr, Json},
       {"quiet", no_argument, nullptr, Quiet},
       {"no-progress", no_argument, nullptr, NoProgress},
       {"list-messages", no_argument, nullptr, ListAllMessages},
       {"help", no_argument, nullptr, Help},
       {"version", no_argument, nullptr, Version},
       {nullptr, 0, nullptr, 0}}};
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) {
    arguments.push_back(word.data());
  }
  const int count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  CommandOptions options;
  options.NoProgress = !console.CanDraw();
  for (;;) {
    const int option = getopt_long(count, arguments.data(), "ro:j:", kOptions.data(), nullptr);
    if (option == -1) {
      break;
    }
    switch (option) {
      case Recursive:
        options.Recursive = true;
        break;
      case OutputDirectory:
        options.OutputDirectory = optarg;
        if (options.OutputDirectory.empty()) {
          return WrongUsage("the output folder has no name");
        }
        break;
      case Jobs:
        if (const std::optional<unsigned> jobs = WholeNumber(optarg)) {
          options.Jobs = *jobs;
          break;
        }
        return WrongUsage("--jobs wants a number, not " + std::string(optarg));
      case Check:
        options.Check = true;
        break;
      case Report:
        if (!IsReportName(optarg)) {
          return WrongUsage("--report wants a file that ends in .html or .json, not " +
                            std::string(optarg));
        }
        options.Reports.emplace_back(optarg);
        break;
      case FailOnLoss:
        options.FailOnLoss = true;
        break;
      case Json:
        options.Json = true;
        break;
      case Quiet:
        options.Quiet = true;
        break;
      case NoProgress:
        options.NoProgress = true;
        break;
      case ListAllMessages:
        ListMessages();
        return kAllConverted;
      case Help:
        std::cout << kHelp;
        return kAllConverted;
      case Version:
        std::cout << "s2k2ngt " << s2k2ngt_version() << '\n';
        return kAllConverted;
      default:  // the library has said what is wrong
        std::cerr << "Try s2k2ngt --help.\n";
        return kWrongUsage;
    }
  }
  options.Files.assign(arguments.begin() + optind, arguments.begin() + count);
  if (options.Files.empty()) {
    return WrongUsage("there is no file to convert");
  }
  return ConvertFiles(options);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const Console console;
    const int status = Run(CommandLineWords(argc, argv), console);
    if (!std::cout.flush()) {
      std::cerr << "s2k2ngt: cannot write to standard output\n";
      return kOneFailed;
    }
    return status;
  } catch (const std::exception& exception) {
    std::cerr << "s2k2ngt: " << exception.what() << '\n';
    return kOneFailed;
  }
}
