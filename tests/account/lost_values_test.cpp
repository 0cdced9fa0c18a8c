#include "support/account_run.h"
#include "support/analysis_tables.h"
#include "support/box_joints.h"
#include "support/frame_tables.h"
#include "support/load_tables.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

// Values of rows that go over otherwise, which no line of the output has.

/// A row in a model that has a use for it.
struct Place {
  std::string Tables;  // the others of the model
  std::string Title;
  std::string Row;  // without the value
};

struct LostValueCase {
  Place Where;
  std::string Neutral;  // states what the host takes anyway
  std::string Lossy;
  std::string Code;
};

void PrintTo(const LostValueCase& value, std::ostream* out) {
  *out << value.Where.Title << ": " << value.Lossy;
}

std::vector<std::string> LossesOf(const Place& place, const std::string& value) {
  return KeepAccount(place.Tables +
                     SourceTable(place.Title, "   " + place.Row + "   " + value + "\n"))
      .LossesIn(place.Title);
}

class LostValues : public testing::TestWithParam<LostValueCase> {};

TEST_P(LostValues, AreToldUnlessTheyAreNeutral) {
  const auto& [place, neutral, lossy, code] = GetParam();
  const std::string label = place.Row.substr(0, place.Row.find(' '));
  EXPECT_THAT(LossesOf(place, lossy), Contains(label + ": " + code));
  EXPECT_THAT(LossesOf(place, neutral), Not(Contains(label + ": " + code)));
  EXPECT_THAT(LossesOf(place, ""), Not(Contains(label + ": " + code)));
}

// ---- Frames ----

const Place kInsertionPoint = {
    SoundFrames(), "FRAME INSERTION POINT ASSIGNMENTS",
    "Frame=1   CardinalPt=\"8 (Top Center)\"   CoordSys=GLOBAL   JtOffsetXI=0.1"};
const Place kInitialForce = {SoundFrames(), "FRAME P-DELTA FORCE ASSIGNMENTS",
                             "Frame=1   Direction=\"X Proj\"   Force=-20"};
const Place kAdvancedAxes = {
    SoundFrames() + SourceTable("FRAME LOCAL AXES ASSIGNMENTS 1 - TYPICAL",
                                "   Frame=1   Angle=0   AdvanceAxes=Yes\n"),
    "FRAME LOCAL AXES ASSIGNMENTS 2 - ADVANCED",
    "Frame=1   LocalPlan=12   PlOption1=\"Coord Dir\"   CoordDir1=Y   CoordDir2=Z"};

const Place kFrameAssignment = {
    FrameJoints() + FrameMaterial() + FrameSections() +
        SourceTable("CONNECTIVITY - FRAME", "   Frame=1   JointI=1   JointJ=2   Length=4\n"),
    "FRAME SECTION ASSIGNMENTS", "Frame=1   AnalSect=BEAM"};

INSTANTIATE_TEST_SUITE_P(
    Frames, LostValues,
    testing::Values(LostValueCase{kFrameAssignment, "MatProp=Default", "MatProp=ALU",
                                  "material-of-assignment"},
                    LostValueCase{kInsertionPoint, "Mirror2=No", "Mirror2=Yes", "frame-mirrored"},
                    LostValueCase{kInitialForce, "CoordSys=GLOBAL", "CoordSys=SKEW",
                                  "coordinate-system-ignored"},
                    LostValueCase{kAdvancedAxes, "PlCoordSys=GLOBAL", "PlCoordSys=SKEW",
                                  "coordinate-system-ignored"}));

// ---- Areas and solids ----

const Place kAreaSection = {
    BoxJoints() + ConcreteMaterial() +
        SourceTable("CONNECTIVITY - AREA",
                    "   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n") +
        SourceTable("AREA SECTION ASSIGNMENTS", "   Area=1   Section=RING\n"),
    "AREA SECTION PROPERTIES", "Section=RING   Material=C30   AreaType=Asolid   Thickness=1"};
const Place kSolidProperty = {
    BoxJoints() + ConcreteMaterial() +
        SourceTable("CONNECTIVITY - SOLID",
                    "   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   "
                    "Joint6=6   Joint7=7   Joint8=8\n") +
        SourceTable("SOLID PROPERTY ASSIGNMENTS", "   Solid=1   SolidProp=BLOCK\n"),
    "SOLID PROPERTY DEFINITIONS", "SolidProp=BLOCK   Material=C30"};

