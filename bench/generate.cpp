// Writes a large model of one kind of data to standard output: generate SCENARIO ROWS
#include "source_writer.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

/// Labels of joints and elements: a prefix makes them alphanumeric.
struct Labels {
  std::string_view Joint;
  std::string_view Frame;
};

void Head(SourceWriter& out) {
  out.Table("PROGRAM CONTROL", 1, [&](int) { out.Row("CurrUnits=\"KN, m, C\""); });
  out.Table("MATERIAL PROPERTIES 1 - GENERAL", 20, [&](int i) {
    out.Row("Material=M", i, "   Type=Isotropic   DesignType=Steel   UnitMass=7.849   ",
            "UnitWeight=76.97   E=2E+08   U=0.3   A=1.17E-05");
  });
  out.Table("FRAME SECTION PROPERTIES 1 - GENERAL", 200, [&](int i) {
    out.Row("SectionName=S", i, "   Material=M", i % 20 + 1,
            "   Shape=Rectangular   t3=0.5   t2=0.3   Area=0.15   TorsConst=0.0028   I33=0.003   ",
            "I22=0.001   AS2=0.125   AS3=0.125   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   ",
            "I3Mod=1   MMod=1   WMod=1");
  });
}

void Joints(SourceWriter& out, int rows, std::string_view prefix = "") {
  out.Table("JOINT COORDINATES", rows, [&](int i) {
    const double x = i % 997 * 1.25;
    const double y = i % 89 * 0.37;
    const double z = i % 13 * 3.1;
    out.Row("Joint=", prefix, i, "   CoordSys=GLOBAL   CoordType=Cartesian   XorR=", x, "   Y=", y,
            "   Z=", z, "   SpecialJt=No   GlobalX=", x, "   GlobalY=", y, "   GlobalZ=", z);
  });
}

void Frames(SourceWriter& out, int rows, Labels labels = {}) {
  out.Table("CONNECTIVITY - FRAME", rows, [&](int i) {
    out.Row("Frame=", labels.Frame, i, "   JointI=", labels.Joint, i, "   JointJ=", labels.Joint,
            i % rows + 1, "   Length=", 3.25);
  });
  out.Table("FRAME SECTION ASSIGNMENTS", rows, [&](int i) {
    out.Row("Frame=", labels.Frame, i, "   SectionType=Rectangular   AutoSelect=N.A.   AnalSect=S",
            i % 200 + 1, "   DesignSect=S", i % 200 + 1, "   MatProp=Default");
  });
}

void Areas(SourceWriter& out, int rows) {
  out.Table("CONNECTIVITY - AREA", rows, [&](int i) {
    out.Row("Area=", i, "   NumJoints=4   Joint1=", i, "   Joint2=", i % rows + 1,
            "   Joint3=", (i + 1) % rows + 1, "   Joint4=", (i + 2) % rows + 1,
            "   Perimeter=8   AreaArea=4");
  });
  out.Table("AREA SECTION PROPERTIES", 20, [&](int i) {
    out.Row("Section=T", i, "   Material=M", i,
            "   AreaType=Shell   Type=Shell   Thickness=0.2   BendThick=0.2");
  });
  out.Table("AREA SECTION ASSIGNMENTS", rows,
            [&](int i) { out.Row("Area=", i, "   Section=T", i % 20 + 1, "   MatProp=Default"); });
}

void StaticCases(SourceWriter& out, int cases) {
  out.Table("LOAD CASE DEFINITIONS", cases, [&](int i) {
    out.Row("LoadCase=L", i, "   DesignType=LIVE   AutoLoad=None   SelfWtMult=0");
  });
  out.Table("ANALYSIS CASE DEFINITIONS", cases,
            [&](int i) { out.Row("Case=L", i, "   Type=LinStatic   InitialCond=Zero"); });
  out.Table("CASE - STATIC 1 - LOAD ASSIGNMENTS", cases, [&](int i) {
    out.Row("Case=L", i, "   LoadType=\"Load case\"   LoadName=L", i, "   LoadSF=1");
  });
}

