#pragma once

#include "source/model.h"

namespace s2k2ngt {

template <>
inline constexpr RowKey<ActiveDegreesOfFreedom> kRowKeys<ActiveDegreesOfFreedom>[] = {
    {"UX=", &ActiveDegreesOfFreedom::UX}, {"UY=", &ActiveDegreesOfFreedom::UY},
    {"UZ=", &ActiveDegreesOfFreedom::UZ}, {"RX=", &ActiveDegreesOfFreedom::RX},
    {"RY=", &ActiveDegreesOfFreedom::RY}, {"RZ=", &ActiveDegreesOfFreedom::RZ}};

/// A coordinate system. Where it lies plays no part: joints state their coordinates in the global
/// system.
struct CoordinateSystem {
  Text Type = "Cartesian";
};

template <>
inline constexpr RowKey<CoordinateSystem> kRowKeys<CoordinateSystem>[] = {
    Unread{"Name="},
    {"Type=", &CoordinateSystem::Type},
    LostUnless{"X=", "0", "coordinate-system-moved"},
    LostUnless{"Y=", "0", "coordinate-system-moved"},
    LostUnless{"Z=", "0", "coordinate-system-moved"},
    LostUnless{"AboutZ=", "0", "coordinate-system-moved"},
    LostUnless{"AboutY=", "0", "coordinate-system-moved"},
    LostUnless{"AboutX=", "0", "coordinate-system-moved"}};

/// Force, length and temperature as a list.
inline constexpr KeyName kUnitsKey = "CurrUnits=";

/// The program control row, which names the units.
struct ProgramControl {
  Text CurrUnits;
};

template <>
inline constexpr RowKey<ProgramControl> kRowKeys<ProgramControl>[] = {
    {kUnitsKey, &ProgramControl::CurrUnits}};

// The tables of which the model keeps one record, that of the first row of their block. Each throws
// InvalidArgumentException when the block has no row: a file that announces its units and states
// none cannot be trusted to be in the units that it would get by default.

/// Whether the analysis has each of the six degrees of freedom.
std::optional<Refusal> StoreActiveDegreesOfFreedom(TableRows rows, CModel& model, Messages& shown);

/// The first coordinate system. One that is not Cartesian refuses the file, with a message: the
/// coordinates of its joints could not be understood.
std::optional<Refusal> StoreCoordinateSystem(TableRows rows, CModel& model, Messages& shown);

/// The units: force, length, temperature. Throws InvalidArgumentException also when the row names
/// fewer than the three.
std::optional<Refusal> StoreUnits(TableRows rows, CModel& model, Messages& shown);

}  // namespace s2k2ngt
