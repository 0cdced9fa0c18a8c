#include "frames/sections.h"

#include "common/worked_out.h"
#include "frames/elements.h"
#include "frames/end_conditions.h"
#include "frames/modifiers.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace s2k2ngt {

// ---- Source rows ----

namespace {

bool IsFirst(const T_FSNP_D& segment) { return segment.SegmentNum == 1; }

/// So also a segment whose row states no numbers.
bool IsLast(const T_FSNP_D& segment) { return segment.NumSegments == segment.SegmentNum; }

}  // namespace

NonprismaticEnds EndsOfNonprismatic(CModel& model, Text sectionName) {
  NonprismaticEnds ends;
  const auto& segments = model.Rows<T_FSNP_D>();
  for (const std::uint32_t position : segments.AllWith<&T_FSNP_D::SectionName>(sectionName)) {
    const T_FSNP_D& segment = segments.AtWalk(position).Value;
    if (IsFirst(segment)) {
      ends.Start = segment.StartSect;
    }
    if (IsLast(segment)) {
      ends.End = segment.EndSect;
    }
  }
  return ends;
}

const T_FRSG_D* SectionAtEnd(CModel& model, Text sectionName) {
  const auto& sections = model.Rows<T_FRSG_D>();
  const auto positions = sections.AllWith<&T_FRSG_D::SectionName>(sectionName);
  return positions.empty() ? nullptr : &sections.AtWalk(positions.back()).Value;
}

// ---- Conversion ----

namespace {

/// The target's code of a source shape; empty for a shape that it does not have.
Text ShapeCode(Text shape) {
  constexpr std::array<std::pair<Text, Text>, 10> kCodes = {{{"I/Wide Flange", "H"},
                                                             {"Channel", "C"},
                                                             {"Tee", "T"},
                                                             {"Angle", "L"},
                                                             {"Double Angle", "2L"},
                                                             {"Box/Tube", "B"},
                                                             {"Pipe", "P"},
                                                             {"Rectangular", "SB"},
                                                             {"Circle", "SR"},
                                                             {"General", "SB"}}};
  const auto* const code = std::ranges::find(kCodes, shape, &std::pair<Text, Text>::first);
  return code == kCodes.end() ? Text() : code->second;
}

std::array<double, 6> PrismaticDimensions(Text shapeCode, const T_FRSG_D& section) {
  if (shapeCode == "P") {
    return {section.t3, section.tw};
  }
  if (shapeCode == "2L" || shapeCode == "2C") {
    // The target takes the width of one of the two, the source that of both and their distance.
    const double width = (section.t2 - section.dis) * 0.5;
    return {section.t3, width, section.tw, section.tf, section.dis, 0.0};
  }
  return {section.t3, section.t2, section.tw, section.tf, section.t2b, section.tfb};
}

/// Dimensions at an end of a tapered section. Meant so: double angles are not taken apart here, as
/// they are for a section of one shape.
std::array<double, 6> TaperedDimensions(Text shapeCode, const T_FRSG_D& section) {
  if (shapeCode == "P") {
    return {section.t3, section.tw};
  }
  return {section.t3, section.t2, section.tw, section.tf, section.t2b, section.tfb};
}

SectionEnd EndWith(const std::array<double, 6>& dimensions, const T_FRSG_D& section) {
  return {.D = dimensions,
          .AREA = section.Area,
          .ASy = section.AS2,
          .ASz = section.AS3,
          .Ixx = section.TorsConst,
          .Iyy = section.I33,
          .Izz = section.I22};
}

/// 1, 2 or 3 for the variation of a stiffness along a segment; 0 for other words.
std::int32_t VariationOf(Text word) {
  if (word == "Linear") {
    return 1;
  }
  if (word == "Prabolic") {
    return 2;
  }
  return word == "Cubic" ? 3 : 0;
}

/// Other words keep what was there.
void SetVariation(Text word, std::int32_t& variation) {
  const std::int32_t known = VariationOf(word);
  variation = known == 0 ? variation : known;
}

/// One end of a nonprismatic section, as far as the walk over its segments has found it.
struct TaperedEnd {
  Text Shape;
  bool Found = false;
  std::uint32_t Segment = 0;  // the key of that which has it

