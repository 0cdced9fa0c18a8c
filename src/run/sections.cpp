#include "run/sections.h"

#include "analysis/controls.h"
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
namespace {

/// A place that is kept for a section that is not written yet.
bool NotWrittenYet(Conversion& /*run*/, LineWriter& /*out*/) { return true; }

}  // namespace

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
    {"*LINELANE", NotWrittenYet},
    {"*VEHICLE", NotWrittenYet},
    {"*VCLASS", NotWrittenYet},
    {"*MVLDCASE", NotWrittenYet},
    {"*SFUNCTION", NotWrittenYet},
    {"*SPLDCASE", NotWrittenYet},
    {"*LOADTOMASS", NotWrittenYet},
    {"*ANAL-CTRL", NotWrittenYet},
    {"*SPEC-CTRL", NotWrittenYet},
    {"*EIGEN-CTRL", NotWrittenYet},
    {"*BUCK-CTRL", WriteBucklingControl},
    {"*TFUNCTION", NotWrittenYet},
    {"*THLDCASE", NotWrittenYet},
    {"*GROUND-ACC", NotWrittenYet},
    {"*DYN-SLOAD", NotWrittenYet},
    {"*LOADCOMB", NotWrittenYet},
}};

}  // namespace s2k2ngt
