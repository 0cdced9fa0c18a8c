// Converts files keeping account and writes the report of all: report_of_file FOLDER FILE.s2k...
// makes FOLDER/report.json and FOLDER/report.html.
#include "drawings.h"
#include "json.h"
#include "page.h"

#include <s2k2ngt/converter.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

class NotingPlatform : public s2k2ngt::Platform {
 public:
  void ShowMessage(const std::string& key, const std::string& text) override {
    Messages.push_back({key, text});
  }
  std::vector<Message> Messages;
};

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments, arguments + count);
  if (words.size() < 3) {
    std::cerr << "usage: report_of_file FOLDER FILE.s2k...\n";
    return EXIT_FAILURE;
  }
  std::vector<nlohmann::ordered_json> files;
  std::vector<std::string> drawings;
  for (std::size_t word = 2; word < words.size(); ++word) {
    NotingPlatform platform;
    s2k2ngt::CConverter converter(platform);
    s2k2ngt::RunOptions options;
    options.WritesOutput = false;
    options.KeepsAccount = true;
    FileFacts facts{words[word], std::nullopt, converter.Run(words[word].c_str(), options), {}, {}};
    facts.Messages = platform.Messages;
    if (facts.Result == s2k2ngt::kFailed) {
      facts.Error = converter.Failure().Describe(words[word]);
    }
    const s2k2ngt::Account account = converter.AccountOfRows();
    const s2k2ngt::Drawing drawing = converter.DrawingOfModel();
    files.push_back(JsonOf(facts, account, drawing));
    drawings.push_back(DrawingsOf(drawing, account));
  }
  const nlohmann::ordered_json report = ReportOf(files);
  const std::filesystem::path folder = words[1];
  std::ofstream(folder / "report.json", std::ios::binary) << TextOf(report) << '\n';
  std::ofstream(folder / "report.html", std::ios::binary) << PageOf(report, drawings);
}
