#include "reports.h"

#include "common/files.h"
#include "files_of_call.h"
#include "page.h"

#include <algorithm>
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

/// Where a report is written until it is whole, so that an earlier one stays until then.
std::filesystem::path UnfinishedName(const std::string& name) {
  return s2k2ngt::NativePath(name + ".part");
}

std::string SystemError() { return std::strerror(errno); }

/// Writes a report in the place of one that is there; else gives the reason.
std::optional<std::string> WhyNotReplaced(const std::string& name, const std::string& bytes) {
  const std::filesystem::path unfinished = UnfinishedName(name);
  std::ofstream file(unfinished, std::ios::binary);
  file << bytes;
  file.close();
  std::error_code error;
  if (!file) {
    const std::string reason = SystemError();
    std::filesystem::remove(unfinished, error);
    return reason;
  }
  std::filesystem::rename(unfinished, s2k2ngt::NativePath(name), error);
  if (error) {
    std::error_code unknown;
    std::filesystem::remove(unfinished, unknown);
    return error.message();
  }
  return std::nullopt;
}

/// True when the path is another name of the file.
bool IsSameFile(const std::string& path, const std::string& file) {
  std::error_code noSuchFile;
  return std::filesystem::equivalent(s2k2ngt::NativePath(path), s2k2ngt::NativePath(file),
                                     noSuchFile);
}

/// Why a report will not be written, of what can be known before.
std::optional<std::string> WhyNotWritable(const std::string& report) {
  std::error_code unknown;
  if (std::filesystem::is_directory(s2k2ngt::NativePath(report), unknown)) {
    return "the report would replace a folder";
  }
  const bool isWritable = std::ofstream(UnfinishedName(report)).is_open();
  const std::string reason = SystemError();
  std::filesystem::remove(UnfinishedName(report), unknown);
  return isWritable ? std::nullopt : std::optional("cannot write the report: " + reason);
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
    if (known.WhyNotWritten({}, report) ||
        std::ranges::any_of(namesOfCall,
                            [&](const std::string& name) { return IsSameFile(report, name); })) {
      return report + ": the report would replace another file of this call";
    }
    if (const std::optional<std::string> reason = WhyNotWritable(report)) {
      return report + ": " + *reason;
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
    if (const std::optional<std::string> reason = WhyNotReplaced(name, text)) {
      PrintLine(std::cerr, name + ": cannot write the report: " + *reason);
      areWritten = false;
    }
  }
  return areWritten;
}