  /// Takes the end from the section of this name.
  bool Take(CModel& model, Text sectionName, std::uint32_t segment, SectionEnd& end) {
    const T_FRSG_D* const section = SectionAtEnd(model, sectionName);
    if (section == nullptr) {
      return false;
    }
    Shape = ShapeCode(section->Shape);
    end = EndWith(TaperedDimensions(Shape, *section), *section);
    Found = true;
    Segment = segment;
    return true;
  }
};

/// Notes what of a segment is not in the section that is made of it.
void NoteSegment(Conversion& run, std::uint32_t key, const T_FSNP_D& segment,
                 const TaperedEnd& start, const TaperedEnd& end) {
  const bool isStart = key == start.Segment;
  const bool isEnd = key == end.Segment;
  if (!isStart && !isEnd) {
    run.Accounts.Note<T_FSNP_D>(key, "segment-inside");
  } else if (!isStart || !isEnd) {
    run.Accounts.Note<T_FSNP_D>(key, "segment-of-several");
  }
  const auto isUnknown = [](Text word) { return !word.empty() && VariationOf(word) == 0; };
  if (isStart && (isUnknown(segment.EI33Var) || isUnknown(segment.EI22Var))) {
    run.Accounts.Note<T_FSNP_D>(key, "segment-variation-unknown");
  }
}

/// Notes what becomes of the segments of a section, which is written or not.
void NoteSegments(Conversion& run, Text name, bool isWritten, const TaperedEnd& start,
                  const TaperedEnd& end) {
  const auto& segments = run.Source.Rows<T_FSNP_D>();
  for (const std::uint32_t position : segments.AllWith<&T_FSNP_D::SectionName>(name)) {
    const auto [key, segment] = segments.AtWalk(position);
    if (isWritten) {
      NoteSegment(run, key, segment, start, end);
    } else {
      run.Accounts.Note<T_FSNP_D>(key, "nonprismatic-ends-unlike");
    }
  }
}

/// The section from its first segment's start and its last segment's end; what lies between is
/// lost. Nothing when the section is dropped.
std::optional<T_NGT_SECT_D> ConvertTapered(Conversion& run, Text name) {
  T_NGT_SECT_D section;
  const auto& segments = run.Source.Rows<T_FSNP_D>();
  if (segments.Empty()) {
    return section;
  }
  TaperedEnd start;
  TaperedEnd end;
  for (const std::uint32_t position : segments.AllWith<&T_FSNP_D::SectionName>(name)) {
    const auto [key, segment] = segments.AtWalk(position);
    section.TYPE = SectionType::Tapered;
    if (IsFirst(segment) && start.Take(run.Source, segment.StartSect, key, section.I)) {
      SetVariation(segment.EI33Var, section.iyVAR);
      SetVariation(segment.EI22Var, section.izVAR);
    }
    if (IsLast(segment)) {
      end.Take(run.Source, segment.EndSect, key, section.J);
    }
  }
  if (run.Accounts.IsKept()) {
    const bool isWritten = start.Found && end.Found && start.Shape == end.Shape;
    NoteSegments(run, name, isWritten, start, end);
  }
  if (start.Shape != end.Shape) {
    // No message, though an end that is missing leads here too when the start has a shape.
    return std::nullopt;
  }
  if (!start.Found) {
    run.Target.bSectionStartMissing = true;
    return std::nullopt;
  }
  if (!end.Found) {
    run.Target.bSectionEndMissing = true;
    return std::nullopt;
  }
  section.SHAPE = start.Shape;
  return section;
}

/// True when a nonprismatic section of the file has several segments. Each such section looks at
/// the segments of all of them.
bool HasMultipleSegments(CModel& model) {
  return std::ranges::any_of(model.Rows<T_FSNP_D>().Records(),
                             [](const T_FSNP_D& segment) { return segment.NumSegments > 1; });
}

std::array<double, 7> ModifiersOf(const T_FRSG_D& section) {
  return {section.AMod,  section.A2Mod, section.A3Mod, section.JMod,
          section.I3Mod, section.I2Mod, section.WMod};
}

bool HasScaleFactors(const T_FRSG_D& section) {
  return std::ranges::any_of(ModifiersOf(section), [](double modifier) { return modifier != 1.0; });
}

bool StatesAllModifiers(const T_FRSG_D& section) {
  return section.StatesAMod && section.StatesA2Mod && section.StatesA3Mod && section.StatesJMod &&
         section.StatesI3Mod && section.StatesI2Mod && section.StatesWMod;
}

/// Nothing when the target has no such shape, and the section is dropped.
std::optional<T_NGT_SECT_D> ConvertPrismatic(Conversion& run, const T_FRSG_D& source) {
  T_NGT_SECT_D section;
  section.TYPE = SectionType::Value;
  section.SHAPE = ShapeCode(source.Shape);
  if (section.SHAPE.empty()) {
    run.Warnings.bSectionNotTranslated = true;
    return std::nullopt;
  }
  section.I = EndWith(PrismaticDimensions(section.SHAPE, source), source);
  return section;
}

/// The factors of the sections that are given by value, in the order of a walk over the sections.
void ConvertScaleFactors(Conversion& run) {
  for (const auto [key, source] : run.Source.Rows<T_FRSG_D>().Walk()) {
    const bool isDropped = ShapeCode(source.Shape).empty();  // so are nonprismatic ones
    if (isDropped || !HasScaleFactors(source)) {
      continue;
    }
    // The bending factors cross over as the moments of inertia do.
    if (!StatesAllModifiers(source)) {
      run.Accounts.Note<T_FRSG_D>(key, "section-modifiers-missing");
    }
    run.Target.Table<T_NGT_FRPM_D>().Append({.iSEC = static_cast<std::int32_t>(key),
                                             .AREA_SF = source.AMod,
                                             .ASY_SF = source.A2Mod,
                                             .ASZ_SF = source.A3Mod,
                                             .IXX_SF = source.JMod,
                                             .IYY_SF = source.I3Mod,
                                             .IZZ_SF = source.I2Mod,
                                             .WGT_SF = source.WMod});
  }
}

}  // namespace

