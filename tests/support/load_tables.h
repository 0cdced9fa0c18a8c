#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// The source tables that make a static load case of each of these loads, in this order: the loads,
/// of no particular design and without self weight, and for each a linear static analysis case of
/// its name. Key k of all three tables is the k-th name; load cases 1 to 6 are written in the order
/// 3, 6, 2, 5, 1, 4.
inline std::string StaticCases(std::initializer_list<std::string_view> names) {
  std::string loads = "TABLE:  \"LOAD CASE DEFINITIONS\"\n";
  std::string analyses = "TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n";
  std::string assignments = "TABLE:  \"CASE - STATIC 1 - LOAD ASSIGNMENTS\"\n";
  for (const std::string_view view : names) {
    const std::string name(view);
    loads += "   LoadCase=" + name + "   DesignType=OTHER   SelfWtMult=0\n";
    analyses += "   Case=" + name + "   Type=LinStatic\n";
    assignments += "   Case=" + name + "   LoadType=\"Load case\"   LoadName=" + name +
                   "   LoadSF=1   TransAccSF=0\n";
  }
  return loads + "\n" + analyses + "\n" + assignments + "\n";
}
