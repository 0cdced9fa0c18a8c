#include "report.h"

#include "drawings.h"
#include "page.h"

#include <cstddef>
#include <functional>
#include <set>

using nlohmann::ordered_json;

namespace {

std::vector<ordered_json> SummariesOf(const ReportParts& parts) {
  std::vector<ordered_json> files;
  files.reserve(parts.size());
  for (const ReportPart* part : parts) {
    files.push_back(ordered_json::parse(part->Summary));
  }
  return files;
}

/// The reasons that occur in the files.
ordered_json ReasonsOf(const std::vector<ordered_json>& summaries) {
  std::set<std::string, std::less<>> codes;
  for (const ordered_json& file : summaries) {
    for (const ordered_json& code : file["reasons"]) {
      codes.insert(code.get<std::string>());
    }
  }
  return ReasonsWith(codes);
}

}  // namespace

ReportPart PartOf(const FileFacts& facts, const s2k2ngt::Account& account,
                  const s2k2ngt::Drawing& drawing) {
  ReportPart part = {.Json = TextOfFile(facts, account, drawing),
                     .Summary = TextOf(SummaryOf(facts, account)),
                     .Drawings = DrawingsOf(drawing, account)};
  // They stay until all files are converted.
  part.Json.shrink_to_fit();
  part.Drawings.shrink_to_fit();
  return part;
}

void WriteJsonReport(const ReportParts& parts, std::ostream& out) {
  std::string head = TextOf(HeadOfReport());
  head.back() = ',';
  out << head << "\"files\":[";
  const char* separator = "";
  for (const ReportPart* part : parts) {
    if (!out) {
      return;
    }
    out << separator << part->Json;
    separator = ",";
  }
  out << "],\"reasons\":" << TextOf(ReasonsOf(SummariesOf(parts))) << "}\n";
}

void WritePage(const ReportParts& parts, std::ostream& out) {
  const std::vector<ordered_json> summaries = SummariesOf(parts);
  const ordered_json reasons = ReasonsOf(summaries);
  out << BeginningOfPage(HeadOfReport()["program"], summaries);
  for (std::size_t number = 0; number < parts.size(); ++number) {
    if (!out) {
      return;
    }
    const ordered_json file = ordered_json::parse(parts[number]->Json);
    out << PartOfPage(file, number, reasons, parts[number]->Drawings);
  }
  out << kEndOfPage;
}