Text OffsetOfCardinalPoint(Text cardinalPoint, Text otherwise) {
  // The first text contained decides: "11 (Shear Center)" holds "1 (" and gives "RB". This is
  // meant.
  constexpr std::array<std::pair<Text, Text>, 11> kOffsets = {{{"1 (", "RB"},
                                                               {"2", "CB"},
                                                               {"3", "LB"},
                                                               {"4", "RC"},
                                                               {"5", "CC"},
                                                               {"6", "LC"},
                                                               {"7", "RT"},
                                                               {"8", "CT"},
                                                               {"9", "LT"},
                                                               {"10", "CC"},
                                                               {"11", "CC"}}};
  for (const auto& [contained, offset] : kOffsets) {
    if (cardinalPoint.find(contained) != Text::npos) {
      return offset;
    }
  }
  return otherwise;
}

namespace {

/// The offset code of a section: by the insertion point of the first frame that uses it. A section
/// that no frame uses takes that of the last frame of the walk.
Text OffsetOfSection(CModel& model, Text sectionName, Text otherwise) {
  const auto assignment = model.Rows<T_FRSC_D>().FirstOrLastWith<&T_FRSC_D::AnalSect>(sectionName);
  if (!assignment) {
    return otherwise;
  }
  const auto insertion =
      model.Rows<T_FRIP_D>().FirstWith<&T_FRIP_D::Frame>(assignment->Value.Frame);
  return insertion ? OffsetOfCardinalPoint(insertion->Value.CardinalPt, otherwise) : otherwise;
}

}  // namespace

