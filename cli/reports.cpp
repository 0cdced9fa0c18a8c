#include "reports.h"

#include "common/files.h"
#include "files_of_call.h"
#include "page.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

#include <nlohmann/json.hpp>

using nlohmann::ordered_json;

namespace {

bool IsPage(const std::string& name) { return name.ends_with(".html"); }

bool Write(const std::string& name, const std::string& bytes) {
  std::ofstream file(s2k2ngt::NativePath(name), std::ios::binary);
  file << bytes;
  file.close();
  if (!file) {
    PrintLine(std::cerr, name + ": cannot write the report: " + std::strerror(errno));
  }
  return static_cast<bool>(file);
}

}  // namespace

bool IsReportName(const std::string& name) { return IsPage(name) || name.ends_with(".json"); }

std::optional<std::string> WhyNoReport(const std::vector<FileToConvert>& files,
                                       const CommandOptions& options) {
  std::vector<std::string> namesOfCall;
  for (const FileToConvert& file : files) {
    namesOfCall.push_back(file.Input);
    if (!options.Check) {
      namesOfCall.push_back(file.Output);
    }
  }
  FilesOfCall known(namesOfCall);
  for (const std::string& report : options.Reports) {
    if (known.WhyNotWritten({}, report)) {
      return report + ": the report would replace another file of this call";
    }
    const std::filesystem::path folder = s2k2ngt::NativePath(report).parent_path();
    std::error_code unknown;
    if (!folder.empty() && !std::filesystem::is_directory(folder, unknown)) {
      return report + ": the folder of the report is not there";
    }
  }
  return std::nullopt;
}

bool WriteReports(const std::vector<FileResult>& results, const CommandOptions& options) {
  if (options.Reports.empty()) {
    return true;
  }
  std::vector<ordered_json> files;
  std::vector<std::string> drawings;
  for (const FileResult& result : results) {
    files.push_back(ordered_json::parse(result.Part.Json));
    drawings.push_back(result.Part.Drawings);
  }
  const ordered_json report = ReportOf(files);
  bool areWritten = true;
  for (const std::string& name : options.Reports) {
    const std::string text = IsPage(name) ? PageOf(report, drawings) : TextOf(report) + '\n';
    areWritten = Write(name, text) && areWritten;
  }
  return areWritten;
}
