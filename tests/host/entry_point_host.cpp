// A host that calls the two C++ entry points and prints what they return.
#include <s2k2ngt/entry_points.h>

#include <iostream>
#include <string>

int main() {
  std::cout << "ConvertFile " << ConvertFile() << '\n';
  std::string output = "as it was";
  const int result = ConvertFile2(output);
  std::cout << "ConvertFile2 " << result << ' ' << output << '\n';
}
