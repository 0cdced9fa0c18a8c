#include "conversion_of_file.h"

#include "account_lines.h"
#include "common/files.h"
#include "platform/terminal/terminal_platform.h"

#include <array>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <new>
#include <ostream>
#include <system_error>
#include <utility>

using s2k2ngt::CConverter;

namespace {

/// The terminal, which also keeps what it shows for those who ask for JSON or a report.
class CommandPlatform : public s2k2ngt::TerminalPlatform {
 public:
  CommandPlatform(const CommandOptions& options, std::string file, std::ostream& err,
                  std::vector<Message>& shown)
      : TerminalPlatform({.Messages = !options.Quiet,
                          .Progress = !options.Quiet && !options.NoProgress,
                          .Stream = &err}),
        m_KeepsMessages(options.Json || !options.Reports.empty()),
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

/// Makes the folder of an output; a dry run only looks whether it could be made.
std::error_code PrepareFolder(std::filesystem::path folder, bool isCheck) {
  std::error_code error;
  if (!isCheck) {
    std::filesystem::create_directories(folder, error);
    return error;
  }
  while (folder.has_relative_path() && !std::filesystem::exists(folder, error)) {
    folder = folder.parent_path();
  }
  const bool isInTheWay =
      std::filesystem::exists(folder, error) && !std::filesystem::is_directory(folder, error);
  return isInTheWay ? std::make_error_code(std::errc::not_a_directory) : std::error_code();
}

/// Why a file is not even begun with, in words for the user.
std::optional<std::string> WhyNotConverted(const FileToConvert& file,
                                           const CommandOptions& options) {
  if (file.Refusal) {
    return file.Refusal;
  }
  if (IsUtf16(file.Input)) {
    return "it is UTF-16 text (\"Unicode\"); save it as plain text or UTF-8";
  }
  if (!options.OutputDirectory.empty()) {
    const std::filesystem::path output = s2k2ngt::NativePath(file.Output);
    if (const std::error_code error = PrepareFolder(output.parent_path(), options.Check)) {
      return "cannot make the folder of " + file.Output + ": " + error.message();
    }
  }
  return std::nullopt;
}

std::string LeftUnfinished(const std::string& output) { return output + " is left unfinished"; }

/// A failure in a line for people. That of a process which was killed names its output already.
std::string LineOfFailure(const FileFacts& facts) {
  const std::string left = facts.Unfinished ? "; " + LeftUnfinished(*facts.Unfinished) : "";
  return facts.Error->ends_with(left) ? *facts.Error : *facts.Error + left;
}

void PrintOutcome(const Outcome& outcome, const CommandOptions& options, std::ostream& err) {
  const FileFacts& facts = outcome.Facts;
  if (facts.Error) {
    PrintLine(err, LineOfFailure(facts));
  } else if (facts.Unfinished) {
    PrintLine(err, facts.Input + ": stopped; " + LeftUnfinished(*facts.Unfinished));
  } else if (facts.Result == s2k2ngt::kStopped) {
    PrintLine(err, facts.Input + ": stopped");
  } else if (!options.Quiet) {
    const std::string whatIsDone = facts.Output ? "converted to " + *facts.Output : "checked";
    PrintLine(err, facts.Input + ": " + whatIsDone +
                       (outcome.IsEmpty ? ", which is empty: the file has no row that is converted"
                                        : ""));
  }
  if (!options.Quiet) {
    for (const std::string& line : outcome.Account) {
      PrintLine(err, facts.Input + ": " + line);
    }
  }
}

/// Takes note of what the run tells of the rows.
void TakeAccount(const CConverter& converter, const CommandOptions& options, Outcome& outcome) {
  const s2k2ngt::Account account = converter.AccountOfRows();
  outcome.Facts.HasLoss = account.HasLoss();
  outcome.Facts.Rows = RowsOf(account);
  outcome.Account = LinesOf(account);
  if (!options.Reports.empty()) {
    outcome.Part = PartOf(outcome.Facts, account, converter.DrawingOfModel());
  }
}

Outcome OutcomeOf(const FileToConvert& file, const CommandOptions& options) {
  Outcome outcome;
  outcome.Facts.Input = file.Input;
  outcome.Facts.IsCheck = options.Check;
  if (options.WantsAccount()) {
    outcome.Facts.Rows.emplace();
  }
  return outcome;
}

/// With its part of the reports also where there was no run to account for.
Outcome WithPart(Outcome outcome, const CommandOptions& options) {
  if (!options.Reports.empty() && outcome.Part.Json.empty()) {
    outcome.Part = PartOf(outcome.Facts, {}, {});
  }
  return outcome;
}

/// Converts a file with which it may be begun.
void Run(const FileToConvert& file, const CommandOptions& options, std::ostream& err,
         Outcome& outcome) {
  FileFacts& facts = outcome.Facts;
  CommandPlatform platform(options, file.Input, err, facts.Messages);
  CConverter converter(platform);
  s2k2ngt::RunOptions how;
  how.Output = file.Output;
  how.WritesOutput = !options.Check;
  how.KeepsAccount = options.WantsAccount();
  try {
    facts.Result = converter.Run(file.Input.c_str(), how);
  } catch (const std::exception&) {
    facts.Result = s2k2ngt::kFailed;
  }
  const s2k2ngt::Diagnostic& ended = converter.Failure();
  if (facts.Result == s2k2ngt::kConverted) {
    outcome.IsEmpty = converter.RowCount() == 0;
    if (!options.Check) {
      facts.Output = file.Output;
    }
  } else if (facts.Result == s2k2ngt::kFailed) {
    facts.Error = ended.Reason.empty() ? file.Input + ": there is not enough memory to begin"
                                       : ended.Describe(file.Input);
  }
  if (facts.Result != s2k2ngt::kConverted && ended.Phase == s2k2ngt::kWriting && !options.Check) {
    // A failure may have come before the file that is there was touched.
    if (facts.Result == s2k2ngt::kStopped || IsUnfinished(file.Output)) {
      facts.Unfinished = file.Output;
    }
  }
  if (options.WantsAccount()) {
    try {
      TakeAccount(converter, options, outcome);
    } catch (const std::bad_alloc&) {
      // What was written stays as it is told; only the account is missing.
      outcome.Part = {};
      outcome.Account = {"there is not enough memory for the account of its rows"};
      facts.HasLoss = true;
      facts.Rows.reset();
    }
  }
}

}  // namespace

Outcome Convert(const FileToConvert& file, const CommandOptions& options, std::ostream& err) {
  Outcome outcome = OutcomeOf(file, options);
  if (s2k2ngt::WasInterrupted()) {
    outcome.Facts.Result = s2k2ngt::kStopped;
    return WithPart(std::move(outcome), options);
  }
  if (const std::optional<std::string> reason = WhyNotConverted(file, options)) {
    return FailureOf(file, *reason, options);
  }
  Run(file, options, err, outcome);
  return WithPart(std::move(outcome), options);
}

Outcome FailureOf(const FileToConvert& file, const std::string& reason,
                  const CommandOptions& options, const std::optional<std::string>& unfinished) {
  Outcome outcome = OutcomeOf(file, options);
  outcome.Facts.Unfinished = unfinished;
  outcome.Facts.Error =
      file.Input + ": " + reason + (unfinished ? "; " + LeftUnfinished(*unfinished) : "");
  return WithPart(std::move(outcome), options);
}

FileResult ResultOf(Outcome outcome) {
  return {outcome.Facts.Result, outcome.Facts.HasLoss, std::move(outcome.Part)};
}

void Tell(const Outcome& outcome, const CommandOptions& options, Streams streams) {
  PrintOutcome(outcome, options, streams.Err);
  if (options.Json) {
    streams.Out << TextOf(JsonOf(outcome.Facts)) << std::endl;
  }
}

void PrintLine(std::ostream& err, const std::string& text) {
  err << "s2k2ngt: " << s2k2ngt::Printable(text) << '\n';
}
