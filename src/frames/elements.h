#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <cstdint>
#include <optional>

namespace s2k2ngt {

// ---- Source rows ----

/// Connectivity of a frame.
struct T_CNFR_D {
  static constexpr Text kTable = "T_CNFR_D";
  Text Frame;
  Text JointI;
  Text JointJ;
  double Length = 0.0;
};

template <>
inline constexpr RowKey<T_CNFR_D> kRowKeys<T_CNFR_D>[] = {{"Frame=", &T_CNFR_D::Frame},
                                                          {"JointI=", &T_CNFR_D::JointI},
                                                          {"JointJ=", &T_CNFR_D::JointJ},
                                                          {"Length=", &T_CNFR_D::Length}};

/// The connectivity of a frame. Meant so: a frame that is not there has that of the last frame of
/// the walk, and in a model without frames an empty one.
T_CNFR_D ConnectivityOrLast(CModel& model, Text frame);

/// Section assignment of a frame.
struct T_FRSC_D {
  static constexpr Text kTable = "T_FRSC_D";
  Text Frame;
  Text AnalSect;
};

template <>
inline constexpr RowKey<T_FRSC_D> kRowKeys<T_FRSC_D>[] = {
    {"Frame=", &T_FRSC_D::Frame}, Unread{"SectionType="},
    Unread{"AutoSelect="},        {"AnalSect=", &T_FRSC_D::AnalSect},
    Unread{"DesignSect="},        LostUnless{"MatProp=", "Default", "material-of-assignment"}};

/// The name of a frame's section; nothing for a frame without an assignment row.
std::optional<Text> SectionNameOf(CModel& model, Text frame);

/// Typical local axes of a frame. Mirrored sections go over unmirrored.
struct T_FRTP_D {
  static constexpr Text kTable = "T_FRTP_D";
  Text Frame;
  double Angle = 0.0;  // of the section about the frame's axis, degrees
  bool AdvanceAxes = false;
};

template <>
inline constexpr RowKey<T_FRTP_D> kRowKeys<T_FRTP_D>[] = {
    {"Frame=", &T_FRTP_D::Frame},
    {"Angle=", &T_FRTP_D::Angle},
    LostUnless{"MirrorAbt2=", "No", "frame-mirrored"},
    LostUnless{"MirrorAbt3=", "No", "frame-mirrored"},
    {"AdvanceAxes=", &T_FRTP_D::AdvanceAxes}};

/// Advanced local axes of a frame: the plane that two of its axes span. The component of the plane
/// vector along global X plays no part.
struct T_FRAV_D {
  static constexpr Text kTable = "T_FRAV_D";
  Text Frame;
  Text LocalPlane;  // "12" or "13"; its key is cut short, unlike that of links
  Text PlOption1;   // "Coord Dir", "Two Joints", or a vector
  Text CoordDir1;
  Text CoordDir2;
  Text PlVecJt1;
  Text PlVecJt2;
  double PlVecY = 0.0;
  double PlVecZ = 0.0;
};

template <>
inline constexpr RowKey<T_FRAV_D> kRowKeys<T_FRAV_D>[] = {
    {"Frame=", &T_FRAV_D::Frame},
    {"LocalPlan=", &T_FRAV_D::LocalPlane},
    Unread{"LocalPlane="},
    {"PlOption1=", &T_FRAV_D::PlOption1},
    LostUnless{"PlCoordSys=", "GLOBAL", "coordinate-system-ignored"},
    {"CoordDir1=", &T_FRAV_D::CoordDir1},
    {"CoordDir2=", &T_FRAV_D::CoordDir2},
    {"PlVecJt1=", &T_FRAV_D::PlVecJt1},
    {"PlVecJt2=", &T_FRAV_D::PlVecJt2},
    Unread{"PlVecX="},
    {"PlVecY=", &T_FRAV_D::PlVecY},
    {"PlVecZ=", &T_FRAV_D::PlVecZ}};

// ---- Target records ----

/// A beam element. A position without a record prints these values.
struct T_NGT_FRAM_D {
  Text Label = "1";
  Text Type;
  std::int32_t iMAT = 1;
  std::int32_t iPRO = 1;
  double Angle = 0.0;  // degrees
  Text NodeI;          // joint labels, turned into numbers when written
  Text NodeJ;
};

// ---- Conversion ----

/// Frames into beam elements, with their section, material and angle.
bool ConvertFrames(Conversion& run);

/// What an advanced axes row says of the plane of a frame's or link's local axes.
struct AdvancedPlane {
  Text LocalPlane;
  Text PlOption1;
  Text CoordDir1;
  Text CoordDir2;
  Text PlVecJt1;
  Text PlVecJt2;
  double PlVecY;
  double PlVecZ;
};

/// The angle, in degrees, corrected for the plane that the advanced axes ask for.
double AngleInPlane(CModel& model, const AdvancedPlane& plane, double angle);

/// The angle of a frame or link by its rows of typical and of advanced axes, which name it in these
/// fields; 0 without a typical row.
template <class Typical, auto TypicalLabel, class Advanced, auto AdvancedLabel>
double AngleByAxes(CModel& model, Text label) {
  const auto typical = model.Rows<Typical>().template FirstWith<TypicalLabel>(label);
  if (!typical) {
    return 0.0;
  }
  const double angle = typical->Value.Angle;
  const auto advanced = model.Rows<Advanced>().template FirstWith<AdvancedLabel>(label);
  if (!typical->Value.AdvanceAxes || !advanced) {
    return angle;
  }
  const Advanced& axes = advanced->Value;
  return AngleInPlane(model,
                      {axes.LocalPlane, axes.PlOption1, axes.CoordDir1, axes.CoordDir2,
                       axes.PlVecJt1, axes.PlVecJt2, axes.PlVecY, axes.PlVecZ},
                      angle);
}

// ---- Output ----

/// Writes the frame lines of *ELEMENT.
void WriteFrameElements(Conversion& run, LineWriter& out);

// ---- Account ----

/// The connectivity row of a frame. Tables list frames in one order as a rule, so that of the key
/// of the row that asks is looked at first.
std::optional<CKeyedTable<T_CNFR_D>::Entry> FrameWith(CModel& model, Text frame,
                                                      std::uint32_t likelyKey);

/// Why a line of the output that names this frame does not name an element by it; nothing when it
/// does. Asked when *ELEMENT is written.
std::optional<Why> WhyNoElement(Conversion& run, Text frame, std::uint32_t likelyKey);

/// Notes what becomes of frames, their sections and their axes.
void CloseFrames(Conversion& run);

}  // namespace s2k2ngt
