#include "analysis/structure.h"

#include "analysis/spectrum.h"
#include "loads/load_cases.h"
#include "target/wrapped_list.h"

#include <algorithm>
#include <array>
#include <string>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

struct LengthUnit {
  Text Name;
  double Factor;
  double Gravity;  // as it is, in the unit per second squared
};

// Meant so: the metric factors run the other way from those of inches and feet. The outputs that
// readers of the target have were made with them.
constexpr std::array kLengthUnits = std::to_array<LengthUnit>({{"M", 1.0, 9.80665},
                                                               {"CM", 0.01, 980.665},
                                                               {"MM", 0.001, 9806.65},
                                                               {"IN", 39.3701, 386.0886},
                                                               {"FT", 3.2808, 32.17405}});

/// The length unit of the model; null for one that has no gravity of its own.
const LengthUnit* LengthUnitOf(const CModel& source) {
  const std::string length = ToUpper(source.CurrentUnits().Length);
  const auto* const unit = std::ranges::find(kLengthUnits, length, &LengthUnit::Name);
  return unit == kLengthUnits.end() ? nullptr : unit;
}

}  // namespace

double GravityInModelUnits(const CModel& source) {
  constexpr double kGravity = 9.806;
  const LengthUnit* const unit = LengthUnitOf(source);
  return unit == nullptr ? kGravity : unit->Factor * kGravity;
}

double TrueGravity(const CModel& source) {
  const LengthUnit* const unit = LengthUnitOf(source);
  return unit == nullptr ? 0.0 : unit->Gravity;
}

namespace {

constexpr Text kMassOfElements = "Elements";

/// Mass sources into loads to mass. True when the elements have mass as well.
bool ConvertMassSources(Conversion& run) {
  bool haveElementsMass = false;
  for (const auto [key, source] : run.Source.Rows<T_MSMS_D>().Walk()) {
    if (source.MassFrom != kMassOfElements) {
      auto& loadsToMass = run.Target.Control<T_NGT_LTMS_D>();
      loadsToMass.GRAV = GravityInModelUnits(run.Source);
      loadsToMass.Loads.push_back({source.LoadCase, source.Multiplier});
      loadsToMass.bWrite = true;
    }
    haveElementsMass = haveElementsMass || source.MassFrom != "Loads";
  }
  return haveElementsMass;
}

/// The plane that the active translations leave, or space.
std::int32_t StructureTypeOf(const ActiveDegreesOfFreedom& freedom) {
  if (freedom.UX && !freedom.UY && freedom.UZ) {
    return 1;
  }
  if (!freedom.UX && freedom.UY && freedom.UZ) {
    return 2;
  }
  if (freedom.UX && freedom.UY && !freedom.UZ) {
    return 3;
  }
  return 0;
}

/// The directions of self mass: all of them in space, vertical ones too in the upright planes.
std::int32_t SelfMassOf(std::int32_t structureType) {
  constexpr std::array<std::int32_t, 4> kSelfMasses = {1, 3, 3, 2};
  return kSelfMasses.at(static_cast<std::size_t>(structureType));
}

}  // namespace

void ConvertStructure(Conversion& run) {
  const bool haveElementsMass = ConvertMassSources(run);
  const std::int32_t type = StructureTypeOf(run.Source.Freedom());
  run.Target.Control<T_NGT_STYP_D>() = {.iSTYP = type,
                                        .iSMAS = haveElementsMass ? SelfMassOf(type) : 0,
                                        .GRAV = GravityInModelUnits(run.Source),
                                        .bWrite = true};
}

// ---- Output ----

bool WriteStructureType(Conversion& run, LineWriter& out) {
  const auto& type = run.Target.Control<T_NGT_STYP_D>();
  if (!type.bWrite) {
    return true;
  }
  out.WriteLine("%s\n", "*STRUCTYPE    ; Structure Type");
  out.WriteLine("; iSTYP, iSMAS, GRAV, TEMPER, bALIGNBEAM, bALIGNSLAB\n");
  out.WriteLine("\t%d, %5d, %5g, %5g, %5s, %5s\n\n", type.iSTYP, type.iSMAS, type.GRAV, 0.0, "NO",
                "NO");
  return true;
}

