// A host that calls the entry points which ask for the file, and prints what they return.
#include <s2k2ngt/entry_points.h>
#include <s2k2ngt/s2k2ngt.h>

#include <array>
#include <iostream>
#include <string>

int main() {
  std::cout << "ConvertFile " << ConvertFile() << '\n';
  std::string output = "as it was";
  const int result = ConvertFile2(output);
  std::cout << "ConvertFile2 " << result << ' ' << output << '\n';

  s2k2ngt_host host = {};
  host.size = sizeof host;
  host.failure = [](void* /*context*/, const char* reason) { std::cout << reason << '\n'; };
  std::array<char, 100> buffer = {"as it was"};
  const int resultInC = s2k2ngt_convert_chosen(&host, buffer.data(), buffer.size());
  std::cout << "s2k2ngt_convert_chosen " << resultInC << ' ' << buffer.data() << '\n';
  const int resultWithoutRoom = s2k2ngt_convert_chosen(&host, buffer.data(), 5);
  std::cout << "s2k2ngt_convert_chosen " << resultWithoutRoom << '\n';
}
