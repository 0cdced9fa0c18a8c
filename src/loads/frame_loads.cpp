#include "loads/frame_loads.h"

#include "common/worked_out.h"
#include "frames/elements.h"
#include "frames/initial_forces.h"
#include "frames/materials.h"
#include "frames/sections.h"
#include "loads/load_direction.h"
#include "loads/load_references.h"
#include "target/load_frame.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

namespace s2k2ngt {

// ---- Conversion ----

namespace {

/// The target's axes y and z are the source's axes 3 and 2, the former turned around.
LoadDirection LocalDirection(Text dir) {
  if (dir == "1") {
    return {"LX", "NO", 1.0};
  }
  if (dir == "2") {
    return {"LZ", "NO", 1.0};
  }
  if (dir == "3") {
    return {"LY", "NO", -1.0};
  }
  return {};
}

/// A direction that the target does not have leaves DIR and bPROJ empty.
LoadDirection DirectionOf(Text coordSys, Text dir) {
  if (coordSys == "GLOBAL") {
    return GlobalDirection(dir).value_or(LoadDirection{});
  }
  return coordSys == "Local" ? LocalDirection(dir) : LoadDirection{};
}

/// A point has no length to be projected: such directions have no like.
LoadDirection DirectionOfPoint(Text coordSys, Text dir) {
  const LoadDirection direction = DirectionOf(coordSys, dir);
  return direction.bPROJ == "YES" ? LoadDirection{} : direction;
}

constexpr Text kForce = "Force";
constexpr Text kMoment = "Moment";
constexpr Text kRelative = "RelDist";
constexpr Text kAbsolute = "AbsDist";

/// Notes that the walk over a table ends at the row of this key.
template <class Row>
void NoteEnd(Conversion& run, std::uint32_t end) {
  if (!run.Accounts.IsKept()) {
    return;
  }
  run.Accounts.Note<Row>(end, "frame-without-length");
  bool isBehind = false;
  for (const auto [key, row] : run.Source.Rows<Row>().Walk()) {
    if (isBehind) {
      run.Accounts.Note<Row>(key, "behind-frame-without-length");
    }
    isBehind = isBehind || key == end;
  }
}

/// The length by which the row's absolute distances are divided. Nothing, and noted, for a frame
/// without a length.
template <class Row>
std::optional<double> LengthToDivideBy(Conversion& run, std::uint32_t key, const Row& row) {
  const double length = ConnectivityOrLast(run.Source, row.Frame).Length;
  if (length < kTolerance) {
    run.Warnings.bElemLengthZero = true;
    NoteEnd<Row>(run, key);
    return std::nullopt;
  }
  return length;
}

/// A beam load, still without its kind, its places and its values.
template <class Row>
T_NGT_ELMB_D BeamLoad(Conversion& run, std::uint32_t key, const Row& row,
                      const LoadDirection& direction) {
  if (direction.DIR.empty()) {
    run.Accounts.Note<Row>(key, "load-direction-without-like");
  }
  return {.Element = row.Frame,
          .TYPE = {},
          .DIR = direction.DIR,
          .LoadCase = row.LoadCase,
          .bPROJ = direction.bPROJ};
}

}  // namespace

bool ConvertDistributedLoads(Conversion& run) {
  ReserveForRows<T_NGT_ELMB_D, T_FRLD_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_FRLD_D>().Walk()) {
    const LoadDirection direction = DirectionOf(row.CoordSys, row.Dir);
    T_NGT_ELMB_D load = BeamLoad(run, key, row, direction);
    if (row.Type == kForce) {
      load.TYPE = "UNILOAD";
      load.P1 = direction.Sign * row.FOverLA;
      load.P2 = direction.Sign * row.FOverLB;
    } else if (row.Type == kMoment) {
      load.TYPE = "UNIMOMENT";
      load.P1 = direction.Sign * row.MOverLA;
      load.P2 = direction.Sign * row.MOverLB;
    } else {
      run.Accounts.Note<T_FRLD_D>(key, "load-type-unknown");
    }
    if (row.DistType == kRelative) {
      if (std::abs(row.RelDistA - row.RelDistB) < 1e-6) {
        run.Accounts.Note<T_FRLD_D>(
            key, row.RelDistB == 0.0 ? Why("span-not-stated") : Why("span-of-nothing"));
        continue;  // a span of nothing; absolute distances are not tested for it
      }
      load.D1 = row.RelDistA;
      load.D2 = row.RelDistB;
    } else if (row.DistType == kAbsolute) {
      const std::optional<double> length = LengthToDivideBy(run, key, row);
      if (!length) {
        return true;
      }
      load.D1 = row.AbsDistA / *length;
      load.D2 = row.AbsDistB / *length;
    } else {
      run.Accounts.Note<T_FRLD_D>(key, "distance-type-unknown");
    }
    run.Target.Table<T_NGT_ELMB_D>().Append(load);
  }
  return true;
}