void Restraints(SourceWriter& out, int rows, std::string_view prefix = "") {
  out.Table("JOINT RESTRAINT ASSIGNMENTS", rows, [&](int i) {
    out.Row("Joint=", prefix, i, "   U1=Yes   U2=Yes   U3=Yes   R1=No   R2=No   R3=No");
  });
}

void WholeModel(SourceWriter& out, int rows, Labels labels) {
  Head(out);
  Joints(out, rows, labels.Joint);
  Frames(out, rows, labels);
  Restraints(out, rows / 4, labels.Joint);
}

void NumericLabels(SourceWriter& out, int rows) { WholeModel(out, rows, {}); }
void AlphanumericLabels(SourceWriter& out, int rows) {
  WholeModel(out, rows, {.Joint = "J", .Frame = "F"});
}

void CollidingFamilies(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Frames(out, rows);
  Areas(out, rows);
}

// Loads have a fixed number of cases and elements, but no more than loads.
constexpr int kElementsAtMost = 20'000;

template <int casesAtMost>
void FrameLoads(SourceWriter& out, int rows) {
  const int cases = std::min(casesAtMost, rows);
  const int frames = std::min(kElementsAtMost, rows);
  Head(out);
  Joints(out, frames);
  Frames(out, frames);
  StaticCases(out, cases);
  out.Table("FRAME LOADS - DISTRIBUTED", rows, [&](int i) {
    out.Row("Frame=", i % frames + 1, "   LoadCase=L", i % cases + 1,
            "   CoordSys=GLOBAL   Type=Force   Dir=Gravity   DistType=RelDist   RelDistA=0   ",
            "RelDistB=1   AbsDistA=0   AbsDistB=3.25   FOverLA=", i % 100 * 0.25,
            "   FOverLB=", i % 100 * 0.25);
  });
}

template <int casesAtMost>
void JointLoads(SourceWriter& out, int rows) {
  const int cases = std::min(casesAtMost, rows);
  const int joints = std::min(kElementsAtMost, rows);
  Joints(out, joints);
  StaticCases(out, cases);
  out.Table("JOINT LOADS - FORCE", rows, [&](int i) {
    out.Row("Joint=", i % joints + 1, "   LoadCase=L", i % cases + 1,
            "   CoordSys=GLOBAL   F1=0   F2=", i % 7 * 0.5, "   F3=", -i % 100 * 0.25,
            "   M1=0   M2=0   M3=0");
  });
}

template <int casesAtMost>
void AreaLoads(SourceWriter& out, int rows) {
  const int cases = std::min(casesAtMost, rows);
  const int areas = std::min(kElementsAtMost, rows);
  Head(out);
  Joints(out, areas);
  Areas(out, areas);
  StaticCases(out, cases);
  out.Table("AREA LOADS - UNIFORM", rows, [&](int i) {
    out.Row("Area=", i % areas + 1, "   LoadCase=L", i % cases + 1,
            "   CoordSys=GLOBAL   Dir=Gravity   UnifLoad=", i % 100 * 0.25);
  });
}

void Solids(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  out.Table("CONNECTIVITY - SOLID", rows, [&](int i) {
    const auto joint = [&](int corner) { return (i + corner) % rows + 1; };
    out.Row("Solid=", i, "   Joint1=", joint(0), "   Joint2=", joint(1), "   Joint3=", joint(2),
            "   Joint4=", joint(3), "   Joint5=", joint(4), "   Joint6=", joint(5),
            "   Joint7=", joint(6), "   Joint8=", joint(7), "   Volume=1");
  });
  out.Table("SOLID PROPERTY ASSIGNMENTS", rows,
            [&](int i) { out.Row("Solid=", i, "   SolidProp=P", i % 20 + 1); });
  out.Table("SOLID PROPERTY DEFINITIONS", 20, [&](int i) {
    out.Row("SolidProp=P", i, "   Material=M", i, "   MatAngleA=0   MatAngleB=0   MatAngleC=0");
  });
}

