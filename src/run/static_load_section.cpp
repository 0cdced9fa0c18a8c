#include "run/static_load_section.h"

#include "frames/initial_forces.h"
#include "loads/area_loads.h"
#include "loads/frame_loads.h"
#include "loads/joint_loads.h"
#include "loads/load_cases.h"
#include "loads/temperature_loads.h"
#include "loads/wind_seismic.h"

#include <array>

namespace s2k2ngt {
namespace {

using LoadWriter = void (*)(Conversion& run, Text loadCase, LineWriter& out);

/// The kinds of loads in the order in which a load case has them.
constexpr std::array kLoadWriters = std::to_array<LoadWriter>({
    WriteNodalLoads,
    WriteSelfWeights,
    WriteBeamLoads,
    WriteElementTemperatures,
    WriteNodalTemperatures,
    WriteTemperatureGradients,
    WriteSupportDisplacements,
    WritePrestress,
    WritePressures,
});

}  // namespace

bool WriteStaticLoads(Conversion& run, LineWriter& out) {
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  if (loadCases.Empty()) {
    return true;
  }
  WriteLoadCases(run, out);
  for (const auto [key, loadCase] : loadCases.Walk()) {
    for (const LoadWriter write : kLoadWriters) {
      write(run, loadCase.LCNAME, out);
    }
    if (loadCase.bAuto && loadCase.LCTYPE == kWindType) {
      WriteWind(run, loadCase.LCNAME, out);
    } else if (loadCase.bAuto && loadCase.LCTYPE == kSeismicType) {
      WriteSeismic(run, loadCase.LCNAME, out);
    }
  }
  return true;
}

}  // namespace s2k2ngt
