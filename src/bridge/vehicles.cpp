#include "bridge/vehicles.h"

#include "common/numbers.h"
#include "target/wrapped_list.h"

#include <algorithm>
#include <array>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// The name that a type of vehicle has in the target, if the target knows it.
struct TargetVehicle {
  std::string Name;
  bool IsKnown = true;
};

TargetVehicle VehicleByScale(Text before, std::int32_t scale, Text behind) {
  constexpr std::array<Text, 11> kKnown = {"H15-44", "HS15-44", "H15-44L", "HS15-44L",
                                           "H20-44", "HS20-44", "H20-44L", "HS20-44L",
                                           "HS-25",  "HS-25L",  "AML"};
  std::string name = std::string(before) + std::to_string(scale) + std::string(behind);
  const bool isKnown = std::ranges::find(kKnown, name) != kKnown.end();
  return {std::move(name), isKnown};
}

TargetVehicle VehicleByType(Text type) {
  if (type == "HL-93K") {
    return {"HL-93TRK"};
  }
  if (type == "HL-93M") {
    return {"HL-93TDM"};
  }
  if (type == "Cooper E 80") {
    return {"L-25"};
  }
  return {std::string(type), type != "RL" && type != "HL-93S"};
}

TargetVehicle VehicleOf(const T_BLSV_D& vehicle) {
  const std::optional<std::size_t> place = vehicle.PlaceOfScale();
  if (!place) {
    return VehicleByType(vehicle.Type);
  }
  return VehicleByScale(vehicle.Type.substr(0, *place), TruncateToInteger(vehicle.ScaleFactor),
                        vehicle.Type.substr(*place + 1));
}

void NoteLost(const std::string& name, std::string& names) {
  if (!names.empty()) {
    names += ", ";
  }
  names += name;
}

}  // namespace

bool ConvertStandardVehicles(Conversion& run) {
  for (const auto [key, vehicle] : run.Source.Rows<T_BLSV_D>().Walk()) {
    const TargetVehicle target = VehicleOf(vehicle);
    if (!target.IsKnown) {
      NoteLost(target.Name, run.Target.Control<LostVehicles>().Names);
      run.Accounts.Note<T_BLSV_D>(key, "vehicle-not-of-host");
      continue;
    }
    run.Target.Table<T_NGT_VHCL_D>().Append({.NAME = run.Target.Texts().Keep(target.Name),
                                             .VehName = vehicle.VehName,
                                             .iKind = VehicleKind::Standard,
                                             .bTRAIN = {},
                                             .Axles = {}});
  }
  return true;
}

namespace {

/// The axles between the ends of a vehicle, in the order of their rows.
std::vector<T_BLGV2_D> IntermediateAxles(CModel& source, Text name) {
  const auto& rows = source.Rows<T_BLGV2_D>();
  std::vector<T_BLGV2_D> axles;
  for (const std::uint32_t key : rows.KeysWith<&T_BLGV2_D::VehName>(name)) {
    axles.push_back(*rows.Find(key));
  }
  return axles;
}

T_NGT_VHCL_D GeneralVehicle(const T_BLGV1_D& vehicle, const std::vector<T_BLGV2_D>& axles) {
  const bool isTrain = vehicle.IsTrain();
  T_NGT_VHCL_D target{.NAME = vehicle.VehName,
                      .VehName = vehicle.VehName,
                      .iKind = VehicleKind::General,
                      .bTRAIN = isTrain ? "YES" : "NO",
                      .Axles = {}};
  if (isTrain) {
    target.W = vehicle.LeadUnif;
    target.PL = vehicle.FirstAxle;
    target.PLM = vehicle.TrailUnif;
    target.PLV = axles.empty() ? 0.0 : axles.back().InterMinD;
  } else {
    target.W = axles.empty() ? 0.0 : axles.front().InterUnif;
    target.PL = vehicle.AxleOther;
    target.PLM = vehicle.AxleMom;
    target.PLV = vehicle.AxleOther;  // meant so: the axle of shear is that of all else
  }
  for (std::size_t index = 0; index + 1 < axles.size(); ++index) {
    const T_BLGV2_D& axle = axles[index];
    const T_BLGV2_D& next = axles[index + 1];
    if (isTrain) {
      target.Axles.push_back({next.InterAxle, next.InterMinD});
    } else {
      const bool isLast = index + 2 == axles.size();
      target.Axles.push_back({axle.InterAxle, isLast ? axle.InterMaxD : next.InterMinD});
    }
  }
  return target;
}

}  // namespace

