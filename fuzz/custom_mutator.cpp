// What the fuzzer changes the inputs of the targets that read source files by: half of the time as
// it does with any bytes, else by their grammar.
#include "model_mutator.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed) {
  if (seed % 2 == 0) {
    return LLVMFuzzerMutate(data, size, maxSize);
  }
  const std::string model(reinterpret_cast<const char*>(data), size);
  const std::string mutated = MutateModel(model, maxSize, seed);
  std::ranges::copy(mutated, data);
  return mutated.size();
}
