#include "page.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;

ordered_json Rows(int converted, int changed = 0, int dropped = 0, int refused = 0,
                  int notLookedAt = 0) {
  return {{"read", converted + changed + dropped + refused + notLookedAt},
          {"converted", converted},
          {"changed", changed},
          {"dropped", dropped},
          {"refused", refused},
          {"not_looked_at", notLookedAt}};
}

/// A file of which all went over; tests change what they are about.
ordered_json WholeFile(const std::string& input = "models/frame.s2k") {
  return {{"input", input},
          {"output", "models/frame.ngt"},
          {"result", 0},
          {"error", nullptr},
          {"verdict", "whole"},
          {"check", false},
          {"unfinished", nullptr},
          {"messages", ordered_json::array()},
          {"rows", Rows(5)},
          {"tables",
           {{{"title", "JOINT COORDINATES"},
             {"line", 3},
             {"id", 100},
             {"message", nullptr},
             {"rows", Rows(5)},
             {"reasons", ordered_json::array()}}}},
          {"losses", ordered_json::array()},
          {"numbers", {{"joints", nullptr}, {"elements", nullptr}}}};
}

/// A file of which as many rows as `rows` are dropped for the reason "r".
ordered_json FileWithDropped(int rows) {
  ordered_json file = WholeFile();
  file["verdict"] = "losses";
  file["rows"] = file["tables"][0]["rows"] = Rows(5, 0, rows);
  file["tables"][0]["reasons"] = {{{"code", "r"}, {"rows", rows}}};
  for (int row = 1; row <= rows; ++row) {
    file["losses"].push_back({{"table", 0},
                              {"position", row},
                              {"line", 3 + row},
                              {"label", "Joint=J" + std::to_string(row)},
                              {"reason", "r"}});
  }
  return file;
}

ordered_json ReasonR(const char* fate = "dropped", bool isLoss = true) {
  return {{"code", "r"},
          {"fate", fate},
          {"loss", isLoss},
          {"text", "It was in the way."},
          {"advice", "Put it back."}};
}

std::string Page(const std::vector<ordered_json>& files, const std::vector<ordered_json>& reasons,
                 const std::vector<std::string>& drawings = {}) {
  // Of a file its account has all members that its summary has.
  std::string page = BeginningOfPage({{"name", "s2k2ngt"}, {"version", "9.8.7"}}, files);
  for (std::size_t number = 0; number < files.size(); ++number) {
    page += PartOfPage(files[number], number, reasons,
                       number < drawings.size() ? drawings[number] : "");
  }
  return page + kEndOfPage;
}

std::string Page(const ordered_json& file) { return Page({file}, {ReasonR()}); }

/// The page without its tags, so that it reads as people read it.
std::string Words(const std::string& page) {
  std::string words;
  bool isTag = false;
  for (const char c : page) {
    isTag = c == '<' || (isTag && c != '>');
    if (!isTag && c != '>') {
      words += c;
    }
  }
  return words;
}

// The page as a whole

TEST(PageTest, ItAsksForNothingElse) {
  const std::string page = Page(FileWithDropped(3));
  EXPECT_THAT(page, HasSubstr("Content-Security-Policy\" content=\"default-src 'none'; style-src "
                              "'unsafe-inline'; base-uri 'none'; form-action 'none'\""));
  for (const char* asking :
       {"<script", "src=", "<link", "@import", "url(", "http://", "https://"}) {
    EXPECT_THAT(page, Not(HasSubstr(asking)));
  }
}

TEST(PageTest, ItsTitleTellsTheFileAndItsVerdict) {
  EXPECT_THAT(Page(WholeFile()), HasSubstr("<title>frame.s2k: converted without loss</title>"));
  EXPECT_THAT(Page(FileWithDropped(1)),
              HasSubstr("<title>frame.s2k: converted with losses</title>"));
}

TEST(PageTest, ItTellsTheVersionOfTheProgram) {
  EXPECT_THAT(Page(WholeFile()), HasSubstr("by s2k2ngt 9.8.7"));
}

