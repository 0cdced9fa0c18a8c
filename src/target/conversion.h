#pragma once

#include "account/ledger.h"
#include "common/messages.h"
#include "source/model.h"
#include "target/element_numbers.h"
#include "target/line_writer.h"
#include "target/ngt_model.h"

#include <cmath>

namespace s2k2ngt {

/// What the stages found that could not be carried over as it stood. The writer of the section
/// concerned shows the message, if the section has records at all.
struct DeferredWarnings {
  bool bNodeNotAssigned = false;  ///< no stage sets it; the test of its writer stays
  bool bElemLengthZero = false;
  bool bFrameLocalAxesLost = false;
  bool bPlateLocalAxesLost = false;
  bool bFrameEndPartial = false;
  bool bFrameEndOffsetRelease = false;  ///< no stage sets it; the test of its writer stays
  bool bMaterialAnisotropic = false;
  bool bSectionNotTranslated = false;
  bool bAreaModifiersLost = false;
  bool bSolidLocalAxesLost = false;
  /// No writer shows it: gravity loads of solids vanish in silence.
  bool bSolidGravityLost = false;
  bool bCoupledSpringLost = false;
  bool bFrameSpringToNodes = false;
  bool bAreaSpringToNodes = false;
  bool bAreaSpringLost = false;
  bool bSingleJointLink = false;
  bool bPlatePressureLost = false;
  bool bLoadCaseLost = false;
  bool bSpectrumLoadLost = false;
  bool bBucklingLoadLost = false;
  bool bHistoryDampingLost = false;
  bool bHistoryDataLost = false;
  bool bHistoryMethodLost = false;
  bool bTimeFunctionLost = false;
  bool bMaxLoadedChanged = false;
};

/// All that a stage works on, and a writer with it. It lives as long as the run.
struct Conversion {
  CModel& Source;
  CNgtModel& Target;
  ElementNumbers& Elements;
  DeferredWarnings& Warnings;
  Messages& Shown;
  Ledger& Accounts;
};

/// Shows the message of a table for which the target has no like, if the table has rows.
template <class Record>
void ShowIfLost(Conversion& run) {
  if (!run.Source.Rows<Record>().Empty()) {
    run.Shown.Show(Record::kLostMessage);
  }
}

/// Makes room in a target table for a further record of each source row.
template <class Target, class Source>
void ReserveForRows(Conversion& run) {
  auto& records = run.Target.Table<Target>();
  records.Reserve(records.Count() + run.Source.Rows<Source>().Count());
}

/// Below this absolute value a number of the source file counts as zero.
inline constexpr double kTolerance = 1e-15;
inline bool IsAboveTolerance(double value) { return std::abs(value) > kTolerance; }

/// A stage of the conversion, or a step of one: true when done, false when it failed.
using StageFunction = bool (*)(Conversion& run);

/// The writer of a section of the output: true when done, false when it failed. A section without
/// records writes nothing, neither header nor blank line.
using WriterFunction = bool (*)(Conversion& run, LineWriter& out);

}  // namespace s2k2ngt
