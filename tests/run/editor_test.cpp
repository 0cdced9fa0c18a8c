#include "run/editor.h"

#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace s2k2ngt {
namespace {

TEST(Editor, CommandLineNamesEditorAndFileInQuotes) {
  EXPECT_EQ(EditorCommandLine("C:\\my models\\tower.ngt"),
            "\"ZEdit.exe\" \"C:\\my models\\tower.ngt\" ");
}

/// A folder on the search path that may hold an editor.
class EditorTest : public testing::Test {
 protected:
  EditorTest() { setenv("PATH", (m_Folder.Path().string() + ":/usr/bin:/bin").c_str(), 1); }

  TemporaryFolder m_Folder;
};

TEST_F(EditorTest, IsStartedWithTheFileAndWithoutOurHandles) {
  const std::string editor = m_Folder.FileName("ZEdit.exe");
  const std::string told = m_Folder.FileName("told");
  WriteFile(editor, "#!/bin/sh\nprintf '%s|%s|' \"$#\" \"$1\" > '" + told +
                        ".part'\n[ -e /proc/self/fd/77 ] && echo inherited >> '" + told +
                        ".part'\nmv '" + told + ".part' '" + told + "'\n");
  std::filesystem::permissions(editor, std::filesystem::perms::owner_all);
  ASSERT_EQ(dup2(STDERR_FILENO, 77), 77);
  EXPECT_EQ(CConverter::LaunchEditor("my models/tower.ngt"), 1);
  close(77);
  ASSERT_GT(wait(nullptr), 0);
  EXPECT_EQ(ReadFile(told), "1|my models/tower.ngt|");
}

TEST_F(EditorTest, ThatIsNotThereIsNotStarted) {
  EXPECT_EQ(CConverter::LaunchEditor("tower.ngt"), 0);
}

}  // namespace
}  // namespace s2k2ngt
