#include "loads/load_cases.h"
#include "run/static_load_section.h"
#include "support/chained_hash.h"
#include "support/conversion_run.h"
#include "support/load_tables.h"
#include "support/writer_run.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The output from *STLDCASE to its end. Nothing but the two newlines of buckling stands behind
/// the loads of these models.
std::string LoadsOf(const ConversionRun& run) {
  const std::size_t begin = run.Output.find("*STLDCASE");
  return begin == std::string::npos ? std::string() : run.Output.substr(begin);
}

constexpr const char* kEnd = "\n\n*ENDDATA";

TEST(LoadCaseUse, NameIsPaddedToTenPlaces) {
  struct Use {
    const char* Name;
    const char* Line;
  };
  const std::vector<Use> uses = {{"A", "*USE-STLD,          A\n\n*CONLOAD"},
                                 {"TENLETTERS", "*USE-STLD, TENLETTERS\n\n*CONLOAD"},
                                 {"ROOF LIVE LOAD", "*USE-STLD, ROOF LIVE LOAD\n\n*CONLOAD"}};
  for (const auto& [name, line] : uses) {
    SCOPED_TRACE(name);
    const ConversionRun run =
        Convert(StaticCases({name}) + "TABLE:  \"JOINT LOADS - FORCE\"\n   Joint=1   LoadCase=" +
                std::string(name) + "   F1=1\n");
    EXPECT_THAT(run.Output, HasSubstr(line));
    EXPECT_THAT(run.Output,
                HasSubstr("\n;End of data for load case [" + std::string(name) + "]\n\n"));
  }
}