bool ConvertSections(Conversion& run) {
  const bool hasMultipleSegments = HasMultipleSegments(run.Source);
  WorkedOut<Text, std::uint32_t> taperedByName;  // the key of the first, 0 where it is dropped
  const auto& sources = run.Source.Rows<T_FRSG_D>();
  auto& sections = run.Target.Table<T_NGT_SECT_D>();
  sections.Reserve(sources.Count());
  for (const auto [key, source] : sources.Entries()) {
    std::optional<T_NGT_SECT_D> section;
    if (source.Shape == kNonprismatic) {
      run.Target.bSectionMultiSegment = hasMultipleSegments;
      const auto [first, isNew] = taperedByName.Meet(source.SectionName);
      if (isNew) {
        section = ConvertTapered(run, source.SectionName);
        first = section ? key : 0;
      } else if (first != 0) {
        section = *sections.Find(first);
      }
    } else {
      section = ConvertPrismatic(run, source);
    }
    if (section) {
      section->SNAME = source.SectionName;
      section->OFFSET = OffsetOfSection(run.Source, source.SectionName, section->OFFSET);
      sections.Insert(key, *section);
    } else {
      run.Accounts.Note<T_FRSG_D>(key, source.Shape == kNonprismatic
                                           ? Why("nonprismatic-ends-unlike")
                                           : Why("section-shape-unknown"));
    }
  }
  if (std::ranges::any_of(sources.Records(), HasScaleFactors)) {
    ConvertScaleFactors(run);
  }
  return true;
}

// ---- Output ----

namespace {

/// Lines 2 and 3 of a section given by value.
void WriteProperties(const SectionEnd& end, LineWriter& out) {
  out.WriteLine("\t\t%g, %5g, %5g, %5g, %5g, %5g\n", end.AREA, end.ASy, end.ASz, end.Ixx, end.Iyy,
                end.Izz);
  // CyP, CyM, CzP, CzM, QyB, QzB, PERI_OUT, PERI_IN, Cy, Cz: the source states none of them.
  out.WriteLine("\t\t0,     0,     0,     0,     0,     0,     0,     0,     0,     0\n");
}

void WriteTaperedData(const T_NGT_SECT_D& section, LineWriter& out) {
  const auto& atI = section.I.D;
  const auto& atJ = section.J.D;
  if (section.STYPE == "USER") {
    out.WriteLine("\t\t%5g,%5g,%5g,%5g,%5g,%5g,%5g,%5g,%5g,%5g,%5g,%5g\n", atI[0], atI[1], atI[2],
                  atI[3], atI[4], atI[5], atJ[0], atJ[1], atJ[2], atJ[3], atJ[4], atJ[5]);
  } else if (section.STYPE == "VALUE") {
    for (const SectionEnd* end : {&section.I, &section.J}) {
      const auto& dimensions = end->D;
      out.WriteLine("\t\t%5g,%5g,%5g,%5g,%5g,%5g\n", dimensions[0], dimensions[1], dimensions[2],
                    dimensions[3], dimensions[4], dimensions[5]);
      WriteProperties(*end, out);
    }
  }
}

void WriteSection(std::int32_t iSEC, const T_NGT_SECT_D& section, LineWriter& out) {
  const auto& dimensions = section.I.D;
  switch (section.TYPE) {
    case SectionType::DbUser:
      out.WriteLine("\t%d, %5s, %5s, %5s, %5s, 2, %5g, %5g, %5g, %5g, %5g, %5g\n", iSEC, "DBUSER",
                    section.SNAME, section.OFFSET, section.SHAPE, dimensions[0], dimensions[1],
                    dimensions[2], dimensions[3], dimensions[4], dimensions[5]);
      break;
    case SectionType::Value:
      out.WriteLine("\t%d, %5s, %5s, %5s, %5s, BUILT, %5g, %5g, %5g, %5g, %5g, %5g\n", iSEC,
                    "VALUE", section.SNAME, section.OFFSET, section.SHAPE, dimensions[0],
                    dimensions[1], dimensions[2], dimensions[3], dimensions[4], dimensions[5]);
      WriteProperties(section.I, out);
      break;
    case SectionType::Tapered:
      out.WriteLine("\t%d, %5s, %5s, %5s, %5s, %5d, %5d, %5s\n", iSEC, "TAPERED", section.SNAME,
                    section.OFFSET, section.SHAPE, section.iyVAR, section.izVAR, section.STYPE);
      WriteTaperedData(section, out);
      break;
  }
}

void ShowLosses(const Conversion& run) {
  if (run.Warnings.bSectionNotTranslated) {
    run.Shown.Show("IDS_S2KV8_SECT_Not_Trans");
  }
  if (run.Target.bSectionMultiSegment) {
    run.Shown.Show("IDS_S2KV8_SECT_TAPP_Not_Convert");
  }
  if (run.Target.bSectionStartMissing) {
    run.Shown.Show("IDS_S2KV8_SECT_SSEC_Not_Define");
  }
  if (run.Target.bSectionEndMissing) {
    run.Shown.Show("IDS_S2KV8_SECT_ESEC_Not_Define");
  }
}

}  // namespace

