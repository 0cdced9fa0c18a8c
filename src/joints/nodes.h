#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <optional>

namespace s2k2ngt {

// ---- Source rows ----

/// A joint.
struct T_JTCD_D {
  static constexpr Text kTable = "T_JTCD_D";
  Text Joint;
  Text CoordType = "Cartesian";  // a row that does not state it is Cartesian
  double XorR = 0.0;
  double Y = 0.0;
  double Z = 0.0;
  bool SpecialJt = false;
  bool StatesGlobal = false;  // the row states at least one of the global coordinates
  double GlobalX = 0.0;
  double GlobalY = 0.0;
  double GlobalZ = 0.0;
};

template <>
inline constexpr RowKey<T_JTCD_D> kRowKeys<T_JTCD_D>[] = {
    {"Joint=", &T_JTCD_D::Joint},
    LostUnless{"CoordSys=", "GLOBAL", "coordinate-system-ignored"},
    {"CoordType=", &T_JTCD_D::CoordType},
    {"XorR=", &T_JTCD_D::XorR},
    {"Y=", &T_JTCD_D::Y},
    Unread{"T="},
    {"Z=", &T_JTCD_D::Z},
    {"SpecialJt=", &T_JTCD_D::SpecialJt},
    {"GlobalX=", &T_JTCD_D::GlobalX},
    {"GlobalY=", &T_JTCD_D::GlobalY},
    {"GlobalZ=", &T_JTCD_D::GlobalZ},
    States{"GlobalX=", &T_JTCD_D::StatesGlobal},
    States{"GlobalY=", &T_JTCD_D::StatesGlobal},
    States{"GlobalZ=", &T_JTCD_D::StatesGlobal}};

/// Stores the joints; a joint in cylindrical or other coordinates refuses the file without a
/// message.
std::optional<Refusal> StoreJoints(TableRows rows, CModel& model, Messages& shown);

/// A point, in the length unit of the file.
struct Point {
  double X = 0.0;
  double Y = 0.0;
  double Z = 0.0;
  bool operator==(const Point&) const = default;
};

/// The global coordinates of a joint; zeros for a joint that is not there. A row that states no
/// global coordinate gives those that its node has in the output.
Point GlobalCoordinates(CModel& model, Text joint);

// ---- Target records ----

/// A node.
struct T_NGT_NODE_D {
  Text Label;
  double X = 0.0;
  double Y = 0.0;
  double Z = 0.0;
};

// ---- Conversion ----

/// Joints into nodes. Clears NodeLabelsNumeric at a label that is not all digits.
bool ConvertJoints(Conversion& run);

/// Fills the node map of a model whose labels are not all numbers. Runs last of the joint steps.
bool MapNodes(Conversion& run);

// ---- Output ----

/// Writes *NODE.
bool WriteNodes(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes joints that have the number of another, and those whose coordinates leave a doubt.
void CloseJoints(Conversion& run);

/// True when the file has a joint of this label. As a rule joints are numbered from 1, and the key
/// of one is its label.
bool HasJoint(CModel& model, Text label, std::int32_t likelyKey);

/// Why a line of the output does not name the joint that its row names; nothing when it does.
std::optional<Why> WhyNotJoint(Conversion& run, Text joint);

/// Notes the rows of a table whose joint the file does not have.
template <class Row>
void NoteUnknownJoints(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<Row>().Entries()) {
    if (const std::optional<Why> why = WhyNotJoint(run, row.Joint)) {
      run.Accounts.Note<Row>(key, *why);
    }
  }
}

/// True for a coordinate system of the user's, which no row is turned by.
bool IsUserSystem(Text coordinateSystem);

/// Notes the rows of a table that stand in a coordinate system of the user's.
template <class Row>
void NoteUserSystems(Conversion& run) {
  for (const auto [key, row] : run.Source.Rows<Row>().Entries()) {
    if (IsUserSystem(row.CoordSys)) {
      run.Accounts.Note<Row>(key, "coordinate-system-ignored");
    }
  }
}

}  // namespace s2k2ngt