void AbsoluteDistances(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Frames(out, rows);
  StaticCases(out, 1);
  out.Table("FRAME LOADS - POINT", rows, [&](int i) {
    out.Row("Frame=", i, "   LoadCase=L1   CoordSys=GLOBAL   Type=Force   Dir=Gravity   ",
            "DistType=AbsDist   RelDist=0.5   AbsDist=1.5   Force=", i % 100 * 0.25);
  });
}

void Patterns(SourceWriter& out, int rows) {
  out.Table("JOINT PATTERN ASSIGNMENTS", rows,
            [&](int i) { out.Row("Joint=", i, "   Pattern=SUN   Value=", i % 10 * 0.1); });
}

void Temperatures(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Frames(out, rows);
  StaticCases(out, 10);
  Patterns(out, rows);
  out.Table("FRAME LOADS - TEMPERATURE", rows, [&](int i) {
    out.Row("Frame=", i, "   LoadCase=L", i % 10 + 1, "   Type=Temperature   Temp=", i % 60,
            "   TempGrad2=0   TempGrad3=0   JtPattern=", i % 2 == 0 ? "SUN" : "None");
  });
}

void SurfacePressures(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Areas(out, rows);
  StaticCases(out, 10);
  Patterns(out, rows);
  out.Table("AREA LOADS - SURFACE PRESSURE", rows, [&](int i) {
    out.Row("Area=", i, "   LoadCase=L", i % 10 + 1, "   Face=6   Pressure=", i % 60 * 0.1,
            "   JtPattern=", i % 2 == 0 ? "SUN" : "None");
  });
}

void Masses(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Frames(out, rows);
  Areas(out, rows);
  out.Table("JOINT ADDED MASS ASSIGNMENTS", rows, [&](int i) {
    out.Row("Joint=", i, "   CoordSys=GLOBAL   Mass1=12   Mass2=12   Mass3=0   MMI3=", i % 10);
  });
  out.Table("FRAME ADDED MASS ASSIGNMENTS", rows,
            [&](int i) { out.Row("Frame=", i, "   MassPerLen=0.25"); });
  out.Table("AREA ADDED MASS ASSIGNMENTS", rows,
            [&](int i) { out.Row("Area=", i, "   MassPerArea=0.2"); });
}

void Springs(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Frames(out, rows);
  Areas(out, rows);
  out.Table("JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED", rows, [&](int i) {
    out.Row("Joint=", i, "   CoordSys=Local   U1=20000   U2=20000   U3=", i % 100 * 500,
            "   R1=0   R2=0   R3=0");
  });
  out.Table("JOINT SPRING ASSIGNMENTS 2 - COUPLED", rows, [&](int i) {
    out.Row("Joint=", i, "   CoordSys=Local   U1=20000   U1U2=0   U2=20000   U3=", i % 100 * 500);
  });
  out.Table("FRAME SPRING ASSIGNMENTS", rows,
            [&](int i) { out.Row("Frame=", i, "   Dir=2   Stiffness=1200"); });
  out.Table("AREA SPRING ASSIGNMENTS", rows,
            [&](int i) { out.Row("Area=", i, "   Face=5   Dir=3   Stiffness=500"); });
}

void Constraints(SourceWriter& out, int rows, int membersOfOne) {
  const int constraints = std::max(1, rows / membersOfOne);
  Joints(out, rows);
  out.Table("CONSTRAINT DEFINITIONS - DIAPHRAGM", constraints,
            [&](int i) { out.Row("Name=D", i, "   CoordSys=GLOBAL   Axis=Z"); });
  out.Table("JOINT CONSTRAINT ASSIGNMENTS", rows, [&](int i) {
    out.Row("Joint=", i, "   Constraint=D", i % constraints + 1, "   Type=Diaphragm");
  });
}
void ConstraintMembers(SourceWriter& out, int rows) { Constraints(out, rows, rows); }
void ConstraintNames(SourceWriter& out, int rows) { Constraints(out, rows, 2); }

