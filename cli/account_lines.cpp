#include "account_lines.h"

#include <algorithm>
#include <cstdint>
#include <map>

using s2k2ngt::Account;
using s2k2ngt::Reason;
using s2k2ngt::RowFate;

namespace {

std::string Rows(std::uint64_t count) {
  return std::to_string(count) + (count == 1 ? " row" : " rows");
}

std::string Tally(const Account& account) {
  std::uint64_t read = 0;
  for (const s2k2ngt::TableAccount& table : account.Tables) {
    read += table.Rows;
  }
  const auto with = [&](RowFate fate) { return std::to_string(account.With(fate)); };
  return "of " + Rows(read) + " " + with(RowFate::Converted) + " converted, " +
         with(RowFate::Changed) + " changed, " + with(RowFate::Dropped) + " dropped, " +
         with(RowFate::Refused) + " refused, " + with(RowFate::NotLookedAt) + " not looked at";
}

}  // namespace

std::vector<std::string> LinesOf(const Account& account) {
  std::map<const Reason*, std::uint64_t> rowsOf;
  for (const s2k2ngt::TableAccount& table : account.Tables) {
    for (const s2k2ngt::ReasonCount& count : table.Reasons) {
      if (count.Why->IsLoss) {
        rowsOf[count.Why] += count.Rows;
      }
    }
  }
  // Reasons lie in one list, whose order decides among those that are as frequent.
  std::vector<std::pair<const Reason*, std::uint64_t>> reasons(rowsOf.begin(), rowsOf.end());
  std::ranges::stable_sort(reasons, std::ranges::greater(), [](const auto& r) { return r.second; });
  std::vector<std::string> lines = {Tally(account)};
  for (const auto& [reason, rows] : reasons) {
    lines.push_back("  " + Rows(rows) + ", " + reason->Code + ": " + reason->Text);
  }
  return lines;
}
