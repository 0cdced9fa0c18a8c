#include "target/head.h"

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
  const std::string rule = ";" + std::string(75, '-');
  out.WriteLine("%s\n", rule);
  out.WriteLine(";  NORDA/Gen Text(NGT) File.\n");
  out.WriteLine(";  %s\n", outputPath);
  out.WriteLine("%s\n\n", rule);
}

bool WriteVersionAndUnit(Conversion& run, LineWriter& out) {
  const Units& units = run.Source.CurrentUnits();
  out.WriteLine("%s\n%s\n\n", "*VERSION", "5.8.1");
  out.WriteLine("%s\n", "*UNIT    ; Unit System");
  out.WriteLine("; FORCE, LENGTH\n");
  out.WriteLine("\t%s, %5s\n\n", TargetForce(units.Force), ToUpper(units.Length));
  return true;
}

void WriteFileEnd(LineWriter& out) { out.WriteLine("*ENDDATA"); }

}  // namespace s2k2ngt
