#pragma once

#include <string>
#include <vector>

/// The words of the command line, the program's name first, as our interfaces take them: on Windows
/// in UTF-8, whatever the user's code page.
std::vector<std::string> CommandLineWords(int argc, char** argv);

/// Lets standard output pass lines as they are written, which Windows does not do by itself.
void KeepLineEndsOfOutput();
