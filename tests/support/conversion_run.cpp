#include "support/conversion_run.h"

#include "support/temporary_folder.h"

#include <cstdlib>
#include <sstream>

std::optional<std::string> ScriptedPlatform::ChooseFile(const FileDialog& dialog) {
  DialogExtension = dialog.DefaultExtension;
  DialogFilter = dialog.Filter;
  return ChosenFile;
}

void ScriptedPlatform::ShowMessage(const std::string& key, const std::string& text) {
  Messages.push_back({key, text});
}

void ScriptedPlatform::OpenProgress() {
  ++WindowsOpened;
  ++WindowsOpen;
}

void ScriptedPlatform::CloseProgress() { --WindowsOpen; }

void ScriptedPlatform::SetStatus(const std::string& text) { Statuses.push_back(text); }

void ScriptedPlatform::SetRange(int high) { Ranges.push_back(high); }

void ScriptedPlatform::SetPosition(int position) { Positions.push_back(position); }

bool ScriptedPlatform::AskStop() {
  ++Steps;
  if (OnStep) {
    OnStep(Steps);
  }
  return Steps == StopAtStep;
}

std::string ConversionRun::Section(std::string_view command) const {
  const std::string text = "\n" + Output;
  // The command stands alone on its line or is followed by blanks and its title.
  for (std::size_t at = text.find("\n" + std::string(command)); at != std::string::npos;
       at = text.find("\n" + std::string(command), at + 1)) {
    const std::size_t begin = at + 1;
    const char behind = text[begin + command.size()];
    if (behind != ' ' && behind != '\n') {
      continue;
    }
    // Some headers are followed by an empty line of their own.
    std::size_t end = text.find("\n\n", begin);
    if (end != std::string::npos && text.compare(end + 2, 1, ";") == 0) {
      end = text.find("\n\n", end + 2);
    }
    return text.substr(begin, end == std::string::npos ? end : end + 2 - begin);
  }
  return {};
}

namespace {

std::vector<std::string> DataLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with('\t')) {
      lines.push_back(line);
    }
  }
  return lines;
}

}  // namespace

std::vector<std::string> ConversionRun::Lines(std::string_view command) const {
  return DataLines(Section(command));
}

std::string ConversionRun::Between(std::string_view first, std::string_view next) const {
  const std::size_t begin = Output.find(first);
  if (begin == std::string::npos) {
    return {};
  }
  const std::size_t end = Output.find(next, begin + first.size());
  return end == std::string::npos ? std::string() : Output.substr(begin, end - begin);
}

std::vector<std::string> ConversionRun::LinesBetween(std::string_view first,
                                                     std::string_view next) const {
  return DataLines(Between(first, next));
}

std::string ConversionRun::Body() const {
  const std::string_view last = Section("*STRUCTYPE").empty() ? "*UNIT" : "*STRUCTYPE";
  const std::size_t begin = Output.find("\n\n", Output.find(last)) + 2;
  return Output.substr(begin, Output.rfind("*ENDDATA") - begin);
}

std::string ConversionRun::LoadBlock(std::string_view loadCase, std::string_view command) const {
  const std::string padding(std::max<std::size_t>(loadCase.size(), 10) - loadCase.size(), ' ');
  const std::string opening = "*USE-STLD, " + padding + std::string(loadCase) + "\n\n";
  for (std::size_t begin = Output.find(opening); begin != std::string::npos;
       begin = Output.find(opening, begin + 1)) {
    std::string_view head = std::string_view(Output).substr(begin + opening.size());
    if (head.starts_with("; ")) {
      head.remove_prefix(2);  // *SELFWEIGHT has no line of its own, only its comment
    }
    if (head.starts_with(command)) {
      const std::string closing =
          "\n;End of data for load case [" + std::string(loadCase) + "]\n\n";
      const std::size_t end = Output.find(closing, begin);
      return Output.substr(begin, end == std::string::npos ? end : end + closing.size() - begin);
    }
  }
  return {};
}

std::vector<std::string> ConversionRun::LoadLines(std::string_view loadCase,
                                                  std::string_view command) const {
  return DataLines(LoadBlock(loadCase, command));
}

namespace {

/// Leaves the input in the folder that the environment names, for other builds to be compared with.
/// What is run with an account is run without one as well.
void KeepInput(const std::string& bytes) {
  const char* const folder = std::getenv("S2K2NGT_KEEP_INPUTS");
  if (folder != nullptr) {
    static int count = 0;
    WriteFile(folder + ("/run" + std::to_string(++count)) + ".s2k", bytes);
  }
}

}  // namespace

ConversionRun ConvertBytes(const std::string& bytes, s2k2ngt::Account* account) {
  if (account == nullptr) {
    KeepInput(bytes);
  }
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  WriteFile(path, bytes);
  ScriptedPlatform platform;
  s2k2ngt::CConverter converter(platform);
  ConversionRun run;
  s2k2ngt::RunOptions options;
  options.KeepsAccount = account != nullptr;
  run.Result = converter.Run(path.c_str(), options);
  if (account != nullptr) {
    *account = converter.AccountOfRows();
  }
  run.Failure = converter.Failure();
  for (const ScriptedPlatform::Message& message : platform.Messages) {
    if (message.Key != "IDS_S2KV8_Export_must_be_executed") {
      run.Messages.push_back(message.Key.empty() ? message.Text : message.Key);
      run.MessageTexts.push_back(message.Text);
    }
  }
  const std::string output = folder.FileName("model.ngt");
  run.HasOutput = std::filesystem::exists(output);
  if (run.HasOutput) {
    run.Output = ReadFile(output);
  }
  return run;
}

std::string FileWith(std::string_view tables) {
  if (tables.starts_with('\n')) {
    tables.remove_prefix(1);
  }
  return "File model.s2k was saved on 5/12/03 at 9:30:00\n \n" + std::string(tables) +
         "\nEND TABLE DATA\n";
}

ConversionRun Convert(std::string_view tables) { return ConvertBytes(FileWith(tables)); }

std::string SourceTable(std::string_view title, std::string_view rows) {
  return "TABLE:  \"" + std::string(title) + "\"\n" + std::string(rows) + "\n";
}
