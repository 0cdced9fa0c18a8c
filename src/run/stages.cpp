#include "run/stages.h"

#include "analysis/cases.h"
#include "analysis/combinations.h"
#include "analysis/controls.h"
#include "analysis/spectrum.h"
#include "bridge/lanes.h"
#include "bridge/moving_loads.h"
#include "bridge/vehicles.h"
#include "frames/elements.h"
#include "frames/end_conditions.h"
#include "frames/initial_forces.h"
#include "frames/lumping.h"
#include "frames/materials.h"
#include "frames/sections.h"
#include "joints/constraints.h"
#include "joints/local_axes.h"
#include "joints/masses.h"
#include "joints/nodes.h"
#include "joints/supports.h"
#include "loads/area_loads.h"
#include "loads/frame_loads.h"
#include "loads/joint_loads.h"
#include "loads/load_cases.h"
#include "loads/temperature_loads.h"
#include "plates/areas.h"
#include "plates/links.h"
#include "plates/lumping.h"
#include "plates/solids.h"

#include <span>

namespace s2k2ngt {
namespace {

/// Runs the steps of a group. A step that fails ends itself and not the run.
bool RunGroup(std::span<const Stage> steps, Conversion& run) {
  for (const Stage& step : steps) {
    step.Convert(run);
  }
  return true;
}

constexpr std::array kJointSteps = std::to_array<Stage>({
    {"coordinates", ConvertJoints},
    {"restraints", ConvertRestraints},
    {"typical local axes", ConvertLocalAxes},
    {"uncoupled springs", ConvertUncoupledSprings},
    {"coupled springs", ConvertCoupledSprings},
    {"joint forces", ConvertJointForces},
    {"joint masses", ConvertJointMasses},
    {"constraint assignments", ConvertConstraints},
    {"ground displacements", ConvertGroundDisplacements},
    {"node map", MapNodes},
});

constexpr std::array kFrameSteps = std::to_array<Stage>({
    {"gravity loads", ConvertFrameGravity},
    {"connectivity", ConvertFrames},
    {"general assignments", ConvertReleases},
    {"point loads", ConvertPointLoads},
    {"distributed loads", ConvertDistributedLoads},
    {"load patterns", ConvertPrestress},
    {"P-Delta force", ConvertInitialForces},
    {"temperature loads", ConvertFrameTemperatures},
    {"insertion point and offset", ConvertOffsets},
    {"springs", ConvertFrameSprings},
    {"added mass", ConvertFrameMasses},
});

constexpr std::array kAreaSteps = std::to_array<Stage>({
    {"connectivity", ConvertAreas},
    {"section modifiers", CheckAreaModifiers},
    {"uniform loads", ConvertUniformLoads},
    {"surface pressure loads", ConvertSurfacePressures},
    {"gravity loads", CheckAreaGravityLoads},
    {"added mass", ConvertAreaMasses},
    {"springs", ConvertAreaSprings},
    {"temperature loads", ConvertAreaTemperatures},
});

constexpr std::array kSolidSteps = std::to_array<Stage>({
    {"connectivity", ConvertSolids},
    {"temperature loads", ConvertSolidTemperatures},
    {"gravity loads", CheckSolidGravityLoads},
});

bool ConvertJointGroup(Conversion& run) { return RunGroup(kJointSteps, run); }
bool ConvertFrameGroup(Conversion& run) { return RunGroup(kFrameSteps, run); }
bool ConvertAreaGroup(Conversion& run) { return RunGroup(kAreaSteps, run); }
bool ConvertSolidGroup(Conversion& run) { return RunGroup(kSolidSteps, run); }

}  // namespace

const std::array<Stage, 19> kStages = {{
    {"joints", ConvertJointGroup},
    {"frames", ConvertFrameGroup},
    {"links", ConvertLinks},
    {"areas", ConvertAreaGroup},
    {"solids", ConvertSolidGroup},
    {"static load cases", ConvertSelfWeights},
    {"materials", ConvertMaterials},
    {"frame sections", ConvertSections},
    {"area sections", ConvertThicknesses},
    {"lanes", ConvertLanes},
    {"standard vehicles", ConvertStandardVehicles},
    {"general vehicles", ConvertGeneralVehicles},
    {"vehicle classes", ConvertVehicleClasses},
    {"moving load cases", ConvertMovingLoads},
    {"spectrum functions", ConvertSpectrumFunctions},
    {"response spectrum cases", ConvertSpectrumLoads},
    {"analysis cases", ConvertAnalysisCases},
    {"analysis control", ConvertAnalysisControl},
    {"load combinations", ConvertCombinations},
}};

}  // namespace s2k2ngt
