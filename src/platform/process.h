#pragma once

#include <string>

namespace s2k2ngt {

/// Starts a program, looked for where the system looks for programs, with one argument, as a
/// process of its own that inherits none of our handles but the standard ones. `commandLine` is the
/// same as one text, for systems whose processes take that. True when it was started; it is not
/// waited for.
bool StartProcess(const std::string& program, const std::string& argument,
                  const std::string& commandLine);

}  // namespace s2k2ngt
