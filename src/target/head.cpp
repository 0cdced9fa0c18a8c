#include "target/head.h"

#include "target/lines_of_any_file.h"

namespace s2k2ngt {
namespace {

std::string TargetForce(Text sourceForce) {
  std::string force = ToUpper(sourceForce);
  if (force == "TON") {
    return "TONF";
  }
  if (force == "LB") {
    return "LBF";
  }
  return force;
}

}  // namespace

void WriteFileHead(const std::string& outputPath, LineWriter& out) {
  out.WriteLine("%s\n", kRuleLine);
  out.WriteLine("%s\n", kNameLine);
  out.WriteLine(";  %s\n", outputPath);
  out.WriteLine("%s\n\n", kRuleLine);
}

bool WriteVersionAndUnit(Conversion& run, LineWriter& out) {
  const Units& units = run.Source.CurrentUnits();
  out.WriteLine("%s\n%s\n\n", "*VERSION", "5.8.1");
  out.WriteLine("%s\n", "*UNIT    ; Unit System");
  out.WriteLine("; FORCE, LENGTH\n");
  out.WriteLine("\t%s, %5s\n\n", TargetForce(units.Force), ToUpper(units.Length));
  return true;
}

void WriteFileEnd(LineWriter& out) { out.WriteLine("%s", kLastLine); }

}  // namespace s2k2ngt
