#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <array>
#include <concepts>
#include <cstdint>

namespace s2k2ngt {

// ---- Source rows ----

/// Summary of the links, which the conversion goes by.
struct T_SMLA_D {
  static constexpr Text kTable = "T_SMLA_D";
  Text Link;
  Text LinkType;
  Text LinkJoint;  // "SingleJoint" for a link to the ground
  Text LinkProp;
  bool LocalAxes = false;
};

template <>
inline constexpr RowKey<T_SMLA_D> kRowKeys<T_SMLA_D>[] = {{"Link=", &T_SMLA_D::Link},
                                                          {"LinkType=", &T_SMLA_D::LinkType},
                                                          {"LinkJoint=", &T_SMLA_D::LinkJoint},
                                                          {"LinkProp=", &T_SMLA_D::LinkProp},
                                                          {"LocalAxes=", &T_SMLA_D::LocalAxes},
                                                          Unread{"GravLoads="},
                                                          Unread{"Length="},
                                                          Unread{"CentroidX="},
                                                          Unread{"CentroidY="},
                                                          Unread{"CentroidZ="}};

/// Connectivity of a link.
struct T_CNLK_D {
  static constexpr Text kTable = "T_CNLK_D";
  Text Link;
  Text JointI;
  Text JointJ;
};

template <>
inline constexpr RowKey<T_CNLK_D> kRowKeys<T_CNLK_D>[] = {{"Link=", &T_CNLK_D::Link},
                                                          {"JointI=", &T_CNLK_D::JointI},
                                                          {"JointJ=", &T_CNLK_D::JointJ},
                                                          Unread{"Length="}};

/// The type of the links and properties that become elastic links.
inline constexpr Text kLinearLink = "Linear";

/// What a link to the ground states as its LinkJoint=.
inline constexpr Text kSingleJoint = "SingleJoint";

/// True for the kinds of links that the target does not have.
bool IsLostKind(Text linkType);

/// Typical local axes of a link.
struct T_LLCT_D {
  static constexpr Text kTable = "T_LLCT_D";
  Text Link;
  double Angle = 0.0;  // degrees
  bool AdvanceAxes = false;
};

template <>
inline constexpr RowKey<T_LLCT_D> kRowKeys<T_LLCT_D>[] = {{"Link=", &T_LLCT_D::Link},
                                                          {"Angle=", &T_LLCT_D::Angle},
                                                          {"AdvanceAxes=", &T_LLCT_D::AdvanceAxes}};

/// Advanced local axes of a link: the plane that two of its axes span.
struct T_LLCA_D {
  static constexpr Text kTable = "T_LLCA_D";
  Text Link;
  Text LocalPlane;
  Text PlOption1;
  Text CoordDir1;
  Text CoordDir2;
  Text PlVecJt1;
  Text PlVecJt2;
  double PlVecY = 0.0;
  double PlVecZ = 0.0;
};

template <>
inline constexpr RowKey<T_LLCA_D> kRowKeys<T_LLCA_D>[] = {
    {"Link=", &T_LLCA_D::Link},
    {"LocalPlane=", &T_LLCA_D::LocalPlane},
    Unread{"AxOption1="},
    LostUnless{"AxCoordSys=", "GLOBAL", "coordinate-system-ignored"},
    Unread{"AxCoordDir="},
    Unread{"AxVecJt1="},
    Unread{"AxVecJt2="},
    {"PlOption1=", &T_LLCA_D::PlOption1},
    LostUnless{"PlCoordSys=", "GLOBAL", "coordinate-system-ignored"},
    {"CoordDir1=", &T_LLCA_D::CoordDir1},
    {"CoordDir2=", &T_LLCA_D::CoordDir2},
    {"PlVecJt1=", &T_LLCA_D::PlVecJt1},
    {"PlVecJt2=", &T_LLCA_D::PlVecJt2},
    Unread{"AxVecX="},
    Unread{"AxVecY="},
    Unread{"AxVecZ="},
    Unread{"PlVecX="},
    {"PlVecY=", &T_LLCA_D::PlVecY},
    {"PlVecZ=", &T_LLCA_D::PlVecZ}};

// In the tables of properties Link= names the property.

/// A link property.
struct T_LPGN_D {
  static constexpr Text kTable = "T_LPGN_D";
  Text Link;
  Text LinkType;
  double Weight = 0.0;
};

/// Its name and kind, by which the rows of its directions belong to it.
inline QualifiedLabel NameAndKind(const T_LPGN_D& property) {
  return {property.Link, property.LinkType};
}

template <>
inline constexpr RowKey<T_LPGN_D> kRowKeys<T_LPGN_D>[] = {
    {"Link=", &T_LPGN_D::Link},
    {"LinkType=", &T_LPGN_D::LinkType},
    LostUnless{"Mass=", "0", "mass-of-link"},
    {"Weight=", &T_LPGN_D::Weight},
    LostUnless{"RotInert1=", "0", "mass-of-link"},
    LostUnless{"RotInert2=", "0", "mass-of-link"},
    LostUnless{"RotInert3=", "0", "mass-of-link"},
    LostUnless{"PDM2I=", "0", "p-delta-share-of-link"},
    LostUnless{"PDM2J=", "0", "p-delta-share-of-link"},
    LostUnless{"PDM3I=", "0", "p-delta-share-of-link"},
    LostUnless{"PDM3J=", "0", "p-delta-share-of-link"},
    Unread{"Color="}};

/// A direction of a linear property.
struct T_LPLN_D {
  static constexpr Text kTable = "T_LPLN_D";
  Text Link;
  Text DOF;  // "U1" to "R3"
  double TransKE = 0.0;
  double RotKE = 0.0;
  double DJ = 0.0;  // distance of the shear spring from end J
};

template <>
inline constexpr RowKey<T_LPLN_D> kRowKeys<T_LPLN_D>[] = {
    {"Link=", &T_LPLN_D::Link},
    {"DOF=", &T_LPLN_D::DOF},
    LostUnless{"Fixed=", "No", "link-direction-fixed"},
    {"TransKE=", &T_LPLN_D::TransKE},
    {"RotKE=", &T_LPLN_D::RotKE},
    LostUnless{"TransCE=", "0", "damping-of-linear-direction"},
    LostUnless{"RotCE=", "0", "damping-of-linear-direction"},
    {"DJ=", &T_LPLN_D::DJ}};

/// What a direction of every nonlinear property has: its linear stiffness and damping. Keys of
/// translations begin with Trans, those of rotations with Rot.
struct NonlinearDirection {
  Text Link;
  Text DOF;
  bool NonLinear = false;
  double TransKE = 0.0;
  double RotKE = 0.0;
  double TransCE = 0.0;
  double RotCE = 0.0;
  double DJ = 0.0;
};

inline constexpr RowKey<NonlinearDirection> kNonlinearDirectionKeys[] = {
    {"Link=", &NonlinearDirection::Link},
    {"DOF=", &NonlinearDirection::DOF},
    LostUnless{"Fixed=", "No", "link-direction-fixed"},
    {"NonLinear=", &NonlinearDirection::NonLinear},
    {"TransKE=", &NonlinearDirection::TransKE},
    {"RotKE=", &NonlinearDirection::RotKE},
    {"TransCE=", &NonlinearDirection::TransCE},
    {"RotCE=", &NonlinearDirection::RotCE},
    {"DJ=", &NonlinearDirection::DJ}};

/// A damper.
struct T_LPDM_D : NonlinearDirection {
  static constexpr Text kTable = "T_LPDM_D";
  double TransK = 0.0;
  double RotK = 0.0;
  double TransC = 0.0;
  double RotC = 0.0;
  double CExp = 0.0;
};

template <>
inline constexpr auto kRowKeys<T_LPDM_D> = JoinKeys<T_LPDM_D>(kNonlinearDirectionKeys,
                                                              {{"TransK=", &T_LPDM_D::TransK},
                                                               {"RotK=", &T_LPDM_D::RotK},
                                                               {"TransC=", &T_LPDM_D::TransC},
                                                               {"RotC=", &T_LPDM_D::RotC},
                                                               {"CExp=", &T_LPDM_D::CExp}});

/// What gaps and hooks have beside.
struct Opening : NonlinearDirection {
  double TransK = 0.0;
  double RotK = 0.0;
  double TransOpen = 0.0;
  double RotOpen = 0.0;
};

template <std::derived_from<Opening> Record>
inline constexpr auto kRowKeys<Record> = JoinKeys<Record>(kNonlinearDirectionKeys,
                                                          {{"TransK=", &Opening::TransK},
                                                           {"RotK=", &Opening::RotK},
                                                           {"TransOpen=", &Opening::TransOpen},
                                                           {"RotOpen=", &Opening::RotOpen}});

struct T_LPGP_D : Opening {  // gap
  static constexpr Text kTable = "T_LPGP_D";
};
struct T_LPHK_D : Opening {  // hook
  static constexpr Text kTable = "T_LPHK_D";
};

/// A rubber isolator.
struct T_LPRB_D : NonlinearDirection {
  static constexpr Text kTable = "T_LPRB_D";
  double TransK = 0.0;
  double TransYield = 0.0;
  double Ratio = 0.0;
};

template <>
inline constexpr auto kRowKeys<T_LPRB_D> =
    JoinKeys<T_LPRB_D>(kNonlinearDirectionKeys, {{"TransK=", &T_LPRB_D::TransK},
                                                 {"TransYield=", &T_LPRB_D::TransYield},
                                                 {"Ratio=", &T_LPRB_D::Ratio}});

/// A friction isolator.
struct T_LPSL_D : NonlinearDirection {
  static constexpr Text kTable = "T_LPSL_D";
  double TransK = 0.0;
  double Slow = 0.0;
  double Fast = 0.0;
  double Rate = 0.0;
  double Radius = 0.0;
};

template <>
inline constexpr auto kRowKeys<T_LPSL_D> = JoinKeys<T_LPSL_D>(kNonlinearDirectionKeys,
                                                              {{"TransK=", &T_LPSL_D::TransK},
                                                               {"Slow=", &T_LPSL_D::Slow},
                                                               {"Fast=", &T_LPSL_D::Fast},
                                                               {"Rate=", &T_LPSL_D::Rate},
                                                               {"Radius=", &T_LPSL_D::Radius}});

/// A plastic link of Wen's kind.
struct T_LPPW_D : NonlinearDirection {
  static constexpr Text kTable = "T_LPPW_D";
  double TransK = 0.0;
  double RotK = 0.0;
  double TransYield = 0.0;
  double RotYield = 0.0;
  double Ratio = 0.0;
  double YieldExp = 0.0;
};

template <>
inline constexpr auto kRowKeys<T_LPPW_D> =
    JoinKeys<T_LPPW_D>(kNonlinearDirectionKeys, {{"TransK=", &T_LPPW_D::TransK},
                                                 {"RotK=", &T_LPPW_D::RotK},
                                                 {"TransYield=", &T_LPPW_D::TransYield},
                                                 {"RotYield=", &T_LPPW_D::RotYield},
                                                 {"Ratio=", &T_LPPW_D::Ratio},
                                                 {"YieldExp=", &T_LPPW_D::YieldExp}});

/// A multilinear link, which the target does not have.
struct T_LPMT_D {
  static constexpr Text kTable = "T_LPMT_D";
};

template <>
inline constexpr RowKey<T_LPMT_D> kRowKeys<T_LPMT_D>[] = {
    Unread{"Link="},  Unread{"DOF="},     Unread{"NonLinear="}, Unread{"TransKE="},
    Unread{"RotKE="}, Unread{"TransCE="}, Unread{"RotCE="},     Unread{"DJ="}};

/// A point of a kinematic plastic link, which the target does not have.
struct T_LPPK_D {
  static constexpr Text kTable = "T_LPPK_D";
};

template <>
inline constexpr RowKey<T_LPPK_D> kRowKeys<T_LPPK_D>[] = {
    Unread{"Link="},    Unread{"DOF="},     Unread{"NonLinear="}, Unread{"TransKE="},
    Unread{"RotKE="},   Unread{"TransCE="}, Unread{"RotCE="},     Unread{"DJ="},
    Unread{"Point="},   Unread{"Force="},   Unread{"Displ="},     Unread{"Moment="},
    Unread{"Rotation="}};

/// Property assignments of links; the summary names the property as well.
struct T_LPAN_D {
  static constexpr Text kTable = "T_LPAN_D";
};

template <>
inline constexpr NoRowKeys<T_LPAN_D> kRowKeys<T_LPAN_D>{};

/// Gravity loads of links. They have no place in the output.
struct T_LLDG_D {
  static constexpr Text kTable = "T_LLDG_D";
};

template <>
inline constexpr NoRowKeys<T_LLDG_D> kRowKeys<T_LLDG_D>{};

// ---- Target records ----

/// An elastic link of the general kind, the only one that is written.
struct T_NGT_ELNK_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text Label;   // of the source, for drawings; the output has no name for a link
  Text iNODE1;  // joint labels, turned into numbers when written
  Text iNODE2;
  double ANGLE = 0.0;  // degrees
  double SDx = 0.0;
  double SDy = 0.0;
  double SDz = 0.0;
  double SRx = 0.0;
  double SRy = 0.0;
  double SRz = 0.0;
  Text bSHEAR = "NO";
  double DRy = 0.0;
  double DRz = 0.0;
};

