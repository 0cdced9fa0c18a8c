#pragma once

#include "json.h"

#include <s2k2ngt/account.h>
#include <s2k2ngt/drawing.h>

#include <ostream>
#include <string>
#include <vector>

// The reports of a call. Of its files they hold texts, and no more than one of them at a time as an
// object, which takes many times the memory of its text.

/// The part of the reports that a file has; empty when there are none.
struct ReportPart {
  std::string Json;      // the account of the file
  std::string Summary;   // as an object of JSON
  std::string Drawings;  // for the page
};

ReportPart PartOf(const FileFacts& facts, const s2k2ngt::Account& account,
                  const s2k2ngt::Drawing& drawing);

/// The parts of the files of a call, in their order.
using ReportParts = std::vector<const ReportPart*>;

// Both stop when the stream fails.
void WriteJsonReport(const ReportParts& parts, std::ostream& out);
void WritePage(const ReportParts& parts, std::ostream& out);