bool WriteSections(Conversion& run, LineWriter& out) {
  const auto& sections = run.Target.Table<T_NGT_SECT_D>();
  if (sections.Empty()) {
    return true;
  }
  ShowLosses(run);
  out.WriteLine("*SECTION    ; Section\n");
  out.WriteLine("\n");
  out.WriteLine(
      "; iSEC, TYPE, SNAME, OFFSET, SHAPE, [DATA] {, CCSHAPE}                     ; DB/USER\n");
  out.WriteLine(
      "; iSEC, TYPE, SNAME, OFFSET, SHAPE, BLT, D1, D2, D3, D4, D5, D6            ; 1st line - "
      "VALUE\n");
  out.WriteLine(
      ";       AREA, ASy, ASz, Ixx, Iyy, Izz                                      ; 2nd line\n");
  out.WriteLine(
      ";       CyP, CyM, CzP, CzM, QyB, QzB, PERI_OUT, PERI_IN, Cy, Cz            ; 3rd line\n");
  out.WriteLine(
      "; iSEC, TYPE, SNAME, OFFSET, SHAPE, iyVAR, izVAR, STYPE                    ; 1st line - "
      "TAPERED\n");
  out.WriteLine(
      ";       [DIM1], [DIM2]                                                     ; 2nd "
      "line(STYPE=USER)\n");
  out.WriteLine(
      ";       D11, D12, D13, D14, D15, D16                                       ; 2nd "
      "line(STYPE=VALUE)\n");
  out.WriteLine(
      ";       AREA1, ASy1, ASz1, Ixx1, Iyy1, Izz1                                ; 3rd "
      "line(STYPE=VALUE)\n");
  out.WriteLine(
      ";       CyP1, CyM1, CzP1, CzM1, QyB1, QzB1, PERI_OUT1, PERI_IN1, Cy1, Cz1  ; 4th "
      "line(STYPE=VALUE)\n");
  out.WriteLine(
      ";       D21, D22, D23, D24, D25, D26                                       ; 5th "
      "line(STYPE=VALUE)\n");
  out.WriteLine(
      ";       AREA2, ASy2, ASz2, Ixx2, Iyy2, Izz2                                ; 6th "
      "line(STYPE=VALUE)\n");
  out.WriteLine(
      ";       CyP2, CyM2, CzP2, CzM2, QyB2, QzB2, PERI_OUT2, PERI_IN2, Cy2, Cz2  ; 7th "
      "line(STYPE=VALUE)\n");
  out.WriteLine("; [DATA] : 1, DB, NAME or 2, D1, D2, D3, D4, D5, D6\n");
  out.WriteLine("; [DIM1], [DIM2] : D1, D2, D3, D4, D5, D6\n");
  // Numbers are counted and not looked up, and this is meant: a dropped section's number prints
  // the default section, and as many of the highest numbers as were dropped are not printed.
  const auto count = static_cast<std::uint32_t>(sections.Count());
  for (std::uint32_t key = 1; key <= count; ++key) {
    WriteSection(static_cast<std::int32_t>(key), RecordOr(sections.Find(key), T_NGT_SECT_D{}), out);
  }
  out.WriteLine("\n");
  return true;
}

}  // namespace s2k2ngt