TEST(LoadCaseUse, KindsOfLoadsOfACaseStandInTheirOrder) {
  const ConversionRun run = Convert(R"(
TABLE:  "PROGRAM CONTROL"
   CurrUnits="KN, m, C"

TABLE:  "CONNECTIVITY - FRAME"
   Frame=1   JointI=1   JointJ=2   Length=4

TABLE:  "CONNECTIVITY - AREA"
   Area=11   Joint1=1   Joint2=2   Joint3=3   Joint4=4

TABLE:  "FRAME SECTION PROPERTIES 1 - GENERAL"
   SectionName=DEEP   Shape=Rectangular   t3=2   t2=1

TABLE:  "FRAME SECTION ASSIGNMENTS"
   Frame=1   AnalSect=DEEP

TABLE:  "AREA LOADS - UNIFORM"
   Area=11   LoadCase=WX   CoordSys=GLOBAL   Dir=Gravity   UnifLoad=3

TABLE:  "FRAME PRESTRESS 1 - PATTERNS"
   Frame=1   Tension=100   DrapeI=0   DrapeCenter=0.25   DrapeJ=0

TABLE:  "FRAME PRESTRESS 2 - LOAD MULTIPLIERS"
   Frame=1   LoadCase=WX   Multiplier=1

TABLE:  "JOINT LOADS - GROUND DISPLACEMENT"
   Joint=1   LoadCase=WX   CoordSys=GLOBAL   U3=-0.01

TABLE:  "FRAME LOADS - TEMPERATURE"
   Frame=1   LoadCase=WX   Type=Gradient2   TempGrad2=9   JtPattern=None
   Frame=1   LoadCase=WX   Type=Temperature   Temp=10   JtPattern=WARM

TABLE:  "JOINT PATTERN ASSIGNMENTS"
   Joint=1   Pattern=WARM   Value=1

TABLE:  "FRAME LOADS - DISTRIBUTED"
   Frame=1   LoadCase=WX   CoordSys=GLOBAL   Type=Force   Dir=X   DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=2   FOverLB=2

TABLE:  "JOINT LOADS - FORCE"
   Joint=2   LoadCase=WX   CoordSys=GLOBAL   F1=5

TABLE:  "AUTO WIND - UBC97"
   LoadCase=WX   Exposure=C   MaxZ=30   WindSpeed=70   I=1

TABLE:  "LOAD CASE DEFINITIONS"
   LoadCase=WX   DesignType=WIND   AutoLoad="UBC 97"   SelfWtMult=1

TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=WX   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=WX   LoadType="Load case"   LoadName=WX   LoadSF=1
)");
  const std::string use = "*USE-STLD,         WX\n\n";
  const std::string end = ";End of data for load case [WX]\n\n";
  EXPECT_EQ(
      LoadsOf(run),
      std::string("*STLDCASE    ; Static Load Cases\n"
                  "; LCNAME, LCTYPE, DESC\n"
                  "\tWX,     W, \n"
                  "\n") +
          use +
          "*CONLOAD    ; Nodal Loads\n"
          ";NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n"
          "\t2,     5,     0,     0,     0,     0,     0,\n" +
          end + use +
          "; *SELFWEIGHT, X, Y, Z, GROUP\n"
          "\t*SELFWEIGHT,     0,     0,    -1,\n" +
          end + use +
          "*BEAMLOAD    ; Element Beam Loads\n"
          "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n"
          "\t1,  BEAM, UNILOAD,    GX,    NO,     0,     2,     1,     2,     0,     0,     0,"
          "     0,\n" +
          end + use +
          "*ELTEMPER    ; Element Temperatures\n"
          "; ELEM_LIST, TEMPER, GROUP\n"
          "\t1,     5,\n" +
          end + use +
          "*NDTEMPER    ; Nodal Temperatures\n"
          "; NODE_LIST, TEMPER, GROUP\n"
          "\t1,    10,\n" +
          end + use +
          "*THERGRAD    ; Temperature Gradient\n"
          "; ELEM_LIST, iETYP, TZ, bUSEHZ, HZ, TY, bUSEHY, HY, GROUP\n"
          "\t1,     1,    10,   YES,     0,     0,    NO,     0,\n" +
          end + use +
          "*SPDISP    ; Specified Displacement of Supports\n"
          "; NODE_LIST, FLAG, Dx, Dy, Dz, Rx, Ry, Rz, GROUP\n"
          "\t1, 001000,     0,     0, -0.01,     0,     0,     0,\n" +
          end + use +
          "*PRESTRESS    ; Prestress Beam Loads\n"
          "; ELEM_LIST, LTYPE, TENS, DI, DM, DJ, GROUP\n"
          "\t1,   PRE,   100,     0, -0.25,     0,\n" +
          end + use +
          "*PRESSURE    ; Pressure Loads\n"
          "; ELEM_LIST, CMD, ETYP, LTYP, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP  ; "
          "ETYP=PLATE, LTYP=FACE\n"
          "; ELEM_LIST, CMD, ETYP, LTYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP          ; "
          "ETYP=PLATE, LTYP=EDGE\n"
          "; ELEM_LIST, CMD, ETYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP                ; "
          "ETYP=PLANE\n"
          "; ELEM_LIST, CMD, ETYP, iFACE, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP ; "
          "ETYP=SOLID\n"
          "\t11, PRES, PLATE,  FACE,    GZ,     0,     0,     0,    NO,    -3,     0,     0,"
          "     0,     0,\n" +
          end + use +
          "*WIND    ; Wind Loads\n"
          "; CODE=CODE, SFX, SFY, DESC                   ; line 1\n"
          "; [UBC1997]   : iMETHOD, EC, BWS, IF, PC, MRH ; line 2\n\n"
          "\tCODE=UBC1997,     1,     1,      \n"
          "\t\t2,     C,    70,     1,     0,    30\n\n" +
          end + kEnd);
}

