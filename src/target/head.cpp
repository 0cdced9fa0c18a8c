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

bool WriteStructureType(Conversion& run, LineWriter& out) {
  const T_NGT_STYP_D& type = run.Target.StructureType;
  if (!type.bWrite) {
    return true;
  }
  out.WriteLine("%s\n", "*STRUCTYPE    ; Structure Type");
  out.WriteLine("; iSTYP, iSMAS, GRAV, TEMPER, bALIGNBEAM, bALIGNSLAB\n");
  out.WriteLine("\t%d, %5d, %5g, %5g, %5s, %5s\n\n", type.iSTYP, type.iSMAS, type.GRAV, type.TEMPER,
                type.bALIGNBEAM, type.bALIGNSLAB);
  return true;
}

void WriteFileEnd(LineWriter& out) { out.WriteLine("*ENDDATA"); }

}  // namespace s2k2ngt
