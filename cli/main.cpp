#include "command.h"
#include "console.h"

#include <s2k2ngt/s2k2ngt.h>

#include <array>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <getopt.h>

namespace {

constexpr const char* kHelp =
    R"(Usage: s2k2ngt [options] FILE...

Converts SAP2000 V8 text files (.s2k) into the host application's command text
files (.ngt), one after the other. Each output is written beside its input,
under the same name; a file that is there is replaced.

Options:
  --json           print what became of each file as one line of JSON
  --quiet          show no messages and no progress, only failures
  --no-progress    show no progress bar
  --list-messages  print the key and the text of every message, and exit
  --help           print this help, and exit
  --version        print the version, and exit

Results go to standard output, everything for people to standard error.
Exit status: 0 all files converted, 1 a run was stopped, 2 at least one file
failed, 64 wrong usage.
)";

int Run(std::vector<std::string> words, const Console& console) {
  enum Option : int { Json = 1, Quiet, NoProgress, ListAllMessages, Help, Version };
  constexpr std::array<option, 7> kOptions = {
      {{"json", no_argument, nullptr, Json},
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
    const int option = getopt_long(count, arguments.data(), "", kOptions.data(), nullptr);
    if (option == -1) {
      break;
    }
    switch (option) {
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
    std::cerr << "s2k2ngt: there is no file to convert\nTry s2k2ngt --help.\n";
    return kWrongUsage;
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
