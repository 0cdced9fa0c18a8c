#pragma once

#include "common/text.h"
#include "source/model.h"
#include "source/row_grammar.h"
#include "target/conversion.h"

#include <array>
#include <cstdint>
#include <optional>

namespace s2k2ngt {

// ---- Source rows ----

/// A frame section. The number of a section is its row's key.
struct T_FRSG_D {
  static constexpr Text kTable = "T_FRSG_D";
  Text SectionName;
  Text Material;
  Text Shape;
  double t3 = 0.0;
  double t2 = 0.0;
  double tf = 0.0;
  double tw = 0.0;
  double t2b = 0.0;
  double tfb = 0.0;
  double dis = 0.0;
  double Area = 0.0;
  double AS2 = 0.0;
  double AS3 = 0.0;
  double TorsConst = 0.0;
  double I33 = 0.0;
  double I22 = 0.0;
  // Modifiers; a row that does not state one scales its property to nothing.
  double AMod = 0.0;
  double A2Mod = 0.0;
  double A3Mod = 0.0;
  double JMod = 0.0;
  double I2Mod = 0.0;
  double I3Mod = 0.0;
  double WMod = 0.0;
  // Whether the row states the factors, as one that it does not state is written as 0.
  bool StatesAMod = false;
  bool StatesA2Mod = false;
  bool StatesA3Mod = false;
  bool StatesJMod = false;
  bool StatesI2Mod = false;
  bool StatesI3Mod = false;
  bool StatesWMod = false;
};

/// The Shape of a section that is put together of others.
inline constexpr Text kNonprismatic = "Nonprismatic";

template <>
inline constexpr RowKey<T_FRSG_D> kRowKeys<T_FRSG_D>[] = {
    {"SectionName=", &T_FRSG_D::SectionName},
    {"Material=", &T_FRSG_D::Material},
    {"Shape=", &T_FRSG_D::Shape},
    {"t3=", &T_FRSG_D::t3},
    {"t2=", &T_FRSG_D::t2},
    {"tf=", &T_FRSG_D::tf},
    {"tw=", &T_FRSG_D::tw},
    {"t2b=", &T_FRSG_D::t2b},
    {"tfb=", &T_FRSG_D::tfb},
    {"dis=", &T_FRSG_D::dis},
    {"Area=", &T_FRSG_D::Area},
    {"AS2=", &T_FRSG_D::AS2},
    {"AS3=", &T_FRSG_D::AS3},
    {"TorsConst=", &T_FRSG_D::TorsConst},
    {"I33=", &T_FRSG_D::I33},
    {"I22=", &T_FRSG_D::I22},
    Unread{"S33="},
    Unread{"S22="},
    Unread{"Z33="},
    Unread{"Z22="},
    Unread{"R33="},
    Unread{"R22="},
    Unread{"Color="},
    Unread{"TotalWt="},
    Unread{"TotalMass="},
    {"AMod=", &T_FRSG_D::AMod},
    States{"AMod=", &T_FRSG_D::StatesAMod},
    {"A2Mod=", &T_FRSG_D::A2Mod},
    States{"A2Mod=", &T_FRSG_D::StatesA2Mod},
    {"A3Mod=", &T_FRSG_D::A3Mod},
    States{"A3Mod=", &T_FRSG_D::StatesA3Mod},
    {"JMod=", &T_FRSG_D::JMod},
    States{"JMod=", &T_FRSG_D::StatesJMod},
    {"I2Mod=", &T_FRSG_D::I2Mod},
    States{"I2Mod=", &T_FRSG_D::StatesI2Mod},
    {"I3Mod=", &T_FRSG_D::I3Mod},
    States{"I3Mod=", &T_FRSG_D::StatesI3Mod},
    LostUnless{"MMod=", "1", "section-mass-modifier"},
    {"WMod=", &T_FRSG_D::WMod},
    States{"WMod=", &T_FRSG_D::StatesWMod},
    Unread{"SectInFile="},
    Unread{"FileName="}};

/// A segment of a nonprismatic section. Segment lengths have no place in the output.
struct T_FSNP_D {
  static constexpr Text kTable = "T_FSNP_D";
  Text SectionName;
  std::int32_t NumSegments = 0;
  std::int32_t SegmentNum = 0;  // from 1
  Text StartSect;
  Text EndSect;
  Text EI33Var;  // "Linear", "Prabolic" or "Cubic", the second spelt as the source program does
  Text EI22Var;
};

template <>
inline constexpr RowKey<T_FSNP_D> kRowKeys<T_FSNP_D>[] = {{"SectionName=", &T_FSNP_D::SectionName},
                                                          {"NumSegments=", &T_FSNP_D::NumSegments},
                                                          {"SegmentNum=", &T_FSNP_D::SegmentNum},
                                                          {"StartSect=", &T_FSNP_D::StartSect},
                                                          {"EndSect=", &T_FSNP_D::EndSect},
                                                          Unread{"LengthType="},
                                                          Unread{"AbsLength="},
                                                          Unread{"VarLength="},
                                                          {"EI33Var=", &T_FSNP_D::EI33Var},
                                                          {"EI22Var=", &T_FSNP_D::EI22Var}};

/// The sections at the two ends of a nonprismatic one, as far as its segments name them.
struct NonprismaticEnds {
  std::optional<Text> Start;
  std::optional<Text> End;
};

/// The ends by the segments' numbers, whether or not the sections are there. Of several segments of
/// a number the last of the walk counts.
NonprismaticEnds EndsOfNonprismatic(CModel& model, Text sectionName);

/// The section of this name that stands at an end of a nonprismatic one, or null. Of several the
/// last of the walk counts.
const T_FRSG_D* SectionAtEnd(CModel& model, Text sectionName);

// ---- Target records ----

/// A section at one end of a beam. The target's axes y and z are the source's axes 3 and 2.
struct SectionEnd {
  std::array<double, 6> D{};  // D1 to D6
  double AREA = 0.0;
  double ASy = 0.0;
  double ASz = 0.0;
  double Ixx = 0.0;
  double Iyy = 0.0;
  double Izz = 0.0;
};

enum class SectionType { DbUser, Value, Tapered };

/// A frame section. A number without a section prints these values.
struct T_NGT_SECT_D {
  SectionType TYPE = SectionType::DbUser;
  Text SNAME;
  Text OFFSET = "CC";  // where the beam's axis runs in the section
  Text SHAPE = "SB";
  SectionEnd I;
  SectionEnd J;
  std::int32_t iyVAR = 1;  // 1 linear, 2 parabolic, 3 cubic
  std::int32_t izVAR = 1;
  Text STYPE = "USER";
};

// ---- Conversion ----

/// The target's code for where the beam's axis runs in a section, by the source's cardinal point.
Text OffsetOfCardinalPoint(Text cardinalPoint, Text otherwise);

bool ConvertSections(Conversion& run);

// ---- Output ----

/// Writes *SECTION.
bool WriteSections(Conversion& run, LineWriter& out);

// ---- Account ----

/// Notes what becomes of sections, their segments, and of the cardinal points of frames.
void CloseSections(Conversion& run);

}  // namespace s2k2ngt
