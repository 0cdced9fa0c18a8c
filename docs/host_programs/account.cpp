// Converts the file that it is given, and lists what was lost by kind.
#include <s2k2ngt/converter.h>

#include <cstdint>
#include <exception>
#include <iostream>
#include <map>
#include <string>

namespace {

/// A host that shows nothing while it converts.
class QuietPlatform : public s2k2ngt::Platform {
 public:
  void ShowMessage(const std::string& /*key*/, const std::string& /*text*/) override {}
};

/// How many rows have each reason, by its code.
std::map<std::string, std::uint64_t> RowsByReason(const s2k2ngt::Account& account) {
  std::map<std::string, std::uint64_t> rows;
  for (const s2k2ngt::TableAccount& table : account.Tables) {
    for (const s2k2ngt::ReasonCount& count : table.Reasons) {
      if (count.Why->IsLoss) {
        rows[count.Why->Code] += count.Rows;
      }
    }
  }
  return rows;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: " << argv[0] << " FILE.s2k\n";
    return 64;
  }
  QuietPlatform platform;
  s2k2ngt::CConverter converter(platform);
  s2k2ngt::RunOptions options;
  options.KeepsAccount = true;
  try {
    if (converter.Run(argv[1], options) != s2k2ngt::kConverted) {
      std::cerr << converter.Failure().Describe(argv[1]) << '\n';
      return 2;
    }
    const s2k2ngt::Account account = converter.AccountOfRows();
    for (const auto& [code, rows] : RowsByReason(account)) {
      std::cout << rows << ' ' << code << '\n';
    }
    return account.HasLoss() ? 3 : 0;
  } catch (const std::exception&) {
    std::cerr << converter.Failure().Describe(argv[1]) << '\n';
    return 2;
  }
}
