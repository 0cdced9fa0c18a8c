#pragma once

#include <string>
#include <vector>

/// The words of the command line, the program's name first, as our interfaces take them. On Windows
/// they are UTF-8, whatever the user's code page, and patterns of file names are the files that fit
/// them, which elsewhere the shell sees to.
std::vector<std::string> CommandLineWords(int argc, char** argv);

/// The console for the time of a call. On Windows it is made to show UTF-8 and to draw a bar, and
/// standard output to pass lines as they are written; in the end all is as it was.
class Console {
 public:
  Console();
  ~Console();  // NOLINT(performance-trivially-destructible): not on Windows
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  /// False for a console that would print what a bar is drawn with.
  bool CanDraw() const { return m_CanDraw; }

 private:
  bool m_CanDraw = true;
  [[maybe_unused]] unsigned m_CodePageBefore = 0;
  [[maybe_unused]] unsigned long m_ModeBefore = 0;
};
