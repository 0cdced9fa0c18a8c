#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// Changes a source file as one who knows its grammar would: by tables, rows and values, with
/// tables and values of random models among them. What is no source file becomes one at times. The
/// result is at most `sizeAtMost` bytes.
std::string MutateModel(const std::string& model, std::size_t sizeAtMost, std::uint32_t seed);

/// A model of random tables with a few rows each, small enough for many runs.
std::string SmallRandomModel(std::size_t sizeAtMost, std::uint32_t seed);