bool ConvertPointLoads(Conversion& run) {
  ReserveForRows<T_NGT_ELMB_D, T_FRLP_D>(run);
  for (const auto [key, row] : run.Source.Rows<T_FRLP_D>().Walk()) {
    const LoadDirection direction = DirectionOfPoint(row.CoordSys, row.Dir);
    T_NGT_ELMB_D load = BeamLoad(run, key, row, direction);
    if (row.Type == kForce) {
      load.TYPE = "CONLOAD";
      load.P1 = direction.Sign * row.Force;
    } else if (row.Type == kMoment) {
      load.TYPE = "CONMOMENT";
      load.P1 = direction.Sign * row.Moment;
    } else {
      run.Accounts.Note<T_FRLP_D>(key, "load-type-unknown");
    }
    if (row.DistType == kRelative) {
      load.D1 = row.RelDist;
    } else if (row.DistType == kAbsolute) {
      const std::optional<double> length = LengthToDivideBy(run, key, row);
      if (!length) {
        return true;
      }
      load.D1 = row.AbsDist / *length;
    } else {
      run.Accounts.Note<T_FRLP_D>(key, "distance-type-unknown");
    }
    run.Target.Table<T_NGT_ELMB_D>().Append(load);
  }
  return true;
}

namespace {

/// Weight per length of a section that is the same from end to end.
struct UniformWeight {
  double Value = 0.0;
  bool IsKnown = false;     // the section and its material are there
  bool IsModified = false;  // the source multiplies it by a modifier
};

/// Weight per length at both ends of a section.
struct SectionWeight {
  UniformWeight AtI;
  UniformWeight AtJ;
};

/// A section that does not state its modifier, which then is 0, has none.
bool HasWeightModifier(const T_FRSG_D& section) {
  return section.WMod != 0.0 && section.WMod != 1.0;
}

/// Looks up the weights of sections, each worked out once.
class SectionWeights {
 public:
  explicit SectionWeights(CModel& model) : m_Model(model) {}

  SectionWeight Of(Text sectionName) {
    const auto [weight, isNew] = m_Known.Meet(sectionName);
    if (isNew) {
      weight = Compute(sectionName);
    }
    return weight;
  }

 private:
  SectionWeight Compute(Text sectionName) const {
    const auto section = m_Model.Rows<T_FRSG_D>().FirstWith<&T_FRSG_D::SectionName>(sectionName);
    if (!section) {
      return {};
    }
    if (section->Value.Shape != kNonprismatic) {
      const UniformWeight weight = WeightOf(section->Value);
      return {weight, weight};
    }
    const NonprismaticEnds ends = EndsOfNonprismatic(m_Model, sectionName);
    SectionWeight weight{ends.Start ? WeightOf(*ends.Start) : UniformWeight{},
                         ends.End ? WeightOf(*ends.End) : UniformWeight{}};
    weight.AtI.IsModified = weight.AtI.IsModified || HasWeightModifier(section->Value);
    return weight;
  }

  UniformWeight WeightOf(Text sectionName) const {
    const auto section = m_Model.Rows<T_FRSG_D>().FirstWith<&T_FRSG_D::SectionName>(sectionName);
    return section ? WeightOf(section->Value) : UniformWeight{};
  }

  UniformWeight WeightOf(const T_FRSG_D& section) const {
    const auto material = m_Model.Rows<T_MTGN_D>().FirstWith<&T_MTGN_D::Material>(section.Material);
    if (!material) {
      return {};
    }
    return {.Value = section.Area * material->Value.UnitWeight,
            .IsKnown = true,
            .IsModified = HasWeightModifier(section)};
  }

  CModel& m_Model;
  WorkedOut<Text, SectionWeight> m_Known;
};

/// Notes what the weights of its section do to a gravity load.
void NoteWeight(Conversion& run, std::uint32_t key, const SectionWeight& weight) {
  if (!weight.AtI.IsKnown || !weight.AtJ.IsKnown) {
    run.Accounts.Note<T_FRLG_D>(key, "frame-weight-unknown");
  }
  if (weight.AtI.IsModified || weight.AtJ.IsModified) {
    run.Accounts.Note<T_FRLG_D>(key, "section-weight-modified");
  }
}

}  // namespace

bool ConvertFrameGravity(Conversion& run) {
  SectionWeights weights(run.Source);
  for (const auto [key, row] : run.Source.Rows<T_FRLG_D>().Walk()) {
    const std::optional<Text> section = SectionNameOf(run.Source, row.Frame);
    if (!section) {
      run.Accounts.Note<T_FRLG_D>(key, HasFrame(run.Source, row.Frame)
                                           ? Why("frame-without-section")
                                           : Why("frame-unknown"));
      continue;
    }
    const SectionWeight weight = weights.Of(*section);
    NoteWeight(run, key, weight);
    if (!row.CoordSys.empty() && row.CoordSys != "GLOBAL") {
      run.Accounts.Note<T_FRLG_D>(key, "coordinate-system-ignored");
    }
    const std::array<std::pair<Text, double>, 3> axes = {
        {{"GX", row.MultiplierX}, {"GY", row.MultiplierY}, {"GZ", row.MultiplierZ}}};
    for (const auto& [direction, multiplier] : axes) {
      if (!IsAboveTolerance(multiplier)) {
        continue;
      }
      // The multiplier keeps its sign: it says itself which way the weight pulls.
      run.Target.Table<T_NGT_ELMB_D>().Append({.Element = row.Frame,
                                               .TYPE = "UNILOAD",
                                               .DIR = direction,
                                               .LoadCase = row.LoadCase,
                                               .bPROJ = "NO",
                                               .D1 = 0.0,
                                               .P1 = multiplier * weight.AtI.Value,
                                               .D2 = 1.0,
                                               .P2 = multiplier * weight.AtJ.Value});
    }
  }
  return true;
}

