#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

/// A source of the mass of the structure: its elements, a load, or both.
struct T_MSMS_D {
  static constexpr Text kTable = "T_MSMS_D";
  Text MassFrom;  // "Elements", "Loads" or another word for both
  Text LoadCase;
  double Multiplier = 0.0;
};

template <>
inline constexpr RowKey<T_MSMS_D> kRowKeys<T_MSMS_D>[] = {{"MassFrom=", &T_MSMS_D::MassFrom},
                                                          {"LoadCase=", &T_MSMS_D::LoadCase},
                                                          {"Multiplier=", &T_MSMS_D::Multiplier}};

// ---- Target records ----

/// The structure type. Temperature and alignments of the output are always 0 and "NO".
struct T_NGT_STYP_D {
  std::int32_t iSTYP = 0;  // 0 in space, 1 in the plane of X and Z, 2 of Y and Z, 3 of X and Y
  std::int32_t iSMAS = 0;  // 0 no self mass, else the directions in which it acts
  double GRAV = 9.806;
  bool bWrite = false;
};

/// A load that becomes mass.
struct LoadOfMass {
  Text LCNAME;
  double FACTOR = 0.0;
};

/// Loads to mass, in all directions and of all kinds of loads.
struct T_NGT_LTMS_D {
  double GRAV = 9.806;
  std::vector<LoadOfMass> Loads;
  bool bWrite = false;
};

// ---- Conversion ----

/// Gravity in the length unit of the model per second squared, as the output has it.
double GravityInModelUnits(const CModel& source);
/// The same as it is; 0 for an unknown length unit.
double TrueGravity(const CModel& source);

/// Mass sources into loads to mass, and active degrees of freedom into the structure type.
void ConvertStructure(Conversion& run);

// ---- Output ----

/// Writes *STRUCTYPE.
bool WriteStructureType(Conversion& run, LineWriter& out);

/// Writes *LOADTOMASS.
bool WriteLoadsToMass(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes units, degrees of freedom and mass sources that do not go over as they stand.
void CloseStructure(Conversion& run);

}  // namespace s2k2ngt
