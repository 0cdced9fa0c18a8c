#include "support/account_run.h"

#include <algorithm>
#include <array>
#include <numeric>

#include <gtest/gtest.h>

std::vector<std::string> AccountRun::Losses() const { return LossesIn(""); }

std::vector<std::string> AccountRun::LossesIn(std::string_view words) const {
  std::vector<std::string> losses;
  for (const s2k2ngt::RowLoss& loss : Rows.Losses) {
    if (Rows.Tables[loss.Table].Title.find(words) != std::string::npos) {
      losses.push_back(loss.Label + ": " + loss.Why->Code);
    }
  }
  return losses;
}

namespace {

/// Tables that the file does not have.
bool IsMissing(const s2k2ngt::TableAccount& table) {
  return table.Title == "(PROGRAM CONTROL)" || table.Title == "(ACTIVE DEGREES OF FREEDOM)";
}

}  // namespace

bool AccountRun::HasLossOfRows() const {
  return std::ranges::any_of(Rows.Tables, [](const s2k2ngt::TableAccount& table) {
    return !IsMissing(table) && std::ranges::any_of(table.Reasons, [](const auto& reason) {
      return reason.Why->IsLoss;
    });
  });
}

std::vector<std::string> AccountRun::Tables() const {
  constexpr std::array<const char*, s2k2ngt::kRowFates> kNames = {"converted", "changed", "dropped",
                                                                  "refused", "not looked at"};
  std::vector<std::string> tables;
  for (const s2k2ngt::TableAccount& table : Rows.Tables) {
    if (IsMissing(table)) {
      continue;
    }
    std::string text = table.Title + ": " + std::to_string(table.Rows) + " rows";
    for (std::size_t fate = 0; fate < kNames.size(); ++fate) {
      if (table.ByFate[fate] > 0) {
        text += ", " + std::to_string(table.ByFate[fate]) + " " + kNames[fate];
      }
    }
    tables.push_back(text);
  }
  return tables;
}

namespace {

/// The head names the file, of which each run has one of its own.
std::string_view BehindHead(std::string_view output) {
  return output.substr(std::min(output.find("*VERSION"), output.size()));
}

}  // namespace

AccountRun KeepAccountOfBytes(const std::string& bytes) {
  AccountRun kept;
  kept.Run = ConvertBytes(bytes, &kept.Rows);
  const ConversionRun plain = ConvertBytes(bytes);
  EXPECT_EQ(kept.Run.Result, plain.Result);
  EXPECT_EQ(BehindHead(kept.Run.Output), BehindHead(plain.Output));
  EXPECT_EQ(kept.Run.MessageTexts, plain.MessageTexts);
  for (const s2k2ngt::TableAccount& table : kept.Rows.Tables) {
    EXPECT_EQ(std::accumulate(std::begin(table.ByFate), std::end(table.ByFate), std::uint64_t{0}),
              table.Rows)
        << table.Title;
  }
  return kept;
}

AccountRun KeepAccount(std::string_view tables) { return KeepAccountOfBytes(FileWith(tables)); }
