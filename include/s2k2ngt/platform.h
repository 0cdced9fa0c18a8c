#pragma once

#include <s2k2ngt/export.h>

#include <optional>
#include <string>

namespace s2k2ngt {

/// All that a conversion needs of the machine that it runs on. A host that wants no window of ours
/// derives its own and gives it to a CConverter; every operation but ShowMessage may stay empty.
///
/// All operations are called on the thread of the run; a platform that several drivers have is
/// called on the threads of all their runs. Texts are single bytes, passed through as they stand in
/// the file. An exception that an operation throws ends the run and goes to the host, but for one
/// of a CloseProgress that comes when the driver goes.
class S2K2NGT_API Platform {
 public:
  virtual ~Platform();

  /// What a file dialog is opened with.
  struct FileDialog {
    const char* DefaultExtension;
    /// Pairs of a description and a pattern, each ended by "|", and a last "|".
    const char* Filter;
  };
  /// Lets the user choose an existing file; nothing when the user would not.
  virtual std::optional<std::string> ChooseFile(const FileDialog& dialog);

  /// Shows a text and waits until the user has seen it. `key` is the catalogue's key of the text,
  /// or empty for a text that stands outside the catalogue.
  virtual void ShowMessage(const std::string& key, const std::string& text) = 0;

  /// Opens the progress window. CloseProgress follows, at the latest when the driver goes.
  virtual void OpenProgress();
  virtual void CloseProgress();
  virtual void SetStatus(const std::string& text);
  /// The bar goes from 0 to `high`.
  virtual void SetRange(int high);
  /// Called for every row of the source file; may lie above the range.
  virtual void SetPosition(int position);
  /// True when the user wants the run to stop. Asked before each SetPosition.
  virtual bool AskStop();

 protected:
  Platform() = default;
  Platform(const Platform&) = default;
  Platform& operator=(const Platform&) = default;
};

}  // namespace s2k2ngt
