#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

namespace s2k2ngt {

// ---- Source rows ----

/// A distributed load on a frame: force or moment per length, between two distances from end I.
struct T_FRLD_D {
  static constexpr Text kTable = "T_FRLD_D";
  Text Frame;
  Text LoadCase;
  Text CoordSys;
  Text Type;  // "Force" or "Moment"
  Text Dir;
  Text DistType;  // "RelDist", of the frame's length, or "AbsDist"
  double RelDistA = 0.0;
  double RelDistB = 0.0;
  double AbsDistA = 0.0;
  double AbsDistB = 0.0;
  double FOverLA = 0.0;
  double FOverLB = 0.0;
  double MOverLA = 0.0;
  double MOverLB = 0.0;
};

template <>
inline constexpr RowKey<T_FRLD_D> kRowKeys<T_FRLD_D>[] = {
    {"Frame=", &T_FRLD_D::Frame},       {"LoadCase=", &T_FRLD_D::LoadCase},
    {"CoordSys=", &T_FRLD_D::CoordSys}, {"Type=", &T_FRLD_D::Type},
    {"Dir=", &T_FRLD_D::Dir},           {"DistType=", &T_FRLD_D::DistType},
    {"RelDistA=", &T_FRLD_D::RelDistA}, {"RelDistB=", &T_FRLD_D::RelDistB},
    {"AbsDistA=", &T_FRLD_D::AbsDistA}, {"AbsDistB=", &T_FRLD_D::AbsDistB},
    {"FOverLA=", &T_FRLD_D::FOverLA},   {"FOverLB=", &T_FRLD_D::FOverLB},
    {"MOverLA=", &T_FRLD_D::MOverLA},   {"MOverLB=", &T_FRLD_D::MOverLB}};

/// A load at a point of a frame.
struct T_FRLP_D {
  static constexpr Text kTable = "T_FRLP_D";
  Text Frame;
  Text LoadCase;
  Text CoordSys;
  Text Type;  // as for distributed loads, as are Dir and DistType
  Text Dir;
  Text DistType;
  double RelDist = 0.0;
  double AbsDist = 0.0;
  double Force = 0.0;
  double Moment = 0.0;
};

template <>
inline constexpr RowKey<T_FRLP_D> kRowKeys<T_FRLP_D>[] = {
    {"Frame=", &T_FRLP_D::Frame},       {"LoadCase=", &T_FRLP_D::LoadCase},
    {"CoordSys=", &T_FRLP_D::CoordSys}, {"Type=", &T_FRLP_D::Type},
    {"Dir=", &T_FRLP_D::Dir},           {"DistType=", &T_FRLP_D::DistType},
    {"RelDist=", &T_FRLP_D::RelDist},   {"AbsDist=", &T_FRLP_D::AbsDist},
    {"Force=", &T_FRLP_D::Force},       {"Moment=", &T_FRLP_D::Moment}};

/// Gravity load of a frame: factors of its weight along the global axes.
struct T_FRLG_D {
  static constexpr Text kTable = "T_FRLG_D";
  Text Frame;
  Text LoadCase;
  Text CoordSys;
  double MultiplierX = 0.0;
  double MultiplierY = 0.0;
  double MultiplierZ = 0.0;
};

template <>
inline constexpr RowKey<T_FRLG_D> kRowKeys<T_FRLG_D>[] = {{"Frame=", &T_FRLG_D::Frame},
                                                          {"LoadCase=", &T_FRLG_D::LoadCase},
                                                          Noted{"CoordSys=", &T_FRLG_D::CoordSys},
                                                          {"MultiplierX=", &T_FRLG_D::MultiplierX},
                                                          {"MultiplierY=", &T_FRLG_D::MultiplierY},
                                                          {"MultiplierZ=", &T_FRLG_D::MultiplierZ}};

// ---- Target records ----

/// A beam load, keyed by a running number. The target's third and fourth positions along a beam are
/// never used.
struct T_NGT_ELMB_D {
  Text Element;
  Text TYPE;  // "UNILOAD", "UNIMOMENT", "CONLOAD" or "CONMOMENT"; empty for a kind without a like
  Text DIR;   // "GX" to "GZ" global, "LX" to "LZ" local; empty, as bPROJ, for one without a like
  Text LoadCase;
  Text bPROJ;       // "YES" for a load per projected length
  double D1 = 0.0;  // position, of the beam's length
  double P1 = 0.0;  // load there
  double D2 = 0.0;
  double P2 = 0.0;
};

// ---- Conversion ----

/// Gravity loads of frames into distributed loads of their sections' weights.
bool ConvertFrameGravity(Conversion& run);

/// Both stop at the first load at an absolute distance on a frame without a length.
bool ConvertPointLoads(Conversion& run);
bool ConvertDistributedLoads(Conversion& run);

// ---- Output ----

/// Writes *BEAMLOAD of a load case.
void WriteBeamLoads(Conversion& run, Text loadCase, LineWriter& out);

// ---- Account ----

/// Notes loads of frames that are not written, or for a frame that is not there; tendons and their
/// multipliers too.
void CloseFrameLoads(Conversion& run);

}  // namespace s2k2ngt