TEST(PageTest, EveryTextIsEscaped) {
  const std::string hostile = "<script>\"&'\x01\xC3(";
  const std::string shown = "&lt;script&gt;&quot;&amp;&#39;\uFFFD\uFFFD(";
  ordered_json file = FileWithDropped(1);
  file["input"] = file["output"] = file["error"] = file["unfinished"] = hostile;
  file["messages"] = {{{"key", hostile}, {"text", hostile}}};
  file["tables"][0]["title"] = hostile;
  file["tables"][0]["message"] = hostile;
  file["losses"][0]["label"] = hostile;
  file["numbers"]["joints"] = {{{"label", hostile}, {"number", 1}}};
  file["numbers"]["elements"] = {{{"kind", "frame"}, {"label", hostile}, {"number", 1}}};
  const std::string page = Page(file);
  EXPECT_THAT(page, Not(HasSubstr("<script")));
  EXPECT_THAT(page, Not(HasSubstr("\x01")));
  std::size_t count = 0;
  for (std::size_t at = page.find(shown); at != std::string::npos; at = page.find(shown, at + 1)) {
    ++count;
  }
  // Title, heading, path in and out, error, what is unfinished, message with its key, table twice,
  // loss, two numbers.
  EXPECT_EQ(count, 13U);
}

// The verdict

TEST(PageTest, OfAWholeFileAllRowsWentOver) {
  EXPECT_THAT(Words(Page(WholeFile())), HasSubstr("Of 5 rows read, all went over as they stand."));
}

TEST(PageTest, TheFatesThatOccurAreTold) {
  ordered_json file = FileWithDropped(1);
  file["rows"] = Rows(1234, 2, 1, 0, 1);
  EXPECT_THAT(Words(Page(file)),
              HasSubstr("Of 1,238 rows read, 1,234 went over as they stand, 2 went over changed, 1 "
                        "was dropped, 1 was never looked at. Parts of the model were lost or "
                        "altered"));
}

TEST(PageTest, RowsWithoutLossLeaveAFileWhole) {
  ordered_json file = WholeFile();
  file["rows"] = Rows(1, 0, 0, 0, 2);
  EXPECT_THAT(Words(Page(file)),
              HasSubstr("2 were never looked at. No part of the model was lost"));
}

TEST(PageTest, AFailedFileTellsItsError) {
  ordered_json file = WholeFile();
  file["verdict"] = "failed";
  file["output"] = nullptr;
  file["error"] = "frame.s2k:4: it is broken";
  const std::string page = Page(file);
  EXPECT_THAT(page, HasSubstr("<p class=\"error\">frame.s2k:4: it is broken</p>"));
  EXPECT_THAT(Words(page), HasSubstr("not converted"));
  EXPECT_THAT(Words(page), HasSubstr("No output was written."));
}

TEST(PageTest, AFileThatWasOnlyCheckedSaysSo) {
  EXPECT_THAT(Page(WholeFile()), Not(HasSubstr("Checked only")));
  ordered_json file = WholeFile();
  file["output"] = nullptr;
  file["check"] = true;
  const std::string words = Words(Page(file));
  EXPECT_THAT(words, HasSubstr("\nChecked only: no output was written.\n"));
  EXPECT_THAT(words, Not(HasSubstr("No output was written.")));
}

TEST(PageTest, AnOutputThatIsLeftUnfinishedIsNamed) {
  EXPECT_THAT(Page(WholeFile()), Not(HasSubstr("unfinished")));
  ordered_json file = WholeFile();
  file["verdict"] = "stopped";
  file["output"] = nullptr;
  file["unfinished"] = "models/<frame>.ngt";
  const std::string page = Page(file);
  EXPECT_THAT(page, HasSubstr("<p class=\"error\"><bdi>models/&lt;frame&gt;.ngt</bdi> is left "
                              "unfinished.</p>"));
  EXPECT_THAT(page, Not(HasSubstr("No output was written.")));
}