const Place kAreaAssignment = {
    BoxJoints() + SourceTable("CONNECTIVITY - AREA",
                              "   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n"),
    "AREA SECTION ASSIGNMENTS", "Area=1   Section=SLAB"};
const Place kSolidAssignment = {
    BoxJoints() + SourceTable("CONNECTIVITY - SOLID",
                              "   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5"
                              "   Joint6=6   Joint7=7   Joint8=8\n"),
    "SOLID PROPERTY ASSIGNMENTS", "Solid=1   SolidProp=BLOCK"};

INSTANTIATE_TEST_SUITE_P(
    AreasAndSolids, LostValues,
    testing::Values(
        LostValueCase{kAreaAssignment, "MatProp=Default", "MatProp=C50", "material-of-assignment"},
        LostValueCase{kSolidAssignment, "MatProp=Default", "MatProp=C50", "material-of-assignment"},
        LostValueCase{kSolidProperty, "MatAngleA=0", "MatAngleA=20", "material-angle"},
        LostValueCase{kSolidProperty, "MatAngleB=0", "MatAngleB=-20", "material-angle"},
        LostValueCase{kSolidProperty, "MatAngleC=0", "MatAngleC=20", "material-angle"},
        LostValueCase{kAreaSection, "Arc=0", "Arc=360", "arc-of-axisymmetric"},
        LostValueCase{kAreaSection, "InComp=Yes", "InComp=No", "without-incompatible-modes"},
        LostValueCase{kAreaSection, "CoordSys=GLOBAL", "CoordSys=SKEW",
                      "coordinate-system-ignored"},
        LostValueCase{kSolidProperty, "InComp=Yes", "InComp=No", "without-incompatible-modes"}));

// ---- Links ----

/// A link of a property D of this kind.
std::string LinkOf(const std::string& linkType) {
  return BoxJoints() + SourceTable("CONNECTIVITY - LINK", "   Link=1   JointI=1   JointJ=3\n") +
         SourceTable("SUMMARY - LINK ASSIGNMENTS",
                     "   Link=1   LinkType=\"" + linkType +
                         "\"   LinkJoint=TwoJoint   LinkProp=D   LocalAxes=Yes\n");
}
Place DirectionOf(const std::string& linkType, const std::string& title) {
  return {LinkOf(linkType) + SourceTable("LINK PROPERTY DEFINITIONS 01 - GENERAL",
                                         "   Link=D   LinkType=\"" + linkType + "\"\n"),
          "LINK PROPERTY DEFINITIONS " + title, "Link=D   DOF=U1   TransKE=90"};
}
const Place kLinear = DirectionOf("Linear", "02 - LINEAR");
const Place kLinkProperty = {LinkOf("Damper"), "LINK PROPERTY DEFINITIONS 01 - GENERAL",
                             "Link=D   LinkType=Damper"};
const Place kLinkAxes = {
    LinkOf("Linear") +
        SourceTable("LINK PROPERTY DEFINITIONS 01 - GENERAL", "   Link=D   LinkType=Linear\n") +
        SourceTable("LINK LOCAL AXES ASSIGNMENTS 1 - TYPICAL",
                    "   Link=1   Angle=0   AdvanceAxes=Yes\n"),
    "LINK LOCAL AXES ASSIGNMENTS 2 - ADVANCED",
    "Link=1   LocalPlane=12   PlOption1=\"Coord Dir\"   CoordDir1=Y"};

