// Writes the pages of docs/ that are made from the code.
#include "pages.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: s2k2ngt_reference FOLDER\n";
    return EXIT_FAILURE;
  }
  const std::filesystem::path folder = arguments[1];
  std::ofstream(folder / "source_tables.md") << s2k2ngt::reference::SourceTablesPage();
  std::ofstream(folder / "messages.md") << s2k2ngt::reference::MessagesPage();
  std::ofstream(folder / "reasons.md") << s2k2ngt::reference::ReasonsPage();
}
