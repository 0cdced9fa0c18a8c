// Measures the parts on which the speed of a conversion rests, each beside the plain ways to do the
// same on the same data:
//
//   scripts/build release micro_benchmarks && build/release/micro_benchmarks
//
// --benchmark_filter=row or =table/find/30000 measures some of them, and --benchmark_list_tests
// lists all. Time and per_item are those of one pass over the data and of one item of it. At the
// start it makes sure that all ways of a subject give the same, and ends with an error if not. That
// the library was built as DEBUG, of which Debian's warns, is of no harm: no loop calls into it.
#include "micro.h"

#include <cstdlib>
#include <exception>
#include <iostream>

int main(int count, char** words) {
  benchmark::Initialize(&count, words);
  if (benchmark::ReportUnrecognizedArguments(count, words)) {
    return EXIT_FAILURE;
  }
  try {
    s2k2ngt::micro::AddRows();
    s2k2ngt::micro::AddNumbers();
    s2k2ngt::micro::AddLines();
    s2k2ngt::micro::AddTables();
    s2k2ngt::micro::AddLabels();
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
  }
  benchmark::RunSpecifiedBenchmarks();
  return EXIT_SUCCESS;
}
