#pragma once

#include "support/conversion_run.h"

#include <string>
#include <string_view>

// The source tables of two frames of which nothing is lost: frame 1 from joint 1 along X to joint
// 2, with section BEAM, and frame 2 from there up to joint 3, with section COLUMN.

/// What a row of a section states of its modifiers when it has none.
inline constexpr std::string_view kNoModifiers =
    "   AMod=1   A2Mod=1   A3Mod=1   JMod=1   I2Mod=1   I3Mod=1   MMod=1   WMod=1\n";

inline std::string FrameJoints() {
  return SourceTable("JOINT COORDINATES",
                     "   Joint=1   CoordType=Cartesian   XorR=0   Y=0   Z=0\n"
                     "   Joint=2   CoordType=Cartesian   XorR=4   Y=0   Z=0\n"
                     "   Joint=3   CoordType=Cartesian   XorR=4   Y=0   Z=3\n");
}

inline std::string FrameMaterial() {
  return SourceTable("MATERIAL PROPERTIES 1 - GENERAL",
                     "   Material=S235   Type=Isotropic   DesignType=Steel   UnitWeight=78.5 _\n"
                     "      E=2.1E+08   U=0.3   A=1.2E-05\n");
}

/// A section of no modifiers.
inline std::string SectionRow(std::string_view section) {
  return "   " + std::string(section) + std::string(kNoModifiers);
}

inline std::string FrameSections() {
  return SourceTable(
      "FRAME SECTION PROPERTIES 1 - GENERAL",
      SectionRow("SectionName=BEAM   Material=S235   Shape=Rectangular   t3=0.4   t2=0.2") +
          SectionRow("SectionName=COLUMN   Material=S235   Shape=Rectangular   t3=0.3   t2=0.3"));
}

inline std::string FrameConnectivity() {
  return SourceTable("CONNECTIVITY - FRAME",
                     "   Frame=1   JointI=1   JointJ=2   Length=4\n"
                     "   Frame=2   JointI=2   JointJ=3   Length=3\n");
}

inline std::string FrameAssignments() {
  return SourceTable("FRAME SECTION ASSIGNMENTS",
                     "   Frame=1   AnalSect=BEAM\n"
                     "   Frame=2   AnalSect=COLUMN\n");
}

/// All of them.
inline std::string SoundFrames() {
  return FrameJoints() + FrameMaterial() + FrameSections() + FrameConnectivity() +
         FrameAssignments();
}
