#pragma once

#include <cstdint>
#include <string>

/// The bytes of a source file of random tables and rows, the same for a seed on every machine.
///
/// The rows are made from the catalogue of tables and the keys that the records declare. Labels and
/// names come from small pools, so that tables speak of the same joints, sections and cases, more
/// than once and of some that are not there; words are those that the conversion knows, and some
/// that it does not.
std::string RandomModel(std::uint32_t seed);