TEST(PageTest, AFileWithoutRowsSaysSo) {
  ordered_json file = WholeFile();
  file["rows"] = Rows(0);
  file["tables"] = ordered_json::array();
  EXPECT_THAT(Words(Page(file)), HasSubstr("The file has 0 rows in any table"));
  EXPECT_THAT(Words(Page(file)), Not(HasSubstr("All tables")));
}

// What was lost

TEST(PageTest, AReasonStandsWithItsAdviceCodeAndRows) {
  const std::string words = Words(Page(FileWithDropped(2)));
  EXPECT_THAT(words, HasSubstr("It was in the way.\nPut it back.\n2 rows in 1 table r\n"));
  EXPECT_THAT(words, HasSubstr("JOINT COORDINATES line 3, 2 rows\n\nJoint=J1 line 4\nJoint=J2 line "
                               "5\n"));
  EXPECT_THAT(Words(Page(FileWithDropped(1))), HasSubstr("1 row in 1 table r"));
}

TEST(PageTest, NumbersSayWhichOfTheReportTheyAre) {
  const std::string page = Page(FileWithDropped(2));
  for (const char* number :
       {"data-count=\"dropped\" data-file=\"0\">2<", "data-count=\"read\" data-file=\"0\">7<",
        "data-count=\"dropped\" data-file=\"0\" data-table=\"0\">2<",
        "data-count=\"rows\" data-file=\"0\" data-reason=\"r\">2<",
        "data-count=\"rows\" data-file=\"0\" data-table=\"0\" data-reason=\"r\">2<",
        "data-count=\"title-line\" data-file=\"0\" data-table=\"0\">3<",
        "data-count=\"line\" data-file=\"0\" data-loss=\"1\">5<"}) {
    EXPECT_THAT(page, HasSubstr(number));
  }
}

TEST(PageTest, SectionsStandFromTheWorstToWhatIsNoLoss) {
  ordered_json file = WholeFile();
  file["verdict"] = "losses";
  std::vector<ordered_json> reasons;
  for (const char* fate : {"not_looked_at", "refused", "changed", "dropped"}) {
    file["tables"][0]["reasons"].push_back({{"code", fate}, {"rows", 1}});
    reasons.push_back(ReasonR(fate));
    reasons.back()["code"] = fate;
  }
  reasons.push_back(ReasonR("dropped", false));
  file["tables"][0]["reasons"].push_back({{"code", "r"}, {"rows", 1}});
  const std::string page = Page({file}, reasons);
  std::size_t at = 0;
  for (const char* heading : {">Dropped</h3>", ">Changed</h3>", ">Refused</h3>",
                              ">Never looked at</h3>", ">No loss</h3>", ">All tables</h3>"}) {
    at = page.find(heading, at);
    ASSERT_NE(at, std::string::npos) << heading;
  }
}

TEST(PageTest, ARefusedTableStandsWithItsMessage) {
  ordered_json file = WholeFile();
  file["tables"][0]["message"] = "IDS_X";
  file["tables"][0]["reasons"] = {{{"code", "r"}, {"rows", 5}}};
  file["messages"] = {{{"key", "IDS_X"}, {"text", "There is none of these."}}};
  EXPECT_THAT(Page({file}, {ReasonR("refused")}),
              HasSubstr("<span class=\"message\">There is none of these.</span>"));
}

TEST(PageTest, AReasonOfAnotherFileIsNotTold) {
  EXPECT_THAT(Page(WholeFile()), Not(HasSubstr("It was in the way.")));
}

TEST(PageTest, LongListsGoBehindASummaryAndEndAtTwoHundred) {
  EXPECT_THAT(Page(FileWithDropped(36)), Not(HasSubstr("<details>")));
  const std::string some = Page(FileWithDropped(37));
  EXPECT_THAT(Words(some), HasSubstr("13 more\n"));
  EXPECT_THAT(some, HasSubstr("Joint=J37<"));
  const std::string many = Page(FileWithDropped(1300));
  EXPECT_THAT(Words(many), HasSubstr("1,276 more\n"));
  EXPECT_THAT(many, HasSubstr("Joint=J200<"));
  EXPECT_THAT(many, Not(HasSubstr("Joint=J201<")));
  EXPECT_THAT(Words(many), HasSubstr("1,100 more are in the JSON report alone."));
}

