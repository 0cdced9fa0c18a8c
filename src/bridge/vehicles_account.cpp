#include "bridge/vehicles.h"
#include "common/numbers.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace s2k2ngt {

// ---- Account ----

namespace {

/// True when vehicles of the name are in the output.
bool IsWritten(Conversion& run, Text vehicle) {
  return run.Target.Table<T_NGT_VHCL_D>().FirstWith<&T_NGT_VHCL_D::VehName>(vehicle).has_value();
}

bool LosesScale(const T_BLSV_D& vehicle) {
  if (vehicle.PlaceOfScale()) {
    return vehicle.ScaleFactor != TruncateToInteger(vehicle.ScaleFactor);
  }
  return vehicle.ScaleFactor != 0.0 && vehicle.ScaleFactor != 1.0;
}

void CloseStandardVehicles(Conversion& run) {
  const auto& written = run.Target.Table<T_NGT_VHCL_D>();
  for (const auto [key, vehicle] : run.Source.Rows<T_BLSV_D>().Entries()) {
    if (LosesScale(vehicle)) {
      run.Accounts.Note<T_BLSV_D>(key, "vehicle-scale-factor");
    }
    const auto target = written.FirstWith<&T_NGT_VHCL_D::VehName>(vehicle.VehName);
    if (target && target->Value.NAME != vehicle.VehName) {
      run.Accounts.Note<T_BLSV_D>(key, "vehicle-named-by-type");
    }
  }
}

/// True when a value is lost that the vehicle states.
bool LosesLoads(const T_BLGV1_D& vehicle) {
  return vehicle.IsTrain()
             ? vehicle.AxleMom != 0.0 || vehicle.AxleOther != 0.0
             : vehicle.LeadUnif != 0.0 || vehicle.FirstAxle != 0.0 || vehicle.TrailUnif != 0.0;
}

/// Which values of an axle are written, and not in the place of others.
struct AxleUse {
  bool Uniform = false;
  bool Load = false;
  bool MinDistance = false;
};

AxleUse UseOfAxle(std::size_t index, std::size_t count, bool isTrain) {
  const bool isFirst = index == 0;
  const bool isLast = index + 1 == count;
  return isTrain ? AxleUse{.Uniform = false, .Load = !isFirst, .MinDistance = !isFirst || isLast}
                 : AxleUse{.Uniform = isFirst, .Load = !isLast, .MinDistance = !isFirst && !isLast};
}

bool LosesValues(const T_BLGV2_D& axle, const AxleUse& use) {
  const bool isRange = axle.InterMaxD != 0.0 && axle.InterMaxD != axle.InterMinD;
  return isRange || (axle.InterUnif != 0.0 && !use.Uniform) ||
         (axle.InterAxle != 0.0 && !use.Load) || (axle.InterMinD != 0.0 && !use.MinDistance);
}

void NoteAxles(Conversion& run, std::span<const std::uint32_t> axles, bool isTrain) {
  const auto& rows = run.Source.Rows<T_BLGV2_D>();
  for (std::size_t index = 0; index < axles.size(); ++index) {
    const AxleUse use = UseOfAxle(index, axles.size(), isTrain);
    if (!use.Uniform && !use.Load && !use.MinDistance) {
      run.Accounts.Note<T_BLGV2_D>(axles[index], "axle-left-out");
    } else if (LosesValues(*rows.Find(axles[index]), use)) {
      run.Accounts.Note<T_BLGV2_D>(axles[index], "vehicle-values-left-out");
    }
  }
}

void CloseGeneralVehicles(Conversion& run) {
  const auto& axles = run.Source.Rows<T_BLGV2_D>();
  const auto& vehicles = run.Source.Rows<T_BLGV1_D>();
  if (axles.Empty()) {
    run.Accounts.NoteAll<T_BLGV1_D>("vehicle-without-axles");
    return;
  }
  for (const auto [key, vehicle] : vehicles.Entries()) {
    if (LosesLoads(vehicle)) {
      run.Accounts.Note<T_BLGV1_D>(key, "vehicle-values-left-out");
    }
    NoteAxles(run, axles.KeysWith<&T_BLGV2_D::VehName>(vehicle.VehName), vehicle.IsTrain());
  }
  for (const auto [key, axle] : axles.Entries()) {
    if (!vehicles.FirstWith<&T_BLGV1_D::VehName>(axle.VehName)) {
      run.Accounts.Note<T_BLGV2_D>(key, "axle-of-unknown-vehicle");
    }
  }
}

void CloseVehicleClasses(Conversion& run) {
  const auto& classes = run.Target.Table<T_NGT_VCLS_D>();
  for (const auto [key, row] : run.Source.Rows<T_BLVC_D>().Entries()) {
    if (row.VehClass.empty()) {
      run.Accounts.Note<T_BLVC_D>(key, "class-without-name");
    } else if (!IsWritten(run, row.VehName)) {
      run.Accounts.Note<T_BLVC_D>(key, "class-vehicle-missing");
    }
    if (classes.AllWith<&T_NGT_VCLS_D::NAME>(row.VehClass).size() > 1) {
      run.Accounts.Note<T_BLVC_D>(key, "written-in-parts");
    }
  }
}

}  // namespace

void CloseVehicles(Conversion& run) {
  CloseStandardVehicles(run);
  CloseGeneralVehicles(run);
  CloseVehicleClasses(run);
}

}  // namespace s2k2ngt