TEST(LoadCaseUse, CasesStandInTheOrderOfTheirListWithAllTheirLoadsTogether) {
  const ConversionRun run = Convert(StaticCases({"L1", "L2", "L3"}) + R"(
TABLE:  "JOINT LOADS - FORCE"
   Joint=1   LoadCase=L1   F1=1
   Joint=3   LoadCase=L3   F1=3

TABLE:  "JOINT LOADS - GROUND DISPLACEMENT"
   Joint=2   LoadCase=L2   U1=2
   Joint=3   LoadCase=L3   U1=3
)");
  const auto conload = [](const std::string& digit) {
    return "*USE-STLD,         L" + digit +
           "\n\n"
           "*CONLOAD    ; Nodal Loads\n"
           ";NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n"
           "\t" +
           digit + ",     " + digit +
           ",     0,     0,     0,     0,     0,\n"
           ";End of data for load case [L" +
           digit + "]\n\n";
  };
  const auto spdisp = [](const std::string& digit) {
    return "*USE-STLD,         L" + digit +
           "\n\n"
           "*SPDISP    ; Specified Displacement of Supports\n"
           "; NODE_LIST, FLAG, Dx, Dy, Dz, Rx, Ry, Rz, GROUP\n"
           "\t" +
           digit + ", 100000,     " + digit +
           ",     0,     0,     0,     0,     0,\n"
           ";End of data for load case [L" +
           digit + "]\n\n";
  };
  EXPECT_EQ(LoadsOf(run),
            "*STLDCASE    ; Static Load Cases\n"
            "; LCNAME, LCTYPE, DESC\n"
            "\tL3,  USER, \n"
            "\tL2,  USER, \n"
            "\tL1,  USER, \n"
            "\n" +
                conload("3") + spdisp("3") + spdisp("2") + conload("1") + kEnd);
}

TEST(LoadCaseUse, CaseWithoutLoadsWritesNothing) {
  const ConversionRun run = Convert(StaticCases({"DEAD", "EMPTY"}) + R"(
TABLE:  "JOINT LOADS - FORCE"
   Joint=1   LoadCase=DEAD   F1=1
)");
  EXPECT_THAT(run.Lines("*STLDCASE"), ElementsAre("\tEMPTY,  USER, ", "\tDEAD,  USER, "));
  EXPECT_THAT(run.Output, Not(HasSubstr("     EMPTY\n")));
  EXPECT_THAT(run.Output, Not(HasSubstr("[EMPTY]")));
}

TEST(LoadCaseUse, LoadsWithoutACaseBelongToTheCaseWithoutAName) {
  const ConversionRun run = Convert(R"(
TABLE:  "ANALYSIS CASE DEFINITIONS"
   Case=DEAD   Type=LinStatic

TABLE:  "CASE - STATIC 1 - LOAD ASSIGNMENTS"
   Case=DEAD   LoadSF=1

TABLE:  "JOINT LOADS - FORCE"
   Joint=1   F1=1
)");
  EXPECT_EQ(LoadsOf(run), std::string("*STLDCASE    ; Static Load Cases\n"
                                      "; LCNAME, LCTYPE, DESC\n"
                                      "\t,      , \n"
                                      "\n"
                                      "*USE-STLD,           \n\n"
                                      "*CONLOAD    ; Nodal Loads\n"
                                      ";NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n"
                                      "\t1,     1,     0,     0,     0,     0,     0,\n"
                                      ";End of data for load case []\n"
                                      "\n") +
                              kEnd);
}

