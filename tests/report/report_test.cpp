#include "report.h"

#include <s2k2ngt/s2k2ngt.h>

#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::ordered_json;
using s2k2ngt::Account;
using s2k2ngt::Drawing;
using s2k2ngt::ElementKind;
using s2k2ngt::Reason;
using s2k2ngt::RowFate;
using testing::HasSubstr;
using testing::StartsWith;

constexpr Reason kLoss = {"lost", RowFate::Dropped, true, "It is lost.", "Enter it."};

FileFacts FactsOf(const std::string& input) {
  FileFacts facts;
  facts.Input = input;
  facts.Result = S2K2NGT_CONVERTED;
  return facts;
}

/// An account of a table of so many rows, the last of which is lost.
Account AccountWith(std::uint64_t rows, const Reason& reason = kLoss) {
  Account account;
  s2k2ngt::TableAccount& table = account.Tables.emplace_back();
  table.Title = "A TABLE";
  table.Line = 3;
  table.TableId = 7;
  table.Rows = rows;
  table.ByFate[0] = rows - 1;
  table.ByFate[static_cast<std::size_t>(RowFate::Dropped)] = 1;
  table.Reasons = {{&reason, 1}};
  account.Losses = {
      {0, static_cast<std::uint32_t>(rows), 3 + rows, "Frame=" + std::to_string(rows), &reason}};
  return account;
}

std::string JsonReport(const ReportParts& parts) {
  std::ostringstream out;
  WriteJsonReport(parts, out);
  return out.str();
}

TEST(ReportTest, TheTextOfAFileIsItsAccount) {
  FileFacts facts = FactsOf("a.s2k");
  facts.Output = "a.ngt";
  facts.HasLoss = true;
  facts.Messages = {{"IDS_X", "Look."}};
  Drawing drawing;
  drawing.NodesAreRenumbered = drawing.ElementsAreRenumbered = true;
  drawing.Nodes = {{1, "A", 0, 0, 0, false}, {2, "B", 1, 0, 0, false}};
  drawing.Elements = {{ElementKind::Frame, 1, "F", {}},
                      {ElementKind::Solid, 2, "S", {}},
                      {ElementKind::Link, 0, "L", {0, 1}}};
  EXPECT_EQ(TextOfFile(facts, AccountWith(2), drawing),
            R"({"input":"a.s2k","output":"a.ngt","result":0,)"
            R"("messages":[{"key":"IDS_X","text":"Look."}],"error":null,)"
            R"("verdict":"losses","check":false,"unfinished":null,)"
            R"("rows":{"read":2,"converted":1,"changed":0,"dropped":1,"refused":0,)"
            R"("not_looked_at":0},)"
            R"("tables":[{"title":"A TABLE","line":3,"id":7,"message":null,)"
            R"("rows":{"read":2,"converted":1,"changed":0,"dropped":1,"refused":0,)"
            R"("not_looked_at":0},"reasons":[{"code":"lost","rows":1}]}],)"
            R"("losses":[{"table":0,"position":2,"line":5,"label":"Frame=2","reason":"lost"}],)"
            R"("numbers":{"joints":[{"label":"A","number":1},{"label":"B","number":2}],)"
            R"("elements":[{"kind":"frame","label":"F","number":1},)"
            R"({"kind":"solid","label":"S","number":2}]}})");
}

TEST(ReportTest, WhatWasCheckedOrLeftUnfinishedSaysSo) {
  FileFacts facts = FactsOf("a.s2k");
  facts.IsCheck = true;
  EXPECT_THAT(TextOfFile(facts, {}, {}), HasSubstr(R"("check":true,"unfinished":null,)"));
  facts.IsCheck = false;
  facts.Result = S2K2NGT_STOPPED;
  facts.Unfinished = "a.ngt";
  EXPECT_THAT(TextOfFile(facts, {}, {}),
              HasSubstr(R"("verdict":"stopped","check":false,"unfinished":"a.ngt",)"));
}

TEST(ReportTest, FilesStandOneBehindTheOtherWithTheReasonsThatOccur) {
  // In the list of all reasons the second stands before the first.
  const Reason& early = *s2k2ngt::Reasons().begin();
  const Reason& late = *(s2k2ngt::Reasons().end() - 1);
  const ReportPart first = PartOf(FactsOf("a.s2k"), AccountWith(2, late), {});
  const ReportPart second = PartOf(FactsOf("b.s2k"), AccountWith(3, early), {});
  const std::string text = JsonReport({&first, &second});
  EXPECT_THAT(text,
              StartsWith(R"({"schema":"s2k2ngt-report","version":1,"program":{"name":"s2k2ngt",)"
                         R"("version":")" +
                         std::string(s2k2ngt_version()) + R"("},"files":[)" + first.Json + "," +
                         second.Json + R"(],"reasons":[{"code":")" + early.Code));
  EXPECT_TRUE(text.ends_with("}]}\n"));
  const ordered_json reasons = ordered_json::parse(text)["reasons"];
  ASSERT_EQ(reasons.size(), 2U);
  EXPECT_EQ(reasons[1]["code"], late.Code);
  EXPECT_EQ(reasons[1]["text"], late.Text);
}

TEST(ReportTest, OfNoFilesThereIsAReportToo) {
  const ordered_json report = ordered_json::parse(JsonReport({}));
  EXPECT_TRUE(report["files"].empty());
  EXPECT_TRUE(report["reasons"].empty());
}

TEST(ReportTest, ThePageHasAnOverviewAndThePartsOfAllFiles) {
  const ReportPart first =
      PartOf(FactsOf("a.s2k"), AccountWith(2, *s2k2ngt::Reasons().begin()), {});
  const ReportPart second = PartOf(FactsOf("b.s2k"), AccountWith(1'000), {});
  std::ostringstream out;
  WritePage({&first, &second}, out);
  const std::string page = out.str();
  EXPECT_THAT(page, HasSubstr("data-count=\"read\" data-file=\"1\">1,000</span></td>"));
  EXPECT_LT(page.find("<section class=\"file\" id=\"file-0\">"),
            page.find("<section class=\"file\" id=\"file-1\">"));
  EXPECT_THAT(page, HasSubstr("Frame=2<"));
  EXPECT_TRUE(page.ends_with("</html>\n"));
}

}  // namespace
