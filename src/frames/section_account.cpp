#include "account/shared_names.h"
#include "frames/elements.h"
#include "frames/end_conditions.h"
#include "frames/sections.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace s2k2ngt {

// ---- Account ----

namespace {

/// Notes what goes wrong where two sections become one of two ends.
void NoteEnds(Conversion& run, std::uint32_t key, const T_FRSG_D& source,
              const T_NGT_SECT_D& section) {
  if (section.TYPE == SectionType::DbUser) {
    run.Accounts.Note<T_FRSG_D>(key, "nonprismatic-without-segments");
    return;
  }
  if (section.SHAPE.empty()) {
    run.Accounts.Note<T_FRSG_D>(key, "nonprismatic-shape-unknown");
  } else if (section.SHAPE == "2L") {
    run.Accounts.Note<T_FRSG_D>(key, "nonprismatic-double-angle");
  }
  const NonprismaticEnds ends = EndsOfNonprismatic(run.Source, source.SectionName);
  const auto isGeneral = [&](const std::optional<Text>& end) {
    const T_FRSG_D* const found = end ? SectionAtEnd(run.Source, *end) : nullptr;
    return found != nullptr && found->Shape == "General";
  };
  if (isGeneral(ends.Start) || isGeneral(ends.End)) {
    run.Accounts.Note<T_FRSG_D>(key, "nonprismatic-of-general");
  }
}

/// Notes modifiers for which the target has no place.
void NoteModifiers(Conversion& run, std::uint32_t key, const T_FRSG_D& source) {
  const std::array<double, 7> modifiers = {source.AMod,  source.A2Mod, source.A3Mod, source.JMod,
                                           source.I3Mod, source.I2Mod, source.WMod};
  // One that is not stated is 0.
  const bool hasAny = std::ranges::any_of(
      modifiers, [](double modifier) { return modifier != 0.0 && modifier != 1.0; });
  if (source.Shape == kNonprismatic && hasAny) {
    run.Accounts.Note<T_FRSG_D>(key, "nonprismatic-modifiers");
  }
}

void NoteSections(Conversion& run) {
  const auto& sections = run.Target.Table<T_NGT_SECT_D>();
  for (const auto [key, source] : run.Source.Rows<T_FRSG_D>().Entries()) {
    NoteModifiers(run, key, source);
    const T_NGT_SECT_D* const section = sections.Find(key);
    if (section == nullptr) {
      continue;
    }
    if (key > sections.Count()) {
      run.Accounts.Note<T_FRSG_D>(key, "section-behind-dropped-ones");
    }
    if (source.Shape == kNonprismatic) {
      NoteEnds(run, key, source, *section);
    }
  }
}

void NoteSegmentsOfNoSection(Conversion& run) {
  const auto& sections = run.Source.Rows<T_FRSG_D>();
  for (const auto [key, segment] : run.Source.Rows<T_FSNP_D>().Entries()) {
    const auto positions = sections.AllWith<&T_FRSG_D::SectionName>(segment.SectionName);
    const bool hasSection = std::ranges::any_of(positions, [&](std::uint32_t position) {
      return sections.AtWalk(position).Value.Shape == kNonprismatic;
    });
    if (!hasSection) {
      run.Accounts.Note<T_FSNP_D>(key, "segment-without-section");
    }
  }
}

/// The offset code that the section of a frame's element has; nothing when there is no such
/// section.
std::optional<Text> OffsetWritten(Conversion& run, std::uint32_t frameKey) {
  const std::int32_t iPRO = run.Target.Table<T_NGT_FRAM_D>().Find(frameKey)->iPRO;
  const T_NGT_SECT_D* const section =
      run.Target.Table<T_NGT_SECT_D>().Find(static_cast<std::uint32_t>(iPRO));
  return section == nullptr ? std::nullopt : std::optional(section->OFFSET);
}

/// The offset code of a frame that has a cardinal point of its own, or none.
Text OffsetOfFrame(Text cardinalPoint) {
  return OffsetOfCardinalPoint(cardinalPoint, T_NGT_SECT_D{}.OFFSET);
}

void NoteCardinalPoint(Conversion& run, std::uint32_t key, const T_FRIP_D& row) {
  if (row.CardinalPt.find("11") != Text::npos) {
    run.Accounts.Note<T_FRIP_D>(key, "cardinal-point-shear-center");
  } else if (!row.CardinalPt.empty() && OffsetOfCardinalPoint(row.CardinalPt, {}).empty()) {
    run.Accounts.Note<T_FRIP_D>(key, "cardinal-point-unknown");
  }
  const auto frame = FrameWith(run.Source, row.Frame, key);
  const std::optional<Text> written = frame ? OffsetWritten(run, frame->Key) : std::nullopt;
  if (written && *written != OffsetOfFrame(row.CardinalPt)) {
    run.Accounts.Note<T_FRIP_D>(key, "cardinal-point-of-another-frame");
  }
}

/// Notes frames that have no insertion point of their own, but one with their section.
void NoteCardinalPointTaken(Conversion& run) {
  const auto& points = run.Source.Rows<T_FRIP_D>();
  for (const auto [key, frame] : run.Source.Rows<T_CNFR_D>().Entries()) {
    const std::optional<Text> written = OffsetWritten(run, key);
    if (written && *written != OffsetOfFrame({}) &&
        !points.FirstWith<&T_FRIP_D::Frame>(frame.Frame)) {
      run.Accounts.Note<T_CNFR_D>(key, "cardinal-point-of-another-frame");
    }
  }
}

}  // namespace

void CloseSections(Conversion& run) {
  NoteSharedNames<&T_FRSG_D::SectionName, T_FRSG_D>(run);
  NoteSections(run);
  NoteSegmentsOfNoSection(run);
  const auto& points = run.Source.Rows<T_FRIP_D>();
  if (points.Empty()) {
    return;
  }
  for (const auto [key, row] : points.Entries()) {
    NoteCardinalPoint(run, key, row);
  }
  NoteCardinalPointTaken(run);
}

}  // namespace s2k2ngt