TEST(LoadCaseUse, ManyCasesWithManyLoadsEachComeOutInTheOrderOfTheHash) {
  constexpr std::uint32_t kCases = 300;
  constexpr std::uint32_t kLoads = kCases * kCases;
  constexpr std::uint32_t kSourceBuckets = 17;
  constexpr std::uint32_t kBuckets = 10'001;
  std::string assignments;
  ChainedHash<std::string> assignmentRows(kSourceBuckets);
  for (std::uint32_t key = 1; key <= kCases; ++key) {
    const std::string name = "L" + std::to_string(key);
    assignments += "   Case=ALL   LoadName=" + name + "\n";
    assignmentRows.Insert(key, name);
  }
  // The loads of a case stand far apart in the source.
  std::string forces;
  ChainedHash<std::string> forceRows(kBuckets);
  for (std::uint32_t key = 1; key <= kLoads; ++key) {
    const std::string name = "L" + std::to_string(key % kCases + 1);
    forces += "   Joint=" + std::to_string(key) + "   LoadCase=" + name + "   F1=1\n";
    forceRows.Insert(key, name);
  }
  // Both conversions walk their rows and store under the same keys; the writer walks these.
  ChainedHash<std::string> cases(kBuckets);
  for (const auto& [key, name] : assignmentRows.Walk()) {
    cases.Insert(key, name);
  }
  ChainedHash<std::string> loads(kBuckets);
  for (const auto& [key, name] : forceRows.Walk()) {
    loads.Insert(key, name);
  }
  std::map<std::string, std::string> linesOfCases;
  for (const auto& [key, name] : loads.Walk()) {
    linesOfCases[name] +=
        "\t" + std::to_string(key) + ",     1,     0,     0,     0,     0,     0,\n";
  }
  std::string list;
  std::string blocks;
  for (const auto& [key, name] : cases.Walk()) {
    list += "\t" + name + ",      , \n";
    blocks += "*USE-STLD, " + std::string(10 - name.size(), ' ') + name +
              "\n\n"
              "*CONLOAD    ; Nodal Loads\n"
              ";NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n" +
              linesOfCases[name] + ";End of data for load case [" + name + "]\n\n";
  }
  const std::string expected =
      "*STLDCASE    ; Static Load Cases\n"
      "; LCNAME, LCTYPE, DESC\n" +
      list + "\n" + blocks + kEnd;

  const ConversionRun run = Convert(
      "TABLE:  \"ANALYSIS CASE DEFINITIONS\"\n   Case=ALL   Type=LinStatic\n\n"
      "TABLE:  \"CASE - STATIC 1 - LOAD ASSIGNMENTS\"\n" +
      assignments + "\nTABLE:  \"JOINT LOADS - FORCE\"\n" + forces);
  const std::string actual = LoadsOf(run);
  const auto differs =
      std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end()).first;
  EXPECT_TRUE(actual == expected) << "from byte " << differs - actual.begin() << " on: "
                                  << actual.substr(
                                         static_cast<std::size_t>(differs - actual.begin()), 200);
}

// ---- A warning that no stage sets yet ----

TEST(LoadCaseWarning, IsShownAtTheHeadOfTheList) {
  WriterRun run;
  run.Target.Add(1, s2k2ngt::T_NGT_STLC_D{.LCNAME = "DEAD", .LCTYPE = "D"});
  run.Warnings.bLoadCaseLost = true;
  EXPECT_EQ(run.Write(s2k2ngt::WriteStaticLoads),
            "*STLDCASE    ; Static Load Cases\n"
            "; LCNAME, LCTYPE, DESC\n"
            "\tDEAD,     D, \n"
            "\n");
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_STLC_Not_Convert"));
}

TEST(LoadCaseWarning, IsShownOnceForAllLoadCases) {
  WriterRun run;
  run.Target.Add(1, s2k2ngt::T_NGT_STLC_D{.LCNAME = "DEAD", .LCTYPE = "D"});
  run.Target.Add(2, s2k2ngt::T_NGT_STLC_D{.LCNAME = "LIVE", .LCTYPE = "L"});
  run.Warnings.bLoadCaseLost = true;
  run.Write(s2k2ngt::WriteStaticLoads);
  EXPECT_THAT(run.Messages, ElementsAre("IDS_S2KV8_STLC_Not_Convert"));
}

TEST(LoadCaseWarning, StaysSilentWithoutLoadCasesOrFlag) {
  WriterRun withoutCases;
  withoutCases.Warnings.bLoadCaseLost = true;
  EXPECT_EQ(withoutCases.Write(s2k2ngt::WriteStaticLoads), "");
  EXPECT_THAT(withoutCases.Messages, IsEmpty());

  WriterRun withoutFlag;
  withoutFlag.Target.Add(1, s2k2ngt::T_NGT_STLC_D{.LCNAME = "DEAD", .LCTYPE = "D"});
  withoutFlag.Write(s2k2ngt::WriteStaticLoads);
  EXPECT_THAT(withoutFlag.Messages, IsEmpty());
}

}  // namespace