bool ConvertGeneralVehicles(Conversion& run) {
  if (run.Source.Rows<T_BLGV2_D>().Empty()) {
    return true;
  }
  for (const auto [key, vehicle] : run.Source.Rows<T_BLGV1_D>().Walk()) {
    run.Target.Table<T_NGT_VHCL_D>().Append(
        GeneralVehicle(vehicle, IntermediateAxles(run.Source, vehicle.VehName)));
  }
  return true;
}

bool ConvertVehicleClasses(Conversion& run) {
  const auto& vehicles = run.Target.Table<T_NGT_VHCL_D>();
  T_NGT_VCLS_D current;
  const auto finish = [&run, &current] {
    if (!current.NAME.empty()) {
      run.Target.Table<T_NGT_VCLS_D>().Append(std::move(current));
    }
  };
  for (const auto [key, row] : run.Source.Rows<T_BLVC_D>().Walk()) {
    if (row.VehClass != current.NAME) {
      // A class whose rows do not follow each other in the walk is finished early, and comes again.
      finish();
      current = {.NAME = row.VehClass, .VLOAD = {}};
    }
    if (const auto vehicle = vehicles.FirstWith<&T_NGT_VHCL_D::VehName>(row.VehName)) {
      current.VLOAD.push_back(vehicle->Value.NAME);
    }
  }
  finish();
  return true;
}

// ---- Output ----

bool WriteVehicles(Conversion& run, LineWriter& out) {
  const auto& vehicles = run.Target.Table<T_NGT_VHCL_D>();
  if (vehicles.Empty()) {
    return true;
  }
  if (const std::string& lost = run.Target.Control<LostVehicles>().Names; !lost.empty()) {
    run.Shown.ShowWith("IDS_S2KV8_NOCONVERT_VEHICLE", lost);
  }
  out.WriteLine("%s\n", "*VEHICLE    ; Vehicles");
  out.WriteLine("; NAME=NAME, 1\n");
  out.WriteLine("; NAME=NAME, 2, bTRAIN, W(W1), PL(D1), PLM(W2), PLV(D2)  ; line 1\n");
  out.WriteLine(";      LOAD1, DIST1, LOAD2, DIST2, ...                   ; from line 2\n");
  for (const auto [key, vehicle] : vehicles.Walk()) {
    const auto kind = static_cast<std::int32_t>(vehicle.iKind);
    if (vehicle.iKind == VehicleKind::Standard) {
      out.WriteLine("\tNAME=%s, %2d\n", vehicle.NAME, kind);
      continue;
    }
    // Meant so: two tabs, where a standard vehicle has one.
    out.WriteLine("\t\tNAME=%s, %2d, %5s, %5g, %5g, %5g, %5g", vehicle.NAME, kind, vehicle.bTRAIN,
                  vehicle.W, vehicle.PL, vehicle.PLM, vehicle.PLV);
    for (std::size_t index = 0; index < vehicle.Axles.size(); ++index) {
      const AxleLoad& axle = vehicle.Axles[index];
      out.WriteLine("%s%5g, %5g", SeparatorBefore(index, 2, "\n\t\t\t"), axle.LOAD, axle.DIST);
    }
    out.WriteLine("\n");
  }
  out.WriteLine("\n");
  return true;
}

bool WriteVehicleClasses(Conversion& run, LineWriter& out) {
  const auto& classes = run.Target.Table<T_NGT_VCLS_D>();
  if (classes.Empty()) {
    return true;
  }
  out.WriteLine("%s\n", "*VCLASS    ; Vehicle Classes");
  out.WriteLine("; NAME=NAME                  ; line 1\n");
  out.WriteLine(";      VLOAD1, VLOAD2, ...   ; from line 2\n");
  for (const auto [key, vehicleClass] : classes.Walk()) {
    out.WriteLine("\tNAME=%s\n", vehicleClass.NAME);
    const std::size_t count = vehicleClass.VLOAD.size();
    for (std::size_t index = 0; index < count; ++index) {
      // Six on the first line and five on each further one, each behind its tabs.
      out.WriteLine("\t\t%s%s%s", vehicleClass.VLOAD[index], index + 1 < count ? "," : "",
                    index > 0 && index % 5 == 0 ? "\n" : "");
    }
    out.WriteLine("\n");
  }
  out.WriteLine("\n");
  return true;
}

}  // namespace s2k2ngt
