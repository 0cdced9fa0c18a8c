#pragma once

#include "support/conversion_run.h"

#include <string>

/// Joint 1 has axis 1 along Z, axis 2 along X and axis 3 along Y.
inline constexpr const char* kAxesOfJoint1 = R"(
TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL"
   Joint=1   AngleA=0   AngleB=0   AngleC=0   AdvanceAxes=Yes

TABLE:  "JOINT LOCAL AXES ASSIGNMENTS 2 - ADVANCED"
   Joint=1   LocalPlane=12   AxOption1="Coord Dir"   AxCoordSys=GLOBAL   AxCoordDir=Z   PlOption1="Coord Dir"   PlCoordSys=GLOBAL   CoordDir1=X   CoordDir2=Y
)";

/// Runs the conversion over these tables and those of the axes.
inline ConversionRun ConvertWithAxes(const std::string& tables) {
  return Convert(kAxesOfJoint1 + tables);
}
