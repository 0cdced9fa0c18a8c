#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace s2k2ngt {

// ---- Source rows ----

/// A standard vehicle, known by its type. An "n" in the type stands for the scale factor, as in
/// "HSn-44".
struct T_BLSV_D {
  static constexpr Text kTable = "T_BLSV_D";
  Text VehName;
  Text Type;
  double ScaleFactor = 0.0;

  /// Where the scale factor stands in the type; nothing where it has no place. Meant so: an "n" in
  /// front is no place for it, and one in "UICn" is.
  std::optional<std::size_t> PlaceOfScale() const {
    const std::size_t place = Type.find('n');
    return place == 0 || place == Text::npos ? std::nullopt : std::optional(place);
  }
};

template <>
inline constexpr RowKey<T_BLSV_D> kRowKeys<T_BLSV_D>[] = {
    {"VehName=", &T_BLSV_D::VehName},
    {"Type=", &T_BLSV_D::Type},
    {"ScaleFactor=", &T_BLSV_D::ScaleFactor},
    LostUnless{"DynAllow=", "0", "vehicle-dynamic-allowance"}};

/// A general vehicle: its uniform loads and the axles at its ends.
struct T_BLGV1_D {
  static constexpr Text kTable = "T_BLGV1_D";
  Text VehName;
  double LeadUnif = 0.0;
  double TrailUnif = 0.0;
  double FirstAxle = 0.0;
  double AxleMom = 0.0;    // floating axle for moments
  double AxleOther = 0.0;  // and for all else

  /// Whether a uniform load is behind it.
  bool IsTrain() const { return TrailUnif >= kTolerance; }
};

// "SupprotMom=" is how the source program spells its key.
template <>
inline constexpr RowKey<T_BLGV1_D> kRowKeys<T_BLGV1_D>[] = {
    {"VehName=", &T_BLGV1_D::VehName},
    LostUnless{"SupprotMom=", "Yes", "vehicle-for-some-responses"},
    LostUnless{"IntSupport=", "Yes", "vehicle-for-some-responses"},
    LostUnless{"OtherResp=", "Yes", "vehicle-for-some-responses"},
    {"LeadUnif=", &T_BLGV1_D::LeadUnif},
    {"TrailUnif=", &T_BLGV1_D::TrailUnif},
    {"FirstAxle=", &T_BLGV1_D::FirstAxle},
    {"AxleMom=", &T_BLGV1_D::AxleMom},
    {"AxleOther=", &T_BLGV1_D::AxleOther},
    Unread{"NumInter="}};

/// An axle between the ends of a general vehicle, with the uniform load ahead of it and the
/// smallest and largest distance to it.
struct T_BLGV2_D {
  static constexpr Text kTable = "T_BLGV2_D";
  Text VehName;
  double InterUnif = 0.0;
  double InterAxle = 0.0;
  double InterMinD = 0.0;
  double InterMaxD = 0.0;
};

template <>
inline constexpr RowKey<T_BLGV2_D> kRowKeys<T_BLGV2_D>[] = {{"VehName=", &T_BLGV2_D::VehName},
                                                            {"InterUnif=", &T_BLGV2_D::InterUnif},
                                                            {"InterAxle=", &T_BLGV2_D::InterAxle},
                                                            {"InterMinD=", &T_BLGV2_D::InterMinD},
                                                            {"InterMaxD=", &T_BLGV2_D::InterMaxD}};

/// A vehicle of a class. The target's classes have no scale factors.
struct T_BLVC_D {
  static constexpr Text kTable = "T_BLVC_D";
  Text VehClass;
  Text VehName;
};

template <>
inline constexpr RowKey<T_BLVC_D> kRowKeys<T_BLVC_D>[] = {
    {"VehClass=", &T_BLVC_D::VehClass},
    {"VehName=", &T_BLVC_D::VehName},
    LostUnless{"ScaleFactor=", "1", "vehicle-scale-factor"}};

// ---- Target records ----

/// An axle of a general vehicle and the distance behind it.
struct AxleLoad {
  double LOAD = 0.0;
  double DIST = 0.0;
};

enum class VehicleKind : std::int32_t { Standard = 1, General = 2 };

/// A vehicle, keyed by a running number: one of the target's own, or one with its axles.
struct T_NGT_VHCL_D {
  Text NAME;
  Text VehName;  // of the source; classes look it up
  VehicleKind iKind = VehicleKind::Standard;
  Text bTRAIN;  // "YES" for a vehicle with a uniform load behind it
  double W = 0.0;
  double PL = 0.0;
  double PLM = 0.0;
  double PLV = 0.0;
  std::vector<AxleLoad> Axles;
};

/// The names of vehicles that the target does not have, with ", " between them.
struct LostVehicles {
  std::string Names;
};

/// A vehicle class, keyed by a running number.
struct T_NGT_VCLS_D {
  static constexpr std::uint32_t kBuckets = 17;
  Text NAME;
  std::vector<Text> VLOAD;
};

// ---- Conversion ----

/// Standard vehicles into those of the target.
bool ConvertStandardVehicles(Conversion& run);

/// General vehicles with their axles.
bool ConvertGeneralVehicles(Conversion& run);

/// Vehicle classes. Vehicles that were not converted are left out of them.
bool ConvertVehicleClasses(Conversion& run);

// ---- Output ----

/// Writes *VEHICLE.
bool WriteVehicles(Conversion& run, LineWriter& out);

/// Writes *VCLASS.
bool WriteVehicleClasses(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes what vehicles and their classes lose, but for standard vehicles that the target does not
/// have.
void CloseVehicles(Conversion& run);

}  // namespace s2k2ngt
