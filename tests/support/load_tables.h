#pragma once

#include "support/conversion_run.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The source tables that make a static load case of each of these loads, in this order. A load is
/// its name and what else its row says; for each there is a linear static analysis case of its
/// name. Key k of all three tables is the k-th load; load cases 1 to 6 are written in the order 3,
/// 6, 2, 5, 1, 4.
inline std::string StaticCasesOf(const std::vector<std::pair<std::string, std::string>>& rows) {
  std::string loads = "TABLE:  \"LOAD CASE DEFINITIONS\"\n";
  std::string analyses = "TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n";
  std::string assignments = "TABLE:  \"CASE - STATIC 1 - LOAD ASSIGNMENTS\"\n";
  for (const auto& [name, further] : rows) {
    loads += "   LoadCase=" + name + "   SelfWtMult=0   " + further + "\n";
    analyses += "   Case=" + name + "   Type=LinStatic\n";
    assignments += "   Case=" + name + "   LoadType=\"Load case\"   LoadName=" + name +
                   "   LoadSF=1   TransAccSF=0\n";
  }
  return loads + "\n" + analyses + "\n" + assignments + "\n";
}

/// The same for loads of no particular design.
inline std::string StaticCases(std::initializer_list<std::string_view> names) {
  std::vector<std::pair<std::string, std::string>> rows;
  for (const std::string_view name : names) {
    rows.emplace_back(name, "DesignType=OTHER");
  }
  return StaticCasesOf(rows);
}

/// The same for wind and earthquake loads, each of a name and a code. Loads 1 to 4 are converted in
/// the order 2, 4, 1, 3 and written in the order 3, 2, 1, 4.
inline std::string AutomaticCases(
    std::string_view designType,
    std::initializer_list<std::pair<std::string_view, std::string_view>> namesAndCodes) {
  std::vector<std::pair<std::string, std::string>> rows;
  for (const auto& [name, code] : namesAndCodes) {
    rows.emplace_back(name, "DesignType=" + std::string(designType) + "   AutoLoad=\"" +
                                std::string(code) + "\"");
  }
  return StaticCasesOf(rows);
}

/// What stands behind *STLDCASE, in the output of a model without anything but loads.
inline std::string TextOfLoads(const ConversionRun& run) {
  const std::size_t begin = run.Output.find("\n\n", run.Output.find("*STLDCASE")) + 2;
  const std::size_t end = run.Output.rfind("\n\n*ENDDATA");
  return run.Output.substr(begin, end - begin);
}