bool WriteLoadsToMass(Conversion& run, LineWriter& out) {
  const auto& loadsToMass = run.Target.Control<T_NGT_LTMS_D>();
  if (!loadsToMass.bWrite) {
    return true;
  }
  // The command has no line of its own: its name stands in its line of data.
  out.WriteLine("; *LOADTOMASS, DIR, bNODAL, bBEAM, bFLOOR, bPRES, GRAV\n");
  out.WriteLine(";     LCNAME1, FACTOR1, LCNAME2, FACTOR2, ...   ; from line 1\n");
  out.WriteLine("\t*LOADTOMASS, %5s, %5s, %5s, %5s, %5s, %5g\n", "XYZ", "YES", "YES", "YES", "YES",
                loadsToMass.GRAV);
  const std::size_t count = loadsToMass.Loads.size();
  for (std::size_t index = 0; index < count; ++index) {
    const LoadOfMass& load = loadsToMass.Loads[index];
    out.WriteLine("\t%s, %5g%s", load.LCNAME, load.FACTOR,
                  SeparatorBehindOneThenFive(index, count));
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

/// True when gravity stands in the output, in the length unit.
bool IsGravityWritten(Conversion& run) {
  return run.Target.Control<T_NGT_STYP_D>().bWrite || !run.Target.Table<T_NGT_SFNC_D>().Empty();
}

void CloseUnits(Conversion& run) {
  constexpr std::uint32_t kOnly = 1;
  if (!run.Source.CurrentUnits().IsStated) {
    run.Accounts.Note<Units>(kOnly, "value-not-stated");
  }
  if (!IsGravityWritten(run)) {
    return;
  }
  const LengthUnit* const unit = LengthUnitOf(run.Source);
  if (unit == nullptr) {
    run.Accounts.Note<Units>(kOnly, "length-unit-unknown");
  } else if (unit->Factor < 1.0) {
    run.Accounts.Note<Units>(kOnly, "gravity-of-small-unit");
  }
}

/// True for all six degrees of freedom, and for those of a plane.
bool HasStructureType(const ActiveDegreesOfFreedom& freedom) {
  switch (StructureTypeOf(freedom)) {
    case 1:
      return !freedom.RX && freedom.RY && !freedom.RZ;
    case 2:
      return freedom.RX && !freedom.RY && !freedom.RZ;
    case 3:
      return !freedom.RX && !freedom.RY && freedom.RZ;
    default:
      return freedom.UX && freedom.UY && freedom.UZ && freedom.RX && freedom.RY && freedom.RZ;
  }
}

void CloseMassSources(Conversion& run) {
  const auto& loadCases = run.Target.Table<T_NGT_STLC_D>();
  for (const auto [key, source] : run.Source.Rows<T_MSMS_D>().Entries()) {
    if (source.MassFrom != kMassOfElements &&
        !loadCases.FirstWith<&T_NGT_STLC_D::LCNAME>(source.LoadCase)) {
      run.Accounts.Note<T_MSMS_D>(key, "load-case-not-written");
    }
  }
}

}  // namespace

void CloseStructure(Conversion& run) {
  CloseUnits(run);
  if (!run.Target.Control<T_NGT_STYP_D>().bWrite) {
    run.Accounts.NoteAll<T_MSMS_D>("analysis-case-missing");
    run.Accounts.Note<ActiveDegreesOfFreedom>(1, "analysis-case-missing");
    return;
  }
  if (!HasStructureType(run.Source.Freedom())) {
    run.Accounts.Note<ActiveDegreesOfFreedom>(1, "freedoms-not-of-host");
  }
  CloseMassSources(run);
}

}  // namespace s2k2ngt
