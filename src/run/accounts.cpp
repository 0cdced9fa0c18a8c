#include "run/accounts.h"

#include "analysis/buckling.h"
#include "analysis/cases.h"
#include "analysis/combinations.h"
#include "analysis/history_account.h"
#include "analysis/history_damping.h"
#include "analysis/history_loads.h"
#include "analysis/modal.h"
#include "analysis/spectrum.h"
#include "analysis/structure.h"
#include "analysis/time_functions.h"
#include "bridge/lanes.h"
#include "bridge/moving_loads.h"
#include "bridge/vehicles.h"
#include "frames/elements.h"
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
#include "loads/area_loads.h"
#include "loads/frame_loads.h"
#include "loads/joint_loads.h"
#include "loads/joint_patterns.h"
#include "loads/load_cases.h"
#include "loads/temperature_loads.h"
#include "loads/wind_seismic.h"
#include "plates/areas.h"
#include "plates/links.h"
#include "plates/solids.h"
#include "run/row_parsers.h"

#include <algorithm>
#include <array>
#include <string>

namespace s2k2ngt {
namespace {

/// What titles begin with whose tables hold no part of a structural model: settings, and what
/// other tables say as well.
constexpr std::array kTitlesOfNoModel = std::to_array<Text>({
    "DATABASE",
    "FRAME AUTO SELECT",
    "FRAME DESIGN",
    "FRAME OUTPUT STATION",
    "FUNCTION - PLOT",
    "GRID LINES",
    "GROUPS",
    "JOINT PATTERN DEFINITIONS",
    "MASSES 2 - ASSEMBLED",
    "MATERIAL PROPERTIES 3 - DESIGN",
    "MATERIAL PROPERTIES 4 - DESIGN",
    "MATERIAL PROPERTIES 5 - DESIGN",
    "NAMED SETS",
    "OPTIONS",
    "OVERWRITES",
    "PREFERENCES",
    "PROJECT INFO",
    "REBAR SIZES",
    "SUMMARY - ",
});

bool HasNoModelData(Text title) {
  const std::string upper = ToUpper(title);
  return std::ranges::any_of(kTitlesOfNoModel,
                             [&](Text beginning) { return upper.starts_with(beginning); });
}

/// The closing notes of the rooms, in the order of the source's topics.
constexpr std::array kClosings = std::to_array<void (*)(Conversion& run)>({
    CloseJoints,        CloseSupports,      CloseLocalAxes,      CloseMasses,
    CloseConstraints,   CloseFrames,        CloseFrameModifiers, CloseEndConditions,
    CloseInitialForces, CloseMaterials,     CloseSections,       CloseAreas,
    CloseSolids,        CloseLinks,         CloseLoadCases,      CloseJointLoads,
    CloseJointPatterns, CloseFrameLoads,    CloseAreaLoads,      CloseTemperatureLoads,
    CloseAutoLoads,     CloseStructure,     CloseAnalysisCases,  CloseModal,
    CloseBuckling,      CloseSpectrum,      CloseTimeFunctions,  CloseHistoryDamping,
    CloseHistoryLoads,  CloseTimeHistories, CloseCombinations,   CloseLanes,
    CloseVehicles,      CloseMovingLoads,
});

}  // namespace

void EnterBlock(const TableBlock& block, const TableOutcome& outcome, CModel& model,
                Ledger& ledger) {
  const std::optional<TableUse> use = UseOfTable(outcome.Record);
  if (use && use->Label != nullptr) {
    ledger.Enter(block, outcome.Record,
                 [&model, labelOf = use->Label](std::uint32_t key) { return labelOf(model, key); });
  } else if (use) {
    ledger.Enter(block, outcome.Record);
    ledger.KeepLabels(block);
  } else {
    ledger.Enter(block);
  }
  if (outcome.Fate == TableFate::Refused) {
    ledger.NoteBlock("table-refused", outcome.Message->Get());
  } else if (use && use->Lost) {
    ledger.NoteBlock("table-refused", use->Lost->Get());
  } else if (!use) {
    if (HasNoModelData(block.Title)) {
      ledger.NoteBlock("table-without-model-data");
    } else if (block.TableId > 0) {
      ledger.NoteBlock("table-not-read");
    } else {
      ledger.NoteBlock("table-unknown");
    }
  } else if (outcome.Buckets == 0) {
    for (std::uint32_t position = 2; position <= block.Rows.size(); ++position) {
      ledger.NoteRow(block, position,
                     outcome.Record == kCoordinateSystem ? Why("coordinate-system-below-first")
                                                         : Why("first-row-counts"));
    }
  }
  if (block.FurtherLine > 0 && use && !use->Lost) {
    ledger.NoteBlock("read-under-title-before");
  }
}

void EnterLostValues(CModel& model, Ledger& ledger) {
  for (const LostValue& value : model.LostValues) {
    ledger.NoteValue(value.Position, value.Reason);
  }
  model.LostValues.clear();
}

void EnterRefusal(const TableBlock& block, const Refusal& refusal, Ledger& ledger) {
  const auto row = std::ranges::find(block.Rows, refusal.Line, &SourceRow::Line);
  ledger.NoteRow(block, static_cast<std::uint32_t>(row - block.Rows.begin()) + 1, "row-refused");
}

void EnterLostRows(const TableBlock& block, RowsLost how, Ledger& ledger) {
  ledger.Enter(block);
  switch (how) {
    case RowsLost::ToFurtherTitle:
      ledger.NoteBlock("title-without-empty-line");
      break;
    case RowsLost::WithoutEnd:
      ledger.NoteBlock("row-without-end");
      break;
    case RowsLost::ToEndOfScan:
      ledger.NoteBlock("run-ended");
      break;
  }
}

void EnterLineOfNoTable(std::uint64_t line, Ledger& ledger) {
  ledger.EnterLine("(outside of the tables)", line, "outside-of-tables");
}

void EnterWhatIsMissing(CModel& model, std::uint64_t lines, bool hasEnd, Ledger& ledger) {
  const std::uint64_t lastLine = std::max<std::uint64_t>(lines, 1);
  if (!hasEnd) {
    ledger.EnterLine("(end of the file)", lastLine, "end-missing");
  }
  if (model.Rows<T_JTCD_D>().Empty()) {
    return;
  }
  if (!ledger.Has<Units>()) {
    ledger.EnterLine("(PROGRAM CONTROL)", lastLine, "units-missing");
  }
  if (!ledger.Has<ActiveDegreesOfFreedom>()) {
    ledger.EnterLine("(ACTIVE DEGREES OF FREEDOM)", lastLine, "freedoms-missing");
  }
}

void CloseAccounts(Conversion& run) {
  for (const auto close : kClosings) {
    close(run);
  }
}

}  // namespace s2k2ngt
