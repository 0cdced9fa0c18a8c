// Writes a random model to standard output: s2k2ngt_random_model SEED
#include "support/random_model.h"

#include <cstdlib>
#include <iostream>
#include <string>

int main(int count, char** words) {
  if (count != 2) {
    std::cerr << "usage: s2k2ngt_random_model SEED > FILE.s2k\n";
    return EXIT_FAILURE;
  }
  std::cout << RandomModel(static_cast<std::uint32_t>(std::strtoul(words[1], nullptr, 10)));
  return EXIT_SUCCESS;
}
