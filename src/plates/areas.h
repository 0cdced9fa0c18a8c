#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <array>
#include <cstdint>

namespace s2k2ngt {

// ---- Source rows ----

/// Connectivity of an area.
struct T_CNAR_D {
  static constexpr Text kTable = "T_CNAR_D";
  Text Area;
  Text Joint1;
  Text Joint2;
  Text Joint3;
  Text Joint4;  // empty on a row of three joints
  double AreaArea = 0.0;
};

template <>
inline constexpr RowKey<T_CNAR_D> kRowKeys<T_CNAR_D>[] = {{"Area=", &T_CNAR_D::Area},
                                                          {"Joint1=", &T_CNAR_D::Joint1},
                                                          {"Joint2=", &T_CNAR_D::Joint2},
                                                          {"Joint3=", &T_CNAR_D::Joint3},
                                                          {"Joint4=", &T_CNAR_D::Joint4},
                                                          {"AreaArea=", &T_CNAR_D::AreaArea},
                                                          Unread{"Volume="}};

/// Section assignment of an area.
struct T_ASCA_D {
  static constexpr Text kTable = "T_ASCA_D";
  Text Area;
  Text Section;
};

template <>
inline constexpr RowKey<T_ASCA_D> kRowKeys<T_ASCA_D>[] = {
    {"Area=", &T_ASCA_D::Area},
    {"Section=", &T_ASCA_D::Section},
    LostUnless{"MatProp=", "Default", "material-of-assignment"}};

/// An area section. Its row's key is the number of the section and of its thickness.
struct T_ASPR_D {
  static constexpr Text kTable = "T_ASPR_D";
  Text Section;
  Text Material;
  Text AreaType;  // "Shell", "Plane" or "Asolid"
  Text Type;
  double Thickness = 0.0;  // membrane
  double BendThick = 0.0;  // bending
  // Factors, of which the output has none.
};

template <>
inline constexpr RowKey<T_ASPR_D> kRowKeys<T_ASPR_D>[] = {
    {"Section=", &T_ASPR_D::Section},
    {"Material=", &T_ASPR_D::Material},
    LostUnless{"MatAngle=", "0", "material-angle"},
    {"AreaType=", &T_ASPR_D::AreaType},
    // with a blank, so that it is not met inside AreaType=
    {" Type=", &T_ASPR_D::Type},
    {"Thickness=", &T_ASPR_D::Thickness},
    {"BendThick=", &T_ASPR_D::BendThick},
    LostUnless{"Arc=", "0", "arc-of-axisymmetric"},
    LostUnless{"InComp=", "Yes", "without-incompatible-modes"},
    LostUnless{"CoordSys=", "GLOBAL", "coordinate-system-ignored"},
    Unread{"Color="},
    Unread{"TotalWt="},
    Unread{"TotalMass="},
    LostUnless{"F11Mod=", "1", "area-section-modifiers"},
    LostUnless{"F22Mod=", "1", "area-section-modifiers"},
    LostUnless{"F12Mod=", "1", "area-section-modifiers"},
    LostUnless{"M11Mod=", "1", "area-section-modifiers"},
    LostUnless{"M22Mod=", "1", "area-section-modifiers"},
    LostUnless{"M12Mod=", "1", "area-section-modifiers"},
    LostUnless{"V13Mod=", "1", "area-section-modifiers"},
    Unread{"V23Mode="},
    // as the source program spells it
    LostUnless{"V23Mod=", "1", "area-section-modifiers"},
    LostUnless{"MMod=", "1", "area-section-modifiers"},
    LostUnless{"WMod=", "1", "area-section-modifiers"}};

/// Gravity loads of areas; the stages only ask whether there are any.
struct T_ALGR_D {
  static constexpr Text kTable = "T_ALGR_D";
  static constexpr MessageKey kLostMessage = "IDS_S2KV8_NOCONVERT_AREA_GRAV";
};

template <>
inline constexpr RowKey<T_ALGR_D> kRowKeys<T_ALGR_D>[] = {
    Unread{"Area="},        Unread{"LoadCase="},    Unread{"CoordSys="},
    Unread{"MultiplierX="}, Unread{"MultiplierY="}, Unread{"MultiplierZ="}};

/// Section modifiers of areas. Their table is refused, so that there are never any.
struct T_ASMD_D {
  static constexpr Text kTable = "T_ASMD_D";
};

/// Typical local axes of areas. Their table is refused, so that there are never any, and no angle
/// reaches a plate.
struct T_ALTP_D {
  static constexpr Text kTable = "T_ALTP_D";
  Text Area;
  double Angle = 0.0;  // degrees
};

/// True for the bottom "5" and the top "6" of an area, which loads and springs may stand on; the
/// other faces are its edges.
bool IsTopOrBottom(Text face);

// ---- Target records ----

/// A plate, plane stress, plane strain or axisymmetric element.
struct T_NGT_PLAT_D {
  Text Label = "1";
  Text TYPE;  // "PLATE", "PLSTRS", "PLSTRN", "AXISYM", or empty for a section without a like
  std::int32_t iMAT = 1;
  std::int32_t iPRO = 1;
  double Angle = 0.0;        // degrees; the output has no place for it
  std::array<Text, 4> iN{};  // joint labels, turned into numbers when written
  std::int32_t iSUB = 1;     // 1 thick plate, 2 thin plate, 0 membrane
};

/// The thickness of an area section.
struct T_NGT_THIK_D {
  static constexpr std::uint32_t kBuckets = 1'001;
  Text TYPE = "VALUE";
  Text bSAME;
  double ThikIn = 0.0;
  double ThikOut = 0.0;  // 0 when it is the same
};

// ---- Conversion ----

/// Areas into plates.
bool ConvertAreas(Conversion& run);

/// Notes that section modifiers of areas are lost, if there are any.
bool CheckAreaModifiers(Conversion& run);

/// Tells at once that gravity loads of areas are lost, if there are any.
bool CheckAreaGravityLoads(Conversion& run);

/// Area sections into thicknesses.
bool ConvertThicknesses(Conversion& run);

// ---- Output ----

/// Writes the planar lines of *ELEMENT.
void WritePlanarElements(Conversion& run, LineWriter& out);

/// Writes *THICKNESS.
bool WriteThicknesses(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes what becomes of areas, their sections and the assignments of these.
void CloseAreas(Conversion& run);

}  // namespace s2k2ngt
