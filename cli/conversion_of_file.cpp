#include "conversion_of_file.h"

#include "common/files.h"
#include "platform/terminal/terminal_platform.h"

#include <array>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <ostream>
#include <system_error>
#include <utility>

#include <nlohmann/json.hpp>

using s2k2ngt::CConverter;

namespace {

/// The terminal, which also keeps what it shows for those who ask for JSON.
class CommandPlatform : public s2k2ngt::TerminalPlatform {
 public:
  CommandPlatform(const CommandOptions& options, std::string file, std::ostream& err,
                  std::vector<Message>& shown)
      : TerminalPlatform({.Messages = !options.Quiet,
                          .Progress = !options.Quiet && !options.NoProgress,
                          .Stream = &err}),
        m_KeepsMessages(options.Json),
        m_File(std::move(file)),
        m_Shown(shown) {}

  void ShowMessage(const std::string& key, const std::string& text) override {
    if (m_KeepsMessages) {
      m_Shown.push_back({key, text});
    }
    TerminalPlatform::ShowMessage(key, m_File + ": " + text);
  }

 private:
  bool m_KeepsMessages;
  std::string m_File;
  std::vector<Message>& m_Shown;
};

/// Nothing in such a file would be known, and its output would be empty without a word.
bool IsUtf16(const std::string& path) {
  std::error_code noSuchFile;
  if (!std::filesystem::is_regular_file(s2k2ngt::NativePath(path), noSuchFile)) {
    return false;  // a pipe gives its bytes once
  }
  const s2k2ngt::OpenedFile file = s2k2ngt::OpenFile(path, "rb");
  std::array<unsigned char, 2> first{};
  if (file == nullptr || std::fread(first.data(), 1, first.size(), file.get()) < first.size()) {
    return false;
  }
  const bool hasMark =
      (first[0] == 0xFF && first[1] == 0xFE) || (first[0] == 0xFE && first[1] == 0xFF);
  return hasMark || (first[0] == 0) != (first[1] == 0);
}

/// Why a file is not even begun with, in words for the user.
std::optional<std::string> WhyNotConverted(const FileToConvert& file,
                                           const CommandOptions& options) {
  if (file.Refusal) {
    return file.Input + ": " + *file.Refusal;
  }
  if (IsUtf16(file.Input)) {
    return file.Input + ": it is UTF-16 text (\"Unicode\"); save it as plain text or UTF-8";
  }
  if (!options.OutputDirectory.empty()) {
    std::error_code error;
    const std::filesystem::path output = s2k2ngt::NativePath(file.Output);
    std::filesystem::create_directories(output.parent_path(), error);
    if (error) {
      return file.Input + ": cannot make the folder of " + file.Output + ": " + error.message();
    }
  }
  return std::nullopt;
}

void PrintJson(const std::string& file, const Outcome& outcome, std::ostream& out) {
  using nlohmann::ordered_json;
  const auto textOrNull = [](const std::optional<std::string>& text) {
    return text ? ordered_json(*text) : ordered_json(nullptr);
  };
  ordered_json messages = ordered_json::array();
  for (const Message& message : outcome.Messages) {
    messages.push_back({{"key", message.Key}, {"text", message.Text}});
  }
  const ordered_json object = {{"input", file},
                               {"output", textOrNull(outcome.Output)},
                               {"result", outcome.Result},
                               {"messages", messages},
                               {"error", textOrNull(outcome.Error)}};
  // Labels are bytes of any character set; JSON is UTF-8.
  out << object.dump(-1, ' ', false, ordered_json::error_handler_t::replace) << std::endl;
}

void PrintOutcome(const std::string& file, const Outcome& outcome, const CommandOptions& options,
                  std::ostream& err) {
  if (outcome.Error) {
    PrintLine(err, *outcome.Error);
  } else if (outcome.Unfinished) {
    PrintLine(err, file + ": stopped; " + *outcome.Unfinished + " is left unfinished");
  } else if (outcome.Result == s2k2ngt::kStopped) {
    PrintLine(err, file + ": stopped");
  } else if (!options.Quiet) {
    PrintLine(err, file + ": converted to " + *outcome.Output +
                       (outcome.IsEmpty ? ", which is empty: the file has no row that is converted"
                                        : ""));
  }
}

}  // namespace

Outcome Convert(const FileToConvert& file, const CommandOptions& options, std::ostream& err) {
  Outcome outcome;
  if (s2k2ngt::WasInterrupted()) {
    outcome.Result = s2k2ngt::kStopped;
    return outcome;
  }
  outcome.Error = WhyNotConverted(file, options);
  if (outcome.Error) {
    return outcome;
  }
  CommandPlatform platform(options, file.Input, err, outcome.Messages);
  CConverter converter(platform);
  try {
    outcome.Result = converter.Run(file.Input.c_str(), {.Output = file.Output});
  } catch (const std::exception&) {
    outcome.Result = s2k2ngt::kFailed;
  }
  const s2k2ngt::Diagnostic& ended = converter.Failure();
  if (outcome.Result == s2k2ngt::kConverted) {
    outcome.Output = file.Output;
    outcome.IsEmpty = converter.RowCount() == 0;
  } else if (outcome.Result == s2k2ngt::kFailed) {
    outcome.Error = ended.Reason.empty() ? file.Input + ": there is not enough memory to begin"
                                         : ended.Describe(file.Input);
  } else if (ended.Phase == s2k2ngt::kWriting) {
    outcome.Unfinished = file.Output;
  }
  return outcome;
}

void Tell(const FileToConvert& file, const Outcome& outcome, const CommandOptions& options,
          Streams streams) {
  PrintOutcome(file.Input, outcome, options, streams.Err);
  if (options.Json) {
    PrintJson(file.Input, outcome, streams.Out);
  }
}

void PrintLine(std::ostream& err, const std::string& text) {
  err << "s2k2ngt: " << s2k2ngt::Printable(text) << '\n';
}
