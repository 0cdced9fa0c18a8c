#include "run/stages.h"

#include "analysis/spectrum.h"
#include "frames/elements.h"
#include "frames/end_conditions.h"
#include "frames/lumping.h"
#include "frames/materials.h"
#include "frames/sections.h"
#include "joints/constraints.h"
#include "joints/local_axes.h"
#include "joints/masses.h"
#include "joints/nodes.h"
#include "joints/supports.h"
#include "plates/areas.h"
#include "plates/links.h"
#include "plates/lumping.h"
#include "plates/solids.h"

#include <span>

namespace s2k2ngt {
namespace {

/// A place that is kept for data that is not converted yet.
bool NotConvertedYet(Conversion& /*run*/) { return true; }

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
    {"joint forces", NotConvertedYet},
    {"joint masses", ConvertJointMasses},
    {"constraint assignments", ConvertConstraints},
    {"ground displacements", NotConvertedYet},
    {"node map", MapNodes},
});

constexpr std::array kFrameSteps = std::to_array<Stage>({
    {"gravity loads", NotConvertedYet},
    {"connectivity", ConvertFrames},
    {"general assignments", ConvertReleases},
    {"point loads", NotConvertedYet},
    {"distributed loads", NotConvertedYet},
    {"load patterns", NotConvertedYet},
    {"P-Delta force", NotConvertedYet},
    {"temperature loads", NotConvertedYet},
    {"insertion point and offset", ConvertOffsets},
    {"springs", ConvertFrameSprings},
    {"added mass", ConvertFrameMasses},
});

constexpr std::array kAreaSteps = std::to_array<Stage>({
    {"connectivity", ConvertAreas},
    {"section modifiers", CheckAreaModifiers},
    {"uniform loads", NotConvertedYet},
    {"surface pressure loads", NotConvertedYet},
    {"gravity loads", CheckAreaGravityLoads},
    {"added mass", ConvertAreaMasses},
    {"springs", ConvertAreaSprings},
    {"temperature loads", NotConvertedYet},
});

constexpr std::array kSolidSteps = std::to_array<Stage>({
    {"connectivity", ConvertSolids},
    {"temperature loads", NotConvertedYet},
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
    {"static load cases", NotConvertedYet},
    {"materials", ConvertMaterials},
    {"frame sections", ConvertSections},
    {"area sections", ConvertThicknesses},
    {"lanes", NotConvertedYet},
    {"standard vehicles", NotConvertedYet},
    {"general vehicles", NotConvertedYet},
    {"vehicle classes", NotConvertedYet},
    {"moving load cases", NotConvertedYet},
    {"spectrum functions", CheckSpectrumFunctions},
    {"response spectrum cases", NotConvertedYet},
    {"analysis cases", NotConvertedYet},
    {"analysis control", NotConvertedYet},
    {"load combinations", NotConvertedYet},
}};

}  // namespace s2k2ngt
