#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/s2k2ngt.h>

#include <filesystem>
#include <numeric>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

void NoteTable(void* context, const s2k2ngt_table* table) {
  static_cast<Lines*>(context)->push_back(std::string(table->title) + " at " +
                                          std::to_string(table->line) + ": " +
                                          std::to_string(table->rows) + " " + table->message);
  EXPECT_EQ(std::accumulate(std::begin(table->by_fate), std::end(table->by_fate), std::uint64_t{0}),
            table->rows);
}

void NoteLoss(void* context, const s2k2ngt_loss* loss) {
  static_cast<Lines*>(context)->push_back(
      std::to_string(loss->rows) + " " + loss->label + " at " + std::to_string(loss->line) + "/" +
      std::to_string(loss->position) + ": " + loss->code + " " + std::to_string(loss->fate) + " " +
      std::to_string(loss->is_loss));
  EXPECT_STRNE(loss->text, "");
  EXPECT_STRNE(loss->advice, "");
}

class CAccount : public testing::Test {
 protected:
  s2k2ngt_host Host() {
    s2k2ngt_host host = {};
    host.size = sizeof host;
    host.context = &m_Told;
    return host;
  }
  void WriteInput(std::string_view tables) { WriteFile(m_Input, FileWith(tables)); }
  bool HasOutput() { return std::filesystem::exists(m_Folder.FileName("model.ngt")); }

  TemporaryFolder m_Folder;
  std::string m_Input = m_Folder.FileName("model.s2k");
  Lines m_Told;
};

constexpr std::string_view kThreeTables =
    "TABLE:  \"JOINT COORDINATES\"\n   Joint=1\n   Joint=2\n\n"
    "TABLE:  \"AREA AUTO MESH ASSIGNMENTS\"\n   Area=1\n   Area=2\n\n"
    "TABLE:  \"JOINT COORDINATES\"\n   Joint=3\n";

TEST_F(CAccount, TablesAreToldInTheirOrderEachWithItsLossesBehindIt) {
  WriteInput(kThreeTables);
  s2k2ngt_host host = Host();
  host.table = NoteTable;
  host.loss = NoteLoss;
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &host, nullptr, 0), S2K2NGT_CONVERTED);
  EXPECT_THAT(
      m_Told,
      ElementsAre("JOINT COORDINATES at 3: 2 ", "1 Joint=1 at 4/1: overwritten-by-later-block 2 1",
                  "AREA AUTO MESH ASSIGNMENTS at 7: 2 "
                  "IDS_S2KV8_AREA_AtMesh_Not_Convert",
                  "2  at 7/0: table-refused 3 1", "JOINT COORDINATES at 11: 1 ",
                  "(PROGRAM CONTROL) at 14: 1 ", "1  at 14/0: units-missing 1 1",
                  "(ACTIVE DEGREES OF FREEDOM) at 14: 1 ", "1  at 14/0: freedoms-missing 1 0"));
}

TEST_F(CAccount, TablesAloneAndLossesAloneAreTold) {
  WriteInput(kThreeTables);
  s2k2ngt_host tables = Host();
  tables.table = NoteTable;
  s2k2ngt_convert(m_Input.c_str(), &tables, nullptr, 0);
  EXPECT_EQ(m_Told.size(), 5U);
  m_Told.clear();
  s2k2ngt_host losses = Host();
  losses.loss = NoteLoss;
  s2k2ngt_convert(m_Input.c_str(), &losses, nullptr, 0);
  EXPECT_EQ(m_Told.size(), 4U);
}

TEST_F(CAccount, AHostOfAnOlderVersionIsNotTold) {
  WriteInput(kThreeTables);
  s2k2ngt_host host = Host();
  host.table = NoteTable;
  host.loss = NoteLoss;
  host.size = offsetof(s2k2ngt_host, table);
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &host, nullptr, 0), S2K2NGT_CONVERTED);
  EXPECT_THAT(m_Told, IsEmpty());
}

TEST_F(CAccount, AFileThatIsRefusedHasAnAccountToo) {
  WriteInput("TABLE:  \"JOINT COORDINATES\"\n   Joint=1   CoordType=Cylindrical\n");
  s2k2ngt_host host = Host();
  host.loss = NoteLoss;
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &host, nullptr, 0), S2K2NGT_FAILED);
  EXPECT_THAT(m_Told, ElementsAre("1 Joint=1 at 4/1: row-refused 3 1"));
}

TEST_F(CAccount, ACheckTellsTheSameAndWritesNothing) {
  WriteInput(kThreeTables);
  s2k2ngt_host host = Host();
  host.table = NoteTable;
  host.loss = NoteLoss;
  EXPECT_EQ(s2k2ngt_check(m_Input.c_str(), &host), S2K2NGT_CONVERTED);
  EXPECT_FALSE(HasOutput());
  const Lines ofCheck = m_Told;
  m_Told.clear();
  s2k2ngt_convert(m_Input.c_str(), &host, nullptr, 0);
  EXPECT_TRUE(HasOutput());
  EXPECT_EQ(m_Told, ofCheck);
}

TEST_F(CAccount, ACheckLeavesAnOutputThatIsThere) {
  WriteInput(kThreeTables);
  WriteFile(m_Folder.FileName("model.ngt"), "of an earlier call");
  EXPECT_EQ(s2k2ngt_check(m_Input.c_str(), nullptr), S2K2NGT_CONVERTED);
  EXPECT_EQ(ReadFile(m_Folder.FileName("model.ngt")), "of an earlier call");
}

TEST_F(CAccount, ACheckWithoutAPathFails) {
  EXPECT_EQ(s2k2ngt_check(nullptr, nullptr), S2K2NGT_FAILED);
}

TEST_F(CAccount, NothingThatACallBackThrowsGetsOut) {
  WriteInput(kThreeTables);
  s2k2ngt_host host = Host();
  host.table = [](void* /*context*/, const s2k2ngt_table* /*table*/) { throw 1; };
  EXPECT_EQ(s2k2ngt_convert(m_Input.c_str(), &host, nullptr, 0), S2K2NGT_FAILED);
}

}  // namespace
