#include "pages.h"

#include "common/messages.h"
#include "message_conditions.h"
#include "source/table_catalogue.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/account.h>

#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt::reference {
namespace {

using testing::HasSubstr;

std::string PageInDocs(const char* name) {
  return ReadFile((std::filesystem::path(S2K2NGT_DOCS) / name).string());
}

constexpr const char* kHowToWrite = "run scripts/write-docs";

TEST(Pages, OfSourceTablesIsWhatTheDeclarationsGive) {
  EXPECT_EQ(PageInDocs("source_tables.md"), SourceTablesPage()) << kHowToWrite;
}

TEST(Pages, OfMessagesIsWhatTheDeclarationsGive) {
  EXPECT_EQ(PageInDocs("messages.md"), MessagesPage()) << kHowToWrite;
}

TEST(Pages, OfReasonsIsWhatTheDeclarationsGive) {
  EXPECT_EQ(PageInDocs("reasons.md"), ReasonsPage()) << kHowToWrite;
}

TEST(ReasonsPage, TellsAReasonInARow) {
  EXPECT_THAT(
      ReasonsPage(),
      HasSubstr("| `table-without-model-data` | not looked at | no | The table holds settings, "
                "groups, grids, design data, or what other tables say as well. | There is nothing "
                "to do for the analysis. |\n"));
}

TEST(ReasonsPage, HasNoTextThatWouldBreakItsTable) {
  for (const Reason& reason : Reasons()) {
    EXPECT_EQ(std::string(reason.Text).find('|'), std::string::npos) << reason.Code;
    EXPECT_EQ(std::string(reason.Advice).find('|'), std::string::npos) << reason.Code;
  }
}

TEST(SourceTablesPage, HasARowForEachTableOfTheCatalogue) {
  std::size_t tables = 0;
  for (const TableKeyword& keyword : kKeywords) {
    tables += keyword.Words.empty() ? 1 : keyword.Words.size();
  }
  const std::string page = SourceTablesPage();
  std::size_t rows = 0;
  for (std::size_t at = page.find("\n| `"); at != std::string::npos;
       at = page.find("\n| `", at + 1)) {
    ++rows;
  }
  EXPECT_EQ(rows, tables);
}

TEST(SourceTablesPage, TellsWhatBecomesOfATable) {
  const std::string page = SourceTablesPage();
  for (const char* row :
       {"| `AREA` | `MASS` | converted | Area, MassPerArea |  |\n",
        "| `MASSES` | `1` | converted | MassFrom, LoadCase, Multiplier |  |\n",
        "| `ANALYSIS` |  | used in part | Case, Type, InitialCond | ModalCase |\n",
        "| `CASE` | `MODAL 2` | read and not used |  | Case, LoadType, LoadName, TargetPar, "
        "StatCorrect |\n",
        "| `GROUPS` | `1` | read and not used |  |  |\n",
        "| `FUNCTION` | `NEHRP97` | refused with `IDS_S2KV8_RESP_NHERP97_Not_Convert` |  | Name, "
        "Period, Accel, SDS, SD1 |\n",
        "| `AREA` | `PORE` | refused with `IDS_S2KV8_AREA_PrPrsr_Not_Convert` |  |  |\n",
        "| `GRID` |  | ignored |  |  |\n",
        "| `COORDINATE` |  | checked | Type | Name, X, Y, Z, AboutZ, AboutY, AboutX |\n",
        "| `JOINT` | `COORDINATES` | used in part | Joint, CoordType, XorR, Y, Z, "
        "SpecialJt, GlobalX, GlobalY, GlobalZ | CoordSys, T |\n",
        "| `AUTO` | `SEISMIC - UBC97 ISOLATED` | never met: see above |  |  |\n"}) {
    EXPECT_THAT(page, HasSubstr(row));
  }
}

TEST(MessagesPage, HasEachMessageOnceAndInTheOrderOfTheKeys) {
  const std::string page = MessagesPage();
  std::size_t at = 0;
  for (std::size_t index = 0; index < kMessageKeys.size(); ++index) {
    EXPECT_EQ(kMessageConditions[index].Key, kMessageKeys[index]);
    const std::string head = "\n## " + std::string(kMessageKeys[index]) + "\n";
    const std::size_t next = page.find(head, at);
    ASSERT_NE(next, std::string::npos) << head;
    at = next + head.size();
    EXPECT_EQ(page.find(head, at), std::string::npos);
  }
}

}  // namespace
}  // namespace s2k2ngt::reference
