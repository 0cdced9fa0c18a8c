#include "frames/materials.h"

#include "account/shared_names.h"
#include "analysis/structure.h"

#include <cmath>
#include <cstdint>

namespace s2k2ngt {

// ---- Source rows ----

std::optional<std::int32_t> MaterialOrLastKey(CModel& model, Text name) {
  const auto material = model.Rows<T_MTGN_D>().FirstOrLastWith<&T_MTGN_D::Material>(name);
  return material ? std::optional(static_cast<std::int32_t>(material->Key)) : std::nullopt;
}

// ---- Conversion ----

namespace {

constexpr Text kIsotropic = "Isotropic";
constexpr Text kAnisotropic = "Anisotropic";

Text TargetType(Text designType) {
  if (designType == "Concrete") {
    return "CONC";
  }
  if (designType == "Steel") {
    return "STEEL";
  }
  return "USER";
}

/// Notes words of a material for which the target has no like.
void NoteKinds(Conversion& run, std::uint32_t key, const T_MTGN_D& source, Text targetType) {
  if (targetType == "USER" && !source.DesignType.empty() && source.DesignType != "None") {
    run.Accounts.Note<T_MTGN_D>(key, "material-design-type");
  }
  if (source.Type == kAnisotropic) {
    run.Accounts.Note<T_MTGN_D>(key, "material-anisotropic");
  } else if (source.Type != kIsotropic && source.Type != "Orthotropic") {
    run.Accounts.Note<T_MTGN_D>(key, "material-type-unknown");
  }
}

/// A thermal coefficient per degree of the file's temperature unit, as one per degree Celsius.
double ThermalPerCelsius(double coefficient, const std::string& temperatureUnit) {
  if (temperatureUnit == "C") {
    return coefficient;
  }
  if (temperatureUnit == "F") {
    return coefficient * 9.0 / 5.0;
  }
  return 0.0;
}

T_NGT_MATL_D Orthotropic(const T_MTAD_D& source, const T_NGT_MATL_D& general) {
  T_NGT_MATL_D target = general;
  target.DataKind = MaterialKind::Orthotropic;
  // Axes 2 and 3 change places: the target's local z is the source's local 2. The thermal
  // coefficients stay per degree of the file's unit, unlike those of isotropic materials.
  target.Ex = source.E1;
  target.Ey = source.E3;
  target.Ez = source.E2;
  target.Tx = source.A1;
  target.Ty = source.A3;
  target.Tz = source.A2;
  target.Sxy = source.G13;
  target.Sxz = source.G12;
  target.Syz = source.G23;
  target.Pxy = source.U13;
  target.Pxz = source.U12;
  target.Pyz = source.U23;
  return target;
}

}  // namespace

bool ConvertMaterials(Conversion& run) {
  const std::string temperatureUnit = ToUpper(run.Source.CurrentUnits().Temperature);
  const auto& advanced = run.Source.Rows<T_MTAD_D>();
  for (const auto [key, source] : run.Source.Rows<T_MTGN_D>().Walk()) {
    T_NGT_MATL_D material;
    material.TYPE = TargetType(source.DesignType);
    material.MNAME = source.Material;
    material.DEN = source.UnitWeight;
    NoteKinds(run, key, source, material.TYPE);
    if (source.Type == kIsotropic) {
      material.ELAST = source.E;
      material.POISN = source.U;
      material.THERMAL = ThermalPerCelsius(source.A, temperatureUnit);
      if (source.A != 0.0 && material.THERMAL == 0.0) {
        run.Accounts.Note<T_MTGN_D>(key, "thermal-unit-unknown");
      }
      run.Target.Add(key, material);
      continue;
    }
    // A material without constants leaves a gap in the numbers and no word of it.
    if (const auto constants = advanced.FirstWith<&T_MTAD_D::Material>(source.Material)) {
      run.Target.Add(key, Orthotropic(constants->Value, material));
    } else {
      run.Accounts.Note<T_MTGN_D>(key, "material-constants-missing");
    }
    if (source.Type == kAnisotropic) {
      run.Warnings.bMaterialAnisotropic = true;
    }
  }
  return true;
}

// ---- Output ----

bool WriteMaterials(Conversion& run, LineWriter& out) {
  const auto& materials = run.Target.Table<T_NGT_MATL_D>();
  if (materials.Empty()) {
    return true;
  }
  if (run.Warnings.bMaterialAnisotropic) {
    run.Shown.Show("IDS_S2KV8_MATL_ANIS_Not_Convert");
  }
  out.WriteLine("*MATERIAL    ; Material\n");
  out.WriteLine("\n");
  out.WriteLine("; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA1]               ; STEEL, CONC, USER\n");
  out.WriteLine("; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA2], [DATA2]      ; SRC\n");
  out.WriteLine("; [DATA1] : 1, DB, NAME\n");
  out.WriteLine("; [DATA1] : 2, ELAST, POISN, THERMAL, DEN\n");
  out.WriteLine(
      "; [DATA1] : 3, Ex, Ey, Ez, Tx, Ty, Tz, Sxy, Sxz, Syz, Pxy, Pxz, Pyz, DEN  ; Orthotropic\n");
  out.WriteLine("; [DATA2] : 1, DB, NAME or 2, ELAST, POISN, THERMAL, DEN\n");
  for (const auto [key, material] : materials.Walk()) {
    const auto iMAT = static_cast<std::int32_t>(key);
    switch (material.DataKind) {
      case MaterialKind::Isotropic:
        out.WriteLine("\t%d, %5s, %5s, %5g, %5g, 2, %5g, %5g, %5g, %5g\n", iMAT, material.TYPE,
                      material.MNAME, material.SPHEAT, material.HEATCO, material.ELAST,
                      material.POISN, material.THERMAL, material.DEN);
        break;
      case MaterialKind::Orthotropic:
        out.WriteLine(
            "\t%d, %5s, %5s, %5g, %5g, 3, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, "
            "%5g, %5g\n",
            iMAT, material.TYPE, material.MNAME, material.SPHEAT, material.HEATCO, material.Ex,
            material.Ey, material.Ez, material.Tx, material.Ty, material.Tz, material.Sxy,
            material.Sxz, material.Syz, material.Pxy, material.Pxz, material.Pyz, material.DEN);
        break;
    }
  }
  out.WriteLine("\n");
  return true;
}

// ---- Account ----

namespace {

/// The general row of a material of this name that takes advanced constants; else any of this name,
/// and null without one.
const T_MTGN_D* TakerOf(CModel& model, Text name) {
  const auto& materials = model.Rows<T_MTGN_D>();
  const T_MTGN_D* taker = nullptr;
  for (const std::uint32_t position : materials.AllWith<&T_MTGN_D::Material>(name)) {
    const T_MTGN_D& material = materials.AtWalk(position).Value;
    if (taker == nullptr || taker->Type == kIsotropic) {
      taker = &material;
    }
  }
  return taker;
}

/// Notes what of constants that are written is not as it stands: mixed constants are left out, and
/// thermal coefficients that are not per degree Celsius are written as if they were.
void NoteWritten(Conversion& run, std::uint32_t key, const T_MTAD_D& row,
                 const T_MTGN_D& material) {
  if (material.Type == kAnisotropic) {
    run.Accounts.Note<T_MTAD_D>(key, "material-anisotropic");
  }
  const bool isThermal = row.A1 != 0.0 || row.A2 != 0.0 || row.A3 != 0.0;
  if (isThermal && ToUpper(run.Source.CurrentUnits().Temperature) != "C") {
    run.Accounts.Note<T_MTAD_D>(key, "thermal-not-per-celsius");
  }
}

void NoteConstants(Conversion& run, std::uint32_t key, const T_MTAD_D& row) {
  const auto& constants = run.Source.Rows<T_MTAD_D>();
  if (constants.FirstWith<&T_MTAD_D::Material>(row.Material)->Key != key) {
    run.Accounts.Note<T_MTAD_D>(key, "constants-at-another-temperature");
    return;
  }
  const T_MTGN_D* const material = TakerOf(run.Source, row.Material);
  if (material == nullptr) {
    run.Accounts.Note<T_MTAD_D>(key, "constants-of-unknown-material");
  } else if (material->Type == kIsotropic) {
    run.Accounts.Note<T_MTAD_D>(key, "constants-of-isotropic-material");
  } else {
    NoteWritten(run, key, row, *material);
  }
}

/// True when mass and weight go together, but for the digits of common tables.
bool IsMassOfWeight(Conversion& run, const T_MTGN_D& material) {
  constexpr double kDigits = 0.01;
  const double gravity = TrueGravity(run.Source);
  if (gravity == 0.0) {
    return IsAboveTolerance(material.UnitMass) == IsAboveTolerance(material.UnitWeight);
  }
  const double weight = std::abs(material.UnitWeight);
  return std::abs(material.UnitMass * gravity - weight) <= kDigits * weight;
}

}  // namespace

void CloseMaterials(Conversion& run) {
  NoteSharedNames<&T_MTGN_D::Material, T_MTGN_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_MTGN_D>().Entries()) {
    if (row.UnitMass >= 0.0 && !IsMassOfWeight(run, row)) {
      run.Accounts.Note<T_MTGN_D>(key, "mass-unlike-weight");
    }
  }
  for (const auto [key, row] : run.Source.Rows<T_MTAD_D>().Entries()) {
    NoteConstants(run, key, row);
  }
}

}  // namespace s2k2ngt
