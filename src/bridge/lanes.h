#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

namespace s2k2ngt {

// ---- Source rows ----

/// A frame that a lane follows.
struct T_BLLN_D {
  static constexpr Text kTable = "T_BLLN_D";
  Text LaneName;
  Text Frame;
  double Eccen = 0.0;  // of the lane from the frame
};

template <>
inline constexpr RowKey<T_BLLN_D> kRowKeys<T_BLLN_D>[] = {
    {"LaneName=", &T_BLLN_D::LaneName}, {"Frame=", &T_BLLN_D::Frame}, {"Eccen=", &T_BLLN_D::Eccen}};

// ---- Target records ----

/// An element of a lane.
struct T_NGT_LNLN_D {
  Text NAME;
  Text ELEM;
  double ECC = 0.0;
};

// ---- Conversion ----

/// Lanes, an element of theirs for each row.
bool ConvertLanes(Conversion& run);

// ---- Output ----

/// Writes *LINELANE.
bool WriteLanes(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes lanes in parts or without a name, and frames that are not there.
void CloseLanes(Conversion& run);

}  // namespace s2k2ngt