// ---- Output ----

void WriteBeamLoads(Conversion& run, Text loadCase, LineWriter& out) {
  ElementReferences elements(run.Elements);
  WriteLoadsByKey<&T_NGT_ELMB_D::LoadCase>(
      out, loadCase,
      "*BEAMLOAD    ; Element Beam Loads\n"
      "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n",
      run.Target.Table<T_NGT_ELMB_D>(), [&](const T_NGT_ELMB_D& load) {
        constexpr double kUnused = 0.0;
        out.WriteLine("\t%d, %5s, %5s, %5s, %5s, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g,\n",
                      elements.NumberOf(load.Element, kFrameFamily), "BEAM", load.TYPE, load.DIR,
                      load.bPROJ, load.D1, load.P1, load.D2, load.P2, kUnused, kUnused, kUnused,
                      kUnused);
      });
}

// ---- Account ----

namespace {

/// Notes a row of a load that is not written, or for a frame that is not there, and tells of the
/// latter.
template <class Row>
bool NoteReferences(Conversion& run, WrittenLoads& written, std::uint32_t key, const Row& row) {
  if (!written.HaveOrNote<Row>(run.Accounts, key, row.LoadCase)) {
    return false;
  }
  const std::optional<Why> why = WhyNotElement(run, row.Frame, kFrameFamily);
  if (why) {
    run.Accounts.Note<Row>(key, *why);
  }
  return why.has_value();
}

template <class Row>
void CloseLoadsInPlaces(Conversion& run) {
  WrittenLoads written(run.Target);
  for (const auto [key, row] : run.Source.Rows<Row>().Entries()) {
    const bool isOfUnknown = NoteReferences(run, written, key, row);
    if (isOfUnknown && row.DistType == kAbsolute && TakesLastFrame(run.Source, row.Frame)) {
      run.Accounts.Note<Row>(key, "last-frame-for-unknown");
    }
  }
}

void CloseGravityLoads(Conversion& run) {
  WrittenLoads written(run.Target);
  for (const auto [key, row] : run.Source.Rows<T_FRLG_D>().Entries()) {
    if (SectionNameOf(run.Source, row.Frame)) {
      NoteReferences(run, written, key, row);
    }
  }
}

void CloseTendons(Conversion& run) {
  WrittenLoads written(run.Target);
  const auto& multipliers = run.Source.Rows<T_FRLM_D>();
  for (const auto [key, tendon] : run.Source.Rows<T_FRPT_D>().Entries()) {
    const bool hasMultiplier = FindMultiplier(multipliers, key, tendon) != nullptr;
    if (!written.Have(run.Target.Table<T_NGT_FRPT_D>().Find(key)->LoadCase)) {
      run.Accounts.Note<T_FRPT_D>(
          key, hasMultiplier ? Why("load-case-not-static") : Why("tendon-without-multiplier"));
      continue;
    }
    if (!hasMultiplier) {
      run.Accounts.Note<T_FRPT_D>(key, "tendon-with-another-multiplier");
    }
    if (const auto why = WhyNotElement(run, tendon.Frame, kFrameFamily)) {
      run.Accounts.Note<T_FRPT_D>(key, *why);
    }
  }
}

void CloseMultipliers(Conversion& run) {
  WrittenLoads written(run.Target);
  const auto& multipliers = run.Source.Rows<T_FRLM_D>();
  const auto& tendons = run.Source.Rows<T_FRPT_D>();
  for (const auto [key, multiplier] : multipliers.Entries()) {
    const T_FRPT_D* const tendon = tendons.Find(key);
    if (tendon == nullptr || FindMultiplier(multipliers, key, *tendon) == nullptr) {
      run.Accounts.Note<T_FRLM_D>(key, "multiplier-without-tendon");
    } else {
      written.HaveOrNote<T_FRLM_D>(run.Accounts, key, multiplier.LoadCase);
    }
  }
}

}  // namespace

void CloseFrameLoads(Conversion& run) {
  CloseLoadsInPlaces<T_FRLD_D>(run);
  CloseLoadsInPlaces<T_FRLP_D>(run);
  CloseGravityLoads(run);
  CloseTendons(run);
  CloseMultipliers(run);
}

}  // namespace s2k2ngt
