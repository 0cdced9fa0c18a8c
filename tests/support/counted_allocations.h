#pragma once

#include <cstddef>

/// The memory that living objects hold, as operator new and delete count it in the programs that
/// are linked with this. They count for a single thread.
struct LivingMemory {
  std::size_t Allocations = 0;
  std::size_t Bytes = 0;
  bool operator==(const LivingMemory&) const = default;
};
LivingMemory CountLivingMemory();

/// Lets the so-manieth allocation from now on fail, from 1, and all behind it if asked for; none
/// with 0.
void FailAtAllocation(std::size_t allocation, bool andAllBehind = false);
