#pragma once

#include "target/conversion.h"

#include <string>

namespace s2k2ngt {

/// Writes the comment lines at the head of the file, with its own path.
void WriteFileHead(const std::string& outputPath, LineWriter& out);

/// Writes *VERSION and *UNIT.
bool WriteVersionAndUnit(Conversion& run, LineWriter& out);

/// Writes the line that ends the file, without a newline behind it.
void WriteFileEnd(LineWriter& out);

}  // namespace s2k2ngt