// Tables, numbers and messages

TEST(PageTest, ATableHasABarOfItsFates) {
  EXPECT_THAT(Page(FileWithDropped(2)),
              HasSubstr("aria-label=\"5 Converted, 2 Dropped\"><i class=\"converted\" "
                        "style=\"flex-grow:5\"></i><i class=\"dropped\" style=\"flex-grow:2\">"));
}

TEST(PageTest, NewNumbersAreToldOnlyWhereLabelsHaveBecomeSuch) {
  EXPECT_THAT(Page(WholeFile()), Not(HasSubstr("New numbers")));
  ordered_json file = WholeFile();
  file["numbers"]["joints"] = {{{"label", "A"}, {"number", 1}}, {{"label", "B"}, {"number", 2}}};
  file["numbers"]["elements"] = {{{"kind", "area"}, {"label", "S1"}, {"number", 3}}};
  const std::string words = Words(Page(file));
  EXPECT_THAT(words, HasSubstr("Joints\n2 labels became numbers"));
  EXPECT_THAT(words, HasSubstr("A → 1\nB → 2\n"));
  EXPECT_THAT(words, HasSubstr("area S1 → 3\n"));
}

TEST(PageTest, MessagesStandInTheOrderShown) {
  ordered_json file = WholeFile();
  file["messages"] = {{{"key", "IDS_2"}, {"text", "Second to none."}},
                      {{"key", "IDS_1"}, {"text", "First of all."}}};
  EXPECT_THAT(Words(Page(file)),
              HasSubstr("2 messages were shown, in this order.\n\nSecond to none. IDS_2\nFirst of "
                        "all. IDS_1\n"));
}

TEST(PageTest, ADrawingStandsAsItIs) {
  EXPECT_THAT(Page({WholeFile()}, {}, {"<svg>house</svg>"}), HasSubstr("<svg>house</svg>"));
  EXPECT_THAT(Page({WholeFile()}, {}, {""}), Not(HasSubstr("The converted model")));
}

// Several files

TEST(PageTest, SeveralFilesHaveAnOverviewWithALinkToEach) {
  const std::string page = Page({WholeFile("a.s2k"), FileWithDropped(2), WholeFile("c.s2k")},
                                {ReasonR()}, {"<svg>a</svg>", "", "<svg>c</svg>"});
  EXPECT_THAT(page, HasSubstr("<title>Report of 3 files</title>"));
  EXPECT_THAT(Words(page), HasSubstr("3 files\n"));
  EXPECT_THAT(Words(page), HasSubstr("2 converted without loss\n1 converted with losses\n"));
  for (const char* number : {"0", "1", "2"}) {
    EXPECT_THAT(page, HasSubstr("<a href=\"#file-" + std::string(number) + "\">"));
    EXPECT_THAT(page,
                HasSubstr("<section class=\"file\" id=\"file-" + std::string(number) + "\">"));
  }
  EXPECT_LT(page.find("<svg>a</svg>"), page.find("id=\"file-1\""));
  EXPECT_GT(page.find("<svg>c</svg>"), page.find("id=\"file-2\""));
  EXPECT_THAT(page, HasSubstr("data-count=\"dropped\" data-file=\"1\" data-table=\"0\">2<"));
}

TEST(PageTest, OneFileHasNoOverview) {
  EXPECT_THAT(Page(WholeFile()), Not(HasSubstr("href=\"#file-0\"")));
}

TEST(PageTest, NoFilesAreAPageToo) { EXPECT_THAT(Words(Page({}, {})), HasSubstr("0 files")); }

}  // namespace
