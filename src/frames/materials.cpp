#include "frames/materials.h"

namespace s2k2ngt {

// ---- Source rows ----

std::optional<std::int32_t> MaterialOrLastKey(CModel& model, Text name) {
  const auto material = model.Rows<T_MTGN_D>().FirstOrLastWith<&T_MTGN_D::Material>(name);
  return material ? std::optional(static_cast<std::int32_t>(material->Key)) : std::nullopt;
}

// ---- Conversion ----

namespace {

Text TargetType(Text designType) {
  if (designType == "Concrete") {
    return "CONC";
  }
  if (designType == "Steel") {
    return "STEEL";
  }
  return "USER";
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
    if (source.Type == "Isotropic") {
      material.ELAST = source.E;
      material.POISN = source.U;
      material.THERMAL = ThermalPerCelsius(source.A, temperatureUnit);
      run.Target.Add(key, material);
      continue;
    }
    // A material without constants leaves a gap in the numbers and no word of it.
    if (const auto constants = advanced.FirstWith<&T_MTAD_D::Material>(source.Material)) {
      run.Target.Add(key, Orthotropic(constants->Value, material));
    }
    if (source.Type == "Anisotropic") {
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

}  // namespace s2k2ngt
