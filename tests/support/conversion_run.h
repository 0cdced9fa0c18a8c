#pragma once

#include <s2k2ngt/converter.h>
#include <s2k2ngt/platform.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A platform without windows that notes all that it is shown and does as it is told.
class ScriptedPlatform : public s2k2ngt::Platform {
 public:
  std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
  void ShowMessage(const std::string& key, const std::string& text) override;
  void OpenProgress() override;
  void CloseProgress() override;
  void SetStatus(const std::string& text) override;
  void SetRange(int high) override;
  void SetPosition(int position) override;
  bool AskStop() override;

  // what it does
  std::optional<std::string> ChosenFile;
  /// Stops the run at the step that is asked for the so-manieth time, from 1; 0 never.
  int StopAtStep = 0;
  /// Called at each step, with its number.
  std::function<void(int)> OnStep;

  // what it was shown
  struct Message {
    std::string Key;
    std::string Text;
  };
  std::vector<Message> Messages;
  std::string DialogExtension;
  std::string DialogFilter;
  std::vector<std::string> Statuses;
  std::vector<int> Ranges;
  std::vector<int> Positions;
  int Steps = 0;
  int WindowsOpened = 0;
  int WindowsOpen = 0;
};

/// What came of a whole run over a source file.
struct ConversionRun {
  int Result = 0;
  /// Keys of the messages in the order shown, without the reminder that opens every run. A text
  /// outside the catalogue stands as it is.
  std::vector<std::string> Messages;
  std::vector<std::string> MessageTexts;
  /// The output file's bytes; empty when there is none.
  std::string Output;
  bool HasOutput = false;
  s2k2ngt::Diagnostic Failure;

  /// A section of the output, from its command line to the empty line that closes it, that line's
  /// newline included. Empty when the output does not have the command.
  std::string Section(std::string_view command) const;
  /// The data lines of a section: those that begin with a tab.
  std::vector<std::string> Lines(std::string_view command) const;

  /// The output from the first place where it reads `first` up to the next where it reads `next`,
  /// for commands that hold empty lines. Empty when it does not read so.
  std::string Between(std::string_view first, std::string_view next) const;
  /// The data lines of that.
  std::vector<std::string> LinesBetween(std::string_view first, std::string_view next) const;
  /// All that stands behind *UNIT, and *STRUCTYPE if there is one, up to *ENDDATA.
  std::string Body() const;

  /// What a command writes for a load case, from *USE-STLD to the closing line and the newline
  /// behind it. Empty when it writes nothing for the load case.
  std::string LoadBlock(std::string_view loadCase, std::string_view command) const;
  /// The data lines of that.
  std::vector<std::string> LoadLines(std::string_view loadCase, std::string_view command) const;
};

/// Runs the conversion over these bytes, as the file "model.s2k" of a folder of its own. With a
/// place for it, the run keeps account of the rows.
ConversionRun ConvertBytes(const std::string& bytes, s2k2ngt::Account* account = nullptr);

/// Runs the conversion over these tables, between the first line of a file and its END line. A
/// newline at the head of the text is dropped, so that a raw string can begin on a line of its own.
ConversionRun Convert(std::string_view tables);

/// The bytes that Convert runs over.
std::string FileWith(std::string_view tables);

/// A source table of these rows, each with its newline, and the empty line behind it.
std::string SourceTable(std::string_view title, std::string_view rows);