std::vector<LostValueCase> LinkCases() {
  std::vector<LostValueCase> cases;
  for (const Place& direction :
       {kLinear, DirectionOf("Damper", "04 - DAMPER"), DirectionOf("Gap", "05 - GAP"),
        DirectionOf("Hook", "06 - HOOK"), DirectionOf("Rubber Isolator", "07 - RUBBER ISOLATOR"),
        DirectionOf("Friction Isolator", "08 - SLIDING ISOLATOR"),
        DirectionOf("Plastic (Wen)", "09 - PLASTIC (WEN)")}) {
    cases.push_back({direction, "Fixed=No", "Fixed=Yes", "link-direction-fixed"});
  }
  for (const std::string key : {"TransCE=", "RotCE="}) {
    cases.push_back({kLinear, key + "0", key + "4", "damping-of-linear-direction"});
  }
  for (const std::string key : {"Mass=", "RotInert1=", "RotInert2=", "RotInert3="}) {
    cases.push_back({kLinkProperty, key + "0", key + "1.5", "mass-of-link"});
  }
  for (const std::string key : {"PDM2I=", "PDM2J=", "PDM3I=", "PDM3J="}) {
    cases.push_back({kLinkProperty, key + "0", key + "0.5", "p-delta-share-of-link"});
  }
  for (const std::string key : {"AxCoordSys=", "PlCoordSys="}) {
    cases.push_back({kLinkAxes, key + "GLOBAL", key + "SKEW", "coordinate-system-ignored"});
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(Links, LostValues, testing::ValuesIn(LinkCases()));

// ---- Reference temperatures ----

/// A model whose elements have loads by temperature.
std::string Heated(const std::string& connectivity, const std::string& loads) {
  return BoxJoints() + StaticCases({"SUN"}) + connectivity + loads;
}
const Place kFrameReference = {
    Heated(SourceTable("CONNECTIVITY - FRAME", "   Frame=1   JointI=1   JointJ=2\n"),
           SourceTable("FRAME LOADS - TEMPERATURE",
                       "   Frame=1   LoadCase=SUN   Type=Temperature   Temp=30\n")),
    "FRAME REFERENCE TEMPERATURES", "Frame=1   Temp=10"};
const Place kAreaReference = {
    Heated(SourceTable("CONNECTIVITY - AREA",
                       "   Area=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4\n"),
           SourceTable("AREA LOADS - TEMPERATURE",
                       "   Area=1   LoadCase=SUN   Type=Temperature   Temp=30\n")),
    "AREA REFERENCE ASSIGNMENTS", "Area=1   Temp=10"};
const Place kSolidReference = {
    Heated(SourceTable("CONNECTIVITY - SOLID",
                       "   Solid=1   Joint1=1   Joint2=2   Joint3=3   Joint4=4   Joint5=5   "
                       "Joint6=6   Joint7=7   Joint8=8\n"),
           SourceTable("SOLID LOADS - TEMPERATURE", "   Solid=1   LoadCase=SUN   Temp=30\n")),
    "SOLID REFERENCE TEMPERATURES", "Solid=1   Temp=10"};

INSTANTIATE_TEST_SUITE_P(ReferenceTemperatures, LostValues,
                         testing::Values(LostValueCase{kFrameReference, "JtPattern=None",
                                                       "JtPattern=HEAT", "reference-by-pattern"},
                                         LostValueCase{kAreaReference, "JtPattern=None",
                                                       "JtPattern=HEAT", "reference-by-pattern"},
                                         LostValueCase{kSolidReference, "JtPattern=None",
                                                       "JtPattern=HEAT", "reference-by-pattern"}));

// ---- Analyses ----

const std::string kModes =
    SourceTable("CONNECTIVITY - FRAME", "   Frame=1\n   Frame=2\n   Frame=3\n") +
    AnalysesBesideStatic("   Case=MODAL   Type=LinModal\n");
const Place kEigen = {kModes, "CASE - MODAL 1 - GENERAL",
                      "Case=MODAL   ModeType=Eigen   MaxNumModes=3"};
const Place kVector = {kModes + SourceTable("CASE - MODAL 1 - GENERAL",
                                            "   Case=MODAL   ModeType=Ritz   MaxNumModes=3\n"),
                       "CASE - MODAL 3 - LOAD ASSIGNMENTS - RITZ",
                       "Case=MODAL   LoadType=\"Load case\"   LoadName=DEAD"};

std::string HistoryCase(const std::string& type) {
  return AnalysesBesideStatic("   Case=TH   Type=" + type + "   InitialCond=Zero\n");
}
const Place kModalHistory = {HistoryCase("LinModHist"), "CASE - MODAL HISTORY 1 - GENERAL",
                             "Case=TH   DampingType=Constant   HistoryType=Transient"};
const Place kModalSteps = {
    HistoryCase("NonModHist") +
        SourceTable("CASE - MODAL HISTORY 1 - GENERAL",
                    "   Case=TH   OutSteps=50   StepSize=12.5   DampingType=Constant\n"),
    "CASE - MODAL HISTORY 6 - NONLINEAR PARAMETERS", "Case=TH   DTMax=0.5   DTMin=0.01"};
const Place kDirectSteps = {
    HistoryCase("NonDirHist") +
        SourceTable("CASE - DIRECT HISTORY 1 - GENERAL", "   Case=TH   OutSteps=50\n") +
        SourceTable("CASE - DIRECT HISTORY 3 - PROPORTIONAL DAMPING",
                    "   Case=TH   SpecifyType=Direct   MassCoeff=0.3\n") +
        SourceTable("CASE - DIRECT HISTORY 4 - INTEGRATION PARAMETERS",
                    "   Case=TH   IntMethod=Newmark   Gamma=0.5   Beta=0.25\n"),
    "CASE - DIRECT HISTORY 5 - NONLINEAR PARAMETERS", "Case=TH   DTMax=1"};
const Place kGroundMotion = {
    HistoryCase("LinModHist") +
        SourceTable("CASE - MODAL HISTORY 1 - GENERAL", "   Case=TH   DampingType=Constant\n") +
        SourceTable("FUNCTION - TIME HISTORY - USER",
                    "   Name=PULSE   Time=0   Value=0\n   Name=PULSE   Time=1   Value=1\n"),
    "CASE - MODAL HISTORY 2 - LOAD ASSIGNMENTS",
    "Case=TH   LoadType=Accel   LoadName=\"Accel U1\"   Function=PULSE   TransAccSF=9.8"};

std::vector<LostValueCase> AnalysisCases() {
  std::vector<LostValueCase> cases = {
      {kEigen, "MinNumModes=1", "MinNumModes=2", "search-of-modes"},
      {kEigen, "EigenShift=0.0", "EigenShift=2", "search-of-modes"},
      {kEigen, "EigenCutOff=0", "EigenCutOff=33", "search-of-modes"},
      {kVector, "TargetPar=0", "TargetPar=99", "participation-of-vectors"},
      {kModalHistory, "MotionType=Transient", "MotionType=Periodic", "history-motion-differs"},
      {kModalSteps, "PeriodStat=0", "PeriodStat=3", "controls-of-steps"},
      {kModalSteps, "EConvTol=1E-05", "EConvTol=0.001", "controls-of-steps"},
      {kModalSteps, "ConvFactor=1", "ConvFactor=2", "controls-of-steps"},
      {kModalSteps, "ForceItMin=2", "ForceItMin=5", "controls-of-steps"},
      {kDirectSteps, "GeoNonLin=None", "GeoNonLin=P-Delta", "geometric-nonlinearity"},
      {kDirectSteps, "EvLumpTol=0.01", "EvLumpTol=0.1", "controls-of-steps"},
      {kGroundMotion, "CoordSys=GLOBAL", "CoordSys=SKEW", "coordinate-system-ignored"}};
  for (const std::string key : {"FrameTC=", "FrameHinge=", "CableTC=", "LinkTC=", "LinkOther="}) {
    cases.push_back({kModalSteps, key + "Yes", key + "No", "nonlinearity-switched-off"});
    cases.push_back({kDirectSteps, key + "Yes", key + "No", "nonlinearity-switched-off"});
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(Analyses, LostValues, testing::ValuesIn(AnalysisCases()));

TEST(ModesOfAnotherCase, AreToldOfTheCaseThatAsksForThem) {
  const auto losses = [](const std::string& modalCase) {
    return KeepAccount(
               SourceTable("CONNECTIVITY - FRAME", "   Frame=1\n   Frame=2\n") +
               SourceTable("CASE - MODAL 1 - GENERAL",
                           "   Case=MODAL   ModeType=Eigen   MaxNumModes=2\n") +
               SourceTable("CASE - MODAL HISTORY 1 - GENERAL",
                           "   Case=TH   DampingType=Constant\n") +
               AnalysesBesideStatic("   Case=MODAL   Type=LinModal\n   Case=TH   Type=LinModHist"
                                    "   InitialCond=Zero   ModalCase=" +
                                    modalCase + "\n"))
        .LossesIn("ANALYSIS");
  };
  EXPECT_THAT(losses("RITZ"), ElementsAre("Case=TH: modes-of-another-case"));
  EXPECT_THAT(losses("MODAL"), IsEmpty());
  EXPECT_THAT(losses("None"), IsEmpty());
}

// ---- Bridges ----

const std::string kBridge =
    SourceTable("CONNECTIVITY - FRAME", "   Frame=1   JointI=1   JointJ=2   Length=10\n") +
    SourceTable("ANALYSIS CASE DEFINITIONS", "   Case=LIVE   Type=LinMoving\n") +
    SourceTable("BRIDGE LOADS 1 - LANES", "   LaneName=EAST   Frame=1\n") +
    SourceTable("BRIDGE LOADS 5 - VEHICLE CLASSES", "   VehClass=LIVE   VehName=CRANE\n") +
    SourceTable("CASE - MOVING LOAD 1 - LANE ASSIGNMENTS",
                "   Case=LIVE   AssignNum=1   VehClass=LIVE\n") +
    SourceTable("CASE - MOVING LOAD 2 - LANES LOADED", "   Case=LIVE   AssignNum=1   Lane=EAST\n");
const Place kVehicle = {
    kBridge + SourceTable("BRIDGE LOADS 4 - VEHICLES - GENERAL 2",
                          "   VehName=CRANE   InterAxle=0   InterMinD=3   InterMaxD=3\n"),
    "BRIDGE LOADS 3 - VEHICLES - GENERAL 1", "VehName=CRANE   TrailUnif=9   FirstAxle=60"};
const Place kResponse = {kBridge, "BRIDGE LOADS 6 - BRIDGE RESPONSE",
                         "Displs=ALL   Reactions=ALL   Frames=ALL"};

INSTANTIATE_TEST_SUITE_P(
    Bridges, LostValues,
    testing::Values(
        LostValueCase{kVehicle, "SupprotMom=Yes", "SupprotMom=No", "vehicle-for-some-responses"},
        LostValueCase{kVehicle, "IntSupport=Yes", "IntSupport=No", "vehicle-for-some-responses"},
        LostValueCase{kVehicle, "OtherResp=Yes", "OtherResp=No", "vehicle-for-some-responses"},
        LostValueCase{kResponse, "InitialCond=Zero", "InitialCond=DEAD", "initial-condition-lost"},
        LostValueCase{kResponse, "Springs=None", "Springs=ALL", "response-of-springs"}));

// ---- Joints and their systems ----

const Place kJoint = {"", "JOINT COORDINATES", "Joint=1   CoordType=Cartesian   XorR=2   Z=1"};
const Place kFirstSystem = {"", "COORDINATE SYSTEMS", "Name=SKEW   Type=Cartesian"};

std::vector<LostValueCase> SystemCases() {
  std::vector<LostValueCase> cases = {
      {kJoint, "CoordSys=GLOBAL", "CoordSys=SKEW", "coordinate-system-ignored"},
      // Where the joint lies is told by itself.
      {kJoint, "CoordSys=SKEW   GlobalX=2   GlobalZ=1", "CoordSys=SKEW",
       "coordinate-system-ignored"}};
  for (const std::string key : {"X=", "Y=", "Z=", "AboutZ=", "AboutY=", "AboutX="}) {
    cases.push_back({kFirstSystem, key + "0", key + "30", "coordinate-system-moved"});
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(Systems, LostValues, testing::ValuesIn(SystemCases()));

// ---- Names that no table is known to have ----

std::vector<std::string> LossesOfJoint(const std::string& value) { return LossesOf(kJoint, value); }

TEST(ValuesOfUnknownName, AreToldUnlessTheySayNoOrNothing) {
  EXPECT_THAT(LossesOfJoint("PanelZone=Stiff"), ElementsAre("Joint=1: value-of-unknown-name"));
  EXPECT_THAT(LossesOfJoint("PanelZone=0.25"), ElementsAre("Joint=1: value-of-unknown-name"));
  for (const char* nothing : {"No", "None", "0", "0.00", "Default", "zero", "GLOBAL", ""}) {
    EXPECT_THAT(LossesOfJoint("PanelZone=" + std::string(nothing)), IsEmpty()) << nothing;
  }
}

TEST(ValuesOfUnknownName, AtTheEndOfALineThatGoesOnAreReadUpToTheNextName) {
  EXPECT_THAT(LossesOfJoint("PanelZone=No _\n   SpecialJt=No"), IsEmpty());
  EXPECT_THAT(LossesOfJoint("PanelZone=0.0 _\n   SpecialJt=No"), IsEmpty());
  EXPECT_THAT(LossesOfJoint("PanelZone=Stiff _\n   SpecialJt=No"),
              ElementsAre("Joint=1: value-of-unknown-name"));
}

TEST(ValuesOfUnknownName, ThatMarkTheRowForPeopleAreNoLoss) {
  EXPECT_THAT(LossesOfJoint("Color=Red   GUID=7c1f   Notes=checked"), IsEmpty());
}

TEST(ValuesOfUnknownName, ThatFollowFromTheOthersOfTheRowAreNoLoss) {
  const AccountRun run = KeepAccount(SourceTable(
      "CONNECTIVITY - FRAME",
      "   Frame=1   NumJoints=2   Perimeter=9   CentroidX=1   CentroidY=2   CentroidZ=3\n"));
  EXPECT_THAT(run.Losses(), Not(Contains("Frame=1: value-of-unknown-name")));
}

TEST(ValuesOfUnknownName, OfOneRowAreToldOnce) {
  EXPECT_THAT(LossesOfJoint("PanelZone=Stiff   Shell=Yes"),
              ElementsAre("Joint=1: value-of-unknown-name"));
}

TEST(ValuesOfUnknownName, OfARowThatIsDroppedAreNotTold) {
  const AccountRun run =
      KeepAccount(SourceTable("JOINT RESTRAINT ASSIGNMENTS", "   Joint=9   U1=Yes   Shell=Yes\n") +
                  SourceTable("FRAME LOADS - GRAVITY",
                              "   Frame=9   LoadCase=DEAD   MultiplierZ=-1   Shell=Yes\n"));
  EXPECT_THAT(run.LossesIn("RESTRAINT"), Contains("Joint=9: value-of-unknown-name"));
  EXPECT_THAT(run.LossesIn("GRAVITY"), ElementsAre("Frame=9: frame-unknown"));
}

// ---- Numbers and flags that are neither ----

TEST(DoubtfulValues, NumbersThatAreNoneAsAWholeAreChanged) {
  for (const char* number : {"1,25", "2.x", "three", "1 000", ""}) {
    EXPECT_THAT(
        LossesOf({"", "JOINT COORDINATES", "Joint=1   XorR=0   Z=1"}, "Y=" + std::string(number)),
        ElementsAre("Joint=1: number-read-in-part"))
        << number;
  }
  for (const char* number :
       {"1.25", "-2E-05", "+3.", "4.5e+3", ".5", "7 _\n   CoordType=Cartesian"}) {
    EXPECT_THAT(
        LossesOf({"", "JOINT COORDINATES", "Joint=1   XorR=0   Z=1"}, "Y=" + std::string(number)),
        IsEmpty())
        << number;
  }
}

TEST(DoubtfulValues, WholeNumbersThatAreNoneAreChanged) {
  EXPECT_THAT(LossesOf({kModes, "CASE - MODAL 1 - GENERAL", "Case=MODAL   ModeType=Eigen"},
                       "MaxNumModes=three"),
              Contains("Case=MODAL: number-read-in-part"));
}

TEST(DoubtfulValues, FlagsThatAreNeitherYesNorNoAreChanged) {
  const Place restraint = {FrameJoints(), "JOINT RESTRAINT ASSIGNMENTS", "Joint=1   U2=Yes"};
  for (const char* flag : {"YES", "yes", "True", "1"}) {
    EXPECT_THAT(LossesOf(restraint, "U1=" + std::string(flag)),
                ElementsAre("Joint=1: neither-yes-nor-no"))
        << flag;
  }
  EXPECT_THAT(LossesOf(restraint, "U1=Yes"), IsEmpty());
  EXPECT_THAT(LossesOf(restraint, "U1=No"), IsEmpty());
  EXPECT_THAT(LossesOf(restraint, "U1=No _\n   U3=Yes"), IsEmpty());
}

TEST(ValuesOfUnknownName, InTheColumnOfAKnownOneAreTold) {
  const AccountRun run = KeepAccount(SourceTable("JOINT COORDINATES",
                                                 "   Joint=1   XorR=2   Z=1\n"
                                                 "   Joint=2   XorQ=2   Z=1\n"
                                                 "   Joint=3   XorR=2   Z=1\n"));
  EXPECT_THAT(run.Losses(), ElementsAre("Joint=2: value-of-unknown-name"));
}

}  // namespace
