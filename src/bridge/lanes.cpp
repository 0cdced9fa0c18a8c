#include "bridge/lanes.h"

#include "bridge/parts.h"
#include "frames/elements.h"
#include "plates/element_references.h"
#include "target/wrapped_list.h"

#include <optional>

namespace s2k2ngt {

// ---- Conversion ----

bool ConvertLanes(Conversion& run) {
  ReserveForRows<T_NGT_LNLN_D, T_BLLN_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_BLLN_D>().Walk()) {
    // The target counts eccentricities to the other side.
    run.Target.Add(key, T_NGT_LNLN_D{row.LaneName, row.Frame, -row.Eccen});
  }
  return true;
}

// ---- Output ----

bool WriteLanes(Conversion& run, LineWriter& out) {
  const auto& lanes = run.Target.Table<T_NGT_LNLN_D>();
  if (lanes.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*LINELANE    ; Traffic Line Lanes");
  out.WriteLine("; NAME=NAME, LDIST, GROUP, SKEWS, SKEWE, MOVING  ; line 1\n");
  out.WriteLine(";      iELEM1, ECC1, FACT1, ...                  ; from line 2\n");
  ElementReferences elements(run.Elements);
  Text previousName;
  std::size_t itemsOfLane = 0;
  for (std::uint32_t key = 1; key <= lanes.Count(); ++key) {
    const T_NGT_LNLN_D lane = RecordOr(lanes.Find(key), T_NGT_LNLN_D{});
    if (lane.NAME != previousName) {
      // A lane whose rows do not follow each other opens once more.
      out.WriteLine("\n\tNAME=%s, %5s, %5d, %5g, %5g, %5s\n", lane.NAME, "LANE", 0, 0.0, 0.0,
                    "FORWARD");
      itemsOfLane = 0;
    } else {
      // A lane of empty name at the beginning opens none, so that it has no item yet.
      out.WriteLine("%s", itemsOfLane == 0 ? "," : SeparatorBefore(itemsOfLane, 3, "\n"));
    }
    ++itemsOfLane;
    out.WriteLine("\t\t%d, %5g, %5g", elements.NumberOf(lane.ELEM, kFrameFamily), lane.ECC, 0.0);
    previousName = lane.NAME;
  }
  out.WriteLine("\n\n");
  return true;
}

// ---- Account ----

void CloseLanes(Conversion& run) {
  Parts lanes;
  bool isInLane = false;
  for (const auto [key, row] : run.Source.Rows<T_BLLN_D>().Entries()) {
    isInLane = isInLane || !row.LaneName.empty();
    if (!isInLane) {
      run.Accounts.Note<T_BLLN_D>(key, "lane-without-name");
    }
    if (lanes.IsFurther(row.LaneName)) {
      run.Accounts.Note<T_BLLN_D>(key, "written-in-parts");
    }
    if (const std::optional<Why> why = WhyNotElement(run, row.Frame, kFrameFamily)) {
      run.Accounts.Note<T_BLLN_D>(key, *why);
    }
  }
}

}  // namespace s2k2ngt
