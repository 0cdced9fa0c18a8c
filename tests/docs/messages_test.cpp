// For each message a file that raises it. docs/messages.md tells the condition of each in words.
#include "message_conditions.h"
#include "support/conversion_run.h"
#include "support/temporary_folder.h"

#include <s2k2ngt/converter.h>

#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace s2k2ngt::reference {
namespace {

using testing::Contains;

struct Example {
  std::string Key;
  std::string Tables;
};

std::string Joints() {
  return SourceTable("JOINT COORDINATES",
                     "   Joint=1   XorR=0   Y=0   Z=0\n   Joint=2   XorR=6   Y=0   Z=0\n"
                     "   Joint=3   XorR=6   Y=4   Z=0\n   Joint=4   XorR=0   Y=4   Z=0\n");
}

std::string Frame() {
  return SourceTable("CONNECTIVITY - FRAME", "   Frame=1   JointI=1   JointJ=2\n");
}

std::string Area() {
  return SourceTable("CONNECTIVITY - AREA",
                     "   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n");
}

std::string StaticLoad() {
  return SourceTable("LOAD CASE DEFINITIONS",
                     "   LoadCase=LIVE   DesignType=LIVE   SelfWtMult=0\n") +
         SourceTable("ANALYSIS CASE DEFINITIONS", "   Case=LIVE   Type=LinStatic\n") +
         SourceTable("CASE - STATIC 1 - LOAD ASSIGNMENTS", "   Case=LIVE   LoadName=LIVE\n");
}

std::string Analyses(const std::string& rows) {
  return SourceTable("ANALYSIS CASE DEFINITIONS", rows);
}

std::string History(const std::string& name, const std::string& damping) {
  return "   Case=" + name + "   HistoryType=Transient   DampingType=" + damping +
         "   OutSteps=10   StepSize=0.1\n";
}

std::string NonprismaticSections(const std::string& segment) {
  return SourceTable("FRAME SECTION PROPERTIES 1 - GENERAL",
                     "   SectionName=BEAM   Shape=Rectangular   t3=0.3\n"
                     "   SectionName=CELLS   Shape=\"SD Section\"\n"
                     "   SectionName=HAUNCH   Shape=Nonprismatic\n") +
         SourceTable("FRAME SECTION PROPERTIES 5 - NONPRISMATIC",
                     "   SectionName=HAUNCH   " + segment);
}

std::string MovingLoad(const std::string& vehicles, const std::string& assignment) {
  return SourceTable("BRIDGE LOADS 2 - VEHICLES - STANDARD", vehicles) +
         SourceTable("BRIDGE LOADS 5 - VEHICLE CLASSES", "   VehClass=TRUCKS   VehName=HS20\n") +
         SourceTable("CASE - MOVING LOAD 1 - LANE ASSIGNMENTS", assignment);
}

const std::string kTruck = "   VehName=HS20   Type=HSn-44   ScaleFactor=20\n";

const std::vector<Example>& Examples() {
  static const std::vector<Example> examples = {
      {"IDS_S2KV8_Export_must_be_executed", Joints()},
      {"IDS_S2KV8_Not_Convert", Joints() + "a foreign line\n"},
      {"IDS_S2KV8_DATA_Not_Convert", "a foreign line\n" + Joints()},
      {"IDS_S2KV8_NODE_NOT_Cylindrical",
       SourceTable("COORDINATE SYSTEMS", "   Name=GLOBAL   Type=Cylindrical\n")},
      {"IDS_S2KV8_AREA_AtMesh_Not_Convert",
       SourceTable("AREA AUTO MESH ASSIGNMENTS", "   Area=1\n")},
      {"IDS_S2KV8_AREA_PrPrsr_Not_Convert",
       SourceTable("AREA LOADS - PORE PRESSURE", "   Area=1\n")},
      {"IDS_S2KV8_AREA_Local_Not_Convert",
       SourceTable("AREA LOCAL AXES ASSIGNMENTS 1 - TYPICAL", "   Area=1\n")},
      {"IDS_S2KV8_AREA_Stif_Not_Convert", SourceTable("AREA STIFFNESS MODIFIERS", "   Area=1\n")},
      {"IDS_S2KV8_SEIS_Data_Not_Convert", SourceTable("AUTO SEISMIC - UBC94", "   LoadCase=EX\n")},
      {"IDS_S2KV8_WIND_Data_Not_Convert", SourceTable("AUTO WIND - UBC94", "   LoadCase=WX\n")},
      {"IDS_S2KV8_SOLD_PrPrsr_Not_Convert",
       SourceTable("SOLID LOADS - PORE PRESSURE", "   Solid=1\n")},
      {"IDS_S2KV8_SOLD_SurfP_Not_Convert",
       SourceTable("SOLID LOADS - SURFACE PRESSURE", "   Solid=1\n")},
      {"IDS_S2KV8_SOLD_Local_Not_Convert",
       SourceTable("SOLID LOCAL AXES ASSIGNMENTS 1 - TYPICAL", "   Solid=1\n")},
      {"IDS_S2KV8_SOLD_Spr_Not_Convert", SourceTable("SOLID SPRING ASSIGNMENTS", "   Solid=1\n")},
      {"IDS_S2KV8_NOCONVERT_AREA_GRAV",
       SourceTable("AREA LOADS - GRAVITY", "   Area=1   MultiplierZ=-1\n")},
      {"IDS_S2KV8_FRAM_GRAV_Not_Convert",
       SourceTable("LOAD CASE DEFINITIONS", "   LoadCase=DEAD   DesignType=DEAD   SelfWtMult=1\n")},
      {"IDS_S2KV8_OFFSET_LOCAL_DIR",
       Joints() + Frame() +
           SourceTable("FRAME INSERTION POINT ASSIGNMENTS",
                       "   Frame=1   CardinalPt=10   CoordSys=Local   JtOffsetZI=0.2\n")},
      {"IDS_S2KV8_OFFSET_REPLACE_GLOBAL",
       Joints() + Frame() +
           SourceTable("FRAME OFFSET (LENGTH) ASSIGNMENTS", "   Frame=1   LengthI=0.3\n") +
           SourceTable("FRAME INSERTION POINT ASSIGNMENTS",
                       "   Frame=1   CardinalPt=10   CoordSys=GLOBAL   JtOffsetZI=0.2\n")},
      {"IDS_S2KV8_RESP_BOCA96_Not_Convert",
       SourceTable("FUNCTION - RESPONSE SPECTRUM - BOCA96", "   Name=EAST\n")},
      {"IDS_S2KV8_RESP_FILE_Not_Convert",
       SourceTable("FUNCTION - RESPONSE SPECTRUM - FROM FILE", "   Name=MEASURED\n")},
      {"IDS_S2KV8_RESP_NHERP97_Not_Convert",
       SourceTable("FUNCTION - RESPONSE SPECTRUM - NEHRP97", "   Name=WEST\n")},
      {"IDS_S2KV8_RESP_NZS4203_Not_Convert",
       SourceTable("FUNCTION - RESPONSE SPECTRUM - NZS4203", "   Name=WELLINGTON\n")},
      {"IDS_S2KV8_NOCONVERT_VEHICLE",
       MovingLoad(kTruck + "   VehName=RAIL   Type=RL\n", "   Case=TRUCKS\n")},
      {"IDS_S2KV8_ELEM_Length_Zero",
       Joints() +
           SourceTable("CONNECTIVITY - FRAME", "   Frame=1   JointI=1   JointJ=2   Length=0\n") +
           SourceTable("FRAME SECTION ASSIGNMENTS", "   Frame=1   AnalSect=BEAM\n") +
           SourceTable("FRAME LOADS - POINT",
                       "   Frame=1   LoadCase=LIVE   Type=Force   Dir=Gravity   DistType=AbsDist   "
                       "AbsDist=2   Force=5\n")},
      {"IDS_S2KV8_FRAM_LclAx_Not_Convert", Joints() + Frame()},
      {"IDS_S2KV8_PLAT_LclAx_Not_Convert", Joints() + Area()},
      {"IDS_S2KV8_SOLD_LclAx_Not_Convert",
       Joints() + SourceTable("CONNECTIVITY - SOLID", "   Solid=1   Joint1=1   Joint2=2\n")},
      {"IDS_S2KV8_NODE_NSPR_Not_Convert",
       Joints() +
           SourceTable("JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL", "   Joint=1   AngleA=30\n") +
           SourceTable("JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED",
                       "   Joint=2   CoordSys=Local   U3=10\n") +
           SourceTable("JOINT SPRING ASSIGNMENTS 2 - COUPLED",
                       "   Joint=1   CoordSys=GLOBAL   U1=10\n")},
      {"IDS_S2KV8_FRAME_2_NSPR",
       Joints() + Frame() +
           SourceTable("FRAME SPRING ASSIGNMENTS", "   Frame=1   Dir=Local2   Stiffness=10\n")},
      {"IDS_S2KV8_PLATE_2_NSPR",
       Joints() + Area() +
           SourceTable("AREA SPRING ASSIGNMENTS", "   Area=1   Face=5   Stiffness=10\n")},
      {"IDS_S2KV8_PLATE_NSPR_Not_Convert",
       Joints() + Area() +
           SourceTable("AREA SPRING ASSIGNMENTS",
                       "   Area=1   Face=1   Stiffness=10\n   Area=1   Face=5   Stiffness=10\n")},
      {"IDS_S2KV8_BEAM_End_Release", Joints() + Frame() +
                                         SourceTable("FRAME RELEASE ASSIGNMENTS 1 - GENERAL",
                                                     "   Frame=1   M3I=Yes   PartialFix=Yes\n")},
      {"IDS_S2KV8_PLATE_SurfP_Not_Convert",
       Joints() + Area() + StaticLoad() +
           SourceTable("AREA LOADS - SURFACE PRESSURE",
                       "   Area=1   LoadCase=LIVE   Face=1   Pressure=3\n"
                       "   Area=1   LoadCase=LIVE   Face=5   Pressure=3\n")},
      {"IDS_S2KV8_LINK_Sinlge_Joint",
       Joints() +
           SourceTable("LINK PROPERTY DEFINITIONS 01 - GENERAL",
                       "   Link=PAD   LinkType=Linear\n") +
           SourceTable("SUMMARY - LINK ASSIGNMENTS",
                       "   Link=1   LinkType=Linear   LinkJoint=TwoJoint   LinkProp=PAD\n"
                       "   Link=2   LinkType=Linear   LinkJoint=SingleJoint   LinkProp=PAD\n") +
           SourceTable("CONNECTIVITY - LINK",
                       "   Link=1   JointI=1   JointJ=2\n   Link=2   JointI=3   JointJ=3\n")},
      {"IDS_S2KV8_MATL_ANIS_Not_Convert",
       SourceTable("MATERIAL PROPERTIES 1 - GENERAL", "   Material=WOOD   Type=Anisotropic\n") +
           SourceTable("MATERIAL PROPERTIES 2 - ADVANCED", "   Material=WOOD   E1=11000\n")},
      {"IDS_S2KV8_SECT_Not_Trans", SourceTable("FRAME SECTION PROPERTIES 1 - GENERAL",
                                               "   SectionName=BEAM   Shape=Rectangular   t3=0.3\n"
                                               "   SectionName=CELLS   Shape=\"SD Section\"\n")},
      {"IDS_S2KV8_STLC_Not_Convert",
       StaticLoad() + SourceTable("COMBINATION DEFINITIONS",
                                  "   ComboName=ULS   CaseType=\"NonLin Direct Hist\"   "
                                  "CaseName=LIVE\n")},
      {"IDS_S2KV8_RESP_SPLC_Not_Convert",
       SourceTable("CASE - RESPONSE SPECTRUM 2 - LOAD ASSIGNMENTS",
                   "   Case=EQ   LoadName=U1   CoordSys=SITE\n"
                   "   Case=EQ   LoadName=U2   CoordSys=GLOBAL\n")},
      {"IDS_S2KV8_THLC_Data_Not_Convert",
       Analyses("   Case=H1   Type=LinModHist\n   Case=H2   Type=LinModHist\n") +
           SourceTable("CASE - MODAL HISTORY 1 - GENERAL",
                       History("H1", "Constant") + History("H2", "Pro-Direct"))},
      {"IDS_S2KV8_MDHT_IntpDamp_Not_Convert",
       Analyses("   Case=H1   Type=LinModHist\n   Case=H2   Type=LinModHist\n") +
           SourceTable("CASE - MODAL HISTORY 1 - GENERAL",
                       History("H1", "Constant") + History("H2", "Interpolated"))},
      {"IDS_S2KV8_BUCK_LdType_Not_Convert",
       Analyses("   Case=BUCK   Type=LinBuckling\n") +
           SourceTable("CASE - BUCKLING 1 - GENERAL", "   Case=BUCK   NumBuckMode=4\n") +
           // Row 2 is met before row 1.
           SourceTable("CASE - BUCKLING 2 - LOAD ASSIGNMENTS",
                       "   Case=BUCK   LoadType=Accel   LoadName=\"Accel UZ\"\n"
                       "   Case=BUCK   LoadType=\"Load case\"   LoadName=LIVE\n")},
      {"IDS_S2KV8_SECT_TAPP_Not_Convert",
       NonprismaticSections("NumSegments=2   SegmentNum=1   StartSect=BEAM   EndSect=BEAM\n")},
      {"IDS_S2KV8_SECT_SSEC_Not_Define",
       NonprismaticSections("NumSegments=1   SegmentNum=1   StartSect=GONE   EndSect=LOST\n")},
      {"IDS_S2KV8_SECT_ESEC_Not_Define",
       NonprismaticSections("NumSegments=1   SegmentNum=1   StartSect=CELLS   EndSect=GONE\n")},
      {"IDS_S2KV8_AREA_Prop_Not_Convert",
       Joints() + Area() +
           SourceTable("MATERIAL PROPERTIES 1 - GENERAL", "   Material=STEEL   Type=Isotropic\n") +
           SourceTable("AREA SECTION PROPERTIES",
                       "   Section=TENT   Material=STEEL   AreaType=Fabric   Thickness=0.01\n") +
           SourceTable("AREA SECTION ASSIGNMENTS", "   Area=1   Section=TENT\n")},
      {"IDS_S2KV8_REST_AutoAX_Not_Convert",
       Joints() +
           SourceTable("JOINT CONSTRAINT ASSIGNMENTS",
                       "   Joint=1   Constraint=FLOOR   Type=Diaphragm\n"
                       "   Joint=2   Constraint=FLOOR   Type=Diaphragm\n"
                       "   Joint=3   Constraint=PANEL   Type=Diaphragm\n"
                       "   Joint=4   Constraint=PANEL   Type=Diaphragm\n") +
           SourceTable("CONSTRAINT DEFINITIONS - DIAPHRAGM",
                       "   Name=FLOOR   Axis=Z\n   Name=PANEL   Axis=Auto\n")},
      {"IDS_S2KV8_REST_Local_Not_Convert",
       Joints() +
           SourceTable("JOINT CONSTRAINT ASSIGNMENTS",
                       "   Joint=1   Constraint=FLOOR   Type=Diaphragm\n"
                       "   Joint=2   Constraint=FLOOR   Type=Diaphragm\n"
                       "   Joint=2   Constraint=SLIDE   Type=Local\n") +
           SourceTable("CONSTRAINT DEFINITIONS - DIAPHRAGM", "   Name=FLOOR   Axis=Z\n")},
      {"IDS_S2KV8_MAXLOADED_VEHICLE_CLASS",
       MovingLoad(kTruck, "   Case=TRUCKS   VehClass=TRUCKS   MaxLoaded=0\n")},
      {"IDS_S2KV8_TMHT_Func_Not_Convert",
       Analyses("   Case=H1   Type=LinModHist\n") +
           SourceTable("CASE - MODAL HISTORY 1 - GENERAL", History("H1", "Constant")) +
           // Row 2 is met before row 1.
           SourceTable("CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS",
                       "   Case=H1   LoadType=Accel   LoadName=\"Accel U2\"   Function=SINE\n"
                       "   Case=H1   LoadType=Accel   LoadName=\"Accel U1\"   Function=QUAKE\n") +
           SourceTable("FUNCTION - TIME HISTORY - USER", "   Name=QUAKE   Time=0   Value=0.1\n")},
      {"IDS_S2KV8_TMHT_NewMark_Only_Convert",
       Analyses("   Case=D1   Type=LinDirHis\n   Case=D2   Type=LinDirHis\n") +
           SourceTable("CASE - DIRECT HISTORY 1 - GENERAL", "   Case=D1\n   Case=D2\n") +
           SourceTable("CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING",
                       "   Case=D1   SpecifyType=Direct   MassCoeff=0.3\n"
                       "   Case=D2   SpecifyType=Direct   MassCoeff=0.3\n") +
           SourceTable("CASE - DIRECT HISTORY 4 - INTEGRATION PARAMETERS",
                       "   Case=D2   IntMethod=Wilson\n")},
      {"IDS_S2KV8_ELEM_Renumbering",
       Joints() + SourceTable("CONNECTIVITY - FRAME", "   Frame=B1   JointI=1   JointJ=2\n")},
      {"IDS_S2KV8_NODE_Renumbering", SourceTable("JOINT COORDINATES", "   Joint=A1\n")},
  };
  return examples;
}

/// All keys that a run shows, the reminder at its beginning included.
std::vector<std::string> KeysShownBy(const std::string& tables) {
  const TemporaryFolder folder;
  const std::string path = folder.FileName("model.s2k");
  WriteFile(path, FileWith(tables));
  ScriptedPlatform platform;
  CConverter(platform).Run(path.c_str());
  std::vector<std::string> keys;
  for (const ScriptedPlatform::Message& message : platform.Messages) {
    keys.push_back(message.Key);
  }
  return keys;
}

TEST(Messages, EachIsRaisedByItsExample) {
  for (const auto& [key, tables] : Examples()) {
    SCOPED_TRACE(key);
    EXPECT_THAT(KeysShownBy(tables), Contains(key));
  }
}

TEST(Messages, ThatAreToldToBeRaisedAreThoseWithAnExample) {
  std::set<std::string> told;
  for (const MessageCondition& message : kMessageConditions) {
    if (message.IsRaised) {
      told.emplace(message.Key);
    }
  }
  std::set<std::string> shown;
  for (const Example& example : Examples()) {
    shown.insert(example.Key);
  }
  EXPECT_EQ(shown, told);
}

}  // namespace
}  // namespace s2k2ngt::reference