/// A nonlinear link.
struct T_NGT_NLNK_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text Label;  // as that of an elastic link
  Text PROP;
  Text iNODE1;  // joint labels, turned into numbers when written
  Text iNODE2;
  double ANGLE = 180.0;  // degrees; not 0 as for elastic links, and this is meant
};

/// A direction of a nonlinear property: DX, DY, DZ, RX, RY or RZ.
struct LinkDirection {
  Text bL = "NO";
  double D = 0.0;
  Text bN = "NO";
  double DSTIFF = 0.0;
  double DAMP = 0.0;
  double DEXP = 0.0;
  double STIFF = 0.0;
  double OPEN = 0.0;
  double YSTR = 0.0;
  double PYS_RATIO = 0.0;
  double YEXP = 0.0;
  double PA = 0.0;
  double PB = 0.0;
  double FCS = 0.0;
  double FCF = 0.0;
  double RP = 0.0;
  double RADIUS = 0.0;
  double EFFDAMP = 0.0;
};

/// A nonlinear link property.
struct T_NGT_NLPR_D {
  Text NAME;
  Text TYPE;  // "VD", "GAP", "HOOK", "HS", "LRBI" or "FPSI"
  double TW = 0.0;
  Text bSSL = "NO";
  double DY = 0.0;
  double DZ = 0.0;
  Text bRIGDBR;
  double BSTIFF = 0.0;
  std::array<LinkDirection, 6> Directions{};
};

// ---- Conversion ----

/// Linear links into elastic links, the others into nonlinear links and their properties.
bool ConvertLinks(Conversion& run);

/// Notes that multilinear properties are lost. Meant so: no stage asks, and they vanish without a
/// word.
void CheckMultiLinearProperties(Conversion& run);

/// The same for kinematic plastic properties.
void CheckKinematicProperties(Conversion& run);

// ---- Output ----

/// Writes *ELASTICLINK.
bool WriteElasticLinks(Conversion& run, LineWriter& out);

/// Writes *NL-PROP.
bool WriteLinkProperties(Conversion& run, LineWriter& out);

/// Writes *NL-LINK.
bool WriteNonlinearLinks(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes the rows of nonlinear directions that belong to no property of their kind.
void NoteDirectionsOfNoProperty(Conversion& run);

/// Notes what becomes of links, their axes and their properties.
void CloseLinks(Conversion& run);

}  // namespace s2k2ngt
