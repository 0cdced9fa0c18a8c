#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <array>
#include <concepts>

namespace s2k2ngt {

// ---- Source rows ----

/// Membership of a joint in a constraint.
struct T_JTCA_D {
  static constexpr Text kTable = "T_JTCA_D";
  Text Joint;
  Text Constraint;
  Text Type;  // "Diaphragm" and the like
};

template <>
inline constexpr RowKey<T_JTCA_D> kRowKeys<T_JTCA_D>[] = {{"Joint=", &T_JTCA_D::Joint},
                                                          {"Constraint=", &T_JTCA_D::Constraint},
                                                          {"Type=", &T_JTCA_D::Type}};

/// Definition of a constraint about an axis: "X", "Y", "Z", or one that the source program finds.
struct ConstraintByAxis {
  Text Name;
  Text Axis;
};

template <std::derived_from<ConstraintByAxis> Record>
inline constexpr RowKey<Record> kRowKeys<Record>[] = {
    {"Name=", &ConstraintByAxis::Name},
    LostUnless{"CoordSys=", "GLOBAL", "coordinate-system-ignored"},
    {"Axis=", &ConstraintByAxis::Axis}};

struct T_CDBM_D : ConstraintByAxis {  // beam
  static constexpr Text kTable = "T_CDBM_D";
};
struct T_CDDP_D : ConstraintByAxis {  // diaphragm
  static constexpr Text kTable = "T_CDDP_D";
};
template <>
inline constexpr RowKey<T_CDDP_D> kRowKeys<T_CDDP_D>[] = {
    {"Name=", &T_CDDP_D::Name},
    LostUnless{"CoordSys=", "GLOBAL", "coordinate-system-ignored"},
    {"Axis=", &T_CDDP_D::Axis},
    LostUnless{"MultiLevel=", "No", "diaphragm-of-many-levels"}};
struct T_CDPL_D : ConstraintByAxis {  // plate
  static constexpr Text kTable = "T_CDPL_D";
};
struct T_CDRD_D : ConstraintByAxis {  // rod
  static constexpr Text kTable = "T_CDRD_D";
};

/// Definition of a constraint of the directions that it names.
struct ConstraintByFlags {
  Text Name;
  bool UX = false;
  bool UY = false;
  bool UZ = false;
  bool RX = false;
  bool RY = false;
  bool RZ = false;
};

template <std::derived_from<ConstraintByFlags> Record>
inline constexpr RowKey<Record> kRowKeys<Record>[] = {
    {"Name=", &ConstraintByFlags::Name},
    LostUnless{"CoordSys=", "GLOBAL", "coordinate-system-ignored"},
    {"UX=", &ConstraintByFlags::UX},
    {"UY=", &ConstraintByFlags::UY},
    {"UZ=", &ConstraintByFlags::UZ},
    {"RX=", &ConstraintByFlags::RX},
    {"RY=", &ConstraintByFlags::RY},
    {"RZ=", &ConstraintByFlags::RZ}};

struct T_CDBD_D : ConstraintByFlags {  // body
  static constexpr Text kTable = "T_CDBD_D";
};
struct T_CDEL_D : ConstraintByFlags {  // equal
  static constexpr Text kTable = "T_CDEL_D";
};
struct T_CDLN_D : ConstraintByFlags {  // line
  static constexpr Text kTable = "T_CDLN_D";
};
struct T_CDWL_D : ConstraintByFlags {  // weld
  static constexpr Text kTable = "T_CDWL_D";
};

/// Definition of a constraint along the joints' axes. The target has none like it.
struct T_CDLC_D {
  static constexpr Text kTable = "T_CDLC_D";
};

template <>
inline constexpr RowKey<T_CDLC_D> kRowKeys<T_CDLC_D>[] = {
    Unread{"Name="}, Unread{"U1="}, Unread{"U2="}, Unread{"U3="},
    Unread{"R1="},   Unread{"R2="}, Unread{"R3="}};

// ---- Target records ----

/// A rigid link. Its nodes are texts that go into the output as they stand.
struct T_NGT_RLNK_D {
  Text MNODE;   // the master node
  Text DOF;     // six characters, "1" for linked and "0" for free; or empty
  Text SNODES;  // the slave nodes, with a blank between them
};

// ---- Conversion ----

/// Constraints into rigid links.
bool ConvertConstraints(Conversion& run);

// ---- Output ----

/// Writes *RIGIDLINK.
bool WriteRigidLinks(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes the definitions that no rigid link comes from.
void CloseConstraints(Conversion& run);

}  // namespace s2k2ngt
