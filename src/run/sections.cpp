#include "run/sections.h"

#include "analysis/buckling.h"
#include "analysis/combinations.h"
#include "analysis/controls.h"
#include "analysis/history_loads.h"
#include "analysis/modal.h"
#include "analysis/spectrum.h"
#include "analysis/structure.h"
#include "analysis/time_functions.h"
#include "analysis/time_history.h"
#include "bridge/lanes.h"
#include "bridge/moving_loads.h"
#include "bridge/vehicles.h"
#include "frames/end_conditions.h"
#include "frames/initial_forces.h"
#include "frames/materials.h"
#include "frames/modifiers.h"
#include "frames/sections.h"
#include "joints/constraints.h"
#include "joints/local_axes.h"
#include "joints/masses.h"
#include "joints/nodes.h"
#include "joints/supports.h"
#include "plates/areas.h"
#include "plates/links.h"
#include "run/element_section.h"
#include "run/static_load_section.h"
#include "target/head.h"

namespace s2k2ngt {

const std::array<Section, 37> kSections = {{
    {"*VERSION, *UNIT", WriteVersionAndUnit},
    {"*STRUCTYPE", WriteStructureType},
    {"*NODE", WriteNodes},
    {"*LOCALAXIS", WriteLocalAxes},
    {"*ELEMENT", WriteElements},
    {"*MATERIAL", WriteMaterials},
    {"*SECTION", WriteSections},
    {"*SECT-SCALE", WriteSectionScaleFactors},
    {"*THICKNESS", WriteThicknesses},
    {"*CONSTRAINT", WriteSupports},
    {"*SPRING", WritePointSprings},
    {"*GSPRING, *GSPRTYPE", WriteGeneralSprings},
    {"*STLDCASE", WriteStaticLoads},
    {"*NODALMASS", WriteMasses},
    {"*OFFSET", WriteOffsets},
    {"*FRAME-RLS", WriteReleases},
    {"*INIFORCE", WriteInitialForces},
    {"*ELASTICLINK", WriteElasticLinks},
    {"*NL-PROP", WriteLinkProperties},
    {"*NL-LINK", WriteNonlinearLinks},
    {"*RIGIDLINK", WriteRigidLinks},
    {"*LINELANE", WriteLanes},
    {"*VEHICLE", WriteVehicles},
    {"*VCLASS", WriteVehicleClasses},
    {"*MVLDCASE, *MOVE-CTRL", WriteMovingLoads},
    {"*SFUNCTION", WriteSpectrumFunctions},
    {"*SPLDCASE", WriteSpectrumLoads},
    {"*LOADTOMASS", WriteLoadsToMass},
    {"*ANAL-CTRL", WriteAnalysisControl},
    {"*SPEC-CTRL", WriteSpectrumControl},
    {"*EIGEN-CTRL", WriteEigenvalueControl},
    {"*BUCK-CTRL", WriteBucklingControl},
    {"*TFUNCTION", WriteTimeFunctions},
    {"*THLDCASE", WriteTimeHistories},
    {"*GROUND-ACC", WriteGroundAccelerations},
    {"*DYN-SLOAD", WriteTimeVaryingLoads},
    {"*LOADCOMB", WriteCombinations},
}};

}  // namespace s2k2ngt