void LocalAxes(SourceWriter& out, int rows) {
  Joints(out, rows);
  out.Table("JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL", rows, [&](int i) {
    out.Row("Joint=", i, "   AngleA=", i % 90,
            "   AngleB=10   AngleC=0   AdvanceAxes=", i % 2 == 0 ? "Yes" : "No");
  });
  out.Table("JOINT LOCAL AXES ASSIGNMENTS 2 - ADVANCED", rows, [&](int i) {
    out.Row("Joint=", i, "   LocalPlane=31   AxOption1=\"Coord Dir\"   AxCoordSys=GLOBAL   ",
            "AxCoordDir=Z   PlOption1=\"Coord Dir\"   PlCoordSys=GLOBAL   CoordDir1=X   ",
            "CoordDir2=Y");
  });
}

void Links(SourceWriter& out, int rows) {
  Joints(out, rows);
  out.Table("LINK PROPERTY DEFINITIONS 01 - GENERAL", rows,
            [&](int i) { out.Row("Link=P", i, "   LinkType=Linear   Mass=0   Weight=0"); });
  out.Table("LINK PROPERTY DEFINITIONS 02 - LINEAR", rows, [&](int i) {
    out.Row("Link=P", i, "   DOF=U1   Fixed=No   TransKE=", i % 100 * 2500, "   TransCE=0");
  });
  out.Table("SUMMARY - LINK ASSIGNMENTS", rows, [&](int i) {
    out.Row("Link=", i, "   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=P", i);
  });
  out.Table("CONNECTIVITY - LINK", rows, [&](int i) {
    out.Row("Link=", i, "   JointI=", i, "   JointJ=", i % rows + 1, "   Length=2");
  });
}

void InsertionPoints(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Frames(out, rows);
  out.Table("FRAME INSERTION POINT ASSIGNMENTS", rows, [&](int i) {
    out.Row("Frame=", i, "   CardinalPt=\"8 (Top Center)\"   Mirror2=No   CoordSys=GLOBAL   ",
            "JtOffsetXI=0   JtOffsetYI=0   JtOffsetZI=0   JtOffsetXJ=0   JtOffsetYJ=0   ",
            "JtOffsetZJ=0");
  });
}

void NonprismaticSections(SourceWriter& out, int rows) {
  out.Table("FRAME SECTION PROPERTIES 1 - GENERAL", rows, [&](int i) {
    out.Row("SectionName=S", i, i % 2 == 0 ? "   Shape=Nonprismatic" : "   Shape=Rectangular",
            "   t3=0.5   t2=0.3   Area=0.15");
  });
  out.Table("FRAME SECTION PROPERTIES 5 - NONPRISMATIC", rows / 2, [&](int i) {
    out.Row("SectionName=S", 2 * i, "   NumSegments=1   SegmentNum=1   StartSect=S", 2 * i - 1,
            "   EndSect=S1   EI33Var=Cubic   EI22Var=Linear");
  });
}

void Releases(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Frames(out, rows);
  out.Table("FRAME RELEASE ASSIGNMENTS 1 - GENERAL", rows, [&](int i) {
    out.Row("Frame=", i, "   PI=No   V2I=No   V3I=No   TI=No   M2I=Yes   M3I=Yes   PJ=No   ",
            "V2J=No   V3J=No   TJ=No   M2J=Yes   M3J=Yes   PartialFix=Yes");
  });
  out.Table("FRAME RELEASE ASSIGNMENTS 2 - PARTIAL FIXITY", rows,
            [&](int i) { out.Row("Frame=", i, "   M2I=", i % 10, "   M3I=5   M2J=0   M3J=5"); });
}

void Offsets(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Frames(out, rows);
  out.Table("FRAME OFFSET ALONG LENGTH ASSIGNMENTS", rows, [&](int i) {
    out.Row("Frame=", i, "   Type=User   LengthI=0.3   LengthJ=", i % 10 * 0.1, "   RigidFact=0.5");
  });
}

void CombinationTerms(SourceWriter& out, int rows) {
  constexpr int kCases = 100;
  StaticCases(out, kCases);
  out.Table("COMBINATION DEFINITIONS", rows, [&](int i) {
    out.Row("ComboName=C", i / 1000,
            "   ComboType=\"Linear Add\"   CaseType=\"Linear Static\"   CaseName=L", i % kCases + 1,
            "   ScaleFactor=1.35");
  });
}

