#include "support/command_run.h"
#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/s2k2ngt.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

constexpr const char* kBuiltInText = "Error : DLL is not loaded. check message dll!";

/// A copy of the shared library in a folder of its own, loaded as a host loads it.
class LoadedLibrary {
 public:
  /// `catalogue` is the library to lie beside it as its message catalogue, and `installed` the one
  /// to lie where an installation keeps it; none when empty.
  explicit LoadedLibrary(const std::string& catalogue, const std::string& installed = "") {
    fs::copy_file(S2K2NGT_LIBRARY, m_Folder.Path() / "libs2k2ngt.so");
    if (!catalogue.empty()) {
      fs::copy_file(catalogue, m_Folder.Path() / "Convertmsg.DLL");
    }
    if (!installed.empty()) {
      fs::create_directory(m_Folder.Path() / "s2k2ngt");
      fs::copy_file(installed, m_Folder.Path() / "s2k2ngt" / "Convertmsg.DLL");
    }
    m_Library = dlopen(m_Folder.FileName("libs2k2ngt.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    if (m_Library == nullptr) {
      throw std::runtime_error(dlerror());
    }
  }
  ~LoadedLibrary() { dlclose(m_Library); }
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;

  template <class Function>
  Function* Find(const char* name) const {
    return reinterpret_cast<Function*>(dlsym(m_Library, name));
  }

  /// The texts of the messages that a run over these tables shows.
  std::vector<std::string> TextsOfRun(const std::string& tables) {
    const std::string input = m_Folder.FileName("model.s2k");
    WriteFile(input, FileWith(tables));
    std::vector<std::string> texts;
    s2k2ngt_host host = {};
    host.size = sizeof host;
    host.context = &texts;
    host.message = [](void* context, const char*, const char* text) {
      static_cast<std::vector<std::string>*>(context)->emplace_back(text);
    };
    EXPECT_EQ(Find<decltype(s2k2ngt_convert)>("s2k2ngt_convert")(input.c_str(), &host, nullptr, 0),
              0);
    EXPECT_TRUE(fs::exists(m_Folder.FileName("model.ngt")));
    return texts;
  }

 private:
  TemporaryFolder m_Folder;
  void* m_Library = nullptr;
};

const std::string kReplacedOffset = R"(
TABLE:  "CONNECTIVITY - FRAME"
   Frame=B1   JointI=1   JointJ=2

TABLE:  "FRAME OFFSET ALONG LENGTH ASSIGNMENTS"
   Frame=B1   LengthI=0.1   LengthJ=0

TABLE:  "FRAME INSERTION POINT ASSIGNMENTS"
   Frame=B1   CoordSys=GLOBAL   JtOffsetZI=0.2
)";

TEST(Library, ExportsItsEntryPointsUnderTheirNames) {
  const LoadedLibrary library("");
  for (const char* name : {"ConvertFile", "ConvertFile2", "s2k2ngt_convert",
                           "s2k2ngt_convert_chosen", "s2k2ngt_version", "s2k2ngt_message_count",
                           "s2k2ngt_message_key", "s2k2ngt_message_text"}) {
    EXPECT_NE(library.Find<void()>(name), nullptr) << name;
  }
}

/// What the entry points return when no file is chosen.
constexpr const char* kDismissed =
    "ConvertFile 1\n"
    "ConvertFile2 1 as it was\n"
    "s2k2ngt_convert_chosen 1 as it was\n"
    "s2k2ngt_convert_chosen 1\n";

TEST(Library, EntryPointsWithoutATerminalToAskOnEndAsDismissed) {
  const CommandRun run = RunCommand({.Words = {S2K2NGT_ENTRY_POINT_HOST}});
  EXPECT_EQ(run.Out, kDismissed);
}

