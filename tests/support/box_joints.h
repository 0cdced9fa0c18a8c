#pragma once

#include "support/conversion_run.h"

#include <string>

/// The joints of a box, for elements between them: 1 to 4 lie in the plane of Y=0, and 5 to 8, in
/// the same order, in that of Y=6.
inline std::string BoxJoints() {
  return SourceTable("JOINT COORDINATES",
                     "   Joint=1   CoordType=Cartesian   XorR=0   Y=0   Z=0\n"
                     "   Joint=2   CoordType=Cartesian   XorR=5   Y=0   Z=0\n"
                     "   Joint=3   CoordType=Cartesian   XorR=0   Y=0   Z=4\n"
                     "   Joint=4   CoordType=Cartesian   XorR=5   Y=0   Z=4\n"
                     "   Joint=5   CoordType=Cartesian   XorR=0   Y=6   Z=0\n"
                     "   Joint=6   CoordType=Cartesian   XorR=5   Y=6   Z=0\n"
                     "   Joint=7   CoordType=Cartesian   XorR=0   Y=6   Z=4\n"
                     "   Joint=8   CoordType=Cartesian   XorR=5   Y=6   Z=4\n");
}

/// A material, C30.
inline std::string ConcreteMaterial() {
  return SourceTable("MATERIAL PROPERTIES 1 - GENERAL",
                     "   Material=C30   Type=Isotropic   DesignType=Concrete   UnitMass=2.5   "
                     "UnitWeight=24.5   E=30000000   U=0.2   A=0.00001\n");
}