void FunctionPoints(SourceWriter& out, int rows) {
  out.Table("FUNCTION - RESPONSE SPECTRUM - USER", rows, [&](int i) {
    out.Row("Name=SITE", i / 1000, "   Period=", i % 1000 * 0.01, "   Accel=", i % 100 * 0.01);
  });
  out.Table("FUNCTION - TIME HISTORY - USER", rows, [&](int i) {
    out.Row("Name=QUAKE", i / 1000, "   Time=", i % 1000 * 0.01, "   Value=", i % 100 * 0.01);
  });
  out.Table("ANALYSIS CASE DEFINITIONS", 1, [&](int) { out.Row("Case=H   Type=LinModHist"); });
  out.Table("CASE - MODAL HISTORY 1 - GENERAL", 1,
            [&](int) { out.Row("Case=H   DampingType=Constant   OutSteps=100   StepSize=0.02"); });
  out.Table("CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS", rows / 1000 + 1, [&](int i) {
    out.Row("Case=H   LoadType=Accel   LoadName=\"Accel U1\"   Function=QUAKE", i - 1,
            "   TransAccSF=9.81   TimeFactor=1");
  });
}

void Lanes(SourceWriter& out, int rows) {
  Head(out);
  Joints(out, rows);
  Frames(out, rows);
  out.Table("BRIDGE LOADS 1 - LANES", rows, [&](int i) {
    out.Row("LaneName=LANE", i / 1000, "   Frame=", i, "   Eccen=", i % 5 * 0.5);
  });
}

/// Tables of 17 buckets, whose chains grow with the model.
void SmallTables(SourceWriter& out, int rows) { StaticCases(out, rows); }

struct Scenario {
  std::string_view Name;
  void (*Write)(SourceWriter& out, int rows);
};

constexpr auto kScenarios = std::to_array<Scenario>({
    {"numeric-labels", NumericLabels},
    {"alphanumeric-labels", AlphanumericLabels},
    {"colliding-families", CollidingFamilies},
    {"solids", Solids},
    {"frame-loads-of-1-case", FrameLoads<1>},
    {"frame-loads-of-100-cases", FrameLoads<100>},
    {"frame-loads-of-10000-cases", FrameLoads<10'000>},
    {"joint-loads-of-1-case", JointLoads<1>},
    {"joint-loads-of-100-cases", JointLoads<100>},
    {"joint-loads-of-10000-cases", JointLoads<10'000>},
    {"area-loads-of-1-case", AreaLoads<1>},
    {"area-loads-of-100-cases", AreaLoads<100>},
    {"area-loads-of-10000-cases", AreaLoads<10'000>},
    {"absolute-distances", AbsoluteDistances},
    {"temperatures", Temperatures},
    {"surface-pressures", SurfacePressures},
    {"masses", Masses},
    {"springs", Springs},
    {"constraint-members", ConstraintMembers},
    {"constraint-names", ConstraintNames},
    {"local-axes", LocalAxes},
    {"links", Links},
    {"insertion-points", InsertionPoints},
    {"nonprismatic-sections", NonprismaticSections},
    {"releases", Releases},
    {"offsets", Offsets},
    {"combination-terms", CombinationTerms},
    {"function-points", FunctionPoints},
    {"lanes", Lanes},
    {"small-tables", SmallTables},
});

}  // namespace

int main(int count, char** words) {
  if (count == 2 && std::string_view(words[1]) == "--list") {
    for (const Scenario& scenario : kScenarios) {
      std::cout << scenario.Name << '\n';
    }
    return EXIT_SUCCESS;
  }
  const auto* const scenario =
      count == 3 ? std::ranges::find(kScenarios, words[1], &Scenario::Name) : kScenarios.end();
  if (scenario == kScenarios.end()) {
    std::cerr << "usage: generate SCENARIO ROWS > FILE.s2k, or generate --list\n";
    return EXIT_FAILURE;
  }
  SourceWriter out;
  scenario->Write(out, static_cast<int>(std::strtol(words[2], nullptr, 10)));
  return EXIT_SUCCESS;
}