TEST(Library, EntryPointsAskForTheFileOnATerminal) {
  const TemporaryFolder folder;
  WriteFile(folder.FileName("tower.s2k"), FileWith(""));
  const CommandRun run = RunCommand({.Words = {S2K2NGT_ENTRY_POINT_HOST},
                                     .Folder = folder.Path(),
                                     .OnTerminal = true,
                                     .Input = "tower.s2k\nno-such-file\ntower.s2k\ntower.s2k\n"
                                              "tower.s2k\n"});
  EXPECT_EQ(run.Out,
            "ConvertFile 0\n"
            "ConvertFile2 0 tower.ngt\n"
            "s2k2ngt_convert_chosen 0 tower.ngt\n"
            "the buffer for the path of the output is too small\n"
            "s2k2ngt_convert_chosen -1\n");
  EXPECT_THAT(run.Err, testing::HasSubstr("SAP2000 V8 text file (.s2k) to convert: "));
  EXPECT_THAT(run.Err, testing::HasSubstr("There is no file no-such-file"));
}

TEST(Library, EntryPointsEndAsDismissedWhenATerminalNamesNoFile) {
  // An empty line, and the end of the input.
  for (const char* input : {"\n\n\n\n", "\x04\x04\x04\x04"}) {
    const CommandRun run =
        RunCommand({.Words = {S2K2NGT_ENTRY_POINT_HOST}, .OnTerminal = true, .Input = input});
    EXPECT_EQ(run.Out, kDismissed);
  }
}

TEST(Library, LoadsTheCatalogueThatLiesBesideIt) {
  LoadedLibrary library(S2K2NGT_CATALOGUE);
  const std::vector<std::string> texts = library.TextsOfRun(kReplacedOffset);
  // The reminder, the replaced offset, the renumbering, the local axes.
  EXPECT_THAT(texts, SizeIs(4));
  EXPECT_THAT(texts, Each(testing::Not(kBuiltInText)));
  EXPECT_THAT(texts[1], testing::HasSubstr("B1"));
}

TEST(Library, LoadsTheCatalogueOfAnInstallation) {
  LoadedLibrary library("", S2K2NGT_CATALOGUE);
  EXPECT_THAT(library.TextsOfRun(kReplacedOffset)[1], testing::HasSubstr("B1"));
}

TEST(Library, CatalogueBesideItGoesBeforeThatOfAnInstallation) {
  LoadedLibrary library(S2K2NGT_CATALOGUE, S2K2NGT_CATALOGUE_OF_ANOTHER);
  EXPECT_THAT(library.TextsOfRun(kReplacedOffset)[1],
              testing::StartsWith("Frame B1 already had end offsets"));
}

TEST(Library, WithoutACatalogueEveryMessageShowsTheBuiltInText) {
  LoadedLibrary library("");
  EXPECT_THAT(library.TextsOfRun(kReplacedOffset),
              ElementsAre(kBuiltInText, kBuiltInText, kBuiltInText, kBuiltInText));
}

TEST(Library, CatalogueWithoutItsExportIsAsGoodAsNone) {
  LoadedLibrary library(S2K2NGT_CATALOGUE_WITHOUT_EXPORT);
  EXPECT_THAT(library.TextsOfRun(kReplacedOffset),
              ElementsAre(kBuiltInText, kBuiltInText, kBuiltInText, kBuiltInText));
}

TEST(Library, ArgumentTakesThePlaceOfTheFirstPlaceholderOfAText) {
  LoadedLibrary library(S2K2NGT_CATALOGUE_OF_ANOTHER);
  EXPECT_THAT(library.TextsOfRun(kReplacedOffset),
              ElementsAre("%s%n%x", "100%n of frame B1, not %s, %d", "%s%n%x", ""));
}

TEST(Library, CanBeLoadedAndUnloadedAgainAndAgain) {
  for (int time = 0; time < 3; ++time) {
    LoadedLibrary library(S2K2NGT_CATALOGUE);
    EXPECT_THAT(library.TextsOfRun(""), SizeIs(1));
  }
}

TEST(Library, ServesAHostWrittenInC) {
  const TemporaryFolder folder;
  WriteFile(folder.FileName("tower.s2k"), FileWith(""));
  const CommandRun run =
      RunCommand({.Words = {S2K2NGT_C_HOST, "tower.s2k"}, .Folder = folder.Path()});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Out, "IDS_S2KV8_Export_must_be_executed has a text\n0 1 tower.ngt\n");
}

}  // namespace
