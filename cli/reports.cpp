#include "reports.h"

#include "common/files.h"
#include "files_of_call.h"
#include "memory_reserve.h"
#include "report.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <new>
#include <ostream>
#include <system_error>

namespace {

bool IsPage(const std::string& name) { return name.ends_with(".html"); }

/// Where a report is written until it is whole, so that an earlier one stays until then: a name
/// that nothing has yet.
std::filesystem::path UnfinishedName(const std::string& name) {
  std::filesystem::path path = s2k2ngt::NativePath(name + ".part");
  std::error_code unknown;
  for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(path, unknown));
       ++number) {
    path = s2k2ngt::NativePath(name + ".part" + std::to_string(number));
  }
  return path;
}

std::string SystemError() { return std::strerror(errno); }

/// The object of a file needs less memory to be destroyed than its text has bytes.
std::size_t SizeOfLargest(const ReportParts& parts) {
  std::size_t size = 0;
  for (const ReportPart* part : parts) {
    size = std::max(size, part->Json.size());
  }
  return size;
}

constexpr const char* kNoMemory = "there is not enough memory";

/// Writes a report into a file of its own; else gives the reason.
std::optional<std::string> WhyNotMade(const std::filesystem::path& path, bool isPage,
                                      const ReportParts& parts) {
  try {
    const MemoryReserve reserve(SizeOfLargest(parts));
    std::ofstream file(path, std::ios::binary);
    (isPage ? WritePage : WriteJsonReport)(parts, file);
    file.close();
    return file ? std::nullopt : std::optional(SystemError());
  } catch (const std::bad_alloc&) {
    return kNoMemory;
  }
}

/// Writes a report in the place of one that is there; else gives the reason.
std::optional<std::string> WhyNotReplaced(const std::string& name, const ReportParts& parts) {
  const std::filesystem::path unfinished = UnfinishedName(name);
  std::optional<std::string> reason = WhyNotMade(unfinished, IsPage(name), parts);
  if (!reason) {
    std::error_code error;
    std::filesystem::rename(unfinished, s2k2ngt::NativePath(name), error);
    if (!error) {
      return std::nullopt;
    }
    reason = error.message();
  }
  std::error_code unknown;
  std::filesystem::remove(unfinished, unknown);
  return reason;
}

void TellUnwritten(const std::string& name, const std::string& reason) {
  PrintLine(std::cerr, name + ": cannot write the report: " + reason);
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
  const std::filesystem::path unfinished = UnfinishedName(report);
  const bool isWritable = std::ofstream(unfinished).is_open();
  const std::string reason = SystemError();
  std::filesystem::remove(unfinished, unknown);
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
  ReportParts parts;
  for (const FileResult& result : results) {
    parts.push_back(&result.Part);
  }
  bool areWritten = true;
  for (const std::string& name : options.Reports) {
    if (const std::optional<std::string> reason = WhyNotReplaced(name, parts)) {
      TellUnwritten(name, *reason);
      areWritten = false;
    }
  }
  return areWritten;
}

void TellNoMemoryForReports(const CommandOptions& options) {
  for (const std::string& name : options.Reports) {
    TellUnwritten(name, kNoMemory);
  }
}
