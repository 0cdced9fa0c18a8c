#include "command.h"

#include <s2k2ngt/s2k2ngt.h>

#include <exception>
#include <iostream>

#include <CLI/CLI.hpp>

namespace {

int Run(int argc, char** argv) {
  CommandOptions options;
  bool listMessages = false;
  CLI::App app(
      "Converts SAP2000 V8 text files (.s2k) into the host application's command text files "
      "(.ngt).\nEach output is written beside its input, under the same name; a file that is there "
      "is replaced.",
      "s2k2ngt");
  app.add_option("FILE", options.Files, "The files to convert, one after the other");
  app.add_flag("--json", options.Json,
               "Print what became of each file as one line of JSON on standard output");
  app.add_flag("--quiet", options.Quiet, "Show no messages and no progress, only failures");
  app.add_flag("--no-progress", options.NoProgress, "Show no progress bar");
  app.add_flag("--list-messages", listMessages,
               "Print the key and the text of every message, and exit");
  app.set_version_flag("--version", std::string("s2k2ngt ") + s2k2ngt_version());
  app.footer(
      "Exit status: 0 all files converted, 1 a run was stopped, 2 at least one file failed, "
      "64 wrong usage.");
  try {
    app.parse(argc, argv);
    if (!listMessages && options.Files.empty()) {
      throw CLI::RequiredError("FILE");
    }
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kAllConverted : kWrongUsage;
  }
  return listMessages ? ListMessages() : ConvertFiles(options);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& exception) {
    std::cerr << "s2k2ngt: " << exception.what() << '\n';
    return kOneFailed;
  }
}
