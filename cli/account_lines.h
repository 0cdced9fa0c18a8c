#pragma once

#include <s2k2ngt/account.h>

#include <string>
#include <vector>

/// The account of a file in lines for a terminal: how many rows became of what, and behind it the
/// reasons by which something was lost, the most frequent first.
std::vector<std::string> LinesOf(const s2k2ngt::Account& account);
